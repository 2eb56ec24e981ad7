// The run script as arbitrary bytes: no crash, no hang, and one object for each line that is
// neither empty nor a comment.
#include <cstdint>
#include <sstream>
#include <string>

#include "script.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  calvex::cli::ClientOptions options;
  options.json = (data[0] & 1) != 0;
  options.trace = (data[0] & 2) != 0;
  std::istringstream in(std::string(reinterpret_cast<const char*>(data) + 1, size - 1));
  std::ostringstream out, err;
  calvex::cli::Console console{in, out, err};
  calvex::cli::runScript(in, console, options);
  if (!options.json) return 0;
  std::istringstream lines(out.str());
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with('{') || !line.ends_with('}')) __builtin_trap();
  }
  return 0;
}
