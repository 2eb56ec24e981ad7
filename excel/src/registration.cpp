#include "registration.h"

#include "host.h"
#include "units/unit_catalogue.h"

namespace calvex::excel {

namespace {

constexpr std::size_t longestHelp = 255;
// The wizard shows the last text of all without its last characters.
constexpr std::string_view lost = "  ";

// A text that fits, cut behind a sentence where it can be.
std::string fitting(std::string text) {
  constexpr std::size_t room = longestHelp - lost.size();
  if (toWide(text).size() <= room) return text;
  while (toWide(text).size() > room) text.pop_back();
  const std::size_t end = text.rfind(". ");
  return end == std::string::npos ? text.substr(0, text.rfind(' ')) + " ..."
                                  : text.substr(0, end + 1);
}

std::vector<std::string> identifiers() {
  std::vector<std::string> names;
  for (const WorksheetFunction& function : worksheetFunctionTable(excelHabit)) {
    names.push_back(function.shown);
  }
  return names;
}

std::vector<double>& handles() {
  static std::vector<double> kept;
  return kept;
}

bool registerOne(const Argument& module, const Registered& function) {
  constexpr double worksheetFunction = 1;
  std::vector<Argument> arguments;
  arguments.reserve(10 + function.argumentHelp.size());
  arguments.push_back(module);
  for (const std::string* text :
       {&function.procedure, &function.types, &function.name, &function.argumentNames}) {
    arguments.emplace_back(std::string_view(*text));
  }
  arguments.emplace_back(worksheetFunction);
  arguments.emplace_back(std::string_view(function.category));
  arguments.emplace_back();  // shortcut
  arguments.emplace_back();  // help topic
  arguments.emplace_back(std::string_view(function.help));
  for (const std::string& help : function.argumentHelp) {
    arguments.emplace_back(std::string_view(help));
  }
  Answer handle;
  if (!call(xlfRegister, handle, arguments) || handle.type() != xltypeNum) return false;
  handles().push_back(handle.value().val.num);
  return true;
}

}  // namespace

Registered registered(const WorksheetFunction& function) {
  Registered result;
  result.procedure = "Calvex" + function.name;
  result.name = function.shown;
  result.category = function.category;
  result.help = fitting(function.description);
  // Q: a value; U: a reference as it is. #: the function may ask the host about names and cells.
  result.types = "Q";
  std::vector<WorksheetArgument> arguments = function.arguments;
  if (function.own == OwnFunction::units) {
    arguments.clear();
    for (int i = 1; i <= unitGroupCount; ++i) {
      arguments.push_back({i == 1 ? "Quantity" : "...", "a quantity: T, P, flow", true});
      arguments.push_back({i == 1 ? "Unit" : "...", "its unit", true});
    }
  }
  const bool isReference = function.own == OwnFunction::why || function.own == OwnFunction::trace;
  for (const WorksheetArgument& argument : arguments) {
    result.types += isReference ? 'U' : 'Q';
    result.argumentHelp.push_back(fitting(sentence(argument.words)));
    if (argument.name == "...") continue;
    if (!result.argumentNames.empty()) result.argumentNames += ',';
    result.argumentNames += argument.isOptional ? '[' + argument.name + ']' : argument.name;
  }
  if (function.own == OwnFunction::units) {
    result.argumentHelp.resize(2);
    result.argumentNames += ",...";
  }
  result.types += '#';
  (result.argumentHelp.empty() ? result.help : result.argumentHelp.back()) += lost;
  return result;
}

bool registerAll() {
  Answer module;
  if (!call(xlGetName, module) || !module.isText()) return false;
  const Argument path(module.text());
  bool isWhole = true;
  for (const WorksheetFunction& function : worksheetFunctionTable(excelHabit)) {
    isWhole = registerOne(path, registered(function)) && isWhole;
  }
  return isWhole;
}

void unregisterAll() {
  for (const double handle : handles()) {
    Answer done;
    call(xlfUnregister, done, {handle});
  }
  handles() = {};
  for (const std::string& name : identifiers()) {
    Answer done;
    call(xlfSetName, done, {std::string_view(name)});
  }
}

}  // namespace calvex::excel
