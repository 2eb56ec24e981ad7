/// \file
/// What no plant can do. The equations of a model answer it all the same; the record then gets a
/// warning (level 1) that names the quantity, its value and its limit in the client's units, and
/// the cause. The same sentences tell the cause of a failure whose own text does not.
///
/// Nothing here changes an answer, the stored state or the calls that a model is seen to make.
#pragma once

#include <exception>
#include <initializer_list>
#include <optional>
#include <string_view>

#include "engine/thermo_engine.h"

namespace calvex {

/// A quantity, the side of a limit on which it is wrong, and why.
struct PlausibilityRule {
  enum class Wrong { above, below, notAbove, notBelow };

  std::string_view quantity;
  Wrong wrong;
  std::string_view limit;          ///< what the limit is; empty when its value says so
  std::optional<UnitGroup> group;  ///< none for plain numbers
  std::string_view cause;

  [[nodiscard]] bool isBroken(double value, double bound) const noexcept;
};

/// A rule held against a value and its limit, in model units.
struct Comparison {
  const PlausibilityRule& rule;
  double value;
  double limit;
};

/// A flow or a duty by its name, in model units.
struct NamedValue {
  std::string_view name;
  double value;
  UnitGroup group;
};

/// Warns of each rule that is broken. Answers true: the call goes on.
bool warnIfBroken(ZvThermoInt& engine, std::initializer_list<Comparison> comparisons);

/// Warns of each value below zero.
void warnIfNegative(ZvThermoInt& engine, std::initializer_list<NamedValue> values);

/// Adds the first rule that is broken to the failure just posted, as its cause. Answers false.
bool explainFailure(ZvThermoInt& engine, std::initializer_list<Comparison> comparisons);

/// `body` answers true for success. After its failure, a thrown one too, `explain` is called.
template <class Body, class Explain>
bool explained(ZvThermoInt& engine, Body&& body, Explain&& explain) {
  try {
    if (body()) return true;
  } catch (const std::exception& failure) {
    engine.diagnostics().postError(failure.what());
  }
  explain();
  return false;
}

// Limits that are themselves properties of steam, computed aside, in model units; NaN, which breaks
// no rule, where there are none.
[[nodiscard]] double boilingTemperature(double P);
[[nodiscard]] double entropyFrom(double P, double H);
/// Of the highest temperature that can be computed.
[[nodiscard]] double hottest(Property property, double P);

namespace plausibility {

using enum PlausibilityRule::Wrong;
using enum UnitGroup;

// Machines
inline constexpr PlausibilityRule negativePower{"Power", below, "", power,
                                                "the machine would run the other way round"};
inline constexpr PlausibilityRule extractionsTakeAll{"Power of the extractions", above,
                                                     "the given power", power,
                                                     "nothing is left for the last outlet"};
inline constexpr PlausibilityRule entropyTooHigh{"Inlet entropy", above,
                                                 "that of the inlet pressure and enthalpy", entropy,
                                                 "the inlet is no such state"};
inline constexpr PlausibilityRule entropyTooLow{"Inlet entropy", below,
                                                "that of the inlet pressure and enthalpy", entropy,
                                                "the inlet is no such state"};
inline constexpr PlausibilityRule inletTooHot{"Inlet enthalpy", above,
                                              "that of the hottest steam at the inlet pressure",
                                              enthalpy, "there is no such steam"};
inline constexpr PlausibilityRule idealOutletTooHot{
    "Entropy", above, "that of the hottest steam at the outlet pressure", entropy,
    "even the ideal machine heats the outlet too much"};
inline constexpr PlausibilityRule outletTooHot{
    "Outlet enthalpy", above, "that of the hottest steam at the outlet pressure", enthalpy,
    "the efficiency heats the outlet too much"};
inline constexpr PlausibilityRule noWork{"Work of all stages", notAbove, "", enthalpy,
                                         "between equal pressures there is none"};

// Vessels, valves and boilers
inline constexpr PlausibilityRule valveRaisesPressure{
    "Outlet pressure", above, "the inlet pressure", pressure, "a valve cannot raise it"};
inline constexpr PlausibilityRule feedBoils{"Water temperature", above,
                                            "where water boils at the operating pressure",
                                            temperature, "feed water would flash"};
inline constexpr PlausibilityRule feedIsNoLiquid{
    "Water temperature", above, "where water boils at the operating pressure", temperature,
    "so far above it there is no liquid, not even a metastable one"};
inline constexpr PlausibilityRule steamCannotHeat{"Steam enthalpy", notAbove,
                                                  "that of the water in the outlet", enthalpy,
                                                  "such steam does not heat the feed water"};
inline constexpr PlausibilityRule sprayHeats{"Outlet enthalpy", above, "the inlet steam's",
                                             enthalpy, "spray water cannot heat steam"};
inline constexpr PlausibilityRule sprayDoesNotCool{"Inlet water enthalpy", notBelow, "the outlet's",
                                                   enthalpy, "such water does not cool the steam"};
inline constexpr PlausibilityRule outletIsWater{"Outlet temperature", below,
                                                "where water boils at the outlet pressure",
                                                temperature, "what leaves is water, not steam"};
inline constexpr PlausibilityRule feedAboveSteam{"Inlet enthalpy", above, "the outlet steam's",
                                                 enthalpy, "there is nothing left to heat"};

inline constexpr PlausibilityRule blowdownTooLarge{"Blowdown ratio", above, "", ratio,
                                                   "more water is blown down than leaves as steam"};
inline constexpr PlausibilityRule blowdownNegative{"Blowdown ratio", below, "", ratio,
                                                   "nothing flows back into the drum"};
inline constexpr PlausibilityRule ventTooLarge{"Vent ratio", above, "", ratio,
                                               "more is vented than leaves as water"};
inline constexpr PlausibilityRule ventNegative{"Vent ratio", below, "", ratio,
                                               "nothing flows in through the vent"};

// Heat exchangers
inline constexpr PlausibilityRule coldPressureRises{
    "Cold pressure drop", below, "", pressureDifference, "a stream loses pressure on its way"};
inline constexpr PlausibilityRule hotPressureRises{
    "Hot pressure drop", below, "", pressureDifference, "a stream loses pressure on its way"};
inline constexpr PlausibilityRule coldEndsAboveHot{"Cold outlet temperature", above,
                                                   "the hot inlet temperature", temperature,
                                                   "heat does not flow from cold to hot"};
inline constexpr PlausibilityRule coldStartsAboveHot{"Cold inlet temperature", above,
                                                     "the hot outlet temperature", temperature,
                                                     "heat does not flow from cold to hot"};
inline constexpr PlausibilityRule hotStreamIsHeated{"Hot outlet enthalpy", above, "the hot inlet's",
                                                    enthalpy, "the hot stream takes up heat"};
inline constexpr PlausibilityRule coldStreamIsCooled{
    "Cold outlet enthalpy", below, "the cold inlet's", enthalpy, "the cold stream gives up heat"};
inline constexpr PlausibilityRule noColdFlow{"Cold flow", notAbove, "", massFlow,
                                             "nothing takes up the duty"};

// Ejectors
inline constexpr PlausibilityRule motiveTooWeak{"Motive pressure", notAbove, "the suction pressure",
                                                pressure, "such steam drives nothing"};
inline constexpr PlausibilityRule dischargeAboveMotive{
    "Discharge pressure", above, "the motive pressure", pressure,
    "steam does not compress beyond its own pressure"};
inline constexpr PlausibilityRule dischargeBelowSuction{"Discharge pressure", below,
                                                        "the suction pressure", pressure,
                                                        "nothing needs to be compressed"};
inline constexpr PlausibilityRule chartEnds{"Expansion ratio", below, "the least of the chart",
                                            ratio,
                                            "the chart's last curve passes the motive pressure"};
inline constexpr PlausibilityRule chartPassesCriticalPressure{
    "Motive pressure", above, "the critical pressure", pressure,
    "the chart ends at the motive pressure, where such a discharge does not condense"};
inline constexpr PlausibilityRule dutyTooLow{"Duty", below, "the least of the chart", heatDuty,
                                             "the given flow condenses to more"};
inline constexpr PlausibilityRule dutyTooHigh{"Duty", above, "the most of the chart", heatDuty,
                                              "the given flow condenses to less"};
inline constexpr PlausibilityRule noSuctionFlow{"Suction flow", notAbove, "", massFlow,
                                                "the ratio of motive to suction flow has no value"};
inline constexpr PlausibilityRule negativeMotiveFlow{"Motive flow", below, "", massFlow,
                                                     "the chart has no such ratio of flows"};
inline constexpr PlausibilityRule noMotiveFlow{
    "Discharge pressure", notAbove, "the suction pressure", pressure,
    "it takes no motive flow, so that the given one draws any suction flow"};

// Gas turbine
inline constexpr PlausibilityRule noFuel{"Power to fuel ratio", notAbove, "", std::nullopt,
                                         "the turbine burns no fuel"};
inline constexpr PlausibilityRule fuelTooWeak{"Turbine power", notBelow, "the heat of its fuel",
                                              power, "no heat is left for the exhaust"};
inline constexpr PlausibilityRule exhaustTooCold{"Exhaust temperature", notAbove,
                                                 "the air temperature", temperature,
                                                 "the exhaust carries no heat"};
inline constexpr PlausibilityRule exhaustCannotBoil{"Exhaust temperature", below,
                                                    "where water boils plus the least approach",
                                                    temperature, "the exhaust raises no steam"};
inline constexpr PlausibilityRule steamAboveExhaust{"Steam temperature", above,
                                                    "the exhaust temperature", temperature,
                                                    "the exhaust cannot heat steam so far"};
inline constexpr PlausibilityRule feedAboveBoiling{"Feed water temperature", above,
                                                   "where water boils at the steam pressure",
                                                   temperature, "feed water would be steam"};
inline constexpr PlausibilityRule demandBelowBaseLoad{
    "Steam demand", below, "the base load", massFlow, "the exhaust alone raises more than that"};
inline constexpr PlausibilityRule oxygenUsedUp{"Least oxygen content of the stack", above,
                                               "what the turbine's exhaust has", std::nullopt,
                                               "no firing leaves so much"};
inline constexpr PlausibilityRule airUsedUp{"Oxygen content of the exhaust", below, "",
                                            std::nullopt, "the turbine's fuel needs more air"};

}  // namespace plausibility

}  // namespace calvex
