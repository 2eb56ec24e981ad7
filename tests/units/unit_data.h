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

/// UTF-8 to Windows-1252, for texts whose only characters above 0x7F are U+00A0 to U+00BF.
inline std::string windows1252(std::string text) {
  std::erase(text, '\xC2');
  return text;
}

inline std::vector<std::string> split(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::istringstream in(text);
  for (std::string part; std::getline(in, part, separator);) parts.push_back(part);
  return parts;
}

/// The rows of a data file below its heading, in Windows-1252.
inline std::vector<std::vector<std::string>> readCells(const std::string& name) {
  std::ifstream in(dataFolder() + "/" + name);
  EXPECT_TRUE(in) << "cannot read " << name;
  std::vector<std::vector<std::string>> rows;
  std::string line;
  std::getline(in, line);
  while (std::getline(in, line)) rows.push_back(split(windows1252(line), ','));
  return rows;
}

}  // namespace calvex::test
