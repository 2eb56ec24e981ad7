// Tables and columns as arbitrary bytes: no crash, no hang; every row that came in comes out as it
// was, with the same number of cells as the header, and the same on any number of threads.
#include <algorithm>
#include <cstdint>
#include <sstream>
#include <string>

#include "batch.h"
#include "csv.h"
#include "failure.h"

namespace {

using calvex::cli::BatchRequest;

void require(bool fact) {
  if (!fact) __builtin_trap();
}

// The first byte has the options, the first line the columns, with tabs between; the table follows.
struct Input {
  BatchRequest request;
  std::string table;
};

Input inputOf(std::string bytes) {
  Input input;
  const auto options = static_cast<unsigned char>(bytes.front());
  bytes.erase(0, 1);
  input.request.decimalComma = (options & 1U) != 0;
  if ((options & 2U) != 0) input.request.separator = ";\t,x"[(options >> 2U) & 3U];
  std::istringstream lines(bytes);
  std::string columns;
  std::getline(lines, columns);
  std::istringstream words(columns);
  for (std::string word; std::getline(words, word, '\t');) {
    input.request.columns.push_back(calvex::cli::readBatchColumn(word));
  }
  input.table = bytes.substr(std::min(bytes.size(), columns.size() + 1));
  return input;
}

std::string answer(const Input& input, unsigned threads) {
  BatchRequest request = input.request;
  request.threads = threads;
  std::istringstream in(input.table);
  std::ostringstream out;
  calvex::cli::runBatch(in, out, request);
  return out.str();
}

// Each row of the table begins the row that was made of it.
void compare(std::string_view table, std::string_view made, char separator, std::size_t added) {
  if (const std::string_view mark = calvex::cli::byteOrderMark; table.starts_with(mark)) {
    require(made.starts_with(mark));
    table.remove_prefix(mark.size());
    made.remove_prefix(mark.size());
  }
  calvex::cli::CsvRecord before, after;
  std::size_t columns = 0;
  while (!table.empty()) {
    takeRecord(table, separator, before);
    require(!made.empty());
    takeRecord(made, separator, after);
    if (columns == 0) columns = before.cells.size();
    require(after.lineEnd == before.lineEnd);
    if (before.isBlank() && after.isBlank()) continue;
    require(after.cells.size() == columns + added);
    for (std::size_t i = 0; i < before.cells.size(); ++i) {
      require(i < columns ? after.cells[i] == before.cells[i] : before.cells[i].empty());
    }
  }
  require(made.empty());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  try {
    const Input input = inputOf(std::string(reinterpret_cast<const char*>(data), size));
    const std::string alone = answer(input, 1);
    require(answer(input, 2) == alone);
    std::istringstream in(input.table);
    const calvex::cli::CsvBlocks blocks(in);
    compare(input.table, alone,
            input.request.separator.value_or(calvex::cli::guessSeparator(blocks.beginning())),
            input.request.columns.size() + 1);
  } catch (const calvex::cli::Failure&) {
    // What cannot be read is refused.
  }
  return 0;
}
