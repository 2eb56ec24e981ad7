#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cstdint>

#include "command_line_harness.h"
#include "server/member_explanations.h"
#include "server/zv_calvex.h"

namespace calvex::cli::test {
namespace {

// Published steam tables: 3373.7 to 3374 kJ/kg.
constexpr double enthalpyAt10MPa500C = 3373.99804895;

TEST(CallCommand, PrintsNameValueAndUnit) {
  const Answer answer = calvex({"HPT", "10", "773.15"});
  EXPECT_EQ(answer.status, 0);
  EXPECT_EQ(answer.err, "");
  std::istringstream line(answer.out);
  std::string name, sign, unit, words, rest;
  double value = 0.0;
  line >> name >> sign >> value >> unit >> words;
  EXPECT_EQ(name + sign, "H=");
  EXPECT_NEAR(value, enthalpyAt10MPa500C, 1e-9 * enthalpyAt10MPa500C);
  EXPECT_EQ(unit, "kJ/kg");
  EXPECT_EQ(words, "enthalpy");
  EXPECT_FALSE(line >> rest) << rest;
}

TEST(CallCommand, FindsMembersWhateverTheirCase) {
  EXPECT_EQ(calvex({"hpt", "10", "773.15"}).out, calvex({"HPT", "10", "773.15"}).out);
}

TEST(CallCommand, AlignsSeveralOutputs) {
  const Answer answer = calvex({"HVLTSat_PQ", "1", "0.5"});
  EXPECT_EQ(answer.status, 0);
  std::istringstream lines(answer.out);
  std::string line;
  std::size_t valueColumn = 0;
  int count = 0;
  for (; std::getline(lines, line); ++count) {
    const std::size_t column = line.find_first_of("0123456789");
    if (count == 0) valueColumn = column;
    EXPECT_EQ(column, valueColumn) << line;
  }
  EXPECT_EQ(count, 4);
}

TEST(CallCommand, AValueWithoutAUnitStandsAlone) {
  EXPECT_EQ(calvex({"TraceLevel"}).out, "TraceLevel = 1  reporting level\n");
  const std::string z = calvex({"ZPT", "0.1", "500"}).out;
  EXPECT_EQ(z.substr(0, 6), "Z = 0.");
  EXPECT_EQ(z.substr(z.find_first_of(' ', 4)), "  compressibility factor\n") << z;
}

TEST(CallCommand, AnEmptyTextIsShownAsOne) {
  EXPECT_EQ(calvex({"LastError"}).out, "LastError = (empty)  last error\n");
}

// The tokens stand for themselves, whatever case they are asked for in; what a setting leaves out
// of the array is left out here too.
TEST(CallCommand, NamesTheResultsOfASpreadsheetMemberByTheirTokens) {
  const Words call = {"XLTurbineA", "3374", "10", "1", "0.8", "10", "pow, t_out"};
  const auto lines = linesOf(calvex(call).out);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_TRUE(lines[0].starts_with("Pow   = 47")) << lines[0];
  EXPECT_TRUE(lines[0].ends_with(" kW  turbine power")) << lines[0];
  EXPECT_TRUE(lines[1].starts_with("T_Out = 504.")) << lines[1];
  EXPECT_TRUE(lines[1].ends_with(" K   outlet temperature")) << lines[1];
  Words bare = call;
  bare.insert(bare.end(), {"-s", "ReturnModelUnits=0", "-s", "ReturnModelTokens=0"});
  for (const std::string& line : linesOf(calvex(bare).out)) {
    EXPECT_EQ(line.find_first_not_of("0123456789.", line.find('=') + 2), std::string::npos) << line;
  }
}

// Both hot enthalpies are labelled alike in the array.
TEST(CallCommand, TellsTheHotOutletFromTheHotInlet) {
  const std::string text =
      calvex({"XLHeatExchangerA", "10", "1", "0.05", "320.15", "360.15", "0", "0", "0.3", "0.02",
              "423.15", "393.15", "1", "0", "H_HIn H_HOut"})
          .out;
  EXPECT_TRUE(contains(text, "hot inlet enthalpy")) << text;
  EXPECT_TRUE(contains(text, "hot outlet enthalpy")) << text;
}

TEST(CallCommand, OutputsHaveNamesOfTheirOwn) {
  for (const Member& member : memberTable()) {
    std::vector<std::string> labels;
    for (const Parameter& parameter : member.parameters()) {
      if (!parameter.isOutput()) continue;
      const std::string label = parameterExplanation(member, parameter).label;
      EXPECT_EQ(std::count(labels.begin(), labels.end(), label), 0) << member.name << label;
      labels.push_back(label);
    }
  }
}

TEST(CallCommand, PrintsWarningsOnceEachOnStandardError) {
  const Answer hot = calvex({"HPT", "1", "1300"});
  EXPECT_EQ(hot.status, 0);
  EXPECT_EQ(hot.err,
            "calvex: warning: Temperature parameter out of strictly valid range. Strictly valid: "
            "273.15 K to 1273.15 K.\n");
  const Answer json = calvex({"HPT", "1", "1300", "--json"});
  EXPECT_EQ(json.err, hot.err);
  EXPECT_FALSE(contains(json.out, "warning")) << json.out;
  EXPECT_EQ(calvex({"HPT", "1", "1300", "-s", "TraceLevel=0"}).err, "");
  EXPECT_EQ(calvex({"HPT", "1", "1200"}).err, "");
}

TEST(CallCommand, AWarningOfSeveralInnerCallsIsPrintedOnce) {
  // Two properties of a turbine's outlet, each beyond the strict limit of 1345.67 MPa.
  const Answer answer = calvex({"TurbineA", "3400", "1500", "1400", "0.8", "10"});
  EXPECT_EQ(answer.status, 0) << answer.err;
  const auto lines = linesOf(answer.err);
  EXPECT_GE(lines.size(), 1U);
  for (const std::string& line : lines) {
    EXPECT_TRUE(line.starts_with("calvex: warning: ")) << line;
    EXPECT_EQ(std::count(lines.begin(), lines.end(), line), 1) << line;
  }
  EXPECT_TRUE(contains(answer.err, "Pressure parameter out of strictly valid range."))
      << answer.err;
}

TEST(CallCommand, TakesUnitsBeforeAndBehindTheMember) {
  const std::string here = calvex({"HPT", "10", "773.15"}).out;
  EXPECT_EQ(calvex({"HPT", "100", "500", "-u", "T=C", "-u", "Pressure=bara"}).out, here);
  EXPECT_EQ(calvex({"-u", "T=C", "--unit=P=bara", "HPT", "100", "500"}).out, here);
  EXPECT_EQ(calvex({"-u", "T=C", "HPT", "10", "500"}).out, here);
}

TEST(CallCommand, KnowsUnitsByTheirUtf8Names) {
  const std::string here = calvex({"HPT", "10", "773.15"}).out;
  EXPECT_EQ(calvex({"HPT", "10000000", "773.15", "-u", "P=N/m\u00B2"}).out, here);
  const Answer density = calvex({"RPT", "10", "300", "-u", "R=lb/ft\u00B3"});
  EXPECT_TRUE(contains(density.out, "lb/ft\u00B3")) << density.out;
  EXPECT_TRUE(contains(calvex({"RPT", "10", "300", "-u", "R=lb/ft\u00B3", "--json"}).out,
                       "\"units\":{\"pR\":\"lb/ft\u00B3\"}"));
}

// The Celsius scale's boiling point of the 1984 formulation at one atmosphere: 99.974 C.
TEST(CallCommand, BoilsWaterNearOneHundredDegrees) {
  const Answer answer = calvex({"TSatP", "1", "-u", "P=atm", "-u", "T=C", "--json"});
  EXPECT_NEAR(numberAt(answer.out, "pT"), 99.974, 0.03);
}

TEST(CallCommand, ANegativeNumberIsNotAnOption) {
  for (const char* number : {"-5", "-.5", "-1e3"}) {
    const Answer answer = calvex({"PSatT", number});
    EXPECT_EQ(answer.status, 1) << number;
    EXPECT_TRUE(contains(answer.err, "Temperature parameter out of range")) << answer.err;
  }
  EXPECT_EQ(calvex({"PSatT", "--", "-5"}).status, 1);
  EXPECT_NEAR(numberAt(calvex({"HPT", "10", "-1", "-u", "T=C", "--json"}).out, "pH"), 5.9, 3.0);
}

TEST(CallCommand, AFailedCallSaysWhyAndWhatTheMemberTakes) {
  const Answer answer = calvex({"HPT", "10", "99999", "-u", "T=C"});
  EXPECT_EQ(answer.status, 1);
  EXPECT_EQ(answer.out, "");
  EXPECT_EQ(answer.err,
            "calvex: HPT failed: Temperature parameter out of range (Valid range -13.15 to 2226.85 "
            "C).\nHPT takes P (Pressure, MPa), T (Temperature, C)\n");
}

TEST(CallCommand, AZeroPressureIsCalledByItsName) {
  const Answer answer = calvex({"HPT", "0", "500"});
  EXPECT_EQ(answer.status, 1);
  EXPECT_EQ(answer.err,
            "calvex: HPT failed: Solution Error.\nPressure must be above 0 MPa.\nHPT takes P "
            "(Pressure, MPa), T (Temperature, K)\n");
}

TEST(CallCommand, SaysThatTracingIsOffWhenNoReasonWasRecorded) {
  const Answer answer = calvex({"HPT", "10", "99999", "-s", "FunctionCallTracing=0"});
  EXPECT_EQ(answer.status, 1);
  EXPECT_TRUE(contains(answer.err, "tracing is off")) << answer.err;
  EXPECT_TRUE(contains(answer.err, "FunctionCallTracing 1")) << answer.err;
}

TEST(CallCommand, SuggestsTheNearestMembers) {
  const Answer answer = calvex({"HTP", "10", "773.15"});
  EXPECT_EQ(answer.status, 2);
  EXPECT_TRUE(contains(answer.err, "no member or command 'HTP'; did you mean HPT")) << answer.err;
  EXPECT_TRUE(contains(calvex({"memers"}).err, "did you mean members?"));
  EXPECT_TRUE(contains(calvex({"xyzzyplugh"}).err, "'calvex members' lists"));
}

TEST(CallCommand, SaysWhichArgumentsAreExpected) {
  const Answer few = calvex({"HPT", "10"});
  EXPECT_EQ(few.status, 2);
  EXPECT_EQ(few.err,
            "calvex: HPT takes 2 arguments: P (Pressure, MPa), T (Temperature, K), but 1 was "
            "given\n");
  const Answer many = calvex({"CritT", "1", "2", "3"});
  EXPECT_EQ(many.status, 2);
  EXPECT_EQ(many.err, "calvex: CritT takes no arguments, but 3 were given\n");
  EXPECT_EQ(calvex({"VersionStr", "1"}).err,
            "calvex: VersionStr can only be read, so it takes no argument\n");
}

TEST(CallCommand, RefusesWhatIsNoFiniteNumber) {
  for (const char* number : {"nan", "inf", "-inf", "-nan", "Infinity"}) {
    const Answer answer = calvex({"HPT", "10", number});
    EXPECT_EQ(answer.status, 2) << number;
    EXPECT_TRUE(contains(answer.err, "is not a finite number")) << answer.err;
    EXPECT_EQ(answer.out, "");
  }
  const Answer malformed = calvex({"HPT", "1O", "773.15"});
  EXPECT_EQ(malformed.status, 2);
  EXPECT_EQ(
      malformed.err,
      "calvex: P of HPT: '1O' is not a number, and 'O' is not a unit of Pressure; HPT takes P "
      "(Pressure, MPa), T (Temperature, K)\n");
}

TEST(CallCommand, SuggestsTheNearestUnitsAndListsAll) {
  const Answer unit = calvex({"HPT", "10", "773.15", "-u", "P=psix"});
  EXPECT_EQ(unit.status, 2);
  EXPECT_TRUE(contains(unit.err, "'psix' is not a unit of Pressure; did you mean psia or psig?"));
  EXPECT_TRUE(contains(unit.err, "kgf/cm\u00B2")) << unit.err;
  const Answer group = calvex({"HPT", "10", "773.15", "-u", "Presure=psia"});
  EXPECT_EQ(group.status, 2);
  EXPECT_TRUE(contains(group.err, "'Presure' is not a unit group; did you mean Pressure"));
  EXPECT_TRUE(contains(group.err, "Groups: T, P,")) << group.err;
  EXPECT_TRUE(contains(calvex({"HPT", "1", "2", "-u", "T"}).err, "should read GROUP=UNIT"));
}

TEST(CallCommand, ARefusedUnitOfAMemberGetsSuggestionsToo) {
  const Answer answer = calvex({"SetUserUnit", "P", "barr"});
  EXPECT_EQ(answer.status, 1);
  EXPECT_TRUE(contains(answer.err, "barr is not a defined unit of P.")) << answer.err;
  EXPECT_TRUE(contains(answer.err, "did you mean bara or barg")) << answer.err;
}

TEST(CallCommand, TakesUnitsInTheWordsPeopleUse) {
  const std::string here = calvex({"HPT", "10", "773.15"}).out;
  EXPECT_EQ(calvex({"HPT", "100", "500", "-u", "p=bar", "-u", "temperature=\u00B0C"}).out, here);
  EXPECT_EQ(calvex({"HPT", "100", "932", "-u", "PRESSURE=BAR", "-u", "t=degF"}).out, here);
}

TEST(CallCommand, WarnsOfAUnitThatIsNotPhysicalAndHasThePhysicalOneToo) {
  const Answer tabulated = calvex({"VPT", "10", "773.15", "-u", "V=ft3/lb", "--json"});
  EXPECT_TRUE(contains(tabulated.err, "calvex: warning: ft3/lb: not the physical unit"));
  const Answer physical = calvex({"VPT", "10", "773.15", "-u", "V=ft3/lbm", "--json"});
  EXPECT_EQ(physical.err, "");
  EXPECT_TRUE(contains(physical.out, R"("units":{"pV":"ft3/lbm"})")) << physical.out;
  // Published: 0.03279 m3/kg, 0.5253 ft3/lbm
  EXPECT_NEAR(numberAt(physical.out, "pV"), 0.5253, 0.0005);
  EXPECT_TRUE(contains(calvex({"VPT", "10", "500", "-u", "V=ft3/lb", "-u", "T=C"}).err, "warning"));
}

TEST(CallCommand, MilliAndMegaAreAskedFor) {
  const Answer answer = calvex({"HPT", "10", "773.15", "-u", "P=mPa"});
  EXPECT_EQ(answer.status, 2);
  EXPECT_TRUE(contains(answer.err, "did you mean MPa? Write it so: m is milli, M is mega"))
      << answer.err;
}

TEST(CallCommand, SaysThatAChoiceDoesNotLastAndWhatDoes) {
  const Answer unit = calvex({"SetUserUnit", "pressure", "bar"});
  EXPECT_EQ(unit.status, 0);
  EXPECT_EQ(unit.out, "done\n");
  EXPECT_TRUE(contains(unit.err, "SetUserUnit has no lasting effect")) << unit.err;
  EXPECT_TRUE(contains(unit.err, "calvex -u P=bara MEMBER")) << unit.err;
  EXPECT_TRUE(contains(unit.err, "calvex config P=bara ")) << unit.err;
  EXPECT_TRUE(contains(calvex({"SetUserUnitIndex", "0", "c"}).err, "calvex -u T=C MEMBER"));
  EXPECT_TRUE(contains(calvex({"SatPolish", "0"}).err, "calvex -s SatPolish=0 MEMBER"));
  EXPECT_EQ(calvex({"SatPolish"}).err, "");
  EXPECT_EQ(calvex({"SetUserUnit", "P", "bar", "--json"}).err, "");
}

// 373.976 C is the critical temperature of the formulation, 647.126 K.
TEST(CallCommand, ABoundInAnotherUnitIsWithin) {
  for (const auto& [value, unit] :
       {std::pair{"0.01", "T=C"}, std::pair{"373.976", "T=C"}, std::pair{"32.018", "T=F"},
        std::pair{"705.1568", "T=F"}, std::pair{"1164.8268", "T=R"}}) {
    EXPECT_EQ(calvex({"PSatT", value, "-u", unit}).status, 0) << value << unit;
  }
  const Answer beyond = calvex({"PSatT", "373.97601", "-u", "T=C"});
  EXPECT_EQ(beyond.status, 1);
  EXPECT_TRUE(contains(beyond.err, "(Valid range 0.01 to 373.98 C)")) << beyond.err;
}

TEST(CallCommand, ARefusedAppLevelSaysWhatIsTaken) {
  const std::string server = "calvex: AppLevel failed: there is no units server here\n";
  EXPECT_EQ(calvex({"AppLevel", "1"}).err, server);
  EXPECT_EQ(calvex({"TSatP", "1", "-s", "AppLevel=1"}).err, server);
  EXPECT_EQ(calvex({"AppLevel", "4"}).err,
            "calvex: AppLevel failed: 4 is not 0 or 2 (units of the catalogue), 1 (a units server) "
            "or 3 (units of one's own)\n");
}

TEST(CallCommand, ARefusedCustomUnitSaysWhatItNeeds) {
  const Answer answer = calvex({"SetCustomUserUnitIndex", "0", "X", "1", "0"});
  EXPECT_EQ(answer.status, 1);
  EXPECT_TRUE(
      contains(answer.err, "failed: custom units need AppLevel 3 and a group number 0 to 26\n"))
      << answer.err;
  EXPECT_FALSE(contains(answer.err, "is not a unit of")) << answer.err;
}

TEST(CallCommand, ARefusedTokenGetsThoseThatTheMemberKnows) {
  for (const char* text : {"nonsense", ","}) {
    const Answer answer = calvex({"XLLetDownValve", "3374", "10", "1", text});
    EXPECT_EQ(answer.status, 1) << text;
    EXPECT_TRUE(contains(answer.err, "\nTokens: T_Out, Q_Out\n")) << answer.err;
  }
  EXPECT_FALSE(contains(calvex({"XLLetDownValve", "3374", "-10", "1", "T_Out"}).err, "Tokens:"));
}

TEST(CallCommand, ChecksSettings) {
  const Answer unknown = calvex({"HPT", "10", "773.15", "-s", "SatPolis=0"});
  EXPECT_EQ(unknown.status, 2);
  EXPECT_TRUE(contains(unknown.err, "did you mean SatPolish?")) << unknown.err;
  EXPECT_EQ(calvex({"HPT", "10", "773.15", "-s", "SatPolish=x"}).status, 2);
  EXPECT_EQ(calvex({"HPT", "10", "773.15", "-s", "LastError=x"}).status, 2);
  EXPECT_EQ(calvex({"HPT", "10", "773.15", "-s", "HPT=1"}).status, 2);
  const Answer refused = calvex({"HPT", "10", "773.15", "-s", "SolverTol=1"});
  EXPECT_EQ(refused.status, 1);
  EXPECT_EQ(refused.err,
            "calvex: SolverTol failed: Invalid solver tolerance specified.\nThe tolerance must be "
            "above 1e-14 and below 1e-06, not 1.\n");
  EXPECT_EQ(calvex({"TraceLevel", "-s", "TraceLevel=2"}).out, "TraceLevel = 2  reporting level\n");
}

TEST(CallCommand, UnknownOptionsAreRefused) {
  const Answer answer = calvex({"HPT", "10", "773.15", "--jsn"});
  EXPECT_EQ(answer.status, 2);
  EXPECT_TRUE(contains(answer.err, "there is no option '--jsn'")) << answer.err;
  EXPECT_EQ(calvex({"HPT", "10", "773.15", "-u"}).status, 2);
}

TEST(CallCommand, PrintsOneJsonObject) {
  const Answer answer = calvex({"HPT", "10", "773.15", "--json"});
  const std::string begin = "{\"member\":\"HPT\",\"hresult\":0,\"pSucc\":1,\"pH\":3373.99804895";
  EXPECT_EQ(answer.out.substr(0, begin.size()), begin);
  EXPECT_TRUE(answer.out.ends_with(",\"units\":{\"pH\":\"kJ/kg\"}}\n")) << answer.out;
}

TEST(CallCommand, JsonNumbersReadBackToTheSameBits) {
  Module module;
  double enthalpy = 0.0;
  ASSERT_EQ(module.engine().HPT(&enthalpy, 10, 773.15), 1);
  const double printed = numberAt(calvex({"HPT", "10", "773.15", "--json"}).out, "pH");
  EXPECT_EQ(std::bit_cast<std::uint64_t>(printed), std::bit_cast<std::uint64_t>(enthalpy));
}

TEST(CallCommand, JsonOfAFailureHasTheReasonAndNoOutput) {
  const Answer answer = calvex({"HPT", "10", "99999", "--json"});
  EXPECT_EQ(answer.status, 1);
  EXPECT_EQ(
      answer.out,
      "{\"member\":\"HPT\",\"hresult\":0,\"pSucc\":0,\"lastError\":\"Temperature parameter out "
      "of range (Valid range 260.00 to 2500.00 K).\"}\n");
  EXPECT_TRUE(contains(answer.err, "out of range"));
}

// The bounds of the reason have two decimals, between which 0.0005 seems to lie; the triple point
// is at 611.73 Pa, the critical point at 22.055 MPa.
TEST(CallCommand, ACauseStandsBelowAReasonThatDoesNotSayIt) {
  const Answer text = calvex({"FlashVessel", "1", "1000", "0.0005"});
  EXPECT_EQ(text.status, 1);
  EXPECT_TRUE(text.err.starts_with(
      "calvex: FlashVessel failed: Pressure parameter out of range (Valid range 0.00 to 22.05 MPa)."
      "\nPressure 0.0005 MPa is below 0.00061173 MPa.\nFlashVessel takes "))
      << text.err;
  const Answer json = calvex({"FlashVessel", "1", "1000", "0.5", "--json", "-u", "P=kPa"});
  EXPECT_TRUE(
      json.out.ends_with(",\"lastError\":\"Pressure parameter out of range (Valid range 0.61 "
                         "to 22055.00 kPa).\"}\n"))
      << json.out;
  const Answer caused = calvex({"FlashVessel", "1", "1000", "0.0005", "--json"});
  EXPECT_TRUE(
      caused.out.ends_with("MPa).\",\"cause\":\"Pressure 0.0005 MPa is below 0.00061173 "
                           "MPa.\"}\n"))
      << caused.out;
}

TEST(CallCommand, JsonOfUsageErrorsIsAnError) {
  const Answer answer = calvex({"HPT", "10", "--json"});
  EXPECT_EQ(answer.status, 2);
  EXPECT_EQ(answer.out,
            "{\"error\":\"HPT takes 2 arguments: P (Pressure, MPa), T (Temperature, K), but 1 was "
            "given\"}\n");
}

TEST(CallCommand, TracePrintsTheTree) {
  const Answer text = calvex({"HPT", "10", "99999", "--trace"});
  EXPECT_EQ(
      text.out,
      "HPT\n  error: Temperature parameter out of range (Valid range 260.00 to 2500.00 K).\n");
  const Answer json = calvex({"HPT", "10", "99999", "--trace", "--json"});
  EXPECT_TRUE(contains(json.out,
                       "\"trace\":{\"text\":\"Root\",\"kind\":0,\"columns\":[],\"children\":["
                       "{\"text\":\"HPT\",\"kind\":1,\"columns\":[],\"children\":[{\"text\":"))
      << json.out;
  EXPECT_TRUE(contains(calvex({"HPT", "10", "773.15", "--trace"}).out, "no call left a message"));
}

TEST(CallCommand, HelpOfAMemberExplainsIt) {
  EXPECT_EQ(calvex({"HPT", "--help"}).out, calvex({"members", "HPT"}).out);
  EXPECT_EQ(calvex({"help", "HPT"}).out, calvex({"members", "HPT"}).out);
}

}  // namespace
}  // namespace calvex::cli::test
