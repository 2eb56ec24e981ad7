// A steam ejector by balances of momentum and energy with an empirical diffuser efficiency.
//
// R motive/suction flow ratio, hM and hS motive and suction enthalpy, dhIs isentropic enthalpy drop
// of the motive steam to the suction pressure, ke kinetic energy and hMix stagnation enthalpy of
// the mixed stream, etaD diffuser efficiency, pf performance factor. kJ/kg; pressures in the
// client's unit, as the property members take them.
#include "equipment/ejectors.h"

#include <cmath>
#include <limits>
#include <optional>

#include "engine/thermo_engine.h"
#include "equipment/brent.h"
#include "equipment/model_results.h"
#include "equipment/plausibility.h"
#include "steam/solver.h"

namespace calvex {

// With k = ke in Btu/lb and a proportional to pf:
// etaD = 1 - a k / (k + k1) - (1 - a) k / (k - k0)
double DiffuserCorrelation(double pf, double ke) {
  constexpr double BtuPerLb = 0.42992261392949266;  // of a kJ/kg
  constexpr double a1 = 1.21462383974304;
  constexpr double k0 = 6.74374434162094e-9;
  constexpr double k1 = 582.414319479662;
  const double k = ke * BtuPerLb;
  const double a = pf * a1;
  if (!(k > k0)) return 1.0;
  return 1.0 - a * k / (k + k1) - (1.0 - a) * k / (k - k0);
}

namespace {

struct Mixing {
  double etaD;
  double ke;
};

// hMix = (R hM + hS) / (R + 1)
double mixedEnthalpy(double R, double hM, double hS) { return (R * hM + hS) / (R + 1.0); }

// The jet shares its momentum with the suction flow, ke = dhIs / (1 + 1/R)^2, and the mixture of
// static enthalpy hMix - ke is compressed isentropically to h2: etaD = (h2 - hStatic) / ke.
// Nothing if a property call fails.
std::optional<Mixing> EjectorBalance(ZvThermoInt& engine, double dhIs, double R, double hM,
                                     double hS, double pSuction, double pDischarge) {
  const UserUnits& units = engine.units();
  const double ke = dhIs / std::pow(1.0 + 1.0 / R, 2.0);
  const double hStatic = mixedEnthalpy(R, hM, hS) - ke;
  double s = 0.0;
  double h2 = 0.0;
  if (!engine.SPH(&s, pSuction, units.toUser(UnitGroup::enthalpy, hStatic)) ||
      !engine.HPS(&h2, pDischarge, s)) {
    return std::nullopt;
  }
  return Mixing{(units.toInternal(UnitGroup::enthalpy, h2) - hStatic) / ke, ke};
}

// DiffuserCorrelation(pf, ke) = etaD for pf, as a problem of the engine's solver.
class PerformanceFactor final : private ZvSolverCallBack {
 public:
  PerformanceFactor(Diagnostics& diagnostics, const Mixing& mixing)
      : diagnostics_(diagnostics), mixing_(mixing) {}

  double solve(const ZvSolver& settings) {
    ZvSolver solver(*this);
    solver.setTolerance(settings.tolerance());
    solver.setIterations(settings.iterations());
    const int status = solver.Solve(1, 1);
    if (!ZvSolver::converged(status)) ZvSolver::raise(status);
    // Where the correlation does not depend on pf, the minimiser stops content at the start.
    if (!(std::fabs(residual_) <= 1e-6)) ZvSolver::raise(ZvSolver::notASolution);
    return pf_;
  }

 private:
  void evaluate(int m, int, double* x, double* f, int& flag) override {
    switch (flag) {
      case startFlag:
        x[0] = pf_;
        break;
      case finishFlag:
        pf_ = x[0];
        residual_ = f[0];
        ZvSolver::note(diagnostics_, evaluations_, m, f);
        break;
      default:
        f[0] = DiffuserCorrelation(x[0], mixing_.ke) - mixing_.etaD;
        ++evaluations_;
    }
  }

  Diagnostics& diagnostics_;
  Mixing mixing_;
  double pf_ = 0.7;  // start
  double residual_ = 0.0;
  int evaluations_ = 0;
};

// Enthalpies of motive and suction steam; pressures of these and of the discharge.
struct Steams {
  double Hms, pMs, Hss, Pss, Pds;
};

// One call: its steams in the client's units and in model units.
struct Ejector {
  ZvThermoInt& engine;
  Steams user;
  Steams model;

  Ejector(ZvThermoInt& thermo, const Steams& given)
      : engine(thermo),
        user(given),
        model{internal(UnitGroup::enthalpy, given.Hms), internal(UnitGroup::pressure, given.pMs),
              internal(UnitGroup::enthalpy, given.Hss), internal(UnitGroup::pressure, given.Pss),
              internal(UnitGroup::pressure, given.Pds)} {}

  double internal(UnitGroup group, double value) const {
    return engine.units().toInternal(group, value);
  }

  bool valid() const {
    return engine.validPressure("Motive Steam Pressure", model.pMs) &&
           engine.validPressure("Suction Steam Pressure", model.Pss) &&
           engine.validPressure("Discharge Steam Pressure", model.Pds) &&
           engine.notNegative("Motive Steam Enthalpy", UnitGroup::enthalpy, model.Hms) &&
           engine.notNegative("Suction Steam Enthalpy", UnitGroup::enthalpy, model.Hss);
  }

  // Of the motive steam to the suction pressure; nothing if a property call fails.
  std::optional<double> isentropicDrop() const {
    double s = 0.0;
    double hIs = 0.0;
    if (!engine.SPH(&s, user.pMs, user.Hms) || !engine.HPS(&hIs, user.Pss, s)) return std::nullopt;
    return model.Hms - internal(UnitGroup::enthalpy, hIs);
  }

