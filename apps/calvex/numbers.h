/// \file
/// Numbers as they are typed and printed: always with a decimal point, whatever the locale.
#pragma once

#include <string>
#include <string_view>

#include "failure.h"

namespace calvex::cli {

/// What keeps a word from being a number that can be computed with.
enum class NumberFault : unsigned char { none, notANumber, beyondNumbers, notFinite };

struct ReadNumber {
  double value;
  NumberFault fault;
};

/// One number, perhaps with a sign, and nothing else.
[[nodiscard]] ReadNumber readNumber(std::string_view word) noexcept;

/// "'12 bar' is not a number".
[[nodiscard]] std::string faultText(std::string_view word, NumberFault fault);

/// Throws UsageError for anything but one finite number.
[[nodiscard]] double parseNumber(std::string_view word);

/// A whole number within the limits; throws UsageError.
[[nodiscard]] int parseWholeNumber(std::string_view word, int smallest, int largest);

/// The shortest text that reads back to the same bits; "inf", "-inf", "nan".
[[nodiscard]] std::string shortestText(double value);
/// The same behind a text, without taking from the heap.
void appendShortest(std::string& text, double value);

/// For people: ten significant digits, more than the formulation deserves.
[[nodiscard]] std::string readableText(double value, int digits = 10);

/// A number that stands behind an option: what is wrong with it is told with the option's name.
template <class Read>
[[nodiscard]] auto optionValue(std::string_view option, Read&& read) {
  try {
    return read();
  } catch (const UsageError& error) {
    throw UsageError(std::string(option) + ": " + error.what());
  }
}

}  // namespace calvex::cli
