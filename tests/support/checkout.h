/// \file
/// What the tests know of the checkout that they were built from.
#pragma once

#include <string>

namespace calvex::test {

/// tests/data
[[nodiscard]] std::string dataFolder();

/// The folder of the pages for users.
[[nodiscard]] std::string docsFolder();

/// The version that CMakeLists.txt gives the project.
[[nodiscard]] std::string projectVersion();

}  // namespace calvex::test
