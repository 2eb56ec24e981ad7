/// \file
/// The way of a block of states: through the lanes, and what these leave through the members' own
/// solve, one by one.
#pragma once

#include <array>

#include "direct/kernels.h"

namespace calvex::direct {

/// What is asked of a block.
struct Order {
  const Kernels& kernels;
  Pair pair;      // of densities, where the client gives volumes
  Wanted wanted;  // with the pressure where a range depends on it
};

using Places = std::array<short, blockSize>;

/// The states of a block that go one way, with the place of each in the block.
struct Group {
  States states;
  Values values;
  Places origin;
  int count = 0;

  /// Lanes that no state fills repeat the last one.
  void pad(int lanes);
};

/// The answers to a block: 0 and where the state is, or a message.
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

/// Decides, solves and evaluates the `count` states whose inputs stand in `answers`. Every state
/// gets its status: 0 and its place, or the number of the message with which the member refuses it.
void work(const Order& order, int count, Answers& answers);

}  // namespace calvex::direct
