/// \file
/// The script language of `calvex run`.
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "client.h"
#include "failure.h"

namespace calvex::cli {

struct ScriptLine {
  std::vector<std::string> words;
  std::string_view source;  ///< the words as they stand in the line, with their quotes
};

/// Words of a line: separated by blanks and tabs, or in double quotes with the escapes of JSON; `#`
/// where a word could begin starts a comment. Throws UsageError.
[[nodiscard]] ScriptLine splitLine(std::string_view line);

/// Runs one call a line with one client object; answers of `out`, reasons of failures to `err`,
/// both flushed whenever no more input is waiting. Any bytes may come in; a line that cannot be run
/// is reported and the next one runs. Throws Failure only when the options are wrong.
///
/// Answers usage when a line could not be run, else callFailed when a call failed.
ExitStatus runScript(std::istream& in, std::ostream& out, std::ostream& err,
                     const ClientOptions& options);

}  // namespace calvex::cli
