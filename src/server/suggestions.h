/// \file
/// Names that a mistyped one may have meant. All texts are UTF-8.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "units/unit_catalogue.h"

namespace calvex {

/// Insertions, deletions, replacements and swaps of neighbours that turn one into the other,
/// whatever the case.
[[nodiscard]] std::size_t editDistance(std::string_view a, std::string_view b);

/// The nearest of these names, best first, and those that the word begins; none when nothing is
/// near.
[[nodiscard]] std::vector<std::string> nearest(std::string_view word,
                                               const std::vector<std::string>& names);

/// "; did you mean psia or psig?", or nothing.
[[nodiscard]] std::string didYouMean(std::string_view word, const std::vector<std::string>& names);

/// The same for the name of a member.
[[nodiscard]] std::string didYouMeanMember(std::string_view name);

/// Why a word names nothing, with what it may have meant, and what there is.
struct Unknown {
  std::string reason;  ///< "'psix' is not a unit of Pressure; did you mean psia or psig?"
  std::string known;   ///< "Units: MPa, Pa, ..."
};
[[nodiscard]] Unknown unknownGroup(std::string_view word);
/// \param word names no unit of the group, or does not tell which.
[[nodiscard]] Unknown unknownUnit(UnitGroup group, std::string_view word);

[[nodiscard]] std::string lowerCase(std::string_view text);

}  // namespace calvex
