// The root search keeps its bracket, meets its tolerance and says why it has no root.
#include "equipment/brent.h"

#include <gtest/gtest.h>

#include <limits>

namespace calvex {
namespace {

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr RootTolerance fine{1e-16, 1e-15};

template <class Function>
std::optional<double> rootOf(Function f, double a, double b, RootTolerance tolerance) {
  return brentRoot([&](double x) { return std::optional<double>(f(x)); }, {a, f(a), b, f(b)},
                   tolerance);
}

TEST(Brent, FindsTheFixedPointOfTheCosine) {
  const auto root = rootOf([](double x) { return std::cos(x) - x; }, 0.0, 1.0, fine);
  ASSERT_TRUE(root);
  EXPECT_NEAR(*root, 0.7390851332151606, 1e-14);
}

TEST(Brent, FindsTheSameRootFromEitherEnd) {
  const auto f = [](double x) { return x * x * x - 2.0 * x - 5.0; };  // Wallis's cubic
  for (const auto& [a, b] : {std::pair(2.0, 3.0), std::pair(3.0, 2.0), std::pair(-50.0, 900.0)}) {
    const auto root = rootOf(f, a, b, fine);
    ASSERT_TRUE(root);
    EXPECT_NEAR(*root, 2.0945514815423265, 1e-13);
  }
}

TEST(Brent, MeetsACoarseToleranceWithFewEvaluations) {
  int evaluations = 0;
  const auto f = [&](double x) {
    ++evaluations;
    return std::exp(x) - 2.0;
  };
  const auto root = rootOf(f, -4.0, 4.0, {3e-8, 5e-7});
  ASSERT_TRUE(root);
  EXPECT_NEAR(*root, 0.6931471805599453, 6e-8 + 5e-7);
  EXPECT_LE(evaluations, 16);  // bisection alone takes 24
}

TEST(Brent, TakesARootAtAnEndOfTheBracket) {
  const auto f = [](double x) { return x - 1.0; };
  EXPECT_EQ(rootOf(f, 1.0, 4.0, fine), 1.0);
  EXPECT_EQ(rootOf(f, -3.0, 1.0, fine), 1.0);
}

TEST(Brent, EndsAtTheJumpOfAFunctionWithoutARoot) {
  const auto root = rootOf([](double x) { return x < 0.3 ? -1.0 : 1.0; }, 0.0, 1.0, fine);
  ASSERT_TRUE(root);
  EXPECT_NEAR(*root, 0.3, 2e-15);
}

TEST(Brent, SurvivesInfiniteValues) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  const auto f = [](double x) { return x > 2.0 ? infinity : x - 1.0; };
  const auto root = rootOf(f, 0.0, 4.0, fine);
  ASSERT_TRUE(root);
  EXPECT_NEAR(*root, 1.0, 1e-15);
}

TEST(Brent, AnswersNothingWhenTheFunctionFails) {
  const auto fails = [](double) { return std::optional<double>(); };
  EXPECT_FALSE(brentRoot(fails, {0.0, -1.0, 1.0, 1.0}, fine));
}

TEST(Brent, ThrowsSolutionErrorAtNaN) {
  const auto f = [](double) { return std::optional(NaN); };
  try {
    (void)brentRoot(f, {0.0, -1.0, 1.0, 1.0}, fine);
    FAIL() << "no exception";
  } catch (const ZvThermoException& failure) {
    EXPECT_STREQ(failure.what(), "Solution Error.");
  }
}

TEST(Brent, ThrowsAfterAHundredEvaluations) {
  int evaluations = 0;
  const auto sign = [&](double x) {
    ++evaluations;
    return std::optional(x < 0.1 ? -1.0 : 1.0);
  };
  try {
    (void)brentRoot(sign, {-1e300, -1.0, 1e300, 1.0}, fine);
    FAIL() << "no exception";
  } catch (const ZvThermoException& failure) {
    EXPECT_STREQ(failure.what(), "Maximum number of iterations reached.");
  }
  EXPECT_EQ(evaluations, 100);
}

TEST(Brent, ABracketHasTwoSignsOrAZeroAndNoNaN) {
  EXPECT_TRUE(bracketsRoot({0.0, -1.0, 1.0, 1.0}));
  EXPECT_TRUE(bracketsRoot({0.0, 1e-200, 1.0, -1e-200}));
  EXPECT_TRUE(bracketsRoot({0.0, 0.0, 1.0, 1.0}));
  EXPECT_FALSE(bracketsRoot({0.0, 1.0, 1.0, 1.0}));
  EXPECT_FALSE(bracketsRoot({0.0, -1.0, 1.0, -1.0}));
  EXPECT_FALSE(bracketsRoot({0.0, NaN, 1.0, 1.0}));
  EXPECT_FALSE(bracketsRoot({0.0, -1.0, 1.0, NaN}));
}

}  // namespace
}  // namespace calvex
