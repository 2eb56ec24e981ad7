// The saturation members: which side is solved, the neighbourhood of the critical point, the two
// levels of accuracy.
#include <gtest/gtest.h>

#include <ctime>

#include "steam/property.h"
#include "support/engine.h"
#include "support/failures.h"

namespace calvex::test {
namespace {

TEST(SaturationMembers, QualityZeroIsTheLiquidAndOneTheVapour) {
  ZvThermoInt engine;
  EXPECT_LT(valueOf(engine, &ZvThermoInt::HSatTQ, 450.0, 0.0), 800.0);
  EXPECT_GT(valueOf(engine, &ZvThermoInt::HSatTQ, 450.0, 1.0), 2700.0);
  EXPECT_GT(valueOf(engine, &ZvThermoInt::RSatPQ, 1.0, 0.0), 800.0);
  EXPECT_LT(valueOf(engine, &ZvThermoInt::RSatPQ, 1.0, 1.0), 10.0);
}

// A side with a millionth of the mass or less is not solved and contributes nothing.
TEST(SaturationMembers, AMillionthOfVapourCountsAsNone) {
  ZvThermoInt engine;
  for (const PairOperation member :
       {&ZvThermoInt::HSatTQ, &ZvThermoInt::SSatTQ, &ZvThermoInt::USatTQ}) {
    const double liquid = valueOf(engine, member, 450.0, 0.0);
    EXPECT_DOUBLE_EQ(valueOf(engine, member, 450.0, 1e-6), (1.0 - 1e-6) * liquid);
    EXPECT_GT(valueOf(engine, member, 450.0, 1.01e-6), liquid);
  }
  const double liquid = valueOf(engine, &ZvThermoInt::HSatPQ, 1.0, 0.0);
  EXPECT_DOUBLE_EQ(valueOf(engine, &ZvThermoInt::HSatPQ, 1.0, 1e-6), (1.0 - 1e-6) * liquid);
}

TEST(SaturationMembers, AMillionthOfLiquidCountsAsNone) {
  ZvThermoInt engine;
  const double q = 1.0 - 1e-6;
  for (const PairOperation member :
       {&ZvThermoInt::HSatTQ, &ZvThermoInt::SSatTQ, &ZvThermoInt::USatTQ}) {
    EXPECT_DOUBLE_EQ(valueOf(engine, member, 450.0, q), q * valueOf(engine, member, 450.0, 1.0));
  }
}

TEST(SaturationMembers, DensityTakesPlaceholdersForASideThatIsNotSolved) {
  ZvThermoInt engine;
  const double rl = valueOf(engine, &ZvThermoInt::RSatTQ, 450.0, 0.0);
  const double rv = valueOf(engine, &ZvThermoInt::RSatTQ, 450.0, 1.0);
  const double q = 1.0 - 1e-6;
  EXPECT_DOUBLE_EQ(valueOf(engine, &ZvThermoInt::RSatTQ, 450.0, 1e-6),
                   1.0 / ((1.0 - 1e-6) / rl + 1e-6 / 1.0));
  EXPECT_DOUBLE_EQ(valueOf(engine, &ZvThermoInt::RSatTQ, 450.0, q),
                   1.0 / ((1.0 - q) / 1000.0 + q / rv));
}

TEST(SaturationMembers, DensityMixesVolumes) {
  ZvThermoInt engine;
  const double rl = valueOf(engine, &ZvThermoInt::RSatPQ, 1.0, 0.0);
  const double rv = valueOf(engine, &ZvThermoInt::RSatPQ, 1.0, 1.0);
  EXPECT_DOUBLE_EQ(valueOf(engine, &ZvThermoInt::RSatPQ, 1.0, 0.3), 1.0 / (0.7 / rl + 0.3 / rv));
  EXPECT_DOUBLE_EQ(valueOf(engine, &ZvThermoInt::VSatPQ, 1.0, 0.3), 0.7 / rl + 0.3 / rv);
}

TEST(SaturationMembers, TheTripleOfEnthalpiesAlwaysSolvesBothSides) {
  ZvThermoInt engine;
  for (const double q : {0.0, 1.0, 1e-7}) {
    double h = untouched, hVap = untouched, hLiq = untouched, tSat = untouched;
    ASSERT_EQ(engine.HVLTSat_PQ(&h, &hVap, &hLiq, &tSat, 1.0, q), 1);
    EXPECT_DOUBLE_EQ(hVap, valueOf(engine, &ZvThermoInt::HSatPQ, 1.0, 1.0));
    EXPECT_DOUBLE_EQ(hLiq, valueOf(engine, &ZvThermoInt::HSatPQ, 1.0, 0.0));
    EXPECT_DOUBLE_EQ(h, (1.0 - q) * hLiq + q * hVap);
    EXPECT_DOUBLE_EQ(tSat, valueOf(engine, &ZvThermoInt::TSatP, 1.0));
  }
}

// The neighbourhood of the critical point
// ---------------------------------------------------------------

double nearCriticalPressure(double T) {
  const double density = (0.32189 - 0.657128 * std::pow(1.0 - T / criticalT, 0.325)) * 1000.0;
  return evaluate(Property::pressure, T, density);
}

TEST(SaturationMembers, HalfAKelvinBelowTheCriticalPointTheNearCriticalPressureBegins) {
  ZvThermoInt engine;
  engine.SetTraceLevel(1);
  const double T = criticalT - 0.5;
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::PSatT, T), nearCriticalPressure(T), 1e-9);
  EXPECT_EQ(keptCalls(engine), 1);
  EXPECT_TRUE(traceOf(engine).starts_with("PSatT\n"));
  EXPECT_TRUE(contains(traceOf(engine), "warning: Critical point region.\n"));
}

