// The members of the saturation line, and the constants.
#include <exception>
#include <limits>

#include "engine/thermo_engine.h"
#include "steam/constants.h"

namespace calvex {

using Letter = Quantity::Letter;

// Within [triple point, critical point]. One member calls its pressure "Press".
bool ZvThermoInt::validOnLine(Letter given, double& value) {
  return given == Letter::T ? validRange("Temperature", value, constants::triplePointTemperature,
                                         constants::criticalTemperature, UnitGroup::temperature)
                            : validRange("Pressure", value, constants::triplePointPressure,
                                         constants::criticalPressure, UnitGroup::pressure);
}

int ZvThermoInt::PSatT(double* pP, double T) {
  return call("PSatT", [&] {
    double t = units_.toInternal(UnitGroup::temperature, T);
    if (!validOnLine(Letter::T, t)) return false;
    diagnostics_.postTimeNote();
    const double p = steam_.PSatT(t);
    diagnostics_.postTimeNote();
    return give(pP, UnitGroup::pressure, p);
  });
}

int ZvThermoInt::TSatP(double* pT, double P) {
  return call("TSatP", [&] {
    double p = units_.toInternal(UnitGroup::pressure, P);
    return validOnLine(Letter::P, p) && give(pT, UnitGroup::temperature, steam_.TSatP(p));
  });
}

int ZvThermoInt::saturation(std::string_view name, Letter result, Letter given, double* out,
                            double first, double Q) {
  return call(name, [&] {
    double x = units_.toInternal(quantity(given).group, first);
    double q = units_.toInternal(UnitGroup::quality, Q);
    if (name == "USatPQ") {
      if (!validRange("Press", x, constants::triplePointPressure, constants::criticalPressure,
                      UnitGroup::pressure)) {
        return false;
      }
    } else if (!validOnLine(given, x)) {
      return false;
    }
    if (!validRange("Quality", q, 0.0, 1.0, UnitGroup::quality)) return false;

    const bool isVolume = result == Letter::V;
    const Property mixed = isVolume ? Property::density : quantity(result).property;
    const double value =
        given == Letter::T ? steam_.saturatedTQ(mixed, x, q) : steam_.saturatedPQ(mixed, x, q);
    return give(out, quantity(result).group, isVolume ? 1.0 / value : value);
  });
}

int ZvThermoInt::HVLTSat_PQ(double* pH, double* pHVap, double* pHLiq, double* pTSat, double P,
                            double Q) {
  return call("HVLTSat_PQ", [&] {
    double p = units_.toInternal(UnitGroup::pressure, P);
    double q = units_.toInternal(UnitGroup::quality, Q);
    if (!validOnLine(Letter::P, p) || !validRange("Quality", q, 0.0, 1.0, UnitGroup::quality)) {
      return false;
    }
    const SteamModel::SaturatedEnthalpies both = steam_.saturatedEnthalpies(p);
    double h = 0.0;
    double vapour = 0.0;
    double liquid = 0.0;
    double t = 0.0;
    if (!give(&h, UnitGroup::enthalpy, (1.0 - q) * both.liquid + q * both.vapour) ||
        !give(&vapour, UnitGroup::enthalpy, both.vapour) ||
        !give(&liquid, UnitGroup::enthalpy, both.liquid) ||
        !give(&t, UnitGroup::temperature, both.temperature)) {
      return false;
    }
    *pH = h;
    *pHVap = vapour;
    *pHLiq = liquid;
    *pTSat = t;
    return true;
  });
}

// A constant has no flag to tell a failure by: when the units server refuses, it has no number.
double ZvThermoInt::constant(UnitGroup group, double value) const {
  try {
    return units_.toUser(group, value);
  } catch (const std::exception&) {
    return std::numeric_limits<double>::quiet_NaN();
  }
}

double ZvThermoInt::MolWeight() const {
  return constant(UnitGroup::molecularWeight, constants::molecularWeight);
}
double ZvThermoInt::CritT() const {
  return constant(UnitGroup::temperature, constants::criticalTemperature);
}
double ZvThermoInt::CritP() const {
  return constant(UnitGroup::pressure, constants::criticalPressure);
}
double ZvThermoInt::CritV() const {
  return constant(UnitGroup::specificVolume, 1.0 / constants::criticalDensity);
}
double ZvThermoInt::CritR() const {
  return constant(UnitGroup::density, constants::criticalDensity);
}
double ZvThermoInt::CritZ() const {
  return 1000.0 * constants::criticalPressure /
         (constants::criticalDensity * constants::gasConstant * constants::criticalTemperature);
}
double ZvThermoInt::TripleT() const {
  return constant(UnitGroup::temperature, constants::triplePointTemperature);
}
double ZvThermoInt::TripleP() const {
  return constant(UnitGroup::pressure, constants::triplePointPressure);
}

}  // namespace calvex
