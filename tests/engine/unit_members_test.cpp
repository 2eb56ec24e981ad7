// The members that choose, tell and convert units, in every units mode.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <memory>

#include "support/engine.h"

namespace calvex::test {
namespace {

class UnitMembers : public testing::Test {
 protected:
  ZvThermoInt engine;

  std::string unitOf(std::string_view group) {
    std::string unit = "untouched";
    EXPECT_EQ(engine.GetUserUnit(group, &unit), 1) << engine.LastError();
    return unit;
  }
};

TEST_F(UnitMembers, BeginWithTheInternalUnits) {
  EXPECT_EQ(unitOf("T"), "K");
  std::string unit;
  ASSERT_EQ(engine.GetUserUnitIndex(1, &unit), 1);
  EXPECT_EQ(unit, "MPa");
  ASSERT_EQ(engine.GetUserUnitIndex(26, &unit), 1);
  EXPECT_EQ(unit, "MPa");
}

TEST_F(UnitMembers, FahrenheitInputsReachTheModelAsKelvin) {
  const double h = valueOf(engine, &ZvThermoInt::HPT, 1.0, 373.15);
  ASSERT_EQ(engine.SetUserUnit("Temperature", "F"), 1);
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::HPT, 1.0, 212.0), h, 1e-6);
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::TPH, 1.0, h), 212.0, 1e-6);
}

TEST_F(UnitMembers, OutputsAreInTheUsersUnits) {
  const double h = valueOf(engine, &ZvThermoInt::HPT, 10.0, 773.15);
  const double w = valueOf(engine, &ZvThermoInt::WPT, 10.0, 773.15);
  ASSERT_EQ(engine.SetUserUnit("H", "J/kg"), 1);
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::HPT, 10.0, 773.15), 1000.0 * h, 1e-6);
  EXPECT_EQ(valueOf(engine, &ZvThermoInt::WPT, 10.0, 773.15), w);
}

TEST_F(UnitMembers, AnUnknownGroupIsNamedInTheError) {
  std::string unit = "untouched";
  double value = untouched;
  EXPECT_EQ(engine.SetUserUnit("temp", "K"), 0);
  EXPECT_EQ(engine.LastError(), "temp is not a defined unit group.");
  engine.ClearTraceInfo();
  EXPECT_EQ(engine.GetUserUnit("temp", &unit), 0);
  EXPECT_EQ(engine.LastError(), "temp is not a defined unit group.");
  engine.ClearTraceInfo();
  EXPECT_EQ(engine.Convert("temp", "K", "C", 1.0, &value), 0);
  EXPECT_EQ(engine.LastError(), "temp is not a defined unit group.");
  EXPECT_EQ(unit, "untouched");
  EXPECT_EQ(value, untouched);
}

TEST_F(UnitMembers, AnUnknownUnitIsNamedWithTheGroupAsTheCallerWroteIt) {
  EXPECT_EQ(engine.SetUserUnit("P", "bar"), 0);
  EXPECT_EQ(engine.LastError(), "bar is not a defined unit of P.");
  EXPECT_EQ(engine.SetUserUnit("pressure", "bar"), 0);
  EXPECT_EQ(engine.LastError(), "bar is not a defined unit of pressure.");
  EXPECT_EQ(engine.SetUserUnitIndex(1, "bar"), 0);
  EXPECT_EQ(engine.LastError(), "bar is not a defined unit of group no. 1.");
  EXPECT_EQ(unitOf("P"), "MPa");
}

TEST_F(UnitMembers, AnIndexOutsideTheGroupsIsIllegal) {
  const std::string error = "Illegal Units-Of-Measure group index.";
  std::string unit = "untouched";
  for (const short index : {short{27}, short{-1}, short{32767}}) {
    engine.ClearTraceInfo();
    EXPECT_EQ(engine.SetUserUnitIndex(index, "K"), 0);
    EXPECT_EQ(engine.LastError(), error);
    engine.ClearTraceInfo();
    EXPECT_EQ(engine.GetUserUnitIndex(index, &unit), 0);
    EXPECT_EQ(engine.LastError(), error);
  }
  EXPECT_EQ(unit, "untouched");
}

