#include "batch.h"

#include <fmt/format.h>

#include <algorithm>
#include <future>
#include <memory>
#include <ostream>

#include "batch_block.h"
#include "direct/chunks.h"
#include "encoding.h"
#include "failure.h"

namespace calvex::cli {

namespace {

// Blocks that are worked on together: enough to keep every core busy, few enough to stay small.
constexpr std::size_t blocksForEachThread = 8;
constexpr std::size_t mostBlocks = 128;

class Batch {
 public:
  Batch(std::istream& in, std::ostream& out, const BatchRequest& request)
      : blocks_(in), out_(out), request_(request) {
    request.client.applyTo(client_);
    table_.separator = request.separator.value_or(guessSeparator(blocks_.beginning()));
    table_.decimalComma = request.decimalComma;
    readHeader();
  }

  BatchOutcome run(const std::function<void(std::size_t)>& progress) {
    const std::size_t most =
        ChunkedLoop{.threads = request_.threads, .chunk = 1}.workers(mostBlocks);
    roundSize_ = std::min(mostBlocks, most * blocksForEachThread);
    workers_.resize(most);
    std::size_t bytes = 0;
    for (Round round = readRound(); !round.empty();) {
      // While the cores compute, the answers before are written and the next blocks read.
      Round next;
      auto files = std::async(std::launch::async, [&] {
        writeAnswers();
        next = readRound();
      });
      std::vector<BlockAnswer> answers(round.size());
      forEachChunk(round.size(), {.threads = request_.threads, .chunk = 1},
                   [&](const Chunk& chunk) {
                     std::unique_ptr<BlockWorker>& worker = workers_[chunk.worker];
                     if (!worker)
                       worker = std::make_unique<BlockWorker>(plan_, table_, request_.client);
                     answers[chunk.begin] = worker->work(round[chunk.begin]);
                   });
      files.get();
      for (const CsvBlocks::Block& block : round) bytes += block.text.size();
      for (const BlockAnswer& answer : answers) count(answer);
      answers_ = std::move(answers);
      round = std::move(next);
      if (progress) progress(bytes);
    }
    writeAnswers();
    return std::move(outcome_);
  }

 private:
  using Round = std::vector<CsvBlocks::Block>;

  void readHeader() {
    first_ = blocks_.next(table_.separator);
    if (first_.text.empty()) {
      throw UsageError("the input is empty; its first line should name the columns");
    }
    CsvRecord header;
    std::string_view rest = first_.text;
    try {
      takeRecord(rest, table_.separator, header);
    } catch (const UsageError& error) {
      throw UsageError(fmt::format("line 1: {}", error.what()));
    }
    table_.windows1252 = !isUtf8(header.text);
    std::string buffer;
    for (const std::string_view cell : header.cells) {
      const std::string_view name = withoutBlanks(cellText(cell, buffer));
      table_.header.push_back(table_.windows1252 ? fromWindows1252(name) : std::string(name));
    }
    if (std::ranges::find(table_.header, request_.why) != table_.header.end()) {
      throw UsageError(
          fmt::format("the table has a column {} already; --why NAME names the column "
                      "for reasons",
                      inQuotes(request_.why)));
    }
    if (std::ranges::find(request_.columns, request_.why, &BatchColumn::name) !=
        request_.columns.end()) {
      throw UsageError(fmt::format("{} is the column for reasons; --why NAME names it otherwise",
                                   inQuotes(request_.why)));
    }
    plan_ = makeBatchPlan(request_.columns, table_.header, client_.units());

    BlockAnswer line;
    if (blocks_.hadByteOrderMark()) line.text += byteOrderMark;
    line.text += header.text;
    for (const BatchPlan::Added& added : plan_.added) {
      line.text += table_.separator + table_.cell(added.name);
    }
    line.text += table_.separator + table_.cell(request_.why);
    line.text += header.lineEnd;
    answers_.push_back(std::move(line));

    first_.firstLine += static_cast<std::size_t>(std::ranges::count(header.text, '\n')) + 1;
    first_.text.erase(0, first_.text.size() - rest.size());
  }

  Round readRound() {
    Round round;
    if (!first_.text.empty()) round.push_back(std::move(first_));
    first_.text.clear();
    while (round.size() < roundSize_) {
      CsvBlocks::Block block = blocks_.next(table_.separator);
      if (block.text.empty()) break;
      round.push_back(std::move(block));
    }
    return round;
  }

  void writeAnswers() {
    for (const BlockAnswer& answer : answers_) {
      out_.write(answer.text.data(), static_cast<std::streamsize>(answer.text.size()));
    }
    answers_.clear();
    if (!out_) throw Failure(ExitStatus::callFailed, "the output cannot be written");
  }

  void count(const BlockAnswer& answer) {
    outcome_.rows += answer.rows;
    if (outcome_.rowsWithReason == 0 && answer.rowsWithReason != 0) {
      outcome_.firstReason = answer.firstReason;
      outcome_.firstLine = answer.firstLine;
    }
    outcome_.rowsWithReason += answer.rowsWithReason;
    for (std::size_t i = 0; i < answer.warned.size(); ++i) {
      const WarnedRows& rows = answer.warned[i];
      if (rows.rows == 0) continue;
      const std::string& columns = plan_.calls[i].columns;
      auto known = std::ranges::find(outcome_.warned, columns, &BatchOutcome::Warned::columns);
      if (known == outcome_.warned.end()) {
        known = outcome_.warned.insert(known, {columns, 0, rows.firstLine, rows.firstText});
      }
      known->rows += rows.rows;
    }
    outcome_.working += answer.working;
    outcome_.calling += answer.calling;
  }

  CsvBlocks blocks_;
  std::ostream& out_;
  const BatchRequest& request_;
  Client client_;
  TableText table_;
  BatchPlan plan_;
  CsvBlocks::Block first_;  ///< what follows the header in the first block
  std::size_t roundSize_ = 1;
  std::vector<std::unique_ptr<BlockWorker>> workers_;
  std::vector<BlockAnswer> answers_;  ///< to be written
  BatchOutcome outcome_;
};

}  // namespace

BatchOutcome runBatch(std::istream& in, std::ostream& out, const BatchRequest& request,
                      const std::function<void(std::size_t bytes)>& progress) {
  return Batch(in, out, request).run(progress);
}

}  // namespace calvex::cli
