// What a state costs, in evaluations of the equation: a worse starting value, step or limit answers
// the same and shows here only.
#include <fmt/format.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <string_view>

#include "diagnostics/thermo_exception.h"
#include "steam/phase_equilibrium.h"
#include "steam/steam_model.h"

namespace calvex::test {
namespace {

class Costs : public ::testing::TestWithParam<const char*> {
 protected:
  // The evaluations of all solves of a call, which the solver's notes tell.
  int of(const auto& call) {
    diagnostics.setLevel(2);
    diagnostics.clear();
    {
      const ZvFuncTrace trace(diagnostics, "test");
      try {
        call();
      } catch (const ZvThermoException&) {
      }
    }
    int evaluations = 0;
    const ZvFunctionCall* node = diagnostics.root().firstChild();
    if (node == nullptr) return 0;
    constexpr std::string_view begin = "Solver : Iter = ";
    for (node = node->firstChild(); node != nullptr; node = node->nextSibling()) {
      const std::string text(node->text());
      if (text.starts_with(begin)) evaluations += std::stoi(text.substr(begin.size()));
    }
    return evaluations;
  }

  Diagnostics diagnostics;
  SteamModel steam{diagnostics};
};

/// States over a rectangle of temperatures (K) and pressures (MPa, in equal factors).
struct Region {
  double TMin, TMax, PMin, PMax;
};
constexpr Region steamOfPlants{460.0, 640.0, 0.4, 1.1}, steamAnywhere{600.0, 1200.0, 0.1, 10.0};
constexpr Region saturatedSteam{540.0, 600.0, 1.0, 4.0}, vacuum{310.0, 700.0, 1e-4, 5e-3};
constexpr Region belowTriplePoint{262.0, 600.0, 1e-7, 5e-4}, water{280.0, 450.0, 1.0, 100.0};
constexpr Region hotWater{560.0, 610.0, 15.0, 60.0}, compressedWater{330.0, 630.0, 100.0, 2900.0};
constexpr Region pseudocritical{648.0, 672.0, 22.5, 30.0}, dense{650.0, 800.0, 25.0, 100.0};
constexpr Region hot{800.0, 2000.0, 23.0, 800.0};

struct Cost {
  std::string_view pair;
  const char* name;
  Region region;
  double most;  ///< evaluations a state, on average
};

// As measured, and half a per cent more for other compilers' rounding.
const Cost costs[] = {
    {"PH", "steamOfPlants", steamOfPlants, 14.36},
    {"PH", "saturatedSteam", saturatedSteam, 14.29},
    {"PH", "steamAnywhere", steamAnywhere, 15.58},
    {"PH", "vacuum", vacuum, 13.41},
    {"PH", "belowTriplePoint", belowTriplePoint, 12.71},
    {"PH", "water", water, 17.08},
    {"PH", "hotWater", hotWater, 21.97},
    {"PH", "compressedWater", compressedWater, 20.14},
    {"PH", "pseudocritical", pseudocritical, 32.37},
    {"PH", "dense", dense, 23.89},
    {"PH", "hot", hot, 23.81},
    {"PS", "steamOfPlants", steamOfPlants, 17.78},
    {"PS", "saturatedSteam", saturatedSteam, 21.04},
    {"PS", "steamAnywhere", steamAnywhere, 18.0},
    {"PS", "vacuum", vacuum, 13.03},
    {"PS", "belowTriplePoint", belowTriplePoint, 12.72},
    {"PS", "water", water, 36.13},
    {"PS", "hotWater", hotWater, 21.79},
    {"PS", "compressedWater", compressedWater, 45.08},
    {"PS", "pseudocritical", pseudocritical, 37.93},
    {"PS", "dense", dense, 23.04},
    {"PS", "hot", hot, 42.59},
    {"PU", "steamOfPlants", steamOfPlants, 15.69},
    {"PU", "saturatedSteam", saturatedSteam, 16.84},
    {"PU", "steamAnywhere", steamAnywhere, 15.9},
    {"PU", "vacuum", vacuum, 13.86},
    {"PU", "belowTriplePoint", belowTriplePoint, 13.04},
    {"PU", "water", water, 16.98},
    {"PU", "hotWater", hotWater, 21.6},
    {"PU", "compressedWater", compressedWater, 17.59},
    {"PU", "pseudocritical", pseudocritical, 32.48},
    {"PU", "dense", dense, 23.94},
    {"PU", "hot", hot, 22.27},
    {"PR", "steamAnywhere", steamAnywhere, 13.12},
    {"PR", "belowTriplePoint", belowTriplePoint, 9.93},
    {"PR", "hotWater", hotWater, 13.07},
    {"PR", "dense", dense, 12.18},
    {"PR", "hot", hot, 14.58},
    {"TH", "steamAnywhere", steamAnywhere, 10.22},
    {"TH", "vacuum", vacuum, 13.1},
    {"TH", "belowTriplePoint", belowTriplePoint, 16.73},
    {"TH", "hotWater", hotWater, 23.15},
    {"TH", "pseudocritical", pseudocritical, 15.78},
    {"TH", "dense", dense, 17.95},
    {"TH", "hot", hot, 17.67},
    {"TS", "steamAnywhere", steamAnywhere, 18.99},
    {"TS", "vacuum", vacuum, 38.88},
    {"TS", "belowTriplePoint", belowTriplePoint, 57.53},
    {"TS", "water", water, 11.03},
    {"TS", "hotWater", hotWater, 13.07},
    {"TS", "pseudocritical", pseudocritical, 23.0},
    {"TS", "dense", dense, 24.62},
    {"TS", "hot", hot, 30.35},
    {"TU", "steamAnywhere", steamAnywhere, 10.65},
    {"TU", "vacuum", vacuum, 13.14},
    {"TU", "belowTriplePoint", belowTriplePoint, 16.16},
    {"TU", "water", water, 13.68},
    {"TU", "hotWater", hotWater, 16.46},
    {"TU", "pseudocritical", pseudocritical, 18.03},
    {"TU", "dense", dense, 17.15},
    {"TU", "hot", hot, 15.08},
    {"PT", "steamAnywhere", steamAnywhere, 10.9},
    {"PT", "vacuum", vacuum, 5.74},
    {"PT", "belowTriplePoint", belowTriplePoint, 4.05},
    {"PT", "water", water, 14.49},
    {"PT", "hotWater", hotWater, 22.66},
    {"PT", "compressedWater", compressedWater, 18.34},
    {"PT", "pseudocritical", pseudocritical, 27.33},
    {"PT", "dense", dense, 22.45},
    {"PT", "hot", hot, 16.67},
};

Property propertyOf(char letter) {
  return letter == 'H'   ? Property::enthalpy
         : letter == 'S' ? Property::entropy
         : letter == 'U' ? Property::internalEnergy
                         : Property::density;
}

TEST_P(Costs, OfStatesAreThoseOfGoodStartingValues) {
  constexpr int steps = 16;
  constexpr int all = (steps + 1) * (steps + 1);
  const std::string pair = GetParam();
  for (const Cost& cost : costs) {
    if (cost.pair != pair) continue;
    int evaluations = 0;
    const Region& r = cost.region;
    for (int i = 0; i < all; ++i) {
      const int row = i / (steps + 1);
      const int column = i % (steps + 1);
      const double T = r.TMin + (r.TMax - r.TMin) * row / steps;
      const double P = r.PMin * std::pow(r.PMax / r.PMin, static_cast<double>(column) / steps);
      ASSERT_EQ(steam.stateFromPT(P, T), Phases::one);
      const Property second = propertyOf(pair[1]);
      const double value = steam.property(second);
      evaluations += of([&] {
        if (pair == "PT") {
          steam.stateFromPT(P, T);
        } else if (pair[0] == 'P') {
          steam.stateFromP(P, second, value);
        } else {
          steam.stateFromT(T, second, value);
        }
      });
      ASSERT_NEAR(steam.state().temperature, T, 1e-3 * T);
    }
    EXPECT_LE(evaluations, cost.most * all)
        << cost.name << ": " << static_cast<double>(evaluations) / all;
    EXPECT_GE(evaluations, all) << cost.name;
  }
}

INSTANTIATE_TEST_SUITE_P(OfPairs, Costs,
                         ::testing::Values("PH", "PS", "PU", "PR", "TH", "TS", "TU", "PT"),
                         [](const auto& pair) { return std::string(pair.param); });

struct LineCost {
  double from, to;
  double most;  ///< evaluations of both phases, on average
};

TEST(LineCosts, AreThoseOfGoodStartingValues) {
  constexpr int steps = 400;
  constexpr LineCost byTemperature[] = {
      {273.16, 400, 3.02},   {400, 600, 3.02},      {600, 645, 3.22},
      {645, 646.6, 3.55},    {646.6, 646.75, 3.36}, {646.75, 647.05, 3.0},
      {647.05, 647.1, 3.75}, {647.1, 647.12, 3.71}, {647.12, 647.1259, 4.62},
  };
  constexpr LineCost byPressure[] = {
      {0.0007, 0.01, 8.97},  {0.01, 1, 8.61},       {1, 15, 8.14},
      {15, 21.7, 10.13},     {21.7, 21.93, 14.04},  {21.93, 21.96, 13.82},
      {21.96, 22.03, 12.97}, {22.03, 22.05, 12.88}, {22.05, 22.0549, 10.65},
  };
  const auto average = [&](const LineCost& line, const auto& equilibrium) {
    int evaluations = 0;
    for (int i = 0; i <= steps; ++i) {
      evaluations += equilibrium(line.from + (line.to - line.from) * i / steps).evaluations;
    }
    return evaluations / (steps + 1.0);
  };
  for (const LineCost& line : byTemperature) {
    EXPECT_LE(average(line, equilibriumAtT), line.most) << line.from << " to " << line.to << " K";
  }
  for (const LineCost& line : byPressure) {
    EXPECT_LE(average(line, equilibriumAtP), line.most) << line.from << " to " << line.to << " MPa";
  }
}

}  // namespace
}  // namespace calvex::test
