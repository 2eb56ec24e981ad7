#include "direct/blocks.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "diagnostics/messages.h"
#include "direct/member_road.h"

namespace calvex::direct {

namespace {

// Each in its own place.
constexpr Places inOrder = [] {
  Places places{};
  for (std::size_t i = 0; i < places.size(); ++i) places[i] = static_cast<short>(i);
  return places;
}();

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
    group.states.way[at] = static_cast<double>(Way::member);
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

}  // namespace

void Group::pad(int lanes) {
  const int full = (count + lanes - 1) / lanes * lanes;
  if (full == count) return;
  for (Block* block : {&states.first, &states.second, &states.T, &states.density, &states.vapour,
                       &states.quality, &states.pressure, &states.way}) {
    std::fill(block->begin() + count, block->begin() + full,
              (*block)[static_cast<std::size_t>(count - 1)]);
  }
}

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

}  // namespace calvex::direct
