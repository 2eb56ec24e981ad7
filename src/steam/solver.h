/// \file
/// The one numerical solver: Levenberg-Marquardt least squares by MINPACK's lmdif
/// (J. J. More, B. S. Garbow, K. E. Hillstrom, ANL-80-74, 1980).
#pragma once

namespace calvex {

class Diagnostics;

/// What the solver solves.
class ZvSolverCallBack {
 public:
  virtual ~ZvSolverCallBack() = default;

  /// The flag says what is asked for: to write the starting point into x; to look at x and f of the
  /// last iterate; otherwise to evaluate the residuals f at x. Negative on return, it stops the
  /// solve and becomes its status.
  static constexpr int startFlag = 3;
  static constexpr int finishFlag = 4;
  /// m equations, n unknowns.
  virtual void evaluate(int m, int n, double* x, double* f, int& flag) = 0;
};

/// At most three equations in at most three unknowns; allocates nothing.
class ZvSolver {
 public:
  static constexpr int maxUnknowns = 3;

  explicit ZvSolver(ZvSolverCallBack& problem) : problem_(problem) {}

  /// MINPACK's status 0..8 (2, 3 and 4: converged), or the negative flag of the callback.
  [[nodiscard]] int Solve(int m, int n);

  /// Beyond MINPACK's own: converged, but to no solution.
  static constexpr int notASolution = 1000;
  [[nodiscard]] static bool converged(int status) noexcept {
    return status == 2 || status == 3 || status == 4;
  }
  /// Throws the message of a status that is not converged as ZvThermoException.
  [[noreturn]] static void raise(int status);
  /// Posts the evaluations and the m residuals of a solve as a note, if notes are wanted.
  static void note(Diagnostics& diagnostics, int evaluations, int m, const double* f);

  /// Relative step tolerance; accepted within (1e-14, 1e-6).
  bool setTolerance(double tolerance) noexcept;
  [[nodiscard]] double tolerance() const noexcept { return tolerance_; }

  /// Evaluations are limited to (n+1) times this; accepted within [51, 9999).
  bool setIterations(int iterations) noexcept;
  [[nodiscard]] int iterations() const noexcept { return iterations_; }

 private:
  ZvSolverCallBack& problem_;
  double tolerance_ = 1e-9;
  int iterations_ = 800;
};

}  // namespace calvex
