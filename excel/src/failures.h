/// \file
/// Why cells have failed, for those who ask.
///
/// A reason is kept with the cell's address and a mark of what stood there: its sheet, its formula,
/// the values of what the formula names, and the units. It is told as long as the same stands there
/// and the cell shows the same error. The host tells nobody that a cell was edited or moved.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "workbook.h"

namespace calvex::excel {

/// A call that failed, to be made again; without a signature it is a conversion.
struct FailedCall {
  const worksheet::Signature* signature;
  std::vector<worksheet::Grid> arguments;
  std::shared_ptr<Engine> engine;
};
using Failure = std::variant<std::string, FailedCall>;

/// Keeps why those cells fail. The answer may reach beyond them; where all its errors are those of
/// its inputs, what is known of the inner call that had them stays.
void keepFailure(const CellRange& cells, const worksheet::Grid& answer, Failure failure);
/// A call has succeeded there: what was kept of another formula or other inputs goes.
void forgetFailure(const CellRange& cells);
void forgetAllFailures();

struct FoundFailure {
  const Failure* failure;
  worksheet::Place element;  ///< of the result
};
/// What failed in a cell that shows the error with that number of the host.
[[nodiscard]] std::optional<FoundFailure> findFailure(const CellRange& cell, int error);

}  // namespace calvex::excel
