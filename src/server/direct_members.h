/// \file
/// Which members the direct road answers, and in which terms.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "direct/direct_road.h"
#include "engine/thermo_engine.h"
#include "server/member_table.h"

namespace calvex {

/// A member's one output as a property of a state.
struct DirectMember {
  direct::Pair pair;
  direct::Letter result;
  bool ofLiquid = false;  ///< a member of one input on the saturation line: the quality is 0
};

/// The members from two properties and those of the saturation line; nothing for the others.
[[nodiscard]] std::optional<DirectMember> directMember(const Member& member);

/// The engine's units, whose names live as long as it keeps them; nothing while they are those of a
/// units server, or none that values can be told in.
[[nodiscard]] std::optional<direct::Units> directUnits(const UserUnits& units);

/// Why a state of the direct road fails; both texts are empty when it does not.
struct DirectReason {
  std::string text;   ///< the member's message
  std::string cause;  ///< what is behind it, where its text does not say all
};
/// As the member says it that answers the letter refused, called anew: some 10 us to 1 ms. Where no
/// member does (a viscosity from enthalpy, anything from enthalpy and entropy), as another one of
/// the same state does.
/// \param units the engine's, by `directUnits`; the inputs are in these.
[[nodiscard]] DirectReason directReason(direct::Pair pair, double first, double second,
                                        std::span<const direct::Letter> letters,
                                        const direct::Units& units, const ZvThermoInt& engine);

/// Whether the direct road has the engine's settings: the exact saturation line, and the solver's
/// as they are by default.
[[nodiscard]] bool hasDirectSettings(const ZvThermoInt& engine);

}  // namespace calvex
