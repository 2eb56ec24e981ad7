/// \file
/// The coefficients of the explicit approximations of the saturation line.
#pragma once

namespace calvex::coefficients {

// Saturation pressure, in the form of the 1967 IFC Formulation for Industrial Use.
namespace saturationPressure {
inline constexpr double k1 = -7.691234564;
inline constexpr double k2 = -26.08023696;
inline constexpr double k3 = -168.1706546;
inline constexpr double k4 = 64.23285504;
inline constexpr double k5 = -118.9646225;
inline constexpr double k6 = 4.16711732;
inline constexpr double k7 = 20.9750676;
inline constexpr double k8 = 1.0e9;
inline constexpr double k9 = 6.0;
}  // namespace saturationPressure

// Scaling law of the saturated vapour next to the critical point, r'' = r_c - c tau^beta, g/cm3.
namespace scalingLaw {
inline constexpr double criticalDensity = 0.32189;
inline constexpr double amplitude = 0.657128;
inline constexpr double exponent = 0.325;
}  // namespace scalingLaw

}  // namespace calvex::coefficients
