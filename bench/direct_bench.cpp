// What a state costs on the direct road, as a multiple of an empty solve (see members_bench.cpp) in
// the same run: per point, on one core, with each instruction set of the machine.
//
//   calvex_bench_direct                             the tables
//   calvex_bench_direct --benchmark_filter=P,T      some rows
#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "direct/chunks.h"
#include "direct/direct_road.h"
#include "empty_solve.h"
#include "median_table.h"

namespace {

using namespace calvex::direct;

// Enough for the clock, few enough for the second-level cache.
constexpr std::size_t pointCount = 4096;

struct Inputs {
  std::vector<double> first;
  std::vector<double> second;
};

enum class States { onePhase, twoPhases, line };

// States that a plant or a simulator has: 0.01 to 40 MPa, 280 to 1000 K.
Inputs inputsOf(Pair pair, States states, std::size_t count = pointCount) {
  std::mt19937_64 random(7);
  const auto between = [&](double low, double high) {
    return std::uniform_real_distribution<>(low, high)(random);
  };
  Inputs inputs;
  while (inputs.first.size() < count) {
    double given[] = {std::exp(between(std::log(0.01), std::log(40.0))), between(280.0, 1000.0)};
    if (states == States::line) {
      const bool fromP = firstOf(pair) == Letter::P;
      inputs.first.push_back(fromP ? std::exp(between(std::log(0.001), std::log(21.5)))
                                   : between(280.0, 645.0));
      inputs.second.push_back(0.5);
      continue;
    }
    const Letter letters[] = {firstOf(pair), secondOf(pair)};
    double values[2];
    Pair from = Pair::PT;
    if (states == States::twoPhases) {
      given[0] = std::exp(between(std::log(0.001), std::log(21.5)));
      given[1] = between(0.02, 0.98);
      from = Pair::PQ;
    }
    if (evaluate(from, given[0], given[1], letters, values) != 0) continue;
    inputs.first.push_back(values[0]);
    inputs.second.push_back(values[1]);
  }
  return inputs;
}

struct Case {
  const char* name;
  Pair pair;
  States states;
  std::vector<Letter> results;
  double limit8;  // multiples to stay below, with 8 and with 4 lanes
  double limit4;
};

const Case cases[] = {
    {"(P,T) to h, s and density",
     Pair::PT,
     States::onePhase,
     {Letter::H, Letter::S, Letter::R},
     0.07,
     0.12},
    {"(P,h) to T, one phase", Pair::PH, States::onePhase, {Letter::T}, 0.20, 0.35},
    {"(P,s) to T, one phase", Pair::PS, States::onePhase, {Letter::T}, 0.20, 0.35},
    {"(P,u) to T", Pair::PU, States::onePhase, {Letter::T}, 0.0, 0.0},
    {"(P,density) to T", Pair::PR, States::onePhase, {Letter::T}, 0.0, 0.0},
    {"(T,density) to P, h and s",
     Pair::TR,
     States::onePhase,
     {Letter::P, Letter::H, Letter::S},
     0.0,
     0.0},
    {"(P,h) to T, two phases", Pair::PH, States::twoPhases, {Letter::T}, 0.15, 0.25},
    {"(P,s) to T, two phases", Pair::PS, States::twoPhases, {Letter::T}, 0.15, 0.25},
    {"saturation pressure", Pair::TQ, States::line, {Letter::P}, 0.10, 0.18},
    {"saturation temperature", Pair::PQ, States::line, {Letter::T}, 0.10, 0.18},
    {"(P,T) to viscosity and conductivity",
     Pair::PT,
     States::onePhase,
     {Letter::M, Letter::K},
     0.15,
     0.25},
    {"(h,s) to P and T", Pair::HS, States::onePhase, {Letter::P, Letter::T}, 0.40, 0.70},
};

void arrays(benchmark::State& state, const Case& row, std::string_view set) {
  const Inputs inputs = inputsOf(row.pair, row.states);
  if (!useInstructionSet(set)) return state.SkipWithError("no such instruction set");
  std::vector<std::vector<double>> outputs;
  std::vector<Result> results;
  for (const Letter letter : row.results) {
    outputs.emplace_back(pointCount);
    results.push_back({letter, {outputs.back().data()}});
  }
  std::vector<short> status(pointCount);
  Request request{row.pair, {inputs.first.data()}, {inputs.second.data()}, results};
  request.status = {status.data()};
  for (auto _ : state) {
    evaluate(request, 0, pointCount);
    benchmark::ClobberMemory();
  }
  useInstructionSet({});
  if (std::any_of(status.begin(), status.end(), [](short s) { return s != 0; })) {
    state.SkipWithError("a state failed");
  }
}

void single(benchmark::State& state, Pair pair, std::vector<Letter> letters) {
  const Inputs inputs = inputsOf(pair, States::onePhase);
  std::array<double, letterCount> values;
  std::size_t i = 0;
  for (auto _ : state) {
    const std::size_t at = i++ % pointCount;
    benchmark::DoNotOptimize(
        evaluate(pair, inputs.first[at], inputs.second[at], letters, values.data()));
    benchmark::ClobberMemory();
  }
}

struct SingleCase {
  const char* name;
  Pair pair;
  std::vector<Letter> results;
  double limit;
};
const SingleCase singles[] = {
    {"one state: (P,T) to h, s and density", Pair::PT, {Letter::H, Letter::S, Letter::R}, 0.3},
    {"one state: (P,h) to T", Pair::PH, {Letter::T}, 0.8},
};

// The benchmark's states over and over, as many as asked for.
Inputs repeated(const Inputs& inputs, std::size_t count) {
  Inputs all;
  for (std::size_t i = 0; i < count; ++i) {
    all.first.push_back(inputs.first[i % pointCount]);
    all.second.push_back(inputs.second[i % pointCount]);
  }
  return all;
}

// The cost a point as the number of points grows.
void grows(benchmark::State& state, std::size_t count) {
  const Inputs inputs = repeated(inputsOf(Pair::PT, States::onePhase), count);
  std::vector<double> h(count);
  const Result results[] = {{Letter::H, {h.data()}}};
  const Request request{Pair::PT, {inputs.first.data()}, {inputs.second.data()}, results};
  for (auto _ : state) {
    evaluate(request, 0, count);
    benchmark::ClobberMemory();
  }
}
constexpr std::size_t counts[] = {1, 10, 100, 1000, 10000, 100000, 1000000, 10000000};

// A million points on several threads.
constexpr std::size_t manyPoints = 1000000;
constexpr unsigned threadCounts[] = {1, 2};
void onThreads(benchmark::State& state, const Case& row, unsigned threads) {
  const Inputs inputs = repeated(inputsOf(row.pair, row.states), manyPoints);
  std::vector<std::vector<double>> outputs;
  std::vector<Result> results;
  for (const Letter letter : row.results) {
    outputs.emplace_back(manyPoints);
    results.push_back({letter, {outputs.back().data()}});
  }
  const Request request{row.pair, {inputs.first.data()}, {inputs.second.data()}, results};
  for (auto _ : state) {
    calvex::forEachChunk(
        manyPoints, {.threads = threads, .chunk = 8192},
        [&](const calvex::Chunk& chunk) { evaluate(request, chunk.begin, chunk.end); });
    benchmark::ClobberMemory();
  }
}

std::string nameOf(const char* name, std::string_view set) {
  return fmt::format("{}, {}", name, set);
}
std::string nameOf(std::size_t count) { return fmt::format("points {}", count); }
std::string nameOf(const char* name, unsigned threads) {
  return fmt::format("{}, threads {}", name, threads);
}

class Table final : public calvex::bench::MedianTable {
 public:
  void Finalize() override {
    const auto empty = median("empty solve");
    if (!empty) return;
    fmt::print("empty solve: {:.0f} ns. Multiples of it, a point; meant to stay below\n", *empty);
    fmt::print("{:<40}", "");
    for (const auto set : instructionSets()) fmt::print("{:>10}", set);
    fmt::print("{:>10}{:>10}\n", "8 lanes", "4 lanes");
    for (const Case& row : cases) {
      fmt::print("{:<40}", row.name);
      for (const auto set : instructionSets()) print(nameOf(row.name, set), pointCount, *empty);
      if (row.limit8 > 0.0) fmt::print("{:>10.2f}{:>10.2f}", row.limit8, row.limit4);
      fmt::print("\n");
    }
    for (const SingleCase& row : singles) {
      fmt::print("{:<40}", row.name);
      print(row.name, 1, *empty);
      fmt::print("{:>10.2f}\n", row.limit);
    }
    fmt::print("\n{:<40}{:>10}\n", "points at once", "a point");
    for (const std::size_t count : counts) {
      fmt::print("{:<40}", count);
      print(nameOf(count), count, *empty);
      fmt::print("\n");
    }
    fmt::print("\n{:<40}", "million points a second");
    for (const unsigned threads : threadCounts) fmt::print("{:>4} threads", threads);
    for (const Case& row : cases) {
      fmt::print("\n{:<40}", row.name);
      for (const unsigned threads : threadCounts) {
        const auto time = medianElapsed(nameOf(row.name, threads));
        fmt::print("{:>12}", time ? fmt::format("{:.1f}", 1e3 * manyPoints / *time) : "");
      }
    }
    fmt::print("\n");
  }

