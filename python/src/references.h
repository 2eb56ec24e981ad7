/// \file
/// Python objects that are owned, and texts on their way to Python and back.
#pragma once

#define PY_SSIZE_T_CLEAN
#include <Python.h>

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace calvex::python {

/// Owns a reference.
class Ref {
 public:
  Ref() = default;
  /// Takes over a new reference, which may be null.
  explicit Ref(PyObject* object) noexcept : object_(object) {}
  Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  Ref& operator=(Ref&& other) noexcept {
    Ref old(std::exchange(object_, std::exchange(other.object_, nullptr)));
    return *this;
  }
  Ref(const Ref&) = delete;
  Ref& operator=(const Ref&) = delete;
  ~Ref() { Py_XDECREF(object_); }

  /// Another reference to an object that somebody else owns.
  [[nodiscard]] static Ref to(PyObject* object) noexcept {
    Py_XINCREF(object);
    return Ref(object);
  }

  [[nodiscard]] PyObject* get() const noexcept { return object_; }
  [[nodiscard]] PyObject* release() noexcept { return std::exchange(object_, nullptr); }
  explicit operator bool() const noexcept { return object_ != nullptr; }

 private:
  PyObject* object_ = nullptr;
};

/// A text of the engine or of a table.
inline Ref unicode(std::string_view text) {
  return Ref(PyUnicode_FromStringAndSize(text.data(), static_cast<Py_ssize_t>(text.size())));
}

/// A text for the engine; nothing, and an exception, where it has half of a surrogate pair.
inline std::optional<std::string> encoded(PyObject* text) {
  Py_ssize_t size = 0;
  const char* const utf8 = PyUnicode_AsUTF8AndSize(text, &size);
  if (utf8 == nullptr) return std::nullopt;
  return std::string(utf8, static_cast<std::size_t>(size));
}

/// Lets other Python threads run.
class Unlocked {
 public:
  Unlocked() : state_(PyEval_SaveThread()) {}
  ~Unlocked() { PyEval_RestoreThread(state_); }
  Unlocked(const Unlocked&) = delete;
  Unlocked& operator=(const Unlocked&) = delete;

 private:
  PyThreadState* state_;
};

}  // namespace calvex::python
