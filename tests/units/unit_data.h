/// \file
/// Reader of the unit tables in tests/data, which are kept apart from the engine's own tables.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "support/checkout.h"

namespace calvex::test {

inline std::vector<std::string> split(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::istringstream in(text);
  for (std::string part; std::getline(in, part, separator);) parts.push_back(part);
  return parts;
}

/// The rows of a data file below its heading.
inline std::vector<std::vector<std::string>> readCells(const std::string& name) {
  std::ifstream in(dataFolder() + "/" + name);
  EXPECT_TRUE(in) << "cannot read " << name;
  std::vector<std::vector<std::string>> rows;
  std::string line;
  std::getline(in, line);
  while (std::getline(in, line)) rows.push_back(split(line, ','));
  return rows;
}

}  // namespace calvex::test
