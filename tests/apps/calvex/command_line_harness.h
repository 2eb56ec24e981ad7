/// \file
/// The command line called in this process.
#pragma once

#include <sstream>
#include <string>

#include "command_line.h"

namespace calvex::cli::test {

struct Answer {
  int status;
  std::string out;
  std::string err;
};

inline Answer calvexWithInput(const std::string& input, Words words) {
  std::istringstream in(input);
  std::ostringstream out, err;
  Console console{in, out, err, true};
  const ExitStatus status = runCommandLine(std::move(words), console);
  return {static_cast<int>(status), out.str(), err.str()};
}

inline Answer calvex(Words words) { return calvexWithInput("", std::move(words)); }

inline std::vector<std::string> linesOf(const std::string& text) {
  std::istringstream in(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

inline bool contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

/// The number behind "key": in JSON.
inline double numberAt(const std::string& json, const std::string& key) {
  const std::size_t at = json.find("\"" + key + "\":");
  if (at == std::string::npos) throw std::runtime_error("no " + key + " in " + json);
  return std::stod(json.substr(at + key.size() + 3));
}

}  // namespace calvex::cli::test
