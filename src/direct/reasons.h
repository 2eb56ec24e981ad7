/// \file
/// The texts of failed points.
#pragma once

#include <span>
#include <string>

#include "direct/direct_road.h"

namespace calvex::direct {

/// The member's text of that message for inputs in model units; bounds in the client's units.
[[nodiscard]] std::string reasonText(int status, Pair pair, double first, double second,
                                     std::span<const Letter> letters, const Units& units);

}  // namespace calvex::direct
