// The work on blocks of states, for a number type N of lanes-inl.h. Included inside a namespace.

constexpr double onePhase = static_cast<double>(Way::onePhase);
constexpr double twoPhases = static_cast<double>(Way::twoPhases);
constexpr double member = static_cast<double>(Way::member);

// Next to a boundary the members decide. Of the difference between the saturated values: what the
// starting tables may be wrong by, and more.
constexpr double nearLine = 2e-6;
// A mixture this close to one of its phases.
constexpr double nearQuality = 1e-9;
// Of the saturation pressure: where (P, T) asks for the exact line, and more.
constexpr double nearPressure = 0.0055;
// Below the triple point the members have rules of their own.
constexpr double lowestTemperature = constants::triplePointTemperature + 0.01;
constexpr double highestTemperature = 2500.0 - 1e-3;
constexpr double lowestOfLine = constants::triplePointPressure * 1.001;
constexpr double highestPressure = 3000.0 * (1.0 - 1e-6);

template <class N>
using MaskOf = typename NumberOf<N>::Mask;

template <class N>
HWY_INLINE MaskOf<N> within(const N& x, double low, double high) {
  return x > N(low) && x < N(high);
}

// Where to start on the state tables from P: below their lowest pressure steam is an ideal gas,
// with h and u of T alone and s = s(lowest) - R ln(P/lowest).
template <Letter second, class N>
HWY_INLINE void startFromP(const StateTable& table, const N& P, const N& logP, const N& x,
                           const N& layer, N& T, N& density) {
  const N low = N(table.first.low);
  N shifted = x;
  if constexpr (second == Letter::S) {
    shifted = x + constants::gasConstant * min(logP - low, N(0.0));
  }
  N temperature;
  N stored;
  readStates(table, max(logP, low), shifted, layer, temperature, stored);
  density = select(layer > N(0.5), stored * P, stored);
  if constexpr (second == Letter::T) {
    T = x;
  } else {
    T = temperature;
  }
}

// The columns of a property on the line, and its value where both meet.
template <Letter second>
struct LineColumns;
template <>
struct LineColumns<Letter::H> {
  static constexpr double critical = 2085.0;
  static constexpr LineTable::Name liquid = LineTable::hL, vapour = LineTable::hV;
};
template <>
struct LineColumns<Letter::S> {
  static constexpr double critical = 4.41;
  static constexpr LineTable::Name liquid = LineTable::sL, vapour = LineTable::sV;
};
template <>
struct LineColumns<Letter::U> {
  static constexpr double critical = 2015.0;
  static constexpr LineTable::Name liquid = LineTable::uL, vapour = LineTable::uV;
};
template <>
struct LineColumns<Letter::R> {
  static constexpr LineTable::Name liquid = LineTable::liquid, vapour = LineTable::vapour;
};

template <class N>
struct Decision {
  N way;
  N T;
  N density;
  N vapour;
};

// (P, T): the correlation decides away from the line, as the members do.
template <class N>
Decision<N> decidePT(const N& P, const N& T) {
  const MaskOf<N> sane =
      within(P, 1e-12, highestPressure) && within(T, 260.0 - 1e-9, highestTemperature + 1e-3);
  const N cold = min(max(T, N(200.0)), N(constants::criticalTemperature));
  const N Ps = saturation::pressure(cold);
  const MaskOf<N> subcritical = T < N(constants::criticalTemperature);
  const MaskOf<N> near = subcritical && (abs(P - Ps) < nearPressure * Ps ||
                                         (T < N(lowestTemperature) && P < N(lowestOfLine)));
  // Beyond the critical point the isochore of its density goes on from the line.
  const N boundary = select(subcritical, Ps, constants::criticalPressure + 0.27 * (T - cold));
  const N layer = select(P > boundary, N(0.0), N(1.0));
  Decision<N> d;
  const N safeP = select(sane, P, N(1.0));
  startFromP<Letter::T>(statesFromPT(), safeP, log(safeP), select(sane, T, N(600.0)), layer, d.T,
                        d.density);
  d.vapour = N(0.0);
  d.way = select(sane && !near, N(onePhase), N(member));
  return d;
}

