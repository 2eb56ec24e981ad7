// Calls of members, and what they answer besides numbers.
#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>

#include "c/engine.h"
#include "diagnostics/messages.h"
#include "server/member_columns.h"
#include "units/encoding.h"

using namespace calvex;
using c::Misuse;

namespace {

// What a call is given, taken one by one.
struct Inputs {
  std::span<const double> numbers;
  const char* const* texts = nullptr;
  const std::size_t* textSizes = nullptr;
  std::size_t textCount = 0;

  std::size_t nextNumber = 0;
  std::size_t nextText = 0;

  Value take(const Member& member, const Parameter& parameter) {
    if (parameter.type == ValueType::text) {
      const std::size_t i = nextText++;
      return c::engineText(c::textOf(
          texts[i], textSizes == nullptr ? CALVEX_TERMINATED : textSizes[i], parameter.name));
    }
    const double number = numbers[nextNumber++];
    switch (parameter.type) {
      case ValueType::shortInteger:
        return whole<short>(member, parameter, number);
      case ValueType::longInteger:
        return whole<int>(member, parameter, number);
      default:
        return number;
    }
  }

 private:
  template <class Integer>
  static Integer whole(const Member& member, const Parameter& parameter, double number) {
    constexpr double low = std::numeric_limits<Integer>::min();
    constexpr double high = std::numeric_limits<Integer>::max();
    if (number >= low && number <= high && number == std::trunc(number)) {
      return static_cast<Integer>(number);
    }
    throw Misuse{CALVEX_VALUE,
                 fmt::format("{} of {} must be a whole number from {} to {}, not {}.",
                             parameter.name, member.name, std::numeric_limits<Integer>::min(),
                             std::numeric_limits<Integer>::max(), number)};
  }
};

bool isNumber(const Parameter& parameter) {
  return parameter.type != ValueType::text && parameter.type != ValueType::array;
}

bool isNumberIn(const Parameter& parameter) { return isNumber(parameter) && parameter.isInput(); }
bool isNumberOut(const Parameter& parameter) { return isNumber(parameter) && !parameter.isInput(); }
bool isTextIn(const Parameter& parameter) {
  return parameter.type == ValueType::text && parameter.isInput();
}

// The parameters of one kind, and the arguments of a call that have them.
struct Kind {
  bool (*has)(const Parameter&);
  const char* what;
  const char* values;
  const char* count;
};
constexpr Kind numbersIn{isNumberIn, "takes {} number", "inputs", "input_count"};
constexpr Kind textsIn{isTextIn, "takes {} text", "texts", "text_count"};
constexpr Kind numbersOut{isNumberOut, "gives {} number", "outputs", "output_count"};

// "HPT takes 2 numbers (P, T)"
std::string described(const Member& member, const Kind& kind) {
  std::size_t count = 0;
  std::string names;
  for (const Parameter& parameter : member.parameters()) {
    if (!kind.has(parameter)) continue;
    names.append(count++ == 0 ? " (" : ", ").append(parameter.name);
  }
  if (count != 0) names += ')';
  return fmt::format("{} {}{}{}", member.name, fmt::format(fmt::runtime(kind.what), count),
                     count == 1 ? "" : "s", names);
}

// As many values as there must be, and there.
void require(const Member& member, const Kind& kind, std::size_t count, const void* values) {
  const auto expected =
      static_cast<std::size_t>(std::ranges::count_if(member.parameters(), kind.has));
  if (count != expected) {
    throw Misuse{CALVEX_COUNT,
                 fmt::format("{}, but {} is {}.", described(member, kind), kind.count, count)};
  }
  if (expected != 0 && values == nullptr) {
    throw Misuse{CALVEX_NULL,
                 fmt::format("{}, but {} is NULL.", described(member, kind), kind.values)};
  }
}

// A result that the member left out is no number; of whole numbers there is none, so it is 0.
double toDouble(const Value& value, ValueType type) {
  if (const auto* real = std::get_if<double>(&value)) return *real;
  if (const auto* small = std::get_if<short>(&value)) return *small;
  if (const auto* large = std::get_if<int>(&value)) return *large;
  return type == ValueType::real ? std::numeric_limits<double>::quiet_NaN() : 0.0;
}

// What the call could have named instead: a unit, or a token of a spreadsheet member.
std::string namesFor(const Member& member, std::span<const Value> arguments,
                     std::string_view error) {
  if (const std::optional<Unknown> unknown = unknownName(member, arguments)) {
    return unknown->known + ".";
  }
  const auto numeric = NumericMember::of(member);
  if (!numeric || !member.name.starts_with("XL") || error.find("oken") == std::string_view::npos) {
    return {};
  }
  std::string names;
  for (const NumericMember::Slot& slot : numeric->outputs()) {
    names.append(names.empty() ? "Tokens: " : ", ").append(slot.name);
  }
  return names + ".";
}

// The failure of a call that the engine refused.
int refused(calvex_engine& engine, const Member& member, bool isPut,
            std::span<const Value> arguments, const EntryOfCall& left) {
  const Diagnostics& diagnostics = engine.client.engine().diagnostics();
  if (!left.hasReason()) {
    return engine.fail({static_cast<int>(Message::errorFrame),
                        silentFailure(member, isPut, arguments, diagnostics.tracing()) + ".",
                        {}});
  }
  const std::string& error = diagnostics.lastError();
  const std::string& cause = diagnostics.cause();
  return engine.fail(
      {c::codeOf(error), error, cause.empty() ? namesFor(member, arguments, error) : cause});
}

int call(calvex_engine& engine, const Member& member, Inputs inputs, double* outputs,
         std::size_t outputCount) {
  const std::span<const Parameter> parameters = member.parameters();
  require(member, numbersIn, inputs.numbers.size(), inputs.numbers.data());
  require(member, textsIn, inputs.textCount, static_cast<const void*>(inputs.texts));
  require(member, numbersOut, outputCount, outputs);

  engine.answer.clear();
  std::vector<Value>& arguments = engine.arguments;
  arguments.resize(parameters.size());
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    if (parameters[i].type == ValueType::array || !parameters[i].isInput()) {
      arguments[i] = {};
    } else {
      arguments[i] = inputs.take(member, parameters[i]);
    }
  }
  const UnitChoice choice = inputs.textCount == 0 ? UnitChoice{} : nameUnits(member, arguments);
  const EntryOfCall left(engine.client.engine().diagnostics());
  if (engine.client.invoke(member, arguments, choice).success == 0) {
    return refused(engine, member, false, arguments, left);
  }
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    if (!parameters[i].isOutput()) continue;
    if (isNumber(parameters[i])) {
      *outputs++ = toDouble(arguments[i], parameters[i].type);
    } else if (auto* table = std::get_if<ResultArray>(&arguments[i])) {
      engine.answer = std::move(*table);
    } else if (auto* text = std::get_if<std::string>(&arguments[i])) {
      engine.answer = {{std::move(*text)}};
    }
  }
  return CALVEX_OK;
}

