// calvex batch FILE|- COLUMN...
#include <fmt/format.h>
#include <fmt/ostream.h>

#include <cstdint>
#include <filesystem>
#include <istream>
#include <span>

#include "batch.h"
#include "command_line.h"
#include "encoding.h"
#include "environment.h"
#include "input_file.h"
#include "numbers.h"
#include "output_file.h"
#include "progress.h"
#include "terminal.h"

namespace calvex::cli {

namespace {

namespace fs = std::filesystem;

char separatorNamed(const std::string& name) {
  constexpr std::pair<std::string_view, char> names[] = {
      {"comma", ','}, {",", ','}, {"semicolon", ';'}, {";", ';'}, {"tab", '\t'}, {"\t", '\t'}};
  for (const auto& [known, separator] : names) {
    if (name == known) return separator;
  }
  throw UsageError(
      fmt::format("--separator takes comma, semicolon or tab, not {}", inQuotes(name)));
}

BatchOutcome run(const std::string& file, const std::string& output, const BatchRequest& request,
                 Console& console) {
  const bool standardInput = file == "-";
  const fs::path input = standardInput ? "/dev/stdin" : pathNamed(file);
  std::error_code ignored;
  if (!output.empty() && fs::equivalent(input, pathNamed(output), ignored)) {
    throw UsageError(
        fmt::format("{} is the input; give the output another name", inQuotes(output)));
  }
  std::ifstream opening = standardInput ? std::ifstream() : openedInput(file);
  std::istream& in = standardInput ? console.in : opening;
  const auto size = standardInput ? 0 : fs::file_size(input, ignored);
  Progress bar(console.err, ignored ? 0 : static_cast<std::int64_t>(size), console.errIsTerminal);
  const auto progress = [&](std::size_t bytes) { bar.at(static_cast<std::int64_t>(bytes)); };
  passInputThrough();
  passOutputThrough();
  if (output.empty()) return runBatch(in, console.out, request, progress);
  OutputFile out(pathNamed(output));
  BatchOutcome outcome = runBatch(in, out.stream(), request, progress);
  out.finish();
  return outcome;
}

}  // namespace

ExitStatus batchCommand(const Words& words, Console& console) {
  CommandOptions app("batch", "batch FILE|- COLUMN=MEMBER(INPUT,...)... [OPTIONS]",
                     "Adds computed columns to a table: CSV or TSV with a line of names.");
  app.footer(
      "Examples:\n"
      "  calvex batch plant.csv \"h=HPT(P,T)\" \"s=SPT(P,T)\" \"x=QPH(P,h)\" -u T=C -o out.csv\n"
      "  calvex batch plant.csv \"h=HPT(\\\"Pressure, bar\\\",Steam temp)\" -u P=bara -u T=C\n"
      "  calvex batch plant.csv \"w=TurbineA(h,P,0.01,0.85,flow).Power\" -o power.csv\n"
      "  calvex batch - \"Tsat=TSatP(P)\" < history.csv > out.csv\n"
      "An input is a column of the table, one added before it, or a number. Names with blanks may\n"
      "stand as they are; those with , ( ) = and numbers stand in double quotes. A member with\n"
      "several results is followed by the name of one; 'calvex members TurbineA' lists them.\n"
      "Every cell of the table stays as it is. Numbers are added with all their digits; where\n"
      "there is none the cell is empty and the last column, 'why', has the reason. Of rows that "
      "are\n"
      "answered with a warning standard error tells how many there are.\n"
      "The output file is complete or not there.\n"
      "Exit status: 2 when something could not be read, else 1 when a row has a reason, else 0.");
  BatchRequest request;
  std::string output, separator, threads = "0";
  app.add_option("-o,--output", output, "Output file (standard output)")->type_name("FILE");
  request.client.addUnitsTo(app);
  request.client.addSettingsTo(app);
  app.add_option("--separator", separator, "Between cells (what the first line has)")
      ->type_name("comma|semicolon|tab");
  app.add_flag("--decimal-comma", request.decimalComma, "Numbers in cells are such as 3,5");
  app.add_option("--why", request.why, "Name of the column for reasons (why)")->type_name("NAME");
  app.add_option("--threads", threads, "Threads, up to 1024; 0, the default, is one for each core")
      ->type_name("N");
  const std::optional<Words> rest = parseAround(app, words, console);
  if (!rest) return ExitStatus::ok;
  if (rest->empty()) {
    throw UsageError(
        "batch takes a file, or - for standard input, and columns to add, as in\n"
        "calvex batch plant.csv \"h=HPT(P,T)\" -o out.csv");
  }
  for (const std::string& word : std::span(*rest).subspan(1)) {
    request.columns.push_back(readBatchColumn(word));
  }
  if (request.columns.empty()) {
    throw UsageError(fmt::format("which columns are to be added to {}? For example \"h=HPT(P,T)\"",
                                 inQuotes(rest->front())));
  }
  if (!separator.empty()) request.separator = separatorNamed(separator);
  request.threads = static_cast<unsigned>(
      optionValue("--threads", [&] { return parseWholeNumber(threads, 0, 1024); }));

  const BatchOutcome outcome = run(rest->front(), output, request, console);
  for (const BatchOutcome::Warned& warned : outcome.warned) {
    warn(console, fmt::format("{} of {} rows are warned of in column {}; the first, line {}: {}",
                              warned.rows, outcome.rows, inQuotes(warned.columns), warned.firstLine,
                              warned.firstText));
  }
  if (outcome.rowsWithReason == 0) return ExitStatus::ok;
  throw Failure(ExitStatus::callFailed,
                fmt::format("{} of {} rows have a reason in column {}; the first, line {}: {}",
                            outcome.rowsWithReason, outcome.rows, inQuotes(request.why),
                            outcome.firstLine, outcome.firstReason));
}

}  // namespace calvex::cli
