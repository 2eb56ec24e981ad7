#include "equipment/heat_exchangers.h"

#include "equipment/plant.h"

namespace calvex {
namespace {

// Cold flow, P, DP, T in, T out (B: duty), Q in, Q out; hot P, DP, T in, T out, Q in, Q out.
const std::vector<double> water = {10.0, 1.0, 0.05,  300.0, 350.0, 0.0, 0.0,
                                   2.0,  0.1, 600.0, 420.0, 1.0,   0.0};

double HPT(Plant& plant, double P, double T) {
  double h = 0.0;
  EXPECT_EQ(plant.engine().HPT(&h, P, T), 1);
  return h;
}

TEST(HeatExchanger, FindsDutyAndHotFlow) {
  Plant plant;
  const Answer y = plant("HeatExchangerA", water);
  ASSERT_EQ(y.success, 1);
  EXPECT_DOUBLE_EQ(y["pHCIn"], HPT(plant, 1.0, 300.0));
  EXPECT_NEAR(y["pHCOut"], HPT(plant, 0.95, 350.0), 1e-9);
  EXPECT_DOUBLE_EQ(y["pHHIn"], HPT(plant, 2.0, 600.0));
  EXPECT_NEAR(y["pHHOut"], HPT(plant, 1.9, 420.0), 1e-9);
  EXPECT_NEAR(y["pDuty"], 10.0 * (y["pHCOut"] - y["pHCIn"]), 1e-9);
  EXPECT_NEAR(y["pMHOut"], y["pDuty"] / (y["pHHIn"] - y["pHHOut"]), 1e-12);
}

TEST(HeatExchanger, WithoutPressureDropsEndsAtTheInletPressures) {
  Plant plant;
  std::vector<double> x = water;
  x[2] = x[8] = 0.0;
  const Answer y = plant("HeatExchangerA", x);
  EXPECT_EQ(y["pHCOut"], HPT(plant, 1.0, 350.0));
  EXPECT_EQ(y["pHHOut"], HPT(plant, 2.0, 420.0));
}

TEST(HeatExchanger, HasNoDutyWithoutATemperatureRise) {
  Plant plant;
  std::vector<double> x = water;
  x[2] = 0.0;
  x[4] = x[3];
  const Answer y = plant("HeatExchangerA", x);
  EXPECT_EQ(y.success, 1);
  EXPECT_EQ(y["pDuty"], 0.0);
  EXPECT_EQ(y["pMHOut"], 0.0);
}

TEST(HeatExchanger, DividesByZeroWhenTheHotStreamGivesNothing) {
  Plant plant;
  std::vector<double> x = water;
  x[8] = 0.0;
  x[10] = x[9];
  const Answer a = plant("HeatExchangerA", x);
  EXPECT_EQ(a.success, 1);
  EXPECT_EQ(a["pMHOut"], std::numeric_limits<double>::infinity());
  x[4] = 1000.0;
  const Answer b = plant("HeatExchangerB", x);
  EXPECT_EQ(b.success, 1);
  EXPECT_EQ(b["pMHOut"], std::numeric_limits<double>::infinity());
  EXPECT_TRUE(b.wrote("pTCOut"));
}

TEST(HeatExchanger, DoesNotNoticeATemperatureCross) {
  Plant plant;
  std::vector<double> x = water;
  x[4] = 440.0;
  x[9] = 430.0;
  x[10] = 310.0;
  EXPECT_EQ(plant("HeatExchangerA", x).success, 1);
}

TEST(HeatExchanger, UsesQualitiesOnTheSaturationLine) {
  Plant plant;
  double T = 0.0;
  double h = 0.0;
  ASSERT_EQ(plant.engine().TSatP(&T, 2.0), 1);
  ASSERT_EQ(plant.engine().HSatPQ(&h, 2.0, 0.9), 1);
  std::vector<double> x = water;
  x[9] = T;
  x[11] = 0.9;
  EXPECT_NEAR(plant("HeatExchangerA", x)["pHHIn"], h, 1e-6);
}

TEST(HeatExchanger, WithDutyFindsTheColdOutlet) {
  Plant plant;
  std::vector<double> x = water;
  x[4] = 2000.0;
  const Answer y = plant("HeatExchangerB", x);
  ASSERT_EQ(y.success, 1);
  EXPECT_NEAR(y["pHCOut"], y["pHCIn"] + 200.0, 1e-9);
  double T = 0.0;
  ASSERT_EQ(plant.engine().TPH(&T, 0.95, y["pHCOut"]), 1);
  EXPECT_NEAR(y["pTCOut"], T, 1e-9);
  // The cold outlet's quality has no say, not even when there is no such quality.
  x[6] = 7.0;
  EXPECT_EQ(plant("HeatExchangerB", x)["pTCOut"], y["pTCOut"]);
}

TEST(HeatExchanger, RefusesADutyWithoutAColdFlow) {
  Plant plant;
  std::vector<double> x = water;
  x[0] = 0.0;
  x[4] = 2000.0;
  const Answer y = plant("HeatExchangerB", x);
  EXPECT_EQ(y.success, 0);
  EXPECT_EQ(plant.engine().LastError(), "Solution Error.");
  EXPECT_FALSE(y.wrote("pHCOut"));
}

TEST(HeatExchanger, ChecksItsInputsInOrder) {
  Plant plant;
  expectFaultsInOrder(plant, "HeatExchangerA",
                      {10.0, -1.0, 0.05, 0.0, 0.0, 0.0, 0.0, -1.0, 0.1, 0.0, 0.0, 1.0, 0.0},
                      {{badPressure("Cold Inlet Pressure"), 1, 1.0},
                       {badPressure("Hot Inlet Pressure"), 7, 2.0},
                       {badTemperature("Cold Inlet Temperature"), 3, 300.0},
                       {badTemperature("Cold Outlet Temperature"), 4, 350.0},
                       {badTemperature("Hot Inlet Temperature"), 9, 600.0},
                       {badTemperature("Hot Outlet Temperature"), 10, 420.0}});
  expectFaultsInOrder(plant, "HeatExchangerB",
                      {10.0, -1.0, 0.05, 0.0, 2000.0, 0.0, 0.0, -1.0, 0.1, 0.0, 0.0, 1.0, 0.0},
                      {{badPressure("Cold Inlet Pressure"), 1, 1.0},
                       {badPressure("Hot Inlet Pressure"), 7, 2.0},
                       {badTemperature("Cold Inlet Temperature"), 3, 300.0},
                       {badTemperature("Hot Inlet Temperature"), 9, 600.0},
                       {badTemperature("Hot Outlet Temperature"), 10, 420.0}});
}

TEST(HeatExchanger, KeepsTheEnthalpiesFoundAndTracesTheCallThatFailed) {
  Plant plant;
  std::vector<double> x = water;
  x[2] = 1.5;  // more than the cold stream has
  const Answer y = plant("HeatExchangerA", x);
  EXPECT_EQ(y.success, 0);
  EXPECT_TRUE(y.wrote("pHCIn"));
  EXPECT_EQ(y.values.size(), 1u);
  EXPECT_EQ(plant.trace(), "call HeatExchangerA\n  call HPTQ\n  call HPTQ\n    error " +
                               badPressure("Pressure") + "\n");
}

TEST(HeatExchanger, FailsWhereNoWaterTakesSoMuchHeat) {
  Plant plant;
  std::vector<double> x = water;
  x[4] = 1e6;  // 100,000 kJ for each kg of the cold stream
  const Answer y = plant("HeatExchangerB", x);
  EXPECT_EQ(y.success, 0);
  EXPECT_FALSE(y.wrote("pTCOut"));
}

}  // namespace
}  // namespace calvex
