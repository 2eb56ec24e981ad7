// Every property member against the others: one state has one value of each property, from
// whichever two properties it is found.
#include <gtest/gtest.h>

#include <map>
#include <random>

#include "support/engine.h"
#include "support/failures.h"

namespace calvex::test {
namespace {

const PairMember& memberNamed(std::string_view name) {
  for (const PairMember& member : pairMembers()) {
    if (member.name == name) return member;
  }
  throw std::invalid_argument("no member of that name");
}

// A single-phase state: all properties that members take or return, by letter.
struct State {
  std::string region;
  std::map<char, double> value;
};

State singlePhase(ZvThermoInt& engine, const std::string& region, double P, double T,
                  double quality) {
  State state{region, {{'P', P}, {'T', T}, {'Q', quality}}};
  for (const char letter : std::string("HSURVAG")) {
    state.value[letter] = valueOf(engine, memberNamed(std::string{letter} + "PT").call, P, T);
  }
  return state;
}

std::vector<State> singlePhaseStates(ZvThermoInt& engine) {
  return {
      singlePhase(engine, "cold liquid", 0.1, 300.0, 0.0),
      singlePhase(engine, "liquid", 5.0, 450.0, 0.0),
      singlePhase(engine, "hot liquid", 20.0, 600.0, 0.0),
      singlePhase(engine, "dense liquid", 80.0, 350.0, 0.0),
      singlePhase(engine, "steam near vacuum", 0.002, 350.0, 1.0),
      singlePhase(engine, "low steam", 0.1, 400.0, 1.0),
      singlePhase(engine, "steam", 1.0, 500.0, 1.0),
      singlePhase(engine, "high steam", 10.0, 773.15, 1.0),
      singlePhase(engine, "hot steam", 5.0, 1200.0, 1.0),
      singlePhase(engine, "supercritical steam", 30.0, 800.0, 1.0),
      singlePhase(engine, "supercritical dense fluid", 50.0, 650.0, 0.0),
  };
}

// What an error of 1e-9 in an input may do to a result, in the worst of the states above.
double scaleOf(char letter, double value) {
  switch (letter) {
    case 'A':
    case 'G':
    case 'H':
    case 'U':
      return std::max(std::abs(value), 1000.0);  // kJ/kg
    case 'S':
      return std::max(std::abs(value), 1.0);  // kJ/(kg.K)
    case 'P':
      return std::max(value, 1.0);  // MPa: a liquid's pressure from its density
    case 'Q':
      return 1.0;
    default:
      return std::abs(value);
  }
}

TEST(PropertyMembers, AgreeOnEverySinglePhaseState) {
  ZvThermoInt engine;
  Grid grid("single-phase states");
  for (const State& state : singlePhaseStates(engine)) {
    for (const PairMember& member : pairMembers()) {
      if (state.value.count(member.result()) == 0) continue;
      if (member.isFromPT()) continue;
      // On an isotherm of dense fluid enthalpy has a minimum, and internal energy may have one: two
      // densities have one value.
      const bool ambiguous = member.first() == 'T' &&
                             (member.second() == 'H' || member.second() == 'U') &&
                             state.value.at('R') > 500.0;
      // A density above the critical pressure says nothing about the side.
      const bool sideless = member.result() == 'Q' && state.value.at('P') > criticalP;
      if (ambiguous || sideless) continue;
      const double first = state.value.at(member.first());
      const double second = state.value.at(member.second());
      const std::string inputs =
          fmt::format("{}: {}({:.17g}, {:.17g})", state.region, member.name, first, second);
      double value = untouched;
      engine.ClearTraceInfo();
      const int success = (engine.*member.call)(&value, first, second);
      grid.holds(success == 1, inputs + " fails: " + engine.LastError());
      if (success == 1) {
        grid.near(value, state.value.at(member.result()), 1e-7,
                  scaleOf(member.result(), state.value.at(member.result())), inputs);
      }
    }
  }
}

TEST(PropertyMembers, FromTemperatureAndEnergyMeetTheirInputsInDenseFluid) {
  ZvThermoInt engine;
  Grid grid("isotherms of dense fluid");
  for (const State& state : singlePhaseStates(engine)) {
    if (state.value.at('R') <= 500.0) continue;
    for (const char letter : std::string("HU")) {
      const double T = state.value.at('T');
      const double given = state.value.at(letter);
      const std::string inputs = fmt::format("{}: T = {}, {} = {}", state.region, T, letter, given);
      double P = untouched;
      if ((engine.*memberNamed(std::string("PT") + letter).call)(&P, T, given) != 1) {
        grid.holds(!engine.LastError().empty(), inputs + " fails without a reason");
        continue;
      }
      // The liquid's value may also be that of a mixture of the same temperature.
      const double Q = valueOf(engine, memberNamed(std::string("QT") + letter).call, T, given);
      if (Q > 0.0 && Q < 1.0) {
        const double mixed = letter == 'H' ? valueOf(engine, &ZvThermoInt::HSatTQ, T, Q)
                                           : valueOf(engine, &ZvThermoInt::USatTQ, T, Q);
        grid.near(mixed, given, 1e-6, std::max(given, 100.0), inputs + ", a mixture");
        continue;
      }
      double back = untouched;
      const int success = (engine.*memberNamed(std::string{letter} + "PT").call)(&back, P, T);
      // P and T say nothing on the line itself.
      if (success == 1) grid.near(back, given, 1e-6, std::max(given, 100.0), inputs);
    }
  }
}

TEST(PropertyMembers, SpecificVolumeIsTheInverseOfDensity) {
  ZvThermoInt engine;
  Grid grid("v = 1/rho");
  for (const State& state : singlePhaseStates(engine)) {
    grid.relative(state.value.at('V'), 1.0 / state.value.at('R'), 1e-15, state.region);
  }
}

TEST(PropertyMembers, OfSeveralResultsAgreeWithThoseOfOne) {
  ZvThermoInt engine;
  for (const auto& [P, h] : std::vector<std::pair<double, double>>{
           {1.0, 500.0}, {1.0, 1500.0}, {1.0, 3000.0}, {30.0, 1500.0}, {30.0, 3200.0}}) {
    double q = untouched, t = untouched, s = untouched, r = untouched;
    const auto sameAs = [&, P = P, h = h](PairOperation member) {
      return valueOf(engine, member, P, h);
    };
    ASSERT_EQ(engine.QTS_PH(&q, &t, &s, P, h), 1);
    EXPECT_DOUBLE_EQ(q, sameAs(&ZvThermoInt::QPH));
    EXPECT_DOUBLE_EQ(t, sameAs(&ZvThermoInt::TPH));
    EXPECT_DOUBLE_EQ(s, sameAs(&ZvThermoInt::SPH));
    q = t = untouched;
    ASSERT_EQ(engine.QT_PH(&q, &t, P, h), 1);
    EXPECT_DOUBLE_EQ(q, sameAs(&ZvThermoInt::QPH));
    EXPECT_DOUBLE_EQ(t, sameAs(&ZvThermoInt::TPH));
    q = t = untouched;
    ASSERT_EQ(engine.QTR_PH(&q, &t, &r, P, h), 1);
    EXPECT_DOUBLE_EQ(q, sameAs(&ZvThermoInt::QPH));
    EXPECT_DOUBLE_EQ(t, sameAs(&ZvThermoInt::TPH));
    EXPECT_DOUBLE_EQ(r, sameAs(&ZvThermoInt::RPH));
  }
}

// Two phases
// ----------------------------------------------------------------------------------------

// A mixture on the line, all properties from the saturation members.
struct Mixture {
  double P;
  double T;
  double Q;
  std::map<char, double> value;
};

Mixture mixtureAtP(ZvThermoInt& engine, double P, double Q) {
  Mixture mixture{P, valueOf(engine, &ZvThermoInt::TSatP, P), Q, {}};
  mixture.value = {{'H', valueOf(engine, &ZvThermoInt::HSatPQ, P, Q)},
                   {'S', valueOf(engine, &ZvThermoInt::SSatPQ, P, Q)},
                   {'U', valueOf(engine, &ZvThermoInt::USatPQ, P, Q)},
                   {'R', valueOf(engine, &ZvThermoInt::RSatPQ, P, Q)},
                   {'V', valueOf(engine, &ZvThermoInt::VSatPQ, P, Q)}};
  return mixture;
}

std::vector<Mixture> mixtures(ZvThermoInt& engine) {
  std::vector<Mixture> all;
  for (const double P : {0.005, 0.1, 1.0, 10.0, 20.0}) {
    for (const double Q : {0.05, 0.5, 0.95}) all.push_back(mixtureAtP(engine, P, Q));
  }
  return all;
}

TEST(PropertyMembers, AgreeOnEveryMixture) {
  ZvThermoInt engine;
  Grid grid("mixtures");
  for (const Mixture& mixture : mixtures(engine)) {
    for (const PairMember& member : pairMembers()) {
      if (member.isFromPT() || member.result() == 'A' || member.result() == 'G') continue;
      const double first = member.first() == 'P' ? mixture.P : mixture.T;
      const double second = mixture.value.at(member.second());
      const std::string inputs =
          fmt::format("{}({:.17g}, {:.17g}), Q = {}", member.name, first, second, mixture.Q);
      const double expected = member.result() == 'P'   ? mixture.P
                              : member.result() == 'T' ? mixture.T
                              : member.result() == 'Q' ? mixture.Q
                                                       : mixture.value.at(member.result());
      double value = untouched;
      engine.ClearTraceInfo();
      const int success = (engine.*member.call)(&value, first, second);
      grid.holds(success == 1, inputs + " fails: " + engine.LastError());
      if (success == 1)
        grid.near(value, expected, 1e-6, scaleOf(member.result(), expected), inputs);
    }
  }
}

TEST(PropertyMembers, HelmholtzAndGibbsEnergyFailBetweenThePhases) {
  ZvThermoInt engine;
  int members = 0;
  const Mixture mixture = mixtureAtP(engine, 1.0, 0.5);
  for (const PairMember& member : pairMembers()) {
    if (member.isFromPT() || (member.result() != 'A' && member.result() != 'G')) continue;
    ++members;
    EXPECT_EQ(errorOf(engine, member.call, member.first() == 'P' ? mixture.P : mixture.T,
                      mixture.value.at(member.second())),
              "Two phase conditions - Underspecified problem.")
        << member.name;
  }
  EXPECT_EQ(members, 20);
}

TEST(PropertyMembers, FromPressureAndTemperatureFailOnTheLine) {
  ZvThermoInt engine;
  int members = 0;
  for (const PairMember& member : pairMembers()) {
    if (!member.isFromPT()) continue;
    ++members;
    EXPECT_EQ(errorOf(engine, member.call, correlatedPSat(450.0), 450.0),
              "Two phase conditions - Underspecified problem.")
        << member.name;
  }
  EXPECT_EQ(members, 19);
}

// The member to which a two-phase answer goes over, or none.
std::string nestedMember(const PairMember& member) {
  const std::string given(1, member.first());
  switch (member.result()) {
    case 'P':
      return "PSatT";
    case 'V':
      return member.name == "VPH" ? "" : "RSat" + given + "Q";
    case 'H':
    case 'S':
    case 'U':
    case 'R':
      if (contains("HPS SPH UPH RPH", member.name)) return "";
      return std::string(1, member.result()) + "Sat" + given + "Q";
    default:
      return "";
  }
}

TEST(PropertyMembers, TwoPhaseAnswersNestTheSaturationMemberOfTheirRow) {
  ZvThermoInt engine;
  const Mixture mixture = mixtureAtP(engine, 1.0, 0.5);
  engine.SetTraceLevel(2);
  int nesting = 0;
  for (const PairMember& member : pairMembers()) {
    if (member.isFromPT() || member.result() == 'A' || member.result() == 'G') continue;
    engine.ClearTraceInfo();
    valueOf(engine, member.call, member.first() == 'P' ? mixture.P : mixture.T,
            mixture.value.at(member.second()));
    const ZvFunctionCall* call = engine.diagnostics().root().firstChild();
    ASSERT_NE(call, nullptr) << member.name;
    EXPECT_EQ(call->text(), member.name);
    for (const char* other : {"HSatPQ", "SSatPQ", "USatPQ", "RSatPQ", "VSatPQ", "HSatTQ", "SSatTQ",
                              "USatTQ", "RSatTQ", "VSatTQ"}) {
      EXPECT_EQ(childOf(*call, other) != nullptr, nestedMember(member) == other)
          << member.name << " nests " << other << "\n"
          << traceOf(engine);
    }
    if (member.result() == 'P') {
      EXPECT_NE(childOf(*call, "PSatT"), nullptr) << member.name << "\n" << traceOf(engine);
    }
    nesting += nestedMember(member).empty() ? 0 : 1;
  }
  EXPECT_EQ(nesting, 5 + 7 + 7 + 7 + 5 + 5);
}

TEST(PropertyMembers, HPUBetweenThePhasesIsHSatPQ) {
  ZvThermoInt engine;
  const double q = valueOf(engine, &ZvThermoInt::QPU, 1.0, 1500.0);
  ASSERT_GT(q, 0.0);
  ASSERT_LT(q, 1.0);
  EXPECT_EQ(valueOf(engine, &ZvThermoInt::HPU, 1.0, 1500.0),
            valueOf(engine, &ZvThermoInt::HSatPQ, 1.0, q));
}

TEST(PropertyMembers, NestedSaturationMembersGetTheUsersUnits) {
  ZvThermoInt engine;
  const double h = valueOf(engine, &ZvThermoInt::HPU, 1.0, 1500.0);
  const double v = valueOf(engine, &ZvThermoInt::VPS, 1.0, 4.0);
  const double p = valueOf(engine, &ZvThermoInt::PTH, 450.0, 1500.0);
  for (const auto& [group, unit] :
       std::vector<std::pair<const char*, const char*>>{{"P", "kPa"},
                                                        {"T", "C"},
                                                        {"Q", "%"},
                                                        {"H", "J/kg"},
                                                        {"U", "J/kg"},
                                                        {"S", "J/(kg.K)"},
                                                        {"V", "l/kg"},
                                                        {"R", "g/cm^3"}}) {
    ASSERT_EQ(engine.SetUserUnit(group, unit), 1) << engine.LastError();
  }
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::HPU, 1000.0, 1500e3), 1000.0 * h, 1e-5 * h);
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::VPS, 1000.0, 4000.0), 1000.0 * v, 1e-6 * v);
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::PTH, 176.85, 1500e3), 1000.0 * p, 1e-5 * p);
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::HPTQ, 1000.0,
                      valueOf(engine, &ZvThermoInt::TSatP, 1000.0), 50.0),
              valueOf(engine, &ZvThermoInt::HSatPQ, 1000.0, 50.0), 1.0);
}

