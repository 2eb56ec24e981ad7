/// \file
/// The members' own way to a state, for what the lanes do not settle: the engine's checks and the
/// steam layer's solve with the exact saturation line, without trace and units.
#pragma once

#include <span>

#include "diagnostics/diagnostics.h"
#include "direct/direct_road.h"
#include "steam/steam_model.h"

namespace calvex::direct {

/// A state found: one phase (T, density) or two (T, pressure, both densities, quality).
struct FoundState {
  bool twoPhases = false;
  double T = 0.0;
  double density = 0.0;  ///< of two phases the liquid's
  double vapour = 0.0;
  double pressure = 0.0;
  double quality = 0.0;
};

/// One for each thread.
class MemberRoad {
 public:
  MemberRoad();

  /// 0 and the state, or the number of the message. Model units.
  int find(Pair pair, double first, double second, FoundState& state) noexcept;

 private:
  int solve(Pair pair, double first, double second, FoundState& state);

  Diagnostics diagnostics_;
  SteamModel model_;
};

/// The range checks that come before a solve: 0, 102 or 108.
[[nodiscard]] int checkInputs(Pair pair, double first, double second) noexcept;
/// The range of a transport correlation: 0 or 108; 0 for all other letters.
[[nodiscard]] int checkTransport(Letter letter, double P, double T) noexcept;
/// Where the ranges of an input end that the two know: a client's value that only the conversion of
/// units moved past one of these is at it.
[[nodiscard]] std::span<const double> boundsOf(Pair pair, Letter input) noexcept;

}  // namespace calvex::direct
