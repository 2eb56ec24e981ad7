/// \file
/// Calls of the members that choose and convert units: their arguments are words that people type.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "client.h"

namespace calvex::cli {

struct Call;

/// What the words of a call name.
struct UnitChoice {
  std::optional<UnitGroup> group;
  std::vector<const ZvUomLiteKeyword*> units;  ///< in the order of the parameters
  std::string warning;                         ///< UTF-8
};

/// Replaces words for groups and units by the catalogue's own. A word that is not known stays, for
/// the engine to refuse.
[[nodiscard]] UnitChoice nameUnits(const Member& member, std::vector<Value>& arguments);

/// Runs the call, also with units that the catalogue lacks.
[[nodiscard]] ZvCalvex::Result invoke(Client& client, Call& call);

/// For a call that names a unit group and units of it: what is wrong with the names, with the
/// nearest ones; empty when nothing is.
[[nodiscard]] std::string unitHint(const Call& call);

}  // namespace calvex::cli
