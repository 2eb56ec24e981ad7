/// \file
/// Files that are read.
#pragma once

#include <fstream>
#include <string>

namespace calvex::cli {

/// The file of that name, byte for byte. Throws UsageError, naming it, when it cannot be
/// read.
[[nodiscard]] std::ifstream openedInput(const std::string& file);

}  // namespace calvex::cli
