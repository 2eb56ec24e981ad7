// From the client's arrays to blocks of states and back: units, statuses, derivatives.
#include "direct/direct_road.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "direct/blocks.h"
#include "direct/kernels.h"
#include "direct/member_road.h"
#include "direct/starting_tables.h"
#include "steam/constants.h"

namespace calvex::direct {

namespace {

constexpr double nothing = std::numeric_limits<double>::quiet_NaN();
constexpr int twoPhaseMessage = static_cast<int>(Message::twoPhase);

// Above the critical point the members call a state with less than this a liquid's.
bool liquidLike(Letter letter, double value) {
  switch (letter) {
    case Letter::H:
      return value < 2086.0;
    case Letter::S:
      return value < 4.409;
    case Letter::U:
      return value < 2000.0;
    default:
      return false;
  }
}

Phase phaseOf(double T, double density, double P) {
  if (T >= constants::criticalTemperature || P >= constants::criticalPressure) {
    return Phase::supercritical;
  }
  return density > constants::criticalDensity ? Phase::liquid : Phase::vapour;
}

constexpr Letters transportRanges =
    bit(Letter::M) | bit(Letter::K) | bit(Letter::N) | bit(Letter::E);

// Written for the compiler's lanes.
bool allFinite(const Block& values, std::size_t count) {
  constexpr double greatest = std::numeric_limits<double>::max();
  std::uint64_t others = 0;
  for (std::size_t i = 0; i < count; ++i) others |= std::fabs(values[i]) <= greatest ? 0U : 1U;
  return others == 0;
}

// One point of a block: its answers in model units.
struct Point {
  const Answers& answers;
  std::size_t at;
  bool isTwo;
  Pair pair;

