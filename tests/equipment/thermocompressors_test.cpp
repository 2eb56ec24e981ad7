// Thermocompressors by balances and by chart: the balances, every inverse, the order of the checks
// and the messages.
#include <gtest/gtest.h>

#include <algorithm>

#include "equipment/models.h"

namespace calvex {
namespace {

using enum UnitGroup;
using namespace models;

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

// Balances -------------------------------------------------------------------------------------

class Thermocompressors : public testing::Test {
 protected:
  // Superheated steam at random: pressure given.
  double superheated(double P, double most) {
    double T = 0.0;
    EXPECT_EQ(engine.TSatP(&T, P), 1);
    return T + between(1.0, most);
  }
  double between(double low, double high) {
    return std::uniform_real_distribution(low, high)(random);
  }
  double spread(double low, double high) {
    return std::exp(between(std::log(low), std::log(high)));
  }
  double HPT(double P, double T) {
    double h = 0.0;
    EXPECT_EQ(engine.HPT(&h, P, T), 1) << P << ' ' << T << ' ' << engine.LastError();
    return h;
  }
  double SPH(double P, double h) {
    double s = 0.0;
    EXPECT_EQ(engine.SPH(&s, P, h), 1) << P << ' ' << h << ' ' << engine.LastError();
    return s;
  }
  double saturated(double P, double Q) {
    double h = 0.0;
    EXPECT_EQ(engine.HSatPQ(&h, P, Q), 1);
    return h;
  }
  std::vector<double> run(const ModelUnderTest& model, const std::vector<double>& in) {
    std::vector<double> out(model.outputs.size());
    EXPECT_EQ(model.run(engine, out.data(), in.data()), 1) << model.name << engine.LastError();
    return out;
  }
  std::string failure(const ModelUnderTest& model, const std::vector<double>& in) {
    std::vector<double> out(model.outputs.size(), test::untouched);
    engine.ClearTraceInfo();
    EXPECT_EQ(model.run(engine, out.data(), in.data()), 0) << model.name;
    for (const double x : out) EXPECT_EQ(x, test::untouched) << model.name;
    return engine.LastError();
  }

