/// \file
/// Collects the failures of a grid and reports them together, with the worst ones in full.
#pragma once

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace calvex::test {

/// Fails its test at the end of its scope when a comparison failed or none was made.
class Grid {
 public:
  explicit Grid(std::string name) : name_(std::move(name)) {}
  Grid(const Grid&) = delete;
  Grid& operator=(const Grid&) = delete;
  ~Grid() {
    if (comparisons_ == 0) ADD_FAILURE() << name_ << ": nothing was compared";
    if (failures_.empty()) return;
    std::string report =
        fmt::format("{}: {} of {} comparisons failed\n", name_, failures_.size(), comparisons_);
    const std::size_t listed = std::min<std::size_t>(failures_.size(), 40);
    for (std::size_t i = 0; i < listed; ++i) report += "  " + failures_[i] + "\n";
    ADD_FAILURE() << report;
  }

  /// |value - expected| <= tolerance * scale; not a number never is.
  void near(double value, double expected, double tolerance, double scale,
            const std::string& inputs) {
    ++comparisons_;
    const double error = std::abs(value - expected);
    if (error <= tolerance * scale) return;
    failures_.push_back(fmt::format("{}: {:.17g}, expected {:.17g} (error {:.3g}, allowed {:.3g})",
                                    inputs, value, expected, error, tolerance * scale));
  }
  void relative(double value, double expected, double tolerance, const std::string& inputs) {
    near(value, expected, tolerance, std::abs(expected), inputs);
  }
  void holds(bool fact, const std::string& inputs) {
    ++comparisons_;
    if (!fact) failures_.push_back(inputs);
  }

 private:
  std::string name_;
  int comparisons_ = 0;
  std::vector<std::string> failures_;
};

}  // namespace calvex::test
