// The exact saturation line: equilibrium, strictly rising, the same from temperature and pressure.
#include <fmt/format.h>
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "steam/constants.h"
#include "steam/phase_equilibrium.h"
#include "steam/property.h"
#include "steam/steam_model.h"
#include "support/table.h"

namespace calvex {
namespace {

using constants::criticalPressure;
using constants::criticalTemperature;
using constants::triplePointPressure;
using constants::triplePointTemperature;

TEST(PhaseEquilibrium, IsThatOfTheTwelveDigitTable) {
  const std::vector<test::Row> rows = test::readTable("saturation.csv");
  ASSERT_GT(rows.size(), 20U);
  for (const test::Row& row : rows) {
    const double T = row["T"];
    SCOPED_TRACE(fmt::format("{} K", T));
    const PhaseEquilibrium e = equilibriumAtT(T);
    // Next to the critical point the densities go with the square root of what is left of 12
    // digits.
    const double tolerance = T < 640.0 ? 2e-11 : 1e-9;
    EXPECT_NEAR(e.P, row["P"], 2e-11 * e.P);
    EXPECT_NEAR(e.liquidDensity, row["R_L"], tolerance * e.liquidDensity);
    EXPECT_NEAR(e.vapourDensity, row["R_V"], tolerance * e.vapourDensity);
  }
}

TEST(PhaseEquilibrium, HasEqualPressuresAndGibbsEnergiesUpToTheCriticalPoint) {
  for (double T = triplePointTemperature; T < criticalTemperature - 1e-4; T += 0.173) {
    const PhaseEquilibrium e = equilibriumAtT(T);
    SCOPED_TRACE(fmt::format("{} K", T));
    const auto at = [&](Property property, double density) {
      return evaluate(property, T, density);
    };
    EXPECT_GT(e.liquidDensity, e.vapourDensity);
    // The terms of cold water's pressure are of the order of 1e7 MPa and cancel.
    EXPECT_NEAR(at(Property::pressure, e.liquidDensity), e.P, 5e-9);
    EXPECT_NEAR(at(Property::gibbs, e.liquidDensity), at(Property::gibbs, e.vapourDensity), 5e-9);
  }
}

TEST(PhaseEquilibrium, RisesStrictlyToTheCriticalPoint) {
  const auto rises = [](double from, double step, int count) {
    double last = equilibriumAtT(from).P;
    for (int n = 1; n <= count; ++n) {
      const double T = std::min(from + n * step, criticalTemperature);
      const double P = equilibriumAtT(T).P;
      EXPECT_GT(P, last) << fmt::format("at {:.9f} K", T);
      last = P;
    }
  };
  rises(triplePointTemperature, 0.25, 1495);
  rises(646.0, 1e-3, 1125);
  rises(646.62, 1e-5, 1200);  // where the scaling law of the other lines begins
  rises(criticalTemperature - 1e-3, 1e-6, 1000);
  EXPECT_EQ(equilibriumAtT(criticalTemperature).P, criticalPressure);
  EXPECT_EQ(equilibriumAtP(criticalPressure).T, criticalTemperature);
}

TEST(PhaseEquilibrium, IsTheOneOfTheLowerPressureWhereThereAreTwoLiquids) {
  const PhaseEquilibrium below = equilibriumAtT(646.6855);
  const PhaseEquilibrium above = equilibriumAtT(646.6865);
  EXPECT_GT(below.liquidDensity, 365.0);
  EXPECT_LT(above.liquidDensity, 357.0);
  // The pressure is continuous: its slope is 0.262 MPa/K on both sides.
  EXPECT_NEAR(above.P - below.P, 0.001 * 0.2612, 2e-6);
}

TEST(PhaseEquilibrium, OfTemperatureAndOfPressureAreInverse) {
  const auto seed = std::random_device{}();
  SCOPED_TRACE(fmt::format("seed {}", seed));
  std::mt19937_64 random(seed);
  const auto inverse = [&](double lower, double upper) {
    std::uniform_real_distribution<double> temperature(lower, upper);
    for (int n = 0; n < 2000; ++n) {
      const double T = temperature(random);
      const PhaseEquilibrium there = equilibriumAtT(T);
      const PhaseEquilibrium back = equilibriumAtP(there.P);
      EXPECT_NEAR(back.T, T, 1e-8) << fmt::format("{:.17g} K", T);
      // The liquid's density steps at 646.686 K, and next to it and to the critical point it goes
      // with a root of the distance.
      if (std::fabs(T - 646.686) > 1e-4) {
        EXPECT_NEAR(back.liquidDensity, there.liquidDensity, 1e-2) << fmt::format("{:.17g} K", T);
      }
    }
  };
  inverse(triplePointTemperature, criticalTemperature);
  inverse(646.0, criticalTemperature);
  inverse(647.12, criticalTemperature);
}

class DecidingLine : public ::testing::Test {
 protected:
  DecidingLine() { steam.setSatPolish(2); }
  Diagnostics diagnostics;
  SteamModel steam{diagnostics};
};

TEST_F(DecidingLine, GivesOneDensityFromTemperatureAndFromPressure) {
  // 21 kg/m3 apart on the line whose end is a scaling law.
  for (const double P : {21.94152, 21.9, 22.0, 22.04, 22.0538, 22.0545, 1.0, 0.001}) {
    const double T = steam.TSatP(P);
    for (const double Q : {0.0, 0.3, 1.0}) {
      const double fromP = steam.saturatedPQ(Property::density, P, Q);
      EXPECT_NEAR(steam.saturatedTQ(Property::density, T, Q), fromP, 1e-4 * fromP) << P << ' ' << Q;
    }
  }
}

TEST_F(DecidingLine, DecidesThePhaseOfPressureAndTemperature) {
  // The correlation has 0.09 % too little at 100 °C: 0.101325 MPa is above the line's 0.1013...
  for (const double T :
       {triplePointTemperature, 280.0, 373.14, 450.0, 600.0, 645.0, 646.9, 647.1}) {
    const double Ps = steam.PSatT(T);
    SCOPED_TRACE(fmt::format("{} K", T));
    EXPECT_EQ(steam.stateFromPT(Ps * (1.0 + 0.9e-4), T), Phases::two);
    EXPECT_EQ(steam.stateFromPT(Ps * (1.0 - 0.9e-4), T), Phases::two);
    ASSERT_EQ(steam.stateFromPT(Ps * (1.0 + 1.1e-4), T), Phases::one);
    const double liquid = steam.state().density;
    ASSERT_EQ(steam.stateFromPT(Ps * (1.0 - 1.1e-4), T), Phases::one);
    const double vapour = steam.state().density;
    EXPECT_GE(liquid, equilibriumAtT(T).liquidDensity);
    EXPECT_LE(vapour, equilibriumAtT(T).vapourDensity);
  }
}

// Its ends are liquid and vapour, of which the properties of one phase are defined.
TEST_F(DecidingLine, BelongsToOnePhaseAtItsEnds) {
  for (const double P : {0.001, 0.1, 1.0, 10.0, 20.0}) {
    for (const double Q : {0.0, 1.0}) {
      for (const Property second : {Property::density, Property::enthalpy, Property::entropy}) {
        SCOPED_TRACE(fmt::format("{} MPa, quality {}, property {}", P, Q, int(second)));
        const double value = steam.saturatedPQ(second, P, Q);
        EXPECT_EQ(steam.stateFromP(P, second, value), Phases::one);
        EXPECT_EQ(steam.state().quality, Q);
        const double T = steam.TSatP(P);
        const double valueAtT = steam.saturatedTQ(second, T, Q);
        EXPECT_EQ(steam.stateFromT(T, second, valueAtT), Phases::one);
        EXPECT_EQ(steam.state().quality, Q);
      }
    }
  }
}

TEST_F(DecidingLine, OfTheOtherSettingsLeavesThePhaseToTheCorrelation) {
  // At 373.14 K the correlation is 0.05 % above the line: 0.101325 MPa is liquid, and was steam.
  ASSERT_EQ(steam.stateFromPT(0.101325, 373.14), Phases::one);
  EXPECT_NEAR(steam.property(Property::enthalpy), 419.02, 0.01);
  steam.setSatPolish(1);
  ASSERT_EQ(steam.stateFromPT(0.101325, 373.14), Phases::one);
  EXPECT_NEAR(steam.property(Property::enthalpy), 2675.7, 0.1);
}

}  // namespace
}  // namespace calvex
