/// \file
/// Comma-separated values to write (RFC 4180).
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace calvex::cli {

/// A field, in quotes where it needs them.
[[nodiscard]] std::string csvField(std::string_view text);

/// The fields of a line, ended.
[[nodiscard]] std::string csvLine(const std::vector<std::string>& fields);

}  // namespace calvex::cli
