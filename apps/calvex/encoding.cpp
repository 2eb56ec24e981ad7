#include "encoding.h"

#include <algorithm>

namespace calvex::cli {

namespace {

constexpr char32_t replacement = 0xFFFD;

bool isControl(char32_t c) { return c < 0x20 || (c >= 0x7F && c < 0xA0); }

}  // namespace

std::string inQuotes(std::string_view word) {
  constexpr int longest = 60;
  std::string text = "'";
  for (int i = 0; i < longest && !word.empty(); ++i) {
    const char32_t character = takeCharacter(word).value_or(replacement);
    appendUtf8(text, isControl(character) ? replacement : character);
  }
  if (!word.empty()) text += "...";
  return text + "'";
}

std::size_t width(std::string_view utf8) {
  return static_cast<std::size_t>(std::ranges::count_if(
      utf8, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

}  // namespace calvex::cli
