/// \file
/// Counts what a test program takes from the heap. It replaces the program's allocation functions:
/// include it in one source of a program only.
#pragma once

#include <atomic>
#include <cstdlib>
#include <new>

namespace calvex {

inline std::atomic<long> allocationCount = 0;

/// Allocations since the program started, on all threads.
inline long allocations() { return allocationCount; }

}  // namespace calvex

// The array forms end in these. Not inlined: the compiler would see free() release what came from
// new, and warn.
[[gnu::noinline]] void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  ++calvex::allocationCount;
  return std::malloc(size == 0 ? 1 : size);
}
[[gnu::noinline]] void* operator new(std::size_t size) {
  if (void* memory = operator new(size, std::nothrow)) return memory;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t /*size*/) noexcept {
  std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, const std::nothrow_t& /*tag*/) noexcept {
  std::free(memory);
}
