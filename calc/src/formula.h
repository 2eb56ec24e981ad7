/// \file
/// Formulas of cells, computed anew to tell what happened in them: why a cell has no value, the
/// record of its calls, the units that it sets.
#pragma once

#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <com/sun/star/table/XCell.hpp>
#include <string>
#include <vector>

#include "calculation.h"
#include "documents.h"
#include "worksheet/record.h"

namespace calvex::calc {

using worksheet::RecordRow;

/// The calls in a cell's formula.
class CellCalls {
 public:
  /// Computes the formula anew, with the document's units in an engine of its own. Of an array
  /// formula what stands in this cell. Throws UNO's exceptions.
  CellCalls(Document& document, const Reference<css::table::XCell>& cell);

  /// Why the cell, or one that it reads, has no value: "B1: HPT: ..."; empty when it has one.
  [[nodiscard]] const std::string& reason() const { return reason_; }
  /// The record of the calls; a single note where they left none.
  [[nodiscard]] const std::vector<RecordRow>& record() const { return record_; }

 private:
  std::string reason_;
  std::vector<RecordRow> record_;
};

/// The arguments of each call of CALVEX.UNITS that a cell's formula computes. Throws
/// `calvex::Error` where they cannot be known.
[[nodiscard]] std::vector<std::vector<Any>> unitCallsOf(
    const Reference<css::beans::XPropertySet>& model, const Reference<css::table::XCell>& cell);

/// "$Sheet1.A1"
[[nodiscard]] std::string nameOf(const Reference<css::uno::XInterface>& cell);

}  // namespace calvex::calc
