#include "steam/saturation_correlations.h"

#include <algorithm>
#include <cmath>

#include "steam/constants.h"

namespace calvex::saturation {

using constants::criticalTemperature;
using constants::triplePointTemperature;

double temperatureGuess(double P) {
  const double T = 35.9770805 - 4041.62025 / std::log(6.23098288446205e-05 * P);
  return std::clamp(T, triplePointTemperature, criticalTemperature);
}

double nearCriticalDensity(double T) {
  namespace law = coefficients::scalingLaw;
  const double tau = std::max(0.0, 1.0 - T / criticalTemperature);
  return (law::criticalDensity - law::amplitude * std::pow(tau, law::exponent)) * 1000.0;
}

}  // namespace calvex::saturation
