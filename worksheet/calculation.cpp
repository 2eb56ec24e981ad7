#include "worksheet/calculation.h"

#include <algorithm>
#include <array>
#include <calvex/calvex.hpp>
#include <cmath>
#include <numeric>
#include <optional>

#include "worksheet/texts.h"

namespace calvex::worksheet {

namespace {

// A cell as a number, or the error that says why it is none.
std::variant<double, Error> toNumber(const Cell& cell) {
  if (const double* number = std::get_if<double>(&cell)) return *number;
  if (const Error* error = std::get_if<Error>(&cell)) return *error;
  if (std::holds_alternative<LeftOut>(cell)) return Error{ErrorKind::missing};
  if (std::holds_alternative<Blank>(cell)) return Error{ErrorKind::notAvailable};
  return Error{std::get<std::string>(cell).empty() ? ErrorKind::notAvailable : ErrorKind::value};
}

// Why a cell is no number, as the end of a sentence; empty for one that is.
std::string faultOf(const Cell& cell, const Wording& wording) {
  const auto number = toNumber(cell);
  const Error* const error = std::get_if<Error>(&number);
  if (error == nullptr) return {};
  switch (error->kind) {
    case ErrorKind::missing:
      return " is missing";
    case ErrorKind::value:
      return " is the text \"" + std::get<std::string>(cell) + "\", " +
             std::string(wording.noNumber);
    case ErrorKind::given:
      return " is itself " + wording.errorInWords(error->code);
    default:
      return std::holds_alternative<Error>(cell)
                 ? " has no element here: the ranges are of different sizes"
                 : " is an empty cell or text";
  }
}

// How many rows and columns the first arguments have together.
Place extentOf(std::span<const Grid> arguments, std::size_t count) {
  Place extent{1, 1};
  for (const Grid& grid : arguments.first(std::min(count, arguments.size()))) {
    extent.row = std::max(extent.row, grid.rows);
    extent.column = std::max(extent.column, grid.columns);
  }
  return extent;
}

Cell inputAt(std::span<const Grid> arguments, std::size_t input, Place place) {
  return input < arguments.size() ? arguments[input].element(place) : Cell();
}

// The outputs that are wanted, or why what the last argument has names none.
struct Wanted {
  std::vector<std::size_t> outputs;
  Place names{1, 1};  ///< how many cells have their names
  std::string fault;
};

Wanted wanted(const Signature& signature, std::span<const Grid> arguments) {
  Wanted found;
  const std::size_t place = signature.inputs.size();
  if (!signature.hasChoice() || arguments.size() <= place || arguments[place] == Grid()) {
    found.outputs.resize(signature.outputs.size());
    std::iota(found.outputs.begin(), found.outputs.end(), std::size_t{0});
    return found;
  }
  found.names = {arguments[place].rows, arguments[place].columns};
  for (const Cell& choice : arguments[place].cells) {
    const std::string* const name = std::get_if<std::string>(&choice);
    if (name == nullptr) {
      found.fault = "the last argument is no text that names a result";
      break;
    }
    const auto outputs = signature.chosen(*name);
    if (outputs.empty() || (!signature.hasTokens && outputs.size() > 1)) {
      found.fault = '"' + *name + "\" names no result";
      break;
    }
    found.outputs.insert(found.outputs.end(), outputs.begin(), outputs.end());
  }
  return found;
}

// Why several results of that many inputs have no place; empty where they have one.
std::string_view misplacementOf(const Wanted& wanted, Place extent) {
  if (wanted.outputs.size() == 1 || extent == Place{1, 1}) return {};
  if (extent.row > 1 && extent.column > 1) {
    return "several results of a table of inputs have no place: name one of them";
  }
  if (extent.row > 1 && wanted.names.row > 1) {
    return "with a column of inputs the names of results stand in a row";
  }
  if (extent.column > 1 && wanted.names.column > 1) {
    return "with a row of inputs the names of results stand in a column";
  }
  return {};
}

// Calls the member once; on success `outputs` has all of its numbers.
int call(calvex_engine* engine, const Signature& signature, std::span<const double> inputs,
         std::span<const std::size_t> chosen, std::vector<double>& outputs) {
  if (signature.hasTokens) {
    std::string names;
    for (const std::size_t output : chosen) {
      names += (names.empty() ? "" : " ") + signature.outputs[output].name;
    }
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

// A result that the member left out is not available; an infinite one is no answer.
Cell orNothing(double value) {
  if (std::isnan(value)) return Error{ErrorKind::notAvailable};
  if (std::isinf(value)) return Error{ErrorKind::noAnswer};
  return value;
}

// The rows of label, value and unit that a member with tokens has answered.
Grid labelled(calvex_engine* engine) {
  std::size_t rows = 0, columns = 0;
  calvex_answer_size(engine, &rows, &columns);
  Grid grid(rows, columns);
  for (std::size_t i = 0; i < rows; ++i) {
    for (std::size_t j = 0; j < columns; ++j) {
      int kind = CALVEX_CELL_NUMBER;
      calvex_answer_kind(engine, i, j, &kind);
      if (kind == CALVEX_CELL_NUMBER) {
        double number = 0.0;
        calvex_answer_number(engine, i, j, &number);
        grid.at({i, j}) = orNothing(number);
      } else {
        grid.at({i, j}) = textOf([&](char* text, std::size_t capacity, std::size_t* needed) {
          calvex_answer_text(engine, i, j, text, capacity, needed);
        });
      }
    }
  }
  return grid;
}

// The numbers of one call, or the first error among them.
std::variant<std::vector<double>, Error> numbersAt(const Signature& signature,
                                                   std::span<const Grid> arguments, Place place) {
  std::vector<double> numbers;
  for (std::size_t i = 0; i < signature.inputs.size(); ++i) {
    const auto number = toNumber(inputAt(arguments, i, place));
    if (const Error* error = std::get_if<Error>(&number)) return *error;
    numbers.push_back(std::get<double>(number));
  }
  return numbers;
}

Grid one(calvex_engine* engine, const Signature& signature, std::span<const Grid> arguments,
         const Wanted& wanted) {
  const std::vector<std::size_t>& chosen = wanted.outputs;
  const auto inputs = numbersAt(signature, arguments, {});
  if (const Error* error = std::get_if<Error>(&inputs)) return Cell(*error);
  std::vector<double> outputs;
  if (call(engine, signature, std::get<0>(inputs), chosen, outputs) != CALVEX_OK) {
    return Cell(Error{ErrorKind::noAnswer});
  }
  if (signature.hasTokens) return labelled(engine);
  Grid answer(1, chosen.size());
  if (wanted.names != Place{1, 1}) answer = Grid(wanted.names.row, wanted.names.column);
  std::ranges::transform(chosen, answer.cells.begin(),
                         [&](std::size_t output) { return orNothing(outputs[output]); });
  return answer;
}

// Many at once, by columns of those elements that have all of their inputs.
Grid many(calvex_engine* engine, const Signature& signature, std::span<const Grid> arguments,
          Place extent, std::span<const std::size_t> chosen) {
  const std::size_t results = chosen.size();
  const bool beside = extent.column == 1;  // several results stand beside, or below, their inputs
  const bool turned = results > 1 && !beside;
  Grid answer(turned ? results : extent.row, beside ? results : extent.column);
  const auto cellOf = [&](std::size_t element, std::size_t k) -> Cell& {
    if (turned) return answer.cells[k * answer.columns + element];
    return answer.cells[element * results + k];
  };

  std::vector<std::vector<double>> columns(signature.inputs.size());
  std::vector<std::size_t> elements;
  for (std::size_t element = 0; element < extent.row * extent.column; ++element) {
    const auto numbers =
        numbersAt(signature, arguments, {element / extent.column, element % extent.column});
    if (const Error* error = std::get_if<Error>(&numbers)) {
      for (std::size_t k = 0; k < results; ++k) cellOf(element, k) = *error;
      continue;
    }
    elements.push_back(element);
    for (std::size_t i = 0; i < columns.size(); ++i) columns[i].push_back(std::get<0>(numbers)[i]);
  }
  if (elements.empty()) return answer;

  std::vector<calvex_column> inputs;
  inputs.reserve(columns.size());
  for (const auto& column : columns) inputs.push_back({column.data(), 1});
  std::vector<double> computed(results * elements.size());
  std::vector<calvex_output> outputs;
  outputs.reserve(results);
  for (std::size_t k = 0; k < results; ++k) {
    outputs.push_back({chosen[k], {computed.data() + k, static_cast<std::ptrdiff_t>(results)}});
  }
  std::vector<short> status(elements.size());
  calvex_rows rows{};
  rows.member = signature.member;
  rows.count = elements.size();
  rows.inputs = inputs.data();
  rows.input_count = inputs.size();
  rows.outputs = outputs.data();
  rows.output_count = outputs.size();
  rows.status = {status.data(), 1};
  if (calvex_columns(engine, &rows, sizeof rows) != CALVEX_OK) {
    return Cell(Error{ErrorKind::value});
  }
  for (std::size_t i = 0; i < elements.size(); ++i) {
    for (std::size_t k = 0; k < results; ++k) {
      cellOf(elements[i], k) =
          status[i] == 0 ? orNothing(computed[i * results + k]) : Error{ErrorKind::noAnswer};
    }
  }
  return answer;
}

}  // namespace

Grid calculate(calvex_engine* engine, const Signature& signature, std::span<const Grid> arguments) {
  const Wanted chosen = wanted(signature, arguments);
  const Place extent = extentOf(arguments, signature.inputs.size());
  if (!chosen.fault.empty() || !misplacementOf(chosen, extent).empty()) {
    return Cell(Error{ErrorKind::value});
  }
  return extent == Place{1, 1} ? one(engine, signature, arguments, chosen)
                               : many(engine, signature, arguments, extent, chosen.outputs);
}

Place sourceOf(const Signature& signature, std::span<const Grid> arguments, Place result) {
  const Place extent = extentOf(arguments, signature.inputs.size());
  return {extent.row == 1 ? 0 : result.row, extent.column == 1 ? 0 : result.column};
}

std::string reason(calvex_engine* engine, const Signature& signature,
                   std::span<const Grid> arguments, Place place, const Wording& wording) {
  const auto fault = [&](const std::string& what) {
    return signature.name + ": " + what + ". It takes " + described(engine, signature) + ".";
  };
  const std::size_t count = signature.inputs.size();
  std::vector<double> inputs, outputs;
  for (std::size_t i = 0; i < count; ++i) {
    const Cell given = inputAt(arguments, i, place);
    const std::string what = faultOf(given, wording);
    if (!what.empty()) return fault(signature.inputs[i].name + what);
    inputs.push_back(std::get<double>(given));
  }
  const std::size_t most = count + (signature.hasChoice() ? 1 : 0);
  if (arguments.size() > most) {
    return fault(std::to_string(arguments.size()) + " inputs are given, not " +
                 std::to_string(most));
  }
  const Wanted chosen = wanted(signature, arguments);
  if (!chosen.fault.empty()) return fault(chosen.fault);
  const std::string_view misplacement = misplacementOf(chosen, extentOf(arguments, count));
  if (!misplacement.empty()) return fault(std::string(misplacement));
  if (call(engine, signature, inputs, chosen.outputs, outputs) != CALVEX_OK) {
    return signature.name + ": " + lastFailure(engine);
  }
  std::string infinite, verb = " is";
  for (std::size_t i = 0; i < chosen.outputs.size(); ++i) {
    const std::size_t output = chosen.outputs[i];
    double number = 0.0;
    if (signature.hasTokens) {
      calvex_answer_number(engine, i, 1, &number);
    } else {
      number = outputs[output];
    }
    if (!std::isinf(number)) continue;
    if (!infinite.empty()) {
      infinite += ", ";
      verb = " are";
    }
    infinite += signature.outputs[output].name;
  }
  return infinite.empty() ? infinite : signature.name + ": " + infinite + verb + " infinite here";
}

namespace {

constexpr std::size_t words = 3;  // of a conversion, before its value
using Words = std::array<std::string, words>;

// Why the texts of a conversion name no units, with what they may have meant; empty where they do.
std::string unknownUnit(std::span<const std::string> texts) {
  try {
    Engine aside;
    for (const std::string& unit : texts.subspan(1)) aside.unit(texts[0], unit);
    return {};
  } catch (const calvex::Error& fault) {
    return fault.what();
  }
}

// A conversion at a place; where it fails `fault` may learn why. `refused` has the last words that
// were no units: a column of them is refused at once.
Cell convertedAt(calvex_engine* engine, std::span<const Grid> arguments, Place place,
                 std::optional<Words>& refused, const Wording* wording, std::string* fault) {
  const auto failed = [&](const Error& error, const auto& why) -> Cell {
    if (fault != nullptr) *fault = "CALVEX.CONVERT: " + why();
    return error;
  };
  Words texts;
  const char* data[words];
  for (std::size_t i = 0; i < words; ++i) {
    const Cell word = inputAt(arguments, i, place);
    if (const auto* const text = std::get_if<std::string>(&word)) {
      texts[i] = *text;
      data[i] = texts[i].c_str();
      continue;
    }
    const Error* const error = std::get_if<Error>(&word);
    return failed(error != nullptr ? *error : Error{ErrorKind::value}, [] {
      return std::string("it takes the texts quantity, unit and unit wanted, then the value");
    });
  }
  const Cell given = inputAt(arguments, words, place);
  const auto number = toNumber(given);
  if (const Error* const error = std::get_if<Error>(&number)) {
    return failed(*error, [&] { return "the value" + faultOf(given, *wording); });
  }
  if (texts == refused) return Error{ErrorKind::value};
  static const int member = [] {
    int found = 0;
    calvex_find_member("Convert", CALVEX_TERMINATED, &found);
    return found;
  }();
  const auto convert = [&](double from, double& to) {
    return calvex_call_texts(engine, member, &from, 1, data, nullptr, words, &to, 1) == CALVEX_OK;
  };
  double value = 0.0, one = 0.0;
  if (convert(std::get<double>(number), value)) return value;
  if (!convert(1.0, one)) {
    refused = texts;
    return failed(Error{ErrorKind::value}, [&] {
      const std::string unknown = unknownUnit(texts);
      return unknown.empty() ? lastFailure(engine) : unknown;
    });
  }
  return failed(Error{ErrorKind::noAnswer},
                [&] { return "the value is too large to be a number of " + texts[2]; });
}

}  // namespace

Grid convert(calvex_engine* engine, std::span<const Grid> arguments) {
  const Place extent = extentOf(arguments, words + 1);
  Grid answer(extent.row, extent.column);
  std::optional<Words> refused;
  for (std::size_t i = 0; i < extent.row; ++i) {
    for (std::size_t j = 0; j < extent.column; ++j) {
      answer.at({i, j}) = convertedAt(engine, arguments, {i, j}, refused, nullptr, nullptr);
    }
  }
  return answer;
}

std::string reasonOfConversion(calvex_engine* engine, std::span<const Grid> arguments, Place place,
                               const Wording& wording) {
  std::string fault;
  std::optional<Words> refused;
  static_cast<void>(convertedAt(engine, arguments, place, refused, &wording, &fault));
  return fault;
}

Grid unitNames(calvex_engine* engine, const Grid& quantities) {
  Grid names = quantities;
  for (Cell& cell : names.cells) {
    if (std::holds_alternative<Error>(cell)) continue;
    const std::string* const word = std::get_if<std::string>(&cell);
    int group = 0;
    if (word == nullptr || calvex_find_group(word->data(), word->size(), &group) != CALVEX_OK) {
      cell = Error{ErrorKind::value};
      continue;
    }
    cell = textOf([&](char* name, std::size_t capacity, std::size_t* needed) {
      calvex_unit(engine, group, name, capacity, needed);
    });
  }
  return names;
}

}  // namespace calvex::worksheet
