#include "c/border.h"

#include "diagnostics/messages.h"
#include "units/encoding.h"

namespace calvex::c {

std::string engineText(std::string_view utf8) {
  if (std::optional<std::string> text = toWindows1252(utf8)) return *std::move(text);
  throw Misuse{CALVEX_ENCODING,
               "a text is not UTF-8 or has characters that the engine's texts (Windows-1252) lack"};
}

int giveText(std::string_view utf8, char* text, std::size_t size, std::size_t* needed) noexcept {
  if (text == nullptr && size != 0) return CALVEX_NULL;
  if (needed != nullptr) *needed = utf8.size() + 1;
  if (size == 0) return CALVEX_OK;
  std::size_t count = utf8.size();
  if (count >= size) {
    count = size - 1;
    const auto continues = [&](std::size_t i) {
      return (static_cast<unsigned char>(utf8[i]) & 0xC0U) == 0x80U;
    };
    while (count > 0 && continues(count)) --count;
  }
  std::copy_n(utf8.data(), count, text);
  text[count] = '\0';
  return count == utf8.size() ? CALVEX_OK : CALVEX_TOO_SMALL;
}

int codeOf(std::string_view error) noexcept {
  for (const Message setting : {Message::invalidReportingLevel, Message::invalidSolverTolerance,
                                Message::invalidSolverIterations}) {
    if (error == messageText(setting)) return static_cast<int>(setting);
  }
  // What the engine says of an exception is the exception's own text.
  if (error == std::bad_alloc().what()) return CALVEX_MEMORY;
  return messageNumber(error);
}

const Member& memberOf(int number) {
  const Member* member = findMember(number);
  if (member == nullptr) {
    throw Misuse{CALVEX_UNKNOWN, "there is no member with the number " + std::to_string(number)};
  }
  return *member;
}

}  // namespace calvex::c
