/// \file
/// Makes the worksheet functions known to the host.
#pragma once

#include <string>
#include <vector>

#include "server/worksheet_functions.h"

namespace calvex::excel {

/// What the host is told of a function; each text is at most 255 characters long.
struct Registered {
  std::string procedure;  ///< that the module exports
  std::string types;      ///< of the result and the arguments, by the interface's letters
  std::string name;
  std::string argumentNames;  ///< "P,T", "[Result]" for one that may be left out
  std::string category;
  std::string help;
  std::vector<std::string> argumentHelp;
};
[[nodiscard]] Registered registered(const WorksheetFunction& function);

/// Registers all functions; false where the host refuses one.
bool registerAll();
/// Takes them back, with their names.
void unregisterAll();

}  // namespace calvex::excel
