/// \file
/// What the program finds around it, in UTF-8 as all its texts are. Windows has it in UTF-16, and
/// gives those who ask for bytes what the user's code page has characters for.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace calvex::cli {

/// What the variable says; nothing where there is none.
[[nodiscard]] std::optional<std::string> environmentVariable(const char* name);

[[nodiscard]] std::filesystem::path pathNamed(std::string_view name);
[[nodiscard]] std::string nameOf(const std::filesystem::path& path);

}  // namespace calvex::cli
