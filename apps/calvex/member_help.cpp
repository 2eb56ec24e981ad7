#include "member_help.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>

#include "call.h"
#include "numbers.h"
#include "output.h"
#include "script.h"
#include "server/member_explanations.h"

namespace calvex::cli {

namespace {

std::string inDoubleQuotes(const std::string& word) {
  const bool plain = !word.empty() && word.find_first_of(" ()'*?&;|<>#\"") == std::string::npos;
  return plain ? word : fmt::format("\"{}\"", word);
}

std::string sentence(std::string text) {
  if (text.front() >= 'a' && text.front() <= 'z') {
    text.front() = static_cast<char>(text.front() - 'a' + 'A');
  }
  return text + ".\n";
}

using Rows = std::vector<std::vector<std::string>>;

std::string section(const char* title, const Rows& rows) {
  if (rows.empty()) return {};
  return fmt::format("\n{}\n{}", title, indented(aligned(rows)));
}

std::string parameterSections(const Member& member, const MemberExplanation& explained,
                              const UserUnits& units) {
  Rows taken, answered;
  for (std::size_t i = 0; i < explained.parameters.size(); ++i) {
    const Parameter& parameter = member.parameters()[i];
    const ParameterExplanation& words = explained.parameters[i];
    const std::string unit = currentUnit(units, parameter.group);
    if (parameter.type == ValueType::array && !tokensOf(member).empty()) continue;
    if (parameter.isOutput()) {
      answered.push_back({words.label, words.words, unit});
    } else {
      taken.push_back({std::string(parameter.name), words.words, unit,
                       words.limits ? limitsText(*words.limits, parameter, units) : ""});
    }
  }
  for (const spreadsheet::Token& token : tokensOf(member)) {
    answered.push_back({std::string(token.text), tokenWords(member, token),
                        currentUnit(units, static_cast<int>(token.group))});
  }
  const bool byTokens = !tokensOf(member).empty();
  return section("inputs", taken) +
         section(byTokens ? "results, by the tokens that strTokens names" : "results", answered);
}

// A setting's value in an object, as it is shown.
std::string settingText(const Member& member, ZvCalvex& object) {
  Outcome read{{&member, false, {Value()}}, {}, {}, false, true, {}};
  object.invoke(member, read.call.arguments);
  const std::string line = outcomeText(read, object.engine().units());
  const std::size_t begin = line.find("= ") + 2;
  return line.substr(begin, line.find("  ", begin) - begin);
}

std::string settingSections(const Member& member, const MemberExplanation& explained) {
  if (member.put == nullptr) return {};
  const ParameterExplanation& value = explained.parameters.front();
  const std::string& name = value.label;
  std::string text =
      section("usage", {{fmt::format("calvex {}", name), "tells its value"},
                        {fmt::format("calvex MEMBER ... -s {}=VALUE", name), "sets it for a call"},
                        {fmt::format("{} VALUE", name), "sets it in a script"}});
  Client client;
  Module module;
  ZvCalvex server(module);
  text += "\nvalue\n";
  if (value.limits) {
    text += fmt::format("  {}\n",
                        limitsText(*value.limits, member.parameters().front(), client.units()));
  }
  const std::string here = settingText(member, client.object());
  const std::string there = settingText(member, server);
  text += here == there
              ? fmt::format("  {} at the start\n", here)
              : fmt::format("  {} at the start here, {} in the automation server\n", here, there);
  return text;
}

std::string exampleWord(const ExampleInput& input, const Parameter& parameter,
                        const UserUnits& units) {
  if (const auto* text = std::get_if<std::string>(&input)) return inDoubleQuotes(*text);
  constexpr int digits = 6;
  const double value = std::get<double>(input);
  return readableText(parameter.hasUnit() ? units.toUser(UnitGroup(parameter.group), value) : value,
                      digits);
}

std::string example(const Member& member, const ClientOptions& options) {
  Client client;
  options.applyTo(client);
  const std::vector<std::string> lines = exampleLines(member, client.units());
  // A unit chosen or a text left in the trace is gone with the call.
  const MemberHeading heading = explanation(member).heading;
  const bool lasts = (heading == MemberHeading::units || heading == MemberHeading::diagnostics) &&
                     outputs(member).empty() && !member.isProperty;
  const bool inScript = lines.size() > 1 || lasts;
  std::string text = inScript ? "\nexample, in a script\n" : "\nexample\n";
  for (const std::string& line : lines) {
    const ScriptLine split = splitLine(line);
    const Outcome outcome =
        perform(client, prepare(memberNamed(split.words.front()), std::span(split.words).subspan(1),
                                client.units()));
    if (inScript) {
      text +=
          fmt::format("  {}\n{}", line, indented(indented(outcomeText(outcome, client.units()))));
      continue;
    }
    text += fmt::format("  calvex {}", line);
    for (const std::string& unit : options.units)
      text += fmt::format(" -u {}", inDoubleQuotes(unit));
    text += fmt::format("\n{}", indented(outcomeText(outcome, client.units())));
  }
  return text;
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

std::string automationSection(const Member& member) {
  std::vector<std::string> texts;
  for (const Parameter& parameter : member.parameters()) {
    texts.push_back(fmt::format("[{}] {} {}", directionName(parameter.direction),
                                typeName(parameter.type), parameter.name));
  }
  if (member.style == ReturnStyle::success) texts.emplace_back("[out, retval] long pSucc");
  return fmt::format("\nfor automation clients\n  {}({})\n  dispatch id {:#x}\n", member.name,
                     fmt::join(texts, ", "), member.dispatchId);
}

}  // namespace

std::vector<std::string> exampleLines(const Member& member, const UserUnits& units) {
  const MemberExplanation explained = explanation(member);
  std::vector<std::string> lines;
  for (const ExampleCall& call : explained.preparation) {
    std::string line(call.member->name);
    for (const ExampleInput& input : call.inputs) {
      line += fmt::format(" {}", inDoubleQuotes(std::get<std::string>(input)));
    }
    lines.push_back(std::move(line));
  }
  std::string line(member.name);
  std::size_t next = 0;
  for (const Parameter& parameter : member.parameters()) {
    const bool given = parameter.isInput() || member.put != nullptr;
    if (!given || next == explained.example.inputs.size()) continue;
    line += fmt::format(" {}", exampleWord(explained.example.inputs[next++], parameter, units));
  }
  lines.push_back(std::move(line));
  // A setting that has been set is read back.
  if (member.put != nullptr) lines.emplace_back(member.name);
  return lines;
}

std::string memberHelp(const Member& member, const ClientOptions& options) {
  Client client;
  options.applyTo(client);
  const MemberExplanation explained = explanation(member);
  std::string text(member.name);
  for (const Parameter* parameter : inputs(member)) text += fmt::format(" {}", parameter->name);
  text += fmt::format("\n\n{}", sentence(explained.title));
  if (!explained.notes.empty()) text += wrapped(explained.notes);
  text += member.isProperty ? settingSections(member, explained)
                            : parameterSections(member, explained, client.units());
  return text + example(member, options) + automationSection(member);
}

}  // namespace calvex::cli
