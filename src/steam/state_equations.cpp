// The engine's equations and how they are solved: residuals, and when they are small enough.
#include <algorithm>
#include <cmath>
#include <optional>

#include "steam/constants.h"
#include "steam/saturation_correlations.h"
#include "steam/steam_model.h"

namespace calvex {

namespace {

using constants::criticalDensity;

}  // namespace

SteamModel::SteamModel(Diagnostics& diagnostics) : diagnostics_(diagnostics), solver_(*this) {
  reset();
}

void SteamModel::reset() {
  solver_.setTolerance(1e-9);
  solver_.setIterations(200);
  satPolish_ = 1;
  state_ = {};
  unknowns_ = {};
}

const TemperaturePart& SteamModel::temperaturePart(double T, TemperaturePart::Order order) {
  if (temperatureParts_[lastPart_].T() != T) lastPart_ ^= 1;
  TemperaturePart& part = temperatureParts_[lastPart_];
  part.prepare(T, order);
  return part;
}

double SteamModel::propertyAt(Property property, double T, double density) {
  return calvex::evaluate(property, temperaturePart(T, orderOf(property)), density);
}

SteamModel::Equation SteamModel::equationOf(Property property) {
  switch (property) {
    case Property::enthalpy:
      return Equation::enthalpy;
    case Property::entropy:
      return Equation::entropy;
    case Property::internalEnergy:
      return Equation::internalEnergy;
    default:
      return Equation::density;
  }
}

Property SteamModel::propertyOf(Equation equation) {
  switch (equation) {
    case Equation::enthalpy:
      return Property::enthalpy;
    case Equation::entropy:
      return Property::entropy;
    default:
      return Property::internalEnergy;
  }
}

double SteamModel::valueOf(Equation equation, const HelmholtzPoint& point) {
  switch (equation) {
    case Equation::entropy:
      return point.entropy();
    case Equation::enthalpy:
      return point.enthalpy();
    case Equation::internalEnergy:
      return point.internalEnergy();
    case Equation::gibbs:
      return point.gibbs();
    default:
      return point.pressure();
  }
}

void SteamModel::pose(std::span<const Target> targets) {
  std::copy(targets.begin(), targets.end(), targets_.begin());
  using Order = TemperaturePart::Order;
  order_ = Order::none;
  usesFirst_ = false;
  usesSecond_ = false;
  for (const Target& target : targets) {
    switch (target.equation) {
      case Equation::entropy:
      case Equation::enthalpy:
      case Equation::internalEnergy:
      case Equation::gibbs:
        usesFirst_ = true;
        order_ = Order::energy;
        break;
      case Equation::gibbsDifference:
      case Equation::pressureDifference:
        usesSecond_ = true;
        [[fallthrough]];
      case Equation::pressure:
        usesFirst_ = true;
        order_ = std::max(order_, Order::pressure);
        break;
      default:
        break;
    }
  }
}

void SteamModel::evaluate(int m, int n, double* x, double* f, int& flag) {
  if (flag == startFlag) {
    std::copy_n(unknowns_.begin(), n, x);
    evaluations_ = 0;
    return;
  }
  if (flag == finishFlag) {
    std::copy_n(x, n, unknowns_.begin());
    accepted_ = isSolution(m, f);
    ZvSolver::note(diagnostics_, evaluations_, m, f);
    return;
  }

  const double T = x[0];
  const double density1 = n > 1 ? x[1] : unknowns_[1];
  std::optional<HelmholtzPoint> first;
  std::optional<HelmholtzPoint> second;
  if (usesFirst_) {
    const TemperaturePart& part = temperaturePart(T, order_);
    first.emplace(part, density1);
    if (usesSecond_) second.emplace(part, x[2]);
  }
  for (int i = 0; i < m; ++i) {
    const Target& target = targets_[static_cast<std::size_t>(i)];
    switch (target.equation) {
      case Equation::density:
        f[i] = density1 - target.value;
        break;
      case Equation::specificVolume:
        f[i] = 1.0 / density1 - target.value;
        break;
      case Equation::temperature:
        f[i] = T - target.value;
        break;
      case Equation::entropy:
      case Equation::enthalpy:
      case Equation::internalEnergy:
      case Equation::pressure:
      case Equation::gibbs:
        f[i] = valueOf(target.equation, *first) - target.value;
        break;
      case Equation::gibbsDifference:
        f[i] = second->gibbsOfPhase() - first->gibbsOfPhase();
        break;
      case Equation::pressureDifference:
        f[i] = second->pressure() - first->pressure();
        break;
      case Equation::saturationCorrelation:
        f[i] = saturation::pressure(T) - target.value;
        break;
    }
  }
  ++evaluations_;
}

// A solve is a solution only when it is one: the minimiser's own tests do not look at the size of
// the residuals. (P, s) at 10 MPa and 0.5263 kJ/(kg.K), a liquid at 310 K, "converges" to 210.96 K
// with an entropy residual of -3.6.
bool SteamModel::isSolution(int n, const double* f) const {
  for (int i = 0; i < n; ++i) {
    if (!std::isfinite(f[i]) || !std::isfinite(unknowns_[static_cast<std::size_t>(i)]))
      return false;
  }
  for (int i = 0; i < n; ++i) {
    if (!(unknowns_[static_cast<std::size_t>(i)] > 0.0)) return false;
  }
  const double T = unknowns_[0];
  const double idealGasPressure = 0.001 * constants::gasConstant * unknowns_[1] * T;  // MPa
  for (int i = 0; i < n; ++i) {
    const Target& target = targets_[static_cast<std::size_t>(i)];
    double allowed = 0.0;
    switch (target.equation) {
      case Equation::density:
      case Equation::specificVolume:
      case Equation::temperature:
        allowed = 1e-6 * target.value;
        break;
      case Equation::entropy:
        allowed = 1e-6;
        break;
      case Equation::enthalpy:
      case Equation::internalEnergy:
      case Equation::gibbs:
      case Equation::gibbsDifference:
        allowed = 1e-4;
        break;
      case Equation::pressure:
      case Equation::pressureDifference:
        // The absolute part is for dense fluid, whose density does not resolve a small pressure. A
        // gas gets it in proportion to its own pressure: (P, s) of steam at 1e-12 MPa and 1000 K
        // was answered with 485 K.
        allowed = 1e-5 * target.value + 1e-6 * std::min(1.0, idealGasPressure);
        break;
      case Equation::saturationCorrelation:
        allowed = 1e-5 * target.value;
        break;
    }
    if (!(std::fabs(f[i]) <= allowed)) return false;
  }
  return true;
}

int SteamModel::solve(std::span<const Target> targets) {
  pose(targets);
  const int n = static_cast<int>(targets.size());
  const int status = solver_.Solve(n, n);
  return ZvSolver::converged(status) && !accepted_ ? ZvSolver::notASolution : status;
}

// Equal pressure and equal Gibbs energy of two phases, with the third target, from where the
// density guesses put it. The solver's status.
int SteamModel::solveEquilibrium(Target third, double T) {
  const std::array<Target, 3> targets{Target{Equation::gibbsDifference, 0.0},
                                      Target{Equation::pressureDifference, 0.0}, third};
  unknowns_ = {T, saturation::liquidDensityGuess(T), saturation::vapourDensityGuess(T)};
  const int status = solve(targets);
  // Two equal densities meet both differences and are no equilibrium; next to the critical point
  // nearly equal ones do within the tolerances.
  const bool apart = unknowns_[1] > criticalDensity && unknowns_[2] < criticalDensity;
  return ZvSolver::converged(status) && !apart ? ZvSolver::notASolution : status;
}

void SteamModel::store(Start solution, double quality) {
  state_.temperature = solution.temperature;
  state_.density = solution.density;
  state_.quality = quality;
}

}  // namespace calvex
