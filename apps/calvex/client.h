/// \file
/// What every command has: the engine's client object, and the options that choose its units and
/// settings.
#pragma once

#include <CLI/CLI.hpp>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "server/zv_calvex.h"

namespace calvex::cli {

/// One client object of a module of its own.
class Client {
 public:
  Client() { reset(); }

  /// Releases the object and makes a new one: settings and trace go back to their defaults, the
  /// units stay.
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

  void addUnitsTo(CLI::App& app);
  void addSettingsTo(CLI::App& app);
  void addOutputTo(CLI::App& app);
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

[[nodiscard]] const UnitGroupRow& row(UnitGroup group);
/// The unit that the client uses for a group, in UTF-8; empty for group -1.
[[nodiscard]] std::string currentUnit(const UserUnits& units, int group);

}  // namespace calvex::cli
