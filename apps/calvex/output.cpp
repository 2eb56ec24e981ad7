#include "output.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <ctime>

#include "encoding.h"
#include "json.h"
#include "numbers.h"
#include "server/member_explanations.h"
#include "spreadsheet/result_arrays.h"

namespace calvex::cli {

namespace {

std::string cellText(const Cell& cell) {
  if (const auto* number = std::get_if<double>(&cell)) return readableText(*number);
  return std::get<std::string>(cell);
}

std::string valueText(const Value& value) {
  if (const auto* real = std::get_if<double>(&value)) return readableText(*real);
  if (const auto* small = std::get_if<short>(&value)) return fmt::format("{}", *small);
  if (const auto* large = std::get_if<int>(&value)) return fmt::format("{}", *large);
  if (const auto* text = std::get_if<std::string>(&value)) return *text;
  return {};
}

std::string cellJson(const Cell& cell) {
  if (const auto* number = std::get_if<double>(&cell)) return jsonNumber(*number);
  return jsonString(cellText(cell));
}

std::string valueJson(const Value& value) {
  if (const auto* real = std::get_if<double>(&value)) return jsonNumber(*real);
  if (std::holds_alternative<std::string>(value)) return jsonString(valueText(value));
  if (const auto* array = std::get_if<ResultArray>(&value)) {
    JsonArray rows;
    for (const auto& cells : *array) {
      JsonArray row;
      for (const Cell& cell : cells) row.add(cellJson(cell));
      rows.add(row.text());
    }
    return rows.text();
  }
  return valueText(value);
}

bool isWritten(const Value& value) { return !std::holds_alternative<std::monostate>(value); }

// Calls f(parameter, value) for each output that was written.
template <class F>
void forEachOutput(const Outcome& outcome, F f) {
  if (outcome.call.isPut) return;
  const std::span<const Parameter> parameters = outcome.call.member->parameters();
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    const Value& value = outcome.call.arguments[i];
    if (parameters[i].isOutput() && isWritten(value)) f(parameters[i], value);
  }
}

std::string plainRows(const ResultArray& array) {
  std::vector<std::vector<std::string>> cells;
  for (const auto& row : array) {
    std::ranges::transform(row, std::back_inserter(cells.emplace_back()), cellText);
  }
  return aligned(cells);
}

// The rows of a spreadsheet variant under the tokens that asked for them. Which cells a row has
// beside its value (the label before it, the unit behind it) the client's settings decide.
std::vector<Equation> namedResults(const Outcome& outcome, const ResultArray& array) {
  const Member& member = *outcome.call.member;
  const std::size_t place = outcome.call.arguments.size() - 2;  // before the array
  const auto tokens = spreadsheet::readTokens(*variantOf(member),
                                              std::get<std::string>(outcome.call.arguments[place]));
  std::vector<Equation> lines;
  for (std::size_t i = 0; i < array.size() && i < tokens.size(); ++i) {
    const std::vector<Cell>& cells = array[i];
    const auto value = std::ranges::find_if(
        cells, [](const Cell& cell) { return std::holds_alternative<double>(cell); });
    if (value == cells.end()) continue;
    lines.push_back({std::string(tokens[i]->text), cellText(*value),
                     value + 1 == cells.end() ? std::string() : cellText(*(value + 1)),
                     value == cells.begin() ? std::string() : tokenWords(member, *tokens[i])});
  }
  return lines;
}

std::string_view kindName(ZvFunctionCall::Kind kind) {
  switch (kind) {
    case ZvFunctionCall::Kind::error:
      return "error: ";
    case ZvFunctionCall::Kind::warning:
      return "warning: ";
    case ZvFunctionCall::Kind::note:
      return "note: ";
    case ZvFunctionCall::Kind::externalError:
      return "external error: ";
    case ZvFunctionCall::Kind::root:
    case ZvFunctionCall::Kind::call:
      break;
  }
  return "";
}

std::string columnsText(const ZvFunctionCall& node) {
  if (node.columnValues().empty()) return {};
  return fmt::format("  [{}]", fmt::join(node.columnValues(), " | "));
}

void appendTrace(std::string& text, const ZvFunctionCall& node, std::size_t depth) {
  for (const auto* child = node.firstChild(); child != nullptr; child = child->nextSibling()) {
    // The engine's notes of the time are bare readings of the processor's clock.
    const bool isTime =
        child->kind() == ZvFunctionCall::Kind::note && child->text().starts_with("Time = ");
    text += fmt::format(
        "{:{}}{}{}{}{}\n", "", 2 * depth, kindName(child->kind()), child->text(),
        isTime ? fmt::format(" (processor clock, {} ticks a second)", CLOCKS_PER_SEC) : "",
        columnsText(*child));
    appendTrace(text, *child, depth + 1);
  }
}

}  // namespace

