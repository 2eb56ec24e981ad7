/// \file
/// The two-dimensional array that some members return: rows of texts and numbers.
#pragma once

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

namespace calvex {

/// A cell: a text or a number.
using Cell = std::variant<std::string, double>;

/// N rows of equally many columns, both counted from 0.
using ResultArray = std::vector<std::vector<Cell>>;

}  // namespace calvex