// (P, x): the exact saturated values, as far as the tables know them.
template <Letter second, class N>
Decision<N> decideFromP(const StateTable& table, const N& P, const N& x) {
  const LineTable& line = lineByPressure();
  const MaskOf<N> sane = within(P, 1e-12, highestPressure) && within(x, 0.0, 1e5);
  const N safeP = select(sane, P, N(1.0));
  const N safeX = select(sane, x, N(5.0));
  const N logP = log(safeP);
  const LinePlace<N> place = placeAtLogP(line, logP);
  const N liquid = place(line.column[LineColumns<second>::liquid]);
  const N vapour = place(line.column[LineColumns<second>::vapour]);
  const N margin = nearLine * (vapour - liquid);
  const MaskOf<N> subcritical = safeP < N(lineTopPressure);
  const MaskOf<N> hasLiquid = safeP > N(lowestOfLine);
  const MaskOf<N> isLiquid = hasLiquid && subcritical && safeX < liquid - margin;
  const MaskOf<N> isVapour = subcritical && safeX > vapour + margin;
  const MaskOf<N> isMixture =
      hasLiquid && subcritical && safeX > liquid + margin && safeX < vapour - margin;
  const MaskOf<N> isSupercritical = safeP > N(constants::criticalPressure * 1.002);
  Decision<N> d;
  const MaskOf<N> liquidLike =
      isLiquid || (!subcritical && safeX < N(LineColumns<second>::critical));
  startFromP<second>(table, safeP, logP, safeX, select(liquidLike, N(0.0), N(1.0)), d.T, d.density);
  d.vapour = N(0.0);
  if (any(isMixture)) {
    d.T = select(isMixture, place(line.column[LineTable::T]), d.T);
    d.density = select(isMixture, place(line.column[LineTable::liquid]), d.density);
    d.vapour = place(line.column[LineTable::vapour]);
  }
  const MaskOf<N> one = sane && (isLiquid || isVapour || isSupercritical);
  d.way = select(one, N(onePhase), select(sane && isMixture, N(twoPhases), N(member)));
  return d;
}

// (P, rho): the isochores are nearly straight, so that any temperature near the line starts well.
template <class N>
Decision<N> decideFromPR(const N& P, const N& density) {
  const LineTable& line = lineByPressure();
  const MaskOf<N> sane = within(P, lowestOfLine, highestPressure) && within(density, 1e-12, 1500.0);
  const N safeP = select(sane, P, N(1.0));
  const N logP = log(safeP);
  const LinePlace<N> place = placeAtLogP(line, logP);
  const N liquid = place(line.column[LineTable::liquid]);
  const N vapour = place(line.column[LineTable::vapour]);
  const N Ts = place(line.column[LineTable::T]);
  const MaskOf<N> subcritical = safeP < N(lineTopPressure);
  const MaskOf<N> isLiquid = subcritical && density > liquid * (1.0 + nearLine);
  const MaskOf<N> isVapour = subcritical && density < vapour * (1.0 - nearLine);
  const MaskOf<N> isMixture =
      subcritical && density < liquid * (1.0 - nearLine) && density > vapour * (1.0 + nearLine);
  const MaskOf<N> isSupercritical = safeP > N(constants::criticalPressure * 1.002);
  const N ideal = 1000.0 * safeP / (constants::gasConstant * density);
  Decision<N> d;
  d.T = select(isMixture || isLiquid, Ts,
               min(max(ideal, select(subcritical, Ts, N(660.0))), N(2490.0)));
  d.density = select(isMixture, liquid, density);
  d.vapour = vapour;
  const MaskOf<N> one = sane && (isLiquid || isVapour || isSupercritical);
  d.way = select(one, N(onePhase), select(sane && isMixture, N(twoPhases), N(member)));
  return d;
}

// (T, x): as (P, x). Where a temperature has two states with the same x the members choose, by
// rules that `solveFromT` knows for the states that start from the line.
template <Letter second, class N>
Decision<N> decideFromT(const N& T, const N& x) {
  const LineTable& line = lineByTemperature();
  const MaskOf<N> sane = within(T, lowestTemperature, highestTemperature) && within(x, 0.0, 1e5);
  const N safeT = select(sane, T, N(400.0));
  const LinePlace<N> place = placeAtT(line, safeT);
  const N liquid = place(line.column[LineColumns<second>::liquid]);
  const N vapour = place(line.column[LineColumns<second>::vapour]);
  const N lighter = place(line.column[LineTable::vapour]);
  const N heavier = place(line.column[LineTable::liquid]);
  const MaskOf<N> subcritical = safeT < N(lineTop);
  constexpr bool isDensity = second == Letter::R;
  // Densities run the other way.
  const N low = isDensity ? vapour : liquid;
  const N high = isDensity ? liquid : vapour;
  const N margin = isDensity ? nearLine * x : nearLine * (high - low);
  const MaskOf<N> below = subcritical && x < low - margin;
  const MaskOf<N> above = subcritical && x > high + margin;
  const MaskOf<N> isMixture = subcritical && x > low + margin && x < high - margin;
  const MaskOf<N> isSupercritical = safeT > N(constants::criticalTemperature + 0.3);
  Decision<N> d;
  d.T = safeT;
  d.vapour = lighter;
  MaskOf<N> one = below || above;
  if constexpr (isDensity) {
    one = one || isSupercritical;
    d.density = select(isMixture, heavier, select(sane, x, N(1.0)));
  } else {
    d.density = select(below || isMixture, heavier, lighter);
    if constexpr (second == Letter::S) {
      // An ideal gas has s = s'' - R ln(rho/rho'').
      const N ideal = lighter * exp(max((vapour - x) * (1.0 / constants::gasConstant), N(-60.0)));
      d.density = select(above, ideal, d.density);
    }
  }
  d.way = select(sane && one, N(onePhase), select(sane && isMixture, N(twoPhases), N(member)));
  return d;
}

