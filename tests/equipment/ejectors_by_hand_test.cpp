// The ejectors by balances and by chart against a second computation: their correlation, their root
// search from the same bracket, and every way of asking the chart.
#include <fmt/format.h>

#include <algorithm>
#include <numbers>
#include <random>

#include "equipment/brent.h"
#include "equipment/models.h"
#include "support/failures.h"

namespace calvex {
namespace {

using test::valueOf;

class EjectorsByHand : public testing::Test {
 protected:
  double between(double low, double high) {
    return std::uniform_real_distribution(low, high)(random);
  }
  double spread(double low, double high) { return low * std::pow(high / low, between(0.0, 1.0)); }
  double boiling(double P) {
    double T = 0.0;
    EXPECT_EQ(engine.TSatP(&T, P), 1);
    return T;
  }
  double HPT(double P, double T) { return valueOf(engine, &ZvThermoInt::HPT, P, T); }
  double HPS(double P, double s) { return valueOf(engine, &ZvThermoInt::HPS, P, s); }
  double SPH(double P, double h) { return valueOf(engine, &ZvThermoInt::SPH, P, h); }
  double line(double P, double Q) { return valueOf(engine, &ZvThermoInt::HSatPQ, P, Q); }
  int property(const ModelUnderTest& model, const std::vector<double>& in,
               std::vector<double>& out) {
    out.assign(model.outputs.size(), test::untouched);
    return model.run(engine, out.data(), in.data());
  }

  // Motive and suction enthalpies and pressures, discharge pressure.
  std::vector<double> anyEjector() {
    const double pMs = spread(0.3, 8.0);
    const double Pss = spread(0.01, pMs / 1.5);
    return {HPT(pMs, boiling(pMs) + between(1.0, 150.0)), pMs,
            HPT(Pss, boiling(Pss) + between(1.0, 60.0)), Pss,
            Pss * between(1.05, std::min(2.5, pMs / Pss))};
  }
  double drop(const std::vector<double>& x) { return x[0] - HPS(x[3], SPH(x[1], x[0])); }
  struct Jet {
    double ke, etaD;
  };
  Jet jet(const std::vector<double>& x, double dhIs, double R) {
    const double share = R / (R + 1.0);
    const double ke = dhIs * share * share;
    const double still = (R * x[0] + x[2]) / (R + 1.0) - ke;
    return {ke, (HPS(x[4], SPH(x[3], still)) - still) / ke};
  }
  // The calls that the last model made.
  int propertyCalls() {
    int calls = 0;
    const ZvFunctionCall* last = engine.diagnostics().root().firstChild();
    for (const ZvFunctionCall* x = last == nullptr ? nullptr : last->firstChild(); x != nullptr;
         x = x->nextSibling()) {
      if (x->kind() == ZvFunctionCall::Kind::call) ++calls;
    }
    return calls;
  }

