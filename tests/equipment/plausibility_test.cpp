// What no plant can do is answered with a warning that names the quantity, its limit and the cause
// in the client's units; a failure whose text misleads gets its cause as a second message.
#include "equipment/plausibility.h"

#include <gtest/gtest.h>

#include <functional>

#include "equipment/models.h"
#include "equipment/plant.h"

namespace calvex {
namespace {

using models::chartA;
using models::gasTurbine;

// A call by the name of a member, or of a model of `models.h`.
int run(Plant& plant, const std::string& name, const std::vector<double>& in) {
  using namespace models;
  for (const ModelUnderTest* model : {&thermoCompA, &thermoCompB, &chartA, &chartB, &chartC,
                                      &chartD, &chartE, &chartF, &chartG, &gasTurbine}) {
    if (name != model->name) continue;
    std::vector<double> out(model->outputs.size());
    return model->run(plant.engine(), out.data(), in.data());
  }
  return plant.call(name, in).success;
}

void collect(const ZvFunctionCall& node, ZvFunctionCall::Kind kind,
             std::vector<std::string>& texts) {
  for (const ZvFunctionCall* child = node.firstChild(); child != nullptr;
       child = child->nextSibling()) {
    if (child->kind() == kind) texts.emplace_back(child->text());
    collect(*child, kind, texts);
  }
}
std::vector<std::string> messages(Plant& plant, ZvFunctionCall::Kind kind) {
  std::vector<std::string> texts;
  collect(plant.engine().diagnostics().root(), kind, texts);
  return texts;
}

using Texts = std::vector<std::string>;

struct Implausible {
  const char* model;
  std::vector<double> in;
  Texts warnings;
};

// Boiling temperatures: 453.03 K at 1 MPa, 377.93 K at 0.12 MPa, 523.5 K at 4 MPa in any steam
// table; entropy 6.77 kJ/(kg.K) and least oxygen 16 % likewise. The balances' own figures are those
// of the model.
const Implausible implausible[] = {
    {"ThermoCompressorD",
     {0.14, 400.0, 0.1, 380.0, 0.16, 3.0},
     {"Discharge pressure 0.16 MPa is above 0.14 MPa, the motive pressure: steam does not compress "
      "beyond its own pressure.",
      "Expansion ratio 1.4 Fraction is below 1.64707 Fraction, the least of the chart: the chart's "
      "last curve passes the motive pressure.",
      "Motive flow -122.528 kg/s is below 0 kg/s: no stream runs backwards.",
      "Discharge flow -119.528 kg/s is below 0 kg/s: no stream runs backwards.",
      "Duty -269151 kW is below 0 kW: its heat would flow the other way."}},
    {"ThermoCompressorD",
     {0.1, 400.0, 0.1, 380.0, 0.1, 3.0},
     {"Motive pressure 0.1 MPa is not above 0.1 MPa, the suction pressure: such steam drives "
      "nothing.",
      "Expansion ratio 1 Fraction is below 1.64707 Fraction, the least of the chart: the chart's "
      "last curve passes the motive pressure."}},
    {"ThermoCompressorC",
     {1.0, 473.0, 0.1, 380.0, 0.09, 3.0},
     {"Discharge pressure 0.09 MPa is below 0.1 MPa, the suction pressure: nothing needs to be "
      "compressed."}},
    {"ThermoCompressorB",
     {1.0, 473.0, 0.1, 380.0, 0.1, -2258.0},
     {"Suction flow -0.9937 kg/s is below 0 kg/s: no stream runs backwards.",
      "Discharge flow -0.9937 kg/s is below 0 kg/s: no stream runs backwards.",
      "Duty -2258 kW is below 0 kW: its heat would flow the other way."}},
    {"ThermoCompressorA",
     {1.0, 473.0, 200.0, 0.1, 380.0, 1.0},
     {"Discharge pressure 1.68889 MPa is above 1 MPa, the motive pressure: steam does not compress "
      "beyond its own pressure."}},
    {"GasTurbineA",
     {5000.0, 0.3, 288.15, 800.0, 4.0, 850.0, 378.0, 4.0, 15.0, 0.03},
     {"Steam temperature 850 K is above 800 K, the exhaust temperature: the exhaust cannot heat "
      "steam so far."}},
    {"GasTurbineA",
     {5000.0, 0.3, 288.15, 800.0, 4.0, 673.0, 600.0, 4.0, 15.0, 0.03},
     {"Feed water temperature 600 K is above 523.542 K, where water boils at the steam pressure: "
      "feed water would be steam."}},
    {"GasTurbineA",
     {5000.0, 1.0, 288.15, 800.0, 4.0, 673.0, 378.0, 0.0, 15.0, 0.03},
     {"Turbine power 5000 kW is not below 5000 kW, the heat of its fuel: no heat is left for the "
      "exhaust.",
      "Oxygen content of the exhaust -4.78039 is below 0: the turbine's fuel needs more air.",
      "Least oxygen content of the stack 0.03 is above -4.78039, what the turbine's exhaust has: "
      "no firing leaves so much.",
      "Boiler fuel duty -5277.3 kW is below 0 kW: its heat would flow the other way.",
      "Actual steam flow -1.92403 kg/s is below 0 kg/s: no stream runs backwards."}},
    {"GasTurbineA",
     {5000.0, 0.3, 288.15, 800.0, 4.0, 673.0, 378.0, 1.0, 15.0, 0.03},
     {"Steam demand 1 kg/s is below 2.80337 kg/s, the base load: the exhaust alone raises more "
      "than that.",
      "Boiler fuel duty -3825.44 kW is below 0 kW: its heat would flow the other way."}},
    {"GasTurbineA",
     {5000.0, 0.3, 288.15, 530.0, 4.0, 524.0, 378.0, 1.0, 15.0, 0.03},
     {"Exhaust temperature 530 K is below 538.542 K, where water boils plus the least approach: "
      "the exhaust raises no steam.",
      "Base load -0.240241 kg/s is below 0 kg/s: no stream runs backwards."}},
    {"GasTurbineA",
     {5000.0, -0.3, 288.15, 800.0, 4.0, 673.0, 378.0, 4.0, 15.0, 0.03},
     {"Power to fuel ratio -0.3 is not above 0: the turbine burns no fuel.",
      "Turbine power 5000 kW is not below -16666.7 kW, the heat of its fuel: no heat is left for "
      "the exhaust.",
      "Turbine fuel duty -16666.7 kW is below 0 kW: its heat would flow the other way.",
      "Boiler fuel duty -76974.5 kW is below 0 kW: its heat would flow the other way.",
      "Base load -5.20625 kg/s is below 0 kg/s: no stream runs backwards.",
      "Actual steam flow -34.2988 kg/s is below 0 kg/s: no stream runs backwards."}},
    {"GasTurbineA",
     {5000.0, 0.3, 850.0, 800.0, 4.0, 673.0, 378.0, 4.0, 15.0, 0.03},
     {"Exhaust temperature 800 K is not above 850 K, the air temperature: the exhaust carries no "
      "heat.",
      "Boiler fuel duty -538858 kW is below 0 kW: its heat would flow the other way.",
      "Base load -28.6981 kg/s is below 0 kg/s: no stream runs backwards.",
      "Actual steam flow -230.829 kg/s is below 0 kg/s: no stream runs backwards."}},
    {"DeAerator",
     {0.12, 2800.0, 320.0, -10.0, 0.01},
     {"Deaerated water flow -10 kg/s is below 0 kg/s: no stream runs backwards.",
      "Vent flow -0.1 kg/s is below 0 kg/s: no stream runs backwards.",
      "Steam flow -1.0293 kg/s is below 0 kg/s: no stream runs backwards.",
      "Feed water flow -9.0707 kg/s is below 0 kg/s: no stream runs backwards."}},
    {"DeAerator",
     {0.12, 2800.0, 400.0, 10.0, 0.01},
     {"Water temperature 400 K is above 377.961 K, where water boils at the operating pressure: "
      "feed water would flash.",
      "Steam flow -0.317514 kg/s is below 0 kg/s: no stream runs backwards."}},
    {"DeAerator",
     {0.12, 300.0, 320.0, 10.0, 0.0},
     {"Steam enthalpy 300 kJ/kg is not above 439.383 kJ/kg, that of the water in the outlet: such "
      "steam does not heat the feed water.",
      "Feed water flow -13.4343 kg/s is below 0 kg/s: no stream runs backwards."}},
    {"DeAerator",  // with a vent of saturated vapour: (0.1 x 2683.28 + 439.383) / 1.1 = 643.4 kJ/kg
     {0.12, 600.0, 320.0, 10.0, 0.1},
     {"Steam enthalpy 600 kJ/kg is not above 643.373 kJ/kg, that of the water in the outlet: such "
      "steam does not heat the feed water.",
      "Feed water flow -1.18168 kg/s is below 0 kg/s: no stream runs backwards."}},
    {"TurbineB3",
     {3213.0, 4.0, 1.0, 0.5, 0.3, 0.8, 0.8, 0.8, 100.0, 10.0, 10.0},
     {"Power of the extractions 6774.38 kW is above 100 kW, the given power: nothing is left for "
      "the last outlet.",
      "Flow at outlet 3 -14.0228 kg/s is below 0 kg/s: no stream runs backwards."}},
    {"CompressorB",
     {2800.0, 0.2, 0.2, 0.75, 100.0},
     {"Work of all stages 0 kJ/kg is not above 0 kJ/kg: between equal pressures there is none."}},
    {"TurbineB",
     {3213.0, 4.0, 0.3, 0.8, -463.028},
     {"Power -463.028 kW is below 0 kW: the machine would run the other way round.",
      "Flow -0.999999 kg/s is below 0 kg/s: no stream runs backwards."}},
    {"TurbineB2",
     {3300.0, 10.0, 5.0, 2.0, 0.8, 0.7, -100.0, 0.0},
     {"Power -100 kW is below 0 kW: the machine would run the other way round.",
      "Flow at outlet 2 -0.312211 kg/s is below 0 kg/s: no stream runs backwards."}},
    {"TurbineA2",
     {3300.0, 10.0, 5.0, 2.0, 0.8, 0.7, 3.0, -4.0},
     {"Flow at outlet 2 -4 kg/s is below 0 kg/s: no stream runs backwards."}},
    {"TurbineE",
     {3213.0, 4.0, 0.3, 0.8, 10.0, 9.0},
     {"Inlet entropy 9 kJ/(kg.K) is above 6.76819 kJ/(kg.K), that of the inlet pressure and "
      "enthalpy: the inlet is no such state."}},
    {"TurbineE",
     {3213.0, 4.0, 0.3, 0.8, 10.0, 6.758},
     {"Inlet entropy 6.758 kJ/(kg.K) is below 6.76819 kJ/(kg.K), that of the inlet pressure and "
      "enthalpy: the inlet is no such state."}},
    {"DeSuperHeater",
     {2800.0, 500.0, 1.0, 600.0, 10.0},
     {"Outlet enthalpy 3108.03 kJ/kg is above 2800 kJ/kg, the inlet steam's: spray water cannot "
      "heat steam.",
      "Spray water flow -1.18108 kg/s is below 0 kg/s: no stream runs backwards."}},
    {"DeSuperHeaterB",
     {2800.0, 500.0, 1.0, 400.0, 10.0},
     {"Outlet temperature 400 K is below 453.066 K, where water boils at the outlet pressure: what "
      "leaves is water, not steam."}},
    {"DeSuperHeater",
     {3100.0, 2950.0, 1.0, 500.0, 10.0},
     {"Inlet water enthalpy 2950 kJ/kg is not below 2889.99 kJ/kg, the outlet's: such water does "
      "not cool the steam.",
      "Spray water flow -34.9947 kg/s is below 0 kg/s: no stream runs backwards.",
      "Outlet steam flow -24.9947 kg/s is below 0 kg/s: no stream runs backwards."}},
    {"DeSuperHeaterB",
     {3100.0, 500.0, 1.0, 500.0, -10.0},
     {"Inlet steam flow -9.19226 kg/s is below 0 kg/s: no stream runs backwards.",
      "Spray water flow -0.807741 kg/s is below 0 kg/s: no stream runs backwards.",
      "Outlet steam flow -10 kg/s is below 0 kg/s: no stream runs backwards."}},
    {"LetDownValve",
     {2800.0, 1.0, 2.0},
     {"Outlet pressure 2 MPa is above 1 MPa, the inlet pressure: a valve cannot raise it."}},
    {"Boiler_B",
     {3000.0, 10.0, 540.0, 4.0, 0.0, 0.8},
     {"Inlet enthalpy 3000 kJ/kg is above 2858.78 kJ/kg, the outlet steam's: there is nothing left "
      "to heat.",
      "Absorbed duty -1412.16 kW is below 0 kW: its heat would flow the other way.",
      "Fired duty -1765.2 kW is below 0 kW: its heat would flow the other way."}},
    {"Boiler",
     {440.0, 10.0, 400.0, 4.0, 0.0},
     {"Outlet temperature 400 K is below 523.542 K, where water boils at the outlet pressure: what "
      "leaves is water, not steam."}},
    {"Boiler",
     {440.0, 10.0, 673.15, 4.0, -2.0},
     {"Blowdown ratio -2 Fraction is below 0 Fraction: nothing flows back into the drum.",
      "Blowdown flow -20 kg/s is below 0 kg/s: no stream runs backwards.",
      "Feed water flow -10 kg/s is below 0 kg/s: no stream runs backwards."}},
    {"Boiler",
     {440.0, -10.0, 600.0, 4.0, -2.0},
     {"Blowdown ratio -2 Fraction is below 0 Fraction: nothing flows back into the drum.",
      "Steam flow -10 kg/s is below 0 kg/s: no stream runs backwards.",
      "Absorbed duty -12981.4 kW is below 0 kW: its heat would flow the other way."}},
    {"Boiler",
     {448.0, 9.7, 673.15, 4.2, 3.0},
     {"Blowdown ratio 3 Fraction is above 1 Fraction: more water is blown down than leaves as "
      "steam."}},
    {"DeAerator",
     {0.12, 2800.0, 320.0, 10.0, 1.5},
     {"Vent ratio 1.5 Fraction is above 1 Fraction: more is vented than leaves as water."}},
    {"WaterPump",
     {400.0, 0.12, 6.0, -1.0, 0.7},
     {"Flow -1 kg/s is below 0 kg/s: no stream runs backwards."}},
    {"FlashVessel",
     {-1.0, 1000.0, 0.3},
     {"Inlet flow -1 kg/s is below 0 kg/s: no stream runs backwards."}},
    {"HeatExchangerA",
     {10.0, 1.0, -0.05, 300.0, 440.0, 0.0, 0.0, 2.0, -0.1, 430.0, 310.0, 1.0, 0.0},
     {"Cold pressure drop -0.05 MPa is below 0 MPa: a stream loses pressure on its way.",
      "Hot pressure drop -0.1 MPa is below 0 MPa: a stream loses pressure on its way.",
      "Cold outlet temperature 440 K is above 430 K, the hot inlet temperature: heat does not flow "
      "from cold to hot."}},
    {"HeatExchangerA",
     {10.0, 1.0, 0.0, 350.0, 300.0, 0.0, 0.0, 2.0, 0.0, 600.0, 420.0, 1.0, 0.0},
     {"Cold outlet enthalpy 113.409 kJ/kg is below 322.483 kJ/kg, the cold inlet's: the cold "
      "stream "
      "gives up heat.",
      "Hot flow -0.848277 kg/s is below 0 kg/s: no stream runs backwards."}},
    {"HeatExchangerA",
     {10.0, 1.0, 0.0, 300.0, 350.0, 0.0, 0.0, 2.0, 0.0, 420.0, 600.0, 1.0, 0.0},
     {"Hot outlet enthalpy 3084.4 kJ/kg is above 619.703 kJ/kg, the hot inlet's: the hot stream "
      "takes up heat.",
      "Hot flow -0.848277 kg/s is below 0 kg/s: no stream runs backwards."}},
    {"HeatExchangerA",
     {-10.0, 1.0, 0.0, 300.0, 350.0, 0.0, 0.0, 2.0, 0.0, 600.0, 420.0, 1.0, 0.0},
     {"Cold flow -10 kg/s is below 0 kg/s: no stream runs backwards.",
      "Hot flow -0.848277 kg/s is below 0 kg/s: no stream runs backwards."}},
    {"HeatExchangerB",
     {10.0, 1.0, 0.0, 430.0, 100.0, 0.0, 0.0, 2.0, 0.0, 600.0, 420.0, 1.0, 0.0},
     {"Cold inlet temperature 430 K is above 420 K, the hot outlet temperature: heat does not flow "
      "from cold to hot."}},
};

TEST(Implausible, IsWarnedOfWithItsLimitAndItsCause) {
  for (const auto& [model, in, expected] : implausible) {
    SCOPED_TRACE(model);
    Plant plant;
    ASSERT_EQ(plant.engine().SetTraceLevel(1), 1);
    EXPECT_EQ(run(plant, model, in), 1) << plant.engine().LastError();
    EXPECT_EQ(messages(plant, ZvFunctionCall::Kind::warning), expected);
    EXPECT_EQ(plant.engine().LastError(), "");
  }
}

TEST(Implausible, IsAnsweredWithoutAWordAtLevelZero) {
  for (const auto& [model, in, expected] : implausible) {
    Plant plant;
    EXPECT_EQ(run(plant, model, in), 1) << model;
    EXPECT_EQ(plant.trace(), "") << model;
  }
}

TEST(Implausible, KeepsItsNumbersWhenItIsWarnedOf) {
  for (const auto& [model, in, expected] : implausible) {
    Plant silent;
    Plant warned;
    ASSERT_EQ(warned.engine().SetTraceLevel(1), 1);
    if (findMember(model) == nullptr) continue;  // without plain members: next test
    EXPECT_EQ(silent.call(model, in).values, warned.call(model, in).values) << model;
  }
  for (const ModelUnderTest* model : {&models::chartD, &gasTurbine}) {
    ZvThermoInt silent;
    ZvThermoInt warned;
    ASSERT_EQ(warned.SetTraceLevel(1), 1);
    const std::vector<double> in =
        model == &gasTurbine
            ? std::vector{5000.0, 1.2, 288.15, 800.0, 4.0, 850.0, 600.0, 1.0, 15.0, 0.03}
            : std::vector{0.14, 400.0, 0.1, 380.0, 0.16, 3.0};
    std::vector<double> a(model->outputs.size());
    std::vector<double> b(model->outputs.size());
    EXPECT_EQ(model->run(silent, a.data(), in.data()), 1);
    EXPECT_EQ(model->run(warned, b.data(), in.data()), 1);
    EXPECT_EQ(a, b) << model->name;
    EXPECT_EQ(silent.steam().state().density, warned.steam().state().density);
  }
}

TEST(Implausible, IsWarnedOfInTheClientsUnits) {
  Plant plant;
  plant.useMixedUnits();
  ASSERT_EQ(plant.engine().SetTraceLevel(1), 1);
  EXPECT_EQ(plant("LetDownValve", {2800.0, 1.0, 2.0}).success, 1);
  EXPECT_EQ(plant("DeAerator", {0.12, 2800.0, 400.0, 10.0, 0.01}).success, 1);
  EXPECT_EQ(messages(plant, ZvFunctionCall::Kind::warning),
            (Texts{"Outlet pressure 275.379 psig is above 130.342 psig, the inlet pressure: a "
                   "valve cannot raise it.",
                   "Water temperature 260.33 F is above 220.66 F, where water boils at the "
                   "operating pressure: feed water would flash.",
                   "Steam flow -2.52 klb/h is below 0 klb/h: no stream runs backwards."}));
}

TEST(Implausible, IsNotWhatLiesOnItsLimit) {
  Plant plant;
  ZvThermoInt& engine = plant.engine();
  double T = 0.0;
  ASSERT_EQ(engine.TSatP(&T, 1.0), 1);
  ASSERT_EQ(engine.SetTraceLevel(1), 1);
  const std::pair<const char*, std::vector<double>> calls[] = {
      {"LetDownValve", {2800.0, 1.0, 1.0}},
      {"DeSuperHeater", {3100.0, 500.0, 1.0, T, 10.0}},
      {"Boiler", {440.0, 10.0, T, 1.0, 0.0}},
      {"DeAerator", {1.0, 2800.0, T, 0.0, 0.0}},
      {"TurbineE", {3213.0, 4.0, 0.3, 0.8, 10.0, 6.77819 - 1e-4}},
      {"TurbineE", {3213.0, 4.0, 0.3, 0.8, 10.0, 6.75819 + 1e-4}},
      {"TurbineB2", {3300.0, 10.0, 5.0, 2.0, 0.8, 0.7, 0.0, 0.0}},
      {"HeatExchangerA",
       {10.0, 1.0, 0.0, 300.0, 350.0, 0.0, 0.0, 2.0, 0.0, 350.0, 300.0, 1.0, 0.0}},
      {"ThermoCompressorD", {1.0, 473.0, 0.1, 380.0, 1.0, 0.5}}};
  for (const auto& [name, in] : calls) {
    EXPECT_EQ(run(plant, name, in), 1) << name << engine.LastError();
    EXPECT_EQ(plant.trace(), "") << name;
    engine.ClearTraceInfo();
  }
}

// The cause of a failure -------------------------------------------------------------------------

struct Failure {
  const char* model;
  std::vector<double> in;
  const char* reason;  // as required, and the last error; null: whatever the solver says
  const char* cause;
};

const Failure failures[] = {
    {"GasTurbineA",
     {5000.0, 0.3, 288.15, 800.0, 4.0, 673.0, 378.0, 4.0, 15.0, 0.3},
     "Pressure parameter out of range (Valid range 0.00 to 22.05 MPa).",
     "Least oxygen content of the stack 0.3 is above 0.160962, what the turbine's exhaust has: no "
     "firing leaves so much."},
    {"GasTurbineA",
     {5000.0, 0.3, 288.15, 800.0, 4.0, 673.0, 378.0, -100.0, 15.0, 0.03},
     "Pressure parameter out of range (Valid range 0.00 to 22.05 MPa).",
     "Steam demand -100 kg/s is below 2.80337 kg/s, the base load: the exhaust alone raises more "
     "than that."},
    {"GasTurbineA",
     {5000.0, 0.3, 800.0, 800.0, 4.0, 673.0, 378.0, 4.0, 15.0, 0.03},
     "Solution Error.",
     "Exhaust temperature 800 K is not above 800 K, the air temperature: the exhaust carries no "
     "heat."},
    {"GasTurbineA",
     {5000.0, 0.0, 288.15, 800.0, 4.0, 673.0, 378.0, 4.0, 15.0, 0.03},
     "Solution Error.",
     "Power to fuel ratio 0 is not above 0: the turbine burns no fuel."},
    {"GasTurbineA",
     {5000.0, 0.3, 288.15, 800.0, 4.0, 673.0, 673.0, 4.0, 15.0, 0.03},
     "Solution Error.",
     "Feed water temperature 673 K is above 523.542 K, where water boils at the steam pressure: "
     "feed water would be steam."},
    {"FlashVessel",
     {1.0, 1000.0, 0.0005},
     "Pressure parameter out of range (Valid range 0.00 to 22.05 MPa).",
     "Pressure 0.0005 MPa is below 0.00061173 MPa."},
    {"DeAerator",
     {0.12, 2800.0, 273.159, 10.0, 0.01},
     "Water Temperature parameter out of range (Valid range 273.16 to 647.13 K).",
     "Water Temperature 273.159 K is below 273.16 K."},
    {"TurbineA",
     {3213.0, 4.0, 0.3, 0.0, 1.0},
     "Efficiency parameter out of range (Valid range 0.00 to 1.00 Fraction).",
     "Efficiency 0 Fraction is not above 0 Fraction."},
    {"TurbineA",
     {3213.0, 4.0, 0.3, 1.001, 1.0},
     "Efficiency parameter out of range (Valid range 0.00 to 1.00 Fraction).",
     "Efficiency 1.001 Fraction is above 1 Fraction."},
    {"TurbineA",
     {3213.0, 4.0, 0.3, 80.0, 1.0},
     "Efficiency parameter out of range (Valid range 0.00 to 1.00 Fraction).",
     "80 % is 0.8 as a Fraction (on the command line also 80%)."},
    {"CompressorA",
     {2800.0, 0.1, 1.0, 0.01, 1.0},
     "Solution Error.",
     "Outlet enthalpy 63575.8 kJ/kg is above 8048.5 kJ/kg, that of the hottest steam at the outlet "
     "pressure: the efficiency heats the outlet too much."},
    {"CompressorA2",
     {2800.0, 0.1, 1.0, 2.0, 0.01, 0.8, 1.0, 1.0},
     "Solution Error.",
     "Outlet enthalpy 63575.8 kJ/kg is above 8048.5 kJ/kg, that of the hottest steam at the outlet "
     "pressure: the efficiency heats the outlet too much."},
    {"TurbineA",
     {3e5, 1.0, 0.5, 0.8, 1.0},
     nullptr,
     "Inlet enthalpy 300000 kJ/kg is above 8048.5 kJ/kg, that of the hottest steam at the inlet "
     "pressure: there is no such steam."},
    {"TurbineE",
     {3213.0, 4.0, 1.0, 0.8, 10.0, 90.0},
     nullptr,
     "Entropy 90 kJ/(kg.K) is above 10.7693 kJ/(kg.K), that of the hottest steam at the outlet "
     "pressure: even the ideal machine heats the outlet too much."},
    {"TurbineB",
     {3213.0, 4.0, 4.0, 0.8, 0.0},
     "Solution Error.",
     "Work of all stages 0 kJ/kg is not above 0 kJ/kg: between equal pressures there is none."},
    {"DeAerator",
     {0.12, 2800.0, 600.0, 10.0, 0.01},
     "Solution Error.",
     "Water temperature 600 K is above 377.961 K, where water boils at the operating pressure: so "
     "far above it there is no liquid, not even a metastable one."},
    {"HeatExchangerB",
     {0.0, 1.0, 0.0, 300.0, 2000.0, 0.0, 0.0, 2.0, 0.0, 600.0, 420.0, 1.0, 0.0},
     "Solution Error.",
     "Cold flow 0 kg/s is not above 0 kg/s: nothing takes up the duty."},
    {"ThermoCompressorA",
     {1.0, 473.0, 1.0, 0.1, 380.0, 0.0},
     "Solution Error.",
     "Suction flow 0 kg/s is not above 0 kg/s: the ratio of motive to suction flow has no value."},
    {"ThermoCompressorA",
     {1.0, 473.0, 1.0, 0.1, 380.0, -1.0},
     "Solution Error.",
     "Suction flow -1 kg/s is not above 0 kg/s: the ratio of motive to suction flow has no value."},
    {"ThermoCompressorA",
     {1.0, 473.0, -1.0, 0.1, 380.0, 3.0},
     "Pressure parameter out of range (Valid range 0.00 to 22.05 MPa).",
     "Motive flow -1 kg/s is below 0 kg/s: the chart has no such ratio of flows."},
    // No motive flow is a flow that the chart has.
    {"ThermoCompressorA",
     {30.0, 700.0, 0.0, 25.0, 700.0, 1.0},
     "Pressure parameter out of range (Valid range 0.00 to 22.05 MPa).",
     "Expansion ratio 1.2 Fraction is below 1.64707 Fraction, the least of the chart: the chart's "
     "last curve passes the motive pressure."},
    {"ThermoCompressorE",
     {1.0, 473.0, 0.1, 380.0, 0.1, 1.0},
     "Solution Error.",
     "Discharge pressure 0.1 MPa is not above 0.1 MPa, the suction pressure: it takes no motive "
     "flow, so that the given one draws any suction flow."},
    {"ThermoCompressorF",
     {1.0, 473.0, 0.1, 380.0, 1.0, 6.0},
     "Unable to bracket the root of the equations!",
     "Duty 6 kW is below 2272.55 kW, the least of the chart: the given flow condenses to more."},
    {"ThermoCompressorG",
     {1.0, 473.0, 0.1, 380.0, 1.0, 3e7},
     "Unable to bracket the root of the equations!",
     "Duty 3e+07 kW is above 2.27255e+07 kW, the most of the chart: the given flow condenses to "
     "less."},
    {"ThermoCompressorF",
     {23.0, 700.0, 0.1, 380.0, 1.0, 6000.0},
     "Pressure parameter out of range (Valid range 0.00 to 22.05 MPa).",
     "Motive pressure 23 MPa is above 22.055 MPa, the critical pressure: the chart ends at the "
     "motive pressure, where such a discharge does not condense."},
    {"ThermoCompA",
     {2830.0, 0.05, 2675.0, 0.1, 0.17, 2.0},
     "Calculated diffuser efficiency less than 0.0 !",
     "Motive pressure 0.05 MPa is not above 0.1 MPa, the suction pressure: such steam drives "
     "nothing."},
    {"ThermoCompB",
     {2830.0, 1.0, 2675.0, 0.1, 1.5, 0.47},
     "Unable to bracket the root of the equations!",
     "Discharge pressure 1.5 MPa is above 1 MPa, the motive pressure: steam does not compress "
     "beyond its own pressure."},
};

TEST(Failure, TellsItsCauseAfterTheRequiredText) {
  for (const auto& [model, in, reason, cause] : failures) {
    SCOPED_TRACE(model);
    Plant plant;
    ZvThermoInt& engine = plant.engine();
    EXPECT_EQ(run(plant, model, in), 0);
    EXPECT_EQ(engine.diagnostics().cause(), cause);
    const Texts errors = messages(plant, ZvFunctionCall::Kind::error);
    ASSERT_GE(errors.size(), 2U);
    if (reason != nullptr) {
      EXPECT_EQ(errors.front(), reason);
    }
    EXPECT_EQ(engine.LastError(), errors.front());
    EXPECT_EQ(errors.back(), cause);
  }
}

TEST(Failure, ThatSaysItsCauseItselfHasNoSecondText) {
  const std::pair<const char*, std::vector<double>> calls[] = {
      {"FlashVessel", {1.0, 1000.0, 30.0}},
      {"FlashVessel", {1.0, 1000.0, -0.1}},
      {"TurbineA", {3213.0, 4.0, 0.3, 1.01, 1.0}},
      {"TurbineA", {3213.0, 4.0, 0.3, std::nan(""), 1.0}},
      {"TurbineA", {3213.0, 0.3, 4.0, 0.8, 1.0}}};
  Plant plant;
  for (const auto& [name, in] : calls) {
    plant.engine().ClearTraceInfo();
    EXPECT_EQ(run(plant, name, in), 0) << name;
    EXPECT_EQ(plant.engine().diagnostics().cause(), "") << name;
    EXPECT_EQ(messages(plant, ZvFunctionCall::Kind::error).size(), 1U) << name;
  }
}

TEST(Failure, LosesItsCauseWithTheNextError) {
  Plant plant;
  const Diagnostics& record = plant.engine().diagnostics();
  run(plant, "FlashVessel", {1.0, 1000.0, 0.0005});
  ASSERT_NE(record.cause(), "");
  run(plant, "FlashVessel", {1.0, 1000.0, 30.0});
  EXPECT_EQ(record.cause(), "");
  run(plant, "FlashVessel", {1.0, 1000.0, 0.0005});
  ASSERT_EQ(plant.engine().AddExternalError("sheet", "text"), 1);
  EXPECT_EQ(record.cause(), "");
  run(plant, "FlashVessel", {1.0, 1000.0, 0.0005});
  plant.engine().ClearTraceInfo();
  EXPECT_EQ(record.cause(), "");
  ASSERT_EQ(plant.engine().SetFunctionCallTracing(0), 1);
  run(plant, "FlashVessel", {1.0, 1000.0, 0.0005});
  EXPECT_EQ(record.cause(), "");
}

}  // namespace
}  // namespace calvex
