// What is known of pairs and letters by themselves.
#include <array>

#include "direct/direct_road.h"
#include "direct/kernels.h"

namespace calvex::direct {

namespace {

struct Inputs {
  Letter first;
  Letter second;
};
// By Pair.
constexpr std::array<Inputs, pairCount> inputs{{
    {Letter::P, Letter::T},
    {Letter::P, Letter::H},
    {Letter::P, Letter::S},
    {Letter::P, Letter::U},
    {Letter::P, Letter::R},
    {Letter::P, Letter::V},
    {Letter::T, Letter::H},
    {Letter::T, Letter::S},
    {Letter::T, Letter::U},
    {Letter::T, Letter::R},
    {Letter::T, Letter::V},
    {Letter::P, Letter::Q},
    {Letter::T, Letter::Q},
    {Letter::H, Letter::S},
}};

struct LetterRow {
  Property property;  // not of Q
  std::string_view unit;
  bool ofMixture;
};
// By Letter; the units as the catalogue of units names them.
constexpr std::array<LetterRow, letterCount> rows{{
    {Property::pressure, "MPa", true},
    {Property::temperature, "K", true},
    {Property::enthalpy, "kJ/kg", true},
    {Property::entropy, "kJ/(kg.K)", true},
    {Property::internalEnergy, "kJ/kg", true},
    {Property::density, "kg/m3", true},
    {Property::specificVolume, "m3/kg", true},
    {Property::temperature, "", true},
    {Property::helmholtz, "kJ/kg", false},
    {Property::gibbs, "kJ/kg", false},
    {Property::viscosity, "Pa.s", false},
    {Property::thermalConductivity, "W/(K.m)", false},
    {Property::isobaricHeatCapacity, "kJ/(kg.K)", false},
    {Property::isochoricHeatCapacity, "kJ/(kg.K)", false},
    {Property::compressibilityFactor, "", false},
    {Property::speedOfSound, "m/s", false},
    {Property::prandtlNumber, "", false},
    {Property::dielectricConstant, "", false},
    {Property::isothermalThrottling, "kJ/(kg.MPa)", false},
    {Property::jouleThomson, "K/MPa", false},
    {Property::thermalExpansion, "1/K", false},
    {Property::compressibility, "1/MPa", false},
}};

}  // namespace

Letter firstOf(Pair pair) noexcept { return inputs[static_cast<std::size_t>(pair)].first; }
Letter secondOf(Pair pair) noexcept { return inputs[static_cast<std::size_t>(pair)].second; }
bool ofMixture(Letter letter) noexcept { return rows[static_cast<std::size_t>(letter)].ofMixture; }
Property propertyOf(Letter letter) noexcept {
  return rows[static_cast<std::size_t>(letter)].property;
}

const Units& modelUnits() noexcept {
  static const Units units = [] {
    Units all;
    for (std::size_t i = 0; i < all.size(); ++i) all[i].name = rows[i].unit;
    return all;
  }();
  return units;
}

}  // namespace calvex::direct
