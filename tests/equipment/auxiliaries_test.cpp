#include "equipment/auxiliaries.h"

#include "equipment/plant.h"

namespace calvex {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity();

double HPT(Plant& plant, double P, double T) {
  double h = 0.0;
  EXPECT_EQ(plant.engine().HPT(&h, P, T), 1);
  return h;
}
double HSatPQ(Plant& plant, double P, double Q) {
  double h = 0.0;
  EXPECT_EQ(plant.engine().HSatPQ(&h, P, Q), 1);
  return h;
}

// DeAerator -------------------------------------------------------------------------------------

TEST(DeAerator, FindsTheKnownFlows) {
  Plant plant;
  const Answer y = plant("DeAerator", {0.12, 2800.0, 320.0, 10.0, 0.01});
  ASSERT_EQ(y.success, 1);
  EXPECT_NEAR(y["pMs"], 1.0293, 1e-4);
  EXPECT_NEAR(y["pMw"], 9.0707, 1e-4);
  double T = 0.0;
  ASSERT_EQ(plant.engine().TSatP(&T, 0.12), 1);
  EXPECT_NEAR(y["pTd"], T, 1e-9);
  EXPECT_NEAR(y["pHd"], HSatPQ(plant, 0.12, 0.0), 1e-9);
}

TEST(DeAerator, WithoutVentBalancesWaterAndSteam) {
  Plant plant;
  const Answer y = plant("DeAerator", {0.12, 2800.0, 320.0, 10.0, 0.0});
  EXPECT_NEAR(y["pMw"] + y["pMs"], 10.0, 1e-12);
}

TEST(DeAerator, TakesWaterFromTheTripleToTheCriticalTemperature) {
  Plant plant;
  EXPECT_EQ(plant("DeAerator", {0.12, 2800.0, 273.16, 10.0, 0.01}).success, 1);
  EXPECT_EQ(plant("DeAerator", {22.055, 2800.0, 647.126, 10.0, 0.01}).success, 1);
  for (const double T : {273.15999, 647.12601}) {
    EXPECT_EQ(plant("DeAerator", {0.12, 2800.0, T, 10.0, 0.01}).success, 0) << T;
    EXPECT_EQ(plant.engine().LastError(),
              "Water Temperature parameter out of range (Valid range 273.16 to 647.13 K).");
  }
}

TEST(DeAerator, ShowsTheBoundsOfTheWaterTemperatureInTheClientsUnit) {
  Plant plant;
  ASSERT_EQ(plant.engine().SetUserUnit("Temperature", "C"), 1);
  EXPECT_EQ(plant.call("DeAerator", {0.12, 2800.0, 400.0, 10.0, 0.01}).success, 0);
  EXPECT_EQ(plant.engine().LastError(),
            "Water Temperature parameter out of range (Valid range 0.01 to 373.98 C).");
}

TEST(DeAerator, KeepsWaterAboveItsBoilingPointLiquidWhileItCanBe) {
  Plant plant;
  // At 0.12 MPa water boils at 378 K; the steam needed falls on without a jump.
  double before = plant("DeAerator", {0.12, 2800.0, 370.0, 10.0, 0.01})["pMs"];
  for (double T = 372.0; T <= 580.0; T += 2.0) {
    const double now = plant("DeAerator", {0.12, 2800.0, T, 10.0, 0.01})["pMs"];
    EXPECT_LT(now, before) << T;
    EXPECT_GT(now, before - 0.3) << T;
    before = now;
  }
}

TEST(DeAerator, RefusesWaterBeyondTheEndOfTheMetastableLiquid) {
  Plant plant;
  EXPECT_EQ(plant("DeAerator", {0.12, 2800.0, 590.0, 10.0, 0.01}).success, 1);
  for (const double T : {600.0, 620.0, 647.126}) {
    const Answer y = plant("DeAerator", {0.12, 2800.0, T, 10.0, 0.01});
    EXPECT_EQ(y.success, 0) << T;
    EXPECT_TRUE(y.values.empty()) << T;
    EXPECT_NE(plant.engine().LastError(), "") << T;
  }
}

TEST(DeAerator, DividesByZeroWhenSteamAndWaterAreAlike) {
  Plant plant;
  const double hw = HPT(plant, 0.12, 320.0);
  const Answer y = plant("DeAerator", {0.12, hw, 320.0, 10.0, 0.01});
  EXPECT_EQ(y.success, 1);
  EXPECT_EQ(y["pMs"], -inf);
  EXPECT_EQ(y["pMw"], inf);
}

TEST(DeAerator, ChecksItsInputsInOrder) {
  Plant plant;
  expectFaultsInOrder(
      plant, "DeAerator", {-0.1, -1.0, 273.0, 10.0, 0.01},
      {{badPressure("Operating Pressure"), 0, 30.0},
       {outOfRange("Steam Enthalpy"), 1, 2800.0},
       {"Water Temperature parameter out of range (Valid range 273.16 to 647.13 K).", 2, 320.0},
       {"Pressure parameter out of range (Valid range 0.00 to 22.05 MPa).", 0, 0.12}});
}

TEST(DeAerator, ComputesTheWaterOutsideTheTrace) {
  Plant plant;
  ASSERT_EQ(plant.engine().SetTraceLevel(2), 1);
  plant("DeAerator", {0.12, 2800.0, 320.0, 10.0, 0.01});
  EXPECT_EQ(plant.propertyCalls(), std::vector<std::string>{"HVLTSat_PQ"});
}

// Desuperheaters --------------------------------------------------------------------------------

TEST(DeSuperHeater, GivesTheOutletFlowAsSteamAndItsSiblingTheInletFlow) {
  Plant plant;
  const double hs = HPT(plant, 1.0, 500.0);
  const Answer a = plant("DeSuperHeater", {3100.0, 500.0, 1.0, 500.0, 10.0});
  EXPECT_DOUBLE_EQ(a["pHs"], hs);
  EXPECT_NEAR(a["pMs"], 10.0 * (3100.0 - 500.0) / (hs - 500.0), 1e-9);
  EXPECT_NEAR(a["pMw"], a["pMs"] - 10.0, 1e-12);
  const Answer b = plant("DeSuperHeaterB", {3100.0, 500.0, 1.0, 500.0, 10.0});
  EXPECT_NEAR(b["pMw"], 10.0 * (3100.0 - hs) / (3100.0 - 500.0), 1e-9);
  EXPECT_NEAR(b["pMs"], 10.0 - b["pMw"], 1e-12);
}

TEST(DeSuperHeater, TakesDrySteamOnTheSaturationLineInEveryUnitOfQuality) {
  Plant plant;
  double T = 0.0;
  ASSERT_EQ(plant.engine().TSatP(&T, 1.0), 1);
  const double dry = HSatPQ(plant, 1.0, 1.0);
  EXPECT_NEAR(plant("DeSuperHeater", {3100.0, 500.0, 1.0, T, 10.0})["pHs"], dry, 1e-9 * dry);
  ASSERT_EQ(plant.engine().SetUserUnit("Quality", "%"), 1);
  EXPECT_NEAR(plant("DeSuperHeater", {3100.0, 500.0, 1.0, T, 10.0})["pHs"], dry, 1e-9 * dry);
}

TEST(DeSuperHeater, DividesByZero) {
  Plant plant;
  const double hs = HPT(plant, 1.0, 500.0);
  const Answer a = plant("DeSuperHeater", {3100.0, hs, 1.0, 500.0, 10.0});
  EXPECT_EQ(a.success, 1);
  EXPECT_EQ(a["pMs"], -inf);
  EXPECT_EQ(a["pMw"], -inf);
  const Answer b = plant("DeSuperHeaterB", {3100.0, 3100.0, 1.0, 500.0, 10.0});
  EXPECT_EQ(b.success, 1);
  EXPECT_EQ(b["pMw"], -inf);
  EXPECT_EQ(b["pMs"], inf);
}

TEST(DeSuperHeater, ChecksItsInputsInOrder) {
  Plant plant;
  for (const char* name : {"DeSuperHeater", "DeSuperHeaterB"}) {
    expectFaultsInOrder(plant, name, {-1.0, -1.0, -1.0, 259.0, 10.0},
                        {{outOfRange("Inlet Steam Enthalpy"), 0, 3100.0},
                         {outOfRange("Inlet Water Enthalpy"), 1, 500.0},
                         {badPressure("Operating Pressure"), 2, 1.0},
                         {badTemperature("Operating Temperature"), 3, 500.0}});
  }
}

// WaterPump -------------------------------------------------------------------------------------

TEST(WaterPump, NeedsTheKnownPower) {
  Plant plant;
  const Answer y = plant("WaterPump", {400.0, 0.12, 6.0, 1.0, 0.7});
  ASSERT_EQ(y.success, 1);
  EXPECT_NEAR(y["pPower"], 8.74, 0.005);
  EXPECT_NEAR(y["pHOut"], 408.74, 0.005);
  // (6 - 0.12) MPa over the density of the inlet
  double density = 0.0;
  ASSERT_EQ(plant.engine().RPH(&density, 0.12, 400.0), 1);
  EXPECT_NEAR(y["pPower"], 5880.0 / density / 0.7, 1e-9);
}

TEST(WaterPump, NeedsNoPowerBetweenEqualPressures) {
  Plant plant;
  const Answer y = plant("WaterPump", {400.0, 0.12, 0.12, 1.0, 0.7});
  EXPECT_EQ(y.success, 1);
  EXPECT_EQ(y["pPower"], 0.0);
  EXPECT_EQ(y["pHOut"], 400.0);
}

TEST(WaterPump, RefusesAnInletThatIsNotLiquid) {
  Plant plant;
  const Answer y = plant("WaterPump", {HSatPQ(plant, 0.12, 0.01), 0.12, 6.0, 1.0, 0.7});
  EXPECT_EQ(y.success, 0);
  EXPECT_TRUE(y.values.empty());
  EXPECT_EQ(plant.engine().LastError(), "Inlet conditions are not liquid.");
  EXPECT_EQ(plant("WaterPump", {HSatPQ(plant, 0.12, 0.0), 0.12, 6.0, 1.0, 0.7}).success, 1);
}

TEST(WaterPump, CountsAMillionthOfVapourAsLiquidAtBothEnds) {
  for (const char* unit : {"Fraction", "%"}) {
    Plant plant;
    ASSERT_EQ(plant.engine().SetUserUnit("Quality", unit), 1);
    const double share = unit[0] == '%' ? 100.0 : 1.0;
    for (const double Q : {0.5e-6, 0.97e-6, 1.03e-6, 2e-6}) {
      const double h = HSatPQ(plant, 0.12, Q * share);
      EXPECT_EQ(plant("WaterPump", {h, 0.12, 6.0, 1.0, 0.7}).success, Q < 1e-6) << unit << Q;
      // An inlet of the same pressure but for a trifle, and an outlet that is heated to Q.
      const double P = 6.0;
      const double PIn = P * (1.0 - 1e-9);
      const double end = HSatPQ(plant, P, Q * share);
      const double start = end - 2e-4;
      double density = 0.0;
      ASSERT_EQ(plant.engine().RPH(&density, PIn, start), 1);
      const double efficiency = (P - PIn) * 1000.0 / density / (end - start);
      EXPECT_EQ(plant("WaterPump", {start, PIn, P, 1.0, efficiency}).success, Q < 1e-6)
          << unit << Q << plant.engine().LastError();
    }
  }
}

TEST(WaterPump, WritesItsResultsBeforeItFindsTheOutletNotLiquid) {
  Plant plant;
  const Answer y = plant("WaterPump", {HSatPQ(plant, 0.3, 0.0), 0.3, 1.0, 1.0, 0.003});
  EXPECT_EQ(y.success, 0);
  EXPECT_EQ(plant.engine().LastError(), "Outlet conditions are not liquid.");
  EXPECT_GT(y["pPower"], 0.0);
  EXPECT_GT(y["pHOut"], HSatPQ(plant, 1.0, 0.0));
}

TEST(WaterPump, ChecksItsInputsInOrder) {
  Plant plant;
  // "Inlet Steam Enthalpy", though it is water.
  expectFaultsInOrder(plant, "WaterPump", {-1.0, -1.0, -1.0, 1.0, 0.0},
                      {{outOfRange("Inlet Steam Enthalpy"), 0, 300.0},
                       {badPressure("Inlet Pressure"), 1, 0.2},
                       {badPressure("Outlet Pressure"), 2, 0.1},
                       {badEfficiency("Efficiency"), 4, 1.0},
                       {"Inlet pressure greater than outlet pressure.", 2, 0.2}});
}

// LetDownValve ----------------------------------------------------------------------------------

TEST(LetDownValve, KeepsTheEnthalpy) {
  Plant plant;
  const Answer y = plant("LetDownValve", {2700.0, 1.0, 0.1});
  EXPECT_EQ(y.success, 1);
  EXPECT_NEAR(HPT(plant, 0.1, y["pTOut"]), 2700.0, 1e-6);
  EXPECT_NEAR(plant("LetDownValve", {HSatPQ(plant, 0.1, 0.4), 1.0, 0.1})["pQOut"], 0.4, 1e-9);
}

TEST(LetDownValve, HasNoPressureOrder) {
  Plant plant;
  EXPECT_EQ(plant("LetDownValve", {2800.0, 1.0, 2.0}).success, 1);
}

TEST(LetDownValve, ChecksItsInputsInOrder) {
  Plant plant;
  expectFaultsInOrder(plant, "LetDownValve", {-1.0, -1.0, -1.0},
                      {{outOfRange("Inlet Steam Enthalpy"), 0, 2800.0},
                       {badPressure("Inlet Pressure"), 1, 1.0},
                       {badPressure("Outlet Pressure"), 2, 0.5}});
}

// Boilers ---------------------------------------------------------------------------------------

TEST(Boiler, WithoutBlowdownHeatsTheFeedToSteam) {
  Plant plant;
  const double h = HPT(plant, 4.0, 673.15);
  const Answer y = plant("Boiler", {440.0, 10.0, 673.15, 4.0, 0.0});
  EXPECT_EQ(y["pMBd"], 0.0);
  EXPECT_EQ(y["pMIn"], 10.0);
  EXPECT_DOUBLE_EQ(y["pHOut"], h);
  EXPECT_NEAR(y["pDeltaH"], 10.0 * (h - 440.0), 1e-8);
}

TEST(Boiler, BlowsDownSaturatedLiquid) {
  Plant plant;
  const Answer y = plant("Boiler", {440.0, 10.0, 673.15, 4.0, 0.05});
  EXPECT_DOUBLE_EQ(y["pMBd"], 0.5);
  EXPECT_DOUBLE_EQ(y["pMIn"], 10.5);
  EXPECT_DOUBLE_EQ(y["pHBd"], HSatPQ(plant, 4.0, 0.0));
}

TEST(Boiler, MakesDrySteamOnTheSaturationLineInEveryUnitOfQuality) {
  Plant plant;
  double T = 0.0;
  ASSERT_EQ(plant.engine().TSatP(&T, 4.0), 1);
  const double dry = HSatPQ(plant, 4.0, 1.0);
  EXPECT_NEAR(plant("Boiler", {440.0, 10.0, T, 4.0, 0.05})["pHOut"], dry, 1e-9 * dry);
  ASSERT_EQ(plant.engine().SetUserUnit("Quality", "%"), 1);
  EXPECT_NEAR(plant("Boiler", {440.0, 10.0, T, 4.0, 0.05})["pHOut"], dry, 1e-9 * dry);
}

TEST(Boiler, FiresTheDutyOverTheEfficiency) {
  Plant plant;
  const Answer a = plant("Boiler", {440.0, 10.0, 673.15, 4.0, 0.05});
  const Answer b = plant("Boiler_B", {440.0, 10.0, 673.15, 4.0, 0.05, 0.8});
  EXPECT_EQ(b["pDuty"], a["pDeltaH"]);
  EXPECT_DOUBLE_EQ(b["pQFired"], a["pDeltaH"] / 0.8);
}

TEST(Boiler, ChecksItsInputsInOrder) {
  Plant plant;
  expectFaultsInOrder(plant, "Boiler", {-1.0, 10.0, 2501.0, 3001.0, 0.05},
                      {{outOfRange("Inlet Enthalpy"), 0, 440.0},
                       {badTemperature("Outlet Temperature"), 2, 673.15},
                       {badPressure("Outlet Pressure"), 3, 4.0}});
  expectFaultsInOrder(plant, "Boiler_B", {-1.0, 10.0, 259.9, -1.0, 0.05, 1.1},
                      {{outOfRange("Inlet Enthalpy"), 0, 440.0},
                       {badTemperature("Outlet Temperature"), 2, 673.15},
                       {badPressure("Outlet Pressure"), 3, 4.0},
                       {badEfficiency("Firing Efficiency"), 5, 1.0}});
  EXPECT_EQ(plant("Boiler_B", {440.0, 10.0, 673.15, 4.0, 0.05, 0.0}).success, 0);
}

TEST(Boiler, KeepsFlowsAndSteamWhenThereIsNoSaturatedBlowdown) {
  Plant plant;
  const Answer y = plant("Boiler", {440.0, 10.0, 800.0, 25.0, 0.05});
  EXPECT_EQ(y.success, 0);
  for (const char* name : {"pMIn", "pMBd", "pHOut"}) EXPECT_TRUE(y.wrote(name)) << name;
  for (const char* name : {"pHBd", "pDeltaH"}) EXPECT_FALSE(y.wrote(name)) << name;
  EXPECT_EQ(plant.trace(),
            "call Boiler\n  call HPTQ\n  call HSatPQ\n    error Pressure parameter out of range "
            "(Valid range 0.00 to 22.05 MPa).\n");
}

// FlashVessel -----------------------------------------------------------------------------------

TEST(FlashVessel, FlashesTheKnownFraction) {
  Plant plant;
  const Answer y = plant("FlashVessel", {1.0, 1000.0, 0.3});
  EXPECT_NEAR(y["pMVap"], 0.2026, 5e-5);
  EXPECT_NEAR(y["pMLiq"], 1.0 - y["pMVap"], 1e-15);
  EXPECT_DOUBLE_EQ(y["pHVap"], HSatPQ(plant, 0.3, 1.0));
  EXPECT_DOUBLE_EQ(y["pHLiq"], HSatPQ(plant, 0.3, 0.0));
}

TEST(FlashVessel, TakesSaturatedLiquidAsAllLiquidAndSaturatedVapourAsAllVapour) {
  Plant plant;
  double h = 0.0, hVap = 0.0, hLiq = 0.0, TSat = 0.0, T = 0.0;
  ASSERT_EQ(plant.engine().HVLTSat_PQ(&h, &hVap, &hLiq, &TSat, 0.3, 0.5), 1);
  const Answer liquid = plant("FlashVessel", {2.0, hLiq, 0.3});
  ASSERT_EQ(plant.engine().TPH(&T, 0.3, hLiq), 1);
  EXPECT_EQ(liquid["pMLiq"], 2.0);
  EXPECT_EQ(liquid["pMVap"], 0.0);
  EXPECT_EQ(liquid["pHLiq"], hLiq);
  EXPECT_EQ(liquid["pHVap"], 0.0);
  EXPECT_EQ(liquid["pTOut"], T);
  const Answer vapour = plant("FlashVessel", {2.0, hVap, 0.3});
  ASSERT_EQ(plant.engine().TPH(&T, 0.3, hVap), 1);
  EXPECT_EQ(vapour["pMVap"], 2.0);
  EXPECT_EQ(vapour["pMLiq"], 0.0);
  EXPECT_EQ(vapour["pHVap"], hVap);
  EXPECT_EQ(vapour["pHLiq"], 0.0);
  EXPECT_EQ(vapour["pTOut"], T);
}

TEST(FlashVessel, LeavesFlowsInTheClientsUnit) {
  Plant plant;
  ASSERT_EQ(plant.engine().SetUserUnit("Flow Rate", "klb/h"), 1);
  EXPECT_EQ(plant.call("FlashVessel", {7.7, 100.0, 0.3})["pMLiq"], 7.7);
  EXPECT_EQ(plant.call("FlashVessel", {7.7, 3000.0, 0.3})["pMVap"], 7.7);
  const Answer y = plant.call("FlashVessel", {7.7, 1000.0, 0.3});
  EXPECT_NEAR(y["pMVap"] + y["pMLiq"], 7.7, 1e-14);
}

TEST(FlashVessel, ChecksItsInputsInOrder) {
  Plant plant;
  expectFaultsInOrder(
      plant, "FlashVessel", {1.0, -1.0, -1.0},
      {{outOfRange("Inlet Enthalpy"), 1, 1000.0}, {badPressure("Operating Pressure"), 2, 0.3}});
}

TEST(FlashVessel, TracesTheCallThatFailed) {
  Plant plant;
  EXPECT_EQ(plant("FlashVessel", {1.0, 1000.0, 30.0}).success, 0);
  EXPECT_EQ(plant.trace(),
            "call FlashVessel\n  call HVLTSat_PQ\n    error Pressure parameter out of range (Valid "
            "range 0.00 to 22.05 MPa).\n");
}

TEST(Auxiliaries, RefuseInputsThatAreNoNumbers) {
  const std::pair<const char*, std::vector<double>> calls[] = {
      {"DeAerator", {0.12, 2800.0, 320.0, 10.0, 0.01}},
      {"DeSuperHeater", {3100.0, 500.0, 1.0, 500.0, 10.0}},
      {"DeSuperHeaterB", {3100.0, 500.0, 1.0, 500.0, 10.0}},
      {"WaterPump", {400.0, 0.12, 6.0, 1.0, 0.7}},
      {"LetDownValve", {2700.0, 1.0, 0.1}},
      {"Boiler", {440.0, 10.0, 673.15, 4.0, 0.05}},
      {"Boiler_B", {440.0, 10.0, 673.15, 4.0, 0.05, 0.8}},
      {"FlashVessel", {1.0, 1000.0, 0.3}}};
  Plant plant;
  for (const auto& [name, inputs] : calls) {
    EXPECT_EQ(plant(name, inputs).success, 1) << name;
    for (std::size_t i = 0; i < inputs.size(); ++i) {
      std::vector<double> x = inputs;
      x[i] = std::nan("");
      EXPECT_EQ(plant(name, x).success, 0) << name << ' ' << i;
    }
  }
}

}  // namespace
}  // namespace calvex
