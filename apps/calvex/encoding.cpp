#include "encoding.h"

#include <algorithm>
#include <array>

namespace calvex::cli {

namespace {

// Characters of the bytes 80 to 9F; all others are those of Latin-1.
constexpr std::array<char32_t, 32> upperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  // 88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,  // 98
};

}  // namespace

std::size_t width(std::string_view utf8) {
  return static_cast<std::size_t>(std::ranges::count_if(
      utf8, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

std::string fromWindows1252(std::string_view bytes) {
  std::string utf8;
  for (const char c : bytes) {
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

}  // namespace calvex::cli
