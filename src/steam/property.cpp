#include "steam/property.h"

#include <cmath>

#include "steam/constants.h"
#include "steam/transport.h"

namespace calvex {

TemperaturePart::Order orderOf(Property property) noexcept {
  using Order = TemperaturePart::Order;
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

double evaluate(Property property, const TemperaturePart& temperature, double density) {
  const double T = temperature.T();
  switch (property) {
    case Property::temperature:
      return T;
    case Property::density:
      return density;
    case Property::specificVolume:
      return 1.0 / density;
    case Property::viscosity:
      return calvex::viscosity(T, density);
    case Property::dielectricConstant:
      return calvex::dielectricConstant(T, density);
    default:
      break;
  }

  const HelmholtzPoint point(temperature, density);
  const double r = 0.001 * density;
  switch (property) {
    case Property::pressure:
      return point.pressure();
    case Property::compressibilityFactor:
      return point.pressureOverDensity() / (constants::gasConstant * T);
    case Property::enthalpy:
      return point.enthalpy();
    case Property::entropy:
      return point.entropy();
    case Property::internalEnergy:
      return point.internalEnergy();
    case Property::helmholtz:
      return point.helmholtz();
    case Property::gibbs:
      return point.gibbs();
    default:
      break;
  }

  const HelmholtzPoint::Derivatives d = point.derivatives();
  // delta = 1/r - T P_T/(r^2 P_r)
  const double throttling = (d.X - d.Y) / d.Pr;
  switch (property) {
    case Property::isobaricHeatCapacity:
      return d.cp;
    case Property::isochoricHeatCapacity:
      return d.cv;
    case Property::speedOfSound:
      return std::sqrt(1000.0 * d.cp / d.cv * d.Pr);
    case Property::isothermalThrottling:
      return throttling;
    case Property::jouleThomson:
      return -throttling / d.cp;
    case Property::thermalExpansion:
      return d.PT / (r * d.Pr);
    case Property::compressibility:
      return 1.0 / (r * d.Pr);
    case Property::thermalConductivity:
      return calvex::thermalConductivity(T, density, d);
    case Property::prandtlNumber:
      return calvex::viscosity(T, density) * d.cp /
             (0.001 * calvex::thermalConductivity(T, density, d));
    default:
      return NAN;  // not reached: every property is listed above
  }
}

double evaluate(Property property, double T, double density) {
  TemperaturePart temperature;
  temperature.prepare(T, orderOf(property));
  return evaluate(property, temperature, density);
}

}  // namespace calvex