// On the line.
template <class N>
HWY_INLINE Decision<N> decideOnLine(const LineTable& line, const LinePlace<N>& place,
                                    const MaskOf<N>& sane) {
  return {select(sane, N(twoPhases), N(member)), place(line.column[LineTable::T]),
          place(line.column[LineTable::liquid]), place(line.column[LineTable::vapour])};
}
template <class N>
Decision<N> decidePQ(const N& P, const N& Q) {
  const LineTable& line = lineByPressure();
  const MaskOf<N> sane = P >= N(constants::triplePointPressure) && P < N(lineTopPressure) &&
                         Q >= N(0.0) && Q <= N(1.0);
  return decideOnLine(line, placeAtLogP(line, log(select(sane, P, N(1.0)))), sane);
}
template <class N>
Decision<N> decideTQ(const N& T, const N& Q) {
  const LineTable& line = lineByTemperature();
  const MaskOf<N> sane =
      T >= N(constants::triplePointTemperature) && T < N(lineTop) && Q >= N(0.0) && Q <= N(1.0);
  return decideOnLine(line, placeAtT(line, select(sane, T, N(400.0))), sane);
}

// The members answer a pressure or a temperature only inside their ranges, and below the critical
// temperature no state between the saturated densities.
template <class N>
HWY_INLINE MaskOf<N> inRange(const N& T, const N& P) {
  return within(T, lowestTemperature, highestTemperature) && within(P, 1e-12, highestPressure);
}
template <class N>
HWY_INLINE MaskOf<N> besideLine(const N& T, const N& density) {
  const LineTable& line = lineByTemperature();
  const LinePlace<N> place = placeAtT(line, min(max(T, N(lineBottom)), N(lineTop)));
  return T > N(constants::criticalTemperature) ||
         (T < N(lineTop) && (density > place(line.column[LineTable::liquid]) ||
                             density < place(line.column[LineTable::vapour])));
}

// The root next to the start is the one that is meant; another one is not.
template <class N>
HWY_INLINE MaskOf<N> nearStart(const N& density, const N& start) {
  return within(density / start, 0.6, 1.6);
}

template <class N>
OnePhase<N> solvePT(const TemperaturePartOf<N>& part, const N& P, const N& density) {
  OnePhase<N> state = densityAt(part, P, density);
  state.found = state.found && nearStart(state.density, density);
  return state;
}

template <Letter second, class N>
OnePhase<N> solveFromP(const N& P, const N& x, const N& T, const N& density) {
  OnePhase<N> state = stateFrom<Letter::P, second>(P, x, T, density);
  // In dense cold water an isobar has several temperatures with one enthalpy.
  const MaskOf<N> single = P < N(500.0) || state.T > N(700.0);
  state.found = state.found && nearStart(state.density, density) && inRange(state.T, P) && single;
  return state;
}

// Only the temperature is unknown.
template <class N>
OnePhase<N> solvePR(const N& P, const N& density, const N& start) {
  N T = start;
  MaskOf<N> found = T < N(0.0);
  const N r = 0.001 * density;
  for (int step = 0; step < newtonSteps; ++step) {
    TemperaturePartOf<N> part;
    part.prepareAll(T, TemperatureOrder::curvature);
    const HelmholtzPointOf<N> point(part, density);
    const auto d = point.derivatives();
    const N delta = held((P - point.pressure()) / (d.PT * T));
    T = select(found, T, T + T * delta);
    // Steps are relative to T, the curvature of an isochore is small.
    found = found || (d.Pr > N(0.0) && d.PT > N(0.0) &&
                      delta * delta * (4.0 + abs(P / (d.PT * T))) < N(acceptedError));
    if (every(found)) break;
  }
  // The liquid's density has its maximum below 285 K, and two temperatures around it.
  const MaskOf<N> single = (T > N(290.0) || r < N(0.3)) && (P < N(500.0) || T > N(700.0));
  return {T, density, found && single && inRange(T, P) && besideLine(T, density)};
}

