/// \file
/// The members' own way to a state, for what the lanes do not settle: the engine's checks and the
/// steam layer's solve with the exact saturation line, without trace and units.
#pragma once

#include <string>

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
  /// The text with which the solve refuses inputs that are in range; empty if it does not.
  [[nodiscard]] std::string refusal(Pair pair, double first, double second);

 private:
  int solve(Pair pair, double first, double second, FoundState& state);

  Diagnostics diagnostics_;
  SteamModel model_;
};

/// The range checks that come before a solve: 0, 102 or 108.
[[nodiscard]] int checkInputs(Pair pair, double first, double second) noexcept;
/// The range of a transport correlation: 0 or 108; 0 for all other letters.
[[nodiscard]] int checkTransport(Letter letter, double P, double T) noexcept;
/// Its bounds: 273.15 K to this, 0 MPa to that.
[[nodiscard]] double highestTransportTemperature(Letter letter) noexcept;
[[nodiscard]] double highestTransportPressure(Letter letter, double T) noexcept;

}  // namespace calvex::direct
