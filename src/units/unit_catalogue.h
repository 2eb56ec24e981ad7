/// \file
/// The catalogue of units of measure: 27 physical quantities ("groups"), the units that a caller
/// may use for each, and the user's choice of one unit a group.
///
/// Texts are UTF-8 and are matched byte for byte.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace calvex {

/// A physical quantity whose values carry a unit. The numbers are those of the interface.
enum class UnitGroup : short {
  temperature = 0,
  pressure = 1,
  density = 2,
  specificVolume = 3,
  entropy = 4,
  enthalpy = 5,
  internalEnergy = 6,
  quality = 7,
  specificHeat = 8,
  massFlow = 9,
  heatDuty = 10,
  efficiency = 11,
  ratio = 12,
  dynamicViscosity = 13,
  thermalConductivity = 14,
  surfaceTension = 15,
  velocity = 16,
  isothermalJouleThomson = 17,
  jouleThomson = 18,
  thermalExpansion = 19,
  compressibility = 20,
  molecularWeight = 21,
  power = 22,
  helmholtzEnergy = 23,
  gibbsEnergy = 24,
  temperatureDifference = 25,
  pressureDifference = 26,
};

inline constexpr int unitGroupCount = 27;

[[nodiscard]] constexpr bool isUnitGroup(int index) noexcept {
  return 0 <= index && index < unitGroupCount;
}

/// One unit of a group: reference value = (x + offset) * factor.
struct ZvUomLiteKeyword {
  std::string_view name;
  double factor;
  double offset = 0;
};

/// (value + from.offset) * from.factor / to.factor - to.offset, in this order and unrounded.
[[nodiscard]] constexpr double convert(const ZvUomLiteKeyword& from, const ZvUomLiteKeyword& to,
                                       double value) noexcept {
  return (value + from.offset) * from.factor / to.factor - to.offset;
}

/// What is fixed about a group: a row of the group table (unit_tables.cpp).
struct UnitGroupRow {
  std::string_view displayName;                ///< "Mass Specific Enthalpy"
  std::span<const std::string_view> keywords;  ///< texts that select the group, case-sensitive
  std::string_view internalUnit;               ///< the engine's own unit, also the default
  std::string_view referenceUnit;              ///< informational: factor 1, offset 0
  std::span<const ZvUomLiteKeyword> units;     ///< in catalogue order
};

/// The 27 rows, by group number.
[[nodiscard]] std::span<const UnitGroupRow, unitGroupCount> unitGroupTable() noexcept;

/// One group with the user's current unit.
class ZvUomLiteGroup {
 public:
  /// The row must outlive the group.
  explicit ZvUomLiteGroup(const UnitGroupRow& row);

  [[nodiscard]] const UnitGroupRow& row() const noexcept { return *row_; }
  /// The unit of that exact name, or nullptr.
  [[nodiscard]] const ZvUomLiteKeyword* find(std::string_view unit) const noexcept;
  /// The user's unit.
  [[nodiscard]] const ZvUomLiteKeyword& currentUnit() const noexcept { return *current_; }
  [[nodiscard]] const ZvUomLiteKeyword& internalUnit() const noexcept { return *internal_; }
  /// False, and nothing changed, when the group has no such unit.
  bool setCurrentUnit(std::string_view unit) noexcept;

 private:
  const UnitGroupRow* row_;
  std::unordered_map<std::string_view, const ZvUomLiteKeyword*> units_;
  const ZvUomLiteKeyword* internal_;
  const ZvUomLiteKeyword* current_;
};

/// The catalogue. Every operation that takes a group number answers false (touching nothing) for a
/// number outside 0..26 or an unknown unit name.
class ZvUomLite {
 public:
  ZvUomLite();

  /// The group that a keyword selects ("T", "Pressure", "flow rate"), or -1.
  [[nodiscard]] int groupIndex(std::string_view keyword) const noexcept;
  /// nullptr for a number outside 0..26.
  [[nodiscard]] const ZvUomLiteGroup* group(int index) const noexcept;
  [[nodiscard]] const ZvUomLiteGroup& operator[](UnitGroup group) const noexcept {
    return groups_[static_cast<std::size_t>(group)];
  }

  bool setUserUnit(int group, std::string_view unit) noexcept;
  bool getUserUnit(int group, std::string& unit) const;
  bool getFactors(int group, std::string_view unit, double& factor, double& offset) const noexcept;
  bool convert(int group, std::string_view from, std::string_view to, double value,
               double& result) const noexcept;

  /// Atmospheric pressure in bar, shown by the unit dialog; the gauge units do not depend on it.
  double atmosphericPressure = 1.01325;

 private:
  std::vector<ZvUomLiteGroup> groups_;
  std::unordered_map<std::string_view, int> keywords_;
};

}  // namespace calvex
