#include "client.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>

#include "call.h"
#include "encoding.h"
#include "failure.h"
#include "server/suggestions.h"
#include "units/unit_words.h"

namespace calvex::cli {

namespace {

// An option that takes one text and may be given again.
void addRepeatable(CommandOptions& app, const char* name, std::vector<std::string>& target,
                   const char* form, const char* meaning) {
  app.add_option(name, target, meaning)->allow_extra_args(false)->type_name(form);
}

struct Assignment {
  std::string name, value;
};

Assignment split(const std::string& text, std::string_view form) {
  const std::size_t sign = text.find('=');
  if (sign == std::string::npos || sign == 0) {
    throw UsageError(fmt::format("{} should read {}", inQuotes(text), form));
  }
  return {text.substr(0, sign), text.substr(sign + 1)};
}

void runOrFail(Client& client, Call call) {
  const Outcome outcome = perform(client, std::move(call));
  if (outcome.succeeded()) return;
  std::string text = failureText(outcome);
  for (const std::string& more : {outcome.cause, hint(outcome)}) {
    if (!more.empty()) text += '\n' + more;
  }
  throw Failure(ExitStatus::callFailed, text);
}

}  // namespace

void ClientOptions::addUnitsTo(CommandOptions& app) {
  addRepeatable(app, "-u,--unit", units, "GROUP=UNIT",
                "Unit for a quantity, such as T=C or Pressure=bara; may be repeated");
}

void ClientOptions::addSettingsTo(CommandOptions& app) {
  addRepeatable(app, "-s,--set", settings, "SETTING=VALUE",
                "Setting of the engine, such as SatPolish=0; may be repeated");
}

void ClientOptions::addOutputTo(CommandOptions& app) {
  app.add_flag("--trace", trace, "Print the tree of traced calls and their messages afterwards");
  app.add_flag("--json", json, "Print JSON, one object a call");
}

void ClientOptions::applyTo(Client& client) const {
  for (const std::string& setting : settings) {
    const Assignment assignment = split(setting, "SETTING=VALUE, such as SatPolish=0");
    const Member* member = findMember(assignment.name);
    if (member == nullptr || !member->isProperty) {
      std::vector<std::string> names;
      for (const Member& candidate : memberTable()) {
        if (candidate.put != nullptr) names.emplace_back(candidate.name);
      }
      throw UsageError(fmt::format("{} is not a setting{}\nSettings: {}", inQuotes(assignment.name),
                                   didYouMean(assignment.name, names), fmt::join(names, ", ")));
    }
    const std::string words[] = {assignment.value};
    runOrFail(client, prepare(*member, words, client.units()));
  }
  for (const std::string& choice : units) {
    const Assignment assignment = split(choice, "GROUP=UNIT, such as T=C");
    static_cast<void>(findUnit(findGroup(assignment.name), assignment.value));  // throws
    const std::string words[] = {assignment.name, assignment.value};
    runOrFail(client, prepare(*findMember("SetUserUnit"), words, client.units()));
  }
}

const UnitGroupRow& row(UnitGroup group) {
  return unitGroupTable()[static_cast<std::size_t>(group)];
}

UnitGroup findGroup(std::string_view keyword) {
  for (int group = 0; group < unitGroupCount; ++group) {
    if (std::ranges::count(row(UnitGroup(group)).keywords, keyword) != 0) return UnitGroup(group);
  }
  if (const std::optional<UnitGroup> group = findGroupWord(keyword)) return *group;
  const Unknown unknown = unknownGroup(keyword);
  throw UsageError(
      fmt::format("{}\n{} (calvex units explains them)", unknown.reason, unknown.known));
}

const ZvUomLiteKeyword& findUnit(UnitGroup group, std::string_view unit) {
  if (const ZvUomLiteKeyword* found = findUnitWord(group, unit).unit) return *found;
  const Unknown unknown = unknownUnit(group, unit);
  throw UsageError(fmt::format("{}\n{}", unknown.reason, unknown.known));
}

std::string settingWarning(const std::string& choice) {
  const std::size_t sign = choice.find('=');
  const Member* member = findMember(choice.substr(0, sign));
  if (sign == std::string::npos || member == nullptr || member->put == nullptr) return {};
  const std::string words[] = {choice.substr(sign + 1)};
  try {
    return prepare(*member, words, UserUnits()).choice.warning;
  } catch (const UsageError&) {
    return {};  // applyTo refuses it
  }
}

std::string unitWarning(const std::string& choice) {
  const std::size_t sign = choice.find('=');
  const std::optional<UnitGroup> group = findGroupWord(choice.substr(0, sign));
  if (sign == std::string::npos || !group) return {};
  return unitWarning(*group, std::string_view(choice).substr(sign + 1));
}

std::string currentUnit(const UserUnits& units, int group) {
  std::string name;
  short status = 0;
  return units.getUserUnit(group, name, status) ? name : std::string();
}

}  // namespace calvex::cli
