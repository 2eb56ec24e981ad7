/// \file
/// Where else the solver looks for a state when its first starting point leads nowhere.
#pragma once

#include <array>
#include <cstddef>

namespace calvex {

/// Which root of several is meant.
enum class Side { vapour, liquid, any };

/// K and kg/m3.
struct Start {
  double temperature;
  double density;
};

/// A short list without allocation.
class StartingPoints {
 public:
  /// States at temperature T (K), at pressure P (MPa) where that is known, else 0.
  static StartingPoints atTemperature(double T, double P, Side side);
  /// States at pressure P (MPa) and unknown temperature.
  static StartingPoints atPressure(double P, Side side);

  [[nodiscard]] const Start* begin() const noexcept { return points_.data(); }
  [[nodiscard]] const Start* end() const noexcept { return points_.data() + count_; }

 private:
  void add(double T, double density) { points_[count_++] = {T, density}; }

  std::array<Start, 160> points_;
  std::size_t count_ = 0;
};

}  // namespace calvex