  static constexpr std::uint64_t seed = 19491;
  testing::ScopedTrace trace{__FILE__, __LINE__, "seed " + std::to_string(seed)};
  std::mt19937_64 random{seed};
  ZvThermoInt engine;
};

// 1 - a k/(k + k1) - (1 - a) k/(k - k0) in 40-digit arithmetic, with k = ke/2.326, a = 1.2146 pf,
// k1 = 582.41 and k0 = 6.74e-9 in full digits.
TEST(DiffuserCorrelation, HasItsPrintedConstants) {
  struct Value {
    double pf, ke, etaD;
  };
  constexpr Value values[] = {
      {0.05, 50.0, 0.058569471126252991}, {0.47, 120.0, 0.52441969951612389},
      {0.7, 350.0, 0.67567014230272456},  {1.0, 900.0, 0.72978615086411305},
      {0.3, 1.5, 0.36398412031075421},    {0.6, 0.002, 0.72877110069121419},
      {0.6, 1e-6, 0.72445207248494053},   {0.4, 1e-7, 0.39019598738307364},
      {0.9, 2.5e-8, 1.2500562299585990},  {0.2, 1.6e-8, -37.570858788265381},
  };
  for (const auto& [pf, ke, etaD] : values) {
    EXPECT_NEAR(DiffuserCorrelation(pf, ke), etaD, 1e-13 * std::max(1.0, std::fabs(etaD)))
        << pf << ' ' << ke;
  }
}

TEST(DiffuserCorrelation, IsOneWithoutKineticEnergy) {
  for (const double k : {6.74374434162094e-9, 1e-9, 0.0, -1.0, -1e9}) {
    EXPECT_EQ(DiffuserCorrelation(0.5, k / 0.42992261392949266), 1.0) << k;
  }
  EXPECT_LT(DiffuserCorrelation(0.5, 6.7438e-9 / 0.42992261392949266), -1e4);
}

TEST_F(EjectorsByHand, PerformanceFactorIsThatOfTheBalances) {
  test::Grid grid("ThermoCompA");
  for (int i = 0; i < 300; ++i) {
    std::vector<double> x = anyEjector();
    const double R = spread(0.2, 30.0);
    const auto [ke, etaD] = jet(x, drop(x), R);
    x.push_back(R);
    std::vector<double> out;
    const std::string inputs = fmt::format("{}", fmt::join(x, ", "));
    const bool found = property(models::thermoCompA, x, out) == 1;
    grid.holds(found == (etaD >= 0.0 && etaD <= 1.0), inputs);
    if (!found) continue;
    const double k = ke / 2.326;
    const double pf = (1.0 - (1.0 - etaD)) / (1.0 - k / (k + 582.414319479662)) / 1.21462383974304;
    grid.near(out[1], pf, 1e-7, 1.0, inputs);
    grid.relative(out[0], (R * x[0] + x[2]) / (R + 1.0), 1e-12, inputs);
    grid.relative(out[2], x[1] / x[3], 1e-13, inputs);
    grid.relative(out[3], x[4] / x[3], 1e-13, inputs);
  }
}

// The root search begins with a bracket that grows in both directions, and ends within a tolerance
// that leaves its mark on the root: bracket, order and tolerance are those of the model.
TEST_F(EjectorsByHand, FlowRatioIsTheRootFromTheGrowingBracket) {
  test::Grid grid("ThermoCompB");
  int grown = 0;
  for (int i = 0; i < 400; ++i) {
    std::vector<double> x = anyEjector();
    const double pf = between(0.05, 1.0);
    const double dhIs = drop(x);
    double lastEta = 0.0;
    int evaluations = 0;
    const auto g = [&](double R) -> std::optional<double> {
      const Jet it = jet(x, dhIs, R);
      ++evaluations;
      lastEta = it.etaD;
      return it.etaD - DiffuserCorrelation(pf, it.ke);
    };
    double a = std::max(0.8, 1.0001 / (1.0 + std::sqrt(dhIs / x[2])) + 1e-4 -
                                 1e-4 / (1.0 + std::sqrt(dhIs / x[2])));
    double b = 4.0;
    double ga = *g(a);
    double gb = *g(b);
    for (int n = 0; n < 100 && ga * gb >= 0.0; ++n) {
      if (n % 2 == 0) {
        a *= 0.625;
        ga = *g(a);
      } else {
        b += 1.6 * (b - a);
        gb = *g(b);
      }
      ++grown;
    }
    x.push_back(pf);
    const std::string inputs = fmt::format("{}", fmt::join(x, ", "));
    ASSERT_EQ(engine.SetTraceLevel(2), 1);
    engine.ClearTraceInfo();
    std::vector<double> out;
    const bool found = property(models::thermoCompB, x, out) == 1;
    const int calls = propertyCalls();
    ASSERT_EQ(engine.SetTraceLevel(0), 1);
    if ((ga > 0.0 && gb > 0.0) || (ga < 0.0 && gb < 0.0)) {
      grid.holds(!found, inputs + ": found without a bracket");
      continue;
    }
    const std::optional<double> R = brentRoot(g, {a, ga, b, gb}, {3e-8, 5e-7});
    // Whether the last step is taken may hinge on the rounding of an enthalpy.
    const int expected = 2 * (1 + evaluations);
    grid.holds(std::abs(calls - expected) <= 2,
               fmt::format("{}: {} property calls, expected {}", inputs, calls, expected));
    grid.holds(found == (lastEta >= 0.0 && lastEta <= 1.0), inputs + engine.LastError());
    if (found) grid.relative(out[1], *R, calls == expected ? 1e-11 : 3e-7, inputs);
  }
  EXPECT_GT(grown, 100);
}

// By chart ---------------------------------------------------------------------------------------

TEST_F(EjectorsByHand, ChartModelsAgreeOnAnyMachine) {
  test::Grid grid("chart");
  for (int i = 0; i < 400; ++i) {
    const double MSP = spread(0.3, 10.0);
    const double SSP = spread(0.01, MSP / 2.0);
    const double MST = boiling(MSP) + between(1.0, 150.0);
    const double SST = boiling(SSP) + between(1.0, 60.0);
    const double DSP = SSP * spread(1.001, 0.9 * MSP / SSP);
    const double R = ChartEntrainmentRatio(MSP / SSP, DSP / SSP);
    const double hD = (R * HPT(MSP, MST) + HPT(SSP, SST)) / (R + 1.0);
    const double hG = line(DSP, 1.0);
    if (R <= 0.0 || hD < 1.001 * hG) continue;  // no machine, or nearly wet
    double DST = 0.0;
    ASSERT_EQ(engine.TPH(&DST, DSP, hD), 1);
    const double q = hD - line(DSP, 0.0);
    const double DSF = between(0.1, 50.0);
    const double MSF = DSF * R / (1.0 + R);
    const double SSF = DSF / (1.0 + R);
    const std::string inputs = fmt::format("{} {} {} {} {} {}", MSP, MST, SSP, SST, DSP, DSF);
    const auto expect = [&](const ModelUnderTest& model, double given,
                            std::vector<double> expected) {
      std::vector<double> out;
      grid.holds(property(model, {MSP, MST, SSP, SST, DSP, given}, out) == 1, inputs);
      for (std::size_t k = 0; k < expected.size(); ++k) {
        grid.relative(out[k], expected[k], 1e-9,
                      fmt::format("{}: {} output {}", inputs, model.name, k));
      }
    };
    expect(models::chartB, q * DSF, {DSF, DST, MSF, SSF});
    expect(models::chartC, DSF, {DST, q * DSF, MSF, SSF});
    expect(models::chartD, SSF, {DST, q * DSF, DSF, MSF});
    expect(models::chartE, MSF, {DST, q * DSF, DSF, SSF});
    std::vector<double> out;
    grid.holds(property(models::chartA, {MSP, MST, MSF, SSP, SST, SSF}, out) == 1, inputs);
    grid.relative(out[0], DSP, 1e-11, inputs + " A");
    grid.relative(out[1], DST, 1e-9, inputs + " A");
    grid.relative(out[3], q * DSF, 1e-9, inputs + " A");
  }
}

// Within 1e-4 of saturated vapour the discharge counts as saturated: no superheat is sought.
TEST_F(EjectorsByHand, DischargeWithinOnePartInTenThousandIsSaturated) {
  const double SSP = 0.5;
  const double MSP = 9.0;
  const double MSF = 2.0;
  const double SSF = 1.0;
  const double DSP = ChartCompressionRatio(MSP / SSP, MSF / SSF) * SSP;
  const double MST = boiling(MSP) + 2.0;
  const double hM = HPT(MSP, MST);
  const double hG = line(DSP, 1.0);
  ASSERT_EQ(engine.SetTraceLevel(2), 1);
  for (const double off : {-1.5e-4, -1.01e-4, -0.99e-4, 0.0, 0.99e-4, 1.01e-4, 1.5e-4}) {
    // Suction steam that makes the mixture's enthalpy hG / (1 - off) or hG (1 + off).
    const double hD = hG * (1.0 + off);
    const double hS = 3.0 * hD - 2.0 * hM;
    double SST = 0.0;
    ASSERT_EQ(engine.TPH(&SST, SSP, hS), 1);
    ASSERT_GT(SST, boiling(SSP) + 0.1);
    engine.ClearTraceInfo();
    std::vector<double> out;
    ASSERT_EQ(property(models::chartA, {MSP, MST, MSF, SSP, SST, SSF}, out), 1);
    const std::string text = test::traceOf(engine);
    EXPECT_EQ(test::contains(text, "\n  TSatP\n"), std::fabs(off) < 1e-4) << off;
    EXPECT_EQ(test::contains(text, "\n  TPH\n"), std::fabs(off) > 1e-4) << off;
    const double T = off > 1e-4 ? valueOf(engine, &ZvThermoInt::TPH, DSP, hD) : boiling(DSP);
    EXPECT_NEAR(out[1], T, 1e-7) << off;
    // A wet or saturated discharge condenses from saturated vapour.
    const double from = off > 1e-4 ? hD : hG;
    EXPECT_NEAR(out[3], 3.0 * (from - line(DSP, 0.0)), 1e-9 * out[3]) << off;
  }
}

// The search of F and G ends at flow ratios of 1e-4 and 100.
TEST_F(EjectorsByHand, DutyIsSoughtBetweenTheEndsOfTheChart) {
  const double MSP = 1.0, MST = 473.0, SSP = 0.1, SST = 380.0;
  const auto duty = [&](double MSF, double SSF) {
    std::vector<double> out;
    EXPECT_EQ(property(models::chartA, {MSP, MST, MSF, SSP, SST, SSF}, out), 1);
    return out[3];
  };
  const auto finds = [&](const ModelUnderTest& model, double flow, double HXDuty) {
    std::vector<double> out;
    return property(model, {MSP, MST, SSP, SST, flow, HXDuty}, out) == 1;
  };
  for (const double R : {1.001e-4, 1.5e-4, 66.0, 99.9}) {
    EXPECT_TRUE(finds(models::chartF, 1.0, duty(R, 1.0))) << R;
    EXPECT_TRUE(finds(models::chartG, 1.0, duty(1.0, 1.0 / R))) << R;
  }
  // Below 1e-4 the chart does not compress; the duty of a suction flow goes on in a straight line.
  const double least = 2.0 * duty(1e-4, 1.0) - duty(1.005e-4, 1.0);
  for (const double HXDuty : {least, duty(100.1, 1.0)}) {
    EXPECT_FALSE(finds(models::chartF, 1.0, HXDuty));
    EXPECT_EQ(engine.LastError(), "Unable to bracket the root of the equations!");
  }
  for (const double R : {0.999e-4, 100.1}) {
    EXPECT_FALSE(finds(models::chartG, 1.0, duty(1.0, 1.0 / R))) << R;
    EXPECT_EQ(engine.LastError(), "Unable to bracket the root of the equations!");
  }
}

TEST_F(EjectorsByHand, SolutionOfADutyIsExact) {
  test::Grid grid("F and G");
  for (int i = 0; i < 150; ++i) {
    const double MSP = spread(0.3, 8.0);
    const double SSP = spread(0.01, MSP / 2.0);
    const double MST = boiling(MSP) + between(1.0, 150.0);
    const double SST = boiling(SSP) + between(1.0, 60.0);
    const double R = spread(2e-4, 90.0);
    std::vector<double> a;
    ASSERT_EQ(property(models::chartA, {MSP, MST, R, SSP, SST, 1.0}, a), 1);
    const std::string inputs = fmt::format("{} {} {} {} {}", MSP, MST, SSP, SST, R);
    for (const ModelUnderTest* model : {&models::chartF, &models::chartG}) {
      std::vector<double> out;
      const bool isF = model == &models::chartF;
      const int found = property(*model, {MSP, MST, SSP, SST, isF ? 1.0 : R, a[3]}, out);
      grid.holds(found == 1, inputs + engine.LastError());
      if (found != 1) continue;
      grid.relative(out[0], a[1], 1e-8, inputs + model->name);
      grid.relative(out[1], a[0], 1e-8, inputs + model->name);
      grid.relative(out[2], a[2], 1e-7, inputs + model->name);
      grid.relative(out[3], isF ? R : 1.0, 1e-6, inputs + model->name);
    }
  }
}

TEST_F(EjectorsByHand, EveryModelAnswersTheSameInAnyUnits) {
  using namespace models;
  expectSameInUnits(thermoCompA, ejectorExample, chooseOffsetUnits);
  for (int i = 0; i < 40; ++i) {
    const double MSP = spread(0.3, 8.0);
    const double SSP = spread(0.01, MSP / 2.0);
    const double MST = boiling(MSP) + between(1.0, 150.0);
    const double SST = boiling(SSP) + between(1.0, 60.0);
    const double R = spread(0.3, 20.0);
    std::vector<double> a;
    ASSERT_EQ(property(chartA, {MSP, MST, R, SSP, SST, 1.0}, a), 1);
    for (const auto choose : {chooseMixedUnits, chooseOffsetUnits}) {
      expectSameInUnits(chartA, {MSP, MST, R, SSP, SST, 1.0}, choose);
      expectSameInUnits(chartB, {MSP, MST, SSP, SST, a[0], a[3]}, choose);
      expectSameInUnits(chartC, {MSP, MST, SSP, SST, a[0], a[2]}, choose);
      expectSameInUnits(chartD, {MSP, MST, SSP, SST, a[0], 1.0}, choose);
      expectSameInUnits(chartE, {MSP, MST, SSP, SST, a[0], R}, choose);
    }
  }
}

}  // namespace
}  // namespace calvex
