// States from two properties.
#include <algorithm>
#include <cmath>

#include "diagnostics/thermo_exception.h"
#include "steam/constants.h"
#include "steam/phase_equilibrium.h"
#include "steam/root_search.h"
#include "steam/saturation_correlations.h"
#include "steam/steam_model.h"

namespace calvex {

namespace {

using constants::criticalPressure;
using constants::criticalRegion;
using constants::criticalTemperature;
using constants::densest;
using constants::gasConstant;
using constants::highestTemperature;
using constants::lowestTemperature;
using constants::triplePointPressure;
using constants::triplePointTemperature;

// Starting points: the temperature of an unknown state, a gas, a liquid.
constexpr double defaultTemperature = 773.15;
constexpr double gasDensity = 1.0;
constexpr double liquidDensity = 1000.0;

// The pressure of the line 0.5 K below the critical point, MPa.
constexpr double scalingLawFrom = 21.92;

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

// A saturated liquid's value that was read from a printed table misses its own by so much: half a
// digit in two or four decimals, and what its own temperature was rounded by.
double tableRounding(Property property) {
  switch (property) {
    case Property::enthalpy:
    case Property::internalEnergy:
      return 0.01;  // kJ/kg
    case Property::entropy:
      return 1e-4;  // kJ/(kg.K)
    default:
      return 0.0;
  }
}

double idealGasDensity(double P, double T) { return 1000.0 * P / (gasConstant * T); }

// Superheat of steam from pressure and enthalpy, K; fitted for 0.4..10.5 MPa and 2715..3130 kJ/kg.
double superheatGuess(double P, double Ts, double hv, double h) {
  return 1.463499706 * P - 0.348658865 * Ts + 0.440416954 * hv - 0.467775058 * h -
         0.008078662 * P * P + 6.47361e-05 * Ts * Ts - 0.000101467 * hv * hv + 0.00013199 * h * h;
}

// Temperature of steam whose entropy is ds above that at T: the ideal gas with a heat capacity from
// the middle of its range (1.87 kJ/(kg.K) at 300 K, 2.9 at 2500 K).
double superheatedBy(double ds, double T) {
  return std::clamp(T * std::exp(ds / 2.2), lowestTemperature, highestTemperature);
}

[[noreturn]] void failWithoutSolution() {
  throw ZvThermoException(std::string(messageText(Message::solutionError)));
}

// Water without pressure has no density; the solver would answer with the nothing it starts from.
void requirePressure(double P) {
  if (!(P > 0.0)) failWithoutSolution();
}

// No state has an infinite property, or no density, or more than water can have: there the terms of
// the equation, 1e56 MPa large, leave nothing but their rounding, which changes its sign somewhere.
void requireValue(Property property, double value) {
  const bool isPossible = property != Property::density || (value > 0.0 && value < densest);
  if (!std::isfinite(value) || !isPossible) failWithoutSolution();
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
    if (T < triplePointTemperature) {
      side = P < triplePointPressure ? Side::vapour : Side::liquid;
    } else {
      double Ps = saturation::pressure(T);
      // How far from its correlation the line is asked for itself. The unpolished line has a better
      // value at hand next to the critical point only; the sense of that test is meant.
      const double band = polish() == SatPolish::correlation ? 0.03
                          : polish() == SatPolish::deciding  ? 0.005
                                                             : 0.0;
      if (std::fabs(1.0 - P / Ps) < band) Ps = PSatT(T);
      if (std::fabs(1.0 - P / Ps) < 0.0001) return Phases::two;
      side = P > Ps ? Side::liquid : Side::vapour;
    }
    guess = side == Side::liquid ? liquidDensity : idealGasDensity(P, T);
  }
  store({T, densityAt(P, T, guess, side)}, state_.quality);
  return Phases::one;
}

double SteamModel::waterEnthalpy(double P, double T) {
  const bool hasLine = T < criticalTemperature;
  if (hasLine && P < saturation::pressure(T)) {
    if (const PhaseEquilibrium line = equilibriumAtT(T); P < line.P) {
      const auto density = roots::superheatedLiquid(P, T, line.liquidDensity);
      if (!density) failWithoutSolution();
      return propertyAt(Property::enthalpy, T, *density);
    }
  }
  return propertyAt(Property::enthalpy, T,
                    densityAt(P, T, liquidDensity, hasLine ? Side::liquid : Side::any));
}

Phases SteamModel::stateFromP(double P, Property second, double value) {
  requirePressure(P);
  requireValue(second, value);
  const bool isDensity = second == Property::density;
  Request request{{Equation::pressure, P},
                  {equationOf(second), value},
                  Side::vapour,
                  {defaultTemperature, gasDensity},
                  lowestTemperature,
                  highestTemperature,
                  0.0};
  Start& start = request.start;
  double quality = 1.0;
  if (P >= criticalPressure) {
    request.side = Side::liquid;
    if (!isDensity && value < liquidLikeBelow(second)) {
      start.density = liquidDensity;
      quality = 0.0;
    } else if (second == Property::entropy) {
      start.density = std::min(idealGasDensity(P, start.temperature), liquidDensity);
    }
  } else if (P < triplePointPressure) {
    // No line: a vapour.
    start.temperature = triplePointTemperature;
    if (second == Property::entropy) {
      constexpr double saturated = 9.1541;  // s'' of the triple point, kJ/(kg.K)
      start.temperature =
          superheatedBy(value - saturated + gasConstant * std::log(P / triplePointPressure),
                        triplePointTemperature);
    }
    start.density = idealGasDensity(P, start.temperature);
  } else {
    const Bracket line = bracketP(second, value, P);
    start.temperature = line.line.T;
    // Density runs the other way: a vapour is lighter than saturated vapour.
    const bool vapour = isDensity ? value <= line.vapour : value >= line.vapour;
    const bool liquid = !vapour && (isDensity ? value >= line.liquid : value <= line.liquid);
    // The solver's share of the error of the line's temperature is far below 1e-6.
    if (vapour) {
      request.TMin = line.line.T * (1.0 - 1e-6);
      start.density = std::min(line.line.vapourDensity, gasDensity);
      if (second == Property::enthalpy) {
        if (P >= 0.4 && P <= 10.5 && value >= 2715.0 && value <= 3130.0) {
          const double superheat = superheatGuess(P, line.line.T, line.vapour, value);
          if (superheat >= 0.0 && superheat <= 100.0) {
            start.temperature += superheat;
            start.density = std::min(start.density, idealGasDensity(P, start.temperature));
          }
        }
      } else {
        if (second == Property::entropy) {
          start.temperature = superheatedBy(value - line.vapour, line.line.T);
        }
        start.density = std::min(start.density, idealGasDensity(P, start.temperature));
      }
    } else if (liquid) {
      request.side = Side::liquid;
      request.TMax = line.line.T * (1.0 + 1e-6);
      start.density = std::max(line.line.liquidDensity, liquidDensity);
      quality = 0.0;
    } else {
      return storeMixture(second, line, value);
    }
  }
  if (isDensity) start.density = value;
  int status = 0;
  if (const auto found = findState(request, status)) {
    store(*found, quality);
    return Phases::one;
  }
  if (P > scalingLawFrom && P < criticalPressure && polish() != SatPolish::deciding) {
    return onExactLine([&] { return stateFromP(P, second, value); });
  }
  raiseWithoutState(status);
}

Phases SteamModel::stateFromT(double T, Property second, double value) {
  requireValue(second, value);
  const bool isDensity = second == Property::density;
  Request request{{Equation::temperature, T},
                  {equationOf(second), value},
                  Side::any,
                  {T, isDensity ? value : gasDensity},
                  lowestTemperature,
                  highestTemperature,
                  0.0};
  double quality = 1.0;
  std::optional<Bracket> line;
  if (T >= criticalTemperature) {
    if (!isDensity && value < liquidLikeBelow(second)) {
      request.start.density = liquidDensity;
      quality = 0.0;
    }
  } else {
    line = bracketT(second, value, T);
    const bool vapour = isDensity ? value <= line->vapour : value >= line->vapour;
    const bool liquid = !vapour && (isDensity ? value >= line->liquid : value <= line->liquid);
    if (!vapour && !liquid) return storeMixture(second, *line, value);
    if (vapour) {
      request.side = Side::vapour;
      request.saturated = line->line.vapourDensity;
    } else {
      request.side = Side::liquid;
      request.saturated = line->line.liquidDensity;
      if (!isDensity) request.start.density = liquidDensity;
      quality = 0.0;
    }
  }

  int status = 0;
  if (const auto found = findState(request, status)) {
    store(*found, quality);
    return Phases::one;
  }
  if (line && !isDensity) {
    if (request.side == Side::liquid && line->liquid - value <= tableRounding(second)) {
      store({T, line->line.liquidDensity}, quality);
      return Phases::one;
    }
    // Above 1000 MPa a liquid may have more enthalpy than any vapour.
    if (request.side == Side::vapour && T >= triplePointTemperature) {
      request.side = Side::liquid;
      request.saturated = densityOfLiquid(line->line, liquidDensity);
      if (const auto found = search(request); found && isState(request, *found, Side::liquid)) {
        store(*found, 0.0);
        return Phases::one;
      }
    }
  }
  if (T >= criticalTemperature - criticalRegion && T < criticalTemperature &&
      polish() != SatPolish::deciding) {
    return onExactLine([&] { return stateFromT(T, second, value); });
  }
  raiseWithoutState(status);
}

// Between the phases of the equation, next to the critical point, where the scaling law has none.
Phases SteamModel::onExactLine(const auto& call) {
  struct Deciding {
    explicit Deciding(int& flag) : flag_(flag), kept_(flag) { flag_ = 2; }
    ~Deciding() { flag_ = kept_; }
    Deciding(const Deciding&) = delete;
    Deciding& operator=(const Deciding&) = delete;
    int& flag_;
    int kept_;
  };
  const Deciding deciding(satPolish_);
  return call();
}

Phases SteamModel::storeMixture(Property property, const Bracket& line, double value) {
  state_.temperature = line.line.T;
  state_.vapourDensity = line.line.vapourDensity;
  state_.liquidDensity = line.line.liquidDensity;
  state_.quality = property == Property::density
                       ? (1.0 / value - 1.0 / line.liquid) / (1.0 / line.vapour - 1.0 / line.liquid)
                       : (value - line.liquid) / (line.vapour - line.liquid);
  return Phases::two;
}

}  // namespace calvex