// Only the density is unknown. From the line on, the property runs one way as far as the state that
// is meant: its slope has the same sign there and here.
template <Letter second, class N>
OnePhase<N> solveFromT(const N& T, const N& x, const N& start) {
  N density = start;
  TemperaturePartOf<N> part;
  part.prepareAll(T, TemperatureOrder::curvature);
  MaskOf<N> found = T < N(0.0);
  MaskOf<N> rising = found;
  N P = N(0.0);
  N slope = N(0.0);
  const MaskOf<N> isLiquid = start > N(constants::criticalDensity);
  for (int step = 0; step < newtonSteps; ++step) {
    const N r = 0.001 * density;
    const HelmholtzPointOf<N> point(part, density);
    const auto d = point.derivatives();
    const Slopes<N> f = slopesOf<second>(point, d, T, r);
    if (step == 0) rising = f.byR > N(0.0);
    const N delta = held((x - f.value) / (f.byR * r));
    density = select(found, density, density + density * delta);
    P = select(found, P, point.pressure());
    slope = select(found, slope, f.byR);
    found =
        found || (d.Pr > N(0.0) && errorAfter(delta, d.Pr, coefficients::R * T) < N(acceptedError));
    if (every(found)) break;
  }
  const MaskOf<N> sameWay = (rising && slope > N(0.0)) || (!rising && slope < N(0.0));
  const MaskOf<N> sameSide = (isLiquid && density > N(constants::criticalDensity)) ||
                             (!isLiquid && density < N(constants::criticalDensity));
  // Around the density maximum a liquid's s and u have two states.
  const MaskOf<N> single = !isLiquid || T > N(290.0);
  return {T, density,
          found && sameWay && sameSide && single && inRange(T, P) && besideLine(T, density)};
}

template <class N>
OnePhase<N> solveHS(const N& h, const N& s, const N& T, const N& density) {
  OnePhase<N> state = stateFrom<Letter::H, Letter::S>(h, s, T, density);
  TemperaturePartOf<N> part;
  part.prepareAll(state.T, TemperatureOrder::pressure);
  const N P = HelmholtzPointOf<N>(part, state.density).pressure();
  state.found = state.found && inRange(state.T, P) && besideLine(state.T, state.density);
  return state;
}

template <class N>
OnePhase<N> solveTR(const N& T, const N& density) {
  TemperaturePartOf<N> part;
  part.prepareAll(T, TemperatureOrder::pressure);
  const HelmholtzPointOf<N> point(part, density);
  return {T, density, point.pressureSlope() > N(0.0) && inRange(T, point.pressure())};
}

// (h, s): interpolated between states, where there are nine, else the next one.
template <class N>
Decision<N> decideHS(const N& h, const N& s) {
  const StateTable& table = statesFromHS();
  const MaskOf<N> sane = within(h, 0.0, 11000.0) && within(s, 0.0, 14.9);
  const N safeH = select(sane, h, N(3000.0));
  const N safeS = select(sane, s, N(7.0));
  N T;
  N logDensity;
  readStates(table, safeS, safeH, N(0.0), T, logDensity);
  N nextT;
  N nextLog;
  nearestState(table, safeS, safeH, nextT, nextLog);
  const MaskOf<N> between = within(T, 200.0, 3000.0);
  const MaskOf<N> known = between || within(nextT, 200.0, 3000.0);
  Decision<N> d;
  d.T = select(between, T, nextT);
  d.density = exp(select(between, logDensity, select(known, nextLog, N(0.0))));
  d.vapour = N(0.0);
  MaskOf<N> one = known;
  // The liquid is a narrow band above its saturated states: it starts from the one with its
  // entropy.
  const MaskOf<N> hasLiquid = safeS < N(4.1);
  if (any(hasLiquid)) {
    const LineTable& line = lineByTemperature();
    N Tl = 273.16 * exp(min(safeS, N(4.1)) * (1.0 / 4.6));
    for (int step = 0; step < 4; ++step) {
      Tl = Tl +
           (min(safeS, N(4.1)) - placeAtT(line, Tl)(line.column[LineTable::sL])) * Tl * (1.0 / 4.6);
      Tl = min(max(Tl, N(lineBottom + 2.0)), N(lineTop - 1.0));
    }
    const LinePlace<N> place = placeAtT(line, Tl);
    const MaskOf<N> liquid = hasLiquid && safeH > place(line.column[LineTable::hL]);
    d.T = select(liquid && !between, Tl, d.T);
    d.density = select(liquid && !between, place(line.column[LineTable::liquid]), d.density);
    one = (one && !hasLiquid) || liquid;
  }
  d.way = select(sane && one, N(onePhase), select(sane, N(twoPhases), N(member)));
  return d;
}

