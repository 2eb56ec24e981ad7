/// \file
/// The server's entries in the registry.
#pragma once

#include <string>

#include "server/windows/automation.h"

namespace calvex::com {

/// Writes the entries of the class and registers the type library, for all users; for the current
/// user alone when `forUser` says so or the machine's hive is not writable. Answers the failure of
/// the first step that failed, and then leaves nothing behind.
HRESULT registerServer(const std::wstring& modulePath, bool forUser = false);

/// Removes what registration wrote, for the current user and, unless `forUser`, for all. Nothing
/// there is a success.
HRESULT unregisterServer(bool forUser = false);

}  // namespace calvex::com
