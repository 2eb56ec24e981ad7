// Two-stream heat exchangers: what the cold stream takes up, the hot stream gives.
#include "equipment/heat_exchangers.h"

#include "equipment/model.h"
#include "equipment/plausibility.h"

namespace calvex {

namespace {

bool validPressures(ZvThermoInt& engine, double cold, double hot) {
  const UserUnits& units = engine.units();
  return engine.validPressure("Cold Inlet Pressure", units.toInternal(UnitGroup::pressure, cold)) &&
         engine.validPressure("Hot Inlet Pressure", units.toInternal(UnitGroup::pressure, hot));
}

bool validTemperature(ZvThermoInt& engine, std::string_view name, double T) {
  return engine.validTemperature(name, engine.units().toInternal(UnitGroup::temperature, T));
}

// In the client's unit.
double outletPressure(const UserUnits& units, double inlet, double drop) {
  return units.toUser(UnitGroup::pressure,
                      units.toInternal(UnitGroup::pressure, inlet) -
                          units.toInternal(UnitGroup::pressureDifference, drop));
}

// a - b of enthalpies in the client's unit, in kJ/kg.
double difference(const UserUnits& units, double a, double b) {
  return units.toInternal(UnitGroup::enthalpy, a) - units.toInternal(UnitGroup::enthalpy, b);
}

// What both exchangers' streams must obey. Pressure drops, temperatures and enthalpies in the
// client's units, flows in kg/s.
struct StreamEnds {
  double drop, TIn, TOut, hIn, hOut;
};
void warnOfStreams(ZvThermoInt& engine, const StreamEnds& cold, const StreamEnds& hot,
                   double coldFlow, double hotFlow) {
  using namespace plausibility;
  const auto internal = [&](UnitGroup group, double x) {
    return engine.units().toInternal(group, x);
  };
  const auto drop = [&](double x) { return internal(UnitGroup::pressureDifference, x); };
  const auto T = [&](double x) { return internal(UnitGroup::temperature, x); };
  const auto h = [&](double x) { return internal(UnitGroup::enthalpy, x); };
  warnIfBroken(engine, {{coldPressureRises, drop(cold.drop), 0.0},
                        {hotPressureRises, drop(hot.drop), 0.0},
                        {coldEndsAboveHot, T(cold.TOut), T(hot.TIn)},
                        {coldStartsAboveHot, T(cold.TIn), T(hot.TOut)},
                        {coldStreamIsCooled, h(cold.hOut), h(cold.hIn)},
                        {hotStreamIsHeated, h(hot.hOut), h(hot.hIn)}});
  warnIfNegative(engine, {{"Cold flow", coldFlow, UnitGroup::massFlow},
                          {"Hot flow", hotFlow, UnitGroup::massFlow}});
}

}  // namespace

int HeatExchangerA(ZvThermoInt& engine, double* pHCIn, double* pHCOut, double* pHHIn,
                   double* pHHOut, double* pMHOut, double* pDuty, double ColdFlowIn,
                   double ColdPressureIn, double ColdDP, double ColdTempIn, double ColdTempOut,
                   double ColdQualityIn, double ColdQualityOut, double HotPressureIn, double HotDP,
                   double HotTempIn, double HotTempOut, double HotQualityIn, double HotQualityOut) {
  return engine.call("HeatExchangerA", [&] {
    const UserUnits& units = engine.units();
    if (!validPressures(engine, ColdPressureIn, HotPressureIn) ||
        !validTemperature(engine, "Cold Inlet Temperature", ColdTempIn) ||
        !validTemperature(engine, "Cold Outlet Temperature", ColdTempOut) ||
        !validTemperature(engine, "Hot Inlet Temperature", HotTempIn) ||
        !validTemperature(engine, "Hot Outlet Temperature", HotTempOut)) {
      return false;
    }
    const double coldPressureOut = outletPressure(units, ColdPressureIn, ColdDP);
    const double hotPressureOut = outletPressure(units, HotPressureIn, HotDP);
    if (!engine.HPTQ(pHCIn, ColdPressureIn, ColdTempIn, ColdQualityIn) ||
        !engine.HPTQ(pHCOut, coldPressureOut, ColdTempOut, ColdQualityOut) ||
        !engine.HPTQ(pHHIn, HotPressureIn, HotTempIn, HotQualityIn) ||
        !engine.HPTQ(pHHOut, hotPressureOut, HotTempOut, HotQualityOut)) {
      return false;
    }
    const double coldFlow = units.toInternal(UnitGroup::massFlow, ColdFlowIn);
    const double duty = difference(units, *pHCOut, *pHCIn) * coldFlow;
    const double given = difference(units, *pHHIn, *pHHOut);
    warnOfStreams(engine, {ColdDP, ColdTempIn, ColdTempOut, *pHCIn, *pHCOut},
                  {HotDP, HotTempIn, HotTempOut, *pHHIn, *pHHOut}, coldFlow, duty / given);
    return engine.give(pDuty, UnitGroup::heatDuty, duty) &&
           giveQuotient(engine, pMHOut, UnitGroup::massFlow, duty / given, given);
  });
}

int HeatExchangerB(ZvThermoInt& engine, double* pHCIn, double* pHCOut, double* pHHIn,
                   double* pHHOut, double* pMHOut, double* pTCOut, double ColdFlowIn,
                   double ColdPressureIn, double ColdDP, double ColdTempIn, double HXDuty,
                   double ColdQualityIn, double /*ColdQualityOut*/, double HotPressureIn,
                   double HotDP, double HotTempIn, double HotTempOut, double HotQualityIn,
                   double HotQualityOut) {
  return engine.call("HeatExchangerB", [&] {
    const UserUnits& units = engine.units();
    if (!validPressures(engine, ColdPressureIn, HotPressureIn) ||
        !validTemperature(engine, "Cold Inlet Temperature", ColdTempIn) ||
        !validTemperature(engine, "Hot Inlet Temperature", HotTempIn) ||
        !validTemperature(engine, "Hot Outlet Temperature", HotTempOut)) {
      return false;
    }
    const double coldPressureOut = outletPressure(units, ColdPressureIn, ColdDP);
    const double hotPressureOut = outletPressure(units, HotPressureIn, HotDP);
    if (!engine.HPTQ(pHCIn, ColdPressureIn, ColdTempIn, ColdQualityIn) ||
        !engine.HPTQ(pHHIn, HotPressureIn, HotTempIn, HotQualityIn) ||
        !engine.HPTQ(pHHOut, hotPressureOut, HotTempOut, HotQualityOut)) {
      return false;
    }
    const double duty = units.toInternal(UnitGroup::heatDuty, HXDuty);
    const double coldFlow = units.toInternal(UnitGroup::massFlow, ColdFlowIn);
    const double hCOut = units.toInternal(UnitGroup::enthalpy, *pHCIn) + duty / coldFlow;
    const double given = difference(units, *pHHIn, *pHHOut);
    if (!engine.give(pHCOut, UnitGroup::enthalpy, hCOut)) {
      return explainFailure(engine, {{plausibility::noColdFlow, coldFlow, 0.0}});
    }
    if (!giveQuotient(engine, pMHOut, UnitGroup::massFlow, duty / given, given) ||
        !engine.TPH(pTCOut, coldPressureOut, *pHCOut)) {
      return false;
    }
    warnOfStreams(engine, {ColdDP, ColdTempIn, *pTCOut, *pHCIn, *pHCOut},
                  {HotDP, HotTempIn, HotTempOut, *pHHIn, *pHHOut}, coldFlow, duty / given);
    return true;
  });
}

}  // namespace calvex
