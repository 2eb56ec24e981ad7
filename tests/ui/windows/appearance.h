/// \file
/// What a dialog looks like.
#pragma once

#include <windows.h>

#include <string>

namespace calvex::test {

/// Fails where controls overlap or leave the dialog, and where a label, a button or an entry of a
/// list is wider than its control.
void expectEverythingFits(HWND dialog);

/// Writes what the screen shows of the window as NAME.bmp into the folder that the environment
/// variable CALVEX_PICTURES names; without one does nothing.
void takePicture(HWND window, const std::string& name);

}  // namespace calvex::test
