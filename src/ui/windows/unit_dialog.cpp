#include "ui/windows/unit_dialog.h"

#include <htmlhelp.h>

#include <algorithm>

#include "ui/resource_ids.h"
#include "units/utf16.h"

namespace calvex {

namespace {

class WaitCursor {
 public:
  WaitCursor() : before_(SetCursor(LoadCursorW(nullptr, IDC_WAIT))) {}
  ~WaitCursor() { SetCursor(before_); }
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;

 private:
  HCURSOR before_;
};

/// Opens a compiled HTML file with its viewer, which is loaded only for this, any other with the
/// older one. A context of 0 shows the first page.
bool openHelp(HWND owner, const std::wstring& file, DWORD context) {
  const auto dot = file.rfind(L'.');
  if (dot == std::wstring::npos || lstrcmpiW(file.c_str() + dot, L".chm") != 0) {
    return WinHelpW(owner, file.c_str(), context == 0 ? HELP_FINDER : HELP_CONTEXT, context) !=
           FALSE;
  }
  // Never freed: a help window may still be open.
  const HMODULE viewer = LoadLibraryW(L"hhctrl.ocx");
  if (viewer == nullptr) return false;
  using Show = HWND(WINAPI*)(HWND, LPCWSTR, UINT, DWORD_PTR);
  // By way of a generic function, since the compiler rightly doubts a direct cast.
  const auto show =
      reinterpret_cast<Show>(reinterpret_cast<void (*)()>(GetProcAddress(viewer, "HtmlHelpW")));
  if (show == nullptr) return false;
  return show(owner, file.c_str(), context == 0 ? HH_DISPLAY_TOPIC : HH_HELP_CONTEXT, context) !=
         nullptr;
}

}  // namespace

UnitDialog::UnitDialog(HINSTANCE module, UserUnits& units, const ClientApplication& client)
    : ModalDialog(module, CALVEX_UNIT_DIALOG), selection_(units), client_(client) {}

void UnitDialog::opened() {
  const WaitCursor wait;
  for (const UnitSelection::List& list : UnitSelection::lists()) {
    for (const ZvUomLiteKeyword& unit : UnitSelection::entries(list)) {
      send(list.control, CB_ADDSTRING, 0, toWide(unit.name).c_str());
    }
    send(list.control, CB_SETCURSEL, static_cast<WPARAM>(selection_.chosen(list)));
  }
  SetDlgItemTextW(window(), CALVEX_ATMOSPHERIC_PRESSURE,
                  toWide(selection_.atmosphericPressure()).c_str());
  EnableWindow(control(CALVEX_HELP), client_.helpFile.empty() ? FALSE : TRUE);
}

// Two columns of lists, which become wider and stand further apart, above a row of the rest.
Growth UnitDialog::growth(int number) const {
  switch (number) {
    case IDOK:
    case IDCANCEL:
    case CALVEX_HELP:
      return {1, 1, 1, 1};
    case CALVEX_ATMOSPHERIC_PRESSURE:
    case CALVEX_ATMOSPHERIC_UNIT:
      return {0, 1, 0, 1};
    default:
      break;
  }
  RECT inside{};
  GetClientRect(window(), &inside);
  POINT corner{};
  ClientToScreen(control(number), &corner);
  ScreenToClient(window(), &corner);
  const double column = 2 * corner.x < inside.right ? 0 : 0.5;
  const double row = static_cast<double>(corner.y) / static_cast<double>(inside.bottom);
  return {column, row, column + 0.5, row};
}

void UnitDialog::command(int control, int) {
  switch (control) {
    case IDOK:
      return accept();
    case IDCANCEL:
      return close(DialogResult::cancel);
    case CALVEX_HELP:
      return helpRequested();
  }
}

void UnitDialog::accept() {
  UnitSelection::Choices choices{};
  std::ranges::transform(UnitSelection::lists(), choices.begin(), [&](const auto& list) {
    return static_cast<int>(send(list.control, CB_GETCURSEL));
  });

  const HWND field = control(CALVEX_ATMOSPHERIC_PRESSURE);
  std::wstring pressure(static_cast<std::size_t>(GetWindowTextLengthW(field)) + 1, L'\0');
  pressure.resize(static_cast<std::size_t>(
      GetWindowTextW(field, pressure.data(), static_cast<int>(pressure.size()))));

  if (selection_.accept(choices, utf8Of<wchar_t>(pressure))) return close(DialogResult::ok);
  warn(L"\"" + pressure +
       L"\" is not a number.\n\nEnter the atmospheric pressure as a number of bar with a decimal "
       L"point, such as 1.01325.");
  SetFocus(field);
  SendMessageW(field, EM_SETSEL, 0, -1);
}

void UnitDialog::helpRequested() {
  if (client_.helpFile.empty()) return;
  const std::wstring file = toWide(client_.helpFile);
  if (!openHelp(window(), file, static_cast<DWORD>(client_.unitsHelpContext))) {
    warn(L"The help file cannot be opened:\n" + file);
  }
}

}  // namespace calvex
