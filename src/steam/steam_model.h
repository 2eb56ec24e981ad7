/// \file
/// States of water and steam: from pressure and temperature, from either of them and another
/// property, and on the saturation line. Model units: K, MPa, kg/m3, kJ/kg, kJ/(kg.K).
///
/// Failures to find a state are thrown as ZvThermoException with the message for the user; the
/// stored state is then what it was before.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "diagnostics/diagnostics.h"
#include "steam/fundamental_equation.h"
#include "steam/property.h"
#include "steam/solver.h"
#include "steam/starting_points.h"

namespace calvex {

/// The last state found.
struct SteamState {
  double density = 0.0;
  double temperature = 0.0;
  double quality = 0.0;        ///< vapour mass fraction; 1 or 0 for single-phase states
  double vapourDensity = 0.0;  ///< of two-phase states
  double liquidDensity = 0.0;  ///< of two-phase states
};

enum class Phases { one, two };

class SteamModel final : private ZvSolverCallBack {
 public:
  /// Posts its notes and warnings to `diagnostics`, which must outlive it.
  explicit SteamModel(Diagnostics& diagnostics);

  /// Tolerance 1e-9, 200 iterations, polished saturation line, empty state.
  void reset();

  [[nodiscard]] ZvSolver& solver() noexcept { return solver_; }
  [[nodiscard]] const ZvSolver& solver() const noexcept { return solver_; }

  /// Whether the saturation line is the exact phase equilibrium or its correlation.
  [[nodiscard]] int satPolish() const noexcept { return satPolish_; }
  void setSatPolish(int flag) noexcept { satPolish_ = flag; }

  // The stored state -----------------------------------------------------------------------------
  [[nodiscard]] const SteamState& state() const noexcept { return state_; }
  /// A property of the single-phase state.
  [[nodiscard]] double property(Property property);
  /// A property of the two-phase state: the mixture of its saturated liquid and vapour.
  [[nodiscard]] double mixtureProperty(Property property);

  // States. One phase: the state is stored. Two phases: temperature, quality and, from a pressure,
  // the saturated densities are stored. -----------------------------------------------------------
  /// On the saturation line (two phases) the state is left alone: P and T do not determine it.
  Phases stateFromPT(double P, double T);
  /// `second` is enthalpy, entropy, internal energy or density.
  Phases stateFromP(double P, Property second, double value);
  Phases stateFromT(double T, Property second, double value);
  /// Enthalpy of water at (P, T), liquid as long as there is a liquid, also superheated. The stored
  /// state is left alone.
  [[nodiscard]] double waterEnthalpy(double P, double T);

  // Saturation line
  // --------------------------------------------------------------------------------
  [[nodiscard]] double PSatT(double T);
  [[nodiscard]] double TSatP(double P);
  /// Enthalpy, entropy, internal energy or density of a mixture with vapour mass fraction Q.
  [[nodiscard]] double saturatedTQ(Property property, double T, double Q);
  [[nodiscard]] double saturatedPQ(Property property, double P, double Q);
  /// Both saturated enthalpies and the saturation temperature at P.
  struct SaturatedEnthalpies {
    double liquid;
    double vapour;
    double temperature;
  };
  [[nodiscard]] SaturatedEnthalpies saturatedEnthalpies(double P);

 private:
  /// What a residual is computed from; the residual is that value minus its target.
  enum class Equation {
    density = 0,
    specificVolume = 1,  ///< available; a given volume is turned into a density
    temperature = 2,
    entropy = 3,
    enthalpy = 4,
    internalEnergy = 5,
    pressure = 6,
    gibbs = 7,
    gibbsDifference = 8,     ///< phase 2 minus phase 1
    pressureDifference = 9,  ///< phase 2 minus phase 1
    saturationCorrelation = 10,
  };
  struct Target {
    Equation equation;
    double value;
  };
  [[nodiscard]] static Equation equationOf(Property property);

  // ZvSolverCallBack
  void evaluate(int m, int n, double* x, double* f, int& flag) override;

  void pose(std::span<const Target> targets);
  /// Solves for the first `targets.size()` unknowns from where they stand; 2, 3 or 4 for success,
  /// another MINPACK status, or ZvSolver::notASolution.
  int solve(std::span<const Target> targets);
  [[nodiscard]] bool isSolution(int n, const double* f) const;

  /// Temperature and density with the two targets, from `start`, else from other points of the
  /// side.
  Start solveState(Target first, Target second, Start start, Side side);
  [[nodiscard]] double densityAt(double P, double T, double start, Side side);
  [[nodiscard]] int solveEquilibrium(Target third, double T);
  [[nodiscard]] double pressureNearCritical(double T);
  [[nodiscard]] double temperatureNearCritical(double P);
  void store(Start solution, double quality);

  /// Saturated values around a given one, at (P, T) of the line.
  struct Bracket {
    double temperature;
    double vapour;
    double liquid;  ///< solved only when the given value is below `vapour`; density: always
    double vapourDensity;
    double liquidDensity;
  };
  Bracket bracket(Property property, double value, double P, double T);
  Bracket bracketT(Property property, double value, double T);
  Bracket bracketP(Property property, double value, double P);
  double mixture(Property property, double P, double T, double Q, double vapourFrom,
                 double liquidFrom);

  const TemperaturePart& temperaturePart(double T, TemperaturePart::Order order);
  [[nodiscard]] double propertyAt(Property property, double T, double density);

  Diagnostics& diagnostics_;
  ZvSolver solver_;
  int satPolish_ = 1;
  SteamState state_;

  // The problem being solved: unknowns T, density 1 (liquid), density 2 (vapour).
  std::array<Target, ZvSolver::maxUnknowns> targets_{};
  std::array<double, ZvSolver::maxUnknowns> unknowns_{};
  TemperaturePart::Order order_ = TemperaturePart::Order::none;
  bool usesFirst_ = false;
  bool usesSecond_ = false;
  int evaluations_ = 0;
  bool accepted_ = false;

  // Two temperatures alternate in a solve: the iterate's and the one of the Jacobian's column.
  std::array<TemperaturePart, 2> temperatureParts_;
  std::size_t lastPart_ = 0;
};

}  // namespace calvex
