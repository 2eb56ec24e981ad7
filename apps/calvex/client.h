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
  [[nodiscard]] ZvCalvex& object() { return *object_; }
  [[nodiscard]] ZvThermoInt& engine() { return module_.engine(); }
  [[nodiscard]] const UserUnits& units() { return module_.engine().units(); }

 private:
  Module module_;
  std::unique_ptr<ZvCalvex> object_;
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

/// The catalogue's group of a keyword; throws UsageError with the nearest keywords.
[[nodiscard]] UnitGroup findGroup(std::string_view keyword);
/// The unit of a group by its name in UTF-8; throws UsageError with the nearest names and the list.
[[nodiscard]] const ZvUomLiteKeyword& findUnit(UnitGroup group, std::string_view unit);

[[nodiscard]] const UnitGroupRow& row(UnitGroup group);
/// The unit that the client uses for a group, in UTF-8; empty for group -1.
[[nodiscard]] std::string currentUnit(const UserUnits& units, int group);

}  // namespace calvex::cli
