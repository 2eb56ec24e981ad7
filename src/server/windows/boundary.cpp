#include "server/windows/boundary.h"

#include "server/windows/guids.h"

namespace calvex::com {

namespace {
ZvThermoInt* theEngine = nullptr;
}

ZvThermoInt& engine() noexcept { return *theEngine; }

void setEngine(ZvThermoInt* engine) noexcept { theEngine = engine; }

HRESULT report(HRESULT result, const wchar_t* description) noexcept {
  ICreateErrorInfo* made = nullptr;
  if (FAILED(CreateErrorInfo(&made))) return result;
  made->SetGUID(interfaceId);
  made->SetSource(const_cast<wchar_t*>(L"Calvex32.ZvCalvex"));  // the declaration lacks a const
  made->SetDescription(const_cast<wchar_t*>(description));
  IErrorInfo* information = nullptr;
  if (SUCCEEDED(made->QueryInterface(IID_IErrorInfo, reinterpret_cast<void**>(&information)))) {
    SetErrorInfo(0, information);
    information->Release();
  }
  made->Release();
  return result;
}

HRESULT noPlaceForResult() noexcept {
  return report(E_POINTER, L"An argument that takes a result is a null pointer.");
}

}  // namespace calvex::com
