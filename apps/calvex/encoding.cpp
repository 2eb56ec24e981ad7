#include "encoding.h"

#include <algorithm>

namespace calvex::cli {

std::size_t width(std::string_view utf8) {
  return static_cast<std::size_t>(std::ranges::count_if(
      utf8, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

}  // namespace calvex::cli
