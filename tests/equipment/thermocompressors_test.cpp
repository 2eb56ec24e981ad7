// Thermocompressors by balances and by chart: the chart itself, the balances, every inverse, the
// order of the checks and the messages.
#include <gtest/gtest.h>

#include <algorithm>

#include "equipment/call_checks.h"
#include "equipment/ejectors.h"
#include "equipment/thermocompressor_chart.h"

namespace calvex {
namespace {

using enum UnitGroup;

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

// The models, with one set of inputs that each accepts.
const ModelUnderTest thermoCompA{"ThermoCompA",
                                 {enthalpy, ratio, ratio, ratio},
                                 {enthalpy, pressure, enthalpy, pressure, pressure, ratio},
                                 [](ZvThermoInt& engine, double* o, const double* x) {
                                   return ThermoCompA(engine, o, o + 1, o + 2, o + 3, x[0], x[1],
                                                      x[2], x[3], x[4], x[5]);
                                 }};
const ModelUnderTest thermoCompB{"ThermoCompB",
                                 {enthalpy, ratio, ratio, ratio},
                                 {enthalpy, pressure, enthalpy, pressure, pressure, ratio},
                                 [](ZvThermoInt& engine, double* o, const double* x) {
                                   return ThermoCompB(engine, o, o + 1, o + 2, o + 3, x[0], x[1],
                                                      x[2], x[3], x[4], x[5]);
                                 }};
const std::vector<double> ejectorExample{2830.0, 1.0, 2675.0, 0.1, 0.17, 2.0};
const std::vector<double> ejectorInverseExample{2830.0, 1.0, 2675.0, 0.1, 0.17, 0.47};

const ModelUnderTest chartA{"ThermoCompressorA",
                            {pressure, temperature, massFlow, heatDuty},
                            {pressure, temperature, massFlow, pressure, temperature, massFlow},
                            [](ZvThermoInt& engine, double* o, const double* x) {
                              return ThermoCompressorA(engine, o, o + 1, o + 2, o + 3, x[0], x[1],
                                                       x[2], x[3], x[4], x[5]);
                            }};
const std::vector<double> chartAExample{1.0, 473.0, 2.0, 0.1, 380.0, 1.0};

const ModelUnderTest chartB{"ThermoCompressorB",
                            {massFlow, temperature, massFlow, massFlow},
                            {pressure, temperature, pressure, temperature, pressure, heatDuty},
                            [](ZvThermoInt& engine, double* o, const double* x) {
                              return ThermoCompressorB(engine, o, o + 1, o + 2, o + 3, x[0], x[1],
                                                       x[2], x[3], x[4], x[5]);
                            }};
const ModelUnderTest chartC{"ThermoCompressorC",
                            {temperature, heatDuty, massFlow, massFlow},
                            {pressure, temperature, pressure, temperature, pressure, massFlow},
                            [](ZvThermoInt& engine, double* o, const double* x) {
                              return ThermoCompressorC(engine, o, o + 1, o + 2, o + 3, x[0], x[1],
                                                       x[2], x[3], x[4], x[5]);
                            }};
const ModelUnderTest chartD{"ThermoCompressorD",
                            {temperature, heatDuty, massFlow, massFlow},
                            {pressure, temperature, pressure, temperature, pressure, massFlow},
                            [](ZvThermoInt& engine, double* o, const double* x) {
                              return ThermoCompressorD(engine, o, o + 1, o + 2, o + 3, x[0], x[1],
                                                       x[2], x[3], x[4], x[5]);
                            }};
const ModelUnderTest chartE{"ThermoCompressorE",
                            {temperature, heatDuty, massFlow, massFlow},
                            {pressure, temperature, pressure, temperature, pressure, massFlow},
                            [](ZvThermoInt& engine, double* o, const double* x) {
                              return ThermoCompressorE(engine, o, o + 1, o + 2, o + 3, x[0], x[1],
                                                       x[2], x[3], x[4], x[5]);
                            }};
const ModelUnderTest chartF{"ThermoCompressorF",
                            {temperature, pressure, massFlow, massFlow},
                            {pressure, temperature, pressure, temperature, massFlow, heatDuty},
                            [](ZvThermoInt& engine, double* o, const double* x) {
                              return ThermoCompressorF(engine, o, o + 1, o + 2, o + 3, x[0], x[1],
                                                       x[2], x[3], x[4], x[5]);
                            }};
const ModelUnderTest chartG{"ThermoCompressorG",
                            {temperature, pressure, massFlow, massFlow},
                            {pressure, temperature, pressure, temperature, massFlow, heatDuty},
                            [](ZvThermoInt& engine, double* o, const double* x) {
                              return ThermoCompressorG(engine, o, o + 1, o + 2, o + 3, x[0], x[1],
                                                       x[2], x[3], x[4], x[5]);
                            }};
// The last input: a duty for B, a flow for the others.
const std::vector<double> chartBExample{1.0, 473.0, 0.1, 380.0, 0.2, 6000.0};
const std::vector<double> chartCExample{1.0, 473.0, 0.1, 380.0, 0.2, 3.0};
const std::vector<double> chartFExample{1.0, 473.0, 0.1, 380.0, 1.0, 6000.0};

// The chart ------------------------------------------------------------------------------------

// Compression ratios of the printed coefficients at expansion ratios of 5 and of 20, computed
// apart.
struct Point {
  double R, at5, at20;
};
constexpr Point points[] = {
    {0.25, 1.0787596681661484, 1.1632576453264738}, {0.3, 1.0946852935750755, 1.1910596531548374},
    {0.4, 1.131299135720934, 1.248003205245922},    {0.5, 1.1691569735109384, 1.3193402799777016},
    {0.6, 1.2107387170656176, 1.3959965774391037},  {0.8, 1.2878919311784964, 1.5503410495692487},
    {1.0, 1.3889993089033925, 1.7609762490014926},  {1.2, 1.4706429891656827, 1.9364576150579231},
    {1.5, 1.60442518535699, 2.2120378429327348},    {2.0, 1.7914587664804003, 2.644884190778779},
    {3.0, 2.03340025419738, 3.2080959833345974},    {4.0, 2.195025307913258, 3.6529139853428765},
    {5.0, 2.305319215403555, 3.860100018526191},    {10.0, 2.7526902476975526, 5.189533147331369}};

TEST(ThermocompressorChart, ReproducesThePrintedCoefficients) {
  for (const Point& point : points) {
    EXPECT_NEAR(ChartCompressionRatio(5.0, point.R), point.at5, 1e-13) << point.R;
    EXPECT_NEAR(ChartCompressionRatio(20.0, point.R), point.at20, 1e-13) << point.R;
    EXPECT_NEAR(ChartEntrainmentRatio(5.0, point.at5), point.R, 1e-11) << point.R;
    EXPECT_NEAR(ChartEntrainmentRatio(20.0, point.at20), point.R, 1e-11) << point.R;
  }
}

TEST(ThermocompressorChart, NoMotiveFlowDoesNotCompress) {
  for (const double ER : {0.5, 1.0, 5.0, 20.0}) {
    EXPECT_EQ(ChartCompressionRatio(ER, 0.0), 1.0);
    EXPECT_EQ(ChartCompressionRatio(ER, 0.99e-4), 1.0);
    EXPECT_EQ(ChartEntrainmentRatio(ER, 1.0), 0.0);
    EXPECT_EQ(ChartEntrainmentRatio(ER, 0.3), 0.0);
  }
}

TEST(ThermocompressorChart, AHundredfoldMotiveFlowCompressesToTheMotivePressure) {
  for (const double ER : {2.0, 5.0, 9.0, 20.0, 80.0}) {
    EXPECT_NEAR(ChartCompressionRatio(ER, 100.0), ER, 1e-12 * ER);
    EXPECT_NEAR(ChartEntrainmentRatio(ER, ER), 100.0, 1e-10);
  }
}

TEST(ThermocompressorChart, IsLinearBetweenTheCurves) {
  EXPECT_NEAR(ChartCompressionRatio(5.0, 2.5), 0.5 * (points[9].at5 + points[10].at5), 1e-13);
  EXPECT_NEAR(ChartCompressionRatio(5.0, 0.1), 1.0 + (points[0].at5 - 1.0) * 0.4, 1e-13);
  EXPECT_NEAR(ChartCompressionRatio(5.0, 55.0), 0.5 * (points[13].at5 + 5.0), 1e-13);
  EXPECT_NEAR(ChartCompressionRatio(5.0, 190.0), 2.0 * 5.0 - points[13].at5, 1e-12);
}

TEST(ThermocompressorChart, EntrainmentRatioUndoesCompressionRatio) {
  for (double ER = 2.0; ER < 100.0; ER *= 1.07) {
    for (double R = 1e-3; R < 300.0; R *= 1.13) {
      const double CR = ChartCompressionRatio(ER, R);
      EXPECT_NEAR(ChartEntrainmentRatio(ER, CR), R, 1e-11 * std::max(1.0, R)) << ER << ' ' << R;
    }
  }
}

TEST(ThermocompressorChart, CompressionRatioRisesWithTheMotiveFlow) {
  for (double ER = 2.0; ER < 100.0; ER *= 1.3) {
    double before = 0.0;
    for (double R = 1e-4; R <= 100.0; R *= 1.05) {
      const double CR = ChartCompressionRatio(ER, R);
      EXPECT_GT(CR, before) << ER << ' ' << R;
      before = CR;
    }
  }
}

TEST(ThermocompressorChart, JumpsAtAnExpansionRatioOfTen) {
  // exp(A ln 10 + B) of the last curve's two pairs
  EXPECT_NEAR(ChartCompressionRatio(std::nextafter(10.0, 0.0), 10.0), 3.793011573251843, 1e-12);
  EXPECT_NEAR(ChartCompressionRatio(10.0, 10.0), 3.8000199973981528, 1e-12);
}

TEST(ThermocompressorChart, HasNothingForImpossibleRatios) {
  for (const double ER : {0.0, -1.0, -infinity, NaN}) {
    EXPECT_EQ(ChartCompressionRatio(ER, 1.0), -1.0);
    EXPECT_EQ(ChartEntrainmentRatio(ER, 1.5), -1.0);
  }
  for (const double negative : {-1e-9, -1.0, -infinity, NaN}) {
    EXPECT_EQ(ChartCompressionRatio(5.0, negative), -1.0);
    EXPECT_EQ(ChartEntrainmentRatio(5.0, negative), -1.0);
  }
}

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
  in[1] = in[3];  // no drop: the efficiency is infinite everywhere
  in[0] = 2700.0;
  EXPECT_EQ(failure(thermoCompB, in), "Unable to bracket the root of the equations!");
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
