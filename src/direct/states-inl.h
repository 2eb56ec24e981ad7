// States by Newton's method with the analytic slopes of the fundamental equation, for a number type
// N of lanes-inl.h. Every lane stops by itself, so that its answer does not depend on its
// neighbours. Included inside a namespace, after property-inl.h.
//
// Notation of fundamental_equation-inl.h: r density in g/cm3, P_r, P_T, h_r, ... derivatives at
// constant T or r; with X and Y of HelmholtzPointOf::Gradient
//
//     h_r = X - Y              h_T = c_v + P_T/r
//     u_r = (P/r - RT)/r - Y   u_T = c_v
//     s_r = -P_T/r^2           s_T = c_v/T

/// An input property with its derivative by density (g/cm3).
template <class N>
struct DensitySlope {
  N value;
  N byR;
};

template <Letter letter, class N>
HWY_INLINE DensitySlope<N> slopeOf(const HelmholtzPointOf<N>& point,
                                   const typename HelmholtzPointOf<N>::Gradient& d, const N& T,
                                   const N& r) {
  if constexpr (letter == Letter::P) return {point.pressure(), d.Pr};
  if constexpr (letter == Letter::H) return {point.enthalpy(), d.X - d.Y};
  if constexpr (letter == Letter::S) return {point.entropy(), -d.PT / (r * r)};
  if constexpr (letter == Letter::U) {
    return {point.internalEnergy(), (point.pressureOverDensity() - coefficients::R * T) / r - d.Y};
  }
}

/// The same with the derivative by temperature (K).
template <class N>
struct Slopes {
  N value;
  N byT;
  N byR;
};

template <Letter letter, class N>
HWY_INLINE Slopes<N> slopesOf(const HelmholtzPointOf<N>& point,
                              const typename HelmholtzPointOf<N>::Derivatives& d, const N& T,
                              const N& r) {
  const DensitySlope<N> f = slopeOf<letter>(point, d, T, r);
  N byT;
  if constexpr (letter == Letter::P) byT = d.PT;
  if constexpr (letter == Letter::H) byT = d.cv + d.PT / r;
  if constexpr (letter == Letter::S) byT = d.cv / T;
  if constexpr (letter == Letter::U) byT = d.cv;
  return {f.value, byT, f.byR};
}

/// A state of one phase: temperature, K, density, kg/m3, and whether Newton's method arrived.
template <class N>
struct OnePhase {
  N T;
  N density;
  typename NumberOf<N>::Mask found;
};

constexpr int newtonSteps = 14;

/// What is left after a step of relative size delta, by the curvature of the isotherm: more next to
/// the critical point, where P_r is small. Accepted below 1e-14.
template <class N>
HWY_INLINE N errorAfter(const N& delta, const N& Pr, const N& RT) {
  return delta * delta * (4.0 + 8.0 * RT / Pr);
}
constexpr double acceptedError = 1e-14;

/// Half a step at most, and never past zero.
template <class N>
HWY_INLINE N held(const N& relativeStep) {
  return min(max(relativeStep, N(-0.4)), N(0.6));
}

/// The density at pressure P and the temperature of the part, from a density nearby, by Halley's
/// method: dr = n/(1 + n P_rr/(2 P_r)) with Newton's step n. What it leaves is of the third order.
template <class N>
OnePhase<N> densityAt(const TemperaturePartOf<N>& part, const N& P, const N& start) {
  using Mask = typename NumberOf<N>::Mask;
  const N RT = coefficients::R * part.T();
  N density = start;
  Mask found = RT < N(0.0);  // none
  for (int step = 0; step < newtonSteps; ++step) {
    const HelmholtzPointOf<N> point(part, density);
    const auto [Pr, Prr] = point.pressureSlopes();
    const N newton = (P - point.pressure()) / Pr;
    const N bend = min(max(0.5 * newton * Prr / Pr, N(-0.5)), N(1.0));
    const N delta = held(newton / (1.0 + bend) * 1000.0 / density);
    density = select(found, density, density + density * delta);
    const N curvature = 2.0 + 4.0 * RT / Pr;
    const N error = abs(delta) * delta * delta * curvature * curvature;
    found = found || (Pr > N(0.0) && error < N(acceptedError));
    if (every(found)) break;
  }
  return {part.T(), density, found};
}

