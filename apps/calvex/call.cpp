#include "call.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "encoding.h"
#include "failure.h"
#include "numbers.h"
#include "quantities.h"
#include "server/member_explanations.h"
#include "server/suggestions.h"
#include "units/unit_words.h"

namespace calvex::cli {

namespace {

Value parseValue(std::string_view word, const Parameter& parameter, const UserUnits& units) {
  switch (parameter.type) {
    case ValueType::real:
      return parameter.hasUnit() ? valueWithUnit(word, UnitGroup(parameter.group), units)
                                 : parseNumber(word);
    case ValueType::shortInteger:
      return static_cast<short>(parseWholeNumber(word, std::numeric_limits<short>::min(),
                                                 std::numeric_limits<short>::max()));
    case ValueType::longInteger:
      return parseWholeNumber(word, std::numeric_limits<int>::min(),
                              std::numeric_limits<int>::max());
    case ValueType::text:
      if (isUtf8(word)) return std::string(word);
      throw UsageError(fmt::format("{} is not UTF-8", inQuotes(word)));
    case ValueType::array:
      break;
  }
  return {};
}

Value parseArgument(const Member& member, const Parameter& parameter, std::string_view word,
                    const UserUnits& units) {
  try {
    return parseValue(word, parameter, units);
  } catch (const UsageError& error) {
    const auto limits = parameterExplanation(member, parameter).limits;
    if (member.isProperty && limits) {
      throw UsageError(fmt::format("{} takes {}, not {}", member.name,
                                   limitsText(*limits, parameter, units), inQuotes(word)));
    }
    if (member.isProperty) throw UsageError(fmt::format("{}: {}", member.name, error.what()));
    throw UsageError(fmt::format("{} of {}: {}; {} takes {}", parameter.name, member.name,
                                 error.what(), member.name, describeInputs(member, units)));
  }
}

// The name in NAME=VALUE, where a parameter may be called so.
std::string_view assignedName(std::string_view word) {
  const std::size_t sign = word.find('=');
  return sign == std::string_view::npos ? std::string_view() : word.substr(0, sign);
}

// The words for the wanted parameters in their order. NAME=VALUE is understood where all words are
// such: P=10 T=500, temperature=500 pressure=10.
std::vector<std::string> inOrder(const Member& member, const std::vector<const Parameter*>& wanted,
                                 std::span<const std::string> words, const UserUnits& units) {
  const auto named = [](const Parameter& parameter, std::string_view name) {
    return lowerCase(parameter.name) == lowerCase(name) ||
           (parameter.name.size() == 1 && findLetterNamed(name) == parameter.name.front());
  };
  std::vector<std::string> ordered(words.begin(), words.end());
  std::vector<bool> taken(wanted.size());
  std::size_t count = 0;
  for (const std::string& word : words) {
    const std::string_view name = assignedName(word);
    if (name.empty()) continue;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
      if (taken[i] || !named(*wanted[i], name)) continue;
      taken[i] = true;
      ordered[i] = word.substr(name.size() + 1);
      ++count;
      break;
    }
  }
  if (count == 0) return {words.begin(), words.end()};
  if (count == words.size() && count == wanted.size()) return ordered;
  throw UsageError(fmt::format("{} takes {}; name each of them once, as in {}=..., or none",
                               member.name, describeInputs(member, units), wanted.front()->name));
}

// Of too many words some may be units: a unit belongs to its number.
std::string unitAdvice(const std::vector<const Parameter*>& wanted,
                       std::span<const std::string> words) {
  for (std::size_t i = 1; i < words.size(); ++i) {
    for (const Parameter* parameter : wanted) {
      if (!parameter->hasUnit()) continue;
      if (findUnitWord(UnitGroup(parameter->group), words[i]).unit == nullptr) continue;
      return fmt::format("\na unit stands right behind its number: {}{}", words[i - 1], words[i]);
    }
  }
  return {};
}

// The range that a warning of the strictly valid one leaves unsaid; `node` is the call warned of.
std::string strictRange(const ZvFunctionCall& node, std::string_view warning,
                        const UserUnits& units) {
  if (!warning.ends_with(messageText(Message::outOfStrictRange).substr(2))) return {};
  const auto shown = [&](UnitGroup group, double value) {
    return fmt::format("{} {}", readableText(units.toUser(group, value), 6),
                       currentUnit(units, static_cast<int>(group)));
  };
  const auto T = [&](double value) { return shown(UnitGroup::temperature, value); };
  const auto P = [&](double value) { return shown(UnitGroup::pressure, value); };
  const RangeLimits limits;
  if (warning.find("emperature") != std::string_view::npos) {
    return fmt::format(" Strictly valid: {} to {}.", T(limits.TStrictMin), T(limits.TStrictMax));
  }
  if (node.text() == "MPT") return fmt::format(" Strictly valid: up to {}.", P(100.0));
  return fmt::format(" Strictly valid: up to {} at {}, rising to {} from {} on.", P(500.0),
                     T(limits.TStrictMin), P(1500.0), T(423.15));
}

// What the user of a setting's new value should know.
std::string settingNotice(const Member& member, const Value& value) {
  if (member.name != "SatPolish") return {};
  const int polish = std::get<int>(value);
  if (polish >= 0 && polish <= 2) return {};
  return fmt::format("SatPolish {} does what 1 does; 0, 1 and 2 are the values that differ",
                     polish);
}

// For a call that names a unit group and units of it: what is wrong with the names, with the
// nearest ones; empty when nothing is.
std::string unitHint(const Call& call) {
  const std::optional<Unknown> unknown = unknownName(*call.member, call.arguments);
  return unknown ? fmt::format("{}\n{}", unknown->reason, unknown->known) : std::string();
}

// The messages of the spreadsheet members' tokens.
bool isTokenError(std::string_view text) {
  return text == "Invalid Token!" || text == "No return tokens specified!";
}

}  // namespace

