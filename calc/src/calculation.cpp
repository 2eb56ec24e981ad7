#include "calculation.h"

#include <algorithm>
#include <com/sun/star/uno/Sequence.hxx>

#include "errors.h"
#include "texts.h"
#include "worksheet/calculation.h"

namespace calvex::calc {

namespace {

using com::sun::star::uno::Sequence;
using com::sun::star::uno::TypeClass_DOUBLE;
using com::sun::star::uno::TypeClass_STRING;
using worksheet::Blank;
using worksheet::Cell;
using worksheet::ErrorKind;
using worksheet::LeftOut;
using Cells = Sequence<Sequence<Any>>;
using Numbers = Sequence<Sequence<double>>;
using rtl::OUString;

bool isNumber(const Any& value) { return value.getValueTypeClass() == TypeClass_DOUBLE; }
double numberIn(const Any& value) { return *static_cast<const double*>(value.getValue()); }

std::size_t size(sal_Int32 length) { return static_cast<std::size_t>(length); }
sal_Int32 length(std::size_t size) { return static_cast<sal_Int32>(size); }

double errorNumber(const worksheet::Error& error) {
  switch (error.kind) {
    case ErrorKind::given:
      return errorValue(static_cast<CellError>(error.code));
    case ErrorKind::missing:
      return errorValue(CellError::missing);
    case ErrorKind::value:
      return errorValue(CellError::value);
    case ErrorKind::noAnswer:
      return errorValue(CellError::number);
    case ErrorKind::notAvailable:
      break;
  }
  return errorValue(CellError::notAvailable);
}

Cell cellOf(double number) {
  if (!std::isnan(number)) return number;
  return worksheet::Error{ErrorKind::given, static_cast<int>(errorIn(number))};
}

// An empty cell of a range comes as a text without characters.
Cell cellOf(const Any& value) {
  if (isNumber(value)) return cellOf(numberIn(value));
  if (value.getValueTypeClass() == TypeClass_STRING) {
    return toUtf8(*static_cast<const OUString*>(value.getValue()));
  }
  double number = 0.0;
  if (value >>= number) return number;
  return value.hasValue() ? Cell(worksheet::Error{ErrorKind::value}) : Cell(LeftOut{});
}

template <class Rows>
Grid gridOfRows(const Rows& rows) {
  Grid grid(size(rows.getLength()), rows.hasElements() ? size(rows[0].getLength()) : 0);
  if (grid.cells.empty()) return Cell(Blank{});
  auto to = grid.cells.begin();
  for (const auto& row : rows) {
    for (const auto& cell : row) *to++ = cellOf(cell);
  }
  return grid;
}

Any anyOf(const Cell& cell) {
  if (const auto* const number = std::get_if<double>(&cell)) return Any(*number);
  if (const auto* const text = std::get_if<std::string>(&cell)) return Any(toOffice(*text));
  const auto* const error = std::get_if<worksheet::Error>(&cell);
  return Any(errorNumber(error != nullptr ? *error : worksheet::Error{ErrorKind::notAvailable}));
}

template <class Value, class Convert>
Any rowsOf(const Grid& grid, Convert convert) {
  Sequence<Sequence<Value>> rows(length(grid.rows));
  for (std::size_t i = 0; i < grid.rows; ++i) {
    Sequence<Value> row(length(grid.columns));
    std::transform(grid.cells.data() + i * grid.columns, grid.cells.data() + (i + 1) * grid.columns,
                   row.getArray(), convert);
    rows.getArray()[i] = row;
  }
  return Any(rows);
}

Any anyOf(const Grid& grid) {
  if (grid.cells.size() == 1) return anyOf(grid.cells[0]);
  const auto isText = [](const Cell& cell) { return std::holds_alternative<std::string>(cell); };
  if (std::ranges::any_of(grid.cells, isText)) {
    return rowsOf<Any>(grid, [](const Cell& cell) { return anyOf(cell); });
  }
  return rowsOf<double>(grid, [](const Cell& cell) {
    const auto* const number = std::get_if<double>(&cell);
    return number != nullptr ? *number : errorNumber(std::get<worksheet::Error>(cell));
  });
}

std::vector<Grid> gridsOf(std::span<const Any* const> arguments) {
  std::vector<Grid> grids;
  grids.reserve(arguments.size());
  for (const Any* argument : arguments) grids.push_back(calc::gridOf(*argument));
  return grids;
}

constexpr worksheet::Wording wording{
    [](int code) { return errorInWords(static_cast<std::uint32_t>(code)); }, "which is no number"};

}  // namespace

Any calculate(calvex_engine* engine, const Signature& signature,
              std::span<const Any* const> arguments) {
  const std::size_t count = signature.inputs.size();
  constexpr std::size_t most = 16;
  if (!signature.hasChoice() && count <= most && arguments.size() == count &&
      std::ranges::all_of(arguments, [](const Any* any) { return isNumber(*any); })) {
    // Nearly all calls are these; nothing is allocated for them.
    double inputs[most], output = 0.0;
    for (std::size_t i = 0; i < count; ++i) {
      inputs[i] = numberIn(*arguments[i]);
      if (std::isnan(inputs[i])) return Any(inputs[i]);
    }
    const int code = calvex_call(engine, signature.member, inputs, count, &output, 1);
    if (code != CALVEX_OK || std::isinf(output)) return Any(errorValue(CellError::number));
    return Any(std::isnan(output) ? errorValue(CellError::notAvailable) : output);
  }
  return anyOf(worksheet::calculate(engine, signature, gridsOf(arguments)));
}

std::string reason(calvex_engine* engine, const Signature& signature,
                   std::span<const Any* const> arguments, Place place) {
  return worksheet::reason(engine, signature, gridsOf(arguments), place, wording);
}

Any convert(calvex_engine* engine, std::span<const Any* const> arguments) {
  return anyOf(worksheet::convert(engine, gridsOf(arguments)));
}

std::string reasonOfConversion(calvex_engine* engine, std::span<const Any* const> arguments,
                               Place place) {
  return worksheet::reasonOfConversion(engine, gridsOf(arguments), place, wording);
}

Any unitNames(calvex_engine* engine, const Any& quantities) {
  return anyOf(worksheet::unitNames(engine, gridOf(quantities)));
}

Grid gridOf(const Any& value) {
  Cells cells;
  Numbers numbers;
  if (value >>= numbers) return gridOfRows(numbers);
  if (value >>= cells) return gridOfRows(cells);
  return cellOf(value);
}

Any elementOf(const Any& value, Place place) {
  Cells cells;
  Numbers numbers;
  const auto pick = [&](const auto& rows) {
    const std::size_t row = rows.getLength() == 1 ? 0 : place.row;
    if (row >= size(rows.getLength())) return Any(errorValue(CellError::notAvailable));
    const auto& found = rows[length(row)];
    const std::size_t column = found.getLength() == 1 ? 0 : place.column;
    if (column >= size(found.getLength())) return Any(errorValue(CellError::notAvailable));
    return Any(found[length(column)]);
  };
  if (value >>= numbers) return pick(numbers);
  if (value >>= cells) return pick(cells);
  return value;
}

Place extentOf(const Any& value) {
  Cells cells;
  Numbers numbers;
  const auto extent = [](const auto& rows) {
    return Place{size(rows.getLength()), rows.hasElements() ? size(rows[0].getLength()) : 0};
  };
  if (value >>= numbers) return extent(numbers);
  if (value >>= cells) return extent(cells);
  return {1, 1};
}

std::uint32_t errorOf(const Any& value) { return isNumber(value) ? errorIn(numberIn(value)) : 0U; }

std::optional<Place> firstError(const Any& value) {
  const Place extent = extentOf(value);
  for (std::size_t i = 0; i < extent.row; ++i) {
    for (std::size_t j = 0; j < extent.column; ++j) {
      if (errorOf(elementOf(value, {i, j})) != 0) return Place{i, j};
    }
  }
  return std::nullopt;
}

}  // namespace calvex::calc
