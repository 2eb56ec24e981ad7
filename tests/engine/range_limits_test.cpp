// The hard and the strictly valid range of temperature and pressure, and the order of the checks.
#include <gtest/gtest.h>

#include <cmath>

#include "support/engine.h"

namespace calvex::test {
namespace {

const std::string temperatureWarning = "Temperature parameter out of strictly valid range.";
const std::string pressureWarning = "Pressure parameter out of strictly valid range.";

class RangeLimits : public testing::Test {
 protected:
  ZvThermoInt engine;

  // What a call leaves in the trace, with warnings.
  std::string warningsOf(PairOperation member, double first, double second) {
    engine.SetTraceLevel(1);
    engine.ClearTraceInfo();
    double value = untouched;
    (engine.*member)(&value, first, second);
    return traceOf(engine);
  }
};

TEST_F(RangeLimits, TemperatureBoundsAreInclusive) {
  EXPECT_TRUE(succeeds(engine, &ZvThermoInt::APT, 1.0, 260.0)) << engine.LastError();
  EXPECT_TRUE(succeeds(engine, &ZvThermoInt::APT, 1.0, 2500.0)) << engine.LastError();
}

TEST_F(RangeLimits, TemperatureBelowOrAboveTheBoundsFailsWithBothBounds) {
  const std::string error = "Temperature parameter out of range (Valid range 260.00 to 2500.00 K).";
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::APT, 1.0, 259.99), error);
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::APT, 1.0, 2500.01), error);
}

TEST_F(RangeLimits, BoundsAreGivenInTheUsersTemperatureUnit) {
  ASSERT_EQ(engine.SetUserUnit("T", "C"), 1);
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::APT, 1.0, -20.0),
            "Temperature parameter out of range (Valid range -13.15 to 2226.85 C).");
  ASSERT_EQ(engine.SetUserUnit("T", "F"), 1);
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::APT, 1.0, 8.0),
            "Temperature parameter out of range (Valid range 8.33 to 4040.33 F).");
}

TEST_F(RangeLimits, BoundsAreGivenInTheUsersPressureUnit) {
  ASSERT_EQ(engine.SetUserUnit("P", "barg"), 1);
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::APT, -2.0, 500.0),
            "Pressure parameter out of range (Valid range -1.01 to 29998.99 barg).");
}

// 647.126 K is 373.976 C, 705.1568 F and 1164.8268 R; 273.16 K is 0.01 C and 32.018 F. Their
// conversions end up to 5e-9 K beyond.
TEST_F(RangeLimits, ABoundThatAConversionMovesPastItselfIsTheBound) {
  double critical = 0.0, triple = 0.0;
  ASSERT_EQ(engine.PSatT(&critical, 647.126), 1);
  ASSERT_EQ(engine.PSatT(&triple, 273.16), 1);
  const struct {
    const char* unit;
    double critical, triple, lowest, highest, hottest;
  } scales[] = {{"C", 373.976, 0.01, -13.15, 2226.85, 1000.0},
                {"F", 705.1568, 32.018, 8.33, 4040.33, 1832.0},
                {"R", 1164.8268, 491.688, 468.0, 4500.0, 2291.67}};
  for (const auto& scale : scales) {
    SCOPED_TRACE(scale.unit);
    ASSERT_EQ(engine.SetUserUnit("T", scale.unit), 1);
    double P = 0.0;
    EXPECT_EQ(engine.PSatT(&P, scale.critical), 1) << engine.LastError();
    EXPECT_DOUBLE_EQ(P, critical);
    EXPECT_EQ(engine.PSatT(&P, scale.triple), 1) << engine.LastError();
    EXPECT_NEAR(P, triple, 1e-9 * triple);
    EXPECT_TRUE(succeeds(engine, &ZvThermoInt::APT, 1.0, scale.lowest)) << engine.LastError();
    EXPECT_TRUE(succeeds(engine, &ZvThermoInt::APT, 1.0, scale.highest)) << engine.LastError();
    EXPECT_FALSE(contains(warningsOf(&ZvThermoInt::APT, 1.0, scale.hottest), temperatureWarning));
    for (const double beyond : {scale.critical + 1e-6, scale.triple - 1e-6}) {
      EXPECT_EQ(engine.PSatT(&P, beyond), 0) << beyond;
    }
  }
}