int put(calvex_engine& engine, int number, bool isText, Inputs inputs) {
  const Member& member = c::memberOf(number);
  const std::string name(member.name);
  if (!member.isProperty) throw Misuse{CALVEX_VALUE, name + " is not a setting."};
  if (member.put == nullptr) throw Misuse{CALVEX_VALUE, name + " can only be read."};
  const Parameter& parameter = member.parameters().front();
  if ((parameter.type == ValueType::text) != isText) {
    throw Misuse{CALVEX_VALUE, name + (isText ? " is a number, for calvex_put."
                                              : " is a text, for calvex_put_text.")};
  }
  engine.answer.clear();
  Value value = inputs.take(member, parameter);
  const EntryOfCall left(engine.client.engine().diagnostics());
  const bool done = engine.client.object().put(member, {&value, 1}).success != 0;
  return done ? CALVEX_OK : refused(engine, member, true, {&value, 1}, left);
}

const Cell& cellOf(const calvex_engine& engine, std::size_t row, std::size_t column) {
  c::requireIndex(row, engine.answer.size(), "row");
  c::requireIndex(column, engine.answer[row].size(), "column");
  return engine.answer[row][column];
}

}  // namespace

extern "C" {

int calvex_call(calvex_engine* engine, int member, const double* inputs, size_t input_count,
                double* outputs, size_t output_count) {
  return calvex_call_texts(engine, member, inputs, input_count, nullptr, nullptr, 0, outputs,
                           output_count);
}

int calvex_call_named(calvex_engine* engine, const char* name, size_t name_size,
                      const double* inputs, size_t input_count, double* outputs,
                      size_t output_count) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded([&] {
    const std::string_view wanted = c::textOf(name, name_size, "name");
    const Member* member = findMember(wanted);
    if (member == nullptr) {
      const std::string hint = didYouMeanMember(wanted);
      throw Misuse{CALVEX_UNKNOWN, fmt::format("There is no member {}{}", inQuotes(wanted),
                                               hint.empty() ? "." : hint)};
    }
    return call(*engine, *member, {{inputs, input_count}}, outputs, output_count);
  });
}

