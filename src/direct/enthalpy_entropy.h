/// \file
/// The state with a given enthalpy and entropy, which no member answers, for what the lanes do not
/// settle: a search over the saturation line and over states of one phase.
#pragma once

#include "direct/member_road.h"

namespace calvex::direct {

/// 0 and the state, or message 104 (solution error) where water has no such state in the range of
/// the members: 260 to 2500 K, 1e-6 to
/// 3000 MPa. kJ/kg, kJ/(kg.K).
[[nodiscard]] int stateFromHS(double h, double s, FoundState& state);

}  // namespace calvex::direct
