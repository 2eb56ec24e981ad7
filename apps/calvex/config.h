/// \file
/// The user's file of units and settings that calls start with.
#pragma once

#include <string>

#include "command_line.h"

namespace calvex::cli {

/// The file: what CALVEX_CONFIG names (nothing when it is empty), else calvex/config in the user's
/// folder for such files. Empty when there is none.
[[nodiscard]] std::string configPath();
/// Where the shell keeps its history; empty when there is no place.
[[nodiscard]] std::string historyPath();

/// Empty when there is no such file. Throws UsageError, naming file and line.
[[nodiscard]] StartingOptions readConfig(const std::string& path);
/// Makes the folders that are missing; removes the file when there is nothing to write. The file is
/// replaced as a whole. Throws Failure.
void writeConfig(const std::string& path, const StartingOptions& options);

}  // namespace calvex::cli
