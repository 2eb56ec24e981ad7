// The saturation line: pressure from temperature and back, mixtures, and the saturated values
// around a given one.
#include <algorithm>

#include "steam/constants.h"
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

double SteamModel::PSatT(double T) {
  const ZvFuncTrace trace(diagnostics_, "PSatT");
  if (T >= criticalTemperature - criticalRegion) {
    diagnostics_.postWarning("Critical point region.");
    return pressureNearCritical(T);
  }
  if (satPolish_ == 0) return saturation::pressure(T);
  if (const int status = solveEquilibrium({Equation::temperature, T}, T);
      !ZvSolver::converged(status)) {
    ZvSolver::raise(status);
  }
  return propertyAt(Property::pressure, T, unknowns_[2]);
}

// The result stays on the line, so that PSatT accepts it.
double SteamModel::TSatP(double P) {
  const ZvFuncTrace trace(diagnostics_, "TSatP");
  if (P < constants::triplePointPressure) return triplePointTemperature;
  const auto onLine = [](double T) {
    return std::clamp(T, triplePointTemperature, criticalTemperature);
  };
  const std::array<Target, 1> correlation{Target{Equation::saturationCorrelation, P}};
  unknowns_[0] = saturation::temperatureGuess(P);
  if (const int status = solve(correlation); !ZvSolver::converged(status)) ZvSolver::raise(status);
  const double T = onLine(unknowns_[0]);
  if (satPolish_ == 0) return T;

  const int status = solveEquilibrium({Equation::pressure, P}, T);
  if (ZvSolver::converged(status)) return onLine(unknowns_[0]);
  // Above 22.01 MPa the two phases are too alike to be told apart by their Gibbs energies.
  if (T >= criticalTemperature - criticalRegion) return temperatureNearCritical(P);
  ZvSolver::raise(status);
}

double SteamModel::mixture(Property property, double P, double T, double Q, double vapourFrom,
                           double liquidFrom) {
  const bool isDensity = property == Property::density;
  double vapour = isDensity ? vapourStart : 0.0;
  double liquid = isDensity ? liquidStart : 0.0;
  if (Q > qualityTolerance) {
    const double density = densityAt(P, T, vapourFrom, Side::vapour);
    vapour = propertyAt(property, T, density);
    store({T, density}, state_.quality);
  }
  if (Q < 1.0 - qualityTolerance) {
    const double density = densityAt(P, T, liquidFrom, Side::liquid);
    liquid = propertyAt(property, T, density);
    store({T, density}, state_.quality);
  }
  return isDensity ? 1.0 / ((1.0 - Q) / liquid + Q / vapour) : (1.0 - Q) * liquid + Q * vapour;
}

double SteamModel::saturatedTQ(Property property, double T, double Q) {
  const ZvFuncTrace trace(diagnostics_, namesOf(property).fromTQ);
  return mixture(property, PSatT(T), T, Q, vapourStart, liquidStart);
}

double SteamModel::saturatedPQ(Property property, double P, double Q) {
  const ZvFuncTrace trace(diagnostics_, namesOf(property).fromPQ);
  const double T = TSatP(P);
  return mixture(property, P, T, Q, std::min(saturation::vapourDensityGuess(T), vapourStart),
                 std::max(saturation::liquidDensityGuess(T), liquidStart));
}

SteamModel::SaturatedEnthalpies SteamModel::saturatedEnthalpies(double P) {
  constexpr double belowAny = 0.0;  // so that both sides are solved
  const Bracket both = bracket(Property::enthalpy, belowAny, P, TSatP(P));
  return {both.liquid, both.vapour, both.temperature};
}

// The vapour's value; the liquid's too when the given value lies below it (a density: always).
SteamModel::Bracket SteamModel::bracket(Property property, double value, double P, double T) {
  Bracket b{};
  b.temperature = T;
  b.vapourDensity = densityAt(P, T, vapourStart, Side::vapour);
  b.vapour = propertyAt(property, T, b.vapourDensity);
  store({T, b.vapourDensity}, state_.quality);
  if (property == Property::density || value < b.vapour) {
    b.liquidDensity = densityAt(P, T, liquidStart, Side::liquid);
    b.liquid = propertyAt(property, T, b.liquidDensity);
    store({T, b.liquidDensity}, state_.quality);
  }
  return b;
}

SteamModel::Bracket SteamModel::bracketT(Property property, double value, double T) {
  const ZvFuncTrace trace(diagnostics_, namesOf(property).aroundT);
  return bracket(property, value, PSatT(T), T);
}

SteamModel::Bracket SteamModel::bracketP(Property property, double value, double P) {
  const ZvFuncTrace trace(diagnostics_, namesOf(property).aroundP);
  return bracket(property, value, P, TSatP(P));
}

}  // namespace calvex