TEST_F(UnitMembers, AreTracedUnderTheirNames) {
  std::string unit;
  double value = untouched;
  engine.SetUserUnit("x y", "K");
  engine.GetUserUnit("x y", &unit);
  engine.SetUserUnitIndex(27, "K");
  engine.GetUserUnitIndex(27, &unit);
  engine.Convert("x y", "a", "b", 1.0, &value);
  EXPECT_EQ(traceOf(engine),
            "SetUserUnit\n  error: x y is not a defined unit group.\n"
            "GetUserUnit\n  error: x y is not a defined unit group.\n"
            "SetUserUnitIndex\n  error: Illegal Units-Of-Measure group index.\n"
            "GetUserUnitIndex\n  error: Illegal Units-Of-Measure group index.\n"
            "Convert\n  error: x y is not a defined unit group.\n");
}

TEST_F(UnitMembers, ConvertNeedsNoUserUnit) {
  double value = untouched;
  ASSERT_EQ(engine.Convert("P", "psig", "bara", 0.0, &value), 1);
  EXPECT_NEAR(value, 1.01325, 1e-7);
  ASSERT_EQ(engine.Convert("T", "F", "C", 212.0, &value), 1);
  EXPECT_NEAR(value, 100.0, 1e-8);
}

TEST_F(UnitMembers, ConvertNamesTheGroupAndBothUnitsWhenItCannot) {
  double value = untouched;
  EXPECT_EQ(engine.Convert("P", "bar", "psia", 1.0, &value), 0);
  EXPECT_EQ(engine.LastError(), "Cannot convert P from bar to psia.");
  EXPECT_EQ(engine.Convert("p", "psia", "bar", 1.0, &value), 0);
  EXPECT_EQ(engine.LastError(), "Cannot convert p from psia to bar.");
  EXPECT_EQ(value, untouched);
}

TEST_F(UnitMembers, ConvertTellsWhenThereIsNoNumberToAnswer) {
  double value = untouched;
  EXPECT_EQ(engine.Convert("P", "bara", "Pa", 1e308, &value), 0);
  EXPECT_EQ(engine.LastError(),
            "Cannot convert 1e+308 bara to Pa: the result is no finite number.");
  EXPECT_EQ(engine.Convert("T", "K", "C", std::nan(""), &value), 0);
  EXPECT_EQ(engine.LastError(), "Cannot convert nan K to C: the result is no finite number.");
  EXPECT_EQ(value, untouched);
}

TEST_F(UnitMembers, PercentSignsInTextsAreNotFormats) {
  EXPECT_EQ(engine.SetUserUnit("%s%n", "K"), 0);
  EXPECT_EQ(engine.LastError(), "%s%n is not a defined unit group.");
  EXPECT_EQ(engine.SetUserUnit("P", "%d%s"), 0);
  EXPECT_EQ(engine.LastError(), "%d%s is not a defined unit of P.");
}

TEST_F(UnitMembers, EmptyAndLongTextsAreRefused) {
  const std::string longText(100000, 'x');
  EXPECT_EQ(engine.SetUserUnit("", ""), 0);
  EXPECT_EQ(engine.LastError(), " is not a defined unit group.");
  EXPECT_EQ(engine.SetUserUnit(longText, longText), 0);
  EXPECT_EQ(engine.LastError(), longText + " is not a defined unit group.");
}

TEST_F(UnitMembers, SuperscriptUnitsAreUtf8) {
  EXPECT_EQ(engine.SetUserUnit("P", "N/m²"), 1);
  EXPECT_EQ(unitOf("P"), "N/m²");
  EXPECT_EQ(engine.SetUserUnit("P", "N/m\xB2"), 0);
}

// Custom units
// ------------------------------------------------------------------------------------------

TEST_F(UnitMembers, CustomUnitsFailSilentlyOutsideModeThree) {
  EXPECT_EQ(engine.SetCustomUserUnitIndex(0, "any", 2.0, 0.0), 0);
  EXPECT_EQ(engine.LastError(), "");
  EXPECT_EQ(traceOf(engine), "");
  engine.SetAppLevel(0);
  EXPECT_EQ(engine.SetCustomUserUnitIndex(0, "any", 2.0, 0.0), 0);
  EXPECT_EQ(engine.LastError(), "");
}

