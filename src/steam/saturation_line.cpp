// The saturation line: pressure from temperature and back, mixtures, and the saturated values
// around a given one.
#include <algorithm>

#include "steam/constants.h"
#include "steam/phase_equilibrium.h"
#include "steam/saturation_correlations.h"
#include "steam/steam_model.h"

namespace calvex {

namespace {

using constants::criticalRegion;
using constants::criticalTemperature;
using constants::triplePointTemperature;

// A quality this close to 0 or 1 leaves the other phase unsolved.
constexpr double qualityTolerance = 1e-6;

// Where the two roots at a point of the line are looked for.
constexpr double vapourStart = 1.0;
constexpr double liquidStart = 1000.0;

// The names under which the families are traced.
struct Names {
  std::string_view fromTQ, fromPQ, aroundT, aroundP;
};
constexpr Names enthalpyNames{"HSatTQ", "HSatPQ", "HSat_TH", "HSat_PH"};
constexpr Names entropyNames{"SSatTQ", "SSatPQ", "SSat_TS", "SSat_PS"};
constexpr Names internalEnergyNames{"USatTQ", "USatPQ", "USat_TU", "USat_PU"};
constexpr Names densityNames{"RSatTQ", "RSatPQ", "RSat_TR", "RSat_PR"};

const Names& namesOf(Property property) {
  switch (property) {
    case Property::enthalpy:
      return enthalpyNames;
    case Property::entropy:
      return entropyNames;
    case Property::internalEnergy:
      return internalEnergyNames;
    default:
      return densityNames;
  }
}

}  // namespace

// In the critical region the line is the pressure at the density of a scaling law.
double SteamModel::pressureNearCritical(double T) {
  return propertyAt(Property::pressure, T, saturation::nearCriticalDensity(T));
}

double SteamModel::temperatureNearCritical(double P) {
  double lower = criticalTemperature - criticalRegion;
  double upper = criticalTemperature;
  for (int halving = 0; halving < 50; ++halving) {  // to the last bit of the half kelvin
    const double middle = 0.5 * (lower + upper);
    (pressureNearCritical(middle) < P ? lower : upper) = middle;
  }
  return upper;
}

double SteamModel::PSatT(double T) { return lineAtT(T).P; }

SteamModel::LinePoint SteamModel::lineAtT(double T) {
  const ZvFuncTrace trace(diagnostics_, "PSatT");
  if (polish() == SatPolish::deciding) {
    const PhaseEquilibrium e = equilibriumAtT(T);
    return {T, e.P, e.vapourDensity, e.liquidDensity};
  }
  if (T >= criticalTemperature - criticalRegion) {
    diagnostics_.postWarning("Critical point region.");
    return {T, pressureNearCritical(T)};
  }
  if (polish() == SatPolish::correlation) return {T, saturation::pressure(T)};
  if (ZvSolver::converged(solveEquilibrium({Equation::temperature, T}, T))) {
    return {T, propertyAt(Property::pressure, T, unknowns_[2])};
  }
  return {T, equilibriumAtT(T).P};
}

double SteamModel::TSatP(double P) { return lineAtP(P).T; }

// The temperature stays on the line, so that PSatT accepts it.
SteamModel::LinePoint SteamModel::lineAtP(double P) {
  const ZvFuncTrace trace(diagnostics_, "TSatP");
  const auto onLine = [](double T) {
    return std::clamp(T, triplePointTemperature, criticalTemperature);
  };
  if (polish() == SatPolish::deciding) {
    const PhaseEquilibrium e = equilibriumAtP(P);
    return {onLine(e.T), P, e.vapourDensity, e.liquidDensity};
  }
  const std::array<Target, 1> correlation{Target{Equation::saturationCorrelation, P}};
  unknowns_[0] = saturation::temperatureGuess(P);
  if (const int status = solve(correlation); !ZvSolver::converged(status)) ZvSolver::raise(status);
  const double T = onLine(unknowns_[0]);
  if (polish() == SatPolish::correlation) return {T, P};

  if (ZvSolver::converged(solveEquilibrium({Equation::pressure, P}, T))) {
    return {onLine(unknowns_[0]), P};
  }
  // Above 22.01 MPa the two phases are too alike for the solver: there the scaling law is inverted.
  constexpr double solvable = 22.01;
  return {P > solvable ? temperatureNearCritical(P) : onLine(equilibriumAtP(P).T), P};
}

double SteamModel::densityOfVapour(LinePoint& point, double start) {
  if (point.vapourDensity == 0.0) {
    point.vapourDensity = densityAt(point.P, point.T, start, Side::vapour);
  }
  return point.vapourDensity;
}

double SteamModel::densityOfLiquid(LinePoint& point, double start) {
  if (point.liquidDensity == 0.0) {
    point.liquidDensity = densityAt(point.P, point.T, start, Side::liquid);
  }
  return point.liquidDensity;
}

double SteamModel::mixture(Property property, LinePoint line, double Q, double vapourFrom,
                           double liquidFrom) {
  const bool isDensity = property == Property::density;
  // Where both phases are known for nothing, none is left out.
  const double tolerance = polish() == SatPolish::deciding ? 0.0 : qualityTolerance;
  double vapour = isDensity ? vapourStart : 0.0;
  double liquid = isDensity ? liquidStart : 0.0;
  if (Q > tolerance) {
    const double density = densityOfVapour(line, vapourFrom);
    vapour = propertyAt(property, line.T, density);
    store({line.T, density}, state_.quality);
  }
  if (Q < 1.0 - tolerance) {
    const double density = densityOfLiquid(line, liquidFrom);
    liquid = propertyAt(property, line.T, density);
    store({line.T, density}, state_.quality);
  }
  // The line's ends have the phases' own values, to the last bit: from them a state of one phase is
  // found again.
  const bool addsVolumes = isDensity && Q > 0.0 && Q < 1.0;
  return addsVolumes ? 1.0 / ((1.0 - Q) / liquid + Q / vapour) : (1.0 - Q) * liquid + Q * vapour;
}

double SteamModel::saturatedTQ(Property property, double T, double Q) {
  const ZvFuncTrace trace(diagnostics_, namesOf(property).fromTQ);
  return mixture(property, lineAtT(T), Q, vapourStart, liquidStart);
}

double SteamModel::saturatedPQ(Property property, double P, double Q) {
  const ZvFuncTrace trace(diagnostics_, namesOf(property).fromPQ);
  const LinePoint line = lineAtP(P);
  return mixture(property, line, Q, std::min(saturation::vapourDensityGuess(line.T), vapourStart),
                 std::max(saturation::liquidDensityGuess(line.T), liquidStart));
}

SteamModel::SaturatedEnthalpies SteamModel::saturatedEnthalpies(double P) {
  constexpr double belowAny = 0.0;  // so that both sides are solved
  const Bracket both = bracket(Property::enthalpy, belowAny, lineAtP(P));
  return {both.liquid, both.vapour, both.line.T};
}

// The vapour's value; the liquid's too when the given value lies below it (a density: always).
SteamModel::Bracket SteamModel::bracket(Property property, double value, LinePoint line) {
  Bracket b{line, 0.0, 0.0};
  b.vapour = propertyAt(property, line.T, densityOfVapour(b.line, vapourStart));
  store({line.T, b.line.vapourDensity}, state_.quality);
  if (property == Property::density || value < b.vapour) {
    b.liquid = propertyAt(property, line.T, densityOfLiquid(b.line, liquidStart));
    store({line.T, b.line.liquidDensity}, state_.quality);
  }
  return b;
}

// Below the triple point the phases part at its pressure.
SteamModel::Bracket SteamModel::bracketT(Property property, double value, double T) {
  const ZvFuncTrace trace(diagnostics_, namesOf(property).aroundT);
  const LinePoint line =
      T < triplePointTemperature ? LinePoint{T, constants::triplePointPressure} : lineAtT(T);
  return bracket(property, value, line);
}

SteamModel::Bracket SteamModel::bracketP(Property property, double value, double P) {
  const ZvFuncTrace trace(diagnostics_, namesOf(property).aroundP);
  return bracket(property, value, lineAtP(P));
}

}  // namespace calvex