// (h, s) in two phases: any temperature of the line starts.
template <class N>
HWY_INLINE void startInTwoPhases(const N& h, const N& s, N& T, N& liquid, N& vapour) {
  const LineTable& line = lineByTemperature();
  // On the line g(T) = h - T s with the g of the table; dg/dT is -s' but for v' dP/dT. From the
  // cold end the steps stay on their side.
  T = N(274.0);
  for (int step = 0; step < 8; ++step) {
    const LinePlace<N> place = placeAtT(line, T);
    const N sL = place(line.column[LineTable::sL]);
    const N excess = h - place(line.column[LineTable::hL]) - T * (s - sL);
    T = min(max(T + excess / max(s - sL, N(0.05)), N(constants::triplePointTemperature)),
            N(lineTop - 0.1));
  }
  const LinePlace<N> place = placeAtT(line, T);
  liquid = place(line.column[LineTable::liquid]);
  vapour = place(line.column[LineTable::vapour]);
}

template <class N>
struct Chunk {
  using Number = NumberOf<N>;
  States& states;
  int at;

  [[nodiscard]] HWY_INLINE N operator()(const Block& block) const {
    return Number::load(block.data() + at);
  }
  HWY_INLINE void store(const N& x, Block& block) const { Number::store(x, block.data() + at); }
};

template <class N>
HWY_INLINE Decision<N> decide(Pair pair, const N& a, const N& b) {
  switch (pair) {
    case Pair::PT:
      return decidePT(a, b);
    case Pair::PH:
      return decideFromP<Letter::H>(statesFromPH(), a, b);
    case Pair::PS:
      return decideFromP<Letter::S>(statesFromPS(), a, b);
    case Pair::PU:
      return decideFromP<Letter::U>(statesFromPU(), a, b);
    case Pair::PR:
      return decideFromPR(a, b);
    case Pair::TH:
      return decideFromT<Letter::H>(a, b);
    case Pair::TS:
      return decideFromT<Letter::S>(a, b);
    case Pair::TU:
      return decideFromT<Letter::U>(a, b);
    case Pair::TR:
      return decideFromT<Letter::R>(a, b);
    case Pair::PQ:
      return decidePQ(a, b);
    case Pair::TQ:
      return decideTQ(a, b);
    case Pair::HS:
      return decideHS(a, b);
    default:
      return {N(member), N(0.0), N(0.0), N(0.0)};
  }
}

template <class N>
void decideBlock(Pair pair, int count, States& states) {
  for (int i = 0; i < count; i += NumberOf<N>::count) {
    const Chunk<N> chunk{states, i};
    const Decision<N> d = decide(pair, chunk(states.first), chunk(states.second));
    chunk.store(d.way, states.way);
    chunk.store(d.T, states.T);
    chunk.store(d.density, states.density);
    chunk.store(d.vapour, states.vapour);
  }
}

// Properties -------------------------------------------------------------------------------------

template <class N>
HWY_INLINE const N& valueOf(const N& x) {
  return x;
}
template <class N>
HWY_INLINE const N& valueOf(const Dual<N>& x) {
  return x.value;
}

template <class N>
HWY_INLINE void put(const N& x, int at, std::size_t letter, Values& values) {
  NumberOf<N>::store(x, values.value[letter].data() + at);
}
template <class N>
HWY_INLINE void put(const Dual<N>& x, int at, std::size_t letter, Values& values) {
  NumberOf<N>::store(x.value, values.value[letter].data() + at);
  NumberOf<N>::store(x.byT, values.byX[letter].data() + at);
  NumberOf<N>::store(x.byR, values.byY[letter].data() + at);
}

constexpr Letters curvatureLetters = bit(Letter::K) | bit(Letter::C) | bit(Letter::D) |
                                     bit(Letter::W) | bit(Letter::N) | bit(Letter::I) |
                                     bit(Letter::J) | bit(Letter::B) | bit(Letter::L);
constexpr Letters energyLetters = bit(Letter::P) | bit(Letter::H) | bit(Letter::S) |
                                  bit(Letter::U) | bit(Letter::A) | bit(Letter::G) | bit(Letter::Z);
constexpr Letters transportLetters = bit(Letter::M) | bit(Letter::K) | bit(Letter::N);

// Order of the temperature part that letters need.
HWY_INLINE TemperatureOrder orderOf(Letters letters) {
  return (letters & curvatureLetters) != 0 ? TemperatureOrder::curvature : TemperatureOrder::energy;
}

