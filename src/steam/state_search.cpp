// From the two targets of a state to the state of water that is meant: what the minimiser finds is
// checked; where it is no state of water, or not the one meant, a search decides.
#include <algorithm>
#include <cmath>

#include "steam/constants.h"
#include "steam/root_search.h"
#include "steam/saturation_correlations.h"
#include "steam/steam_model.h"

namespace calvex {

namespace {

using constants::criticalRegion;
using constants::criticalTemperature;
using constants::densest;
using constants::highestPressure;
using constants::phasesMeet;

// Where a search for a density ends, kg/m3.
constexpr double thinnest = 1e-30;

// What the minimiser leaves between its solution and a limit that is one.
constexpr double solverError = 1e-8;

// Below 560 K the equation has mechanically stable stretches at 150 to 470 kg/m3 that are neither
// liquid nor vapour: (T, h) at 427 K and 110 kJ/kg has a root in one. From 640 K on the density
// correlations lose their accuracy of half a per cent; there a phase is known by its side of the
// density where both meet.
bool isOfPhase(Side side, double T, double density) {
  if (T >= criticalTemperature || side == Side::any) return true;
  const bool liquid = side == Side::liquid;
  if (T > 640.0) return liquid == (density > phasesMeet);
  if (density > 600.0 || density < 100.0) return liquid == (density > 600.0);
  if (liquid) return density >= 0.95 * saturation::liquidDensityGuess(T);
  return T >= constants::triplePointTemperature &&
         density <= 1.05 * saturation::vapourDensityGuess(T);
}

double densestAt(double T) {
  return roots::density(highestPressure, T, Side::liquid).value_or(densest);
}

}  // namespace

bool SteamModel::isState(const Request& request, Start found, Side side) {
  const auto [T, density] = found;
  if (!request.fromT() &&
      !(T >= request.TMin * (1.0 - solverError) && T <= request.TMax * (1.0 + solverError))) {
    return false;
  }
  const bool needsSlope = !request.fromT() && request.second.equation == Equation::density;
  using Order = TemperaturePart::Order;
  const HelmholtzPoint point(temperaturePart(T, needsSlope ? Order::energy : Order::pressure),
                             density);
  // Roots between the spinodals meet their targets too: (P, s) at 15.98 MPa and 0.691 kJ/(kg.K), a
  // liquid at 322.7 K and 995 kg/m3, has one at 340.2 K and 731 kg/m3.
  if (!(point.pressureSlope() > 0.0) || !isOfPhase(side, T, density)) return false;
  // Water at 25 MPa has 1007.986 kg/m3 at 298.15 K and again at 252.6 K: the warmer is meant.
  if (needsSlope && !(point.gradient().PT > 0.0)) return false;
  if (request.fromT() && request.second.equation != Equation::pressure) {
    const double P = point.pressure();
    if (!(P > 0.0 && P <= highestPressure * (1.0 + solverError))) return false;
  }
  if (request.saturated > 0.0) {
    return side == Side::liquid ? density >= request.saturated * (1.0 - solverError)
                                : density <= request.saturated * (1.0 + solverError);
  }
  return true;
}

// The slope of the second target's property in the density (r, g/cm3) at constant temperature, and
// in the temperature at constant density.
SteamModel::Slopes SteamModel::slopesOf(Equation equation, const HelmholtzPoint& point, double T,
                                        double r) {
  const HelmholtzPoint::Derivatives d = point.derivatives();
  switch (equation) {
    case Equation::entropy:
      return {-d.PT / (r * r), d.cv / T, d};
    case Equation::internalEnergy:
      return {(point.pressure() - T * d.PT) / (r * r), d.cv, d};
    case Equation::enthalpy:
      return {(d.Pr - T * d.PT / r) / r, d.cv + d.PT / r, d};
    default:
      return {1000.0, 0.0, d};
  }
}

// The minimiser stops where a step no longer matters to it. Newton's method with analytic slopes
// goes on to the rounding of the numbers: a thin gas's (T, u) was right to 1e-7 in both inputs and
// wrong by a factor of 200 in its pressure.
Start SteamModel::polished(const Request& request, Start found) {
  const auto [equation, value] = request.second;
  Start at = found;
  if (request.fromT()) at.temperature = request.first.value;
  if (equation == Equation::density) at.density = value;
  if (request.fromT() && equation == Equation::density) return at;
  const bool fromPT = equation == Equation::pressure;
  // The minimiser has come closer, but for a thin gas at a known temperature. Where the pressure
  // hardly rises with the density, next to the critical point, a longer step leads anywhere.
  double last = request.fromT() && !fromPT && found.density < 1.0 ? 1e3 : 1e-3;
  for (;;) {
    const double r = 0.001 * at.density;
    const HelmholtzPoint point(
        temperaturePart(at.temperature, fromPT ? TemperaturePart::Order::pressure
                                               : TemperaturePart::Order::curvature),
        at.density);
    double dr = 0.0;
    double dT = 0.0;
    if (fromPT) {
      dr = (value - point.pressure()) / point.pressureSlope();
    } else {
      const Slopes slopes = slopesOf(equation, point, at.temperature, r);
      const double dX = equation == Equation::density ? 0.0 : value - valueOf(equation, point);
      if (request.fromT()) {
        dr = dX / slopes.density;
      } else {
        //  P_T dT + P_r dr = dP        X_T dT + X_r dr = dX
        const double dP = request.first.value - point.pressure();
        const auto& d = slopes.pressure;
        const double determinant = d.PT * slopes.density - d.Pr * slopes.temperature;
        dT = (dP * slopes.density - d.Pr * dX) / determinant;
        dr = (d.PT * dX - dP * slopes.temperature) / determinant;
      }
    }
    const double step = std::max(std::fabs(dr) / r, std::fabs(dT) / at.temperature);
    if (!(step < last)) return at;  // rounding, or no better than what the minimiser found
    at.density += 1000.0 * dr;
    at.temperature += dT;
    if (!(at.density > 0.0)) return found;
    if (step < 1e-9) return at;  // the next step is lost
    last = step;
  }
}

std::optional<Start> SteamModel::search(const Request& request) {
  const auto [equation, value] = request.second;
  const bool isDensity = equation == Equation::density;
  if (!request.fromT()) {
    const double P = request.first.value;
    const double lower = request.TMin;
    const double upper = request.TMax;
    if (isDensity) {
      const auto T = roots::warmest(P, value, lower, upper);
      return T ? std::optional(Start{*T, value}) : std::nullopt;
    }
    const auto T = roots::temperature(P, propertyOf(equation), value, request.side, lower, upper);
    const auto density = T ? roots::density(P, *T, request.side) : std::nullopt;
    return density ? std::optional(Start{*T, *density}) : std::nullopt;
  }

  const double T = request.first.value;
  std::optional<double> density;
  if (equation == Equation::pressure) {
    density = roots::density(value, T, request.side);
    // Where the line is a scaling law one of its sides may be missing.
    if (!density && std::fabs(T - criticalTemperature) <= criticalRegion) {
      density =
          roots::density(value, T, request.side == Side::liquid ? Side::vapour : Side::liquid);
    }
  } else if (!isDensity) {
    const double light = thinnest;
    const double heavy = request.side == Side::vapour ? request.saturated : densestAt(T);
    if (request.side == Side::liquid) {
      density = roots::density(T, propertyOf(equation), value, request.saturated, heavy);
    } else if (request.side == Side::vapour) {
      density = roots::density(T, propertyOf(equation), value, heavy, light);
    } else {
      density = roots::density(T, propertyOf(equation), value, light, heavy);
    }
  }
  return density ? std::optional(Start{T, *density}) : std::nullopt;
}

std::optional<Start> SteamModel::findState(const Request& request, int& status) {
  const std::array<Target, 2> targets{request.first, request.second};
  unknowns_[0] = request.start.temperature;
  unknowns_[1] = request.start.density;
  status = solve(targets);

  const auto within = [&](Start found) {
    if (!request.fromT()) {
      found.temperature = std::clamp(found.temperature, constants::lowestTemperature,
                                     constants::highestTemperature);
    }
    noteOtherState(request, found);
    return found;
  };
  const bool solved = ZvSolver::converged(status);
  const Start minimum{unknowns_[0], unknowns_[1]};
  const Start solution = solved ? polished(request, minimum) : minimum;
  const bool isOne = solved && isState(request, solution, request.side);
  if (isOne && isNearest(request, solution)) return within(solution);
  if (const auto other = search(request);
      other && (isState(request, *other, request.side) ||
                std::fabs(other->temperature - criticalTemperature) <= criticalRegion)) {
    return within(*other);
  }
  if (isOne) return within(solution);
  // Next to the critical point, where the line is a scaling law, a root of the other side may be
  // all there is.
  if (solved && std::fabs(solution.temperature - criticalTemperature) <= criticalRegion &&
      isState(request, solution, Side::any)) {
    return within(solution);
  }
  return std::nullopt;
}

// Beyond 800 MPa the equation gives cold water a negative heat capacity.
bool SteamModel::isThermallyStable(Start at) {
  constexpr double stableBelow = 1150.0;  // kg/m3, at any temperature
  if (at.density < stableBelow) return true;
  const auto& part = temperaturePart(at.temperature, TemperaturePart::Order::curvature);
  return HelmholtzPoint(part, at.density).derivatives().cv > 0.0;
}

bool SteamModel::isThermallyStable() {
  return isThermallyStable({state_.temperature, state_.density});
}

// From T: on its way from the line, above the critical temperature from the thin gas, a property
// has to fall to the value, which lies below that of saturated liquid, of the ideal gas; where it
// rises, it has fallen before. From P: a warmer state than an unstable one has the same energy.
bool SteamModel::isNearest(const Request& request, Start found) {
  const double T = found.temperature;
  const bool falls = T >= criticalTemperature || request.side == Side::liquid;
  const auto equation = request.second.equation;
  if (equation == Equation::density || equation == Equation::pressure) return true;
  if (!request.fromT()) return isThermallyStable(found);
  if (!falls) return true;
  const HelmholtzPoint point(temperaturePart(T, TemperaturePart::Order::curvature), found.density);
  return slopesOf(equation, point, T, 0.001 * found.density).density < 0.0;
}

Start SteamModel::solveState(const Request& request) {
  int status = 0;
  if (const auto found = findState(request, status)) return *found;
  raiseWithoutState(status);
}

void SteamModel::raiseWithoutState(int status) {
  ZvSolver::raise(ZvSolver::converged(status) ? ZvSolver::notASolution : status);
}

void SteamModel::noteOtherState(const Request& request, Start found) {
  if (!diagnostics_.wantsNotes()) return;
  const auto [equation, value] = request.second;
  if (request.fromT() && request.side == Side::liquid && request.saturated > 0.0) {
    if (equation == Equation::density) return;
    const double heavy = densestAt(found.temperature);
    const double next = found.density * (1.0 + 1e-6);
    if (next < heavy &&
        roots::density(found.temperature, propertyOf(equation), value, next, heavy)) {
      diagnostics_.postNote(
          "A second liquid, under higher pressure, meets these inputs: this is the one nearer the "
          "saturation line.");
    }
  } else if (!request.fromT() && equation == Equation::density) {
    if (roots::colder(request.first.value, value, request.TMin, found.temperature)) {
      diagnostics_.postNote("A second, colder state meets these inputs: this is the warmer one.");
    }
  }
}

// Density of the root at (P, T) on one side.
double SteamModel::densityAt(double P, double T, double start, Side side) {
  return solveState(
             {{Equation::temperature, T}, {Equation::pressure, P}, side, {T, start}, 0, 0, 0})
      .density;
}

}  // namespace calvex
