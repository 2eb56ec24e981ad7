// What rounding does to the equation: every property in double against the same formulas with 50
// digits, over the whole range.
#include <gtest/gtest.h>

#include <random>

#include "direct/fifty_digits.h"
#include "support/failures.h"

namespace calvex::test {
namespace {

struct Judged {
  const char* name;
  Property property;
  /// The size of the terms that the property is the sum of, at T, density and pressure.
  double (*scale)(double T, double density);
};

constexpr double R = 0.461522;
double none(double, double) { return 0.0; }
double energy(double T, double) { return 2000.0 + R * T; }

// A pressure is R T rho times terms of up to 1e3, as those of A'(rho) are; what is derived from its
// slope has the same terms.
const Judged judged[] = {
    {"P", Property::pressure, [](double T, double r) { return 1e-3 * r * R * T; }},
    {"H", Property::enthalpy, energy},
    {"S", Property::entropy, [](double, double) { return 3.5; }},
    {"U", Property::internalEnergy, energy},
    {"A", Property::helmholtz, energy},
    {"G", Property::gibbs, energy},
    {"M", Property::viscosity, none},
    {"E", Property::dielectricConstant, none},
};

TEST(Rounding, IsSmallOverTheWholeRange) {
  std::mt19937_64 random(5);
  const auto between = [&](double low, double high) {
    return std::uniform_real_distribution<>(low, high)(random);
  };
  Grid grid("double against 50 digits");
  for (int i = 0; i < 2000; ++i) {
    const double T = between(260.0, 2500.0);
    const double density = std::exp(between(std::log(1e-6), std::log(1300.0)));
    for (const Judged& row : judged) {
      const auto exact = static_cast<double>(exactly(row.property, T, density));
      grid.near(evaluate(row.property, T, density), exact, 1e-11,
                std::max(std::abs(exact), row.scale(T, density)),
                fmt::format("{}, T = {:.17g}, rho = {:.17g}", row.name, T, density));
    }
  }
}

TEST(Rounding, IsSeenByTheJudge) {
  // 50 digits and 16 differ, or the judge is no judge.
  const Fifty exact = exactly(Property::pressure, 300.0, 1000.0);
  const Fifty difference = exact - evaluate(Property::pressure, 300.0, 1000.0);
  EXPECT_NE(difference, 0);
  EXPECT_LT(abs(difference), 1e-9);
}

}  // namespace
}  // namespace calvex::test
