/// \file
/// A member explained: what it computes, its inputs and results with their limits in the client's
/// units, an example with its answer, and how automation clients see it.
#pragma once

#include <string>
#include <vector>

#include "client.h"

namespace calvex::cli {

[[nodiscard]] std::string memberHelp(const Member& member, const ClientOptions& options);

/// The lines that show how the member is called: one for a call, several for a script. They
/// succeed. Texts with blanks stand in double quotes.
[[nodiscard]] std::vector<std::string> exampleLines(const Member& member, const UserUnits& units);

}  // namespace calvex::cli
