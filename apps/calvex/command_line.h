/// \file
/// The command line as a whole, and what its commands share. All texts are UTF-8.
#pragma once

#include <functional>
#include <iosfwd>
#include <string_view>

#include "command_options.h"
#include "failure.h"

namespace calvex::cli {

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
  bool errIsTerminal = false;
  bool errIsOut = false;     ///< both go to the same place
  std::size_t outWidth = 0;  ///< characters a line of the terminal that `out` is; 0 for none
  bool colour = false;       ///< of messages on `err`
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
ExitStatus stateCommand(const Words& words, Console& console);
ExitStatus tableCommand(const Words& words, Console& console);
ExitStatus batchCommand(const Words& words, Console& console);
ExitStatus plotCommand(const Words& words, Console& console);
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

}  // namespace calvex::cli