TEST(SaturationMembers, BelowTheNearCriticalRegionTheLineIsSolved) {
  ZvThermoInt engine;
  engine.SetTraceLevel(1);
  valueOf(engine, &ZvThermoInt::PSatT, criticalT - 0.51);
  EXPECT_EQ(traceOf(engine), "");
}

TEST(SaturationMembers, TheCriticalRegionMessageIsAWarning) {
  ZvThermoInt engine;
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::PSatT, 647.0), nearCriticalPressure(647.0), 1e-9);
  EXPECT_EQ(keptCalls(engine), 0);
  EXPECT_EQ(engine.LastError(), "");
}

TEST(SaturationMembers, TheCriticalTemperatureHasASaturationPressure) {
  ZvThermoInt engine;
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::PSatT, criticalT), criticalP, 0.01);
}

// The two levels of accuracy
// ------------------------------------------------------------------------------

TEST(SaturationMembers, WithoutPolishThePressureIsThatOfTheCorrelation) {
  ZvThermoInt engine;
  engine.SetSatPolish(0);
  Grid grid("correlation");
  for (double T = tripleT; T < criticalT - 0.5; T += 3.7) {
    grid.relative(valueOf(engine, &ZvThermoInt::PSatT, T), correlatedPSat(T), 1e-13,
                  fmt::format("T = {}", T));
  }
}

TEST(SaturationMembers, WithoutPolishTheTemperatureInvertsTheCorrelation) {
  ZvThermoInt engine;
  engine.SetSatPolish(0);
  Grid grid("inverse of the correlation");
  for (const double P : {0.000613, 0.001, 0.1, 1.0, 10.0, 20.0, 21.9}) {
    grid.relative(correlatedPSat(valueOf(engine, &ZvThermoInt::TSatP, P)), P, 1e-7,
                  fmt::format("P = {}", P));
  }
}

TEST(SaturationMembers, SaturationTemperaturesStayWhereThePressureAcceptsThem) {
  ZvThermoInt engine;
  for (const int polish : {1, 0}) {
    engine.SetSatPolish(polish);
    for (const double P : {tripleP, 0.00061174, 0.000612, 22.0, 22.04, 22.0549, criticalP}) {
      const double T = valueOf(engine, &ZvThermoInt::TSatP, P);
      EXPECT_GE(T, tripleT) << P;
      EXPECT_LE(T, criticalT) << P;
      EXPECT_TRUE(succeeds(engine, &ZvThermoInt::PSatT, T)) << engine.LastError();
    }
  }
}

TEST(SaturationMembers, PressureAndTemperatureInvertEachOther) {
  ZvThermoInt engine;
  Grid grid("TSatP(PSatT(T))");
  for (double T = tripleT; T < criticalT - 0.5; T += 2.3) {
    const double P = valueOf(engine, &ZvThermoInt::PSatT, T);
    grid.relative(valueOf(engine, &ZvThermoInt::TSatP, P), T, 1e-9, fmt::format("T = {}", T));
  }
}

TEST(SaturationMembers, ThePressureRisesWithTheTemperature) {
  ZvThermoInt engine;
  for (const int polish : {1, 0}) {
    engine.SetSatPolish(polish);
    Grid grid(fmt::format("monotone line, SatPolish {}", polish));
    double last = 0.0;
    for (int i = 0; i <= 3739; ++i) {
      const double T = std::min(tripleT + 0.1 * i, criticalT);
      const double P = valueOf(engine, &ZvThermoInt::PSatT, T);
      grid.holds(P > last, fmt::format("T = {}: {:.12g} after {:.12g}", T, P, last));
      last = P;
    }
  }
}

