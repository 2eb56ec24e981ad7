// Arrays: the direct road, and members over columns.
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

// A column of that many elements must lie in memory.
void requireColumn(const void* data, std::ptrdiff_t stride, std::size_t count, std::size_t size) {
  if (count == 0) return;
  c::require(data, "a column");
  const std::size_t step = stride < 0 ? std::size_t{0} - static_cast<std::size_t>(stride)
                                      : static_cast<std::size_t>(stride);
  if (step != 0 && count - 1 > PTRDIFF_MAX / size / step) {
    throw Misuse{CALVEX_COUNT, "a column is longer than memory"};
  }
}

direct::Column columnOf(const calvex_column& column, std::size_t count) {
  requireColumn(column.data, column.stride, count, sizeof(double));
  return {column.data, column.stride};
}

template <class Target>
auto targetOf(const Target& target, std::size_t count) {
  using Element = std::remove_reference_t<decltype(*target.data)>;
  if (target.data != nullptr) {
    requireColumn(target.data, target.stride, count, sizeof(Element));
    if (target.stride == 0 && count > 1) {
      throw Misuse{CALVEX_VALUE, "an output has the stride 0"};
    }
  }
  return direct::Target<Element>{target.data, target.stride};
}

direct::Letter letterOf(char letter) {
  constexpr std::string_view letters = "PTHSURVQAGMKCDZWNEIJBL";
  static_assert(letters.size() == direct::letterCount);
  const std::size_t at = letters.find(letter);
  if (at != std::string_view::npos) return static_cast<direct::Letter>(at);
  throw Misuse{CALVEX_UNKNOWN,
               std::string("there is no property with the letter '") + letter + "'"};
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
  throw Misuse{CALVEX_UNKNOWN, std::string("no state is found from ") + first + " and " + second};
}

direct::Units unitsOf(const calvex_engine& engine) {
  if (const auto units = directUnits(engine.client.units())) return *units;
  throw Misuse{CALVEX_VALUE, "the direct road cannot tell values in the engine's custom units"};
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
  if (asked.result_count != 0) c::require(asked.results, "the list of results");
  if (asked.result_count > std::size_t{4} * direct::letterCount) {
    throw Misuse{CALVEX_COUNT, "there are more results than can be of use"};
  }
  std::vector<direct::Result> results;
  for (std::size_t i = 0; i < asked.result_count; ++i) {
    const calvex_result& result = asked.results[i];
    results.push_back({letterOf(result.letter), targetOf(result.value, n),
                       targetOf(swapped ? result.by_second : result.by_first, n),
                       targetOf(swapped ? result.by_first : result.by_second, n)});
  }
  const direct::Column first = columnOf(swapped ? asked.second : asked.first, n);
  const direct::Column second = columnOf(swapped ? asked.first : asked.second, n);
  const auto status = targetOf(asked.status, n);
  const auto slope = targetOf(asked.line_slope, n);
  static_cast<void>(targetOf(asked.phase, n));
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
  return CALVEX_OK;
}

int evaluate(calvex_engine& engine, const calvex_rows& asked) {
  const auto member = NumericMember::of(c::memberOf(asked.member));
  if (!member) throw Misuse{CALVEX_VALUE, "the member does not compute numbers from numbers"};
  const std::size_t n = asked.count;
  if (asked.input_count != member->inputs().size()) {
    throw Misuse{CALVEX_COUNT, std::string(member->member().name) + " takes " +
                                   std::to_string(member->inputs().size()) + " columns, but " +
                                   std::to_string(asked.input_count) + " were given"};
  }
  if (asked.input_count != 0) c::require(asked.inputs, "the list of inputs");
  if (asked.output_count != 0) c::require(asked.outputs, "the list of outputs");
  if (asked.output_count > 4 * member->outputs().size()) {
    throw Misuse{CALVEX_COUNT, "there are more outputs than can be of use"};
  }
  std::vector<direct::Column> inputs;
  for (std::size_t i = 0; i < asked.input_count; ++i) {
    inputs.push_back(columnOf(asked.inputs[i], n));
  }
  std::vector<MemberRequest::Output> outputs;
  for (std::size_t i = 0; i < asked.output_count; ++i) {
    c::requireIndex(asked.outputs[i].index, member->outputs().size(), "output");
    outputs.push_back({asked.outputs[i].index, targetOf(asked.outputs[i].value, n)});
  }
  MemberRequest request{*member, inputs, outputs, targetOf(asked.status, n), {}};
  if (asked.reason != nullptr) {
    request.reason = [&](std::size_t row, std::string_view reason) {
      const std::string text = toUtf8(reason);
      asked.reason(asked.context, row, text.c_str(), text.size());
    };
  }
  if (const auto direct = directMember(member->member())) direct::prepare(direct->pair);
  ChunkedLoop loop;
  loop.threads = asked.threads;
  evaluate(request, engine.client.engine(), n, loop);
  return CALVEX_OK;
}

}  // namespace

extern "C" {

int calvex_direct(calvex_engine* engine, const calvex_request* request, size_t request_size) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded([&] { return evaluate(*engine, c::requestOf(request, request_size)); });
}

int calvex_direct_reason(calvex_engine* engine, char first_letter, char second_letter, double first,
                         double second, const char* letters, size_t letter_count, char* text,
                         size_t size, size_t* needed) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded([&] {
    const auto [pair, swapped] = pairOf(first_letter, second_letter);
    const std::string_view wanted = c::textOf(letters, letter_count);
    if (wanted.size() > direct::letterCount) {
      throw Misuse{CALVEX_COUNT, "there are more letters than properties"};
    }
    std::vector<direct::Letter> all;
    for (const char letter : wanted) all.push_back(letterOf(letter));
    direct::prepare(pair);
    const DirectReason reason =
        directReason(pair, swapped ? second : first, swapped ? first : second, all,
                     unitsOf(*engine), engine->client.engine());
    return c::giveText(toUtf8(reason.text), text, size, needed);
  });
}

int calvex_columns(calvex_engine* engine, const calvex_rows* rows, size_t rows_size) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded([&] { return evaluate(*engine, c::requestOf(rows, rows_size)); });
}

}  // extern "C"
