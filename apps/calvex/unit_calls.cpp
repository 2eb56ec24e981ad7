#include "unit_calls.h"

#include <algorithm>

#include "call.h"
#include "encoding.h"
#include "failure.h"
#include "units/unit_words.h"

namespace calvex::cli {

namespace {

/// Walks over the arguments that name a group and units of it: atGroup(text) answers the group,
/// atUnit(group, text) follows for each unit. A group may also be given by its number. A custom
/// unit has whatever name its maker gives it.
template <class AtGroup, class AtUnit>
void forEachName(const Member& member, std::vector<Value>& arguments, AtGroup atGroup,
                 AtUnit atUnit) {
  if (member.name == "SetCustomUserUnitIndex") return;
  std::optional<UnitGroup> group;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const Parameter& parameter = member.parameters()[i];
    auto* const text = std::get_if<std::string>(&arguments[i]);
    const auto* const index = std::get_if<short>(&arguments[i]);
    if (text != nullptr && (parameter.name == "groupStr" || parameter.name == "strGroup")) {
      group = atGroup(*text);
    } else if (index != nullptr && parameter.name == "nGroupID" && isUnitGroup(*index)) {
      group = UnitGroup(*index);
    } else if (text != nullptr && group && parameter.isInput()) {
      atUnit(*group, *text);
    }
  }
}

}  // namespace

UnitChoice nameUnits(const Member& member, std::vector<Value>& arguments) {
  UnitChoice choice;
  const auto atGroup = [&](std::string& text) {
    choice.group = findGroupWord(toUtf8(text));
    if (choice.group && std::ranges::count(row(*choice.group).keywords, text) == 0) {
      text = row(*choice.group).keywords.front();
    }
    return choice.group;
  };
  forEachName(member, arguments, atGroup, [&](UnitGroup group, std::string& text) {
    choice.group = group;
    const std::string word = toUtf8(text);
    const ZvUomLiteKeyword* unit = findUnitWord(group, word).unit;
    choice.units.push_back(unit);
    if (unit == nullptr) return;
    text = unit->name;
    if (const std::string warning = unitWarning(group, word); !warning.empty()) {
      choice.warning += (choice.warning.empty() ? "" : "\n") + warning;
    }
  });
  return choice;
}

ZvCalvex::Result invoke(Client& client, Call& call) {
  const UnitChoice& choice = call.choice;
  const auto known = [](const ZvUomLiteKeyword* unit) { return unit != nullptr; };
  const bool beside = !choice.units.empty() && std::ranges::all_of(choice.units, known) &&
                      std::ranges::any_of(choice.units, [&](const ZvUomLiteKeyword* unit) {
                        return !isInCatalogue(*choice.group, *unit);
                      });
  if (beside && choice.units.size() == 1) {
    client.chooseUnit(*choice.group, *choice.units[0]);
    return {};
  }
  if (beside) {  // Convert: value and result come last
    const double value = std::get<double>(*(call.arguments.end() - 2));
    double result = 0.0;
    ZvThermoInt& engine = client.engine();
    const int success = engine.call(call.member->name, [&] {
      return engine.give(&result, convert(*choice.units[0], *choice.units[1], value));
    });
    if (success != 0) call.arguments.back() = result;
    return {HResult::ok, success};
  }
  const ZvCalvex::Result result = client.object().invoke(*call.member, call.arguments);
  if (result.success != 0 && choice.units.size() == 1) client.followUnit(*choice.group);
  return result;
}

std::string unitHint(const Call& call) {
  std::vector<Value> arguments = call.arguments;
  try {
    forEachName(
        *call.member, arguments, [](const std::string& text) { return findGroup(toUtf8(text)); },
        [](UnitGroup group, const std::string& text) {
          static_cast<void>(findUnit(group, toUtf8(text)));
        });
  } catch (const UsageError& error) {
    return error.what();
  }
  return {};
}

}  // namespace calvex::cli
