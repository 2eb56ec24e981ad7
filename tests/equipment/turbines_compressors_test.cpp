#include "equipment/turbines_compressors.h"

#include "equipment/plant.h"

namespace calvex {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity();

using Names = std::vector<std::string>;

double enthalpy(Plant& plant, double P, double T) {
  double h = 0.0;
  EXPECT_EQ(plant.engine().HPT(&h, P, T), 1);
  return h;
}

TEST(Turbine, ExpandsSteamToTheKnownOutlet) {
  Plant plant;
  const double HIn = enthalpy(plant, 4.0, 673.15);
  const Answer y = plant("TurbineA", {HIn, 4.0, 0.3, 0.8, 1.0});
  ASSERT_EQ(y.success, 1);
  EXPECT_NEAR(y["pHOut"], 2750.24, 1e-5 * 2750.24);
  EXPECT_NEAR(y["pPower"], 463.15, 1e-5 * 463.15);
  EXPECT_NEAR(y["pTOut"], 418.2, 0.1);
  EXPECT_EQ(y["pQOut"], 1.0);
}

// A worked Rankine cycle with printed steam tables: steam with 3474.1 kJ/kg and 7.6027 kJ/(kg.K) at
// 1.4 MPa expanded to 0.01 MPa, saturated liquid (191.81 kJ/kg) pumped back
// (worked answer at byjus.com, "In a steam power plant based on ideal Rankine cycle, superheated
// steam enters ...").
TEST(Turbine, DrivesAWorkedRankineCycle) {
  Plant plant;
  double s = 0.0;
  double liquid = 0.0;
  ASSERT_EQ(plant.engine().SPH(&s, 1.4, 3474.1), 1);
  ASSERT_EQ(plant.engine().HSatPQ(&liquid, 0.01, 0.0), 1);
  EXPECT_NEAR(s, 7.6027, 1e-3);
  EXPECT_NEAR(liquid, 191.81, 0.1);
  const Answer ideal = plant("TurbineA", {3474.1, 1.4, 0.01, 1.0, 1.0});
  EXPECT_NEAR(ideal["pHOut"], 2410.72, 1.0);
  EXPECT_NEAR(ideal["pQOut"], 0.9276, 5e-4);
  const Answer pump = plant("WaterPump", {liquid, 0.01, 1.4, 1.0, 1.0});
  EXPECT_NEAR(pump["pHOut"] - liquid, 1.404, 0.01);
}

TEST(Turbine, TakesAnEfficiencyOfOneAndEndsIsentropic) {
  Plant plant;
  double s = 0.0;
  double h = 0.0;
  ASSERT_EQ(plant.engine().SPH(&s, 4.0, 3200.0), 1);
  ASSERT_EQ(plant.engine().HPS(&h, 0.3, s), 1);
  const Answer y = plant("TurbineA", {3200.0, 4.0, 0.3, 1.0, 1.0});
  EXPECT_EQ(y.success, 1);
  EXPECT_DOUBLE_EQ(y["pHOut"], h);
}

TEST(Turbine, HasNoWorkBetweenEqualPressures) {
  Plant plant;
  for (const char* name : {"TurbineA", "CompressorA"}) {
    const Answer y = plant(name, {3213.0, 4.0, 4.0, 0.8, 3.0});
    EXPECT_EQ(y.success, 1);
    EXPECT_EQ(y["pPower"], 0.0) << name;
    EXPECT_EQ(y["pHOut"], 3213.0) << name;
  }
}

TEST(Turbine, DividesByZeroWhenPowerIsAskedForBetweenEqualPressures) {
  Plant plant;
  for (const char* name : {"TurbineB", "CompressorB"}) {
    const Answer y = plant(name, {3213.0, 4.0, 4.0, 0.8, 100.0});
    EXPECT_EQ(y.success, 1);
    EXPECT_EQ(y["pMIn"], inf) << name;
    EXPECT_EQ(plant(name, {3213.0, 4.0, 4.0, 0.8, -100.0})["pMIn"], -inf) << name;
  }
  for (const char* name : {"TurbineB2", "CompressorB2"}) {
    EXPECT_EQ(plant(name, {3213.0, 4.0, 4.0, 4.0, 0.8, 0.8, 100.0, 1.0})["pMOut2"], inf) << name;
  }
  EXPECT_EQ(
      plant("TurbineB3", {3213.0, 4.0, 4.0, 4.0, 4.0, 1.0, 1.0, 1.0, 9.0, 1.0, 1.0})["pMOut3"],
      inf);
}

TEST(Turbine, PostsASolutionErrorForAPowerThatIsNotFinite) {
  Plant plant;
  const Answer y = plant("TurbineA", {3213.0, 4.0, 1.0, 0.8, inf});
  EXPECT_EQ(y.success, 0);
  EXPECT_EQ(plant.engine().LastError(), "Solution Error.");
  EXPECT_TRUE(y.wrote("pHOut"));
  EXPECT_FALSE(y.wrote("pPower"));
  EXPECT_EQ(plant("TurbineB", {3213.0, 4.0, 1.0, 0.8, inf}).success, 0);
}

TEST(Turbine, CountsTheFlowsThatLeave) {
  Plant plant;
  const std::vector<double> stages = {3300.0, 10.0, 5.0, 2.0, 0.5, 0.8, 0.7, 0.9};
  const auto powerOf = [&](double m1, double m2, double m3) {
    std::vector<double> x = stages;
    x.insert(x.end(), {m1, m2, m3});
    return plant("TurbineA3", x);
  };
  const Answer all = powerOf(3.0, 4.0, 5.0);
  const double dh1 = 3300.0 - all["pHOut1"];
  const double dh2 = all["pHOut1"] - all["pHOut2"];
  const double dh3 = all["pHOut2"] - all["pHOut3"];
  EXPECT_NEAR(all["pPower"], 12.0 * dh1 + 9.0 * dh2 + 5.0 * dh3, 1e-8);
  // MIn is the flow that leaves at outlet 1, not what enters.
  EXPECT_NEAR(powerOf(1.0, 0.0, 0.0)["pPower"], dh1, 1e-9);
  EXPECT_NEAR(powerOf(0.0, 1.0, 0.0)["pPower"], dh1 + dh2, 1e-9);

  const Answer two = plant("TurbineA2", {3300.0, 10.0, 5.0, 2.0, 0.8, 0.7, 3.0, 4.0});
  EXPECT_NEAR(two["pPower"], 7.0 * dh1 + 4.0 * dh2, 1e-8);
  const Answer flow2 = plant("TurbineB2", {3300.0, 10.0, 5.0, 2.0, 0.8, 0.7, 5000.0, 4.0});
  EXPECT_NEAR(flow2["pMOut2"], (5000.0 - 4.0 * dh1) / (dh1 + dh2), 1e-9);
  std::vector<double> x = stages;
  x.insert(x.end(), {9000.0, 4.0, 5.0});
  EXPECT_NEAR(plant("TurbineB3", x)["pMOut3"],
              (9000.0 - 4.0 * dh1 - 5.0 * (dh1 + dh2)) / (dh1 + dh2 + dh3), 1e-9);
}

TEST(Compressor, TakesPositivePower) {
  Plant plant;
  const Answer y = plant("CompressorA", {2800.0, 0.2, 0.6, 0.75, 2.0});
  EXPECT_EQ(y.success, 1);
  EXPECT_GT(y["pPower"], 0.0);
  EXPECT_NEAR(y["pPower"], 2.0 * (y["pHOut"] - 2800.0), 1e-9);
  const Answer two = plant("CompressorA2", {2800.0, 0.2, 0.6, 1.5, 0.75, 0.8, 2.0, 3.0});
  EXPECT_NEAR(two["pPower"], 5.0 * (two["pHOut1"] - 2800.0) + 3.0 * (two["pHOut2"] - two["pHOut1"]),
              1e-8);
}

TEST(Compressor, DividesTheIdealRiseByTheEfficiency) {
  Plant plant;
  const double ideal = plant("CompressorA", {2800.0, 0.2, 0.6, 1.0, 1.0})["pHOut"] - 2800.0;
  EXPECT_NEAR(plant("CompressorA", {2800.0, 0.2, 0.6, 0.5, 1.0})["pHOut"], 2800.0 + 2.0 * ideal,
              1e-8);
}

TEST(TurbineE, StartsFromTheEntropyGiven) {
  Plant plant;
  double s = 0.0;
  double h = 0.0;
  ASSERT_EQ(plant.engine().SPH(&s, 4.0, 3200.0), 1);
  const Answer a = plant("TurbineA", {3200.0, 4.0, 0.3, 0.8, 2.0});
  const Answer e = plant("TurbineE", {3200.0, 4.0, 0.3, 0.8, 2.0, s});
  EXPECT_DOUBLE_EQ(e["pHOut"], a["pHOut"]);
  EXPECT_DOUBLE_EQ(e["pPower"], a["pPower"]);
  EXPECT_DOUBLE_EQ(e["pTOut"], a["pTOut"]);
  ASSERT_EQ(plant.engine().SPH(&s, 0.3, a["pHOut"]), 1);
  EXPECT_NEAR(e["pSOut"], s, 1e-9);
  // Even between equal pressures.
  ASSERT_EQ(plant.engine().HPS(&h, 4.0, 6.5), 1);
  EXPECT_DOUBLE_EQ(plant("TurbineE", {3200.0, 4.0, 4.0, 1.0, 2.0, 6.5})["pHOut"], h);
}

TEST(Turbine, LeavesTemperatureAndQualityAloneWithoutTheFlag) {
  ZvThermoInt engine;
  double power = -1.0, T = -1.0, h = -1.0, Q = -1.0, s = -1.0;
  ASSERT_EQ(TurbineA(engine, &power, &T, &h, &Q, 3200.0, 4.0, 0.3, 0.8, 1.0, 0), 1);
  EXPECT_EQ(T, -1.0);
  EXPECT_EQ(Q, -1.0);
  EXPECT_GT(h, 0.0);
  EXPECT_GT(power, 0.0);
  ASSERT_EQ(TurbineE(engine, &power, &T, &h, &Q, &s, 3200.0, 4.0, 0.3, 0.8, 1.0, 6.7, 0, 0), 1);
  EXPECT_EQ(T, -1.0);
  EXPECT_EQ(s, -1.0);
  ASSERT_EQ(TurbineE(engine, &power, &T, &h, &Q, &s, 3200.0, 4.0, 0.3, 0.8, 1.0, 6.7, 1, 0), 1);
  EXPECT_GT(T, 0.0);
  EXPECT_EQ(s, -1.0);
  T = -1.0;
  ASSERT_EQ(TurbineE(engine, &power, &T, &h, &Q, &s, 3200.0, 4.0, 0.3, 0.8, 1.0, 6.7, 0, 1), 1);
  EXPECT_GT(T, 0.0);
  EXPECT_GT(s, 0.0);
}

TEST(Turbine, FindsTheIntermediateOutletsStateWithoutTheFlag) {
  ZvThermoInt engine;
  double power = 0.0, T1 = -1.0, T2 = -1.0, h1 = 0.0, h2 = 0.0, Q1 = -1.0, Q2 = -1.0;
  ASSERT_EQ(TurbineA2(engine, &power, &T1, &T2, &h1, &h2, &Q1, &Q2, 3200.0, 4.0, 1.0, 0.3, 0.8, 0.8,
                      1.0, 1.0, 0),
            1);
  EXPECT_GT(T1, 0.0);
  EXPECT_EQ(Q1, 1.0);
  EXPECT_EQ(T2, -1.0);
  EXPECT_EQ(Q2, -1.0);
}

// At reporting level 2 every property call leaves its notes.
TEST(Turbine, MakesThesePropertyCalls) {
  Plant plant;
  ASSERT_EQ(plant.engine().SetTraceLevel(2), 1);
  const std::vector<double> one = {3300.0, 10.0, 0.5, 0.8, 100.0};
  plant("TurbineA", one);
  EXPECT_EQ(plant.propertyCalls(), (Names{"SPH", "HPS", "QTR_PH"}));
  plant("TurbineB", one);
  EXPECT_EQ(plant.propertyCalls(), (Names{"SPH", "HPS", "QTR_PH"}));
  plant("TurbineE", {3300.0, 10.0, 0.5, 0.8, 100.0, 6.5});
  EXPECT_EQ(plant.propertyCalls(), (Names{"HPS", "QTS_PH"}));
  const std::vector<double> three = {3300.0, 10.0, 5.0, 2.0, 0.5, 0.8, 0.7, 0.9, 100.0, 1.0, 1.0};
  // The third stage of this one alone asks for the entropy afresh.
  plant("TurbineA3", three);
  EXPECT_EQ(plant.propertyCalls(),
            (Names{"SPH", "HPS", "QTS_PH", "HPS", "QTS_PH", "SPH", "HPS", "QTR_PH"}));
  plant("TurbineB3", three);
  EXPECT_EQ(plant.propertyCalls(),
            (Names{"SPH", "HPS", "QTS_PH", "HPS", "QTS_PH", "HPS", "QTR_PH"}));
  plant("CompressorA2", {2800.0, 0.2, 0.6, 1.5, 0.75, 0.8, 2.0, 3.0});
  EXPECT_EQ(plant.propertyCalls(), (Names{"SPH", "HPS", "QTS_PH", "HPS", "QTR_PH"}));
}

TEST(Turbine, KeepsWhatItWroteBeforeAFailure) {
  Plant plant;
  // So poor a compressor that its outlet is hotter than any state.
  const Answer one = plant("CompressorA", {2800.0, 0.1, 1.0, 0.01, 1.0});
  EXPECT_EQ(one.success, 0);
  EXPECT_EQ(plant.engine().LastError(), "Solution Error.");
  EXPECT_TRUE(one.wrote("pHOut"));
  EXPECT_TRUE(one.wrote("pPower"));
  EXPECT_FALSE(one.wrote("pTOut"));
  // With several outlets the balance comes last.
  const Answer two = plant("CompressorA2", {2800.0, 0.1, 0.2, 1.0, 0.8, 0.02, 1.0, 1.0});
  EXPECT_EQ(two.success, 0);
  for (const char* name : {"pHOut1", "pTOut1", "pQOut1", "pHOut2"}) EXPECT_TRUE(two.wrote(name));
  for (const char* name : {"pTOut2", "pQOut2", "pPower"}) EXPECT_FALSE(two.wrote(name));
}

TEST(Turbine, ChecksItsInputsInOrder) {
  Plant plant;
  for (const char* name : {"TurbineA", "TurbineB"}) {
    expectFaultsInOrder(plant, name, {-1.0, -1.0, 3001.0, 0.0, 1.0},
                        {{outOfRange("Inlet Enthalpy"), 0, 3200.0},
                         {badPressure("Inlet Pressure"), 1, 0.5},
                         {badPressure("Outlet Pressure"), 2, 0.6},
                         {badEfficiency("Efficiency"), 3, 1.0},
                         {"Inlet pressure less than outlet pressure.", 2, 0.5}});
  }
  expectFaultsInOrder(plant, "TurbineE", {-1.0, -1.0, -1.0, 1.01, 1.0, -0.1},
                      {{outOfRange("Inlet Enthalpy"), 0, 3200.0},
                       {badPressure("Inlet Pressure"), 1, 0.5},
                       {badPressure("Outlet Pressure"), 2, 0.6},
                       {badEfficiency("Efficiency"), 3, 0.8},
                       {outOfRange("Inlet Entropy"), 5, 7.0},
                       {"Inlet pressure less than outlet pressure.", 2, 0.4}});
  for (const char* name : {"TurbineA2", "TurbineB2"}) {
    expectFaultsInOrder(plant, name, {-1.0, -1.0, -1.0, -1.0, -1.0, 2.0, 1.0, 1.0},
                        {{outOfRange("Inlet Enthalpy"), 0, 3200.0},
                         {badPressure("Inlet Pressure"), 1, 1.0},
                         {badPressure("Outlet Pressure 1"), 2, 2.0},
                         {badPressure("Outlet Pressure 2"), 3, 3.0},
                         {badEfficiency("Efficiency 1"), 4, 0.8},
                         {badEfficiency("Efficiency 2"), 5, 0.8},
                         {"Inlet pressure less than outlet pressure 1.", 2, 0.5},
                         {"Outlet pressure 1 less than outlet pressure 2.", 3, 0.5}});
  }
  for (const char* name : {"TurbineA3", "TurbineB3"}) {
    expectFaultsInOrder(plant, name, {-1.0, -1.0, -1.0, -1.0, -1.0, 0.0, 0.0, 0.0, 1.0, 1.0, 1.0},
                        {{outOfRange("Inlet Enthalpy"), 0, 3200.0},
                         {badPressure("Inlet Pressure"), 1, 1.0},
                         {badPressure("Outlet Pressure 1"), 2, 2.0},
                         {badPressure("Outlet Pressure 2"), 3, 3.0},
                         {badPressure("Outlet Pressure 3"), 4, 4.0},
                         {badEfficiency("Efficiency 1"), 5, 0.8},
                         {badEfficiency("Efficiency 2"), 6, 0.8},
                         {badEfficiency("Efficiency 3"), 7, 0.8},
                         {"Inlet pressure less than outlet pressure 1.", 2, 0.7},
                         {"Outlet pressure 1 less than outlet pressure 2.", 3, 0.5},
                         {"Outlet pressure 2 less than outlet pressure 3.", 4, 0.5}});
  }
}

TEST(Compressor, ChecksItsInputsInOrder) {
  Plant plant;
  for (const char* name : {"CompressorA", "CompressorB"}) {
    expectFaultsInOrder(plant, name, {-1.0, -1.0, -1.0, 1.5, 1.0},
                        {{outOfRange("Inlet Enthalpy"), 0, 2800.0},
                         {badPressure("Inlet Pressure"), 1, 0.5},
                         {badPressure("Outlet Pressure"), 2, 0.4},
                         {badEfficiency("Efficiency"), 3, 0.8},
                         {"Outlet pressure less than inlet pressure.", 2, 0.5}});
  }
  for (const char* name : {"CompressorA2", "CompressorB2"}) {
    expectFaultsInOrder(plant, name, {-1.0, -1.0, -1.0, -1.0, 0.0, 0.0, 100.0, 1.0},
                        {{outOfRange("Inlet Enthalpy"), 0, 2800.0},
                         {badPressure("Inlet Pressure"), 1, 0.5},
                         {badPressure("Outlet Pressure 1"), 2, 0.4},
                         {badPressure("Outlet Pressure 2"), 3, 0.3},
                         {badEfficiency("Efficiency 1"), 4, 0.8},
                         {badEfficiency("Efficiency 2"), 5, 0.8},
                         {"Outlet pressure 1 less than inlet pressure.", 2, 0.6},
                         {"Outlet pressure 2 less than outlet pressure 1.", 3, 0.6}});
  }
}

TEST(Turbine, ShowsTheBoundsOfAnEfficiencyInTheClientsUnit) {
  Plant plant;
  plant.useMixedUnits();
  EXPECT_EQ(plant("TurbineA", {3200.0, 4.0, 0.3, 0.0, 1.0}).success, 0);
  EXPECT_EQ(plant.engine().LastError(),
            "Efficiency parameter out of range (Valid range 0.00 to 100.00 %).");
}

TEST(Turbine, RefusesInputsThatAreNoNumbers) {
  Plant plant;
  for (std::size_t i = 0; i < 5; ++i) {
    std::vector<double> x = {3200.0, 4.0, 0.3, 0.8, 1.0};
    x[i] = std::nan("");
    EXPECT_EQ(plant("TurbineA", x).success, 0) << i;
  }
}

TEST(Turbine, TracesTheCallThatFailed) {
  Plant plant;
  plant("TurbineA", {3200.0, 0.3, 4.0, 0.8, 1.0});
  EXPECT_EQ(plant.trace(), "call TurbineA\n  error Inlet pressure less than outlet pressure.\n");
  plant.engine().ClearTraceInfo();
  // The entropy of an enthalpy near 0 at 1 MPa is negative.
  const Answer y = plant("TurbineA", {0.0, 1.0, 0.5, 0.8, 1.0});
  EXPECT_EQ(y.success, 0);
  EXPECT_TRUE(y.values.empty());
  EXPECT_EQ(plant.trace(),
            "call TurbineA\n  call SPH\n    call HSat_PH\n      call TSatP\n  call HPS\n    error "
            "Entropy parameter out of range.\n    error Entropy -0.003666272711 kJ/(kg.K) is below "
            "0 kJ/(kg.K), the least that is accepted.\n");
}

}  // namespace
}  // namespace calvex
