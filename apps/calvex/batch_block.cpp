#include "batch_block.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "call.h"
#include "encoding.h"
#include "failure.h"
#include "numbers.h"

namespace calvex::cli {

namespace {

constexpr double none = std::numeric_limits<double>::quiet_NaN();

std::size_t lines(std::string_view text) {
  return static_cast<std::size_t>(std::ranges::count(text, '\n'));
}

}  // namespace

std::string TableText::cell(std::string_view utf8) const {
  if (windows1252) {
    if (const auto bytes = toWindows1252(utf8)) return csvCell(*bytes, separator);
  }
  return csvCell(utf8, separator);
}

BlockWorker::BlockWorker(const BatchPlan& plan, const TableText& table, const ClientOptions& client)
    : plan_(plan), table_(table), numbers_(plan.places) {
  client.applyTo(client_);
}

BlockAnswer BlockWorker::work(const CsvBlocks::Block& block) {
  using Clock = std::chrono::steady_clock;
  BlockAnswer answer;
  const auto begin = Clock::now();
  read(block);
  const auto called = Clock::now();
  answer.warned.resize(plan_.calls.size());
  for (auto call = plan_.calls.begin(); call != plan_.calls.end();) {
    const auto next = std::find_if(call, plan_.calls.end(), [&](const BatchPlan::Call& other) {
      return other.operands != call->operands;
    });
    compute({call, next},
            std::span(answer.warned).subspan(static_cast<std::size_t>(call - plan_.calls.begin())));
    call = next;
  }
  answer.calling = Clock::now() - called;
  answer.text.reserve(2 * block.text.size());
  write(answer);
  answer.working = Clock::now() - begin;
  return answer;
}

void BlockWorker::read(const CsvBlocks::Block& block) {
  rows_.clear();
  notes_.clear();
  for (std::vector<double>& column : numbers_) column.clear();
  CsvRecord record;
  std::size_t line = block.firstLine;
  for (std::string_view rest = block.text; !rest.empty();) {
    try {
      takeRecord(rest, table_.separator, record);
      keep(record, line);
    } catch (const UsageError& error) {
      throw UsageError(fmt::format("line {}: {}", line, error.what()));
    }
    line += lines(record.text) + 1;
  }
  for (std::size_t place = plan_.read.size(); place < plan_.places; ++place) {
    numbers_[place].resize(rows_.size(), none);
  }
}

void BlockWorker::keep(const CsvRecord& record, std::size_t line) {
  const std::size_t columns = table_.header.size();
  Row row{record.text, record.lineEnd, 0, line, record.isBlank()};
  if (record.cells.size() < columns) row.missingCells = columns - record.cells.size();
  if (record.cells.size() > columns) {
    // A separator at the end of a line is no cell.
    for (std::size_t i = columns; i < record.cells.size(); ++i) {
      if (!record.cells[i].empty()) {
        throw UsageError(fmt::format(
            "the row has {} cells and the header {} (a cell with a separator in it stands in "
            "quotes)",
            record.cells.size(), columns));
      }
    }
    const char* const end = record.cells[columns - 1].data() + record.cells[columns - 1].size();
    row.text = record.text.substr(0, static_cast<std::size_t>(end - record.text.data()));
  }
  for (std::size_t place = 0; place < plan_.read.size(); ++place) {
    numbers_[place].push_back(row.isBlank ? none : number(record, plan_.read[place]));
  }
  rows_.push_back(row);
}

double BlockWorker::number(const CsvRecord& record, std::size_t column) {
  const auto reject = [&](std::string reason) {
    notes_.push_back({rows_.size(), table_.header[column], std::move(reason)});
    return none;
  };
  if (column >= record.cells.size()) return reject("the row ends before it");
  const std::string_view word = withoutBlanks(cellText(record.cells[column], buffer_));
  if (word.empty()) return reject("the cell is empty");
  ReadNumber read{};
  if (!table_.decimalComma) {
    read = readNumber(word);
  } else {
    // What has a point is no number: 1.234 would be read as a thousand times less.
    std::string digits(word);
    std::ranges::replace(digits, '.', ' ');
    std::ranges::replace(digits, ',', '.');
    read = readNumber(digits);
  }
  if (read.fault == NumberFault::none) return read.value;
  std::string reason =
      faultText(table_.windows1252 ? fromWindows1252(word) : std::string(word), read.fault);
  if (read.fault == NumberFault::notANumber) {
    const bool comma = word.find(',') != std::string_view::npos;
    const bool point = word.find('.') != std::string_view::npos;
    if (!table_.decimalComma && comma) reason += "; --decimal-comma reads numbers such as 3,5";
    if (table_.decimalComma && point)
      reason += "; with --decimal-comma the decimal sign is a comma";
  }
  return reject(std::move(reason));
}

void BlockWorker::compute(std::span<const BatchPlan::Call> calls, std::span<WarnedRows> warned) {
  const std::vector<BatchPlan::Operand>& operands = calls.front().operands;
  std::vector<direct::Column> inputs;
  inputs.reserve(operands.size());
  for (const BatchPlan::Operand& operand : operands) {
    inputs.push_back(operand.place ? direct::Column{numbers_[*operand.place].data(), 1}
                                   : direct::Column{&operand.constant, 0});
  }
  std::vector<std::vector<MemberRequest::Output>> outputs(calls.size());
  std::vector<MemberRequest> requests;
  for (std::size_t i = 0; i < calls.size(); ++i) {
    const BatchPlan::Call& call = calls[i];
    for (const BatchPlan::Result& result : call.results) {
      outputs[i].push_back({result.output, {numbers_[result.place].data()}});
    }
    requests.push_back(
        {call.member,
         inputs,
         outputs[i],
         {},
         [this, &call](std::size_t row, std::string_view reason) {
           const std::string_view cause = client_.engine().diagnostics().cause();
           notes_.push_back({row, call.columns,
                             reason.empty()
                                 ? fmt::format("{} gave no reason", call.member.member().name)
                                 : fmt::format("{}{}{}", reason, cause.empty() ? "" : " ", cause)});
         },
         [this, &rows = warned[i]](std::size_t row, const ZvFunctionCall& left) {
           if (++rows.rows != 1) return;
           rows.firstLine = rows_[row].line;
           for (const std::string& text : warningsOf(left, client_.engine().units())) {
             rows.firstText += fmt::format("{}{}", rows.firstText.empty() ? "" : " ", text);
           }
         }});
  }
  // Rows that lack an input have their reason already.
  const auto ready = [&](std::size_t row) {
    return !rows_[row].isBlank &&
           std::ranges::none_of(operands, [&](const BatchPlan::Operand& operand) {
             return operand.place && std::isnan(numbers_[*operand.place][row]);
           });
  };
  for (std::size_t begin = 0; begin < rows_.size();) {
    std::size_t end = begin;
    while (end < rows_.size() && ready(end)) ++end;
    if (end > begin) evaluate(requests, client_.engine(), begin, end);
    begin = end + 1;
  }
}

void BlockWorker::write(BlockAnswer& answer) {
  std::ranges::stable_sort(notes_, {}, &Note::row);
  auto note = notes_.begin();
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const Row& row = rows_[i];
    answer.text += row.text;
    if (!row.isBlank) {
      ++answer.rows;
      answer.text.append(row.missingCells, table_.separator);
      for (const BatchPlan::Added& added : plan_.added) {
        answer.text += table_.separator;
        const BatchPlan::Operand& value = added.value;
        appendNumber(answer.text, value.place ? numbers_[*value.place][i] : value.constant);
      }
      answer.text += table_.separator;
      if (note != notes_.end() && note->row == i) {
        // Columns with the same reason are named together.
        std::vector<Note> reasons;
        for (; note != notes_.end() && note->row == i; ++note) {
          const auto same = std::ranges::find(reasons, note->reason, &Note::reason);
          if (same == reasons.end()) {
            reasons.push_back(std::move(*note));
          } else {
            same->columns += ", " + note->columns;
          }
        }
        std::string why;
        for (const Note& reason : reasons) {
          why += fmt::format("{}{}: {}", why.empty() ? "" : "; ", reason.columns, reason.reason);
        }
        answer.text += table_.cell(why);
        if (++answer.rowsWithReason == 1) {
          answer.firstReason = std::move(why);
          answer.firstLine = row.line;
        }
      }
    }
    answer.text += row.lineEnd;
  }
}

void BlockWorker::appendNumber(std::string& text, double value) const {
  if (std::isnan(value)) return;
  const std::size_t begin = text.size();
  appendShortest(text, value);
  if (!table_.decimalComma) return;
  const std::size_t point = text.find('.', begin);
  if (point == std::string::npos) return;
  text[point] = ',';
  if (table_.separator != ',') return;
  text.insert(begin, 1, '"');
  text += '"';
}

}  // namespace calvex::cli
