/// \file
/// Units in the words that people use: bar, psi, °C, BTU/lbm, t/h, in any case.
///
/// The catalogue matches its names byte for byte, and the automation interface relies on it. These
/// look-ups are for the faces that people type into. The units found have the catalogue's names.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "units/unit_catalogue.h"

namespace calvex {

/// What a word for a unit may mean.
struct UnitWord {
  /// The unit, of the catalogue or of `unitsBesideCatalogue`; null when the word names none or does
  /// not tell which.
  const ZvUomLiteKeyword* unit = nullptr;
  /// Of a word that does not tell which: those that it may mean.
  std::vector<const ZvUomLiteKeyword*> candidates;
  /// What one who chooses the unit should know, UTF-8; mostly empty.
  std::string_view notice;
  /// Of a word that says something no unit of the group does: what to write instead, UTF-8.
  std::string_view refusal = {};
};

/// The catalogue's own name first, then the same letters in another case, with other signs between
/// them or by another word. m and M, milli and mega, are told apart where a word has both cases.
[[nodiscard]] UnitWord findUnitWord(UnitGroup group, std::string_view word);

/// The group by a keyword or its display name in any case, or by a common word ("flow").
[[nodiscard]] std::optional<UnitGroup> findGroupWord(std::string_view word);

/// Units that people use and the catalogue lacks; the engine takes them as custom units.
[[nodiscard]] std::span<const ZvUomLiteKeyword> unitsBesideCatalogue(UnitGroup group);
[[nodiscard]] bool isInCatalogue(UnitGroup group, const ZvUomLiteKeyword& unit);

/// What one who chooses a unit should know about it, UTF-8; empty for nearly all.
[[nodiscard]] std::string_view unitNotice(UnitGroup group, std::string_view name);
/// What one who reads the units of a group should know about them, UTF-8, lines without their last
/// end; mostly empty.
[[nodiscard]] std::string_view groupNotice(UnitGroup group);

/// Words that stand for a unit of the group without being spelled like it: {"ata", kgf/cm²}.
[[nodiscard]] std::vector<std::pair<std::string_view, const ZvUomLiteKeyword*>> otherWords(
    UnitGroup group);

}  // namespace calvex
