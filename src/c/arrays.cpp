// Arrays: the direct road, and members over columns.
#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>

#include "c/engine.h"
#include "direct/chunks.h"
#include "direct/direct_road.h"
#include "server/direct_members.h"
#include "server/member_columns.h"
#include "units/encoding.h"

using namespace calvex;
using c::Misuse;

namespace {

// A field of a request, or of an element of one of its lists, as C writes it.
struct Field {
  const char* name;
  std::size_t index = CALVEX_NONE;
  const char* part = "";

  [[nodiscard]] std::string text() const {
    return index == CALVEX_NONE ? std::string(name) : fmt::format("{}[{}]{}", name, index, part);
  }
};

// A column of that many elements must lie in memory.
void requireColumn(const Field& field, const void* data, std::ptrdiff_t stride, std::size_t count,
                   std::size_t size) {
  if (count == 0) return;
  if (data == nullptr) throw Misuse{CALVEX_NULL, fmt::format("{}.data is NULL.", field.text())};
  const std::size_t step = stride < 0 ? std::size_t{0} - static_cast<std::size_t>(stride)
                                      : static_cast<std::size_t>(stride);
  if (step != 0 && count - 1 > PTRDIFF_MAX / size / step) {
    throw Misuse{CALVEX_COUNT, fmt::format("{} of {} elements with the stride {} is more than "
                                           "there can be.",
                                           field.text(), count, stride)};
  }
}

direct::Column columnOf(const Field& field, const calvex_column& column, std::size_t count) {
  requireColumn(field, column.data, column.stride, count, sizeof(double));
  return {column.data, column.stride};
}

template <class Target>
auto targetOf(const Field& field, const Target& target, std::size_t count) {
  using Element = std::remove_reference_t<decltype(*target.data)>;
  if (target.data != nullptr) {
    requireColumn(field, target.data, target.stride, count, sizeof(Element));
    if (target.stride == 0 && count > 1) {
      throw Misuse{CALVEX_VALUE, fmt::format("{}.stride is 0, but the output has {} elements.",
                                             field.text(), count)};
    }
  }
  return direct::Target<Element>{target.data, target.stride};
}

// A list of that many elements is there, and no longer than can be of use.
void requireList(const char* name, const void* list, std::size_t count, std::size_t most) {
  if (count > most) {
    throw Misuse{CALVEX_COUNT, fmt::format("There are {} {}; {} are the most that can be of use.",
                                           count, name, most)};
  }
  if (count != 0) c::require(list, name);
}

direct::Letter letterOf(char letter) {
  constexpr std::string_view letters = "PTHSURVQAGMKCDZWNEIJBL";
  static_assert(letters.size() == direct::letterCount);
  const std::size_t at = letters.find(letter);
  if (at != std::string_view::npos) return static_cast<direct::Letter>(at);
  throw Misuse{CALVEX_UNKNOWN, fmt::format("{} is not the letter of a property: they are {}.",
                                           inQuotes({&letter, 1}), letters)};
}

// Two letters as the pair that the direct road knows, which may have them the other way round.
struct GivenPair {
  direct::Pair pair;
  bool swapped;
};
GivenPair pairOf(char first, char second) {
  const direct::Letter a = letterOf(first);
  const direct::Letter b = letterOf(second);
  for (int i = 0; i < direct::pairCount; ++i) {
    const auto pair = static_cast<direct::Pair>(i);
    if (firstOf(pair) == a && secondOf(pair) == b) return {pair, false};
    if (firstOf(pair) == b && secondOf(pair) == a) return {pair, true};
  }
  throw Misuse{CALVEX_UNKNOWN, fmt::format("No state is found from {} and {}: the pairs are P with "
                                           "T H S U R V Q, T with H S U R V Q, and H with S.",
                                           first, second)};
}

direct::Units unitsOf(const calvex_engine& engine) {
  if (const auto units = directUnits(engine.client.units())) return *units;
  throw Misuse{CALVEX_VALUE,
               "The direct road cannot tell values in the engine's units, which are those of a "
               "units server or custom ones of no size; calvex_set_unit chooses others."};
}

// The direct road tells phases by a type of its own.
template <class Source>
void putPhases(const Source& phases, std::size_t begin, const calvex_codes& target,
               std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    target.data[static_cast<std::ptrdiff_t>(begin + i) * target.stride] =
        static_cast<short>(phases[i]);
  }
}

// Why the first row fails becomes the engine's last failure, though the request succeeds.
template <class Keep>
void keepFirstFailure(const calvex_codes& status, std::size_t count, Keep keep) {
  if (status.data == nullptr) return;
  for (std::size_t i = 0; i < count; ++i) {
    if (status.data[static_cast<std::ptrdiff_t>(i) * status.stride] != 0) return keep(i);
  }
}

double at(const direct::Column& column, std::size_t row) {
  return column.data[static_cast<std::ptrdiff_t>(row) * column.stride];
}

int tell(calvex_engine& engine, const DirectReason& reason) {
  return engine.fail({CALVEX_OK, reason.text, reason.cause});
}

template <class Column>
Column from(Column column, std::size_t row) {
  if (column.data != nullptr) column.data += static_cast<std::ptrdiff_t>(row) * column.stride;
  return column;
}

constexpr std::size_t chunkSize = 1024;