  static constexpr std::uint64_t seed = 19730501;
  testing::ScopedTrace trace{__FILE__, __LINE__, "seed " + std::to_string(seed)};
  std::mt19937_64 random{seed};
  ZvThermoInt engine;
};

TEST_F(Thermocompressors, EjectorReturnsTheRatiosAndTheMixtureEnthalpy) {
  const std::vector<double> out = run(thermoCompA, ejectorExample);
  EXPECT_NEAR(out[0], (2.0 * 2830.0 + 2675.0) / 3.0, 1e-9);
  EXPECT_NEAR(out[2], 10.0, 1e-12);
  EXPECT_NEAR(out[3], 1.7, 1e-12);
}

TEST_F(Thermocompressors, EjectorPerformanceFactorSolvesTheDiffuserCorrelation) {
  const std::vector<double>& in = ejectorExample;
  const double pf = run(thermoCompA, in)[1];
  // The balance and the correlation, step by step from the property members.
  double hIs = 0.0;
  ASSERT_EQ(engine.HPS(&hIs, in[3], SPH(in[1], in[0])), 1);
  const double ke = (in[0] - hIs) * 4.0 / 9.0;  // R = 2
  const double hStatic = (2.0 * in[0] + in[2]) / 3.0 - ke;
  double h2 = 0.0;
  ASSERT_EQ(engine.HPS(&h2, in[4], SPH(in[3], hStatic)), 1);
  const double etaD = (h2 - hStatic) / ke;
  const double k = ke / 2.326;
  // Without its vanishing k0 the correlation is (1 - k/(k + k1)) a = etaD.
  EXPECT_NEAR(1.21462383974304 * pf * (1.0 - k / (k + 582.414319479662)), etaD, 1e-7);
}

TEST_F(Thermocompressors, EjectorInverseRecoversTheRatio) {
  int recovered = 0;
  for (int i = 0; i < 1000; ++i) {
    const double pMs = spread(0.3, 8.0);
    const double Pss = spread(0.01, pMs / 1.5);
    const double Pds = Pss * between(1.05, std::min(2.5, pMs / Pss));
    const double R = spread(0.3, 20.0);
    std::vector<double> in{
        HPT(pMs, superheated(pMs, 150.0)), pMs, HPT(Pss, superheated(Pss, 60.0)), Pss, Pds, R};
    std::vector<double> out(4);
    // Little motive steam cannot reach a high discharge pressure.
    if (!thermoCompA.run(engine, out.data(), in.data())) {
      EXPECT_EQ(engine.LastError(), "Calculated diffuser efficiency greater than 1.0 !");
      continue;
    }
    in[5] = out[1];
    const std::vector<double> back = run(thermoCompB, in);
    EXPECT_NEAR(back[1], R, 1e-6 * R) << i;
    EXPECT_NEAR((R + 1.0) * out[0], R * in[0] + in[2], 1e-9 * (R + 1.0) * out[0]);
    EXPECT_NEAR((back[1] + 1.0) * back[0], back[1] * in[0] + in[2],
                1e-9 * (back[1] + 1.0) * back[0]);
    const double entropyProduced =
        (R + 1.0) * SPH(Pds, out[0]) - R * SPH(pMs, in[0]) - SPH(Pss, in[2]);
    EXPECT_GE(entropyProduced, -1e-9) << i;
    ++recovered;
  }
  EXPECT_GT(recovered, 500);
}

TEST_F(Thermocompressors, DischargeClosesMassEnergyAndCondensationBalances) {
  int superheatedDischarges = 0;
  for (int i = 0; i < 500; ++i) {
    const double MSP = spread(0.3, 8.0);
    const double SSP = spread(0.01, MSP / 1.5);
    const std::vector<double> in{MSP, superheated(MSP, 150.0), between(0.1, 20.0),
                                 SSP, superheated(SSP, 60.0),  between(0.1, 20.0)};
    const std::vector<double> out = run(chartA, in);
    EXPECT_NEAR(out[0] / SSP, ChartCompressionRatio(MSP / SSP, in[2] / in[5]),
                1e-12 * out[0] / SSP);
    EXPECT_NEAR(out[2], in[2] + in[5], 1e-12 * out[2]);
    const double brought = in[2] * HPT(MSP, in[1]) + in[5] * HPT(SSP, in[4]);
    const double hG = saturated(out[0], 1.0);
    if (brought / out[2] / hG < 1.0001) continue;  // wet: its duty is that of saturated vapour
    ++superheatedDischarges;
    EXPECT_NEAR(out[2] * HPT(out[0], out[1]), brought, 1e-9 * brought) << i;
    EXPECT_NEAR(out[3], brought - out[2] * saturated(out[0], 0.0), 1e-9 * out[3]) << i;
  }
  EXPECT_GT(superheatedDischarges, 400);
}

TEST_F(Thermocompressors, WetDischargeGivesUpTheHeatOfSaturatedVapour) {
  std::vector<double> in{8.0, 0.0, 1.0, 4.0, 0.0, 1.0};
  ASSERT_EQ(engine.TSatP(&in[1], in[0]), 1);
  ASSERT_EQ(engine.TSatP(&in[4], in[3]), 1);
  const std::vector<double> out = run(chartA, in);
  const double hD = 0.5 * (saturated(8.0, 1.0) + saturated(4.0, 1.0));
  const double hG = saturated(out[0], 1.0);
  ASSERT_LT(hD / hG, 0.9999);
  double TSat = 0.0;
  ASSERT_EQ(engine.TSatP(&TSat, out[0]), 1);
  EXPECT_NEAR(out[1], TSat, 1e-6);
  EXPECT_NEAR(out[3], 2.0 * (hG - saturated(out[0], 0.0)), 1e-9 * out[3]);
}

TEST_F(Thermocompressors, AllGivenQuantitiesDescribeTheSameMachine) {
  for (int i = 0; i < 300; ++i) {
    const double MSP = spread(0.3, 8.0);
    const double SSP = spread(0.01, MSP / 2.0);
    const double MST = superheated(MSP, 150.0);
    const double SST = superheated(SSP, 60.0);
    const double MSF = between(0.1, 20.0);
    const double R = spread(0.3, 20.0);
    const double SSF = MSF / R;
    const std::vector<double> a = run(chartA, {MSP, MST, MSF, SSP, SST, SSF});
    const double DSP = a[0];
    const double DST = a[1];
    const double DSF = a[2];
    const double HXDuty = a[3];
    const auto expect = [&](const std::vector<double>& actual, std::vector<double> expected) {
      for (std::size_t j = 0; j < expected.size(); ++j) {
        EXPECT_NEAR(actual[j], expected[j], 1e-8 * expected[j]) << i << " output " << j;
      }
    };
    expect(run(chartB, {MSP, MST, SSP, SST, DSP, HXDuty}), {DSF, DST, MSF, SSF});
    expect(run(chartC, {MSP, MST, SSP, SST, DSP, DSF}), {DST, HXDuty, MSF, SSF});
    expect(run(chartD, {MSP, MST, SSP, SST, DSP, SSF}), {DST, HXDuty, DSF, MSF});
    expect(run(chartE, {MSP, MST, SSP, SST, DSP, MSF}), {DST, HXDuty, DSF, SSF});
    expect(run(chartF, {MSP, MST, SSP, SST, SSF, HXDuty}), {DST, DSP, DSF, MSF});
    expect(run(chartG, {MSP, MST, SSP, SST, MSF, HXDuty}), {DST, DSP, DSF, SSF});
  }
}

TEST_F(Thermocompressors, DutyIsMetByTheDischargeThatIsFound) {
  for (const ModelUnderTest* model : {&chartF, &chartG}) {
    for (const double HXDuty : {3000.0, 5000.0, 20000.0, 150000.0}) {
      std::vector<double> in(chartFExample);
      in[4] = model == &chartF ? 1.0 : 1.2;
      in[5] = HXDuty;
      const std::vector<double> out = run(*model, in);
      const double q = HPT(out[1], out[0]) - saturated(out[1], 0.0);
      EXPECT_NEAR(q * out[2], HXDuty, 1e-9 * HXDuty) << model->name;
    }
  }
}

TEST_F(Thermocompressors, DutyInTheJumpToSaturatedDischargeIsNoSolution) {
  // The discharge counts as saturated up to 1.0001 of the vapour's enthalpy. Motive steam with a
  // little superheat passes that limit as its flow grows, and the duty jumps over some 1e-4.
  std::vector<double> in{8.0, 0.0, 0.0, 4.0, 0.0, 1.0};
  ASSERT_EQ(engine.TSatP(&in[1], in[0]), 1);
  in[1] += 5.0;
  ASSERT_EQ(engine.TSatP(&in[4], in[3]), 1);
  const auto discharge = [&](double MSF) {
    in[2] = MSF;
    return run(chartA, in);
  };
  double low = 1.0;
  double high = 100.0;
  while (high - low > 1e-9) {
    const double middle = 0.5 * (low + high);
    const std::vector<double> out = discharge(middle);
    double TSat = 0.0;
    ASSERT_EQ(engine.TSatP(&TSat, out[0]), 1);
    (out[1] > TSat + 1e-6 ? high : low) = middle;
  }
  const double below = discharge(low)[3];
  const double above = discharge(high)[3];
  ASSERT_GT(above / below, 1.00005);
  for (const double share : {0.1, 0.5, 0.9}) {
    EXPECT_EQ(failure(chartF, {8.0, in[1], 4.0, in[4], 1.0, below + share * (above - below)}),
              "Solution Error.");
  }
}

TEST_F(Thermocompressors, NoCompressionNeedsNoMotiveFlow) {
  std::vector<double> in(chartCExample);
  in[4] = in[2];
  const std::vector<double> out = run(chartC, in);
  EXPECT_EQ(out[2], 0.0);
  EXPECT_EQ(out[3], in[5]);
  EXPECT_NEAR(out[0], in[3], 1e-6);
}

// Messages -------------------------------------------------------------------------------------

constexpr const char* outOfPressures = " parameter out of range (Valid range 0.00 to 3000.00 MPa).";
constexpr const char* outOfTemperatures =
    " parameter out of range (Valid range 260.00 to 2500.00 K).";

void expectLabelsInOrder(const ModelUnderTest& model, std::vector<double> in,
                         std::span<const std::pair<std::size_t, const char*>> labels) {
  const std::vector<double> good(in);
  std::vector<std::string> messages;
  for (const auto& [input, label] : labels) {
    in[input] = -1.0;
    messages.push_back(
        label + std::string(model.inputs[input] == pressure ? outOfPressures : outOfTemperatures));
  }
  std::vector<NextFault> faults;
  for (std::size_t i = 0; i < labels.size(); ++i) {
    faults.push_back({labels[i].first, good[labels[i].first], messages[i].c_str()});
  }
  ZvThermoInt engine;
  expectFaultsInOrder(model, engine, in, faults);
}

TEST_F(Thermocompressors, EjectorFaultsAreReportedInOrder) {
  const std::vector<double> in{-1.0, -1.0, -1.0, -1.0, -1.0, -1.0};
  constexpr NextFault checks[] = {
      {1, 1.0, "Motive Steam Pressure parameter out of range (Valid range 0.00 to 3000.00 MPa)."},
      {3, 0.1, "Suction Steam Pressure parameter out of range (Valid range 0.00 to 3000.00 MPa)."},
      {4, 0.17,
       "Discharge Steam Pressure parameter out of range (Valid range 0.00 to 3000.00 MPa)."},
      {0, 2830.0, "Motive Steam Enthalpy parameter out of range."},
      {2, 2675.0, "Suction Steam Enthalpy parameter out of range."},
  };
  std::vector<NextFault> faults(std::begin(checks), std::end(checks));
  faults.push_back({5, 2.0, "Motive/Suction steam ratio must be non-negative!"});
  expectFaultsInOrder(thermoCompA, engine, in, faults);
  faults.back() = {
      5, 0.47, "Performance Factor parameter out of range (Valid range 0.00 to 1.00 Fraction)."};
  expectFaultsInOrder(thermoCompB, engine, in, faults);
}

TEST_F(Thermocompressors, ChartFaultsAreReportedInOrder) {
  using Labels = std::vector<std::pair<std::size_t, const char*>>;
  expectLabelsInOrder(chartA, chartAExample,
                      Labels{{0, "Motive Steam Pressure"},
                             {3, "Suction Steam Pressure"},
                             {1, "Motive Steam Temperature"},
                             {4, "Suction Steam Temperature"}});
  const Labels motiveFirst{{0, "MSPressure"},
                           {2, "SSPressure"},
                           {4, "DSPressure"},
                           {1, "MSTemperature"},
                           {3, "SSTemperature"}};
  expectLabelsInOrder(chartC, chartCExample, motiveFirst);
  expectLabelsInOrder(chartD, chartCExample, motiveFirst);
  expectLabelsInOrder(chartE, chartCExample, motiveFirst);
  const Labels noDischarge{
      {0, "MSPressure"}, {2, "SSPressure"}, {1, "MSTemperature"}, {3, "SSTemperature"}};
  expectLabelsInOrder(chartF, chartFExample, noDischarge);
  expectLabelsInOrder(chartG, chartFExample, noDischarge);
}

TEST_F(Thermocompressors, FromTheDutyTheSuctionTemperatureIsCheckedFirst) {
  using Labels = std::vector<std::pair<std::size_t, const char*>>;
  expectLabelsInOrder(chartB, chartBExample,
                      Labels{{0, "MSPressure"},
                             {2, "SSPressure"},
                             {4, "DSPressure"},
                             {3, "SSTemperature"},
                             {1, "MSTemperature"}});
}

TEST_F(Thermocompressors, PerformanceFactorIsAboveZeroUpToOne) {
  std::vector<double> in(ejectorInverseExample);
  for (const double pf : {0.0, -0.1, 1.0001, NaN}) {
    in[5] = pf;
    EXPECT_EQ(failure(thermoCompB, in),
              "Performance Factor parameter out of range (Valid range 0.00 to 1.00 Fraction).");
  }
  // One is let through, to an efficiency that this machine cannot have.
  in[5] = 1.0;
  EXPECT_EQ(failure(thermoCompB, in), "Calculated diffuser efficiency greater than 1.0 !");
}

TEST_F(Thermocompressors, PerformanceFactorBoundsAreShownInTheUnitOfEfficiencies) {
  ASSERT_EQ(engine.SetUserUnitIndex(11, "%"), 1);
  std::vector<double> in(ejectorInverseExample);
  in[5] = 1.5;  // a ratio, still in fractions
  EXPECT_EQ(failure(thermoCompB, in),
            "Performance Factor parameter out of range (Valid range 0.00 to 100.00 %).");
  in[5] = 0.47;
  run(thermoCompB, in);
}

TEST_F(Thermocompressors, EjectorWithoutMotiveFlowFailsTheEfficiencyTest) {
  std::vector<double> in(ejectorExample);
  in[5] = 0.0;
  EXPECT_EQ(failure(thermoCompA, in), "Calculated diffuser efficiency greater than 1.0 !");
}

TEST_F(Thermocompressors, EjectorDoesNotTestThePressureOrder) {
  std::vector<double> in(ejectorExample);
  in[1] = 0.05;  // motive below suction
  EXPECT_EQ(failure(thermoCompA, in), "Calculated diffuser efficiency less than 0.0 !");
  in = ejectorExample;
  in[4] = 0.09;  // discharge below suction
  EXPECT_EQ(failure(thermoCompA, in), "Calculated diffuser efficiency less than 0.0 !");
}

TEST_F(Thermocompressors, EjectorWithoutAPerformanceFactorIsNoSolution) {
  std::vector<double> in(ejectorExample);
  in[1] = 0.05;  // no kinetic energy, and an efficiency that the correlation does not have
  in[4] = 0.099;
  EXPECT_EQ(failure(thermoCompA, in), "Solution Error.");
}

TEST_F(Thermocompressors, EjectorInverseWithoutASignChangeSaysSo) {
  std::vector<double> in(ejectorInverseExample);
  in[4] = 0.9;
  EXPECT_EQ(failure(thermoCompB, in), "Unable to bracket the root of the equations!");
  in = ejectorInverseExample;
  in[1] = in[3];  // no drop but for its rounding, which the text may hinge on; the cause does not
  in[0] = 2700.0;
  EXPECT_NE(failure(thermoCompB, in), "");
  EXPECT_EQ(engine.diagnostics().cause(),
            "Motive pressure 0.1 MPa is not above 0.1 MPa, the suction pressure: such steam drives "
            "nothing.");
}

TEST_F(Thermocompressors, EjectorInverseTriesAHundredTimesToBracket) {
  std::vector<double> in(ejectorInverseExample);
  in[4] = 0.9;
  failure(thermoCompB, in);
  int calls = 0;
  const ZvFunctionCall* call = engine.diagnostics().root().firstChild();
  ASSERT_NE(call, nullptr);
  for (const ZvFunctionCall* x = call->firstChild(); x != nullptr; x = x->nextSibling()) {
    if (x->kind() == ZvFunctionCall::Kind::call) ++calls;
  }
  // SPH and HPS for the isentropic drop, for both ends and for each try
  EXPECT_EQ(calls, 2 * (1 + 2 + 100));
}

TEST_F(Thermocompressors, EjectorInverseReportsUnderTheNameOfTheDirectModel) {
  std::vector<double> in(ejectorInverseExample);
  in[5] = 2.0;
  failure(thermoCompB, in);
  EXPECT_EQ(test::traceOf(engine),
            "ThermoCompA\n"
            "  error: Performance Factor parameter out of range (Valid range 0.00 to 1.00 "
            "Fraction).\n");
}

TEST_F(Thermocompressors, EjectorSolveLeavesTheSolversNote) {
  ASSERT_EQ(engine.SetTraceLevel(2), 1);
  engine.ClearTraceInfo();
  run(thermoCompA, ejectorExample);
  const std::string text = test::traceOf(engine);
  EXPECT_NE(text.find("\n  note: Solver : Iter = "), std::string::npos) << text;
}

TEST_F(Thermocompressors, RatiosThatAreNotFiniteAreNoSolution) {
  EXPECT_EQ(failure(chartA, {1.0, 473.0, 0.0, 0.1, 380.0, 0.0}), "Solution Error.");   // R = 0/0
  EXPECT_EQ(failure(chartA, {1.0, 473.0, 1.0, 0.1, 380.0, 0.0}), "Solution Error.");   // R infinite
  EXPECT_EQ(failure(chartA, {1.0, 473.0, 1.0, 0.1, 380.0, -1.0}), "Solution Error.");  // R = -1
  EXPECT_EQ(failure(chartE, {1.0, 473.0, 0.1, 380.0, 0.1, 1.0}), "Solution Error.");   // R = 0
}

TEST_F(Thermocompressors, EqualPressuresOfMotiveAndDischargeNeedAHundredfoldMotiveFlow) {
  const std::vector<double> out = run(chartD, {1.0, 473.0, 0.1, 380.0, 1.0, 0.5});
  EXPECT_NEAR(out[3], 50.0, 1e-8);
}

TEST_F(Thermocompressors, UnreachableDutiesAreNotBracketed) {
  for (const ModelUnderTest* model : {&chartF, &chartG}) {
    for (const double duty : {0.0, -1.0, 1.0, 1e12, NaN, infinity}) {
      std::vector<double> in(chartFExample);
      in[5] = duty;
      EXPECT_EQ(failure(*model, in), "Unable to bracket the root of the equations!") << duty;
    }
  }
}

TEST_F(Thermocompressors, TraceOfAFailureShowsTheCallThatFailed) {
  std::vector<double> in(chartBExample);
  in[0] = 25.0;
  in[4] = 23.0;
  EXPECT_EQ(failure(chartB, in),
            "Pressure parameter out of range (Valid range 0.00 to 22.05 MPa).");
  EXPECT_EQ(test::traceOf(engine),
            "ThermoCompressorB\n"
            "  HPTQ\n"
            "  HPTQ\n"
            "  HSatPQ\n"
            "    error: Pressure parameter out of range (Valid range 0.00 to 22.05 MPa).\n");
}

TEST_F(Thermocompressors, AnswerTheSameInMixedUnits) {
  expectSameInMixedUnits(thermoCompA, ejectorExample);
  expectSameInMixedUnits(thermoCompB, ejectorInverseExample);
  expectSameInMixedUnits(chartA, chartAExample);
  expectSameInMixedUnits(chartB, chartBExample);
  expectSameInMixedUnits(chartC, chartCExample);
  expectSameInMixedUnits(chartD, chartCExample);
  expectSameInMixedUnits(chartE, chartCExample);
  expectSameInMixedUnits(chartF, chartFExample);
  expectSameInMixedUnits(chartG, chartFExample);
  // Saturated supplies: the quality of vapour is 100 in percent.
  std::vector<double> saturatedSupplies(chartAExample);
  ASSERT_EQ(engine.TSatP(&saturatedSupplies[1], saturatedSupplies[0]), 1);
  ASSERT_EQ(engine.TSatP(&saturatedSupplies[4], saturatedSupplies[3]), 1);
  expectSameInMixedUnits(chartA, saturatedSupplies);
}

TEST_F(Thermocompressors, ArbitraryInputsNeverGiveANaN) {
  expectSanityOnArbitraryDoubles(thermoCompA, 1, 2000, ejectorExample);
  expectSanityOnArbitraryDoubles(thermoCompB, 2, 1000, ejectorInverseExample);
  expectSanityOnArbitraryDoubles(chartA, 3, 2000, chartAExample);
  expectSanityOnArbitraryDoubles(chartB, 4, 2000, chartBExample);
  expectSanityOnArbitraryDoubles(chartC, 5, 2000, chartCExample);
  expectSanityOnArbitraryDoubles(chartD, 6, 2000, chartCExample);
  expectSanityOnArbitraryDoubles(chartE, 7, 2000, chartCExample);
  expectSanityOnArbitraryDoubles(chartF, 8, 1000, chartFExample);
  expectSanityOnArbitraryDoubles(chartG, 9, 1000, chartFExample);
}

}  // namespace
}  // namespace calvex
