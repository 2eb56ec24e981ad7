/// \file
/// The fundamental equation of water and steam: Helmholtz energy A(rho, T), from which every
/// thermodynamic property follows by differentiation.
///
/// L. Haar, J. S. Gallagher, G. S. Kell, NBS/NRC Steam Tables (1984), adopted as the IAPS
/// Formulation 1984 for the thermodynamic properties of ordinary water substance.
///
/// Notation of this file and its source
///
///     r      density in g/cm3 (0.001 times the model unit)      x = T0/T, T0 = 647.073 K
///     A      = A_ideal(T) + A_base(r, T) + A_residual(r, T) + s0 T + a0
///     y      = b(T) r / 4, z = 1 - y                            q = 1 - exp(-r)
///     G_k(T) sum of g_i x^l_i over the residual terms with density exponent k
///
/// The work is split: a TemperaturePart holds all that depends on T alone, a HelmholtzPoint adds
/// the density to one. A solver that moves only the density keeps the temperature part.
#pragma once

#include <array>

namespace calvex {

/// The density exponents k of the residual function, in the order of the arrays below.
inline constexpr std::array<int, 8> densityExponents{1, 2, 3, 4, 5, 6, 7, 9};
inline constexpr int gaussianTerms = 4;

/// The functions of temperature that the fundamental equation is made of.
struct TemperatureTerms {
  double b;                                    ///< excluded volume of the base function, cm3/g
  double B;                                    ///< second virial function, cm3/g
  double ideal;                                ///< Phi of A_ideal = -R T Phi(T)
  std::array<double, 8> G;                     ///< residual coefficients by density exponent
  std::array<double, gaussianTerms> gaussian;  ///< g_i exp(-beta_i tau_i^2)
};

/// The temperature part, computed only as far as it has been asked for.
class TemperaturePart {
 public:
  /// What is known: nothing; what a pressure needs; first derivatives and the ideal-gas function
  /// (energies, entropy); second derivatives (heat capacities, speed of sound, ...).
  enum class Order { none, pressure, energy, curvature };

  /// Moves to temperature T (K) and makes sure that all of `order` is known.
  void prepare(double T, Order order) {
    if (T != T_) {
      T_ = T;
      known_ = Order::none;
    }
    if (known_ < order) compute(order);
  }

  [[nodiscard]] double T() const noexcept { return T_; }

  TemperatureTerms value;      ///< f
  TemperatureTerms slope;      ///< T df/dT
  TemperatureTerms curvature;  ///< T^2 d2f/dT2

  /// Gaussian terms that a double can still see at this temperature: their numbers, and the
  /// exponents beta_i tau_i^2.
  std::array<int, gaussianTerms> activeGaussian;
  int activeGaussians = 0;
  std::array<double, gaussianTerms> gaussianExponent;

 private:
  void compute(Order order);
  void computeValues();
  void computeSlopes();
  void computeCurvatures();

  double T_ = 0.0;
  Order known_ = Order::none;
  double logReduced_ = 0.0;        // ln(T/T0)
  std::array<double, 7> power_{};  // x^0 .. x^6
};

/// The fundamental equation at one density and temperature.
///
/// Pressure, energy and enthalpy contain no logarithm: it cancels against the derivative of the
/// base function, so they stay analytic when a trial density of the solver crosses zero.
class HelmholtzPoint {
 public:
  /// `temperature` must outlive the point; density in kg/m3.
  HelmholtzPoint(const TemperaturePart& temperature, double density);

  // Order::pressure ------------------------------------------------------------------------------
  [[nodiscard]] double pressure() const { return r_ * pressureOverDensity_; }        ///< MPa
  [[nodiscard]] double pressureOverDensity() const { return pressureOverDensity_; }  ///< kJ/kg

  /// dP/dr at constant T, kJ/kg; a stable phase has it positive.
  [[nodiscard]] double pressureSlope() const {
    return RT() + r_ * slopeBeyondIdealGas(densityCurvature());
  }

  // Order::energy --------------------------------------------------------------------------------
  [[nodiscard]] double internalEnergy() const;  ///< kJ/kg
  [[nodiscard]] double enthalpy() const { return internalEnergy() + pressureOverDensity_; }
  [[nodiscard]] double helmholtz() const;  ///< kJ/kg
  [[nodiscard]] double gibbs() const { return helmholtz() + pressureOverDensity_; }
  /// s = (u - A)/T, kJ/(kg.K).
  [[nodiscard]] double entropy() const { return (internalEnergy() - helmholtz()) / t_->T(); }
  /// The part of the Gibbs energy that two phases of one temperature do not share; it needs no
  /// more than Order::pressure.
  [[nodiscard]] double gibbsOfPhase() const { return helmholtzOfDensity() + pressureOverDensity_; }

  // Order::curvature -----------------------------------------------------------------------------
  /// Derivatives of the pressure, with the ideal gas split off so that nothing cancels at low
  /// density: P_r = R T + r X and T P_T = r (R T + r Y).
  struct Derivatives {
    double Pr;  ///< dP/dr at constant T, kJ/kg
    double PT;  ///< dP/dT at constant r, MPa/K
    double X;
    double Y;
    double cv;  ///< kJ/(kg.K)
    double cp;  ///< kJ/(kg.K)
  };
  [[nodiscard]] Derivatives derivatives() const;

 private:
  /// d^l exp(-alpha d^k) of a Gaussian term, d = r/r_i - 1, and its derivatives in r.
  struct Gaussian {
    int term;
    double value;
    double slope;
  };

  /// f''(y) of the base function; S = dA_residual/dr and dS/dr.
  struct DensityCurvature {
    double base;
    double S;
    double Sr;
  };
  [[nodiscard]] DensityCurvature densityCurvature() const;
  [[nodiscard]] double slopeBeyondIdealGas(const DensityCurvature& c) const;  // X
  [[nodiscard]] double helmholtzOfDensity() const;
  [[nodiscard]] double RT() const;

  const TemperaturePart* t_;
  double r_;  // density, g/cm3
  double y_;
  double inverseZ_;
  double decay_;  // exp(-r)
  double q_;
  double baseSlope_;            // f'(y)
  double pressureOverDensity_;  // kJ/kg
  std::array<Gaussian, gaussianTerms> gaussians_;
  int gaussianCount_ = 0;
};

}  // namespace calvex
