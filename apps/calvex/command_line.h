/// \file
/// The command line as a whole, and what its commands share. All texts are UTF-8.
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "failure.h"

namespace calvex::cli {

using Words = std::vector<std::string>;

/// Units (GROUP=UNIT) and settings (SETTING=VALUE) that calls start with.
struct StartingOptions {
  Words units;
  Words settings;
};

struct Console {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  bool outIsTerminal = false;
  bool inIsTerminal = false;
  bool errIsOut = false;  ///< both go to the same place
  bool colour = false;    ///< of messages on `err`
  std::string configFile = {};
  /// What every command that takes units starts with; none when empty. Throws Failure.
  std::function<StartingOptions()> startingOptions = {};
};

/// "calvex: ...", in colour where the console has it.
void complain(Console& console, std::string_view text);
/// "calvex: warning: ..."; nothing for an empty text.
void warn(Console& console, std::string_view text);

/// Runs `calvex words...`. No exception comes out.
ExitStatus runCommandLine(Words words, Console& console);

// The commands; `words` are those after the command's name. They throw Failure.

/// `words` begin with the member's name.
ExitStatus callCommand(const Words& words, Console& console);
ExitStatus membersCommand(const Words& words, Console& console);
ExitStatus unitsCommand(const Words& words, Console& console);
ExitStatus convertCommand(const Words& words, Console& console);
ExitStatus tableCommand(const Words& words, Console& console);
ExitStatus runCommand(const Words& words, Console& console);
ExitStatus configCommand(const Words& words, Console& console);
ExitStatus completionCommand(const Words& words, Console& console);

/// The commands' names, and what a user types.
struct CommandName {
  std::string_view name;
  std::string_view form;
  std::string_view summary;
};
[[nodiscard]] std::vector<CommandName> commandNames();

/// The words and options of a command.
class CommandOptions : public CLI::App {
 public:
  /// `usage` is what follows "calvex".
  CommandOptions(const std::string& name, const std::string& usage, const std::string& description);

  /// What a user types to have the command explained.
  [[nodiscard]] std::string helpCommand() const {
    return get_name().empty() ? "calvex --help" : "calvex help " + get_name();
  }

  /// Whether -u and -s begin with the console's starting options.
  bool takesStartingOptions = true;
};

/// False when help was asked for and printed. Throws UsageError.
bool parse(CommandOptions& app, const Words& words, Console& console);

/// For commands that take negative numbers: parses the options among the words and answers the rest
/// in order, with everything behind "--"; nothing when help was asked for and printed. Throws
/// UsageError, also for an option that does not exist.
std::optional<Words> parseAround(CommandOptions& app, const Words& words, Console& console);

}  // namespace calvex::cli
