// Prints what the worksheet functions are for the spreadsheet, made from the member table: their
// types, what the function wizard says about them, and the methods that stand behind them.
#include <fmt/format.h>

#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "server/worksheet_functions.h"
#include "units/unit_catalogue.h"

namespace {

using namespace calvex;

using Function = WorksheetFunction;
using Argument = WorksheetArgument;

std::vector<Function> allFunctions() { return worksheetFunctionTable(calcHabit); }

/// The types of a function's parameters behind the document.
std::string parametersOf(const Function& function) {
  switch (function.own) {
    case OwnFunction::units:
      return ", [in] sequence<any> Choices";
    case OwnFunction::why:
    case OwnFunction::trace:
      return ", [in] ::com::sun::star::table::XCellRange Cell";
    default:
      break;
  }
  std::string parameters;
  for (const Argument& argument : function.arguments) {
    parameters += fmt::format(", [in] any {}", argument.name);
  }
  return parameters;
}

std::string listed(std::string list, std::string_view element) {
  return list.empty() ? std::string(element) : fmt::format("{}, {}", list, element);
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
    text += fmt::format("    any {}([in] ::com::sun::star::beans::XPropertySet document{});\n",
                        function.name, parametersOf(function));
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
