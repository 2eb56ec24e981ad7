#include "command_line.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <iostream>

#include "call.h"
#include "diagnostics/formatting.h"
#include "encoding.h"
#include "quantities.h"
#include "server/member_explanations.h"
#include "server/suggestions.h"
#include "terminal.h"

namespace calvex::cli {

namespace {

ExitStatus helpCommand(const Words& words, Console& console);
ExitStatus versionCommand(const Words& words, Console& console);

struct Command {
  std::string_view name;
  std::string_view form;
  std::string_view summary;
  ExitStatus (*run)(const Words& words, Console& console);
};

constexpr std::array<Command, 12> commands = {{
    {"state", "state P=10 T=773.15", "Print every property of a state", stateCommand},
    {"members", "members [WORDS]", "Find members by words, or explain one", membersCommand},
    {"units", "units [GROUP]", "List quantities, or the units of one", unitsCommand},
    {"convert", "convert GROUP VALUE FROM TO", "Convert a value between units", convertCommand},
    {"table", "table saturation|isobar|isotherm", "Print a table over a range", tableCommand},
    {"batch", "batch FILE|- COLUMN...", "Add computed columns to a table", batchCommand},
    {"plot", "plot Ts|hs|logph|Pv -o FILE", "Draw a diagram", plotCommand},
    {"run", "run [FILE|-]", "Run a script, one call a line", runCommand},
    {"config", "config [NAME=VALUE...]", "Remember units and settings", configCommand},
    {"completion", "completion bash|zsh|fish", "Print completions for a shell", completionCommand},
    {"help", "help [COMMAND|MEMBER]", "Explain a command or a member", helpCommand},
    {"version", "version", "Print the version", versionCommand},
}};

const Command* findCommand(std::string_view name) {
  const auto* const found = std::ranges::find(commands, name, &Command::name);
  return found == commands.end() ? nullptr : found;
}

std::string generalHelp() {
  std::string text =
      "Properties of water and steam, in any unit.\n"
      "\n"
      "usage: calvex MEMBER ARGUMENT... [-u GROUP=UNIT] [-s SETTING=VALUE] [--trace] [--json]\n"
      "       calvex COMMAND ...\n"
      "\n"
      "A member's name says what it answers and what it takes: HPT is the enthalpy H from the\n"
      "pressure P and the temperature T; TPS the temperature from pressure and entropy. Pressures\n"
      "are in MPa and temperatures in K until -u chooses other units; a unit may stand behind a\n"
      "number, as in HPT 100bar 500C.\n"
      "\n"
      "Examples:\n"
      "  calvex HPT 10 773.15                     enthalpy of steam at 10 MPa and 773.15 K\n"
      "  calvex state P=10 T=500 -u T=C           everything about that state\n"
      "  calvex TSatP 1 -u P=atm -u T=C           boiling point at one atmosphere, in Celsius\n"
      "  calvex convert P 100 psia bara           100 psia in bara\n"
      "\n"
      "Commands:\n";
  for (const Command& command : commands) {
    text += fmt::format("  {:<32}  {}\n", command.form, command.summary);
  }
  text +=
      "\n"
      "'calvex help COMMAND' or 'calvex COMMAND --help' tells more. --no-config leaves out what\n"
      "'calvex config' remembers.\n"
      "Exit status: 0 success, 1 a call failed (the reason is on standard error), 2 usage.\n";
  return text;
}

// Throws UsageError with the nearest names of members and commands.
void requireMember(const std::string& name) {
  if (findMember(name) != nullptr) return;
  Words names;
  for (const Command& command : commands) names.emplace_back(command.name);
  for (const Member& member : memberTable()) names.emplace_back(member.name);
  const std::string suggestion = didYouMean(name, names);
  std::string advice = "\n'calvex members' lists the members, 'calvex --help' the commands";
  if (!suggestion.empty()) advice = suggestion;
  if (const auto letter = findLetterNamed(name)) {
    advice = fmt::format("; 'calvex members {}' lists those that answer it",
                         letterExplanation(*letter).words);
  }
  throw UsageError(fmt::format("there is no member or command {}{}", inQuotes(name), advice));
}

ExitStatus helpCommand(const Words& words, Console& console) {
  if (words.empty() || words.front().starts_with('-')) {
    console.out << generalHelp();
    return ExitStatus::ok;
  }
  if (const Command* command = findCommand(words.front())) {
    if (command->run == helpCommand || command->run == versionCommand) {
      fmt::print(console.out, "{}\nusage: calvex {}\n", command->summary, command->form);
      return ExitStatus::ok;
    }
    return command->run({"--help"}, console);
  }
  Words about = words;
  requireMember(words.front());
  about.front() = memberNamed(words.front()).name;
  return membersCommand(about, console);
}

ExitStatus versionCommand(const Words& /*words*/, Console& console) {
  Client client;
  fmt::print(console.out, "calvex {}\n", client.engine().VersionStr());
  return ExitStatus::ok;
}

// Options may stand before the command or member; this finds the first word that is neither an
// option nor the value of one.
std::size_t firstWord(const Words& words) {
  std::size_t i = 0;
  for (; i < words.size() && words[i].starts_with('-'); ++i) {
    const bool takesValue =
        words[i] == "-u" || words[i] == "-s" || words[i] == "--unit" || words[i] == "--set";
    if (takesValue) ++i;
  }
  return std::min(i, words.size());
}

ExitStatus dispatch(Words words, Console& console) {
  const auto first = words.begin() + static_cast<std::ptrdiff_t>(firstWord(words));
  if (first == words.end()) {
    const auto asks = [&](const char* option) {
      return std::ranges::find(words, option) != words.end();
    };
    if (asks("-h") || asks("--help")) return helpCommand({}, console);
    if (asks("--version")) return versionCommand({}, console);
    if (words.size() == 1) {
      throw UsageError(fmt::format("there is no option {}\n'calvex --help' lists them",
                                   inQuotes(words.front())));
    }
    throw UsageError(
        "what is to be computed? For example: calvex HPT 10 773.15\n"
        "'calvex --help' explains members, commands and options");
  }
  std::rotate(words.begin(), first, first + 1);
  if (const Command* command = findCommand(words.front())) {
    words.erase(words.begin());
    return command->run(words, console);
  }
  requireMember(words.front());
  return callCommand(words, console);
}

}  // namespace

std::vector<CommandName> commandNames() {
  std::vector<CommandName> names;
  names.reserve(commands.size());
  for (const Command& command : commands) {
    names.push_back({command.name, command.form, command.summary});
  }
  return names;
}

void complain(Console& console, std::string_view text) {
  console.out.flush();  // what was said before stands before
  fmt::print(console.err, "{} {}\n", coloured("calvex:", Colour::red, console.colour), text);
}

void warn(Console& console, std::string_view text) {
  if (text.empty()) return;
  console.out.flush();
  fmt::print(console.err, "calvex: {} {}\n", coloured("warning:", Colour::yellow, console.colour),
             text);
}

ExitStatus runCommandLine(Words words, Console& console) {
  ExitStatus status = ExitStatus::ok;
  const auto mark = std::ranges::find(words, "--");
  if (const auto kept = std::remove(words.begin(), mark, "--no-config"); kept != mark) {
    words.erase(kept, mark);
    console.startingOptions = {};
  }
  try {
    status = dispatch(std::move(words), console);
  } catch (const Failure& failure) {
    complain(console, failure.what());
    status = failure.status();
  } catch (const std::exception& failure) {
    complain(console, failure.what());
    status = ExitStatus::callFailed;
  }
  if (!console.out.flush()) {
    fmt::print(console.err, "calvex: the output cannot be written\n");
    return ExitStatus::callFailed;
  }
  return status;
}

}  // namespace calvex::cli
