/// \file
/// What cells have, whatever the spreadsheet.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace calvex::worksheet {

enum class ErrorKind : unsigned char {
  noAnswer,      ///< the engine has no answer to these numbers
  missing,       ///< an input is left out
  value,         ///< a text where a number must be, an unknown name
  notAvailable,  ///< an empty cell, ranges of different sizes, a result that the member leaves out
  given,         ///< an input is an error: `code` is the spreadsheet's
};

struct Error {
  ErrorKind kind;
  int code = 0;
  bool operator==(const Error&) const = default;
};

struct Blank {
  bool operator==(const Blank&) const = default;
};
struct LeftOut {
  bool operator==(const LeftOut&) const = default;
};

using Cell = std::variant<LeftOut, Blank, double, Error, std::string>;

/// Where in a grid, or how large it is.
struct Place {
  std::size_t row = 0;
  std::size_t column = 0;
  bool operator==(const Place&) const = default;
};

/// Cells in rows and columns; a single value is one of one cell.
struct Grid {
  std::size_t rows = 1;
  std::size_t columns = 1;
  std::vector<Cell> cells;  ///< row by row

  Grid() : cells(1) {}
  Grid(Cell cell) : cells(1, std::move(cell)) {}  // NOLINT: a cell is a grid
  Grid(std::size_t height, std::size_t width)
      : rows(height), columns(width), cells(height * width) {}

  bool operator==(const Grid&) const = default;

  [[nodiscard]] Cell& at(Place place) { return cells[place.row * columns + place.column]; }
  /// A single row or column goes on without an end; outside of the grid there is #N/A.
  [[nodiscard]] Cell element(Place place) const {
    if (rows == 1) place.row = 0;
    if (columns == 1) place.column = 0;
    if (place.row >= rows || place.column >= columns) return Error{ErrorKind::notAvailable};
    return cells[place.row * columns + place.column];
  }
};

}  // namespace calvex::worksheet
