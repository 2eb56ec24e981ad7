/// \file
/// The calls of members with what cells have.
#pragma once

#include <calvex/calvex.h>

#include <span>
#include <string>
#include <string_view>

#include "worksheet/cells.h"
#include "worksheet/signatures.h"

namespace calvex::worksheet {

/// How a spreadsheet speaks of what its cells have.
struct Wording {
  std::string (*errorInWords)(int code);  ///< "#DIV/0!, a division by zero"
  std::string_view noNumber;              ///< what a text is where a number must be: "no number"
};

/// Computes a member: with numbers a number, with ranges an array of their shape, by the direct
/// road where it can; of a member with several results those that the last argument names, or all
/// of them beside each other, below each other where the inputs are a row. Names in several cells
/// give results that stand as they do. What has no answer is an error; in an array it leaves its
/// neighbours alone.
[[nodiscard]] Grid calculate(calvex_engine* engine, const Signature& signature,
                             std::span<const Grid> arguments);

/// Calls the member with the arguments' elements at a place and answers why it fails there; empty
/// when it does not. The call leaves its record in the engine.
[[nodiscard]] std::string reason(calvex_engine* engine, const Signature& signature,
                                 std::span<const Grid> arguments, Place place,
                                 const Wording& wording);

/// Converts a value between units: quantity, unit, unit wanted, value; each may be a range. What
/// fails is an error.
[[nodiscard]] Grid convert(calvex_engine* engine, std::span<const Grid> arguments);

/// Converts the arguments' elements at a place and answers why that fails; empty when it does not.
[[nodiscard]] std::string reasonOfConversion(calvex_engine* engine, std::span<const Grid> arguments,
                                             Place place, const Wording& wording);

/// The engine's units of quantities in plain words; an error for an unknown one.
[[nodiscard]] Grid unitNames(calvex_engine* engine, const Grid& quantities);

/// Of a call's result the place in the inputs that an element comes from: results of one row or
/// column of inputs may stand beside each other.
[[nodiscard]] Place sourceOf(const Signature& signature, std::span<const Grid> arguments,
                             Place result);

}  // namespace calvex::worksheet
