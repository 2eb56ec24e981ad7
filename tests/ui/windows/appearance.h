/// \file
/// What a dialog looks like.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "ui/windows/dialog_user.h"

namespace calvex::test {

/// Fails where controls overlap or leave the dialog, and where a label, a button or an entry of a
/// list is wider than its control.
void expectEverythingFits(HWND dialog);

/// The window in its dialog's coordinates.
[[nodiscard]] RECT placeOf(HWND control);

void enlarge(HWND dialog, int width, int height);

/// Fails where the dialog has no border to draw at, or becomes smaller than it opened.
void expectResizable(HWND dialog);

/// Fails where the dialog, after the user has drawn at its border, shows other pixels than it does
/// when everything in it is drawn anew.
void expectDrawnWhole(HWND dialog);

/// Shows the dialog, by the function, from owners in several places and from none: it must open at
/// the owner's middle, or the screen's, and nowhere beyond the screen's work area.
void expectCentred(const std::function<void(DialogUser::Turn)>& show);

/// Writes what the screen shows of the window as NAME.bmp into the folder that the environment
/// variable CALVEX_PICTURES names; without one does nothing.
void takePicture(HWND window, const std::string& name);

}  // namespace calvex::test
