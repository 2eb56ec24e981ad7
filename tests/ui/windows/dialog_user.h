/// \file
/// A user of modal dialogs.
#pragma once

#include <windows.h>

#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace calvex::test {

/// Does one thing with each dialog that comes up (a message box is one too), in the order in which
/// they are first active. A dialog that is still there when its turn is over is cancelled, so that
/// no test waits for ever.
class DialogUser {
 public:
  using Turn = std::function<void(HWND dialog)>;

  explicit DialogUser(std::vector<Turn> turns) : turns_(std::move(turns)) {
    current = this;
    hook_ = SetWindowsHookExW(WH_CBT, &DialogUser::watch, nullptr, GetCurrentThreadId());
  }
  ~DialogUser() {
    UnhookWindowsHookEx(hook_);
    current = nullptr;
  }
  DialogUser(const DialogUser&) = delete;
  DialogUser& operator=(const DialogUser&) = delete;

  /// How many dialogs have been up.
  [[nodiscard]] std::size_t dialogs() const { return seen_.size(); }

 private:
  static LRESULT CALLBACK watch(int code, WPARAM first, LPARAM second) {
    if (code == HCBT_ACTIVATE) {
      const auto window = reinterpret_cast<HWND>(first);
      const bool dialog = GetClassLongPtrW(window, GCW_ATOM) == 32770;
      // The timer lets the dialog finish its opening first.
      if (dialog && current->seen_.insert(window).second) SetTimer(nullptr, 0, 20, act);
    }
    return CallNextHookEx(nullptr, code, first, second);
  }

  static void CALLBACK act(HWND, UINT, UINT_PTR timer, DWORD) {
    const HWND dialog = GetActiveWindow();
    if (!IsWindowVisible(dialog)) return;  // still opening: again at the next tick
    KillTimer(nullptr, timer);
    const std::size_t turn = current->turn_++;
    if (turn < current->turns_.size()) current->turns_[turn](dialog);
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
  }

  static inline DialogUser* current = nullptr;
  std::vector<Turn> turns_;
  std::size_t turn_ = 0;
  std::set<HWND> seen_;
  HHOOK hook_ = nullptr;
};

inline std::wstring textOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1, 0);
  text.resize(static_cast<std::size_t>(
      SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
  return text;
}

inline std::wstring textOf(HWND dialog, int control) { return textOf(GetDlgItem(dialog, control)); }

/// The text of an entry of a drop-down list.
inline std::wstring entryOf(HWND list, int index) {
  const auto entry = static_cast<WPARAM>(index);
  std::wstring text(static_cast<std::size_t>(SendMessageW(list, CB_GETLBTEXTLEN, entry, 0)) + 1, 0);
  text.resize(static_cast<std::size_t>(
      SendMessageW(list, CB_GETLBTEXT, entry, reinterpret_cast<LPARAM>(text.data()))));
  return text;
}

/// Chooses an entry of a drop-down list as the user does, so that the dialog hears of it.
inline void choose(HWND dialog, int control, int index) {
  const HWND list = GetDlgItem(dialog, control);
  SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
  SendMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(MAKELONG(control, CBN_SELCHANGE)),
               reinterpret_cast<LPARAM>(list));
}

inline void choose(HWND dialog, int control, const wchar_t* text) {
  const LRESULT index = SendDlgItemMessageW(
      dialog, control, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text));
  choose(dialog, control, static_cast<int>(index));
}

inline void click(HWND dialog, int button) { SendDlgItemMessageW(dialog, button, BM_CLICK, 0, 0); }

/// Queues a key for the window that has the focus; it acts after the turn.
inline void press(int key) { PostMessageW(GetFocus(), WM_KEYDOWN, static_cast<WPARAM>(key), 0); }

/// A letter with the Alt key, at once.
inline void pressWithAlt(HWND dialog, wchar_t letter) {
  MSG message{GetFocus(), WM_SYSCHAR, letter, 1 << 29, 0, {}};
  IsDialogMessageW(dialog, &message);
}

/// The direct children in the order of the Tab key, labels included.
inline std::vector<HWND> controlsOf(HWND dialog) {
  std::vector<HWND> controls;
  for (HWND child = GetWindow(dialog, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    controls.push_back(child);
  }
  return controls;
}

}  // namespace calvex::test
