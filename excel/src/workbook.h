/// \file
/// What is known of the workbook that calls: its units, and which of its cells have failed.
///
/// A workbook's units are in its name Calvex_Units, which is a text ("T=°C; P=bar") or refers to a
/// cell with CALVEX.UNITS. They are read with every call, so that nothing has to be kept in step.
#pragma once

#include <calvex/calvex.hpp>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "host.h"
#include "worksheet/calculation.h"

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

/// Pairs of a quantity and a unit in plain words as the catalogue names them: "T=°C; P=bar". Throws
/// `calvex::Error` for words that name none.
[[nodiscard]] std::string unitsText(std::span<const worksheet::Grid> words);

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

/// Whether two texts of units mean the same ones; false for a text that names none.
[[nodiscard]] bool sameUnits(const std::string& a, const std::string& b);

/// A call that failed somewhere, kept for those who ask why.
struct FailedCall {
  const worksheet::Signature* signature;
  std::vector<worksheet::Grid> arguments;
  std::shared_ptr<Engine> engine;
};
using Failure = std::variant<std::string, FailedCall>;

/// Keeps why those cells fail. `size` is that of the result, which may reach beyond them.
void keepFailure(const CellRange& cells, worksheet::Place size, Failure failure);
/// That member has succeeded there.
void forgetFailure(const CellRange& cells, const worksheet::Signature* signature);
void forgetAllFailures();

struct FoundFailure {
  const Failure* failure;
  worksheet::Place element;  ///< of the result
};
[[nodiscard]] std::optional<FoundFailure> findFailure(const CellRange& cell);

}  // namespace calvex::excel
