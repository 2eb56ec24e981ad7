/// \file
/// What the dialogs call of the system's common controls.
#pragma once

#include <windows.h>
// After the platform's declarations.
#include <commctrl.h>

namespace calvex {

/// They are loaded by the first dialog, in the version that its activation context asks for, and
/// stay. Loaded with the module they would be the oldest version, and they draw at once: clients
/// whose apartments all make their first object at the same time would wait for each other for
/// ever, one with the loader's lock for what makes drawing possible, one that makes it possible for
/// the lock.
struct CommonControls {
  /// Throws std::system_error where the system lacks one.
  CommonControls();

  decltype(&::InitCommonControlsEx) InitCommonControlsEx;
  decltype(&::ImageList_Create) ImageList_Create;
  decltype(&::ImageList_Destroy) ImageList_Destroy;
  decltype(&::ImageList_ReplaceIcon) ImageList_ReplaceIcon;
  decltype(&::SetWindowSubclass) SetWindowSubclass;
  decltype(&::RemoveWindowSubclass) RemoveWindowSubclass;
  decltype(&::DefSubclassProc) DefSubclassProc;
};

const CommonControls& commonControls();

}  // namespace calvex
