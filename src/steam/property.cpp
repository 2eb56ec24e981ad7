#include "steam/property.h"

namespace calvex {

double evaluate(Property property, const TemperaturePart& temperature, double density) {
  using Order = TemperatureOrder;
  using Properties = PropertiesOf<double>;
  const double T = temperature.T();
  const Order order = orderOf(property);
  if (order == Order::none) return Properties::ofTemperatureAndDensity(property, T, density);
  const HelmholtzPoint point(temperature, density);
  return order == Order::curvature
             ? Properties::ofSecondDerivatives(property, T, density, point.derivatives())
             : Properties::ofFirstDerivatives(property, temperature, point);
}

double evaluate(Property property, double T, double density) {
  TemperaturePart temperature;
  temperature.prepare(T, orderOf(property));
  return evaluate(property, temperature, density);
}

}  // namespace calvex
