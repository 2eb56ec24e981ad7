/// \file
/// What is known of the workbook that calls: what stands in its cells, and its units.
///
/// A workbook's units are in its name Calvex_Units, which is a text ("T=°C; P=bar") or refers to a
/// cell with CALVEX.UNITS. They are read with every call, so that nothing has to be kept in step.
#pragma once

#include <calvex/calvex.hpp>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "host.h"
#include "worksheet/calculation.h"
#include "worksheet/units.h"

namespace calvex::excel {

inline constexpr std::string_view unitsName = "Calvex_Units";

/// Cells of a sheet.
struct CellRange {
  std::wstring sheet;  ///< "[Book1.xlsx]Sheet1"
  XLREF12 cells{};

  [[nodiscard]] bool isAt(const CellRange& other) const {
    return sheet == other.sheet && cells.rwFirst == other.cells.rwFirst &&
           cells.colFirst == other.cells.colFirst;
  }
};

/// The cells that a reference means; nothing for what is none.
[[nodiscard]] std::optional<CellRange> rangeOf(const XLOPER12& reference);
/// The cells with the formula that is being calculated; nothing for a call from a macro.
[[nodiscard]] std::optional<CellRange> caller();

/// The formula of the first of those cells as it is typed, or the constant there.
[[nodiscard]] std::wstring formulaOf(const CellRange& cells);
/// The host's number of their sheet, which is another one when a workbook of the same name is
/// opened later; 0 where there is no such sheet.
[[nodiscard]] std::uint64_t sheetNumberOf(const CellRange& cells);
/// The values of what a name, a cell or a range means to a formula in those cells: "A1", "Speed".
/// Of very large ranges there are none.
[[nodiscard]] worksheet::Grid valueOf(std::wstring_view name, const CellRange& cells);
/// The host's number of the error that the first of those cells shows; nothing where it shows none.
[[nodiscard]] std::optional<int> shownErrorOf(const CellRange& cells);

struct WorkbookUnits {
  std::string text;                 ///< "T=°C; P=bar"; empty: model units
  std::optional<CellRange> source;  ///< the cell that the name refers to
  std::string fault;                ///< why there are none
};
/// The units of a sheet's workbook; without a sheet of the active one.
[[nodiscard]] WorkbookUnits unitsOf(const std::optional<CellRange>& where);

/// Whether the name refers to that cell. The value of a name may come without the cell that it is
/// from, so that this asks for its definition.
[[nodiscard]] bool namesUnits(const CellRange& cell);

/// An engine with those units; throws `calvex::Error` where the text names none.
[[nodiscard]] std::shared_ptr<Engine> engineOf(const std::string& units);

/// Lets all those engines go.
void forgetEngines();

/// Whether two texts of units mean the same ones; false for a text that names none.
[[nodiscard]] bool sameUnits(const std::string& a, const std::string& b);

}  // namespace calvex::excel
