// The gas turbine against a second computation, step by step from its combustion and its two pinch
// cases: wide random plants, and plants at the limits where a case, a cap or a tolerance decides.
#include <fmt/format.h>

#include <algorithm>
#include <optional>
#include <random>

#include "equipment/models.h"
#include "support/failures.h"

namespace calvex {
namespace {

using test::valueOf;
using Plant = std::vector<double>;  // in the order of the model's inputs

// Places of the inputs.
constexpr std::size_t exhaustTemp = 3, steamPress = 4, steamTemp = 5, bfwTemp = 6, steamDemand = 7,
                      dtMin = 8, minO2 = 9;

// Everything about a plant that does not depend on the demand.
struct Basis {
  double tSat, dh, phi;
  double exhaustFlow;
  double O2, N2, CO2, H2O;  // kmol/s
  double fuelDuty;

  [[nodiscard]] double moles() const { return O2 + N2 + CO2 + H2O; }
  [[nodiscard]] double mass() const { return 32.0 * O2 + 28.0 * N2 + 44.0 * CO2 + 18.0 * H2O; }
};

Basis basis(ZvThermoInt& engine, const Plant& x) {
  Basis b{};
  EXPECT_EQ(engine.TSatP(&b.tSat, x[steamPress]), 1);
  const double hf = valueOf(engine, &ZvThermoInt::HSatTQ, b.tSat, 0.0);
  const double hw = valueOf(engine, &ZvThermoInt::HPTQ, x[steamPress], x[bfwTemp], 0.0);
  const double hs = valueOf(engine, &ZvThermoInt::HPTQ, x[steamPress], x[steamTemp], 1.0);
  b.dh = hs - hw;
  b.phi = (hs - hf) / b.dh;
  // Methane of 44310 kJ/kg and 16 kg/kmol in air of 23.3 % oxygen and 28.85 kg/kmol; a gas of
  // 1.1 kJ/(kg.K).
  b.fuelDuty = x[0] / x[1];
  const double fuel = b.fuelDuty / (16.0 * 44310.0);
  b.exhaustFlow = (b.fuelDuty - x[0]) / 1.1 / (x[exhaustTemp] - x[2]);
  const double air = b.exhaustFlow - 16.0 * fuel;
  b.O2 = (air - 2.0 * fuel * 28.85 / 0.233) * 0.233 / 28.85;
  b.N2 = air * 0.767 / 28.85;
  b.CO2 = fuel;
  b.H2O = 2.0 * fuel;
  return b;
}

// The ten outputs; nothing where the water of the stack has no dew point.
std::optional<std::vector<double>> byHand(ZvThermoInt& engine, const Plant& x) {
  const Basis b = basis(engine, x);
  const double approach = x[dtMin];
  const double above = x[bfwTemp] + approach;  // where the cold end pinches
  const double boils = b.tSat + approach;      // where the hot end pinches
  // Gas temperatures behind the boiler and behind the evaporator.
  const auto stack = [&](double T, double Q, double m) { return T - Q / (1.1 * m); };
  const auto evaporatorExit = [&](double T, double Q, double m) {
    return T - b.phi * Q / (1.1 * m);
  };
  const double Tx = x[exhaustTemp];
  double Q = (Tx - above) * b.exhaustFlow * 1.1;
  const double hotQ = (Tx - boils) * b.exhaustFlow * 1.1 / b.phi;
  if (!(evaporatorExit(Tx, Q, b.exhaustFlow) - b.tSat > approach) &&
      stack(Tx, hotQ, b.exhaustFlow) - x[bfwTemp] > approach) {
    Q = hotQ;
  }
  const double baseLoad = Q / b.dh;
  const double unused = (Tx - x[2]) * b.exhaustFlow * 1.1 - Q;
  const double demand = x[steamDemand];
  if (std::fabs(1.0 - demand / baseLoad) < 1e-4) {
    return std::vector{278.4,      0.0,    278.4,          278.4,    b.O2 / b.moles(),
                       b.fuelDuty, unused, Q / b.fuelDuty, baseLoad, baseLoad};
  }

  // Fuel in kg/s; it burns to its own mass of gas more.
  const double mostFuel = 16.0 * (b.O2 - b.moles() * x[minO2]) / (x[minO2] + 2.0);
  struct Case {
    double fuel, T, Q;
    bool accepted;
  };
  const auto fired = [&](double fuel) { return Tx + fuel * 44310.0 / (1.1 * (b.mass() + fuel)); };
  const double f0 =
      (demand * b.dh - 1.1 * (Tx - above) * b.mass()) / (1.1 * (Tx - above) + 44310.0);
  const double f1 =
      (demand * b.phi * b.dh - 1.1 * (Tx - boils) * b.mass()) / (1.1 * (Tx - boils) + 44310.0);
  Case cold{std::min(f0, mostFuel), 0.0, 0.0, false};
  cold.T = fired(cold.fuel);
  cold.Q = (cold.T - above) * 1.1 * (b.mass() + cold.fuel);
  cold.accepted = evaporatorExit(cold.T, cold.Q, b.mass() + cold.fuel) - b.tSat > approach - 0.001;
  Case hot{std::min(f1, mostFuel), 0.0, 0.0, false};
  hot.T = fired(hot.fuel);
  hot.Q = (hot.T - boils) * 1.1 * (b.mass() + hot.fuel) / b.phi;
  hot.accepted = stack(hot.T, hot.Q, b.mass() + hot.fuel) - x[bfwTemp] > approach - 0.001;
  const bool sameFuel = std::fabs(1.0 - f0 / f1) < 1e-4;
  const Case& chosen = sameFuel || (cold.accepted && !hot.accepted) ? cold : hot;

  const auto dewPoint = [&](double fuel) -> std::optional<double> {
    const double kmol = fuel / 16.0;
    const double P = 0.101325 * (b.H2O + 2.0 * kmol) / (b.moles() + kmol);
    double T = 0.0;
    if (!engine.TSatP(&T, P)) return std::nullopt;
    return T;
  };
  const std::optional<double> actual = dewPoint(chosen.fuel);
  const std::optional<double> most = dewPoint(mostFuel);
  if (!actual || !most) return std::nullopt;
  const double kmol = chosen.fuel / 16.0;
  const double mass = b.mass() + chosen.fuel;
  const double fuelDuty = chosen.fuel * 44310.0;
  return std::vector{chosen.T,
                     fuelDuty,
                     *actual,
                     *most,
                     (b.O2 - 2.0 * kmol) / (b.moles() + kmol),
                     b.fuelDuty,
                     (chosen.T - x[2]) * 1.1 * mass - chosen.Q + unused,
                     chosen.Q / (fuelDuty + b.fuelDuty),
                     baseLoad,
                     chosen.Q / b.dh};
}

class GasTurbineByHand : public testing::Test {
 protected:
  double between(double low, double high) {
    return std::uniform_real_distribution(low, high)(random);
  }
  // A plant without its demand.
  Plant anyPlant() {
    Plant x{between(500.0, 50000.0), between(0.15, 0.45),
            between(265.0, 315.0),   between(650.0, 1300.0),
            between(0.3, 12.0),      0.0,
            between(300.0, 400.0),   0.0,
            between(2.0, 40.0),      between(0.005, 0.16)};
    double tSat = 0.0;
    EXPECT_EQ(engine.TSatP(&tSat, x[steamPress]), 1);
    x[steamTemp] = tSat + between(0.5, 150.0);
    return x;
  }
  double baseLoad(Plant x) {
    x[steamDemand] = 0.123 * x[0] / 1000.0;
    std::vector<double> out(10);
    EXPECT_EQ(models::gasTurbine.run(engine, out.data(), x.data()), 1)
        << fmt::format("{}", fmt::join(x, ", ")) << engine.LastError();
    return out[8];
  }
  void compare(const Plant& x, test::Grid& grid) {
    const std::string inputs = fmt::format("{}", fmt::join(x, ", "));
    const std::optional<std::vector<double>> expected = byHand(engine, x);
    std::vector<double> out(10);
    const bool found = models::gasTurbine.run(engine, out.data(), x.data()) == 1;
    grid.holds(found == expected.has_value(), inputs + ": " + engine.LastError());
    if (!found || !expected) return;
    for (std::size_t i = 0; i < out.size(); ++i) {
      // Duties and losses are differences of the turbine's.
      const bool isDuty = i == 1 || i == 5 || i == 6;
      const double scale = isDuty ? (*expected)[5] : std::fabs((*expected)[i]);
      grid.near(out[i], (*expected)[i], 1e-10, scale, fmt::format("{}: output {}", inputs, i));
    }
  }

