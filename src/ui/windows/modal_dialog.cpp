#include "ui/windows/modal_dialog.h"

#include <algorithm>

#include "ui/resource_ids.h"
#include "ui/windows/common_controls.h"
#include "units/utf16.h"

namespace calvex {

namespace {

/// What labels without a number have.
constexpr int noNumber = 0xFFFF;

/// The controls of the module's manifest, whatever program it is loaded into.
class ActivationContext {
 public:
  explicit ActivationContext(HINSTANCE module) {
    ACTCTXW request{};
    request.cbSize = sizeof request;
    request.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
    request.lpResourceName = MAKEINTRESOURCEW(CALVEX_MANIFEST);
    request.hModule = module;
    context_ = CreateActCtxW(&request);
    // Without it the controls have an older look and work as well.
    active_ = context_ != INVALID_HANDLE_VALUE && ActivateActCtx(context_, &cookie_) != FALSE;
  }
  ~ActivationContext() {
    if (active_) DeactivateActCtx(0, cookie_);
    if (context_ != INVALID_HANDLE_VALUE) ReleaseActCtx(context_);
  }
  ActivationContext(const ActivationContext&) = delete;
  ActivationContext& operator=(const ActivationContext&) = delete;

 private:
  HANDLE context_;
  ULONG_PTR cookie_ = 0;
  bool active_;
};

}  // namespace

std::wstring toWide(std::string_view text) {
  std::wstring wide = utf16Of<wchar_t>(text);
  std::ranges::replace(wide, L'\0', L'\u2400');
  return wide;
}

DialogResult ModalDialog::show() {
  const ActivationContext controls(module_);
  const INITCOMMONCONTROLSEX classes = {sizeof classes,
                                        ICC_LISTVIEW_CLASSES | ICC_TREEVIEW_CLASSES};
  commonControls().InitCommonControlsEx(&classes);
  const INT_PTR result = DialogBoxParamW(module_, MAKEINTRESOURCEW(resource_), GetActiveWindow(),
                                         procedure, reinterpret_cast<LPARAM>(this));
  if (error_) std::rethrow_exception(error_);
  return result <= 0 ? DialogResult::cancel : static_cast<DialogResult>(result);
}

void ModalDialog::close(DialogResult result) { EndDialog(window_, static_cast<INT_PTR>(result)); }

void ModalDialog::warn(const std::wstring& text) const {
  std::wstring title(static_cast<std::size_t>(GetWindowTextLengthW(window_)) + 1, L'\0');
  GetWindowTextW(window_, title.data(), static_cast<int>(title.size()));
  MessageBoxW(window_, text.c_str(), title.c_str(), MB_OK | MB_ICONWARNING);
}

INT_PTR ModalDialog::procedure(HWND window, UINT message, WPARAM first, LPARAM second) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(window, DWLP_USER, second);
    reinterpret_cast<ModalDialog*>(second)->window_ = window;
  }
  auto* dialog = reinterpret_cast<ModalDialog*>(GetWindowLongPtrW(window, DWLP_USER));
  if (dialog == nullptr) return FALSE;
  try {
    return dialog->handle(message, first, second) ? TRUE : FALSE;
  } catch (...) {
    dialog->error_ = std::current_exception();
    dialog->close(DialogResult::cancel);
    return TRUE;
  }
}

void ModalDialog::rememberPlaces() {
  RECT frame{}, client{};
  GetWindowRect(window_, &frame);
  GetClientRect(window_, &client);
  smallest_ = {frame.right - frame.left, frame.bottom - frame.top};
  first_ = {client.right, client.bottom};
  for (HWND child = GetWindow(window_, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    Place place{child, {}, {}};
    GetWindowRect(child, &place.first);
    // The height of a drop-down list is set with that of its open part.
    RECT open{};
    if (SendMessageW(child, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&open)) != 0) {
      place.first.bottom = place.first.top + (open.bottom - open.top);
    }
    MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&place.first), 2);
    const int number = GetDlgCtrlID(child);
    if (number > 0 && number < noNumber) {
      place.growth = growth(number);
    } else if (const HWND next = GetWindow(child, GW_HWNDNEXT); next != nullptr) {
      const Growth behind = growth(GetDlgCtrlID(next));
      place.growth = {behind.left, behind.top, behind.left, behind.top};
    }
    places_.push_back(place);
  }
}

void ModalDialog::arrange(LONG width, LONG height) {
  const double right = static_cast<double>(width - first_.cx);
  const double down = static_cast<double>(height - first_.cy);
  const auto moved = [](LONG from, double by) { return from + static_cast<LONG>(by); };
  HDWP moves = BeginDeferWindowPos(static_cast<int>(places_.size()));
  for (const auto& [control, first, growth] : places_) {
    const LONG x = moved(first.left, growth.left * right);
    const LONG y = moved(first.top, growth.top * down);
    moves = DeferWindowPos(
        moves, control, nullptr, x, y, moved(first.right, growth.right * right) - x,
        moved(first.bottom, growth.bottom * down) - y, SWP_NOZORDER | SWP_NOACTIVATE);
  }
  EndDeferWindowPos(moves);
  resized();
}

// On a part of the owner that nobody sees it would be lost.
void ModalDialog::centre() const {
  const HWND owner = GetWindow(window_, GW_OWNER);
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(owner != nullptr ? owner : window_, MONITOR_DEFAULTTONEAREST),
                  &monitor);
  const RECT& work = monitor.rcWork;
  RECT around = work;
  if (owner != nullptr && IsWindowVisible(owner) != FALSE && IsIconic(owner) == FALSE) {
    GetWindowRect(owner, &around);
  }
  const auto place = [](LONG from, LONG to, LONG size, LONG lowest, LONG highest) {
    return static_cast<int>(std::max(lowest, std::min((from + to - size) / 2, highest - size)));
  };
  SetWindowPos(window_, nullptr,
               place(around.left, around.right, smallest_.cx, work.left, work.right),
               place(around.top, around.bottom, smallest_.cy, work.top, work.bottom), 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

bool ModalDialog::handle(UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case WM_INITDIALOG:
      rememberPlaces();
      centre();
      opened();
      return true;
    case WM_SIZE:
      if (first != SIZE_MINIMIZED && !places_.empty()) arrange(LOWORD(second), HIWORD(second));
      return true;
    case WM_GETMINMAXINFO:
      reinterpret_cast<MINMAXINFO*>(second)->ptMinTrackSize = {smallest_.cx, smallest_.cy};
      return true;
    case WM_COMMAND:
      command(LOWORD(first), HIWORD(first));
      return true;
    case WM_NOTIFY:
      notified(*reinterpret_cast<const NMHDR*>(second));
      return false;
    case WM_HELP:
      helpRequested();
      return true;
    default:
      return false;
  }
}

}  // namespace calvex
