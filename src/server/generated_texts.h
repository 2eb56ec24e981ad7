/// \file
/// Texts for other compilers, made from the tables: the interface definition and the string
/// resources of the Windows module. They are kept in server/windows and made anew by
/// scripts/update-generated.
#pragma once

#include <string>

namespace calvex {

/// The interface `IZvCalvex`, its class and type library, in the interface definition language:
/// every member by dispatch id, of a setting the get before the put.
[[nodiscard]] std::string interfaceDefinition();

/// The string table for the resource compiler: the messages, and the names and internal units of
/// the unit groups.
[[nodiscard]] std::string stringResources();

}  // namespace calvex
