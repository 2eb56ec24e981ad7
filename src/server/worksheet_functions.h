/// \file
/// The worksheet functions of every spreadsheet: what they are called, in which order they are
/// given what, and what a function wizard says about them. Made from the member table.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace calvex {

/// How a spreadsheet speaks of itself.
struct SpreadsheetHabit {
  std::string_view file;       ///< what a person saves: "document"
  std::string_view separator;  ///< between the arguments of a function
  std::string_view units;      ///< what CALVEX.UNITS does
};
inline constexpr SpreadsheetHabit calcHabit{
    "document", ";",
    "Sets units of the document, quantity by quantity, and answers all that are set"};
inline constexpr SpreadsheetHabit excelHabit{
    "workbook", ",",
    "The units of the workbook, where its name Calvex_Units refers to the cell; without inputs "
    "those "
    "that are set"};

struct WorksheetArgument {
  std::string name;
  std::string words;
  bool isOptional = false;
};

/// What a function is that no member is.
enum class OwnFunction : unsigned char { none, units, unit, why, trace, convert };

struct WorksheetFunction {
  std::string name;         ///< of the function behind it: a word
  std::string shown;        ///< what is typed
  std::string category;     ///< in the wizard
  std::string description;  ///< UTF-8, sentences
  std::vector<WorksheetArgument> arguments;
  int member = -1;  ///< dispatch id, or -1
  OwnFunction own = OwnFunction::none;
};

/// The functions about units and other cells, then every member that computes numbers from numbers.
[[nodiscard]] std::vector<WorksheetFunction> worksheetFunctionTable(const SpreadsheetHabit& habit);

/// The text as a sentence: a capital at the beginning, a full stop at the end.
[[nodiscard]] std::string sentence(std::string text);

}  // namespace calvex
