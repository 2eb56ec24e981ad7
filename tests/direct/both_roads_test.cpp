// Two roads, one truth: what the members answer and refuse, the direct road answers and refuses,
// with every instruction set of the machine.
//
//   CALVEX_DIRECT_STATES=10000000 calvex_test_direct --gtest_filter='*BothRoads*'
//
// runs ten million states of each pair (some hours).
#include <vector>

#include "direct/fifty_digits.h"
#include "direct/starting_tables.h"
#include "direct/states.h"
#include "steam/constants.h"
#include "support/failures.h"

namespace calvex::test {
namespace {

using direct::Letter;
using direct::Pair;

/// Relative agreement of the two roads.
constexpr double agreement = 1e-10;
// What passes through zero (the pressure of cold water, the enthalpy of water at the triple point)
// is known to the last digits of the terms that it is the sum of.
constexpr double lastDigits = 1e-11;

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

// A state's inputs, and what the members answer to them.
struct Asked {
  double first;
  double second;
  int number = 0;
  double values[2]{};
  double quality = 0.0;
};

void askMembers(const PairMembers& row, ZvThermoInt& engine, Asked& state, Grid& grid) {
  for (int k = 0; k < 2; ++k) {
    engine.ClearTraceInfo();
    const auto member = row.members[k];
    double& value = state.values[k];  // g++ 12's check of bounds goes astray within such a call
    const bool success = (engine.*member)(&value, state.first, state.second) != 0;
    const int number = success ? 0 : numberOf(engine.LastError());
    grid.holds(k == 0 || number == state.number,
               fmt::format("{:.17g}, {:.17g}: the members differ", state.first, state.second));
    state.number = number;
  }
  if (row.quality == nullptr || state.number != 0) return;
  grid.holds((engine.*row.quality)(&state.quality, state.first, state.second) != 0,
             fmt::format("{:.17g}, {:.17g}: no quality", state.first, state.second));
}

// The direct road's answers to the same states, with the instruction set in use, beside the
// members'; how many values agreed.
std::size_t compare(const PairMembers& row, const std::vector<Asked>& states, std::string_view set,
                    Grid& grid) {
  const std::size_t count = states.size();
  std::vector<double> a(count), b(count), quality(count);
  std::vector<short> status(count);
  constexpr auto stride = static_cast<std::ptrdiff_t>(sizeof(Asked) / sizeof(double));
  static_assert(sizeof(Asked) % sizeof(double) == 0);
  const direct::Result results[] = {
      {row.letters[0], {a.data()}}, {row.letters[1], {b.data()}}, {Letter::Q, {quality.data()}}};
  direct::Request request{
      row.pair, {&states[0].first, stride}, {&states[0].second, stride}, results};
  request.status = {status.data()};
  direct::evaluate(request, 0, count);
  std::size_t succeeded = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const Asked& member = states[i];
    const std::string at = fmt::format("{}: {:.17g}, {:.17g}", set, member.first, member.second);
    grid.holds(member.number == status[i],
               fmt::format("{}: message {}, the member's is {}", at, status[i], member.number));
    const double values[] = {a[i], b[i]};
    for (int k = 0; k < 2; ++k) {
      if (member.number != 0 || status[i] != 0) {
        grid.holds(status[i] == 0 || std::isnan(values[k]), at + ": a number of a failed state");
        continue;
      }
      ++succeeded;
      const double expected = member.values[k];
      const double terms = row.letters[k] == Letter::P  // of the pairs with T and the density
                               ? termsOf(Letter::P, expected, member.first, b[i])
                               : termsOf(row.letters[k], expected, 0.0, 0.0);
      const double allowed = std::max(agreement * std::abs(expected), lastDigits * terms);
      if (std::abs(values[k] - expected) <= allowed) continue;
      grid.holds(meetsItsInputs(row, member.first, member.second, row.letters[k], values[k]),
                 fmt::format("{}: {:.17g}, the member's is {:.17g}", at, values[k], expected));
    }
    if (row.quality == nullptr || member.number != 0 || status[i] != 0) continue;
    if (std::abs(quality[i] - member.quality) <= agreement) continue;
    grid.holds(meetsItsInputs(row, member.first, member.second, row.letters[1], values[1]) &&
                   std::abs(quality[i] - member.quality) < 1e-6,
               fmt::format("{}: quality {:.17g}, the member's is {:.17g}", at, quality[i],
                           member.quality));
  }
  return succeeded;
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
    std::vector<Asked> states(portion);
    for (Asked& state : states) {
      inputs.next(state.first, state.second);
      askMembers(row, engine, state, grid);
    }
    for (const std::string_view set : sets) {
      // All of a long run by the best one, and a hundredth of it by each of the others.
      if (set != sets.front() && done % (100 * portion) >= 4 * portion) continue;
      ASSERT_TRUE(direct::useInstructionSet(set));
      const std::size_t agreed = compare(row, states, set, grid);
      if (set == sets.front()) succeeded += agreed;
    }
  }
  EXPECT_TRUE(direct::useInstructionSet({}));
  EXPECT_GT(succeeded, all);  // two results a state
}

// Where the answers change their kind: the ends of the ranges, the triple and the critical point,
// the saturated values, and the next numbers on both sides of each.
std::vector<double> edgesOf(Letter letter) {
  using namespace constants;
  switch (letter) {
    case Letter::P:
      return {0.0,
              5e-324,
              1e-7,
              triplePointPressure,
              0.1,
              10.0,
              direct::lineTopPressure,
              criticalPressure,
              500.0,
              highestPressure};
    case Letter::T:
      return {lowestTemperature,      celsiusZero,
              triplePointTemperature, 300.0,
              direct::lineTop,        criticalTemperature - criticalRegion,
              criticalTemperature,    1000.0,
              highestTemperature};
    case Letter::Q:
      return {0.0, 1e-9, 0.5, 1.0 - 1e-9, 1.0};
    default:
      return {0.0, 5e-324};
  }
}

