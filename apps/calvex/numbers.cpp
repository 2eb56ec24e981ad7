#include "numbers.h"

#include <fmt/format.h>

#include <charconv>
#include <cmath>
#include <system_error>

#include "encoding.h"
#include "failure.h"

namespace calvex::cli {

double parseNumber(std::string_view word) {
  std::string_view digits = word;
  if (digits.starts_with('+') && !digits.starts_with("+-")) digits.remove_prefix(1);
  double value = 0.0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (error == std::errc::invalid_argument || end != digits.data() + digits.size()) {
    const bool comma = word.find(',') != std::string_view::npos;
    throw UsageError(fmt::format("{} is not a number{}", inQuotes(word),
                                 comma ? "; the decimal sign is a point, as in 1013.25" : ""));
  }
  if (error == std::errc::result_out_of_range) {
    throw UsageError(
        fmt::format("{} is beyond the numbers that can be computed with "
                    "(about 1e-308 to 1e308)",
                    inQuotes(word)));
  }
  if (!std::isfinite(value)) {
    throw UsageError(fmt::format("{} is not a finite number", inQuotes(word)));
  }
  return value;
}

int parseWholeNumber(std::string_view word, int smallest, int largest) {
  const double value = parseNumber(word);
  if (value != std::trunc(value)) {
    throw UsageError(fmt::format("{} is not a whole number", inQuotes(word)));
  }
  if (value < smallest || value > largest) {
    throw UsageError(fmt::format("{} is not between {} and {}", inQuotes(word), smallest, largest));
  }
  return static_cast<int>(value);
}

std::string shortestText(double value) {
  if (std::isnan(value)) return "nan";
  if (std::isinf(value)) return value > 0 ? "inf" : "-inf";
  // Many readers take "-0" for an integer and lose its sign.
  if (value == 0.0 && std::signbit(value)) return "-0.0";
  char text[32];
  const auto [end, error] = std::to_chars(text, text + sizeof text, value);
  return {text, end};
}

std::string readableText(double value, int digits) {
  return std::isfinite(value) ? fmt::format("{:.{}g}", value, digits) : shortestText(value);
}

}  // namespace calvex::cli