// Letters at a temperature and density with their temperature part, which is prepared to the order
// of the letters; M is the number type of the properties: N, or N with derivatives.
template <class N, class M>
HWY_NOINLINE void putProperties(Letters letters, const TemperaturePartOf<M>& part, const M& density,
                                int at, Values& values) {
  using Properties = PropertiesOf<M>;
  const M& T = part.T();
  constexpr Letters special =
      curvatureLetters | energyLetters | transportLetters | bit(Letter::Q) | lineSlopeWanted;
  for (Letters rest = letters & ~special; rest != 0; rest &= rest - 1) {
    const auto letter = static_cast<std::size_t>(std::countr_zero(rest));
    put(Properties::ofTemperatureAndDensity(propertyOf(static_cast<Letter>(letter)), T, density),
        at, letter, values);
  }
  M mu;
  if ((letters & transportLetters) != 0) {
    mu = viscosity(T, density);
    if ((letters & bit(Letter::M)) != 0) put(mu, at, static_cast<std::size_t>(Letter::M), values);
  }
  if ((letters & (curvatureLetters | energyLetters)) == 0) return;

  const HelmholtzPointOf<M> point(part, density);
  for (Letters rest = letters & energyLetters; rest != 0; rest &= rest - 1) {
    const auto letter = static_cast<std::size_t>(std::countr_zero(rest));
    put(Properties::ofFirstDerivatives(propertyOf(static_cast<Letter>(letter)), part, point), at,
        letter, values);
  }
  if ((letters & curvatureLetters) == 0) return;
  const auto d = point.derivatives();
  for (Letters rest = letters & curvatureLetters & ~transportLetters; rest != 0; rest &= rest - 1) {
    const auto letter = static_cast<std::size_t>(std::countr_zero(rest));
    put(Properties::ofSecondDerivatives(propertyOf(static_cast<Letter>(letter)), T, density, d), at,
        letter, values);
  }
  if ((letters & (bit(Letter::K) | bit(Letter::N))) == 0) return;
  const M lambda = thermalConductivity(T, density, d, mu);
  if ((letters & bit(Letter::K)) != 0) put(lambda, at, static_cast<std::size_t>(Letter::K), values);
  if ((letters & bit(Letter::N)) != 0) {
    put(Properties::prandtl(mu, d.cp, lambda), at, static_cast<std::size_t>(Letter::N), values);
  }
}

template <class N>
HWY_INLINE void putStates(const Wanted& wanted, const N& T, const N& density, int at,
                          Values& values) {
  if (wanted.derivatives) {
    TemperaturePartOf<Dual<N>> part;
    part.prepareAll(Dual<N>(T, N(1.0), N(0.0)), orderOf(wanted.letters));
    putProperties<N>(wanted.letters, part, Dual<N>(density, N(0.0), N(1.0)), at, values);
  } else {
    TemperaturePartOf<N> part;
    part.prepareAll(T, (wanted.letters & (curvatureLetters | energyLetters)) != 0
                           ? orderOf(wanted.letters)
                           : TemperatureOrder::none);
    putProperties<N>(wanted.letters, part, density, at, values);
  }
}

template <class N>
void propertiesBlock(const Wanted& wanted, int begin, int end, const States& states,
                     Values& values) {
  for (int i = begin; i < end; i += NumberOf<N>::count) {
    putStates(wanted, NumberOf<N>::load(states.T.data() + i),
              NumberOf<N>::load(states.density.data() + i), i, values);
  }
}

// One of the two phases of a mixture: its properties, and how they change along the line.
template <class N>
struct Saturated {
  N h, s, u, v;
  N hT, sT, uT, vT;  // by temperature along the line
};

template <class N>
HWY_INLINE Saturated<N> saturated(const TemperaturePartOf<N>& part,
                                  const HelmholtzPointOf<N>& point, const N& density,
                                  bool derivatives, const N& lineSlope) {
  Saturated<N> phase;
  phase.h = point.enthalpy();
  phase.s = point.entropy();
  phase.u = point.internalEnergy();
  phase.v = 1.0 / density;
  if (derivatives) {
    const N& T = part.T();
    const N r = 0.001 * density;
    const auto d = point.derivatives();
    const N rT = (lineSlope - d.PT) / d.Pr;
    const Slopes<N> h = slopesOf<Letter::H>(point, d, T, r);
    const Slopes<N> s = slopesOf<Letter::S>(point, d, T, r);
    const Slopes<N> u = slopesOf<Letter::U>(point, d, T, r);
    phase.hT = h.byT + h.byR * rT;
    phase.sT = s.byT + s.byR * rT;
    phase.uT = u.byT + u.byR * rT;
    phase.vT = -0.001 * rT / (r * r);
  }
  return phase;
}

