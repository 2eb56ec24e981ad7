/// \file
/// A client's own units, all different from the model's.
#pragma once

#include <gtest/gtest.h>

#include "engine/thermo_engine.h"

namespace calvex {

/// x of them is (x + offset) * factor. Enthalpy and entropy have offsets as temperature and
/// pressure do; a difference has another unit than its quantity.
inline void chooseOffsetUnits(ZvThermoInt& engine) {
  struct Unit {
    UnitGroup group;
    double factor, offset;
  };
  using enum UnitGroup;
  constexpr Unit units[] = {{temperature, 0.8, 90.0}, {temperatureDifference, 1.7, 0.0},
                            {pressure, 3e5, -0.2},    {pressureDifference, 7e4, 0.0},
                            {enthalpy, 3.1, -12.0},   {entropy, 0.7, 1.3},
                            {massFlow, 0.3, 0.0},     {heatDuty, 11.0, 0.0},
                            {power, 2.5, 0.0},        {efficiency, 0.01, 0.0},
                            {ratio, 0.04, 0.0},       {quality, 0.02, 0.0},
                            {density, 1.9, 0.0}};
  ASSERT_EQ(engine.SetAppLevel(3), 1);
  for (const auto& [group, factor, offset] : units) {
    ASSERT_EQ(engine.SetCustomUserUnitIndex(static_cast<short>(group), "own", factor, offset), 1);
  }
}

}  // namespace calvex
