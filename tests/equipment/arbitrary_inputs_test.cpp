// Whatever the inputs: an answer, and no success without numbers.
#include <fmt/format.h>

#include <limits>
#include <random>

#include "equipment/plant.h"

namespace calvex {
namespace {

TEST(EveryModel, NeverSucceedsWithoutNumbersFromArbitraryFiniteInputs) {
  const unsigned seed = 97;
  SCOPED_TRACE(fmt::format("seed {}", seed));
  std::mt19937_64 random(seed);
  const double special[] = {0.0,    -0.0,   1.0,     -1.0,    0.5,    1e-300,
                            5e-324, -1e300, 1e300,   1.7e308, 1e-6,   0.00061173,
                            22.055, 273.16, 647.126, 2500.0,  3000.0, 400.0};
  std::uniform_int_distribution<std::size_t> pick(0, std::size(special) - 1);
  std::uniform_real_distribution<double> exponent(-4.0, 4.0);
  std::uniform_int_distribution<int> coin(0, 1);
  Plant plant;
  int successes = 0;
  const std::pair<const char*, std::size_t> models[] = {
      {"TurbineA", 5},        {"TurbineB", 5},       {"TurbineA2", 8},    {"TurbineB2", 8},
      {"TurbineA3", 11},      {"TurbineB3", 11},     {"TurbineE", 6},     {"CompressorA", 5},
      {"CompressorB", 5},     {"CompressorA2", 8},   {"CompressorB2", 8}, {"DeAerator", 5},
      {"DeSuperHeater", 5},   {"DeSuperHeaterB", 5}, {"WaterPump", 5},    {"LetDownValve", 3},
      {"Boiler", 5},          {"Boiler_B", 6},       {"FlashVessel", 3},  {"SolvePoly5", 7},
      {"HeatExchangerA", 13}, {"HeatExchangerB", 13}};
  for (const auto& [name, inputs] : models) {
    for (int trial = 0; trial < 300; ++trial) {
      std::vector<double> x(inputs);
      for (double& value : x) {
        value = coin(random) != 0 ? special[pick(random)] : std::pow(10.0, exponent(random));
      }
      plant.engine().ClearTraceInfo();
      const Answer y = plant(name, x);
      successes += y.success;
      for (const auto& [output, value] : y.values) {
        EXPECT_FALSE(std::isnan(value))
            << name << ' ' << fmt::format("{}", fmt::join(x, ", ")) << ": " << output;
      }
      if (y.success == 0) {
        EXPECT_NE(plant.engine().LastError(), "") << name;
      }
    }
  }
  EXPECT_GT(successes, 300);
}

}  // namespace
}  // namespace calvex
