/// \file
/// Tables of test data: lines of cells, '#' begins a comment line, the first line names the
/// columns.
#pragma once

#include <fstream>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/checkout.h"

namespace calvex::test {

/// A line of the table, by column name.
struct Row {
  std::map<std::string, std::string> cells;

  [[nodiscard]] const std::string& text(const std::string& column) const {
    return cells.at(column);
  }
  [[nodiscard]] double operator[](const std::string& column) const {
    return std::stod(cells.at(column));
  }
};

inline std::vector<std::string> cellsOf(const std::string& line, char separator) {
  std::vector<std::string> cells;
  for (std::size_t begin = 0;;) {
    const std::size_t end = line.find(separator, begin);
    cells.push_back(line.substr(begin, end - begin));
    if (end == std::string::npos) return cells;
    begin = end + 1;
  }
}

/// Reads tests/data/`name`; throws when it is not there or ragged.
inline std::vector<Row> readTable(const std::string& name, char separator = ',') {
  std::ifstream file(dataFolder() + "/" + name);
  if (!file) throw std::runtime_error("no test data " + name);
  std::vector<std::string> columns;
  std::vector<Row> rows;
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line.front() == '#') continue;
    const std::vector<std::string> cells = cellsOf(line, separator);
    if (columns.empty()) {
      columns = cells;
      continue;
    }
    if (cells.size() != columns.size()) throw std::runtime_error("ragged line: " + line);
    Row& row = rows.emplace_back();
    for (std::size_t i = 0; i < cells.size(); ++i) row.cells[columns[i]] = cells[i];
  }
  if (rows.empty()) throw std::runtime_error("empty test data " + name);
  return rows;
}

}  // namespace calvex::test
