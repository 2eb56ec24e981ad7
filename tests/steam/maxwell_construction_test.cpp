// The saturation line against an equilibrium that is computed here: at its pressure a liquid and a
// vapour, found by halving, have one Gibbs energy.
#include <gtest/gtest.h>

#include <cmath>

#include "steam/steam_model.h"
#include "support/failures.h"

namespace calvex::test {
namespace {

constexpr double R = 0.461522;  // kJ/(kg.K)
constexpr double criticalT = 647.126;

double pressure(double T, double density) { return evaluate(Property::pressure, T, density); }

// Where, in steps, the pressure stops rising with the density, from `from` on towards `to`.
double spinodal(double T, double from, double to) {
  const double step = (to - from) / 2'000.0;
  const double width = 1e-4 * std::abs(step);
  for (double density = from; std::abs(density - from) <= std::abs(to - from); density += step) {
    if (pressure(T, density + width) <= pressure(T, density - width)) return density;
  }
  return to;
}

// The density of that pressure between two of which one is too light and one too dense.
double densityBetween(double T, double P, double light, double dense) {
  for (int halving = 0; halving < 80; ++halving) {
    const double middle = 0.5 * (light + dense);
    (pressure(T, middle) < P ? light : dense) = middle;
  }
  return 0.5 * (light + dense);
}

struct Phase {
  double vapour;
  double liquid;
};

Phase phasesAt(double T, double P) {
  return {densityBetween(T, P, 1e-6, spinodal(T, 1e-6, 322.0)),
          densityBetween(T, P, spinodal(T, 1050.0, 322.0), 1200.0)};
}

class MaxwellConstruction : public testing::Test {
 protected:
  Diagnostics diagnostics;
  SteamModel model{diagnostics};
};

TEST_F(MaxwellConstruction, HasOnePressureAndOneGibbsEnergy) {
  Grid grid("equal Gibbs energies");
  for (const double T : {273.16, 300.0, 400.0, 500.0, 600.0, 630.0, 640.0, 643.0, 645.0, 646.0,
                         646.3, 646.5, 646.6, 646.62}) {
    const std::string at = fmt::format("T = {}", T);
    const double P = model.PSatT(T);
    const Phase phase = phasesAt(T, P);
    grid.holds(phase.liquid > 322.0 && phase.vapour < 322.0, at + ": not two phases");
    const double g = evaluate(Property::gibbs, T, phase.liquid);
    // dg = v dP: what an error of 1e-8 in the pressure makes of the two.
    grid.near(evaluate(Property::gibbs, T, phase.vapour), g, 1e-8, R * T, at);
    grid.relative(model.saturatedTQ(Property::density, T, 0.0), phase.liquid, 1e-5, at);
    grid.relative(model.saturatedTQ(Property::density, T, 1.0), phase.vapour, 1e-5, at);
  }
}

// Towards the critical point two nearly equal densities have nearly equal Gibbs energies.
TEST_F(MaxwellConstruction, IsOfTwoPhasesUpToTheCriticalRegion) {
  Grid grid("line below the critical region");
  const double lowest = model.PSatT(620.0);
  const double highest = model.PSatT(criticalT - 0.501);
  double last = 0.0;
  for (int i = 0; i <= 500; ++i) {
    const double P = lowest + (highest - lowest) * i / 500.0;
    const double T = model.TSatP(P);
    const std::string at = fmt::format("P = {:.17g}, T = {:.17g}", P, T);
    grid.relative(model.PSatT(T), P, 1e-7, at);
    grid.holds(T > last, at + ": not above the last");
    last = T;
    const Phase phase = phasesAt(T, P);
    grid.near(evaluate(Property::gibbs, T, phase.vapour),
              evaluate(Property::gibbs, T, phase.liquid), 1e-7, R * T, at);
  }
}

// There two equal densities would be the answer at any temperature. Up to 22.01 MPa the exact
// equilibrium still answers, which the scaling law of PSatT misses by up to 6.5e-4 MPa.
TEST_F(MaxwellConstruction, OfAPressureInTheCriticalRegionIsWhereThePressureIsThatOfTheLine) {
  Grid grid("critical region");
  const double lowest = model.PSatT(criticalT - 0.499);
  const double highest = model.PSatT(criticalT);
  for (int i = 0; i <= 1000; ++i) {
    const double P = lowest + (highest - lowest) * i / 1000.0;
    const double T = model.TSatP(P);
    grid.near(model.PSatT(T), P, 7e-4, 1.0, fmt::format("P = {:.17g}, T = {:.17g}", P, T));
  }
}

}  // namespace
}  // namespace calvex::test
