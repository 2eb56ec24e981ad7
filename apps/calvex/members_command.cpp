// calvex members [PATTERN]
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <map>
#include <ostream>

#include "command_line.h"
#include "diagnostics/formatting.h"
#include "encoding.h"
#include "numbers.h"
#include "output.h"
#include "suggestions.h"

namespace calvex::cli {

namespace {

/// `*` any characters, `?` one; both in the same case.
bool matchesGlob(std::string_view text, std::string_view pattern) {
  std::size_t t = 0, p = 0;
  std::size_t star = std::string_view::npos, resume = 0;  // the last `*` and what it took so far
  while (t < text.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      resume = t;
    } else if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == text[t])) {
      ++t;
      ++p;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      t = ++resume;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

bool matches(std::string_view name, std::string_view pattern) {
  const std::string lowerName = lowerCase(name);
  const std::string lowerPattern = lowerCase(pattern);
  if (pattern.find_first_of("*?") != std::string_view::npos) {
    return matchesGlob(lowerName, lowerPattern);
  }
  return lowerName.find(lowerPattern) != std::string::npos;
}

std::string brief(const Member& member, const std::vector<const Parameter*>& parameters,
                  const UserUnits& units) {
  std::vector<std::string> texts;
  for (const Parameter* parameter : parameters) {
    const std::string unit = currentUnit(units, parameter->group);
    const std::string_view type = parameter->type == ValueType::real ? "" : meaning(*parameter);
    const std::string_view detail = unit.empty() ? type : unit;
    texts.push_back(fmt::format("{}{}{}{}", outputName(member, *parameter),
                                detail.empty() ? "" : "[", detail, detail.empty() ? "" : "]"));
  }
  return fmt::format("{}", fmt::join(texts, " "));
}

std::string list(const std::vector<const Member*>& found, const UserUnits& units) {
  std::vector<std::vector<std::string>> rows;
  for (const Member* member : found) {
    // The tokens tell what a spreadsheet member answers, not its array.
    const std::string answer =
        tokens(*member).empty() ? brief(*member, outputs(*member), units) : "";
    std::string taken = brief(*member, inputs(*member), units);
    if (member->put != nullptr) taken = "(setting)";
    if (member->isProperty && member->put == nullptr) taken = "(read only)";
    rows.push_back({std::string(member->name), taken, answer.empty() ? "" : "-> " + answer});
  }
  constexpr std::size_t widest = 40;
  return aligned(rows, widest);
}

std::string_view typeName(ValueType type) {
  switch (type) {
    case ValueType::real:
      return "double";
    case ValueType::shortInteger:
      return "short";
    case ValueType::longInteger:
      return "long";
    case ValueType::text:
      return "string";
    case ValueType::array:
      return "array";
  }
  return {};
}

std::string signature(const Member& member) {
  std::vector<std::string> texts;
  for (const Parameter& parameter : member.parameters()) {
    texts.push_back(fmt::format("[{}] {} {}", directionName(parameter.direction),
                                typeName(parameter.type), parameter.name));
  }
  if (member.style == ReturnStyle::success) texts.emplace_back("[out, retval] long pSucc");
  return fmt::format("{}({})", member.name, fmt::join(texts, ", "));
}

// Properties of steam at 10 MPa and 773.15 K, of saturated water at 500 K and what else a call may
// need, in internal units. By name where the unit does not tell the quantity.
double sampleNumber(const Parameter& parameter, bool saturated) {
  const std::map<UnitGroup, double> steam = {
      {UnitGroup::temperature, 773.15},    {UnitGroup::pressure, 10.0},
      {UnitGroup::density, 30.5},          {UnitGroup::specificVolume, 0.0328},
      {UnitGroup::entropy, 6.6},           {UnitGroup::enthalpy, 3374.0},
      {UnitGroup::internalEnergy, 3046.0}, {UnitGroup::quality, 0.5},
      {UnitGroup::massFlow, 10.0},         {UnitGroup::heatDuty, 1000.0},
      {UnitGroup::efficiency, 0.8},        {UnitGroup::ratio, 0.1},
      {UnitGroup::power, 1000.0},
  };
  if (saturated && parameter.group == static_cast<short>(UnitGroup::temperature)) return 500.0;
  const auto found = steam.find(UnitGroup(parameter.group));
  return found == steam.end() ? 1.0 : found->second;
}

std::string sampleWord(const Parameter& parameter, bool saturated, const UserUnits& units) {
  if (parameter.hasUnit()) {
    return readableText(
        units.toUser(UnitGroup(parameter.group), sampleNumber(parameter, saturated)), 6);
  }
  if (parameter.type != ValueType::text) return "1";
  const std::map<std::string_view, std::string> texts = {{"groupStr", "P"},
                                                         {"strGroup", "P"},
                                                         {"newVal", "bara"},
                                                         {"strFromUnit", "psia"},
                                                         {"strToUnit", "bara"}};
  const auto found = texts.find(parameter.name);
  return found == texts.end() ? "text" : found->second;
}

/// A call that succeeds, with its answer; nothing when none is known.
std::string example(const Member& member, const ClientOptions& options) {
  for (const bool saturated : {false, true}) {
    Client client;  // a call may change settings, units or the trace
    options.applyTo(client);
    std::vector<std::string> words;
    for (const Parameter* parameter : inputs(member)) {
      words.push_back(sampleWord(*parameter, saturated, client.units()));
    }
    const Outcome outcome = perform(client, prepare(member, words, client.units()));
    if (!outcome.succeeded()) continue;
    std::string line = fmt::format("\nexample\n  calvex {}", member.name);
    for (const std::string& word : words) line += " " + word;
    for (const std::string& unit : options.units) line += fmt::format(" -u '{}'", unit);
    for (const std::string& setting : options.settings) line += fmt::format(" -s '{}'", setting);
    const std::string answer = outcomeText(outcome, client.units());
    if (answer == "done\n") return line + "\n";
    return line + "\n" + indented(answer);
  }
  return {};
}

std::string describe(const char* title, const Member& member,
                     const std::vector<const Parameter*>& parameters, const UserUnits& units) {
  if (parameters.empty()) return {};
  std::vector<std::vector<std::string>> rows;
  rows.reserve(parameters.size());
  for (const Parameter* parameter : parameters) {
    rows.push_back({std::string(outputName(member, *parameter)), std::string(meaning(*parameter)),
                    currentUnit(units, parameter->group)});
  }
  return fmt::format("\n{}\n{}", title, indented(aligned(rows)));
}

std::string describeTokens(const Member& member, const UserUnits& units) {
  if (tokens(member).empty()) return {};
  std::vector<std::vector<std::string>> rows;
  for (const spreadsheet::Token& token : tokens(member)) {
    rows.push_back({std::string(token.text), std::string(token.label),
                    currentUnit(units, static_cast<int>(token.group))});
  }
  return fmt::format("\ntokens (strTokens names one or more, such as {}{})\n{}",
                     rows.front().front(), rows.size() > 1 ? "," + rows[1].front() : "",
                     indented(aligned(rows)));
}

std::string explain(const Member& member, const ClientOptions& options) {
  Client client;
  options.applyTo(client);
  std::string text = fmt::format("{}\ndispatch id {:#x}\n", signature(member), member.dispatchId);
  if (member.isProperty) {
    text += fmt::format("\nusage\n  calvex {}\n", member.name);
    if (member.put != nullptr) {
      text += fmt::format("  calvex MEMBER ... -s {0}=VALUE\n  {0} VALUE     in a script\n",
                          member.name);
    }
  }
  text += describe("arguments", member, inputs(member), client.units());
  text += describe("answers", member, outputs(member), client.units());
  text += describeTokens(member, client.units());
  return text + example(member, options);
}

}  // namespace

ExitStatus membersCommand(const Words& words, Console& console) {
  CommandOptions app("members", "members [PATTERN] [-u GROUP=UNIT]",
                     "Lists members with what they take and answer, or explains one.");
  app.footer(
      "Examples:\n"
      "  calvex members            all\n"
      "  calvex members 'h*t*'     those whose name matches\n"
      "  calvex members sat        those with these letters in their name\n"
      "  calvex members HPT        explains one");
  std::string pattern;
  ClientOptions options;
  app.add_option("PATTERN", pattern,
                 "A member's name, a part of it, or a pattern with * and ?, in any case")
      ->type_name("");
  options.addUnitsTo(app);
  if (!parse(app, words, console)) return ExitStatus::ok;

  if (const Member* member = findMember(pattern)) {
    console.out << explain(*member, options);
    return ExitStatus::ok;
  }
  std::vector<const Member*> found;
  for (const Member& member : memberTable()) {
    if (matches(member.name, pattern)) found.push_back(&member);
  }
  if (found.empty()) static_cast<void>(memberNamed(pattern));  // throws with the nearest names
  Client client;
  options.applyTo(client);
  console.out << list(found, client.units());
  return ExitStatus::ok;
}

}  // namespace calvex::cli
