// Turbines and compressors by isentropic efficiency. A machine is a row of stages, each one the
// same step from the actual outlet of the one before:
//
//   turbine     dh = (h_in - h_is) * eff    h_out = h_in - dh
//   compressor  dh = (h_is - h_in) / eff    h_out = h_in + dh
//
// with h_is the enthalpy at the outlet pressure and the entropy of the stage's inlet. What leaves
// at outlet k has done (or taken) the work w_k = dh_1 + ... + dh_k, so that
//
//   power = m_1 * w_1 + ... + m_n * w_n
//
// with m_k the flow that leaves at outlet k. The A members solve it for the power, the B members
// for the last outlet's flow.
//
// Values are in the client's units but for the works, the flows and the power.
#include "equipment/turbines_compressors.h"

#include <array>
#include <cmath>
#include <span>

#include "equipment/model.h"
#include "equipment/plausibility.h"

namespace calvex {

namespace {

constexpr std::size_t maxOutlets = 3;

enum class Machine { turbine, compressor };

// An outlet's names in messages, and the message about a pressure that goes the wrong way.
struct OutletTexts {
  std::string_view flow;
  std::string_view pressure;
  std::string_view efficiency;
  std::array<std::string_view, 2> wrongOrder;  // of a turbine, of a compressor
};
constexpr OutletTexts onlyOutlet = {
    "Flow",
    "Outlet Pressure",
    "Efficiency",
    {"Inlet pressure less than outlet pressure.", "Outlet pressure less than inlet pressure."}};
constexpr OutletTexts outletOfSeveral[maxOutlets] = {
    {"Flow at outlet 1",
     "Outlet Pressure 1",
     "Efficiency 1",
     {"Inlet pressure less than outlet pressure 1.",
      "Outlet pressure 1 less than inlet pressure."}},
    {"Flow at outlet 2",
     "Outlet Pressure 2",
     "Efficiency 2",
     {"Outlet pressure 1 less than outlet pressure 2.",
      "Outlet pressure 2 less than outlet pressure 1."}},
    {"Flow at outlet 3",
     "Outlet Pressure 3",
     "Efficiency 3",
     {"Outlet pressure 2 less than outlet pressure 3.", {}}},
};

struct Inlet {
  double H;
  double P;
  const double* S = nullptr;  // where the client gives it
};

struct Outlet {
  double P;
  double Eff;
  double* T;
  double* H;
  double* Q;
};

struct Stages {
  ZvThermoInt& engine;
  Machine machine;
  Inlet inlet;
  std::span<const Outlet> outlets;
  bool wantsTQ;             // of the last outlet
  double* lastS = nullptr;  // where its entropy is wanted too
  // The last stage asks for its inlet entropy itself rather than take that of the stage before.
  bool entropyAfresh = false;

  [[nodiscard]] const OutletTexts& texts(std::size_t k) const {
    return outlets.size() == 1 ? onlyOutlet : outletOfSeveral[k];
  }
  [[nodiscard]] double internal(UnitGroup group, double value) const {
    return engine.units().toInternal(group, value);
  }

  bool valid() const {
    if (!engine.notNegative("Inlet Enthalpy", UnitGroup::enthalpy,
                            internal(UnitGroup::enthalpy, inlet.H)) ||
        !engine.validPressure("Inlet Pressure", internal(UnitGroup::pressure, inlet.P))) {
      return false;
    }
    for (std::size_t k = 0; k < outlets.size(); ++k) {
      const double P = internal(UnitGroup::pressure, outlets[k].P);
      if (!engine.validPressure(texts(k).pressure, P)) return false;
    }
    for (std::size_t k = 0; k < outlets.size(); ++k) {
      const double efficiency = internal(UnitGroup::efficiency, outlets[k].Eff);
      if (!validEfficiency(engine, texts(k).efficiency, efficiency)) return false;
    }
    if (inlet.S != nullptr && !engine.notNegative("Inlet Entropy", UnitGroup::entropy,
                                                  internal(UnitGroup::entropy, *inlet.S))) {
      return false;
    }
    double before = inlet.P;
    for (std::size_t k = 0; k < outlets.size(); ++k) {
      const double P = outlets[k].P;
      const bool wrong = machine == Machine::turbine ? before < P : P < before;
      if (wrong) return engine.fail(texts(k).wrongOrder[static_cast<std::size_t>(machine)]);
      before = P;
    }
    return true;
  }

