// The solver, and the states that are found with it.
#include <gtest/gtest.h>

#include <cmath>

#include "diagnostics/thermo_exception.h"
#include "steam/steam_model.h"
#include "support/failures.h"

namespace calvex::test {
namespace {

// The solver
// ---------------------------------------------------------------------------------------------

// A problem with residuals of two unknowns that counts its evaluations.
struct Problem : ZvSolverCallBack {
  using Residuals = void (*)(const double* x, double* f);
  Residuals residuals;
  double x[2] = {1.0, 1.0};
  int evaluations = 0;
  int stopAfter = 1 << 30;
  int stop = -2;

  explicit Problem(Residuals r) : residuals(r) {}
  void evaluate(int /*m*/, int n, double* at, double* f, int& flag) override {
    if (flag == startFlag) {
      for (int i = 0; i < n; ++i) at[i] = x[i];
      return;
    }
    if (flag == finishFlag) {
      for (int i = 0; i < n; ++i) x[i] = at[i];
      return;
    }
    residuals(at, f);
    if (++evaluations >= stopAfter) flag = stop;
  }
};

void circleAndLine(const double* x, double* f) {
  f[0] = x[0] * x[0] + x[1] * x[1] - 25.0;
  f[1] = x[0] - 0.75 * x[1];
}
// Falls for ever and has no zero.
void noZero(const double* x, double* f) {
  f[0] = std::exp(-x[0]);
  f[1] = std::exp(-x[1]);
}

TEST(Solver, FindsTheZeroOfASystem) {
  Problem problem(circleAndLine);
  ZvSolver solver(problem);
  const int status = solver.Solve(2, 2);
  EXPECT_TRUE(status == 2 || status == 3 || status == 4) << status;
  EXPECT_NEAR(problem.x[0], 3.0, 1e-8);
  EXPECT_NEAR(problem.x[1], 4.0, 1e-8);
}

TEST(Solver, StopsAfterThreeEvaluationsAnIterationOfTwoUnknowns) {
  Problem problem(noZero);
  ZvSolver solver(problem);
  ASSERT_TRUE(solver.setIterations(200));
  EXPECT_EQ(solver.Solve(2, 2), 5);
  EXPECT_GE(problem.evaluations, 600);
  EXPECT_LT(problem.evaluations, 610);
}

TEST(Solver, BeginsWith800IterationsAndATolerance) {
  Problem problem(noZero);
  const ZvSolver solver(problem);
  EXPECT_EQ(solver.iterations(), 800);
  EXPECT_EQ(solver.tolerance(), 1e-9);
}

// In the first evaluation, among those of a Jacobian, and in a step.
TEST(Solver, AnswersTheNegativeFlagThatStoppedItAtOnce) {
  for (int evaluation = 1; evaluation <= 12; ++evaluation) {
    for (const int stop : {-1, -2}) {
      Problem problem(circleAndLine);
      problem.stopAfter = evaluation;
      problem.stop = stop;
      ZvSolver solver(problem);
      EXPECT_EQ(solver.Solve(2, 2), stop);
      EXPECT_EQ(problem.evaluations, evaluation);
    }
  }
}

TEST(Solver, StepsUntilTheToleranceIsMet) {
  int last = 0;
  for (const double tolerance : {0.99e-6, 1e-9, 1.1e-14}) {
    Problem problem([](const double* x, double* f) {  // a double root: every step halves the error
      f[0] = (x[0] - 3.0) * (x[0] - 3.0);
      f[1] = x[1] - 1.0;
    });
    ZvSolver solver(problem);
    ASSERT_TRUE(solver.setTolerance(tolerance));
    static_cast<void>(solver.Solve(2, 2));
    EXPECT_GT(problem.evaluations, last) << tolerance;
    last = problem.evaluations;
  }
}

TEST(Solver, KeepsItsSettingsWhenNewOnesAreOutOfRange) {
  Problem problem(noZero);
  ZvSolver solver(problem);
  EXPECT_TRUE(solver.setTolerance(1e-8));
  for (const double rejected : {1e-14, 1e-6, 0.0, std::nan("")}) {
    EXPECT_FALSE(solver.setTolerance(rejected));
    EXPECT_EQ(solver.tolerance(), 1e-8);
  }
  EXPECT_TRUE(solver.setIterations(51));
  for (const int rejected : {50, 9999, -1}) {
    EXPECT_FALSE(solver.setIterations(rejected));
    EXPECT_EQ(solver.iterations(), 51);
  }
  EXPECT_TRUE(solver.setIterations(9998));
}

// The states
// -----------------------------------------------------------------------------------------------

class States : public testing::Test {
 protected:
  Diagnostics diagnostics;
  SteamModel model{diagnostics};
};

TEST_F(States, FromPressureAndTemperatureMeetThem) {
  Grid grid("(P, T)");
  for (const double T :
       {273.16, 300.0, 373.15, 450.0, 550.0, 640.0, 647.126, 660.0, 900.0, 1273.15}) {
    for (const double P : {0.0007, 0.01, 0.1, 1.0, 5.0, 15.0, 22.055, 30.0, 100.0}) {
      const std::string at = fmt::format("P = {}, T = {}", P, T);
      try {
        if (model.stateFromPT(P, T) == Phases::two) continue;
        grid.relative(model.state().temperature, T, 1e-9, at);
        // A density that is good to 1e-9 makes a liquid's pressure no better than this.
        grid.near(evaluate(Property::pressure, T, model.state().density), P, 1e-8,
                  std::max(P, 1e-3 * model.state().density * 0.461522 * T), at);
      } catch (const ZvThermoException& failure) {
        grid.holds(false, at + ": " + failure.what());
      }
    }
  }
}

TEST_F(States, TwoPhasesStoreTemperatureQualityAndBothDensities) {
  const double P = 1.0;
  const double hl = model.saturatedPQ(Property::enthalpy, P, 0.0);
  const double hv = model.saturatedPQ(Property::enthalpy, P, 1.0);
  ASSERT_EQ(model.stateFromP(P, Property::enthalpy, 0.6 * hl + 0.4 * hv), Phases::two);
  EXPECT_NEAR(model.state().quality, 0.4, 1e-9);
  EXPECT_NEAR(model.state().temperature, model.TSatP(P), 1e-9);
  EXPECT_NEAR(model.state().vapourDensity / model.saturatedPQ(Property::density, P, 1.0), 1.0,
              1e-9);
  EXPECT_NEAR(model.state().liquidDensity / model.saturatedPQ(Property::density, P, 0.0), 1.0,
              1e-9);
}

TEST_F(States, OnTheLineTheStateIsLeftAlone) {
  ASSERT_EQ(model.stateFromPT(1.0, 800.0), Phases::one);
  const double density = model.state().density;
  double P = model.PSatT(500.0);
  ASSERT_EQ(model.stateFromPT(1.0, 800.0), Phases::one);
  // The correlation lies within a fraction of a percent of the exact line.
  bool found = false;
  for (double factor = 0.998; factor < 1.002 && !found; factor += 1e-4) {
    found = model.stateFromPT(P * factor, 500.0) == Phases::two;
    if (found) break;
    ASSERT_EQ(model.stateFromPT(1.0, 800.0), Phases::one);
  }
  ASSERT_TRUE(found);
  EXPECT_EQ(model.state().density, density);
  EXPECT_EQ(model.state().temperature, 800.0);
}

TEST_F(States, FailedSolvesLeaveTheStateAlone) {
  ASSERT_EQ(model.stateFromPT(1.0, 800.0), Phases::one);
  const SteamState before = model.state();
  EXPECT_THROW(static_cast<void>(model.stateFromPT(0.0, 500.0)), ZvThermoException);
  EXPECT_EQ(model.state().density, before.density);
  EXPECT_EQ(model.state().temperature, before.temperature);
}

TEST_F(States, ExactlyOnTheLineTheStartingDensityChoosesTheRoot) {
  const double liquid = model.saturatedTQ(Property::density, 450.0, 0.0);
  const double vapour = model.saturatedTQ(Property::density, 450.0, 1.0);
  EXPECT_GT(liquid, 800.0);
  EXPECT_LT(vapour, 10.0);
}

TEST_F(States, ResetGivesTheEnginesSolver) {
  model.solver().setTolerance(1e-8);
  model.solver().setIterations(300);
  model.setSatPolish(0);
  model.reset();
  EXPECT_EQ(model.solver().tolerance(), 1e-9);
  EXPECT_EQ(model.solver().iterations(), 200);
  EXPECT_EQ(model.satPolish(), 1);
  EXPECT_EQ(model.state().density, 0.0);
}

}  // namespace
}  // namespace calvex::test
