#include "input_file.h"

#include <fmt/format.h>

#include <cerrno>
#include <cstring>
#include <filesystem>

#include "encoding.h"
#include "environment.h"
#include "failure.h"

namespace calvex::cli {

std::ifstream openedInput(const std::string& file) {
  const std::filesystem::path path = pathNamed(file);
  if (std::filesystem::is_directory(path)) {
    throw UsageError(fmt::format("cannot read {}: it is a directory", inQuotes(file)));
  }
  errno = 0;
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    throw UsageError(fmt::format("cannot read {}: {}", inQuotes(file), std::strerror(errno)));
  }
  return in;
}

}  // namespace calvex::cli