// What a client gives in the engine's own unit is what it is.
TEST_F(RangeLimits, WithoutAConversionABoundEndsAtItsLastDigit) {
  double P = 0.0;
  EXPECT_EQ(engine.PSatT(&P, std::nextafter(647.126, 1000.0)), 0);
  EXPECT_EQ(engine.PSatT(&P, std::nextafter(273.16, 0.0)), 0);
  ASSERT_EQ(engine.SetUserUnit("P", "bara"), 1);
  double T = 0.0;
  EXPECT_EQ(engine.TSatP(&T, 220.55), 1) << engine.LastError();
  EXPECT_EQ(engine.TSatP(&T, 220.55000001), 0);
}

TEST_F(RangeLimits, PressureAboveTheHardBoundFails) {
  const std::string error = "Pressure parameter out of range (Valid range 0.00 to 3000.00 MPa).";
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::APT, 3000.01, 500.0), error);
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::APT, -0.01, 500.0), error);
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::TPH, 3000.01, 500.0), error);
}

TEST_F(RangeLimits, PressureAtTheHardBoundIsInRange) {
  EXPECT_FALSE(contains(warningsOf(&ZvThermoInt::APT, 3000.0, 500.0), "out of range"));
}

TEST_F(RangeLimits, ZeroPressurePassesTheChecksAndFailsInTheState) {
  const std::string error = errorOf(engine, &ZvThermoInt::HPT, 0.0, 500.0);
  EXPECT_FALSE(error.empty());
  EXPECT_FALSE(contains(error, "out of range")) << error;
}

TEST_F(RangeLimits, WithoutPressureThereIsNoStateToFind) {
  for (const PairMember& member : pairMembers()) {
    if (member.first() != 'P' || member.isFromPT()) continue;
    EXPECT_EQ(errorOf(engine, member.call, 0.0, 0.5), "Solution Error.") << member.name;
  }
}

TEST_F(RangeLimits, StrictTemperatureRangeLeavesOneWarningAndSucceeds) {
  engine.SetTraceLevel(1);
  double a = untouched;
  EXPECT_EQ(engine.APT(&a, 1.0, 1300.0), 1);
  EXPECT_NE(a, untouched);
  EXPECT_EQ(traceOf(engine), "APT\n  warning: " + temperatureWarning + "\n");
  EXPECT_EQ(engine.LastError(), "");
}

TEST_F(RangeLimits, StrictTemperatureBoundsAreInclusive) {
  EXPECT_EQ(warningsOf(&ZvThermoInt::HPT, 1.0, 273.15), "");
  EXPECT_EQ(warningsOf(&ZvThermoInt::HPT, 1.0, 1273.15), "");
  EXPECT_TRUE(contains(warningsOf(&ZvThermoInt::HPT, 1.0, 273.14), temperatureWarning));
  EXPECT_TRUE(contains(warningsOf(&ZvThermoInt::HPT, 1.0, 1273.16), temperatureWarning));
}

TEST_F(RangeLimits, StrictPressureBoundDependsOnTheTemperature) {
  EXPECT_TRUE(contains(warningsOf(&ZvThermoInt::APT, 1400.0, 400.0), pressureWarning));
  EXPECT_FALSE(contains(warningsOf(&ZvThermoInt::APT, 1400.0, 430.0), pressureWarning));
}

