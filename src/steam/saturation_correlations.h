/// \file
/// Explicit approximations of the saturation line: decisions and starting points of the solver.
/// K, MPa, kg/m3.
#pragma once

namespace calvex::saturation {

/// Saturation pressure in the form of the 1967 IFC Formulation for Industrial Use, with this
/// engine's critical point; T at most Tc.
[[nodiscard]] double pressure(double T);

/// Inverse of an Antoine-type fit, kept within [273.16 K, Tc]: where the solve for the saturation
/// temperature starts.
[[nodiscard]] double temperatureGuess(double P);

/// Densities of saturated liquid and vapour, in powers of 1 - T/647.3 K. Their critical temperature
/// is not the engine's 647.126 K; they only start the solver, so the difference is kept.
[[nodiscard]] double liquidDensityGuess(double T);
[[nodiscard]] double vapourDensityGuess(double T);

/// Density of saturated vapour within 0.5 K of the critical point, scaling law; T at most Tc.
[[nodiscard]] double nearCriticalDensity(double T);

}  // namespace calvex::saturation
