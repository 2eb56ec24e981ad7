#include "server/windows/boundary.h"

#include <atomic>

#include "server/windows/guids.h"

namespace calvex::com {

namespace {

ZvThermoInt* theEngine = nullptr;

// Where callers take turns. The first way in costs an atomic exchange; whoever waits is counted, so
// that leaving costs no system call when nobody does.
class Door {
 public:
  Door() noexcept { InitializeCriticalSection(&inside_); }
  ~Door() {
    CloseHandle(left_);
    DeleteCriticalSection(&inside_);
  }
  Door(const Door&) = delete;
  Door& operator=(const Door&) = delete;

  void enter() noexcept {
    if (TryEnterCriticalSection(&inside_) != FALSE) return;
    ++waiting_;
    while (TryEnterCriticalSection(&inside_) == FALSE) {
      DWORD index = 0;
      // Refused in a thread without an apartment, which has no calls to answer.
      if (FAILED(CoWaitForMultipleHandles(0, INFINITE, 1, &left_, &index))) {
        WaitForSingleObject(left_, INFINITE);
      }
    }
    --waiting_;
  }

  void leave() noexcept {
    LeaveCriticalSection(&inside_);
    if (waiting_ != 0) SetEvent(left_);
  }

 private:
  CRITICAL_SECTION inside_;
  HANDLE left_ = CreateEventW(nullptr, FALSE, FALSE, nullptr);  // wakes one, each time
  std::atomic<int> waiting_ = 0;
};

Door door;

}  // namespace

Turn::Turn() noexcept { door.enter(); }
Turn::~Turn() { door.leave(); }

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
