/// \file
/// Constants of the formulation. Model units: K, MPa, kg/m3, kJ/kg, kJ/(kg.K).
#pragma once

namespace calvex::constants {

inline constexpr double molecularWeight = 18.0152;         // kg/kmol
inline constexpr double gasConstant = 0.461522;            // R, kJ/(kg.K)
inline constexpr double standardAtmosphere = 0.101325;     // MPa
inline constexpr double reducingTemperature = 647.073;     // T0 of the fundamental equation, K
inline constexpr double criticalTemperature = 647.126;     // Tc, K
inline constexpr double criticalPressure = 22.055;         // Pc, MPa
inline constexpr double criticalDensity = 321.8870385;     // rho_c, kg/m3
inline constexpr double phasesMeet = 296.83;               // where the equation's phases do, kg/m3
inline constexpr double criticalRegion = 0.5;              // K below Tc: scaling law, see PSatT
inline constexpr double triplePointTemperature = 273.16;   // K
inline constexpr double triplePointPressure = 0.00061173;  // MPa
inline constexpr double celsiusZero = 273.15;              // K

// What is computed at all.
inline constexpr double lowestTemperature = 260.0;    // K
inline constexpr double highestTemperature = 2500.0;  // K
inline constexpr double highestPressure = 3000.0;     // MPa
// Denser than water at any temperature under the highest pressure (1380 kg/m3).
inline constexpr double densest = 1700.0;  // kg/m3

// They fix the zero of internal energy and entropy at the liquid of the triple point.
inline constexpr double referenceEnergy = 1997.67722651;   // a0, kJ/kg
inline constexpr double referenceEntropy = 3.51591161006;  // s0, kJ/(kg.K)

}  // namespace calvex::constants
