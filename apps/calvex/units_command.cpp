// calvex units [GROUP]
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <ostream>

#include "command_line.h"
#include "diagnostics/formatting.h"
#include "encoding.h"
#include "numbers.h"
#include "output.h"
#include "server/suggestions.h"
#include "units/unit_words.h"

namespace calvex::cli {

namespace {

using Rows = std::vector<std::vector<std::string>>;

std::string quotedIfSpaced(std::string_view keyword) {
  return keyword.find(' ') == std::string_view::npos ? std::string(keyword)
                                                     : fmt::format("\"{}\"", keyword);
}

std::string listGroups() {
  Rows rows = {{"no.", "quantity", "default unit", "selected by"}};
  for (int group = 0; group < unitGroupCount; ++group) {
    const UnitGroupRow& fixed = row(UnitGroup(group));
    // Every word stands in the catalogue twice, the second time in small letters.
    std::vector<std::string> keywords;
    for (const std::string_view keyword : fixed.keywords) {
      if (keyword != lowerCase(keyword)) keywords.push_back(quotedIfSpaced(keyword));
    }
    rows.push_back({fmt::format("{:3}", group), std::string(fixed.displayName),
                    std::string(fixed.internalUnit), fmt::format("{}", fmt::join(keywords, ", "))});
  }
  return aligned(rows) +
         "\nThe quantity's name does as well; capital and small letters are one.\n"
         "'calvex units QUANTITY' lists its units.\n";
}

std::string listUnits(UnitGroup group) {
  const UnitGroupRow& fixed = row(group);
  Rows rows = {{"unit", "factor", "offset"}};
  std::string notices;
  const auto add = [&](const ZvUomLiteKeyword& unit) {
    const std::string name(unit.name);
    const std::string_view notice = unitNotice(group, unit.name);
    rows.push_back({name, readableText(unit.factor, 15), readableText(unit.offset, 15),
                    !notice.empty()              ? "(!)"
                    : isInCatalogue(group, unit) ? ""
                                                 : "custom unit"});
    if (!notice.empty()) notices += fmt::format("(!) {}: {}\n", name, notice);
  };
  for (const ZvUomLiteKeyword& unit : fixed.units) add(unit);
  for (const ZvUomLiteKeyword& unit : unitsBesideCatalogue(group)) add(unit);
  std::string text = fmt::format(
      "{}; default unit {}\n\n{}\nvalue in {} = (value + offset) x factor\n", fixed.displayName,
      fixed.internalUnit, indented(aligned(rows)), fixed.referenceUnit);
  if (const std::string_view notice = groupNotice(group); !notice.empty()) {
    text += fmt::format("\n{}\n", notice);
  }
  if (!notices.empty()) text += '\n' + notices;
  std::vector<std::string> words;
  for (const auto& [word, unit] : otherWords(group)) {
    words.push_back(fmt::format("{} ({})", word, unit->name));
  }
  if (!words.empty()) text += fmt::format("\nAlso: {}\n", fmt::join(words, ", "));
  return text + "\nCapital and small letters, blanks, ^ and brackets do not matter.\n";
}

// Who names a unit wants to know what it measures.
void refuseUnit(std::string_view word) {
  if (findGroupWord(word)) return;
  Words quantities;
  for (int i = 0; i < unitGroupCount; ++i) {
    const UnitGroup group{static_cast<short>(i)};
    if (findUnitWord(group, word).unit != nullptr) quantities.emplace_back(row(group).displayName);
  }
  if (quantities.empty()) return;
  throw UsageError(fmt::format("{} is a unit of {}; 'calvex units {}' lists all of its units",
                               inQuotes(word), fmt::join(quantities, ", "),
                               quotedIfSpaced(quantities.front())));
}

}  // namespace

ExitStatus unitsCommand(const Words& words, Console& console) {
  CommandOptions app("units", "units [GROUP]",
                     "Lists the quantities that have a unit, or the units of one quantity.");
  app.footer(
      "Examples:\n"
      "  calvex units\n"
      "  calvex units Pressure");
  std::string keyword;
  app.add_option("GROUP", keyword, "A word that selects the quantity, such as P or Pressure")
      ->type_name("");
  if (!parse(app, words, console)) return ExitStatus::ok;
  if (!keyword.empty()) refuseUnit(keyword);
  console.out << (keyword.empty() ? listGroups() : listUnits(findGroup(keyword)));
  return ExitStatus::ok;
}

}  // namespace calvex::cli
