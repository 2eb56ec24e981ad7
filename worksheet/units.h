/// \file
/// Units of a workbook or document, as it keeps them.
#pragma once

#include <calvex/calvex.hpp>
#include <map>
#include <span>
#include <string>
#include <string_view>

#include "worksheet/cells.h"

namespace calvex::worksheet {

/// Units by their unit group's number, in the order of the groups.
using Units = std::map<int, std::string>;

/// The word that a unit group goes by: "T", "Flow Rate".
[[nodiscard]] std::string keywordOf(int group);

/// "T=°C; P=bar", by keywords of the groups.
[[nodiscard]] std::string unitsText(const Units& units);
/// Reads what `unitsText` writes; throws `calvex::Error` for what is none, and where a quantity has
/// two units.
[[nodiscard]] Units readUnits(std::string_view text);
/// The units that pairs of a group's and a unit's words name, as the catalogue names them; throws
/// `calvex::Error` as `readUnits` does.
[[nodiscard]] Units unitsOf(std::span<const Grid> words);

void setUnits(Engine& engine, const Units& units);

}  // namespace calvex::worksheet
