// Thermocompressors by a performance chart: expansion ratio ER = MSP/SSP, compression ratio
// CR = DSP/SSP and entrainment ratio R = MSF/SSF determine each other; mixing gives the discharge.
//
// hM, hS and hD are the enthalpies of motive, suction and discharge steam, kJ/kg.
#include "equipment/thermocompressor_chart.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <optional>

#include "engine/thermo_engine.h"
#include "equipment/brent.h"
#include "equipment/model_results.h"
#include "equipment/plausibility.h"
#include "steam/constants.h"

namespace calvex {

namespace {

// The performance chart: at each entrainment ratio, compression ratio = exp(A ln ER + B).
struct PowerLaw {
  double A, B;
};
struct Curve {
  double R;
  PowerLaw lowER;   // ER below lowERLimit
  PowerLaw highER;  // at it and above
};
constexpr double lowERLimit = 10.0;
constexpr Curve chart[] = {
    // clang-format off
    // R      A                   B                       A                  B
    {0.25, {0.058376810496396,  -0.0181419262657252},  {0.052097549844221,  -0.00484592733572225}},
    {0.3,  {0.0675897367094908, -0.018314565919208},   {0.0543797174749981,  0.0119363010642251}},
    {0.4,  {0.0846543519647478, -0.0128792735244405},  {0.0565872680782841,  0.0520245329955978}},
    {0.5,  {0.102809735916324,  -0.00918293311257759}, {0.0755818991649714,  0.0507086891419911}},
    {0.6,  {0.124533154457234,  -0.00919769684364674}, {0.0851352136490931,  0.0785662455014864}},
    {0.8,  {0.158673492195712,  -0.00236841424062283}, {0.126693387609302,   0.0589354686007586}},
    {1.0,  {0.203350393412129,   0.00130373355645969}, {0.138302377543966,   0.151551446283087}},
    {1.2,  {0.234348056010399,   0.00853106670316556}, {0.171011597361665,   0.14855537096892}},
    {1.5,  {0.280774756581314,   0.0208760143736309},  {0.189319514114755,   0.226763613083223}},
    {2.0,  {0.341732356515546,   0.0330332308179359},  {0.233277851423927,   0.273789291931095}},
    {3.0,  {0.388276343317276,   0.0848027264338193},  {0.275723694608602,   0.339683239026222}},
    {4.0,  {0.437801172938838,   0.0815797704258118},  {0.308327380041206,   0.371858918019782}},
    {5.0,  {0.425903467168601,   0.149753968006214},   {0.339824491258573,   0.332669898868951}},
    {10.0, {0.462501496845127,   0.268211261792331},   {0.449597748264331,   0.299769256194553}},
    // clang-format on
};
constexpr std::size_t curves = std::size(chart);
static_assert(curves == 14);

// Beyond the last curve the compression ratio goes on to the expansion ratio, reached at this R.
constexpr double RFull = 100.0;
// Below this R there is no compression.
constexpr double RNone = 1e-4;
constexpr double notOnChart = -1.0;

// Compression ratios of all curves.
std::array<double, curves> compressionRatios(double ER) {
  std::array<double, curves> y{};
  std::transform(std::begin(chart), std::end(chart), y.begin(), [ER](const Curve& curve) {
    const PowerLaw& law = ER < lowERLimit ? curve.lowER : curve.highER;
    return std::exp(law.A * std::log(ER) + law.B);
  });
  return y;
}

// The expansion ratio at which the last curve reaches the motive pressure: ER = exp(A ln ER + B).
double leastER() {
  const PowerLaw& law = chart[curves - 1].lowER;
  return std::exp(law.B / (1.0 - law.A));
}

double between(double x, double x0, double y0, double x1, double y1) {
  return y0 + (y1 - y0) * (x - x0) / (x1 - x0);
}

}  // namespace

double ChartCompressionRatio(double ER, double R) {
  if (!(ER > 0.0) || !(R >= 0.0)) return notOnChart;
  if (R < RNone) return 1.0;
  const std::array<double, curves> y = compressionRatios(ER);
  const Curve& first = chart[0];
  const Curve& last = chart[curves - 1];
  if (R < first.R) return between(R, 0.0, 1.0, first.R, y.front());
  if (R >= last.R) return between(R, last.R, y.back(), RFull, ER);
  std::size_t i = 0;
  while (R >= chart[i + 1].R) ++i;
  return between(R, chart[i].R, y[i], chart[i + 1].R, y[i + 1]);
}

double ChartEntrainmentRatio(double ER, double CR) {
  if (!(ER > 0.0) || !(CR >= 0.0)) return notOnChart;
  if (CR <= 1.0) return 0.0;
  const std::array<double, curves> y = compressionRatios(ER);
  if (CR < y.front()) return between(CR, 1.0, 0.0, y.front(), chart[0].R);
  if (CR >= y.back()) return between(CR, y.back(), chart[curves - 1].R, ER, RFull);
  for (std::size_t i = 0; i + 1 < curves; ++i) {
    if (y[i] <= CR && CR < y[i + 1]) return between(CR, y[i], chart[i].R, y[i + 1], chart[i + 1].R);
  }
  return notOnChart;
}

namespace {

// Motive and suction steam as the client gave them.
struct Supply {
  double MSP, MST, SSP, SST;
};

struct Labels {
  const char *MSP, *SSP, *DSP, *MST, *SST;
};
constexpr Labels labels{"MSPressure", "SSPressure", "DSPressure", "MSTemperature", "SSTemperature"};
constexpr Labels longLabels{"Motive Steam Pressure", "Suction Steam Pressure", "",
                            "Motive Steam Temperature", "Suction Steam Temperature"};

// What condenses: its temperature in the client's unit, and the duty in kJ per kg.
struct Discharge {
  double DST;
  double dutyPerFlow;
};

// Discharge temperature (and pressure) in the client's unit; flows and duty in model units.
struct Balance {
  double DST, DSP;
  double MSF = 0.0;
  double SSF = 0.0;
  double DSF = 0.0;
  double HXDuty = 0.0;
};

// One call.
class Thermocompressor {
 public:
  Thermocompressor(ZvThermoInt& engine, const Supply& supply)
      : engine_(engine), supply_(supply), MSP_(pressure(supply.MSP)), SSP_(pressure(supply.SSP)) {}

