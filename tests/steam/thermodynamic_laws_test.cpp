// What thermodynamics says of any equation of state, on a grid of densities and temperatures.
// Nothing here knows the coefficients.
#include <gtest/gtest.h>

#include "steam/property.h"
#include "steam/steam_model.h"
#include "support/failures.h"

namespace calvex::test {
namespace {

constexpr double R = 0.461522;  // kJ/(kg.K)
constexpr double criticalT = 647.126;

struct Point {
  double T;
  double density;
  [[nodiscard]] double operator()(Property property) const {
    return evaluate(property, T, density);
  }
  [[nodiscard]] std::string text() const { return fmt::format("T = {}, rho = {}", T, density); }
};

// Single-phase densities from a near vacuum to the densest liquid, at temperatures of the whole
// range; only points that are mechanically stable and have a positive pressure.
std::vector<Point> grid() {
  Diagnostics diagnostics;
  SteamModel model(diagnostics);
  std::vector<Point> points;
  for (const double T : {261.0, 275.0, 300.0, 350.0, 400.0, 500.0, 600.0, 640.0, 650.0, 700.0,
                         873.0, 1100.0, 1273.15, 1800.0, 2490.0}) {
    for (const double density : {1e-4, 1e-2, 0.3, 5.0, 40.0, 100.0, 200.0, 320.0, 400.0, 550.0,
                                 700.0, 850.0, 950.0, 1000.0, 1050.0, 1100.0}) {
      const Point point{T, density};
      // Between the saturated densities and below the freezing point's steam the single phase is
      // unstable, or not there.
      if (T < criticalT) {
        const double onLine = std::max(T, 273.16);
        if (density > model.saturatedTQ(Property::density, onLine, 1.0) &&
            density < model.saturatedTQ(Property::density, onLine, 0.0)) {
          continue;
        }
      }
      points.push_back(point);
    }
  }
  return points;
}

// Central difference, extrapolated twice (L. F. Richardson, 1911): the error falls with the sixth
// power of the step.
template <class Function>
double derivative(Function f, double x, double step) {
  const auto central = [&](double h) { return (f(x + h) - f(x - h)) / (2.0 * h); };
  const double a = central(step), b = central(step / 2.0), c = central(step / 4.0);
  const double ab = (4.0 * b - a) / 3.0, bc = (4.0 * c - b) / 3.0;
  return (16.0 * bc - ab) / 15.0;
}

double inT(Property property, const Point& p) {
  return derivative([&](double T) { return evaluate(property, T, p.density); }, p.T, 5e-4 * p.T);
}
double inDensity(Property property, const Point& p) {
  return derivative([&](double density) { return evaluate(property, p.T, density); }, p.density,
                    5e-4 * p.density);
}

constexpr double differences = 2e-7;  // what the steps above leave of a derivative

TEST(ThermodynamicLaws, TheGridIsNotEmpty) { EXPECT_GT(grid().size(), 150U); }

// du = T ds - P dv, along an isochore and along an isotherm.
TEST(ThermodynamicLaws, EnergyChangesByHeatAndWork) {
  Grid isochores("du = T ds at constant v");
  Grid isotherms("du = T ds - P dv at constant T");
  for (const Point& p : grid()) {
    const double cv = inT(Property::internalEnergy, p);
    isochores.near(p.T * inT(Property::entropy, p), cv, differences, std::max(cv, R), p.text());
    // dv = -v/rho drho; P v in kJ/kg is 1000 P/rho.
    const double work = 1000.0 * p(Property::pressure) / p.density;
    const double left = p.density * inDensity(Property::internalEnergy, p);
    const double right = p.T * p.density * inDensity(Property::entropy, p) + work;
    isotherms.near(left, right, differences, std::max({std::abs(left), work, R * p.T}), p.text());
  }
}

TEST(ThermodynamicLaws, HeatCapacitiesAreTheSlopesOfEnergyAndEnthalpy) {
  Grid volume("cv");
  Grid pressure("cp");
  for (const Point& p : grid()) {
    volume.relative(p(Property::isochoricHeatCapacity), inT(Property::internalEnergy, p),
                    differences, p.text());
    // (dh/dT)_P = (dh/dT)_rho + (dh/drho)_T (drho/dT)_P, (drho/dT)_P = -rho alpha
    const double expansion = p.density * p(Property::thermalExpansion);
    const double slope = inDensity(Property::enthalpy, p);
    const double cp = inT(Property::enthalpy, p) - slope * expansion;
    pressure.near(p(Property::isobaricHeatCapacity), cp, differences,
                  std::max(cp, std::abs(slope * expansion)), p.text());
  }
}

// cp - cv = T v alpha^2/kappa
TEST(ThermodynamicLaws, HeatCapacitiesDifferByExpansion) {
  Grid comparison("cp - cv");
  for (const Point& p : grid()) {
    const double alpha = p(Property::thermalExpansion);
    const double difference =
        1000.0 * p.T * alpha * alpha / (p(Property::compressibility) * p.density);
    comparison.near(p(Property::isobaricHeatCapacity) - p(Property::isochoricHeatCapacity),
                    difference, 1e-12, p(Property::isobaricHeatCapacity), p.text());
  }
}

TEST(ThermodynamicLaws, ExpansionAndCompressibilityAreSlopesOfThePressure) {
  Grid compression("kappa");
  Grid expansion("alpha");
  for (const Point& p : grid()) {
    const double kappa = p(Property::compressibility);
    const double Pr = inDensity(Property::pressure, p);
    const double thermal = 1e-3 * p.density * R;  // dP/dT of the ideal gas, MPa/K
    // Near the spinodal dP/drho is a small difference.
    compression.near(1.0 / (kappa * p.density), Pr, differences, std::max(Pr, 1e-3 * R * p.T),
                     p.text());
    expansion.near(p(Property::thermalExpansion) / kappa, inT(Property::pressure, p), differences,
                   std::max(std::abs(inT(Property::pressure, p)), thermal), p.text());
  }
}

// w^2 = (dP/drho)_s = (cp/cv)/(rho kappa)
TEST(ThermodynamicLaws, SoundTravelsWithTheIsentropicCompressibility) {
  Grid comparison("w");
  for (const Point& p : grid()) {
    const double ratio = p(Property::isobaricHeatCapacity) / p(Property::isochoricHeatCapacity);
    comparison.relative(p(Property::speedOfSound),
                        std::sqrt(1e6 * ratio / (p.density * p(Property::compressibility))), 1e-12,
                        p.text());
  }
}

// (dP/drho)_s by following the isentrope: ds = 0 fixes dT/drho.
TEST(ThermodynamicLaws, SoundTravelsAlongTheIsentrope) {
  Grid comparison("w along the isentrope");
  for (const Point& p : grid()) {
    const double slopeT = -inDensity(Property::entropy, p) / inT(Property::entropy, p);
    const double alongIsotherm = inDensity(Property::pressure, p);
    const double alongIsentrope = alongIsotherm + inT(Property::pressure, p) * slopeT;
    comparison.near(std::pow(p(Property::speedOfSound), 2), 1e6 * alongIsentrope, 5.0 * differences,
                    1e6 * std::max({alongIsentrope, std::abs(alongIsotherm), 1e-3 * R * p.T}),
                    p.text());
  }
}

// (dh/dP)_T = v (1 - T alpha), (dT/dP)_h = -(dh/dP)_T/cp
TEST(ThermodynamicLaws, ThrottlingFollowsFromExpansion) {
  Grid isothermal("delta");
  Grid isenthalpic("muJT");
  for (const Point& p : grid()) {
    const double volume = 1000.0 / p.density;
    const double delta = volume * (1.0 - p.T * p(Property::thermalExpansion));
    isothermal.near(p(Property::isothermalThrottling), delta, 1e-12,
                    std::max(std::abs(delta), volume), p.text());
    isenthalpic.near(p(Property::jouleThomson),
                     -p(Property::isothermalThrottling) / p(Property::isobaricHeatCapacity), 1e-14,
                     volume / p(Property::isobaricHeatCapacity), p.text());
  }
}

TEST(ThermodynamicLaws, EnergiesAreTiedByTheirDefinitions) {
  Grid comparison("definitions");
  for (const Point& p : grid()) {
    const double Pv = 1000.0 * p(Property::pressure) / p.density;
    const double Ts = p.T * p(Property::entropy);
    const double u = p(Property::internalEnergy);
    const double scale = std::max({std::abs(u), std::abs(Ts), Pv, 2000.0});
    comparison.near(p(Property::enthalpy), u + Pv, 1e-13, scale, "h, " + p.text());
    comparison.near(p(Property::helmholtz), u - Ts, 1e-13, scale, "a, " + p.text());
    comparison.near(p(Property::gibbs), u + Pv - Ts, 1e-13, scale, "g, " + p.text());
    comparison.near(p(Property::compressibilityFactor), Pv / (R * p.T), 1e-13,
                    std::max(1.0, Pv / (R * p.T)), "Z, " + p.text());
  }
}

TEST(ThermodynamicLaws, StableStatesHavePositiveHeatCapacitiesAndSound) {
  Grid comparison("stability");
  for (const Point& p : grid()) {
    comparison.holds(p(Property::isochoricHeatCapacity) > 0.0, "cv, " + p.text());
    comparison.holds(p(Property::isobaricHeatCapacity) >= p(Property::isochoricHeatCapacity),
                     "cp >= cv, " + p.text());
    comparison.holds(p(Property::speedOfSound) > 0.0, "w, " + p.text());
    comparison.holds(p(Property::viscosity) > 0.0, "mu, " + p.text());
    comparison.holds(p(Property::thermalConductivity) > 0.0, "lambda, " + p.text());
    // The dielectric constant's correlation ends at 823.15 K.
    if (p.T < 823.15) {
      comparison.holds(p(Property::dielectricConstant) >= 1.0, "epsilon, " + p.text());
    }
  }
}

TEST(ThermodynamicLaws, ThinSteamIsAnIdealGas) {
  Grid comparison("ideal gas");
  for (const double T : {300.0, 500.0, 800.0, 1200.0, 2000.0}) {
    const Point p{T, 1e-9};
    comparison.near(p(Property::compressibilityFactor), 1.0, 1e-9, 1.0, p.text());
    comparison.near(p.T * p(Property::thermalExpansion), 1.0, 1e-9, 1.0, p.text());
    comparison.near(p(Property::pressure) * p(Property::compressibility), 1.0, 1e-9, 1.0, p.text());
    comparison.near(p(Property::isobaricHeatCapacity) - p(Property::isochoricHeatCapacity), R, 1e-9,
                    R, p.text());
    comparison.near(p(Property::dielectricConstant), 1.0, 1e-9, 1.0, p.text());
  }
}

// The saturation line
// -------------------------------------------------------------------------------------

class SaturationLaws : public testing::Test {
 protected:
  Diagnostics diagnostics;
  SteamModel model{diagnostics};
};

TEST_F(SaturationLaws, BothPhasesHaveOnePressureAndOneGibbsEnergy) {
  Grid comparison("equilibrium");
  for (double T = 273.16; T < criticalT - 0.5; T += 3.1) {
    const double P = model.PSatT(T);
    const Point liquid{T, model.saturatedTQ(Property::density, T, 0.0)};
    const Point vapour{T, model.saturatedTQ(Property::density, T, 1.0)};
    const std::string at = fmt::format("T = {}", T);
    comparison.near(liquid(Property::gibbs), vapour(Property::gibbs), 1e-9, 2000.0, at + ", g");
    comparison.near(vapour(Property::pressure), P, 1e-8, P, at + ", P of the vapour");
    // A liquid's pressure follows its density as closely as its compressibility lets it.
    comparison.near(liquid(Property::pressure), P, 1e-8, std::max(P, 1e-3 * liquid.density * R * T),
                    at + ", P of the liquid");
    comparison.holds(liquid.density > vapour.density, at + ", order of the densities");
  }
}

// dP/dT = (sv - sl)/(vv - vl) (B. P. E. Clapeyron, 1834; R. Clausius, 1850)
TEST_F(SaturationLaws, TheLineRisesAsClausiusAndClapeyronSay) {
  Grid comparison("Clausius-Clapeyron");
  for (double T = 275.0; T < criticalT - 3.0; T += 4.7) {
    const double slope =
        derivative([&](double t) { return model.PSatT(t); }, T, std::min(1.0, 0.1 * (646.5 - T)));
    const Point liquid{T, model.saturatedTQ(Property::density, T, 0.0)};
    const Point vapour{T, model.saturatedTQ(Property::density, T, 1.0)};
    const double entropies = vapour(Property::entropy) - liquid(Property::entropy);
    const double volumes = 1.0 / vapour.density - 1.0 / liquid.density;
    comparison.relative(slope, 1e-3 * entropies / volumes, 1e-6, fmt::format("T = {}", T));
  }
}

TEST_F(SaturationLaws, TheHeatOfEvaporationIsTTimesTheEntropyOfEvaporation) {
  Grid comparison("h_v - h_l = T (s_v - s_l)");
  for (double T = 273.16; T < criticalT - 0.5; T += 3.1) {
    const double heat = model.saturatedTQ(Property::enthalpy, T, 1.0) -
                        model.saturatedTQ(Property::enthalpy, T, 0.0);
    const double entropy =
        model.saturatedTQ(Property::entropy, T, 1.0) - model.saturatedTQ(Property::entropy, T, 0.0);
    comparison.near(heat, T * entropy, 1e-9, 2000.0, fmt::format("T = {}", T));
  }
}

TEST_F(SaturationLaws, TheDensitiesCloseUpTowardsTheCriticalPoint) {
  Grid comparison("monotone densities");
  double liquid = 1e9, vapour = 0.0;
  // Water is densest at 277 K.
  for (double T = 278.0; T < criticalT - 0.5; T += 0.7) {
    const double l = model.saturatedTQ(Property::density, T, 0.0);
    const double v = model.saturatedTQ(Property::density, T, 1.0);
    comparison.holds(l < liquid && v > vapour, fmt::format("T = {}", T));
    liquid = l;
    vapour = v;
  }
}

}  // namespace
}  // namespace calvex::test
