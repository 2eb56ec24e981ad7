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
#include "server/suggestions.h"

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

std::string_view unitBehind(std::string_view text) noexcept {
  double number = 0.0;
  text.remove_prefix(text.starts_with('+') ? 1 : 0);
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc()) return {};
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  if (text.find_first_of("0123456789.,+-=") == 0) return {};
  text.remove_prefix(std::min(text.size(), text.find_first_not_of(' ')));
  return text;
}

double valueWithUnit(std::string_view text, UnitGroup group, const UserUnits& units) {
  const std::string_view unitName = unitBehind(text);
  if (unitName.empty()) return parseNumber(text);
  std::string_view digits = text.substr(0, text.size() - unitName.size());
  digits = digits.substr(0, digits.find_last_not_of(' ') + 1);
  const double number = parseNumber(digits);
  const ZvUomLiteKeyword& model = findUnit(group, row(group).internalUnit);
  try {
    return units.toUser(group, convert(findUnit(group, unitName), model, number));
  } catch (const UsageError& refusal) {
    const std::string_view reason = refusal.what();  // and, on a second line, all units
    throw UsageError(fmt::format("{} is not a number, and {}", inQuotes(text),
                                 reason.substr(0, reason.find('\n'))));
  }
}

}  // namespace calvex::cli