  std::optional<Mixing> balance(double dhIs, double R) const {
    return EjectorBalance(engine, dhIs, R, model.Hms, model.Hss, user.Pss, user.Pds);
  }

  // A failure by the order of the pressures, which is not tested.
  void explain() const {
    using namespace plausibility;
    explainFailure(engine, {{motiveTooWeak, model.pMs, model.Pss},
                            {dischargeAboveMotive, model.Pds, model.pMs},
                            {dischargeBelowSuction, model.Pds, model.Pss}});
  }

  // Written so that a NaN fails.
  bool validEfficiency(double etaD) const {
    if (!(etaD <= 1.0)) return engine.fail("Calculated diffuser efficiency greater than 1.0 !");
    if (!(etaD >= 0.0)) return engine.fail("Calculated diffuser efficiency less than 0.0 !");
    return true;
  }

  bool give(double* pHOut, double R, double* pSolved, double solved, double* pERatio,
            double* pCRatio) const {
    return giveAll(engine, {{pHOut, mixedEnthalpy(R, model.Hms, model.Hss), UnitGroup::enthalpy},
                            {pSolved, solved, UnitGroup::ratio},
                            {pERatio, model.pMs / model.Pss, UnitGroup::ratio},
                            {pCRatio, model.Pds / model.Pss, UnitGroup::ratio}});
  }
};

// Brackets the ratio: down by 0.625 and up by 1.6 of the width in turn, while the signs are equal.
// Nothing if a property call fails.
template <class Residual>
std::optional<Bracket> bracketRatio(Residual&& g, double a, double b) {
  constexpr int maxTries = 100;
  const std::optional<double> ga = g(a);
  if (!ga) return std::nullopt;
  const std::optional<double> gb = g(b);
  if (!gb) return std::nullopt;
  Bracket bracket{a, *ga, b, *gb};
  for (int attempt = 1; attempt <= maxTries && bracket.fa * bracket.fb >= 0.0; ++attempt) {
    const bool lower = attempt % 2 == 1;
    double& x = lower ? bracket.a : bracket.b;
    x = lower ? 0.625 * bracket.a : bracket.b + 1.6 * (bracket.b - bracket.a);
    const std::optional<double> gx = g(x);
    if (!gx) return std::nullopt;
    (lower ? bracket.fa : bracket.fb) = *gx;
  }
  return bracket;
}

}  // namespace

int ThermoCompA(ZvThermoInt& engine, double* pHOut, double* pPerfF, double* pERatio,
                double* pCRatio, double Hms, double pMs, double Hss, double Pss, double Pds,
                double Rs) {
  return engine.call("ThermoCompA", [&] {
    const Ejector ejector(engine, {Hms, pMs, Hss, Pss, Pds});
    const double R = ejector.internal(UnitGroup::ratio, Rs);
    if (!ejector.valid()) return false;
    if (!(R >= 0.0)) return engine.fail("Motive/Suction steam ratio must be non-negative!");

    return explained(
        engine,
        [&] {
          const std::optional<double> dhIs = ejector.isentropicDrop();
          if (!dhIs) return false;
          const std::optional<Mixing> mixing = ejector.balance(*dhIs, R);
          if (!mixing || !ejector.validEfficiency(mixing->etaD)) return false;
          const double pf =
              PerformanceFactor(engine.diagnostics(), *mixing).solve(engine.steam().solver());
          return ejector.give(pHOut, R, pPerfF, pf, pERatio, pCRatio);
        },
        [&] { ejector.explain(); });
  });
}

// The inverse operation reports under the name of the direct one.
int ThermoCompB(ZvThermoInt& engine, double* pHOut, double* pRs, double* pERatio, double* pCRatio,
                double Hms, double pMs, double Hss, double Pss, double Pds, double PF) {
  return engine.call("ThermoCompA", [&] {
    const Ejector ejector(engine, {Hms, pMs, Hss, Pss, Pds});
    const double pf = ejector.internal(UnitGroup::ratio, PF);
    if (!ejector.valid()) return false;
    // Zero itself is refused; the bounds are shown in the unit of efficiencies.
    constexpr double refused = std::numeric_limits<double>::quiet_NaN();
    if (!engine.validRange("Performance Factor", pf > 0.0 ? pf : refused, 0.0, 1.0,
                           UnitGroup::efficiency)) {
      return false;
    }

    return explained(
        engine,
        [&] {
          const std::optional<double> dhIs = ejector.isentropicDrop();
          if (!dhIs) return false;
          double etaD = 0.0;  // of the last evaluation
          const auto g = [&](double R) -> std::optional<double> {
            const std::optional<Mixing> mixing = ejector.balance(*dhIs, R);
            if (!mixing) return std::nullopt;
            etaD = mixing->etaD;
            return etaD - DiffuserCorrelation(pf, mixing->ke);
          };

          constexpr double aMin = 0.8;
          constexpr double b = 4.0;
          const double a = 1.0 / (std::sqrt(*dhIs / ejector.model.Hss) + 1.0) + 0.0001;
          if (std::isnan(a))
            return engine.fail(Message::solutionError);  // no drop to suction pressure
          const std::optional<Bracket> bracket = bracketRatio(g, a < aMin ? aMin : a, b);
          if (!bracket) return false;
          if (!bracketsRoot(*bracket))
            return engine.fail("Unable to bracket the root of the equations!");
          const std::optional<double> R = brentRoot(g, *bracket, {3e-8, 5e-7});
          if (!R || !ejector.validEfficiency(etaD)) return false;
          return ejector.give(pHOut, *R, pRs, *R, pERatio, pCRatio);
        },
        [&] { ejector.explain(); });
  });
}

}  // namespace calvex