TEST(PropertyMembers, OwnDensityOfAMixtureIsThatOfItsVolume) {
  ZvThermoInt engine;
  const double P = 1.0, h = 1500.0;
  const double q = valueOf(engine, &ZvThermoInt::QPH, P, h);
  const double vl = 1.0 / valueOf(engine, &ZvThermoInt::RSatPQ, P, 0.0);
  const double vv = 1.0 / valueOf(engine, &ZvThermoInt::RSatPQ, P, 1.0);
  const double v = (1.0 - q) * vl + q * vv;
  double qOut = untouched, t = untouched, r = untouched;
  ASSERT_EQ(engine.QTR_PH(&qOut, &t, &r, P, h), 1);
  EXPECT_NEAR(r * v, 1.0, 1e-9);
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::RPH, P, h) * v, 1.0, 1e-9);
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::VPH, P, h) / v, 1.0, 1e-9);
}

TEST(PropertyMembers, DensityBetweenTheSaturatedOnesIsAMixtureOfVolumes) {
  ZvThermoInt engine;
  const double vl = valueOf(engine, &ZvThermoInt::VSatPQ, 1.0, 0.0);
  const double vv = valueOf(engine, &ZvThermoInt::VSatPQ, 1.0, 1.0);
  const double v = 0.75 * vl + 0.25 * vv;
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::QPV, 1.0, v), 0.25, 1e-8);
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::QPR, 1.0, 1.0 / v), 0.25, 1e-8);
  const double T = valueOf(engine, &ZvThermoInt::TSatP, 1.0);
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::QTV, T, v), 0.25, 1e-7);
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::QTR, T, 1.0 / v), 0.25, 1e-7);
}