  static constexpr std::uint64_t seed = 20251121;
  testing::ScopedTrace trace{__FILE__, __LINE__, "seed " + std::to_string(seed)};
  std::mt19937_64 random{seed};
  ZvThermoInt engine;
};

TEST_F(GasTurbineByHand, RandomPlantsAtEveryDemandAgree) {
  test::Grid grid("random plants");
  for (int i = 0; i < 700; ++i) {
    Plant x = anyPlant();
    const double load = baseLoad(x);
    for (const double times : {0.05, 0.7, 0.98, 1.0, 1.02, 1.4, 2.5, 8.0}) {
      x[steamDemand] = times * load;
      compare(x, grid);
    }
  }
}

TEST_F(GasTurbineByHand, DemandIsTheBaseLoadToOnePartInTenThousand) {
  test::Grid grid("no firing");
  for (int i = 0; i < 30; ++i) {
    Plant x = anyPlant();
    const double load = baseLoad(x);
    for (const double off : {-2.0, -1.005, -0.995, -0.5, 0.0, 0.5, 0.995, 1.005, 2.0}) {
      x[steamDemand] = load * (1.0 + off * 1e-4);
      compare(x, grid);
      std::vector<double> out(10);
      if (!models::gasTurbine.run(engine, out.data(), x.data())) continue;
      grid.holds((out[0] == 278.4) == (std::fabs(off) < 1.0), fmt::format("{} {}", i, off));
    }
  }
}

// Both pinch cases meet at one firing temperature, whatever the flow of gas. Around it the fuels of
// the two are the same to 1e-4, or the other end's approach falls short by less than 0.001 K. With
// an exhaust a little colder than that temperature the fuel is small, and the two limits part.
TEST_F(GasTurbineByHand, BothPinchesAtOnceAreDecidedByEqualFuelsAndAThousandthOfAKelvin) {
  test::Grid grid("double pinch");
  for (int i = 0; i < 12; ++i) {
    Plant x = anyPlant();
    x[minO2] = 0.01;
    for (const double short_ : {0.5, 3.0, 40.0, 150.0}) {
      Basis b = basis(engine, x);
      const double meeting = (b.tSat - b.phi * x[bfwTemp]) / (1.0 - b.phi) + x[dtMin];
      x[exhaustTemp] = meeting - short_;
      b = basis(engine, x);
      for (const double window : {0.003 / (1.0 - b.phi), 3e-4 * short_, 0.02 * short_}) {
        for (int step = -30; step <= 30; ++step) {
          const double T = meeting + window * step / 30.0;
          const double rise = 1.1 * (T - x[exhaustTemp]);
          const double fuel = b.mass() * rise / (44310.0 - rise);
          x[steamDemand] = (T - b.tSat - x[dtMin]) * 1.1 * (b.mass() + fuel) / b.phi / b.dh;
          compare(x, grid);
        }
      }
    }
  }
}

// More steam than the oxygen allows, with hot exhaust (cold end) and cool exhaust (hot end).
TEST_F(GasTurbineByHand, FuelIsCappedInBothPinchCases) {
  test::Grid grid("capped");
  int hotEnds = 0;
  int coldEnds = 0;
  for (int i = 0; i < 300; ++i) {
    Plant x = anyPlant();
    x[exhaustTemp] = between(600.0, 900.0);
    x[steamDemand] = x[0];
    const Basis b = basis(engine, x);
    x[minO2] = b.O2 / b.moles() * between(0.1, 0.99);
    compare(x, grid);
    std::vector<double> out(10);
    ASSERT_EQ(models::gasTurbine.run(engine, out.data(), x.data()), 1) << engine.LastError();
    grid.relative(out[4], x[minO2], 1e-9, fmt::format("oxygen of plant {}", i));
    const double flow = b.mass() + out[1] / 44310.0;
    const double stack = out[0] - out[9] * b.dh / (1.1 * flow);
    ++(stack > x[bfwTemp] + x[dtMin] + 1e-6 ? hotEnds : coldEnds);
  }
  EXPECT_GT(hotEnds, 20);
  EXPECT_GT(coldEnds, 20);
}

TEST_F(GasTurbineByHand, TemperatureAndItsDifferencesMayHaveDifferentUnits) {
  ZvThermoInt mixed;
  ASSERT_EQ(mixed.SetUserUnitIndex(0, "C"), 1);
  ASSERT_EQ(mixed.SetUserUnitIndex(25, "F"), 1);
  test::Grid grid("C and F");
  for (int i = 0; i < 50; ++i) {
    Plant x = anyPlant();
    x[steamDemand] = 1.7 * baseLoad(x);
    const auto expected = byHand(engine, x);
    if (!expected) continue;
    for (const std::size_t T : {std::size_t{2}, exhaustTemp, steamTemp, bfwTemp}) x[T] -= 273.15;
    x[dtMin] *= 1.8;
    std::vector<double> out(10);
    ASSERT_EQ(models::gasTurbine.run(mixed, out.data(), x.data()), 1) << mixed.LastError();
    for (const std::size_t k : {0U, 2U, 3U}) out[k] += 273.15;
    for (std::size_t k = 0; k < out.size(); ++k) {
      grid.near(out[k], (*expected)[k], 1e-9, std::max(std::fabs((*expected)[k]), x[0]),
                fmt::format("plant {}, output {}", i, k));
    }
  }
}

}  // namespace
}  // namespace calvex
