#include "units/unit_catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>
#include <string>

#include "units/unit_data.h"

namespace calvex {
namespace {

constexpr int temperature = 0, pressure = 1, specificVolume = 3, entropy = 4, enthalpy = 5,
              internalEnergy = 6, specificHeat = 8, dynamicViscosity = 13, helmholtzEnergy = 23,
              gibbsEnergy = 24, temperatureDifference = 25, pressureDifference = 26;

constexpr double epsilon = std::numeric_limits<double>::epsilon();

const UnitGroupRow& row(int group) { return unitGroupTable()[static_cast<std::size_t>(group)]; }

double factor(int group, std::string_view unit) {
  double factor = 0, offset = 0;
  EXPECT_TRUE(ZvUomLite().getFactors(group, unit, factor, offset)) << group << ' ' << unit;
  return factor;
}

double offset(int group, std::string_view unit) {
  double factor = 0, offset = 0;
  EXPECT_TRUE(ZvUomLite().getFactors(group, unit, factor, offset)) << group << ' ' << unit;
  return offset;
}

double converted(int group, double value, std::string_view from, std::string_view to) {
  double result = std::nan("");
  EXPECT_TRUE(ZvUomLite().convert(group, from, to, value, result)) << from << " to " << to;
  return result;
}

TEST(UnitTables, EveryUnitHasItsTabulatedFactorAndOffsetInCatalogueOrder) {
  const auto expected = test::readCells("unit-tables.csv");
  ASSERT_EQ(expected.size(), 297U);
  auto line = expected.begin();
  for (int group = 0; group < unitGroupCount; ++group) {
    for (const ZvUomLiteKeyword& unit : row(group).units) {
      ASSERT_NE(line, expected.end());
      ASSERT_EQ(line->size(), 4U);
      EXPECT_EQ(group, std::stoi(line->at(0)));
      EXPECT_EQ(unit.name, line->at(1));
      EXPECT_EQ(unit.factor, std::stod(line->at(2))) << group << ' ' << unit.name;
      EXPECT_EQ(unit.offset, std::stod(line->at(3))) << group << ' ' << unit.name;
      ++line;
    }
  }
  EXPECT_EQ(line, expected.end());
}

TEST(UnitTables, EveryUnitIsFoundByItsName) {
  const ZvUomLite catalogue;
  for (const auto& line : test::readCells("unit-tables.csv")) {
    double factor = 0, offset = 1;
    ASSERT_TRUE(catalogue.getFactors(std::stoi(line[0]), line[1], factor, offset)) << line[1];
    EXPECT_EQ(factor, std::stod(line[2])) << line[1];
    EXPECT_EQ(offset, std::stod(line[3])) << line[1];
  }
}

TEST(UnitTables, EveryGroupHasItsNamesUnitsAndKeywords) {
  const auto expected = test::readCells("unit-groups.csv");
  ASSERT_EQ(expected.size(), 27U);
  const ZvUomLite catalogue;
  std::size_t keywords = 0;
  for (int group = 0; group < unitGroupCount; ++group) {
    const auto& line = expected[static_cast<std::size_t>(group)];
    ASSERT_EQ(line.size(), 5U);
    EXPECT_EQ(line[0], std::to_string(group));
    EXPECT_EQ(row(group).displayName, line[1]);
    EXPECT_EQ(row(group).internalUnit, line[2]);
    EXPECT_EQ(row(group).referenceUnit, line[3]);
    const auto names = test::split(line[4], ';');
    EXPECT_TRUE(std::ranges::equal(row(group).keywords, names)) << line[1];
    for (const std::string& name : names) EXPECT_EQ(catalogue.groupIndex(name), group) << name;
    keywords += names.size();
  }
  EXPECT_EQ(keywords, 116U);
}

TEST(UnitTables, NoKeywordSelectsTwoGroupsAndNoGroupHasAUnitTwice) {
  std::set<std::string_view> keywords;
  for (const UnitGroupRow& group : unitGroupTable()) {
    for (const auto keyword : group.keywords)
      EXPECT_TRUE(keywords.insert(keyword).second) << keyword;
    std::set<std::string_view> units;
    for (const auto& unit : group.units) EXPECT_TRUE(units.insert(unit.name).second) << unit.name;
  }
}

TEST(UnitTables, TheReferenceUnitHasFactorOneAndNoOffset) {
  for (int group = 0; group < unitGroupCount; ++group) {
    EXPECT_EQ(factor(group, row(group).referenceUnit), 1) << group;
    EXPECT_EQ(offset(group, row(group).referenceUnit), 0) << group;
  }
}

TEST(UnitTables, EverySuperscriptHasAPlainTwinBehindIt) {
  int twins = 0;
  for (const UnitGroupRow& group : unitGroupTable()) {
    for (std::size_t i = 0; i < group.units.size(); ++i) {
      std::string name(group.units[i].name);
      const std::string superscript = name.find("²") != std::string::npos ? "²" : "³";
      const auto at = name.find(superscript);
      if (at == std::string::npos) continue;
      name.replace(at, superscript.size(), superscript == "²" ? "^2" : "^3");
      ASSERT_LT(i + 1, group.units.size());
      EXPECT_EQ(group.units[i + 1].name, name);
      EXPECT_EQ(group.units[i + 1].factor, group.units[i].factor) << name;
      EXPECT_EQ(group.units[i + 1].offset, group.units[i].offset) << name;
      ++twins;
    }
  }
  EXPECT_EQ(twins, 26);
}

TEST(DeliberateDifferences, PressureAndPressureDifferenceDisagreeOnSomeFactors) {
  EXPECT_EQ(factor(pressure, "ft H2O"), 2989.07);
  EXPECT_EQ(factor(pressureDifference, "ft H2O"), 2988.98);
  EXPECT_EQ(factor(pressure, "in Hg"), 3386.39);
  EXPECT_EQ(factor(pressureDifference, "in Hg"), 3376.85);
  for (const char* psi : {"psia", "psig"}) {
    EXPECT_EQ(factor(pressure, psi), 6894.76751);
    EXPECT_EQ(factor(pressureDifference, psi), 6894.757);
  }
}

TEST(DeliberateDifferences, PressureDifferenceSpellsPoundsPerSquareFootItsOwnWay) {
  const ZvUomLite catalogue;
  const ZvUomLiteGroup& absolute = *catalogue.group(pressure);
  const ZvUomLiteGroup& difference = *catalogue.group(pressureDifference);
  for (const char* unit : {"lbf/ft²", "lbf/ft^2", "barg"}) {
    EXPECT_NE(absolute.find(unit), nullptr) << unit;
    EXPECT_EQ(difference.find(unit), nullptr) << unit;
  }
  for (const char* unit : {"lb/ft²", "lb/ft^2"}) {
    EXPECT_EQ(absolute.find(unit), nullptr) << unit;
    EXPECT_NE(difference.find(unit), nullptr) << unit;
  }
}

TEST(DeliberateDifferences, EnthalpyUsesTheInternationalTableCalorieTheOtherEnergiesDoNot) {
  EXPECT_EQ(factor(enthalpy, "Btu/lb"), 2.326);
  EXPECT_EQ(factor(enthalpy, "cal/g"), 4.1868);
  EXPECT_EQ(factor(enthalpy, "kcal/kg"), 4.1868);
  EXPECT_EQ(factor(enthalpy, "therm/ton"), 103.8397);
  EXPECT_EQ(factor(enthalpy, "therm/te"), 105.506);
  for (const int group : {internalEnergy, helmholtzEnergy, gibbsEnergy}) {
    EXPECT_EQ(factor(group, "Btu/lb"), 2.32444444);
    EXPECT_EQ(factor(group, "cal/g"), 4.184);
    EXPECT_EQ(factor(group, "kcal/kg"), 4.184);
    EXPECT_EQ(factor(group, "therm/ton"), 103.76984127);
    EXPECT_EQ(factor(group, "therm/te"), 105.506);
  }
}

TEST(DeliberateDifferences, EntropyAndHeatCapacityConvertBtuAndKcalDifferently) {
  for (const char* unit :
       {"Btu/(lb.F)", "Btu/(lb.R)", "cal/(g.C)", "cal/(g.K)", "kcal/(kg.C)", "kcal/(kg.K)"}) {
    EXPECT_EQ(factor(entropy, unit), 4.1868) << unit;
    EXPECT_EQ(factor(specificHeat, unit), 4.18690337) << unit;
  }
  EXPECT_EQ(row(specificHeat).units.front().name, "Btu/(lb.F)");
}

TEST(DeliberateDifferences, DegreeSignsNameTemperatureDifferencesOnly) {
  const ZvUomLite catalogue;
  EXPECT_EQ(row(temperature).units.size(), 4U);
  for (const char* letter : {"C", "F", "K", "R"}) {
    const std::string degrees = std::string("°") + letter;
    EXPECT_EQ(catalogue.group(temperature)->find(degrees), nullptr) << letter;
    EXPECT_NE(catalogue.group(temperatureDifference)->find(degrees), nullptr) << letter;
  }
}

TEST(DeliberateDifferences, FahrenheitAndRankineAreTheTabulatedLiterals) {
  EXPECT_EQ(factor(temperature, "F"), 0.55555555556);
  EXPECT_NE(factor(temperature, "F"), 5.0 / 9.0);
  EXPECT_EQ(offset(temperature, "R"), -491.669999996);
}

TEST(DeliberateDifferences, HeatDutyAndPowerHoldTheSameUnitsAndSoDoTheFractions) {
  const auto same = [](int a, int b) {
    return std::ranges::equal(
        row(a).units, row(b).units, [](const ZvUomLiteKeyword& x, const ZvUomLiteKeyword& y) {
          return x.name == y.name && x.factor == y.factor && x.offset == y.offset;
        });
  };
  EXPECT_TRUE(same(10, 22));
  EXPECT_EQ(row(10).units.size(), 24U);
  EXPECT_TRUE(same(11, 12));
  EXPECT_EQ(row(11).units.size(), 2U);
  EXPECT_FALSE(same(enthalpy, internalEnergy));
}

TEST(DeliberateDifferences, CubicFootPerPoundAndDyneSecondDoNotFollowFromTheirDefinitions) {
  const double foot = 0.3048, pound = 0.45359237;  // international foot and pound of 1959, exact
  const double cubicFootPerPound = foot * foot * foot / pound;
  EXPECT_EQ(factor(specificVolume, "ft³/lb"), 6.2e-05);
  EXPECT_EQ(factor(specificVolume, "ft^3/lb"), 6.2e-05);
  EXPECT_NEAR(factor(specificVolume, "ft^3/lb"), cubicFootPerPound / 1000, 1e-6);
  EXPECT_NEAR(factor(specificVolume, "ft^3/oz"), cubicFootPerPound * 16, 1e-6);
  EXPECT_NEAR(factor(specificVolume, "in^3/lb"), cubicFootPerPound / 1728, 1e-11);
  EXPECT_EQ(factor(dynamicViscosity, "dyne.s/cm²"), 98.03921);
  EXPECT_EQ(factor(dynamicViscosity, "Poise"), 0.1);
}

TEST(Conversion, OfTemperaturesGoesThroughCelsius) {
  EXPECT_NEAR(converted(temperature, 212, "F", "C"), 100, 1e-8);
  EXPECT_EQ(converted(temperature, 273.15, "K", "C"), 0);
  EXPECT_EQ(converted(temperature, 0, "C", "K"), 273.15);
  EXPECT_NEAR(converted(temperature, 491.67, "R", "K"), 273.15, 1e-8);
}

TEST(Conversion, AddsTheOffsetBeforeTheFactorAndRoundsNothing) {
  EXPECT_EQ(converted(temperature, 451, "F", "C"), (451.0 - 32) * 0.55555555556);
  EXPECT_EQ(converted(temperature, 451, "F", "K"), (451.0 - 32) * 0.55555555556 + 273.15);
  EXPECT_EQ(converted(temperature, 100, "C", "F"), 100 / 0.55555555556 + 32);
  EXPECT_EQ(converted(pressure, 3, "barg", "psig"), 4.01325 * 100000 / 6894.76751 - 14.695927);
}

TEST(Conversion, OfGaugePressureAddsOneAtmosphere) {
  EXPECT_DOUBLE_EQ(converted(pressure, 0, "barg", "bara"), 1.01325);
  EXPECT_DOUBLE_EQ(converted(pressure, 0, "psig", "psia"), 14.695927);
  EXPECT_DOUBLE_EQ(converted(pressure, 0, "barg", "Pa"), 101325);
}

TEST(Conversion, OfPressureAndTemperatureDifferencesHasNoOffset) {
  EXPECT_EQ(converted(pressureDifference, 1, "psig", "psia"), 1);
  EXPECT_EQ(converted(temperatureDifference, 10, "K", "C"), 10);
  for (const int group : {temperatureDifference, pressureDifference})
    for (const ZvUomLiteKeyword& unit : row(group).units) EXPECT_EQ(unit.offset, 0) << unit.name;
}

TEST(Conversion, DoesNotDependOnTheAtmosphericPressureOfTheDialog) {
  ZvUomLite catalogue;
  EXPECT_EQ(catalogue.atmosphericPressure, 1.01325);
  catalogue.atmosphericPressure = 0.9;
  double result = 0;
  ASSERT_TRUE(catalogue.convert(pressure, "barg", "Pa", 0, result));
  EXPECT_DOUBLE_EQ(result, 101325);
}

TEST(Conversion, ThereAndBackReturnsTheValueForAllPairsOfUnits) {
  for (const UnitGroupRow& group : unitGroupTable()) {
    for (const ZvUomLiteKeyword& from : group.units) {
      for (const ZvUomLiteKeyword& to : group.units) {
        for (const double value : {-40.0, 0.0, 1e-3, 1.0, 647.126, 1e6}) {
          const double back = convert(to, from, convert(from, to, value));
          // Each step rounds relatively to the largest number in it, the offsets included.
          const double scale = std::abs(value) + std::abs(from.offset) +
                               std::abs(to.offset) * to.factor / from.factor;
          EXPECT_NEAR(back, value, 6 * epsilon * scale)
              << group.displayName << ": " << value << ' ' << from.name << " by way of " << to.name;
        }
      }
    }
  }
}

TEST(Conversion, OfAUnitToItselfReturnsTheValueButForRounding) {
  const double value = 300.125;
  for (const UnitGroupRow& group : unitGroupTable())
    for (const ZvUomLiteKeyword& unit : group.units)
      EXPECT_NEAR(convert(unit, unit, value), value, 3 * epsilon * (value + std::abs(unit.offset)))
          << group.displayName << ' ' << unit.name;
}

TEST(Catalogue, MatchesUnitNamesByteForByte) {
  const ZvUomLite catalogue;
  const ZvUomLiteGroup& group = *catalogue.group(pressure);
  EXPECT_NE(group.find("N/m²"), nullptr);
  EXPECT_NE(group.find("N/m^2"), nullptr);
  for (const char* unit : {"n/m²", "n/m^2", "N/m\xB2", "PA", "mpa", "MPa ", " MPa", "bar", ""})
    EXPECT_EQ(group.find(unit), nullptr) << unit;
  EXPECT_EQ(group.find(std::string_view("MPa\0", 4)), nullptr);
}

TEST(Catalogue, MatchesKeywordsInTwoSpellingsOnly) {
  const ZvUomLite catalogue;
  EXPECT_EQ(catalogue.groupIndex("Flow Rate"), 9);
  EXPECT_EQ(catalogue.groupIndex("flow rate"), 9);
  for (const char* keyword : {"FLOW RATE", "Flow rate", "Flow Rate ", "TEMPERATURE", "temp", "",
                              "Joule-Thomson Coefficient", "Coefficient of Thermal Expansion"})
    EXPECT_EQ(catalogue.groupIndex(keyword), -1) << keyword;
}

TEST(Catalogue, ReadsSingleLettersAsPropertyFunctionsDo) {
  const ZvUomLite catalogue;
  EXPECT_EQ(catalogue.groupIndex("C"), specificHeat);
  EXPECT_EQ(catalogue.groupIndex("D"), specificHeat);
  EXPECT_EQ(catalogue.groupIndex("K"), 14);
  EXPECT_NE(catalogue.group(temperature)->find("K"), nullptr);
  EXPECT_NE(catalogue.group(temperatureDifference)->find("K"), nullptr);
}

TEST(Catalogue, StartsWithEveryUserUnitEqualToTheInternalUnit) {
  const ZvUomLite catalogue;
  for (int group = 0; group < unitGroupCount; ++group) {
    std::string unit;
    ASSERT_TRUE(catalogue.getUserUnit(group, unit));
    EXPECT_EQ(unit, row(group).internalUnit);
  }
}

TEST(Catalogue, KeepsTheUserUnitWhenGivenAnUnknownOne) {
  ZvUomLite catalogue;
  std::string unit;
  EXPECT_TRUE(catalogue.setUserUnit(temperature, "F"));
  EXPECT_FALSE(catalogue.setUserUnit(temperature, "f"));
  EXPECT_FALSE(catalogue.setUserUnit(temperature, "MPa"));
  ASSERT_TRUE(catalogue.getUserUnit(temperature, unit));
  EXPECT_EQ(unit, "F");
  ASSERT_TRUE(catalogue.getUserUnit(temperatureDifference, unit));
  EXPECT_EQ(unit, "K");
}

TEST(Catalogue, SharesNoChoiceWithAnotherCatalogue) {
  ZvUomLite first;
  const ZvUomLite second;
  ASSERT_TRUE(first.setUserUnit(pressure, "psia"));
  EXPECT_EQ(second.group(pressure)->currentUnit().name, "MPa");
}

TEST(Catalogue, AnswersFalseAndTouchesNothingForAGroupOutsideItsRange) {
  ZvUomLite catalogue;
  using Limits = std::numeric_limits<int>;
  for (const int group : {-1, 27, Limits::min(), Limits::max()}) {
    std::string unit = "kept";
    double first = 1.5, second = 2.5;
    EXPECT_EQ(catalogue.group(group), nullptr) << group;
    EXPECT_FALSE(catalogue.setUserUnit(group, "K")) << group;
    EXPECT_FALSE(catalogue.getUserUnit(group, unit)) << group;
    EXPECT_FALSE(catalogue.getFactors(group, "K", first, second)) << group;
    EXPECT_FALSE(catalogue.convert(group, "K", "K", 1, first)) << group;
    EXPECT_EQ(unit, "kept");
    EXPECT_EQ(first, 1.5);
    EXPECT_EQ(second, 2.5);
  }
}

TEST(Catalogue, AnswersFalseAndTouchesNothingForAnUnknownUnit) {
  const ZvUomLite catalogue;
  double first = 1.5, second = 2.5;
  EXPECT_FALSE(catalogue.getFactors(temperature, "MPa", first, second));
  EXPECT_FALSE(catalogue.convert(temperature, "K", "MPa", 1, first));
  EXPECT_FALSE(catalogue.convert(temperature, "MPa", "K", 1, first));
  EXPECT_EQ(first, 1.5);
  EXPECT_EQ(second, 2.5);
}

}  // namespace
}  // namespace calvex
