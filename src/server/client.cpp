#include "server/client.h"

#include <fmt/format.h>

#include <algorithm>
#include <new>

#include "units/unit_words.h"

namespace calvex {

std::string unitWarning(UnitGroup group, std::string_view unit) {
  const std::string_view notice = findUnitWord(group, unit).notice;
  return notice.empty() ? std::string() : std::string(unit).append(": ").append(notice);
}

UnitChoice nameUnits(const Member& member, std::span<Value> arguments) {
  UnitChoice choice;
  const auto atGroup = [&](std::string& text) {
    choice.group = findGroupWord(text);
    if (choice.group) {
      const auto keywords = unitGroupTable()[static_cast<std::size_t>(*choice.group)].keywords;
      if (std::ranges::count(keywords, text) == 0) text = keywords.front();
    }
    return choice.group;
  };
  forEachUnitName(member, arguments, atGroup, [&](UnitGroup group, std::string& text) {
    choice.group = group;
    const std::string word = text;
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

std::optional<Unknown> unknownName(const Member& member, std::span<const Value> arguments) {
  std::optional<Unknown> unknown;
  const auto atGroup = [&](const std::string& text) {
    const std::optional<UnitGroup> group = findGroupWord(text);
    if (!group && !unknown) unknown = unknownGroup(text);
    return group;
  };
  forEachUnitName(member, arguments, atGroup, [&](UnitGroup group, const std::string& text) {
    if (unknown || findUnitWord(group, text).unit != nullptr) return;
    unknown = unknownUnit(group, text);
  });
  return unknown;
}

void Client::reset() {
  besideCatalogue_ = besideCatalogue_ && units().mode() == UnitsMode::custom;
  object_.reset();
  object_.emplace(module_);
  for (const StartingSetting& setting : startingSettings) {
    Value value = setting.value;
    const Member& member = *findMember(setting.member);
    // Neither is refused but for memory.
    if (object_->put(member, {&value, 1}).success == 0) throw std::bad_alloc();
  }
  if (besideCatalogue_) engine().SetAppLevel(static_cast<short>(UnitsMode::custom));
}

void Client::takeSettings(const Client& other) {
  engine().TakeSettings(other.engine());
  besideCatalogue_ = other.besideCatalogue_;
}

// The engine refuses none of these units; it can only be out of memory.
void Client::setCustomUnit(UnitGroup group, const ZvUomLiteKeyword& unit) {
  if (engine().SetCustomUserUnitIndex(static_cast<short>(group), unit.name, unit.factor,
                                      unit.offset) == 0) {
    throw std::bad_alloc();
  }
}

void Client::leaveCatalogue() {
  const UnitsMode before = units().mode();
  engine().SetAppLevel(static_cast<short>(UnitsMode::custom));
  try {
    for (int group = 0; group < unitGroupCount; ++group) {
      setCustomUnit(UnitGroup(group), units().catalogue()[UnitGroup(group)].currentUnit());
    }
  } catch (...) {
    engine().SetAppLevel(static_cast<short>(before));
    throw;
  }
  besideCatalogue_ = true;
}

void Client::chooseUnit(UnitGroup group, const ZvUomLiteKeyword& unit) {
  if (units().mode() != UnitsMode::custom) leaveCatalogue();
  setCustomUnit(group, unit);
}

// For a unit that the engine has just taken from its catalogue.
void Client::followUnit(UnitGroup group) {
  if (besideCatalogue_ && units().mode() == UnitsMode::custom) {
    setCustomUnit(group, units().catalogue()[group].currentUnit());
  }
}

ZvCalvex::Result Client::invoke(const Member& member, std::span<Value> arguments,
                                const UnitChoice& choice) {
  const auto known = [](const ZvUomLiteKeyword* unit) { return unit != nullptr; };
  const bool beside = !choice.units.empty() && std::ranges::all_of(choice.units, known) &&
                      std::ranges::any_of(choice.units, [&](const ZvUomLiteKeyword* unit) {
                        return !isInCatalogue(*choice.group, *unit);
                      });
  if (beside && choice.units.size() == 1) {
    chooseUnit(*choice.group, *choice.units[0]);
    return {};
  }
  if (beside) {  // Convert: value and result come last
    const double value = std::get<double>(*(arguments.end() - 2));
    double result = 0.0;
    const int success = engine().call(member.name, [&] {
      const ZvUomLiteKeyword &from = *choice.units[0], &to = *choice.units[1];
      return engine().giveConverted(&result, convert(from, to, value), value, from.name, to.name);
    });
    if (success != 0) arguments.back() = result;
    return {HResult::ok, success};
  }
  const ZvCalvex::Result result = object_->invoke(member, arguments);
  if (result.success != 0 && choice.units.size() == 1) followUnit(*choice.group);
  return result;
}

std::string silentReason(const Member& member, bool isPut, std::span<const Value> arguments) {
  if (member.name == "SetCustomUserUnitIndex") {
    return fmt::format("custom units need AppLevel 3 and a group number 0 to {}",
                       unitGroupCount - 1);
  }
  if (member.name == "SetCellRef" || member.name == "GetCellRef") {
    return "the trace has no columns for book, sheet and cell; SetupExcelTracing makes them";
  }
  if (member.name == "SetCustomTraceText" || member.name == "GetCustomTraceText") {
    return "the trace has no column of that number, counted from 0; AddCustomTraceTitle adds one";
  }
  if (!isPut || member.name != "AppLevel") return {};
  const short level = std::get<short>(arguments.front());
  return level == 1 ? "there is no units server here"
                    : fmt::format(
                          "{} is not 0 or 2 (units of the catalogue), 1 (a units server) or "
                          "3 (units of one's own)",
                          level);
}

std::string silentFailure(const Member& member, bool isPut, std::span<const Value> arguments,
                          bool tracing) {
  const std::string reason = silentReason(member, isPut, arguments);
  if (!reason.empty()) return fmt::format("{} failed: {}", member.name, reason);
  return fmt::format("{} failed{}", member.name,
                     tracing ? " and gave no reason"
                             : "; tracing is off, so no reason was recorded (FunctionCallTracing "
                               "1 turns it on)");
}

}  // namespace calvex
