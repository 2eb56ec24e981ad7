/// \file
/// The command line as a whole, and what its commands share. All texts are UTF-8.
#pragma once

#include <iosfwd>
#include <string_view>

#include "command_options.h"
#include "failure.h"

namespace calvex::cli {

struct Console {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  bool outIsTerminal = false;
  bool errIsTerminal = false;
};

/// Runs `calvex words...`. No exception comes out.
ExitStatus runCommandLine(Words words, Console& console);

// The commands; `words` are those after the command's name. They throw Failure.

/// `words` begin with the member's name.
ExitStatus callCommand(const Words& words, Console& console);
ExitStatus membersCommand(const Words& words, Console& console);
ExitStatus unitsCommand(const Words& words, Console& console);
ExitStatus convertCommand(const Words& words, Console& console);
ExitStatus tableCommand(const Words& words, Console& console);
ExitStatus batchCommand(const Words& words, Console& console);
ExitStatus runCommand(const Words& words, Console& console);

}  // namespace calvex::cli