  // The entropy that the client gave, against that of pressure and enthalpy. An entropy in a table
  // with two decimals is off by half as much.
  void compareEntropies() const {
    constexpr double atOdds = 0.01;  // kJ/(kg.K)
    if (inlet.S == nullptr || !engine.diagnostics().wantsWarnings()) return;
    const double given = internal(UnitGroup::entropy, *inlet.S);
    const double found =
        entropyFrom(internal(UnitGroup::pressure, inlet.P), internal(UnitGroup::enthalpy, inlet.H));
    if (!(std::fabs(given - found) > atOdds)) return;
    warnIfBroken(engine, {{plausibility::entropyTooHigh, given, found},
                          {plausibility::entropyTooLow, given, found}});
  }

  // Of a failure at a pressure for which that property is too high.
  bool explainHeat(const PlausibilityRule& rule, Property property, double P, double value) const {
    const double most = hottest(property, internal(UnitGroup::pressure, P));
    return explainFailure(engine, {{rule, internal(*rule.group, value), most}});
  }

  // Writes the outlet enthalpy; dh in kJ/kg.
  bool expand(double pIn, double hIn, double sIn, const Outlet& outlet, double& dh) const {
    double hIsentropic = 0.0;
    if (!engine.HPS(&hIsentropic, outlet.P, sIn)) {
      return explainHeat(plausibility::idealOutletTooHot, Property::entropy, outlet.P, sIn);
    }
    // At the inlet's own pressure there is no work, not the last digits of two solves. Not so with
    // the client's entropy, which need not be that of the inlet.
    if (outlet.P == pIn && inlet.S == nullptr) hIsentropic = hIn;
    const double efficiency = internal(UnitGroup::efficiency, outlet.Eff);
    double hOut = 0.0;
    if (machine == Machine::turbine) {
      dh = (hIn - hIsentropic) * efficiency;
      hOut = hIn - dh;
    } else {
      dh = (hIsentropic - hIn) / efficiency;
      hOut = hIn + dh;
    }
    dh = internal(UnitGroup::enthalpy, dh);
    return engine.give(outlet.H, hOut);
  }

  // The outlet's temperature and quality, and its entropy or else its density.
  bool stateOf(const Outlet& outlet, double* s) const {
    double density = 0.0;
    const bool found = s != nullptr
                           ? engine.QTS_PH(outlet.Q, outlet.T, s, outlet.P, *outlet.H) != 0
                           : engine.QTR_PH(outlet.Q, outlet.T, &density, outlet.P, *outlet.H) != 0;
    return found ||
           explainHeat(plausibility::outletTooHot, Property::enthalpy, outlet.P, *outlet.H);
  }

  bool lastState() const {
    return (lastS == nullptr && !wantsTQ) || stateOf(outlets.back(), lastS);
  }

