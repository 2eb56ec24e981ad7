#include <gtest/gtest.h>

#include "command_line_harness.h"
#include "units/unit_catalogue.h"

namespace calvex::cli::test {
namespace {

std::string stateJson(Words words) {
  words.insert(words.begin(), "state");
  words.emplace_back("--json");
  const Answer answer = calvex(words);
  EXPECT_EQ(answer.status, 0) << answer.err;
  return answer.out;
}

TEST(StateCommand, PrintsWhatTheMembersAnswer) {
  const std::string state = stateJson({"P=10", "T=773.15"});
  EXPECT_TRUE(contains(state, R"({"phase":"superheated vapour","P":10,"T":773.15,)")) << state;
  for (const char letter : std::string("VRHSUAGCDWZMKNEIJBL")) {
    const std::string name(1, letter);
    const double expected =
        numberAt(calvex({name + "PT", "10", "773.15", "--json"}).out, "p" + name);
    EXPECT_NEAR(numberAt(state, name), expected, 1e-8 * std::abs(expected)) << name;
  }
  EXPECT_TRUE(contains(state, R"("units":{"P":"MPa","T":"K","V":"m^3/kg",)")) << state;
}

// Every pair leads back to the state from which it was taken.
TEST(StateCommand, EveryPairFindsTheSameState) {
  struct State {
    const char *P, *T, *phase;
  };
  for (const State& one : {State{"10", "773.15", "superheated vapour"},
                           {"10", "400", "compressed liquid"},
                           {"30", "700", "supercritical fluid"}}) {
    const std::string P = std::string("P=") + one.P;
    const std::string T = std::string("T=") + one.T;
    const std::string state = stateJson({P, T});
    EXPECT_TRUE(contains(state, one.phase)) << state;
    for (const char letter : std::string("HSURV")) {
      const std::string name(1, letter);
      std::ostringstream second;
      second.precision(17);
      second << name << '=' << numberAt(state, name);
      for (const std::string& first : {P, T}) {
        // A mixture at 400 K has the same enthalpy.
        if (letter == 'H' && first == "T=400") continue;
        const std::string found = stateJson({second.str(), first});
        EXPECT_TRUE(contains(found, one.phase)) << first << second.str();
        for (const char* key : {"P", "T", "R", "C"}) {
          EXPECT_NEAR(numberAt(found, key), numberAt(state, key),
                      1e-6 * std::abs(numberAt(state, key)))
              << first << second.str() << key;
        }
      }
    }
  }
}

// Published: 453.03 K, 762.5 and 2777.1 kJ/kg at 1 MPa.
TEST(StateCommand, AMixtureShowsItsPhases) {
  const std::string state = stateJson({"pressure=1", "Enthalpy=2000"});
  EXPECT_TRUE(contains(state, R"("phase":"wet steam, a mixture of liquid and vapour")")) << state;
  EXPECT_NEAR(numberAt(state, "T"), 453.03, 0.1);
  EXPECT_NEAR(numberAt(state, "Q"), (2000 - 762.5) / (2777.1 - 762.5), 1e-3);
  EXPECT_FALSE(contains(state.substr(0, state.find("units")), R"("C":)"))
      << "a mixture has no heat capacity";
  const std::size_t vapour = state.find("\"vapour\":{");
  EXPECT_NEAR(numberAt(state.substr(vapour), "H"), 2777.1, 2.0);
  EXPECT_TRUE(contains(stateJson({"P=1", "Q=0"}), "saturated liquid"));
  EXPECT_TRUE(contains(stateJson({"T=450", "Q=1"}), "saturated vapour"));
  EXPECT_NEAR(numberAt(stateJson({"P=1", "Q=0.5"}), "H"), (762.5 + 2777.1) / 2, 2.0);
}

TEST(StateCommand, ShowsTheSaturationAroundAtThePressureAndAtTheTemperature) {
  const std::string both = stateJson({"P=1", "T=500"});
  EXPECT_TRUE(contains(both, R"({"at":"P","P":1,"T":453.)")) << both;
  EXPECT_TRUE(contains(both, R"({"at":"T","P":2.63)")) << both;  // published: 2.639 MPa
  EXPECT_FALSE(contains(stateJson({"P=10", "T=773.15"}), R"("at":"T")"));
  EXPECT_TRUE(contains(stateJson({"P=30", "T=773.15"}), R"("saturation":[])"));
}

TEST(StateCommand, TakesNamesInAnyCaseWithASignOrABlank) {
  const std::string state = calvex({"state", "P=10", "T=773.15"}).out;
  for (const Words& words : {Words{"p=10", "t=773.15"},
                             {"P", "10", "T", "773.15"},
                             {"T=773.15", "P=10"},
                             {"Pressure=10", "TEMPERATURE=773.15"},
                             {"P", "=", "10", "T", "=", "773.15"},
                             {"P=10MPa", "T=500C"},
                             {"P=100bara", "T=773.15K"}}) {
    Words call = words;
    call.insert(call.begin(), "state");
    EXPECT_EQ(calvex(call).out, state) << words.front();
  }
  const std::string inCelsius = calvex({"state", "P=10", "T=500", "-u", "T=C"}).out;
  EXPECT_TRUE(contains(inCelsius, "\nT = 500            C            temperature\n")) << inCelsius;
  EXPECT_EQ(calvex({"state", "P=10", "T=773.15K", "-u", "T=C"}).out, inCelsius);
  const std::string byDensity = stateJson({"P=10", "rho=30"});
  EXPECT_EQ(stateJson({"P=10", "density=30"}), byDensity);
  EXPECT_EQ(stateJson({"P=10", "R=30"}), byDensity);
  EXPECT_EQ(stateJson({"P=1", "specific-volume=0.1"}), stateJson({"V=0.1", "P=1"}));
  EXPECT_EQ(stateJson({"T=450", "x=0.5"}), stateJson({"T=450", "quality=0.5"}));
}

TEST(StateCommand, CsvHasALineForEachValue) {
  const auto lines = linesOf(calvex({"state", "P=10", "T=500", "-u", "T=C", "--csv"}).out);
  ASSERT_EQ(lines.size(), 1U + 1U + 21U + 14U);
  EXPECT_EQ(lines[0], "where,symbol,value,unit,meaning");
  EXPECT_EQ(lines[1], "state,phase,superheated vapour,,phase");
  EXPECT_EQ(lines[3], "state,T,500,C,temperature");
  EXPECT_TRUE(lines[24].starts_with("saturation at P,T,311.0")) << lines[24];
  EXPECT_TRUE(lines[31].starts_with("saturated vapour at P,V,0.018")) << lines[31];
}

TEST(StateCommand, SaysWhatIsOutsideItsEquationAndPrintsTheRest) {
  const Answer hot = calvex({"state", "P=1", "T=1200"});
  EXPECT_EQ(hot.status, 0);
  EXPECT_TRUE(contains(hot.out,
                       "dynamic viscosity: Temperature parameter out of range "
                       "(Valid range 273.15 to 1073.15 K)."))
      << hot.out;
  EXPECT_TRUE(contains(hot.out, "enthalpy")) << hot.out;
  EXPECT_TRUE(
      contains(stateJson({"P=1", "T=1200"}), R"("unavailable":{"M":"Temperature parameter)"));
  EXPECT_EQ(calvex({"state", "P=1", "T=1300"}).err,
            "calvex: warning: Temperature parameter out of strictly valid range. Strictly valid: "
            "273.15 K to 1273.15 K.\n");
}

TEST(StateCommand, RefusesWhatDeterminesNoState) {
  const auto refusal = [](Words words, int status = 2) {
    words.insert(words.begin(), "state");
    const Answer answer = calvex(words);
    EXPECT_EQ(answer.status, status) << answer.err;
    EXPECT_EQ(answer.out, "");
    return answer.err;
  };
  EXPECT_TRUE(contains(refusal({}), "state takes two properties, as in 'calvex state P=10"));
  EXPECT_TRUE(contains(refusal({"P=10"}), "two properties"));
  EXPECT_TRUE(contains(refusal({"P=10", "T=500", "Q=1"}), "two properties"));
  EXPECT_TRUE(contains(refusal({"P=10", "p=11"}), "pressure is given twice"));
  EXPECT_TRUE(contains(refusal({"H=2000", "S=5"}),
                       "one of the two properties must be the pressure P or the temperature T"));
  EXPECT_TRUE(contains(refusal({"P=10", "W=500"}), "'W' is not a property that determines"));
  EXPECT_TRUE(contains(refusal({"presure=10", "T=500"}), "did you mean pressure"));
  EXPECT_TRUE(contains(refusal({"P=10", "T=hot"}), "T: 'hot' is not a number"));
  EXPECT_TRUE(contains(refusal({"P=10,5", "T=500"}), "the decimal sign is a point"));
  EXPECT_TRUE(contains(refusal({"P=10", "T=500Z"}), "'Z' is not a unit of Temperature"));
  EXPECT_TRUE(contains(refusal({"P=10", "T=nan"}), "not a finite number"));
  EXPECT_TRUE(contains(refusal({"P=-1", "T=500"}, 1),
                       "no state has P = -1 MPa and T = 500 K: Pressure parameter out of range"));
  EXPECT_EQ(refusal({"P=0", "T=500"}, 1),
            "calvex: no state has P = 0 MPa and T = 500 K: Solution Error. Pressure must be above "
            "0 MPa.\n");
  EXPECT_TRUE(contains(refusal({"P=1", "H=99999999"}, 1), "no state has P = 1 MPa and H = "));
  EXPECT_TRUE(contains(refusal({"P=25", "Q=0.5"}, 1), "(Valid range 0.00 to 22.05 MPa)"));
  EXPECT_TRUE(contains(refusal({"P=1", "Q=1.5"}, 1), "Quality parameter out of range"));
  const std::string T =
      std::to_string(numberAt(calvex({"TSatP", "1", "-s", "SatPolish=0", "--json"}).out, "pT"));
  const std::string online = refusal({"P=1", "T=" + T, "-s", "SatPolish=0"}, 1);
  EXPECT_TRUE(contains(online, "Two phase conditions - Underspecified problem.")) << online;
  EXPECT_TRUE(contains(online, "'calvex state P=1 Q=0.5'")) << online;
  EXPECT_TRUE(
      contains(calvex({"state", "P=10", "--json"}).out, "{\"error\":\"one property is not enough"));
  EXPECT_EQ(calvex({"state", "P=10", "T=500", "--json", "--csv"}).status, 2);
}

TEST(StateCommand, TellsTheCauseOfARefusalWhoseReasonDoesNotSayIt) {
  const Answer answer = calvex({"state", "P=1", "T=2500.001"});
  EXPECT_EQ(answer.status, 1);
  EXPECT_TRUE(contains(
      answer.err, "(Valid range 260.00 to 2500.00 K). Temperature 2500.001 K is above 2500 K."))
      << answer.err;
}

}  // namespace
}  // namespace calvex::cli::test
