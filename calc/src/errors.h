/// \file
/// Errors of cells. The spreadsheet takes a number that is none for an error whose number is in its
/// lower 32 bits, alone and in arrays.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <string>

namespace calvex::calc {

/// The numbers are the spreadsheet's.
enum class CellError : std::uint32_t {
  number = 503,           ///< #NUM!: the engine has no answer to these numbers
  missing = 511,          ///< Err:511: an input is missing
  value = 519,            ///< #VALUE!: a text where a number must be, an unknown name
  circular = 522,         ///< Err:522: the cell reads itself
  unsettled = 523,        ///< Err:523: repeated calculation does not settle
  name = 525,             ///< #NAME?: a name that is not known
  notAvailable = 0x7fff,  ///< #N/A: arrays of different sizes, an empty cell in a range
};

[[nodiscard]] constexpr double errorValue(CellError error) noexcept {
  constexpr std::uint64_t quietNaN = 0x7ff8'0000'0000'0000;
  return std::bit_cast<double>(quietNaN | static_cast<std::uint64_t>(error));
}

/// The error in a number; 0 in one that is a number.
[[nodiscard]] inline std::uint32_t errorIn(double value) noexcept {
  return std::isnan(value) ? static_cast<std::uint32_t>(std::bit_cast<std::uint64_t>(value)) : 0U;
}

/// What a cell shows: "#DIV/0!"
[[nodiscard]] std::string shownError(std::uint32_t error);
/// "#DIV/0!, a division by zero"
[[nodiscard]] std::string errorInWords(std::uint32_t error);

}  // namespace calvex::calc
