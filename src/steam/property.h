/// \file
/// Every single-phase property as a function of density and temperature.
#pragma once

#include "steam/constants.h"
#include "steam/fundamental_equation.h"
#include "steam/transport.h"

namespace calvex {

/// The properties, with their units; the letter is that of the members' names.
enum class Property {
  pressure,               // P, MPa
  temperature,            // T, K
  density,                // R, kg/m3
  specificVolume,         // V, m3/kg
  enthalpy,               // H, kJ/kg
  entropy,                // S, kJ/(kg.K)
  internalEnergy,         // U, kJ/kg
  helmholtz,              // A, kJ/kg
  gibbs,                  // G, kJ/kg
  isobaricHeatCapacity,   // C, kJ/(kg.K)
  isochoricHeatCapacity,  // D, kJ/(kg.K)
  compressibilityFactor,  // Z, -
  speedOfSound,           // W, m/s
  viscosity,              // M, Pa.s
  thermalConductivity,    // K, W/(K.m)
  prandtlNumber,          // N, -
  dielectricConstant,     // E, -
  isothermalThrottling,   // I, delta = (dh/dP) at constant T, kJ/(kg.MPa)
  jouleThomson,           // J, (dT/dP) at constant h, K/MPa
  thermalExpansion,       // B, 1/K
  compressibility,        // L, isothermal, 1/MPa
};

/// How much of the temperature part a property needs.
[[nodiscard]] constexpr TemperatureOrder orderOf(Property property) noexcept {
  using Order = TemperatureOrder;
  switch (property) {
    case Property::temperature:
    case Property::density:
    case Property::specificVolume:
    case Property::viscosity:
    case Property::dielectricConstant:
      return Order::none;
    case Property::pressure:
    case Property::compressibilityFactor:
      return Order::pressure;
    case Property::enthalpy:
    case Property::entropy:
    case Property::internalEnergy:
    case Property::helmholtz:
    case Property::gibbs:
      return Order::energy;
    default:
      return Order::curvature;
  }
}

#include "steam/property-inl.h"

/// The property at `density` (kg/m3) and the temperature of the part, which must have been prepared
/// to `orderOf(property)`.
[[nodiscard]] double evaluate(Property property, const TemperaturePart& temperature,
                              double density);

/// The same at a temperature in K.
[[nodiscard]] double evaluate(Property property, double T, double density);

/// Z = P/(rho R T) of a state whose pressure is known.
[[nodiscard]] constexpr double compressibilityFactor(double P, double T, double density) {
  return 1000.0 * P / (density * constants::gasConstant * T);
}

}  // namespace calvex
