// calvex convert GROUP VALUE FROM TO
#include <fmt/format.h>

#include <ostream>

#include "command_line.h"
#include "diagnostics/formatting.h"
#include "encoding.h"
#include "numbers.h"
#include "output.h"

namespace calvex::cli {

ExitStatus convertCommand(const Words& words, Console& console) {
  CommandOptions app("convert", "convert GROUP VALUE FROM TO [--json]",
                     "Converts a value of a quantity from one unit to another.");
  app.footer(
      "Examples:\n"
      "  calvex convert P 100 psia bara\n"
      "  calvex convert T -40 C F\n"
      "'calvex units' lists the groups, 'calvex units GROUP' the units of one.");
  bool json = false;
  app.add_flag("--json", json, "Print JSON");
  const std::optional<Words> rest = parseAround(app, words, console);
  if (!rest) return ExitStatus::ok;
  const Words& operands = *rest;
  if (operands.size() != 4) {
    throw UsageError(
        fmt::format("convert takes GROUP VALUE FROM TO, as in 'calvex convert P 100 "
                    "psia bara', but {} given",
                    operands.size() == 1 ? "1 argument was"
                                         : fmt::format("{} arguments were", operands.size())));
  }
  const std::string& keyword = operands[0];
  const UnitGroup group = findGroup(keyword);
  const double value = parseNumber(operands[1]);
  const std::string from = toUtf8(findUnit(group, operands[2]).name);
  const std::string to = toUtf8(findUnit(group, operands[3]).name);

  Client client;
  const Words arguments = {keyword, from, to, operands[1]};
  const Outcome outcome =
      perform(client, prepare(*findMember("Convert"), arguments, client.units()));
  if (json) {
    fmt::print(console.out, "{}\n", outcomeJson(outcome, client.units()));
  }
  if (!outcome.succeeded()) throw Failure(ExitStatus::callFailed, failureText(outcome));
  if (!json) {
    fmt::print(console.out, "{} {} = {} {}\n", readableText(value), from,
               readableText(std::get<double>(outcome.call.arguments.back())), to);
  }
  return ExitStatus::ok;
}

}  // namespace calvex::cli
