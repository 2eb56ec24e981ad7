#include "direct/member_road.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "diagnostics/thermo_exception.h"
#include "direct/enthalpy_entropy.h"
#include "steam/constants.h"
#include "steam/phase_equilibrium.h"

namespace calvex::direct {

namespace {

constexpr int outOfRangeUnit = static_cast<int>(Message::outOfRangeUnit);
constexpr int outOfRange = static_cast<int>(Message::outOfRange);

// The comparisons are written so that a NaN is out of range.
int checkRange(double x, double low, double high) {
  return x >= low && x <= high ? 0 : outOfRangeUnit;
}

int numberOf(std::string_view text) {
  for (const Message message : {Message::maximumIterations, Message::solutionError,
                                Message::twoPhase, Message::unknownSolverCode}) {
    if (text.starts_with(messageText(message))) return static_cast<int>(message);
  }
  const std::string_view noSolution = messageText(Message::noSolution);
  const bool is = text.starts_with(noSolution.substr(0, noSolution.find('%')));
  return static_cast<int>(is ? Message::noSolution : Message::solutionError);
}

FoundState mixtureAtT(double T, double quality) {
  const PhaseEquilibrium line = equilibriumAtT(T);
  return {true, T, line.liquidDensity, line.vapourDensity, line.P, quality};
}

// The line ends at the triple point, whose rounded pressure belongs to a little less.
FoundState mixtureAtP(double P, double quality) {
  const PhaseEquilibrium line = equilibriumAtP(P);
  const double T =
      std::clamp(line.T, constants::triplePointTemperature, constants::criticalTemperature);
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

int checkInputs(Pair pair, double first, double second) noexcept {
  using namespace constants;
  switch (pair) {
    case Pair::PT:
      if (const int status = checkRange(second, 260.0, 2500.0); status != 0) return status;
      return checkRange(first, 0.0, 3000.0);
    case Pair::PQ:
      if (const int status = checkRange(first, triplePointPressure, criticalPressure); status != 0)
        return status;
      return checkRange(second, 0.0, 1.0);
    case Pair::TQ:
      if (const int status = checkRange(first, triplePointTemperature, criticalTemperature);
          status != 0)
        return status;
      return checkRange(second, 0.0, 1.0);
    case Pair::HS:
      if (!(first >= 0.0 && second >= 0.0)) return outOfRange;
      return std::isfinite(first) && std::isfinite(second)
                 ? 0
                 : static_cast<int>(Message::solutionError);
    default:
      break;
  }
  const int status = firstOf(pair) == Letter::P ? checkRange(first, 0.0, 3000.0)
                                                : checkRange(first, 260.0, 2500.0);
  if (status != 0) return status;
  return second >= 0.0 ? 0 : outOfRange;
}

double highestTransportTemperature(Letter letter) noexcept {
  return letter == Letter::E ? 823.15 : 1073.15;
}

double highestTransportPressure(Letter letter, double T) noexcept {
  if (letter == Letter::M) return T < 373.15 ? 1000.0 : T < 833.15 ? 350.0 : 100.0;
  return letter == Letter::E ? 500.0 : 100.0;
}

int checkTransport(Letter letter, double P, double T) noexcept {
  if (letter != Letter::M && letter != Letter::E && letter != Letter::K && letter != Letter::N) {
    return 0;
  }
  const int status = checkRange(T, constants::celsiusZero, highestTransportTemperature(letter));
  return status != 0 ? status : checkRange(P, 0.0, highestTransportPressure(letter, T));
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
    return finite ? 0 : static_cast<int>(Message::solutionError);
  } catch (const ZvThermoException& failure) {
    return numberOf(failure.what());
  } catch (...) {
    return static_cast<int>(Message::solutionError);
  }
}

std::string MemberRoad::refusal(Pair pair, double first, double second) {
  try {
    FoundState state;
    solve(pair, first, second, state);
    return {};
  } catch (const ZvThermoException& failure) {
    return failure.what();
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
    if (firstOf(pair) == Letter::T && first < constants::triplePointTemperature) {
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
