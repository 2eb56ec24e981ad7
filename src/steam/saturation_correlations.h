/// \file
/// Explicit approximations of the saturation line: decisions and starting points of the solver.
/// K, MPa, kg/m3.
#pragma once

#include <cmath>

#include "steam/constants.h"
#include "steam/saturation_coefficients.h"

namespace calvex::saturation {

using std::exp;
using std::pow;

#include "steam/saturation_correlations-inl.h"

/// Inverse of an Antoine-type fit, kept within [273.16 K, Tc]: where the solve for the saturation
/// temperature starts.
[[nodiscard]] double temperatureGuess(double P);

/// Density of saturated vapour within 0.5 K of the critical point, scaling law; T at most Tc.
[[nodiscard]] double nearCriticalDensity(double T);

}  // namespace calvex::saturation
