// A gas turbine with a heat-recovery boiler.
//
// The turbine's fuel duty and power give the exhaust; two pinch cases say how much steam it raises;
// supplementary firing meets another demand. Model units inside: K, MPa, kJ/kg, kg/s, kW; gas in
// kmol/s. The fuel is methane, CH4 + 2 O2 -> CO2 + 2 H2O.
#include "equipment/gas_turbine.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "engine/thermo_engine.h"
#include "equipment/model_results.h"
#include "equipment/plausibility.h"

namespace calvex {

namespace {

constexpr double molarMassCH4 = 16.0;  // kg/kmol
constexpr double molarMassCO2 = 44.0;
constexpr double molarMassH2O = 18.0;
constexpr double molarMassO2 = 32.0;
constexpr double molarMassN2 = 28.0;
constexpr double molarMassAir = 28.85;
constexpr double heatingValue = 44310.0;        // lower, of the fuel, kJ/kg
constexpr double molarHeatingValue = 708960.0;  // kJ/kmol
constexpr double kmolPerkJ = 1.4105168133604153e-6;
constexpr double cp = 1.1;               // of exhaust gas, kJ/(kg.K)
constexpr double atmosphere = 0.101325;  // MPa
// Air is 23.3 % oxygen, a mass fraction that the model uses as a mole fraction throughout; these
// follow from it.
constexpr double airPerOxygen = 4.291845493562231;    // 1/0.233
constexpr double oxygenOfAir = 0.25844020797227035;   // 0.233 * 32/28.85
constexpr double nitrogenOfAir = 0.7444020797227036;  // 0.767 * 28/28.85
// Nearer than this, demand and base load (or the fuels of the two pinch cases) are equal.
constexpr double equalWithin = 1e-4;
// What the no-firing case reports as its temperatures, K.
constexpr double noFiringTemperature = 278.4;

// A gas, kmol/s.
struct Gas {
  double O2, N2, CO2, H2O;

  double total() const { return H2O + O2 + N2 + CO2; }
  double mass() const {
    return molarMassH2O * H2O + molarMassO2 * O2 + molarMassN2 * N2 + molarMassCO2 * CO2;
  }
  // Having burnt methane.
  Gas fired(double CH4) const { return {O2 - 2.0 * CH4, N2, CO2 + CH4, H2O + 2.0 * CH4}; }
};

// The turbine's exhaust by its own heat balance: flow (kg/s) and composition. Their masses differ a
// little, as the constants of the composition do.
struct Exhaust {
  double fuelDuty;
  double flow;
  Gas gas;
};

Exhaust turbineExhaust(double GTPower, double FPRatio, double AirTemp, double ExhaustTemp) {
  const double Qgt = GTPower / FPRatio;
  const double nF = Qgt * kmolPerkJ;
  const double mx = (Qgt - GTPower) / (cp * (ExhaustTemp - AirTemp));
  const double ma = mx - molarMassCH4 * nF;
  return {Qgt,
          mx,
          {.O2 = (ma - 2.0 * nF * molarMassAir * airPerOxygen) * oxygenOfAir / molarMassO2,
           .N2 = ma * nitrogenOfAir / molarMassN2,
           .CO2 = nF,
           .H2O = 2.0 * nF}};
}

// The boiler's water side.
struct Boiler {
  double tSat;
  double BFWTemp;
  double DTMin;
  double dh;   // from feed water to steam, kJ/kg
  double phi;  // the share of dh that is taken above the pinch, by evaporator and superheater
};

enum class Pinch { coldEnd, hotEnd };

// What a gas stream of that temperature and flow gives up until it comes within DTMin of the feed
// water (cold end), or of the boiling water where the evaporator begins (hot end).
double pinchDuty(const Boiler& boiler, Pinch pinch, double T, double flow) {
  return pinch == Pinch::coldEnd ? (T - boiler.BFWTemp - boiler.DTMin) * cp * flow
                                 : (T - boiler.tSat - boiler.DTMin) * cp * flow / boiler.phi;
}

// Whether the other end then keeps more than `approach`: the evaporator's exit against boiling
// water (cold-end case), the stack against feed water (hot-end case).
bool otherEndKeeps(const Boiler& boiler, Pinch pinch, double T, double flow, double duty,
                   double approach) {
  return pinch == Pinch::coldEnd ? T - boiler.phi * duty / (cp * flow) - boiler.tSat > approach
                                 : T - duty / (cp * flow) - boiler.BFWTemp > approach;
}

// The duty that the exhaust alone gives up. The hot-end case is tried first and the later accepted
// one wins; if neither is, the cold end stands.
double unfiredDuty(const Boiler& boiler, double ExhaustTemp, double flow) {
  const double cold = pinchDuty(boiler, Pinch::coldEnd, ExhaustTemp, flow);
  const double hot = pinchDuty(boiler, Pinch::hotEnd, ExhaustTemp, flow);
  const bool hotOnly =
      otherEndKeeps(boiler, Pinch::hotEnd, ExhaustTemp, flow, hot, boiler.DTMin) &&
      !otherEndKeeps(boiler, Pinch::coldEnd, ExhaustTemp, flow, cold, boiler.DTMin);
  return hotOnly ? hot : cold;
}

// A pinch case with supplementary firing.
struct Firing {
  double fuel;  // kg/s
  Gas gas;
  double temperature = 0.0;
  double duty = 0.0;
  bool accepted = false;

