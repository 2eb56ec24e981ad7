#include "server/windows/server.h"

#include "server/windows/boundary.h"
#include "server/windows/guids.h"
#include "server/windows/units_server.h"
#include "ui/windows/dialogs.h"

namespace calvex::com {

Server::Server(HINSTANCE instance)
    : instance_(instance), module_(connectUnitsServer, makeDialogs(instance)) {
  setEngine(&module_.engine());
}

Server::~Server() { setEngine(nullptr); }

std::wstring Server::path() const {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length =
        GetModuleFileNameW(instance_, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(2 * path.size());
  }
}

// The type library belongs to the object model's runtime, which may go before the module does: it
// is given back with the last object.
void Server::unlock() noexcept {
  if (--locks_ != 0) return;
  const std::lock_guard alone(typeLibraryMutex_);
  if (typeLibrary_ != nullptr) typeLibrary_->Release();
  typeLibrary_ = nullptr;
}

HRESULT Server::typeInformation(REFGUID id, ITypeInfo** information) {
  const std::lock_guard alone(typeLibraryMutex_);
  if (typeLibrary_ == nullptr) {
    // The first is resource 1; a registered library of the same name could be another version's.
    const HRESULT loaded = LoadTypeLibEx(path().c_str(), REGKIND_NONE, &typeLibrary_);
    if (FAILED(loaded)) return loaded;
  }
  return typeLibrary_->GetTypeInfoOfGuid(id, information);
}

}  // namespace calvex::com
