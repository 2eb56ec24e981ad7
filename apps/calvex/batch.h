/// \file
/// A table of any length with computed columns behind its own.
#pragma once

#include <chrono>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "batch_language.h"
#include "client.h"

namespace calvex::cli {

struct BatchRequest {
  std::vector<BatchColumn> columns;
  ClientOptions client{};           ///< units and settings
  std::optional<char> separator{};  ///< of cells; otherwise what the header has
  bool decimalComma = false;
  std::string why = "why";  ///< the name of the column for reasons
  unsigned threads = 0;     ///< 0: one for each core
};

struct BatchOutcome {
  /// Rows that are answered with a warning.
  struct Warned {
    std::string columns;  ///< "h, s", which they are warned of
    std::size_t rows = 0;
    std::size_t firstLine = 0;
    std::string firstText;
  };

  std::size_t rows = 0;
  std::size_t rowsWithReason = 0;
  std::string firstReason;
  std::size_t firstLine = 0;  ///< of that reason's row
  std::vector<Warned> warned;

  // Of all threads together.
  std::chrono::steady_clock::duration working{};
  std::chrono::steady_clock::duration calling{};  ///< the part of it that the members took
};

/// Copies a table, cell by cell as it is, and adds the columns and the reasons. Takes memory for
/// some megabytes of it, however long it is; what comes out depends neither on the number of
/// threads nor on the speed of the input.
///
/// A row that cannot be computed has its reason in the last column. Throws UsageError, naming the
/// line, for rows that are none (an open quote, more cells than the header), Failure when the input
/// cannot be read or the output not be written; what is written until then is a part of the table.
/// `progress` is told the bytes that have been worked on.
BatchOutcome runBatch(std::istream& in, std::ostream& out, const BatchRequest& request,
                      const std::function<void(std::size_t bytes)>& progress = {});

}  // namespace calvex::cli
