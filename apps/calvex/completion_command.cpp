// calvex completion bash|zsh|fish
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <sstream>

#include "client.h"
#include "command_line.h"
#include "diagnostics/formatting.h"
#include "encoding.h"
#include "server/suggestions.h"
#include "terminal.h"

namespace calvex::cli {

namespace {

// The long options that a command's own help lists.
Words optionsOf(std::string_view command) {
  std::istringstream in;
  std::ostringstream out, err;
  Console console{in, out, err};
  runCommandLine({std::string(command), "--help"}, console);
  Words options;
  std::istringstream lines(out.str());
  for (std::string line; std::getline(lines, line);) {
    const std::size_t begin = line.find("--");
    const std::string_view before = std::string_view(line).substr(0, begin);
    const bool listed =
        begin != std::string::npos && line.starts_with("  ") &&
        before.find_first_not_of(" -,abcdefghijklmnopqrstuvwxyz") == std::string_view::npos &&
        before.size() <= 5;
    if (listed) options.push_back(line.substr(begin, line.find_first_of(" ,", begin) - begin));
  }
  return options;
}

struct Lists {
  std::string commands, members, settings, groups;
  std::string properties = "P T H S U R V Q";  ///< that determine a state
  std::string options;      ///< a line of a shell's `case` for each command with options of its own
  std::string fishOptions;  ///< the same for fish

  Lists() {
    Words words;
    for (const CommandName& command : commandNames()) words.emplace_back(command.name);
    commands = joined(words);
    for (const Member& member : memberTable()) words.emplace_back(member.name);
    members = joined(words);
    for (const Member& member : memberTable()) {
      if (member.put != nullptr) words.emplace_back(member.name);
    }
    settings = joined(words);
    for (int group = 0; group < unitGroupCount; ++group) {
      words.emplace_back(row(UnitGroup(group)).keywords.front());
    }
    // Only words without blanks: a shell splits its lists there.
    std::erase_if(words,
                  [](const std::string& word) { return word.find(' ') != std::string::npos; });
    groups = joined(words);
    for (const CommandName& command : commandNames()) {
      const Words own = optionsOf(command.name);
      if (own.empty()) continue;
      options += fmt::format("        {}) choices='{} --no-config' ;;\n", command.name,
                             fmt::join(own, " "));
      for (const std::string& option : own) {
        fishOptions += fmt::format("complete -c calvex -n '__fish_seen_subcommand_from {}' -l {}\n",
                                   command.name, option.substr(2));
      }
    }
  }

 private:
  static std::string joined(Words& words) {
    std::string text = fmt::format("{}", fmt::join(words, " "));
    words.clear();
    return text;
  }
};

// @C, @M, @S, @G, @P, @O and @F stand for the lists.
constexpr std::string_view bash =
    R"sh(# bash completion of calvex; in ~/.bashrc: eval "$(calvex completion bash)"
_calvex() {
  local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  local commands='@C' members='@M' choices
  COMPREPLY=()
  case $previous in
    -u | --unit) choices='@G' ;;
    -s | --set) choices='@S' ;;
    help | members) choices="$members $commands" ;;
    units | convert) choices='@G' ;;
    state) choices='@P' ;;
    table) choices='saturation isobar isotherm' ;;
    plot) choices='Ts hs logph Pv' ;;
    config) choices='@G @S --clear' ;;
    completion) choices='bash zsh fish' ;;
    --separator) choices='comma semicolon tab' ;;
    --by) choices='T P' ;;
    run | batch | -o | --output)
      mapfile -t COMPREPLY < <(compgen -f -- "$word")
      compopt -o filenames 2>/dev/null
      return
      ;;
    *)
      case ${COMP_WORDS[1]} in
@O        *) choices='--unit --set --json --trace --help --no-config' ;;
      esac
      ((COMP_CWORD == 1)) && choices="$commands $members --help --version"
      ;;
  esac
  mapfile -t COMPREPLY < <(compgen -W "$choices" -- "$word")
  if [[ $previous == -[us] || $previous == --unit || $previous == --set || $previous == state ||
    $previous == config && $word != -* ]]; then
    COMPREPLY=("${COMPREPLY[@]/%/=}")
    compopt -o nospace 2>/dev/null
  fi
}
complete -F _calvex calvex
)sh";

