// How far properties reach, against scans over states found one by one.
#include "steam/extremes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "steam/root_search.h"
#include "support/engine.h"
#include "support/failures.h"

namespace calvex::test {
namespace {

constexpr Property properties[] = {Property::enthalpy, Property::entropy, Property::internalEnergy,
                                   Property::density};

TEST(Extremes, AtAPressureAreThoseOfAScanOverTemperatures) {
  Grid grid("extremes at a pressure");
  ZvThermoInt engine;
  engine.SetSatPolish(2);
  using Member = int (ZvThermoInt::*)(double*, double, double);
  const Member members[] = {&ZvThermoInt::HPT, &ZvThermoInt::SPT, &ZvThermoInt::UPT,
                            &ZvThermoInt::RPT};
  for (const double P : {1e-5, 5e-4, 0.003, 0.1, 5.0, 22.0, 40.0, 300.0, 1200.0, 3000.0}) {
    for (std::size_t i = 0; i < std::size(properties); ++i) {
      double least = INFINITY, greatest = -INFINITY;
      for (double T = 260.0; T <= 2500.0; T += T < 400.0 ? 0.5 : 20.0) {
        double value = 0.0;
        if ((engine.*members[i])(&value, P, T) == 0) continue;
        least = std::min(least, value);
        greatest = std::max(greatest, value);
      }
      const auto extremes = extremesAtPressure(P, properties[i]);
      ASSERT_TRUE(extremes);
      const double size = std::max(std::fabs(least), std::fabs(greatest));
      const std::string at = fmt::format("{} at {} MPa", i, P);
      grid.near(extremes->least.value, least, 2e-5, size, "least " + at);
      grid.near(extremes->greatest.value, greatest, 2e-5, size, "greatest " + at);
    }
  }
}

TEST(Extremes, AtATemperatureAreThoseOfAScanOverPressures) {
  Grid grid("extremes at a temperature");
  for (const double T : {261.0, 300.0, 500.0, 640.0, 700.0, 2000.0}) {
    for (const Property property : properties) {
      double least = INFINITY, greatest = -INFINITY;
      // The thinnest vapour is that of 1e-30 kg/m3; its entropy grows on with the logarithm.
      const double thinnest = evaluate(property, T, 1e-30);
      for (const Side side : {Side::vapour, Side::liquid}) {
        for (double P = 1e-6; P < 3060.0; P *= 1.02) {
          P = P > 2950.0 ? 3000.0 : P;  // the last one
          if (T < 273.16 && (P > 0.00061173) != (side == Side::liquid)) continue;
          const auto density = roots::density(P, T, side);
          if (!density) continue;
          if (T >= 273.16 && T < 647.126) {
            ZvThermoInt engine;
            engine.SetSatPolish(2);
            double line = 0.0;
            ASSERT_EQ(engine.PSatT(&line, T), 1);
            if ((P > line) != (side == Side::liquid)) continue;
          }
          const double value = evaluate(property, T, *density);
          least = std::min(least, value);
          greatest = std::max(greatest, value);
        }
      }
      least = std::min(least, thinnest);
      greatest = std::max(greatest, thinnest);
      const auto extremes = extremesAtTemperature(T, property);
      ASSERT_TRUE(extremes);
      const double size = std::max(std::fabs(least), std::fabs(greatest));
      const std::string at = fmt::format("{} at {} K", static_cast<int>(property), T);
      // The scan begins up to 2 % beside the line.
      grid.near(extremes->least.value, least, 5e-3, size, "least " + at);
      grid.near(extremes->greatest.value, greatest, 5e-3, size, "greatest " + at);
      grid.holds(extremes->least.value <= least + 2e-5 * size, "no more than the scan's, " + at);
      grid.holds(extremes->greatest.value >= greatest - 2e-5 * size,
                 "no less than the scan's, " + at);
    }
  }
}

// No value within the ends is refused, none beyond them answered.
TEST(Extremes, DivideWhatIsAnsweredFromWhatIsRefused) {
  Grid grid("ends of the answers");
  ZvThermoInt engine;
  engine.SetSatPolish(2);
  for (const double P : {1e-4, 0.01, 1.0, 10.0, 30.0, 400.0}) {
    const auto ends = extremesAtPressure(P, Property::enthalpy);
    ASSERT_TRUE(ends);
    double T = 0.0;
    const double margin = 1e-4 * ends->greatest.value;
    grid.holds(engine.TPH(&T, P, ends->greatest.value - margin) == 1, fmt::format("{} high", P));
    grid.holds(engine.TPH(&T, P, ends->greatest.value + margin) == 0, fmt::format("{} higher", P));
    if (ends->least.value <= margin) continue;  // an enthalpy below zero is not accepted
    grid.holds(engine.TPH(&T, P, ends->least.value + margin) == 1, fmt::format("{} low", P));
    grid.holds(engine.TPH(&T, P, ends->least.value - margin) == 0, fmt::format("{} lower", P));
  }
}

}  // namespace
}  // namespace calvex::test