  double fuelDuty() const { return fuel / molarMassCH4 * molarHeatingValue; }
};

// The fuel with which exhaust and fuel raise the demand: its heat and its own mass both count.
double fuelOfDemand(const Boiler& boiler, Pinch pinch, double ExhaustTemp, double exhaustMass,
                    double SteamDemand) {
  const double steamOfExhaust = pinchDuty(boiler, pinch, ExhaustTemp, exhaustMass) / boiler.dh;
  const double share = pinch == Pinch::coldEnd ? 1.0 : boiler.phi;
  const double heatOfFuel = pinchDuty(boiler, pinch, ExhaustTemp, 1.0) + heatingValue / share;
  return (SteamDemand - steamOfExhaust) / (heatOfFuel / boiler.dh);
}

Firing fire(const Boiler& boiler, Pinch pinch, double ExhaustTemp, const Gas& exhaust,
            double fuel) {
  constexpr double rounding = 0.001;  // K by which the other end's approach may fall short
  Firing x{.fuel = fuel, .gas = exhaust.fired(fuel / molarMassCH4)};
  const double flow = x.gas.mass();
  x.temperature = ExhaustTemp + x.fuelDuty() / (cp * flow);
  x.duty = pinchDuty(boiler, pinch, x.temperature, flow);
  x.accepted = otherEndKeeps(boiler, pinch, x.temperature, flow, x.duty, boiler.DTMin - rounding);
  return x;
}

// The cold-end case, then the hot-end case unless it needs the same fuel. The later accepted one
// wins; if neither is, the last stands.
Firing supplementaryFiring(const Boiler& boiler, double ExhaustTemp, const Gas& exhaust,
                           double SteamDemand, double maxFuel) {
  const double mass = exhaust.mass();
  const double f0 = fuelOfDemand(boiler, Pinch::coldEnd, ExhaustTemp, mass, SteamDemand);
  const double f1 = fuelOfDemand(boiler, Pinch::hotEnd, ExhaustTemp, mass, SteamDemand);
  const Firing cold = fire(boiler, Pinch::coldEnd, ExhaustTemp, exhaust, std::min(f0, maxFuel));
  if (std::fabs(1.0 - f0 / f1) < equalWithin) return cold;
  const Firing hot = fire(boiler, Pinch::hotEnd, ExhaustTemp, exhaust, std::min(f1, maxFuel));
  return cold.accepted && !hot.accepted ? cold : hot;
}

// The boiler between feed water and steam; nothing if there is none or a property call fails.
// Pressure and temperatures in the client's units, for the property members.
std::optional<Boiler> waterSide(ZvThermoInt& engine, double SteamPress, double SteamTemp,
                                double BFWTemp, double DTMin) {
  const UserUnits& units = engine.units();
  double tSat = 0.0;
  if (!engine.TSatP(&tSat, SteamPress)) return std::nullopt;
  if (SteamTemp < tSat) {
    engine.fail("Steam temperature less than saturation temperature");
    return std::nullopt;
  }
  const double liquid = units.toUser(UnitGroup::quality, 0.0);
  const double vapour = units.toUser(UnitGroup::quality, 1.0);
  double hBfw = 0.0;
  double hf = 0.0;
  double hg = 0.0;
  double hs = 0.0;
  if (!engine.HPTQ(&hBfw, SteamPress, BFWTemp, liquid) || !engine.HSatTQ(&hf, tSat, liquid) ||
      !engine.HSatTQ(&hg, tSat, vapour) || !engine.HPTQ(&hs, SteamPress, SteamTemp, vapour)) {
    return std::nullopt;
  }
  const auto drop = [&](double from, double to) {
    return units.toInternal(UnitGroup::enthalpy, from) - units.toInternal(UnitGroup::enthalpy, to);
  };
  const double evaporator = drop(hg, hf);
  const double superheater = drop(hs, hg);
  const double dh = drop(hs, hBfw);
  return Boiler{units.toInternal(UnitGroup::temperature, tSat),
                units.toInternal(UnitGroup::temperature, BFWTemp), DTMin, dh,
                (evaporator + superheater) / dh};
}

// The temperature at which the water of a gas begins to condense, in the client's unit.
bool dewPoint(ZvThermoInt& engine, double* pT, double moleFractionH2O) {
  return engine.TSatP(
             pT, engine.units().toUser(UnitGroup::pressure, atmosphere * moleFractionH2O)) != 0;
}

}  // namespace

int GasTurbineA(ZvThermoInt& engine, double* pTWhb, double* pDWhbFuel, double* pTDewPtActual,
                double* pTDewPtMax, double* pRExhaustO2, double* pDGTFuel, double* pDHeatLoss,
                double* pRHeatUtil, double* pMBaseLoad, double* pMActual, double GTPower,
                double FPRatio, double AirTemp, double ExhaustTemp, double SteamPress,
                double SteamTemp, double BFWTemp, double SteamDemand, double DTMin,
                double MinO2Stack) {
  return engine.call("GasTurbineA", [&] {
    const UserUnits& units = engine.units();
    const double power = units.toInternal(UnitGroup::power, GTPower);
    const double air = units.toInternal(UnitGroup::temperature, AirTemp);
    const double exhaustT = units.toInternal(UnitGroup::temperature, ExhaustTemp);
    const double demand = units.toInternal(UnitGroup::massFlow, SteamDemand);
    const double approach = units.toInternal(UnitGroup::temperatureDifference, DTMin);
    if (!engine.validPressure("Steam Pressure",
                              units.toInternal(UnitGroup::pressure, SteamPress)) ||
        !engine.validTemperature("Steam Temperature",
                                 units.toInternal(UnitGroup::temperature, SteamTemp))) {
      return false;
    }

    const Exhaust exhaust = turbineExhaust(power, FPRatio, air, exhaustT);
    const Comparison noFuel{plausibility::noFuel, FPRatio, 0.0};
    const Comparison fuelTooWeak{plausibility::fuelTooWeak, power, exhaust.fuelDuty};
    const Comparison exhaustTooCold{plausibility::exhaustTooCold, exhaustT, air};
    if (!std::isfinite(exhaust.flow)) {
      engine.fail(Message::solutionError);
      return explainFailure(engine, {noFuel, exhaustTooCold});
    }
    const std::optional<Boiler> boiler =
        waterSide(engine, SteamPress, SteamTemp, BFWTemp, approach);
    if (!boiler) return false;
    const double Q = unfiredDuty(*boiler, exhaustT, exhaust.flow);
    const double baseLoad = Q / boiler->dh;
    const double unused = (exhaustT - air) * exhaust.flow * cp - Q;
    const double Qgt = exhaust.fuelDuty;
    const Gas& gas = exhaust.gas;

    const double oxygen = gas.O2 / gas.total();
    const Comparison airUsedUp{plausibility::airUsedUp, oxygen, 0.0};
    const Comparison oxygenUsedUp{plausibility::oxygenUsedUp, MinO2Stack, oxygen};
    const Comparison demandBelowBaseLoad{plausibility::demandBelowBaseLoad, demand, baseLoad};
    const Comparison feedAboveBoiling{plausibility::feedAboveBoiling, boiler->BFWTemp,
                                      boiler->tSat};
    warnIfBroken(engine, {noFuel,
                          fuelTooWeak,
                          exhaustTooCold,
                          {plausibility::exhaustCannotBoil, exhaustT, boiler->tSat + approach},
                          {plausibility::steamAboveExhaust,
                           units.toInternal(UnitGroup::temperature, SteamTemp), exhaustT},
                          feedAboveBoiling,
                          airUsedUp});

    const auto give = [&](double TWhb, double fuelDuty, double dewPtActual, double dewPtMax,
                          double O2, double heatLoss, double duty) {
      warnIfNegative(engine, {{"Turbine fuel duty", Qgt, UnitGroup::heatDuty},
                              {"Boiler fuel duty", fuelDuty, UnitGroup::heatDuty},
                              {"Steam demand", demand, UnitGroup::massFlow},
                              {"Base load", baseLoad, UnitGroup::massFlow},
                              {"Actual steam flow", duty / boiler->dh, UnitGroup::massFlow}});
      return giveAll(engine, {{pTWhb, TWhb, UnitGroup::temperature},
                              {pDWhbFuel, fuelDuty, UnitGroup::heatDuty},
                              {pTDewPtActual, dewPtActual},
                              {pTDewPtMax, dewPtMax},
                              {pRExhaustO2, O2, UnitGroup::ratio},
                              {pDGTFuel, Qgt, UnitGroup::heatDuty},
                              {pDHeatLoss, heatLoss, UnitGroup::heatDuty},
                              {pRHeatUtil, duty / (fuelDuty + Qgt), UnitGroup::ratio},
                              {pMBaseLoad, baseLoad, UnitGroup::massFlow},
                              {pMActual, duty / boiler->dh, UnitGroup::massFlow}});
    };

    if (std::fabs(1.0 - demand / baseLoad) < equalWithin) {
      return give(noFiringTemperature, 0.0, noFiringTemperature, noFiringTemperature, oxygen,
                  unused, Q);
    }
    warnIfBroken(engine, {oxygenUsedUp, demandBelowBaseLoad});

    // The fuel that leaves MinO2Stack of oxygen.
    const double maxFuel = (gas.O2 - gas.total() * MinO2Stack) / (MinO2Stack + 2.0) * molarMassCH4;
    const Gas maxFired = gas.fired(maxFuel / molarMassCH4);
    const Firing firing = supplementaryFiring(*boiler, exhaustT, gas, demand, maxFuel);
    if (!std::isfinite(firing.duty)) {
      engine.fail(Message::solutionError);
      return explainFailure(engine, {feedAboveBoiling});
    }
    double dewPtActual = 0.0;
    double dewPtMax = 0.0;
    if (!dewPoint(engine, &dewPtActual, firing.gas.H2O / firing.gas.total()) ||
        !dewPoint(engine, &dewPtMax, maxFired.H2O / maxFired.total())) {
      // The pressure of that failure is the water vapour's in the stack.
      return explainFailure(engine, {noFuel, fuelTooWeak, exhaustTooCold, airUsedUp, oxygenUsedUp,
                                     demandBelowBaseLoad});
    }
    const double stackLoss = (firing.temperature - air) * cp * firing.gas.mass() - firing.duty;
    return give(firing.temperature, firing.fuelDuty(), dewPtActual, dewPtMax,
                firing.gas.O2 / firing.gas.total(), stackLoss + unused, firing.duty);
  });
}

}  // namespace calvex
