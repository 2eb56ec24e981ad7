// calvex convert GROUP VALUE FROM TO
#include <fmt/format.h>

#include <cmath>
#include <ostream>

#include "command_line.h"
#include "diagnostics/formatting.h"
#include "numbers.h"
#include "output.h"

namespace calvex::cli {

namespace {

// The lowest value that a unit of temperature or pressure can have is what 0 K or 0 MPa is in it. A
// rounded factor may make it less by as much as -459.67 F, which is -2e-9 K, shows: that is 0 K.
double notBelowNothing(UnitGroup group, const ZvUomLiteKeyword& unit, double value) {
  constexpr double rounding = 1e-8;
  const bool isTemperature = group == UnitGroup::temperature;
  if (!isTemperature && group != UnitGroup::pressure) return value;
  const ZvUomLiteKeyword& model = findUnit(group, row(group).internalUnit);
  const double zero = convert(model, unit, 0.0);
  const double lowest = std::fabs(zero) < rounding ? 0.0 : zero;
  const double absolute = convert(unit, model, value);
  if (absolute >= 0.0) return value;
  if (absolute >= -rounding) return lowest;
  throw Failure(
      ExitStatus::callFailed,
      fmt::format("{0} {1} is below {3}; the lowest {4} is {2} {1}", readableText(value), unit.name,
                  readableText(lowest, 8), isTemperature ? "absolute zero" : "vacuum",
                  isTemperature ? "temperature" : "pressure"));
}

}  // namespace

ExitStatus convertCommand(const Words& words, Console& console) {
  CommandOptions app("convert", "convert GROUP VALUE FROM TO [--json]",
                     "Converts a value of a quantity from one unit to another.");
  app.footer(
      "Examples:\n"
      "  calvex convert P 100 psia bara\n"
      "  calvex convert T -40 C F\n"
      "  calvex convert volume 1 ft3/lbm m3/kg\n"
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
  const ZvUomLiteKeyword& from = findUnit(group, operands[2]);
  const ZvUomLiteKeyword& to = findUnit(group, operands[3]);

  Client client;
  const Words arguments = {keyword, operands[2], operands[3],
                           shortestText(notBelowNothing(group, from, value))};
  const Outcome outcome =
      perform(client, prepare(*findMember("Convert"), arguments, client.units()));
  warn(console, outcome.call.choice.warning);
  if (json) {
    fmt::print(console.out, "{}\n", outcomeJson(outcome, client.units()));
  }
  if (!outcome.succeeded()) throw Failure(ExitStatus::callFailed, failureText(outcome));
  if (!json) {
    fmt::print(console.out, "{} {} = {} {}\n", readableText(value), from.name,
               readableText(std::get<double>(outcome.call.arguments.back())), to.name);
  }
  return ExitStatus::ok;
}

}  // namespace calvex::cli
