/// \file
/// The options that choose the units and the settings of the engine's client, which every command
/// has.
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "command_options.h"
#include "server/client.h"

namespace calvex::cli {

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

using calvex::unitWarning;
/// The same for GROUP=UNIT; empty also when that is no choice of a unit.
[[nodiscard]] std::string unitWarning(const std::string& choice);
/// The same of SETTING=VALUE.
[[nodiscard]] std::string settingWarning(const std::string& choice);

[[nodiscard]] const UnitGroupRow& row(UnitGroup group);
/// The unit that the client uses for a group, in UTF-8; empty for group -1.
[[nodiscard]] std::string currentUnit(const UserUnits& units, int group);

}  // namespace calvex::cli
