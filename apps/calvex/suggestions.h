/// \file
/// Names that a mistyped one may have meant.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace calvex::cli {

/// Insertions, deletions, replacements and swaps of neighbours that turn one into the other,
/// whatever the case.
[[nodiscard]] std::size_t editDistance(std::string_view a, std::string_view b);

/// The nearest of these names, best first, and those that the word begins; none when nothing is
/// near.
[[nodiscard]] std::vector<std::string> nearest(std::string_view word,
                                               const std::vector<std::string>& names);

/// "; did you mean psia or psig?", or nothing.
[[nodiscard]] std::string didYouMean(std::string_view word, const std::vector<std::string>& names);

[[nodiscard]] std::string lowerCase(std::string_view text);

}  // namespace calvex::cli
