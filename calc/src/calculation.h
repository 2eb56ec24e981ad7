/// \file
/// The calls of members with what cells have, in the spreadsheet's own values. These are as the
/// spreadsheet gives them: a number, a text, or rows of both; an argument that is left out is void.
#pragma once

#include <calvex/calvex.h>

#include <com/sun/star/uno/Any.hxx>
#include <optional>
#include <span>
#include <string>

#include "worksheet/cells.h"
#include "worksheet/signatures.h"

namespace calvex::calc {

using com::sun::star::uno::Any;
using worksheet::findSignature;
using worksheet::Grid;
using worksheet::Place;
using worksheet::Signature;
using worksheet::signatureOf;
using worksheet::Slot;

/// Computes a member: with numbers a number, with ranges an array of their shape; of a member with
/// several results the one that the last argument names, or all of them beside each other. What has
/// no answer is an error value; in an array it leaves its neighbours alone.
[[nodiscard]] Any calculate(calvex_engine* engine, const Signature& signature,
                            std::span<const Any* const> arguments);

/// Calls the member with the arguments' elements at a place and answers why it fails there; empty
/// when it does not. The call leaves its record in the engine.
[[nodiscard]] std::string reason(calvex_engine* engine, const Signature& signature,
                                 std::span<const Any* const> arguments, Place place);

/// Converts a value between units: quantity, unit, unit wanted, value; each may be a range. What
/// fails is an error value.
[[nodiscard]] Any convert(calvex_engine* engine, std::span<const Any* const> arguments);

/// Why the conversion fails at a place; empty when it does not.
[[nodiscard]] std::string reasonOfConversion(calvex_engine* engine,
                                             std::span<const Any* const> arguments, Place place);

/// The engine's units of quantities in plain words; an error value for an unknown one.
[[nodiscard]] Any unitNames(calvex_engine* engine, const Any& quantities);

/// What a value is to the functions of every spreadsheet.
[[nodiscard]] Grid gridOf(const Any& value);
/// The element of a value; a single one stands for all of its row or column.
[[nodiscard]] Any elementOf(const Any& value, Place place);
/// How many rows and columns a value has.
[[nodiscard]] Place extentOf(const Any& value);
/// The error in a value; 0 when there is none.
[[nodiscard]] std::uint32_t errorOf(const Any& value);
/// Where the first error in a value stands; nothing where there is none.
[[nodiscard]] std::optional<Place> firstError(const Any& value);

}  // namespace calvex::calc
