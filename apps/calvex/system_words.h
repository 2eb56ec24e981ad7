/// \file
/// What help says otherwise on another system.
#pragma once

#include <string_view>

namespace calvex::cli::here {

#ifdef _WIN32
inline constexpr std::string_view configFolder = "%AppData%";
inline constexpr std::string_view endOfInput = "Ctrl-Z and Enter";
inline constexpr std::string_view shell = "a shell with history";
inline constexpr std::string_view keys = "The arrows bring back earlier lines.";
inline constexpr std::string_view pythonPackage =
    "the Python package calvex, which is not made for Windows";
#else
inline constexpr std::string_view configFolder = "XDG_CONFIG_HOME (or ~/.config)";
inline constexpr std::string_view endOfInput = "Ctrl-D";
inline constexpr std::string_view shell = "a shell with history, completion (Tab)";
inline constexpr std::string_view keys =
    "Tab completes names; the arrows bring back earlier lines.";
inline constexpr std::string_view pythonPackage =
    "the Python package calvex, with matplotlib: apt install python3-calvex python3-matplotlib, or "
    "pip install .\nCALVEX_PYTHON names the Python that has them";
#endif

}  // namespace calvex::cli::here
