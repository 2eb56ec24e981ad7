/// \file
/// What every command has: the engine's client object, and the options that choose its units and
/// settings.
#pragma once

#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "command_options.h"
#include "server/zv_calvex.h"

namespace calvex::cli {

/// A setting whose value the command line starts with is not the automation server's.
struct StartingSetting {
  std::string_view member;
  int value;
};

/// People at a prompt want the true phase beside the saturation line, and to hear of warnings.
inline constexpr StartingSetting startingSettings[] = {
    {"SatPolish", 2},
    {"TraceLevel", 1},
};

/// One client object of a module of its own.
class Client {
 public:
  Client() { reset(); }

  /// Releases the object and makes a new one: the trace is empty and the settings are the starting
  /// ones again. The units stay.
  void reset();
  /// Chooses the unit of a group. One that the catalogue lacks becomes a custom unit, for which the
  /// engine leaves the catalogue (AppLevel 3); the other groups keep their units.
  void chooseUnit(UnitGroup group, const ZvUomLiteKeyword& unit);
  /// The same as `chooseUnit` for a unit that the engine has just taken from its catalogue.
  void followUnit(UnitGroup group);
  [[nodiscard]] ZvCalvex& object() { return *object_; }
  [[nodiscard]] ZvThermoInt& engine() { return module_.engine(); }
  [[nodiscard]] const UserUnits& units() { return module_.engine().units(); }

 private:
  Module module_;
  std::unique_ptr<ZvCalvex> object_;
  bool besideCatalogue_ = false;  ///< custom units are in use for `chooseUnit`

  void setCustomUnit(UnitGroup group, const ZvUomLiteKeyword& unit);
};

/// -u, -s, --trace and --json.
struct ClientOptions {
  std::vector<std::string> units;     ///< GROUP=UNIT
  std::vector<std::string> settings;  ///< SETTING=VALUE
  bool trace = false;
  bool json = false;

  void addUnitsTo(CommandOptions& app);
  void addSettingsTo(CommandOptions& app);
  void addOutputTo(CommandOptions& app);
  /// Settings first, then units. Throws Failure.
  void applyTo(Client& client) const;
};

/// The group that a word selects; throws UsageError with the nearest keywords.
[[nodiscard]] UnitGroup findGroup(std::string_view keyword);
/// The unit of a group by a word in UTF-8, of the catalogue or beside it; throws UsageError with
/// the nearest names and the list.
[[nodiscard]] const ZvUomLiteKeyword& findUnit(UnitGroup group, std::string_view unit);

/// "ft³/lb: not the physical unit ..."; empty when there is nothing to know.
[[nodiscard]] std::string unitWarning(UnitGroup group, std::string_view unit);
/// The same for GROUP=UNIT; empty also when that is no choice of a unit.
[[nodiscard]] std::string unitWarning(const std::string& choice);
/// The same of SETTING=VALUE.
[[nodiscard]] std::string settingWarning(const std::string& choice);

[[nodiscard]] const UnitGroupRow& row(UnitGroup group);
/// The unit that the client uses for a group, in UTF-8; empty for group -1.
[[nodiscard]] std::string currentUnit(const UserUnits& units, int group);

}  // namespace calvex::cli
