// Blocks of states: in from the client's arrays, through the lanes, what they leave through the
// members' own solve, and out.
#include "direct/direct_road.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "direct/kernels.h"
#include "direct/member_road.h"
#include "direct/reasons.h"
#include "direct/starting_tables.h"
#include "steam/constants.h"

namespace calvex::direct {

namespace {

constexpr double nothing = std::numeric_limits<double>::quiet_NaN();
constexpr int twoPhaseMessage = static_cast<int>(Message::twoPhase);

// What is asked of a block.
struct Order {
  const Kernels& kernels;
  Pair pair;      // of densities, where the client gives volumes
  Wanted wanted;  // with the pressure where a range depends on it
};

using Places = std::array<short, blockSize>;

// Each in its own place.
constexpr Places inOrder = [] {
  Places places{};
  for (std::size_t i = 0; i < places.size(); ++i) places[i] = static_cast<short>(i);
  return places;
}();

// The states of a block that go one way, with the place of each in the block.
struct Group {
  States states;
  Values values;
  Places origin;
  int count = 0;

  // Lanes that no state fills repeat the last one.
  void pad(int lanes) {
    const int full = (count + lanes - 1) / lanes * lanes;
    if (full == count) return;
    for (Block* block : {&states.first, &states.second, &states.T, &states.density, &states.vapour,
                         &states.quality, &states.pressure, &states.way}) {
      std::fill(block->begin() + count, block->begin() + full,
                (*block)[static_cast<std::size_t>(count - 1)]);
    }
  }
};

// The answers to a block: 0 and where the state is, or a message.
struct Answers {
  Block first;  // the inputs, model units
  Block second;
  Group one;
  Group two;
  Places status;
  Places place;
  std::array<bool, blockSize> isTwo;
  bool plain = false;  // all are of one phase, each in its own place
};

int findByMember(Pair pair, double first, double second, FoundState& state) noexcept {
  try {
    thread_local MemberRoad road;
    return road.find(pair, first, second, state);
  } catch (...) {  // a thread's first state of these, and no memory for its road
    return static_cast<int>(Message::solutionError);
  }
}

// Whether all states go one way. The loops over blocks are written for the compiler's lanes.
bool allGo(Way way, const States& states, int count) {
  std::uint64_t others = 0;
  for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
    others |= states.way[i] == static_cast<double>(way) ? 0U : 1U;
  }
  return others == 0;
}

bool allFinite(const Block& values, std::size_t count) {
  constexpr double greatest = std::numeric_limits<double>::max();
  std::uint64_t others = 0;
  for (std::size_t i = 0; i < count; ++i) others |= std::fabs(values[i]) <= greatest ? 0U : 1U;
  return others == 0;
}

// Parts the decided states by the way that they go; `left` are the members'.
int part(int count, Answers& answers, Places& left) {
  Group& one = answers.one;
  Group& two = answers.two;
  States& states = one.states;
  two.count = 0;
  if (allGo(Way::onePhase, states, count)) {
    one.count = count;
    one.origin = inOrder;
    return 0;
  }
  one.count = 0;
  int leftCount = 0;
  for (int i = 0; i < count; ++i) {
    const auto at = static_cast<std::size_t>(i);
    const Way way = static_cast<Way>(states.way[at]);
    if (way == Way::member) {
      left[static_cast<std::size_t>(leftCount++)] = static_cast<short>(i);
      continue;
    }
    Group& group = way == Way::onePhase ? one : two;
    const auto to = static_cast<std::size_t>(group.count++);
    group.origin[to] = static_cast<short>(i);
    if (way == Way::onePhase && to == at) continue;
    for (Block States::*block : {&States::first, &States::second, &States::way, &States::T,
                                 &States::density, &States::vapour}) {
      (group.states.*block)[to] = (states.*block)[at];
    }
  }
  return leftCount;
}

// Notes where the states of a group are; those that were not found are left to the members.
int settle(const Group& group, bool isTwo, Answers& answers, Places& left, int leftCount) {
  for (int k = 0; k < group.count; ++k) {
    const auto at = static_cast<std::size_t>(k);
    const auto i = static_cast<std::size_t>(group.origin[at]);
    answers.status[i] = 0;
    answers.isTwo[i] = isTwo;
    answers.place[i] = static_cast<short>(k);
    if (static_cast<Way>(group.states.way[at]) == Way::member) {
      left[static_cast<std::size_t>(leftCount++)] = group.origin[at];
    }
  }
  return leftCount;
}

// The members' solver stops within its tolerance; a step of Newton's method ends where the lanes
// do.
void polish(const Order& order, const Answers& answers, std::size_t i, States& states,
            std::size_t at) {
  States one;
  one.first[0] = answers.first[i];
  one.second[0] = answers.second[i];
  one.way[0] = static_cast<double>(Way::onePhase);
  one.T[0] = states.T[at];
  one.density[0] = states.density[at];
  Values none;
  oneLane().solve(order.pair, {}, 1, one, none);
  constexpr double same = 1e-7;
  if (std::fabs(one.T[0] / states.T[at] - 1.0) < same &&
      std::fabs(one.density[0] / states.density[at] - 1.0) < same) {
    states.T[at] = one.T[0];
    states.density[at] = one.density[0];
  }
}

// The members' own solve, one by one. A state that the lanes lost has a place already; the others,
// from `firstLost` on in `left`, get one.
void solveAsMember(const Order& order, const Places& left, int leftCount, int firstLost,
                   Answers& answers) {
  const int lanes = order.kernels.lanes;
  for (int k = 0; k < leftCount; ++k) {
    const auto i = static_cast<std::size_t>(left[static_cast<std::size_t>(k)]);
    FoundState found;
    const int status = findByMember(order.pair, answers.first[i], answers.second[i], found);
    answers.status[i] = static_cast<short>(status);
    if (status != 0) continue;
    Group& group = found.twoPhases ? answers.two : answers.one;
    const bool hasPlace = k >= firstLost && answers.isTwo[i] == found.twoPhases;
    const int to = hasPlace ? answers.place[i] : group.count++;
    answers.isTwo[i] = found.twoPhases;
    answers.place[i] = static_cast<short>(to);
    const auto at = static_cast<std::size_t>(to);
    group.states.T[at] = found.T;
    group.states.density[at] = found.density;
    group.states.vapour[at] = found.vapour;
    group.states.pressure[at] = found.pressure;
    group.states.quality[at] = found.quality;
    group.pad(lanes);
    const int begin = to / lanes * lanes;
    if (!found.twoPhases) polish(order, answers, i, group.states, at);
    (found.twoPhases ? order.kernels.mixtures : order.kernels.properties)(
        order.wanted, begin, begin + lanes, group.states, group.values);
  }
}

// Decides, solves and evaluates the `count` states whose inputs stand in `answers`.
void work(const Order& order, int count, Answers& answers) {
  const Kernels& kernels = order.kernels;
  Group& one = answers.one;
  Group& two = answers.two;
  const auto n = static_cast<std::size_t>(count);
  std::copy_n(answers.first.begin(), n, one.states.first.begin());
  std::copy_n(answers.second.begin(), n, one.states.second.begin());
  one.count = count;
  one.pad(kernels.lanes);
  kernels.decide(order.pair, count, one.states);

  Places left;
  int leftCount = part(count, answers, left);
  if (one.count > 0) {
    one.pad(kernels.lanes);
    kernels.solve(order.pair, order.wanted, one.count, one.states, one.values);
  }
  if (two.count > 0) {
    two.pad(kernels.lanes);
    kernels.solveTwoPhases(order.pair, order.wanted, two.count, two.states, two.values);
  }
  const int decided = leftCount;
  answers.plain = one.count == count && allGo(Way::onePhase, one.states, count);
  if (answers.plain) {
    answers.status.fill(0);
    answers.isTwo.fill(false);
    answers.place = inOrder;
    return;
  }
  leftCount = settle(one, false, answers, left, leftCount);
  leftCount = settle(two, true, answers, left, leftCount);
  if (leftCount > 0) solveAsMember(order, left, leftCount, decided, answers);
}

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

// The vapour fraction that the members give a state of one phase: by the side of the saturation
// line that they start from, which ends at the critical value of the pressure or temperature given.
double qualityOfOnePhase(Pair pair, double first, double second, double density) {
  const bool beyond = firstOf(pair) == Letter::P   ? first >= constants::criticalPressure
                      : firstOf(pair) == Letter::T ? first >= constants::criticalTemperature
                                                   : false;
  const bool isLiquid =
      beyond ? liquidLike(secondOf(pair), second) : density > constants::criticalDensity;
  return isLiquid ? 0.0 : 1.0;
}

constexpr Letters transportRanges =
    bit(Letter::M) | bit(Letter::K) | bit(Letter::N) | bit(Letter::E);

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
};

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
      values[i] = qualityOfOnePhase(pair, answers.first[i], answers.second[i],
                                    Point(answers, i, pair).density());
    } else {
      values[i] = Point(answers, i, pair).value(letter);
    }
  }
  return values;
}

