// The module's entry points.
#include <cwchar>
#include <exception>

#include "server/windows/boundary.h"
#include "server/windows/class_factory.h"
#include "server/windows/guids.h"
#include "server/windows/registration.h"
#include "server/windows/server.h"

namespace {

calvex::com::Server* theServer = nullptr;

}  // namespace

calvex::com::Server& calvex::com::server() noexcept { return *theServer; }

extern "C" {

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID processEnds) {
  if (reason == DLL_PROCESS_ATTACH) {
    try {
      theServer = new calvex::com::Server(instance);
    } catch (const std::exception&) {
      return FALSE;  // without its engine the module does not load
    }
  } else if (reason == DLL_PROCESS_DETACH) {
    // At the end of the process the system takes everything back: other modules may already be
    // gone, and one that goes later may still release its objects.
    if (processEnds == nullptr) delete theServer;
  }
  return TRUE;
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID id, void** out) {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  if (classId != calvex::com::classId) return CLASS_E_CLASSNOTAVAILABLE;
  return calvex::com::classFactory().QueryInterface(id, out);
}

STDAPI DllCanUnloadNow() { return calvex::com::server().isInUse() ? S_FALSE : S_OK; }

STDAPI DllRegisterServer() {
  return calvex::com::atBoundary(
      [] { return calvex::com::registerServer(calvex::com::server().path()); });
}

STDAPI DllUnregisterServer() {
  return calvex::com::atBoundary([] { return calvex::com::unregisterServer(); });
}

/// `regsvr32 /i:user`: for the current user alone.
STDAPI DllInstall(BOOL install, LPCWSTR commandLine) {
  return calvex::com::atBoundary([&] {
    const bool forUser = commandLine != nullptr && _wcsicmp(commandLine, L"user") == 0;
    if (commandLine != nullptr && *commandLine != L'\0' && !forUser) return E_INVALIDARG;
    return install != FALSE ? calvex::com::registerServer(calvex::com::server().path(), forUser)
                            : calvex::com::unregisterServer(forUser);
  });
}
}
