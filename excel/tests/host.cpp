#include "host.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <regex>
#include <utility>

namespace calvex::excel::test {

namespace {

Host* theHost = nullptr;

constexpr std::size_t mostArguments = 60;
using Invoker = XLOPER12* (*)(FARPROC, XLOPER12**);

template <std::size_t... I>
XLOPER12* invokeWith(FARPROC entry, [[maybe_unused]] XLOPER12** arguments,
                     std::index_sequence<I...>) {
  using Plain = XLOPER12*(WINAPI*)(std::remove_reference_t<decltype(arguments[I])>...);

  return reinterpret_cast<Plain>(reinterpret_cast<void*>(entry))(arguments[I]...);
}
template <std::size_t N>
XLOPER12* invokeN(FARPROC entry, XLOPER12** arguments) {
  return invokeWith(entry, arguments, std::make_index_sequence<N>());
}
template <std::size_t... N>
constexpr std::array<Invoker, sizeof...(N)> makeInvokers(std::index_sequence<N...>) {
  return {invokeN<N>...};
}
constexpr auto invokers = makeInvokers(std::make_index_sequence<mostArguments>());

std::wstring wide(const std::string& text) {
  std::wstring result(text.size(), L'\0');
  result.resize(static_cast<std::size_t>(
      MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), result.data(),
                          static_cast<int>(result.size()))));
  return result;
}

std::string narrow(const std::wstring& text) {
  std::string result(3 * text.size(), '\0');
  result.resize(static_cast<std::size_t>(
      WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), result.data(),
                          static_cast<int>(result.size()), nullptr, nullptr)));
  return result;
}

// "$A$1"
std::wstring cellName(const Address& cell) {
  std::wstring letters;
  for (int rest = cell.column + 1; rest > 0; rest = (rest - 1) / 26) {
    letters.insert(letters.begin(), static_cast<wchar_t>(L'A' + (rest - 1) % 26));
  }
  return L'$' + letters + L'$' + std::to_wstring(cell.row + 1);
}

std::wstring counted(const std::wstring& text) {
  return std::wstring(1, static_cast<wchar_t>(text.size())) + text;
}

std::wstring textIn(const XLOPER12& value) {
  EXPECT_EQ(value.xltype & xltypeMask, xltypeStr);
  if ((value.xltype & xltypeMask) != xltypeStr) return {};
  return {value.val.str + 1, static_cast<std::size_t>(value.val.str[0])};
}

Cell cellIn(const XLOPER12& value) {
  switch (value.xltype & xltypeMask) {
    case xltypeNum:
      return value.val.num;
    case xltypeStr:
      return narrow(textIn(value));
    case xltypeErr:
      return Error{ErrorKind::given, value.val.err};
    default:
      ADD_FAILURE() << "a result of type " << value.xltype;
      return LeftOut{};
  }
}

// What the host has behind a value while a call lasts.
struct Passed {
  std::vector<XLOPER12> cells;
  std::vector<std::unique_ptr<std::wstring>> texts;
  XLMREF12 reference{};

  void put(const Cell& cell, XLOPER12& to) {
    if (const auto* number = std::get_if<double>(&cell)) {
      to.xltype = xltypeNum;
      to.val.num = *number;
    } else if (const auto* text = std::get_if<std::string>(&cell)) {
      if (*text == "TRUE") {
        to.xltype = xltypeBool;
        to.val.xbool = 1;
        return;
      }
      texts.push_back(std::make_unique<std::wstring>(counted(wide(*text))));
      to.xltype = xltypeStr;
      to.val.str = texts.back()->data();
    } else if (const auto* error = std::get_if<Error>(&cell)) {
      to.xltype = xltypeErr;
      to.val.err = error->code;
    } else {
      to.xltype = std::holds_alternative<Blank>(cell) ? xltypeNil : xltypeMissing;
    }
  }
  void put(const Grid& grid, XLOPER12& to) {
    if (grid.cells.size() == 1) return put(grid.cells[0], to);
    cells.resize(grid.cells.size());
    for (std::size_t i = 0; i < cells.size(); ++i) put(grid.cells[i], cells[i]);
    to.xltype = xltypeMulti;
    to.val.array = {cells.data(), static_cast<RW>(grid.rows), static_cast<COL>(grid.columns)};
  }
};

}  // namespace

Host::Host() {
  EXPECT_EQ(theHost, nullptr);
  theHost = this;
  module_ = LoadLibraryA(CALVEX_XLL);
  if (module_ == nullptr) ADD_FAILURE() << "cannot load " << CALVEX_XLL << ": " << GetLastError();
}

