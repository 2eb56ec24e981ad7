/// \file
/// Just enough JSON to read what the command line prints.
#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace calvex::test {

struct Json {
  std::variant<double, std::string, std::vector<Json>, std::map<std::string, Json>> value;

  [[nodiscard]] const std::map<std::string, Json>& object() const { return std::get<3>(value); }
};

/// Throws std::invalid_argument.
class JsonReader {
 public:
  static Json read(std::string_view text) {
    JsonReader reader{text};
    Json json = reader.element();
    if (!reader.rest_.empty()) throw std::invalid_argument("text behind the JSON");
    return json;
  }

 private:
  explicit JsonReader(std::string_view text) : rest_(text) {}

  char take() {
    if (rest_.empty()) throw std::invalid_argument("JSON ends early");
    const char c = rest_.front();
    rest_.remove_prefix(1);
    return c;
  }
  void expect(char wanted) {
    if (take() != wanted) throw std::invalid_argument("malformed JSON");
  }
  /// True behind a separator, false behind the end.
  bool goesOn(char end) {
    const char c = take();
    if (c != ',' && c != end) throw std::invalid_argument("malformed JSON");
    return c == ',';
  }

  Json element() {
    const char first = rest_.empty() ? '\0' : rest_.front();
    if (first == '{') return {object()};
    if (first == '[') return {array()};
    if (first == '"') return {string()};
    const std::size_t length = rest_.find_first_of(",]}");
    const std::string number(rest_.substr(0, length));
    rest_.remove_prefix(number.size());
    std::size_t used = 0;
    const double value = std::stod(number, &used);
    if (used != number.size()) throw std::invalid_argument("no number: " + number);
    return {value};
  }
  std::map<std::string, Json> object() {
    std::map<std::string, Json> members;
    expect('{');
    do {
      std::string name = string();
      expect(':');
      members.emplace(std::move(name), element());
    } while (goesOn('}'));
    return members;
  }
  std::vector<Json> array() {
    std::vector<Json> elements;
    expect('[');
    do {
      elements.push_back(element());
    } while (goesOn(']'));
    return elements;
  }
  std::string string() {
    std::string text;
    expect('"');
    for (char c = take(); c != '"'; c = take()) {
      if (c == '\\') {
        c = take();
        if (c != '"' && c != '\\') throw std::invalid_argument("an escape that no answer has");
      }
      text += c;
    }
    return text;
  }

  std::string_view rest_;
};

}  // namespace calvex::test