TEST(PropertyMembers, DensityBelowTheSaturatedVapoursIsSteamAndAboveTheLiquidsIsLiquid) {
  ZvThermoInt engine;
  const double rl = valueOf(engine, &ZvThermoInt::RSatPQ, 1.0, 0.0);
  const double rv = valueOf(engine, &ZvThermoInt::RSatPQ, 1.0, 1.0);
  const double Ts = valueOf(engine, &ZvThermoInt::TSatP, 1.0);
  EXPECT_EQ(valueOf(engine, &ZvThermoInt::QPR, 1.0, 0.9 * rv), 1.0);
  EXPECT_EQ(valueOf(engine, &ZvThermoInt::QPR, 1.0, 1.02 * rl), 0.0);
  EXPECT_GT(valueOf(engine, &ZvThermoInt::TPR, 1.0, 0.9 * rv), Ts);
  EXPECT_LT(valueOf(engine, &ZvThermoInt::TPR, 1.0, 1.02 * rl), Ts);
  EXPECT_LT(valueOf(engine, &ZvThermoInt::PTR, Ts, 0.9 * rv), 1.0);
  EXPECT_GT(valueOf(engine, &ZvThermoInt::PTR, Ts, 1.02 * rl), 1.0);
}

TEST(PropertyMembers, QualityOfASinglePhaseIsZeroForLiquidAndOneForSteam) {
  ZvThermoInt engine;
  EXPECT_EQ(valueOf(engine, &ZvThermoInt::QPH, 1.0, 500.0), 0.0);
  EXPECT_EQ(valueOf(engine, &ZvThermoInt::QPH, 1.0, 3000.0), 1.0);
  EXPECT_EQ(valueOf(engine, &ZvThermoInt::QTS, 400.0, 1.0), 0.0);
  EXPECT_EQ(valueOf(engine, &ZvThermoInt::QTS, 400.0, 9.0), 1.0);
}

