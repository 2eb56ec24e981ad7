/// \file
/// What the dialog "Select Units of Measure" shows and does, without its window.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "units/user_units.h"

namespace calvex {

class UnitSelection {
 public:
  /// A drop-down list of the dialog and the group whose unit it chooses.
  struct List {
    int control;
    UnitGroup group;
  };
  static constexpr std::size_t listCount = 20;
  /// The index of the chosen entry of each list, in the order of `lists()`; negative: none.
  using Choices = std::array<int, listCount>;

  /// `units` must outlive the selection.
  explicit UnitSelection(UserUnits& units) : units_(units) {}

  /// In the order in which the lists are filled and their choices applied.
  [[nodiscard]] static std::span<const List, listCount> lists() noexcept;
  /// The entries of a list.
  [[nodiscard]] static std::span<const ZvUomLiteKeyword> entries(const List& list) noexcept;
  /// The entry that is chosen at opening: the group's current unit.
  [[nodiscard]] int chosen(const List& list) const noexcept;
  /// The atmospheric pressure in bar, as the edit field shows it.
  [[nodiscard]] std::string atmosphericPressure() const;

  /// What OK does: the choices become the current units, then the edit field is read. False, the
  /// dialog stays open: it holds no number. The number itself is not used: the gauge units keep
  /// their offsets.
  [[nodiscard]] bool accept(const Choices& choices, std::string_view atmosphericPressure);

 private:
  UserUnits& units_;
};

}  // namespace calvex
