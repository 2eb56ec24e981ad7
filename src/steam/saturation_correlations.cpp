#include "steam/saturation_correlations.h"

#include <algorithm>
#include <cmath>

#include "steam/constants.h"

namespace calvex::saturation {

using constants::criticalPressure;
using constants::criticalTemperature;
using constants::triplePointTemperature;

namespace {

// theta = 1 - T/647.3 K of the density guesses
double theta(double T) { return (647.3 - T) / 647.3; }

// 1 + c[0] theta^(1/3) + c[1] theta^(5/6) + c[2] theta^(7/8) + sum a[i] theta^(i+1)
double densityBracket(double th, const double (&c)[3], const double (&a)[5]) {
  const double polynomial = ((((a[4] * th + a[3]) * th + a[2]) * th + a[1]) * th + a[0]) * th;
  return 1.0 + c[0] * std::cbrt(th) + c[1] * std::pow(th, 5.0 / 6.0) +
         c[2] * std::pow(th, 7.0 / 8.0) + polynomial;
}

}  // namespace

// Ps = Pc exp(S/((T/Tc) (1 + k6 tau + k7 tau^2)) - tau/(k8 tau^2 + k9)), S = sum k_i tau^i, i
// = 1..5
double pressure(double T) {
  constexpr double k1 = -7.691234564;
  constexpr double k2 = -26.08023696;
  constexpr double k3 = -168.1706546;
  constexpr double k4 = 64.23285504;
  constexpr double k5 = -118.9646225;
  constexpr double k6 = 4.16711732;
  constexpr double k7 = 20.9750676;
  constexpr double k8 = 1.0e9;
  constexpr double k9 = 6.0;

  const double tau = 1.0 - T / criticalTemperature;
  const double S = ((((k5 * tau + k4) * tau + k3) * tau + k2) * tau + k1) * tau;
  return criticalPressure *
         std::exp(S / ((1.0 - tau) * (1.0 + (k7 * tau + k6) * tau)) - tau / (k8 * tau * tau + k9));
}

double temperatureGuess(double P) {
  const double T = 35.9770805 - 4041.62025 / std::log(6.23098288446205e-05 * P);
  return std::clamp(T, triplePointTemperature, criticalTemperature);
}

double liquidDensityGuess(double T) {
  constexpr double c[] = {-1.9153882, 12.015186, -7.8464025};
  constexpr double a[] = {-3.888614, 2.0582238, -2.0829991, 0.82180004, 0.47549742};
  return 1.0 / (0.003155 * densityBracket(theta(T), c, a));
}

double vapourDensityGuess(double T) {
  constexpr double c[] = {1.6351057, 52.584599, -44.694653};
  constexpr double a[] = {-8.9751114, -0.4384553, -19.179576, 36.765319, -19.462437};
  return pressure(T) / (0.06969079499999999 * densityBracket(theta(T), c, a));
}

double nearCriticalDensity(double T) {
  const double tau = std::max(0.0, 1.0 - T / criticalTemperature);
  return (0.32189 - 0.657128 * std::pow(tau, 0.325)) * 1000.0;
}

}  // namespace calvex::saturation
