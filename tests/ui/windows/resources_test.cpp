#include <gtest/gtest.h>
#include <windows.h>

#include "diagnostics/diagnostics.h"
#include "ui/resource_ids.h"
#include "ui/windows/dialog_user.h"
#include "ui/windows/dialogs.h"

namespace calvex {
namespace {

INT_PTR CALLBACK answerNothing(HWND, UINT, WPARAM, LPARAM) { return FALSE; }

// Whether a list view made now is one of the assembly of version 6.
bool listViewsAreThemed() {
  ACTCTX_SECTION_KEYED_DATA found{};
  found.cbSize = sizeof found;
  return FindActCtxSectionStringW(0, nullptr, ACTIVATION_CONTEXT_SECTION_WINDOW_CLASS_REDIRECTION,
                                  L"SysListView32", &found) != FALSE;
}

TEST(Resources, CarryTheOptionsDialog) {
  const HWND dialog =
      CreateDialogParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(CALVEX_OPTIONS_DIALOG),
                         nullptr, answerNothing, 0);
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(test::textOf(dialog), L"ZvThermoServer Options");
  DestroyWindow(dialog);
}

TEST(Resources, TheirManifestGivesTheDialogsTheThemedControlsInAProgramThatAsksForNone) {
  Diagnostics diagnostics;
  bool redirected = false;
  const test::DialogUser user({[&](HWND) { redirected = listViewsAreThemed(); }});
  EXPECT_FALSE(listViewsAreThemed());
  makeDialogs(GetModuleHandleW(nullptr))->showTrace(diagnostics, {});
  EXPECT_TRUE(redirected);
  EXPECT_FALSE(listViewsAreThemed());
}

}  // namespace
}  // namespace calvex
