/// \file
/// How far a property of water reaches at one pressure or at one temperature, between 260 and 2500
/// K and up to 3000 MPa: what tells a user why no state meets the inputs. Model units: K, MPa,
/// kg/m3, kJ/kg, kJ/(kg.K). Some hundred evaluations of the fundamental equation: for failures
/// only.
#pragma once

#include <optional>

#include "steam/property.h"

namespace calvex {

struct Extreme {
  double value;
  double at;  ///< the temperature at a given pressure, the pressure at a given temperature
};

struct Extremes {
  Extreme least;
  Extreme greatest;
};

/// Of enthalpy, entropy, internal energy or density at 0 < P <= 3000 MPa; to 2e-5 of the value.
[[nodiscard]] std::optional<Extremes> extremesAtPressure(double P, Property property);

/// The same at T within 260 to 2500 K. The entropy of an ever thinner vapour has no end; it is
/// followed to 1e-30 kg/m3, as far as states are looked for.
[[nodiscard]] std::optional<Extremes> extremesAtTemperature(double T, Property property);

}  // namespace calvex
