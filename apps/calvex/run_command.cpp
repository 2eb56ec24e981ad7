// calvex run [FILE|-]
#include <fmt/format.h>

#include <istream>

#include "command_line.h"
#include "input_file.h"
#include "script.h"
#include "system_words.h"
#include "terminal.h"

namespace calvex::cli {

ExitStatus runCommand(const Words& words, Console& console) {
  CommandOptions app("run", "run [FILE|-] [OPTIONS]",
                     "Runs a script with one client object: one call a line.");
  app.footer(fmt::format(
      "A line is a member and its arguments, or a setting with or without a new value:\n"
      "  HPT 10 773.15\n"
      "  SetUserUnit P \"ft H2O\"      # texts with blanks stand in quotes\n"
      "  TraceLevel 2\n"
      "Three more words: 'trace' prints the tree of traced calls, 'reset' makes a new client\n"
      "object, 'quit' ends the script. A line that cannot be run is reported and the next one "
      "runs.\n"
      "On a terminal, without FILE, it is {} and help.\n"
      "Exit status: 2 when a line could not be run, else 1 when a call failed, else 0.",
      here::shell));
  std::string file = "-";
  ClientOptions options;
  app.add_option("FILE", file, "The script; - or nothing: standard input")->type_name("");
  options.addUnitsTo(app);
  options.addSettingsTo(app);
  options.addOutputTo(app);
  bool config = false;
  app.add_flag("--config", config, "Start with what 'calvex config' remembers");
  app.takesStartingOptions = false;
  if (!parse(app, words, console)) return ExitStatus::ok;
  if (config && console.startingOptions) {
    const StartingOptions start = console.startingOptions();
    options.units.insert(options.units.begin(), start.units.begin(), start.units.end());
    options.settings.insert(options.settings.begin(), start.settings.begin(), start.settings.end());
  }
  const bool shell = app.count("FILE") == 0 && console.inIsTerminal && console.outIsTerminal;
  if (shell && !options.json) return runShell(console, options);
  if (file == "-") {
    if (!console.inIsTerminal) passInputThrough();
    return runScript(console.in, console, options);
  }
  std::ifstream in = openedInput(file);
  return runScript(in, console, options);
}

}  // namespace calvex::cli
