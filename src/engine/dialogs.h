/// \file
/// The dialogs of an engine. They need a desktop: a platform that has one hands them to the engine.
#pragma once

#include <string>

namespace calvex {

class Diagnostics;
class UserUnits;

/// What the client told about itself, for the dialogs' titles and help.
struct ClientApplication {
  std::string name;
  std::string helpFile;
  int unitsHelpContext = 0;
};

/// How a dialog ended.
enum class DialogResult : short {
  ok = 1,
  cancel = 2,
  goToCell = 999,  ///< the client shall go to the cell of the chosen call
};

class Dialogs {
 public:
  virtual ~Dialogs() = default;

  /// Shows the record of calls. Closing it puts the chosen reporting level; choosing a call makes
  /// its column values those of the next call.
  virtual DialogResult showTrace(Diagnostics& diagnostics, const ClientApplication& client) = 0;
  /// Lets the user choose the units of the catalogue.
  virtual DialogResult selectUnits(UserUnits& units, const ClientApplication& client) = 0;
};

}  // namespace calvex
