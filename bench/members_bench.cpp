// What a member costs, as a multiple of an empty solve: the solver run on two equations that cost
// nothing, with the settings of the engine. The multiples hold when the machine's speed does not.
//
//   calvex_bench                                    the table
//   calvex_bench --benchmark_filter=HPT             some rows
//   calvex_bench --benchmark_repetitions=9          the median of more repetitions
#include <array>
#include <string>

#include "empty_solve.h"
#include "engine/thermo_engine.h"
#include "median_table.h"

namespace {

using calvex::ZvThermoInt;

// Points around a given one, so that no call repeats its predecessor.
constexpr std::size_t pointCount = 64;

using TwoInputs = int (ZvThermoInt::*)(double*, double, double);
using OneInput = int (ZvThermoInt::*)(double*, double);

struct Case {
  const char* name;
  TwoInputs two;
  OneInput one;
  double first;
  double second;
  double limit;  // the multiple that the case has to stay below
};

// (P, T): 10 MPa and 400 K liquid, 1 MPa and 600 K steam, 50 MPa and 900 K supercritical.
const Case cases[] = {
    {"HPT liquid", &ZvThermoInt::HPT, nullptr, 10.0, 400.0, 3.0},
    {"HPT steam", &ZvThermoInt::HPT, nullptr, 1.0, 600.0, 3.0},
    {"HPT supercritical", &ZvThermoInt::HPT, nullptr, 50.0, 900.0, 3.0},
    {"CPT liquid", &ZvThermoInt::CPT, nullptr, 10.0, 400.0, 0.0},
    {"CPT steam", &ZvThermoInt::CPT, nullptr, 1.0, 600.0, 0.0},
    {"MPT liquid", &ZvThermoInt::MPT, nullptr, 10.0, 400.0, 3.5},
    {"MPT steam", &ZvThermoInt::MPT, nullptr, 1.0, 600.0, 3.5},
    {"KPT liquid", &ZvThermoInt::KPT, nullptr, 10.0, 400.0, 0.0},
    {"PSatT", nullptr, &ZvThermoInt::PSatT, 450.0, 0.0, 5.0},
    {"TSatP", nullptr, &ZvThermoInt::TSatP, 1.0, 0.0, 8.0},
    {"HSatPQ", &ZvThermoInt::HSatPQ, nullptr, 1.0, 0.5, 0.0},
    {"TPH liquid", &ZvThermoInt::TPH, nullptr, 10.0, 540.0, 14.0},
    {"TPH steam", &ZvThermoInt::TPH, nullptr, 1.0, 3093.0, 14.0},
    {"TPH supercritical", &ZvThermoInt::TPH, nullptr, 50.0, 2900.0, 14.0},
    {"TPH two-phase", &ZvThermoInt::TPH, nullptr, 1.0, 1500.0, 14.0},
    {"TPS liquid", &ZvThermoInt::TPS, nullptr, 10.0, 1.59, 14.0},
    {"TPS steam", &ZvThermoInt::TPS, nullptr, 1.0, 7.23, 14.0},
    {"TPS supercritical", &ZvThermoInt::TPS, nullptr, 50.0, 5.94, 14.0},
    {"PTH steam", &ZvThermoInt::PTH, nullptr, 600.0, 3093.0, 0.0},
    {"XT", nullptr, &ZvThermoInt::XT, 450.0, 0.0, 0.0},
};

void member(benchmark::State& state, const Case& row, int tracing) {
  ZvThermoInt engine;
  engine.SetFunctionCallTracing(tracing);
  std::array<double, pointCount> first;
  for (std::size_t i = 0; i < pointCount; ++i) {
    first[i] = row.first * (1.0 + 1e-5 * static_cast<double>(i));
  }
  double out = 0.0;
  std::size_t i = 0;
  for (auto _ : state) {
    const double x = first[i++ % pointCount];
    const int success =
        row.two != nullptr ? (engine.*row.two)(&out, x, row.second) : (engine.*row.one)(&out, x);
    if (success == 0) state.SkipWithError(engine.LastError().c_str());
    benchmark::DoNotOptimize(out);
  }
}

void convert(benchmark::State& state, int tracing) {
  ZvThermoInt engine;
  engine.SetFunctionCallTracing(tracing);
  double out = 0.0;
  double value = 100.0;
  for (auto _ : state) {
    value = value < 200.0 ? value + 1.0 : 100.0;
    if (engine.Convert("Pressure", "psia", "bara", value, &out) == 0) {
      state.SkipWithError(engine.LastError().c_str());
    }
    benchmark::DoNotOptimize(out);
  }
}

constexpr const char* untraced = ", untraced";

// Prints the medians as multiples of the empty solve.
class RatioTable final : public calvex::bench::MedianTable {
 public:
  void Finalize() override {
    const auto empty = median("empty solve");
    if (!empty) return;
    fmt::print("{:<20}{:>10}{:>10}{:>12}{:>8}\n", "member", "ns", "multiple", "untraced", "limit");
    print("empty solve", *empty, 0.0);
    for (const Case& row : cases) print(row.name, *empty, row.limit);
    print("Convert", *empty, 0.3);
  }

 private:
  void print(const std::string& name, double empty, double limit) const {
    const auto traced = median(name);
    if (!traced) return;
    const auto quiet = median(name + untraced);
    fmt::print("{:<20}{:>10.0f}{:>10.2f}{:>12}{:>8}\n", name, *traced, *traced / empty,
               quiet ? fmt::format("{:.2f}", *quiet / empty) : "",
               limit > 0.0 ? fmt::format("{:g}", limit) : "");
  }
};

}  // namespace

int main(int argc, char** argv) {
  benchmark::RegisterBenchmark("empty solve", calvex::bench::emptySolve);
  for (const Case& row : cases) {
    for (const int tracing : {1, 0}) {
      benchmark::RegisterBenchmark(
          (row.name + std::string(tracing ? "" : untraced)).c_str(),
          [&row, tracing](benchmark::State& s) { member(s, row, tracing); });
    }
  }
  for (const int tracing : {1, 0}) {
    benchmark::RegisterBenchmark((std::string("Convert") + (tracing ? "" : untraced)).c_str(),
                                 [tracing](benchmark::State& s) { convert(s, tracing); });
  }
  RatioTable table;
  return calvex::bench::runInterleaved(argc, argv, table);
}