Host::~Host() {
  FreeLibrary(module_);
  theHost = nullptr;
}

IDSHEET Host::sheetId(const std::wstring& name) {
  const auto [sheet, isNew] = sheets_.try_emplace(name, nextSheet_);
  if (isNew) ++nextSheet_;
  return sheet->second;
}

void Host::reopen() { sheets_.clear(); }

std::wstring Host::sheetOf(const XLOPER12& reference) {
  if ((reference.xltype & xltypeMask) == xltypeRef) {
    for (const auto& [name, id] : sheets_) {
      if (id == reference.val.mref.idSheet) return name;
    }
  }
  return caller_ ? caller_->first.sheet : activeSheet;
}

// The host's memory, counted until it comes back.
void Host::lend(const Cell& cell, XLOPER12* to) {
  Passed passed;
  passed.put(cell, *to);
  if (to->xltype == xltypeStr) {
    const std::wstring& text = *passed.texts[0];
    to->val.str = new wchar_t[text.size()];
    std::memcpy(to->val.str, text.data(), text.size() * sizeof(wchar_t));
    ++lent;
  }
}

void Host::lend(const Grid& grid, XLOPER12* to) {
  if (grid.cells.size() == 1) return lend(grid.cells[0], to);
  to->xltype = xltypeMulti;
  to->val.array = {new XLOPER12[grid.cells.size()], static_cast<RW>(grid.rows),
                   static_cast<COL>(grid.columns)};
  ++lent;
  for (std::size_t i = 0; i < grid.cells.size(); ++i) {
    to->val.array.lparray[i] = {};
    lend(grid.cells[i], &to->val.array.lparray[i]);
  }
}

void Host::takeBack(XLOPER12& value) {
  if (value.xltype == xltypeStr) {
    delete[] value.val.str;
  } else if (value.xltype == xltypeRef && value.val.mref.lpmref != nullptr) {
    delete value.val.mref.lpmref;
  } else if (value.xltype == xltypeMulti) {
    const auto count = static_cast<std::size_t>(value.val.array.rows) *
                       static_cast<std::size_t>(value.val.array.columns);
    for (std::size_t i = 0; i < count; ++i) takeBack(value.val.array.lparray[i]);
    delete[] value.val.array.lparray;
  } else {
    return;
  }
  value.xltype = xltypeNil;
  ++givenBack;
}

Cell Host::contents(const Address& cell) const {
  const auto found = cells.find(cell);
  return found == cells.end() ? Cell(Blank{}) : found->second;
}

// "A1", "$B$2:C7"
bool Host::refersTo(const std::wstring& name, const std::wstring& sheet, XLOPER12* result) {
  static const std::wregex pattern(L"\\$?([A-Z]{1,3})\\$?([0-9]+)(:\\$?([A-Z]{1,3})\\$?([0-9]+))?");
  std::wsmatch found;
  if (!std::regex_match(name, found, pattern)) return false;
  const auto place = [&](std::size_t letters) {
    int column = 0;
    for (const wchar_t c : found.str(letters)) column = 26 * column + (c - L'A' + 1);
    return std::pair(std::stoi(found.str(letters + 1)) - 1, column - 1);
  };
  const auto [row, column] = place(1);
  const auto [lastRow, lastColumn] = found[3].matched ? place(4) : std::pair(row, column);
  refer({sheet, row, column}, lastRow - row + 1, lastColumn - column + 1, result);
  return true;
}

void Host::refer(const Address& where, int rows, int columns, XLOPER12* to) {
  const XLREF12 rectangle{where.row, where.row + rows - 1, where.column,
                          where.column + columns - 1};
  if (shortReferences && caller_ && caller_->first.sheet == where.sheet) {
    to->xltype = xltypeSRef;
    to->val.sref.count = 1;
    to->val.sref.ref = rectangle;
    return;
  }
  to->xltype = xltypeRef;
  to->val.mref.idSheet = sheetId(where.sheet);
  to->val.mref.lpmref = new XLMREF12{1, {rectangle}};
  ++lent;
}

