/// \file
/// The server's names as the object model spells them.
#pragma once

#include <string>
#include <string_view>

#include "server/identity.h"
#include "server/windows/automation.h"

namespace calvex::com {

/// "4a623f37-f2b3-..." as a GUID.
constexpr GUID guid(std::string_view text) {
  const auto hex = [&](std::size_t at, std::size_t digits) {
    unsigned value = 0;
    for (const char c : text.substr(at, digits)) {
      value = 16 * value + static_cast<unsigned>(c <= '9' ? c - '0' : c - 'a' + 10);
    }
    return value;
  };
  const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(hex(at, 2)); };
  return {hex(0, 8),
          static_cast<unsigned short>(hex(9, 4)),
          static_cast<unsigned short>(hex(14, 4)),
          {byte(19), byte(21), byte(24), byte(26), byte(28), byte(30), byte(32), byte(34)}};
}

inline constexpr GUID classId = guid(identity::classId);
inline constexpr GUID interfaceId = guid(identity::interfaceId);
inline constexpr GUID typeLibraryId = guid(identity::typeLibraryId);

/// ASCII to UTF-16.
inline std::wstring wide(std::string_view text) { return {text.begin(), text.end()}; }
/// "{4A623F37-F2B3-...}", as registry keys have it.
inline std::wstring braced(std::string_view id) {
  std::wstring text = L"{" + wide(id) + L"}";
  for (wchar_t& c : text) {
    if (c >= L'a' && c <= L'f') c = static_cast<wchar_t>(c - L'a' + L'A');
  }
  return text;
}

}  // namespace calvex::com