// Where the equation's isochoric heat capacity is negative; at 280 K that begins at 798 MPa. Its
// enthalpy is that of a stable mixture up to 2513 kJ/kg.
TEST_F(RangeLimits, UnstableWaterIsWarnedOfByEveryMemberThatAnswersIt) {
  const std::string warning = "The heat capacity is not above zero";
  for (const auto& [P, isUnstable] : {std::pair{790.0, false}, std::pair{2900.0, true}}) {
    const double T = 280.0;
    EXPECT_EQ(valueOf(engine, &ZvThermoInt::DPT, P, T) <= 0.0, isUnstable);
    for (const PairMember& member : pairMembers()) {
      const std::string given(member.name.substr(1));
      if (contains("MKNE", std::string{member.result()})) continue;  // end below such pressures
      double second = T;
      if (given == "TH" && isUnstable) second = valueOf(engine, &ZvThermoInt::HPT, P, T);
      if (given == "TR") second = valueOf(engine, &ZvThermoInt::RPT, P, T);
      if (given == "TV") second = valueOf(engine, &ZvThermoInt::VPT, P, T);
      if (second == T && given != "PT") continue;
      const std::string trace = warningsOf(member.call, member.isFromPT() ? P : T, second);
      EXPECT_EQ(contains(trace, "warning: " + warning), isUnstable) << member.name << '\n' << trace;
    }
    // Of several numbers at once, and with a quality.
    const double h = valueOf(engine, &ZvThermoInt::HPT, P, T);
    EXPECT_EQ(contains(traceOf(engine), warning), isUnstable);
    engine.ClearTraceInfo();
    double value = untouched;
    ASSERT_EQ(engine.HPTQ(&value, P, T, 0.0), 1);
    EXPECT_EQ(contains(traceOf(engine), warning), isUnstable);
    EXPECT_EQ(value, h);
  }
}

TEST_F(RangeLimits, StrictPressureBoundRisesFrom500To1500MPa) {
  EXPECT_FALSE(contains(warningsOf(&ZvThermoInt::HPT, 500.0, 273.15), pressureWarning));
  EXPECT_TRUE(contains(warningsOf(&ZvThermoInt::HPT, 500.1, 273.15), pressureWarning));
  EXPECT_FALSE(contains(warningsOf(&ZvThermoInt::HPT, 999.9, 348.15), pressureWarning));
  EXPECT_TRUE(contains(warningsOf(&ZvThermoInt::HPT, 1000.1, 348.15), pressureWarning));
  EXPECT_FALSE(contains(warningsOf(&ZvThermoInt::HPT, 1500.0, 423.15), pressureWarning));
  EXPECT_TRUE(contains(warningsOf(&ZvThermoInt::HPT, 1500.1, 423.15), pressureWarning));
  EXPECT_TRUE(contains(warningsOf(&ZvThermoInt::HPT, 1500.0, 423.14), pressureWarning));
  EXPECT_TRUE(contains(warningsOf(&ZvThermoInt::HPT, 1500.1, 425.0), pressureWarning));
  EXPECT_TRUE(contains(warningsOf(&ZvThermoInt::HPT, 1500.1, 1200.0), pressureWarning));
}

TEST_F(RangeLimits, WithoutATemperatureTheStrictPressureBoundIsThatOf400K) {
  // (126.85 / 15 + 5) * 100 = 1345.667 MPa
  EXPECT_FALSE(contains(warningsOf(&ZvThermoInt::TPH, 1345.6, 1000.0), pressureWarning));
  EXPECT_TRUE(contains(warningsOf(&ZvThermoInt::TPH, 1345.7, 1000.0), pressureWarning));
}

TEST_F(RangeLimits, TemperatureIsCheckedBeforePressure) {
  int members = 0;
  for (const PairMember& member : pairMembers()) {
    if (!member.isFromPT() || contains("KPT NPT EPT", member.name)) continue;
    ++members;
    EXPECT_TRUE(errorOf(engine, member.call, -1.0, 100.0).starts_with("Temperature "))
        << member.name;
  }
  EXPECT_EQ(members, 16);
}

