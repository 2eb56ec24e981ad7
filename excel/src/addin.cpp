// What the host calls: the add-in's life and the worksheet functions.
#include <array>

#include "failures.h"
#include "functions.h"
#include "host.h"
#include "registration.h"

using namespace calvex::excel;

#define CALVEX_ENTRY extern "C" __declspec(dllexport)

/// Registers the functions. 1: the add-in is there.
CALVEX_ENTRY int WINAPI xlAutoOpen() {
  try {
    return registerAll() ? 1 : 0;
  } catch (...) {
    return 0;
  }
}

/// The host lets the add-in go: nothing of it stays there, and it has no memory of it.
CALVEX_ENTRY int WINAPI xlAutoClose() {
  try {
    unregisterAll();
    forgetAllFailures();
    forgetEngines();
  } catch (...) {
    // The host takes no other answer.
  }
  return 1;
}

/// What the list of add-ins calls this one.
CALVEX_ENTRY XLOPER12* WINAPI xlAddInManagerInfo12(XLOPER12* action) {
  try {
    Answer number;
    constexpr double asInteger = xltypeInt;
    const bool isName = call(xlCoerce, number, {*action, asInteger}) &&
                        number.type() == xltypeInt && number.value().val.w == 1;
    using calvex::worksheet::Cell;
    if (isName) return resultOf(Cell(std::string("Calvex " CALVEX_VERSION)));
    return resultOf(Cell(calvex::worksheet::Error{calvex::worksheet::ErrorKind::value}));
  } catch (...) {
    return nullptr;
  }
}

CALVEX_ENTRY void WINAPI xlAutoFree12(XLOPER12* result) { release(result); }

#include "entry_points.inc"
