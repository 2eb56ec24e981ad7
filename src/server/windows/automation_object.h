/// \file
/// The class `ZvCalvex` as clients hold it.
#pragma once

#include <atomic>

#include "server/windows/automation.h"
#include "server/windows/server.h"
#include "server/zv_calvex.h"

namespace calvex::com {

/// One object. Its interfaces: IUnknown, IDispatch and IZvCalvex (one dual interface),
/// ISupportErrorInfo and IProvideClassInfo. As part of an outer object (aggregation) all of them
/// answer for the outer one; only the inner IUnknown, which the outer one keeps, is the object's
/// own.
class AutomationObject final : public ISupportErrorInfo, public IProvideClassInfo {
 public:
  /// Answers the interface `id` of a new object, or E_NOINTERFACE, CLASS_E_NOAGGREGATION (an outer
  /// object must ask for IUnknown), E_OUTOFMEMORY.
  static HRESULT create(IUnknown* outer, REFIID id, void** out);

  // Both interfaces inherit these; they belong to the outer object where there is one.
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID id) override;
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** information) override;

 private:
  /// The dual interface as the binary standard lays it out: a pointer to its table of functions.
  /// The compiler cannot make this table: its functions come from the member table.
  struct Dual {
    const void* const* table;
    AutomationObject* object;
  };
  struct DualTable;

  class Inner final : public IUnknown {
   public:
    explicit Inner(AutomationObject& object) : object_(object) {}
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;

   private:
    AutomationObject& object_;
  };

  explicit AutomationObject(IUnknown* outer);
  ~AutomationObject() = default;

  ModuleLock lock_;  // the last to go
  ZvCalvex object_;
  Inner inner_{*this};
  Dual dual_;
  IUnknown* outer_;  ///< itself where there is no outer object
  std::atomic<ULONG> references_ = 1;
};

}  // namespace calvex::com