TEST_F(RangeLimits, KPTNPTAndEPTCheckPressureBeforeTemperature) {
  for (const PairOperation member : {&ZvThermoInt::KPT, &ZvThermoInt::NPT, &ZvThermoInt::EPT}) {
    EXPECT_TRUE(errorOf(engine, member, -1.0, 100.0).starts_with("Pressure "));
  }
}

TEST_F(RangeLimits, HPTQChecksTemperatureThenPressureThenQuality) {
  EXPECT_TRUE(errorOf(engine, &ZvThermoInt::HPTQ, -1.0, 100.0, -1.0).starts_with("Temperature "));
  EXPECT_TRUE(errorOf(engine, &ZvThermoInt::HPTQ, -1.0, 400.0, -1.0).starts_with("Pressure "));
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::HPTQ, 1.0, 400.0, -1.0),
            "Quality parameter out of range (Valid range 0.00 to 1.00 Fraction).");
}

// Transport properties: the ranges of their correlations ------------------------------------------

TEST_F(RangeLimits, ViscosityHasThreePressureLimitsByTemperature) {
  const auto error = [](const char* limit) {
    return std::string("Pressure parameter out of range (Valid range 0.00 to ") + limit + " MPa).";
  };
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::MPT, 1000.01, 373.14), error("1000.00"));
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::MPT, 350.01, 373.15), error("350.00"));
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::MPT, 350.01, 833.14), error("350.00"));
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::MPT, 100.01, 833.15), error("100.00"));
  EXPECT_TRUE(succeeds(engine, &ZvThermoInt::MPT, 1000.0, 373.14)) << engine.LastError();
  EXPECT_TRUE(succeeds(engine, &ZvThermoInt::MPT, 350.0, 373.15)) << engine.LastError();
  EXPECT_TRUE(succeeds(engine, &ZvThermoInt::MPT, 100.0, 833.15)) << engine.LastError();
}

TEST_F(RangeLimits, ViscosityTemperatureBoundsAreInclusive) {
  const std::string error = "Temperature parameter out of range (Valid range 273.15 to 1073.15 K).";
  EXPECT_TRUE(succeeds(engine, &ZvThermoInt::MPT, 1.0, 273.15)) << engine.LastError();
  EXPECT_TRUE(succeeds(engine, &ZvThermoInt::MPT, 1.0, 1073.15)) << engine.LastError();
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::MPT, 1.0, 273.14), error);
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::MPT, 1.0, 1073.16), error);
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::MPT, -1.0, 1073.16), error);
}

TEST_F(RangeLimits, ViscosityAbove100MPaWarns) {
  EXPECT_EQ(warningsOf(&ZvThermoInt::MPT, 100.0, 500.0), "");
  EXPECT_EQ(warningsOf(&ZvThermoInt::MPT, 100.1, 500.0),
            "MPT\n  warning: " + pressureWarning + "\n");
}

TEST_F(RangeLimits, ConductivityAndPrandtlNumberHaveTheConductivityRange) {
  for (const PairOperation member : {&ZvThermoInt::KPT, &ZvThermoInt::NPT}) {
    EXPECT_TRUE(succeeds(engine, member, 100.0, 273.15)) << engine.LastError();
    EXPECT_TRUE(succeeds(engine, member, 100.0, 1073.15)) << engine.LastError();
    EXPECT_EQ(errorOf(engine, member, 100.01, 500.0),
              "Pressure parameter out of range (Valid range 0.00 to 100.00 MPa).");
    EXPECT_EQ(errorOf(engine, member, 1.0, 273.14),
              "Temperature parameter out of range (Valid range 273.15 to 1073.15 K).");
    EXPECT_EQ(errorOf(engine, member, 1.0, 1073.16),
              "Temperature parameter out of range (Valid range 273.15 to 1073.15 K).");
  }
}

