// The property members: one protocol over one table.
#include "engine/property_members.h"

#include <cmath>
#include <utility>

#include "diagnostics/formatting.h"
#include "diagnostics/thermo_exception.h"
#include "engine/thermo_engine.h"
#include "steam/constants.h"
#include "steam/extremes.h"
#include "steam/saturation_correlations.h"
#include "steam/transport.h"

namespace calvex {

namespace {

using Letter = Quantity::Letter;

constexpr Quantity quantities[] = {
    {Letter::P, Property::pressure, UnitGroup::pressure, true, "Pressure"},
    {Letter::T, Property::temperature, UnitGroup::temperature, true, "Temperature"},
    {Letter::H, Property::enthalpy, UnitGroup::enthalpy, true, "Enthalpy"},
    {Letter::S, Property::entropy, UnitGroup::entropy, true, "Entropy"},
    {Letter::U, Property::internalEnergy, UnitGroup::internalEnergy, true, "Internal Energy"},
    {Letter::R, Property::density, UnitGroup::density, true, "Density"},
    {Letter::V, Property::specificVolume, UnitGroup::specificVolume, true, "Specific Volume"},
    {Letter::Q, {}, UnitGroup::quality, true, "Quality"},
    {Letter::A, Property::helmholtz, UnitGroup::helmholtzEnergy, true, {}},
    {Letter::G, Property::gibbs, UnitGroup::gibbsEnergy, true, {}},
    {Letter::M, Property::viscosity, UnitGroup::dynamicViscosity, true, {}},
    {Letter::K, Property::thermalConductivity, UnitGroup::thermalConductivity, true, {}},
    {Letter::C, Property::isobaricHeatCapacity, UnitGroup::specificHeat, true, {}},
    {Letter::D, Property::isochoricHeatCapacity, UnitGroup::specificHeat, true, {}},
    {Letter::Z, Property::compressibilityFactor, {}, false, {}},
    {Letter::W, Property::speedOfSound, UnitGroup::velocity, true, {}},
    {Letter::N, Property::prandtlNumber, {}, false, {}},
    {Letter::E, Property::dielectricConstant, {}, false, {}},
    {Letter::I, Property::isothermalThrottling, UnitGroup::isothermalJouleThomson, true, {}},
    {Letter::J, Property::jouleThomson, UnitGroup::jouleThomson, true, {}},
    {Letter::B, Property::thermalExpansion, UnitGroup::thermalExpansion, true, {}},
    {Letter::L, Property::compressibility, UnitGroup::compressibility, true, {}},
};

constexpr PropertyMember members[] = {
#define X(result, first, second, twoPhases)                               \
  {#result #first #second, Letter::result, Letter::first, Letter::second, \
   PropertyMember::TwoPhases::twoPhases},
    CALVEX_PROPERTY_MEMBERS(X)
#undef X
};
static_assert(std::size(members) == PropertyMember::count);

}  // namespace

const Quantity& quantity(Letter letter) noexcept {
  return quantities[static_cast<std::size_t>(letter)];
}

const PropertyMember& propertyMember(PropertyMember::Index index) noexcept {
  return members[index];
}

int ZvThermoInt::property(PropertyMember::Index index, double* out, double first, double second) {
  const PropertyMember& member = members[index];
  return call(member.name, [&] {
    const Quantity& result = quantity(member.result);
    double x1 = units_.toInternal(quantity(member.first).group, first);
    double x2 = units_.toInternal(quantity(member.second).group, second);
    if (!validInputs(member, x1, x2)) return false;

    const GivenPair given{member.first, x1, member.second, x2};
    const auto phases = solved(given, [&] { return stateOf(member, x1, x2); });
    if (!phases) return false;
    if (phases == Phases::two) {
      if (member.first == Letter::T && !validOnLine(Letter::T, x1)) {
        if (diagnostics_.tracing()) {
          diagnostics_.postCause(fmt::sprintf(
              "Below the triple point, %s, liquid and vapour do not mix: these inputs are of "
              "neither.",
              inUserUnit(UnitGroup::temperature, constants::triplePointTemperature, 10)));
        }
        return false;
      }
      switch (member.twoPhases) {
        case PropertyMember::TwoPhases::fails:
          return failBetweenPhases(member, given);
        case PropertyMember::TwoPhases::onLine:
          return onLine(member, out, first);
        case PropertyMember::TwoPhases::pressureOfLine:
          return PSatT(out, first) != 0;
        case PropertyMember::TwoPhases::ofMixture:
          break;
      }
    }
    const double value = [&] {
      if (member.result == Letter::Q) return steam_.state().quality;
      // Not the pressure at the density found: cold water's density does not resolve it.
      if (member.result == Letter::Z) {
        return compressibilityFactor(x1, x2, steam_.state().density);
      }
      return phases == Phases::two ? steam_.mixtureProperty(result.property)
                                   : steam_.property(result.property);
    }();
    if (std::isnan(value) && member.result == Letter::W) {
      return fail(Message::solutionError, unstableWater);
    }
    if (phases == Phases::one) warnOfUnstableWater();
    return result.hasUnit ? give(out, result.group, value) : give(out, value);
  });
}

bool ZvThermoInt::validInputs(const PropertyMember& member, double& first, double& second) {
  const bool fromT = member.first == Letter::T;
  if (member.second == Letter::T) {
    switch (member.result) {
      case Letter::M:
      case Letter::K:
      case Letter::N:
      case Letter::E:
        return validTransportRange(member.result, first, second);
      default:
        return validTemperature("Temperature", second) && validPressure("Pressure", first, second);
    }
  }
  if (!(fromT ? validTemperature("Temperature", first) : validPressure("Pressure", first))) {
    return false;
  }
  // 0.01 C is the triple point also where 273.15999999999997 K comes of it.
  if (fromT) {
    moveOntoBound(first, constants::triplePointTemperature, constants::criticalTemperature,
                  UnitGroup::temperature);
  }
  // This one member spells it with a small letter.
  const std::string_view name =
      &member == &members[PropertyMember::QPV] ? "Specific volume" : quantity(member.second).name;
  return notNegative(name, quantity(member.second).group, second);
}

// The ranges of the correlations, MPa and K.
bool ZvThermoInt::validTransportRange(Letter result, double& P, double& T) {
  constexpr double TMin = 273.15;
  const auto validT = [&](double TMax) {
    return validRange("Temperature", T, TMin, TMax, UnitGroup::temperature);
  };
  const auto validP = [&](double PMax) {
    return validRange("Pressure", P, 0.0, PMax, UnitGroup::pressure);
  };
  switch (result) {
    case Letter::M: {
      if (!validT(1073.15)) return false;
      const double PMax = T < 373.15 ? 1000.0 : T < 833.15 ? 350.0 : 100.0;
      if (!validP(PMax)) return false;
      if (P > 100.0 && diagnostics_.wantsWarnings()) {
        diagnostics_.postWarning("Pressure parameter out of strictly valid range.");
      }
      return true;
    }
    case Letter::E:
      return validP(500.0) && validT(823.15);
    default:
      return validP(100.0) && validT(1073.15);
  }
}

Phases ZvThermoInt::stateOf(const PropertyMember& member, double first, double second) {
  if (member.second == Letter::T) return steam_.stateFromPT(first, second);
  // A specific volume is solved for as a density.
  const bool isVolume = member.second == Letter::V;
  const Property given = isVolume ? Property::density : quantity(member.second).property;
  const double value = isVolume ? 1.0 / second : second;
  return member.first == Letter::T ? steam_.stateFromT(first, given, value)
                                   : steam_.stateFromP(first, given, value);
}

// The phases that `solve` finds; where it finds no state, why, and what the inputs have to do with
// it.
template <class Solve>
std::optional<Phases> ZvThermoInt::solved(const GivenPair& given, Solve&& solve) {
  try {
    return solve();
  } catch (const ZvThermoException& failure) {
    diagnostics_.postError(failure.what());
    if (diagnostics_.tracing()) explainNoState(given);
    return std::nullopt;
  }
}

// Pressure, density and volume must be above zero; every property ends somewhere at a given
// pressure or temperature.
void ZvThermoInt::explainNoState(const GivenPair& given) {
  const auto shown = [&](Letter letter, double value, int digits = 10) {
    return inUserUnit(quantity(letter).group, value, digits);
  };
  const auto nameOf = [](Letter letter) { return std::string(quantity(letter).name); };
  for (const auto& [letter, x] : {std::pair(given.first, given.x1), {given.second, given.x2}}) {
    const bool mayBeZero = letter != Letter::P && letter != Letter::R && letter != Letter::V;
    constexpr double least = 1e-300;  // below it numbers lose their digits
    if (mayBeZero || !(x >= 0.0 && x < least)) continue;
    diagnostics_.postCause(
        x == 0.0 ? fmt::sprintf("%s must be above %s.", nameOf(letter), shown(letter, 0.0))
                 : fmt::sprintf("%s %s is too close to zero to be computed with.", nameOf(letter),
                                shown(letter, x, 3)));
    return;
  }
  if (given.second == Letter::T) return;

  // A volume is the reciprocal of a density, so that its ends are the other way round.
  const bool isVolume = given.second == Letter::V;
  const Property property = isVolume ? Property::density : quantity(given.second).property;
  const double value = isVolume ? 1.0 / given.x2 : given.x2;
  const auto extremes = given.first == Letter::P ? extremesAtPressure(given.x1, property)
                                                 : extremesAtTemperature(given.x1, property);
  if (!extremes) return;
  const bool above = value > extremes->greatest.value;
  if (!above && !(value < extremes->least.value)) return;
  const Extreme& end = above ? extremes->greatest : extremes->least;
  const Letter other = given.first == Letter::P ? Letter::T : Letter::P;
  if (above && property == Property::entropy && other == Letter::P) {
    // Of a gas it grows without end as the pressure falls.
    diagnostics_.postCause(fmt::sprintf(
        "%s %s at %s would take next to no pressure: %s is that of %s.", nameOf(given.second),
        shown(given.second, given.x2), shown(given.first, given.x1),
        shown(given.second, end.value, 6), shown(other, end.at, 3)));
    return;
  }
  constexpr double noPressure = 1e-6;  // MPa: the end of an ever thinner vapour
  const std::string where = other == Letter::P && end.at < noPressure
                                ? std::string("where the pressure vanishes")
                                : fmt::sprintf("at %s", shown(other, end.at, 6));
  const bool high = above != isVolume;
  diagnostics_.postCause(
      fmt::sprintf("%s %s is %s any that water has at %s: the %s is %s, %s.", nameOf(given.second),
                   shown(given.second, given.x2), high ? "above" : "below",
                   shown(given.first, given.x1), high ? "highest" : "lowest",
                   shown(given.second, isVolume ? 1.0 / end.value : end.value, 6), where));
}

// What to ask instead where two properties leave open how much is vapour.
bool ZvThermoInt::failBetweenPhases(const PropertyMember& member, const GivenPair& given) {
  if (!diagnostics_.tracing()) return false;
  if (given.second != Letter::T) {
    return fail(Message::twoPhase,
                fmt::sprintf("They are those of wet steam, %.4g of it vapour; this property is "
                             "answered for the liquid or the vapour alone.",
                             steam_.state().quality));
  }
  std::string advice =
      "For the liquid ask at a slightly lower temperature, for the vapour at a slightly higher "
      "one.";
  const std::string_view letter = member.name.substr(0, 1);
  if (std::string_view("HSUVR").find(letter) != std::string_view::npos) {
    advice = fmt::sprintf(
        "Give the pressure with the quality instead (%sSatPQ: 0 is liquid, 1 is vapour), or with "
        "another property than the temperature.",
        letter);
  }
  return fail(
      Message::twoPhase,
      fmt::sprintf("%s is the boiling point at %s, where liquid and vapour are together. %s",
                   inUserUnit(UnitGroup::temperature, given.x2),
                   inUserUnit(UnitGroup::pressure, given.x1), advice));
}

// Hands over to the saturation member of the same result, in the client's units. The V members go
// through the density.
bool ZvThermoInt::onLine(const PropertyMember& member, double* out, double userFirst) {
  const double Q = units_.toUser(UnitGroup::quality, steam_.state().quality);
  const bool fromT = member.first == Letter::T;
  switch (member.result) {
    case Letter::H:
      return (fromT ? HSatTQ(out, userFirst, Q) : HSatPQ(out, userFirst, Q)) != 0;
    case Letter::S:
      return (fromT ? SSatTQ(out, userFirst, Q) : SSatPQ(out, userFirst, Q)) != 0;
    case Letter::U:
      return (fromT ? USatTQ(out, userFirst, Q) : USatPQ(out, userFirst, Q)) != 0;
    case Letter::R:
      return (fromT ? RSatTQ(out, userFirst, Q) : RSatPQ(out, userFirst, Q)) != 0;
    default: {
      double density = 0.0;
      if (!(fromT ? RSatTQ(&density, userFirst, Q) : RSatPQ(&density, userFirst, Q))) return false;
      return give(out, UnitGroup::specificVolume,
                  1.0 / units_.toInternal(UnitGroup::density, density));
    }
  }
}

// Whether P is the saturation pressure of T whatever the correlation says, or T the saturation
// temperature of P; both are asked for only where they can be. TSatP stays on the line: the
// correlation, which has 612.65 Pa at the triple point, has T there from 611.73 Pa on.
bool ZvThermoInt::isOnLine(double P, double T) {
  if (T < constants::triplePointTemperature || T > constants::criticalTemperature) return false;
  if (std::fabs(1.0 - P / saturation::pressure(T)) >= 0.005) return false;
  return std::fabs(1.0 - P / steam_.PSatT(T)) < 1e-4 ||
         (P >= constants::triplePointPressure && P <= constants::criticalPressure &&
          std::fabs(1.0 - T / steam_.TSatP(P)) < 1e-9);
}

// From 800 MPa on, where it freezes, water below 325 K has negative heat capacities by the
// equation.
void ZvThermoInt::warnOfUnstableWater() {
  if (!diagnostics_.wantsWarnings() || steam_.isThermallyStable()) return;
  diagnostics_.postWarning(unstableWater);
}

// The quality of a state off the line is ignored; where it says otherwise than the phase, that is
// worth a word.
void ZvThermoInt::warnOfQuality(double P, double T, double Q) {
  if (!diagnostics_.wantsWarnings()) return;
  const bool critical = P >= constants::criticalPressure && T >= constants::criticalTemperature;
  const bool liquid =
      T < constants::criticalTemperature && steam_.state().density > constants::criticalDensity;
  if (critical || Q == (liquid ? 0.0 : 1.0)) return;
  diagnostics_.postWarning(
      fmt::sprintf("Quality %.4g ignored: the state is %s, not on the saturation line.", Q,
                   liquid ? "liquid" : "vapour"));
}

int ZvThermoInt::HPTQ(double* pH, double P, double T, double Q) {
  return call("HPTQ", [&] {
    double p = units_.toInternal(UnitGroup::pressure, P);
    double t = units_.toInternal(UnitGroup::temperature, T);
    double q = units_.toInternal(UnitGroup::quality, Q);
    if (!validTemperature("Temperature", t) || !validPressure("Pressure", p, t) ||
        !validRange("Quality", q, 0.0, 1.0, UnitGroup::quality)) {
      return false;
    }
    const auto phases =
        solved({Letter::P, p, Letter::T, t}, [&] { return steam_.stateFromPT(p, t); });
    if (!phases) return false;
    if (phases == Phases::two || isOnLine(p, t)) return HSatPQ(pH, P, Q) != 0;
    if (steam_.polish() == SatPolish::deciding) warnOfQuality(p, t, q);
    warnOfUnstableWater();
    return give(pH, UnitGroup::enthalpy, steam_.property(Property::enthalpy));
  });
}

int ZvThermoInt::fromPH(std::string_view name, double* pQ, double* pT, Property third,
                        UnitGroup thirdGroup, double* pThird, double P, double H) {
  return call(name, [&] {
    double p = units_.toInternal(UnitGroup::pressure, P);
    const double h = units_.toInternal(UnitGroup::enthalpy, H);
    if (!validPressure("Pressure", p) || !notNegative("Enthalpy", UnitGroup::enthalpy, h)) {
      return false;
    }
    const auto phases = solved({Letter::P, p, Letter::H, h},
                               [&] { return steam_.stateFromP(p, Property::enthalpy, h); });
    if (!phases) return false;
    if (phases == Phases::one) warnOfUnstableWater();
    double q = 0.0;
    double t = 0.0;
    double x = 0.0;
    if (!give(&q, UnitGroup::quality, steam_.state().quality) ||
        !give(&t, UnitGroup::temperature, steam_.state().temperature)) {
      return false;
    }
    if (pThird != nullptr) {
      const double value =
          phases == Phases::two ? steam_.mixtureProperty(third) : steam_.property(third);
      if (!give(&x, thirdGroup, value)) return false;
      *pThird = x;
    }
    *pQ = q;
    *pT = t;
    return true;
  });
}

int ZvThermoInt::QT_PH(double* pQ, double* pT, double P, double H) {
  return fromPH("QT_PH", pQ, pT, {}, {}, nullptr, P, H);
}

int ZvThermoInt::QTS_PH(double* pQ, double* pT, double* pS, double P, double H) {
  return fromPH("QTS_PH", pQ, pT, Property::entropy, UnitGroup::entropy, pS, P, H);
}

int ZvThermoInt::QTR_PH(double* pQ, double* pT, double* pR, double P, double H) {
  return fromPH("QTR_PH", pQ, pT, Property::density, UnitGroup::density, pR, P, H);
}

int ZvThermoInt::XT(double* pX, double T) {
  return call("XT", [&] {
    double t = units_.toInternal(UnitGroup::temperature, T);
    return validOnLine(Letter::T, t) && give(pX, UnitGroup::surfaceTension, surfaceTension(t));
  });
}

}  // namespace calvex