int Host::evaluate(const std::wstring& expression, XLOPER12* result) {
  const std::size_t sign = expression.rfind(L'!');
  if (sign == std::wstring::npos) {
    lend(Error{ErrorKind::given, xlerrName}, result);
    return xlretSuccess;
  }
  std::wstring sheet = expression.substr(0, sign);
  if (sheet.empty()) {
    sheet = activeSheet;
  } else if (sheet.front() != L'\'') {
    sheet = activeSheet.substr(0, activeSheet.find(L']') + 1) + sheet;
  } else {
    EXPECT_EQ(sheet.back(), L'\'');
    sheet = sheet.substr(1, sheet.size() - 2);
    for (std::size_t i = 0; (i = sheet.find(L'\'', i)) != std::wstring::npos; ++i) {
      EXPECT_EQ(sheet.substr(i, 2), L"''");
      sheet.erase(i, 1);
    }
  }
  const std::wstring name = expression.substr(sign + 1);
  if (refersTo(name, sheet, result)) return xlretSuccess;
  const std::wstring book = sheet.substr(1, sheet.find(L']') - 1);
  const auto found = unitNames.find(book);
  if (name != L"Calvex_Units" || found == unitNames.end()) {
    lend(Error{ErrorKind::given, xlerrName}, result);
  } else if (const auto* text = std::get_if<std::wstring>(&found->second)) {
    lend(narrow(*text), result);
  } else if (const auto* error = std::get_if<Error>(&found->second)) {
    lend(*error, result);
  } else if (namesAreValues) {
    const Cell cell = contents(std::get<Address>(found->second));
    lend(std::holds_alternative<Blank>(cell) ? Cell(0.0) : cell, result);
  } else {
    refer(std::get<Address>(found->second), 1, 1, result);
  }
  return xlretSuccess;
}

int Host::registration(int count, XLOPER12** arguments, XLOPER12* result) {
  if (refusesRegistration) return xlretFailed;
  const auto text = [&](int i) {
    if (i >= count || (arguments[i]->xltype & xltypeMask) == xltypeMissing) return std::wstring();
    return textIn(*arguments[i]);
  };
  RegisteredFunction function;
  function.module = text(0);
  function.procedure = text(1);
  function.types = text(2);
  function.name = text(3);
  function.argumentNames = text(4);
  function.macroType = arguments[5]->val.num;
  function.category = text(6);
  function.help = text(9);
  for (int i = 10; i < count; ++i) function.argumentHelp.push_back(text(i));
  function.entry = GetProcAddress(module_, narrow(function.procedure).c_str());
  function.handle = static_cast<double>(1000 + functions.size());
  lend(function.handle, result);
  functions[function.name] = std::move(function);
  return xlretSuccess;
}

