// What each pair of properties needs: which phase it belongs to, where to start, and the Newton
// solve. For a number type N of lanes-inl.h; included inside a namespace.

constexpr double onePhase = static_cast<double>(Way::onePhase);
constexpr double twoPhases = static_cast<double>(Way::twoPhases);
constexpr double member = static_cast<double>(Way::member);

// Next to a boundary the members decide. Of the difference between the saturated values: what the
// starting tables may be wrong by, and more.
constexpr double nearLine = 2e-6;
// A mixture this close to one of its phases.
constexpr double nearQuality = 1e-9;
// Of the saturation pressure: where the members answer two phases to (P, T), and more; and what the
// border of the density table may be wrong by, and more.
constexpr double onLine = 1.001e-4;
constexpr double nearBorder = 1e-3;
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
  N stored;
  readStates(table, max(logP, low), shifted, layer, T, stored);
  density = select(layer > N(0.5), stored * P, stored);
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

// (P, T): the border of the table decides, next to it the exact line as far as the tables know it.
template <class N>
Decision<N> decidePT(const N& P, const N& T) {
  const MaskOf<N> sane = within(P, 1e-12, highestPressure) &&
                         T >= N(constants::lowestTemperature) &&
                         T <= N(constants::highestTemperature);
  const N safeP = select(sane, P, N(1.0));
  const N logP = log(safeP);
  Decision<N> d;
  d.T = select(sane, T, N(600.0));
  d.vapour = N(0.0);
  const DensityPlace<N> place(densityFromPT(), logP, d.T);
  const N border = place.border();
  MaskOf<N> isDense = logP > border;
  MaskOf<N> undecided = d.T < N(constants::criticalTemperature) &&
                        (abs(logP - border) < N(nearBorder) ||
                         (d.T < N(lowestTemperature) && safeP < N(lowestOfLine)));
  if (any(undecided)) {
    const LineTable& line = lineByTemperature();
    const N Ps = placeAtT(line, min(d.T, N(lineTop)))(line.column[LineTable::P]);
    const MaskOf<N> known = undecided && within(d.T, lowestTemperature, lineTop);
    isDense = (isDense && !known) || (safeP > Ps && known);
    undecided = undecided && !(known && abs(safeP - Ps) > onLine * Ps);
  }
  const N stored = place(select(isDense, N(0.0), N(1.0)));
  d.density = select(isDense, stored, stored * safeP);
  d.way = select(sane && !undecided, N(onePhase), N(member));
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
    part.prepareAll(T, TemperatureOrder::energy);
    const HelmholtzPointOf<N> point(part, density);
    const auto d = point.gradient();
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
  part.prepareAll(T, TemperatureOrder::energy);
  MaskOf<N> found = T < N(0.0);
  MaskOf<N> rising = found;
  N P = N(0.0);
  N slope = N(0.0);
  const MaskOf<N> isLiquid = start > N(constants::criticalDensity);
  for (int step = 0; step < newtonSteps; ++step) {
    const N r = 0.001 * density;
    const HelmholtzPointOf<N> point(part, density);
    const auto d = point.gradient();
    const DensitySlope<N> f = slopeOf<second>(point, d, T, r);
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