TEST(SaturationMembers, MixturesFromTemperatureAndPressureAgree) {
  ZvThermoInt engine;
  Grid grid("TQ and PQ");
  for (const double T : {280.0, 350.0, 450.0, 550.0, 630.0, 645.0}) {
    const double P = valueOf(engine, &ZvThermoInt::PSatT, T);
    for (const double Q : {0.0, 0.2, 0.9, 1.0}) {
      for (std::size_t i = 0; i < 5; ++i) {
        const PairMember& fromT = saturationMembers()[i];
        const PairMember& fromP = saturationMembers()[i + 5];
        const double expected = valueOf(engine, fromT.call, T, Q);
        grid.near(valueOf(engine, fromP.call, P, Q), expected, 1e-7,
                  std::max(std::abs(expected), fromT.result() == 'V' ? 0.0 : 1.0),
                  fmt::format("{} T = {} Q = {}", fromP.name, T, Q));
      }
    }
  }
}

// The lines that a call leaves, with the numbers of the notes cut off.
std::vector<std::string> outlineOf(const ZvThermoInt& engine) {
  std::vector<std::string> lines;
  const std::string trace = traceOf(engine);
  for (std::size_t begin = 0; begin < trace.size();) {
    const std::size_t end = trace.find('\n', begin);
    const std::string line = trace.substr(begin, end - begin);
    lines.push_back(line.substr(0, std::min(line.find(" ="), line.find(" :"))));
    begin = end + 1;
  }
  return lines;
}

TEST(SaturationMembers, PSatTNotesTheProcessorTimeBeforeAndAfterItsSolve) {
  ZvThermoInt engine;
  engine.SetTraceLevel(2);
  engine.ClearTraceInfo();
  const std::clock_t before = std::clock();
  valueOf(engine, &ZvThermoInt::PSatT, 450.0);
  const std::clock_t after = std::clock();
  ASSERT_EQ(outlineOf(engine), (std::vector<std::string>{"PSatT", "  note: Time", "  PSatT",
                                                         "    note: Solver", "  note: Time"}));
  const ZvFunctionCall* first = engine.diagnostics().root().firstChild()->firstChild();
  const ZvFunctionCall* second = first->nextSibling()->nextSibling();
  const auto clockOf = [](const ZvFunctionCall& note) {
    return std::stol(std::string(note.text().substr(7)));
  };
  EXPECT_LE(before, clockOf(*first));
  EXPECT_LE(clockOf(*first), clockOf(*second));
  EXPECT_LE(clockOf(*second), after);
}

TEST(SaturationMembers, ProcessorTimeNotesBelongToTheHighestLevel) {
  ZvThermoInt engine;
  engine.SetTraceLevel(1);
  valueOf(engine, &ZvThermoInt::PSatT, 450.0);
  EXPECT_EQ(traceOf(engine), "");
}

// The state from pressure and temperature near the line
// ---------------------------------------------------

TEST(SaturationMembers, WithinATenThousandthOfTheLineAStateIsUnderspecified) {
  ZvThermoInt engine;
  const double P = correlatedPSat(500.0);
  const std::string error = "Two phase conditions - Underspecified problem.";
  for (const int polish : {1, 0}) {
    engine.SetSatPolish(polish);
    EXPECT_EQ(errorOf(engine, &ZvThermoInt::HPT, P, 500.0), error);
    EXPECT_EQ(errorOf(engine, &ZvThermoInt::HPT, P * (1.0 + 0.99e-4), 500.0), error);
    EXPECT_EQ(errorOf(engine, &ZvThermoInt::HPT, P * (1.0 - 0.99e-4), 500.0), error);
    EXPECT_LT(valueOf(engine, &ZvThermoInt::HPT, P * (1.0 + 1.01e-4), 500.0), 1000.0);
    EXPECT_GT(valueOf(engine, &ZvThermoInt::HPT, P * (1.0 - 1.01e-4), 500.0), 2700.0);
  }
}

TEST(SaturationMembers, TheCriticalTemperatureHasNoSaturationTest) {
  ZvThermoInt engine;
  engine.ClearTraceInfo();
  double h = untouched;
  engine.HPT(&h, criticalP, criticalT);
  EXPECT_FALSE(contains(engine.LastError(), "Two phase")) << engine.LastError();
  EXPECT_TRUE(succeeds(engine, &ZvThermoInt::HPT, 25.0, criticalT)) << engine.LastError();
}

TEST(SaturationMembers, NearTheLineThePolishOffRefinesAndThePolishOnDoesNot) {
  // Within half a kelvin of the critical point the refinement warns.
  const std::string warning = "Critical point region.";
  const double T = 646.8;
  const auto traceAt = [&](int polish, double ratio) {
    ZvThermoInt engine;
    engine.SetSatPolish(polish);
    engine.SetTraceLevel(1);
    double h = untouched;
    engine.HPT(&h, ratio * correlatedPSat(T), T);
    return traceOf(engine);
  };
  EXPECT_TRUE(contains(traceAt(0, 0.98), warning));
  EXPECT_TRUE(contains(traceAt(0, 1.02), warning));
  EXPECT_FALSE(contains(traceAt(1, 0.98), warning));
  EXPECT_FALSE(contains(traceAt(0, 0.969), warning));
  EXPECT_FALSE(contains(traceAt(0, 1.031), warning));
}

}  // namespace
}  // namespace calvex::test
