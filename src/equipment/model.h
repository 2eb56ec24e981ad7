/// \file
/// What the equipment models share beyond the engine.
#pragma once

#include <cmath>
#include <limits>
#include <string_view>

#include "engine/thermo_engine.h"

namespace calvex {

/// Above 0 and up to 1, else message 108 with these bounds in the client's unit. The least number
/// above zero stands for the open bound; it is printed as 0.00.
inline bool validEfficiency(ZvThermoInt& engine, std::string_view name, double efficiency) {
  return engine.validRange(name, efficiency, std::numeric_limits<double>::denorm_min(), 1.0,
                           UnitGroup::efficiency);
}

/// Writes a result that was divided by `divisor`. The balances do not guard their divisions: by
/// zero they give an infinite flow, which tells the client what the machine would need. Nothing by
/// nothing, and any other value that is not finite, is none: message 104 and false.
inline bool giveQuotient(ZvThermoInt& engine, double* out, UnitGroup group, double value,
                         double divisor) {
  if (divisor != 0.0 || !std::isinf(value)) return engine.give(out, group, value);
  *out = engine.units().toUser(group, value);
  return true;
}

}  // namespace calvex
