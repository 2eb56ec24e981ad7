/// \file
/// A host for the add-in: workbooks with cells and names, and the callbacks that Microsoft's
/// reference describes. It is not Excel; where the reference leaves a choice, it does the worst.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "worksheet/cells.h"
#include "xloper.h"

namespace calvex::excel::test {

using worksheet::Blank;
using worksheet::Cell;
using worksheet::Error;
using worksheet::ErrorKind;
using worksheet::Grid;
using worksheet::LeftOut;

/// A cell by sheet ("[Book1.xlsx]Sheet1"), row and column from 0.
struct Address {
  std::wstring sheet;
  int row = 0;
  int column = 0;
  auto operator<=>(const Address&) const = default;
};

struct RegisteredFunction {
  std::wstring module, procedure, types, name, argumentNames, category, help;
  double macroType = 0;
  std::vector<std::wstring> argumentHelp;
  FARPROC entry = nullptr;
  double handle = 0;
};

/// An argument of a call: values, or the cells themselves for a function that takes references.
struct Given : std::variant<Grid, Address> {
  Given(double number) : variant(Grid(Cell(number))) {}    // NOLINT: arguments stand as they are
  Given(Cell cell) : variant(Grid(std::move(cell))) {}     // NOLINT
  Given(Grid grid) : variant(std::move(grid)) {}           // NOLINT
  Given(Address address) : variant(std::move(address)) {}  // NOLINT
};

class Host {
 public:
  Host();
  ~Host();
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;

  std::map<std::wstring, RegisteredFunction> functions;
  std::map<Address, Cell> cells;
  /// Of cells that functions calculate, as these are called, or as somebody typed them.
  std::map<Address, std::wstring> formulas;
  /// By workbook ("Book1.xlsx"): what the name Calvex_Units is, a text or a cell.
  std::map<std::wstring, std::variant<std::wstring, Address, Error>> unitNames;
  std::wstring activeSheet = L"[Book1.xlsx]Sheet1";
  std::vector<std::wstring> deletedNames;
  bool refusesRegistration = false;
  bool namesAreValues = false;            ///< a name that refers to a cell gives what is in it
  bool shortReferences = false;           ///< to cells of the calling sheet
  bool spilledCellsHaveFormulas = false;  ///< that of the cell which the result is from

  // What is counted.
  int results = 0;       ///< that functions answered
  int freedResults = 0;  ///< given back to the add-in
  int lent = 0;          ///< values with memory that the host answered
  int givenBack = 0;     ///< of these
  int callbacks = 0;

  /// Calls a function as the formula of those cells does; the first has its value afterwards. The
  /// formula is made of the call, or `typed` where that is more than one call.
  Grid calculate(const Address& where, const std::wstring& name, std::vector<Given> arguments,
                 int rows = 1, int columns = 1, const std::wstring& typed = {});
  /// Closes all workbooks and opens others of the same names, with the same in their cells.
  void reopen();
  /// Calls it as a macro does.
  Grid run(const std::wstring& name, std::vector<Given> arguments);
  std::string text(const Address& where, const std::wstring& name, std::vector<Given> arguments);

  [[nodiscard]] HMODULE module() const { return module_; }
  int callback(int function, int count, XLOPER12** arguments, XLOPER12* result);
  template <class Function>
  [[nodiscard]] Function entry(const char* name) const {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module_, name)));
  }

 private:
  HMODULE module_ = nullptr;
  struct Caller {
    Address first;
    int rows, columns;
  };
  std::optional<Caller> caller_;
  bool isMacroFunction_ = false;
  std::map<std::wstring, IDSHEET> sheets_;
  IDSHEET nextSheet_ = 1000;

  IDSHEET sheetId(const std::wstring& name);
  std::wstring sheetOf(const XLOPER12& reference);
  void refer(const Address& where, int rows, int columns, XLOPER12* to);
  void lend(const Cell& cell, XLOPER12* to);
  void lend(const Grid& grid, XLOPER12* to);
  void takeBack(XLOPER12& value);
  Cell contents(const Address& cell) const;
  bool refersTo(const std::wstring& name, const std::wstring& sheet, XLOPER12* result);
  int evaluate(const std::wstring& expression, XLOPER12* result);
  int registration(int count, XLOPER12** arguments, XLOPER12* result);
  Grid invoke(const RegisteredFunction& function, std::vector<Given>& arguments);
};

/// What is in use of all heaps of the process, the add-in's included, in MB.
[[nodiscard]] double memoryInUse();
/// A number in a cell, or NaN.
[[nodiscard]] double numberOf(const Grid& grid, std::size_t row = 0, std::size_t column = 0);
/// The host's number of an error, or -1.
[[nodiscard]] int errorOf(const Grid& grid, std::size_t row = 0, std::size_t column = 0);
[[nodiscard]] std::string textOf(const Grid& grid, std::size_t row = 0, std::size_t column = 0);

}  // namespace calvex::excel::test