TEST_F(UnitMembers, CustomUnitsFailSilentlyForAnUnknownGroup) {
  engine.SetAppLevel(3);
  EXPECT_EQ(engine.SetCustomUserUnitIndex(27, "any", 2.0, 0.0), 0);
  EXPECT_EQ(engine.SetCustomUserUnitIndex(-1, "any", 2.0, 0.0), 0);
  EXPECT_EQ(engine.LastError(), "");
  EXPECT_EQ(traceOf(engine), "");
}

TEST_F(UnitMembers, CustomUnitsBeginAsTheInternalUnits) {
  const double h = valueOf(engine, &ZvThermoInt::HPT, 10.0, 773.15);
  engine.SetUserUnit("T", "C");
  engine.SetAppLevel(3);
  EXPECT_EQ(unitOf("T"), "K");
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::HPT, 10.0, 773.15), h, 1e-9 * h);
}

TEST_F(UnitMembers, CustomFactorsAndOffsetsReferToTheCataloguesReference) {
  const double h = valueOf(engine, &ZvThermoInt::HPT, 10.0, 773.15);
  engine.SetAppLevel(3);
  // Reference units: degrees Celsius and pascal.
  ASSERT_EQ(engine.SetCustomUserUnitIndex(0, "half degrees", 0.5, 10.0), 1);
  ASSERT_EQ(engine.SetCustomUserUnitIndex(1, "bar", 1e5, 0.0), 1);
  ASSERT_EQ(engine.SetCustomUserUnitIndex(5, "MJ/kg", 1000.0, 0.0), 1);
  // (990 + 10) * 0.5 = 500 degrees Celsius
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::HPT, 100.0, 990.0), h / 1000.0, 1e-9);
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::TPH, 100.0, h / 1000.0), 990.0, 1e-5);
  EXPECT_EQ(unitOf("T"), "half degrees");
  std::string unit;
  ASSERT_EQ(engine.GetUserUnitIndex(1, &unit), 1);
  EXPECT_EQ(unit, "bar");
}

TEST_F(UnitMembers, CustomUnitsAreNamedInRangeErrors) {
  engine.SetAppLevel(3);
  ASSERT_EQ(engine.SetCustomUserUnitIndex(0, "my degrees", 1.0, 0.0), 1);
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::HPT, 1.0, -20.0),
            "Temperature parameter out of range (Valid range -13.15 to 2226.85 my degrees).");
}

TEST_F(UnitMembers, SetUserUnitInModeThreeChangesTheCatalogueOnly) {
  const double h = valueOf(engine, &ZvThermoInt::HPT, 10.0, 773.15);
  engine.SetAppLevel(3);
  EXPECT_EQ(engine.SetUserUnit("T", "C"), 1);
  EXPECT_EQ(engine.SetUserUnitIndex(1, "bara"), 1);
  EXPECT_EQ(unitOf("T"), "K");
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::HPT, 10.0, 773.15), h, 1e-9 * h);
  engine.SetAppLevel(2);
  EXPECT_EQ(unitOf("T"), "C");
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::HPT, 100.0, 500.0), h, 1e-9 * h);
}

TEST_F(UnitMembers, ConvertIgnoresModeThree) {
  engine.SetAppLevel(3);
  engine.SetCustomUserUnitIndex(1, "mine", 7.0, 7.0);
  double value = untouched;
  ASSERT_EQ(engine.Convert("P", "psig", "bara", 0.0, &value), 1);
  EXPECT_NEAR(value, 1.01325, 1e-7);
  EXPECT_EQ(engine.Convert("P", "mine", "bara", 0.0, &value), 0);
  EXPECT_EQ(engine.LastError(), "Cannot convert P from mine to bara.");
}

