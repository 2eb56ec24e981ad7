#include "server/windows/boundary.h"

#include <atomic>
#include <mutex>
#include <utility>

#include "server/windows/guids.h"

namespace calvex::com {

namespace {

ZvThermoInt* theEngine = nullptr;

/// The same for a call and for all that it causes, in whatever threads.
GUID currentCall() noexcept {
  GUID call = GUID_NULL;
  CoGetCurrentLogicalThreadId(&call);
  return call;
}

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

  /// False for a guest, who does not leave either.
  bool enter() noexcept {
    if (TryEnterCriticalSection(&inside_) != FALSE) return true;
    if (isGuest()) return false;
    ++waiting_;
    while (TryEnterCriticalSection(&inside_) == FALSE) {
      DWORD index = 0;
      // Refused in a thread without an apartment, which has no calls to answer.
      if (FAILED(CoWaitForMultipleHandles(0, INFINITE, 1, &left_, &index))) {
        WaitForSingleObject(left_, INFINITE);
      }
    }
    --waiting_;
    return true;
  }

  void leave() noexcept {
    LeaveCriticalSection(&inside_);
    if (waiting_ != 0) SetEvent(left_);
  }

  /// Whose call is out in another apartment now; answers whose was before.
  GUID setAway(const GUID& call) noexcept {
    const std::lock_guard alone(awayMutex_);
    return std::exchange(away_, call);
  }

 private:
  bool isGuest() noexcept {
    const GUID call = currentCall();
    const std::lock_guard alone(awayMutex_);
    return away_ != GUID_NULL && call == away_;
  }

  CRITICAL_SECTION inside_;
  HANDLE left_ = CreateEventW(nullptr, FALSE, FALSE, nullptr);  // wakes one, each time
  std::atomic<int> waiting_ = 0;
  std::mutex awayMutex_;
  GUID away_ = GUID_NULL;
};

Door door;

}  // namespace

Turn::Turn() noexcept : mine_(door.enter()) {}
Turn::~Turn() {
  if (mine_) door.leave();
}

CallingOut::CallingOut() noexcept : before_(door.setAway(currentCall())) {}
CallingOut::~CallingOut() { door.setAway(before_); }

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
