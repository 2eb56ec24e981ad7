/// \file
/// What the dialogs share.
#pragma once

#include <windows.h>

#include <exception>
#include <string>
#include <string_view>

#include "engine/dialogs.h"

namespace calvex {

/// The engine's texts are Windows-1252 bytes, those of windows UTF-16. What has no such byte
/// becomes a question mark.
[[nodiscard]] std::wstring toWide(std::string_view text);
[[nodiscard]] std::string fromWide(std::wstring_view text);

/// A modal dialog made from a resource.
class ModalDialog {
 public:
  ModalDialog(const ModalDialog&) = delete;
  ModalDialog& operator=(const ModalDialog&) = delete;

 protected:
  ModalDialog(HINSTANCE module, int resource) : module_(module), resource_(resource) {}
  virtual ~ModalDialog() = default;

  /// Shows the dialog until it is closed. `cancel` also where no window can be made. What the
  /// functions below throw closes the dialog and comes out here.
  DialogResult show();

  virtual void opened() = 0;
  /// A control or key asks for something: the number of the control and its notification.
  virtual void command(int control, int notification) = 0;
  virtual void notified(const NMHDR&) {}
  virtual void helpRequested() {}

  void close(DialogResult result);
  [[nodiscard]] HINSTANCE module() const noexcept { return module_; }
  [[nodiscard]] HWND window() const noexcept { return window_; }
  [[nodiscard]] HWND control(int number) const { return GetDlgItem(window_, number); }
  /// Sends a message whose second parameter may be a pointer or a number.
  template <typename Parameter = LPARAM>
  LRESULT send(int number, UINT message, WPARAM first = 0, Parameter second = {}) const {
    if constexpr (std::is_pointer_v<Parameter>) {
      return SendMessageW(control(number), message, first, reinterpret_cast<LPARAM>(second));
    } else {
      return SendMessageW(control(number), message, first, static_cast<LPARAM>(second));
    }
  }
  /// Tells the user, under the dialog's own title.
  void warn(const std::wstring& text) const;

 private:
  static INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM first, LPARAM second);
  bool handle(UINT message, WPARAM first, LPARAM second);

  HINSTANCE module_;
  int resource_;
  HWND window_ = nullptr;
  std::exception_ptr error_;
};

}  // namespace calvex
