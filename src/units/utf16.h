/// \file
/// Texts in UTF-16, as some clients have them, and the same in UTF-8. Every text survives the way
/// there and back: a surrogate without its partner, which UTF-8 has no character for, takes the
/// three bytes that its number would have as a character's (WTF-8; Sapin 2018).
#pragma once

#include <string>
#include <string_view>

#include "units/encoding.h"

namespace calvex {

/// `Unit` is char16_t, or another type of 16 bits.
template <class Unit>
[[nodiscard]] std::string utf8Of(std::basic_string_view<Unit> utf16) {
  static_assert(sizeof(Unit) == 2);
  std::string utf8;
  utf8.reserve(utf16.size());
  for (std::size_t i = 0; i < utf16.size(); ++i) {
    char32_t character = static_cast<char16_t>(utf16[i]);
    if ((character & 0xFC00U) == 0xD800U && i + 1 < utf16.size()) {
      const char32_t next = static_cast<char16_t>(utf16[i + 1]);
      if ((next & 0xFC00U) == 0xDC00U) {
        character = 0x10000 + ((character & 0x3FFU) << 10U) + (next & 0x3FFU);
        ++i;
      }
    }
    appendUtf8(utf8, character);
  }
  return utf8;
}

/// A byte that belongs to no character becomes U+FFFD.
template <class Unit>
[[nodiscard]] std::basic_string<Unit> utf16Of(std::string_view utf8) {
  static_assert(sizeof(Unit) == 2);
  std::basic_string<Unit> utf16;
  utf16.reserve(utf8.size());
  while (!utf8.empty()) {
    const char32_t character = takeCodePoint(utf8).value_or(0xFFFD);
    if (character >= 0x10000) {
      utf16 += static_cast<Unit>(0xD7C0 + (character >> 10U));
      utf16 += static_cast<Unit>(0xDC00 + (character & 0x3FFU));
    } else {
      utf16 += static_cast<Unit>(character);
    }
  }
  return utf16;
}

}  // namespace calvex
