/// \file
/// What fails while a ufunc runs, until its caller can be told.
#pragma once

#include <cstdint>
#include <mutex>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core.h"
#include "numpy_api.h"

namespace calvex::python {

class Failures {
 public:
  /// The failures of this thread go to it until its end; one inside another has its own.
  explicit Failures(Errors errors) : errors_(errors) { current_ = this; }
  ~Failures() { current_ = outer_; }
  Failures(const Failures&) = delete;
  Failures& operator=(const Failures&) = delete;
  /// Null where a loop runs that was not called through us (ufunc.outer and its like).
  [[nodiscard]] static Failures* current() noexcept { return current_; }

  /// Any thread: the element at that address failed, for that reason and what is behind it.
  void add(const char* element, std::string_view reason, std::string_view cause);
  [[nodiscard]] Errors errors() const noexcept { return errors_; }
  [[nodiscard]] bool empty() const noexcept { return rows_.empty(); }

  /// Keeps them as the reasons of the elements of `result`, and says so as the policy has it: false
  /// with an exception.
  [[nodiscard]] bool report(Core& core, std::string_view member, PyObject* result);
  /// Warns: false with an exception.
  [[nodiscard]] bool warn(std::string_view member, std::size_t elements) const;

 private:
  struct Row {
    const char* element;
    std::uint32_t text;
  };
  /// A reason that elements share. Causes tell numbers of their own: the first element's stands for
  /// all.
  struct Kind {
    std::string reason, cause;
    const char* first;
    std::size_t count;
    bool severalCauses;
  };
  [[nodiscard]] std::vector<const Kind*> kinds() const;
  [[nodiscard]] Ref summary(std::string_view member, std::size_t elements) const;

  static thread_local Failures* current_;
  Errors errors_;
  Failures* outer_ = current_;
  std::mutex mutex_;
  std::unordered_map<std::string, Kind> kinds_;
  std::unordered_map<std::string, std::uint32_t> numbers_;
  std::vector<std::string> texts_;  ///< reasons with their causes, which rows refer to
  std::vector<Row> rows_;
};

}  // namespace calvex::python
