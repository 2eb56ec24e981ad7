/// \file
/// Numbers that are written as texts: with a decimal point, wherever in the world the computer
/// stands.
#pragma once

#include <optional>
#include <string_view>

namespace calvex {

/// "10.5", "+1e-3", with blanks around it or none; nothing for any other text ("10,5") and for one
/// that is not finite.
[[nodiscard]] std::optional<double> numberIn(std::string_view text) noexcept;

}  // namespace calvex
