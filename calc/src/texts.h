/// \file
/// Texts of the C interface and of the spreadsheet.
#pragma once

#include <rtl/string.hxx>
#include <rtl/ustring.hxx>
#include <string>
#include <string_view>

#include "worksheet/texts.h"

namespace calvex::calc {

using worksheet::textOf;

[[nodiscard]] inline rtl::OUString toOffice(std::string_view utf8) {
  return {utf8.data(), static_cast<sal_Int32>(utf8.size()), RTL_TEXTENCODING_UTF8};
}

[[nodiscard]] inline std::string toUtf8(const rtl::OUString& text) {
  const rtl::OString bytes = rtl::OUStringToOString(text, RTL_TEXTENCODING_UTF8);
  return {bytes.getStr(), static_cast<std::size_t>(bytes.getLength())};
}

}  // namespace calvex::calc
