#include "quantities.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <string>
#include <vector>

#include "client.h"
#include "encoding.h"
#include "failure.h"
#include "numbers.h"
#include "server/member_explanations.h"
#include "suggestions.h"

namespace calvex::cli {

namespace {

// Small letters, with a blank for what people put between words.
std::string plainName(std::string_view name) {
  std::string plain = lowerCase(name);
  std::ranges::replace(plain, '-', ' ');
  std::ranges::replace(plain, '_', ' ');
  return plain;
}

// What a property may be called.
std::vector<std::string> namesOf(char letter) {
  const LetterExplanation& explained = letterExplanation(letter);
  std::vector<std::string> names = {std::string(1, letter), std::string(explained.words)};
  for (std::string_view rest = explained.other; !rest.empty();) {
    const std::string_view word = rest.substr(0, rest.find(' '));
    names.emplace_back(word);
    rest.remove_prefix(std::min(rest.size(), word.size() + 1));
  }
  for (const std::string_view keyword : row(explained.group).keywords) names.emplace_back(keyword);
  return names;
}

}  // namespace

std::optional<char> findLetterNamed(std::string_view name) {
  const std::string wanted = plainName(name);
  for (const char letter : stateLetters) {
    for (const std::string& known : namesOf(letter)) {
      if (plainName(known) == wanted) return letter;
    }
  }
  return std::nullopt;
}

char letterNamed(std::string_view name) {
  if (const auto letter = findLetterNamed(name)) return *letter;
  std::vector<std::string> known;
  for (const char letter : stateLetters) {
    for (std::string& one : namesOf(letter)) known.push_back(std::move(one));
  }
  throw UsageError(fmt::format(
      "{} is not a property that determines a state{}\nProperties: P pressure, T temperature, "
      "H enthalpy, S entropy, U internal energy, R density, V specific volume, Q quality",
      inQuotes(name), didYouMean(name, known)));
}

double valueWithUnit(std::string_view text, UnitGroup group, const UserUnits& units) {
  double number = 0.0;
  const std::string_view digits = text.substr(text.starts_with('+') ? 1 : 0);
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  std::string_view unitName(end, static_cast<std::size_t>(digits.data() + digits.size() - end));
  if (error != std::errc() || unitName.empty()) return parseNumber(text);
  if (std::string_view("0123456789.,+-=").find(unitName.front()) != std::string_view::npos) {
    return parseNumber(text);
  }
  unitName.remove_prefix(std::min(unitName.size(), unitName.find_first_not_of(' ')));
  const ZvUomLiteKeyword& model = findUnit(group, toUtf8(row(group).internalUnit));
  try {
    return units.toUser(group, convert(findUnit(group, unitName), model, number));
  } catch (const UsageError& refusal) {
    const std::string_view reason = refusal.what();  // and, on a second line, all units
    throw UsageError(fmt::format("{} is not a number, and {}", inQuotes(text),
                                 reason.substr(0, reason.find('\n'))));
  }
}

}  // namespace calvex::cli
