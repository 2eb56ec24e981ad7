/// \file
/// Texts for other compilers, made from the tables: the interface definition and the string
/// resources of the Windows module, kept in server/windows, the worksheet functions, kept in
/// packaging/windows, the entry points of the Excel add-in, kept in excel/src, and three headers of
/// the C++ wrapper, kept in include/calvex. scripts/update-generated makes them anew.
#pragma once

#include <string>
#include <string_view>

namespace calvex {

/// What the generated texts begin with.
inline constexpr std::string_view generatedNotice =
    "Made by scripts/update-generated from the product's tables.";

/// The interface `IZvCalvex`, its class and type library, in the interface definition language:
/// every member by dispatch id, of a setting the get before the put.
[[nodiscard]] std::string interfaceDefinition();

/// The string table for the resource compiler: the messages, and the names and internal units of
/// the unit groups.
[[nodiscard]] std::string stringResources();

/// A worksheet function for every member that answers numbers, and one that finds them by name, in
/// Visual Basic: the end of the macro module, whose beginning is written by hand.
[[nodiscard]] std::string worksheetFunctions();

/// The exported functions of the Excel add-in, one for each of its worksheet functions.
[[nodiscard]] std::string worksheetEntryPoints();

/// The headers of the C++ wrapper over the C interface: what members with several results answer,
/// the engine with every member and its real signature, and a visit to all of them.
[[nodiscard]] std::string wrapperResults();
[[nodiscard]] std::string wrapperMembers();
[[nodiscard]] std::string wrapperVisits();

}  // namespace calvex