int evaluate(calvex_engine& engine, const calvex_request& asked) {
  const GivenPair given = pairOf(asked.first_letter, asked.second_letter);
  const direct::Pair pair = given.pair;
  const bool swapped = given.swapped;
  const std::size_t n = asked.count;
  requireList("results", asked.results, asked.result_count, std::size_t{4} * direct::letterCount);
  std::vector<direct::Result> results;
  for (std::size_t i = 0; i < asked.result_count; ++i) {
    const calvex_result& result = asked.results[i];
    const auto value = targetOf({"results", i, ".value"}, result.value, n);
    auto byFirst = targetOf({"results", i, ".by_first"}, result.by_first, n);
    auto bySecond = targetOf({"results", i, ".by_second"}, result.by_second, n);
    if (swapped) std::swap(byFirst, bySecond);
    results.push_back({letterOf(result.letter), value, byFirst, bySecond});
  }
  direct::Column first = columnOf({"first"}, asked.first, n);
  direct::Column second = columnOf({"second"}, asked.second, n);
  if (swapped) std::swap(first, second);
  const auto status = targetOf({"status"}, asked.status, n);
  const auto slope = targetOf({"line_slope"}, asked.line_slope, n);
  static_cast<void>(targetOf({"phase"}, asked.phase, n));
  const direct::Units units = unitsOf(engine);

  direct::prepare(pair);
  ChunkedLoop loop;
  loop.threads = asked.threads;
  loop.chunk = chunkSize;
  forEachChunk(n, loop, [&](const Chunk& chunk) {
    const std::size_t count = chunk.end - chunk.begin;
    std::vector<direct::Result> here = results;
    for (direct::Result& result : here) {
      result.value = from(result.value, chunk.begin);
      result.byFirst = from(result.byFirst, chunk.begin);
      result.bySecond = from(result.bySecond, chunk.begin);
    }
    std::array<direct::Phase, chunkSize> phases;
    direct::Request request{pair, from(first, chunk.begin), from(second, chunk.begin), here};
    request.status = from(status, chunk.begin);
    request.lineSlope = from(slope, chunk.begin);
    request.units = &units;
    if (asked.phase.data != nullptr) request.phase = {phases.data()};
    direct::evaluate(request, 0, count);
    if (asked.phase.data != nullptr) putPhases(phases, chunk.begin, asked.phase, count);
  });
  keepFirstFailure(asked.status, n, [&](std::size_t i) {
    std::vector<direct::Letter> letters(results.size());
    std::ranges::transform(results, letters.begin(), &direct::Result::letter);
    tell(engine,
         directReason(pair, at(first, i), at(second, i), letters, units, engine.client.engine()));
  });
  return CALVEX_OK;
}

int evaluate(calvex_engine& engine, const calvex_rows& asked) {
  const auto member = NumericMember::of(c::memberOf(asked.member));
  if (!member) {
    throw Misuse{CALVEX_VALUE, fmt::format("{} does not compute numbers from numbers alone.",
                                           c::memberOf(asked.member).name)};
  }
  const std::size_t n = asked.count;
  if (asked.input_count != member->inputs().size()) {
    throw Misuse{CALVEX_COUNT,
                 fmt::format("{} takes {} columns, but input_count is {}.", member->member().name,
                             member->inputs().size(), asked.input_count)};
  }
  requireList("inputs", asked.inputs, asked.input_count, asked.input_count);
  requireList("outputs", asked.outputs, asked.output_count, 4 * member->outputs().size());
  std::vector<direct::Column> inputs;
  inputs.reserve(asked.input_count);
  for (std::size_t i = 0; i < asked.input_count; ++i) {
    inputs.push_back(columnOf({"inputs", i}, asked.inputs[i], n));
  }
  std::vector<MemberRequest::Output> outputs;
  for (std::size_t i = 0; i < asked.output_count; ++i) {
    c::requireIndex(asked.outputs[i].index, member->outputs().size(), "output");
    outputs.push_back(
        {asked.outputs[i].index, targetOf({"outputs", i, ".value"}, asked.outputs[i].value, n)});
  }
  MemberRequest request{*member, inputs, outputs, targetOf({"status"}, asked.status, n), {}};
  if (asked.reason != nullptr) {
    request.withCause = true;
    request.reason = [&](std::size_t row, std::string_view reason) {
      const std::string text(reason);
      asked.reason(asked.context, row, text.c_str(), text.size());
    };
  }
  if (const auto direct = directMember(member->member())) direct::prepare(direct->pair);
  ChunkedLoop loop;
  loop.threads = asked.threads;
  evaluate(request, engine.client.engine(), n, loop);
  keepFirstFailure(asked.status, n, [&](std::size_t row) {
    ZvThermoInt again;
    again.TakeSettings(engine.client.engine());
    DirectReason reason;
    request.withCause = false;
    request.reason = [&](std::size_t, std::string_view text) {
      reason = {std::string(text), again.diagnostics().cause()};
    };
    evaluate(request, again, row, row + 1);
    tell(engine, reason);
  });
  return CALVEX_OK;
}

}  // namespace

extern "C" {

int calvex_direct(calvex_engine* engine, const calvex_request* request, size_t request_size) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded(
      [&] { return evaluate(*engine, c::requestOf(request, request_size, "request")); });
}

int calvex_direct_reason(calvex_engine* engine, char first_letter, char second_letter, double first,
                         double second, const char* letters, size_t letter_count, char* text,
                         size_t size, size_t* needed) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded([&] {
    const auto [pair, swapped] = pairOf(first_letter, second_letter);
    const std::string_view wanted = c::textOf(letters, letter_count, "letters");
    requireList("letters", letters, wanted.size(), direct::letterCount);
    std::vector<direct::Letter> all;
    for (const char letter : wanted) all.push_back(letterOf(letter));
    direct::prepare(pair);
    tell(*engine, directReason(pair, swapped ? second : first, swapped ? first : second, all,
                               unitsOf(*engine), engine->client.engine()));
    return c::giveText(engine->lastError(), text, size, needed);
  });
}

int calvex_columns(calvex_engine* engine, const calvex_rows* rows, size_t rows_size) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded([&] { return evaluate(*engine, c::requestOf(rows, rows_size, "rows")); });
}

}  // extern "C"
