/// \file
/// What the dialogs share.
#pragma once

#include <windows.h>

#include <exception>
#include <string>
#include <string_view>
#include <vector>

#include "engine/dialogs.h"

namespace calvex {

/// A text of the engine's as windows show it. They take it for ended at a null character, which is
/// therefore shown by its symbol.
[[nodiscard]] std::wstring toWide(std::string_view text);

/// The part of a dialog's growth by which each edge of a control moves: 0 stays where it is, 1 goes
/// with the right or lower edge of the dialog.
struct Growth {
  double left, top, right, bottom;
};

/// A modal dialog made from a resource. It opens centred on its owner, and can be made larger than
/// its template but not smaller.
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
  /// Of a control by its number; a label without one goes with the control behind it.
  [[nodiscard]] virtual Growth growth(int control) const = 0;
  virtual void resized() {}
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
  void rememberPlaces();
  void arrange(LONG width, LONG height);
  void centre() const;

  struct Place {
    HWND control;
    RECT first;  ///< as the template has it
    Growth growth;
  };

  HINSTANCE module_;
  int resource_;
  HWND window_ = nullptr;
  SIZE smallest_{};  ///< of the window
  SIZE first_{};     ///< of what is inside
  std::vector<Place> places_;
  std::exception_ptr error_;
};

}  // namespace calvex
