/// \file
/// The words and options of a command. The library that reads them is known to one source alone:
/// what it is made of takes longer to compile than everything else here.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace calvex::cli {

struct Console;
using Words = std::vector<std::string>;

/// How an option is given. Each answers the option, for the next.
class Option {
 public:
  explicit Option(CLI::Option& option) : option_(&option) {}

  Option& required();
  /// What stands for its value in the help.
  Option& type_name(const std::string& name);
  /// Whether one mention takes several words.
  Option& allow_extra_args(bool allowed);
  Option* operator->() { return this; }

 private:
  CLI::Option* option_;
};

class CommandOptions {
 public:
  /// `usage` is what follows "calvex".
  CommandOptions(const std::string& name, const std::string& usage, const std::string& description);
  CommandOptions(const CommandOptions&) = delete;
  CommandOptions& operator=(const CommandOptions&) = delete;
  ~CommandOptions();

  /// What the help ends with.
  void footer(const std::string& text);
  /// Without --help.
  void set_help_flag();
  /// The values must outlive the parsing.
  Option add_flag(const std::string& names, bool& value, const std::string& meaning);
  Option add_option(const std::string& names, std::string& value, const std::string& meaning);
  Option add_option(const std::string& names, Words& values, const std::string& meaning);
  /// How often an option was given.
  [[nodiscard]] std::size_t count(const std::string& name) const;

  /// What a user types to have the command explained.
  [[nodiscard]] std::string helpCommand() const;

  /// Whether -u and -s begin with the console's starting options.
  bool takesStartingOptions = true;

 private:
  friend bool parse(CommandOptions& options, const Words& words, Console& console);
  friend std::optional<Words> parseAround(CommandOptions& options, const Words& words,
                                          Console& console);
  std::unique_ptr<CLI::App> app_;
};

/// False when help was asked for and printed. Throws UsageError.
bool parse(CommandOptions& options, const Words& words, Console& console);

/// For commands that take negative numbers: parses the options among the words and answers the rest
/// in order, with everything behind "--"; nothing when help was asked for and printed. Throws
/// UsageError, also for an option that does not exist.
std::optional<Words> parseAround(CommandOptions& options, const Words& words, Console& console);

}  // namespace calvex::cli
