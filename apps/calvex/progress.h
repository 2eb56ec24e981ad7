/// \file
/// A progress bar for work that takes long.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <iosfwd>

namespace calvex::cli {

/// Draws nothing during the first second; wipes the bar when it goes.
class Progress {
 public:
  using Clock = std::function<std::chrono::steady_clock::time_point()>;

  /// Nothing is drawn unless `shown`.
  Progress(std::ostream& err, std::int64_t total, bool shown,
           Clock now = std::chrono::steady_clock::now);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void at(std::int64_t done);

 private:
  std::ostream& err_;
  std::int64_t total_;
  bool shown_;
  Clock now_;
  std::chrono::steady_clock::time_point next_;
  bool drawn_ = false;
};

}  // namespace calvex::cli
