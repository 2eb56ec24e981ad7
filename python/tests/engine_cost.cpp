// What the engine's own calls cost, for the comparison with Python's: microseconds a scalar call,
// and seconds for the C interface over many points, the best of several.
//
//     calvex_python_cost POINTS
#include <calvex/calvex.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <vector>

#include "engine/thermo_engine.h"
#include "equipment/turbines_compressors.h"

namespace {

template <class Work>
double bestSeconds(int repeats, Work&& work) {
  double best = std::numeric_limits<double>::infinity();
  for (int i = 0; i < repeats; ++i) {
    const auto start = std::chrono::steady_clock::now();
    work();
    best = std::min(
        best, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
  }
  return best;
}

template <class Call>
double microseconds(int count, Call&& call) {
  return bestSeconds(7,
                     [&] {
                       for (int i = 0; i < count; ++i) call();
                     }) /
         count * 1e6;
}

}  // namespace

int main(int count, char** arguments) {
  using namespace calvex;
  ZvThermoInt engine;
  engine.SetSatPolish(2);
  engine.SetTraceLevel(1);
  double x = 0.0, power = 0.0, T = 0.0, h = 0.0, q = 0.0;
  const double xt = microseconds(200'000, [&] { engine.XT(&x, 300.0); });
  const double hpt = microseconds(20'000, [&] { engine.HPT(&x, 10.0, 773.15); });
  const double turbine = microseconds(
      2'000, [&] { TurbineA(engine, &power, &T, &h, &q, 3374.0, 10.0, 1.0, 0.8, 10.0, 1); });

  // The same states as the test's: a sequence that both can make.
  const auto n = static_cast<std::size_t>(count > 1 ? std::atoll(arguments[1]) : 1'000'000);
  std::vector<double> P(n), Ts(n), H(n);
  for (std::size_t i = 0; i < n; ++i) {
    P[i] = 0.1 + static_cast<double>(i * 7919 % 19'900) * 1e-3;
    Ts[i] = 300.0 + static_cast<double>(i * 104'729 % 700'000) * 1e-3;
  }
  calvex_engine* c = nullptr;
  const calvex_column inputs[] = {{P.data(), 1}, {Ts.data(), 1}};
  const calvex_output output{0, {H.data(), 1}};
  calvex_rows rows{};
  rows.count = n;
  rows.inputs = inputs;
  rows.input_count = 2;
  rows.outputs = &output;
  rows.output_count = 1;
  int code = calvex_create(&c);
  if (code == CALVEX_OK) code = calvex_find_member("HPT", CALVEX_TERMINATED, &rows.member);
  const double many = bestSeconds(5, [&] {
    if (code == CALVEX_OK) code = calvex_columns(c, &rows, sizeof rows);
  });
  calvex_destroy(c);
  if (code != CALVEX_OK) return 1;
  std::printf("{\"XT\": %.4f, \"HPT\": %.4f, \"TurbineA\": %.4f, \"many\": %.6f}\n", xt, hpt,
              turbine, many);
}
