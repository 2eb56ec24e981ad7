#include "steam/solver.h"

#include <cminpack.h>

#include <algorithm>
#include <string>

#include "diagnostics/diagnostics.h"
#include "diagnostics/formatting.h"
#include "diagnostics/thermo_exception.h"

namespace calvex {

namespace {

// MINPACK stops at a negative answer and returns it as its status.
int residuals(void* problem, int m, int n, const double* x, double* f, int flag) {
  double trial[ZvSolver::maxUnknowns];
  std::copy_n(x, n, trial);
  static_cast<ZvSolverCallBack*>(problem)->evaluate(m, n, trial, f, flag);
  return std::min(flag, 0);
}

}  // namespace

int ZvSolver::Solve(int m, int n) {
  constexpr int N = maxUnknowns;
  constexpr double reductionTolerance = 1e-14;      // ftol
  constexpr double orthogonalityTolerance = 1e-14;  // gtol
  constexpr double differenceStep = 1e-15;          // epsfcn
  constexpr int internalScaling = 1;                // mode
  constexpr double stepBound = 100.0;               // factor
  constexpr int noPrinting = 0;                     // nprint

  double x[N] = {};
  double f[N] = {};
  double scale[N], jacobian[N * N], qtf[N], work1[N], work2[N], work3[N], work4[N];
  int pivots[N];
  int evaluations = 0;

  int flag = ZvSolverCallBack::startFlag;
  problem_.evaluate(m, n, x, f, flag);

  const int status = lmdif(residuals, &problem_, m, n, x, f, reductionTolerance, tolerance_,
                           orthogonalityTolerance, iterations_ * (n + 1), differenceStep, scale,
                           internalScaling, stepBound, noPrinting, &evaluations, jacobian, m,
                           pivots, qtf, work1, work2, work3, work4);

  flag = ZvSolverCallBack::finishFlag;
  problem_.evaluate(m, n, x, f, flag);
  return status;
}

void ZvSolver::raise(int status) {
  switch (status) {
    case notASolution:
      throw ZvThermoException(std::string(messageText(Message::solutionError)));
    case 5:
      throw ZvThermoException(std::string(messageText(Message::maximumIterations)));
    case -2:
    case -1:
    case 0:
    case 1:
    case 6:
    case 7:
    case 8:
      throw ZvThermoException(fmt::sprintf(messageText(Message::noSolution), status));
    default:
      throw ZvThermoException(std::string(messageText(Message::unknownSolverCode)));
  }
}

void ZvSolver::note(Diagnostics& diagnostics, int evaluations, int m, const double* f) {
  if (!diagnostics.wantsNotes()) return;
  diagnostics.postNote(fmt::sprintf(messageText(Message::solverNote), evaluations, f[0],
                                    m > 1 ? f[1] : 0.0, m > 2 ? f[2] : 0.0));
}

bool ZvSolver::setTolerance(double tolerance) noexcept {
  if (!(tolerance > 1e-14 && tolerance < 1e-6)) return false;
  tolerance_ = tolerance;
  return true;
}

bool ZvSolver::setIterations(int iterations) noexcept {
  if (iterations < 51 || iterations >= 9999) return false;
  iterations_ = iterations;
  return true;
}

}  // namespace calvex
