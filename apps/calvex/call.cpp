#include "call.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <limits>

#include "encoding.h"
#include "failure.h"
#include "numbers.h"
#include "server/member_explanations.h"
#include "suggestions.h"

namespace calvex::cli {

namespace {

Value parseValue(std::string_view word, ValueType type) {
  switch (type) {
    case ValueType::real:
      return parseNumber(word);
    case ValueType::shortInteger:
      return static_cast<short>(parseWholeNumber(word, std::numeric_limits<short>::min(),
                                                 std::numeric_limits<short>::max()));
    case ValueType::longInteger:
      return parseWholeNumber(word, std::numeric_limits<int>::min(),
                              std::numeric_limits<int>::max());
    case ValueType::text:
      if (std::optional<std::string> text = toWindows1252(word)) return *std::move(text);
      throw UsageError(fmt::format("{} has characters that the engine's texts (Windows-1252) lack",
                                   inQuotes(word)));
    case ValueType::array:
      break;
  }
  return {};
}

Value parseArgument(const Member& member, const Parameter& parameter, std::string_view word,
                    const UserUnits& units) {
  try {
    return parseValue(word, parameter.type);
  } catch (const UsageError& error) {
    if (member.isProperty) {
      throw UsageError(fmt::format("{}: {}", member.name, error.what()));
    }
    throw UsageError(fmt::format("{} of {}: {}; {} takes {}", parameter.name, member.name,
                                 error.what(), member.name, describeInputs(member, units)));
  }
}

const ZvFunctionCall* newestEntry(const Diagnostics& diagnostics) {
  const ZvFunctionCall* newest = diagnostics.root().firstChild();
  while (newest != nullptr && newest->nextSibling() != nullptr) newest = newest->nextSibling();
  return newest;
}

// The entry that a call left, or null: a call can end without a word. The newest entry before is
// still there then, so that the new one is not in its place: a full trace keeps two or more and
// drops the oldest.
const ZvFunctionCall* entryLeft(const Diagnostics& diagnostics,
                                const ZvFunctionCall* newestBefore) {
  const ZvFunctionCall* newest = newestEntry(diagnostics);
  return newest == newestBefore ? nullptr : newest;
}

void collectWarnings(const ZvFunctionCall& node, std::vector<std::string>& warnings) {
  for (const auto* child = node.firstChild(); child != nullptr; child = child->nextSibling()) {
    if (child->kind() == ZvFunctionCall::Kind::warning) {
      std::string text = toUtf8(child->text());
      if (std::ranges::find(warnings, text) == warnings.end()) warnings.push_back(std::move(text));
    }
    collectWarnings(*child, warnings);
  }
}

bool hasZeroPressure(const Call& call) {
  const std::span<const Parameter> parameters = call.member->parameters();
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    const auto* const value = std::get_if<double>(&call.arguments[i]);
    const bool isPressure = parameters[i].group == static_cast<short>(UnitGroup::pressure);
    if (parameters[i].isInput() && isPressure && value != nullptr && *value == 0.0) return true;
  }
  return false;
}

// The messages of the spreadsheet members' tokens.
bool isTokenError(std::string_view text) {
  return text == "Invalid Token!" || text == "No return tokens specified!";
}

}  // namespace

const Member& memberNamed(std::string_view name) {
  if (const Member* member = findMember(name)) return *member;
  std::vector<std::string> names;
  for (const Member& member : memberTable()) names.emplace_back(member.name);
  const std::string suggestion = didYouMean(name, names);
  throw UsageError(fmt::format("there is no member {}{}", inQuotes(name),
                               suggestion.empty() ? "; calvex members lists them" : suggestion));
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
  if (words.size() != wanted.size()) {
    const std::size_t count = wanted.size();
    throw UsageError(
        fmt::format("{} takes {}{}{}, but {} given", member.name,
                    count == 0   ? "no arguments"
                    : count == 1 ? member.isProperty ? "one new value" : "one argument"
                                 : fmt::format("{} arguments", count),
                    count == 0 || member.isProperty ? "" : ": ",
                    member.isProperty ? "" : describeInputs(member, units),
                    words.size() == 1 ? "1 was" : fmt::format("{} were", words.size())));
  }
  call.arguments.resize(member.parameters().size());
  for (std::size_t i = 0; i < words.size(); ++i) {
    const auto place = static_cast<std::size_t>(wanted[i] - member.parameters().data());
    call.arguments[place] = parseArgument(member, *wanted[i], words[i], units);
  }
  call.choice = nameUnits(member, call.arguments);
  return call;
}

Outcome perform(Client& client, Call call) {
  const Diagnostics& diagnostics = client.engine().diagnostics();
  const ZvFunctionCall* newestBefore = newestEntry(diagnostics);
  const ZvCalvex::Result result =
      call.isPut ? client.object().put(*call.member, call.arguments) : invoke(client, call);
  Outcome outcome{std::move(call), result, {}, false, diagnostics.tracing(), {}};
  const ZvFunctionCall* entry = entryLeft(diagnostics, newestBefore);
  if (!outcome.succeeded()) {
    outcome.lastError = toUtf8(client.engine().LastError());
    // The last error is this call's when the call left an entry with an error.
    outcome.reasonRecorded =
        outcome.tracing && entry != nullptr && entry->contains(ZvFunctionCall::Kind::error);
    if (outcome.reasonRecorded) outcome.cause = toUtf8(diagnostics.cause());
  }
  if (entry != nullptr) collectWarnings(*entry, outcome.warnings);
  return outcome;
}

std::string failureText(const Outcome& outcome) {
  const std::string_view name = outcome.call.member->name;
  if (!outcome.tracing) {
    return fmt::format(
        "{} failed; tracing is off, so no reason was recorded "
        "(FunctionCallTracing 1 turns it on)",
        name);
  }
  if (!outcome.reasonRecorded) return fmt::format("{} failed and gave no reason", name);
  return fmt::format("{} failed: {}", name, outcome.lastError);
}

std::string hint(const Outcome& outcome) {
  const Call& call = outcome.call;
  if (call.member->name == "SetCustomUserUnitIndex") {
    return fmt::format("custom units need AppLevel 3 and a group number 0 to {}",
                       unitGroupCount - 1);
  }
  if (call.isPut && call.member->name == "AppLevel") {
    return std::get<short>(call.arguments.front()) == 1 ? "there is no units server"
                                                        : "AppLevel takes 0 to 3";
  }
  if (outcome.reasonRecorded && outcome.lastError == messageText(Message::solutionError) &&
      hasZeroPressure(call)) {
    return "the pressure must be above zero";
  }
  if (outcome.reasonRecorded && isTokenError(outcome.lastError)) {
    std::vector<std::string_view> names;
    for (const spreadsheet::Token& token : tokensOf(*call.member)) names.push_back(token.text);
    if (!names.empty()) return fmt::format("Tokens: {}", fmt::join(names, ", "));
  }
  return unitHint(call);
}

}  // namespace calvex::cli
