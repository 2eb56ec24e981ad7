#include "workbook.h"

#include <algorithm>
#include <map>

#include "worksheet/texts.h"

namespace calvex::excel {

using worksheet::Grid;

namespace {

std::wstring_view trimmed(std::wstring_view text) {
  const std::size_t begin = text.find_first_not_of(L' ');
  if (begin == std::wstring_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(L' ') + 1 - begin);
}

// A sheet's name without the quotes that it has in formulas: "It's mine" of "'It''s mine'".
std::wstring plainSheet(std::wstring_view written) {
  std::wstring sheet(written);
  if (sheet.size() > 1 && sheet.front() == L'\'' && sheet.back() == L'\'') {
    sheet = sheet.substr(1, sheet.size() - 2);
    for (std::size_t i = 0; (i = sheet.find(L"''", i)) != std::wstring::npos; ++i) {
      sheet.erase(i, 1);
    }
  }
  return sheet;
}

// What a word means to cells of a sheet, as an expression: "'[Book1.xlsx]Sheet1'!A1"; without a
// sheet what it means to the active one.
std::wstring expressionOf(std::wstring_view word, const std::optional<CellRange>& where) {
  if (!where || word.find(L'[') != std::wstring_view::npos) {
    return (where ? L"" : L"!") + std::wstring(word);
  }
  std::wstring sheet = where->sheet;
  if (const std::size_t sign = word.rfind(L'!'); sign != std::wstring_view::npos) {
    sheet.resize(sheet.find(L']') + 1);
    sheet += plainSheet(word.substr(0, sign));
    word.remove_prefix(sign + 1);
  }
  std::wstring expression = L"'";
  for (const wchar_t c : sheet) expression += c == L'\'' ? L"''" : std::wstring(1, c);
  return (expression += L"'!").append(word);
}

std::wstring unitsExpression(const std::optional<CellRange>& where) {
  return expressionOf(toWide(unitsName), where);
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

// By their units.
std::map<std::string, std::shared_ptr<Engine>>& engines() {
  static std::map<std::string, std::shared_ptr<Engine>> made;
  return made;
}

// A reference to the first of some cells, for calls of the host.
class FirstCell {
 public:
  explicit FirstCell(const CellRange& cells) : area_{1, {cells.cells}} {
    area_.reftbl[0].rwLast = cells.cells.rwFirst;
    area_.reftbl[0].colLast = cells.cells.colFirst;
    Answer sheet;
    if (!call(xlSheetId, sheet, {std::wstring_view(cells.sheet)}) || sheet.type() != xltypeRef) {
      return;
    }
    reference_.xltype = xltypeRef;
    reference_.val.mref = {&area_, sheet.value().val.mref.idSheet};
  }
  FirstCell(const FirstCell&) = delete;
  FirstCell& operator=(const FirstCell&) = delete;
  /// Whether there is still such a sheet.
  [[nodiscard]] bool exists() const { return reference_.xltype == xltypeRef; }
  [[nodiscard]] Argument argument() const { return reference_; }
  [[nodiscard]] IDSHEET sheet() const { return exists() ? reference_.val.mref.idSheet : 0; }

 private:
  XLMREF12 area_;
  XLOPER12 reference_{.val = {}, .xltype = xltypeMissing};
};

std::size_t sizeOf(const XLREF12& cells) {
  return static_cast<std::size_t>(cells.rwLast - cells.rwFirst + 1) *
         static_cast<std::size_t>(cells.colLast - cells.colFirst + 1);
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

std::wstring formulaOf(const CellRange& cells) {
  constexpr double asFormula = 6;
  const FirstCell cell(cells);
  Answer formula;
  if (!cell.exists() || !call(xlfGetCell, formula, {asFormula, cell.argument()}) ||
      !formula.isText())
    return {};
  return std::wstring(formula.text());
}

std::uint64_t sheetNumberOf(const CellRange& cells) { return FirstCell(cells).sheet(); }

Grid valueOf(std::wstring_view name, const CellRange& cells) {
  const std::wstring expression = expressionOf(name, cells);
  Answer value, contents;
  if (!call(xlfEvaluate, value, {std::wstring_view(expression)})) return {};
  if (!value.isReference()) return gridOf(value.value());
  constexpr std::size_t most = 1000;  // a formula with more than that is calculated for each change
  const auto range = rangeOf(value.value());
  if (!range || sizeOf(range->cells) > most || !call(xlCoerce, contents, {value.value()}))
    return {};
  return gridOf(contents.value());
}

std::optional<int> shownErrorOf(const CellRange& cells) {
  const FirstCell cell(cells);
  Answer contents;
  if (!cell.exists() || !call(xlCoerce, contents, {cell.argument()})) return {};
  if (contents.type() != xltypeErr) return {};
  return contents.value().val.err;
}

WorkbookUnits unitsOf(const std::optional<CellRange>& where) {
  const std::wstring expression = unitsExpression(where);
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
  const std::wstring definition = definitionOf(unitsExpression(cell));
  const std::size_t sign = definition.rfind(L'!');
  if (sign == std::wstring::npos || definition[0] != L'=') return false;
  const std::wstring place = definition.substr(sign + 1);
  const std::wstring row = std::to_wstring(cell.cells.rwFirst + 1);
  const bool isPlace = place == L"R" + row + L"C" + std::to_wstring(cell.cells.colFirst + 1) ||
                       place == L"$" + columnLetters(cell.cells.colFirst) + L"$" + row;
  const std::wstring sheet = plainSheet(definition.substr(1, sign - 1));
  const auto plain = [](const std::wstring& name) { return name.substr(name.find(L']') + 1); };
  return isPlace && plain(sheet) == plain(cell.sheet);
}

std::shared_ptr<Engine> engineOf(const std::string& units) {
  if (const auto known = engines().find(units); known != engines().end()) return known->second;
  auto engine = std::make_shared<Engine>();
  worksheet::setUnits(*engine, worksheet::readUnits(units));
  return engines().emplace(units, std::move(engine)).first->second;
}

void forgetEngines() { engines().clear(); }

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

}  // namespace calvex::excel