/// Temperature and density with the two properties a and b, from a state nearby.
template <Letter A, Letter B, class N>
OnePhase<N> stateFrom(const N& a, const N& b, const N& startT, const N& startDensity) {
  using Mask = typename NumberOf<N>::Mask;
  N T = startT;
  N density = startDensity;
  Mask found = T < N(0.0);  // none
  for (int step = 0; step < newtonSteps; ++step) {
    const N r = 0.001 * density;
    TemperaturePartOf<N> part;
    part.prepareAll(T, TemperatureOrder::curvature);
    const HelmholtzPointOf<N> point(part, density);
    const auto d = point.derivatives();
    const Slopes<N> fa = slopesOf<A>(point, d, T, r);
    const Slopes<N> fb = slopesOf<B>(point, d, T, r);
    const N da = a - fa.value;
    const N db = b - fb.value;
    const N determinant = fa.byT * fb.byR - fa.byR * fb.byT;
    const N deltaT = held((da * fb.byR - db * fa.byR) / (determinant * T));
    const N deltaR = held((db * fa.byT - da * fb.byT) / (determinant * r));
    T = select(found, T, T + T * deltaT);
    density = select(found, density, density + density * deltaR);
    const N delta = max(abs(deltaT), abs(deltaR));
    // A state is stable; cold water beyond 800 MPa, whose heat capacity the equation makes
    // negative, is not.
    found = found || (d.Pr > N(0.0) && d.cv > N(0.0) &&
                      errorAfter(delta, d.Pr, coefficients::R * T) < N(acceptedError));
    if (every(found)) break;
  }
  return {T, density, found};
}

/// Two phases in equilibrium.
template <class N>
struct Equilibrium {
  N T;
  N P;
  N liquid;  // kg/m3
  N vapour;
  typename NumberOf<N>::Mask found;
};

// What Newton's method needs to know of one of the phases.
template <class N>
struct Side {
  N r;
  N P;
  N Pr;
  N g;  // without what the phases share
  N RT;

  HWY_INLINE Side(const TemperaturePartOf<N>& part, const N& density)
      : r(0.001 * density), RT(coefficients::R * part.T()) {
    const HelmholtzPointOf<N> point(part, density);
    P = point.pressure();
    Pr = point.pressureSlope();
    g = point.gibbsOfPhase();
  }
};

/// The equilibrium at T from densities nearby: equal pressure and equal Gibbs energy.
///
/// With dg = dP/r at constant T the two conditions give the change of each pressure by itself, and
/// the vapour's is as exact as the pressure of the line.
template <class N>
Equilibrium<N> equilibriumAtT(const N& T, const N& startLiquid, const N& startVapour) {
  using Mask = typename NumberOf<N>::Mask;
  TemperaturePartOf<N> part;
  part.prepareAll(T, TemperatureOrder::pressure);
  N liquid = startLiquid;
  N vapour = startVapour;
  N P = N(0.0);
  Mask found = T < N(0.0);
  for (int step = 0; step < newtonSteps; ++step) {
    const Side<N> l(part, liquid);
    const Side<N> v(part, vapour);
    const N volumes = 1.0 / v.r - 1.0 / l.r;
    const N toVapour = (l.g - v.g + (v.P - l.P) / l.r) / volumes;  // dP of the vapour
    const N toLiquid = toVapour + (v.P - l.P);
    const N deltaL = held(toLiquid / (l.Pr * l.r));
    const N deltaV = held(toVapour / (v.Pr * v.r));
    liquid = select(found, liquid, liquid + liquid * deltaL);
    vapour = select(found, vapour, vapour + vapour * deltaV);
    P = select(found, P, v.P + toVapour);
    found = found ||
            (l.Pr > N(0.0) && v.Pr > N(0.0) && errorAfter(deltaL, l.Pr, l.RT) < N(acceptedError) &&
             errorAfter(deltaV, v.Pr, v.RT) < N(acceptedError));
    if (every(found)) break;
  }
  found = found && vapour < N(constants::criticalDensity) && liquid > N(constants::criticalDensity);
  return {T, P, liquid, vapour, found};
}

