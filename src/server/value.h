/// \file
/// The values that cross the automation interface.
#pragma once

#include <string>
#include <variant>

#include "engine/result_array.h"

namespace calvex {

/// The automation types: double (VT_R8), short (VT_I2), long (VT_I4), string (BSTR, here
/// UTF-8), array (a two-dimensional SAFEARRAY of VARIANT).
enum class ValueType : unsigned char { real, shortInteger, longInteger, text, array };

/// One argument or result; monostate: not written.
using Value = std::variant<std::monostate, double, short, int, std::string, ResultArray>;

}  // namespace calvex