std::string limitsText(const Limits& limits, const Parameter& parameter, const UserUnits& units) {
  const auto shown = [&](double value) {
    constexpr int digits = 7;
    return readableText(
        parameter.hasUnit() ? units.toUser(UnitGroup(parameter.group), value) : value, digits);
  };
  std::string low = fmt::format("{} {}", limits.aboveLow ? "above" : "at least", shown(limits.low));
  if (std::isinf(limits.high)) return low;
  if (limits.belowHigh) return fmt::format("{}, below {}", low, shown(limits.high));
  return fmt::format("{}{} to {}", limits.aboveLow ? "above " : "", shown(limits.low),
                     shown(limits.high));
}

const Member& memberNamed(std::string_view name) {
  if (const Member* member = findMember(name)) return *member;
  const std::string suggestion = didYouMeanMember(name);
  throw UsageError(fmt::format("there is no member {}{}", inQuotes(name),
                               suggestion.empty() ? "; 'calvex members' lists them" : suggestion));
}

std::vector<const Parameter*> inputs(const Member& member) {
  std::vector<const Parameter*> found;
  for (const Parameter& parameter : member.parameters()) {
    if (parameter.isInput() && parameter.type != ValueType::array) found.push_back(&parameter);
  }
  return found;
}

std::vector<const Parameter*> outputs(const Member& member) {
  std::vector<const Parameter*> found;
  for (const Parameter& parameter : member.parameters()) {
    if (parameter.isOutput()) found.push_back(&parameter);
  }
  return found;
}

std::string_view outputName(const Member& member, const Parameter& parameter) {
  return member.isProperty || member.style == ReturnStyle::value ? "value" : parameter.name;
}

std::string_view meaning(const Parameter& parameter) {
  if (parameter.hasUnit()) return row(UnitGroup(parameter.group)).displayName;
  switch (parameter.type) {
    case ValueType::real:
      return "number";
    case ValueType::shortInteger:
    case ValueType::longInteger:
      return "whole number";
    case ValueType::text:
      return "text";
    case ValueType::array:
      return "array";
  }
  return {};
}

std::string describeInputs(const Member& member, const UserUnits& units) {
  std::vector<std::string> descriptions;
  for (const Parameter* parameter : inputs(member)) {
    const std::string unit = currentUnit(units, parameter->group);
    descriptions.push_back(fmt::format("{} ({}{}{})", parameter->name, meaning(*parameter),
                                       unit.empty() ? "" : ", ", unit));
  }
  return fmt::format("{}", fmt::join(descriptions, ", "));
}

