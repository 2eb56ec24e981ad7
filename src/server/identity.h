/// \file
/// What names the automation server to the world. None of it ever changes.
#pragma once

#include <string_view>

namespace calvex::identity {

inline constexpr std::string_view classId = "4a623f37-f2b3-4a12-9359-f66186ebf6c4";
inline constexpr std::string_view interfaceId = "b39088b6-20b8-4bbf-a809-aaee4f8e0e84";
inline constexpr std::string_view typeLibraryId = "f068e7f0-5511-41b5-b323-6ad406805778";
inline constexpr int typeLibraryVersion = 3;

inline constexpr std::string_view className = "ZvCalvex Class";
inline constexpr std::string_view programId = "Calvex32.ZvCalvex.3";
inline constexpr std::string_view versionIndependentProgramId = "Calvex32.ZvCalvex";

}  // namespace calvex::identity
