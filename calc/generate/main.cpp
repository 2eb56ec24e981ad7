// Prints what the worksheet functions are for the spreadsheet, made from the member table: their
// types, what the function wizard says about them, and the methods that stand behind them.
#include <fmt/format.h>

#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "server/member_columns.h"
#include "server/member_explanations.h"
#include "server/member_table.h"

namespace {

using namespace calvex;

struct Argument {
  std::string name;
  std::string words;
  bool isOptional = false;
};

/// A worksheet function: a member, or one of the spreadsheet's own.
struct Function {
  std::string name;   ///< of the method
  std::string shown;  ///< what is typed
  std::string category;
  std::string description;
  std::string parameters;  ///< the types of one that has others than numbers
  std::vector<Argument> arguments;
  int member = -1;
};

std::string sentence(std::string text) {
  if (!text.empty() && text[0] >= 'a' && text[0] <= 'z') {
    text[0] = static_cast<char>(text[0] - 'a' + 'A');
  }
  return text.empty() || text.back() == '.' ? text : text + '.';
}

std::string unitOf(const Parameter& parameter) {
  if (!parameter.hasUnit()) return {};
  const auto& row = unitGroupTable()[static_cast<std::size_t>(parameter.group)];
  return std::string(row.internalUnit);
}

/// "pressure, above 0 to 3000 MPa, or in the document's unit"
std::string wordsOf(const Member& member, const Parameter& parameter) {
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
  return unit.empty() ? text : text + ", or in the unit of the document";
}

std::string listed(std::string list, std::string_view element) {
  return list.empty() ? std::string(element) : fmt::format("{}, {}", list, element);
}

Function functionOf(const Member& member, const NumericMember& numeric) {
  const MemberExplanation explained = explanation(member);
  Function function;
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
          {std::string(parameter.name), wordsOf(member, parameter), false});
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

/// What no member is: the functions about the document and about other cells.
std::vector<Function> ownFunctions() {
  const std::string cell = "[in] ::com::sun::star::table::XCellRange Cell";
  Function convert{"Convert", "CALVEX.CONVERT",
                   "Calvex",  sentence(explanation(*findMember("Convert")).title),
                   {},        {},
                   -1};
  for (const Parameter& parameter : findMember("Convert")->parameters()) {
    if (!parameter.isInput()) continue;
    const std::string name(parameter.name);
    convert.parameters +=
        fmt::format("{}[in] any {}", convert.parameters.empty() ? "" : ", ", name);
    convert.arguments.push_back(
        {name, parameterExplanation(*findMember("Convert"), parameter).words, false});
  }
  return {{"Units",
           "CALVEX.UNITS",
           "Calvex",
           "Sets units of the document, quantity by quantity, and answers all that are set: "
           "CALVEX.UNITS(\"T\";\"°C\";\"P\";\"bar\").",
           "[in] sequence<any> Choices",
           {{"Choices", "a quantity, then its unit; and so on", true}},
           -1},
          {"Unit",
           "CALVEX.UNIT",
           "Calvex",
           "The unit that a quantity has in the document: CALVEX.UNIT(\"P\").",
           "[in] any Quantity",
           {{"Quantity", "name of the quantity", false}},
           -1},
          {"Why",
           "CALVEX.WHY",
           "Calvex",
           "Why a cell has no value; empty for a cell that has one.",
           cell,
           {{"Cell", "the cell", false}},
           -1},
          {"Trace",
           "CALVEX.TRACE",
           "Calvex",
           "The record of a cell's calls, as rows of depth, kind and text (an array formula).",
           cell,
           {{"Cell", "the cell", false}},
           -1},
          convert};
}

std::vector<Function> allFunctions() {
  std::vector<Function> functions = ownFunctions();
  for (const Member& member : memberTable()) {
    if (const auto numeric = NumericMember::of(member)) {
      functions.push_back(functionOf(member, *numeric));
    }
  }
  return functions;
}

constexpr std::string_view notice = "Made by calc/generate from the member table.";

/// The types. The spreadsheet itself fills in the document.
std::string types() {
  std::string text = fmt::format(R"(// {}
module calvex {{ module calc {{
  interface XFunctions {{
)",
                                 notice);
  for (const Function& function : allFunctions()) {
    std::string parameters = "[in] ::com::sun::star::beans::XPropertySet document";
    if (!function.parameters.empty()) parameters += ", " + function.parameters;
    if (function.parameters.empty()) {
      for (const Argument& argument : function.arguments) {
        parameters += fmt::format(", [in] any {}", argument.name);
      }
    }
    text += fmt::format("    any {}({});\n", function.name, parameters);
  }
  return text + "  };\n}; };\n";
}

/// The methods of the members.
std::string methods() {
  std::string text = fmt::format("// {}\n", notice);
  for (const Function& function : allFunctions()) {
    if (function.member < 0) continue;
    std::string parameters, passed;
    for (const Argument& argument : function.arguments) {
      parameters += fmt::format(", const Any& {}", argument.name);
      passed = listed(passed, "&" + argument.name);
    }
    text += fmt::format(
        "Any SAL_CALL {}(const Reference<XPropertySet>& document{}) override {{\n"
        "  return calculate(document, {}, {{{}}});\n}}\n",
        function.name, parameters, function.member, passed);
  }
  return text;
}

std::string escaped(std::string_view text) {
  std::string result;
  for (const char c : text) {
    result += c == '&' ? "&amp;" : c == '<' ? "&lt;" : c == '>' ? "&gt;" : std::string(1, c);
  }
  return result;
}

std::string localised(std::string_view name, std::string_view text) {
  return fmt::format(R"(<prop oor:name="{}"><value xml:lang="en">{}</value></prop>)", name,
                     escaped(text));
}

/// What the function wizard shows.
std::string wizard() {
  std::string text = fmt::format(R"(<?xml version="1.0" encoding="UTF-8"?>
<!-- {} -->
<oor:component-data xmlns:oor="http://openoffice.org/2001/registry"
    xmlns:xs="http://www.w3.org/2001/XMLSchema" oor:name="CalcAddIns" oor:package="org.openoffice.Office">
<node oor:name="AddInInfo"><node oor:name="calvex.calc.Functions" oor:op="replace">
<node oor:name="AddInFunctions">
)",
                                 notice);
  for (const Function& function : allFunctions()) {
    text += fmt::format(
        "<node oor:name=\"{}\" oor:op=\"replace\">{}{}\n"
        "<prop oor:name=\"Category\"><value>Add-In</value></prop>{}{}\n"
        "<node oor:name=\"Parameters\">\n",
        function.name, localised("DisplayName", function.shown),
        localised("Description", function.description),
        localised("CategoryDisplayName", function.category),
        localised("CompatibilityName", function.shown));
    for (const Argument& argument : function.arguments) {
      text += fmt::format("<node oor:name=\"{}\" oor:op=\"replace\">{}{}</node>\n", argument.name,
                          localised("DisplayName", argument.name),
                          localised("Description", sentence(argument.words)));
    }
    text += "</node></node>\n";
  }
  return text + "</node></node></node>\n</oor:component-data>\n";
}

std::string control(std::string_view kind, std::string_view id, int left, int top, int width,
                    int height, std::string_view rest) {
  return fmt::format(
      "<dlg:{} dlg:id=\"{}\" dlg:left=\"{}\" dlg:top=\"{}\" dlg:width=\"{}\" "
      "dlg:height=\"{}\" {}/>\n",
      kind, id, left, top, width, height, rest);
}

/// The dialog of the units: a list box a group.
std::string units() {
  constexpr int line = 14, half = 194, perColumn = (unitGroupCount + 1) / 2;
  constexpr int width = 2 * half + 6, bottom = perColumn * line + 8;
  std::string controls;
  for (int group = 0; group < unitGroupCount; ++group) {
    const int left = 4 + group / perColumn * half;
    const int top = 4 + group % perColumn * line;
    const auto& row = unitGroupTable()[static_cast<std::size_t>(group)];
    controls += control("text", fmt::format("group{}", group), left, top + 2, 120, 10,
                        fmt::format(R"(dlg:value="{}")", escaped(row.displayName)));
    controls += control("menulist", fmt::format("unit{}", group), left + 122, top, 66, 12,
                        R"(dlg:spin="true" dlg:linecount="12")");
  }
  controls += control("text", "cells", 4, bottom, width - 110, 18,
                      R"(dlg:multiline="true" dlg:nolabel="true")");
  controls += control("button", "ok", width - 104, bottom, 48, 14,
                      R"(dlg:button-type="ok" dlg:default="true" dlg:value="OK")");
  controls += control("button", "cancel", width - 52, bottom, 48, 14,
                      R"(dlg:button-type="cancel" dlg:value="Cancel")");
  return fmt::format(
      R"(<?xml version="1.0" encoding="UTF-8"?>
<dlg:window xmlns:dlg="http://openoffice.org/2000/dialog" xmlns:script="http://openoffice.org/2000/script"
    dlg:id="units" dlg:left="30" dlg:top="20" dlg:width="{}" dlg:height="{}"
    dlg:closeable="true" dlg:moveable="true" dlg:title="Units of this document">
<dlg:bulletinboard>
{}</dlg:bulletinboard>
</dlg:window>
)",
      width, bottom + 22, controls);
}

}  // namespace

int main(int count, char** arguments) {
  const std::string_view what = count == 2 ? arguments[1] : "";
  if (what == "types") {
    std::cout << types();
  } else if (what == "methods") {
    std::cout << methods();
  } else if (what == "wizard") {
    std::cout << wizard();
  } else if (what == "units") {
    std::cout << units();
  } else {
    std::cerr << "usage: generate types|methods|wizard|units\n";
    return 2;
  }
}
