/// \file
/// A client of the engine as the faces for people and programs have one: an object of a module of
/// its own, with the settings of today and with units in plain words.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "server/suggestions.h"
#include "server/zv_calvex.h"

namespace calvex {

/// A setting whose value these faces start with is not the automation server's.
struct StartingSetting {
  std::string_view member;
  int value;
};

/// People want the true phase beside the saturation line, and to hear of warnings.
inline constexpr StartingSetting startingSettings[] = {
    {"SatPolish", 2},
    {"TraceLevel", 1},
};

/// What the words of a call name: a unit group and units of it.
struct UnitChoice {
  std::optional<UnitGroup> group;
  std::vector<const ZvUomLiteKeyword*> units;  ///< in the order of the parameters
  std::string warning;                         ///< UTF-8
};

/// "ft³/lb: not the physical unit ..."; empty when there is nothing to know. UTF-8.
[[nodiscard]] std::string unitWarning(UnitGroup group, std::string_view unit);

/// Walks over the arguments that name a group and units of it: atGroup(text) answers the group,
/// atUnit(group, text) follows for each unit. A group may also be given by its number. A custom
/// unit has whatever name its maker gives it.
template <class ValueOrConst, class AtGroup, class AtUnit>
void forEachUnitName(const Member& member, std::span<ValueOrConst> arguments, AtGroup atGroup,
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

/// Replaces words for groups and units by the catalogue's own. A word that is not known stays, for
/// the engine to refuse.
[[nodiscard]] UnitChoice nameUnits(const Member& member, std::span<Value> arguments);

/// The first of a call's words that names no unit group, or no unit of it; nothing when all do.
[[nodiscard]] std::optional<Unknown> unknownName(const Member& member,
                                                 std::span<const Value> arguments);

/// One client object of a module of its own.
class Client {
 public:
  Client() { reset(); }

  /// Releases the object and makes a new one: the trace is empty and the settings are the starting
  /// ones again. The units stay.
  void reset();
  /// Takes over another client's units and the settings that results depend on.
  void takeSettings(const Client& other);
  /// Chooses the unit of a group. One that the catalogue lacks becomes a custom unit, for which the
  /// engine leaves the catalogue (AppLevel 3); the other groups keep their units.
  void chooseUnit(UnitGroup group, const ZvUomLiteKeyword& unit);
  /// Calls a method or gets a setting, also with units that the catalogue lacks. `choice` is what
  /// `nameUnits` answered for the arguments.
  ZvCalvex::Result invoke(const Member& member, std::span<Value> arguments,
                          const UnitChoice& choice);

  [[nodiscard]] ZvCalvex& object() { return *object_; }
  [[nodiscard]] ZvThermoInt& engine() { return module_.engine(); }
  [[nodiscard]] const ZvThermoInt& engine() const { return module_.engine(); }
  [[nodiscard]] const UserUnits& units() const { return module_.engine().units(); }

 private:
  Module module_;
  std::optional<ZvCalvex> object_;
  bool besideCatalogue_ = false;  ///< custom units are in use for `chooseUnit`

  void leaveCatalogue();
  void setCustomUnit(UnitGroup group, const ZvUomLiteKeyword& unit);
  void followUnit(UnitGroup group);
};

/// Tells whether a call left an entry in the trace, and which: a call can end without a word. Made
/// before the call. The newest entry of before is still there afterwards, so that the new one is
/// not in its place: a full trace keeps two or more and drops the oldest.
class EntryOfCall {
 public:
  explicit EntryOfCall(const Diagnostics& diagnostics)
      : diagnostics_(diagnostics), newestBefore_(diagnostics.root().lastChild()) {}

  /// Null when the call left none.
  [[nodiscard]] const ZvFunctionCall* entry() const noexcept {
    const ZvFunctionCall* newest = diagnostics_.root().lastChild();
    return newest == newestBefore_ ? nullptr : newest;
  }
  /// Whether the last error is this call's: it left an entry with an error.
  [[nodiscard]] bool hasReason() const noexcept {
    const ZvFunctionCall* left = entry();
    return diagnostics_.tracing() && left != nullptr && left->contains(ZvFunctionCall::Kind::error);
  }

 private:
  const Diagnostics& diagnostics_;
  const ZvFunctionCall* newestBefore_;
};

/// Why a member refused that leaves no word of it, as far as its arguments tell; mostly empty.
[[nodiscard]] std::string silentReason(const Member& member, bool isPut,
                                       std::span<const Value> arguments);

/// "GetCellRef failed: ...": of a call that left no reason. Without a full stop.
[[nodiscard]] std::string silentFailure(const Member& member, bool isPut,
                                        std::span<const Value> arguments, bool tracing);

}  // namespace calvex
