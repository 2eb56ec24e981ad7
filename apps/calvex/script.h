/// \file
/// The script language of `calvex run`.
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "client.h"
#include "command_line.h"

namespace calvex::cli {

struct ScriptLine {
  std::vector<std::string> words;
  std::string_view source;  ///< the words as they stand in the line, with their quotes
};

/// Words of a line: separated by blanks and tabs, or in double quotes with the escapes of JSON; `#`
/// where a word could begin starts a comment. Throws UsageError.
[[nodiscard]] ScriptLine splitLine(std::string_view line);

/// Runs lines of the language with one client object. Answers go to the console's `out`, reasons of
/// failures to `err`, in the order of the lines.
class Interpreter {
 public:
  /// `interactive`: the user has just typed the line and needs neither it nor its number. Throws
  /// Failure when the options are wrong. Both references must outlive the interpreter.
  Interpreter(Console& console, const ClientOptions& options, bool interactive = false);

  /// Runs a line, or reports why it cannot be run.
  void run(std::string_view line);
  void printTrace();

  [[nodiscard]] Client& client() noexcept { return client_; }
  /// Whether a line was quit or exit.
  [[nodiscard]] bool ended() const noexcept { return ended_; }
  /// usage when a line could not be run, else callFailed when a call failed.
  [[nodiscard]] ExitStatus status() const noexcept { return status_; }

 private:
  void run(const ScriptLine& line);
  void report(std::string_view text, std::string_view help);

  Console& console_;
  const ClientOptions& options_;
  bool interactive_;
  Client client_;
  int lineNumber_ = 0;
  bool ended_ = false;
  ExitStatus status_ = ExitStatus::ok;
};

/// Runs one call a line; flushes whenever no more input is waiting. Any bytes may come in; a line
/// that cannot be run is reported and the next one runs. Throws Failure only when the options are
/// wrong. Answers the interpreter's status.
ExitStatus runScript(std::istream& in, Console& console, const ClientOptions& options);

/// Reads lines from the terminal with prompt, history, completion and help until the user ends it.
ExitStatus runShell(Console& console, const ClientOptions& options);

}  // namespace calvex::cli