  double pressure(double P) const { return engine_.units().toInternal(UnitGroup::pressure, P); }
  double flow(double F) const { return engine_.units().toInternal(UnitGroup::massFlow, F); }
  double duty(double D) const { return engine_.units().toInternal(UnitGroup::heatDuty, D); }

  double ER() const { return MSP_ / SSP_; }
  double MSP() const { return MSP_; }
  double SSP() const { return SSP_; }

  bool validPressures(const Labels& names) const {
    return engine_.validPressure(names.MSP, MSP_) && engine_.validPressure(names.SSP, SSP_);
  }
  bool validMotive(const Labels& names) const { return validTemperature(names.MST, supply_.MST); }
  bool validSuction(const Labels& names) const { return validTemperature(names.SST, supply_.SST); }

  // hM and hS; false if a property call fails.
  bool findEnthalpies() {
    return enthalpy(hM_, supply_.MSP, supply_.MST) && enthalpy(hS_, supply_.SSP, supply_.SST);
  }

  // The mixture hD = (hM R + hS) / (R + 1) at the discharge pressure (the client's unit), condensed
  // to saturated liquid. Wet mixtures give up the heat of saturated vapour. Nothing if there is no
  // such discharge or a property call fails.
  std::optional<Discharge> discharge(double R, double DSP) const {
    constexpr double saturated = 1e-4;  // closer to saturated vapour than this counts as on it
    const UserUnits& units = engine_.units();
    const double hD = (hM_ * R + hS_) / (R + 1.0);
    if (!std::isfinite(hD) || !std::isfinite(DSP)) {
      engine_.fail(Message::solutionError);
      return std::nullopt;
    }
    double hG = 0.0;
    if (!engine_.HSatPQ(&hG, DSP, quality(1.0))) return std::nullopt;
    hG = units.toInternal(UnitGroup::enthalpy, hG);
    double DST = 0.0;
    const bool found = std::fabs(1.0 - hD / hG) >= saturated
                           ? engine_.TPH(&DST, DSP, units.toUser(UnitGroup::enthalpy, hD))
                           : engine_.TSatP(&DST, DSP);
    double h = 0.0;
    double hLiquid = 0.0;
    if (!found || !enthalpy(h, DSP, DST) || !engine_.HSatPQ(&hLiquid, DSP, quality(0.0))) {
      return std::nullopt;
    }
    return Discharge{DST, h - units.toInternal(UnitGroup::enthalpy, hLiquid)};
  }

