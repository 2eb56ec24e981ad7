// The direct road by itself: what does not depend on lanes, units and neighbours, and (h, s), which
// no member answers.
#include <array>
#include <cstring>
#include <utility>

#include "allocation_counter.h"
#include "direct/chunks.h"
#include "direct/states.h"
#include "support/failures.h"

namespace calvex::test {
namespace {

using direct::Letter;
using direct::Pair;

constexpr Pair allPairs[] = {Pair::PT, Pair::PH, Pair::PS, Pair::PU, Pair::PR, Pair::PV, Pair::TH,
                             Pair::TS, Pair::TU, Pair::TR, Pair::TV, Pair::PQ, Pair::TQ, Pair::HS};
constexpr std::size_t count = 500;

struct Answers {
  std::array<double, count> T{}, density{}, h{};
  std::array<short, count> status{};
};

void evaluate(Pair pair, const std::vector<double>& first, const std::vector<double>& second,
              Answers& answers) {
  const direct::Result results[] = {{Letter::T, {answers.T.data()}},
                                    {Letter::R, {answers.density.data()}},
                                    {Letter::H, {answers.h.data()}}};
  direct::Request request{pair, {first.data()}, {second.data()}, results};
  request.status = {answers.status.data()};
  direct::evaluate(request, 0, count);
}

void inputsOf(Pair pair, std::vector<double>& first, std::vector<double>& second) {
  first.resize(count);
  second.resize(count);
  RandomInputs inputs(pair, 23);
  for (std::size_t i = 0; i < count; ++i) inputs.next(first[i], second[i]);
}

constexpr Letter density1[] = {Letter::R};

TEST(DirectRoad, EveryInstructionSetAnswersTheSame) {
  ASSERT_GE(direct::instructionSets().size(), 1U);
  std::vector<double> first, second;
  for (const Pair pair : allPairs) {
    Grid grid("instruction sets");
    inputsOf(pair, first, second);
    Answers best;
    evaluate(pair, first, second, best);
    for (const std::string_view set : direct::instructionSets()) {
      ASSERT_TRUE(direct::useInstructionSet(set));
      Answers answers;
      evaluate(pair, first, second, answers);
      for (std::size_t i = 0; i < count; ++i) {
        const std::string at = fmt::format("{} pair {}: {:.17g}, {:.17g}", set,
                                           static_cast<int>(pair), first[i], second[i]);
        grid.holds(answers.status[i] == best.status[i], at);
        if (best.status[i] != 0 || answers.status[i] != 0) continue;
        constexpr double rounding = 1e-11;
        // Lanes round differently; what that moves where a state hangs on the last digits of its
        // inputs is told by the slopes.
        double T, density, TByA, TByB, byA, byB;
        const direct::Result slopes[] = {{Letter::T, {&T}, {&TByA}, {&TByB}},
                                         {Letter::R, {&density}, {&byA}, {&byB}}};
        direct::evaluate({pair, {&first[i]}, {&second[i]}, slopes}, 0, 1);
        double saturated = density;
        direct::evaluate(Pair::TQ, T, 0.0, density1, &saturated);
        const double dense = std::isnan(saturated) ? density : std::max(saturated, density);
        // On the line both phases have one pressure, which the liquid's density hangs on.
        double onLine = 0.0;
        if (direct::secondOf(pair) == Letter::Q) {
          const double beside = 1.01 * direct::evaluate(Pair::TQ, T, 0.0, Letter::P);
          const double slope = dense * direct::evaluate(Pair::PT, beside, T, Letter::L);
          onLine = rounding * slope * termsOf(Letter::P, 0.0, T, dense);
        }
        const double a = termsOf(direct::firstOf(pair), first[i], T, dense);
        const double b = termsOf(direct::secondOf(pair), second[i], T, dense);
        const auto allowed = [&](double slopeA, double slopeB) {
          const double moved = rounding * (std::abs(slopeA * a) + std::abs(slopeB * b));
          return std::isnan(moved) ? 0.0 : moved;
        };
        grid.near(answers.density[i], best.density[i], 1.0,
                  1e-12 * density + onLine + allowed(byA, byB), at);
        grid.near(answers.T[i], best.T[i], 1.0, 1e-12 * T + allowed(TByA, TByB), at);
      }
    }
  }
  EXPECT_TRUE(direct::useInstructionSet({}));
  EXPECT_FALSE(direct::useInstructionSet("abacus"));
}

TEST(DirectRoad, NeighboursDoNotMatter) {
  std::vector<double> first, second;
  for (const Pair pair : allPairs) {
    inputsOf(pair, first, second);
    Answers together;
    evaluate(pair, first, second, together);
    const direct::Result one[] = {{Letter::R, {}}};
    for (std::size_t i = 0; i < count; i += 7) {
      double density = 0.0;
      short status = -1;
      direct::Result results[] = {one[0]};
      results[0].value = {&density};
      direct::Request request{pair, {&first[i]}, {&second[i]}, results};
      request.status = {&status};
      direct::evaluate(request, 0, 1);
      EXPECT_EQ(status, together.status[i]);
      if (status == 0) {
        EXPECT_EQ(density, together.density[i])
            << static_cast<int>(pair) << ": " << first[i] << ", " << second[i];
      } else {
        EXPECT_TRUE(std::isnan(density));
      }
    }
  }
}

TEST(DirectRoad, OneStateIsThatOfTheArrays) {
  std::vector<double> first, second;
  for (const Pair pair : allPairs) {
    Grid grid("single states");
    inputsOf(pair, first, second);
    Answers together;
    evaluate(pair, first, second, together);
    for (std::size_t i = 0; i < count; ++i) {
      double values[2];
      const Letter letters[] = {Letter::T, Letter::H};
      const int status = direct::evaluate(pair, first[i], second[i], letters, values);
      const std::string at = fmt::format("{:.17g}, {:.17g}", first[i], second[i]);
      grid.holds(status == together.status[i], at);
      if (status != 0) {
        grid.holds(std::isnan(values[0]) && std::isnan(values[1]), at);
        continue;
      }
      grid.near(values[1], together.h[i], 1e-10, 2000.0 + values[0], at);
    }
  }
}

// What a simulator calls in its loop.
static_assert(noexcept(direct::evaluate(Pair::PT, 1.0, 300.0, density1, nullptr)));
static_assert(noexcept(direct::evaluate(Pair::PT, 1.0, 300.0, Letter::R)));
static_assert(noexcept(direct::evaluate(std::declval<const direct::Request&>(), 0, 1)));
static_assert(noexcept(direct::saturationPressure(300.0, std::declval<double&>(), nullptr)));
static_assert(noexcept(direct::saturationTemperature(1.0, std::declval<double&>(), nullptr)));

TEST(DirectRoad, NothingIsAllocatedForAStateThatIsAnswered) {
  std::vector<double> first, second;
  for (const Pair pair : allPairs) {
    inputsOf(pair, first, second);
    double values[2];
    const Letter letters[] = {Letter::T, Letter::H};
    // The tables of the pair, and what the members' own solve keeps, are made once.
    std::vector<std::size_t> answered;
    for (std::size_t i = 0; i < count; ++i) {
      if (direct::evaluate(pair, first[i], second[i], letters, values) == 0) answered.push_back(i);
    }
    EXPECT_GT(answered.size(), count / 2);
    const long before = allocations();
    for (const std::size_t i : answered) {
      direct::evaluate(pair, first[i], second[i], letters, values);
    }
    EXPECT_EQ(allocations(), before) << static_cast<int>(pair);
  }
}

TEST(DirectRoad, AnyNumberOfThreadsAnswersTheSame) {
  std::vector<double> first, second;
  for (const Pair pair : allPairs) {
    inputsOf(pair, first, second);
    Answers alone;
    evaluate(pair, first, second, alone);
    for (const unsigned threads : {1U, 2U, 5U}) {
      Answers together;
      const direct::Result results[] = {{Letter::T, {together.T.data()}},
                                        {Letter::R, {together.density.data()}},
                                        {Letter::H, {together.h.data()}}};
      direct::Request request{pair, {first.data()}, {second.data()}, results};
      request.status = {together.status.data()};
      EXPECT_TRUE(forEachChunk(count, {.threads = threads, .chunk = 37}, [&](const Chunk& chunk) {
        evaluate(request, chunk.begin, chunk.end);
      }));
      const auto sameBits = [](const auto& a, const auto& b) {
        return std::memcmp(a.data(), b.data(), sizeof a) == 0;
      };
      EXPECT_EQ(together.status, alone.status) << static_cast<int>(pair);
      EXPECT_TRUE(sameBits(together.T, alone.T) && sameBits(together.density, alone.density) &&
                  sameBits(together.h, alone.h))
          << "pair " << static_cast<int>(pair) << " with " << threads << " threads";
    }
  }
}

TEST(DirectRoad, ACompressedLiquidHasNoVapour) {
  // 293.15 K and 0.0009 m3/kg: above the critical pressure and below the critical temperature.
  EXPECT_EQ(direct::evaluate(Pair::TV, 293.15, 0.0009, Letter::Q), 0.0);
  EXPECT_EQ(direct::evaluate(Pair::TR, 293.15, 1.0 / 0.0009, Letter::Q), 0.0);
}

TEST(DirectRoad, StridesAndConstantsAreRead) {
  const double points[] = {600.0, 0.0, 700.0, 0.0, 800.0, 0.0};
  const double P = 5.0;
  double h[6] = {-1.0, -2.0, -1.0, -2.0, -1.0, -2.0};
  const direct::Result results[] = {{Letter::H, {h, 2}}};
  const direct::Request request{Pair::PT, {&P, 0}, {points, 2}, results};
  direct::evaluate(request, 0, 3);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(h[2 * i + 1], -2.0);
    double one = 0.0;
    const Letter letters[] = {Letter::H};
    ASSERT_EQ(direct::evaluate(Pair::PT, P, points[2 * i], letters, &one), 0);
    EXPECT_NEAR(h[2 * i], one, 1e-9);
  }
}

TEST(DirectRoad, UnitsAreConvertedOnTheWay) {
  direct::Units units = direct::modelUnits();
  units[static_cast<int>(Letter::T)] = {1.0, 273.15, "C"};
  units[static_cast<int>(Letter::P)] = {0.1, 0.0, "bara"};
  const double P = 100.0;
  const double T = 500.0;
  double values[2], slope[2];
  const direct::Result results[] = {{Letter::H, {&values[0]}, {&slope[0]}, {}},
                                    {Letter::T, {&values[1]}}};
  direct::Request request{Pair::PT, {&P}, {&T}, results};
  request.units = &units;
  direct::evaluate(request, 0, 1);
  EXPECT_NEAR(values[0], direct::evaluate(Pair::PT, 10.0, 773.15, Letter::H), 1e-9);
  EXPECT_NEAR(values[1], 500.0, 1e-12);
  const double delta = direct::evaluate(Pair::PT, 10.0, 773.15, Letter::I);  // dh/dP at constant T
  EXPECT_NEAR(slope[0], 0.1 * delta, 1e-9);
}

TEST(DirectRoad, EnthalpyAndEntropyGiveTheStateBack) {
  Grid grid("(h, s)");
  RandomInputs inputs(Pair::PH, 31);
  for (int i = 0; i < 3000; ++i) {
    double P = 0.0;
    double h = 0.0;
    inputs.next(P, h);
    double values[2];
    const Letter letters[] = {Letter::S, Letter::T};
    if (!(h >= 0.0) || direct::evaluate(Pair::PH, P, h, letters, values) != 0) continue;
    const double s = values[0];
    // Dense cold water of the equation, beyond where there is any, has two states for one (h, s).
    if (!(s >= 0.0) || P > 500.0 || P < 1e-5) continue;
    double back[2];
    const std::string at = fmt::format("h = {:.17g}, s = {:.17g} of P = {:.17g}", h, s, P);
    const Letter found[] = {Letter::P, Letter::T};
    const int status = direct::evaluate(Pair::HS, h, s, found, back);
    grid.holds(status == 0, at);
    if (status != 0) continue;
    // dh = T ds + v dP: the pressure of cold water hangs on the last digits of h.
    const double density = direct::evaluate(Pair::HS, h, s, Letter::R);
    const double v = 1.0 / density;
    grid.near(back[0], P, 1e-8, std::max(P, 1e-3 / v), at);
    // The first bubble of a liquid changes h and s alike: T is known to less.
    grid.near(back[1], values[1], 1e-7, values[1], at);
  }
  const Letter letters[] = {Letter::T};
  double T = 0.0;
  EXPECT_EQ(direct::evaluate(Pair::HS, -1.0, 1.0, letters, &T), 102);
  EXPECT_EQ(direct::evaluate(Pair::HS, 100.0, 12.0, letters, &T), 104);
}

TEST(DirectRoad, TheLineIsItsOwnInverse) {
  for (double T = 273.2; T < 647.0; T += 3.7) {
    double P = 0.0, slope = 0.0, back = 0.0;
    ASSERT_EQ(direct::saturationPressure(T, P, &slope), 0);
    ASSERT_EQ(direct::saturationTemperature(P, back), 0);
    EXPECT_NEAR(back, T, 1e-9 * T);
    double above = 0.0, below = 0.0;
    ASSERT_EQ(direct::saturationPressure(T + 1e-3, above), 0);
    ASSERT_EQ(direct::saturationPressure(T - 1e-3, below), 0);
    EXPECT_NEAR(slope, (above - below) / 2e-3, 1e-5 * slope);
  }
}

}  // namespace
}  // namespace calvex::test
