#include "direct/enthalpy_entropy.h"

#include <hwy/base.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <type_traits>
#include <vector>

#include "direct/starting_tables.h"
#include "steam/constants.h"
#include "steam/phase_equilibrium.h"
#include "steam/property.h"

namespace calvex::direct {

namespace {

#include "direct/one_lane-inl.h"
//
#include "direct/states-inl.h"

using namespace constants;

// A saturated state is found from one side of the line or from the other.
constexpr double onTheLine = 1e-9;

// On the line a mixture has g(T) = h - T s. The difference falls with rising T as long as s is more
// than the liquid's, and with it the mixture exists.
bool mixture(double h, double s, FoundState& state) {
  const auto excess = [&](double T, PhaseEquilibrium& line) {
    line = calvex::equilibriumAtT(T);
    TemperaturePart part;
    part.prepare(T, TemperatureOrder::energy);
    return h - T * s - HelmholtzPoint(part, line.liquidDensity).gibbs();
  };
  PhaseEquilibrium line;
  double low = triplePointTemperature;
  double high = criticalTemperature;
  const auto liquidEntropy = [&](double T) {
    return calvex::evaluate(Property::entropy, T, calvex::equilibriumAtT(T).liquidDensity);
  };
  if (s < liquidEntropy(high)) {
    double cold = low;
    while (high - cold > 1e-9 * high) {
      const double middle = 0.5 * (cold + high);
      (liquidEntropy(middle) <= s ? cold : high) = middle;
    }
  }
  if (!(excess(low, line) >= 0.0) || !(excess(high, line) <= 0.0)) return false;
  while (high - low > 1e-12 * high) {
    const double middle = 0.5 * (low + high);
    if (middle == low || middle == high) break;
    (excess(middle, line) >= 0.0 ? low : high) = middle;
  }
  line = calvex::equilibriumAtT(low);
  TemperaturePart part;
  part.prepare(low, TemperatureOrder::energy);
  const double liquid = HelmholtzPoint(part, line.liquidDensity).entropy();
  const double vapour = HelmholtzPoint(part, line.vapourDensity).entropy();
  const double quality = (s - liquid) / (vapour - liquid);
  if (!(quality >= -onTheLine && quality <= 1.0 + onTheLine)) return false;
  state = {
      true, low, line.liquidDensity, line.vapourDensity, line.P, std::clamp(quality, 0.0, 1.0)};
  return true;
}

// Whether the members would answer it from another pair.
bool isState(double T, double density) {
  if (!(T >= lowestTemperature && T <= highestTemperature)) return false;
  const double P = calvex::evaluate(Property::pressure, T, density);
  if (!(P > 0.0 && P <= highestPressure)) return false;
  if (T >= criticalTemperature) return true;
  if (T < triplePointTemperature) return (density < 100.0) == (P < triplePointPressure);
  const PhaseEquilibrium line = calvex::equilibriumAtT(T);
  return density >= line.liquidDensity * (1.0 - onTheLine) ||
         density <= line.vapourDensity * (1.0 + onTheLine);
}

struct Known {
  double T, density, h, s;
};

// States over the whole range, to start from.
const std::vector<Known>& knownStates() {
  static const std::vector<Known> states = [] {
    std::vector<Known> all;
    for (const double T : {262.0, 275.0, 300.0, 350.0, 420.0, 500.0, 560.0, 610.0, 640.0, 648.0,
                           660.0, 700.0, 800.0, 1000.0, 1300.0, 1700.0, 2100.0, 2450.0}) {
      TemperaturePart part;
      part.prepare(T, TemperatureOrder::energy);
      double P = 1e-7;
      for (double density = 1e-8; P < 3500.0;
           density = density < 50.0 ? density * 3.0 : density + 25.0) {
        const HelmholtzPoint point(part, density);
        P = point.pressure();
        if (isState(T, density)) all.push_back({T, density, point.enthalpy(), point.entropy()});
      }
    }
    return all;
  }();
  return states;
}

}  // namespace

int stateFromHS(double h, double s, FoundState& state) {
  // One phase first: it is the cheaper search.
  const auto distance = [&](const Known& known) {
    return std::fabs(known.h - h) / 1000.0 + std::fabs(known.s - s);
  };
  std::array<Known, 12> nearest;
  std::partial_sort_copy(knownStates().begin(), knownStates().end(), nearest.begin(), nearest.end(),
                         [&](const Known& a, const Known& b) { return distance(a) < distance(b); });
  for (const Known& start : nearest) {
    const auto found = stateFrom<Letter::H, Letter::S>(h, s, start.T, start.density);
    if (!found.found || !isState(found.T, found.density)) continue;
    state = {false, found.T, found.density, 0.0, 0.0, 0.0};
    return 0;
  }
  return mixture(h, s, state) ? 0 : static_cast<int>(Message::solutionError);
}

}  // namespace calvex::direct