int Host::callback(int function, int count, XLOPER12** arguments, XLOPER12* result) {
  ++callbacks;
  switch (function) {
    case xlFree:
      for (int i = 0; i < count; ++i) takeBack(*arguments[i]);
      return xlretSuccess;
    case xlGetName:
      lend(std::string(CALVEX_XLL), result);
      return xlretSuccess;
    case xlfRegister:
      return registration(count, arguments, result);
    case xlfUnregister:
      std::erase_if(functions,
                    [&](const auto& one) { return one.second.handle == arguments[0]->val.num; });
      lend(1.0, result);
      return xlretSuccess;
    case xlfSetName:
      deletedNames.push_back(textIn(*arguments[0]));
      lend(1.0, result);
      return xlretSuccess;
    case xlfCaller:
      if (caller_) {
        refer(caller_->first, caller_->rows, caller_->columns, result);
      } else {
        lend(Error{ErrorKind::given, xlerrRef}, result);
      }
      return xlretSuccess;
    case xlSheetNm:
      lend(narrow(sheetOf(*arguments[0])), result);
      return xlretSuccess;
    case xlSheetId:
      result->xltype = xltypeRef;
      result->val.mref = {nullptr, sheetId(textIn(*arguments[0]))};
      return xlretSuccess;
    case xlfGetCell: {
      EXPECT_TRUE(isMacroFunction_) << "only functions with # may ask about cells";
      EXPECT_EQ(arguments[0]->val.num, 6);
      const XLREF12& at = arguments[1]->val.mref.lpmref->reftbl[0];
      const Address cell{sheetOf(*arguments[1]), at.rwFirst, at.colFirst};
      const auto formula = formulas.find(cell);
      const auto* text = formula == formulas.end() ? nullptr : &formula->second;
      lend(text == nullptr ? std::string() : narrow(*text), result);
      return xlretSuccess;
    }
    case xlfGetName: {
      EXPECT_TRUE(isMacroFunction_) << "only functions with # may ask for names";
      const std::wstring expression = textIn(*arguments[0]);
      const std::size_t end = expression.find(L']');
      const std::wstring book = end == std::wstring::npos
                                    ? activeSheet.substr(1, activeSheet.find(L']') - 1)
                                    : expression.substr(2, end - 2);
      const auto found = unitNames.find(book);
      if (found == unitNames.end()) {
        lend(Error{ErrorKind::given, xlerrNA}, result);
      } else if (const auto* at = std::get_if<Address>(&found->second)) {
        lend(narrow(L"=" + at->sheet.substr(at->sheet.find(L']') + 1) + L"!R" +
                    std::to_wstring(at->row + 1) + L"C" + std::to_wstring(at->column + 1)),
             result);
      } else {
        lend(std::string("=\"...\""), result);
      }
      return xlretSuccess;
    }
    case xlfEvaluate:
      EXPECT_TRUE(isMacroFunction_) << "only functions with # may ask for names";
      return evaluate(textIn(*arguments[0]), result);
    case xlCoerce: {
      const XLOPER12& from = *arguments[0];
      const DWORD type = from.xltype & xltypeMask;
      if (type == xltypeRef || type == xltypeSRef) {
        const XLREF12& at = type == xltypeRef ? from.val.mref.lpmref->reftbl[0] : from.val.sref.ref;
        const Cell value = contents({sheetOf(from), at.rwFirst, at.colFirst});
        if (at.rwFirst != at.rwLast || at.colFirst != at.colLast) {
          Grid grid(static_cast<std::size_t>(at.rwLast - at.rwFirst + 1),
                    static_cast<std::size_t>(at.colLast - at.colFirst + 1));
          for (std::size_t i = 0; i < grid.cells.size(); ++i) {
            grid.cells[i] =
                contents({sheetOf(from), at.rwFirst + static_cast<int>(i / grid.columns),
                          at.colFirst + static_cast<int>(i % grid.columns)});
          }
          lend(grid, result);
          return xlretSuccess;
        }
        const bool wantsText = count > 1 && static_cast<DWORD>(arguments[1]->val.num) == xltypeStr;
        if (wantsText && std::holds_alternative<Error>(value)) return xlretFailed;
        lend(wantsText && !std::holds_alternative<std::string>(value) ? Cell(std::string()) : value,
             result);
        return xlretSuccess;
      }
      if (type == xltypeNum && count > 1 &&
          static_cast<DWORD>(arguments[1]->val.num) == xltypeInt) {
        result->xltype = xltypeInt;
        result->val.w = static_cast<int>(from.val.num);
        return xlretSuccess;
      }
      return xlretFailed;
    }
    default:
      ADD_FAILURE() << "callback " << function;
      return xlretFailed;
  }
}

Grid Host::invoke(const RegisteredFunction& function, std::vector<Given>& arguments) {
  // The result's letter, a letter for each argument, then what the function may do.
  const std::wstring letters = function.types.substr(1, function.types.find_last_of(L"QU"));
  EXPECT_LE(arguments.size(), letters.size());
  EXPECT_LT(letters.size(), mostArguments);
  arguments.resize(letters.size(), Given(Grid()));
  std::vector<Passed> passed(letters.size());
  std::vector<XLOPER12> values(letters.size());
  std::vector<XLOPER12*> pointers;
  for (std::size_t i = 0; i < letters.size(); ++i) {
    if (const auto* address = std::get_if<Address>(&arguments[i])) {
      if (letters[i] == L'U') {
        refer(*address, 1, 1, &values[i]);
        if (values[i].xltype == xltypeRef) {
          passed[i].reference = *values[i].val.mref.lpmref;
          delete values[i].val.mref.lpmref;
          --lent;
          values[i].val.mref.lpmref = &passed[i].reference;
        }
      } else {
        passed[i].put(contents(*address), values[i]);
      }
    } else {
      passed[i].put(std::get<Grid>(arguments[i]), values[i]);
    }
    pointers.push_back(&values[i]);
  }
  isMacroFunction_ = function.types.back() == L'#';
  XLOPER12* const result = invokers[letters.size()](function.entry, pointers.data());
  isMacroFunction_ = false;
  ++results;
  Grid grid;
  if ((result->xltype & xltypeMask) == xltypeMulti) {
    grid = Grid(static_cast<std::size_t>(result->val.array.rows),
                static_cast<std::size_t>(result->val.array.columns));
    for (std::size_t i = 0; i < grid.cells.size(); ++i) {
      grid.cells[i] = cellIn(result->val.array.lparray[i]);
    }
  } else {
    grid = cellIn(*result);
  }
  if ((result->xltype & xlbitDLLFree) != 0) {
    entry<void(WINAPI*)(XLOPER12*)>("xlAutoFree12")(result);
    ++freedResults;
  }
  return grid;
}