void readColumn(const Column& column, const Unit& unit, std::size_t begin, int count, double* to) {
  const double* from = column.data + static_cast<std::ptrdiff_t>(begin) * column.stride;
  if (column.stride == 1) {
    std::copy_n(from, count, to);
  } else {
    for (int i = 0; i < count; ++i) to[i] = from[i * column.stride];
  }
  if (isModelUnit(unit)) return;
  for (int i = 0; i < count; ++i) to[i] = toModel(unit, to[i]);
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
  readColumn(request.first, unitA, begin, count, answers.first.data());
  readColumn(request.second, unitB, begin, count, answers.second.data());
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

std::string reason(Pair pair, double first, double second, std::span<const Letter> letters,
                   const Units& units) {
  const double a = toModel(units[static_cast<std::size_t>(firstOf(pair))], first);
  const double b = toModel(units[static_cast<std::size_t>(secondOf(pair))], second);
  std::array<double, letterCount> values;
  const int status = evaluate(pair, a, b, letters, values.data());
  return status == 0 ? std::string() : reasonText(status, pair, a, b, letters, units);
}

int saturationPressure(double T, double& P, double* slope) noexcept {
  return onLine(Pair::TQ, T, Letter::P, P, slope);
}

int saturationTemperature(double P, double& T, double* slope) noexcept {
  return onLine(Pair::PQ, P, Letter::T, T, slope);
}

}  // namespace calvex::direct
