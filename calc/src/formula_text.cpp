#include "formula_text.h"

#include <charconv>
#include <cmath>
#include <com/sun/star/uno/Sequence.hxx>
#include <optional>

#include "calculation.h"
#include "errors.h"
#include "texts.h"

namespace calvex::calc {

namespace {

using com::sun::star::uno::Sequence;
using Cells = Sequence<Sequence<Any>>;
using rtl::OUString;

struct Operator {
  std::string_view sign;
  int rank;  // the higher, the sooner
  Any (*compute)(const Any&, const Any&);
};

Any arithmetic(const Any& a, const Any& b, double (*compute)(double, double)) {
  for (const Any* side : {&a, &b}) {
    if (errorOf(*side) != 0) return *side;
  }
  double left = 0.0, right = 0.0;  // what an empty cell counts as
  if ((a.hasValue() && !(a >>= left)) || (b.hasValue() && !(b >>= right))) {
    return Any(errorValue(CellError::value));
  }
  const double result = compute(left, right);
  return Any(std::isfinite(result) ? result : errorValue(CellError::number));
}

OUString textIn(const Any& value) {
  OUString text;
  double number = 0.0;
  if (value >>= text) return text;
  if (value >>= number) return OUString::number(number);
  return {};
}

// Numbers stand before texts, which are compared without their case.
int compared(const Any& a, const Any& b) {
  double left = 0.0, right = 0.0;
  const bool isNumber = !a.hasValue() || (a >>= left);
  const bool otherIsNumber = !b.hasValue() || (b >>= right);
  if (isNumber && otherIsNumber) return left < right ? -1 : left > right ? 1 : 0;
  if (isNumber != otherIsNumber) return isNumber ? -1 : 1;
  return textIn(a).compareToIgnoreAsciiCase(textIn(b));
}

template <class Holds>
Any comparison(const Any& a, const Any& b, Holds holds) {
  for (const Any* side : {&a, &b}) {
    if (errorOf(*side) != 0) return *side;
  }
  return Any(holds(compared(a, b)) ? 1.0 : 0.0);
}

constexpr int unaryRank = 6;
constexpr Operator operators[] = {
    {"<=", 1,
     [](const Any& a, const Any& b) { return comparison(a, b, [](int c) { return c <= 0; }); }},
    {">=", 1,
     [](const Any& a, const Any& b) { return comparison(a, b, [](int c) { return c >= 0; }); }},
    {"<>", 1,
     [](const Any& a, const Any& b) { return comparison(a, b, [](int c) { return c != 0; }); }},
    {"<", 1,
     [](const Any& a, const Any& b) { return comparison(a, b, [](int c) { return c < 0; }); }},
    {">", 1,
     [](const Any& a, const Any& b) { return comparison(a, b, [](int c) { return c > 0; }); }},
    {"=", 1,
     [](const Any& a, const Any& b) { return comparison(a, b, [](int c) { return c == 0; }); }},
    {"&", 2, [](const Any& a, const Any& b) { return Any(textIn(a) + textIn(b)); }},
    {"+", 3,
     [](const Any& a, const Any& b) {
       return arithmetic(a, b, [](double x, double y) { return x + y; });
     }},
    {"-", 3,
     [](const Any& a, const Any& b) {
       return arithmetic(a, b, [](double x, double y) { return x - y; });
     }},
    {"*", 4,
     [](const Any& a, const Any& b) {
       return arithmetic(a, b, [](double x, double y) { return x * y; });
     }},
    {"/", 4,
     [](const Any& a, const Any& b) {
       return arithmetic(a, b, [](double x, double y) { return x / y; });
     }},
    {"^", 5,
     [](const Any& a, const Any& b) {
       return arithmetic(a, b, [](double x, double y) { return std::pow(x, y); });
     }},
};

class Parser {
 public:
  Parser(std::string_view text, Meaning& meaning) : text_(text), meaning_(meaning) {}

  Any whole() {
    take('{');
    if (!take('=')) throw NotFollowed("it is no formula");
    const Any value = expression(0);
    take('}');
    if (!text_.empty()) fail();
    return value;
  }

 private:
  std::string_view text_;  // what is left of it
  Meaning& meaning_;
  bool passesOver_ = false;  // a branch that does not count: it is read and not computed

  [[noreturn]] void fail() const {
    throw NotFollowed("the formula cannot be followed from " + std::string(text_) + " on");
  }

  void skipBlanks() {
    while (!text_.empty() && (text_[0] == ' ' || text_[0] == '\n')) text_.remove_prefix(1);
  }
  bool take(std::string_view sign) {
    skipBlanks();
    if (!text_.starts_with(sign)) return false;
    text_.remove_prefix(sign.size());
    return true;
  }
  bool take(char sign) { return take(std::string_view(&sign, 1)); }
  bool next(char sign) {
    skipBlanks();
    return text_.starts_with(sign);
  }

  Any expression(int rank) {
    Any value = operand();
    for (;;) {
      const Operator* found = nullptr;
      skipBlanks();
      for (const Operator& candidate : operators) {
        if (found == nullptr && text_.starts_with(candidate.sign)) found = &candidate;
      }
      if (found == nullptr || found->rank <= rank) return value;
      text_.remove_prefix(found->sign.size());
      value = combine(value, expression(found->rank), found->compute);
    }
  }

