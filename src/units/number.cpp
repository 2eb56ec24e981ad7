#include "units/number.h"

#include <charconv>
#include <cmath>

namespace calvex {

std::optional<double> numberIn(std::string_view text) noexcept {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return std::nullopt;
  text = text.substr(first, text.find_last_not_of(" \t") - first + 1);
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  double value = 0;
  const char* end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc() || rest != end || !std::isfinite(value)) return std::nullopt;
  return value;
}

}  // namespace calvex