  // The pressures' order, for warnings and for the cause of a failure; the discharge pressure in
  // MPa.
  template <class Report>
  bool judge(Report report, double DSP) const {
    using namespace plausibility;
    return report(engine_, {{motiveTooWeak, MSP_, SSP_},
                            {dischargeAboveMotive, DSP, MSP_},
                            {dischargeBelowSuction, DSP, SSP_},
                            {chartEnds, ER(), leastER()}});
  }
  void warn(const Balance& x) const {
    judge(warnIfBroken, pressure(x.DSP));
    warnIfNegative(engine_, {{"Motive flow", x.MSF, UnitGroup::massFlow},
                             {"Suction flow", x.SSF, UnitGroup::massFlow},
                             {"Discharge flow", x.DSF, UnitGroup::massFlow},
                             {"Duty", x.HXDuty, UnitGroup::heatDuty}});
  }

 private:
  double quality(double Q) const { return engine_.units().toUser(UnitGroup::quality, Q); }
  bool validTemperature(const char* name, double T) const {
    return engine_.validTemperature(name, engine_.units().toInternal(UnitGroup::temperature, T));
  }
  // Of steam; on the saturation line of saturated vapour.
  bool enthalpy(double& h, double P, double T) const {
    double user = 0.0;
    if (!engine_.HPTQ(&user, P, T, quality(1.0))) return false;
    h = engine_.units().toInternal(UnitGroup::enthalpy, user);
    return true;
  }

