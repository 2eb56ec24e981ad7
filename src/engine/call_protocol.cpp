// What every call goes through: range checks, results in the client's unit, failures.
#include <algorithm>
#include <cmath>
#include <limits>

#include "diagnostics/formatting.h"
#include "engine/thermo_engine.h"

namespace calvex {

ZvThermoInt::ZvThermoInt(UnitsServerFactory unitsServer, std::unique_ptr<Dialogs> dialogs)
    : units_(std::move(unitsServer)), steam_(diagnostics_), dialogs_(std::move(dialogs)) {
  Reset();
}

void ZvThermoInt::Reset() {
  appName_ = "ZvCalvex";
  appHelpFile_.clear();
  uomHelpContext_ = 0;
  returnThermoUnits_ = 1;
  returnModelUnits_ = 1;
  returnModelTokens_ = 1;
  liveObjects_ = 0;
  units_.reset();
  steam_.reset();
  diagnostics_.reset();
}

void ZvThermoInt::ReleaseObject() {
  if (--liveObjects_ == 0) Reset();
}

std::string ZvThermoInt::inUserUnit(UnitGroup group, double value, int digits) const {
  return fmt::sprintf("%.*g %s", digits, units_.toUser(group, value), unitName(group));
}

std::string ZvThermoInt::unitName(UnitGroup group) const {
  std::string name;
  short status = 0;
  units_.getUserUnit(static_cast<int>(group), name, status);
  return name;
}

// A bound that the client writes in a unit of its own may come back from the conversion a little
// beyond itself: 0.01 C as 273.15999999999997 K, 705.1568 F as 647.126000003 K because the factor
// 0.55555555556 has eleven digits. Up to 1e-11 of the bound is of that making; in the engine's own
// unit nothing is.
void ZvThermoInt::moveOntoBound(double& value, double lower, double upper, UnitGroup group) const {
  constexpr double rounding = 1e-11;
  if (units_.isInternal(group)) return;
  for (const double bound : {lower, upper}) {
    if (std::fabs(value - bound) <= rounding * std::fabs(bound)) {
      value = std::clamp(value, lower, upper);
    }
  }
}

// The comparisons are written so that a NaN is out of range.
bool ZvThermoInt::validRange(std::string_view name, double& value, double lower, double upper,
                             UnitGroup group) {
  moveOntoBound(value, lower, upper, group);
  if (value >= lower && value <= upper) return true;
  const auto bound = [&](double limit) {
    return fmt::sprintf("%.2f", units_.toUser(group, limit));
  };
  diagnostics_.postRangeError(name, bound(lower), bound(upper), unitName(group));
  explainRange(name, value, lower, upper, group);
  return false;
}

// Bounds of two decimals can hide what is wrong: 0.0005 MPa lies within "0.00 to 22.05".
void ZvThermoInt::explainRange(std::string_view name, double value, double lower, double upper,
                               UnitGroup group) {
  const bool fraction = upper == 1.0 && units_.toUser(group, 1.0) == 1.0;
  if (fraction && value > 2.0 && value <= 100.0) {  // meant as a percentage
    diagnostics_.postCause(fmt::sprintf(
        "%g %% is %g as a Fraction (on the command line also %g%%).", value, value / 100, value));
    return;
  }
  const auto shown = [&](double x) { return std::round(units_.toUser(group, x) * 100.0); };
  if (!(shown(value) >= shown(lower) && shown(value) <= shown(upper))) return;
  const auto text = [&](double x) { return inUserUnit(group, x); };
  // The least number above zero stands for a bound that is itself refused.
  const bool open = value < lower && lower == std::numeric_limits<double>::denorm_min();
  diagnostics_.postCause(fmt::sprintf("%s %s is %s %s.", name, text(value),
                                      open            ? "not above"
                                      : value < lower ? "below"
                                                      : "above",
                                      text(open            ? 0.0
                                           : value < lower ? lower
                                                           : upper)));
}

bool ZvThermoInt::notNegative(std::string_view name, UnitGroup group, double value) {
  if (value >= 0.0) return true;
  diagnostics_.postRangeError(name);
  if (diagnostics_.tracing()) {
    diagnostics_.postCause(fmt::sprintf("%s %s is below %s, the least that is accepted.", name,
                                        inUserUnit(group, value), inUserUnit(group, 0.0)));
  }
  return false;
}

bool ZvThermoInt::validTemperature(std::string_view name, double& T) {
  if (!validRange(name, T, limits_.TMin, limits_.TMax, UnitGroup::temperature)) return false;
  moveOntoBound(T, limits_.TStrictMin, limits_.TStrictMax, UnitGroup::temperature);
  const bool strict = T >= limits_.TStrictMin && T <= limits_.TStrictMax;
  if (!strict && diagnostics_.wantsWarnings()) {
    diagnostics_.postWarning(fmt::sprintf(messageText(Message::outOfStrictRange), name));
  }
  return true;
}

bool ZvThermoInt::validPressure(std::string_view name, double& P, double T) {
  if (!validRange(name, P, limits_.PMin, limits_.PMax, UnitGroup::pressure)) return false;
  // 500 MPa at 273.15 K, rising by 100/15 MPa a kelvin to 1500 MPa at 423.15 K
  const double strictMax =
      T >= 423.15 ? 1500.0 : ((T - 273.15) * 0.06666666666666667 + 5.0) * 100.0;
  const bool strict = P >= limits_.PStrictMin && P <= strictMax;
  if (!strict && diagnostics_.wantsWarnings()) {
    diagnostics_.postWarning(fmt::sprintf(messageText(Message::outOfStrictRange), name));
  }
  return true;
}

bool ZvThermoInt::fail(Message message, std::string_view cause) {
  return fail(messageText(message), cause);
}

bool ZvThermoInt::fail(std::string_view text, std::string_view cause) {
  diagnostics_.postError(text);
  if (!cause.empty()) diagnostics_.postCause(cause);
  return false;
}

bool ZvThermoInt::give(double* out, double value) {
  if (!std::isfinite(value)) return fail(Message::solutionError);
  *out = value;
  return true;
}

bool ZvThermoInt::give(double* out, UnitGroup group, double value) {
  return give(out, units_.toUser(group, value));
}

}  // namespace calvex
