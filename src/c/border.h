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

/// A call that breaks the rules of the interface: its code and, for an engine to keep, why, and
/// what is behind it. Texts are sentences, as the engine's are, and name the arguments of calvex.h.
struct Misuse {
  int code;
  std::string text;
  std::string cause = {};
};

/// A text given by its size; `name` is the argument's.
std::string_view textOf(const char* text, std::size_t size, std::string_view name);

/// A text for the engine. \throws Misuse when it is not UTF-8.
std::string engineText(std::string_view text);

/// Hands a text out, whole or cut: CALVEX_OK, CALVEX_NULL or CALVEX_TOO_SMALL.
int copyText(std::string_view utf8, char* text, std::size_t size, std::size_t* needed) noexcept;
/// The same. \throws Misuse when it is not handed out whole.
int giveText(std::string_view utf8, char* text, std::size_t size, std::size_t* needed);

/// The code of the engine's error of that text.
int codeOf(std::string_view error) noexcept;

/// \throws Misuse when there is none.
const Member& memberOf(int number);

void require(const void* pointer, const char* name);
void requireIndex(std::size_t index, std::size_t count, const char* what);
/// The sizes of structures: these are the first versions, so that none is smaller.
void requireFactsSize(std::size_t size, std::size_t known);
void requireRequestSize(std::size_t size, std::size_t known);

/// Copies the facts. What a later version has behind them is 0.
template <class Facts>
void giveFacts(const Facts& facts, Facts* target, std::size_t size) {
  require(target, "facts");
  requireFactsSize(size, sizeof facts);
  std::memcpy(target, &facts, sizeof facts);
  std::memset(reinterpret_cast<char*>(target) + sizeof facts, 0, size - sizeof facts);
}
/// Reads a request. What a later version asks for behind it cannot be done, and is refused.
template <class Request>
Request requestOf(const Request* source, std::size_t size, const char* name) {
  require(source, name);
  requireRequestSize(size, sizeof(Request));
  return *source;
}

/// Runs a body that answers a code; `keep` takes what goes wrong, a Misuse or a literal.
template <class Body, class Keep>
int guarded(Body&& body, Keep&& keep) noexcept {
  try {
    return body();
  } catch (Misuse& misuse) {
    const int code = misuse.code;
    keep(std::move(misuse));
    return code;
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