namespace {

std::wstring written(const Cell& cell) {
  if (const auto* number = std::get_if<double>(&cell)) return std::to_wstring(*number);
  if (const auto* text = std::get_if<std::string>(&cell)) return L'"' + wide(*text) + L'"';
  if (const auto* error = std::get_if<Error>(&cell)) return L"#ERR" + std::to_wstring(error->code);
  return {};
}

// "=HPT(A1,773.15)"; arrays by their first cell and size.
std::wstring written(const std::wstring& name, const std::vector<Given>& arguments) {
  std::wstring text = L"=" + name + L'(';
  for (const Given& given : arguments) {
    if (&given != arguments.data()) text += L',';
    if (const auto* cell = std::get_if<Address>(&given)) {
      text += cellName(*cell);
    } else {
      const Grid& grid = std::get<Grid>(given);
      text += L'{' + written(grid.cells[0]) + L'}' + std::to_wstring(grid.rows) + L'*' +
              std::to_wstring(grid.columns);
    }
  }
  return text + L')';
}

}  // namespace

Grid Host::calculate(const Address& where, const std::wstring& name, std::vector<Given> arguments,
                     int rows, int columns, const std::wstring& typed) {
  const auto function = functions.find(name);
  if (function == functions.end()) {
    ADD_FAILURE() << "no function " << narrow(name);
    return {};
  }
  caller_ = Caller{where, rows, columns};
  const std::wstring formula = typed.empty() ? written(name, arguments) : typed;
  for (int i = 0; i < rows; ++i) {
    for (int j = 0; j < columns; ++j) {
      formulas[{where.sheet, where.row + i, where.column + j}] = formula;
    }
  }
  const Grid grid = invoke(function->second, arguments);
  caller_.reset();
  for (std::size_t i = 0; i < grid.rows; ++i) {
    for (std::size_t j = 0; j < grid.columns; ++j) {
      const Address cell{where.sheet, where.row + static_cast<int>(i),
                         where.column + static_cast<int>(j)};
      cells[cell] = grid.element({i, j});
      if (spilledCellsHaveFormulas) formulas[cell] = formula;
    }
  }
  return grid;
}

Grid Host::run(const std::wstring& name, std::vector<Given> arguments) {
  return invoke(functions.at(name), arguments);
}

std::string Host::text(const Address& where, const std::wstring& name,
                       std::vector<Given> arguments) {
  return textOf(calculate(where, name, std::move(arguments)));
}

double memoryInUse() {
  HANDLE heaps[64];
  const DWORD count = GetProcessHeaps(64, heaps);
  EXPECT_LE(count, 64U);
  double used = 0;
  for (DWORD i = 0; i < std::min<DWORD>(count, 64); ++i) {
    PROCESS_HEAP_ENTRY entry{};
    while (HeapWalk(heaps[i], &entry) != 0) {
      if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) used += entry.cbData;
    }
  }
  EXPECT_GT(used, 1e4);
  return used / 1e6;
}

double numberOf(const Grid& grid, std::size_t row, std::size_t column) {
  const Cell cell = grid.element({row, column});
  const auto* number = std::get_if<double>(&cell);
  return number != nullptr ? *number : std::numeric_limits<double>::quiet_NaN();
}

int errorOf(const Grid& grid, std::size_t row, std::size_t column) {
  const Cell cell = grid.element({row, column});
  const auto* error = std::get_if<Error>(&cell);
  return error != nullptr ? error->code : -1;
}

std::string textOf(const Grid& grid, std::size_t row, std::size_t column) {
  const Cell cell = grid.element({row, column});
  const auto* text = std::get_if<std::string>(&cell);
  return text != nullptr ? *text : std::string("(no text)");
}

}  // namespace calvex::excel::test

extern "C" __declspec(dllexport) int WINAPI
    MdCallBack12(int function, int count, calvex::excel::XLOPER12** arguments,
                 calvex::excel::XLOPER12* result) {
  return calvex::excel::test::theHost == nullptr
             ? calvex::excel::xlretFailed
             : calvex::excel::test::theHost->callback(function, count, arguments, result);
}
