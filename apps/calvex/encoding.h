/// \file
/// Texts as the command line shows them.
#pragma once

#include <string>
#include <string_view>

#include "units/encoding.h"

namespace calvex::cli {

/// Characters that a terminal shows, for aligned columns (one column each).
[[nodiscard]] std::size_t width(std::string_view utf8);

}  // namespace calvex::cli
