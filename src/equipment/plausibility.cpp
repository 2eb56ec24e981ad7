#include "equipment/plausibility.h"

#include <limits>

#include "diagnostics/formatting.h"
#include "diagnostics/thermo_exception.h"
#include "steam/constants.h"

namespace calvex {

namespace {

using Wrong = PlausibilityRule::Wrong;

std::string_view words(Wrong wrong) {
  switch (wrong) {
    case Wrong::above:
      return "above";
    case Wrong::below:
      return "below";
    case Wrong::notAbove:
      return "not above";
    default:
      return "not below";
  }
}

// "850 K", in the client's unit.
std::string shown(const ZvThermoInt& engine, std::optional<UnitGroup> group, double value) {
  if (!group) return fmt::sprintf("%.6g", value);
  return fmt::sprintf("%.6g %s", engine.units().toUser(*group, value), engine.unitName(*group));
}

// "Steam temperature 850 K is above 800 K, the exhaust temperature: the exhaust cannot heat ..."
std::string sentence(const ZvThermoInt& engine, const PlausibilityRule& rule, double value,
                     double limit) {
  return fmt::sprintf("%s %s is %s %s%s%s: %s.", rule.quantity, shown(engine, rule.group, value),
                      words(rule.wrong), shown(engine, rule.group, limit),
                      rule.limit.empty() ? "" : ", ", rule.limit, rule.cause);
}

// A property of steam by a model of its own, which keeps the engine's state and record as they are.
template <class Query>
double aside(Query&& query) {
  Diagnostics unseen;
  unseen.setTracing(0);
  SteamModel steam(unseen);
  try {
    return query(steam);
  } catch (const ZvThermoException&) {
    return std::numeric_limits<double>::quiet_NaN();
  }
}

}  // namespace

bool PlausibilityRule::isBroken(double value, double bound) const noexcept {
  switch (wrong) {
    case Wrong::above:
      return value > bound;
    case Wrong::below:
      return value < bound;
    case Wrong::notAbove:
      return value <= bound;
    default:
      return value >= bound;
  }
}

bool warnIfBroken(ZvThermoInt& engine, std::initializer_list<Comparison> comparisons) {
  if (!engine.diagnostics().wantsWarnings()) return true;
  for (const auto& [rule, value, limit] : comparisons) {
    if (rule.isBroken(value, limit)) {
      engine.diagnostics().postWarning(sentence(engine, rule, value, limit));
    }
  }
  return true;
}

void warnIfNegative(ZvThermoInt& engine, std::initializer_list<NamedValue> values) {
  for (const auto& [name, value, group] : values) {
    const std::string_view cause = group == UnitGroup::massFlow
                                       ? "no stream runs backwards"
                                       : "its heat would flow the other way";
    const PlausibilityRule rule{name, Wrong::below, "", group, cause};
    warnIfBroken(engine, {{rule, value, 0.0}});
  }
}

bool explainFailure(ZvThermoInt& engine, std::initializer_list<Comparison> comparisons) {
  for (const auto& [rule, value, limit] : comparisons) {
    if (!rule.isBroken(value, limit)) continue;
    engine.diagnostics().postCause(sentence(engine, rule, value, limit));
    break;
  }
  return false;
}

double boilingTemperature(double P) {
  return aside([&](SteamModel& steam) {
    const bool boils = P >= constants::triplePointPressure && P <= constants::criticalPressure;
    return boils ? steam.TSatP(P) : std::numeric_limits<double>::quiet_NaN();
  });
}

double entropyFrom(double P, double H) {
  return aside([&](SteamModel& steam) {
    return steam.stateFromP(P, Property::enthalpy, H) == Phases::two
               ? steam.mixtureProperty(Property::entropy)
               : steam.property(Property::entropy);
  });
}

double hottest(Property property, double P) {
  return aside([&](SteamModel& steam) {
    steam.stateFromPT(P, RangeLimits{}.TMax);
    return steam.property(property);
  });
}

}  // namespace calvex