  ZvThermoInt& engine_;
  Supply supply_;
  double MSP_, SSP_;
  double hM_ = 0.0;
  double hS_ = 0.0;
};

// Which quantity comes with the supply and the discharge pressure.
enum class Given { HXDuty, DSF, SSF, MSF };

// B to E.
std::optional<Balance> atPressure(ZvThermoInt& engine, Given given, const Supply& supply,
                                  double userDSP, double value) {
  Thermocompressor unit(engine, supply);
  const double DSP = unit.pressure(userDSP);
  if (!unit.validPressures(labels) || !engine.validPressure(labels.DSP, DSP)) return std::nullopt;
  const bool suctionFirst = given == Given::HXDuty;
  const bool validTemperatures = suctionFirst
                                     ? unit.validSuction(labels) && unit.validMotive(labels)
                                     : unit.validMotive(labels) && unit.validSuction(labels);
  if (!validTemperatures) return std::nullopt;

  const double R = ChartEntrainmentRatio(unit.ER(), DSP / unit.SSP());
  if (!unit.findEnthalpies()) return std::nullopt;
  const std::optional<Discharge> discharge = unit.discharge(R, userDSP);
  if (!discharge) {
    unit.judge(explainFailure, DSP);
    return std::nullopt;
  }

  Balance x{.DST = discharge->DST, .DSP = userDSP};
  switch (given) {
    case Given::HXDuty:
    case Given::DSF:
      x.DSF = given == Given::DSF ? unit.flow(value) : unit.duty(value) / discharge->dutyPerFlow;
      x.MSF = x.DSF * R / (R + 1.0);
      x.SSF = x.DSF - x.MSF;
      break;
    case Given::SSF:
      x.SSF = unit.flow(value);
      x.MSF = R * x.SSF;
      x.DSF = x.MSF + x.SSF;
      break;
    case Given::MSF:
      x.MSF = unit.flow(value);
      x.SSF = x.MSF / R;
      x.DSF = x.MSF + x.SSF;
      break;
  }
  x.HXDuty = discharge->dutyPerFlow * x.DSF;
  if (!std::isfinite(x.SSF)) {
    engine.fail(Message::solutionError);
    explainFailure(engine, {{plausibility::noMotiveFlow, DSP, unit.SSP()}});
    return std::nullopt;
  }
  unit.warn(x);
  return x;
}

// F and G: the entrainment ratio at which the discharge gives up the duty, sought by its logarithm
// over the chart.
std::optional<Balance> atDuty(ZvThermoInt& engine, Given given, const Supply& supply,
                              double userFlow, double userDuty) {
  constexpr RootTolerance fine{1e-15, 1e-14};  // of ln R
  // The properties' own noise is some 1e-9; a jump of the discharge state, where it comes to count
  // as saturated, is up to 1e-4.
  constexpr double met = 1e-7;

  Thermocompressor unit(engine, supply);
  if (!unit.validPressures(labels) || !unit.validMotive(labels) || !unit.validSuction(labels) ||
      !unit.findEnthalpies()) {
    return std::nullopt;
  }
  const double flow = unit.flow(userFlow);
  const double HXDuty = unit.duty(userDuty);

  const auto balance = [&](double R) -> std::optional<Balance> {
    const double DSP = engine.units().toUser(UnitGroup::pressure,
                                             ChartCompressionRatio(unit.ER(), R) * unit.SSP());
    const std::optional<Discharge> discharge = unit.discharge(R, DSP);
    if (!discharge) return std::nullopt;
    const double MSF = given == Given::MSF ? flow : R * flow;
    const double SSF = given == Given::SSF ? flow : flow / R;
    const double DSF = MSF + SSF;
    return Balance{discharge->DST, DSP, MSF, SSF, DSF, discharge->dutyPerFlow * DSF};
  };
  const auto residual = [&](double lnR) -> std::optional<double> {
    const std::optional<Balance> x = balance(std::clamp(std::exp(lnR), RNone, RFull));
    return x ? std::optional(x->HXDuty - HXDuty) : std::nullopt;
  };

  const double a = std::log(RNone);
  const std::optional<double> fa = residual(a);
  const double b = std::log(RFull);
  const std::optional<double> fb = fa ? residual(b) : std::nullopt;
  if (!fb) {
    explainFailure(engine, {{plausibility::chartPassesCriticalPressure, unit.MSP(),
                             constants::criticalPressure}});
    return std::nullopt;
  }
  const Bracket bracket{a, *fa, b, *fb};
  if (!bracketsRoot(bracket)) {
    engine.fail("Unable to bracket the root of the equations!");
    explainFailure(engine, {{plausibility::dutyTooLow, HXDuty, std::min(*fa, *fb) + HXDuty},
                            {plausibility::dutyTooHigh, HXDuty, std::max(*fa, *fb) + HXDuty}});
    return std::nullopt;
  }
  const std::optional<double> lnR = brentRoot(residual, bracket, fine);
  if (!lnR) return std::nullopt;
  const std::optional<Balance> x = balance(std::clamp(std::exp(*lnR), RNone, RFull));
  if (x && !(std::fabs(x->HXDuty - HXDuty) <= met * std::fabs(HXDuty))) {
    engine.fail(Message::solutionError);
    return std::nullopt;
  }
  if (x) unit.warn(*x);
  return x;
}

}  // namespace

int ThermoCompressorA(ZvThermoInt& engine, double* pDSP, double* pDST, double* pDSF,
                      double* pHXDuty, double MSP, double MST, double MSF, double SSP, double SST,
                      double SSF) {
  return engine.call("ThermoCompressorA", [&] {
    Thermocompressor unit(engine, {MSP, MST, SSP, SST});
    if (!unit.validPressures(longLabels) || !unit.validMotive(longLabels) ||
        !unit.validSuction(longLabels)) {
      return false;
    }
    const double motive = unit.flow(MSF);
    const double suction = unit.flow(SSF);
    const double flow = motive + suction;
    const double R = motive / suction;
    const Comparison noSuction{plausibility::noSuctionFlow, suction, 0.0};
    if (!std::isfinite(R)) {
      engine.fail(Message::solutionError);
      return explainFailure(engine, {noSuction});
    }
    const double P = ChartCompressionRatio(unit.ER(), R) * unit.SSP();
    const double DSP = engine.units().toUser(UnitGroup::pressure, P);
    if (!unit.findEnthalpies()) return false;
    const std::optional<Discharge> discharge = unit.discharge(R, DSP);
    if (!discharge) {
      const bool flows = suction > 0.0 && motive >= 0.0;
      return flows ? unit.judge(explainFailure, P)
                   : explainFailure(engine,
                                    {noSuction, {plausibility::negativeMotiveFlow, motive, 0.0}});
    }
    const double duty = discharge->dutyPerFlow * flow;
    unit.warn({discharge->DST, DSP, motive, suction, flow, duty});
    return giveAll(engine, {{pDSP, DSP},
                            {pDST, discharge->DST},
                            {pDSF, flow, UnitGroup::massFlow},
                            {pHXDuty, duty, UnitGroup::heatDuty}});
  });
}

int ThermoCompressorB(ZvThermoInt& engine, double* pDSF, double* pDST, double* pMSF, double* pSSF,
                      double MSP, double MST, double SSP, double SST, double DSP, double HXDuty) {
  return engine.call("ThermoCompressorB", [&] {
    const auto x = atPressure(engine, Given::HXDuty, {MSP, MST, SSP, SST}, DSP, HXDuty);
    return x && giveAll(engine, {{pDSF, x->DSF, UnitGroup::massFlow},
                                 {pDST, x->DST},
                                 {pMSF, x->MSF, UnitGroup::massFlow},
                                 {pSSF, x->SSF, UnitGroup::massFlow}});
  });
}

int ThermoCompressorC(ZvThermoInt& engine, double* pDST, double* pHXDuty, double* pMSF,
                      double* pSSF, double MSP, double MST, double SSP, double SST, double DSP,
                      double DSF) {
  return engine.call("ThermoCompressorC", [&] {
    const auto x = atPressure(engine, Given::DSF, {MSP, MST, SSP, SST}, DSP, DSF);
    return x && giveAll(engine, {{pDST, x->DST},
                                 {pHXDuty, x->HXDuty, UnitGroup::heatDuty},
                                 {pMSF, x->MSF, UnitGroup::massFlow},
                                 {pSSF, x->SSF, UnitGroup::massFlow}});
  });
}

int ThermoCompressorD(ZvThermoInt& engine, double* pDST, double* pHXDuty, double* pDSF,
                      double* pMSF, double MSP, double MST, double SSP, double SST, double DSP,
                      double SSF) {
  return engine.call("ThermoCompressorD", [&] {
    const auto x = atPressure(engine, Given::SSF, {MSP, MST, SSP, SST}, DSP, SSF);
    return x && giveAll(engine, {{pDST, x->DST},
                                 {pHXDuty, x->HXDuty, UnitGroup::heatDuty},
                                 {pDSF, x->DSF, UnitGroup::massFlow},
                                 {pMSF, x->MSF, UnitGroup::massFlow}});
  });
}

int ThermoCompressorE(ZvThermoInt& engine, double* pDST, double* pHXDuty, double* pDSF,
                      double* pSSF, double MSP, double MST, double SSP, double SST, double DSP,
                      double MSF) {
  return engine.call("ThermoCompressorE", [&] {
    const auto x = atPressure(engine, Given::MSF, {MSP, MST, SSP, SST}, DSP, MSF);
    return x && giveAll(engine, {{pDST, x->DST},
                                 {pHXDuty, x->HXDuty, UnitGroup::heatDuty},
                                 {pDSF, x->DSF, UnitGroup::massFlow},
                                 {pSSF, x->SSF, UnitGroup::massFlow}});
  });
}

int ThermoCompressorF(ZvThermoInt& engine, double* pDST, double* pDSP, double* pDSF, double* pMSF,
                      double MSP, double MST, double SSP, double SST, double SSF, double HXDuty) {
  return engine.call("ThermoCompressorF", [&] {
    const auto x = atDuty(engine, Given::SSF, {MSP, MST, SSP, SST}, SSF, HXDuty);
    return x && giveAll(engine, {{pDST, x->DST},
                                 {pDSP, x->DSP},
                                 {pDSF, x->DSF, UnitGroup::massFlow},
                                 {pMSF, x->MSF, UnitGroup::massFlow}});
  });
}

int ThermoCompressorG(ZvThermoInt& engine, double* pDST, double* pDSP, double* pDSF, double* pSSF,
                      double MSP, double MST, double SSP, double SST, double MSF, double HXDuty) {
  return engine.call("ThermoCompressorG", [&] {
    const auto x = atDuty(engine, Given::MSF, {MSP, MST, SSP, SST}, MSF, HXDuty);
    return x && giveAll(engine, {{pDST, x->DST},
                                 {pDSP, x->DSP},
                                 {pDSF, x->DSF, UnitGroup::massFlow},
                                 {pSSF, x->SSF, UnitGroup::massFlow}});
  });
}

}  // namespace calvex
