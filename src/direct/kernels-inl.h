// The work on blocks of states, for a number type N of lanes-inl.h: decisions, solves, properties.
// Included inside a namespace, after pairs-inl.h.

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
// They take the internal energy, the Helmholtz energy.
constexpr Letters ofInternalEnergy = bit(Letter::H) | bit(Letter::S) | bit(Letter::U);
constexpr Letters ofHelmholtz = bit(Letter::S) | bit(Letter::A) | bit(Letter::G);
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
  const M u = (letters & ofInternalEnergy) != 0 ? point.internalEnergy() : T;
  const M A = (letters & ofHelmholtz) != 0 ? point.helmholtz() : T;
  const auto energy = [&](Letter letter) {
    switch (letter) {
      case Letter::H:
        return point.enthalpy(u);
      case Letter::S:
        return point.entropy(u, A);
      case Letter::U:
        return u;
      case Letter::A:
        return A;
      case Letter::G:
        return point.gibbs(A);
      default:
        return Properties::ofFirstDerivatives(propertyOf(letter), part, point);
    }
  };
  for (Letters rest = letters & energyLetters; rest != 0; rest &= rest - 1) {
    const auto letter = std::countr_zero(rest);
    put(energy(static_cast<Letter>(letter)), at, static_cast<std::size_t>(letter), values);
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
  phase.u = point.internalEnergy();
  phase.h = point.enthalpy(phase.u);
  phase.s = point.entropy(phase.u, point.helmholtz());
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
      // The line ends at the triple point, whose rounded pressure belongs to a little less.
      line.T = max(line.T, N(constants::triplePointTemperature));
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
