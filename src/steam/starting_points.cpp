#include "steam/starting_points.h"

#include "steam/constants.h"
#include "steam/saturation_correlations.h"

namespace calvex {

namespace {

using constants::criticalTemperature;

constexpr double vapourDensities[] = {0.01,  1.0,   10.0,  50.0,  100.0,
                                      150.0, 200.0, 250.0, 290.0, 330.0};
constexpr double liquidDensities[] = {1000.0, 900.0, 800.0, 700.0,  600.0,  500.0,  450.0,  400.0,
                                      370.0,  345.0, 310.0, 1100.0, 1200.0, 1300.0, 1400.0, 1500.0};
constexpr double liquidTemperatures[] = {300.0, 277.0, 265.0, 350.0, 400.0, 450.0, 500.0,
                                         550.0, 590.0, 615.0, 630.0, 640.0, 645.0, 647.0};
constexpr double gasTemperatures[] = {600.0, 1000.0, 1500.0, 2000.0, 2400.0, 300.0, 400.0, 500.0};
constexpr double denseTemperatures[] = {300.0, 400.0, 500.0, 600.0,  650.0,  660.0,
                                        700.0, 800.0, 950.0, 1200.0, 1600.0, 2200.0};
constexpr double denseDensities[] = {1000.0, 800.0, 600.0,  450.0, 322.0,
                                     200.0,  100.0, 1200.0, 1400.0};

double idealGasDensity(double P, double T) { return 1000.0 * P / (constants::gasConstant * T); }

}  // namespace

StartingPoints StartingPoints::atTemperature(double T, double P, Side side) {
  StartingPoints points;
  if (side != Side::liquid) {
    if (T < criticalTemperature) points.add(T, saturation::vapourDensityGuess(T));
    if (P > 0.0) points.add(T, idealGasDensity(P, T));
    for (const double density : vapourDensities) points.add(T, density);
  }
  if (side != Side::vapour) {
    if (T < criticalTemperature) points.add(T, saturation::liquidDensityGuess(T));
    for (const double density : liquidDensities) points.add(T, density);
  }
  return points;
}

StartingPoints StartingPoints::atPressure(double P, Side side) {
  StartingPoints points;
  if (side != Side::vapour) {
    for (const double T : liquidTemperatures) points.add(T, saturation::liquidDensityGuess(T));
    points.add(300.0, 1000.0);
  }
  if (side != Side::liquid) {
    for (const double T : gasTemperatures) points.add(T, idealGasDensity(P, T));
    for (const double density : vapourDensities) points.add(640.0, density);
  }
  if (side == Side::any) {
    for (const double T : denseTemperatures) {
      for (const double density : denseDensities) points.add(T, density);
    }
  }
  return points;
}

}  // namespace calvex
