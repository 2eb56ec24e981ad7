/// \file
/// The dialogs of this platform.
#pragma once

#include <windows.h>

#include <memory>

#include "engine/dialogs.h"

namespace calvex {

/// The dialogs out of that module's resources (dialogs.rc). Each is modal to the active window of
/// the thread that calls it.
[[nodiscard]] std::unique_ptr<Dialogs> makeDialogs(HINSTANCE module);

}  // namespace calvex