  Point(const Answers& all, std::size_t i, Pair givenBy)
      : answers(all),
        at(static_cast<std::size_t>(all.place[i])),
        isTwo(all.isTwo[i]),
        pair(givenBy) {}
  [[nodiscard]] const Group& group() const { return isTwo ? answers.two : answers.one; }
  [[nodiscard]] double value(Letter letter) const {
    return group().values.value[static_cast<std::size_t>(letter)][at];
  }
  [[nodiscard]] double byX(Letter letter) const {
    return group().values.byX[static_cast<std::size_t>(letter)][at];
  }
  [[nodiscard]] double byY(Letter letter) const {
    return group().values.byY[static_cast<std::size_t>(letter)][at];
  }
  [[nodiscard]] double T() const { return group().states.T[at]; }
  [[nodiscard]] double density() const { return group().states.density[at]; }
  [[nodiscard]] bool byMember() const {
    return group().states.way[at] == static_cast<double>(Way::member);
  }
};

// The vapour fraction that the members give a state of one phase: by the side of the saturation
// line that they start from, which ends at the critical value of the pressure or temperature given.
// No member answers it from (P, T) or (h, s): there a liquid is what is dense.
double qualityOfOnePhase(const Point& point, double first, double second) {
  const Pair pair = point.pair;
  const bool fromP = firstOf(pair) == Letter::P;
  const bool ownRule = pair == Pair::PT || pair == Pair::HS;
  if (!ownRule && point.byMember()) return point.group().states.quality[point.at];
  const bool beyond =
      !ownRule && first >= (fromP ? constants::criticalPressure : constants::criticalTemperature);
  const bool isLiquid =
      beyond ? liquidLike(secondOf(pair), second) : point.density() > constants::criticalDensity;
  return isLiquid ? 0.0 : 1.0;
}

// The letters' own reasons to fail, in the order in which they were asked for.
int statusOf(const Point& point, Letter letter, double P) {
  if (point.isTwo) return ofMixture(letter) ? 0 : twoPhaseMessage;
  return checkTransport(letter, P, point.T());
}

bool isModelUnit(const Unit& unit) { return unit.factor == 1.0 && unit.offset == 0.0; }
double toModel(const Unit& unit, double x) { return (x + unit.offset) * unit.factor; }
double toClient(const Unit& unit, double x) { return x / unit.factor - unit.offset; }

// A volume of 0 has no density, whatever its sign, and a negative one fails as it is.
double volumeToDensity(double volume) { return volume >= 0.0 ? 1.0 / std::fabs(volume) : volume; }

Pair ofDensity(Pair pair) {
  return pair == Pair::PV ? Pair::PR : pair == Pair::TV ? Pair::TR : pair;
}

struct Derivatives {
  double byFirst;
  double bySecond;
};

// From the variables of the state to the two inputs a and b: with the gradients (f_x, f_y) of the
// property and of both inputs, df/da at constant b = (f_x b_y - f_y b_x)/(a_x b_y - a_y b_x).
Derivatives derivatives(const Point& point, Letter letter, Letter a, Letter b) {
  const double ax = point.byX(a);
  const double ay = point.byY(a);
  const double bx = point.byX(b);
  const double by = point.byY(b);
  const double fx = point.byX(letter);
  const double fy = point.byY(letter);
  const double determinant = ax * by - ay * bx;
  return {(fx * by - fy * bx) / determinant, (ax * fy - ay * fx) / determinant};
}

// Why a state that was found, or was not, is no answer to what is asked of it, 0 if it is one.
int statusOf(const Request& request, const Answers& answers, std::size_t i, Pair pair) {
  int status = answers.status[i];
  if (request.pair == Pair::PT) {
    // A correlation's range is asked before the state.
    for (const Result& result : request.results) {
      const int own = checkTransport(result.letter, answers.first[i], answers.second[i]);
      if (own != 0) return own;
      if (status != 0) return status;
    }
  }
  if (status != 0) return status;
  const Point point(answers, i, pair);
  const double P = firstOf(pair) == Letter::P ? answers.first[i] : point.value(Letter::P);
  for (const Result& result : request.results) {
    status = statusOf(point, result.letter, P);
    if (status != 0) return status;
    if (result.letter != Letter::Q && !std::isfinite(point.value(result.letter))) {
      return static_cast<int>(Message::solutionError);
    }
  }
  return 0;
}

Phase phaseOf(const Answers& answers, std::size_t i, Pair pair) {
  const Point point(answers, i, pair);
  if (point.isTwo) return Phase::twoPhase;
  return phaseOf(point.T(), point.density(),
                 firstOf(pair) == Letter::P ? answers.first[i] : point.value(Letter::P));
}

// A letter's values of a whole block, in its places, model units; NaN where a state failed. They
// are put into `values` unless they stand somewhere already.
const Block& collect(const Request& request, const Answers& answers, Letter letter, int count,
                     Block& values) {
  const Pair pair = ofDensity(request.pair);
  const auto n = static_cast<std::size_t>(count);
  // What was given is answered as it was given.
  const Block* given = letter == firstOf(request.pair)                           ? &answers.first
                       : letter == secondOf(request.pair) && letter != Letter::V ? &answers.second
                                                                                 : nullptr;
  const auto letterAt = static_cast<std::size_t>(letter);
  // Cold water's density does not resolve the pressure: where it is known, Z is that of the
  // pressure.
  if (letter == Letter::Z && firstOf(pair) == Letter::P) {
    for (std::size_t i = 0; i < n; ++i) {
      if (answers.status[i] != 0) {
        values[i] = nothing;
        continue;
      }
      const Point point(answers, i, pair);
      values[i] = compressibilityFactor(answers.first[i], point.T(), point.density());
    }
    return values;
  }
  if (answers.plain && (given != nullptr || letter != Letter::Q)) {
    return given != nullptr ? *given : answers.one.values.value[letterAt];
  }
  for (std::size_t i = 0; i < n; ++i) {
    if (answers.status[i] != 0) {
      values[i] = nothing;
    } else if (given != nullptr) {
      values[i] = (*given)[i];
    } else if (letter == Letter::Q && !answers.isTwo[i]) {
      values[i] = qualityOfOnePhase(Point(answers, i, pair), answers.first[i], answers.second[i]);
    } else {
      values[i] = Point(answers, i, pair).value(letter);
    }
  }
  return values;
}

// A bound that the client writes in a unit of its own may come back from the conversion a little
// beyond itself: it is meant, as it is to the members.
constexpr double roundingOfUnits = 1e-11;

void readColumn(const Column& column, const Unit& unit, std::span<const double> bounds,
                std::size_t begin, int count, double* to) {
  const double* from = column.data + static_cast<std::ptrdiff_t>(begin) * column.stride;
  if (column.stride == 1) {
    std::copy_n(from, count, to);
  } else {
    for (int i = 0; i < count; ++i) to[i] = from[i * column.stride];
  }
  if (isModelUnit(unit)) return;
  for (int i = 0; i < count; ++i) to[i] = toModel(unit, to[i]);
  for (const double bound : bounds) {
    const double near = roundingOfUnits * bound;
    for (int i = 0; i < count; ++i) to[i] = std::fabs(to[i] - bound) <= near ? bound : to[i];
  }
}

template <class T>
void writeColumn(const Target<T>& target, std::size_t begin, int count, const T* values) {
  if (target.data == nullptr) return;
  T* to = target.data + static_cast<std::ptrdiff_t>(begin) * target.stride;
  if (target.stride == 1) {
    std::copy_n(values, count, to);
  } else {
    for (int i = 0; i < count; ++i) to[i * target.stride] = values[i];
  }
}

void evaluateBlock(const Request& request, const Order& order, std::size_t begin, int count) {
  const Units& units = request.units != nullptr ? *request.units : modelUnits();
  const Letter a = firstOf(request.pair);
  const Letter b = secondOf(request.pair);
  const Unit& unitA = units[static_cast<std::size_t>(a)];
  const Unit& unitB = units[static_cast<std::size_t>(b)];
  const auto n = static_cast<std::size_t>(count);
  Answers answers;
  readColumn(request.first, unitA, boundsOf(request.pair, a), begin, count, answers.first.data());
  readColumn(request.second, unitB, boundsOf(request.pair, b), begin, count, answers.second.data());
  if (b == Letter::V) {
    for (std::size_t i = 0; i < n; ++i) answers.second[i] = volumeToDensity(answers.second[i]);
  }
  work(order, count, answers);

  bool allGood = answers.plain && (order.wanted.letters & transportRanges) == 0;
  if (allGood) {
    for (const Result& result : request.results) {
      if (result.letter == Letter::Q) continue;
      allGood = allGood &&
                allFinite(answers.one.values.value[static_cast<std::size_t>(result.letter)], n);
    }
  }
  if (!allGood) {
    for (std::size_t i = 0; i < n; ++i) {
      answers.status[i] = static_cast<short>(statusOf(request, answers, i, order.pair));
      answers.plain = answers.plain && answers.status[i] == 0;
    }
  }
  writeColumn(request.status, begin, count, answers.status.data());

  Block column;
  for (const Result& result : request.results) {
    const Unit& unit = units[static_cast<std::size_t>(result.letter)];
    const Block& values = collect(request, answers, result.letter, count, column);
    if (isModelUnit(unit)) {
      writeColumn(result.value, begin, count, values.data());
    } else {
      for (std::size_t i = 0; i < n; ++i) column[i] = toClient(unit, values[i]);
      writeColumn(result.value, begin, count, column.data());
    }
    if (result.byFirst.data == nullptr && result.bySecond.data == nullptr) continue;
    Block byFirst;
    Block bySecond;
    for (std::size_t i = 0; i < n; ++i) {
      Derivatives slopes{nothing, nothing};
      const bool exists =
          result.letter != Letter::Q || (answers.status[i] == 0 && answers.isTwo[i]);
      if (answers.status[i] == 0 && exists) {
        slopes = derivatives(Point(answers, i, order.pair), result.letter, a, b);
      }
      byFirst[i] = slopes.byFirst * unitA.factor / unit.factor;
      bySecond[i] = slopes.bySecond * unitB.factor / unit.factor;
    }
    writeColumn(result.byFirst, begin, count, byFirst.data());
    writeColumn(result.bySecond, begin, count, bySecond.data());
  }
  if (request.phase.data != nullptr) {
    std::array<Phase, blockSize> phases;
    for (std::size_t i = 0; i < n; ++i) {
      phases[i] = answers.status[i] == 0 ? phaseOf(answers, i, order.pair) : Phase::none;
    }
    writeColumn(request.phase, begin, count, phases.data());
  }
  if (request.lineSlope.data != nullptr) {
    const double factor = units[static_cast<std::size_t>(Letter::T)].factor /
                          units[static_cast<std::size_t>(Letter::P)].factor;
    for (std::size_t i = 0; i < n; ++i) {
      column[i] =
          answers.status[i] != 0 ? nothing
          : answers.isTwo[i]
              ? answers.two.values.lineSlope[static_cast<std::size_t>(answers.place[i])] * factor
              : 0.0;
    }
    writeColumn(request.lineSlope, begin, count, column.data());
  }
}

int onLine(Pair pair, double given, Letter letter, double& value, double* slope) {
  const Order order{oneLane(), pair, {bit(letter) | lineSlopeWanted, false}};
  Answers answers;
  answers.first[0] = given;
  answers.second[0] = 0.0;
  work(order, 1, answers);
  const bool good = answers.status[0] == 0;
  const auto at = static_cast<std::size_t>(good ? answers.place[0] : 0);
  value = good ? answers.two.values.value[static_cast<std::size_t>(letter)][at] : nothing;
  if (slope != nullptr) *slope = good ? answers.two.values.lineSlope[at] : nothing;
  return answers.status[0];
}

Wanted wantedBy(const Request& request) {
  Wanted wanted;
  for (const Result& result : request.results) {
    wanted.letters |= bit(result.letter);
    wanted.derivatives =
        wanted.derivatives || result.byFirst.data != nullptr || result.bySecond.data != nullptr;
  }
  const bool needsP =
      (wanted.letters & (transportRanges | bit(Letter::Q))) != 0 || request.phase.data != nullptr;
  if (needsP) wanted.letters |= bit(Letter::P);
  if (wanted.derivatives) {
    wanted.letters |= bit(firstOf(request.pair)) | bit(secondOf(request.pair));
  }
  if (request.lineSlope.data != nullptr) wanted.letters |= lineSlopeWanted;
  return wanted;
}

const void* startsOf(Pair pair) {
  switch (pair) {
    case Pair::PT:
      return &densityFromPT();
    case Pair::PH:
      return &statesFromPH();
    case Pair::PS:
      return &statesFromPS();
    case Pair::PU:
      return &statesFromPU();
    case Pair::HS:
      return &statesFromHS();
    default:
      return nullptr;
  }
}

}  // namespace

void prepare(Pair pair) {
  static_cast<void>(lineByTemperature());
  static_cast<void>(lineByPressure());
  static_cast<void>(startsOf(pair));
}

void evaluate(const Request& request, std::size_t begin, std::size_t end) noexcept {
  const Order order{kernels(), ofDensity(request.pair), wantedBy(request)};
  for (std::size_t start = begin; start < end; start += blockSize) {
    evaluateBlock(request, order, start,
                  static_cast<int>(std::min<std::size_t>(blockSize, end - start)));
  }
}

int evaluate(Pair pair, double first, double second, std::span<const Letter> letters,
             double* values) noexcept {
  std::array<Result, letterCount> results;
  Request request{pair, {}, {}, {results.data(), std::min(letters.size(), results.size())}};
  for (std::size_t i = 0; i < request.results.size(); ++i) results[i].letter = letters[i];
  const Order order{oneLane(), ofDensity(pair), wantedBy(request)};
  Answers answers;
  answers.first[0] = first;
  answers.second[0] = secondOf(pair) == Letter::V ? volumeToDensity(second) : second;
  work(order, 1, answers);
  answers.status[0] = static_cast<short>(statusOf(request, answers, 0, order.pair));
  Block value;
  for (std::size_t i = 0; i < letters.size(); ++i) {
    const double found = collect(request, answers, letters[i], 1, value)[0];
    values[i] = answers.status[0] == 0 ? found : nothing;
  }
  return answers.status[0];
}

double evaluate(Pair pair, double first, double second, Letter letter) noexcept {
  double value = nothing;
  evaluate(pair, first, second, {&letter, 1}, &value);
  return value;
}

int saturationPressure(double T, double& P, double* slope) noexcept {
  return onLine(Pair::TQ, T, Letter::P, P, slope);
}

int saturationTemperature(double P, double& T, double* slope) noexcept {
  return onLine(Pair::PQ, P, Letter::T, T, slope);
}

}  // namespace calvex::direct