constexpr std::string_view zsh = R"sh(#compdef calvex
# zsh completion of calvex; in ~/.zshrc, behind compinit: eval "$(calvex completion zsh)"
_calvex() {
  local -a commands members
  commands=(@C)
  members=(@M)
  case $words[CURRENT-1] in
    -u|--unit) compadd -S = -- @G ;;
    -s|--set) compadd -S = -- @S ;;
    help|members) compadd -- $members $commands ;;
    units|convert) compadd -- @G ;;
    state) compadd -S = -- @P ;;
    table) compadd -- saturation isobar isotherm ;;
    plot) compadd -- Ts hs logph Pv ;;
    config) compadd -S = -- @G @S; compadd -- --clear ;;
    completion) compadd -- bash zsh fish ;;
    --separator) compadd -- comma semicolon tab ;;
    --by) compadd -- T P ;;
    run|batch|-o|--output) _files ;;
    *)
      if (( CURRENT == 2 )); then
        compadd -- $commands $members --help --version
        return
      fi
      local choices='--unit --set --json --trace --help --no-config'
      case $words[2] in
@O      esac
      compadd -- ${=choices}
      ;;
  esac
}
compdef _calvex calvex
)sh";

constexpr std::string_view fish =
    R"sh(# fish completion of calvex; in config.fish: calvex completion fish | source
complete -c calvex -f
complete -c calvex -n '__fish_is_first_token' -a '@C @M'
complete -c calvex -n '__fish_seen_subcommand_from help members' -a '@C @M'
complete -c calvex -n '__fish_seen_subcommand_from units convert' -a '@G'
complete -c calvex -n '__fish_seen_subcommand_from state' -a '(string split " " "@P")='
complete -c calvex -n '__fish_seen_subcommand_from table' -a 'saturation isobar isotherm'
complete -c calvex -n '__fish_seen_subcommand_from completion' -a 'bash zsh fish'
complete -c calvex -n '__fish_seen_subcommand_from plot' -a 'Ts hs logph Pv'
complete -c calvex -n '__fish_seen_subcommand_from run batch' -F
complete -c calvex -n '__fish_seen_subcommand_from config' -a '(string split " " "@G @S")='
complete -c calvex -n '__fish_seen_subcommand_from batch plot' -s o -l output -r -F
complete -c calvex -n '__fish_seen_subcommand_from batch' -l separator -x -a 'comma semicolon tab'
@Fcomplete -c calvex -s u -l unit -x -a '(string split " " "@G")=' -d 'unit for a quantity'
complete -c calvex -s s -l set -x -a '(string split " " "@S")=' -d 'setting of the engine'
complete -c calvex -l json -d 'print JSON'
complete -c calvex -l trace -d 'print the tree of traced calls'
complete -c calvex -l no-config -d 'leave out what calvex config remembers'
complete -c calvex -s h -l help -d 'explain'
)sh";

std::string filled(std::string_view script) {
  const Lists lists;
  std::string text;
  for (std::size_t i = 0; i < script.size(); ++i) {
    const char letter = script[i] == '@' && i + 1 < script.size() ? script[i + 1] : '\0';
    const std::string* list = letter == 'C'   ? &lists.commands
                              : letter == 'M' ? &lists.members
                              : letter == 'S' ? &lists.settings
                              : letter == 'G' ? &lists.groups
                              : letter == 'P' ? &lists.properties
                              : letter == 'O' ? &lists.options
                              : letter == 'F' ? &lists.fishOptions
                                              : nullptr;
    if (list == nullptr) {
      text += script[i];
    } else {
      text += *list;
      ++i;
    }
  }
  return text;
}

}  // namespace

ExitStatus completionCommand(const Words& words, Console& console) {
  CommandOptions app("completion", "completion bash|zsh|fish",
                     "Prints a script that lets a shell complete names of members and options.");
  app.footer(
      "Examples:\n"
      "  eval \"$(calvex completion bash)\"       in ~/.bashrc\n"
      "  eval \"$(calvex completion zsh)\"        in ~/.zshrc\n"
      "  calvex completion fish | source        in config.fish");
  std::string shell;
  app.add_option("SHELL", shell, "bash, zsh or fish")->type_name("");
  if (!parse(app, words, console)) return ExitStatus::ok;
  passOutputThrough();  // on Windows, too, such a shell ends a line with LF
  if (shell == "bash") {
    console.out << filled(bash);
  } else if (shell == "zsh") {
    console.out << filled(zsh);
  } else if (shell == "fish") {
    console.out << filled(fish);
  } else if (shell.empty()) {
    throw UsageError("for which shell? 'calvex completion bash', zsh or fish");
  } else {
    throw UsageError(fmt::format("there is no completion for {}{}", inQuotes(shell),
                                 "; there is one for bash, zsh and fish"));
  }
  return ExitStatus::ok;
}

}  // namespace calvex::cli