Call prepare(const Member& member, std::span<const std::string> words, const UserUnits& units) {
  Call call{&member, member.isProperty && !words.empty(), {}, {}};
  if (call.isPut && member.put == nullptr) {
    throw UsageError(fmt::format("{} can only be read, so it takes no argument", member.name));
  }
  std::vector<const Parameter*> wanted = inputs(member);
  if (call.isPut) wanted = {&member.parameters().front()};
  const std::vector<std::string> ordered =
      member.isProperty ? std::vector<std::string>(words.begin(), words.end())
                        : inOrder(member, wanted, words, units);
  if (words.size() != wanted.size()) {
    const std::size_t count = wanted.size();
    throw UsageError(fmt::format("{} takes {}{}{}, but {} given{}", member.name,
                                 count == 0   ? "no arguments"
                                 : count == 1 ? member.isProperty ? "one new value" : "one argument"
                                              : fmt::format("{} arguments", count),
                                 count == 0 || member.isProperty ? "" : ": ",
                                 member.isProperty ? "" : describeInputs(member, units),
                                 words.size() == 1 ? "1 was" : fmt::format("{} were", words.size()),
                                 words.size() > count ? unitAdvice(wanted, words) : ""));
  }
  call.arguments.resize(member.parameters().size());
  for (std::size_t i = 0; i < ordered.size(); ++i) {
    const auto place = static_cast<std::size_t>(wanted[i] - member.parameters().data());
    call.arguments[place] = parseArgument(member, *wanted[i], ordered[i], units);
  }
  call.choice = nameUnits(member, call.arguments);
  if (member.name.starts_with("Show") && member.name.ends_with("Dlg")) {
    call.choice.warning =
        fmt::format("{} shows a dialog only in the automation server on Windows", member.name);
  }
  if (call.isPut) call.choice.warning = settingNotice(member, call.arguments.front());
  for (std::size_t i = 0; i < ordered.size(); ++i) {
    if (wanted[i]->type != ValueType::real || !wanted[i]->hasUnit()) continue;
    const std::string warning = unitWarning(UnitGroup(wanted[i]->group), unitBehind(ordered[i]));
    if (!warning.empty()) call.choice.warning = warning;
  }
  return call;
}

Outcome perform(Client& client, Call call) {
  const Diagnostics& diagnostics = client.engine().diagnostics();
  const EntryOfCall left(diagnostics);
  const ZvCalvex::Result result = call.isPut
                                      ? client.object().put(*call.member, call.arguments)
                                      : client.invoke(*call.member, call.arguments, call.choice);
  Outcome outcome{std::move(call), result, {}, false, diagnostics.tracing(), {}};
  if (!outcome.succeeded()) {
    outcome.lastError = client.engine().LastError();
    outcome.reasonRecorded = left.hasReason();
    if (outcome.reasonRecorded) outcome.cause = diagnostics.cause();
  }
  if (const ZvFunctionCall* entry = left.entry()) {
    outcome.warnings = warningsOf(*entry, client.units());
  }
  return outcome;
}

std::vector<std::string> warningsOf(const ZvFunctionCall& call, const UserUnits& units) {
  std::vector<std::string> warnings;
  const auto collect = [&](std::string text) {
    if (std::ranges::find(warnings, text) == warnings.end()) warnings.push_back(std::move(text));
  };
  for (const auto* child = call.firstChild(); child != nullptr; child = child->nextSibling()) {
    if (child->kind() == ZvFunctionCall::Kind::warning) {
      const std::string text(child->text());
      collect(text + strictRange(call, text, units));
    }
    for (std::string& text : warningsOf(*child, units)) collect(std::move(text));
  }
  return warnings;
}

std::string failureText(const Outcome& outcome) {
  const Call& call = outcome.call;
  if (!outcome.reasonRecorded) {
    return silentFailure(*call.member, call.isPut, call.arguments, outcome.tracing);
  }
  return fmt::format("{} failed: {}", call.member->name, outcome.lastError);
}

std::string hint(const Outcome& outcome) {
  const Call& call = outcome.call;
  if (!outcome.reasonRecorded && !silentReason(*call.member, call.isPut, call.arguments).empty()) {
    return {};
  }
  if (outcome.reasonRecorded && isTokenError(outcome.lastError)) {
    std::vector<std::string_view> names;
    for (const spreadsheet::Token& token : tokensOf(*call.member)) names.push_back(token.text);
    if (!names.empty()) return fmt::format("Tokens: {}", fmt::join(names, ", "));
  }
  return unitHint(call);
}

}  // namespace calvex::cli
