#include "csv.h"

namespace calvex::cli {

std::string csvField(std::string_view text) {
  if (text.find_first_of(",\"\n\r") == std::string_view::npos) return std::string(text);
  std::string field = "\"";
  for (const char c : text) {
    if (c == '"') field += c;
    field += c;
  }
  return field + '"';
}

std::string csvLine(const std::vector<std::string>& fields) {
  std::string line;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (i > 0) line += ',';
    line += csvField(fields[i]);
  }
  return line + '\n';
}

}  // namespace calvex::cli
