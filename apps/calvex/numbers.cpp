#include "numbers.h"

#include <fmt/format.h>

#include <charconv>
#include <cmath>
#include <system_error>

#include "encoding.h"
#include "failure.h"

namespace calvex::cli {

ReadNumber readNumber(std::string_view word) noexcept {
  if (word.starts_with('+') && !word.starts_with("+-")) word.remove_prefix(1);
  double value = 0.0;
  const char* const last = word.data() + word.size();
  const auto [end, error] = std::from_chars(word.data(), last, value);
  if (error == std::errc::invalid_argument || end != last) return {value, NumberFault::notANumber};
  if (error == std::errc::result_out_of_range) return {value, NumberFault::beyondNumbers};
  return {value, std::isfinite(value) ? NumberFault::none : NumberFault::notFinite};
}

std::string faultText(std::string_view word, NumberFault fault) {
  switch (fault) {
    case NumberFault::none:
      break;
    case NumberFault::notANumber:
      return fmt::format("{} is not a number", inQuotes(word));
    case NumberFault::beyondNumbers:
      return fmt::format(
          "{} is beyond the numbers that can be computed with (about 1e-308 to 1e308)",
          inQuotes(word));
    case NumberFault::notFinite:
      return fmt::format("{} is not a finite number", inQuotes(word));
  }
  return {};
}

double parseNumber(std::string_view word) {
  const auto [value, fault] = readNumber(word);
  if (fault == NumberFault::none) return value;
  const auto has = [word, fault = fault](std::string_view sign) {
    return fault == NumberFault::notANumber && word.find(sign) != std::string_view::npos;
  };
  // U+2212 and U+2013, the minus and the dash of typesetters.
  const bool minus = has("\u2212") || has("\u2013");
  throw UsageError(faultText(word, fault) +
                   (has(",") ? "; the decimal sign is a point, as in 1013.25"
                    : minus  ? "; a minus is the hyphen of the keyboard, as in -1"
                             : ""));
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
  std::string text;
  appendShortest(text, value);
  return text;
}

void appendShortest(std::string& text, double value) {
  if (std::isnan(value)) {
    text += "nan";
  } else if (std::isinf(value)) {
    text += value > 0 ? "inf" : "-inf";
  } else if (value == 0.0 && std::signbit(value)) {
    text += "-0.0";  // many readers take "-0" for an integer and lose its sign
  } else {
    char digits[32];
    text.append(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
  }
}

std::string readableText(double value, int digits) {
  return std::isfinite(value) ? fmt::format("{:.{}g}", value, digits) : shortestText(value);
}

}  // namespace calvex::cli
