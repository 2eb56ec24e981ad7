#include "calculation.h"

#include <algorithm>
#include <com/sun/star/uno/Sequence.hxx>
#include <optional>

#include "errors.h"
#include "texts.h"

namespace calvex::calc {

namespace {

using com::sun::star::uno::Sequence;
using com::sun::star::uno::TypeClass_DOUBLE;
using com::sun::star::uno::TypeClass_STRING;
using Cells = Sequence<Sequence<Any>>;
using Numbers = Sequence<Sequence<double>>;
using rtl::OUString;

constexpr double valueError = errorValue(CellError::value);

bool isNumber(const Any& value) { return value.getValueTypeClass() == TypeClass_DOUBLE; }
double numberIn(const Any& value) { return *static_cast<const double*>(value.getValue()); }
bool isText(const Any& value) { return value.getValueTypeClass() == TypeClass_STRING; }
OUString textIn(const Any& value) { return *static_cast<const OUString*>(value.getValue()); }

std::size_t size(sal_Int32 length) { return static_cast<std::size_t>(length); }
sal_Int32 length(std::size_t size) { return static_cast<sal_Int32>(size); }

// A cell as a number; what is none is the error that says so. An empty cell of a range comes as a
// text without characters.
double toNumber(const Any& value) {
  if (isNumber(value)) return numberIn(value);
  if (isText(value) && textIn(value).isEmpty()) return errorValue(CellError::notAvailable);
  double number = 0.0;
  return (value >>= number) ? number : valueError;
}

// An input: a number, or a range of them.
struct Range {
  std::size_t rows = 1;
  std::size_t columns = 1;
  std::vector<double> values;

  explicit Range(const Any& value) {
    Cells cells;
    if (!value.hasValue()) {
      values = {errorValue(CellError::missing)};
    } else if (value >>= cells) {
      rows = size(cells.getLength());
      columns = rows == 0 ? 0 : size(cells[0].getLength());
      values.reserve(rows * columns);
      for (const Sequence<Any>& row : cells) {
        for (const Any& cell : row) values.push_back(toNumber(cell));
      }
    } else {
      values = {isText(value) ? valueError : toNumber(value)};
    }
  }

  // Of a row or column without an end; outside of it there is nothing.
  [[nodiscard]] double at(std::size_t row, std::size_t column) const {
    if (rows == 1) row = 0;
    if (columns == 1) column = 0;
    if (row >= rows || column >= columns) return errorValue(CellError::notAvailable);
    return values[row * columns + column];
  }
};

struct Inputs {
  std::vector<Range> ranges;
  std::size_t rows = 1;
  std::size_t columns = 1;

  Inputs(const Signature& signature, std::span<const Any* const> arguments) {
    for (std::size_t i = 0; i < signature.inputs.size(); ++i) {
      ranges.emplace_back(i < arguments.size() ? *arguments[i] : Any());
      rows = std::max(rows, ranges.back().rows);
      columns = std::max(columns, ranges.back().columns);
      if (ranges.back().values.empty()) ranges.back() = Range(Any(OUString()));
    }
  }

