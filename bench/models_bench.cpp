// What an equipment model costs, as a multiple of the property calls that it makes, and what its
// spreadsheet variant with all tokens costs, as a multiple of the model.
//
//   calvex_bench_models                                    the table
//   calvex_bench_models --benchmark_filter=Turbine         some rows
//   calvex_bench_models --benchmark_repetitions=9          the median of more repetitions
#include <algorithm>
#include <array>
#include <string_view>

#include "engine/thermo_engine.h"
#include "median_table.h"
#include "recorded_models.h"
#include "spreadsheet/result_arrays.h"
#include "spreadsheet/variants.h"

namespace {

using calvex::ZvThermoInt;
using calvex::spreadsheet::Variant;

// The multiples that a row has to stay below.
constexpr double limitOfModel = 1.1;
constexpr double limitOfXL = 1.15;

const std::string ofCalls = ", calls";
const std::string ofXL = ", XL";

// Flags of a model all of whose results are wanted.
constexpr std::array<int, calvex::spreadsheet::maxFlags> allFlags{1, 1};

struct Case {
  std::string name;
  std::vector<double> inputs;
};

// MPa, K, kJ/kg, kJ/(kg.K), kg/s, kW.
const Case cases[] = {
    {"TurbineA", {3214, 4, 0.3, 0.8, 10}},
    {"TurbineB", {3214, 4, 0.3, 0.8, 5000}},
    {"TurbineE", {3214, 4, 0.3, 0.8, 10, 6.77}},
    {"TurbineA2", {3214, 4, 0.3, 0.01, 0.8, 0.75, 6, 4}},
    {"TurbineB2", {3214, 4, 0.3, 0.01, 0.8, 0.75, 9000, 4}},
    {"TurbineA3", {3214, 4, 1.2, 0.3, 0.01, 0.8, 0.78, 0.75, 6, 4, 2}},
    {"TurbineB3", {3214, 4, 1.2, 0.3, 0.01, 0.8, 0.78, 0.75, 9000, 4, 2}},
    {"CompressorA", {2750, 0.2, 0.5, 0.7, 10}},
    {"CompressorB", {2750, 0.2, 0.5, 0.7, 500}},
    {"CompressorA2", {2750, 0.2, 0.5, 1.2, 0.7, 0.75, 6, 4}},
    {"CompressorB2", {2750, 0.2, 0.5, 1.2, 0.7, 0.75, 5000, 4}},
    {"DeAerator", {0.12, 2800, 320, 10, 0.01}},
    {"DeSuperHeater", {3214, 420, 1, 500, 10}},
    {"DeSuperHeaterB", {3214, 420, 1, 500, 10}},
    {"WaterPump", {437, 0.12, 6, 10, 0.7}},
    {"LetDownValve", {3214, 4, 0.3}},
    {"Boiler", {420, 10, 673.15, 4, 0.02}},
    {"Boiler_B", {420, 10, 673.15, 4, 0.02, 0.85}},
    {"FlashVessel", {10, 1000, 0.3}},
    {"HeatExchangerA", {10, 1, 0.05, 300, 400, 0, 0, 0.5, 0.02, 500, 430, 1, 1}},
    {"HeatExchangerB", {10, 1, 0.05, 300, 4000, 0, 0, 0.5, 0.02, 500, 430, 1, 1}},
    {"ThermoCompA", {2900, 1, 2609, 0.02, 0.04, 1.5}},
    {"ThermoCompB", {2900, 1, 2609, 0.02, 0.04, 0.7}},
    {"ThermoCompressorA", {0.5, 430, 5, 0.1, 380, 2}},
    {"ThermoCompressorB", {0.5, 430, 0.1, 380, 0.15, 5000}},
    {"ThermoCompressorC", {0.5, 430, 0.1, 380, 0.15, 3}},
    {"ThermoCompressorD", {0.5, 430, 0.1, 380, 0.15, 1}},
    {"ThermoCompressorE", {0.5, 430, 0.1, 380, 0.15, 2}},
    {"ThermoCompressorF", {0.5, 430, 0.1, 380, 1, 6000}},
    {"ThermoCompressorG", {0.5, 430, 0.1, 380, 2, 7000}},
    {"GasTurbineA", {5000, 0.3, 288.15, 800, 4, 673, 378, 4, 15, 0.03}},
};

// Points around a given one, so that no call repeats its predecessor.
constexpr std::size_t pointCount = 32;

// Every input differs from point to point but for the qualities of saturated liquid and vapour.
std::vector<std::vector<double>> points(const Case& row) {
  std::vector<std::vector<double>> list(pointCount, row.inputs);
  for (std::size_t i = 0; i < pointCount; ++i) {
    for (double& input : list[i]) {
      if (input != 0.0 && input != 1.0) input *= 1.0 + 1e-5 * static_cast<double>(i);
    }
  }
  return list;
}

const Variant& variantOf(const Case& row) {
  return *std::ranges::find(calvex::spreadsheet::variantTable(), row.name, &Variant::name);
}

// The point to be computed next, round and round.
template <class Call>
void run(benchmark::State& state, Call&& call) {
  ZvThermoInt engine;
  std::size_t i = 0;
  for (auto _ : state) {
    if (!call(engine, i++ % pointCount)) state.SkipWithError(engine.LastError().c_str());
  }
}

void model(benchmark::State& state, const Case& row) {
  const Variant& variant = variantOf(row);
  const auto inputs = points(row);
  std::array<double, calvex::spreadsheet::maxOutputs> outputs{};
  run(state, [&](ZvThermoInt& engine, std::size_t i) {
    const int success = variant.run(engine, outputs.data(), inputs[i].data(), allFlags.data());
    benchmark::DoNotOptimize(outputs);
    return success != 0;
  });
}

// The calls are those that the model's own source makes on a recording engine.
void calls(benchmark::State& state, const Case& row) {
  std::vector<std::vector<recorded::PropertyCall>> list;
  for (const std::vector<double>& inputs : points(row)) {
    list.push_back(recorded::propertyCalls(row.name, inputs, allFlags.data()));
    if (list.back().empty()) return state.SkipWithError("not recorded");
  }
  run(state, [&](ZvThermoInt& engine, std::size_t i) {
    return std::ranges::all_of(list[i], [&](const auto& call) { return call(engine); });
  });
}

void spreadsheet(benchmark::State& state, const Case& row) {
  const Variant& variant = variantOf(row);
  const auto inputs = points(row);
  std::string tokens;
  for (const auto& token : variant.tokens()) tokens.append(token.text).append(",");
  calvex::ResultArray results;
  run(state, [&](ZvThermoInt& engine, std::size_t i) {
    return calvex::spreadsheet::returnResults(engine, variant, inputs[i], tokens, &results) != 0;
  });
}

class Table final : public calvex::bench::MedianTable {
 public:
  void Finalize() override {
    fmt::print("{:<20}{:>8}{:>12}{:>10}{:>8}\n", "model", "calls", "ns", "multiple", "XL");
    for (const Case& row : cases) print(row);
    fmt::print("{:<20}{:>30.2f}{:>8.2f}\n", "limit", limitOfModel, limitOfXL);
  }

 private:
  void print(const Case& row) const {
    const auto time = median(row.name);
    if (!time) return;
    const auto multiple = [](std::optional<double> a, std::optional<double> b) {
      return a && b ? fmt::format("{:.3f}", *a / *b) : "";
    };
    fmt::print("{:<20}{:>8}{:>12.0f}{:>10}{:>8}\n", row.name,
               recorded::propertyCalls(row.name, row.inputs, allFlags.data()).size(), *time,
               multiple(time, median(row.name + ofCalls)), multiple(median(row.name + ofXL), time));
  }
};

}  // namespace

int main(int argc, char** argv) {
  const auto add = [](const std::string& name, auto function, const Case& row) {
    benchmark::RegisterBenchmark(name.c_str(),
                                 [=, &row](benchmark::State& state) { function(state, row); });
  };
  for (const Case& row : cases) {
    add(row.name, model, row);
    add(row.name + ofCalls, calls, row);
    add(row.name + ofXL, spreadsheet, row);
  }
  Table table;
  return calvex::bench::runInterleaved(argc, argv, table);
}
