#include "server/suggestions.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>

#include "server/member_table.h"
#include "units/encoding.h"
#include "units/unit_words.h"

namespace calvex {

std::string lowerCase(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

// Optimal string alignment; three rows of the table are alive at a time.
std::size_t editDistance(std::string_view a, std::string_view b) {
  const std::string from = lowerCase(a);
  const std::string to = lowerCase(b);
  std::vector<std::size_t> beforeLast(to.size() + 1), last(to.size() + 1), row(to.size() + 1);
  for (std::size_t j = 0; j <= to.size(); ++j) last[j] = j;
  for (std::size_t i = 1; i <= from.size(); ++i) {
    row[0] = i;
    for (std::size_t j = 1; j <= to.size(); ++j) {
      const std::size_t replaced = last[j - 1] + (from[i - 1] == to[j - 1] ? 0 : 1);
      row[j] = std::min({last[j] + 1, row[j - 1] + 1, replaced});
      if (i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1]) {
        row[j] = std::min(row[j], beforeLast[j - 2] + 1);
      }
    }
    std::swap(beforeLast, last);
    std::swap(last, row);
  }
  return last[to.size()];
}

namespace {

// Some units of temperature have a degree sign before their letter, others have none.
std::string_view withoutDegreeSign(std::string_view text) {
  constexpr std::string_view sign = "\u00B0";
  if (text.starts_with(sign) && text != sign) text.remove_prefix(sign.size());
  return text;
}

}  // namespace

std::vector<std::string> nearest(std::string_view word, const std::vector<std::string>& names) {
  constexpr std::size_t longest = 64;  // no name is as long
  constexpr std::size_t most = 4;
  constexpr std::size_t farthest = 3;
  if (word.empty() || word.size() > longest) return {};
  word = withoutDegreeSign(word);
  struct Candidate {
    std::size_t distance;
    const std::string* name;
  };
  std::vector<Candidate> candidates;
  for (const std::string& fullName : names) {
    const std::string_view name = withoutDegreeSign(fullName);
    const bool abbreviated = word.size() > 1 && lowerCase(name).starts_with(lowerCase(word));
    const auto [shorter, longer] = std::minmax({word.size(), name.size()});
    if (!abbreviated && longer - shorter > farthest) continue;
    const std::size_t distance = abbreviated ? 1 : editDistance(word, name);
    // Half of a name may not be rewritten, or everything short would be near.
    if (2 * distance <= std::max(word.size(), name.size()) && distance <= farthest) {
      candidates.push_back({distance, &fullName});
    }
  }
  std::ranges::stable_sort(candidates, {}, &Candidate::distance);
  // A name one step away leaves no room for those further off.
  std::vector<std::string> found;
  for (const Candidate& candidate : candidates) {
    if (found.size() == most || candidate.distance > candidates.front().distance + 1) break;
    if (std::ranges::find(found, *candidate.name) == found.end()) found.push_back(*candidate.name);
  }
  return found;
}

std::string didYouMean(std::string_view word, const std::vector<std::string>& names) {
  const std::vector<std::string> found = nearest(word, names);
  if (found.empty()) return {};
  return fmt::format("; did you mean {}?", fmt::join(found, " or "));
}

std::string didYouMeanMember(std::string_view name) {
  std::vector<std::string> names;
  for (const Member& member : memberTable()) names.emplace_back(member.name);
  return didYouMean(name, names);
}

Unknown unknownGroup(std::string_view word) {
  std::vector<std::string> keywords;
  std::vector<std::string_view> firsts;
  for (const UnitGroupRow& row : unitGroupTable()) {
    for (const std::string_view keyword : row.keywords) {
      // Every word stands in the catalogue twice, the second time in small letters.
      if (keyword != lowerCase(keyword)) keywords.emplace_back(keyword);
    }
    firsts.push_back(row.keywords.front());
  }
  return {fmt::format("{} is not a unit group{}", inQuotes(word), didYouMean(word, keywords)),
          fmt::format("Groups: {}", fmt::join(firsts, ", "))};
}

Unknown unknownUnit(UnitGroup group, std::string_view word) {
  const UnitGroupRow& row = unitGroupTable()[static_cast<std::size_t>(group)];
  std::vector<std::string> names, candidates;
  for (const ZvUomLiteKeyword& unit : row.units) names.emplace_back(unit.name);
  for (const ZvUomLiteKeyword& unit : unitsBesideCatalogue(group)) names.emplace_back(unit.name);
  const UnitWord found = findUnitWord(group, word);
  for (const ZvUomLiteKeyword* unit : found.candidates) candidates.emplace_back(unit->name);
  std::string help = didYouMean(word, names);
  if (!found.refusal.empty()) help = fmt::format("; {}", found.refusal);
  if (!candidates.empty()) {
    help = fmt::format("; did you mean {}? Write it so: m is milli, M is mega",
                       fmt::join(candidates, " or "));
  }
  return {fmt::format("{} is not a unit of {}{}", inQuotes(word), row.displayName, help),
          fmt::format("Units: {}", fmt::join(names, ", "))};
}

}  // namespace calvex