TEST_F(UnitMembers, SenselessCustomFactorsNeverGiveAnAnswerThatIsNoNumber) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double inf = std::numeric_limits<double>::infinity();
  engine.SetAppLevel(3);
  for (const double factor : {0.0, nan, inf, -1.0, 5e-324, 1e308}) {
    for (const short group : {short{0}, short{1}, short{5}}) {
      for (short i : {short{0}, short{1}, short{5}}) {
        engine.SetCustomUserUnitIndex(i, "plain", i == 1 ? 1e6 : 1.0, i == 0 ? -273.15 : 0.0);
      }
      engine.SetCustomUserUnitIndex(group, "senseless", factor, 0.0);
      for (const PairOperation member : {&ZvThermoInt::HPT, &ZvThermoInt::TPH}) {
        double value = untouched;
        engine.ClearTraceInfo();
        if ((engine.*member)(&value, 10.0, 773.15) == 1) {
          EXPECT_TRUE(std::isfinite(value)) << factor << " in group " << group;
        } else {
          EXPECT_EQ(value, untouched) << factor << " in group " << group;
          EXPECT_NE(engine.LastError(), "") << factor << " in group " << group;
        }
      }
    }
  }
}

TEST_F(UnitMembers, ModeZeroConvertsLikeModeTwo) {
  engine.SetUserUnit("T", "C");
  const double h = valueOf(engine, &ZvThermoInt::HPT, 10.0, 500.0);
  ASSERT_EQ(engine.SetAppLevel(0), 1);
  EXPECT_EQ(unitOf("T"), "C");
  EXPECT_EQ(valueOf(engine, &ZvThermoInt::HPT, 10.0, 500.0), h);
}

// The external units server
// -----------------------------------------------------------------------------

// A server that knows temperature in degrees Celsius and leaves everything else alone.
struct ServerLog {
  std::vector<std::string> declared;
  int connections = 0;
  int releases = 0;
  std::map<std::string, std::string> units;
  double refusedValue = std::numeric_limits<double>::quiet_NaN();
};

class FakeServer : public UnitsServer {
 public:
  explicit FakeServer(ServerLog& log) : log_(log) { ++log_.connections; }
  ~FakeServer() override { ++log_.releases; }
  bool declareGroup(std::string_view group, std::string_view internalUnit) override {
    log_.declared.push_back(std::string(group) + " in " + std::string(internalUnit));
    return true;
  }
  bool setUserUnit(std::string_view group, std::string_view unit, short& status) override {
    status = 41;
    if (unit == "refused") return false;
    log_.units[std::string(group)] = unit;
    return true;
  }
  bool getUserUnit(std::string_view group, std::string& unit, short& status) override {
    status = 42;
    if (group == "Quality") return false;
    unit = "server " + std::string(group);
    return true;
  }
  bool convert(std::string_view /*group*/, std::string_view from, std::string_view /*to*/,
               double value, double& result, short& status) override {
    status = 43;
    if (from == "refused") return false;
    result = 10.0 * value;
    return true;
  }
  bool toUser(std::string_view group, double value, double& result, short& status) override {
    result = group == "Temperature" ? value - 273.15 : value;
    status = 45;
    return value != log_.refusedValue;
  }
  bool toInternal(std::string_view group, double value, double& result, short& status) override {
    result = group == "Temperature" ? value + 273.15 : value;
    status = 44;
    return value != log_.refusedValue;
  }
  bool showDialog() override { return true; }
  std::string errorText(short status) override { return "server status " + std::to_string(status); }

 private:
  ServerLog& log_;
};

class UnitsServerMode : public testing::Test {
 protected:
  ServerLog log;
  ZvThermoInt engine{[this] { return std::make_unique<FakeServer>(log); }};
};

TEST_F(UnitsServerMode, EnteringDeclaresAllGroupsInOrder) {
  ASSERT_EQ(engine.SetAppLevel(1), 1);
  EXPECT_EQ(engine.AppLevel(), 1);
  ASSERT_EQ(log.declared.size(), 27U);
  EXPECT_EQ(log.declared[0], "Temperature in K");
  EXPECT_EQ(log.declared[3], "Mass Specific Volume in m^3/kg");
  EXPECT_EQ(log.declared[17], "Isothermal Joule-Thomson Coefficient in kJ/(kg.MPa)");
  EXPECT_EQ(log.declared[26], "Pressure Difference in MPa");
}