TEST(PropertyMembers, AboveTheCriticalPointTheSideIsJudgedByFixedThresholds) {
  ZvThermoInt engine;
  EXPECT_EQ(valueOf(engine, &ZvThermoInt::QPH, 30.0, 2085.9), 0.0);
  EXPECT_EQ(valueOf(engine, &ZvThermoInt::QPH, 30.0, 2086.0), 1.0);
  EXPECT_EQ(valueOf(engine, &ZvThermoInt::QPS, 30.0, 4.4089), 0.0);
  EXPECT_EQ(valueOf(engine, &ZvThermoInt::QPS, 30.0, 4.409), 1.0);
  EXPECT_EQ(valueOf(engine, &ZvThermoInt::QPU, 30.0, 1999.9), 0.0);
  EXPECT_EQ(valueOf(engine, &ZvThermoInt::QPU, 30.0, 2000.0), 1.0);
  EXPECT_EQ(valueOf(engine, &ZvThermoInt::QTS, 700.0, 4.4089), 0.0);
  EXPECT_EQ(valueOf(engine, &ZvThermoInt::QTS, 700.0, 5.5), 1.0);
}

// HPTQ
// ----------------------------------------------------------------------------------------------

TEST(PropertyMembers, HPTQOnTheLineIsHSatPQWhateverThePolish) {
  ZvThermoInt engine;
  for (const int polish : {1, 0}) {
    engine.SetSatPolish(polish);
    for (const double P : {0.001, 0.1, 1.0, 10.0, 18.0, 21.0}) {
      const double T = valueOf(engine, &ZvThermoInt::TSatP, P);
      EXPECT_EQ(valueOf(engine, &ZvThermoInt::HPTQ, P, T, 0.3),
                valueOf(engine, &ZvThermoInt::HSatPQ, P, 0.3))
          << P << " MPa, SatPolish " << polish;
    }
  }
}

