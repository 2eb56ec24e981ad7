#include "steam/phase_equilibrium.h"

#include <algorithm>
#include <cmath>

#include "steam/constants.h"
#include "steam/fundamental_equation.h"
#include "steam/root_search.h"
#include "steam/saturation_correlations.h"

namespace calvex {

namespace {

using constants::criticalPressure;
using constants::criticalTemperature;

// Where the equilibrium ends and the straight rest of the line begins, K.
constexpr double lastEquilibrium = criticalTemperature - 1e-6;

// Starting points where the density correlations, made for another critical temperature, are of no
// use: densities of the equilibrium, rounded. The equation has two liquids around 646.686 K, where
// both are in equilibrium with the vapour; on either side it is the one of the lower pressure.
constexpr double twoLiquids = 646.685997;
struct Row {
  double T, liquid, vapour;
};
constexpr Row nearCritical[] = {
    {645.0, 427.9, 221.5},        {646.0, 406.8, 239.1},
    {646.3, 397.5, 245.9},        {646.5, 388.3, 252.6},
    {646.6, 381.55, 256.2},       {646.65, 376.23, 258.19},
    {646.675, 371.57, 259.22},    {twoLiquids, 366.39, 259.68},
    {twoLiquids, 355.08, 259.68}, {646.6925, 351.49, 259.94},
    {646.7, 349.39, 260.23},      {646.72, 345.81, 261.03},
    {646.75, 342.1, 262.26},      {646.8, 337.3, 264.4},
    {646.9, 329.0, 269.4},        {647.0, 320.2, 275.9},
    {647.05, 314.7, 280.4},       {647.09, 308.9, 285.4},
    {647.11, 305.0, 289.0},       {647.12, 301.9, 291.9},
    {647.125, 299.2, 294.5},      {criticalTemperature, 298.1, 295.5},
};

struct Densities {
  double liquid, vapour;
};

Densities guess(double T) {
  if (T < nearCritical[0].T) {
    return {saturation::liquidDensityGuess(T), saturation::vapourDensityGuess(T)};
  }
  const Row* above = std::lower_bound(std::begin(nearCritical) + 1, std::end(nearCritical) - 1, T,
                                      [](const Row& row, double t) { return row.T < t; });
  const Row& below = above[-1];
  const double share = (T - below.T) / (above->T - below.T);
  return {below.liquid + share * (above->liquid - below.liquid),
          below.vapour + share * (above->vapour - below.vapour)};
}

// Newton's method on P' = P'' and g' = g'' in both densities, with dg = dP/rho:
//     P'_rho d' - P''_rho d'' = P'' - P'        P'_rho/rho' d' - P''_rho/rho'' d'' = g'' - g'
PhaseEquilibrium solve(double T, Densities from, const TemperaturePart& temperature) {
  PhaseEquilibrium e{T, 0.0, from.vapour, from.liquid, 0};
  double last = 1.0;
  for (constexpr int most = 60; e.evaluations < most;) {
    const HelmholtzPoint liquid(temperature, e.liquidDensity);
    const HelmholtzPoint vapour(temperature, e.vapourDensity);
    ++e.evaluations;
    e.P = vapour.pressure();
    const double dP = e.P - liquid.pressure();
    const double dg = vapour.gibbsOfPhase() - liquid.gibbsOfPhase();
    // u = P_rho d/rho of either phase; densities in g/cm3, as the slopes
    const double rl = 0.001 * e.liquidDensity;
    const double rv = 0.001 * e.vapourDensity;
    const double ul = (dP - rv * dg) / (rl - rv);
    const double uv = (dP - rl * dg) / (rl - rv);
    double stepL = rl * ul / liquid.pressureSlope() * 1000.0;
    double stepV = rv * uv / vapour.pressureSlope() * 1000.0;
    // The phases must not meet on the way.
    const double longest = 0.2 * (e.liquidDensity - e.vapourDensity);
    const double longer = std::max(std::fabs(stepL), std::fabs(stepV));
    if (longer > longest) {
      stepL *= longest / longer;
      stepV *= longest / longer;
    }
    e.liquidDensity += stepL;
    e.vapourDensity += stepV;
    // Quadratic convergence: the next step would be lost. Next to the critical point rounding ends
    // it sooner, when steps no longer shrink.
    const double relative =
        std::max(std::fabs(stepL) / e.liquidDensity, std::fabs(stepV) / e.vapourDensity);
    if (relative < 1e-8 || (relative < 1e-5 && relative >= last)) break;
    last = relative;
  }
  e.P = HelmholtzPoint(temperature, e.vapourDensity).pressure();
  return e;
}

PhaseEquilibrium solve(double T, Densities from) {
  TemperaturePart temperature;
  temperature.prepare(T, TemperaturePart::Order::pressure);
  return solve(T, from, temperature);
}

// The one fluid that there is at a point of the line's straight end.
PhaseEquilibrium straightEnd(double T, double P, int evaluations) {
  const double density = roots::density(P, T, Side::liquid).value_or(constants::phasesMeet);
  return {T, P, density, density, evaluations};
}

// dP/dT of the line: Clapeyron's (s'' - s')/(v'' - v'), at the critical point (dP/dT) at constant
// density, to which it tends.
double slope(const PhaseEquilibrium& e) {
  TemperaturePart temperature;
  temperature.prepare(e.T, TemperaturePart::Order::energy);
  const HelmholtzPoint liquid(temperature, e.liquidDensity);
  const HelmholtzPoint vapour(temperature, e.vapourDensity);
  if (e.liquidDensity - e.vapourDensity < 1.0) return vapour.gradient().PT;
  return (vapour.entropy() - liquid.entropy()) /
         (1000.0 / e.vapourDensity - 1000.0 / e.liquidDensity);
}

}  // namespace

PhaseEquilibrium equilibriumAtT(double T) {
  if (T <= lastEquilibrium) return solve(T, guess(T));
  const PhaseEquilibrium last = solve(lastEquilibrium, guess(lastEquilibrium));
  const double share = (T - lastEquilibrium) / (criticalTemperature - lastEquilibrium);
  return straightEnd(T, last.P + share * (criticalPressure - last.P), last.evaluations);
}

PhaseEquilibrium equilibriumAtP(double P) {
  double T = std::min(saturation::temperatureGuess(P), lastEquilibrium);
  Densities from = guess(T);
  PhaseEquilibrium e{};
  int evaluations = 0;
  for (int n = 0; n < 20; ++n) {
    e = solve(T, from);
    evaluations += e.evaluations;
    if (T == lastEquilibrium && P > e.P) {
      const double share = (P - e.P) / (criticalPressure - e.P);
      return straightEnd(T + share * (criticalTemperature - T), P, evaluations);
    }
    // ln P is nearly linear in 1/T.
    const double step = std::log(P / e.P) * e.P / slope(e);
    const double next = std::min(T / (1.0 - step / T), lastEquilibrium);
    const double moved = std::fabs(next - T) / T;
    T = next;
    if (moved < 1e-14) break;
    const bool close = moved < 1e-3 && T < nearCritical[0].T;
    from = close ? Densities{e.liquidDensity, e.vapourDensity} : guess(T);
    if (moved < 1e-8) {
      e = solve(T, from);
      evaluations += e.evaluations;
      break;
    }
  }
  e.T = T;
  e.P = P;
  e.evaluations = evaluations;
  return e;
}

}  // namespace calvex
