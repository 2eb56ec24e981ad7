#include "equipment/polynomial.h"

#include "equipment/plant.h"

namespace calvex {
namespace {

// a + b T + c T^2 + d T^3 + e T^4 + f T^5, then the start.
TEST(SolvePoly5, FindsARoot) {
  Plant plant;
  EXPECT_NEAR(plant("SolvePoly5", {-32.0, 0.0, 0.0, 0.0, 0.0, 1.0, 3.0})["T2"], 2.0, 1e-8);
  // (T - 1)(T - 2)(T - 3)(T - 4)(T - 5), coefficient by coefficient
  const std::vector<double> five = {-120.0, 274.0, -225.0, 85.0, -15.0, 1.0};
  for (const double root : {1.0, 2.0, 3.0, 4.0, 5.0}) {
    std::vector<double> x = five;
    x.push_back(root + 0.1);
    EXPECT_NEAR(plant("SolvePoly5", x)["T2"], root, 1e-8);
  }
}

TEST(SolvePoly5, StaysAtAStartThatIsARoot) {
  Plant plant;
  EXPECT_EQ(plant("SolvePoly5", {-32.0, 0.0, 0.0, 0.0, 0.0, 1.0, 2.0})["T2"], 2.0);
}

TEST(SolvePoly5, SucceedsWithoutARoot) {
  Plant plant;
  // T^2 + 1 is least at 0.
  const Answer y = plant("SolvePoly5", {1.0, 0.0, 1.0, 0.0, 0.0, 0.0, 5.0});
  EXPECT_EQ(y.success, 1);
  EXPECT_NEAR(y["T2"], 0.0, 1e-3);
}

TEST(SolvePoly5, GoesAsFarAsTheSolversSettingsAllow) {
  Plant plant;
  // T^5 from far away takes a hundred steps.
  const std::vector<double> x = {0.0, 0.0, 0.0, 0.0, 0.0, 1.0, 1e6};
  ASSERT_EQ(plant.engine().SetSolverIter(51), 1);
  const double few = plant("SolvePoly5", x)["T2"];
  ASSERT_EQ(plant.engine().SetSolverIter(2000), 1);
  const double many = plant("SolvePoly5", x)["T2"];
  EXPECT_GT(few, 1.0);
  EXPECT_LT(many, 1e-3);
}

TEST(SolvePoly5, LeavesTheTraceAndTheStateAlone) {
  Plant plant;
  ASSERT_EQ(plant.engine().SetTraceLevel(2), 1);
  double h = 0.0;
  ASSERT_EQ(plant.engine().HPT(&h, 1.0, 500.0), 1);
  plant.engine().ClearTraceInfo();
  const SteamState before = plant.engine().steam().state();
  ASSERT_EQ(plant("SolvePoly5", {-32.0, 0.0, 0.0, 0.0, 0.0, 1.0, 3.0}).success, 1);
  EXPECT_EQ(plant.trace(), "");
  EXPECT_EQ(plant.engine().steam().state().density, before.density);
  EXPECT_EQ(plant.engine().steam().state().temperature, before.temperature);
}

TEST(SolvePoly5, ConvertsNoUnits) {
  Plant plant;
  plant.useMixedUnits();
  EXPECT_NEAR(plant.call("SolvePoly5", {-32.0, 0.0, 0.0, 0.0, 0.0, 1.0, 3.0})["T2"], 2.0, 1e-8);
}

TEST(SolvePoly5, NeverSucceedsWithoutANumber) {
  Plant plant;
  const Answer y =
      plant("SolvePoly5", {0.0, 0.0, 0.0, 0.0, 0.0, 0.0, std::numeric_limits<double>::infinity()});
  EXPECT_EQ(y.success, 0);
  EXPECT_FALSE(y.wrote("T2"));
  EXPECT_EQ(plant.engine().LastError(), "Solution Error.");
}

}  // namespace
}  // namespace calvex
