#include "batch_language.h"

#include <fmt/format.h>

#include <algorithm>

#include "csv.h"
#include "encoding.h"
#include "failure.h"
#include "numbers.h"

namespace calvex::cli {

namespace {

constexpr std::string_view signs = "(),=\"";

class Reader {
 public:
  explicit Reader(std::string_view text) : source_(withoutBlanks(text)), rest_(source_) {}

  BatchColumn column() {
    BatchColumn column;
    column.source = source_;
    column.name = word("a name for the column").text;
    take('=', "'=' is missing behind the column's name, as in 'h=HPT(P,T)'");
    const Word first = word("a member or a number");
    if (next() != '(') {
      const auto [value, fault] = readNumber(first.text);
      if (first.quoted || fault != NumberFault::none) {
        fail(
            fmt::format("{} is neither a number nor a member with its inputs in brackets, as in "
                        "HPT(P,T)",
                        inQuotes(first.text)));
      }
      column.operands.emplace_back(value);
    } else {
      column.member = first.text;
      readOperands(column);
      if (next() == '.') {
        rest_.remove_prefix(1);
        column.output = word("the name of a result behind the point").text;
      }
    }
    skipBlanks();
    if (!rest_.empty()) fail(fmt::format("{} is too much", inQuotes(rest_)));
    return column;
  }

 private:
  struct Word {
    std::string text;
    bool quoted;
  };

  void readOperands(BatchColumn& column) {
    rest_.remove_prefix(1);
    if (next() == ')') {
      rest_.remove_prefix(1);
      return;
    }
    for (;;) {
      Word operand = word("a column or a number");
      const auto [value, fault] = readNumber(operand.text);
      if (operand.quoted || fault == NumberFault::notANumber || fault == NumberFault::notFinite) {
        column.operands.emplace_back(std::move(operand.text));
      } else if (fault == NumberFault::none) {
        column.operands.emplace_back(value);
      } else {
        fail(faultText(operand.text, fault));
      }
      if (next() == '(') {
        fail(
            "a call cannot stand inside a call: give it a column of its own before this one; a "
            "name with brackets stands in double quotes");
      }
      if (next() == ')') break;
      take(',', "',' or ')' is missing");
    }
    rest_.remove_prefix(1);
  }

  void skipBlanks() { rest_.remove_prefix(std::min(rest_.size(), rest_.find_first_not_of(" \t"))); }

  // The sign at hand, or NUL at the end.
  char next() {
    skipBlanks();
    return rest_.empty() ? '\0' : rest_.front();
  }

  void take(char sign, std::string_view otherwise) {
    if (next() != sign) fail(otherwise);
    rest_.remove_prefix(1);
  }

  Word word(std::string_view expected) {
    if (next() == '"') return {quoted(), true};
    const std::string_view text = withoutBlanks(rest_.substr(0, rest_.find_first_of(signs)));
    if (text.empty()) fail(fmt::format("{} is missing", expected));
    rest_.remove_prefix(text.size());
    return {std::string(text), false};
  }

  std::string quoted() {
    std::string text;
    rest_.remove_prefix(1);
    for (;;) {
      const std::size_t length = rest_.find('"');
      if (length == std::string_view::npos) fail("a closing quote is missing");
      text += rest_.substr(0, length);
      rest_.remove_prefix(length + 1);
      if (!rest_.starts_with('"')) return text;
      text += '"';
      rest_.remove_prefix(1);
    }
  }

  [[noreturn]] void fail(std::string_view reason) const {
    throw UsageError(fmt::format("{}: {}", inQuotes(source_), reason));
  }

  std::string_view source_;
  std::string_view rest_;
};

}  // namespace

BatchColumn readBatchColumn(std::string_view text) { return Reader(text).column(); }

}  // namespace calvex::cli
