/// \file
/// Outcomes and traces as text and as JSON.
#pragma once

#include <string>
#include <vector>

#include "call.h"

namespace calvex::cli {

/// "H = 3373.998049 kJ/kg  enthalpy"; the unit and the words may be empty.
struct Equation {
  std::string name, value, unit, words;
};
/// One line each, in columns.
[[nodiscard]] std::string equations(const std::vector<Equation>& lines);

/// One line an output: its name, value and unit, and what it is. "done" when there is nothing to
/// show.
[[nodiscard]] std::string outcomeText(const Outcome& outcome, const UserUnits& units);

/// {"member":"HPT","hresult":0,"pSucc":1,"pH":3373.99804895,"units":{"pH":"kJ/kg"}}; an output that
/// was not written is absent. A trace that is given is added.
[[nodiscard]] std::string outcomeJson(const Outcome& outcome, const UserUnits& units,
                                      const ZvFunctionCall* trace = nullptr);

/// {"error":"..."} for what cannot be run.
[[nodiscard]] std::string errorJson(std::string_view text);
/// {"error":"...","line":3,"text":"..."} for a line of a script.
[[nodiscard]] std::string errorJson(std::string_view text, int line, std::string_view source);

/// The calls below the root, each with its nested calls and messages.
[[nodiscard]] std::string traceText(const ZvFunctionCall& root);
/// {"text":"Root","kind":0,"columns":[],"children":[...]}
[[nodiscard]] std::string traceJson(const ZvFunctionCall& node);

/// Rows of texts in columns, each line ended. Texts wider than `widest` do not widen their column:
/// what follows them in their row is moved to the right.
[[nodiscard]] std::string aligned(const std::vector<std::vector<std::string>>& rows,
                                  std::size_t widest = std::string::npos);
/// A text in lines of at most `columns` characters, broken at blanks.
[[nodiscard]] std::string wrapped(std::string_view text, std::size_t columns = 100);
/// The lines of a text, two blanks to the right.
[[nodiscard]] std::string indented(std::string_view lines);

}  // namespace calvex::cli
