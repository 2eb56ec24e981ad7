/// \file
/// What stands behind the worksheet functions. Arguments are as the host gives them; results are
/// the host's until it gives them to `release`.
#pragma once

#include <initializer_list>
#include <span>

#include "xloper.h"

namespace calvex::excel {

/// Calls a member for the cell that is being calculated, in the units of its workbook.
XLOPER12* answerMember(int member, std::initializer_list<const XLOPER12*> arguments) noexcept;

/// Pairs of a quantity and a unit: answers them as the catalogue names them, for the cell that the
/// name Calvex_Units refers to. Anywhere else they must be what the name has. Without any the units
/// of the workbook.
XLOPER12* answerUnits(std::span<const XLOPER12* const> choices) noexcept;

/// The unit that a quantity has in the workbook.
XLOPER12* answerUnit(const XLOPER12* quantity) noexcept;

/// Converts a value between units: quantity, unit, unit wanted, value; each may be a range.
XLOPER12* answerConvert(std::initializer_list<const XLOPER12*> arguments) noexcept;

/// Why a cell, given by reference, has no value; empty for one that has. A reason is that of the
/// formula and the inputs that stand there now.
XLOPER12* answerWhy(const XLOPER12* cell) noexcept;

/// The record of a failed cell's call: rows of depth, kind and text.
XLOPER12* answerTrace(const XLOPER12* cell) noexcept;

}  // namespace calvex::excel
