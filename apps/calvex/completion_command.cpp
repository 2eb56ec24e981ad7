// calvex completion bash|zsh|fish
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <ostream>

#include "client.h"
#include "command_line.h"
#include "diagnostics/formatting.h"
#include "encoding.h"
#include "server/suggestions.h"

namespace calvex::cli {

namespace {

struct Lists {
  std::string commands, members, settings, groups;
  std::string properties = "P T H S U R V Q";  ///< that determine a state

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
  }

 private:
  static std::string joined(Words& words) {
    std::string text = fmt::format("{}", fmt::join(words, " "));
    words.clear();
    return text;
  }
};

// @C, @M, @S, @G and @P stand for the lists.
constexpr std::string_view bash =
    R"sh(# bash completion of calvex; in ~/.bashrc: eval "$(calvex completion bash)"
_calvex() {
  local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  local commands='@C' members='@M' words
  COMPREPLY=()
  case $previous in
    -u | --unit) words='@G' ;;
    -s | --set) words='@S' ;;
    help | members) words="$members $commands" ;;
    units | convert) words='@G' ;;
    state) words='@P' ;;
    table) words='saturation isobar isotherm' ;;
    completion) words='bash zsh fish' ;;
    run) mapfile -t COMPREPLY < <(compgen -f -- "$word"); return ;;
    *)
      words='--unit --set --json --trace --help --no-config'
      ((COMP_CWORD == 1)) && words="$commands $members --help --version"
      ;;
  esac
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
  if [[ $previous == -[us] || $previous == --unit || $previous == --set || $previous == state ]]; then
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
    completion) compadd -- bash zsh fish ;;
    run) _files ;;
    *)
      if (( CURRENT == 2 )); then
        compadd -- $commands $members --help --version
      else
        compadd -- --unit --set --json --trace --help --no-config
      fi
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
complete -c calvex -n '__fish_seen_subcommand_from run' -F
complete -c calvex -s u -l unit -x -a '(string split " " "@G")=' -d 'unit for a quantity'
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
