/// \file
/// The saturation line of the fundamental equation itself: liquid and vapour of equal temperature,
/// pressure and Gibbs energy, to the rounding of the numbers. K, MPa, kg/m3.
///
/// The equation has two liquids next to its critical point: at 646.686 K the saturated liquid's
/// density falls from 366.4 to 355.1 kg/m3, its pressure goes on without a jump.
///
/// The equation's own critical point lies at 647.12645 K, 22.05401 MPa and 297 kg/m3, next to the
/// critical constants of the formulation, 647.126 K and 22.055 MPa. Up to a millionth of a kelvin
/// below the latter the line is the equilibrium; from there it runs straight to the critical point,
/// so that it covers both ranges and rises strictly.
#pragma once

namespace calvex {

struct PhaseEquilibrium {
  double T;
  double P;
  double vapourDensity;
  double liquidDensity;
  int evaluations;  ///< of the fundamental equation at both densities
};

/// \param T within [260 K, critical temperature]
[[nodiscard]] PhaseEquilibrium equilibriumAtT(double T);

/// \param P within [triple-point pressure, critical pressure]
[[nodiscard]] PhaseEquilibrium equilibriumAtP(double P);

}  // namespace calvex