TEST_F(RangeLimits, DielectricConstantHasItsOwnRange) {
  EXPECT_TRUE(succeeds(engine, &ZvThermoInt::EPT, 500.0, 823.15)) << engine.LastError();
  EXPECT_TRUE(succeeds(engine, &ZvThermoInt::EPT, 1.0, 273.15)) << engine.LastError();
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::EPT, 500.01, 500.0),
            "Pressure parameter out of range (Valid range 0.00 to 500.00 MPa).");
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::EPT, 1.0, 823.16),
            "Temperature parameter out of range (Valid range 273.15 to 823.15 K).");
}

TEST_F(RangeLimits, TransportBoundsAreGivenInTheUsersUnits) {
  ASSERT_EQ(engine.SetUserUnit("T", "C"), 1);
  ASSERT_EQ(engine.SetUserUnit("P", "bara"), 1);
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::KPT, 1000.1, 100.0),
            "Pressure parameter out of range (Valid range 0.00 to 1000.00 bara).");
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::KPT, 10.0, 801.0),
            "Temperature parameter out of range (Valid range 0.00 to 800.00 C).");
}

TEST_F(RangeLimits, SurfaceTensionReachesTheCriticalTemperature) {
  EXPECT_TRUE(succeeds(engine, &ZvThermoInt::XT, criticalT)) << engine.LastError();
  EXPECT_TRUE(succeeds(engine, &ZvThermoInt::XT, tripleT)) << engine.LastError();
  const std::string error = "Temperature parameter out of range (Valid range 273.16 to 647.13 K).";
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::XT, criticalT + 0.01), error);
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::XT, tripleT - 0.01), error);
}

// The other inputs
// ----------------------------------------------------------------------------------

std::string_view nameOf(char letter) {
  switch (letter) {
    case 'H':
      return "Enthalpy";
    case 'S':
      return "Entropy";
    case 'U':
      return "Internal Energy";
    case 'R':
      return "Density";
    default:
      return "Specific Volume";
  }
}

TEST_F(RangeLimits, NegativeSecondInputsFailWithTheirName) {
  int members = 0;
  for (const PairMember& member : pairMembers()) {
    if (member.isFromPT()) continue;
    ++members;
    const double first = member.first() == 'P' ? 1.0 : 400.0;
    const std::string name =
        member.name == "QPV" ? "Specific volume" : std::string(nameOf(member.second()));
    EXPECT_EQ(errorOf(engine, member.call, first, -0.001), name + " parameter out of range.")
        << member.name;
  }
  EXPECT_EQ(members, 76);
}

TEST_F(RangeLimits, NegativeEnthalpyFailsInTheMembersOfSeveralResults) {
  double q = untouched, t = untouched, s = untouched;
  EXPECT_EQ(engine.QTS_PH(&q, &t, &s, 1.0, -0.001), 0);
  EXPECT_EQ(engine.LastError(), "Enthalpy parameter out of range.");
  engine.ClearTraceInfo();
  EXPECT_EQ(engine.QT_PH(&q, &t, 1.0, -0.001), 0);
  EXPECT_EQ(engine.LastError(), "Enthalpy parameter out of range.");
  engine.ClearTraceInfo();
  EXPECT_EQ(engine.QTR_PH(&q, &t, &s, 1.0, -0.001), 0);
  EXPECT_EQ(engine.LastError(), "Enthalpy parameter out of range.");
  EXPECT_EQ(q, untouched);
  EXPECT_EQ(t, untouched);
  EXPECT_EQ(s, untouched);
}

TEST_F(RangeLimits, AnEnthalpyOfZeroIsAccepted) {
  EXPECT_EQ(valueOf(engine, &ZvThermoInt::QPH, 1.0, 0.0), 0.0);
}

TEST_F(RangeLimits, TheFirstInputIsCheckedBeforeTheSecond) {
  for (const PairMember& member : pairMembers()) {
    if (member.isFromPT()) continue;
    const std::string name = member.first() == 'P' ? "Pressure " : "Temperature ";
    EXPECT_TRUE(errorOf(engine, member.call, -1.0, -1.0).starts_with(name)) << member.name;
  }
}

