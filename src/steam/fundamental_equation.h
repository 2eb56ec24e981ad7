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
#include <cmath>
#include <utility>

#include "steam/fundamental_coefficients.h"

namespace calvex {

/// What is known of a temperature part: nothing; what a pressure needs; first derivatives and the
/// ideal-gas function (energies, entropy); second derivatives (heat capacities, speed of sound,
/// ...).
enum class TemperatureOrder { none, pressure, energy, curvature };

using std::exp;
using std::log;

#include "steam/fundamental_equation-inl.h"

extern template class TemperaturePartOf<double>;
extern template class HelmholtzPointOf<double>;

/// The members' number type.
using TemperatureTerms = TemperatureTermsOf<double>;
using TemperaturePart = TemperaturePartOf<double>;
using HelmholtzPoint = HelmholtzPointOf<double>;

}  // namespace calvex
