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

// Where the pressure stops rising with the density, from `from` on towards `to`.
double spinodal(double T, double from, double to) {
  const double step = (to - from) / 20'000.0;
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

class PhaseEquilibrium : public testing::Test {
 protected:
  Diagnostics diagnostics;
  SteamModel model{diagnostics};
};

TEST_F(PhaseEquilibrium, HasOnePressureAndOneGibbsEnergy) {
  Grid grid("Maxwell's construction");
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

TEST_F(PhaseEquilibrium, OfAPressureIsThatOfItsTemperature) {
  Grid grid("TSatP(PSatT(T)) towards the critical point");
  for (double below = 8.0; below > 0.501; below *= 0.97) {
    const double T = criticalT - below;
    grid.near(model.TSatP(model.PSatT(T)), T, 1e-6, 1.0, fmt::format("T = {}", T));
  }
}

}  // namespace
}  // namespace calvex::test