  [[nodiscard]] std::size_t count() const { return rows * columns; }
};

// The outputs that are wanted; nothing where the last argument names none of them.
std::optional<std::vector<std::size_t>> wanted(const Signature& signature,
                                               std::span<const Any* const> arguments) {
  std::vector<std::size_t> outputs(signature.outputs.size());
  for (std::size_t i = 0; i < outputs.size(); ++i) outputs[i] = i;
  const std::size_t place = signature.inputs.size();
  if (!signature.hasChoice() || arguments.size() <= place || !arguments[place]->hasValue()) {
    return outputs;
  }
  const Any choice = elementOf(*arguments[place], {});
  if (!isText(choice)) return std::nullopt;
  outputs = signature.chosen(toUtf8(textIn(choice)));
  if (outputs.empty() || (!signature.hasTokens && outputs.size() > 1)) return std::nullopt;
  return outputs;
}

std::string tokens(const Signature& signature, std::span<const std::size_t> outputs) {
  std::string names;
  for (const std::size_t output : outputs) {
    names += (names.empty() ? "" : " ") + signature.outputs[output].name;
  }
  return names;
}

// Calls the member once; on success `outputs` has all of its numbers.
int call(calvex_engine* engine, const Signature& signature, std::span<const double> inputs,
         std::span<const std::size_t> chosen, std::vector<double>& outputs) {
  if (signature.hasTokens) {
    const std::string names = tokens(signature, chosen);
    const char* const texts[] = {names.c_str()};
    return calvex_call_texts(engine, signature.member, inputs.data(), inputs.size(), texts, nullptr,
                             1, nullptr, 0);
  }
  outputs.resize(signature.outputs.size());
  return calvex_call(engine, signature.member, inputs.data(), inputs.size(), outputs.data(),
                     outputs.size());
}

// "P (MPa), T (K) and, if wanted, one of Power, TOut"
std::string described(calvex_engine* engine, const Signature& signature) {
  std::string text;
  for (const Slot& slot : signature.inputs) {
    text += (text.empty() ? "" : ", ") + slot.name;
    if (slot.group < 0) continue;
    text += " (" + textOf([&](char* unit, std::size_t capacity, std::size_t* needed) {
              calvex_unit(engine, slot.group, unit, capacity, needed);
            }) +
            ")";
  }
  if (!signature.hasChoice()) return text;
  std::string names;
  for (const Slot& slot : signature.outputs) names += (names.empty() ? "" : ", ") + slot.name;
  return text + (signature.hasTokens ? " and, if wanted, some of " : " and, if wanted, one of ") +
         names;
}

std::string lastFailure(calvex_engine* engine) {
  const auto said = [&](auto ask) {
    return textOf([&](char* text, std::size_t capacity, std::size_t* needed) {
      ask(engine, text, capacity, needed);
    });
  };
  const std::string cause = said(calvex_last_cause);
  return said(calvex_last_error) + (cause.empty() ? "" : ' ' + cause);
}

// What a result is that the member left out.
double orNothing(double value) {
  return std::isnan(value) ? errorValue(CellError::notAvailable) : value;
}

// The rows of label, value and unit that a member with tokens has answered.
Any labelled(calvex_engine* engine) {
  std::size_t rows = 0, columns = 0;
  calvex_answer_size(engine, &rows, &columns);
  Cells cells(length(rows));
  for (std::size_t i = 0; i < rows; ++i) {
    Sequence<Any> row(length(columns));
    for (std::size_t j = 0; j < columns; ++j) {
      int kind = CALVEX_CELL_NUMBER;
      calvex_answer_kind(engine, i, j, &kind);
      Any& cell = row.getArray()[j];
      if (kind == CALVEX_CELL_NUMBER) {
        double number = 0.0;
        calvex_answer_number(engine, i, j, &number);
        cell <<= orNothing(number);
      } else {
        cell <<= toOffice(textOf([&](char* text, std::size_t capacity, std::size_t* needed) {
          calvex_answer_text(engine, i, j, text, capacity, needed);
        }));
      }
    }
    cells.getArray()[i] = row;
  }
  return Any(cells);
}

Any one(calvex_engine* engine, const Signature& signature, const Inputs& given,
        std::span<const std::size_t> chosen) {
  std::vector<double> inputs, outputs;
  for (const Range& range : given.ranges) {
    inputs.push_back(range.values[0]);
    if (std::isnan(inputs.back())) return Any(inputs.back());
  }
  if (call(engine, signature, inputs, chosen, outputs) != CALVEX_OK) {
    return Any(errorValue(CellError::number));
  }
  if (signature.hasTokens) return labelled(engine);
  if (chosen.size() == 1) return Any(orNothing(outputs[chosen[0]]));
  Sequence<double> row(length(chosen.size()));
  std::ranges::transform(outputs, row.getArray(), orNothing);
  return Any(Numbers(&row, 1));
}

// Many at once, by columns of those elements that have all of their inputs.
Any many(calvex_engine* engine, const Signature& signature, const Inputs& given,
         std::span<const std::size_t> chosen) {
  const std::size_t results = chosen.size();
  const bool beside = given.columns == 1;  // several results stand beside, or below, their inputs
  if (results > 1 && !beside && given.rows != 1) return Any(valueError);

  std::vector<std::vector<double>> columns(given.ranges.size());
  std::vector<double> answers(results * given.count());
  std::vector<std::size_t> places;
  std::vector<double> element(given.ranges.size());
  for (std::size_t place = 0; place < given.count(); ++place) {
    double error = 0.0;
    for (std::size_t i = 0; i < element.size(); ++i) {
      element[i] = given.ranges[i].at(place / given.columns, place % given.columns);
      if (std::isnan(element[i]) && !std::isnan(error)) error = element[i];
    }
    if (std::isnan(error)) {
      for (std::size_t k = 0; k < results; ++k) answers[place * results + k] = error;
      continue;
    }
    places.push_back(place);
    for (std::size_t i = 0; i < element.size(); ++i) columns[i].push_back(element[i]);
  }

  std::vector<calvex_column> inputs;
  inputs.reserve(columns.size());
  for (const auto& column : columns) inputs.push_back({column.data(), 1});
  std::vector<double> computed(results * places.size());
  std::vector<calvex_output> outputs;
  outputs.reserve(results);
  for (std::size_t k = 0; k < results; ++k) {
    outputs.push_back({chosen[k], {computed.data() + k, static_cast<std::ptrdiff_t>(results)}});
  }
  std::vector<short> status(places.size());
  calvex_rows rows{};
  rows.member = signature.member;
  rows.count = places.size();
  rows.inputs = inputs.data();
  rows.input_count = inputs.size();
  rows.outputs = outputs.data();
  rows.output_count = outputs.size();
  rows.status = {status.data(), 1};
  if (!places.empty() && calvex_columns(engine, &rows, sizeof rows) != CALVEX_OK) {
    return Any(valueError);
  }
  for (std::size_t i = 0; i < places.size(); ++i) {
    for (std::size_t k = 0; k < results; ++k) {
      answers[places[i] * results + k] =
          status[i] == 0 ? orNothing(computed[i * results + k]) : errorValue(CellError::number);
    }
  }

  // Element by element, the results of each beside or below it.
  const std::size_t height = beside ? given.rows : given.rows * results;
  const std::size_t width = beside ? results : given.columns;
  Numbers array(length(height));
  for (std::size_t i = 0; i < height; ++i) {
    Sequence<double> row(length(width));
    double* const to = row.getArray();
    for (std::size_t j = 0; j < width; ++j) {
      to[j] = beside         ? answers[i * results + j]
              : results == 1 ? answers[i * width + j]
                             : answers[j * results + i];
    }
    array.getArray()[i] = row;
  }
  return Any(array);
}

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
    return Any(code == CALVEX_OK ? orNothing(output) : errorValue(CellError::number));
  }
  const auto chosen = wanted(signature, arguments);
  if (!chosen) return Any(valueError);
  const Inputs inputs(signature, arguments);
  return inputs.count() == 1 ? one(engine, signature, inputs, *chosen)
                             : many(engine, signature, inputs, *chosen);
}

