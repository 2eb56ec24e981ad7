#include "server/worksheet_functions.h"

#include <fmt/format.h>

#include <limits>

#include "server/member_columns.h"
#include "server/member_explanations.h"
#include "server/member_table.h"

namespace calvex {

namespace {

std::string unitOf(const Parameter& parameter) {
  if (!parameter.hasUnit()) return {};
  const auto& row = unitGroupTable()[static_cast<std::size_t>(parameter.group)];
  return std::string(row.internalUnit);
}

/// "pressure, above 0 to 3000 MPa, or in the unit of the document"
std::string wordsOf(const Member& member, const Parameter& parameter,
                    const SpreadsheetHabit& habit) {
  const ParameterExplanation explained = parameterExplanation(member, parameter);
  std::string text = explained.words;
  const std::string unit = unitOf(parameter);
  if (explained.limits) {
    const Limits& limits = *explained.limits;
    text += fmt::format(", {} {}", limits.aboveLow ? "above" : "from", limits.low);
    if (limits.high < std::numeric_limits<double>::infinity()) {
      text += fmt::format(" to {}{}", limits.belowHigh ? "below " : "", limits.high);
    }
    if (!unit.empty()) text += fmt::format(" {}", unit);
  } else if (!unit.empty()) {
    text += fmt::format(", {}", unit);
  }
  return unit.empty() ? text : fmt::format("{}, or in the unit of the {}", text, habit.file);
}

std::string listed(std::string list, std::string_view element) {
  return list.empty() ? std::string(element) : fmt::format("{}, {}", list, element);
}

WorksheetFunction functionOf(const Member& member, const NumericMember& numeric,
                             const SpreadsheetHabit& habit) {
  const MemberExplanation explained = explanation(member);
  WorksheetFunction function;
  function.name = function.shown = member.name;
  function.member = member.dispatchId;
  const bool isEquipment = explained.heading == MemberHeading::equipment ||
                           explained.heading == MemberHeading::spreadsheet;
  function.category = isEquipment ? "Calvex equipment" : "Calvex";
  function.description = sentence(explained.title);
  if (!explained.notes.empty()) function.description += ' ' + explained.notes;
  for (const Parameter& parameter : member.parameters()) {
    if (parameter.type == ValueType::real && parameter.isInput()) {
      function.arguments.push_back(
          {std::string(parameter.name), wordsOf(member, parameter, habit), false});
    }
  }
  std::string names;
  for (const NumericMember::Slot& slot : numeric.outputs()) names = listed(names, slot.name);
  if (!tokensOf(member).empty()) {
    function.arguments.push_back(
        {"Tokens", "which results, one or more of: " + names + "; all without it", true});
  } else if (numeric.outputs().size() > 1) {
    function.arguments.push_back(
        {"Result", "which result, one of: " + names + "; without it all, as an array", true});
  }
  return function;
}

WorksheetFunction ownFunction(std::string_view name, OwnFunction own, std::string description,
                              std::vector<WorksheetArgument> arguments) {
  WorksheetFunction function;
  function.name = name;
  function.shown = "CALVEX.";
  for (const char c : name) {
    function.shown += c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  }
  function.category = "Calvex";
  function.description = std::move(description);
  function.arguments = std::move(arguments);
  function.own = own;
  return function;
}

std::vector<WorksheetFunction> ownFunctions(const SpreadsheetHabit& habit) {
  const Member& convert = *findMember("Convert");
  std::vector<WorksheetArgument> converted;
  for (const Parameter& parameter : convert.parameters()) {
    if (!parameter.isInput()) continue;
    converted.push_back(
        {std::string(parameter.name), parameterExplanation(convert, parameter).words, false});
  }
  return {
      ownFunction("Units", OwnFunction::units,
                  fmt::format("{}: CALVEX.UNITS(\"T\"{}\"°C\"{}\"P\"{}\"bar\").", habit.units,
                              habit.separator, habit.separator, habit.separator),
                  {{"Choices", "a quantity, then its unit; and so on", true}}),
      ownFunction(
          "Unit", OwnFunction::unit,
          fmt::format("The unit that a quantity has in the {}: CALVEX.UNIT(\"P\").", habit.file),
          {{"Quantity", "name of the quantity", false}}),
      ownFunction("Why", OwnFunction::why,
                  "Why a cell has no value; empty for a cell that has one.",
                  {{"Cell", "the cell", false}}),
      ownFunction(
          "Trace", OwnFunction::trace,
          "The record of a cell's calls, as rows of depth, kind and text (an array formula).",
          {{"Cell", "the cell", false}}),
      ownFunction("Convert", OwnFunction::convert, sentence(explanation(convert).title),
                  std::move(converted)),
  };
}

}  // namespace

std::string sentence(std::string text) {
  if (!text.empty() && text[0] >= 'a' && text[0] <= 'z') {
    text[0] = static_cast<char>(text[0] - 'a' + 'A');
  }
  return text.empty() || text.back() == '.' ? text : text + '.';
}

std::vector<WorksheetFunction> worksheetFunctionTable(const SpreadsheetHabit& habit) {
  std::vector<WorksheetFunction> functions = ownFunctions(habit);
  for (const Member& member : memberTable()) {
    if (const auto numeric = NumericMember::of(member)) {
      functions.push_back(functionOf(member, *numeric, habit));
    }
  }
  return functions;
}

}  // namespace calvex
