// What counts as a solution: an answer meets what was asked for, however coarsely the minimiser
// steps, or there is none.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <random>

#include "diagnostics/thermo_exception.h"
#include "steam/steam_model.h"
#include "support/failures.h"

namespace calvex::test {
namespace {

constexpr Property seconds[] = {Property::enthalpy, Property::entropy, Property::internalEnergy,
                                Property::density};

// kJ/kg, kJ/(kg.K), relative
double allowed(Property property, double value) {
  switch (property) {
    case Property::entropy:
      return 1e-6;
    case Property::density:
      return 1e-6 * value;
    default:
      return 1e-4;
  }
}

class Acceptance : public testing::Test {
 protected:
  Diagnostics diagnostics;
  SteamModel model{diagnostics};
  int answers = 0;

  // The answer's own properties against what was asked for.
  void judge(Grid& grid, bool fromT, double first, Property second, double value) {
    const std::string inputs = fmt::format("{}({:.17g}) and {} {:.17g}", fromT ? 'T' : 'P', first,
                                           static_cast<int>(second), value);
    try {
      const Phases phases =
          fromT ? model.stateFromT(first, second, value) : model.stateFromP(first, second, value);
      if (phases == Phases::two) return;
    } catch (const ZvThermoException&) {
      return;
    }
    ++answers;
    const double T = model.state().temperature;
    const double density = model.state().density;
    grid.holds(T >= 260.0 - 1e-6 && T <= 2500.0 + 1e-6, fmt::format("{}: {} K", inputs, T));
    grid.near(evaluate(second, T, density), value, 1.0, allowed(second, value), inputs);
    if (fromT) {
      grid.relative(T, first, 1e-6, inputs);
    } else {
      const double gas = 0.001 * 0.461522 * density * T;
      grid.near(evaluate(Property::pressure, T, density), first, 1.0,
                1e-5 * first + 1e-6 * std::min(1.0, gas), inputs);
    }
    // (dP/drho) > 0: a state between the spinodals is none.
    const double step = 1e-5 * density;
    grid.holds(evaluate(Property::pressure, T, density + step) >
                   evaluate(Property::pressure, T, density - step),
               inputs + ": unstable");
  }
};

TEST_F(Acceptance, OfTheCoarsestTolerance) {
  ASSERT_TRUE(model.solver().setTolerance(0.99e-6));
  Grid grid("coarse steps");
  std::mt19937_64 random(1984);
  std::uniform_real_distribution<double> uniform(0.0, 1.0);
  for (int i = 0; i < 4000; ++i) {
    const double T = 260.0 + 2240.0 * uniform(random) * uniform(random);
    const double P = 1e-4 * std::pow(3e7, uniform(random));
    try {
      if (model.stateFromPT(P, T) == Phases::two) continue;
    } catch (const ZvThermoException&) {
      continue;
    }
    const double density = model.state().density;
    for (const Property second : seconds) {
      const double value = evaluate(second, T, density);
      if (value < 0.0) continue;
      judge(grid, false, P, second, value);
      judge(grid, true, T, second, value);
    }
  }
  grid.holds(answers > 20'000, fmt::format("only {} answers", answers));
}

// Inputs that belong to no state, or to a state by chance.
TEST_F(Acceptance, OfArbitraryPairs) {
  Grid grid("arbitrary pairs");
  std::mt19937_64 random(1984);
  std::uniform_real_distribution<double> uniform(0.0, 1.0);
  for (const double tolerance : {1e-9, 0.99e-6}) {
    ASSERT_TRUE(model.solver().setTolerance(tolerance));
    for (int i = 0; i < 150; ++i) {
      const double T = 260.0 + 2240.0 * uniform(random);
      const double P = 1e-9 * std::pow(3e12, uniform(random));
      for (const Property second : seconds) {
        const double value = second == Property::entropy   ? 16.0 * uniform(random)
                             : second == Property::density ? 1e-4 * std::pow(2e7, uniform(random))
                                                           : 9000.0 * uniform(random);
        judge(grid, false, P, second, value);
        judge(grid, true, T, second, value);
      }
    }
  }
}

// The last note of the solver below a call: its evaluations and residuals.
struct LastSolve {
  int evaluations = 0;
  double f[3] = {1e9, 1e9, 1e9};
};

void read(const ZvFunctionCall& call, LastSolve& solve) {
  for (const ZvFunctionCall* child = call.firstChild(); child != nullptr;
       child = child->nextSibling()) {
    if (child->kind() == ZvFunctionCall::Kind::note) {
      std::sscanf(std::string(child->text()).c_str(), "Solver : Iter = %d, f() = %le, %le, %le.",
                  &solve.evaluations, &solve.f[0], &solve.f[1], &solve.f[2]);
    }
    read(*child, solve);
  }
}

// No search is needed for ordinary states: the minimiser starts near them and ends at them.
// Newton's method takes the minimiser's solution on to the rounding of the terms that a property is
// the sum of: the reference energy and entropy, the ideal gas's pressure.
TEST_F(Acceptance, OrdinaryStatesMeetTheirInputsToRounding) {
  constexpr double rounding = 1e-11, R = 0.461522;
  Grid grid("rounding");
  std::mt19937_64 random(1984);
  std::uniform_real_distribution<double> uniform(0.0, 1.0);
  int tried = 0;
  for (int i = 0; i < 300; ++i) {
    const double T = 280.0 + 920.0 * uniform(random);
    const double P = 1e-6 * std::pow(1e8, uniform(random));
    if (T > 620.0 && T < 680.0 && P > 18.0 && P < 40.0) continue;  // next to the critical point
    if (model.stateFromPT(P, T) != Phases::one) continue;
    const double density = model.state().density;
    grid.near(evaluate(Property::pressure, T, density), P, rounding, 1e-3 * R * T * density + P,
              fmt::format("P({:.17g}, {:.17g})", P, T));
    for (const Property second : seconds) {
      const double value = evaluate(second, T, density);
      const double terms = second == Property::entropy   ? 3.5 + std::abs(value)
                           : second == Property::density ? density
                                                         : 2000.0 + R * T + std::abs(value);
      for (const bool fromT : {false, true}) {
        const auto phases =
            fromT ? model.stateFromT(T, second, value) : model.stateFromP(P, second, value);
        if (phases != Phases::one) continue;
        ++tried;
        const SteamState found = model.state();
        const std::string inputs = fmt::format("{} {:.17g}, {} {:.17g}", fromT ? 'T' : 'P',
                                               fromT ? T : P, static_cast<int>(second), value);
        grid.near(evaluate(second, found.temperature, found.density), value, rounding, terms,
                  inputs);
        if (fromT) {
          EXPECT_EQ(found.temperature, T) << inputs;
        } else {
          grid.near(evaluate(Property::pressure, found.temperature, found.density), P, rounding,
                    1e-3 * R * T * density + P, inputs);
        }
      }
    }
  }
  EXPECT_GT(tried, 1500);
}

TEST_F(Acceptance, OrdinaryStatesAreFoundByTheMinimiserItself) {
  Grid grid("solver notes");
  diagnostics.setLevel(2);
  const auto expectConverged = [&](const std::string& inputs, auto&& call) {
    diagnostics.clear();
    {
      const ZvFuncTrace trace(diagnostics, "call");
      call();
    }
    LastSolve solve;
    read(diagnostics.root(), solve);
    for (const double f : {solve.f[0], solve.f[1]}) grid.near(f, 0.0, 1e-6, 1.0, inputs);
    grid.holds(solve.evaluations > 0 && solve.evaluations < 120,
               fmt::format("{}: {} evaluations", inputs, solve.evaluations));
  };
  for (const auto& [P, T] : std::vector<std::pair<double, double>>{{0.005, 350.0},
                                                                   {0.1, 400.0},
                                                                   {0.1, 900.0},
                                                                   {1.0, 500.0},
                                                                   {5.0, 700.0},
                                                                   {10.0, 773.15},
                                                                   {0.1, 350.0},
                                                                   {1.0, 400.0},
                                                                   {10.0, 450.0},
                                                                   {20.0, 500.0},
                                                                   {30.0, 800.0},
                                                                   {40.0, 450.0}}) {
    expectConverged(fmt::format("({}, {})", P, T), [&] { model.stateFromPT(P, T); });
    const double density = model.state().density;
    for (const Property second : seconds) {
      const double value = evaluate(second, T, density);
      const std::string inputs =
          fmt::format("{} MPa, {} K, property {}", P, T, static_cast<int>(second));
      expectConverged(inputs + ", from P", [&] { model.stateFromP(P, second, value); });
      // The enthalpy of a liquid hardly says what its pressure is.
      if (density > 300.0 && second != Property::density) continue;
      expectConverged(inputs + ", from T", [&] { model.stateFromT(T, second, value); });
    }
  }
  for (const double T : {280.0, 300.0, 373.15, 450.0, 550.0, 600.0, 640.0}) {
    double P = 0.0;
    expectConverged(fmt::format("PSatT({})", T), [&] { P = model.PSatT(T); });
    expectConverged(fmt::format("TSatP({})", P), [&] { static_cast<void>(model.TSatP(P)); });
  }
}

}  // namespace
}  // namespace calvex::test