TEST_F(RangeLimits, SaturationMembersKeepBetweenTripleAndCriticalPoint) {
  const std::string temperature =
      "Temperature parameter out of range (Valid range 273.16 to 647.13 K).";
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::PSatT, 273.15), temperature);
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::PSatT, 647.127), temperature);
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::TSatP, 0.0006),
            "Pressure parameter out of range (Valid range 0.00 to 22.05 MPa).");
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::TSatP, 22.056),
            "Pressure parameter out of range (Valid range 0.00 to 22.05 MPa).");
  for (const PairMember& member : saturationMembers()) {
    if (member.name[4] == 'T') {
      EXPECT_EQ(errorOf(engine, member.call, 273.15, 0.5), temperature) << member.name;
      EXPECT_EQ(errorOf(engine, member.call, 647.127, 0.5), temperature) << member.name;
      continue;
    }
    const std::string pressure = std::string(member.name == "USatPQ" ? "Press" : "Pressure") +
                                 " parameter out of range (Valid range 0.00 to 22.05 MPa).";
    EXPECT_EQ(errorOf(engine, member.call, 0.0006, 0.5), pressure) << member.name;
    EXPECT_EQ(errorOf(engine, member.call, 22.056, 0.5), pressure) << member.name;
  }
}

TEST_F(RangeLimits, QualityBoundsAreInclusive) {
  const std::string error = "Quality parameter out of range (Valid range 0.00 to 1.00 Fraction).";
  for (const PairMember& member : saturationMembers()) {
    const double first = member.name[4] == 'T' ? 400.0 : 1.0;
    EXPECT_TRUE(succeeds(engine, member.call, first, 0.0)) << member.name;
    EXPECT_TRUE(succeeds(engine, member.call, first, 1.0)) << member.name;
    EXPECT_EQ(errorOf(engine, member.call, first, 1.0001), error) << member.name;
    EXPECT_EQ(errorOf(engine, member.call, first, -0.0001), error) << member.name;
  }
}

TEST_F(RangeLimits, QualityBoundsAreGivenInTheUsersUnit) {
  ASSERT_EQ(engine.SetUserUnit("Q", "%"), 1);
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::HSatPQ, 1.0, 100.01),
            "Quality parameter out of range (Valid range 0.00 to 100.00 %).");
}

TEST_F(RangeLimits, TheSaturatedTripleOfEnthalpiesChecksPressureAndQuality) {
  double h = untouched, hVap = untouched, hLiq = untouched, tSat = untouched;
  EXPECT_EQ(engine.HVLTSat_PQ(&h, &hVap, &hLiq, &tSat, 22.056, 0.5), 0);
  EXPECT_EQ(engine.LastError(), "Pressure parameter out of range (Valid range 0.00 to 22.05 MPa).");
  EXPECT_EQ(engine.HVLTSat_PQ(&h, &hVap, &hLiq, &tSat, 1.0, 1.5), 0);
  EXPECT_EQ(engine.LastError(),
            "Quality parameter out of range (Valid range 0.00 to 1.00 Fraction).");
  EXPECT_EQ(h, untouched);
  EXPECT_EQ(hVap, untouched);
  EXPECT_EQ(hLiq, untouched);
  EXPECT_EQ(tSat, untouched);
}

// Two inputs out of range: the one that is told is the one that is checked first.
TEST_F(RangeLimits, MembersOfSeveralResultsCheckPressureBeforeEnthalpy) {
  double a = untouched, b = untouched, c = untouched;
  const auto errorsOf = [&](double P, double h) {
    std::vector<std::string> errors;
    const auto call = [&](auto&& member) {
      engine.ClearTraceInfo();
      EXPECT_EQ(member(), 0);
      errors.push_back(engine.LastError());
    };
    call([&] { return engine.QT_PH(&a, &b, P, h); });
    call([&] { return engine.QTS_PH(&a, &b, &c, P, h); });
    call([&] { return engine.QTR_PH(&a, &b, &c, P, h); });
    return errors;
  };
  const auto thrice = [](const std::string& error) { return std::vector<std::string>(3, error); };
  const std::string pressure = "Pressure parameter out of range (Valid range 0.00 to 3000.00 MPa).";
  EXPECT_EQ(errorsOf(-1.0, -1.0), thrice(pressure));
  EXPECT_EQ(errorsOf(-1e-9, 500.0), thrice(pressure));
  EXPECT_EQ(errorsOf(3000.01, 500.0), thrice(pressure));
  EXPECT_EQ(errorsOf(1.0, -1e-9), thrice("Enthalpy parameter out of range."));
  EXPECT_EQ(a, untouched);
  EXPECT_EQ(b, untouched);
  EXPECT_EQ(c, untouched);
}

