#include "direct/member_road.h"

#include <algorithm>
#include <cmath>

#include "diagnostics/thermo_exception.h"
#include "direct/enthalpy_entropy.h"
#include "steam/constants.h"
#include "steam/phase_equilibrium.h"

namespace calvex::direct {

namespace {

using namespace constants;

constexpr int outOfRangeUnit = static_cast<int>(Message::outOfRangeUnit);
constexpr int outOfRange = static_cast<int>(Message::outOfRange);
constexpr int solutionError = static_cast<int>(Message::solutionError);

// Lowest, highest, and where the ranges of transport correlations end; with a pressure the line's
// ends, the last two, are no bounds. K, MPa.
constexpr double temperatures[] = {
    lowestTemperature,      highestTemperature, celsiusZero, 1073.15, 823.15,
    triplePointTemperature, criticalTemperature};
constexpr double pressures[] = {0.0, highestPressure, 100.0, 350.0, 500.0, 1000.0};
constexpr double temperaturesOfLine[] = {triplePointTemperature, criticalTemperature};
constexpr double pressuresOfLine[] = {triplePointPressure, criticalPressure};
constexpr double qualities[] = {0.0, 1.0};

// The comparisons are written so that a NaN is out of range.
int checkRange(double x, double low, double high) {
  return x >= low && x <= high ? 0 : outOfRangeUnit;
}
int checkInput(Pair pair, Letter input, double x) {
  const std::span<const double> bounds = boundsOf(pair, input);
  if (bounds.empty()) return x >= 0.0 ? 0 : outOfRange;
  return checkRange(x, bounds[0], bounds[1]);
}

FoundState mixtureAtT(double T, double quality) {
  const PhaseEquilibrium line = equilibriumAtT(T);
  return {true, T, line.liquidDensity, line.vapourDensity, line.P, quality};
}

// The line ends at the triple point, whose rounded pressure belongs to a little less.
FoundState mixtureAtP(double P, double quality) {
  const PhaseEquilibrium line = equilibriumAtP(P);
  const double T = std::clamp(line.T, triplePointTemperature, criticalTemperature);
  return {true, T, line.liquidDensity, line.vapourDensity, P, quality};
}

Property propertyOfSecond(Pair pair) {
  switch (secondOf(pair)) {
    case Letter::H:
      return Property::enthalpy;
    case Letter::S:
      return Property::entropy;
    case Letter::U:
      return Property::internalEnergy;
    default:
      return Property::density;
  }
}

}  // namespace

std::span<const double> boundsOf(Pair pair, Letter input) noexcept {
  const bool onLine = secondOf(pair) == Letter::Q;
  const auto either = [&](std::span<const double> line, std::span<const double> all) {
    return onLine ? line : all;
  };
  switch (input) {
    case Letter::P:
      return either(pressuresOfLine, pressures);
    case Letter::T:
      return either(temperaturesOfLine, std::span(temperatures).first(pair == Pair::PT ? 5 : 7));
    case Letter::Q:
      return qualities;
    default:
      return {};
  }
}

int checkInputs(Pair pair, double first, double second) noexcept {
  const int one = checkInput(pair, firstOf(pair), first);
  const int other = checkInput(pair, secondOf(pair), second);
  // The members ask for the temperature before the pressure.
  const int status = pair == Pair::PT && other != 0 ? other : one != 0 ? one : other;
  if (status != 0 || pair != Pair::HS || std::isfinite(first + second)) return status;
  return solutionError;
}

int checkTransport(Letter letter, double P, double T) noexcept {
  if (letter != Letter::M && letter != Letter::E && letter != Letter::K && letter != Letter::N) {
    return 0;
  }
  const double highestP = letter == Letter::E                  ? 500.0
                          : letter != Letter::M || T >= 833.15 ? 100.0
                          : T < 373.15                         ? 1000.0
                                                               : 350.0;
  const int status = checkRange(T, celsiusZero, letter == Letter::E ? 823.15 : 1073.15);
  return status != 0 ? status : checkRange(P, 0.0, highestP);
}

MemberRoad::MemberRoad() : model_(diagnostics_) {
  diagnostics_.setTracing(0);
  model_.setSatPolish(2);
}

int MemberRoad::find(Pair pair, double first, double second, FoundState& state) noexcept {
  try {
    if (const int status = checkInputs(pair, first, second); status != 0) return status;
    const int status = solve(pair, first, second, state);
    if (status != 0) return status;
    const bool finite = std::isfinite(state.T) && std::isfinite(state.density);
    return finite ? 0 : solutionError;
  } catch (const ZvThermoException& failure) {
    const short number = messageNumber(failure.what());
    return number == static_cast<short>(Message::errorFrame) ? solutionError : number;
  } catch (...) {
    return solutionError;
  }
}

int MemberRoad::solve(Pair pair, double first, double second, FoundState& state) {
  Phases phases = Phases::one;
  switch (pair) {
    case Pair::PT:
      if (model_.stateFromPT(first, second) == Phases::two) {
        return static_cast<int>(Message::twoPhase);
      }
      break;
    case Pair::PQ:
      state = mixtureAtP(first, second);
      return 0;
    case Pair::TQ:
      state = mixtureAtT(first, second);
      return 0;
    case Pair::HS:
      return stateFromHS(first, second, state);
    default: {
      const bool isVolume = secondOf(pair) == Letter::V;
      const double value = isVolume ? 1.0 / second : second;
      phases = firstOf(pair) == Letter::P ? model_.stateFromP(first, propertyOfSecond(pair), value)
                                          : model_.stateFromT(first, propertyOfSecond(pair), value);
    }
  }
  const SteamState& found = model_.state();
  if (phases == Phases::two) {
    // There are no two phases below the triple point.
    if (firstOf(pair) == Letter::T && first < triplePointTemperature) {
      return outOfRangeUnit;
    }
    state = firstOf(pair) == Letter::P ? mixtureAtP(first, found.quality)
                                       : mixtureAtT(first, found.quality);
  } else {
    state = {false, found.temperature, found.density, 0.0, 0.0, found.quality};
  }
  return 0;
}

}  // namespace calvex::direct
