#include "json.h"

#include <fmt/format.h>

#include <cmath>

#include "encoding.h"
#include "numbers.h"

namespace calvex::cli {

std::string jsonString(std::string_view utf8) {
  std::string json = "\"";
  while (!utf8.empty()) {
    const char32_t character = takeCharacter(utf8).value_or(0xFFFD);
    if (character == '"' || character == '\\') {
      json += '\\';
      json += static_cast<char>(character);
    } else if (character < 0x20) {
      json += fmt::format("\\u{:04x}", static_cast<unsigned>(character));
    } else {
      appendUtf8(json, character);
    }
  }
  return json + '"';
}

std::string jsonNumber(double value) {
  const std::string text = shortestText(value);
  return std::isfinite(value) ? text : jsonString(text);
}

JsonObject& JsonObject::add(std::string_view key, std::string_view json) {
  if (!members_.empty()) members_ += ',';
  members_ += jsonString(key);
  members_ += ':';
  members_ += json;
  return *this;
}

JsonArray& JsonArray::add(std::string_view json) {
  if (!elements_.empty()) elements_ += ',';
  elements_ += json;
  return *this;
}

}  // namespace calvex::cli
