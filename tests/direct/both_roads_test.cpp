// Two roads, one truth: what the members answer and refuse, the direct road answers and refuses,
// with every instruction set of the machine.
//
//   CALVEX_DIRECT_STATES=10000000 calvex_test_direct --gtest_filter='*BothRoads*'
//
// runs ten million states of each pair (some hours).
#include <array>

#include "direct/fifty_digits.h"
#include "direct/states.h"
#include "support/failures.h"

namespace calvex::test {
namespace {

using direct::Letter;
using direct::Pair;

/// Relative agreement of the two roads.
constexpr double agreement = 1e-10;

// Where a state hangs on the last digits of its inputs (next to the critical point, cold water of
// little pressure, the first bubble in a liquid) the roads differ by more. Then the judge with 50
// digits decides whether the direct road's state has the given properties and the property that is
// answered, each to rounding: to this part of the terms that it is the sum of.
constexpr double rounding = 3e-11;

bool meetsItsInputs(const PairMembers& row, double first, double second, Letter result,
                    double value) {
  double T = 0.0;
  double density = 0.0;
  double quality = 0.0;
  direct::Phase phase = direct::Phase::none;
  const direct::Result results[] = {
      {Letter::T, {&T}}, {Letter::R, {&density}}, {Letter::Q, {&quality}}};
  direct::Request request{row.pair, {&first}, {&second}, results};
  request.phase = {&phase};
  direct::evaluate(request, 0, 1);
  const bool two = phase == direct::Phase::twoPhase;
  Line line;
  double dense = density;
  if (two) {
    double saturated[2];
    const Letter letters[] = {Letter::R};
    for (int i = 0; i < 2; ++i) direct::evaluate(Pair::TQ, T, i, letters, &saturated[i]);
    line = lineAt(T, {saturated[0], saturated[1]});
    dense = saturated[0];
  }
  const struct {
    Letter letter;
    double value;
  } all[] = {
      {direct::firstOf(row.pair), first}, {direct::secondOf(row.pair), second}, {result, value}};
  for (const auto& [letter, given] : all) {
    if (letter == Letter::Q) continue;
    const auto exact = static_cast<double>(two ? mixture(letter, T, quality, line)
                                               : exactly(propertyOf(letter), T, density));
    const bool ofLine = two && letter == Letter::P;
    const double terms = ofLine ? given : termsOf(letter, given, T, dense);
    // The density of a mixture hangs on its quality, whose terms are the enthalpies' digits.
    const double allowed =
        two && (letter == Letter::R || letter == Letter::V)
            ? rounding * std::abs(given) * (1.0 + given / static_cast<double>(line.vapour))
            : rounding * terms;
    if (!(std::abs(given - exact) <= allowed)) return false;
  }
  return true;
}

class BothRoads : public testing::TestWithParam<PairMembers> {};

TEST_P(BothRoads, AgreeOnRandomStatesAndNonsense) {
  const PairMembers& row = GetParam();
  const std::size_t all = stateCount("CALVEX_DIRECT_STATES", 4000);
  constexpr std::size_t portion = 1000;
  ZvThermoInt engine;
  prepare(engine);
  RandomInputs inputs(row.pair, 11);
  Grid grid(row.name);
  std::size_t succeeded = 0;
  const auto sets = direct::instructionSets();
  for (std::size_t done = 0; done < all; done += portion) {
    std::array<double, portion> first, second;
    for (std::size_t i = 0; i < portion; ++i) inputs.next(first[i], second[i]);
    struct Expected {
      int number;
      double values[2];
      double quality;
    };
    std::array<Expected, portion> members;
    for (std::size_t i = 0; i < portion; ++i) {
      for (int k = 0; k < 2; ++k) {
        engine.ClearTraceInfo();
        const bool success =
            (engine.*row.members[k])(&members[i].values[k], first[i], second[i]) != 0;
        const int number = success ? 0 : numberOf(engine.LastError());
        grid.holds(k == 0 || number == members[i].number,
                   fmt::format("{:.17g}, {:.17g}: the members differ", first[i], second[i]));
        members[i].number = number;
      }
      if (row.quality == nullptr || members[i].number != 0) continue;
      grid.holds((engine.*row.quality)(&members[i].quality, first[i], second[i]) != 0,
                 fmt::format("{:.17g}, {:.17g}: no quality", first[i], second[i]));
    }
    for (const std::string_view set : sets) {
      // All of a long run by the best one, and a hundredth of it by each of the others.
      if (set != sets.front() && done % (100 * portion) >= 4 * portion) continue;
      ASSERT_TRUE(direct::useInstructionSet(set));
      std::array<double, portion> a, b, quality;
      std::array<short, portion> status;
      const direct::Result results[] = {{row.letters[0], {a.data()}},
                                        {row.letters[1], {b.data()}},
                                        {Letter::Q, {quality.data()}}};
      direct::Request request{row.pair, {first.data()}, {second.data()}, results};
      request.status = {status.data()};
      direct::evaluate(request, 0, portion);
      for (std::size_t i = 0; i < portion; ++i) {
        const Expected& member = members[i];
        const std::string at = fmt::format("{}: {:.17g}, {:.17g}", set, first[i], second[i]);
        grid.holds(member.number == status[i],
                   fmt::format("{}: message {}, the member's is {}", at, status[i], member.number));
        const double values[] = {a[i], b[i]};
        for (int k = 0; k < 2; ++k) {
          if (member.number != 0 || status[i] != 0) {
            grid.holds(status[i] == 0 || std::isnan(values[k]),
                       at + ": a number of a failed state");
            continue;
          }
          if (set == sets.front()) ++succeeded;
          const double expected = member.values[k];
          if (std::abs(values[k] - expected) <= agreement * std::abs(expected)) continue;
          grid.holds(meetsItsInputs(row, first[i], second[i], row.letters[k], values[k]),
                     fmt::format("{}: {:.17g}, the member's is {:.17g}", at, values[k], expected));
        }
        if (row.quality == nullptr || member.number != 0 || status[i] != 0) continue;
        if (std::abs(quality[i] - member.quality) <= agreement) continue;
        grid.holds(meetsItsInputs(row, first[i], second[i], row.letters[1], values[1]) &&
                       std::abs(quality[i] - member.quality) < 1e-6,
                   fmt::format("{}: quality {:.17g}, the member's is {:.17g}", at, quality[i],
                               member.quality));
      }
    }
  }
  EXPECT_TRUE(direct::useInstructionSet({}));
  EXPECT_GT(succeeded, all);  // two results a state
}

INSTANTIATE_TEST_SUITE_P(Direct, BothRoads, testing::ValuesIn(pairMembers),
                         [](const auto& parameter) { return std::string(parameter.param.name); });

}  // namespace
}  // namespace calvex::test
