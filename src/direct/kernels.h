/// \file
/// What is compiled once for each instruction set: the work on whole blocks of states.
#pragma once

#include <array>
#include <string_view>

#include "direct/direct_road.h"
#include "steam/property.h"

namespace calvex::direct {

/// States are worked on in blocks. Arrays of a block are used up to the next multiple of the lanes;
/// what lies beyond the last state is computed with it and never read.
inline constexpr int blockSize = 128;
using Block = std::array<double, blockSize>;

/// Where a state goes next.
enum class Way : int {
  onePhase,   ///< temperature and density are known, or where to start for them
  twoPhases,  ///< temperature and both saturated densities start, or are known
  member      ///< the members' own solve: an error, a near decision, or a place without a start
};

/// A block of states on its way.
struct States {
  Block first;  // the inputs, model units
  Block second;
  Block way;       // of enum Way, as a number
  Block T;         // K
  Block density;   // kg/m3; of two phases the liquid's
  Block vapour;    // density of the vapour
  Block quality;   // of two phases
  Block pressure;  // of two phases, MPa
};

/// Properties of a block by letter, with the derivatives by two variables of the state: temperature
/// and density of one phase, temperature and quality of two.
struct Values {
  std::array<Block, letterCount> value;
  std::array<Block, letterCount> byX;
  std::array<Block, letterCount> byY;
  Block lineSlope;  // dP/dT of two phases, MPa/K
};

/// A set of letters.
using Letters = unsigned;
[[nodiscard]] constexpr Letters bit(Letter letter) { return 1U << static_cast<unsigned>(letter); }
/// Asks for the slope of the line, beside the letters.
inline constexpr Letters lineSlopeWanted = 1U << letterCount;

/// The property that a letter stands for; not of Q.
[[nodiscard]] Property propertyOf(Letter letter) noexcept;

/// The properties that are computed.
struct Wanted {
  Letters letters = 0;
  bool derivatives = false;
};

struct Kernels {
  std::string_view name;
  int lanes;
  /// Sets `way` and where to start.
  void (*decide)(Pair pair, int count, States& states);
  /// From the starting points to the states and their properties; a state that is not found, or
  /// that may not be the members' answer, goes to the member.
  void (*solve)(Pair pair, const Wanted& wanted, int count, States& states, Values& values);
  /// The same for two phases, with the quality.
  void (*solveTwoPhases)(Pair pair, const Wanted& wanted, int count, States& states,
                         Values& values);
  /// The properties of known states, from one place of the block to another; multiples of the
  /// lanes.
  void (*properties)(const Wanted& wanted, int begin, int end, const States& states,
                     Values& values);
  void (*mixtures)(const Wanted& wanted, int begin, int end, const States& states, Values& values);
};

/// The sets of this machine, best first.
[[nodiscard]] const Kernels& kernels() noexcept;
/// One lane, compiled for the best instruction set.
[[nodiscard]] const Kernels& oneLane() noexcept;

}  // namespace calvex::direct
