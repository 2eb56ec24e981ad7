/// \file
/// Quantities as people write them: a property by its letter or its name, a number with its unit.
#pragma once

#include <optional>
#include <string_view>

#include "units/user_units.h"

namespace calvex::cli {

/// The letters of the properties that determine a state.
inline constexpr std::string_view stateLetters = "PTHSURVQ";

/// The letter of "p", "pressure", "rho", "specific-volume"; nothing for other words.
[[nodiscard]] std::optional<char> findLetterNamed(std::string_view name);
/// The same; throws UsageError with the nearest words.
[[nodiscard]] char letterNamed(std::string_view name);

/// What stands behind the number; empty where nothing does, or what cannot be a unit.
[[nodiscard]] std::string_view unitBehind(std::string_view text) noexcept;
/// A number in the client's unit. A unit may stand behind it, as in 500C: then it is converted from
/// that. Throws UsageError.
[[nodiscard]] double valueWithUnit(std::string_view text, UnitGroup group, const UserUnits& units);

}  // namespace calvex::cli
