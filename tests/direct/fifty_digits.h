/// \file
/// The same equation with 50 digits: the judge of rounding, and of derivatives by differences.
#pragma once

#include <boost/multiprecision/cpp_bin_float.hpp>

#include "direct/direct_road.h"
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

/// By letter.
inline constexpr Property lettersProperties[] = {Property::pressure,
                                                 Property::temperature,
                                                 Property::enthalpy,
                                                 Property::entropy,
                                                 Property::internalEnergy,
                                                 Property::density,
                                                 Property::specificVolume,
                                                 Property::temperature,  // Q has none
                                                 Property::helmholtz,
                                                 Property::gibbs,
                                                 Property::viscosity,
                                                 Property::thermalConductivity,
                                                 Property::isobaricHeatCapacity,
                                                 Property::isochoricHeatCapacity,
                                                 Property::compressibilityFactor,
                                                 Property::speedOfSound,
                                                 Property::prandtlNumber,
                                                 Property::dielectricConstant,
                                                 Property::isothermalThrottling,
                                                 Property::jouleThomson,
                                                 Property::thermalExpansion,
                                                 Property::compressibility};
static_assert(std::size(lettersProperties) == direct::letterCount);
[[nodiscard]] inline Property propertyOf(direct::Letter letter) {
  return lettersProperties[static_cast<std::size_t>(letter)];
}

/// The step of differences, relative; its square is lost against 1e-30.
inline const Fifty step = 1e-16;

/// The equilibrium at T with 50 digits, from one that is good to 1e-10.
struct Line {
  Fifty liquid;
  Fifty vapour;
};
[[nodiscard]] inline Line lineAt(const Fifty& T, Line line) {
  for (int i = 0; i < 4; ++i) {
    const Fifty dP =
        exactly(Property::pressure, T, line.vapour) - exactly(Property::pressure, T, line.liquid);
    const Fifty dg =
        exactly(Property::gibbs, T, line.vapour) - exactly(Property::gibbs, T, line.liquid);
    // dg = v dP of each phase, MPa and kg/m3 to kJ/kg by 1000
    const Fifty vl = 1000 / line.liquid;
    const Fifty vv = 1000 / line.vapour;
    const Fifty toLiquid = (dg - dP * vv) / (vl - vv);
    const Fifty toVapour = toLiquid - dP;
    const auto slope = [&](const Fifty& density) {
      const Fifty d = density * step;
      return (exactly(Property::pressure, T, density + d) -
              exactly(Property::pressure, T, density - d)) /
             (2 * d);
    };
    line = {line.liquid + toLiquid / slope(line.liquid),
            line.vapour + toVapour / slope(line.vapour)};
  }
  return line;
}

[[nodiscard]] inline Fifty mixture(direct::Letter letter, const Fifty& T, const Fifty& quality,
                                   const Line& line) {
  using direct::Letter;
  switch (letter) {
    case Letter::P:
      return exactly(Property::pressure, T, line.vapour);
    case Letter::T:
      return T;
    case Letter::Q:
      return quality;
    case Letter::V:
      return (1 - quality) / line.liquid + quality / line.vapour;
    case Letter::R:
      return 1 / ((1 - quality) / line.liquid + quality / line.vapour);
    default: {
      const Property property = propertyOf(letter);
      return (1 - quality) * exactly(property, T, line.liquid) +
             quality * exactly(property, T, line.vapour);
    }
  }
}

}  // namespace test
}  // namespace calvex