namespace {

Place extentOfAll(std::span<const Any* const> arguments) {
  Place all{1, 1};
  for (const Any* argument : arguments) {
    const Place extent = extentOf(*argument);
    all = {std::max(all.row, extent.row), std::max(all.column, extent.column)};
  }
  return all;
}

}  // namespace

std::string reason(calvex_engine* engine, const Signature& signature,
                   std::span<const Any* const> arguments, Place place) {
  const auto fault = [&](const std::string& what) {
    return signature.name + ": " + what + ". It takes " + described(engine, signature) + ".";
  };
  std::vector<double> inputs, outputs;
  for (std::size_t i = 0; i < signature.inputs.size(); ++i) {
    const std::string& name = signature.inputs[i].name;
    const Any given = i < arguments.size() ? elementOf(*arguments[i], place) : Any();
    if (!given.hasValue()) return fault(name + " is missing");
    if (isText(given) && textIn(given).isEmpty()) return fault(name + " is an empty cell or text");
    if (isText(given)) return fault(name + " is the text \"" + toUtf8(textIn(given)) + '"');
    inputs.push_back(toNumber(given));
    const Place extent = extentOf(*arguments[i]);
    if ((place.row >= extent.row && extent.row > 1) ||
        (place.column >= extent.column && extent.column > 1)) {
      return fault(name + " has no element here: the ranges are of different sizes");
    }
    if (std::isnan(inputs.back())) {
      return fault(name + " is itself " + errorInWords(errorIn(inputs.back())));
    }
  }
  const std::size_t most = signature.inputs.size() + (signature.hasChoice() ? 1 : 0);
  if (arguments.size() > most) {
    return fault(std::to_string(arguments.size()) + " inputs are given, not " +
                 std::to_string(most));
  }
  const auto chosen = wanted(signature, arguments);
  if (!chosen) {
    const Any choice = elementOf(*arguments[signature.inputs.size()], {});
    return fault(isText(choice) ? '"' + toUtf8(textIn(choice)) + "\" names no result"
                                : "the last argument is no text that names a result");
  }
  if (call(engine, signature, inputs, *chosen, outputs) != CALVEX_OK) {
    return signature.name + ": " + lastFailure(engine);
  }
  if (!signature.hasTokens) {
    for (const std::size_t output : *chosen) {
      if (std::isinf(outputs[output])) {
        return signature.name + ": " + signature.outputs[output].name + " is infinite here";
      }
    }
  }
  const Place extent = extentOfAll(arguments);
  if (chosen->size() > 1 && extent.row > 1 && extent.column > 1) {
    return fault("several results of a table of inputs have no place: name one of them");
  }
  return {};
}

