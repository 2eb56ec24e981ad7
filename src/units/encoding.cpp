#include "units/encoding.h"

#include <array>

namespace calvex {

namespace {

constexpr char32_t replacement = 0xFFFD;

bool isControl(char32_t c) { return c < 0x20 || (c >= 0x7F && c < 0xA0); }

}  // namespace

std::optional<char32_t> takeCodePoint(std::string_view& utf8) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
  const unsigned char lead = byte(0);
  const std::size_t length = lead < 0x80               ? 1
                             : (lead & 0xE0U) == 0xC0U ? 2
                             : (lead & 0xF0U) == 0xE0U ? 3
                             : (lead & 0xF8U) == 0xF0U ? 4
                                                       : 0;
  constexpr std::array<char32_t, 5> smallest = {0, 0, 0x80, 0x800, 0x10000};
  constexpr std::array<unsigned, 5> leadBits = {0, 0x7F, 0x1F, 0x0F, 0x07};
  bool wellFormed = length != 0 && length <= utf8.size();
  char32_t character = lead & leadBits[length];
  for (std::size_t i = 1; wellFormed && i < length; ++i) {
    wellFormed = (byte(i) & 0xC0U) == 0x80U;
    character = (character << 6U) | (byte(i) & 0x3FU);
  }
  wellFormed = wellFormed && character >= smallest[length] && character <= 0x10FFFF;
  utf8.remove_prefix(wellFormed ? length : 1);
  return wellFormed ? std::optional(character) : std::nullopt;
}

std::optional<char32_t> takeCharacter(std::string_view& utf8) {
  std::string_view rest = utf8;
  const std::optional<char32_t> character = takeCodePoint(rest);
  const bool surrogate = character && *character >= 0xD800 && *character <= 0xDFFF;
  utf8 = surrogate ? utf8.substr(1) : rest;
  return surrogate ? std::nullopt : character;
}

void appendUtf8(std::string& utf8, char32_t character) {
  const auto append = [&](char32_t byte) { utf8 += static_cast<char>(byte); };
  if (character < 0x80) {
    append(character);
  } else if (character < 0x800) {
    append(0xC0U | (character >> 6U));
    append(0x80U | (character & 0x3FU));
  } else if (character < 0x10000) {
    append(0xE0U | (character >> 12U));
    append(0x80U | ((character >> 6U) & 0x3FU));
    append(0x80U | (character & 0x3FU));
  } else {
    append(0xF0U | (character >> 18U));
    append(0x80U | ((character >> 12U) & 0x3FU));
    append(0x80U | ((character >> 6U) & 0x3FU));
    append(0x80U | (character & 0x3FU));
  }
}

bool isUtf8(std::string_view text) {
  while (!text.empty()) {
    if (!takeCharacter(text)) return false;
  }
  return true;
}

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

}  // namespace calvex
