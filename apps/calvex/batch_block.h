/// \file
/// The rows of one block of a table: read, computed, written.
#pragma once

#include <chrono>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "batch_plan.h"
#include "client.h"
#include "csv.h"

namespace calvex::cli {

/// How the table's text is written, and what is its own.
struct TableText {
  char separator = ',';
  bool decimalComma = false;
  bool windows1252 = false;         ///< instead of UTF-8
  std::vector<std::string> header;  ///< UTF-8

  /// UTF-8 to the table's encoding, as far as that has the characters, in quotes where needed.
  [[nodiscard]] std::string cell(std::string_view utf8) const;
};

/// Rows that a call answered with a warning.
struct WarnedRows {
  std::size_t rows = 0;
  std::size_t firstLine = 0;
  std::string firstText;  ///< UTF-8
};

struct BlockAnswer {
  std::string text;
  std::vector<WarnedRows> warned;  ///< of each call of the plan
  std::size_t rows = 0;
  std::size_t rowsWithReason = 0;
  std::string firstReason;
  std::size_t firstLine = 0;
  std::chrono::steady_clock::duration working{};
  std::chrono::steady_clock::duration calling{};
};

/// One worker: an engine and the columns of a block. The plan and the table outlive it.
class BlockWorker {
 public:
  BlockWorker(const BatchPlan& plan, const TableText& table, const ClientOptions& client);

  /// Throws UsageError naming the line of a row that is none.
  [[nodiscard]] BlockAnswer work(const CsvBlocks::Block& block);

 private:
  struct Row {
    std::string_view text;
    std::string_view lineEnd;
    std::size_t missingCells;
    std::size_t line;
    bool isBlank;
  };
  /// Why columns have no number in a row; UTF-8.
  struct Note {
    std::size_t row;
    std::string columns;
    std::string reason;
  };

  void read(const CsvBlocks::Block& block);
  void keep(const CsvRecord& record, std::size_t line);
  [[nodiscard]] double number(const CsvRecord& record, std::size_t column);
  /// Calls with the same inputs.
  void compute(std::span<const BatchPlan::Call> calls, std::span<WarnedRows> warned);
  void write(BlockAnswer& answer);
  void appendNumber(std::string& text, double value) const;

  const BatchPlan& plan_;
  const TableText& table_;
  Client client_;
  std::vector<Row> rows_;
  std::vector<std::vector<double>> numbers_;  ///< of each place, for each row; NaN where none
  std::vector<Note> notes_;
  std::string buffer_;
};

}  // namespace calvex::cli
