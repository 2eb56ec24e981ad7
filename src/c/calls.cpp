// Calls of members, and what they answer besides numbers.
#include <cmath>
#include <limits>
#include <span>

#include "c/engine.h"
#include "diagnostics/messages.h"
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
      return c::engineText(
          c::textOf(texts[i], textSizes == nullptr ? CALVEX_TERMINATED : textSizes[i]));
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
    throw Misuse{CALVEX_VALUE, std::string(parameter.name) + " of " + std::string(member.name) +
                                   " is a whole number from " +
                                   std::to_string(std::numeric_limits<Integer>::min()) + " to " +
                                   std::to_string(std::numeric_limits<Integer>::max())};
  }
};

bool isNumber(const Parameter& parameter) {
  return parameter.type != ValueType::text && parameter.type != ValueType::array;
}

// As many as there must be, and there.
void require(const Member& member, const char* what, std::size_t expected, std::size_t count,
             const void* values) {
  if (count != expected) {
    throw Misuse{CALVEX_COUNT, std::string(member.name) + " has " + std::to_string(expected) + " " +
                                   what + ", but " + std::to_string(count) +
                                   (count == 1 ? " was given" : " were given")};
  }
  if (expected != 0) c::require(values, what);
}

// A result that the member left out is no number; of whole numbers there is none, so it is 0.
double toDouble(const Value& value, ValueType type) {
  if (const auto* real = std::get_if<double>(&value)) return *real;
  if (const auto* small = std::get_if<short>(&value)) return *small;
  if (const auto* large = std::get_if<int>(&value)) return *large;
  return type == ValueType::real ? std::numeric_limits<double>::quiet_NaN() : 0.0;
}

// The failure of a call that the engine refused.
int refused(calvex_engine& engine, const Member& member, const EntryOfCall& left) {
  const Diagnostics& diagnostics = engine.client.engine().diagnostics();
  if (left.hasReason()) {
    return engine.fail(c::codeOf(diagnostics.lastError()), toUtf8(diagnostics.lastError()),
                       toUtf8(diagnostics.cause()));
  }
  const std::string name(member.name);
  return engine.fail(static_cast<int>(Message::errorFrame),
                     diagnostics.tracing() ? name + " failed and gave no reason"
                                           : name +
                                                 " failed; tracing is off, so no reason was "
                                                 "recorded (FunctionCallTracing 1 turns it on)");
}

int call(calvex_engine& engine, const Member& member, Inputs inputs, double* outputs,
         std::size_t outputCount) {
  const std::span<const Parameter> parameters = member.parameters();
  std::size_t numbers = 0;
  std::size_t texts = 0;
  std::size_t results = 0;
  for (const Parameter& parameter : parameters) {
    if (isNumber(parameter)) {
      ++(parameter.isInput() ? numbers : results);
    } else if (parameter.type == ValueType::text && parameter.isInput()) {
      ++texts;
    }
  }
  require(member, "numbers that go in", numbers, inputs.numbers.size(), inputs.numbers.data());
  require(member, "texts that go in", texts, inputs.textCount, inputs.texts);
  require(member, "numbers that come out", results, outputCount, outputs);

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
  const UnitChoice choice = texts == 0 ? UnitChoice{} : nameUnits(member, arguments);
  const EntryOfCall left(engine.client.engine().diagnostics());
  if (engine.client.invoke(member, arguments, choice).success == 0) {
    return refused(engine, member, left);
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
  if (!member.isProperty) throw Misuse{CALVEX_VALUE, name + " is not a setting"};
  if (member.put == nullptr) throw Misuse{CALVEX_VALUE, name + " can only be read"};
  const Parameter& parameter = member.parameters().front();
  if ((parameter.type == ValueType::text) != isText) {
    throw Misuse{CALVEX_VALUE, name + (isText ? " is a number" : " is a text")};
  }
  engine.answer.clear();
  Value value = inputs.take(member, parameter);
  const EntryOfCall left(engine.client.engine().diagnostics());
  const bool done = engine.client.object().put(member, {&value, 1}).success != 0;
  return done ? CALVEX_OK : refused(engine, member, left);
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
    const std::string_view wanted = c::textOf(name, name_size);
    const Member* member = findMember(wanted);
    if (member == nullptr) {
      throw Misuse{CALVEX_UNKNOWN, "there is no member " + std::string(wanted)};
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
    return call(*engine, *findMember("SetUserUnit"), {{}, texts, sizes, 2}, nullptr, 0);
  });
}

int calvex_answer_size(calvex_engine* engine, size_t* rows, size_t* columns) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded([&] {
    c::require(rows, "the number of rows");
    c::require(columns, "the number of columns");
    *rows = engine->answer.size();
    *columns = engine->answer.empty() ? 0 : engine->answer.front().size();
    return CALVEX_OK;
  });
}

int calvex_answer_kind(calvex_engine* engine, size_t row, size_t column, int* kind) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded([&] {
    const Cell& cell = cellOf(*engine, row, column);
    c::require(kind, "the kind");
    *kind = std::holds_alternative<double>(cell) ? CALVEX_CELL_NUMBER : CALVEX_CELL_TEXT;
    return CALVEX_OK;
  });
}

int calvex_answer_number(calvex_engine* engine, size_t row, size_t column, double* number) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded([&] {
    const auto* value = std::get_if<double>(&cellOf(*engine, row, column));
    c::require(number, "the number");
    if (value == nullptr) throw Misuse{CALVEX_VALUE, "the cell has a text"};
    *number = *value;
    return CALVEX_OK;
  });
}

int calvex_answer_text(calvex_engine* engine, size_t row, size_t column, char* text, size_t size,
                       size_t* needed) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded([&] {
    const auto* value = std::get_if<std::string>(&cellOf(*engine, row, column));
    if (value == nullptr) throw Misuse{CALVEX_VALUE, "the cell has a number"};
    return c::giveText(toUtf8(*value), text, size, needed);
  });
}

}  // extern "C"