TEST_F(RangeLimits, MembersOfSeveralResultsHaveTheStrictPressureOf400K) {
  engine.SetTraceLevel(1);
  double a = untouched, b = untouched, c = untouched;
  const auto warns = [&](auto&& member) {
    engine.ClearTraceInfo();
    member();
    return contains(traceOf(engine), pressureWarning);
  };
  for (const auto& [P, beyond] : {std::pair{1345.6, false}, {1345.7, true}}) {
    EXPECT_EQ(warns([&] { engine.QT_PH(&a, &b, P, 2000.0); }), beyond);
    EXPECT_EQ(warns([&] { engine.QTS_PH(&a, &b, &c, P, 2000.0); }), beyond);
    EXPECT_EQ(warns([&] { engine.QTR_PH(&a, &b, &c, P, 2000.0); }), beyond);
  }
}

TEST_F(RangeLimits, SaturationMembersCheckTheirPointBeforeTheQuality) {
  for (const PairMember& member : saturationMembers()) {
    const bool fromT = member.name[4] == 'T';
    EXPECT_TRUE(errorOf(engine, member.call, fromT ? 648.0 : 23.0, 2.0)
                    .starts_with(fromT ? "Temperature " : "Press"))
        << member.name;
  }
  double h = untouched, hVap = untouched, hLiq = untouched, tSat = untouched;
  for (const double P : {23.0, 0.0006}) {
    engine.ClearTraceInfo();
    EXPECT_EQ(engine.HVLTSat_PQ(&h, &hVap, &hLiq, &tSat, P, 2.0), 0);
    EXPECT_EQ(engine.LastError(),
              "Pressure parameter out of range (Valid range 0.00 to 22.05 MPa).");
  }
  for (const double Q : {-1e-9, 1.0 + 1e-9}) {
    engine.ClearTraceInfo();
    EXPECT_EQ(engine.HVLTSat_PQ(&h, &hVap, &hLiq, &tSat, 1.0, Q), 0);
    EXPECT_EQ(engine.LastError(),
              "Quality parameter out of range (Valid range 0.00 to 1.00 Fraction).");
  }
}

TEST_F(RangeLimits, SaturationBoundsAreInclusive) {
  EXPECT_TRUE(succeeds(engine, &ZvThermoInt::PSatT, tripleT)) << engine.LastError();
  EXPECT_TRUE(succeeds(engine, &ZvThermoInt::PSatT, criticalT)) << engine.LastError();
  EXPECT_TRUE(succeeds(engine, &ZvThermoInt::TSatP, tripleP)) << engine.LastError();
  EXPECT_TRUE(succeeds(engine, &ZvThermoInt::TSatP, criticalP)) << engine.LastError();
  for (const PairMember& member : saturationMembers()) {
    const bool fromT = member.name[4] == 'T';
    for (const double bound : {fromT ? tripleT : tripleP, fromT ? criticalT : criticalP}) {
      engine.ClearTraceInfo();
      double value = untouched;
      (engine.*member.call)(&value, bound, 0.5);
      EXPECT_FALSE(contains(engine.LastError(), "out of range"))
          << member.name << " at " << bound << ": " << engine.LastError();
    }
  }
  double h = untouched, hVap = untouched, hLiq = untouched, tSat = untouched;
  for (const double Q : {0.0, 1.0}) {
    EXPECT_EQ(engine.HVLTSat_PQ(&h, &hVap, &hLiq, &tSat, tripleP, Q), 1) << engine.LastError();
  }
}