template <class N>
HWY_INLINE void putMixture(const N& x, const N& byT, const N& byQ, bool derivatives, int at,
                           Letter letter, Values& values) {
  const auto i = static_cast<std::size_t>(letter);
  NumberOf<N>::store(x, values.value[i].data() + at);
  if (derivatives) {
    NumberOf<N>::store(byT, values.byX[i].data() + at);
    NumberOf<N>::store(byQ, values.byY[i].data() + at);
  }
}

template <class N>
void mixturesBlock(const Wanted& wanted, int begin, int end, const States& states, Values& values) {
  const auto [letters, derivatives] = wanted;
  constexpr Letters ofPhases = bit(Letter::H) | bit(Letter::S) | bit(Letter::U);
  const bool slopes = derivatives || (letters & lineSlopeWanted) != 0;
  for (int i = begin; i < end; i += NumberOf<N>::count) {
    const N T = NumberOf<N>::load(states.T.data() + i);
    const N liquid = NumberOf<N>::load(states.density.data() + i);
    const N vapour = NumberOf<N>::load(states.vapour.data() + i);
    const N Q = NumberOf<N>::load(states.quality.data() + i);
    const N P = NumberOf<N>::load(states.pressure.data() + i);
    N lineSlope = N(0.0);
    Saturated<N> l;
    Saturated<N> v;
    if (slopes || (letters & ofPhases) != 0) {
      TemperaturePartOf<N> part;
      part.prepareAll(T, derivatives ? TemperatureOrder::curvature : TemperatureOrder::energy);
      const HelmholtzPointOf<N> liquidPoint(part, liquid);
      const HelmholtzPointOf<N> vapourPoint(part, vapour);
      // Clausius and Clapeyron: dP/dT = (s'' - s')/(v'' - v'); kJ/(kg.K) over m3/kg are 0.001
      // MPa/K.
      lineSlope =
          0.001 * (vapourPoint.entropy() - liquidPoint.entropy()) / (1.0 / vapour - 1.0 / liquid);
      l = saturated(part, liquidPoint, liquid, derivatives, lineSlope);
      v = saturated(part, vapourPoint, vapour, derivatives, lineSlope);
      NumberOf<N>::store(lineSlope, values.lineSlope.data() + i);
    } else {
      l.v = 1.0 / liquid;
      v.v = 1.0 / vapour;
    }
    const N L = 1.0 - Q;
    const N volume = L * l.v + Q * v.v;
    const N volumeT = derivatives ? L * l.vT + Q * v.vT : N(0.0);
    for (Letters rest = letters; rest != 0; rest &= rest - 1) {
      const auto letter = static_cast<Letter>(std::countr_zero(rest));
      switch (letter) {
        case Letter::P:
          putMixture(P, lineSlope, N(0.0), derivatives, i, letter, values);
          break;
        case Letter::T:
          putMixture(T, N(1.0), N(0.0), derivatives, i, letter, values);
          break;
        case Letter::Q:
          putMixture(Q, N(0.0), N(1.0), derivatives, i, letter, values);
          break;
        case Letter::H:
          putMixture(L * l.h + Q * v.h, derivatives ? L * l.hT + Q * v.hT : T, v.h - l.h,
                     derivatives, i, letter, values);
          break;
        case Letter::S:
          putMixture(L * l.s + Q * v.s, derivatives ? L * l.sT + Q * v.sT : T, v.s - l.s,
                     derivatives, i, letter, values);
          break;
        case Letter::U:
          putMixture(L * l.u + Q * v.u, derivatives ? L * l.uT + Q * v.uT : T, v.u - l.u,
                     derivatives, i, letter, values);
          break;
        case Letter::V:
          putMixture(volume, volumeT, v.v - l.v, derivatives, i, letter, values);
          break;
        case Letter::R:
          putMixture(1.0 / volume, -volumeT / (volume * volume), (l.v - v.v) / (volume * volume),
                     derivatives, i, letter, values);
          break;
        default:
          break;
      }
    }
  }
}

template <class N>
HWY_INLINE OnePhase<N> solve(Pair pair, const N& a, const N& b, const N& T, const N& density) {
  switch (pair) {
    case Pair::PH:
      return solveFromP<Letter::H>(a, b, T, density);
    case Pair::PS:
      return solveFromP<Letter::S>(a, b, T, density);
    case Pair::PU:
      return solveFromP<Letter::U>(a, b, T, density);
    case Pair::PR:
      return solvePR(a, b, T);
    case Pair::TH:
      return solveFromT<Letter::H>(a, b, density);
    case Pair::TS:
      return solveFromT<Letter::S>(a, b, density);
    case Pair::TU:
      return solveFromT<Letter::U>(a, b, density);
    case Pair::HS:
      return solveHS(a, b, T, density);
    default:
      return solveTR(a, b);
  }
}

