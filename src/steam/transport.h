/// \file
/// Transport properties, surface tension and dielectric constant: international correlations for
/// ordinary water substance. Model units: K, kg/m3; results in Pa.s, W/(m.K), N/m.
#pragma once

#include <array>
#include <cmath>

#include "steam/fundamental_equation.h"
#include "steam/transport_coefficients.h"

namespace calvex {

using std::pow;
using std::sqrt;

#include "steam/transport-inl.h"

extern template double viscosity(const double&, const double&);
extern template double thermalConductivity(const double&, const double&,
                                           const HelmholtzPoint::Derivatives&, const double&);
extern template double surfaceTension(const double&);
extern template double dielectricConstant(const double&, const double&);

}  // namespace calvex