// What lies outside the hard range lies outside the strict one too; only the error is told.
TEST_F(RangeLimits, AHardErrorComesWithoutAStrictWarning) {
  const auto expectAnErrorAlone = [&](PairOperation member, double first, double second) {
    const std::string trace = warningsOf(member, first, second);
    EXPECT_TRUE(contains(trace, "error: ")) << trace;
    EXPECT_FALSE(contains(trace, "warning: ")) << trace;
  };
  for (const PairMember& member : pairMembers()) {
    const bool fromT = member.first() == 'T';
    if (member.isFromPT()) {
      expectAnErrorAlone(member.call, 1.0, 259.0);
      expectAnErrorAlone(member.call, 1.0, 2501.0);
      expectAnErrorAlone(member.call, 3001.0, 500.0);
      expectAnErrorAlone(member.call, -1.0, 500.0);
      continue;
    }
    for (const double first : {fromT ? 259.0 : -1.0, fromT ? 2501.0 : 3001.0}) {
      expectAnErrorAlone(member.call, first, 1.0);
    }
  }
  // Of the viscosity, above 100 MPa is a warning, and above the limit of the temperature an error.
  expectAnErrorAlone(&ZvThermoInt::MPT, 351.0, 500.0);
  expectAnErrorAlone(&ZvThermoInt::MPT, 1001.0, 300.0);
  expectAnErrorAlone(&ZvThermoInt::MPT, 101.0, 900.0);
}

TEST_F(RangeLimits, AStrictWarningOfOneInputStandsBeforeTheErrorOfTheNext) {
  EXPECT_EQ(warningsOf(&ZvThermoInt::HPT, 3001.0, 1300.0),
            "HPT\n  warning: " + temperatureWarning +
                "\n  error: Pressure parameter out of range (Valid range 0.00 to 3000.00 MPa).\n");
}

TEST_F(RangeLimits, AnErrorMakesOneNodeAtAnyLevel) {
  for (const short level : {short{0}, short{1}, short{2}}) {
    engine.SetTraceLevel(level);
    engine.ClearTraceInfo();
    double value = untouched;
    engine.HPT(&value, 1.0, 100.0);
    EXPECT_EQ(traceOf(engine),
              "HPT\n  error: Temperature parameter out of range (Valid range 260.00 to 2500.00 "
              "K).\n");
  }
}

// The required text comes first; where it does not tell, a cause follows.
TEST_F(RangeLimits, ACauseFollowsWhereTheTextDoesNotTell) {
  double value = 0.0;
  const auto causeOf = [&](auto member, double first, double second) {
    engine.ClearTraceInfo();
    EXPECT_EQ((engine.*member)(&value, first, second), 0);
    return engine.diagnostics().cause();
  };
  EXPECT_EQ(causeOf(&ZvThermoInt::PTH, 265.0, 100.0),
            "Below the triple point, 273.16 K, liquid and vapour do not mix: these inputs are of "
            "neither.");
  EXPECT_EQ(engine.LastError(),
            "Temperature parameter out of range (Valid range 273.16 to 647.13 K).");
  EXPECT_EQ(causeOf(&ZvThermoInt::HPT, 5e-324, 300.0),
            "Pressure 4.94e-324 MPa is too close to zero to be computed with.");
  // The entropy of a gas has no upper end: 38.8 kJ/(kg.K) is answered at 300 K.
  EXPECT_TRUE(causeOf(&ZvThermoInt::PTS, 300.0, 200.0)
                  .starts_with("Entropy 200 kJ/(kg.K) at 300 K would take next to no pressure: "));
  EXPECT_EQ(engine.PTS(&value, 300.0, 38.8), 1);
  EXPECT_GT(value, 0.0);
}

}  // namespace
}  // namespace calvex::test
