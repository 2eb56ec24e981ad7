#include "equipment/polynomial.h"

#include <cmath>
#include <exception>

#include "engine/thermo_engine.h"

namespace calvex {

namespace {

struct Polynomial final : ZvSolverCallBack {
  double a, b, c, d, e, f;
  double T;  // the start, then the last iterate

  Polynomial(double a0, double a1, double a2, double a3, double a4, double a5, double start)
      : a(a0), b(a1), c(a2), d(a3), e(a4), f(a5), T(start) {}

  void evaluate(int /*m*/, int /*n*/, double* x, double* residual, int& flag) override {
    if (flag == startFlag) {
      x[0] = T;
    } else if (flag == finishFlag) {
      T = x[0];
    } else {
      residual[0] = f * std::pow(x[0], 5.0) + e * std::pow(x[0], 4.0) + d * std::pow(x[0], 3.0) +
                    c * std::pow(x[0], 2.0) + b * x[0] + a;
    }
  }
};

}  // namespace

int SolvePoly5(ZvThermoInt& engine, double* T2, double a, double b, double c, double d, double e,
               double f, double T1) {
  try {
    Polynomial polynomial(a, b, c, d, e, f, T1);
    ZvSolver solver(polynomial);
    solver.setTolerance(engine.steam().solver().tolerance());
    solver.setIterations(engine.steam().solver().iterations());
    static_cast<void>(solver.Solve(1, 1));  // a polynomial without a root has a last iterate too
    return engine.give(T2, polynomial.T) ? 1 : 0;
  } catch (const std::exception& failure) {
    engine.diagnostics().postError(failure.what());
    return 0;
  }
}

}  // namespace calvex
