/// \file
/// Texts are UTF-8, in the engine and in its faces.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace calvex {

/// Takes the first character off a UTF-8 text that is not empty; nothing, and one byte taken, where
/// the text is malformed.
std::optional<char32_t> takeCharacter(std::string_view& utf8);

/// The same, where half of a surrogate pair counts as a character, too (utf16.h).
std::optional<char32_t> takeCodePoint(std::string_view& utf8);

void appendUtf8(std::string& utf8, char32_t character);

/// Whether every character of the text is well-formed.
[[nodiscard]] bool isUtf8(std::string_view text);

/// 'word' as it stands in a message, UTF-8: well-formed, on one line and not too long.
[[nodiscard]] std::string inQuotes(std::string_view word);

}  // namespace calvex
