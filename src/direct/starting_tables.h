/// \file
/// Where Newton's method starts: tables of the saturation line and of the states around it,
/// computed from the fundamental equation when they are first asked for. Nothing that is answered
/// comes from them; a better table makes the direct road faster, a worse one slower.
#pragma once

#include <array>
#include <cstddef>

#include "direct/direct_road.h"

namespace calvex::direct {

/// Two floats that are read as one.
struct alignas(8) FloatPair {
  float first;
  float second;
};

/// Equal steps in a coordinate.
struct Axis {
  double low;
  double high;
  int count;

  [[nodiscard]] constexpr double at(int i) const { return low + (high - low) / (count - 1) * i; }
  [[nodiscard]] constexpr double perUnit() const { return (count - 1) / (high - low); }
};

/// A coordinate of [-1, 1] that is finest around `centre`: (x - c)/(w + |x - c|).
struct Focus {
  double centre;
  double width;
};

/// The saturation line along a coordinate, in columns, for cubic interpolation.
struct LineTable {
  static constexpr int count = 1200;
  using Column = std::array<double, count>;
  enum Name { T, P, liquid, vapour, hL, hV, sL, sV, uL, uV, columns };

  Axis axis;
  std::array<Column, columns> column;
};

/// States over two coordinates, temperature and density or a function of it in each node, for
/// quadratic interpolation. Two layers: liquid, and all that is not.
struct StateTable {
  static constexpr int rows = 120;
  static constexpr int columns = 128;
  static constexpr int layer = rows * columns;

  Axis first;
  Axis second;
  Focus focus;  // of the second
  std::array<FloatPair, 2 * std::size_t{layer}> node;
};

/// The density over ln P and T, for cubic interpolation. Two layers: of liquid, and over pressure,
/// kg/(m3.MPa), of all that is not. What parts them is the saturation line and beyond the critical
/// point the isochore of its density.
struct DensityTable {
  static constexpr int rows = 128;
  static constexpr int columns = 160;
  static constexpr int layer = rows * columns;

  Axis first;
  Axis second;
  Focus firstFocus;
  Focus secondFocus;
  std::array<double, columns> border;  // ln P over T
  std::array<double, 2 * std::size_t{layer}> node;
};

/// The line over sqrt(Tc - T), and over sqrt(ln(Pc/P)). It ends where the phases become too alike.
inline constexpr double lineBottom = 259.0;       // K
inline constexpr double lineTop = 646.5;          // K
inline constexpr double lineTopPressure = 21.88;  // MPa
[[nodiscard]] const LineTable& lineByTemperature();
[[nodiscard]] const LineTable& lineByPressure();

inline constexpr double logCriticalPressure = 3.0935393335569032;  // ln(22.055)

/// The lowest pressure of the tables; below it steam is an ideal gas.
inline constexpr double lowestPressure = 6e-4;  // MPa
[[nodiscard]] const DensityTable& densityFromPT();
/// Over ln P and h, s or u: temperature, and density of liquid (first layer) or density over
/// pressure, kg/(m3.MPa), of all that is not.
[[nodiscard]] const StateTable& statesFromPH();
[[nodiscard]] const StateTable& statesFromPS();
[[nodiscard]] const StateTable& statesFromPU();
/// Over s and h, one layer: temperature and ln(density); NaN where no state was reached.
[[nodiscard]] const StateTable& statesFromHS();

}  // namespace calvex::direct
