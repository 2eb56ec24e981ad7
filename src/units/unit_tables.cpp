/// \file
/// What is fixed about the 27 groups: names, keywords and units. Factors and offsets are decimal
/// literals by definition, also where they are rounded; callers rely on the digits.
#include <algorithm>

#include "units/unit_catalogue.h"

namespace calvex {
namespace {

// Laid out by hand: one unit a line, or a unit and its twin.
// clang-format off

// A single letter is that of the property functions (W speed of sound, C and D heat capacities).
// Matching is exact, so each keyword stands in two spellings. "Joule Thomson" has a hyphen in the
// display names only, and those select no group.
namespace keywords {

constexpr std::string_view temperature[] = {"T", "t", "Temperature", "temperature"};
constexpr std::string_view pressure[] = {"P", "p", "Pressure", "pressure"};
constexpr std::string_view density[] = {"R", "r", "Density", "density"};
constexpr std::string_view specificVolume[] = {"V", "v", "Specific Volume", "specific volume",
    "Volume", "volume", "Mass Specific Volume", "mass specific volume"};
constexpr std::string_view entropy[] = {"S", "s", "Entropy", "entropy", "Mass Specific Entropy",
    "mass specific entropy"};
constexpr std::string_view enthalpy[] = {"H", "h", "Enthalpy", "enthalpy", "Mass Specific Enthalpy",
    "mass specific enthalpy"};
constexpr std::string_view internalEnergy[] = {"U", "u", "Internal Energy", "internal energy",
    "Mass Specific Internal Energy", "mass specific internal energy"};
constexpr std::string_view quality[] = {"Q", "q", "Quality", "quality"};
constexpr std::string_view specificHeat[] = {"C", "c", "D", "d", "Specific Heat Capacity",
    "specific heat capacity", "Mass Specific Heat", "mass specific heat"};
constexpr std::string_view massFlow[] = {"Flow Rate", "flow rate", "Mass Flow Rate",
    "mass flow rate"};
constexpr std::string_view heatDuty[] = {"Heat Duty", "heat duty"};
constexpr std::string_view efficiency[] = {"Efficiency", "efficiency"};
constexpr std::string_view ratio[] = {"Ratio", "ratio"};
constexpr std::string_view dynamicViscosity[] = {"M", "m", "Dynamic Viscosity",
    "dynamic viscosity"};
constexpr std::string_view thermalConductivity[] = {"K", "k", "Thermal Conductivity",
    "thermal conductivity"};
constexpr std::string_view surfaceTension[] = {"X", "x", "Surface Tension", "surface tension"};
constexpr std::string_view velocity[] = {"W", "w", "Velocity", "velocity"};
constexpr std::string_view isothermalJouleThomson[] = {"I", "i",
    "Isothermal Joule Thomson Coefficient", "isothermal joule thomson coefficient"};
constexpr std::string_view jouleThomson[] = {"J", "j", "Joule Thomson Coefficient",
    "joule thomson coefficient"};
constexpr std::string_view thermalExpansion[] = {"B", "b", "Thermal Expansion Coefficient",
    "thermal expansion coefficient"};
constexpr std::string_view compressibility[] = {"L", "l", "Isothermal Compressibility",
    "isothermal compressibility"};
constexpr std::string_view molecularWeight[] = {"Molecular Weight", "molecular weight"};
constexpr std::string_view power[] = {"Power", "power"};
constexpr std::string_view helmholtzEnergy[] = {"A", "a", "Helmholtz", "helmholtz",
    "Mass Specific Helmholtz Energy", "mass specific helmholtz energy"};
constexpr std::string_view gibbsEnergy[] = {"G", "g", "Gibbs", "gibbs",
    "Mass Specific Gibbs Energy", "mass specific gibbs energy"};
constexpr std::string_view temperatureDifference[] = {"DT", "dt", "Temperature Diff",
    "temperature diff"};
constexpr std::string_view pressureDifference[] = {"DP", "dp", "Pressure Diff", "pressure diff"};

}  // namespace keywords

// In catalogue order. A name with a superscript has a twin in plain ASCII ("^2", "^3") behind it,
// for callers who cannot type it.
namespace units {

// Offsets in the unit itself: reference = (x + offset) * factor. 0.55555555556 and -491.669999996
// are the tabulated literals, not 5/9 and -(459.67 + 32). No degree signs here: they name
// temperature differences only.
constexpr ZvUomLiteKeyword temperature[] = {
    {"C", 1},
    {"F", 0.55555555556, -32},
    {"K", 1, -273.15},
    {"R", 0.55555555556, -491.669999996},
};

// A gauge unit is an ordinary unit whose offset is one standard atmosphere.
constexpr ZvUomLiteKeyword pressure[] = {
    {"N/m²", 1}, {"N/m^2", 1},
    {"Pa", 1},
    {"atm", 101325},
    {"bara", 100000},
    {"barg", 100000, 1.01325},
    {"ft H2O", 2989.07},
    {"in Hg", 3386.39},
    {"in H2O", 249.082},
    {"kPa", 1000},
    {"lbf/ft²", 47.88026}, {"lbf/ft^2", 47.88026},
    {"mm Hg", 133.322},
    {"oz/in²", 430.92231}, {"oz/in^2", 430.92231},
    {"psia", 6894.76751},
    {"psig", 6894.76751, 14.695927},
    {"Torr", 133.322},
    {"MPa", 1000000},
    {"kgf/cm²", 98066.5}, {"kgf/cm^2", 98066.5},
};

constexpr ZvUomLiteKeyword density[] = {
    {"kg/m³", 1}, {"kg/m^3", 1},
    {"g/cm³", 1000}, {"g/cm^3", 1000},
    {"g/l", 1},
    {"kg/l", 1000},
    {"te/m³", 1000}, {"te/m^3", 1000},
    {"lb/ft³", 16.01846337}, {"lb/ft^3", 16.01846337},
    {"lb/in³", 27679.9047}, {"lb/in^3", 27679.9047},
    {"oz/ft³", 1.00115396}, {"oz/ft^3", 1.00115396},
    {"oz/in³", 1729.99404}, {"oz/in^3", 1729.99404},
};

// "ft^3/lb" is a thousandth of 0.0283168 m^3 / 0.45359237 kg, unlike the other foot, inch and ounce
// units; kept as tabulated.
constexpr ZvUomLiteKeyword specificVolume[] = {
    {"m³/kg", 1}, {"m^3/kg", 1},
    {"cm³/g", 0.001}, {"cm^3/g", 0.001},
    {"l/g", 1},
    {"l/kg", 0.001},
    {"m³/te", 0.001}, {"m^3/te", 0.001},
    {"ft³/lb", 6.2e-05}, {"ft^3/lb", 6.2e-05},
    {"in³/lb", 3.6127292e-05}, {"in^3/lb", 3.6127292e-05},
    {"ft³/oz", 0.998847369}, {"ft^3/oz", 0.998847369},
    {"in³/oz", 0.00057803667}, {"in^3/oz", 0.00057803667},
};

// The International Table Btu and kcal; `specificHeat` has 4.18690337 for the same units; kept as
// tabulated.
constexpr ZvUomLiteKeyword entropy[] = {
    {"kJ/(kg.K)", 1},
    {"Btu/(lb.F)", 4.1868},
    {"Btu/(lb.R)", 4.1868},
    {"cal/(g.C)", 4.1868},
    {"cal/(g.K)", 4.1868},
    {"J/(g.K)", 1},
    {"J/(kg.K)", 0.001},
    {"kcal/(kg.C)", 4.1868},
    {"kcal/(kg.K)", 4.1868},
    {"kJ/(kg.C)", 1},
};

// The International Table calorie and Btu; `energy` has the thermochemical ones; kept as tabulated.
constexpr ZvUomLiteKeyword enthalpy[] = {
    {"kJ/kg", 1},
    {"Btu/lb", 2.326},
    {"cal/g", 4.1868},
    {"erg/g", 1e-07},
    {"ft-lbf/lb", 0.00298857},
    {"J/g", 1},
    {"J/kg", 0.001},
    {"kcal/kg", 4.1868},
    {"therm/ton", 103.8397},
    {"therm/te", 105.506},
};

// Internal, Helmholtz and Gibbs energy. Btu and calorie differ from those of enthalpy; "therm/te"
// does not; kept as tabulated.
constexpr ZvUomLiteKeyword energy[] = {
    {"kJ/kg", 1},
    {"Btu/lb", 2.32444444},
    {"cal/g", 4.184},
    {"erg/g", 1e-07},
    {"ft-lbf/lb", 0.00298857},
    {"J/g", 1},
    {"J/kg", 0.001},
    {"kcal/kg", 4.184},
    {"therm/ton", 103.76984127},
    {"therm/te", 105.506},
};

// Quality, efficiency and ratio.
constexpr ZvUomLiteKeyword fraction[] = {
    {"Fraction", 1},
    {"%", 0.01},
};

// `entropy` has 4.1868 for the same Btu and calorie units; kept as tabulated.
constexpr ZvUomLiteKeyword specificHeat[] = {
    {"Btu/(lb.F)", 4.18690337},
    {"Btu/(lb.R)", 4.18690337},
    {"cal/(g.C)", 4.18690337},
    {"cal/(g.K)", 4.18690337},
    {"J/(g.C)", 1},
    {"J/(g.K)", 1},
    {"J/(kg.C)", 0.001},
    {"J/(kg.K)", 0.001},
    {"kcal/(kg.C)", 4.18690337},
    {"kcal/(kg.K)", 4.18690337},
    {"kJ/(kg.C)", 1},
    {"kJ/(kg.K)", 1},
};

constexpr ZvUomLiteKeyword massFlow[] = {
    {"kg/s", 1},
    {"g/s", 0.001},
    {"kg/min", 0.016666666667},
    {"kg/h", 0.00027777777778},
    {"kg/hr", 0.00027777777778},
    {"kg/d", 0.000011574074074},
    {"klb/h", 0.12599788056},
    {"klb/hr", 0.12599788056},
    {"lb/s", 0.45359237},
    {"lb/min", 0.0075598728333},
    {"lb/h", 0.00012599788056},
    {"lb/hr", 0.00012599788056},
    {"lb/d", 0.0000052499116898},
    {"te/h", 0.27777777778},
    {"te/hr", 0.27777777778},
    {"te/d", 0.011574074074},
    {"ton/h", 0.28223525244},
    {"ton/hr", 0.28223525244},
    {"ton/d", 0.011759802185},
};

// Heat duty and power. "M*kcal/h", "MMkcal/h" and "MMkcal/hr" are the same unit.
constexpr ZvUomLiteKeyword power[] = {
    {"kW", 1},
    {"Btu/h", 0.0002930711},
    {"Btu/hr", 0.0002930711},
    {"Btu/min", 0.017584264},
    {"Btu/s", 1.05505585},
    {"cal/s", 0.0041868},
    {"ft-lbf/s", 0.00135581795},
    {"hp", 0.745699872},
    {"kBtu/h", 0.2930711},
    {"kBtu/hr", 0.2930711},
    {"kcal/h", 0.001163},
    {"kcal/hr", 0.001163},
    {"kcal/s", 4.1868},
    {"M*kcal/h", 1163},
    {"Mcal/h", 1.163},
    {"Mcal/hr", 1.163},
    {"MMBtu/h", 293.0711},
    {"MMBtu/hr", 293.0711},
    {"MMkcal/h", 1163},
    {"MMkcal/hr", 1163},
    {"MW", 1000},
    {"W", 0.001},
    {"J/s", 0.001},
    {"kJ/h", 0.00027777778},
};

// "dyne.s/cm^2" is one poise by definition, yet not 0.1; kept as tabulated.
constexpr ZvUomLiteKeyword dynamicViscosity[] = {
    {"Pa.s", 1},
    {"mPa.s", 0.001},
    {"cP", 0.001},
    {"Poise", 0.1},
    {"dyne.s/cm²", 98.03921}, {"dyne.s/cm^2", 98.03921},
    {"N.s/m²", 1}, {"N.s/m^2", 1},
    {"kg/(m.s)", 1},
    {"kg/(m.h)", 0.00027777777778},
    {"kgf.s/m²", 9.80665}, {"kgf.s/m^2", 9.80665},
    {"lb/(ft.s)", 1.48816394},
    {"lb/(ft.h)", 0.00041337887},
    {"lbf.s/ft²", 47.88026}, {"lbf.s/ft^2", 47.88026},
};

constexpr ZvUomLiteKeyword thermalConductivity[] = {
    {"W/(K.m)", 1},
    {"W/(C.m)", 1},
    {"kW/(K.m)", 1000},
    {"mW/(K.m)", 0.001},
    {"Btu/(F.ft.h)", 1.73073467},
    {"Btu/(F.ft.s)", 6230.6448},
    {"cal/(C.cm.s)", 418.68},
    {"kcal/(C.m.h)", 1.163},
};

constexpr ZvUomLiteKeyword surfaceTension[] = {
    {"N/m", 1},
    {"mN/m", 0.001},
    {"dyne/cm", 0.001},
    {"kgf/m", 9.80665},
    {"lbf/ft", 14.5939029},
    {"lbf/in", 175.126835},
};

constexpr ZvUomLiteKeyword velocity[] = {
    {"m/s", 1},
    {"cm/s", 0.01},
    {"ft/s", 0.3048},
    {"ft/min", 0.00508},
    {"ft/h", 0.000084666666667},
    {"in/s", 0.0254},
    {"km/h", 0.27777777778},
    {"km/hr", 0.27777777778},
    {"knot", 0.51444444444},
    {"mile/h", 0.44704},
    {"mile/hr", 0.44704},
};

constexpr ZvUomLiteKeyword isothermalJouleThomson[] = {
    {"kJ/(kg.MPa)", 1},
    {"kJ/(kg.kPa)", 1000},
    {"kJ/(kg.bar)", 10},
    {"kJ/(kg.atm)", 9.86923267},
    {"J/(kg.Pa)", 1000},
    {"J/(g.MPa)", 1},
    {"kcal/(kg.atm)", 41.3205033},
    {"kcal/(kg.bar)", 41.868},
    {"Btu/(lb.psi)", 337.357778},
    {"Btu/(lb.atm)", 22.9558352},
};

constexpr ZvUomLiteKeyword jouleThomson[] = {
    {"K/MPa", 1},
    {"C/MPa", 1},
    {"K/kPa", 1000},
    {"C/kPa", 1000},
    {"K/Pa", 1000000},
    {"C/Pa", 1000000},
    {"K/bar", 10},
    {"C/bar", 10},
    {"K/atm", 9.86923267},
    {"C/atm", 9.86923267},
    {"F/psi", 80.576521},
    {"R/psi", 80.576521},
    {"F/atm", 5.48290704},
};

constexpr ZvUomLiteKeyword thermalExpansion[] = {
    {"1/K", 1},
    {"1/C", 1},
    {"1/F", 1.8},
    {"1/R", 1.8},
};

constexpr ZvUomLiteKeyword compressibility[] = {
    {"1/MPa", 1},
    {"1/kPa", 1000},
    {"1/Pa", 1000000},
    {"1/bar", 10},
    {"1/atm", 9.86923267},
    {"1/psi", 145.037738},
};

constexpr ZvUomLiteKeyword molecularWeight[] = {
    {"kg/kg-mol", 1},
    {"g/g-mol", 1},
    {"lb/lb-mol", 1},
};

// Temperature's units without their offsets: a difference has no zero point.
constexpr ZvUomLiteKeyword temperatureDifference[] = {
    {"C", 1},
    {"F", 0.55555555556},
    {"K", 1},
    {"R", 0.55555555556},
    {"°C", 1},
    {"°F", 0.55555555556},
    {"°K", 1},
    {"°R", 0.55555555556},
};

// Twins of the pressure units that differ in "ft H2O", "in Hg", "psia" and "psig" and in the
// spelling "lb/ft^2"; a difference carries no atmosphere, so "psig" has no offset and there is no
// "barg"; kept as tabulated.
constexpr ZvUomLiteKeyword pressureDifference[] = {
    {"N/m²", 1}, {"N/m^2", 1},
    {"Pa", 1},
    {"atm", 101325},
    {"bara", 100000},
    {"ft H2O", 2988.98},
    {"in Hg", 3376.85},
    {"in H2O", 249.082},
    {"kPa", 1000},
    {"lb/ft²", 47.88026}, {"lb/ft^2", 47.88026},
    {"mm Hg", 133.322},
    {"oz/in²", 430.92231}, {"oz/in^2", 430.92231},
    {"psia", 6894.757},
    {"psig", 6894.757},
    {"Torr", 133.322},
    {"MPa", 1000000},
    {"kgf/cm²", 98066.5}, {"kgf/cm^2", 98066.5},
};

}  // namespace units

// clang-format on

constexpr std::array<UnitGroupRow, unitGroupCount> groups{{
    {"Temperature", keywords::temperature, "K", "C", units::temperature},
    {"Pressure", keywords::pressure, "MPa", "Pa", units::pressure},
    {"Density", keywords::density, "kg/m^3", "kg/m^3", units::density},
    {"Mass Specific Volume", keywords::specificVolume, "m^3/kg", "m^3/kg", units::specificVolume},
    {"Mass Specific Entropy", keywords::entropy, "kJ/(kg.K)", "kJ/(kg.K)", units::entropy},
    {"Mass Specific Enthalpy", keywords::enthalpy, "kJ/kg", "kJ/kg", units::enthalpy},
    {"Mass Specific Internal Energy", keywords::internalEnergy, "kJ/kg", "kJ/kg", units::energy},
    {"Quality", keywords::quality, "Fraction", "Fraction", units::fraction},
    {"Mass Specific Heat", keywords::specificHeat, "kJ/(kg.K)", "kJ/(kg.C)", units::specificHeat},
    {"Mass Flow Rate", keywords::massFlow, "kg/s", "kg/s", units::massFlow},
    {"Heat Duty", keywords::heatDuty, "kW", "kW", units::power},
    {"Efficiency", keywords::efficiency, "Fraction", "Fraction", units::fraction},
    {"Ratio", keywords::ratio, "Fraction", "Fraction", units::fraction},
    {"Dynamic Viscosity", keywords::dynamicViscosity, "Pa.s", "Pa.s", units::dynamicViscosity},
    {"Thermal Conductivity", keywords::thermalConductivity, "W/(K.m)", "W/(K.m)",
     units::thermalConductivity},
    {"Surface Tension", keywords::surfaceTension, "N/m", "N/m", units::surfaceTension},
    {"Velocity", keywords::velocity, "m/s", "m/s", units::velocity},
    {"Isothermal Joule-Thomson Coefficient", keywords::isothermalJouleThomson, "kJ/(kg.MPa)",
     "kJ/(kg.MPa)", units::isothermalJouleThomson},
    {"Joule-Thomson Coefficient", keywords::jouleThomson, "K/MPa", "K/MPa", units::jouleThomson},
    {"Coefficient of Thermal Expansion", keywords::thermalExpansion, "1/K", "1/K",
     units::thermalExpansion},
    {"Isothermal Compressibility", keywords::compressibility, "1/MPa", "1/MPa",
     units::compressibility},
    {"Molecular Weight", keywords::molecularWeight, "kg/kg-mol", "kg/kg-mol",
     units::molecularWeight},
    {"Power", keywords::power, "kW", "kW", units::power},
    {"Mass Specific Helmholtz Energy", keywords::helmholtzEnergy, "kJ/kg", "kJ/kg", units::energy},
    {"Mass Specific Gibbs Energy", keywords::gibbsEnergy, "kJ/kg", "kJ/kg", units::energy},
    {"Temperature Difference", keywords::temperatureDifference, "K", "C",
     units::temperatureDifference},
    {"Pressure Difference", keywords::pressureDifference, "MPa", "Pa", units::pressureDifference},
}};

constexpr const ZvUomLiteKeyword* find(const UnitGroupRow& row, std::string_view name) {
  const auto unit = std::ranges::find(row.units, name, &ZvUomLiteKeyword::name);
  return unit == row.units.end() ? nullptr : &*unit;
}

static_assert(std::ranges::all_of(groups, [](const UnitGroupRow& row) {
  const ZvUomLiteKeyword* reference = find(row, row.referenceUnit);
  return find(row, row.internalUnit) && reference && reference->factor == 1 &&
         reference->offset == 0;
}));

}  // namespace

std::span<const UnitGroupRow, unitGroupCount> unitGroupTable() noexcept { return groups; }

}  // namespace calvex
