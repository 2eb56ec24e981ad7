// Blocks of states: in from the client's arrays, through the lanes, what they leave through the
// members' own solve, and out.
#include "direct/direct_road.h"

#include <fmt/printf.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <type_traits>

#include "direct/kernels.h"
#include "direct/member_road.h"
#include "steam/constants.h"

namespace calvex::direct {

namespace {

constexpr double nothing = std::numeric_limits<double>::quiet_NaN();
constexpr int twoPhaseMessage = static_cast<int>(Message::twoPhase);

// What is asked of a block.
struct Order {
  const Kernels& kernels;
  Pair pair;        // of densities, where the client gives volumes
  Letters letters;  // with the pressure where a range depends on it
  bool derivatives = false;
};

// The answers to a block: 0 and the place among the states of one phase or two, or a message.
struct Answers {
  States one;
  States two;
  Values ones;
  Values twos;
  int oneCount = 0;
  int twoCount = 0;
  std::array<short, blockSize> status;
  std::array<bool, blockSize> isTwo;
  std::array<short, blockSize> place;
};

// Lanes that no state fills repeat the last one.
void pad(Block& block, int count, int lanes) {
  const auto n = static_cast<std::size_t>(count);
  const std::size_t full = (n + static_cast<std::size_t>(lanes) - 1) /
                           static_cast<std::size_t>(lanes) * static_cast<std::size_t>(lanes);
  std::fill(block.begin() + count, block.begin() + static_cast<std::ptrdiff_t>(full), block[n - 1]);
}

// The states that go one way, side by side.
struct Selection {
  int count = 0;
  std::array<short, blockSize> index;
};

void copyState(const States& from, std::size_t i, States& to, std::size_t j) {
  to.first[j] = from.first[i];
  to.second[j] = from.second[i];
  to.way[j] = from.way[i];
  to.T[j] = from.T[i];
  to.density[j] = from.density[i];
  to.vapour[j] = from.vapour[i];
}

void padAll(States& states, int count, int lanes) {
  if (count % lanes == 0) return;
  for (Block* block : {&states.first, &states.second, &states.way, &states.T, &states.density,
                       &states.vapour, &states.quality, &states.pressure}) {
    pad(*block, count, lanes);
  }
}

MemberRoad& memberRoad() {
  thread_local MemberRoad road;
  return road;
}

// Decides, solves and evaluates `count` states, whose inputs stand in `states`.
void work(const Order& order, int count, States& states, Answers& answers) {
  const Kernels& kernels = order.kernels;
  const int lanes = kernels.lanes;
  if (count % lanes != 0) {
    pad(states.first, count, lanes);
    pad(states.second, count, lanes);
  }
  kernels.decide(order.pair, count, states);

  // The inputs of a member's solve are the client's, one by one.
  Selection left;
  const auto leave = [&](short i) { left.index[static_cast<std::size_t>(left.count++)] = i; };
  std::array<short, blockSize> origin;  // of the states of two phases, and of one
  std::array<short, blockSize> originOne;
  answers.oneCount = 0;
  answers.twoCount = 0;
  for (int i = 0; i < count; ++i) {
    const auto at = static_cast<std::size_t>(i);
    switch (static_cast<Way>(states.way[at])) {
      case Way::onePhase:
        originOne[static_cast<std::size_t>(answers.oneCount)] = static_cast<short>(i);
        copyState(states, at, answers.one, static_cast<std::size_t>(answers.oneCount++));
        break;
      case Way::twoPhases:
        origin[static_cast<std::size_t>(answers.twoCount)] = static_cast<short>(i);
        copyState(states, at, answers.two, static_cast<std::size_t>(answers.twoCount++));
        break;
      default:
        leave(static_cast<short>(i));
    }
  }
  const auto settle = [&](States& found, int& known, std::array<short, blockSize>& from,
                          bool isTwo) {
    int kept = 0;
    for (int k = 0; k < known; ++k) {
      const auto at = static_cast<std::size_t>(k);
      const auto to = static_cast<std::size_t>(kept);
      const auto i = static_cast<std::size_t>(from[at]);
      if (static_cast<Way>(found.way[at]) == Way::member) {
        leave(from[at]);
        continue;
      }
      if (kept != k) {
        copyState(found, at, found, to);
        if (isTwo) {
          found.quality[to] = found.quality[at];
          found.pressure[to] = found.pressure[at];
        }
      }
      answers.status[i] = 0;
      answers.isTwo[i] = isTwo;
      answers.place[i] = static_cast<short>(kept++);
    }
    known = kept;
  };
  if (answers.oneCount > 0) {
    padAll(answers.one, answers.oneCount, lanes);
    kernels.solve(order.pair, answers.oneCount, answers.one);
    settle(answers.one, answers.oneCount, originOne, false);
  }
  if (answers.twoCount > 0) {
    padAll(answers.two, answers.twoCount, lanes);
    kernels.solveTwoPhases(order.pair, answers.twoCount, answers.two);
    settle(answers.two, answers.twoCount, origin, true);
  }

  for (int k = 0; k < left.count; ++k) {
    const auto i = static_cast<std::size_t>(left.index[static_cast<std::size_t>(k)]);
    FoundState found;
    const int status = memberRoad().find(order.pair, states.first[i], states.second[i], found);
    answers.status[i] = static_cast<short>(status);
    if (status != 0) continue;
    answers.isTwo[i] = found.twoPhases;
    States& states2 = found.twoPhases ? answers.two : answers.one;
    int& n = found.twoPhases ? answers.twoCount : answers.oneCount;
    answers.place[i] = static_cast<short>(n);
    const auto at = static_cast<std::size_t>(n++);
    states2.T[at] = found.T;
    states2.density[at] = found.density;
    states2.vapour[at] = found.vapour;
    states2.pressure[at] = found.pressure;
    states2.quality[at] = found.quality;
  }

  if (answers.oneCount > 0) {
    padAll(answers.one, answers.oneCount, lanes);
    kernels.properties(order.letters, order.derivatives, answers.oneCount, answers.one,
                       answers.ones);
  }
  if (answers.twoCount > 0) {
    padAll(answers.two, answers.twoCount, lanes);
    kernels.mixtures(order.letters, order.derivatives, answers.twoCount, answers.two, answers.twos);
  }
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

// The vapour fraction that the members give a state of one phase.
double qualityOfOnePhase(Pair pair, double second, Phase phase) {
  if (phase == Phase::liquid) return 0.0;
  return phase == Phase::supercritical && liquidLike(secondOf(pair), second) ? 0.0 : 1.0;
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
  [[nodiscard]] const Values& values() const { return isTwo ? answers.twos : answers.ones; }
  [[nodiscard]] double value(Letter letter) const {
    return values().value[static_cast<std::size_t>(letter)][at];
  }
  [[nodiscard]] double byX(Letter letter) const {
    return values().byX[static_cast<std::size_t>(letter)][at];
  }
  [[nodiscard]] double byY(Letter letter) const {
    return values().byY[static_cast<std::size_t>(letter)][at];
  }
  [[nodiscard]] double T() const { return isTwo ? answers.two.T[at] : answers.one.T[at]; }
};

// The letters' own reasons to fail, in the order in which they were asked for.
int statusOf(const Point& point, Letter letter, double P) {
  if (point.isTwo) return ofMixture(letter) ? 0 : twoPhaseMessage;
  return checkTransport(letter, P, point.T());
}

double toModel(const Unit& unit, double x) { return (x + unit.offset) * unit.factor; }
double toClient(const Unit& unit, double x) { return x / unit.factor - unit.offset; }

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

template <class T>
void write(const Target<T>& target, std::size_t i, T x) {
  if (target.data != nullptr) target.data[static_cast<std::ptrdiff_t>(i) * target.stride] = x;
}

void evaluateBlock(const Request& request, const Order& order, std::size_t begin, int count) {
  const Units& units = request.units != nullptr ? *request.units : modelUnits();
  const Letter a = firstOf(request.pair);
  const Letter b = secondOf(request.pair);
  const Unit& unitA = units[static_cast<std::size_t>(a)];
  const Unit& unitB = units[static_cast<std::size_t>(b)];
  States states;
  for (int i = 0; i < count; ++i) {
    const auto at = static_cast<std::ptrdiff_t>(begin) + i;
    states.first[static_cast<std::size_t>(i)] =
        toModel(unitA, request.first.data[at * request.first.stride]);
    states.second[static_cast<std::size_t>(i)] =
        toModel(unitB, request.second.data[at * request.second.stride]);
  }
  if (b == Letter::V) {
    for (int i = 0; i < count; ++i) {
      double& x = states.second[static_cast<std::size_t>(i)];
      x = x >= 0.0 ? 1.0 / x : x;
    }
  }
  Answers answers;
  work(order, count, states, answers);

  for (int i = 0; i < count; ++i) {
    const auto at = static_cast<std::size_t>(i);
    const std::size_t to = begin + at;
    const Point point(answers, at, order.pair);
    int status = answers.status[at];
    // A correlation's range is asked before a state from (P, T).
    if (request.pair == Pair::PT && (order.letters & transportRanges) != 0) {
      for (const Result& result : request.results) {
        const int own = checkTransport(result.letter, states.first[at], states.second[at]);
        if (own != 0) {
          status = own;
          break;
        }
        if (status != 0) break;
      }
    }
    double P = nothing;
    double density = nothing;
    if (status == 0) {
      P = a == Letter::P ? states.first[at] : point.value(Letter::P);
      density = point.isTwo ? nothing : answers.one.density[point.at];
      for (const Result& result : request.results) {
        status = statusOf(point, result.letter, P);
        if (status != 0) break;
      }
    }
    const bool good = status == 0;
    const Phase phase = !good         ? Phase::none
                        : point.isTwo ? Phase::twoPhase
                                      : phaseOf(point.T(), density, P);
    for (const Result& result : request.results) {
      const Unit& unit = units[static_cast<std::size_t>(result.letter)];
      double value = nothing;
      Derivatives slopes{nothing, nothing};
      if (good) {
        // What was given is answered as it was given.
        if (result.letter == a) {
          value = states.first[at];
        } else if (result.letter == Letter::Q && !point.isTwo) {
          value = qualityOfOnePhase(request.pair, states.second[at], phase);
        } else if (result.letter == b && b != Letter::V) {
          value = states.second[at];
        } else {
          value = point.value(result.letter);
        }
        if (!std::isfinite(value)) {
          status = static_cast<int>(Message::solutionError);
        } else {
          value = toClient(unit, value);
        }
        if (order.derivatives && !(result.letter == Letter::Q && !point.isTwo)) {
          slopes = derivatives(point, result.letter, a, b);
          slopes.byFirst *= unitA.factor / unit.factor;
          slopes.bySecond *= unitB.factor / unit.factor;
        }
      }
      write(result.value, to, value);
      write(result.byFirst, to, slopes.byFirst);
      write(result.bySecond, to, slopes.bySecond);
    }
    write(request.phase, to, phase);
    write(request.status, to, static_cast<short>(status));
    if (request.lineSlope.data != nullptr) {
      const double slope = good && point.isTwo ? answers.twos.lineSlope[point.at]
                           : good              ? 0.0
                                               : nothing;
      write(request.lineSlope, to,
            slope * units[static_cast<std::size_t>(Letter::T)].factor /
                units[static_cast<std::size_t>(Letter::P)].factor);
    }
  }
}

}  // namespace

void evaluate(const Request& request, std::size_t begin, std::size_t end) noexcept {
  Order order{kernels(), ofDensity(request.pair), 0};
  for (const Result& result : request.results) {
    order.letters |= bit(result.letter);
    order.derivatives =
        order.derivatives || result.byFirst.data != nullptr || result.bySecond.data != nullptr;
  }
  const bool needsP = (order.letters & transportRanges) != 0 || request.phase.data != nullptr;
  if (needsP && firstOf(request.pair) != Letter::P) order.letters |= bit(Letter::P);
  if (order.derivatives) {
    order.letters |= bit(firstOf(request.pair)) | bit(secondOf(request.pair));
  }
  if (request.lineSlope.data != nullptr) order.letters |= lineSlopeWanted;
  for (std::size_t start = begin; start < end; start += blockSize) {
    evaluateBlock(request, order, start,
                  static_cast<int>(std::min<std::size_t>(blockSize, end - start)));
  }
}

int evaluate(Pair pair, double first, double second, std::span<const Letter> letters,
             double* values) noexcept {
  Order order{oneLane(), ofDensity(pair), 0};
  for (const Letter letter : letters) order.letters |= bit(letter);
  if (firstOf(pair) != Letter::P) order.letters |= bit(Letter::P);
  States states;
  states.first[0] = first;
  states.second[0] = secondOf(pair) == Letter::V && second >= 0.0 ? 1.0 / second : second;
  Answers answers;
  work(order, 1, states, answers);

  int status = answers.status[0];
  const Point point(answers, 0, order.pair);
  double P = first;
  if (status == 0 && firstOf(pair) != Letter::P) P = point.value(Letter::P);
  for (std::size_t i = 0; i < letters.size(); ++i) {
    if (pair == Pair::PT) {
      if (const int own = checkTransport(letters[i], first, second); own != 0) status = own;
    }
    if (status == 0) status = statusOf(point, letters[i], P);
    if (status != 0) break;
  }
  for (std::size_t i = 0; i < letters.size(); ++i) {
    const Letter letter = letters[i];
    double value = nothing;
    if (status == 0) {
      if (letter == Letter::Q && !point.isTwo) {
        value =
            qualityOfOnePhase(pair, second, phaseOf(point.T(), answers.one.density[point.at], P));
      } else {
        value = letter == firstOf(pair)    ? first
                : letter == secondOf(pair) ? second
                                           : point.value(letter);
      }
    }
    values[i] = value;
  }
  return status;
}

double evaluate(Pair pair, double first, double second, Letter letter) noexcept {
  double value = nothing;
  evaluate(pair, first, second, {&letter, 1}, &value);
  return value;
}

}  // namespace calvex::direct
