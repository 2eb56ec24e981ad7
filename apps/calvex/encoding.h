/// \file
/// Texts as the command line shows them, and those of tables that are not UTF-8.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "units/encoding.h"

namespace calvex::cli {

/// Characters that a terminal shows, for aligned columns (one column each).
[[nodiscard]] std::size_t width(std::string_view utf8);

/// The five bytes without a character (81, 8D, 8F, 90, 9D) become the control characters of the
/// same number, so that every byte survives the way there and back.
[[nodiscard]] std::string fromWindows1252(std::string_view bytes);

/// Nothing when the text is not UTF-8 or has a character that Windows-1252 lacks.
[[nodiscard]] std::optional<std::string> toWindows1252(std::string_view utf8);

}  // namespace calvex::cli
