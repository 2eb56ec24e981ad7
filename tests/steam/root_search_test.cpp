// The search for roots by itself, without the minimiser that usually comes before it.
#include "steam/root_search.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/failures.h"
#include "support/table.h"

namespace calvex::test {
namespace {

constexpr double criticalT = 647.126;
constexpr Property energies[] = {Property::enthalpy, Property::entropy, Property::internalEnergy};

double pressure(double T, double density) { return evaluate(Property::pressure, T, density); }

Side sideOf(const Row& row) {
  if (row["T"] >= criticalT) return Side::any;
  return row["R"] > 322.0 ? Side::liquid : Side::vapour;
}

TEST(RootSearch, FindsTheDensitiesOfTheTable) {
  Grid grid("density at (P, T)");
  for (const Row& row : readTable("single-phase.csv")) {
    const std::string at = fmt::format("P = {}, T = {}", row["P"], row["T"]);
    const auto density = roots::density(row["P"], row["T"], sideOf(row));
    grid.holds(density.has_value(), at);
    // As well as the pressure determines it.
    if (density) grid.relative(*density, row["R"], 2e-9, at);
  }
}

TEST(RootSearch, FindsBothDensitiesOfTheSaturationLine) {
  Grid grid("density on the line");
  for (const Row& row : readTable("saturation.csv")) {
    if (row["T"] > criticalT - 0.5) continue;
    const std::string at = fmt::format("T = {}", row["T"]);
    const auto vapour = roots::density(row["P"], row["T"], Side::vapour);
    const auto liquid = roots::density(row["P"], row["T"], Side::liquid);
    grid.holds(vapour && liquid, at);
    if (vapour) grid.relative(*vapour, row["R_V"], 1e-7, at);
    if (liquid) grid.relative(*liquid, row["R_L"], 1e-7, at);
  }
}

TEST(RootSearch, HasNoLiquidUnderMoreTensionThanWaterBears) {
  EXPECT_TRUE(roots::density(-5.0, 450.0, Side::liquid));
  EXPECT_FALSE(roots::density(-500.0, 450.0, Side::liquid));
}

TEST(RootSearch, FindsDensitiesFromTemperatureAndAnotherProperty) {
  Grid grid("density at (T, x)");
  for (const Row& row : readTable("single-phase.csv")) {
    const double T = row["T"], density = row["R"];
    for (const Property property : energies) {
      const double value = evaluate(property, T, density);
      // Either way, from so near that no other root lies between.
      for (const auto& [from, to] :
           {std::pair{0.999 * density, 1.002 * density}, {1.001 * density, 0.998 * density}}) {
        const std::string at =
            fmt::format("T = {}, property {}, from {}", T, static_cast<int>(property), from);
        const auto found = roots::density(T, property, value, from, to);
        grid.holds(found.has_value(), at);
        // Of the terms that set the zero of each.
        const double scale = property == Property::entropy ? 3.51591161006 : 1997.67722651;
        if (found) grid.near(evaluate(property, T, *found), value, 1e-12, scale, at);
      }
    }
  }
}

// The enthalpy of hot water falls when it is compressed, and then rises: at 580 K, from the
// saturated liquid's 716 kg/m3 on, it is least between 800 and 900.
class TwoLiquids : public testing::Test {
 protected:
  static constexpr double T = 580.0, light = 717.0, dense = 1100.0;
  static double h(double density) { return evaluate(Property::enthalpy, T, density); }
  double least = light;

