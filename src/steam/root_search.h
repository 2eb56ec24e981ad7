/// \file
/// Roots of the fundamental equation by walking and bracketing, for where the minimiser finds none
/// or another one than is meant. Slower than a solve, but certain: what is not found is not there.
/// Model units: K, MPa, kg/m3, kJ/kg, kJ/(kg.K).
#pragma once

#include <optional>

#include "steam/property.h"

namespace calvex {

/// Which root of several is meant.
enum class Side { vapour, liquid, any };

namespace roots {

/// Density at (P, T): the lightest root of the vapour, the densest of the liquid, either above the
/// critical temperature.
[[nodiscard]] std::optional<double> density(double P, double T, Side side);

/// The liquid below its saturation pressure at T, as far as it is mechanically stable;
/// `saturated` is where it begins, the density of saturated liquid.
[[nodiscard]] std::optional<double> superheatedLiquid(double P, double T, double saturated);

/// Density at temperature T where `property` (enthalpy, entropy, internal energy or pressure) is
/// `value`: the first mechanically stable root met on the way from one density to the other.
[[nodiscard]] std::optional<double> density(double T, Property property, double value, double from,
                                            double to);

/// The highest temperature within [lower, upper] at which `property` (enthalpy, entropy or internal
/// energy) is `value` on that side of the isobar P.
[[nodiscard]] std::optional<double> temperature(double P, Property property, double value,
                                                Side side, double lower, double upper);

/// The highest temperature within [lower, upper] at which that density has the pressure P and the
/// pressure rises with temperature.
[[nodiscard]] std::optional<double> warmest(double P, double density, double lower, double upper);
/// The next one below `warm`, at which the pressure falls with rising temperature: water below its
/// density maximum.
[[nodiscard]] std::optional<double> colder(double P, double density, double lower, double warm);

}  // namespace roots
}  // namespace calvex
