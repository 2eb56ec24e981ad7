/// \file
/// States of water and steam: from pressure and temperature, from either of them and another
/// property, and on the saturation line. Model units: K, MPa, kg/m3, kJ/kg, kJ/(kg.K).
///
/// Failures to find a state are thrown as ZvThermoException with the message for the user; the
/// stored state is then what it was before.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>

#include "diagnostics/diagnostics.h"
#include "steam/fundamental_equation.h"
#include "steam/property.h"
#include "steam/root_search.h"
#include "steam/solver.h"

namespace calvex {

/// Where the minimiser starts or has ended: K and kg/m3.
struct Start {
  double temperature;
  double density;
};

/// The last state found.
struct SteamState {
  double density = 0.0;
  double temperature = 0.0;
  double quality = 0.0;        ///< vapour mass fraction; 1 or 0 for single-phase states
  double vapourDensity = 0.0;  ///< of two-phase states
  double liquidDensity = 0.0;  ///< of two-phase states
};

enum class Phases { one, two };

/// How the saturation line is computed, and what decides the phase of a state from (P, T).
enum class SatPolish {
  correlation = 0,  ///< the line is its correlation, next to the critical point a scaling law
  exact = 1,     ///< the line is the phase equilibrium up to 0.5 K below the critical point, then
                 ///< the scaling law; the correlation decides the phase of (P, T)
  deciding = 2,  ///< the line is the phase equilibrium throughout and decides the phase
};

class SteamModel final : private ZvSolverCallBack {
 public:
  /// Posts its notes and warnings to `diagnostics`, which must outlive it.
  explicit SteamModel(Diagnostics& diagnostics);

  /// Tolerance 1e-9, 200 iterations, polished saturation line, empty state.
  void reset();

  [[nodiscard]] ZvSolver& solver() noexcept { return solver_; }
  [[nodiscard]] const ZvSolver& solver() const noexcept { return solver_; }

  /// The client's number; 2 is `deciding`, any other but 0 `exact`.
  [[nodiscard]] int satPolish() const noexcept { return satPolish_; }
  void setSatPolish(int flag) noexcept { satPolish_ = flag; }
  [[nodiscard]] SatPolish polish() const noexcept {
    if (satPolish_ == 0) return SatPolish::correlation;
    return satPolish_ == 2 ? SatPolish::deciding : SatPolish::exact;
  }

  // The stored state -----------------------------------------------------------------------------
  [[nodiscard]] const SteamState& state() const noexcept { return state_; }
  /// A property of the single-phase state.
  [[nodiscard]] double property(Property property);
  /// Whether the heat capacity cv of the single-phase state is above zero. Cold water's is not, by
  /// the equation, from about 800 MPa on, where it freezes: such a state is answered only where no
  /// stable one has the same two properties.
  [[nodiscard]] bool isThermallyStable();
  /// A property of the two-phase state: the mixture of its saturated liquid and vapour.
  [[nodiscard]] double mixtureProperty(Property property);

  // States. One phase: the state is stored. Two phases: temperature, quality and, from a pressure,
  // the saturated densities are stored. -----------------------------------------------------------
  /// On the saturation line (two phases) the state is left alone: P and T do not determine it.
  Phases stateFromPT(double P, double T);
  /// `second` is enthalpy, entropy, internal energy or density. Only states of water are answers:
  /// 0 < P <= 3000 MPa, 260 to 2500 K, mechanically stable, a liquid at least as dense as saturated
  /// liquid and a vapour at most as dense as saturated vapour. Of two liquids at one temperature it
  /// is the one nearer the saturation line, of two temperatures of one density the warmer.
  Phases stateFromP(double P, Property second, double value);
  /// Below the triple point there is no saturation line: between the phases (two phases) there is
  /// then no state either.
  Phases stateFromT(double T, Property second, double value);
  /// Enthalpy of liquid water at (P, T), also superheated as far as there is such a liquid. The
  /// stored state is left alone.
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
  [[nodiscard]] static Property propertyOf(Equation equation);

  // ZvSolverCallBack
  void evaluate(int m, int n, double* x, double* f, int& flag) override;

  void pose(std::span<const Target> targets);
  /// Solves for the first `targets.size()` unknowns from where they stand; 2, 3 or 4 for success,
  /// another MINPACK status, or ZvSolver::notASolution.
  int solve(std::span<const Target> targets);
  [[nodiscard]] bool isSolution(int n, const double* f) const;

  /// What a state is asked for by: its temperature or pressure, and another property.
  struct Request {
    Target first;
    Target second;
    Side side;          ///< below the critical temperature
    Start start;        ///< where the minimiser starts
    double TMin, TMax;  ///< of an unknown temperature
    double saturated;   ///< density of that side's phase on the line at a known temperature, or 0
    [[nodiscard]] bool fromT() const { return first.equation == Equation::temperature; }
  };
  /// The temperature and density asked for: those that the minimiser finds, where they are a state
  /// of water and the one that is meant, else those that a search finds. `status` is the
  /// minimiser's.
  std::optional<Start> findState(const Request& request, int& status);
  /// The same, or the reason why there is none as an exception.
  Start solveState(const Request& request);
  [[noreturn]] static void raiseWithoutState(int status);
  struct Slopes {
    double density;      ///< dX/dr at constant temperature, r in g/cm3
    double temperature;  ///< dX/dT at constant density
    HelmholtzPoint::Derivatives pressure;
  };
  [[nodiscard]] static Slopes slopesOf(Equation equation, const HelmholtzPoint& point, double T,
                                       double r);
  [[nodiscard]] static double valueOf(Equation equation, const HelmholtzPoint& point);
  [[nodiscard]] Start polished(const Request& request, Start found);
  [[nodiscard]] static std::optional<Start> search(const Request& request);
  /// Whether that is a state of water on that side, within the limits of what was asked for.
  [[nodiscard]] bool isState(const Request& request, Start found, Side side);
  /// Whether this is the state meant where others meet the request: from T none lies between the
  /// line and it; from P it is thermally stable.
  [[nodiscard]] bool isNearest(const Request& request, Start found);
  [[nodiscard]] bool isThermallyStable(Start at);
  void noteOtherState(const Request& request, Start found);
  Phases onExactLine(const auto& call);

  [[nodiscard]] double densityAt(double P, double T, double start, Side side);
  [[nodiscard]] int solveEquilibrium(Target third, double T);
  [[nodiscard]] double pressureNearCritical(double T);
  [[nodiscard]] double temperatureNearCritical(double P);
  void store(Start solution, double quality);

  /// A point of the saturation line; a density of zero has not been solved for.
  struct LinePoint {
    double T;
    double P;
    double vapourDensity = 0.0;
    double liquidDensity = 0.0;
  };
  LinePoint lineAtT(double T);
  LinePoint lineAtP(double P);
  double densityOfVapour(LinePoint& point, double start);
  double densityOfLiquid(LinePoint& point, double start);

  /// Saturated values around a given one, at a point of the line.
  struct Bracket {
    LinePoint line;
    double vapour;
    double liquid;  ///< solved only when the given value is below `vapour`; density: always
  };
  Bracket bracket(Property property, double value, LinePoint line);
  Bracket bracketT(Property property, double value, double T);
  Bracket bracketP(Property property, double value, double P);
  double mixture(Property property, LinePoint line, double Q, double vapourFrom, double liquidFrom);
  Phases storeMixture(Property property, const Bracket& line, double value);

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