  TwoLiquids() {
    for (double density = light; density < dense; density += 0.001) {
      if (h(density) < h(least)) least = density;
    }
  }
};

TEST_F(TwoLiquids, TheFirstOnTheWayIsFound) {
  ASSERT_GT(least, light + 10.0);
  for (const double above : {5.0, 1.0, 0.1}) {
    const double value = h(least) + above;
    ASSERT_LT(value, h(light));
    const auto lighter = roots::density(T, Property::enthalpy, value, light, dense);
    const auto denser = roots::density(T, Property::enthalpy, value, dense, light);
    ASSERT_TRUE(lighter && denser) << above;
    EXPECT_LT(*lighter, least);
    EXPECT_GT(*denser, least);
    EXPECT_NEAR(h(*lighter), value, 1e-9);
    EXPECT_NEAR(h(*denser), value, 1e-9);
  }
}

TEST_F(TwoLiquids, WithinOneStepAreSeen) {
  for (const double above : {1e-2, 1e-3}) {
    const double value = h(least) + above;
    for (const auto& [from, to] : {std::pair{light, dense}, {dense, light}}) {
      const auto found = roots::density(T, Property::enthalpy, value, from, to);
      ASSERT_TRUE(found) << above << " above, from " << from;
      EXPECT_NEAR(h(*found), value, 1e-9);
    }
  }
}

TEST_F(TwoLiquids, WithinTheFirstStepAreSeen) {
  const double value = h(least + 0.1);
  for (const auto& [from, to] : {std::pair{least - 0.5, dense}, {least + 0.5, light}}) {
    const auto found = roots::density(T, Property::enthalpy, value, from, to);
    ASSERT_TRUE(found) << "from " << from;
    EXPECT_NEAR(*found, least, 0.2);
    EXPECT_NEAR(h(*found), value, 1e-9);
  }
}

TEST_F(TwoLiquids, AreNoneBelowTheLeast) {
  const double value = h(least) - 1e-3;
  EXPECT_FALSE(roots::density(T, Property::enthalpy, value, light, dense));
  EXPECT_FALSE(roots::density(T, Property::enthalpy, value, dense, light));
}

// Around the density maximum the entropy of cold water rises when it is compressed, falls and rises
// again, at 265 K at about 52 and 390 MPa.
TEST(RootSearch, OfThreeDensitiesFindsTheFirstOnTheWay) {
  constexpr double T = 265.0, light = 1000.0, dense = 1290.0;
  const auto s = [](double density) { return evaluate(Property::entropy, T, density); };
  double most = light;
  for (double density = light; density < 1100.0; density += 0.01) {
    if (s(density) > s(most)) most = density;
  }
  ASSERT_GT(most, light + 10.0);
  const double value = 0.5 * (s(most) + s(light));
  const auto upwards = roots::density(T, Property::entropy, value, light, dense);
  const auto downwards = roots::density(T, Property::entropy, value, dense, light);
  ASSERT_TRUE(upwards && downwards);
  EXPECT_LT(*upwards, most);
  EXPECT_GT(pressure(T, *downwards), 390.0);
  for (const double density : {*upwards, *downwards}) EXPECT_NEAR(s(density), value, 1e-12);
}

// Between the phases the pressure falls with rising density: no state is there.
TEST(RootSearch, PassesOverDensitiesThatAreUnstable) {
  constexpr double T = 600.0;
  const double P = 12.339;  // of saturation
  const auto found = roots::density(T, Property::pressure, P, 90.0, 900.0);
  ASSERT_TRUE(found);
  EXPECT_GT(*found, 640.0);
  EXPECT_NEAR(pressure(T, *found), P, 1e-9);
  // The only density with this enthalpy is that of no fluid.
  const double h = evaluate(Property::enthalpy, T, 300.0);
  ASSERT_LT(pressure(T, 301.0), pressure(T, 300.0));
  EXPECT_FALSE(roots::density(T, Property::enthalpy, h, 1.0, 900.0));
}

TEST(RootSearch, FindsTemperaturesOnIsobars) {
  Grid grid("temperature at (P, x)");
  for (const Row& row : readTable("single-phase.csv")) {
    const double P = row["P"], T = row["T"];
    const Side side = P >= 22.055                ? Side::liquid
                      : sideOf(row) == Side::any ? Side::vapour
                                                 : sideOf(row);
    const double lower = side == Side::vapour ? std::max(260.0, T - 5.0) : 260.0;
    const double upper = P >= 22.055 || side == Side::vapour ? 2500.0 : T + 1.0;
    for (const Property property : energies) {
      const double value = evaluate(property, T, row["R"]);
      const std::string at =
          fmt::format("P = {}, T = {}, property {}", P, T, static_cast<int>(property));
      const auto found = roots::temperature(P, property, value, side, lower, upper);
      grid.holds(found.has_value(), at);
      if (found) grid.relative(*found, T, 1e-9, at);
    }
  }
}

TEST(RootSearch, OfATemperatureEndsWithTheRangeItIsGiven) {
  const double value =
      evaluate(Property::entropy, 600.0, *roots::density(1.0, 600.0, Side::vapour));
  EXPECT_TRUE(roots::temperature(1.0, Property::entropy, value, Side::vapour, 500.0, 700.0));
  EXPECT_FALSE(roots::temperature(1.0, Property::entropy, value, Side::vapour, 500.0, 590.0));
  EXPECT_FALSE(roots::temperature(1.0, Property::entropy, value, Side::vapour, 610.0, 700.0));
}

// L. Haar, J. S. Gallagher, G. S. Kell (1984): water is densest near 4 degrees Celsius.
TEST(RootSearch, KnowsTheWarmerAndTheColderOfTwoTemperatures) {
  const double density = *roots::density(0.101325, 281.0, Side::liquid);
  const auto warm = roots::warmest(0.101325, density, 260.0, 373.0);
  ASSERT_TRUE(warm);
  EXPECT_NEAR(*warm, 281.0, 1e-3);
  const auto cold = roots::colder(0.101325, density, 260.0, *warm);
  ASSERT_TRUE(cold);
  EXPECT_LT(*cold, 277.2);
  EXPECT_GT(*cold, 270.0);
  EXPECT_NEAR(pressure(*cold, density), 0.101325, 1e-6);
  EXPECT_FALSE(roots::colder(0.101325, density, 277.13, *warm));
  // Water at 22 MPa and 297 K has no other temperature above 260 K.
  const double dense = *roots::density(0.101325, 320.0, Side::liquid);
  EXPECT_FALSE(roots::colder(0.101325, dense, 260.0, 320.0));
  EXPECT_FALSE(roots::warmest(0.101325, 1010.0, 260.0, 373.0));
}

TEST(RootSearch, FollowsTheLiquidBelowItsSaturationPressure) {
  // Saturated at 450 K under 0.933 MPa.
  const double saturated = *roots::density(0.9329, 450.0, Side::liquid);
  const auto superheated = roots::superheatedLiquid(0.1, 450.0, saturated);
  ASSERT_TRUE(superheated);
  EXPECT_LT(*superheated, saturated);
  EXPECT_NEAR(pressure(450.0, *superheated), 0.1, 1e-9);
  // It ends under tension, before its pressure does.
  EXPECT_FALSE(roots::superheatedLiquid(-500.0, 450.0, saturated));
}

// Beyond 1000 MPa the entropy of cold water falls with rising temperature before it rises.
TEST(RootSearch, FindsTheWarmerOfTwoTemperaturesOfColdWaterUnderHighPressure) {
  constexpr double P = 1500.0, coldest = 260.0;
  const auto entropy = [&](double T) {
    return evaluate(Property::entropy, T, roots::density(P, T, Side::liquid).value_or(NAN));
  };
  double turn = coldest;
  for (double T = coldest; T < 400.0; T += 0.25) {
    if (entropy(T) < entropy(turn)) turn = T;
  }
  ASSERT_GT(turn, coldest + 5.0);
  const double value = 0.5 * (entropy(turn) + entropy(coldest));
  const auto T = roots::temperature(P, Property::entropy, value, Side::liquid, coldest, 2500.0);
  ASSERT_TRUE(T);
  EXPECT_GT(*T, turn);
  EXPECT_NEAR(entropy(*T), value, 1e-10);
}

// At 942 MPa the enthalpy of water rises up to 276 K, falls to 297 K and rises for good: there are
// three temperatures, of which only the last has a positive heat capacity.
TEST(RootSearch, FindsTheWarmestOfThreeTemperatures) {
  constexpr double P = 942.0;
  const auto h = [&](double T) {
    return evaluate(Property::enthalpy, T, roots::density(P, T, Side::liquid).value_or(NAN));
  };
  const double value = h(305.0);
  ASSERT_LT(h(260.0), value);
  ASSERT_GT(h(276.0), value);
  ASSERT_LT(h(297.0), value);
  for (const Property property : energies) {
    const double x = evaluate(property, 305.0, *roots::density(P, 305.0, Side::liquid));
    const auto T = roots::temperature(P, property, x, Side::liquid, 260.0, 2500.0);
    ASSERT_TRUE(T);
    EXPECT_NEAR(*T, 305.0, 1e-7);
  }
}

// Next to the critical point a line that is a scaling law may lie a little beyond the liquid's end.
TEST(RootSearch, FindsATemperatureWhereTheSideEndsJustBeforeItsUpperBound) {
  constexpr double P = 22.0;
  double end = 645.0;
  while (roots::density(P, end, Side::liquid)) end += 1e-3;
  const double T = end - 0.5;
  const double h = evaluate(Property::enthalpy, T, *roots::density(P, T, Side::liquid));
  const auto found = roots::temperature(P, Property::enthalpy, h, Side::liquid, 300.0, end + 0.02);
  ASSERT_TRUE(found) << end;
  EXPECT_NEAR(*found, T, 1e-9 * T);
}

}  // namespace
}  // namespace calvex::test
