/// \file
/// Exit statuses, and the exception that carries one with its text for the user.
#pragma once

#include <stdexcept>
#include <string>

namespace calvex::cli {

enum class ExitStatus : int {
  ok = 0,
  callFailed = 1,  ///< the engine refused a call
  usage = 2,       ///< what was asked for cannot be run
};

/// Ends a command (or a line of a script). The text is UTF-8.
class Failure : public std::runtime_error {
 public:
  Failure(ExitStatus status, const std::string& text) : runtime_error(text), status_(status) {}
  [[nodiscard]] ExitStatus status() const noexcept { return status_; }

 private:
  ExitStatus status_;
};

class UsageError : public Failure {
 public:
  explicit UsageError(const std::string& text) : Failure(ExitStatus::usage, text) {}
};

}  // namespace calvex::cli
