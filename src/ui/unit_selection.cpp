#include "ui/unit_selection.h"

#include <charconv>

#include "units/number.h"

namespace calvex {

namespace {

// Labels and tab order are the dialog resource's.
constexpr std::array<UnitSelection::List, UnitSelection::listCount> unitLists = {{
    {1000, UnitGroup::temperature},
    {1001, UnitGroup::pressure},
    {1003, UnitGroup::entropy},
    {1004, UnitGroup::quality},
    {1005, UnitGroup::specificHeat},
    {1006, UnitGroup::thermalConductivity},
    {1007, UnitGroup::specificVolume},
    {1008, UnitGroup::density},
    {1009, UnitGroup::molecularWeight},
    {1010, UnitGroup::dynamicViscosity},
    {1011, UnitGroup::thermalExpansion},
    {1012, UnitGroup::compressibility},
    {1013, UnitGroup::internalEnergy},
    {1014, UnitGroup::surfaceTension},
    {1015, UnitGroup::velocity},
    {1016, UnitGroup::jouleThomson},
    {1017, UnitGroup::isothermalJouleThomson},
    {1002, UnitGroup::enthalpy},
    {1018, UnitGroup::helmholtzEnergy},
    {1019, UnitGroup::gibbsEnergy},
}};

}  // namespace

std::span<const UnitSelection::List, UnitSelection::listCount> UnitSelection::lists() noexcept {
  return unitLists;
}

std::span<const ZvUomLiteKeyword> UnitSelection::entries(const List& list) noexcept {
  return unitGroupTable()[static_cast<std::size_t>(list.group)].units;
}

int UnitSelection::chosen(const List& list) const noexcept {
  // The current unit is a row of the group's own table.
  return static_cast<int>(&units_.catalogue()[list.group].currentUnit() - entries(list).data());
}

std::string UnitSelection::atmosphericPressure() const {
  std::array<char, 32> text{};
  const auto [end, error] =
      std::to_chars(text.data(), text.data() + text.size(), units_.catalogue().atmosphericPressure);
  return {text.data(), end};
}

bool UnitSelection::accept(const Choices& choices, std::string_view atmosphericPressure) {
  for (std::size_t i = 0; i < listCount; ++i) {
    if (choices[i] < 0) continue;
    const auto unit = static_cast<std::size_t>(choices[i]);
    units_.setCatalogueUnit(static_cast<int>(unitLists[i].group), entries(unitLists[i])[unit].name);
  }
  return numberIn(atmosphericPressure).has_value();
}

}  // namespace calvex
