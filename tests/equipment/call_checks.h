/// \file
/// What the tests of the equipment models share: engines in mixed units, numbers of every kind and
/// the order of the checks.
#pragma once

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <random>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "engine/thermo_engine.h"
#include "equipment/own_units.h"
#include "support/engine.h"

namespace calvex {

/// psig, F, Btu/lb, klb/h and percent.
inline void chooseMixedUnits(ZvThermoInt& engine) {
  constexpr std::pair<UnitGroup, const char*> units[] = {
      {UnitGroup::temperature, "F"},
      {UnitGroup::pressure, "psig"},
      {UnitGroup::entropy, "Btu/(lb.R)"},
      {UnitGroup::enthalpy, "Btu/lb"},
      {UnitGroup::quality, "%"},
      {UnitGroup::massFlow, "klb/h"},
      {UnitGroup::heatDuty, "MMBtu/h"},
      {UnitGroup::efficiency, "%"},
      {UnitGroup::ratio, "%"},
      {UnitGroup::power, "hp"},
      {UnitGroup::temperatureDifference, "F"},
  };
  for (const auto& [group, name] : units) {
    engine.SetUserUnitIndex(static_cast<short>(group), name);
  }
}

/// Doubles of every kind: special values, ordinary magnitudes and random bits.
class ArbitraryDoubles {
 public:
  explicit ArbitraryDoubles(std::uint64_t seed) : random_(seed) {}

  double operator()() {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double special[] = {0.0,
                                  -0.0,
                                  1.0,
                                  -1.0,
                                  infinity,
                                  -infinity,
                                  std::numeric_limits<double>::quiet_NaN(),
                                  std::numeric_limits<double>::denorm_min(),
                                  std::numeric_limits<double>::max(),
                                  std::numeric_limits<double>::lowest(),
                                  1e-300,
                                  1e300};
    switch (random_() % 8) {
      case 0:
        return special[random_() % std::size(special)];
      case 1:
        return std::bit_cast<double>(random_());
      case 2:
        return -magnitude();
      default:
        return magnitude();
    }
  }

 private:
  // 1e-3 to 1e4: where pressures, temperatures, enthalpies and flows are.
  double magnitude() { return std::pow(10.0, std::uniform_real_distribution(-3.0, 4.0)(random_)); }

  std::mt19937_64 random_;
};

/// A model as a function of its inputs, with the unit groups of both; none for plain numbers.
struct ModelUnderTest {
  using Groups = std::vector<std::optional<UnitGroup>>;
  const char* name;
  Groups outputs;
  Groups inputs;
  int (*run)(ZvThermoInt& engine, double* out, const double* in);
};

/// The model answers in such units what it answers in model units.
inline void expectSameInUnits(const ModelUnderTest& model, const std::vector<double>& in,
                              void (*choose)(ZvThermoInt&)) {
  ZvThermoInt plain;
  ZvThermoInt mixed;
  choose(mixed);
  std::vector<double> converted(in);
  for (std::size_t i = 0; i < in.size(); ++i) {
    if (model.inputs[i]) converted[i] = mixed.units().toUser(*model.inputs[i], in[i]);
  }
  std::vector<double> expected(model.outputs.size());
  std::vector<double> actual(model.outputs.size());
  ASSERT_EQ(model.run(plain, expected.data(), in.data()), 1) << model.name << plain.LastError();
  ASSERT_EQ(model.run(mixed, actual.data(), converted.data()), 1)
      << model.name << mixed.LastError();
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const double value =
        model.outputs[i] ? mixed.units().toInternal(*model.outputs[i], actual[i]) : actual[i];
    EXPECT_NEAR(value, expected[i], 1e-9 * std::fabs(expected[i])) << model.name << " output " << i;
  }
}

inline void expectSameInMixedUnits(const ModelUnderTest& model, const std::vector<double>& in) {
  expectSameInUnits(model, in, chooseMixedUnits);
}

/// Whatever the inputs, the model returns, without a NaN or an infinity when it succeeds, without
/// an output and with a reason when it fails.
inline void expectSanityOnArbitraryDoubles(const ModelUnderTest& model, std::uint64_t seed,
                                           int calls, const std::vector<double>& example) {
  SCOPED_TRACE(std::string(model.name) + ", seed " + std::to_string(seed));
  ArbitraryDoubles any(seed);
  std::mt19937_64 random(seed);
  ZvThermoInt engine;
  for (int call = 0; call < calls; ++call) {
    // From one strange input to all of them.
    std::vector<double> in(example);
    const auto below = [&](std::size_t count) {
      return static_cast<std::size_t>(random() % count);
    };
    const std::size_t strange = below(in.size()) + 1;
    for (std::size_t i = 0; i < strange; ++i) in[below(in.size())] = any();
    std::vector<double> out(model.outputs.size(), test::untouched);
    engine.ClearTraceInfo();
    const bool succeeded = model.run(engine, out.data(), in.data()) == 1;
    std::string inputs;
    for (const double x : in) inputs += std::to_string(x) + ' ';
    ASSERT_EQ(engine.LastError().empty(), succeeded) << inputs << engine.LastError();
    for (const double x : out) {
      ASSERT_TRUE(succeeded ? std::isfinite(x) : x == test::untouched) << inputs;
    }
  }
}

/// The inputs become valid one after the other; each time the next message is the reason.
struct NextFault {
  std::size_t input;  ///< what is put right after this message
  double good;
  const char* message;
};
inline void expectFaultsInOrder(const ModelUnderTest& model, ZvThermoInt& engine,
                                std::vector<double> in, std::span<const NextFault> faults) {
  for (const NextFault& fault : faults) {
    std::vector<double> out(model.outputs.size());
    engine.ClearTraceInfo();
    EXPECT_EQ(model.run(engine, out.data(), in.data()), 0) << fault.message;
    EXPECT_EQ(engine.LastError(), fault.message) << model.name;
    in[fault.input] = fault.good;
  }
  std::vector<double> out(model.outputs.size());
  EXPECT_EQ(model.run(engine, out.data(), in.data()), 1) << model.name << engine.LastError();
}

}  // namespace calvex
