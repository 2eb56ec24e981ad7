#include "steam/property.h"

namespace calvex {

double evaluate(Property property, const TemperaturePart& temperature, double density) {
  using Order = TemperatureOrder;
  const double T = temperature.T();
  const Order order = orderOf(property);
  if (order == Order::none) return explicitProperty(property, T, density);
  const HelmholtzPoint point(temperature, density);
  return order == Order::curvature ? curvatureProperty(property, T, density, point.derivatives())
                                   : energyProperty(property, temperature, point);
}

double evaluate(Property property, double T, double density) {
  TemperaturePart temperature;
  temperature.prepare(T, orderOf(property));
  return evaluate(property, temperature, density);
}

}  // namespace calvex
