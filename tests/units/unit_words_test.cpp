#include "units/unit_words.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "units/unit_data.h"

namespace calvex {
namespace {

using Group = UnitGroup;

std::string unitOf(Group group, std::string_view word) {
  const UnitWord found = findUnitWord(group, word);
  return found.unit == nullptr ? "none" : std::string(found.unit->name);
}

struct Word {
  Group group;
  const char* word;
  const char* unit;
};

// One line for each word that people use; what it must mean is common knowledge.
constexpr Word words[] = {
    {Group::temperature, "c", "C"},
    {Group::temperature, "\u00B0C", "C"},
    {Group::temperature, "\u00BAC", "C"},
    {Group::temperature, "\u2103", "C"},
    {Group::temperature, "degC", "C"},
    {Group::temperature, "deg C", "C"},
    {Group::temperature, "DEGC", "C"},
    {Group::temperature, "Celsius", "C"},
    {Group::temperature, "\u00B0F", "F"},
    {Group::temperature, "\u2109", "F"},
    {Group::temperature, "degF", "F"},
    {Group::temperature, "f", "F"},
    {Group::temperature, "Fahrenheit", "F"},
    {Group::temperature, "k", "K"},
    {Group::temperature, "Kelvin", "K"},
    {Group::temperature, "degK", "K"},
    {Group::temperature, "degR", "R"},
    {Group::temperature, "Rankine", "R"},
    {Group::temperatureDifference, "degC", "C"},
    {Group::temperatureDifference, "\u00B0F", "°F"},
    {Group::pressure, "bar", "bara"},
    {Group::pressure, "BAR", "bara"},
    {Group::pressure, "bar a", "bara"},
    {Group::pressure, "bar(a)", "bara"},
    {Group::pressure, "bar(g)", "barg"},
    {Group::pressure, "Barg", "barg"},
    {Group::pressure, "psi", "psia"},
    {Group::pressure, "PSIA", "psia"},
    {Group::pressure, "psi a", "psia"},
    {Group::pressure, "psi(g)", "psig"},
    {Group::pressure, "lbf/in\u00B2", "psia"},
    {Group::pressure, "lb/in2", "psia"},
    {Group::pressure, "lb/ft2", "lbf/ft²"},
    {Group::pressure, "ata", "kgf/cm²"},
    {Group::pressure, "at", "kgf/cm²"},
    {Group::pressure, "kgf/cm2", "kgf/cm²"},
    {Group::pressure, "kg/cm2", "kgf/cm²"},
    {Group::pressure, "kp/cm2", "kgf/cm²"},
    {Group::pressure, "mmHg", "mm Hg"},
    {Group::pressure, "MMHG", "mm Hg"},
    {Group::pressure, "inHg", "in Hg"},
    {Group::pressure, "inH2O", "in H2O"},
    {Group::pressure, "inWC", "in H2O"},
    {Group::pressureDifference, "inwg", "in H2O"},
    {Group::pressure, "kPag", "kPag"},
    {Group::pressure, "kPa(g)", "kPag"},
    {Group::pressure, "mbar g", "mbarg"},
    {Group::pressure, "MPag", "MPag"},
    {Group::pressure, "kgf/cm2g", "kgf/cm2g"},
    {Group::pressure, "kg/cm\u00B2(g)", "kgf/cm2g"},
    {Group::pressure, "atg", "kgf/cm2g"},
    {Group::pressure, "ftwc", "ft H2O"},
    {Group::pressure, "mpa", "MPa"},
    {Group::pressure, "Mpa", "MPa"},
    {Group::pressure, "MPA", "MPa"},
    {Group::pressure, "MPa(a)", "MPa"},
    {Group::pressure, "KPA", "kPa"},
    {Group::pressure, "kPa(a)", "kPa"},
    {Group::pressure, "N/m2", "N/m²"},
    {Group::pressure, "torr", "Torr"},
    {Group::pressureDifference, "bar", "bara"},
    {Group::pressureDifference, "psi", "psia"},
    {Group::density, "kg/m3", "kg/m³"},
    {Group::density, "lbm/ft3", "lb/ft³"},
    {Group::density, "t/m3", "te/m³"},
    {Group::density, "kg/litre", "kg/l"},
    {Group::density, "kg/liter", "kg/l"},
    {Group::specificVolume, "m3/kg", "m³/kg"},
    {Group::specificVolume, "M3/KG", "m³/kg"},
    {Group::specificVolume, "ft3/lb", "ft³/lb"},
    {Group::specificVolume, "ft3/lbm", "ft3/lbm"},
    {Group::specificVolume, "ft\u00B3/lbm", "ft3/lbm"},
    {Group::specificVolume, "cu ft/lb", "cu ft/lb"},
    {Group::specificVolume, "CUFT/LB", "cu ft/lb"},
    {Group::entropy, "kJ/kgK", "kJ/(kg.K)"},
    {Group::entropy, "kJ/kg K", "kJ/(kg.K)"},
    {Group::entropy, "kJ/kg/K", "kJ/(kg.K)"},
    {Group::entropy, "kJ/(kg\u00B7K)", "kJ/(kg.K)"},
    {Group::entropy, "kJ/kg-K", "kJ/(kg.K)"},
    {Group::entropy, "kJ/(kg degC)", "kJ/(kg.C)"},
    {Group::entropy, "BTU/(lbm.\u00B0R)", "Btu/(lb.R)"},
    {Group::enthalpy, "BTU/lb", "Btu/lb"},
    {Group::enthalpy, "btu/lbm", "Btu/lb"},
    {Group::enthalpy, "btu/lbs", "Btu/lb"},
    {Group::enthalpy, "KJ/KG", "kJ/kg"},
    {Group::enthalpy, "therm/tonne", "therm/te"},
    {Group::quality, "percent", "%"},
    {Group::quality, "pct", "%"},
    {Group::quality, "fraction", "Fraction"},
    {Group::massFlow, "t/h", "te/h"},
    {Group::massFlow, "T/H", "te/h"},
    {Group::massFlow, "tonne/hour", "te/h"},
    {Group::massFlow, "t/day", "te/d"},
    {Group::massFlow, "ton/h", "ton/h"},
    {Group::massFlow, "kg/sec", "kg/s"},
    {Group::massFlow, "kg/second", "kg/s"},
    {Group::massFlow, "kg/minute", "kg/min"},
    {Group::massFlow, "KG/HR", "kg/h"},
    {Group::massFlow, "lbm/hr", "lb/h"},
    {Group::massFlow, "pph", "lb/h"},
    {Group::massFlow, "l/h", "kg/h"},
    {Group::massFlow, "l/min", "kg/min"},
    {Group::massFlow, "litre/s", "kg/s"},
    {Group::heatDuty, "mw", "MW"},
    {Group::heatDuty, "mmbtu/hr", "MMBtu/h"},
    {Group::power, "HP", "hp"},
    {Group::dynamicViscosity, "mpa.s", "mPa.s"},
    {Group::dynamicViscosity, "centipoise", "cP"},
    {Group::dynamicViscosity, "dyne.s/cm2", "dyne.s/cm²"},
    {Group::dynamicViscosity, "dyn.s/cm2", "dyn.s/cm2"},
    {Group::dynamicViscosity, "dyn s/cm\u00B2", "dyn.s/cm2"},
    {Group::thermalConductivity, "W/(m.K)", "W/(K.m)"},
    {Group::thermalConductivity, "W/mK", "W/(K.m)"},
    {Group::thermalConductivity, "W/m/degC", "W/(C.m)"},
    {Group::thermalConductivity, "mW/(m.K)", "mW/(K.m)"},
    {Group::thermalConductivity, "kW/mK", "kW/(K.m)"},
    {Group::thermalConductivity, "BTU/(hr.ft.F)", "Btu/(F.ft.h)"},
    {Group::thermalConductivity, "kcal/(m.h.\u00B0C)", "kcal/(C.m.h)"},
    {Group::surfaceTension, "dyn/cm", "dyne/cm"},
    {Group::velocity, "m/sec", "m/s"},
    {Group::velocity, "mph", "mile/h"},
    {Group::velocity, "kn", "knot"},
    {Group::velocity, "kt", "knot"},
    {Group::velocity, "fps", "ft/s"},
    {Group::velocity, "fpm", "ft/min"},
    {Group::jouleThomson, "\u00B0F/psi", "F/psi"},
    {Group::jouleThomson, "K/bar", "K/bar"},
    {Group::jouleThomson, "K/bara", "K/bar"},
    {Group::compressibility, "1/PSI", "1/psi"},
    {Group::thermalExpansion, "1/degC", "1/C"},
    {Group::molecularWeight, "kg/kmol", "kg/kg-mol"},
    {Group::molecularWeight, "g/mol", "g/g-mol"},
    {Group::molecularWeight, "lb/lbmol", "lb/lb-mol"},
};

TEST(UnitWords, EachWordNamesItsUnit) {
  for (const Word& word : words) {
    EXPECT_EQ(unitOf(word.group, word.word), word.unit) << word.word;
  }
}

TEST(UnitWords, EveryNameOfTheCatalogueNamesItselfInAnyCase) {
  for (const auto& line : test::readCells("unit-tables.csv")) {
    const Group group{static_cast<short>(std::stoi(line[0]))};
    const std::string& name = line[1];
    std::string small;
    EXPECT_EQ(unitOf(group, name), name);
    std::ranges::transform(name, std::back_inserter(small), [](char c) {
      return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    const UnitWord found = findUnitWord(group, small);
    ASSERT_NE(found.unit, nullptr) << small;
    EXPECT_EQ(found.unit->factor, std::stod(line[2])) << small;
    EXPECT_EQ(found.unit->offset, std::stod(line[3])) << small;
  }
}

TEST(UnitWords, MilliAndMegaAreNotConfused) {
  for (const auto& [group, word, meant] :
       {Word{Group::pressure, "mPa", "MPa"}, Word{Group::power, "mW", "MW"},
        Word{Group::dynamicViscosity, "MPa.s", "mPa.s"},
        Word{Group::surfaceTension, "Mn/m", "mN/m"}, Word{Group::power, "mCal/h", "Mcal/h"},
        Word{Group::thermalConductivity, "MW/(K.m)", "mW/(K.m)"}}) {
    const UnitWord found = findUnitWord(group, word);
    EXPECT_EQ(found.unit, nullptr) << word;
    ASSERT_EQ(found.candidates.size(), 1U) << word;
    EXPECT_EQ(found.candidates.front()->name, meant);
  }
}

TEST(UnitWords, WhatIsNoUnitOfTheGroupIsNone) {
  for (const char* word : {"", " ", "/", "furlong", "bar;", "b ar\n", "kg", "C", "bars/", "\xFF"}) {
    const UnitWord found = findUnitWord(Group::pressure, word);
    EXPECT_EQ(found.unit, nullptr) << word;
    EXPECT_TRUE(found.candidates.empty()) << word;
  }
  EXPECT_EQ(unitOf(Group::temperature, "bar"), "none");
  EXPECT_EQ(unitOf(Group::pressure, std::string(100000, 'x')), "none");
}

// ft3/lbm: 1 ft = 0.3048 m, 1 lb = 0.45359237 kg; a dyne second a square centimetre is a poise.
TEST(UnitWords, PhysicalUnitsStandBesideTheTabulatedOnes) {
  for (const char* word : {"ft3/lbm", "cu ft/lb", "cu ft/lbm"}) {
    EXPECT_NEAR(findUnitWord(Group::specificVolume, word).unit->factor, 0.0624279605761446, 1e-16);
  }
  EXPECT_EQ(findUnitWord(Group::dynamicViscosity, "dyn.s/cm2").unit->factor, 0.1);
  EXPECT_EQ(findUnitWord(Group::pressure, "mbar").unit->factor, 100.0);
  EXPECT_EQ(findUnitWord(Group::pressure, "hpa").unit->factor, 100.0);
  // No gauge pressure is one standard atmosphere, 101325 Pa.
  for (const char* word : {"mbarg", "kPag", "MPag", "kgf/cm2g"}) {
    const ZvUomLiteKeyword& unit = *findUnitWord(Group::pressure, word).unit;
    EXPECT_NEAR(unit.factor * unit.offset, 101325.0, 1e-9) << word;
    EXPECT_EQ(findUnitWord(Group::pressureDifference, word).unit, nullptr) << word;
  }
  for (int group = 0; group < unitGroupCount; ++group) {
    for (const ZvUomLiteKeyword& unit : unitsBesideCatalogue(Group(group))) {
      EXPECT_FALSE(isInCatalogue(Group(group), unit));
      EXPECT_FALSE(ZvUomLite().setUserUnit(group, unit.name)) << unit.name;
    }
  }
}

TEST(UnitWords, AGaugePressureIsNoAbsoluteOne) {
  for (const char* word : {"inwg", "inH2Og", "in H2O (g)", "mmH2Og", "ftwg", "Torr g", "Pag"}) {
    const UnitWord found = findUnitWord(Group::pressure, word);
    EXPECT_EQ(found.unit, nullptr) << word;
    EXPECT_TRUE(found.candidates.empty()) << word;
    EXPECT_NE(found.refusal.find("gauge units are barg"), std::string_view::npos) << word;
  }
  for (const char* word : {"in Hg", "mmHg", "barg", "psig", "mug", "g"}) {
    EXPECT_EQ(findUnitWord(Group::pressure, word).refusal, "") << word;
  }
}

TEST(UnitWords, FactorsThatAreNotPhysicalComeWithANotice) {
  for (const char* word : {"ft\u00B3/lb", "ft^3/lb", "ft3/lb", "FT3/LB"}) {
    EXPECT_NE(findUnitWord(Group::specificVolume, word).notice.find("thousandth"),
              std::string_view::npos)
        << word;
  }
  for (const char* word : {"dyne.s/cm\u00B2", "dyne.s/cm^2", "dyne.s/cm2"}) {
    EXPECT_NE(findUnitWord(Group::dynamicViscosity, word).notice.find("980 times"),
              std::string_view::npos)
        << word;
  }
  EXPECT_NE(findUnitWord(Group::massFlow, "l/h").notice.find("litre"), std::string_view::npos);
  for (const char* word : {"ft3/lbm", "cu ft/lb", "m3/kg"}) {
    EXPECT_EQ(findUnitWord(Group::specificVolume, word).notice, "") << word;
  }
  // What the notices say of the factors.
  const double pound = 0.45359237, foot = 0.3048;
  EXPECT_NEAR(findUnitWord(Group::specificVolume, "ft3/lb").unit->factor * 1000.0,
              foot * foot * foot / pound, 5e-4);
  EXPECT_NEAR(findUnitWord(Group::dynamicViscosity, "dyne.s/cm2").unit->factor / 0.1, 980.0, 0.5);
}

TEST(UnitWords, TheTwoCaloriesAreExplainedWhereTheyAreUsed) {
  for (int group = 0; group < unitGroupCount; ++group) {
    const auto units = unitGroupTable()[static_cast<std::size_t>(group)].units;
    const bool has = std::ranges::any_of(units, [](const ZvUomLiteKeyword& unit) {
      return unit.name.find("cal") != std::string_view::npos ||
             unit.name.find("Btu") != std::string_view::npos;
    });
    const bool columns = Group(group) == Group::pressureDifference;
    EXPECT_EQ(!groupNotice(Group(group)).empty(), has || columns) << group;
  }
  for (const Group group : {Group::internalEnergy, Group::helmholtzEnergy, Group::gibbsEnergy}) {
    EXPECT_EQ(findUnitWord(group, "cal/g").unit->factor, 4.184);
    EXPECT_NE(groupNotice(group).find("4.184 J"), std::string_view::npos);
    EXPECT_NE(findUnitWord(group, "BTU/lb").notice.find("0.07 % smaller"), std::string_view::npos);
    EXPECT_EQ(findUnitWord(group, "kJ/kg").notice, "");
  }
  EXPECT_EQ(findUnitWord(Group::enthalpy, "cal/g").unit->factor, 4.1868);
  EXPECT_NE(groupNotice(Group::enthalpy).find("4.1868 J"), std::string_view::npos);
}

// What the notice of the differences says of both groups' factors.
TEST(UnitWords, ColumnsOfADifferenceAreNotQuiteThoseOfAPressure) {
  const std::string_view notice = groupNotice(Group::pressureDifference);
  const auto factor = [](Group group, const char* word) {
    return findUnitWord(group, word).unit->factor;
  };
  for (const auto& [word, here, there] : {std::tuple{"in Hg", "3376.85", "3386.39"},
                                          {"ft H2O", "2988.98", "2989.07"},
                                          {"psia", "6894.757", "6894.76751"}}) {
    EXPECT_EQ(factor(Group::pressureDifference, word), std::stod(here));
    EXPECT_EQ(factor(Group::pressure, word), std::stod(there));
    EXPECT_NE(notice.find(here), std::string_view::npos) << word;
    EXPECT_NE(notice.find(there), std::string_view::npos) << word;
  }
}

TEST(UnitWords, OtherWordsNameTheUnitsTheyStandBeside) {
  for (int group = 0; group < unitGroupCount; ++group) {
    for (const auto& [word, unit] : otherWords(Group(group))) {
      EXPECT_EQ(unitOf(Group(group), word), unit->name) << word;
    }
  }
  EXPECT_FALSE(otherWords(Group::pressure).empty());
}

TEST(GroupWords, AKeywordOrTheDisplayNameInAnyCase) {
  for (const auto& line : test::readCells("unit-groups.csv")) {
    EXPECT_EQ(findGroupWord(line[1]), Group(std::stoi(line[0]))) << line[1];
  }
  EXPECT_EQ(findGroupWord("joule-thomson coefficient"), Group::jouleThomson);
  EXPECT_EQ(findGroupWord("PRESSURE"), Group::pressure);
  EXPECT_EQ(findGroupWord("Heat duty"), Group::heatDuty);
  EXPECT_EQ(findGroupWord("t"), Group::temperature);
  EXPECT_EQ(findGroupWord("Dp"), Group::pressureDifference);
  EXPECT_EQ(findGroupWord("flow"), Group::massFlow);
  EXPECT_EQ(findGroupWord("viscosity"), Group::dynamicViscosity);
  for (const char* word : {"", "Presure", "Q2", "  ", "flows"}) {
    EXPECT_EQ(findGroupWord(word), std::nullopt) << word;
  }
}

}  // namespace
}  // namespace calvex