// The correlation has 612.65 Pa at the triple point, whose pressure is 611.73 Pa: there its inverse
// stays at the triple point's temperature.
TEST(PropertyMembers, HPTQSeesTheLineWhereTheCorrelationMissesTheTriplePoint) {
  ZvThermoInt engine;
  for (const int polish : {0, 1}) {
    engine.SetSatPolish(polish);
    for (const char* unit : {"K", "C"}) {
      ASSERT_EQ(engine.SetUserUnit("T", unit), 1);
      for (double P = 611.73e-6; P < 612.66e-6; P += 0.05e-6) {
        const double T = valueOf(engine, &ZvThermoInt::TSatP, P);
        EXPECT_EQ(valueOf(engine, &ZvThermoInt::HPTQ, P, T, 0.3),
                  valueOf(engine, &ZvThermoInt::HSatPQ, P, 0.3))
            << P << " MPa, " << T << ' ' << unit << ", SatPolish " << polish;
      }
    }
  }
}

TEST(PropertyMembers, HPTQNextToTheTriplePointIsOffTheLineAgain) {
  ZvThermoInt engine;
  for (const int polish : {0, 1}) {
    engine.SetSatPolish(polish);
    EXPECT_EQ(valueOf(engine, &ZvThermoInt::HPTQ, 612e-6, 273.2, 0.3),
              valueOf(engine, &ZvThermoInt::HPT, 612e-6, 273.2));
    EXPECT_EQ(valueOf(engine, &ZvThermoInt::HPTQ, 611e-6, 273.16, 0.3),
              valueOf(engine, &ZvThermoInt::HPT, 611e-6, 273.16));
  }
}