std::string aligned(const std::vector<std::vector<std::string>>& rows, std::size_t widest) {
  std::vector<std::size_t> widths;
  for (const auto& cells : rows) {
    widths.resize(std::max(widths.size(), cells.size()));
    for (std::size_t i = 0; i < cells.size(); ++i) {
      if (width(cells[i]) <= widest) widths[i] = std::max(widths[i], width(cells[i]));
    }
  }
  std::string text;
  for (const auto& cells : rows) {
    std::string line;
    for (std::size_t i = 0; i < cells.size(); ++i) {
      line += cells[i];
      line.append(std::max(widths[i], width(cells[i])) - width(cells[i]) + 2, ' ');
    }
    line.erase(line.find_last_not_of(' ') + 1);
    text += line + '\n';
  }
  return text;
}

std::string wrapped(std::string_view text, std::size_t columns) {
  std::string lines;
  while (text.size() > columns) {
    const std::size_t blank = std::min(text.rfind(' ', columns), text.find(' ', columns));
    if (blank == std::string_view::npos) break;
    lines += fmt::format("{}\n", text.substr(0, blank));
    text.remove_prefix(blank + 1);
  }
  return fmt::format("{}{}\n", lines, text);
}

std::string indented(std::string_view lines) {
  std::string text;
  while (!lines.empty()) {
    const std::string_view line = lines.substr(0, lines.find('\n'));
    text += fmt::format("  {}\n", line);
    lines.remove_prefix(std::min(lines.size(), line.size() + 1));
  }
  return text;
}

std::string equations(const std::vector<Equation>& lines) {
  std::size_t name = 0, value = 0, unit = 0;
  for (const Equation& line : lines) {
    name = std::max(name, width(line.name));
    value = std::max(value, width(line.value));
    unit = std::max(unit, width(line.unit));
  }
  const auto padded = [](std::string text, std::size_t to) {
    text.append(to - std::min(to, width(text)), ' ');
    return text;
  };
  std::string text;
  for (const Equation& line : lines) {
    std::string whole = padded(line.name, name) + " = " + padded(line.value, value);
    if (unit > 0) whole += " " + padded(line.unit, unit);
    if (!line.words.empty()) whole += "  " + line.words;
    whole.erase(whole.find_last_not_of(' ') + 1);
    text += whole + '\n';
  }
  return text;
}

std::string outcomeText(const Outcome& outcome, const UserUnits& units) {
  const Member& member = *outcome.call.member;
  std::vector<Equation> lines;
  std::string arrays;
  forEachOutput(outcome, [&](const Parameter& parameter, const Value& value) {
    if (const auto* array = std::get_if<ResultArray>(&value)) {
      if (variantOf(member) != nullptr) {
        const std::vector<Equation> results = namedResults(outcome, *array);
        lines.insert(lines.end(), results.begin(), results.end());
      } else {
        arrays += plainRows(*array);
      }
      return;
    }
    const ParameterExplanation explained = parameterExplanation(member, parameter);
    const std::string shown = valueText(value);
    lines.push_back({explained.label, shown.empty() ? "(empty)" : shown,
                     currentUnit(units, parameter.group), explained.words});
  });
  const std::string text = equations(lines) + arrays;
  return text.empty() && outcome.succeeded() ? "done\n" : text;
}

std::string outcomeJson(const Outcome& outcome, const UserUnits& units,
                        const ZvFunctionCall* trace) {
  const Member& member = *outcome.call.member;
  JsonObject object;
  object.add("member", jsonString(member.name));
  object.add("hresult", fmt::format("{}", static_cast<unsigned>(outcome.result.hresult)));
  if (member.style == ReturnStyle::success) {
    object.add("pSucc", fmt::format("{}", outcome.result.success));
  }
  JsonObject unitNames;
  forEachOutput(outcome, [&](const Parameter& parameter, const Value& value) {
    const std::string_view name = outputName(member, parameter);
    object.add(name, valueJson(value));
    if (parameter.hasUnit()) {
      unitNames.add(name, jsonString(currentUnit(units, parameter.group)));
    }
  });
  if (!unitNames.empty()) object.add("units", unitNames.text());
  if (!outcome.succeeded()) object.add("lastError", jsonString(outcome.lastError));
  if (!outcome.cause.empty()) object.add("cause", jsonString(outcome.cause));
  if (trace != nullptr) object.add("trace", traceJson(*trace));
  return object.text();
}

std::string errorJson(std::string_view text) {
  return JsonObject().add("error", jsonString(text)).text();
}

std::string errorJson(std::string_view text, int line, std::string_view source) {
  return JsonObject()
      .add("error", jsonString(text))
      .add("line", fmt::format("{}", line))
      .add("text", jsonString(source))
      .text();
}

std::string traceText(const ZvFunctionCall& root) {
  std::string text;
  appendTrace(text, root, 0);
  return text.empty() ? "trace: no call left a message (TraceLevel 2 also records notes)\n" : text;
}

std::string traceJson(const ZvFunctionCall& node) {
  JsonArray columns;
  for (const std::string& value : node.columnValues()) columns.add(jsonString(value));
  JsonArray children;
  for (const auto* child = node.firstChild(); child != nullptr; child = child->nextSibling()) {
    children.add(traceJson(*child));
  }
  return JsonObject()
      .add("text", jsonString(node.text()))
      .add("kind", fmt::format("{}", static_cast<int>(node.kind())))
      .add("columns", columns.text())
      .add("children", children.text())
      .text();
}

}  // namespace calvex::cli
