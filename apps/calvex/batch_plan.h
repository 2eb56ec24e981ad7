/// \file
/// What is done with each row of a table: which of its columns are read, which members are called,
/// where their results go.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "batch_language.h"
#include "server/member_columns.h"

namespace calvex::cli {

/// The numbers of a row stand in places: first the columns that are read, then the results.
struct BatchPlan {
  struct Operand {
    std::optional<std::size_t> place;
    double constant = 0.0;
    bool operator==(const Operand&) const = default;
  };
  struct Result {
    std::size_t output;  ///< of the member
    std::size_t place;
  };
  /// One call serves all columns that want results of the same member with the same inputs.
  struct Call {
    NumericMember member;
    std::vector<Operand> operands;
    std::vector<Result> results;
    std::string columns;  ///< the names of those columns: "h, s"
  };
  struct Added {
    std::string name;
    Operand value;
  };

  std::vector<std::size_t> read;  ///< columns of the table; the numbers of the first places
  /// In an order in which each has its inputs; those with the same ones stand side by side.
  std::vector<Call> calls;
  std::vector<Added> added;  ///< in the order in which they were asked for
  std::size_t places = 0;
};

/// Throws UsageError for unknown members, columns and results, with the nearest names, for a name
/// that the table has twice or already, and for a wrong number of inputs.
[[nodiscard]] BatchPlan makeBatchPlan(std::span<const BatchColumn> columns,
                                      std::span<const std::string> header, const UserUnits& units);

}  // namespace calvex::cli
