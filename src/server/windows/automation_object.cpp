#include "server/windows/automation_object.h"

#include <vector>

#include "server/windows/boundary.h"
#include "server/windows/dispatch.h"
#include "server/windows/guids.h"
#include "server/windows/server.h"

namespace calvex::com {

// IUnknown, IDispatch, then the members in the order of the interface definition: by dispatch id,
// of a setting the get before the put.
struct AutomationObject::DualTable {
  static HRESULT STDMETHODCALLTYPE queryInterface(Dual* self, REFIID id, void** out) {
    return self->object->QueryInterface(id, out);
  }
  static ULONG STDMETHODCALLTYPE addRef(Dual* self) { return self->object->AddRef(); }
  static ULONG STDMETHODCALLTYPE release(Dual* self) { return self->object->Release(); }

  static HRESULT STDMETHODCALLTYPE getTypeInfoCount(Dual* /*self*/, UINT* count) {
    if (count == nullptr) return E_POINTER;
    *count = 1;
    return S_OK;
  }
  static HRESULT STDMETHODCALLTYPE getTypeInfo(Dual* /*self*/, UINT index, LCID /*locale*/,
                                               ITypeInfo** information) {
    if (information == nullptr) return E_POINTER;
    *information = nullptr;
    if (index != 0) return DISP_E_BADINDEX;
    return atBoundary([&] { return server().typeInformation(interfaceId, information); });
  }
  static HRESULT STDMETHODCALLTYPE getIDsOfNames(Dual* /*self*/, REFIID id, LPOLESTR* names,
                                                 UINT count, LCID /*locale*/, DISPID* ids) {
    if (id != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    if (names == nullptr || ids == nullptr) return E_POINTER;
    if (count == 0) return S_OK;
    return atBoundary([&] { return idsOfNames(names, count, ids); });
  }
  static HRESULT STDMETHODCALLTYPE invoke(Dual* self, DISPID member, REFIID id, LCID /*locale*/,
                                          WORD flags, DISPPARAMS* given, VARIANT* result,
                                          EXCEPINFO* /*exception*/, UINT* wrongArgument) {
    if (id != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    if (given == nullptr) return E_POINTER;
    return atBoundary([&] {
      return com::invoke(self->object->object_, member, flags, *given, result, wrongArgument);
    });
  }

  static const void* const* table() {
    // Never deleted: clients may release their objects at the very end of the process.
    static const auto& functions = *new std::vector<const void*>([] {
      std::vector<const void*> all{reinterpret_cast<const void*>(&queryInterface),
                                   reinterpret_cast<const void*>(&addRef),
                                   reinterpret_cast<const void*>(&release),
                                   reinterpret_cast<const void*>(&getTypeInfoCount),
                                   reinterpret_cast<const void*>(&getTypeInfo),
                                   reinterpret_cast<const void*>(&getIDsOfNames),
                                   reinterpret_cast<const void*>(&invoke)};
      for (const Member& member : memberTable()) {
        all.push_back(member.entry());
        if (member.put != nullptr) all.push_back(member.putEntry());
      }
      return all;
    }());
    return functions.data();
  }
};

AutomationObject::AutomationObject(IUnknown* outer)
    : object_(server().module()),
      dual_{DualTable::table(), this},
      outer_(outer != nullptr ? outer : &inner_) {}

HRESULT AutomationObject::create(IUnknown* outer, REFIID id, void** out) {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  if (outer != nullptr && id != IID_IUnknown) return CLASS_E_NOAGGREGATION;
  return atBoundary([&] {
    auto* object = new AutomationObject(outer);
    const HRESULT found = object->inner_.QueryInterface(id, out);
    object->inner_.Release();
    return found;
  });
}

HRESULT AutomationObject::QueryInterface(REFIID id, void** out) {
  return outer_->QueryInterface(id, out);
}
ULONG AutomationObject::AddRef() { return outer_->AddRef(); }
ULONG AutomationObject::Release() { return outer_->Release(); }

HRESULT AutomationObject::Inner::QueryInterface(REFIID id, void** out) {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  if (id == IID_IUnknown) {
    *out = static_cast<IUnknown*>(this);
    AddRef();
    return S_OK;
  }
  if (id == IID_IDispatch || id == interfaceId) {
    *out = &object_.dual_;
  } else if (id == IID_ISupportErrorInfo) {
    *out = static_cast<ISupportErrorInfo*>(&object_);
  } else if (id == IID_IProvideClassInfo) {
    *out = static_cast<IProvideClassInfo*>(&object_);
  } else {
    return E_NOINTERFACE;
  }
  object_.AddRef();
  return S_OK;
}

ULONG AutomationObject::Inner::AddRef() { return ++object_.references_; }

ULONG AutomationObject::Inner::Release() {
  const ULONG left = --object_.references_;
  if (left == 0) {
    const Turn turn;  // the last object resets the engine
    delete &object_;
  }
  return left;
}

HRESULT AutomationObject::InterfaceSupportsErrorInfo(REFIID id) {
  return id == interfaceId ? S_OK : S_FALSE;
}

HRESULT AutomationObject::GetClassInfo(ITypeInfo** information) {
  if (information == nullptr) return E_POINTER;
  *information = nullptr;
  return atBoundary([&] { return server().typeInformation(classId, information); });
}

}  // namespace calvex::com
