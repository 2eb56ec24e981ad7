/// \file
/// The engine's texts are Windows-1252, those of the faces UTF-8.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace calvex {

/// Takes the first character off a UTF-8 text that is not empty; nothing, and one byte taken, where
/// the text is malformed.
std::optional<char32_t> takeCharacter(std::string_view& utf8);

void appendUtf8(std::string& utf8, char32_t character);

/// The five bytes without a character (81, 8D, 8F, 90, 9D) become the control characters of the
/// same number, so that every byte survives the way there and back.
[[nodiscard]] std::string toUtf8(std::string_view windows1252);

/// Nothing when the text is not UTF-8 or has a character that Windows-1252 lacks.
[[nodiscard]] std::optional<std::string> toWindows1252(std::string_view utf8);

/// 'word' as it stands in a message, UTF-8: well-formed, on one line and not too long.
[[nodiscard]] std::string inQuotes(std::string_view word);

}  // namespace calvex
