// calvex run, on a terminal.
#include <fmt/format.h>

#include <algorithm>
#include <ostream>

#include "call.h"
#include "config.h"
#include "diagnostics/formatting.h"
#include "line_editor.h"
#include "script.h"
#include "server/suggestions.h"
#include "system_words.h"
#include "units/unit_words.h"

namespace calvex::cli {

namespace {

constexpr std::string_view shellHelp =
    "A line is a member and its arguments, a setting with or without a new value, or a command:\n"
    "  HPT 10 773.15               enthalpy of steam\n"
    "  SetUserUnit P bar           pressures are in bar from now on\n"
    "  HPT 100 500 -u T=C          a unit for this line only\n"
    "  members enthalpy            members that have to do with it\n"
    "  units P                     units of pressure\n"
    "  help HPT                    what HPT takes and answers\n"
    "  trace, reset                the tree of traced calls; a new client object\n"
    "  quit                        or {}\n"
    "{}\n";

const CommandName* findCommand(std::string_view name) {
  static const std::vector<CommandName> commands = commandNames();
  const auto found = std::ranges::find(commands, name, &CommandName::name);
  return found == commands.end() ? nullptr : &*found;
}

// Units that differ from the engine's own, as -u takes them.
Words chosenUnits(const UserUnits& units) {
  Words choices;
  for (int group = 0; group < unitGroupCount; ++group) {
    const std::string unit = currentUnit(units, group);
    const UnitGroupRow& fixed = row(UnitGroup(group));
    if (unit != fixed.internalUnit) {
      choices.push_back(fmt::format("{}={}", fixed.keywords.front(), unit));
    }
  }
  return choices;
}

std::string quotedIfSpaced(const std::string& word) {
  return word.find(' ') == std::string::npos ? word : '"' + word + '"';
}

Words groupWords() {
  Words words;
  for (int group = 0; group < unitGroupCount; ++group) {
    for (const std::string_view keyword : row(UnitGroup(group)).keywords) {
      if (keyword != lowerCase(keyword)) words.push_back(quotedIfSpaced(std::string(keyword)));
    }
  }
  return words;
}

Words unitWords(UnitGroup group) {
  Words words;
  for (const ZvUomLiteKeyword& unit : row(group).units) {
    words.push_back(quotedIfSpaced(std::string(unit.name)));
  }
  for (const ZvUomLiteKeyword& unit : unitsBesideCatalogue(group)) {
    words.push_back(quotedIfSpaced(std::string(unit.name)));
  }
  return words;
}

Words memberWords() {
  Words words;
  for (const Member& member : memberTable()) words.emplace_back(member.name);
  return words;
}

/// Words that may stand behind those of a line.
Words wordsAfter(const Words& before) {
  if (before.empty()) {
    Words words = memberWords();
    for (const CommandName& command : commandNames()) words.emplace_back(command.name);
    words.insert(words.end(), {"quit", "reset", "trace"});
    return words;
  }
  const std::string first = lowerCase(before.front());
  if (first == "help" || first == "members") return memberWords();
  const bool takesGroup =
      first == "units" || first == "convert" || first == "setuserunit" || first == "getuserunit";
  if (takesGroup && before.size() == 1) return groupWords();
  const bool takesUnit = (first == "setuserunit" && before.size() == 2) ||
                         (first == "convert" && (before.size() == 3 || before.size() == 4));
  if (const auto group = takesUnit ? findGroupWord(before[1]) : std::nullopt) {
    return unitWords(*group);
  }
  return {};
}

Words completions(std::string_view before, std::string_view word) {
  Words found;
  try {
    const std::string beginning = lowerCase(word);
    for (const std::string& candidate : wordsAfter(splitLine(before).words)) {
      if (lowerCase(candidate).starts_with(beginning)) found.push_back(candidate);
    }
  } catch (const UsageError&) {  // within quotes
  }
  std::ranges::sort(found);
  found.erase(std::unique(found.begin(), found.end()), found.end());
  return found;
}

class Shell {
 public:
  Shell(Console& console, const ClientOptions& options)
      : console_(console), commands_(console), interpreter_(console, options, true) {
    commands_.inIsTerminal = false;
    commands_.startingOptions = [this] {
      return StartingOptions{chosenUnits(interpreter_.client().units()), {}};
    };
  }

  /// False when the user wants no more.
  bool run(const std::string& line) {
    Words words;
    try {
      words = splitLine(line).words;
    } catch (const UsageError&) {  // the interpreter says what is wrong
    }
    const std::string first = words.empty() ? std::string() : words.front();
    if (first == "quit" || first == "exit") return false;
    const bool hasOptions = std::ranges::any_of(words, [](const std::string& word) {
      return word.size() > 1 && word.front() == '-' &&
             std::string_view("0123456789.").find(word[1]) == std::string_view::npos;
    });
    if (words == Words{"help"} || words == Words{"?"}) {
      fmt::print(console_.out, shellHelp, here::endOfInput, here::keys);
    } else if (words == Words{"run"}) {
      complain(console_, "this is the shell; 'run FILE' runs a script");
    } else if (findCommand(first) != nullptr || (hasOptions && findMember(first) != nullptr)) {
      runCommandLine(words, commands_);
    } else {
      interpreter_.run(line);
    }
    console_.out.flush();
    return true;
  }

 private:
  Console& console_;
  Console commands_;  ///< for commands: they start with the units of this session
  Interpreter interpreter_;
};

}  // namespace

ExitStatus runShell(Console& console, const ClientOptions& options) {
  Shell shell(console, options);
  console.out << "Properties of water and steam. 'help' explains, Tab completes, 'quit' ends.\n";
  LineEditor editor(historyPath(), completions);
  while (const std::optional<std::string> line = editor.read("calvex> ")) {
    if (!shell.run(*line)) return ExitStatus::ok;
  }
  console.out << '\n';
  return ExitStatus::ok;
}

}  // namespace calvex::cli
