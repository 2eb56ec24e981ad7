#include "c/border.h"

#include <fmt/format.h>

#include "diagnostics/messages.h"
#include "units/encoding.h"

namespace calvex::c {

std::string engineText(std::string_view text) {
  if (isUtf8(text)) return std::string(text);
  throw Misuse{CALVEX_ENCODING, fmt::format("The text {} is not UTF-8.", inQuotes(text))};
}

std::string_view textOf(const char* text, std::size_t size, std::string_view name) {
  if (text == nullptr) {
    if (size == 0) return {};
    throw Misuse{CALVEX_NULL, fmt::format("The argument {} is NULL.", name)};
  }
  if (size == CALVEX_TERMINATED) return text;
  if (size > PTRDIFF_MAX) {
    throw Misuse{CALVEX_COUNT,
                 fmt::format("The size of {}, {} bytes, is more than there can be.", name, size)};
  }
  return {text, size};
}

int copyText(std::string_view utf8, char* text, std::size_t size, std::size_t* needed) noexcept {
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

int giveText(std::string_view utf8, char* text, std::size_t size, std::size_t* needed) {
  const int code = copyText(utf8, text, size, needed);
  if (code == CALVEX_NULL) {
    throw Misuse{code, fmt::format("The argument text is NULL, but size is {}; a size of 0 asks "
                                   "for the size alone.",
                                   size)};
  }
  if (code == CALVEX_TOO_SMALL) {
    throw Misuse{code, fmt::format("The text needs a size of {} bytes, but size is {}.",
                                   utf8.size() + 1, size)};
  }
  return code;
}

void require(const void* pointer, const char* name) {
  if (pointer == nullptr) throw Misuse{CALVEX_NULL, fmt::format("The argument {} is NULL.", name)};
}

void requireIndex(std::size_t index, std::size_t count, const char* what) {
  if (index < count) return;
  throw Misuse{CALVEX_UNKNOWN,
               count == 0
                   ? fmt::format("There is no {} {}: there are none.", what, index)
                   : fmt::format("There is no {} {}: they are 0 to {}.", what, index, count - 1)};
}

void requireFactsSize(std::size_t size, std::size_t known) {
  constexpr std::size_t largest = 4096;  // no version of a structure will be as large
  if (size >= known && size <= largest) return;
  throw Misuse{CALVEX_COUNT,
               fmt::format("facts_size is {}, but the structure has {} bytes.", size, known)};
}

void requireRequestSize(std::size_t size, std::size_t known) {
  if (size == known) return;
  throw Misuse{
      CALVEX_COUNT,
      fmt::format("The size of the request is {}, but this version's has {} bytes.", size, known)};
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
    throw Misuse{CALVEX_UNKNOWN, fmt::format("There is no member with the number {}; "
                                             "calvex_find_member answers that of a name.",
                                             number)};
  }
  return *member;
}

}  // namespace calvex::c
