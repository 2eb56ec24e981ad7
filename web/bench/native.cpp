// What a member over arrays costs on this machine without a browser, with two lanes: beside
// speed.mjs, which writes the points.
//
//   calvex_web_native MEMBER SET < POINTS    nanoseconds a point, the best of some runs
#include <calvex/calvex.hpp>
#include <chrono>
#include <cstdio>
#include <vector>

#include "direct/direct_road.h"

int main(int count, char** arguments) {
  if (count != 3 || !calvex::direct::useInstructionSet(arguments[2])) {
    std::fprintf(stderr, "usage: calvex_web_native MEMBER SET < POINTS\n");
    return 2;
  }
  std::vector<double> points;
  double block[4096];
  while (const std::size_t read = std::fread(block, sizeof(double), 4096, stdin)) {
    points.insert(points.end(), block, block + read);
  }
  const std::size_t n = points.size() / 2;
  std::vector<double> results(n);
  const calvex_column inputs[] = {{points.data(), 1}, {points.data() + n, 1}};
  const calvex_output outputs[] = {{0, {results.data(), 1}}};
  calvex_rows rows{};
  calvex_find_member(arguments[1], CALVEX_TERMINATED, &rows.member);
  rows.count = n;
  rows.inputs = inputs;
  rows.input_count = 2;
  rows.outputs = outputs;
  rows.output_count = 1;
  rows.threads = 1;
  calvex_engine* engine = nullptr;
  calvex_create(&engine);
  double best = 1e30;
  for (int run = 0; run < 5; ++run) {
    const auto start = std::chrono::steady_clock::now();
    if (calvex_columns(engine, &rows, sizeof rows) != CALVEX_OK) return 1;
    const std::chrono::duration<double, std::nano> time = std::chrono::steady_clock::now() - start;
    best = std::min(best, time.count());
  }
  calvex_destroy(engine);
  std::printf("%.1f\n", best / static_cast<double>(n));
}
