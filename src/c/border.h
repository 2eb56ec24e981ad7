/// \file
/// What every function of the C interface does at the border: texts in and out, codes for whatever
/// goes wrong, and no exception beyond.
#pragma once

#include <algorithm>
#include <cstring>
#include <exception>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "calvex/calvex.h"
#include "server/client.h"

namespace calvex::c {

/// A call that breaks the rules of the interface: its code and, for an engine to keep, why.
struct Misuse {
  int code;
  std::string text;
};

/// A text given by its size.
inline std::string_view textOf(const char* text, std::size_t size) {
  if (text == nullptr) {
    if (size == 0) return {};
    throw Misuse{CALVEX_NULL, "a text is NULL"};
  }
  if (size == CALVEX_TERMINATED) return text;
  if (size > PTRDIFF_MAX) throw Misuse{CALVEX_COUNT, "a text is longer than memory"};
  return {text, size};
}

/// The engine's own text for one in UTF-8.
std::string engineText(std::string_view utf8);

/// Hands a text out.
int giveText(std::string_view utf8, char* text, std::size_t size, std::size_t* needed) noexcept;

/// The code of the engine's error of that text.
int codeOf(std::string_view error) noexcept;

/// \throws Misuse when there is none.
const Member& memberOf(int number);

inline void require(const void* pointer, const char* name) {
  if (pointer == nullptr) throw Misuse{CALVEX_NULL, std::string(name) + " is NULL"};
}
inline void requireIndex(std::size_t index, std::size_t count, const char* what) {
  if (index >= count) {
    throw Misuse{CALVEX_UNKNOWN, "there is no " + std::string(what) + " " + std::to_string(index) +
                                     ": there are " + std::to_string(count)};
  }
}

/// Copies the facts. This is the first version of the structures: none is smaller.
template <class Facts>
void giveFacts(const Facts& facts, Facts* target, std::size_t size) {
  require(target, "the structure for facts");
  if (size < sizeof facts) {
    throw Misuse{CALVEX_COUNT, "the size is not that of a structure known here"};
  }
  std::memcpy(target, &facts, sizeof facts);
}
/// Reads a request, of which this is the first version.
template <class Request>
Request requestOf(const Request* source, std::size_t size) {
  require(source, "the request");
  if (size != sizeof(Request)) {
    throw Misuse{CALVEX_COUNT, "the request's size is not that of a structure known here"};
  }
  return *source;
}

/// Runs a body that answers a code; `keep` takes what goes wrong, a text of its own or a literal.
template <class Body, class Keep>
int guarded(Body&& body, Keep&& keep) noexcept {
  try {
    return body();
  } catch (Misuse& misuse) {
    keep(std::move(misuse.text));
    return misuse.code;
  } catch (const std::bad_alloc&) {
    keep("Out of memory.");
    return CALVEX_MEMORY;
  } catch (...) {
    keep("Internal error.");
    return CALVEX_INTERNAL;
  }
}
/// The same for functions without an engine.
template <class Body>
int guarded(Body&& body) noexcept {
  return guarded(body, [](auto&&) {});
}

}  // namespace calvex::c
