/// \file
/// The declarations of the object model and of automation, in the order in which they compile.
#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>
// After the above.
#include <ole2.h>
// After the above.
#include <ocidl.h>
