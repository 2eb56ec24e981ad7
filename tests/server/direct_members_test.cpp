// The direct road as the members' clients meet it: their units, their reasons.
#include "server/direct_members.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

#include "steam/constants.h"
#include "support/failures.h"

namespace calvex::test {
namespace {

using direct::Letter;
using direct::Pair;

DirectReason reasonOf(const ZvThermoInt& engine, Pair pair, double first, double second,
                      std::initializer_list<Letter> letters) {
  return directReason(pair, first, second, letters, directUnits(engine.units()).value(), engine);
}

short statusOf(const ZvThermoInt& engine, Pair pair, double first, double second, Letter letter) {
  const direct::Units units = directUnits(engine.units()).value();
  double value = 0.0;
  short status = 0;
  const direct::Result results[] = {{letter, {&value}}};
  direct::Request request{pair, {&first}, {&second}, results};
  request.status = {&status};
  request.units = &units;
  direct::evaluate(request, 0, 1);
  return status;
}

// In Celsius and bar: of states, of none, and numbers that are no inputs.
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double inputs[] = {-300.0, -5e-324, 0.0,    0.0005, 0.01,     1.0,
                             100.0,  1e3,     2600.0, 4e4,    infinity, std::nan("")};

TEST(DirectMembers, AReasonIsTheMembersOwnWithItsCause) {
  ZvThermoInt asked;
  ASSERT_EQ(asked.SetUserUnit("T", "C"), 1);
  ASSERT_EQ(asked.SetUserUnit("P", "bara"), 1);
  ZvThermoInt exact;
  exact.TakeSettings(asked);
  exact.SetSatPolish(2);
  Grid grid("reasons");
  int causes = 0;
  for (const Member& member : memberTable()) {
    const auto row = directMember(member);
    if (!row || row->ofLiquid) continue;
    for (const double first : inputs) {
      for (const double second : inputs) {
        const std::string at = fmt::format("{} {:.17g} {:.17g}", member.name, first, second);
        exact.ClearTraceInfo();
        std::array<Value, 3> arguments{Value{}, first, second};
        const bool success = member.invoke(exact, arguments) != 0;
        const DirectReason reason = reasonOf(asked, row->pair, first, second, {row->result});
        grid.holds(reason.text == (success ? std::string() : exact.LastError()),
                   at + ": " + reason.text + " instead of " + exact.LastError());
        grid.holds(reason.cause == (success ? std::string() : exact.diagnostics().cause()),
                   at + ": " + reason.cause + " instead of " + exact.diagnostics().cause());
        if (!reason.cause.empty()) ++causes;
      }
    }
  }
  EXPECT_GT(causes, 1000);
  EXPECT_EQ(asked.LastError(), "");  // nothing is left in the client's record
}

TEST(DirectMembers, WhatNoMemberAnswersIsRefusedInTheWordsOfThoseThatRefuseTheSame) {
  ZvThermoInt engine;
  const auto is = [&](const DirectReason& reason, std::string_view text, std::string_view cause) {
    EXPECT_EQ(reason.text, text);
    EXPECT_EQ(reason.cause, cause);
  };
  is(reasonOf(engine, Pair::HS, -1.0, 1.0, {Letter::T}), "Enthalpy parameter out of range.",
     "Enthalpy -1 kJ/kg is below 0 kJ/kg, the least that is accepted.");
  is(reasonOf(engine, Pair::HS, 100.0, -2.0, {Letter::P}), "Entropy parameter out of range.",
     "Entropy -2 kJ/(kg.K) is below 0 kJ/(kg.K), the least that is accepted.");
  is(reasonOf(engine, Pair::HS, 100.0, 12.0, {Letter::P}), "Solution Error.",
     "No state within the range is found that has both this enthalpy and this entropy.");
  // 4300 kJ/kg at 1 MPa is steam of more than 1073 K, beyond the viscosity's range.
  is(reasonOf(engine, Pair::PH, 1.0, 4300.0, {Letter::T, Letter::M}),
     "Temperature parameter out of range (Valid range 273.15 to 1073.15 K).", "");
  const DirectReason wet = reasonOf(engine, Pair::PH, 1.0, 2000.0, {Letter::H, Letter::M});
  EXPECT_EQ(wet.text, "Two phase conditions - Underspecified problem.");
  EXPECT_NE(wet.cause.find("They are those of wet steam"), std::string::npos) << wet.cause;
  is(reasonOf(engine, Pair::PH, 1.0, -1.0, {}), "Enthalpy parameter out of range.",
     "Enthalpy -1 kJ/kg is below 0 kJ/kg, the least that is accepted.");
  is(reasonOf(engine, Pair::PT, 1.0, 600.0, {Letter::H, Letter::M}), "", "");
}

TEST(DirectMembers, ABoundIsABoundInEveryUnit) {
  using namespace constants;
  struct Row {
    Pair pair;
    Letter letter;
    double first, second;
  };
  // Each at one of its bounds, in model units.
  const Row rows[] = {{Pair::TQ, Letter::P, triplePointTemperature, 0.0},
                      {Pair::TQ, Letter::H, criticalTemperature, 1.0},
                      {Pair::PQ, Letter::T, triplePointPressure, 0.0},
                      {Pair::PQ, Letter::H, criticalPressure, 1.0},
                      {Pair::PT, Letter::H, 10.0, lowestTemperature},
                      {Pair::PT, Letter::H, 10.0, highestTemperature},
                      {Pair::PT, Letter::H, highestPressure, 1000.0},
                      {Pair::PH, Letter::T, highestPressure, 4000.0},
                      {Pair::TR, Letter::P, highestTemperature, 1.0},
                      {Pair::TH, Letter::P, triplePointTemperature, 1000.0},
                      {Pair::PT, Letter::M, 10.0, celsiusZero},
                      {Pair::PT, Letter::K, 10.0, 1073.15},
                      {Pair::PT, Letter::M, 100.0, 1000.0},
                      {Pair::PT, Letter::M, 350.0, 800.0},
                      {Pair::PT, Letter::M, 1000.0, 300.0},
                      {Pair::PT, Letter::E, 500.0, 300.0},
                      {Pair::PT, Letter::E, 10.0, 823.15}};
  Grid grid("bounds");
  int moved = 0;
  for (const UnitGroup group : {UnitGroup::temperature, UnitGroup::pressure, UnitGroup::quality}) {
    for (const ZvUomLiteKeyword& unit : unitGroupTable()[static_cast<std::size_t>(group)].units) {
      ZvThermoInt engine;
      ASSERT_EQ(engine.SetUserUnitIndex(static_cast<short>(group), unit.name), 1) << unit.name;
      const auto inClientsUnits = [&](Letter letter, double x) {
        const UnitGroup of = quantity(static_cast<Quantity::Letter>(letter)).group;
        const double shown = std::stod(fmt::format("{:.13g}", engine.units().toUser(of, x)));
        if (engine.units().toInternal(of, shown) != x) ++moved;
        return shown;
      };
      for (const Row& row : rows) {
        const double first = inClientsUnits(firstOf(row.pair), row.first);
        const double second = inClientsUnits(secondOf(row.pair), row.second);
        grid.holds(statusOf(engine, row.pair, first, second, row.letter) == 0,
                   fmt::format("{} {:.17g} {:.17g} of pair {}", unit.name, first, second,
                               static_cast<int>(row.pair)));
      }
    }
  }
  EXPECT_GT(moved, 10);  // units that do not give the bound back
}

}  // namespace
}  // namespace calvex::test