TEST(PropertyMembers, HPTQOnTheCorrelatedLineIsHSatPQ) {
  ZvThermoInt engine;
  for (const double T : {300.0, 400.0, 500.0, 600.0}) {
    const double P = correlatedPSat(T);
    EXPECT_EQ(valueOf(engine, &ZvThermoInt::HPTQ, P, T, 0.3),
              valueOf(engine, &ZvThermoInt::HSatPQ, P, 0.3));
  }
}

TEST(PropertyMembers, HPTQOffTheLineIgnoresTheQuality) {
  ZvThermoInt engine;
  EXPECT_EQ(valueOf(engine, &ZvThermoInt::HPTQ, 10.0, 773.15, 0.3),
            valueOf(engine, &ZvThermoInt::HPT, 10.0, 773.15));
  EXPECT_EQ(valueOf(engine, &ZvThermoInt::HPTQ, 10.0, 400.0, 1.0),
            valueOf(engine, &ZvThermoInt::HPT, 10.0, 400.0));
}

// States that are hard to find
// -------------------------------------------------------------------------

TEST(PropertyMembers, ColdLiquidIsFoundFromPressureAndEntropy) {
  ZvThermoInt engine;
  const double s = valueOf(engine, &ZvThermoInt::SPT, 10.0, 310.0);
  EXPECT_NEAR(s, 0.5263, 5e-5);
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::TPS, 10.0, s), 310.0, 1e-5);
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::TPS, 10.0, 0.5263), 310.0, 0.05);
}