template <class N>
HWY_INLINE void storeState(const OnePhase<N>& state, const Chunk<N>& chunk, States& states) {
  chunk.store(select(state.found, chunk(states.way), N(member)), states.way);
  chunk.store(state.T, states.T);
  chunk.store(state.density, states.density);
}

template <class N>
void solveBlock(Pair pair, const Wanted& wanted, int count, States& states, Values& values) {
  if (pair == Pair::PT) {
    // The temperature is known, and what depends on it is computed once.
    const TemperatureOrder order =
        wanted.derivatives ? TemperatureOrder::pressure : orderOf(wanted.letters);
    for (int i = 0; i < count; i += NumberOf<N>::count) {
      const Chunk<N> chunk{states, i};
      TemperaturePartOf<N> part;
      part.prepareAll(chunk(states.second), order);
      const OnePhase<N> state = solvePT(part, chunk(states.first), chunk(states.density));
      storeState(state, chunk, states);
      if (wanted.derivatives) {
        putStates(wanted, state.T, state.density, i, values);
      } else {
        putProperties<N>(wanted.letters, part, state.density, i, values);
      }
    }
    return;
  }
  for (int i = 0; i < count; i += NumberOf<N>::count) {
    const Chunk<N> chunk{states, i};
    const OnePhase<N> state = solve(pair, chunk(states.first), chunk(states.second),
                                    chunk(states.T), chunk(states.density));
    storeState(state, chunk, states);
    if (wanted.letters != 0) putStates(wanted, state.T, state.density, i, values);
  }
}

// Both saturated values of a property and with them the vapour fraction of a mixture.
template <class N>
HWY_INLINE N qualityOf(Letter letter, const N& x, const Equilibrium<N>& line) {
  if (letter == Letter::Q) return x;
  if (letter == Letter::R) {
    return (1.0 / x - 1.0 / line.liquid) / (1.0 / line.vapour - 1.0 / line.liquid);
  }
  TemperaturePartOf<N> part;
  part.prepareAll(line.T, TemperatureOrder::energy);
  const Property property = propertyOf(letter);
  const N liquid =
      PropertiesOf<N>::ofFirstDerivatives(property, part, HelmholtzPointOf<N>(part, line.liquid));
  const N vapour =
      PropertiesOf<N>::ofFirstDerivatives(property, part, HelmholtzPointOf<N>(part, line.vapour));
  return (x - liquid) / (vapour - liquid);
}

template <class N>
void solveTwoPhasesBlock(Pair pair, const Wanted& wanted, int count, States& states,
                         Values& values) {
  const bool fromP = firstOf(pair) == Letter::P;
  const Letter second = secondOf(pair);
  for (int i = 0; i < count; i += NumberOf<N>::count) {
    const Chunk<N> chunk{states, i};
    const N a = chunk(states.first);
    N liquid = chunk(states.density);
    N vapour = chunk(states.vapour);
    Equilibrium<N> line;
    if (pair == Pair::HS) {
      N T;
      const N s = chunk(states.second);
      startInTwoPhases(a, s, T, liquid, vapour);
      line = equilibriumAtHS(a, s, T, liquid, vapour);
      line.found = line.found && within(line.T, lowestTemperature, lineTop);
    } else {
      line = fromP ? equilibriumAtP(a, chunk(states.T), liquid, vapour)
                   : equilibriumAtT(a, liquid, vapour);
    }
    const N quality = qualityOf(second, chunk(states.second), line);
    MaskOf<N> found = line.found;
    if (second != Letter::Q) found = found && within(quality, nearQuality, 1.0 - nearQuality);
    chunk.store(select(found, N(twoPhases), N(member)), states.way);
    chunk.store(line.T, states.T);
    chunk.store(line.P, states.pressure);
    chunk.store(line.liquid, states.density);
    chunk.store(line.vapour, states.vapour);
    chunk.store(quality, states.quality);
  }
  if (wanted.letters != 0) mixturesBlock<N>(wanted, 0, count, states, values);
}

template <class N>
Kernels kernelsOf(std::string_view name) {
  return {name,
          NumberOf<N>::count,
          &decideBlock<N>,
          &solveBlock<N>,
          &solveTwoPhasesBlock<N>,
          &propertiesBlock<N>,
          &mixturesBlock<N>};
}
