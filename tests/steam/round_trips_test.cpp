// A state found from (P, T) is found again from every other pair of its properties.
#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>

#include "diagnostics/thermo_exception.h"
#include "steam/constants.h"
#include "steam/saturation_correlations.h"
#include "steam/steam_model.h"

namespace calvex {
namespace {

// Sanitizers make a state about twenty times as dear.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int states = 5'000;
#else
constexpr int states = 100'000;
#endif

constexpr Property seconds[] = {Property::enthalpy, Property::entropy, Property::internalEnergy,
                                Property::density};
constexpr const char* letters = "HSUR";

struct Range {
  double TMin, TMax;  // K
  double PMin, PMax;  // MPa, sampled by the logarithm
};

// What came of the inversions of one pair.
struct Tally {
  int same = 0;    // the state that the values came from
  int other = 0;   // another one that meets both inputs
  int failed = 0;  // none, or one that does not meet them
  std::string examples;
};

struct Truth {
  double P, T, density;
  bool nearLine;
};

double mixed(SteamModel& steam, Property property, double T, double Q) {
  const double vapour = steam.saturatedTQ(property, T, 1.0);
  const double liquid = steam.saturatedTQ(property, T, 0.0);
  return property == Property::density ? 1.0 / ((1.0 - Q) / liquid + Q / vapour)
                                       : (1.0 - Q) * liquid + Q * vapour;
}

bool close(double a, double b, double relative, double absolute = 0.0) {
  return std::fabs(a - b) <= relative * std::max(std::fabs(a), std::fabs(b)) + absolute;
}

// Whether that answer is the one meant although it is not the state that the values came from.
bool mayBeAnother(const Truth& truth, bool fromT, Property second, const SteamState& found) {
  if (truth.nearLine) return true;
  if (!fromT) {
    // The warmer of two temperatures; beyond 1000 MPa, where no formulation was ever fitted to cold
    // water, its entropy and energy do not rise with temperature everywhere.
    return (second == Property::density && found.temperature > truth.T) ||
           (truth.P > 1000.0 && truth.T < 700.0);
  }
  // Above the critical temperature either side; below it the liquid nearer the line.
  if (truth.T >= constants::criticalTemperature) {
    // A thin gas's energies tell its density as far as they have digits.
    return truth.density > 30.0 || close(found.density, truth.density, 0.0, 3e-6);
  }
  return truth.density > constants::criticalDensity && found.density < truth.density;
}

void invert(SteamModel& steam, const Truth& truth, bool fromT, Property second, Tally& tally) {
  const double value = evaluate(second, truth.T, truth.density);
  if (value < 0.0) return;  // no member takes a negative input
  // Below the triple point a temperature's energies and entropy are a vapour's or none.
  if (fromT && truth.T < constants::triplePointTemperature && second != Property::density &&
      truth.density > constants::criticalDensity) {
    return;
  }
  const auto fail = [&](const std::string& what) {
    if (++tally.failed <= 5) {
      tally.examples += fmt::format("  P {:.9g} T {:.9g} density {:.9g} value {:.9g}: {}\n",
                                    truth.P, truth.T, truth.density, value, what);
    }
  };
  try {
    const Phases phases =
        fromT ? steam.stateFromT(truth.T, second, value) : steam.stateFromP(truth.P, second, value);
    const SteamState state = steam.state();
    // Specific tolerance of energies next to their zero: 1e-4 kJ/kg and 1e-6 kJ/(kg.K).
    const double small = second == Property::entropy ? 1e-6 : 1e-4;
    if (phases == Phases::two) {
      const double found =
          fromT ? mixed(steam, second, truth.T, state.quality) : steam.mixtureProperty(second);
      const bool meets = close(found, value, 1e-8, small);
      // A dense fluid's enthalpy and energy, and its entropy and density around the density
      // maximum, are also those of some mixture.
      const bool mayBe = truth.nearLine || ((fromT || second == Property::density) &&
                                            truth.density > constants::criticalDensity);
      if (meets && mayBe) {
        ++tally.other;
      } else {
        fail(fmt::format("two phases, T {:.9g} quality {:.9g}", state.temperature, state.quality));
      }
      return;
    }
    if (close(state.density, truth.density, 1e-5) && close(state.temperature, truth.T, 1e-5)) {
      ++tally.same;
      return;
    }
    const double P = evaluate(Property::pressure, state.temperature, state.density);
    const bool meets =
        P > 0.0 && P <= 3000.001 && state.temperature >= 260.0 && state.temperature <= 2500.0 &&
        close(evaluate(second, state.temperature, state.density), value, 1e-8, small) &&
        (fromT ? state.temperature == truth.T : close(P, truth.P, 1e-8, 1e-8));
    if (meets && mayBeAnother(truth, fromT, second, state)) {
      ++tally.other;
    } else {
      fail(fmt::format("T {:.9g} density {:.9g} P {:.9g}", state.temperature, state.density, P));
    }
  } catch (const ZvThermoException& failure) {
    fail(failure.what());
  }
}

// Answers the share of inversions that met their inputs, and prints the others.
void roundTrips(const Range& range, int count, double share) {
  const auto seed = static_cast<unsigned>(std::random_device{}());
  SCOPED_TRACE(fmt::format("seed {}", seed));
  std::mt19937_64 random(seed);
  std::uniform_real_distribution<double> uniform(0.0, 1.0);
  Diagnostics diagnostics;
  SteamModel steam(diagnostics);
  Tally tallies[2][4];
  for (int i = 0; i < count; ++i) {
    Truth truth{};
    truth.T = range.TMin + (range.TMax - range.TMin) * uniform(random);
    truth.P = range.PMin * std::pow(range.PMax / range.PMin, uniform(random));
    ASSERT_NO_THROW({
      if (steam.stateFromPT(truth.P, truth.T) == Phases::two) continue;
    }) << fmt::format("P {:.17g} T {:.17g}", truth.P, truth.T);
    truth.density = steam.state().density;
    ASSERT_TRUE(close(evaluate(Property::pressure, truth.T, truth.density), truth.P, 1e-7, 1e-8))
        << fmt::format("P {:.17g} T {:.17g}", truth.P, truth.T);
    // The correlation that (P, T) decides by and the exact line differ by up to 0.2 %.
    truth.nearLine = truth.T < constants::criticalTemperature &&
                     close(truth.P, saturation::pressure(truth.T), 0.002);
    for (const bool fromT : {false, true}) {
      for (int k = 0; k < 4; ++k) invert(steam, truth, fromT, seconds[k], tallies[fromT][k]);
    }
  }
  for (const bool fromT : {false, true}) {
    for (int k = 0; k < 4; ++k) {
      const Tally& tally = tallies[fromT][k];
      const int all = tally.same + tally.other + tally.failed;
      // What is rare scatters: five standard deviations above its mean.
      const double mean = (1.0 - share) * all;
      EXPECT_LE(tally.failed, mean + 5.0 * std::sqrt(mean))
          << (fromT ? 'T' : 'P') << letters[k] << ": " << tally.failed << " of " << all
          << " failed, for example\n"
          << tally.examples;
    }
    // A pair with the pressure and an energy or entropy determines the state.
    if (!fromT && range.TMin >= constants::triplePointTemperature) {
      for (int k = 0; k < 3; ++k) EXPECT_LE(tallies[fromT][k].other, 0.02 * count) << letters[k];
    }
  }
}

TEST(RoundTrips, AllStatesOfTheWorkingRangeComeBackFromEveryPair) {
  roundTrips({273.16, 1273.15, 611.73e-6, 100.0}, states, 1.0);
}

TEST(RoundTrips, AllStatesAroundTheCriticalPointComeBackFromEveryPair) {
  roundTrips({640.0, 655.0, 20.0, 24.0}, states / 5, 1.0);
}

TEST(RoundTrips, AllStatesNextToTheCriticalPointComeBackFromEveryPair) {
  roundTrips({646.5, 647.3, 21.9, 22.1}, states / 20, 1.0);
}

TEST(RoundTrips, NearlyAllStatesOfTheHardRangeComeBackFromEveryPair) {
  roundTrips({260.0, 2500.0, 1e-4, 3000.0}, states / 2, 0.999);
}

}  // namespace
}  // namespace calvex
