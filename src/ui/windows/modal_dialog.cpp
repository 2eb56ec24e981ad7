#include "ui/windows/modal_dialog.h"

#include <commctrl.h>

#include "ui/resource_ids.h"

namespace calvex {

namespace {

constexpr UINT windows1252 = 1252;

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
  const int length = static_cast<int>(text.size());
  std::wstring wide(text.size(), L'\0');  // one unit for each byte
  MultiByteToWideChar(windows1252, 0, text.data(), length, wide.data(), length);
  return wide;
}

std::string fromWide(std::wstring_view text) {
  const int length = static_cast<int>(text.size());
  std::string bytes(text.size(), '\0');
  const int written = WideCharToMultiByte(windows1252, WC_NO_BEST_FIT_CHARS, text.data(), length,
                                          bytes.data(), length, "?", nullptr);
  bytes.resize(static_cast<std::size_t>(written));
  return bytes;
}

DialogResult ModalDialog::show() {
  const ActivationContext controls(module_);
  const INITCOMMONCONTROLSEX classes = {sizeof classes,
                                        ICC_LISTVIEW_CLASSES | ICC_TREEVIEW_CLASSES};
  InitCommonControlsEx(&classes);
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

bool ModalDialog::handle(UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case WM_INITDIALOG:
      opened();
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
