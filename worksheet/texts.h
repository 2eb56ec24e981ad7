/// \file
/// Texts of the C interface.
#pragma once

#include <cstddef>
#include <string>

namespace calvex::worksheet {

/// A text that the C interface gives: ask(text, size, needed).
template <class Ask>
std::string textOf(Ask&& ask) {
  std::size_t needed = 0;
  ask(nullptr, std::size_t{0}, &needed);
  std::string text(needed, '\0');
  ask(text.data(), text.size(), &needed);
  if (!text.empty()) text.pop_back();
  return text;
}

}  // namespace calvex::worksheet
