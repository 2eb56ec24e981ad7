/// \file
/// The same equation with 50 digits: the judge of rounding, and of derivatives by differences.
#pragma once

#include <boost/multiprecision/cpp_bin_float.hpp>

#include "steam/property.h"

namespace calvex {

namespace test {

/// Eager arithmetic: an expression of the formulas is a number at once.
using Fifty = boost::multiprecision::number<boost::multiprecision::cpp_bin_float<50>,
                                            boost::multiprecision::et_off>;

}  // namespace test

/// A Gaussian factor that 50 digits cannot see.
template <>
inline constexpr double gaussianHorizon<test::Fifty> = 150.0;

namespace test {

/// As `evaluate` of steam/property.h.
[[nodiscard]] inline Fifty exactly(Property property, const Fifty& T, const Fifty& density) {
  using Properties = PropertiesOf<Fifty>;
  const TemperatureOrder order = orderOf(property);
  if (order == TemperatureOrder::none) {
    return Properties::ofTemperatureAndDensity(property, T, density);
  }
  TemperaturePartOf<Fifty> part;
  part.prepareAll(T, order);
  const HelmholtzPointOf<Fifty> point(part, density);
  return order == TemperatureOrder::curvature
             ? Properties::ofSecondDerivatives(property, T, density, point.derivatives())
             : Properties::ofFirstDerivatives(property, part, point);
}

}  // namespace test
}  // namespace calvex
