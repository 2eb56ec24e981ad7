/// \file
/// Calls of the host, with values that free themselves.
#pragma once

#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "worksheet/cells.h"
#include "xloper.h"

namespace calvex::excel {

[[nodiscard]] std::wstring toWide(std::string_view utf8);
[[nodiscard]] std::string toUtf8(std::wstring_view text);

/// An argument of a call: a text, a number, a reference that somebody else has, or nothing.
class Argument {
 public:
  Argument() { value_.xltype = xltypeMissing; }
  Argument(std::string_view utf8);    // NOLINT: arguments are written as they are
  Argument(std::wstring_view text);   // NOLINT
  Argument(double number);            // NOLINT
  Argument(const XLOPER12& borrowed)  // NOLINT
      : value_(borrowed) {}

  [[nodiscard]] XLOPER12 value() const {
    XLOPER12 value = value_;
    if (value.xltype == xltypeStr && !text_.empty()) value.val.str = text_.data();
    return value;
  }

 private:
  mutable std::wstring text_;  ///< with its length as first character
  XLOPER12 value_{};
};

/// What the host answers. It has the memory, and gets it back.
class Answer {
 public:
  Answer() { value_.xltype = xltypeMissing; }
  ~Answer();
  Answer(const Answer&) = delete;
  Answer& operator=(const Answer&) = delete;

  [[nodiscard]] XLOPER12* slot() { return &value_; }
  [[nodiscard]] const XLOPER12& value() const { return value_; }
  [[nodiscard]] DWORD type() const { return value_.xltype & xltypeMask; }
  [[nodiscard]] bool isReference() const { return type() == xltypeRef || type() == xltypeSRef; }
  [[nodiscard]] bool isText() const { return type() == xltypeStr; }
  [[nodiscard]] std::wstring_view text() const {
    return {value_.val.str + 1, static_cast<std::size_t>(value_.val.str[0])};
  }

 private:
  XLOPER12 value_{};
};

/// Calls a function of the host; true when it answers.
bool call(int function, Answer& answer, std::span<const Argument> arguments = {});
bool call(int function, Answer& answer, std::initializer_list<Argument> arguments);

/// A text that is a number as it is written everywhere: with a point, "10.5", "-1e-3". Nothing for
/// any other; "10,5" is none.
[[nodiscard]] std::optional<double> numberIn(std::string_view text);

/// The values of cells as the host gives them to a function; a text that is a number is that
/// number.
[[nodiscard]] worksheet::Grid gridOf(const XLOPER12& value);

/// A result for the host, which gives it back to `release`.
[[nodiscard]] XLOPER12* resultOf(const worksheet::Grid& grid);
void release(XLOPER12* result);

/// The number of an error in the host.
[[nodiscard]] int errorNumber(const worksheet::Error& error);

}  // namespace calvex::excel
