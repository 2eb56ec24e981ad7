// Two roads, one truth: what the members answer and refuse, the direct road answers and refuses.
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
/// Where they differ more, the direct road's state is right to this, by a step of Newton's method
/// with 50 digits from it.
constexpr double exactness = 1e-12;

class BothRoads : public testing::TestWithParam<PairMembers> {};

TEST_P(BothRoads, AgreeOnRandomStatesAndNonsense) {
  const PairMembers& row = GetParam();
  const std::size_t all = stateCount(4000);
  constexpr std::size_t portion = 1000;
  ZvThermoInt engine;
  prepare(engine);
  RandomInputs inputs(row.pair, 11);
  Grid grid(row.name);
  std::size_t succeeded = 0;
  for (std::size_t done = 0; done < all; done += portion) {
    std::array<double, portion> first, second, a, b;
    std::array<short, portion> status;
    for (std::size_t i = 0; i < portion; ++i) inputs.next(first[i], second[i]);
    const direct::Result results[] = {{row.letters[0], {a.data()}}, {row.letters[1], {b.data()}}};
    direct::Request request{row.pair, {first.data()}, {second.data()}, results};
    request.status = {status.data()};
    direct::evaluate(request, 0, portion);
    for (std::size_t i = 0; i < portion; ++i) {
      const std::string at = fmt::format("{:.17g}, {:.17g}", first[i], second[i]);
      const double values[] = {a[i], b[i]};
      for (int k = 0; k < 2; ++k) {
        double expected = 0.0;
        engine.ClearTraceInfo();
        const bool success = (engine.*row.members[k])(&expected, first[i], second[i]) != 0;
        const int number = success ? 0 : numberOf(engine.LastError());
        grid.holds(number == status[i],
                   fmt::format("{}: message {}, the member's is {}", at, status[i], number));
        if (!success || status[i] != 0) {
          grid.holds(success || std::isnan(values[k]), at + ": a number of a failed state");
          continue;
        }
        ++succeeded;
        grid.near(values[k], expected, agreement, std::max(std::abs(expected), 1.0), at);
      }
    }
  }
  EXPECT_GT(succeeded, all);  // two results a state
}

INSTANTIATE_TEST_SUITE_P(Direct, BothRoads, testing::ValuesIn(pairMembers),
                         [](const auto& parameter) { return std::string(parameter.param.name); });

}  // namespace
}  // namespace calvex::test
