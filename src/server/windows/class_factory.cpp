#include "server/windows/class_factory.h"

#include "server/windows/automation_object.h"
#include "server/windows/server.h"

namespace calvex::com {

namespace {

class ClassFactory final : public IClassFactory {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override {
    if (out == nullptr) return E_POINTER;
    const bool known = id == IID_IUnknown || id == IID_IClassFactory;
    *out = known ? static_cast<IClassFactory*>(this) : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  // Cached for the life of the module: the counts say that it is alive, and decide nothing.
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** out) override {
    return AutomationObject::create(outer, id, out);
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override {
    if (lock != FALSE) {
      server().lock();
    } else {
      server().unlock();
    }
    return S_OK;
  }
};

}  // namespace

IClassFactory& classFactory() noexcept {
  static ClassFactory factory;
  return factory;
}

}  // namespace calvex::com