double moved(double x, int ulps) {
  const double to = ulps < 0 ? -1e308 : 1e308;
  for (int i = 0; i < std::abs(ulps); ++i) x = std::nextafter(x, to);
  return x;
}

std::vector<Asked> statesAtEdges(const PairMembers& row) {
  const Letter a = direct::firstOf(row.pair);
  const Letter b = direct::secondOf(row.pair);
  const bool fromP = a == Letter::P;
  std::vector<Asked> states;
  for (const double edge : edgesOf(a)) {
    std::vector<double> seconds = edgesOf(b);
    if (b != Letter::Q) {
      for (const double quality : {0.0, 1e-9, 0.5, 1.0}) {
        seconds.push_back(direct::evaluate(fromP ? Pair::PQ : Pair::TQ, edge, quality, b));
      }
    }
    if (b != Letter::Q && b != Letter::T) {
      for (const double other : edgesOf(fromP ? Letter::T : Letter::P)) {
        seconds.push_back(
            direct::evaluate(Pair::PT, fromP ? edge : other, fromP ? other : edge, b));
      }
    }
    for (const int first : {-3, -1, 0, 1, 3}) {
      for (const double second : seconds) {
        if (std::isnan(second)) continue;
        for (const int by : {-3, -1, 0, 1, 3}) {
          states.push_back({moved(edge, first), moved(second, by)});
        }
      }
    }
  }
  return states;
}

TEST_P(BothRoads, AgreeAtTheEdges) {
  const PairMembers& row = GetParam();
  ZvThermoInt engine;
  prepare(engine);
  Grid grid(row.name);
  std::vector<Asked> states = statesAtEdges(row);
  for (Asked& state : states) askMembers(row, engine, state, grid);
  for (const std::string_view set : direct::instructionSets()) {
    ASSERT_TRUE(direct::useInstructionSet(set));
    EXPECT_GT(compare(row, states, set, grid), 100U);
  }
  EXPECT_TRUE(direct::useInstructionSet({}));
}

// The members of the line by name, beside the pair's two that are compared above.
TEST(BothRoadsOnTheLine, AgreeOnTheWholeLineAtItsEnds) {
  using Member = int (ZvThermoInt::*)(double*, double, double);
  struct Row {
    Letter letter;
    Member fromP, fromT;
  };
  const Row rows[] = {{Letter::H, &ZvThermoInt::HSatPQ, &ZvThermoInt::HSatTQ},
                      {Letter::S, &ZvThermoInt::SSatPQ, &ZvThermoInt::SSatTQ},
                      {Letter::U, &ZvThermoInt::USatPQ, &ZvThermoInt::USatTQ},
                      {Letter::V, &ZvThermoInt::VSatPQ, &ZvThermoInt::VSatTQ},
                      {Letter::R, &ZvThermoInt::RSatPQ, &ZvThermoInt::RSatTQ}};
  ZvThermoInt engine;
  prepare(engine);
  Grid grid("the line");
  for (const Pair pair : {Pair::PQ, Pair::TQ}) {
    const bool fromP = pair == Pair::PQ;
    const auto agree = [&](Letter letter, double given, double Q, int success, double expected) {
      double value = 0.0;
      short status = 0;
      const direct::Result results[] = {{letter, {&value}}};
      direct::Request request{pair, {&given}, {&Q}, results};
      request.status = {&status};
      direct::evaluate(request, 0, 1);
      const std::string at =
          fmt::format("letter {} from {:.17g}, {:.17g}", static_cast<int>(letter), given, Q);
      grid.holds((status == 0) == (success != 0), at);
      if (success == 0) return;
      grid.near(value, expected, 1.0,
                std::max(agreement * std::abs(expected),
                         lastDigits * termsOf(letter, expected, 0.0, 0.0)),
                at);
    };
    for (const double edge : edgesOf(direct::firstOf(pair))) {
      for (const int by : {-3, -1, 0, 1, 3}) {
        const double given = moved(edge, by);
        double expected = 0.0;
        const int success = fromP ? engine.TSatP(&expected, given) : engine.PSatT(&expected, given);
        agree(fromP ? Letter::T : Letter::P, given, 0.0, success, expected);
        for (const Row& row : rows) {
          for (const double Q : edgesOf(Letter::Q)) {
            const Member member = fromP ? row.fromP : row.fromT;
            const int known = (engine.*member)(&expected, given, Q);
            agree(row.letter, given, Q, known, expected);
          }
        }
      }
    }
    // Where the phases are nearly alike, the densities by P are not those by the temperature of P.
    constexpr double alike[][2] = {{22.034966885935944, 0.15377175947592689},
                                   {22.035876903320645, 0.63114444891575716},
                                   {22.032645394246938, 0.12761877207494055}};
    for (const auto& [P, Q] : alike) {
      if (!fromP) break;
      double expected = 0.0;
      const int success = engine.RSatPQ(&expected, P, Q);
      agree(Letter::R, P, Q, success, expected);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Direct, BothRoads, testing::ValuesIn(pairMembers),
                         [](const auto& parameter) { return std::string(parameter.param.name); });

}  // namespace
}  // namespace calvex::test
