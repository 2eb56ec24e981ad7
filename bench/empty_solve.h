/// \file
/// The unit of the benchmarks: an empty solve, the solver run on two equations that cost nothing,
/// with the settings of the engine.
#pragma once

#include <benchmark/benchmark.h>

#include "steam/solver.h"

namespace calvex::bench {

// A mildly curved problem that takes the solver 13 evaluations, as a state from (P, T) takes 10
// to 19.
class EmptyProblem final : public ZvSolverCallBack {
 public:
  double start = 80.0;
  void evaluate(int /*m*/, int /*n*/, double* x, double* f, int& flag) override {
    if (flag == startFlag) {
      x[0] = 600.0;
      x[1] = start;
    } else if (flag != finishFlag) {
      f[0] = x[0] - 600.0;
      f[1] = x[1] * (1.0 + 1e-3 * x[1]) - 120.0;
    }
  }
};

inline void emptySolve(benchmark::State& state) {
  EmptyProblem problem;
  ZvSolver solver(problem);
  solver.setIterations(200);
  for (auto _ : state) {
    problem.start = problem.start < 81.0 ? problem.start + 1e-3 : 80.0;
    benchmark::DoNotOptimize(solver.Solve(2, 2));
  }
}

}  // namespace calvex::bench
