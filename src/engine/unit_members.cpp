// The members that choose, read and convert units of measure.
#include <cmath>

#include "diagnostics/formatting.h"
#include "engine/thermo_engine.h"

namespace calvex {

namespace {

constexpr std::string_view unknownGroup = "%s is not a defined unit group.";
constexpr std::string_view illegalIndex = "Illegal Units-Of-Measure group index.";
constexpr std::string_view noUserUnit = "GetUserUnit Error!";

bool isGroup(int index) { return index >= 0 && index < unitGroupCount; }

std::string_view displayName(int group) {
  return unitGroupTable()[static_cast<std::size_t>(group)].displayName;
}

}  // namespace

bool ZvThermoInt::failWithServer(short status) { return fail(units_.server()->errorText(status)); }

int ZvThermoInt::SetUserUnit(std::string_view groupStr, std::string_view newVal) {
  return call("SetUserUnit", [&] {
    const int group = units_.catalogue().groupIndex(groupStr);
    if (!isGroup(group)) return fail(fmt::sprintf(unknownGroup, groupStr));
    if (UnitsServer* server = units_.server()) {
      short status = 0;
      return server->setUserUnit(displayName(group), newVal, status) || failWithServer(status);
    }
    return units_.setCatalogueUnit(group, newVal) ||
           fail(fmt::sprintf("%s is not a defined unit of %s.", newVal, groupStr));
  });
}

int ZvThermoInt::SetUserUnitIndex(short nGroupID, std::string_view newVal) {
  return call("SetUserUnitIndex", [&] {
    if (!isGroup(nGroupID)) return fail(illegalIndex);
    if (UnitsServer* server = units_.server()) {
      short status = 0;
      return server->setUserUnit(displayName(nGroupID), newVal, status) || failWithServer(status);
    }
    return units_.setCatalogueUnit(nGroupID, newVal) ||
           fail(fmt::sprintf("%s is not a defined unit of group no. %d.", newVal, nGroupID));
  });
}

int ZvThermoInt::GetUserUnit(std::string_view groupStr, std::string* pVal) {
  return call("GetUserUnit", [&] {
    const int group = units_.catalogue().groupIndex(groupStr);
    if (!isGroup(group)) return fail(fmt::sprintf(unknownGroup, groupStr));
    short status = 0;
    if (units_.getUserUnit(group, *pVal, status)) return true;
    return units_.server() != nullptr ? failWithServer(status) : fail(noUserUnit);
  });
}

int ZvThermoInt::GetUserUnitIndex(short nGroupID, std::string* pVal) {
  return call("GetUserUnitIndex", [&] {
    if (!isGroup(nGroupID)) return fail(illegalIndex);
    short status = 0;
    if (units_.getUserUnit(nGroupID, *pVal, status)) return true;
    return units_.server() != nullptr ? failWithServer(status) : fail(noUserUnit);
  });
}

// Fails without a word, as clients know it.
int ZvThermoInt::SetCustomUserUnitIndex(short nGroupID, std::string_view newVal, double CFactor,
                                        double COffset) {
  return call("SetCustomUserUnitIndex",
              [&] { return units_.setCustomUnit(nGroupID, newVal, CFactor, COffset); });
}

// Between two units of the catalogue, whatever the mode; custom units are not known here.
int ZvThermoInt::Convert(std::string_view strGroup, std::string_view strFromUnit,
                         std::string_view strToUnit, double dblFromVal, double* dblToVal) {
  return call("Convert", [&] {
    const int group = units_.catalogue().groupIndex(strGroup);
    if (!isGroup(group)) return fail(fmt::sprintf(unknownGroup, strGroup));
    double result = 0.0;
    if (UnitsServer* server = units_.server()) {
      short status = 0;
      if (!server->convert(displayName(group), strFromUnit, strToUnit, dblFromVal, result,
                           status)) {
        return failWithServer(status);
      }
    } else if (!units_.catalogue().convert(group, strFromUnit, strToUnit, dblFromVal, result)) {
      return fail(
          fmt::sprintf("Cannot convert %s from %s to %s.", strGroup, strFromUnit, strToUnit));
    }
    return giveConverted(dblToVal, result, dblFromVal, strFromUnit, strToUnit);
  });
}

bool ZvThermoInt::giveConverted(double* out, double result, double value, std::string_view from,
                                std::string_view to) {
  if (!std::isfinite(result)) {
    return fail(fmt::format("Cannot convert {} {} to {}: the result is no finite number.", value,
                            from, to));
  }
  *out = result;
  return true;
}

}  // namespace calvex
