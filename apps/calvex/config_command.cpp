// calvex config [NAME=VALUE...]
#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <ostream>

#include "client.h"
#include "config.h"
#include "diagnostics/formatting.h"
#include "encoding.h"
#include "server/suggestions.h"
#include "system_words.h"
#include "units/unit_words.h"

namespace calvex::cli {

namespace {

// Puts NAME=VALUE in place of what has the same name; NAME= alone forgets it.
void assign(Words& assignments, const std::string& name, const std::string& value) {
  std::erase_if(assignments, [&](const std::string& assignment) {
    return lowerCase(assignment).starts_with(lowerCase(name) + '=');
  });
  if (!value.empty()) assignments.push_back(name + '=' + value);
}

// The name under which a group is remembered, whatever word it was chosen by.
std::string nameOf(UnitGroup group) { return std::string(row(group).keywords.front()); }

void remember(StartingOptions& options, const std::string& text) {
  const std::size_t sign = text.find('=');
  if (sign == std::string::npos || sign == 0) {
    throw UsageError(fmt::format("{} should read NAME=VALUE, such as T=C", inQuotes(text)));
  }
  const std::string name = text.substr(0, sign), value = text.substr(sign + 1);
  if (const Member* member = findMember(name); member != nullptr && member->put != nullptr) {
    return assign(options.settings, std::string(member->name), value);
  }
  const UnitGroup group = findGroup(name);
  assign(options.units, nameOf(group),
         value.empty() ? std::string() : std::string(findUnit(group, value).name));
}

std::string description(const StartingOptions& options) {
  std::string text;
  for (const std::string& unit : options.units) {
    const UnitGroup group = findGroup(unit.substr(0, unit.find('=')));
    text += fmt::format("  {:<24}  {}\n", unit, row(group).displayName);
  }
  for (const std::string& setting : options.settings) {
    text += fmt::format("  {:<24}  setting\n", setting);
  }
  return text;
}

}  // namespace

ExitStatus configCommand(const Words& words, Console& console) {
  CommandOptions app("config", "config [NAME=VALUE...] [--clear]",
                     "Remembers units and settings in a file of yours, or shows what it holds.");
  app.footer(fmt::format(
      "Examples:\n"
      "  calvex config                     show\n"
      "  calvex config T=C P=bar           remember units\n"
      "  calvex config SatPolish=0         remember a setting\n"
      "  calvex config T=                  forget one unit (or setting)\n"
      "  calvex config --clear             forget all\n"
      "Every later call starts with them, and -u and -s go on from there; 'calvex run' and\n"
      "its scripts do so only with --config. --no-config leaves them out of one call.\n"
      "The file is calvex/config in {}; CALVEX_CONFIG names another\n"
      "one, or none when it is empty.",
      here::configFolder));
  Words assignments;
  ClientOptions chosen;
  bool clear = false;
  app.add_option("NAME=VALUE", assignments, "A quantity and its unit, or a setting and its value")
      ->type_name("");
  chosen.addUnitsTo(app);
  chosen.addSettingsTo(app);
  app.add_flag("--clear", clear, "Forget everything");
  app.takesStartingOptions = false;
  if (!parse(app, words, console)) return ExitStatus::ok;
  for (const std::string& assignment : assignments) {
    warn(console, unitWarning(assignment));
    warn(console, settingWarning(assignment));
  }
  assignments.insert(assignments.end(), chosen.units.begin(), chosen.units.end());
  assignments.insert(assignments.end(), chosen.settings.begin(), chosen.settings.end());
  const std::string& path = console.configFile;
  if (path.empty()) {
    throw UsageError(
        "there is no file to remember anything in: CALVEX_CONFIG is empty, or there is no home "
        "folder");
  }

  // A file that cannot be read is replaced when all of it is to go.
  StartingOptions options = clear ? StartingOptions{} : readConfig(path);
  for (const std::string& assignment : assignments) remember(options, assignment);
  if (clear || !assignments.empty()) {
    ClientOptions all;
    all.units = options.units;
    all.settings = options.settings;
    Client client;
    all.applyTo(client);  // refuses what no call could start with
    writeConfig(path, options);
  }
  const std::string text = description(options);
  if (text.empty()) {
    fmt::print(console.out, "nothing is remembered; 'calvex config T=C P=bar' would (in {})\n",
               path);
  } else {
    fmt::print(console.out, "{}\n{}", path, text);
  }
  return ExitStatus::ok;
}

}  // namespace calvex::cli