  Any operand() {
    if (take('-')) return negated(expression(unaryRank));
    if (take('+')) return expression(unaryRank);
    Any value = primary();
    while (take('%')) value = combine(value, Any(0.01), multiply);
    return value;
  }

  static Any multiply(const Any& a, const Any& b) {
    return arithmetic(a, b, [](double x, double y) { return x * y; });
  }
  static Any negated(const Any& value) { return combine(value, Any(-1.0), multiply); }

  Any primary() {
    skipBlanks();
    if (text_.empty()) fail();
    if (take('(')) {
      const Any value = expression(0);
      if (!take(')')) fail();
      return value;
    }
    if (take('{')) return inlineArray();
    if (text_[0] == '"') return Any(toOffice(quoted('"')));
    double number = 0.0;
    const auto [end, code] = std::from_chars(text_.data(), text_.data() + text_.size(), number);
    // A row, such as 1:3, is no number.
    if (code == std::errc() && (end == text_.data() + text_.size() || *end != ':')) {
      text_.remove_prefix(static_cast<std::size_t>(end - text_.data()));
      return Any(number);
    }
    const std::string name = word();
    if (name.empty()) fail();
    if (!take('(')) return passesOver_ ? Any() : meaning_.reference(name);
    std::vector<Any> arguments;
    const bool outside = passesOver_;
    while (!take(')')) {
      passesOver_ = outside || (name == "IF" && !counts(arguments));
      arguments.push_back(next(';') || next(')') ? Any() : expression(0));
      if (next(')')) continue;
      if (!take(';')) fail();
      if (next(')')) arguments.emplace_back();
    }
    passesOver_ = outside;
    if (passesOver_) return {};
    if (name == "IF" && arguments.size() > 1) {
      if (const auto condition = singleNumber(arguments[0]); condition) {
        const std::size_t branch = *condition != 0.0 ? 1 : 2;
        if (std::isnan(*condition)) return arguments[0];
        return branch < arguments.size() ? arguments[branch] : Any(0.0);
      }
    }
    return meaning_.function(name, arguments);
  }

  static std::optional<double> singleNumber(const Any& value) {
    const Place extent = extentOf(value);
    double number = 0.0;
    if (extent.row * extent.column != 1 || !(elementOf(value, {}) >>= number)) return std::nullopt;
    return number;
  }

  // Whether the argument behind these is one that IF computes: of an array all are.
  static bool counts(std::span<const Any> before) {
    if (before.empty()) return true;
    const auto condition = singleNumber(before[0]);
    if (!condition) return true;
    return !std::isnan(*condition) && (*condition != 0.0) == (before.size() == 1);
  }

  // What stands between two signs, which stand for one where they are doubled.
  std::string quoted(char sign) {
    std::string inside;
    text_.remove_prefix(1);
    while (!text_.empty()) {
      if (text_[0] == sign) {
        text_.remove_prefix(1);
        if (!text_.starts_with(sign)) return inside;
      }
      inside += text_[0];
      text_.remove_prefix(1);
    }
    fail();
  }

  // A name or an address; sheets may stand in quotes.
  std::string word() {
    std::string name;
    while (!text_.empty()) {
      const char c = text_[0];
      if (c == '\'') {
        std::string sheet = quoted('\'');
        for (std::size_t i = 0; (i = sheet.find('\'', i)) != std::string::npos; i += 2) {
          sheet.insert(i, 1, '\'');
        }
        name += '\'' + sheet + '\'';
        continue;
      }
      const bool plain = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
                         (c >= '0' && c <= '9') || static_cast<unsigned char>(c) >= 0x80 ||
                         std::string_view("_.$:").find(c) != std::string_view::npos;
      if (!plain) break;
      name += c;
      text_.remove_prefix(1);
    }
    return name;
  }

  Any inlineArray() {
    std::vector<std::vector<Any>> rows(1);
    do {
      rows.back().push_back(operand());
      if (take('|')) {
        rows.emplace_back();
      } else if (!next('}') && !take(';')) {
        fail();
      }
    } while (!take('}'));
    Cells cells(static_cast<sal_Int32>(rows.size()));
    for (std::size_t i = 0; i < rows.size(); ++i) {
      cells.getArray()[i] = Sequence<Any>(rows[i].data(), static_cast<sal_Int32>(rows[i].size()));
    }
    return Any(cells);
  }
};

}  // namespace

Any combine(const Any& a, const Any& b, Any (*compute)(const Any&, const Any&)) {
  std::size_t rows = 0, columns = 0;
  for (const Any* side : {&a, &b}) {
    const Place extent = extentOf(*side);
    rows = std::max(rows, extent.row);
    columns = std::max(columns, extent.column);
  }
  if (rows == 1 && columns == 1) return compute(elementOf(a, {}), elementOf(b, {}));
  Cells cells(static_cast<sal_Int32>(rows));
  for (std::size_t i = 0; i < rows; ++i) {
    Sequence<Any> row(static_cast<sal_Int32>(columns));
    for (std::size_t j = 0; j < columns; ++j) {
      row.getArray()[j] = compute(elementOf(a, {i, j}), elementOf(b, {i, j}));
    }
    cells.getArray()[i] = row;
  }
  return Any(cells);
}

Any computeFormula(std::string_view formula, Meaning& meaning) {
  return Parser(formula, meaning).whole();
}

}  // namespace calvex::calc
