/// \file
/// Between the automation types and those of the member table.
#pragma once

#include <string>
#include <string_view>

#include "server/value.h"
#include "server/windows/automation.h"

namespace calvex::com {

/// Texts are UTF-8 inside, and what a client gave comes back unharmed (units/utf16.h). An absent
/// BSTR is an empty text.
[[nodiscard]] std::string toText(BSTR text);
/// Throws std::bad_alloc.
[[nodiscard]] BSTR toBstr(std::string_view text);

/// The client's variable takes the new content and frees its old. Throw std::bad_alloc, and leave
/// the variable alone, without memory.
void replace(BSTR& target, std::string_view text);
void replace(VARIANT& target, const ResultArray& rows);
void replace(VARIANT& target, const Value& value);

/// Reads an argument as a parameter of that type, coerced as automation does, but for texts: a text
/// is a number where it is written with a decimal point, whatever the client's locale makes of it.
/// S_OK, DISP_E_TYPEMISMATCH, DISP_E_OVERFLOW, DISP_E_PARAMNOTOPTIONAL or, for a reference to
/// nowhere, E_INVALIDARG.
HRESULT read(const VARIANT& argument, ValueType type, Value& value);

/// Hands an output to the argument that the client gave for it: a variable of the parameter's own
/// type, a variant (takes that type), an object (its property `value` where the object is a
/// script's, else its default property). An argument by value has no place for an output, which is
/// then lost; checking beforehand tells whether there is a way at all.
HRESULT checkOutput(const VARIANT& argument, ValueType type);
HRESULT give(const VARIANT& argument, const Value& value);

}  // namespace calvex::com
