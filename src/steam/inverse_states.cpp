// States from two properties.
#include <algorithm>
#include <cmath>

#include "diagnostics/thermo_exception.h"
#include "steam/constants.h"
#include "steam/saturation_correlations.h"
#include "steam/steam_model.h"

namespace calvex {

namespace {

using constants::criticalPressure;
using constants::criticalTemperature;
using constants::gasConstant;

// Starting points: the temperature of an unknown state, a gas, a liquid.
constexpr double defaultTemperature = 773.15;
constexpr double gasDensity = 1.0;
constexpr double liquidDensity = 1000.0;

// Above the critical pressure or temperature a value below these starts as a liquid.
double liquidLikeBelow(Property property) {
  switch (property) {
    case Property::enthalpy:
      return 2086.0;
    case Property::entropy:
      return 4.409;
    default:
      return 2000.0;  // internal energy
  }
}

double idealGasDensity(double P, double T) { return 1000.0 * P / (gasConstant * T); }

// Superheat of steam from pressure and enthalpy, K; fitted for 0.4..10.5 MPa and 2715..3130 kJ/kg.
double superheatGuess(double P, double Ts, double hv, double h) {
  return 1.463499706 * P - 0.348658865 * Ts + 0.440416954 * hv - 0.467775058 * h -
         0.008078662 * P * P + 6.47361e-05 * Ts * Ts - 0.000101467 * hv * hv + 0.00013199 * h * h;
}

[[noreturn]] void failWithoutSolution() {
  throw ZvThermoException(std::string(messageText(Message::solutionError)));
}

// Water without pressure has no density; the solver would answer with the nothing it starts from.
void requirePressure(double P) {
  if (!(P > 0.0)) failWithoutSolution();
}

// No state has an infinite property, or no density: every starting point would be tried in vain.
void requireValue(Property property, double value) {
  if (!std::isfinite(value) || (property == Property::density && !(value > 0.0))) {
    failWithoutSolution();
  }
}

}  // namespace

double SteamModel::property(Property property) {
  return propertyAt(property, state_.temperature, state_.density);
}

double SteamModel::mixtureProperty(Property property) {
  const double Q = state_.quality;
  if (property == Property::temperature) return state_.temperature;
  if (property == Property::density || property == Property::specificVolume) {
    const double volume = (1.0 - Q) / state_.liquidDensity + Q / state_.vapourDensity;
    return property == Property::density ? 1.0 / volume : volume;
  }
  return (1.0 - Q) * propertyAt(property, state_.temperature, state_.liquidDensity) +
         Q * propertyAt(property, state_.temperature, state_.vapourDensity);
}

Phases SteamModel::stateFromPT(double P, double T) {
  requirePressure(P);
  double guess = gasDensity;
  Side side = Side::any;
  if (T < criticalTemperature) {
    double Ps = saturation::pressure(T);
    // Only the unpolished line has a better value at hand, next to the critical point; the sense of
    // the test is meant.
    if (satPolish_ == 0 && std::fabs(1.0 - P / Ps) < 0.03) Ps = PSatT(T);
    if (std::fabs(1.0 - P / Ps) < 0.0001) return Phases::two;
    side = P > Ps ? Side::liquid : Side::vapour;
    guess = side == Side::liquid ? liquidDensity : idealGasDensity(P, T);
  }
  store({T, densityAt(P, T, guess, side)}, state_.quality);
  return Phases::one;
}

double SteamModel::waterEnthalpy(double P, double T) {
  const bool liquid = T < criticalTemperature && P > saturation::pressure(T);
  return propertyAt(Property::enthalpy, T,
                    densityAt(P, T, liquidDensity, liquid ? Side::liquid : Side::any));
}

Phases SteamModel::stateFromP(double P, Property second, double value) {
  requirePressure(P);
  requireValue(second, value);
  Start start{defaultTemperature, gasDensity};
  double quality = 1.0;
  Side side = Side::any;
  if (P >= criticalPressure) {
    if (second == Property::density) {
      start.density = value;
    } else if (value < liquidLikeBelow(second)) {
      start.density = liquidDensity;
      quality = 0.0;
    }
  } else {
    const Bracket line = bracketP(second, value, P);
    start.temperature = line.temperature;
    // Density runs the other way: a vapour is lighter than saturated vapour.
    const bool isDensity = second == Property::density;
    const bool vapour = isDensity ? value <= line.vapour : value >= line.vapour;
    const bool liquid = !vapour && (isDensity ? value >= line.liquid : value <= line.liquid);
    if (vapour) {
      side = Side::vapour;
      start.density = isDensity ? value : std::min(line.vapourDensity, gasDensity);
      if (second == Property::enthalpy) {
        if (P >= 0.4 && P <= 10.5 && value >= 2715.0 && value <= 3130.0) {
          const double superheat = superheatGuess(P, line.temperature, line.vapour, value);
          if (superheat >= 0.0 && superheat <= 100.0) {
            start.temperature += superheat;
            start.density = std::min(start.density, idealGasDensity(P, start.temperature));
          }
        }
      } else if (!isDensity) {
        start.density = std::min(start.density, idealGasDensity(P, start.temperature));
      }
    } else if (liquid) {
      side = Side::liquid;
      start.density = isDensity ? value : std::max(line.liquidDensity, liquidDensity);
      quality = 0.0;
    } else {
      state_.temperature = line.temperature;
      state_.vapourDensity = line.vapourDensity;
      state_.liquidDensity = line.liquidDensity;
      state_.quality =
          isDensity ? (1.0 / value - 1.0 / line.liquid) / (1.0 / line.vapour - 1.0 / line.liquid)
                    : (value - line.liquid) / (line.vapour - line.liquid);
      return Phases::two;
    }
  }
  store(solveState({Equation::pressure, P}, {equationOf(second), value}, start, side), quality);
  return Phases::one;
}

Phases SteamModel::stateFromT(double T, Property second, double value) {
  requireValue(second, value);
  const bool isDensity = second == Property::density;
  double density = isDensity ? value : gasDensity;
  double quality = 1.0;
  Side side = Side::any;
  if (T >= criticalTemperature) {
    if (!isDensity && value < liquidLikeBelow(second)) {
      density = liquidDensity;
      quality = 0.0;
    }
  } else {
    const Bracket line = bracketT(second, value, T);
    const bool vapour = isDensity ? value <= line.vapour : value >= line.vapour;
    const bool liquid = !vapour && (isDensity ? value >= line.liquid : value <= line.liquid);
    if (vapour) {
      side = Side::vapour;
    } else if (liquid) {
      side = Side::liquid;
      if (!isDensity) density = liquidDensity;
      quality = 0.0;
    } else {
      state_.temperature = T;
      state_.quality =
          isDensity ? (1.0 / value - 1.0 / line.liquid) / (1.0 / line.vapour - 1.0 / line.liquid)
                    : (value - line.liquid) / (line.vapour - line.liquid);
      return Phases::two;
    }
  }
  store(solveState({Equation::temperature, T}, {equationOf(second), value}, {T, density}, side),
        quality);
  return Phases::one;
}

}  // namespace calvex
