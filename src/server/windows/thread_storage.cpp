// The thread-local storage that the module takes from its process, given back when it is unloaded.
//
// winpthreads, which the C++ library's threads stand on, takes a slot at its first use and keeps it
// for good; where no more of the process's 1,088 are free, it ends the process. A client that makes
// an object and drops it unloads the module each time. So the import of TlsAlloc leads here.
#include <windows.h>

#include <array>
#include <atomic>

namespace {

std::array<DWORD, 8> slots;  // one is taken
std::atomic<std::size_t> taken = 0;

DWORD WINAPI takeSlot() {
  const auto take = reinterpret_cast<decltype(&TlsAlloc)>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "TlsAlloc")));
  const DWORD slot = take();
  if (slot != TLS_OUT_OF_INDEXES && taken < slots.size()) slots[taken++] = slot;
  return slot;
}

struct SlotsGoBack {
  ~SlotsGoBack() {
    while (taken != 0) TlsFree(slots[--taken]);
  }
};

// Made before everything else of the module, and so destroyed after all that may use a slot.
[[gnu::init_priority(101)]] SlotsGoBack atTheEnd;

}  // namespace

// What the linker otherwise takes from the system's import library.
#ifdef __i386__
extern "C" decltype(&TlsAlloc) importOfTlsAlloc __asm__("__imp__TlsAlloc@0");
#else
extern "C" decltype(&TlsAlloc) importOfTlsAlloc __asm__("__imp_TlsAlloc");
#endif
decltype(&TlsAlloc) importOfTlsAlloc = takeSlot;
