#include "units/user_units.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace calvex {
namespace {

/// How a fake server shall answer and what it was asked; outlives the server.
struct ServerScript {
  bool takesGroups = true;
  bool answers = true;
  int alive = 0;
  std::vector<std::pair<std::string, std::string>> declared;
  std::string lastGroup;
};

/// Doubles on the way in, halves on the way out; on refusal spoils the outputs and gives status 7.
class FakeServer : public UnitsServer {
 public:
  explicit FakeServer(ServerScript& script) : script_(script) { ++script_.alive; }
  FakeServer(const FakeServer&) = delete;
  FakeServer& operator=(const FakeServer&) = delete;
  ~FakeServer() override { --script_.alive; }

  bool declareGroup(std::string_view group, std::string_view internalUnit) override {
    script_.declared.emplace_back(group, internalUnit);
    return script_.takesGroups;
  }
  bool setUserUnit(std::string_view, std::string_view, short& status) override {
    return answer(status);
  }
  bool getUserUnit(std::string_view group, std::string& unit, short& status) override {
    script_.lastGroup = group;
    unit = "server's unit";
    return answer(status);
  }
  bool convert(std::string_view, std::string_view, std::string_view, double, double&,
               short& status) override {
    return answer(status);
  }
  bool toUser(std::string_view group, double value, double& result, short& status) override {
    script_.lastGroup = group;
    result = script_.answers ? value / 2 : -1;
    return answer(status);
  }
  bool toInternal(std::string_view group, double value, double& result, short& status) override {
    script_.lastGroup = group;
    result = script_.answers ? value * 2 : -1;
    return answer(status);
  }
  bool showDialog() override { return script_.answers; }
  std::string errorText(short) override { return "refused"; }