TEST_F(UnitsServerMode, ConversionsGoThroughTheServer) {
  const double h = valueOf(engine, &ZvThermoInt::HPT, 10.0, 773.15);
  ASSERT_EQ(engine.SetAppLevel(1), 1);
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::HPT, 10.0, 500.0), h, 1e-9 * h);
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::TPH, 10.0, h), 500.0, 1e-6);
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::HPT, 1.0, -20.0),
            "Temperature parameter out of range (Valid range -13.15 to 2226.85 server "
            "Temperature).");
}

TEST_F(UnitsServerMode, ACallFailsWithTheServersTextWhenItRefusesToConvert) {
  ASSERT_EQ(engine.SetAppLevel(1), 1);
  log.refusedValue = 10.0;
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::HPT, 10.0, 500.0), "server status 44");
  log.refusedValue = engine.CritT() + 273.15;
  EXPECT_TRUE(std::isnan(engine.CritT()));
  EXPECT_FALSE(std::isnan(engine.CritP()));
}

TEST_F(UnitsServerMode, UnitMembersAskTheServerAndReportItsErrors) {
  ASSERT_EQ(engine.SetAppLevel(1), 1);
  EXPECT_EQ(engine.SetUserUnit("P", "bars"), 1);
  EXPECT_EQ(engine.SetUserUnitIndex(0, "degrees"), 1);
  EXPECT_EQ(log.units["Pressure"], "bars");
  EXPECT_EQ(log.units["Temperature"], "degrees");
  EXPECT_EQ(engine.SetUserUnit("P", "refused"), 0);
  EXPECT_EQ(engine.LastError(), "server status 41");
  engine.ClearTraceInfo();
  EXPECT_EQ(engine.SetUserUnitIndex(1, "refused"), 0);
  EXPECT_EQ(engine.LastError(), "server status 41");
  std::string unit = "untouched";
  EXPECT_EQ(engine.GetUserUnit("Q", &unit), 0);
  EXPECT_EQ(engine.LastError(), "server status 42");
  EXPECT_EQ(unit, "untouched");
  EXPECT_EQ(engine.GetUserUnit("P", &unit), 1);
  EXPECT_EQ(unit, "server Pressure");
  double value = untouched;
  EXPECT_EQ(engine.Convert("P", "refused", "any", 2.0, &value), 0);
  EXPECT_EQ(engine.LastError(), "server status 43");
  EXPECT_EQ(value, untouched);
  EXPECT_EQ(engine.Convert("P", "any", "other", 2.0, &value), 1);
  EXPECT_EQ(value, 20.0);
}

TEST_F(UnitsServerMode, LeavingReleasesTheServer) {
  ASSERT_EQ(engine.SetAppLevel(1), 1);
  ASSERT_EQ(engine.SetAppLevel(1), 1);
  EXPECT_EQ(log.connections, 1);
  ASSERT_EQ(engine.SetAppLevel(2), 1);
  EXPECT_EQ(log.releases, 1);
  ASSERT_EQ(engine.SetAppLevel(1), 1);
  EXPECT_EQ(log.connections, 2);
}

TEST_F(UnitsServerMode, TheResetReleasesTheServer) {
  engine.AddObject();
  ASSERT_EQ(engine.SetAppLevel(1), 1);
  engine.ReleaseObject();
  EXPECT_EQ(engine.AppLevel(), 2);
  EXPECT_EQ(log.releases, 1);
}

TEST_F(UnitsServerMode, TheUnitDialogIsTheServersAndAnswersOne) {
  ASSERT_EQ(engine.SetAppLevel(1), 1);
  EXPECT_EQ(engine.ShowSelectUomDlg(), 1);
}

TEST_F(UnitsServerMode, TheCatalogueKeepsItsUnits) {
  engine.SetUserUnit("T", "F");
  ASSERT_EQ(engine.SetAppLevel(1), 1);
  engine.SetUserUnit("T", "anything");
  ASSERT_EQ(engine.SetAppLevel(2), 1);
  std::string unit;
  ASSERT_EQ(engine.GetUserUnit("T", &unit), 1);
  EXPECT_EQ(unit, "F");
}

}  // namespace
}  // namespace calvex::test
