#include "workbook.h"

#include <algorithm>
#include <map>

#include "worksheet/texts.h"

namespace calvex::excel {

using worksheet::Grid;
using worksheet::Place;

namespace {

std::wstring_view trimmed(std::wstring_view text) {
  const std::size_t begin = text.find_first_not_of(L' ');
  if (begin == std::wstring_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(L' ') + 1 - begin);
}

// A unit as the catalogue names it, "T=°C".
std::pair<int, std::string> namedUnit(std::string_view group, std::string_view unit) {
  Engine engine;
  engine.unit(group, unit);
  int number = 0;
  calvex_find_group(group.data(), group.size(), &number);
  return {number, engine.unit(group)};
}

std::string joined(const std::map<int, std::string>& units) {
  std::string text;
  for (const auto& [group, unit] : units) {
    const int number = group;
    if (!text.empty()) text += "; ";
    text += worksheet::textOf([&](char* name, std::size_t size, std::size_t* needed) {
      calvex_group_text(number, CALVEX_GROUP_KEYWORD, name, size, needed);
    });
    text += '=' + unit;
  }
  return text;
}

// The name of a sheet's workbook as an expression; without a sheet that of the active one.
std::wstring nameExpression(const std::optional<CellRange>& where) {
  std::wstring expression = L"!";
  if (where) {
    expression = L"'";
    for (const wchar_t c : where->sheet) expression += c == L'\'' ? L"''" : std::wstring(1, c);
    expression += L"'!";
  }
  return expression + toWide(unitsName);
}

// What the name is defined as, "=Sheet1!R3C1"; empty when there is none.
std::wstring definitionOf(const std::wstring& expression) {
  Answer definition;
  if (!call(xlfGetName, definition, {std::wstring_view(expression)}) || !definition.isText()) {
    return {};
  }
  return std::wstring(definition.text());
}

std::wstring columnLetters(COL column) {
  std::wstring letters;
  for (int rest = column + 1; rest > 0; rest = (rest - 1) / 26) {
    letters.insert(letters.begin(), static_cast<wchar_t>(L'A' + (rest - 1) % 26));
  }
  return letters;
}

struct KeptFailure {
  XLREF12 cells;
  Place size;
  Failure failure;
};

// By sheet, then by the first cell.
using Failures = std::map<std::wstring, std::map<std::pair<RW, COL>, KeptFailure>, std::less<>>;
Failures& failures() {
  static Failures kept;
  return kept;
}

}  // namespace

std::optional<CellRange> rangeOf(const XLOPER12& reference) {
  CellRange range;
  switch (reference.xltype & xltypeMask) {
    case xltypeSRef:
      range.cells = reference.val.sref.ref;
      break;
    case xltypeRef:
      if (reference.val.mref.lpmref == nullptr || reference.val.mref.lpmref->count == 0) return {};
      range.cells = reference.val.mref.lpmref->reftbl[0];
      break;
    default:
      return {};
  }
  Answer sheet;
  if (!call(xlSheetNm, sheet, {reference}) || !sheet.isText()) return {};
  range.sheet = sheet.text();
  return range;
}

std::optional<CellRange> caller() {
  Answer reference;
  if (!call(xlfCaller, reference) || !reference.isReference()) return {};
  return rangeOf(reference.value());
}

std::string unitsText(std::span<const Grid> words) {
  std::size_t count = words.size();
  const auto given = [&](std::size_t i) {
    return i < words.size() ? words[i].element({}) : worksheet::Cell();
  };
  while (count > 0 && std::holds_alternative<worksheet::LeftOut>(given(count - 1))) --count;
  std::map<int, std::string> units;
  for (std::size_t i = 0; i < count; i += 2) {
    const worksheet::Cell group = given(i), unit = given(i + 1);
    if (!std::holds_alternative<std::string>(group) || !std::holds_alternative<std::string>(unit)) {
      throw Error(CALVEX_VALUE, "it takes texts in pairs: a quantity, then its unit");
    }
    const auto [number, name] =
        namedUnit(std::get<std::string>(group), std::get<std::string>(unit));
    units.insert_or_assign(number, name);
  }
  return joined(units);
}

WorkbookUnits unitsOf(const std::optional<CellRange>& where) {
  const std::wstring expression = nameExpression(where);
  WorkbookUnits units;
  const std::string name(unitsName);
  Answer named, contents;
  if (!call(xlfEvaluate, named, {std::wstring_view(expression)})) {
    units.fault = "The name " + name + " cannot be read.";
    return units;
  }
  const Answer* text = &named;
  if (named.isReference()) {
    units.source = rangeOf(named.value());
    if (!call(xlCoerce, contents, {named.value(), static_cast<double>(xltypeStr)})) {
      units.fault = "The cell of the name " + name + " cannot be read.";
      return units;
    }
    text = &contents;
  } else if (named.type() == xltypeErr && named.value().val.err == xlerrName &&
             definitionOf(expression).empty()) {
    return units;  // there is no such name; a cell that it refers to may have the same error
  }
  if (!text->isText() || trimmed(text->text()).empty()) {
    units.fault = "The name " + name +
                  " has no units: it must be a text such as T=C; P=bar or refer to a cell with "
                  "CALVEX.UNITS.";
    return units;
  }
  units.text = toUtf8(trimmed(text->text()));
  return units;
}

bool namesUnits(const CellRange& cell) {
  std::wstring definition = definitionOf(nameExpression(cell));
  const std::size_t sign = definition.rfind(L'!');
  if (sign == std::wstring::npos || definition[0] != L'=') return false;
  const std::wstring place = definition.substr(sign + 1);
  const std::wstring row = std::to_wstring(cell.cells.rwFirst + 1);
  const bool isPlace = place == L"R" + row + L"C" + std::to_wstring(cell.cells.colFirst + 1) ||
                       place == L"$" + columnLetters(cell.cells.colFirst) + L"$" + row;
  // "=Sheet1", "='[Book1.xlsx]It''s mine'"
  std::wstring sheet = definition.substr(1, sign - 1);
  if (sheet.size() > 1 && sheet.front() == L'\'' && sheet.back() == L'\'') {
    sheet = sheet.substr(1, sheet.size() - 2);
    for (std::size_t i = 0; (i = sheet.find(L"''", i)) != std::wstring::npos; ++i)
      sheet.erase(i, 1);
  }
  const auto plain = [](const std::wstring& name) { return name.substr(name.find(L']') + 1); };
  return isPlace && plain(sheet) == plain(cell.sheet);
}

std::shared_ptr<Engine> engineOf(const std::string& units) {
  static std::map<std::string, std::shared_ptr<Engine>> engines;
  if (const auto known = engines.find(units); known != engines.end()) return known->second;
  auto engine = std::make_shared<Engine>();
  std::string_view rest = units;
  while (!rest.empty()) {
    std::string_view part = rest.substr(0, rest.find(';'));
    rest.remove_prefix(std::min(rest.size(), part.size() + 1));
    const std::size_t begin = part.find_first_not_of(' ');
    if (begin == std::string_view::npos) continue;
    part = part.substr(begin, part.find_last_not_of(' ') + 1 - begin);
    const std::size_t sign = part.find('=');
    if (sign == std::string_view::npos) {
      throw Error(CALVEX_VALUE,
                  "\"" + std::string(part) + "\" is not a quantity, a sign = and a unit.");
    }
    engine->unit(part.substr(0, sign), part.substr(sign + 1));
  }
  return engines.emplace(units, std::move(engine)).first->second;
}

bool sameUnits(const std::string& a, const std::string& b) {
  try {
    const auto first = engineOf(a), second = engineOf(b);
    const auto unit = [](const Engine& engine, int group) {
      return worksheet::textOf([&](char* name, std::size_t size, std::size_t* needed) {
        calvex_unit(engine.handle(), group, name, size, needed);
      });
    };
    std::size_t count = 0;
    calvex_group_count(&count);
    for (int group = 0; group < static_cast<int>(count); ++group) {
      if (unit(*first, group) != unit(*second, group)) return false;
    }
    return true;
  } catch (const Error&) {
    return false;
  }
}

void keepFailure(const CellRange& cells, Place size, Failure failure) {
  failures()[cells.sheet].insert_or_assign({cells.cells.rwFirst, cells.cells.colFirst},
                                           KeptFailure{cells.cells, size, std::move(failure)});
}

void forgetFailure(const CellRange& cells, const worksheet::Signature* signature) {
  const auto sheet = failures().find(cells.sheet);
  if (sheet == failures().end()) return;
  const auto kept = sheet->second.find({cells.cells.rwFirst, cells.cells.colFirst});
  if (kept == sheet->second.end()) return;
  const auto* failed = std::get_if<FailedCall>(&kept->second.failure);
  const worksheet::Signature* of = failed != nullptr ? failed->signature : nullptr;
  if (of == signature) sheet->second.erase(kept);
}

void forgetAllFailures() { failures().clear(); }

std::optional<FoundFailure> findFailure(const CellRange& cell) {
  const auto sheet = failures().find(cell.sheet);
  if (sheet == failures().end()) return {};
  const RW row = cell.cells.rwFirst;
  const COL column = cell.cells.colFirst;
  const auto elementIn = [&](const KeptFailure& kept) -> std::optional<FoundFailure> {
    if (row < kept.cells.rwFirst || column < kept.cells.colFirst) return {};
    Place element{static_cast<std::size_t>(row - kept.cells.rwFirst),
                  static_cast<std::size_t>(column - kept.cells.colFirst)};
    const bool isInside = row <= kept.cells.rwLast && column <= kept.cells.colLast;
    const bool isSpilled = element.row < kept.size.row && element.column < kept.size.column;
    if (!isInside && !isSpilled) return {};
    if (kept.size.row == 1) element.row = 0;  // the host repeats a single row or column
    if (kept.size.column == 1) element.column = 0;
    return FoundFailure{&kept.failure, element};
  };
  if (const auto own = sheet->second.find({row, column}); own != sheet->second.end()) {
    return elementIn(own->second);
  }
  for (const auto& [place, kept] : sheet->second) {
    if (const auto found = elementIn(kept)) return found;
  }
  return {};
}

}  // namespace calvex::excel