int calvex_call_texts(calvex_engine* engine, int member, const double* inputs, size_t input_count,
                      const char* const* texts, const size_t* text_sizes, size_t text_count,
                      double* outputs, size_t output_count) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded([&] {
    return call(*engine, c::memberOf(member),
                {{inputs, input_count}, texts, text_sizes, text_count}, outputs, output_count);
  });
}

int calvex_put(calvex_engine* engine, int member, double value) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded([&] { return put(*engine, member, false, {{&value, 1}}); });
}

int calvex_put_text(calvex_engine* engine, int member, const char* text, size_t text_size) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded([&] { return put(*engine, member, true, {{}, &text, &text_size, 1}); });
}

int calvex_set_unit(calvex_engine* engine, const char* group, size_t group_size, const char* unit,
                    size_t unit_size) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded([&] {
    const char* const texts[] = {group, unit};
    const size_t sizes[] = {group_size, unit_size};
    const Member& member = *findMember("SetUserUnit");
    static_cast<void>(c::textOf(group, group_size, "group"));  // so called by its own name
    static_cast<void>(c::textOf(unit, unit_size, "unit"));
    const int code = call(*engine, member, {{}, texts, sizes, 2}, nullptr, 0);
    if (code <= CALVEX_OK) return code;
    // The engine's text does not tell what the word may have meant.
    if (std::optional<Unknown> unknown = unknownName(member, engine->arguments)) {
      const bool asks = unknown->reason.ends_with('?');
      throw Misuse{CALVEX_UNKNOWN, std::move(unknown->reason) + (asks ? "" : "."),
                   std::move(unknown->known) + "."};
    }
    return code;
  });
}

int calvex_answer_size(calvex_engine* engine, size_t* rows, size_t* columns) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded([&] {
    c::require(rows, "rows");
    c::require(columns, "columns");
    *rows = engine->answer.size();
    *columns = engine->answer.empty() ? 0 : engine->answer.front().size();
    return CALVEX_OK;
  });
}

int calvex_answer_kind(calvex_engine* engine, size_t row, size_t column, int* kind) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded([&] {
    const Cell& cell = cellOf(*engine, row, column);
    c::require(kind, "kind");
    *kind = std::holds_alternative<double>(cell) ? CALVEX_CELL_NUMBER : CALVEX_CELL_TEXT;
    return CALVEX_OK;
  });
}

int calvex_answer_number(calvex_engine* engine, size_t row, size_t column, double* number) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded([&] {
    const auto* value = std::get_if<double>(&cellOf(*engine, row, column));
    c::require(number, "number");
    if (value == nullptr) throw Misuse{CALVEX_VALUE, "The cell has a text, not a number."};
    *number = *value;
    return CALVEX_OK;
  });
}

int calvex_answer_text(calvex_engine* engine, size_t row, size_t column, char* text, size_t size,
                       size_t* needed) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded([&] {
    const auto* value = std::get_if<std::string>(&cellOf(*engine, row, column));
    if (value == nullptr) throw Misuse{CALVEX_VALUE, "The cell has a number, not a text."};
    return c::giveText(*value, text, size, needed);
  });
}

}  // extern "C"