  // The balance is struck from the works. A single outlet's state is found after it, as its result
  // does not depend on that.
  template <class Balance>
  bool run(Balance&& balance) const {
    if (!valid()) return false;
    double P = inlet.P;
    double h = inlet.H;
    double s = 0.0;
    if (inlet.S != nullptr) {
      s = *inlet.S;
    } else if (!engine.SPH(&s, P, h)) {
      return explainHeat(plausibility::inletTooHot, Property::enthalpy, P, h);
    }
    compareEntropies();
    std::array<double, maxOutlets> works{};
    double work = 0.0;
    for (std::size_t k = 0; k < outlets.size(); ++k) {
      const Outlet& outlet = outlets[k];
      const bool last = k + 1 == outlets.size();
      if (last && entropyAfresh && !engine.SPH(&s, P, h)) return false;
      double dh = 0.0;
      if (!expand(P, h, s, outlet, dh)) return false;
      P = outlet.P;
      h = *outlet.H;
      works[k] = work += dh;
      if (!last && !stateOf(outlet, &s)) return false;
    }
    const std::span<const double> done(works.data(), outlets.size());
    if (outlets.size() == 1) return balance(done) && lastState();
    return lastState() && balance(done);
  }
};

void warnOfNegativeFlows(const Stages& stages, std::span<const double> flows) {
  for (std::size_t k = 0; k < flows.size(); ++k) {
    warnIfNegative(stages.engine,
                   {{stages.texts(k).flow, stages.internal(UnitGroup::massFlow, flows[k]),
                     UnitGroup::massFlow}});
  }
}

// The power of the flows that leave, in kW.
double powerOf(const Stages& stages, std::span<const double> flows, std::span<const double> works) {
  double power = 0.0;
  for (std::size_t k = 0; k < flows.size(); ++k) {
    power += stages.internal(UnitGroup::massFlow, flows[k]) * works[k];
  }
  return power;
}

int powerFromFlows(std::string_view name, const Stages& stages, double* pPower,
                   std::span<const double> flows) {
  ZvThermoInt& engine = stages.engine;
  return engine.call(name, [&] {
    return stages.run([&](std::span<const double> works) {
      warnOfNegativeFlows(stages, flows);
      return engine.give(pPower, UnitGroup::power, powerOf(stages, flows, works));
    });
  });
}

// `flows` leave at all outlets but the last.
int lastFlowFromPower(std::string_view name, const Stages& stages, double* pFlow, double Power,
                      std::span<const double> flows = {}) {
  ZvThermoInt& engine = stages.engine;
  return engine.call(name, [&] {
    return stages.run([&](std::span<const double> works) {
      using namespace plausibility;
      const double given = stages.internal(UnitGroup::power, Power);
      const double extracted = powerOf(stages, flows, works);
      const double work = works.back();
      const double flow = (given - extracted) / work;
      warnOfNegativeFlows(stages, flows);
      warnIfBroken(engine, {{negativePower, given, 0.0},
                            {extractionsTakeAll, extracted, std::fmax(given, 0.0)},
                            {noWork, work, 0.0}});
      warnIfNegative(engine, {{stages.texts(flows.size()).flow, flow, UnitGroup::massFlow}});
      return giveQuotient(engine, pFlow, UnitGroup::massFlow, flow, work) ||
             explainFailure(engine, {{noWork, work, 0.0}});
    });
  });
}

}  // namespace

int TurbineA(ZvThermoInt& engine, double* pPower, double* pTOut, double* pHOut, double* pQOut,
             double HIn, double PIn, double POut, double Eff, double MIn, int bCalcTQ) {
  const Outlet outlets[] = {{POut, Eff, pTOut, pHOut, pQOut}};
  const double flows[] = {MIn};
  return powerFromFlows("TurbineA", {engine, Machine::turbine, {HIn, PIn}, outlets, bCalcTQ != 0},
                        pPower, flows);
}

int TurbineB(ZvThermoInt& engine, double* pMIn, double* pTOut, double* pHOut, double* pQOut,
             double HIn, double PIn, double POut, double Eff, double Power, int bCalcTQ) {
  const Outlet outlets[] = {{POut, Eff, pTOut, pHOut, pQOut}};
  return lastFlowFromPower(
      "TurbineB", {engine, Machine::turbine, {HIn, PIn}, outlets, bCalcTQ != 0}, pMIn, Power);
}

int TurbineE(ZvThermoInt& engine, double* pPower, double* pTOut, double* pHOut, double* pQOut,
             double* pSOut, double HIn, double PIn, double POut, double Eff, double MIn, double SIn,
             int bCalcTQ, int bCalcS) {
  const Outlet outlets[] = {{POut, Eff, pTOut, pHOut, pQOut}};
  const double flows[] = {MIn};
  return powerFromFlows("TurbineE",
                        {engine,
                         Machine::turbine,
                         {HIn, PIn, &SIn},
                         outlets,
                         bCalcTQ != 0,
                         bCalcS != 0 ? pSOut : nullptr},
                        pPower, flows);
}

int TurbineA2(ZvThermoInt& engine, double* pPower, double* pTOut1, double* pTOut2, double* pHOut1,
              double* pHOut2, double* pQOut1, double* pQOut2, double HIn, double PIn, double POut1,
              double POut2, double Eff1, double Eff2, double MIn, double MOut1, int bCalcTQ) {
  const Outlet outlets[] = {{POut1, Eff1, pTOut1, pHOut1, pQOut1},
                            {POut2, Eff2, pTOut2, pHOut2, pQOut2}};
  const double flows[] = {MIn, MOut1};
  return powerFromFlows("TurbineA2", {engine, Machine::turbine, {HIn, PIn}, outlets, bCalcTQ != 0},
                        pPower, flows);
}

int TurbineB2(ZvThermoInt& engine, double* pMOut2, double* pTOut1, double* pTOut2, double* pHOut1,
              double* pHOut2, double* pQOut1, double* pQOut2, double HIn, double PIn, double POut1,
              double POut2, double Eff1, double Eff2, double Power, double MOut1, int bCalcTQ) {
  const Outlet outlets[] = {{POut1, Eff1, pTOut1, pHOut1, pQOut1},
                            {POut2, Eff2, pTOut2, pHOut2, pQOut2}};
  const double flows[] = {MOut1};
  return lastFlowFromPower("TurbineB2",
                           {engine, Machine::turbine, {HIn, PIn}, outlets, bCalcTQ != 0}, pMOut2,
                           Power, flows);
}

int TurbineA3(ZvThermoInt& engine, double* pPower, double* pTOut1, double* pTOut2, double* pTOut3,
              double* pHOut1, double* pHOut2, double* pHOut3, double* pQOut1, double* pQOut2,
              double* pQOut3, double HIn, double PIn, double POut1, double POut2, double POut3,
              double Eff1, double Eff2, double Eff3, double MIn, double MOut1, double MOut2,
              int bCalcTQ) {
  const Outlet outlets[] = {{POut1, Eff1, pTOut1, pHOut1, pQOut1},
                            {POut2, Eff2, pTOut2, pHOut2, pQOut2},
                            {POut3, Eff3, pTOut3, pHOut3, pQOut3}};
  const double flows[] = {MIn, MOut1, MOut2};
  return powerFromFlows("TurbineA3",
                        {.engine = engine,
                         .machine = Machine::turbine,
                         .inlet = {HIn, PIn},
                         .outlets = outlets,
                         .wantsTQ = bCalcTQ != 0,
                         .entropyAfresh = true},
                        pPower, flows);
}

int TurbineB3(ZvThermoInt& engine, double* pMOut3, double* pTOut1, double* pTOut2, double* pTOut3,
              double* pHOut1, double* pHOut2, double* pHOut3, double* pQOut1, double* pQOut2,
              double* pQOut3, double HIn, double PIn, double POut1, double POut2, double POut3,
              double Eff1, double Eff2, double Eff3, double Power, double MOut1, double MOut2,
              int bCalcTQ) {
  const Outlet outlets[] = {{POut1, Eff1, pTOut1, pHOut1, pQOut1},
                            {POut2, Eff2, pTOut2, pHOut2, pQOut2},
                            {POut3, Eff3, pTOut3, pHOut3, pQOut3}};
  const double flows[] = {MOut1, MOut2};
  return lastFlowFromPower("TurbineB3",
                           {engine, Machine::turbine, {HIn, PIn}, outlets, bCalcTQ != 0}, pMOut3,
                           Power, flows);
}

int CompressorA(ZvThermoInt& engine, double* pPower, double* pTOut, double* pHOut, double* pQOut,
                double HIn, double PIn, double POut, double Eff, double MIn, int bCalcTQ) {
  const Outlet outlets[] = {{POut, Eff, pTOut, pHOut, pQOut}};
  const double flows[] = {MIn};
  return powerFromFlows("CompressorA",
                        {engine, Machine::compressor, {HIn, PIn}, outlets, bCalcTQ != 0}, pPower,
                        flows);
}

int CompressorB(ZvThermoInt& engine, double* pMIn, double* pTOut, double* pHOut, double* pQOut,
                double HIn, double PIn, double POut, double Eff, double Power, int bCalcTQ) {
  const Outlet outlets[] = {{POut, Eff, pTOut, pHOut, pQOut}};
  return lastFlowFromPower(
      "CompressorB", {engine, Machine::compressor, {HIn, PIn}, outlets, bCalcTQ != 0}, pMIn, Power);
}

int CompressorA2(ZvThermoInt& engine, double* pPower, double* pTOut1, double* pTOut2,
                 double* pHOut1, double* pHOut2, double* pQOut1, double* pQOut2, double HIn,
                 double PIn, double POut1, double POut2, double Eff1, double Eff2, double MIn,
                 double MOut1, int bCalcTQ) {
  const Outlet outlets[] = {{POut1, Eff1, pTOut1, pHOut1, pQOut1},
                            {POut2, Eff2, pTOut2, pHOut2, pQOut2}};
  const double flows[] = {MIn, MOut1};
  return powerFromFlows("CompressorA2",
                        {engine, Machine::compressor, {HIn, PIn}, outlets, bCalcTQ != 0}, pPower,
                        flows);
}

int CompressorB2(ZvThermoInt& engine, double* pMOut2, double* pTOut1, double* pTOut2,
                 double* pHOut1, double* pHOut2, double* pQOut1, double* pQOut2, double HIn,
                 double PIn, double POut1, double POut2, double Eff1, double Eff2, double Power,
                 double MOut1, int bCalcTQ) {
  const Outlet outlets[] = {{POut1, Eff1, pTOut1, pHOut1, pQOut1},
                            {POut2, Eff2, pTOut2, pHOut2, pQOut2}};
  const double flows[] = {MOut1};
  return lastFlowFromPower("CompressorB2",
                           {engine, Machine::compressor, {HIn, PIn}, outlets, bCalcTQ != 0}, pMOut2,
                           Power, flows);
}

}  // namespace calvex
