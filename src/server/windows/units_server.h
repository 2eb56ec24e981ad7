/// \file
/// The external units server of units mode 1, an automation object of another program.
#pragma once

#include <memory>

#include "units/user_units.h"

namespace calvex::com {

/// Creates "ZVMeasureSrv" and sets the connection up; null when that fails.
[[nodiscard]] std::unique_ptr<UnitsServer> connectUnitsServer();

}  // namespace calvex::com