TEST(PropertyMembers, HotSteamOfOneKilopascalIsFoundFromPressureAndEntropy) {
  ZvThermoInt engine;
  Grid grid("0.001 MPa, hot");
  for (double T = 900.0; T <= 1270.0; T += 10.0) {
    const double s = valueOf(engine, &ZvThermoInt::SPT, 0.001, T);
    double found = untouched;
    engine.ClearTraceInfo();
    const int success = engine.TPS(&found, 0.001, s);
    grid.holds(success == 1, fmt::format("T = {}: {}", T, engine.LastError()));
    if (success == 1) grid.relative(found, T, 1e-7, fmt::format("T = {}", T));
  }
}

TEST(PropertyMembers, ZeroPressureFailsWithAReason) {
  ZvThermoInt engine;
  for (const PairMember& member : pairMembers()) {
    if (member.first() != 'P') continue;
    const double second = member.second() == 'T' ? 500.0 : 2.0;
    EXPECT_NE(errorOf(engine, member.call, 0.0, second), "") << member.name;
  }
}

TEST(PropertyMembers, NoDensityAndNoFiniteValueIsASolutionError) {
  ZvThermoInt engine;
  const double inf = std::numeric_limits<double>::infinity();
  int members = 0;
  for (const PairMember& member : pairMembers()) {
    if (member.isFromPT()) continue;
    ++members;
    const bool isSize = member.second() == 'R' || member.second() == 'V';
    for (const double first :
         {member.first() == 'P' ? 1.0 : 400.0, member.first() == 'P' ? 30.0 : 700.0}) {
      EXPECT_EQ(errorOf(engine, member.call, first, inf), "Solution Error.") << member.name;
      if (isSize) {
        EXPECT_EQ(errorOf(engine, member.call, first, 0.0), "Solution Error.") << member.name;
      }
    }
  }
  EXPECT_EQ(members, 76);
}

// Random states of the strict range: every pair finds the state again, or answers with one that
// meets its inputs.
TEST(PropertyMembers, RandomStatesAreFoundAgainFromEveryPair) {
  ZvThermoInt engine;
  Grid grid("random states");
  std::mt19937_64 random(20240229);
  std::uniform_real_distribution<double> temperature(273.16, 1273.15);
  std::uniform_real_distribution<double> logPressure(std::log(tripleP), std::log(100.0));
  for (int i = 0; i < 400; ++i) {
    const double T = temperature(random);
    const double P = std::exp(logPressure(random));
    if (T < criticalT && std::abs(P / correlatedPSat(T) - 1.0) < 2e-3) continue;
    std::map<char, double> state{{'P', P}, {'T', T}};
    for (const char letter : std::string("HSURV")) {
      state[letter] = valueOf(engine, memberNamed(std::string{letter} + "PT").call, P, T);
    }
    if (state['S'] < 0.0 || state['H'] < 0.0 || state['U'] < 0.0) continue;
    for (const char first : std::string("PT")) {
      for (const char second : std::string("HSURV")) {
        const char result = first == 'P' ? 'T' : 'P';
        // Isotherms of liquid: enthalpy, energy and (around the density maximum) entropy turn.
        if (first == 'T' && state['R'] > 300.0 && second != 'R' && second != 'V') continue;
        // Isobars of cold liquid: the density has its maximum.
        if (first == 'P' && (second == 'R' || second == 'V') && T < 300.0 && state['R'] > 900.0) {
          continue;
        }
        const std::string name{result, first, second};
        const std::string inputs = fmt::format("P = {:.17g}, T = {:.17g}: {}({:.17g}, {:.17g})", P,
                                               T, name, state[first], state[second]);
        double found = untouched;
        engine.ClearTraceInfo();
        const int success = (engine.*memberNamed(name).call)(&found, state[first], state[second]);
        grid.holds(success == 1, inputs + " fails: " + engine.LastError());
        if (success != 1) continue;
        // A liquid's pressure follows from its density only as well as the compressibility lets it.
        const double scale = result == 'P' ? std::max(P, 1.0) : T;
        grid.near(found, state[result], 1e-6, scale, inputs);
      }
    }
  }
}

}  // namespace
}  // namespace calvex::test
