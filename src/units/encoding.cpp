#include "units/encoding.h"

#include <algorithm>
#include <array>

namespace calvex {

namespace {

constexpr char32_t replacement = 0xFFFD;

bool isControl(char32_t c) { return c < 0x20 || (c >= 0x7F && c < 0xA0); }

// Characters of the bytes 80 to 9F; all others are those of Latin-1.
constexpr std::array<char32_t, 32> upperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  // 88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,  // 98
};

}  // namespace

std::optional<char32_t> takeCharacter(std::string_view& utf8) {
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
  wellFormed = wellFormed && character >= smallest[length] && character <= 0x10FFFF &&
               !(character >= 0xD800 && character <= 0xDFFF);
  utf8.remove_prefix(wellFormed ? length : 1);
  return wellFormed ? std::optional(character) : std::nullopt;
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

std::string toUtf8(std::string_view windows1252) {
  std::string utf8;
  for (const char c : windows1252) {
    const auto byte = static_cast<unsigned char>(c);
    appendUtf8(utf8, byte >= 0x80 && byte < 0xA0 ? upperControls[byte - 0x80U] : byte);
  }
  return utf8;
}

std::optional<std::string> toWindows1252(std::string_view utf8) {
  std::string bytes;
  while (!utf8.empty()) {
    const std::optional<char32_t> character = takeCharacter(utf8);
    if (!character) return std::nullopt;
    if (*character < 0x80 || (*character >= 0xA0 && *character < 0x100)) {
      bytes += static_cast<char>(*character);
    } else {
      const auto* const found = std::ranges::find(upperControls, *character);
      if (found == upperControls.end()) return std::nullopt;
      bytes += static_cast<char>(0x80 + (found - upperControls.begin()));
    }
  }
  return bytes;
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
