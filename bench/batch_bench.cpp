// calvex batch on a long table: rows a second, the most memory that it had, and which part of the
// time the members took. calvex_bench_batch [ROWS] (5,000,000) [THREADS] (one for each core)
#include <fmt/format.h>
#include <sys/resource.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "batch.h"

namespace {

namespace fs = std::filesystem;

// Liquid, steam and some of what is neither, in MPa and Celsius, with four and two decimals as a
// historian has them.
void writeTable(const fs::path& file, long rows) {
  std::ofstream out(file, std::ios::binary);
  std::mt19937_64 random(1984);
  std::uniform_real_distribution<> P(0.1, 20.0), T(20.0, 600.0);
  out << "time,P,T\n";
  for (long i = 0; i < rows; ++i) {
    out << fmt::format("2026-01-{:02}T{:02}:{:02}:00,{:.4f},{:.2f}\n", 1 + i % 28, i % 24, i % 60,
                       P(random), T(random));
  }
}

double seconds(std::chrono::steady_clock::duration duration) {
  return std::chrono::duration<double>(duration).count();
}

}  // namespace

int main(int count, char** arguments) {
  const long rows = count > 1 ? std::atol(arguments[1]) : 5000000;
  const unsigned threads = count > 2 ? static_cast<unsigned>(std::atoi(arguments[2])) : 0;
  const fs::path table = fs::temp_directory_path() / "calvex_bench_batch.csv";
  const fs::path output = fs::temp_directory_path() / "calvex_bench_batch.out.csv";
  writeTable(table, rows);

  using calvex::cli::readBatchColumn;
  calvex::cli::BatchRequest request;
  for (const char* column : {"h=HPT(P,T)", "s=SPT(P,T)", "x=QPH(P,h)"}) {
    request.columns.push_back(readBatchColumn(column));
  }
  request.client.units = {"T=C"};
  request.client.settings = {"SatPolish=2"};
  request.threads = threads;
  std::ifstream in(table, std::ios::binary);
  std::ofstream out(output, std::ios::binary);
  const auto begin = std::chrono::steady_clock::now();
  const calvex::cli::BatchOutcome outcome = runBatch(in, out, request);
  out.close();
  const double wall = seconds(std::chrono::steady_clock::now() - begin);
  rusage use{};
  getrusage(RUSAGE_SELF, &use);
  const double user =
      static_cast<double>(use.ru_utime.tv_sec) + 1e-6 * static_cast<double>(use.ru_utime.tv_usec);

  fmt::print("rows                        {}\n", outcome.rows);
  fmt::print("rows with a reason          {}\n", outcome.rowsWithReason);
  fmt::print("input, output               {} MB, {} MB\n", fs::file_size(table) / 1000000,
             fs::file_size(output) / 1000000);
  fmt::print("time                        {:.2f} s\n", wall);
  fmt::print("rows a second               {:.0f}\n", static_cast<double>(outcome.rows) / wall);
  fmt::print("processor time, with table  {:.2f} s\n", user);
  fmt::print("most memory                 {} MB\n", use.ru_maxrss / 1000);
  fmt::print("members' part of the work   {:.0f} %\n",
             100.0 * seconds(outcome.calling) / seconds(outcome.working));
  fs::remove(table);
  fs::remove(output);
  return 0;
}