Any convert(calvex_engine* engine, std::span<const Any* const> arguments, std::string& reason) {
  constexpr std::size_t words = 3;
  std::string texts[words];
  const char* data[words];
  for (std::size_t i = 0; i < words; ++i) {
    const Any word = i < arguments.size() ? elementOf(*arguments[i], {}) : Any();
    if (!isText(word)) {
      reason = "CALVEX.CONVERT: it takes the texts quantity, unit and unit wanted, then the value";
      return Any(valueError);
    }
    texts[i] = toUtf8(textIn(word));
    data[i] = texts[i].c_str();
  }
  int member = 0;
  calvex_find_member("Convert", CALVEX_TERMINATED, &member);
  const auto converted = [&](double value) {
    std::string fault;
    if (std::isnan(value)) {
      fault = "the value is missing or no number";
    } else if (calvex_call_texts(engine, member, &value, 1, data, nullptr, words, &value, 1) !=
               CALVEX_OK) {
      fault = lastFailure(engine);
      value = valueError;
    }
    if (reason.empty() && !fault.empty()) reason = "CALVEX.CONVERT: " + fault;
    return value;
  };
  const Range given(arguments.size() > words ? *arguments[words] : Any());
  if (given.values.size() == 1) return Any(converted(given.values[0]));
  Numbers rows(length(given.rows));
  for (std::size_t i = 0; i < given.rows; ++i) {
    Sequence<double> row(length(given.columns));
    for (std::size_t j = 0; j < given.columns; ++j) {
      row.getArray()[j] = converted(given.at(i, j));
    }
    rows.getArray()[i] = row;
  }
  return Any(rows);
}

Any unitName(calvex_engine* engine, const Any& quantity) {
  const Any word = elementOf(quantity, {});
  int group = 0;
  if (!isText(word) ||
      calvex_find_group(toUtf8(textIn(word)).c_str(), CALVEX_TERMINATED, &group) != CALVEX_OK) {
    return Any(valueError);
  }
  return Any(toOffice(textOf([&](char* text, std::size_t capacity, std::size_t* needed) {
    calvex_unit(engine, group, text, capacity, needed);
  })));
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
