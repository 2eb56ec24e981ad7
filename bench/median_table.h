/// \file
/// What the benchmarks share: interleaved repetitions whose medians become one table.
#pragma once

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace calvex::bench {

/// Collects the median times. A benchmark's table derives from it and prints them in `Finalize`.
class MedianTable : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context& /*context*/) override { return true; }

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.error_occurred) {
        fmt::print("{}: {}\n", run.benchmark_name(), run.error_message);
      } else if ((run.run_type == Run::RT_Aggregate && run.aggregate_name == "median") ||
                 (run.run_type == Run::RT_Iteration && run.repetitions == 1)) {
        // Processor time, which the machine's other work disturbs least.
        medians_.emplace(run.run_name.function_name, run.GetAdjustedCPUTime());
        // Of several threads by the clock.
        elapsed_.emplace(run.run_name.function_name, run.GetAdjustedRealTime());
      }
    }
  }

 protected:
  /// Of that benchmark in ns; nothing if it did not run or failed.
  [[nodiscard]] std::optional<double> median(const std::string& name) const {
    return in(medians_, name);
  }
  /// The same by the clock.
  [[nodiscard]] std::optional<double> medianElapsed(const std::string& name) const {
    return in(elapsed_, name);
  }

 private:
  using Times = std::map<std::string, double>;
  static std::optional<double> in(const Times& times, const std::string& name) {
    const auto found = times.find(name);
    return found == times.end() ? std::nullopt : std::optional(found->second);
  }

  Times medians_;
  Times elapsed_;
};

/// Runs the registered benchmarks with the options of the command line, by default with interleaved
/// repetitions, so that a drift of the machine's speed hits all rows alike. Answers the exit code.
inline int runInterleaved(int argc, char** argv, MedianTable& table) {
  std::string defaults[] = {"--benchmark_enable_random_interleaving=true",
                            "--benchmark_repetitions=5", "--benchmark_min_time=0.02"};
  std::vector<char*> all{argv[0]};
  for (std::string& option : defaults) all.push_back(option.data());
  all.insert(all.end(), argv + 1, argv + argc);
  int count = static_cast<int>(all.size());
  benchmark::Initialize(&count, all.data());
  if (benchmark::ReportUnrecognizedArguments(count, all.data())) return 2;
  benchmark::RunSpecifiedBenchmarks(&table);
  return 0;
}

}  // namespace calvex::bench