 private:
  bool answer(short& status) const {
    status = script_.answers ? 0 : 7;
    return script_.answers;
  }
  ServerScript& script_;
};

UnitsServerFactory serverOf(ServerScript& script) {
  return [&script] { return std::make_unique<FakeServer>(script); };
}

std::string userUnit(const UserUnits& units, int group) {
  std::string unit;
  short status = 0;
  EXPECT_TRUE(units.getUserUnit(group, unit, status)) << group;
  return unit;
}

std::string_view internalUnit(int group) {
  return unitGroupTable()[static_cast<std::size_t>(group)].internalUnit;
}

// Values that a conversion to another unit and back would not all reproduce.
constexpr double awkward[] = {0.1,  1.0 / 3, 647.126, 1e-7,
                              -0.1, 1e300,   -273.15, std::numeric_limits<double>::denorm_min()};

TEST(UserUnits, StartInCatalogueModeWithTheInternalUnits) {
  const UserUnits units;
  EXPECT_EQ(units.mode(), UnitsMode::catalogue);
  EXPECT_EQ(units.server(), nullptr);
  EXPECT_EQ(userUnit(units, 0), "K");
  EXPECT_EQ(userUnit(units, 1), "MPa");
}

TEST(UserUnits, ConvertExactlyTheIdentityWhileTheUserUnitIsTheInternalUnit) {
  UserUnits units;
  for (const short mode : {short{0}, short{2}}) {
    ASSERT_TRUE(units.setMode(mode));
    for (int group = 0; group < unitGroupCount; ++group) {
      for (const double value : awkward) {
        EXPECT_EQ(units.toInternal(UnitGroup(group), value), value) << group;
        EXPECT_EQ(units.toUser(UnitGroup(group), value), value) << group;
      }
    }
  }
}

TEST(UserUnits, ConvertExactlyTheIdentityAgainOnceTheInternalUnitIsChosenAgain) {
  UserUnits units;
  ASSERT_TRUE(units.setCatalogueUnit(0, "F"));
  ASSERT_TRUE(units.setCatalogueUnit(0, "K"));
  for (const double value : awkward)
    EXPECT_EQ(units.toInternal(UnitGroup::temperature, value), value);
}

TEST(UserUnits, BringFahrenheitToKelvinAndBack) {
  UserUnits units;
  ASSERT_TRUE(units.setCatalogueUnit(0, "F"));
  EXPECT_EQ(userUnit(units, 0), "F");
  EXPECT_NEAR(units.toInternal(UnitGroup::temperature, 212), 373.15, 1e-8);
  EXPECT_NEAR(units.toUser(UnitGroup::temperature, 373.15), 212, 1e-8);
  EXPECT_EQ(units.toInternal(UnitGroup::temperatureDifference, 212), 212);
}

TEST(UserUnits, ConvertAsTheCatalogueDoesForEveryUnit) {
  UserUnits units;
  const ZvUomLite& catalogue = units.catalogue();
  const double value = 12.375;
  for (int group = 0; group < unitGroupCount; ++group) {
    const std::string_view internal = internalUnit(group);
    for (const ZvUomLiteKeyword& unit : catalogue.group(group)->row().units) {
      if (unit.name == internal) continue;
      double in = 0, out = 0;
      ASSERT_TRUE(units.setCatalogueUnit(group, unit.name));
      ASSERT_TRUE(catalogue.convert(group, unit.name, internal, value, in));
      ASSERT_TRUE(catalogue.convert(group, internal, unit.name, value, out));
      EXPECT_EQ(units.toInternal(UnitGroup(group), value), in) << unit.name;
      EXPECT_EQ(units.toUser(UnitGroup(group), value), out) << unit.name;
    }
  }
}

TEST(UserUnits, PassNotANumberAndInfinityOn) {
  UserUnits units;
  ASSERT_TRUE(units.setCatalogueUnit(1, "psig"));
  EXPECT_TRUE(std::isnan(units.toInternal(UnitGroup::pressure, std::nan(""))));
  EXPECT_EQ(units.toUser(UnitGroup::pressure, HUGE_VAL), HUGE_VAL);
}

TEST(UserUnits, RefuseUnknownGroupsAndUnits) {
  UserUnits units;
  EXPECT_FALSE(units.setCatalogueUnit(1, "bar"));
  EXPECT_FALSE(units.setCatalogueUnit(-1, "K"));
  EXPECT_FALSE(units.setCatalogueUnit(27, "K"));
  EXPECT_EQ(userUnit(units, 1), "MPa");
  for (const short mode : {short{2}, short{3}}) {
    ASSERT_TRUE(units.setMode(mode));
    std::string unit = "kept";
    short status = 5;
    EXPECT_FALSE(units.getUserUnit(-1, unit, status));
    EXPECT_FALSE(units.getUserUnit(27, unit, status));
    EXPECT_EQ(unit, "kept");
    EXPECT_EQ(status, 5);
  }
}

TEST(UnitsMode, TakesZeroToThreeOnly) {
  UserUnits units;
  for (const short mode : {short{-1}, short{4}, short{-32768}, short{32767}}) {
    EXPECT_FALSE(units.setMode(mode)) << mode;
    EXPECT_EQ(units.mode(), UnitsMode::catalogue);
  }
  EXPECT_TRUE(units.setMode(2));
  EXPECT_TRUE(units.setMode(0));
  EXPECT_EQ(units.mode(), UnitsMode::builtIn);
  EXPECT_TRUE(units.setMode(3));
  EXPECT_EQ(units.mode(), UnitsMode::custom);
}

TEST(UnitsMode, ZeroUsesTheCatalogueAsTwoDoes) {
  UserUnits units;
  ASSERT_TRUE(units.setCatalogueUnit(1, "kPa"));
  ASSERT_TRUE(units.setMode(0));
  EXPECT_EQ(userUnit(units, 1), "kPa");
  EXPECT_DOUBLE_EQ(units.toInternal(UnitGroup::pressure, 2500), 2.5);
}

TEST(ServerMode, FailsAndKeepsTheModeWhenThereIsNoServer) {
  UserUnits none;
  UserUnits null([] { return std::unique_ptr<UnitsServer>(); });
  for (UserUnits* units : {&none, &null}) {
    ASSERT_TRUE(units->setMode(3));
    EXPECT_FALSE(units->setMode(1));
    EXPECT_EQ(units->mode(), UnitsMode::custom);
    EXPECT_EQ(units->server(), nullptr);
  }
}

TEST(ServerMode, DeclaresEveryGroupInOrderWithItsInternalUnit) {
  ServerScript script;
  UserUnits units(serverOf(script));
  ASSERT_TRUE(units.setMode(1));
  EXPECT_NE(units.server(), nullptr);
  ASSERT_EQ(script.declared.size(), 27U);
  for (std::size_t group = 0; group < 27; ++group) {
    EXPECT_EQ(script.declared[group].first, unitGroupTable()[group].displayName);
    EXPECT_EQ(script.declared[group].second, unitGroupTable()[group].internalUnit);
  }
}

TEST(ServerMode, StandsEvenWhenTheServerTakesNoGroup) {
  ServerScript script;
  script.takesGroups = false;
  UserUnits units(serverOf(script));
  EXPECT_TRUE(units.setMode(1));
  EXPECT_EQ(script.declared.size(), 27U);
}

TEST(ServerMode, KeepsItsConnectionWhenPutAgainAndWhenAnInvalidModeIsPut) {
  ServerScript script;
  UserUnits units(serverOf(script));
  ASSERT_TRUE(units.setMode(1));
  const UnitsServer* server = units.server();
  EXPECT_TRUE(units.setMode(1));
  EXPECT_FALSE(units.setMode(4));
  EXPECT_EQ(units.mode(), UnitsMode::server);
  EXPECT_EQ(units.server(), server);
  EXPECT_EQ(script.alive, 1);
  EXPECT_EQ(script.declared.size(), 27U);
}

TEST(ServerMode, ReleasesTheServerOnLeavingOnResetAndOnDestruction) {
  ServerScript script;
  {
    UserUnits units(serverOf(script));
    ASSERT_TRUE(units.setMode(1));
    ASSERT_EQ(script.alive, 1);
    ASSERT_TRUE(units.setMode(2));
    EXPECT_EQ(script.alive, 0);
    EXPECT_EQ(units.server(), nullptr);
    ASSERT_TRUE(units.setMode(1));
    units.reset();
    EXPECT_EQ(script.alive, 0);
    EXPECT_EQ(units.mode(), UnitsMode::catalogue);
    ASSERT_TRUE(units.setMode(1));
    EXPECT_EQ(script.alive, 1);
  }
  EXPECT_EQ(script.alive, 0);
}

TEST(ServerMode, ConvertsThroughTheServerUnderTheDisplayName) {
  ServerScript script;
  UserUnits units(serverOf(script));
  ASSERT_TRUE(units.setCatalogueUnit(5, "Btu/lb"));
  ASSERT_TRUE(units.setMode(1));
  EXPECT_EQ(units.toInternal(UnitGroup::enthalpy, 21), 42);
  EXPECT_EQ(script.lastGroup, "Mass Specific Enthalpy");
  EXPECT_EQ(units.toUser(UnitGroup::pressureDifference, 21), 10.5);
  EXPECT_EQ(script.lastGroup, "Pressure Difference");
  EXPECT_EQ(userUnit(units, 18), "server's unit");
  EXPECT_EQ(script.lastGroup, "Joule-Thomson Coefficient");
}

TEST(ServerMode, ThrowsTheServersTextWhenItRefusesToConvert) {
  ServerScript script;
  UserUnits units(serverOf(script));
  ASSERT_TRUE(units.setMode(1));
  script.answers = false;
  for (const auto convert : {&UserUnits::toInternal, &UserUnits::toUser}) {
    try {
      ADD_FAILURE() << "answered " << (units.*convert)(UnitGroup::pressure, 21);
    } catch (const std::runtime_error& refusal) {
      EXPECT_STREQ(refusal.what(), "refused");
    }
  }
}

TEST(ServerMode, GivesTheStatusAndNoUnitWhenTheServerRefuses) {
  ServerScript script;
  UserUnits units(serverOf(script));
  ASSERT_TRUE(units.setMode(1));
  script.answers = false;
  std::string unit = "kept";
  short status = 0;
  EXPECT_FALSE(units.getUserUnit(1, unit, status));
  EXPECT_EQ(status, 7);
  EXPECT_EQ(unit, "kept");
}

TEST(CustomMode, StartsWithTheInternalUnits) {
  UserUnits units;
  ASSERT_TRUE(units.setCatalogueUnit(0, "F"));
  ASSERT_TRUE(units.setMode(3));
  for (int group = 0; group < unitGroupCount; ++group) {
    EXPECT_EQ(userUnit(units, group), internalUnit(group));
    EXPECT_DOUBLE_EQ(units.toInternal(UnitGroup(group), 373.15), 373.15) << group;
    EXPECT_DOUBLE_EQ(units.toUser(UnitGroup(group), 373.15), 373.15) << group;
  }
}

TEST(CustomMode, FormsTheRatioOfTheFactorsBeforeItMultiplies) {
  UserUnits units;
  ASSERT_TRUE(units.setMode(3));
  ASSERT_TRUE(units.setCustomUnit(1, "psig", 6894.76751, 14.695927));
  EXPECT_EQ(userUnit(units, 1), "psig");
  int differsFromTheOtherOrder = 0;
  for (const double value : awkward) {
    const double in = (6894.76751 / 1000000) * (value + 14.695927);
    EXPECT_EQ(units.toInternal(UnitGroup::pressure, value), in);
    EXPECT_EQ(units.toUser(UnitGroup::pressure, value), (1000000 / 6894.76751) * value - 14.695927);
    differsFromTheOtherOrder += in != (value + 14.695927) * 6894.76751 / 1000000;
  }
  EXPECT_GT(differsFromTheOtherOrder, 0);
}

TEST(CustomMode, TakesFactorAndOffsetInTheCataloguesReferenceUnit) {
  UserUnits units;
  ASSERT_TRUE(units.setMode(3));
  // Reaumur: 0 at the ice point (0 C), 80 at the boiling point (100 C).
  ASSERT_TRUE(units.setCustomUnit(0, "Re", 1.25, 0));
  EXPECT_NEAR(units.toInternal(UnitGroup::temperature, 80), 373.15, 1e-12);
  EXPECT_NEAR(units.toUser(UnitGroup::temperature, 373.15), 80, 1e-12);
}

TEST(CustomMode, IgnoresTheCataloguesUnitWhichCanStillBeChosen) {
  UserUnits units;
  ASSERT_TRUE(units.setMode(3));
  ASSERT_TRUE(units.setCatalogueUnit(1, "kPa"));
  EXPECT_EQ(userUnit(units, 1), "MPa");
  EXPECT_EQ(units.toInternal(UnitGroup::pressure, 2500), 2500);
  ASSERT_TRUE(units.setMode(2));
  EXPECT_EQ(userUnit(units, 1), "kPa");
  EXPECT_DOUBLE_EQ(units.toInternal(UnitGroup::pressure, 2500), 2.5);
}

TEST(CustomMode, LeavesConversionBetweenNamedUnitsAlone) {
  UserUnits units;
  for (const short mode : {short{0}, short{2}, short{3}}) {
    ASSERT_TRUE(units.setMode(mode));
    double result = 0;
    ASSERT_TRUE(units.catalogue().convert(1, "psig", "bara", 0, result));
    EXPECT_NEAR(result, 1.01325, 5e-6);
  }
}

TEST(CustomMode, AloneTakesCustomUnits) {
  ServerScript script;
  UserUnits units(serverOf(script));
  for (const short mode : {short{0}, short{1}, short{2}}) {
    ASSERT_TRUE(units.setMode(mode));
    EXPECT_FALSE(units.setCustomUnit(0, "half", 2, 0)) << mode;
  }
  ASSERT_TRUE(units.setMode(3));
  EXPECT_FALSE(units.setCustomUnit(-1, "half", 2, 0));
  EXPECT_FALSE(units.setCustomUnit(27, "half", 2, 0));
  EXPECT_EQ(userUnit(units, 0), "K");
  EXPECT_TRUE(units.setCustomUnit(0, "half", 2, 0));
  EXPECT_EQ(userUnit(units, 0), "half");
}

TEST(CustomMode, KeepsItsUnitsWhileAnotherModeIsOn) {
  UserUnits units;
  ASSERT_TRUE(units.setMode(3));
  ASSERT_TRUE(units.setCustomUnit(9, "sack/s", 50, 0));
  ASSERT_TRUE(units.setMode(2));
  EXPECT_EQ(userUnit(units, 9), "kg/s");
  ASSERT_TRUE(units.setMode(3));
  EXPECT_EQ(userUnit(units, 9), "sack/s");
  EXPECT_EQ(units.toInternal(UnitGroup::massFlow, 2), 100);
}

TEST(Reset, KeepsTheUnitsThatTheClientChose) {
  UserUnits units;
  ASSERT_TRUE(units.setCatalogueUnit(0, "F"));
  ASSERT_TRUE(units.setMode(3));
  ASSERT_TRUE(units.setCustomUnit(0, "half", 2, 0));
  units.reset();
  EXPECT_EQ(units.mode(), UnitsMode::catalogue);
  EXPECT_EQ(userUnit(units, 0), "F");
  ASSERT_TRUE(units.setMode(3));
  EXPECT_EQ(userUnit(units, 0), "half");
}

}  // namespace
}  // namespace calvex
