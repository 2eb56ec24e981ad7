/// \file
/// The constants and coefficients of the equations, for the page that shows them.
#pragma once

#include <string>

namespace calvex {

/// One JSON object: constants by the names that the sources give them, coefficients as lists in the
/// order of the printed tables.
[[nodiscard]] std::string formulation();

}  // namespace calvex