/// The equilibrium at P from a state of the line nearby. With dg = dP/r - s dT the difference of
/// the Gibbs energies at P gives the change of temperature.
template <class N>
Equilibrium<N> equilibriumAtP(const N& P, const N& startT, const N& startLiquid,
                              const N& startVapour) {
  using Mask = typename NumberOf<N>::Mask;
  N T = startT;
  N liquid = startLiquid;
  N vapour = startVapour;
  Mask found = T < N(0.0);
  for (int step = 0; step < newtonSteps; ++step) {
    TemperaturePartOf<N> part;
    part.prepareAll(T, TemperatureOrder::energy);
    const HelmholtzPointOf<N> l(part, liquid);
    const HelmholtzPointOf<N> v(part, vapour);
    const auto dl = l.gradient();
    const auto dv = v.gradient();
    const N RT = coefficients::R * T;
    const N rl = 0.001 * liquid;
    const N rv = 0.001 * vapour;
    const N toLiquid = P - l.pressure();
    const N toVapour = P - v.pressure();
    // s'' - s' = (u'' - u' - (A'' - A'))/T
    const N dg = (v.gibbsOfPhase() + toVapour / rv) - (l.gibbsOfPhase() + toLiquid / rl);
    const N ds = v.entropy() - l.entropy();
    const N deltaT = held(dg / (ds * T));
    const N deltaL = held((toLiquid - dl.PT * deltaT * T) / (dl.Pr * rl));
    const N deltaV = held((toVapour - dv.PT * deltaT * T) / (dv.Pr * rv));
    T = select(found, T, T + T * deltaT);
    liquid = select(found, liquid, liquid + liquid * deltaL);
    vapour = select(found, vapour, vapour + vapour * deltaV);
    found = found || (dl.Pr > N(0.0) && dv.Pr > N(0.0) &&
                      errorAfter(max(abs(deltaL), abs(deltaT)), dl.Pr, RT) < N(acceptedError) &&
                      errorAfter(max(abs(deltaV), abs(deltaT)), dv.Pr, RT) < N(acceptedError));
    if (every(found)) break;
  }
  found = found && vapour < N(constants::criticalDensity) && liquid > N(constants::criticalDensity);
  return {T, P, liquid, vapour, found};
}

/// The equilibrium whose mixture has enthalpy h and entropy s: g = h - T s in both phases. With
/// dg = dP/r - s dT and A = g - P/r of each phase, two linear equations for P and dT.
template <class N>
Equilibrium<N> equilibriumAtHS(const N& h, const N& s, const N& startT, const N& startLiquid,
                               const N& startVapour) {
  using Mask = typename NumberOf<N>::Mask;
  N T = startT;
  N P = N(0.0);
  N liquid = startLiquid;
  N vapour = startVapour;
  Mask found = T < N(0.0);
  for (int step = 0; step < newtonSteps; ++step) {
    TemperaturePartOf<N> part;
    part.prepareAll(T, TemperatureOrder::energy);
    const HelmholtzPointOf<N> l(part, liquid);
    const HelmholtzPointOf<N> v(part, vapour);
    const auto dl = l.gradient();
    const auto dv = v.gradient();
    const N RT = coefficients::R * T;
    const N rl = 0.001 * liquid;
    const N rv = 0.001 * vapour;
    const N g = h - T * s;
    const N toLiquid = g - l.helmholtz();
    const N toVapour = g - v.helmholtz();
    const N sl = s - l.entropy();
    const N sv = s - v.entropy();
    const N determinant = sv / rl - sl / rv;
    const N line = (toLiquid * sv - toVapour * sl) / determinant;
    const N deltaT = held((toVapour / rl - toLiquid / rv) / (determinant * T));
    const N deltaL = held((line - l.pressure() - dl.PT * deltaT * T) / (dl.Pr * rl));
    const N deltaV = held((line - v.pressure() - dv.PT * deltaT * T) / (dv.Pr * rv));
    T = select(found, T, T + T * deltaT);
    P = select(found, P, line);
    liquid = select(found, liquid, liquid + liquid * deltaL);
    vapour = select(found, vapour, vapour + vapour * deltaV);
    found = found || (dl.Pr > N(0.0) && dv.Pr > N(0.0) &&
                      errorAfter(max(abs(deltaL), abs(deltaT)), dl.Pr, RT) < N(acceptedError) &&
                      errorAfter(max(abs(deltaV), abs(deltaT)), dv.Pr, RT) < N(acceptedError));
    if (every(found)) break;
  }
  found = found && vapour < N(constants::criticalDensity) && liquid > N(constants::criticalDensity);
  return {T, P, liquid, vapour, found};
}
