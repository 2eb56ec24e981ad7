/// \file
/// Where calls enter and leave the module. Nothing of the inside shows outside: no exception, and
/// no trace in the floating-point unit.
#pragma once

#include <xmmintrin.h>

#include <new>

#include "server/windows/automation.h"

namespace calvex {
class ZvThermoInt;
}

namespace calvex::com {

/// The one engine of the loaded module: the binary interface has no other way to it.
[[nodiscard]] ZvThermoInt& engine() noexcept;
void setEngine(ZvThermoInt* engine) noexcept;

/// The engine's arithmetic runs with the exceptions masked and the rounding to nearest, whatever
/// the client had set (some hosts unmask them), and leaves no status flag behind.
class FloatingPointScope {
 public:
  FloatingPointScope() noexcept : clients_(_mm_getcsr()) { _mm_setcsr(masked); }
  ~FloatingPointScope() {
    _mm_setcsr(clients_);
#ifdef __i386__
    __asm__ __volatile__("fnclex\n\tfldenv %0" : : "m"(clientsX87_));
#endif
  }
  FloatingPointScope(const FloatingPointScope&) = delete;
  FloatingPointScope& operator=(const FloatingPointScope&) = delete;

 private:
  static constexpr unsigned masked = 0x1F80;
  unsigned clients_;
#ifdef __i386__
  // The C runtime's functions use the x87 unit there. Storing its environment masks the exceptions.
  struct X87Environment {
    unsigned words[7];
  };
  X87Environment clientsX87_ = [] {
    X87Environment environment{};
    constexpr unsigned short extendedPrecision = 0x037F;
    __asm__ __volatile__("fnstenv %0\n\tfnclex\n\tfldcw %1"
                         : "=m"(environment)
                         : "m"(extendedPrecision));
    return environment;
  }();
#endif
};

/// A caller's turn. The engine serves one thread at a time, whatever apartments the callers live
/// in: the system lets those of several apartments call side by side. The thread whose turn it is
/// may come again, out of the messages of a dialog or from its units server. The others wait, and
/// go on answering the calls that reach their apartments, where that units server may live.
class Turn {
 public:
  Turn() noexcept;
  ~Turn();
  Turn(const Turn&) = delete;
  Turn& operator=(const Turn&) = delete;

 private:
  bool mine_;
};

/// While it lives, the caller whose turn it is has a call out to a client's object, perhaps in
/// another apartment: what comes back from there belongs to the same turn.
class CallingOut {
 public:
  CallingOut() noexcept;
  ~CallingOut();
  CallingOut(const CallingOut&) = delete;
  CallingOut& operator=(const CallingOut&) = delete;

 private:
  GUID before_;
};

/// Leaves a description of the failure for clients that ask for one, and answers the result.
HRESULT report(HRESULT result, const wchar_t* description) noexcept;

/// Thrown inside to answer a failing result; the description is a literal.
struct Failure {
  HRESULT result;
  const wchar_t* description;
};

/// E_POINTER.
HRESULT noPlaceForResult() noexcept;

/// Runs the body of a function that a client called.
template <class Body>
HRESULT atBoundary(Body&& body) noexcept {
  const Turn turn;
  const FloatingPointScope arithmetic;
  try {
    return body();
  } catch (const Failure& failure) {
    return report(failure.result, failure.description);
  } catch (const std::bad_alloc&) {
    return report(E_OUTOFMEMORY, L"There is not enough memory for this call.");
  } catch (...) {
    return report(E_UNEXPECTED, L"The call ended in an internal error.");
  }
}

}  // namespace calvex::com
