#include "environment.h"

#include <cstdlib>

#include "units/utf16.h"

namespace calvex::cli {

namespace fs = std::filesystem;

std::optional<std::string> environmentVariable(const char* name) {
#ifdef _WIN32
  const wchar_t* const value = _wgetenv(utf16Of<wchar_t>(name).c_str());
  if (value != nullptr) return utf8Of<wchar_t>(value);
#else
  const char* const value = std::getenv(name);
  if (value != nullptr) return value;
#endif
  return std::nullopt;
}

#ifdef _WIN32

fs::path pathNamed(std::string_view name) { return utf16Of<wchar_t>(name); }
std::string nameOf(const fs::path& path) { return utf8Of<wchar_t>(path.native()); }

#else

fs::path pathNamed(std::string_view name) { return name; }
std::string nameOf(const fs::path& path) { return path.native(); }

#endif

}  // namespace calvex::cli
