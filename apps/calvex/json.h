/// \file
/// Just enough JSON to write.
#pragma once

#include <string>
#include <string_view>

namespace calvex::cli {

/// A string with quotes; malformed UTF-8 becomes U+FFFD.
[[nodiscard]] std::string jsonString(std::string_view utf8);

/// Reads back to the same bits; "inf", "-inf" and "nan" are strings.
[[nodiscard]] std::string jsonNumber(double value);

/// Collects members in order; the values are JSON already.
class JsonObject {
 public:
  JsonObject& add(std::string_view key, std::string_view json);
  [[nodiscard]] bool empty() const noexcept { return members_.empty(); }
  [[nodiscard]] std::string text() const { return "{" + members_ + "}"; }

 private:
  std::string members_;
};

/// [one, two, ...] of values that are JSON already.
class JsonArray {
 public:
  JsonArray& add(std::string_view json);
  [[nodiscard]] std::string text() const { return "[" + elements_ + "]"; }

 private:
  std::string elements_;
};

}  // namespace calvex::cli
