/// \file
/// Root of a function of one variable by Brent's method (R. P. Brent, Algorithms for Minimization
/// without Derivatives, 1973, chapter 4): inverse quadratic or linear interpolation where they
/// converge, bisection where they do not.
#pragma once

#include <cmath>
#include <optional>
#include <string>
#include <utility>

#include "diagnostics/messages.h"
#include "diagnostics/thermo_exception.h"

namespace calvex {

/// Two arguments and the values of a function there.
struct Bracket {
  double a, fa;
  double b, fb;
};

/// Whether the values have opposite signs or one is zero; not if one is NaN.
inline bool bracketsRoot(const Bracket& x) {
  return (x.fa <= 0.0 && x.fb >= 0.0) || (x.fa >= 0.0 && x.fb <= 0.0);
}

/// The root r is known to within 2 machineEpsilon |r| + absolute on either side.
struct RootTolerance {
  double machineEpsilon;
  double absolute;
};

/// The root of f in a bracket of which `bracketsRoot` is true.
///
/// f answers a std::optional<double>; nothing means that it has failed and said why, and the search
/// then answers nothing too. More than 100 evaluations, or a NaN, throw ZvThermoException with the
/// message for the user.
template <class Function>
std::optional<double> brentRoot(Function&& f, const Bracket& start, RootTolerance tolerance) {
  constexpr int maxEvaluations = 100;
  // b is the best root yet, [b, c] a bracket, a the b before.
  auto [a, fa, b, fb] = start;
  double c = a;
  double fc = fa;
  double step = b - a;
  double stepBefore = step;

  for (int evaluations = 0;; ++evaluations) {
    if (std::fabs(fc) < std::fabs(fb)) {
      a = std::exchange(b, c);
      fa = std::exchange(fb, fc);
      c = a;
      fc = fa;
    }
    const double tol = 2.0 * tolerance.machineEpsilon * std::fabs(b) + tolerance.absolute;
    const double m = 0.5 * (c - b);
    if (std::fabs(m) <= tol || fb == 0.0) return b;
    if (evaluations == maxEvaluations) {
      throw ZvThermoException(std::string(messageText(Message::maximumIterations)));
    }

    // The interpolated root is b + p/q, p > 0.
    bool interpolated = false;
    if (std::fabs(stepBefore) >= tol && std::fabs(fa) > std::fabs(fb)) {
      const double s = fb / fa;
      double p = 2.0 * m * s;
      double q = 1.0 - s;
      if (a != c) {
        const double t = fa / fc;
        const double r = fb / fc;
        p = s * (2.0 * m * t * (t - r) - (b - a) * (r - 1.0));
        q = (t - 1.0) * (r - 1.0) * (s - 1.0);
      }
      if (p > 0.0) {
        q = -q;
      } else {
        p = -p;
      }
      // Not beyond three quarters of the bracket, and at most half the step before the last.
      interpolated =
          2.0 * p < 3.0 * m * q - std::fabs(tol * q) && p < std::fabs(0.5 * stepBefore * q);
      if (interpolated) {
        stepBefore = step;
        step = p / q;
      }
    }
    if (!interpolated) stepBefore = step = m;

    a = b;
    fa = fb;
    b += std::fabs(step) > tol ? step : std::copysign(tol, m);
    const std::optional<double> value = f(b);
    if (!value) return std::nullopt;
    if (std::isnan(*value)) {
      throw ZvThermoException(std::string(messageText(Message::solutionError)));
    }
    fb = *value;
    if ((fb > 0.0) == (fc > 0.0)) {
      c = a;
      fc = fa;
      stepBefore = step = b - a;
    }
  }
}

}  // namespace calvex
