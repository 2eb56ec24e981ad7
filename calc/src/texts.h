/// \file
/// Texts of the C interface and of the spreadsheet.
#pragma once

#include <rtl/string.hxx>
#include <rtl/ustring.hxx>
#include <string>
#include <string_view>

namespace calvex::calc {

/// A text that the C interface gives: ask(text, size, needed).
template <class Ask>
std::string textOf(Ask&& ask) {
  std::size_t needed = 0;
  ask(nullptr, std::size_t{0}, &needed);
  std::string text(needed, '\0');
  ask(text.data(), text.size(), &needed);
  if (!text.empty()) text.pop_back();
  return text;
}

[[nodiscard]] inline rtl::OUString toOffice(std::string_view utf8) {
  return {utf8.data(), static_cast<sal_Int32>(utf8.size()), RTL_TEXTENCODING_UTF8};
}

[[nodiscard]] inline std::string toUtf8(const rtl::OUString& text) {
  const rtl::OString bytes = rtl::OUStringToOString(text, RTL_TEXTENCODING_UTF8);
  return {bytes.getStr(), static_cast<std::size_t>(bytes.getLength())};
}

}  // namespace calvex::calc