 private:
  void print(const std::string& name, std::size_t points, double empty) const {
    const auto time = median(name);
    fmt::print("{:>10}",
               time ? fmt::format("{:.3f}", *time / static_cast<double>(points) / empty) : "");
  }
};

}  // namespace

int main(int argc, char** argv) {
  benchmark::RegisterBenchmark("empty solve", calvex::bench::emptySolve);
  for (const Case& row : cases) {
    for (const auto set : instructionSets()) {
      benchmark::RegisterBenchmark(nameOf(row.name, set).c_str(),
                                   [&row, set](benchmark::State& s) { arrays(s, row, set); });
    }
  }
  for (const SingleCase& row : singles) {
    benchmark::RegisterBenchmark(row.name,
                                 [&row](benchmark::State& s) { single(s, row.pair, row.results); });
  }
  for (const std::size_t count : counts) {
    benchmark::RegisterBenchmark(nameOf(count).c_str(),
                                 [count](benchmark::State& s) { grows(s, count); });
  }
  for (const Case& row : cases) {
    for (const unsigned threads : threadCounts) {
      benchmark::RegisterBenchmark(
          nameOf(row.name, threads).c_str(),
          [&row, threads](benchmark::State& s) { onThreads(s, row, threads); });
    }
  }
  Table table;
  return calvex::bench::runInterleaved(argc, argv, table);
}
