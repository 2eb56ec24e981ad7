// Steam-system auxiliaries: steady mass and energy balances over one vessel each.
#include "equipment/auxiliaries.h"

#include "equipment/model.h"
#include "equipment/plausibility.h"
#include "steam/constants.h"

namespace calvex {

using namespace plausibility;

namespace {

// A quality above this is not a liquid's.
constexpr double qualityTolerance = 1e-6;

// A quality in the client's unit, for the property members.
double quality(const ZvThermoInt& engine, double Q) {
  return engine.units().toUser(UnitGroup::quality, Q);
}

// Both saturated enthalpies and the saturation temperature in the client's units.
struct Saturation {
  double HVap = 0.0;
  double HLiq = 0.0;
  double T = 0.0;
};
bool saturationAt(ZvThermoInt& engine, double P, Saturation& line) {
  double mixture = 0.0;
  return engine.HVLTSat_PQ(&mixture, &line.HVap, &line.HLiq, &line.T, P, quality(engine, 0.5)) != 0;
}

// Where steam should leave.
void warnIfWater(ZvThermoInt& engine, double P, double T) {
  if (!engine.diagnostics().wantsWarnings()) return;
  const UserUnits& units = engine.units();
  // On the line the temperature may differ from the boiling temperature in its last digits.
  constexpr double rounding = 1e-6;  // K
  const double boiling = boilingTemperature(units.toInternal(UnitGroup::pressure, P));
  const double temperature = units.toInternal(UnitGroup::temperature, T);
  if (temperature + rounding < boiling) {
    warnIfBroken(engine, {{outletIsWater, temperature, boiling}});
  }
}

// Steam h_in and water h_w, kJ/kg, mixed to h_s at (POp, TOp): what both desuperheaters check and
// find. On the saturation line the outlet is dry steam.
struct Mixing {
  double hIn;
  double hw;
  double hs;
};
bool mixing(ZvThermoInt& engine, double* pHs, double HIn, double Hw, double POp, double TOp,
            Mixing& mix) {
  const UserUnits& units = engine.units();
  mix.hIn = units.toInternal(UnitGroup::enthalpy, HIn);
  mix.hw = units.toInternal(UnitGroup::enthalpy, Hw);
  if (!engine.notNegative("Inlet Steam Enthalpy", UnitGroup::enthalpy, mix.hIn) ||
      !engine.notNegative("Inlet Water Enthalpy", UnitGroup::enthalpy, mix.hw) ||
      !engine.validPressure("Operating Pressure", units.toInternal(UnitGroup::pressure, POp)) ||
      !engine.validTemperature("Operating Temperature",
                               units.toInternal(UnitGroup::temperature, TOp)) ||
      !engine.HPTQ(pHs, POp, TOp, quality(engine, 1.0))) {
    return false;
  }
  mix.hs = units.toInternal(UnitGroup::enthalpy, *pHs);
  warnIfBroken(engine, {{sprayHeats, mix.hs, mix.hIn}, {sprayDoesNotCool, mix.hw, mix.hs}});
  warnIfWater(engine, POp, TOp);
  return true;
}

void warnOfNegativeFlows(ZvThermoInt& engine, double in, double spray, double out) {
  warnIfNegative(engine, {{"Inlet steam flow", in, UnitGroup::massFlow},
                          {"Spray water flow", spray, UnitGroup::massFlow},
                          {"Outlet steam flow", out, UnitGroup::massFlow}});
}

// The enthalpy of the deaerator's feed water, metastable above its boiling point. It is refused
// where the metastable liquid ends: what the equation then has at (P, T) is vapour.
bool feedWaterEnthalpy(ZvThermoInt& engine, double P, double T, double& hw) {
  constexpr double mostOfLiquid = 2086.0;  // kJ/kg, the enthalpy of the critical point
  return explained(
      engine,
      [&] {
        hw = engine.steam().waterEnthalpy(P, T);
        return hw <= mostOfLiquid || engine.fail(Message::solutionError);
      },
      [&] {
        explainFailure(engine, {{feedIsNoLiquid, T, boilingTemperature(P)}});
      });
}

// The density at (P, H) in kg/m3, or the message when that is not a liquid.
bool liquidDensity(ZvThermoInt& engine, double P, double H, std::string_view otherwise,
                   double& density) {
  double Q = 0.0;
  double T = 0.0;
  double R = 0.0;
  if (!engine.QTR_PH(&Q, &T, &R, P, H)) return false;
  if (engine.units().toInternal(UnitGroup::quality, Q) > qualityTolerance) {
    return engine.fail(otherwise);
  }
  density = engine.units().toInternal(UnitGroup::density, R);
  return true;
}

// Fired with the efficiency, where there is one.
int boiler(ZvThermoInt& engine, std::string_view name, double* pMBd, double* pDuty, double* pHOut,
           double* pHBd, double* pMIn, double HIn, double Mout, double TOut, double POut,
           double BRatio, const double* Eff, double* pQFired) {
  return engine.call(name, [&] {
    const UserUnits& units = engine.units();
    const double hIn = units.toInternal(UnitGroup::enthalpy, HIn);
    if (!engine.notNegative("Inlet Enthalpy", UnitGroup::enthalpy, hIn) ||
        !engine.validTemperature("Outlet Temperature",
                                 units.toInternal(UnitGroup::temperature, TOut)) ||
        !engine.validPressure("Outlet Pressure", units.toInternal(UnitGroup::pressure, POut))) {
      return false;
    }
    const double efficiency = Eff != nullptr ? units.toInternal(UnitGroup::efficiency, *Eff) : 1.0;
    if (!validEfficiency(engine, "Firing Efficiency", efficiency)) return false;

    const double steam = units.toInternal(UnitGroup::massFlow, Mout);
    const double ratio = units.toInternal(UnitGroup::ratio, BRatio);
    const double feed = (1.0 + ratio) * steam;
    const double blowdown = ratio * steam;
    if (!engine.give(pMIn, UnitGroup::massFlow, feed) ||
        !engine.give(pMBd, UnitGroup::massFlow, blowdown) ||
        !engine.HPTQ(pHOut, POut, TOut, quality(engine, 1.0)) ||
        !engine.HSatPQ(pHBd, POut, quality(engine, 0.0))) {
      return false;
    }
    const double hOut = units.toInternal(UnitGroup::enthalpy, *pHOut);
    const double duty =
        units.toInternal(UnitGroup::enthalpy, *pHBd) * blowdown + hOut * steam - feed * hIn;
    warnIfWater(engine, POut, TOut);
    warnIfBroken(engine, {{feedAboveSteam, hIn, hOut},
                          {blowdownTooLarge, ratio, 1.0},
                          {blowdownNegative, ratio, 0.0}});
    warnIfNegative(engine, {{"Steam flow", steam, UnitGroup::massFlow},
                            {"Blowdown flow", blowdown, UnitGroup::massFlow},
                            {"Feed water flow", feed, UnitGroup::massFlow},
                            {"Absorbed duty", duty, UnitGroup::heatDuty}});
    if (Eff != nullptr) {
      warnIfNegative(engine, {{"Fired duty", duty / efficiency, UnitGroup::heatDuty}});
    }
    return engine.give(pDuty, UnitGroup::heatDuty, duty) &&
           (Eff == nullptr || engine.give(pQFired, UnitGroup::heatDuty, duty / efficiency));
  });
}

}  // namespace

int DeAerator(ZvThermoInt& engine, double* pHd, double* pTd, double* pMw, double* pMs, double POp,
              double Hs, double Tw, double Md, double MRatio) {
  return engine.call("DeAerator", [&] {
    const UserUnits& units = engine.units();
    const double P = units.toInternal(UnitGroup::pressure, POp);
    const double hs = units.toInternal(UnitGroup::enthalpy, Hs);
    const double T = units.toInternal(UnitGroup::temperature, Tw);
    if (!engine.validPressure("Operating Pressure", P) ||
        !engine.notNegative("Steam Enthalpy", UnitGroup::enthalpy, hs) ||
        !engine.validRange("Water Temperature", T, constants::triplePointTemperature,
                           constants::criticalTemperature, UnitGroup::temperature)) {
      return false;
    }
    double hw = 0.0;
    if (!feedWaterEnthalpy(engine, P, T, hw)) return false;
    Saturation line;
    if (!saturationAt(engine, POp, line)) return false;
    *pTd = line.T;
    *pHd = line.HLiq;

    // Mw + Ms = (1 + MRatio) Md,  Mw hw + Ms hs = Md (MRatio hVap + hLiq)
    const double water = units.toInternal(UnitGroup::massFlow, Md);
    const double ratio = units.toInternal(UnitGroup::ratio, MRatio);
    const double out = ratio * units.toInternal(UnitGroup::enthalpy, line.HVap) +
                       units.toInternal(UnitGroup::enthalpy, line.HLiq);
    const double divisor = hw - hs;
    const double Ms = water * ((1.0 + ratio) * hw - out) / divisor;
    const double Mw = (1.0 + ratio) * water - Ms;
    warnIfBroken(engine, {{feedBoils, T, units.toInternal(UnitGroup::temperature, line.T)},
                          {steamCannotHeat, hs, out / (1.0 + ratio)},
                          {ventTooLarge, ratio, 1.0},
                          {ventNegative, ratio, 0.0}});
    warnIfNegative(engine, {{"Deaerated water flow", water, UnitGroup::massFlow},
                            {"Vent flow", ratio * water, UnitGroup::massFlow},
                            {"Steam flow", Ms, UnitGroup::massFlow},
                            {"Feed water flow", Mw, UnitGroup::massFlow}});
    return giveQuotient(engine, pMs, UnitGroup::massFlow, Ms, divisor) &&
           giveQuotient(engine, pMw, UnitGroup::massFlow, Mw, divisor);
  });
}

int DeSuperHeater(ZvThermoInt& engine, double* pHs, double* pMw, double* pMs, double HIn, double Hw,
                  double POp, double TOp, double MIn) {
  return engine.call("DeSuperHeater", [&] {
    Mixing mix{};
    if (!mixing(engine, pHs, HIn, Hw, POp, TOp, mix)) return false;
    const double in = engine.units().toInternal(UnitGroup::massFlow, MIn);
    const double divisor = mix.hw - mix.hs;
    const double out = in * (mix.hw - mix.hIn) / divisor;
    warnOfNegativeFlows(engine, in, out - in, out);
    return giveQuotient(engine, pMs, UnitGroup::massFlow, out, divisor) &&
           giveQuotient(engine, pMw, UnitGroup::massFlow, out - in, divisor);
  });
}

int DeSuperHeaterB(ZvThermoInt& engine, double* pHs, double* pMw, double* pMs, double HIn,
                   double Hw, double POp, double TOp, double Mout) {
  return engine.call("DeSuperHeaterB", [&] {
    Mixing mix{};
    if (!mixing(engine, pHs, HIn, Hw, POp, TOp, mix)) return false;
    const double out = engine.units().toInternal(UnitGroup::massFlow, Mout);
    const double divisor = mix.hw - mix.hIn;
    const double spray = out * (mix.hs - mix.hIn) / divisor;
    warnOfNegativeFlows(engine, out - spray, spray, out);
    return giveQuotient(engine, pMw, UnitGroup::massFlow, spray, divisor) &&
           giveQuotient(engine, pMs, UnitGroup::massFlow, out - spray, divisor);
  });
}

int WaterPump(ZvThermoInt& engine, double* pHOut, double* pPower, double HIn, double PIn,
              double POut, double m, double Eff) {
  return engine.call("WaterPump", [&] {
    const UserUnits& units = engine.units();
    const double hIn = units.toInternal(UnitGroup::enthalpy, HIn);
    const double pIn = units.toInternal(UnitGroup::pressure, PIn);
    const double pOut = units.toInternal(UnitGroup::pressure, POut);
    const double efficiency = units.toInternal(UnitGroup::efficiency, Eff);
    if (!engine.notNegative("Inlet Steam Enthalpy", UnitGroup::enthalpy, hIn) ||
        !engine.validPressure("Inlet Pressure", pIn) ||
        !engine.validPressure("Outlet Pressure", pOut) ||
        !validEfficiency(engine, "Efficiency", efficiency)) {
      return false;
    }
    if (PIn > POut) return engine.fail("Inlet pressure greater than outlet pressure.");

    double density = 0.0;
    if (!liquidDensity(engine, PIn, HIn, "Inlet conditions are not liquid.", density)) return false;
    const double rise = (pOut - pIn) * 1000.0;  // kPa, so that rise / density is in kJ/kg
    const double flow = units.toInternal(UnitGroup::massFlow, m);
    warnIfNegative(engine, {{"Flow", flow, UnitGroup::massFlow}});
    return engine.give(pPower, UnitGroup::power, flow / density * rise / efficiency) &&
           engine.give(pHOut, UnitGroup::enthalpy, hIn + rise / (density * efficiency)) &&
           liquidDensity(engine, POut, *pHOut, "Outlet conditions are not liquid.", density);
  });
}

int LetDownValve(ZvThermoInt& engine, double* pTOut, double* pQOut, double HIn, double PIn,
                 double POut) {
  return engine.call("LetDownValve", [&] {
    const UserUnits& units = engine.units();
    const double pIn = units.toInternal(UnitGroup::pressure, PIn);
    const double pOut = units.toInternal(UnitGroup::pressure, POut);
    if (!engine.notNegative("Inlet Steam Enthalpy", UnitGroup::enthalpy,
                            units.toInternal(UnitGroup::enthalpy, HIn)) ||
        !engine.validPressure("Inlet Pressure", pIn) ||
        !engine.validPressure("Outlet Pressure", pOut)) {
      return false;
    }
    warnIfBroken(engine, {{valveRaisesPressure, pOut, pIn}});
    double density = 0.0;
    return engine.QTR_PH(pQOut, pTOut, &density, POut, HIn) != 0;
  });
}

int Boiler(ZvThermoInt& engine, double* pMBd, double* pDeltaH, double* pHOut, double* pHBd,
           double* pMIn, double HIn, double Mout, double TOut, double POut, double BRatio) {
  return boiler(engine, "Boiler", pMBd, pDeltaH, pHOut, pHBd, pMIn, HIn, Mout, TOut, POut, BRatio,
                nullptr, nullptr);
}

int Boiler_B(ZvThermoInt& engine, double* pMBd, double* pDuty, double* pHOut, double* pHBd,
             double* pMIn, double* pQFired, double HIn, double Mout, double TOut, double POut,
             double BRatio, double Eff) {
  return boiler(engine, "Boiler_B", pMBd, pDuty, pHOut, pHBd, pMIn, HIn, Mout, TOut, POut, BRatio,
                &Eff, pQFired);
}

int FlashVessel(ZvThermoInt& engine, double* pTOut, double* pMVap, double* pMLiq, double* pHVap,
                double* pHLiq, double MIn, double HIn, double POp) {
  return engine.call("FlashVessel", [&] {
    const UserUnits& units = engine.units();
    Saturation line;
    if (!engine.notNegative("Inlet Enthalpy", UnitGroup::enthalpy,
                            units.toInternal(UnitGroup::enthalpy, HIn)) ||
        !engine.validPressure("Operating Pressure", units.toInternal(UnitGroup::pressure, POp)) ||
        !saturationAt(engine, POp, line)) {
      return false;
    }
    warnIfNegative(
        engine, {{"Inlet flow", units.toInternal(UnitGroup::massFlow, MIn), UnitGroup::massFlow}});
    // A stream on or beyond a side of the line keeps its enthalpy and has no other phase.
    const bool liquid = HIn <= line.HLiq;
    const bool vapour = !liquid && HIn >= line.HVap;
    const double fraction = liquid   ? 0.0
                            : vapour ? 1.0
                                     : (HIn - line.HLiq) / (line.HVap - line.HLiq);
    if (liquid || vapour) {
      if (!engine.TPH(pTOut, POp, HIn)) return false;
    } else {
      *pTOut = line.T;
    }
    return engine.give(pMVap, fraction * MIn) && engine.give(pMLiq, (1.0 - fraction) * MIn) &&
           engine.give(pHVap, liquid   ? 0.0
                              : vapour ? HIn
                                       : line.HVap) &&
           engine.give(pHLiq, vapour   ? 0.0
                              : liquid ? HIn
                                       : line.HLiq);
  });
}

}  // namespace calvex
