#include "ui/unit_selection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace calvex {
namespace {

constexpr int temperature = 0, pressure = 1;

UnitSelection::Choices unchanged(const UnitSelection& selection) {
  UnitSelection::Choices choices{};
  std::ranges::transform(UnitSelection::lists(), choices.begin(),
                         [&](const auto& list) { return selection.chosen(list); });
  return choices;
}

std::size_t placeOf(int group) {
  const auto lists = UnitSelection::lists();
  const auto found = std::ranges::find(lists, UnitGroup(group), &UnitSelection::List::group);
  return static_cast<std::size_t>(found - lists.begin());
}

int entry(int group, std::string_view unit) {
  const auto entries = UnitSelection::entries(UnitSelection::lists()[placeOf(group)]);
  const auto found = std::ranges::find(entries, unit, &ZvUomLiteKeyword::name);
  EXPECT_NE(found, entries.end()) << unit;
  return static_cast<int>(found - entries.begin());
}

std::string userUnit(const UserUnits& units, int group) {
  std::string unit;
  EXPECT_TRUE(units.catalogue().getUserUnit(group, unit));
  return unit;
}

std::vector<std::string> userUnits(const UserUnits& units) {
  std::vector<std::string> names;
  for (int group = 0; group < unitGroupCount; ++group) names.push_back(userUnit(units, group));
  return names;
}

TEST(UnitSelection, EveryListEditsItsGroupInTheOrderOfFilling) {
  const std::vector<std::pair<int, int>> expected = {
      {1000, 0},  {1001, 1},  {1003, 4},  {1004, 7},  {1005, 8},  {1006, 14}, {1007, 3},
      {1008, 2},  {1009, 21}, {1010, 13}, {1011, 19}, {1012, 20}, {1013, 6},  {1014, 15},
      {1015, 16}, {1016, 18}, {1017, 17}, {1002, 5},  {1018, 23}, {1019, 24}};
  std::vector<std::pair<int, int>> lists;
  for (const auto& [control, group] : UnitSelection::lists()) {
    lists.emplace_back(control, static_cast<int>(group));
  }
  EXPECT_EQ(lists, expected);
}

TEST(UnitSelection, SevenGroupsHaveNoList) {
  std::set<int> missing;
  for (int group = 0; group < unitGroupCount; ++group) {
    if (placeOf(group) == UnitSelection::listCount) missing.insert(group);
  }
  EXPECT_EQ(missing, (std::set{9, 10, 11, 12, 22, 25, 26}));
}

TEST(UnitSelection, AListHoldsTheUnitsOfItsGroupInCatalogueOrder) {
  std::vector<std::string> names;
  for (const auto& unit : UnitSelection::entries(UnitSelection::lists()[0])) {
    names.emplace_back(unit.name);
  }
  EXPECT_EQ(names, (std::vector<std::string>{"C", "F", "K", "R"}));
}

TEST(UnitSelection, TheCurrentUnitIsChosenAtOpening) {
  UserUnits units;
  ASSERT_TRUE(units.setCatalogueUnit(pressure, "psia"));
  const UnitSelection selection(units);
  for (const UnitSelection::List& list : UnitSelection::lists()) {
    const auto index = static_cast<std::size_t>(selection.chosen(list));
    ASSERT_LT(index, UnitSelection::entries(list).size());
    EXPECT_EQ(UnitSelection::entries(list)[index].name,
              userUnit(units, static_cast<int>(list.group)));
  }
}

TEST(UnitSelection, AcceptingWithoutAChangeLeavesEveryUnit) {
  UserUnits units;
  ASSERT_TRUE(units.setCatalogueUnit(pressure, "psia"));
  const auto before = userUnits(units);
  UnitSelection selection(units);
  EXPECT_TRUE(selection.accept(unchanged(selection), selection.atmosphericPressure()));
  EXPECT_EQ(userUnits(units), before);
}

TEST(UnitSelection, AChoiceBecomesTheCurrentUnitAndNothingElseChanges) {
  UserUnits units;
  auto expected = userUnits(units);
  expected[temperature] = std::string("F");
  UnitSelection selection(units);
  auto choices = unchanged(selection);
  choices[placeOf(temperature)] = entry(temperature, "F");
  EXPECT_TRUE(selection.accept(choices, "1.01325"));
  EXPECT_EQ(userUnits(units), expected);
}

TEST(UnitSelection, AListWithoutAChoiceKeepsItsUnit) {
  UserUnits units;
  const auto before = userUnits(units);
  UnitSelection selection(units);
  UnitSelection::Choices choices;
  choices.fill(-1);
  EXPECT_TRUE(selection.accept(choices, "1.01325"));
  EXPECT_EQ(userUnits(units), before);
}

TEST(UnitSelection, AnotherAtmosphericPressureLeavesTheGaugeUnits) {
  UserUnits units;
  ASSERT_TRUE(units.setCatalogueUnit(pressure, "barg"));
  UnitSelection selection(units);
  EXPECT_EQ(selection.atmosphericPressure(), "1.01325");
  EXPECT_TRUE(selection.accept(unchanged(selection), "0.9"));
  EXPECT_NEAR(units.toInternal(UnitGroup::pressure, 0), 0.101325, 1e-15);
  EXPECT_EQ(selection.atmosphericPressure(), "1.01325");
}

TEST(UnitSelection, NoNumberKeepsTheDialogOpenWithTheChoicesApplied) {
  for (const char* text : {"", " ", "abc", "1.0 bar", "0,9", "1e", "+-1", "nan", "inf", "1e999"}) {
    UserUnits units;
    UnitSelection selection(units);
    auto choices = unchanged(selection);
    choices[placeOf(temperature)] = entry(temperature, "F");
    EXPECT_FALSE(selection.accept(choices, text)) << '"' << text << '"';
    EXPECT_EQ(userUnit(units, temperature), "F") << '"' << text << '"';
  }
}

TEST(UnitSelection, ANumberMayHaveASignAnExponentAndBlanksAround) {
  UserUnits units;
  UnitSelection selection(units);
  for (const char* text : {"1", "0.9", ".9", "-1", "+1.5", " 1.01325 ", "9E-1", "0"}) {
    EXPECT_TRUE(selection.accept(unchanged(selection), text)) << '"' << text << '"';
  }
}

}  // namespace
}  // namespace calvex
