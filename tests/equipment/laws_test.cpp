// What every model owes to physics: mass and energy balances, entropy that does not shrink, and
// answers that do not depend on the units; on a grid of realistic inputs and on random ones.
#include <fmt/format.h>

#include <functional>
#include <ostream>
#include <random>

#include "equipment/plant.h"
#include "support/failures.h"

namespace calvex {
namespace {

// Coordinates in the unit cube, spent one by one on the inputs of a model.
class Point {
 public:
  explicit Point(std::vector<double> coordinates) : coordinates_(std::move(coordinates)) {}
  double between(double low, double high) { return low + (high - low) * coordinates_.at(used_++); }
  double decades(double low, double high) {
    return low * std::pow(high / low, coordinates_.at(used_++));
  }

 private:
  std::vector<double> coordinates_;
  std::size_t used_ = 0;
};

// Residuals relative to the largest stream; the entropy produced in kW/K over the largest entropy
// stream. Model units.
struct Balance {
  double mass = 0.0;
  double energy = 0.0;
  double entropy = 0.0;
};

// A stream: kg/s and kJ/kg, kJ/(kg.K), into the model; out of it the flow is negative.
struct Stream {
  double flow;
  double h;
  double s = 0.0;
};
// With `work` in kW leaving.
Balance balance(const std::vector<Stream>& streams, double work = 0.0) {
  double mass = 0.0, energy = -work, entropy = 0.0;
  double largestMass = 0.0, largestEnergy = std::fabs(work), largestEntropy = 1e-300;
  for (const Stream& x : streams) {
    mass += x.flow;
    energy += x.flow * x.h;
    entropy -= x.flow * x.s;
    largestMass = std::max(largestMass, std::fabs(x.flow));
    largestEnergy = std::max(largestEnergy, std::fabs(x.flow * x.h));
    largestEntropy = std::max(largestEntropy, std::fabs(x.flow * x.s));
  }
  return {mass / largestMass, energy / largestEnergy, entropy / largestEntropy};
}

// A model: where its inputs lie, and its balance. `steam` answers properties in model units.
struct Law {
  const char* name;
  std::size_t dimensions;
  std::function<std::vector<double>(Point&, ZvThermoInt& steam)> inputs;
  std::function<Balance(const std::vector<double>&, const Answer&, ZvThermoInt& steam)> balance;
};

template <int (ZvThermoInt::*Member)(double*, double, double)>
double of(ZvThermoInt& steam, double x, double y) {
  double result = 0.0;
  EXPECT_EQ((steam.*Member)(&result, x, y), 1) << x << ' ' << y << ' ' << steam.LastError();
  return result;
}
constexpr auto HPT = of<&ZvThermoInt::HPT>;
constexpr auto SPT = of<&ZvThermoInt::SPT>;
constexpr auto SPH = of<&ZvThermoInt::SPH>;
constexpr auto HPS = of<&ZvThermoInt::HPS>;
constexpr auto RPH = of<&ZvThermoInt::RPH>;
constexpr auto HSatPQ = of<&ZvThermoInt::HSatPQ>;
constexpr auto SSatPQ = of<&ZvThermoInt::SSatPQ>;
double TSatP(ZvThermoInt& steam, double P) {
  double T = 0.0;
  EXPECT_EQ(steam.TSatP(&T, P), 1);
  return T;
}

// Machines: inlet, pressures stage by stage, efficiencies, then flows (A) or power and flows (B).
std::vector<double> machineInputs(Point& at, bool turbine, std::size_t outlets) {
  std::vector<double> x = {turbine ? at.between(2750.0, 3500.0) : at.between(2720.0, 3200.0),
                           turbine ? at.decades(0.5, 12.0) : at.decades(0.1, 2.0)};
  double P = x[1];
  for (std::size_t k = 0; k < outlets; ++k) {
    P *= turbine ? at.between(0.1, 0.8) : at.between(1.3, 4.0);
    x.push_back(P);
  }
  for (std::size_t k = 0; k < outlets; ++k) x.push_back(at.between(0.4, 1.0));
  return x;
}
Balance machineBalance(const std::vector<double>& x, const Answer& y, ZvThermoInt& steam,
                       std::size_t outlets, std::vector<double> flows, double work) {
  double in = 0.0;
  for (const double flow : flows) in += flow;
  std::vector<Stream> streams = {{in, x[0], SPH(steam, x[1], x[0])}};
  for (std::size_t k = 0; k < outlets; ++k) {
    const double h = y[outlets == 1 ? "pHOut" : fmt::format("pHOut{}", k + 1)];
    streams.push_back({-flows[k], h, SPH(steam, x[2 + k], h)});
  }
  return balance(streams, work);
}
Law powerLaw(const char* name, std::size_t outlets) {
  const bool turbine = name[0] == 'T';
  return {
      name, 2 + 3 * outlets,
      [=](Point& at, ZvThermoInt&) {
        std::vector<double> x = machineInputs(at, turbine, outlets);
        for (std::size_t k = 0; k < outlets; ++k) x.push_back(at.between(1.0, 50.0));
        return x;
      },
      [=](const std::vector<double>& x, const Answer& y, ZvThermoInt& steam) {
        const std::vector<double> flows(x.begin() + 2 + 2 * static_cast<long>(outlets), x.end());
        return machineBalance(x, y, steam, outlets, flows, turbine ? y["pPower"] : -y["pPower"]);
      }};
}
Law flowLaw(const char* name, std::size_t outlets, const char* flow) {
  const bool turbine = name[0] == 'T';
  return {name, 2 + 3 * outlets,
          [=](Point& at, ZvThermoInt&) {
            std::vector<double> x = machineInputs(at, turbine, outlets);
            x.push_back(at.between(40'000.0, 100'000.0));
            for (std::size_t k = 1; k < outlets; ++k) x.push_back(at.between(1.0, 10.0));
            return x;
          },
          [=](const std::vector<double>& x, const Answer& y, ZvThermoInt& steam) {
            const auto power = x.begin() + 2 + 2 * static_cast<long>(outlets);
            std::vector<double> flows(power + 1, x.end());
            flows.push_back(y[flow]);
            return machineBalance(x, y, steam, outlets, flows, turbine ? *power : -*power);
          }};
}

std::vector<double> mixingInputs(Point& at, ZvThermoInt& steam) {
  const double P = at.decades(0.2, 8.0);
  const double T = TSatP(steam, P) + at.between(2.0, 100.0);
  return {HPT(steam, P, T) + at.between(10.0, 400.0), at.between(100.0, 600.0), P, T,
          at.between(1.0, 50.0)};
}
Balance mixingBalance(const std::vector<double>& x, const Answer& y, ZvThermoInt& steam, double in,
                      double out) {
  return balance({{in, x[0], SPH(steam, x[2], x[0])},
                  {y["pMw"], x[1], SPH(steam, x[2], x[1])},
                  {-out, y["pHs"], SPT(steam, x[2], x[3])}});
}

std::vector<double> boilerInputs(Point& at, ZvThermoInt& steam) {
  const double P = at.decades(0.2, 12.0);
  return {at.between(200.0, 700.0), at.between(1.0, 50.0), TSatP(steam, P) + at.between(1.0, 200.0),
          P, at.between(0.0, 0.1)};
}
Balance boilerBalance(const std::vector<double>& x, const Answer& y, double duty) {
  return balance({{y["pMIn"], x[0]}, {-x[1], y["pHOut"]}, {-y["pMBd"], y["pHBd"]}}, -duty);
}

// Cold water heated by steam or hotter water: every hot temperature above every cold one, the
// outlets of both liquid.
std::vector<double> exchangerInputs(Point& at) {
  const double coldIn = at.between(285.0, 350.0);
  return {at.between(1.0, 50.0),
          at.decades(0.6, 5.0),
          at.between(0.0, 0.1),
          coldIn,
          coldIn + at.between(5.0, 60.0),
          0.0,
          0.0,
          at.decades(1.0, 8.0),
          at.between(0.0, 0.2),
          at.between(580.0, 700.0),
          at.between(415.0, 445.0),
          1.0,
          0.0};
}
Balance exchangerBalance(const std::vector<double>& x, const Answer& y, ZvThermoInt& steam) {
  const double cold = x[0];
  const double hot = y["pMHOut"];
  return balance({{cold, y["pHCIn"], SPH(steam, x[1], y["pHCIn"])},
                  {-cold, y["pHCOut"], SPH(steam, x[1] - x[2], y["pHCOut"])},
                  {hot, y["pHHIn"], SPH(steam, x[7], y["pHHIn"])},
                  {-hot, y["pHHOut"], SPH(steam, x[7] - x[8], y["pHHOut"])}});
}

const std::vector<Law>& laws() {
  static const std::vector<Law> all = {
      powerLaw("TurbineA", 1),
      powerLaw("TurbineA2", 2),
      powerLaw("TurbineA3", 3),
      powerLaw("CompressorA", 1),
      powerLaw("CompressorA2", 2),
      flowLaw("TurbineB", 1, "pMIn"),
      flowLaw("TurbineB2", 2, "pMOut2"),
      flowLaw("TurbineB3", 3, "pMOut3"),
      flowLaw("CompressorB", 1, "pMIn"),
      flowLaw("CompressorB2", 2, "pMOut2"),
      {"TurbineE", 5,
       [](Point& at, ZvThermoInt& steam) {
         std::vector<double> x = machineInputs(at, true, 1);
         x.push_back(at.between(1.0, 50.0));
         x.push_back(SPH(steam, x[1], x[0]));
         return x;
       },
       [](const std::vector<double>& x, const Answer& y, ZvThermoInt&) {
         return balance({{x[4], x[0], x[5]}, {-x[4], y["pHOut"], y["pSOut"]}}, y["pPower"]);
       }},
      {"DeAerator", 5,
       [](Point& at, ZvThermoInt&) {
         return std::vector<double>{at.decades(0.1, 1.0), at.between(2700.0, 3200.0),
                                    at.between(280.0, 370.0), at.between(0.1, 100.0),
                                    at.between(0.0, 0.05)};
       },
       [](const std::vector<double>& x, const Answer& y, ZvThermoInt& steam) {
         const double P = x[0];
         return balance({{y["pMs"], x[1], SPH(steam, P, x[1])},
                         {y["pMw"], HPT(steam, P, x[2]), SPT(steam, P, x[2])},
                         {-x[3], y["pHd"], SSatPQ(steam, P, 0.0)},
                         {-x[3] * x[4], HSatPQ(steam, P, 1.0), SSatPQ(steam, P, 1.0)}});
       }},
      {"DeSuperHeater", 5, mixingInputs,
       [](const std::vector<double>& x, const Answer& y, ZvThermoInt& steam) {
         return mixingBalance(x, y, steam, x[4], y["pMs"]);
       }},
      {"DeSuperHeaterB", 5, mixingInputs,
       [](const std::vector<double>& x, const Answer& y, ZvThermoInt& steam) {
         return mixingBalance(x, y, steam, y["pMs"], x[4]);
       }},
      // A pump for an incompressible liquid: its entropy is not that of water. It takes the rise of
      // pressure times the inlet's volume, so a little more than the isentropic rise, by at most
      // the compression.
      {"WaterPump", 5,
       [](Point& at, ZvThermoInt& steam) {
         const double P = at.decades(0.1, 2.0);
         return std::vector<double>{at.between(0.1, 0.99) * HSatPQ(steam, P, 0.0), P,
                                    P + at.between(0.0, 15.0), at.between(1.0, 50.0),
                                    at.between(0.3, 1.0)};
       },
       [](const std::vector<double>& x, const Answer& y, ZvThermoInt& steam) {
         const double work = y["pPower"] / x[3] * x[4];  // of the liquid, kJ/kg
         const double isentropic = HPS(steam, x[2], SPH(steam, x[1], x[0])) - x[0];
         const double compression = 1.0 - RPH(steam, x[1], x[0]) / RPH(steam, x[2], x[0] + work);
         Balance b = balance({{x[3], x[0]}, {-x[3], y["pHOut"]}}, -y["pPower"]);
         const bool ideal =
             work > isentropic - 1e-5 && work < isentropic * (1.0 + compression) + 1e-5;
         b.entropy = ideal ? 0.0 : -1.0;
         return b;
       }},
      {"LetDownValve", 3,
       [](Point& at, ZvThermoInt&) {
         const double P = at.decades(0.2, 12.0);
         return std::vector<double>{at.between(500.0, 3400.0), P, P * at.between(0.05, 1.0)};
       },
       [](const std::vector<double>& x, const Answer& y, ZvThermoInt& steam) {
         const double h = y["pQOut"] > 0.0 && y["pQOut"] < 1.0 ? HSatPQ(steam, x[2], y["pQOut"])
                                                               : HPT(steam, x[2], y["pTOut"]);
         return balance({{1.0, x[0], SPH(steam, x[1], x[0])}, {-1.0, h, SPH(steam, x[2], x[0])}});
       }},
      {"Boiler", 5, boilerInputs,
       [](const std::vector<double>& x, const Answer& y, ZvThermoInt&) {
         return boilerBalance(x, y, y["pDeltaH"]);
       }},
      {"Boiler_B", 6,
       [](Point& at, ZvThermoInt& steam) {
         std::vector<double> x = boilerInputs(at, steam);
         x.push_back(at.between(0.5, 1.0));
         return x;
       },
       [](const std::vector<double>& x, const Answer& y, ZvThermoInt&) {
         return boilerBalance(x, y, y["pQFired"] * x[5]);
       }},
      {"FlashVessel", 3,
       [](Point& at, ZvThermoInt&) {
         return std::vector<double>{at.between(1.0, 50.0), at.between(100.0, 3300.0),
                                    at.decades(0.01, 15.0)};
       },
       [](const std::vector<double>& x, const Answer& y, ZvThermoInt&) {
         return balance({{x[0], x[1]}, {-y["pMVap"], y["pHVap"]}, {-y["pMLiq"], y["pHLiq"]}});
       }},
      {"HeatExchangerA", 9, [](Point& at, ZvThermoInt&) { return exchangerInputs(at); },
       [](const std::vector<double>& x, const Answer& y, ZvThermoInt& steam) {
         return exchangerBalance(x, y, steam);
       }},
      {"HeatExchangerB", 9,
       [](Point& at, ZvThermoInt&) {
         std::vector<double> x = exchangerInputs(at);
         x[4] = x[0] * (x[4] - x[3]) * 4.18;
         return x;
       },
       [](const std::vector<double>& x, const Answer& y, ZvThermoInt& steam) {
         return exchangerBalance(x, y, steam);
       }},
  };
  return all;
}

// Every point of a grid, then random ones.
void forPoints(std::size_t dimensions, int randomPoints, unsigned seed,
               const std::function<void(Point)>& visit) {
  const int levels = dimensions <= 6 ? 3 : 2;
  std::vector<int> index(dimensions, 0);
  for (bool more = true; more;) {
    std::vector<double> coordinates(dimensions);
    for (std::size_t i = 0; i < dimensions; ++i) {
      coordinates[i] = 0.02 + 0.98 * index[i] / (levels - 1);
    }
    visit(Point(std::move(coordinates)));
    more = false;
    for (std::size_t i = 0; i < dimensions && !more; ++i) {
      index[i] = (index[i] + 1) % levels;
      more = index[i] != 0;
    }
  }
  std::mt19937_64 random(seed);
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  for (int i = 0; i < randomPoints; ++i) {
    std::vector<double> coordinates(dimensions);
    for (double& x : coordinates) x = unit(random);
    visit(Point(std::move(coordinates)));
  }
}

std::string text(const std::vector<double>& x) { return fmt::format("{}", fmt::join(x, ", ")); }

void PrintTo(const Law& law, std::ostream* out) { *out << law.name; }

class EveryModel : public testing::TestWithParam<Law> {
 protected:
  static constexpr unsigned seed = 20250611;
  static constexpr int randomPoints = 300;
};

TEST_P(EveryModel, BalancesMassAndEnergyAndProducesEntropy) {
  const Law& law = GetParam();
  SCOPED_TRACE(fmt::format("seed {}", seed));
  Plant plant;
  ZvThermoInt steam;
  test::Grid grid(law.name);
  forPoints(law.dimensions, randomPoints, seed, [&](Point at) {
    const std::vector<double> x = law.inputs(at, steam);
    const Answer y = plant(law.name, x);
    if (y.success != 1) return grid.holds(false, text(x) + ": " + plant.engine().LastError());
    const Balance b = law.balance(x, y, steam);
    grid.holds(std::fabs(b.mass) < 1e-9 && std::fabs(b.energy) < 1e-9 && b.entropy > -1e-10,
               fmt::format("{}: mass {:.1e}, energy {:.1e}, entropy {:.1e}", text(x), b.mass,
                           b.energy, b.entropy));
  });
}

TEST_P(EveryModel, GivesTheSameInMixedUnits) {
  const Law& law = GetParam();
  SCOPED_TRACE(fmt::format("seed {}", seed));
  Plant plant;
  Plant mixed;
  mixed.useMixedUnits();
  ZvThermoInt steam;
  test::Grid grid(law.name);
  forPoints(law.dimensions, randomPoints, seed, [&](Point at) {
    const std::vector<double> x = law.inputs(at, steam);
    const Answer a = plant(law.name, x);
    const Answer b = mixed(law.name, x);
    if (a.success != 1 || b.success != 1 || a.values.size() != b.values.size()) {
      return grid.holds(false, text(x) + ": " + mixed.engine().LastError());
    }
    for (const auto& [name, value] : a.values) {
      grid.near(b[name], value, 1e-9, std::max(std::fabs(value), 1.0), text(x) + ": " + name);
    }
  });
}

// The balances of the machines convert differences of enthalpy as enthalpies: in a unit with an
// offset the work of each stage gains it, and with it the power. Nothing else does.
double inOffsetUnits(std::string_view model, const std::string& output,
                     const std::vector<double>& x, double value, double shift) {
  if (model == "FlashVessel" && (output == "pHVap" || output == "pHLiq") && value == 0.0) {
    return shift;  // the plain number 0 for a phase that is not there
  }
  const bool machine = model.starts_with("Turbine") || model.starts_with("Compressor");
  const bool isResult = output == "pPower" || output == "pMIn" || output.starts_with("pMOut");
  if (!machine || !isResult) return value;
  const char last = model.back();
  const std::size_t outlets = last == '2' || last == '3' ? static_cast<std::size_t>(last - '0') : 1;
  const std::size_t first = 2 + 2 * outlets;
  const auto count = [](std::size_t k) { return static_cast<double>(k); };
  double gained = 0.0;  // by the flows that are given
  if (output == "pPower") {
    for (std::size_t k = 0; k < outlets; ++k) gained += x[first + k] * count(k + 1) * shift;
    return value + gained;
  }
  return std::nan("");  // a flow from the power: its A model has the power in such units (AAndB)
}

TEST_P(EveryModel, GivesTheSameInUnitsWithOffsets) {
  const Law& law = GetParam();
  SCOPED_TRACE(fmt::format("seed {}", seed));
  Plant plant;
  Plant own;
  own.useOffsetUnits();
  ZvThermoInt steam;
  test::Grid grid(law.name);
  forPoints(law.dimensions, randomPoints, seed, [&](Point at) {
    const std::vector<double> x = law.inputs(at, steam);
    const Answer a = plant(law.name, x);
    const Answer b = own(law.name, x);
    if (a.success != 1 || b.success != 1 || a.values.size() != b.values.size()) {
      return grid.holds(false, text(x) + ": " + own.engine().LastError());
    }
    for (const auto& [name, value] : a.values) {
      const double expected = inOffsetUnits(law.name, name, x, value, own.enthalpyShift());
      if (std::isnan(expected)) continue;
      grid.near(b[name], expected, 1e-9, std::max(std::fabs(value), 1.0), text(x) + ": " + name);
    }
  });
}

TEST_P(EveryModel, IsNotWarnedOfASensiblePlant) {
  const Law& law = GetParam();
  Plant plant;
  ASSERT_EQ(plant.engine().SetTraceLevel(1), 1);
  ZvThermoInt steam;
  test::Grid grid(law.name);
  forPoints(law.dimensions, randomPoints, seed, [&](Point at) {
    const std::vector<double> x = law.inputs(at, steam);
    plant.engine().ClearTraceInfo();
    plant(law.name, x);
    grid.holds(plant.trace().empty(), text(x) + ": " + plant.trace());
  });
}

INSTANTIATE_TEST_SUITE_P(Laws, EveryModel, testing::ValuesIn(laws()),
                         [](const auto& each) { return std::string(each.param.name); });

// B finds again what A was given.
struct Inverse {
  const char* a;
  const char* b;
  // The inputs of b from the inputs and outputs of a, and the pairs that must agree.
  std::function<std::vector<double>(const std::vector<double>&, const Answer&)> inputs;
  std::function<std::vector<std::pair<double, double>>(const std::vector<double>&, const Answer&,
                                                       const Answer&)>
      pairs;
};

Inverse machine(const char* a, const char* b, std::size_t outlets, const char* flow) {
  return {a, b,
          [=](const std::vector<double>& x, const Answer& y) {
            std::vector<double> inputs = x;
            inputs.pop_back();
            inputs.insert(inputs.begin() + 2 + 2 * static_cast<long>(outlets), y["pPower"]);
            return inputs;
          },
          [=](const std::vector<double>& x, const Answer& y, const Answer& z) {
            std::vector<std::pair<double, double>> pairs = {{x.back(), z[flow]}};
            for (const auto& [name, value] : y.values) {
              if (name != "pPower") pairs.emplace_back(value, z[name]);
            }
            return pairs;
          }};
}

void PrintTo(const Inverse& inverse, std::ostream* out) { *out << inverse.b; }

class AAndB : public testing::TestWithParam<Inverse> {};

TEST_P(AAndB, InvertEachOther) {
  const Inverse& inverse = GetParam();
  constexpr unsigned seed = 4711;
  SCOPED_TRACE(fmt::format("seed {}", seed));
  const auto law = std::ranges::find_if(
      laws(), [&](const Law& each) { return std::string_view(each.name) == inverse.a; });
  ASSERT_NE(law, laws().end());
  ZvThermoInt steam;
  for (const char* units : {"model", "mixed", "own"}) {
    SCOPED_TRACE(units);
    Plant plant;
    if (units[1] == 'i') plant.useMixedUnits();
    if (units[1] == 'w') plant.useOffsetUnits();
    test::Grid grid(inverse.b);
    forPoints(law->dimensions, 300, seed, [&](Point at) {
      const std::vector<double> x = law->inputs(at, steam);
      const Answer y = plant(inverse.a, x);
      const std::vector<double> xb = inverse.inputs(x, y);
      const Answer z = plant(inverse.b, xb);
      if (y.success != 1 || z.success != 1) {
        return grid.holds(false, text(x) + ": " + plant.engine().LastError());
      }
      for (const auto& [given, found] : inverse.pairs(x, y, z)) {
        grid.near(found, given, 1e-7, std::max(std::fabs(given), 1e-3), text(x));
      }
    });
  }
}

INSTANTIATE_TEST_SUITE_P(
    Laws, AAndB,
    testing::Values(
        machine("TurbineA", "TurbineB", 1, "pMIn"), machine("TurbineA2", "TurbineB2", 2, "pMOut2"),
        machine("TurbineA3", "TurbineB3", 3, "pMOut3"),
        machine("CompressorA", "CompressorB", 1, "pMIn"),
        machine("CompressorA2", "CompressorB2", 2, "pMOut2"),
        Inverse{
            "DeSuperHeater", "DeSuperHeaterB",
            [](const std::vector<double>& x, const Answer& y) {
              return std::vector<double>{x[0], x[1], x[2], x[3], y["pMs"]};
            },
            [](const std::vector<double>& x, const Answer& y, const Answer& z) {
              return std::vector<std::pair<double, double>>{{x[4], z["pMs"]}, {y["pMw"], z["pMw"]}};
            }},
        Inverse{"HeatExchangerA", "HeatExchangerB",
                [](std::vector<double> x, const Answer& y) {
                  x[4] = y["pDuty"];
                  return x;
                },
                [](const std::vector<double>& x, const Answer& y, const Answer& z) {
                  return std::vector<std::pair<double, double>>{
                      {x[4], z["pTCOut"]}, {y["pHCOut"], z["pHCOut"]}, {y["pMHOut"], z["pMHOut"]}};
                }}),
    [](const auto& each) { return std::string(each.param.b); });

}  // namespace
}  // namespace calvex
