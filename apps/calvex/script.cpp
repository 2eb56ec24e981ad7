#include "script.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <istream>
#include <ostream>

#include "diagnostics/formatting.h"
#include "encoding.h"
#include "numbers.h"
#include "output.h"
#include "server/suggestions.h"

namespace calvex::cli {

namespace {

constexpr std::size_t longestLine = 65536;

constexpr std::string_view blanks = " \t";

bool isBlank(char c) { return blanks.find(c) != std::string_view::npos; }

// The character of \uXXXX, taken off the text behind the u.
char32_t takeHexadecimal(std::string_view& text) {
  char32_t character = 0;
  if (text.size() < 4) throw UsageError("\\u takes four hexadecimal digits");
  for (const char c : text.substr(0, 4)) {
    const std::size_t digit = std::string_view("0123456789abcdef").find(lowerCase({&c, 1}));
    if (digit == std::string_view::npos) throw UsageError("\\u takes four hexadecimal digits");
    character = character * 16 + static_cast<char32_t>(digit);
  }
  if (character >= 0xD800 && character <= 0xDFFF) {
    throw UsageError("\\u with half of a surrogate pair");
  }
  text.remove_prefix(4);
  return character;
}

// The text in quotes at the beginning of the line, which is taken off.
std::string takeQuoted(std::string_view& line) {
  constexpr std::string_view letters = "\"\\/bfnrt";
  constexpr std::string_view meanings = "\"\\/\b\f\n\r\t";
  std::string word;
  line.remove_prefix(1);
  while (!line.empty()) {
    const char c = line.front();
    line.remove_prefix(1);
    if (c == '"') {
      if (!line.empty() && !isBlank(line.front())) {
        throw UsageError("a blank is missing after a closing quote");
      }
      return word;
    }
    if (c != '\\') {
      word += c;
      continue;
    }
    if (line.empty()) break;
    const char letter = line.front();
    line.remove_prefix(1);
    const std::size_t known = letters.find(letter);
    if (letter == 'u') {
      appendUtf8(word, takeHexadecimal(line));
    } else if (known != std::string_view::npos) {
      word += meanings[known];
    } else {
      throw UsageError(fmt::format("unknown escape; known are \\{}",
                                   fmt::join(std::string_view("\"\\/bfnrt"), " \\")) +
                       " \\uXXXX");
    }
  }
  throw UsageError("a closing quote is missing");
}

std::string takeWord(std::string_view& line) {
  const std::size_t length = std::min(
      line.size(), static_cast<std::size_t>(std::ranges::find_if(line, isBlank) - line.begin()));
  const std::string_view word = line.substr(0, length);
  if (word.find('"') != std::string_view::npos) {
    throw UsageError(fmt::format("{}: a quote inside a word; quotes stand around the whole text",
                                 inQuotes(word)));
  }
  line.remove_prefix(length);
  return std::string(word);
}

// False at the end. Of a line that is too long only the beginning is kept, one byte more than
// allowed.
bool readLine(std::istream& in, std::string& line) {
  line.clear();
  std::streambuf& buffer = *in.rdbuf();
  constexpr int end = std::char_traits<char>::eof();
  int c = buffer.sbumpc();
  if (c == end) return false;
  for (; c != end && c != '\n'; c = buffer.sbumpc()) {
    if (line.size() <= longestLine) line += static_cast<char>(c);
  }
  if (line.ends_with('\r')) line.pop_back();
  return true;
}

// A line without the blanks around it, and without its comment where it can be told.
std::string_view wordsOf(std::string_view line) {
  try {
    return splitLine(line).source;
  } catch (const UsageError&) {
    const std::size_t first = std::min(line.size(), line.find_first_not_of(blanks));
    line.remove_prefix(first);
    return line.substr(0, line.find_last_not_of(blanks) + 1);
  }
}

// A script has members in it, no commands. The member Convert, whose name may be written in small
// letters, takes its number last, the command convert second.
void refuseCommand(const ScriptLine& line) {
  const std::vector<CommandName> names = commandNames();
  if (std::ranges::find(names, line.words.front(), &CommandName::name) == names.end()) return;
  const bool isCommand =
      findMember(line.words.front()) == nullptr ||
      (line.words.size() == 5 && readNumber(line.words[2]).fault == NumberFault::none);
  if (!isCommand) return;
  throw UsageError(
      fmt::format("{} is a command, and a script has only members, trace, reset and quit; on its "
                  "own: calvex {}",
                  line.words.front(), line.source));
}

// A line has no options; a text may look like one.
void refuseOptions(const ScriptLine& line) {
  const Member* const member = findMember(line.words.front());
  const auto isText = [](const Parameter* input) { return input->type == ValueType::text; };
  if (member == nullptr || std::ranges::any_of(inputs(*member), isText)) return;
  for (std::size_t i = 1; i < line.words.size(); ++i) {
    const std::string& word = line.words[i];
    const bool unit = word == "-u" || word.starts_with("--unit");
    if (!unit && word != "-s" && !word.starts_with("--set")) continue;
    throw UsageError(fmt::format(
        "{} is for the command line; in a script {}, for all lines behind it", inQuotes(word),
        unit ? "a line of its own chooses a unit, as in SetUserUnit T C"
             : "a line of its own changes a setting, as in SatPolish 0"));
  }
}

}  // namespace

ScriptLine splitLine(std::string_view line) {
  const auto skipBlanks = [&] {
    line.remove_prefix(std::min(line.size(), line.find_first_not_of(blanks)));
  };
  skipBlanks();
  ScriptLine split{{}, line};
  std::size_t length = 0;
  while (!line.empty() && line.front() != '#') {
    split.words.push_back(line.front() == '"' ? takeQuoted(line) : takeWord(line));
    length = split.source.size() - line.size();
    skipBlanks();
  }
  split.source = split.source.substr(0, length);
  return split;
}

Interpreter::Interpreter(Console& console, const ClientOptions& options, bool interactive)
    : console_(console), options_(options), interactive_(interactive) {
  options.applyTo(client_);
}

void Interpreter::run(std::string_view line) {
  ++lineNumber_;
  if (lineNumber_ == 1 && line.starts_with("\xEF\xBB\xBF")) line.remove_prefix(3);
  try {
    if (line.size() > longestLine) {
      throw UsageError(fmt::format("the line is longer than {} bytes", longestLine));
    }
    const ScriptLine split = splitLine(line);
    if (!split.words.empty()) run(split);
  } catch (const UsageError& error) {
    status_ = ExitStatus::usage;
    constexpr std::size_t shown = 200;
    const std::string_view source = wordsOf(line).substr(0, shown);
    if (options_.json) {
      fmt::print(console_.out, "{}\n", errorJson(error.what(), lineNumber_, source));
    } else if (!interactive_) {
      fmt::print(console_.out, "{}\n", source);
    }
    report(error.what(), {});
  }
}

void Interpreter::run(const ScriptLine& line) {
  std::ostream& out = console_.out;
  const std::string& name = line.words.front();
  const auto arguments = std::span(line.words).subspan(1);
  if (name == "trace" || name == "reset" || name == "quit" || name == "exit") {
    if (!arguments.empty()) throw UsageError(fmt::format("{} takes no arguments", name));
    if (name == "trace") {
      printTrace();
    } else if (name == "reset") {
      client_.reset();
      out << (options_.json  ? "{\"member\":\"reset\",\"hresult\":0}\n"
              : interactive_ ? "done\n"
                             : "reset\n  done\n");
    } else {
      ended_ = true;
    }
    return;
  }
  refuseCommand(line);
  refuseOptions(line);
  const Outcome outcome = perform(client_, prepare(memberNamed(name), arguments, client_.units()));
  if (options_.json) {
    fmt::print(out, "{}\n", outcomeJson(outcome, client_.units()));
  } else if (interactive_) {
    out << outcomeText(outcome, client_.units());
  } else {
    out << line.source << '\n' << indented(outcomeText(outcome, client_.units()));
  }
  const auto warnHere = [&](const std::string& warning) {
    if (warning.empty()) return;
    warn(console_, interactive_ ? warning : fmt::format("line {}: {}", lineNumber_, warning));
  };
  for (const std::string& warning : outcome.warnings) warnHere(warning);
  if (!outcome.succeeded()) {
    if (status_ == ExitStatus::ok) status_ = ExitStatus::callFailed;
    const std::string lines[] = {outcome.cause, hint(outcome)};
    report(failureText(outcome), fmt::format("{}", fmt::join(lines, lines[0].empty() ? "" : "\n")));
  } else {
    warnHere(outcome.call.choice.warning);
  }
}

// In its place among the answers, and with its number where the errors go; once where the two are
// one.
void Interpreter::report(std::string_view text, std::string_view help) {
  if (!options_.json && !interactive_ && !console_.errIsOut) {
    fmt::print(console_.out, "{}{}", indented(text), indented(help));
  }
  complain(console_,
           interactive_ ? std::string(text) : fmt::format("line {}: {}", lineNumber_, text));
  fmt::print(console_.err, "{}", indented(help));
}

void Interpreter::printTrace() {
  const ZvFunctionCall& root = client_.engine().diagnostics().root();
  console_.out << (options_.json  ? traceJson(root) + '\n'
                   : interactive_ ? traceText(root)
                                  : "trace\n" + indented(traceText(root)));
}

ExitStatus runScript(std::istream& in, Console& console, const ClientOptions& options) {
  Interpreter interpreter(console, options);
  std::string line;
  while (console.out && !interpreter.ended() && readLine(in, line)) {
    interpreter.run(line);
    if (in.rdbuf()->in_avail() <= 0) console.out.flush();
  }
  if (options.trace) interpreter.printTrace();
  return interpreter.status();
}

}  // namespace calvex::cli
