// What a newcomer types, and what the screen says to it: the reason, what is allowed, what to do.
#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>

#include "command_line_harness.h"
#include "diagnostics/messages.h"

namespace calvex::cli::test {
namespace {

// The first line of a refusal is the engine's message; what is behind it is the second.
void expectCause(const Words& words, const std::string& message, const std::string& cause) {
  const Answer answer = calvex(words);
  EXPECT_EQ(answer.status, 1);
  EXPECT_EQ(answer.out, "");
  const auto lines = linesOf(answer.err);
  ASSERT_GE(lines.size(), 2U) << answer.err;
  EXPECT_EQ(lines[0], "calvex: " + words.front() + " failed: " + message);
  EXPECT_EQ(lines[1], cause);
}

// Settings
// -----------------------------------------------------------------------------------------

TEST(PlainWords, ARefusedSettingTellsWhatIsAllowed) {
  expectCause({"SolverTol", "1e-3"}, "Invalid solver tolerance specified.",
              "The tolerance must be above 1e-14 and below 1e-06, not 0.001.");
  expectCause({"SolverIter", "10"}, "Invalid number of solver iterations specified..",
              "The iterations must be 51 to 9998, not 10.");
  expectCause({"TraceLevel", "5"}, "Invalid reporting level.",
              "The level must be 0 (errors), 1 (also warnings) or 2 (also notes), not 5.");
  expectCause({"MaxTraceSize", "1"}, "Illegal function trace list size.",
              "The size must be 2 to 32767, not 1.");
}

TEST(PlainWords, ASettingOfAnotherCallIsRefusedInTheSameWords) {
  const Answer answer = calvex({"HPT", "10", "773.15", "-s", "TraceLevel=5"});
  EXPECT_EQ(answer.status, 1);
  EXPECT_TRUE(contains(answer.err, "Invalid reporting level.\nThe level must be 0")) << answer.err;
}

TEST(PlainWords, ASettingsNumberIsHeldAgainstItsOwnRange) {
  EXPECT_EQ(calvex({"TraceLevel", "70000"}).err, "calvex: TraceLevel takes 0 to 2, not '70000'\n");
  EXPECT_EQ(calvex({"SolverTol", "x"}).err,
            "calvex: SolverTol takes above 1e-14, below 1e-06, not 'x'\n");
}

TEST(PlainWords, SatPolishKeepsAnyNumberAndSaysWhatItDoes) {
  const std::string notice = "SatPolish 7 does what 1 does; 0, 1 and 2 are the values that differ";
  const Answer put = calvexWithInput("SatPolish 7\nSatPolish\n", {"run"});
  EXPECT_EQ(put.status, 0);
  EXPECT_TRUE(contains(put.out, "SatPolish = 7 ")) << put.out;
  EXPECT_EQ(put.err, "calvex: warning: line 1: " + notice + "\n");
  const Answer call = calvex({"HPT", "10", "773.15", "-s", "SatPolish=7"});
  EXPECT_EQ(call.status, 0);
  EXPECT_EQ(call.err, "calvex: warning: " + notice + "\n");
  for (const char* value : {"SatPolish=0", "SatPolish=1", "SatPolish=2"}) {
    EXPECT_EQ(calvex({"TSatP", "1", "-s", "TraceLevel=0", "-s", value}).err, "") << value;
  }
}

// Values that no state has
// -------------------------------------------------------------------------

TEST(PlainWords, AValueBeyondAnyStateIsToldTheNearestOne) {
  struct Case {
    Words call;
    const char *end, *unit;
    double from, to;  // where it is, K or MPa
  };
  const Case cases[] = {
      {{"TPH", "10", "1e6"}, "highest", "kJ/kg", 2500, 2500},
      {{"TPS", "10", "50"}, "highest", "kJ/(kg.K)", 2500, 2500},
      {{"TPU", "10", "1e6"}, "highest", "kJ/kg", 2500, 2500},
      {{"TPV", "10", "1e9"}, "highest", "m^3/kg", 2500, 2500},
      {{"PTR", "500", "5000"}, "highest", "kg/m^3", 3000, 3000},
      {{"PTH", "500", "1e6"}, "highest", "kJ/kg", 3000, 3000},
      {{"TPH", "1e-4", "2300"}, "lowest", "kJ/kg", 260, 260},
      // Water under 10 MPa is densest at 2 degrees Celsius.
      {{"TPR", "10", "5000"}, "highest", "kg/m^3", 272, 278},
      {{"TPV", "10", "1e-9"}, "lowest", "m^3/kg", 272, 278},
  };
  for (const auto& [call, end, unit, from, to] : cases) {
    const Answer answer = calvex(call);
    EXPECT_EQ(answer.status, 1);
    const bool highest = std::string_view(end) == "highest";
    EXPECT_TRUE(contains(answer.err, highest ? " is above any that water has at "
                                             : " is below any that water has at "))
        << answer.err;
    const std::string mark = std::string("the ") + end + " is ";
    const std::size_t at = answer.err.find(mark);
    ASSERT_NE(at, std::string::npos) << answer.err;
    std::istringstream text(answer.err.substr(at + mark.size()));
    double value = 0.0, where = 0.0;
    std::string its, word;
    text >> value >> its >> word >> where;
    EXPECT_EQ(its, std::string(unit) + ",");
    EXPECT_GE(where, from) << answer.err;
    EXPECT_LE(where, to) << answer.err;
    // Another member has that value there.
    const std::string& name = call[0];
    const std::string there = std::to_string(where);
    const bool atPressure = name[1] == 'P';
    const std::string out = calvex({std::string{name[2], 'P', 'T'}, atPressure ? call[1] : there,
                                    atPressure ? there : call[1], "--json"})
                                .out;
    const double expected = numberAt(out, std::string("p") + name[2]);
    EXPECT_NEAR(value, expected, 1e-5 * expected) << answer.err;
  }
}

TEST(PlainWords, AValueBeyondAnyStateIsToldInTheUsersUnits) {
  const Answer answer =
      calvex({"TPH", "100", "1e6", "-u", "P=bar", "-u", "T=C", "-u", "H=kcal/kg"});
  EXPECT_TRUE(contains(answer.err,
                       "Enthalpy 1000000 kcal/kg is above any that water has at 100 bara: the "
                       "highest is 1922.03 kcal/kg, at 2226.85 C."))
      << answer.err;
}

TEST(PlainWords, AnEnthalpyThatNoPressureReachesIsToldTheEnds) {
  const std::string tooMuch = calvex({"PTH", "500", "1e6"}).err;
  EXPECT_TRUE(contains(tooMuch, "above any that water has at 500 K")) << tooMuch;
  EXPECT_TRUE(contains(tooMuch, "at 3000 MPa.")) << tooMuch;
  // Saturated water of 300 K has 112.5 kJ/kg, and more under pressure.
  const std::string tooLittle = calvex({"PTH", "300", "50"}).err;
  EXPECT_TRUE(contains(tooLittle, "below any that water has at 300 K: the lowest is 112.492 kJ/kg"))
      << tooLittle;
}

TEST(PlainWords, NothingOfAPressureADensityOrAVolumeIsRefusedAsNothing) {
  const std::string message = "Solution Error.";
  expectCause({"HPT", "0", "500"}, message, "Pressure must be above 0 MPa.");
  expectCause({"TPH", "0", "500"}, message, "Pressure must be above 0 MPa.");
  expectCause({"QT_PH", "0", "500"}, message, "Pressure must be above 0 MPa.");
  expectCause({"HPTQ", "0", "500", "1"}, message, "Pressure must be above 0 MPa.");
  expectCause({"TPR", "10", "0"}, message, "Density must be above 0 kg/m^3.");
  expectCause({"PTV", "500", "0"}, message, "Specific Volume must be above 0 m^3/kg.");
  EXPECT_TRUE(contains(calvex({"HPT", "-1.01325", "500", "-u", "P=barg"}).err,
                       "Pressure must be above -1.01325 barg."));
}

TEST(PlainWords, ANegativeInputIsToldTheLeastOne) {
  expectCause({"QPH", "1", "-5"}, "Enthalpy parameter out of range.",
              "Enthalpy -5 kJ/kg is below 0 kJ/kg, the least that is accepted.");
  expectCause({"TPV", "1", "-5"}, "Specific Volume parameter out of range.",
              "Specific Volume -5 m^3/kg is below 0 m^3/kg, the least that is accepted.");
  expectCause({"TurbineA", "-5", "10", "1", "0.8", "1"}, "Inlet Enthalpy parameter out of range.",
              "Inlet Enthalpy -5 kJ/kg is below 0 kJ/kg, the least that is accepted.");
}

TEST(PlainWords, NoPressureIsToldWhereverStatesAreAskedFor) {
  EXPECT_TRUE(
      contains(calvex({"table", "isobar", "0", "--from", "300", "--to", "400", "--step", "50"}).err,
               "at T = 300: Solution Error. Pressure must be above 0 MPa."));
  EXPECT_TRUE(contains(calvex({"state", "P=0", "T=500"}).err, "Pressure must be above 0 MPa."));
  const Answer batch = calvexWithInput("P,T\n0,500\n", {"batch", "-", "h=HPT(P,T)"});
  EXPECT_EQ(batch.out, "P,T,h,why\n0,500,,h: Solution Error. Pressure must be above 0 MPa.\n");
  EXPECT_TRUE(contains(calvex({"help", "HPT"}).out, "above 0 to 3000"));
  EXPECT_TRUE(contains(calvex({"help", "TPV"}).out, "  V  specific volume  m^3/kg  above 0\n"));
}

// Between the phases
// -------------------------------------------------------------------------------

TEST(PlainWords, BetweenThePhasesTheWayOutIsTold) {
  const std::string message(messageText(Message::twoPhase));
  const std::string where =
      "100 C is the boiling point at 1.01325 bara, where liquid and vapour are together. ";
  for (const std::string letter : {"H", "S", "V"}) {
    const Answer answer = calvex({letter + "PT", "1.01325", "100", "-u", "T=C", "-u", "P=bar"});
    EXPECT_TRUE(contains(answer.err, message + "\n" + where +
                                         "Give the pressure with the quality instead (" + letter +
                                         "SatPQ: 0 is liquid, 1 is vapour)"))
        << answer.err;
  }
  const Answer heat = calvex({"CPT", "1.01325", "100", "-u", "T=C", "-u", "P=bar"});
  EXPECT_TRUE(contains(heat.err, message + "\n" + where + "For the liquid ask at a slightly lower"))
      << heat.err;
  expectCause({"GPH", "1", "1770.295123"}, message,
              "They are those of wet steam, 0.5 of it vapour; this property is answered for the "
              "liquid or the vapour alone.");
  const Answer batch = calvexWithInput("P,T\n0.101322,373.15\n", {"batch", "-", "h=HPT(P,T)"});
  EXPECT_TRUE(contains(batch.out, message + " 373.15 K is the boiling point")) << batch.out;
}

// Ways to write inputs
// -----------------------------------------------------------------------------

TEST(PlainWords, AUnitMayStandBehindANumber) {
  const std::string plain = calvex({"HPT", "10", "773.15"}).out;
  EXPECT_EQ(calvex({"HPT", "100bar", "500C"}).out, plain);
  EXPECT_EQ(calvex({"HPT", "100 bara", "500 \u00B0C", "-u", "P=psi"}).out, plain);
  EXPECT_EQ(
      calvex({"table", "isobar", "100bar", "--from", "700", "--to", "700", "--step", "1"}).out,
      calvex({"table", "isobar", "10", "--from", "700", "--to", "700", "--step", "1"}).out);
  const Answer unknown = calvex({"HPT", "10foo", "500"});
  EXPECT_EQ(unknown.status, 2);
  EXPECT_TRUE(
      contains(unknown.err, "'10foo' is not a number, and 'foo' is not a unit of Pressure;"))
      << unknown.err;
  EXPECT_TRUE(contains(calvex({"HPT", "10psix", "500"}).err, "did you mean psia or psig?"));
  EXPECT_TRUE(
      contains(calvex({"TPV", "1", "100ft^3/lb"}).err, "warning: ft^3/lb: not the physical unit"));
  EXPECT_TRUE(contains(calvex({"HPT", "\u22121", "500"}).err,
                       "a minus is the hyphen of the keyboard, as in -1"));
  for (const char* number : {"10-5", "1,5", "1.2.3", "", "10=", "C"}) {
    const Answer wrong = calvex({"HPT", number, "500"});
    EXPECT_EQ(wrong.status, 2) << number;
    EXPECT_TRUE(contains(wrong.err, "is not a number")) << wrong.err;
  }
}

TEST(PlainWords, InputsMayBeNamed) {
  const std::string plain = calvex({"HPT", "10", "773.15"}).out;
  EXPECT_EQ(calvex({"HPT", "P=10", "T=773.15"}).out, plain);
  EXPECT_EQ(calvex({"HPT", "temperature=500C", "pressure=100bar"}).out, plain);
  EXPECT_EQ(calvex({"TurbineA", "MIn=10", "Eff=0.8", "POut=0.3", "PIn=4", "HIn=3213"}).out,
            calvex({"TurbineA", "3213", "4", "0.3", "0.8", "10"}).out);
  for (const Words& wrong : {Words{"HPT", "P=10", "773.15"}, Words{"HPT", "P=10", "P=773.15"},
                             Words{"HPT", "P=10", "H=773.15"}, Words{"HPT", "P=10"}}) {
    const Answer answer = calvex(wrong);
    EXPECT_EQ(answer.status, 2);
    EXPECT_TRUE(contains(answer.err, "name each of them once, as in P=..., or none")) << answer.err;
  }
  // What is no name of an input is a text as it stands.
  EXPECT_EQ(calvex({"AddExternalError", "a=b", "c=d"}).status, 0);
}

TEST(PlainWords, AUnitOnItsOwnIsToldWhereItBelongs) {
  EXPECT_TRUE(contains(calvex({"HPT", "10", "500", "C"}).err,
                       "a unit stands right behind its number: 500C"));
  EXPECT_TRUE(contains(calvex({"HPT", "10", "bar", "500"}).err,
                       "a unit stands right behind its number: 10bar"));
}

// Commands
// -----------------------------------------------------------------------------------------

TEST(PlainWords, NoPressureIsBelowVacuum) {
  EXPECT_EQ(calvex({"convert", "P", "-5", "bar", "psi"}).err,
            "calvex: -5 bara is below vacuum; the lowest pressure is 0 bara\n");
  EXPECT_EQ(calvex({"convert", "P", "-5", "barg", "psi"}).err,
            "calvex: -5 barg is below vacuum; the lowest pressure is -1.01325 barg\n");
  EXPECT_EQ(calvex({"convert", "P", "-0.5", "barg", "bar"}).out, "-0.5 barg = 0.51325 bara\n");
}

TEST(PlainWords, ATableThatIsNoneTellsThoseThatAre) {
  const Answer wrong = calvex({"table", "isobr"});
  EXPECT_EQ(wrong.status, 2);
  EXPECT_EQ(linesOf(wrong.err).front(),
            "calvex: table takes 'saturation', 'isobar PRESSURE' or 'isotherm TEMPERATURE', not "
            "'isobr'; did you mean isobar?");
  EXPECT_TRUE(contains(calvex({"table", "isobar"}).err, "isobar takes one pressure, as in"));
  EXPECT_EQ(calvex({"table", "saturation", "--from", "300"}).err,
            "calvex: --to is missing: a table runs --from X --to X --step X\n");
}

TEST(PlainWords, ANumberBehindAnOptionIsRefusedUnderTheOptionsName) {
  EXPECT_EQ(calvex({"table", "saturation", "--from", "x", "--to", "3", "--step", "1"}).err,
            "calvex: --from: 'x' is not a number\n");
  EXPECT_EQ(calvexWithInput("P\n1\n", {"batch", "-", "t=TSatP(P)", "--threads", "-1"}).err,
            "calvex: --threads: '-1' is not between 0 and 1024\n");
  EXPECT_EQ(calvexWithInput("P\n1\n", {"batch", "-", "t=TSatP(P)", "--threads", "0"}).status, 0);
}

TEST(PlainWords, AQuantityInPlaceOfAMemberIsToldItsMembers) {
  for (const char* name : {"enthalpy", "H", "h"}) {
    EXPECT_EQ(calvex({name, "10", "500"}).err,
              std::string("calvex: there is no member or command '") + name +
                  "'; 'calvex members enthalpy' lists those that answer it\n");
  }
}

TEST(PlainWords, AnOptionAloneThatIsNoneIsRefused) {
  EXPECT_TRUE(contains(calvex({"--foo"}).err, "there is no option '--foo'"));
}

TEST(PlainWords, HelpSuggestsCommandsToo) {
  EXPECT_TRUE(contains(calvex({"help", "stat"}).err, "did you mean state or"));
}

TEST(PlainWords, AScriptSaysWhereACommandGoes) {
  const Answer answer =
      calvexWithInput("units P\nconvert P 1 bar psi\nconvert P bar psi 1\n", {"run"});
  EXPECT_EQ(answer.status, 2);
  EXPECT_TRUE(contains(answer.err, "line 1: units is a command, and a script has only members"))
      << answer.err;
  EXPECT_TRUE(contains(answer.err, "on its own: calvex units P\n")) << answer.err;
  EXPECT_TRUE(contains(answer.err, "on its own: calvex convert P 1 bar psi\n")) << answer.err;
  EXPECT_TRUE(contains(answer.out, "value = 14.50375")) << "the member Convert, in small letters";
}

TEST(PlainWords, CompletionAsksForAShell) {
  const Answer answer = calvex({"completion"});
  EXPECT_EQ(answer.status, 2);
  EXPECT_EQ(answer.err, "calvex: for which shell? 'calvex completion bash', zsh or fish\n");
}

TEST(PlainWords, AGigacalorieAnHourIsKnown) {
  EXPECT_EQ(calvex({"convert", "duty", "1", "Gcal/h", "kW"}).out, "1 MMkcal/h = 1163 kW\n");
}

// Gauge and absolute, fractions and percentages
// -------------------------------------------------------------------------------

TEST(PlainWords, AGaugePressureIsNeverReadAsAbsolute) {
  for (const Words& words :
       {Words{"convert", "P", "10", "inwg", "mbar"}, Words{"HPT", "10inwg", "500"},
        Words{"HPT", "10", "500", "-u", "P=mmH2Og"}}) {
    const Answer answer = calvex(words);
    EXPECT_EQ(answer.status, 2);
    EXPECT_EQ(answer.out, "");
    EXPECT_TRUE(contains(answer.err, "the gauge units are barg, mbarg, kPag")) << answer.err;
    EXPECT_FALSE(contains(answer.err, "did you mean")) << answer.err;
  }
  // 10 in H2O at 249.082 Pa
  EXPECT_EQ(calvex({"convert", "DP", "10", "inwg", "mbar"}).out, "10 in H2O = 24.9082 mbar\n");
  // One standard atmosphere is 101.325 kPa.
  EXPECT_EQ(calvex({"convert", "P", "100", "kPa(g)", "bar"}).out, "100 kPag = 2.01325 bara\n");
  EXPECT_EQ(calvex({"convert", "P", "0", "kg/cm2g", "Pa"}).out, "0 kgf/cm2g = 101325 Pa\n");
  EXPECT_EQ(calvex({"HPT", "9898.675", "773.15", "-u", "P=kPag"}).out,
            calvex({"HPT", "10", "773.15"}).out);
}

TEST(PlainWords, APercentageGivenAsAFractionIsToldHowToBeWritten) {
  expectCause({"TurbineA", "3374", "10", "1", "80", "10"},
              "Efficiency parameter out of range (Valid range 0.00 to 1.00 Fraction).",
              "80 % is 0.8 as a Fraction (on the command line also 80%).");
  EXPECT_EQ(calvex({"TurbineA", "3374", "10", "1", "80%", "10"}).status, 0);
  expectCause({"PSatT", "647.13"},
              "Temperature parameter out of range (Valid range 273.16 to 647.13 K).",
              "Temperature 647.13 K is above 647.126 K.");
}

TEST(PlainWords, ARatioThatNoPlantHasIsWarnedOf) {
  EXPECT_TRUE(contains(calvex({"Boiler", "448", "9.7", "673", "4.2", "3"}).err,
                       "warning: Blowdown ratio 3 Fraction is above 1 Fraction"));
  EXPECT_TRUE(contains(calvex({"DeAerator", "0.12", "2800", "320", "10", "150%"}).err,
                       "warning: Vent ratio 1.5 Fraction is above 1 Fraction"));
  EXPECT_EQ(calvex({"Boiler", "448", "9.7", "673", "4.2", "3%"}).err, "");
}

TEST(PlainWords, TheTwoBtusAreWarnedOf) {
  EXPECT_TRUE(
      contains(calvex({"UPT", "10", "773.15", "-u", "U=BTU/lb"}).err, "0.07 % smaller here"));
  EXPECT_EQ(calvex({"HPT", "10", "773.15", "-u", "H=BTU/lb"}).err, "");
  EXPECT_TRUE(contains(calvex({"units", "DP"}).out, "1 in Hg is 3376.85 Pa here and 3386.39"));
}

// Words in the wrong place
// -------------------------------------------------------------------------------

TEST(PlainWords, AStateThatIsNoneIsToldWhy) {
  const std::pair<Words, const char*> cases[] = {
      {{"10MPa", "500C"},
       "calvex: '10MPa' lacks the name of its property, as in P=10MPa; state takes"},
      {{"10", "500"}, "calvex: '10' lacks the name of its property"},
      {{"P=10bar,T=500C"}, "more than one property: a blank stands between them, not a ','"},
      {{"P=10", "T=500", "H=3"}, "calvex: 3 properties are too many; state takes two"},
      {{"P=10"}, "calvex: one property is not enough; state takes two"},
      {{"P=10", "T"}, "calvex: 'T' lacks its value; state takes two"},
  };
  for (const auto& [words, expected] : cases) {
    Words all = {"state"};
    all.insert(all.end(), words.begin(), words.end());
    const Answer answer = calvex(all);
    EXPECT_EQ(answer.status, 2);
    EXPECT_TRUE(contains(answer.err, expected)) << answer.err;
  }
}

TEST(PlainWords, ARangeOfATableMayHaveUnits) {
  EXPECT_EQ(
      calvex({"table", "isobar", "10bar", "--from", "400C", "--to", "500C", "--step", "50", "-u",
              "T=C"})
          .out,
      calvex({"table", "isobar", "1", "--from", "400", "--to", "500", "--step", "50", "-u", "T=C"})
          .out);
  EXPECT_EQ(calvex({"table", "isobar", "1", "--from", "1", "--to", "2", "--step", "10C"}).err,
            "calvex: --step: '10C' has a unit; a step is a plain number, in the unit of T: K\n");
}

TEST(PlainWords, ABatchSaysThatItsNumbersArePlain) {
  const Answer answer = calvexWithInput("P\n1\n", {"batch", "-", "h=HPT(P,500C)"});
  EXPECT_EQ(answer.status, 2);
  EXPECT_TRUE(contains(answer.err, "in the units that -u chooses, as in 500 with -u T=C"))
      << answer.err;
}

TEST(PlainWords, AScriptUnderstandsWhatAShellDoes) {
  const Answer ended = calvexWithInput("reset\nquit\nHPT 10 773.15\n", {"run"});
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.out, "reset\n  done\n");
  const Answer options = calvexWithInput("HPT 10 500 -u T=C\nHPT 10 500 -s SatPolish=0\n", {"run"});
  EXPECT_EQ(options.status, 2);
  EXPECT_TRUE(contains(options.err,
                       "line 1: '-u' is for the command line; in a script a line of "
                       "its own chooses a unit, as in SetUserUnit T C"))
      << options.err;
  EXPECT_TRUE(contains(options.err, "changes a setting, as in SatPolish 0")) << options.err;
  EXPECT_EQ(calvexWithInput("AddExternalError a -u\n", {"run"}).status, 0);
}

TEST(PlainWords, TheHelpOfWhatEndsWithTheCallShowsAScript) {
  EXPECT_TRUE(
      contains(calvex({"help", "SetUserUnit"}).out, "example, in a script\n  SetUserUnit "));
  EXPECT_FALSE(contains(calvex({"help", "SetUserUnit"}).out, "calvex SetUserUnit"));
}

TEST(PlainWords, AnAnswerToAWordThatIsNoneOfTheWanted) {
  EXPECT_TRUE(
      contains(calvex({"units", "pressur"}).err, "; did you mean Pressure or Pressure Diff?"));
  EXPECT_EQ(calvex({"units", "bar"}).status, 2);
  EXPECT_TRUE(
      contains(calvex({"units", "bar"}).err,
               "'bar' is a unit of Pressure, Pressure Difference; 'calvex units Pressure'"));
  EXPECT_TRUE(contains(calvex({"members", "temprature"}).err,
                       "nothing answers 'temprature'; did you mean temperature"));
  EXPECT_TRUE(contains(calvex({"members", "hidden", "heat"}).err, "nothing answers 'hidden'\n"));
  EXPECT_EQ(calvex({"config", "--json"}).err,
            "calvex: there is no option '--json'\n'calvex help config' lists them\n");
  EXPECT_TRUE(contains(calvex({"ShowTraceDlg"}).err, "only in the automation server on Windows"));
}

// Warnings and notes
// -------------------------------------------------------------------------------

TEST(PlainWords, AWarningOfTheStrictRangeTellsIt) {
  EXPECT_EQ(
      calvex({"HPT", "2000", "500"}).err,
      "calvex: warning: Pressure parameter out of strictly valid range. Strictly valid: up to "
      "500 MPa at 273.15 K, rising to 1500 MPa from 423.15 K on.\n");
  EXPECT_EQ(calvex({"HPT", "10", "2000", "-u", "T=C"}).err,
            "calvex: warning: Temperature parameter out of strictly valid range. Strictly valid: "
            "0 C to 1000 C.\n");
  EXPECT_EQ(
      calvex({"MPT", "300", "300"}).err,
      "calvex: warning: Pressure parameter out of strictly valid range. Strictly valid: up to "
      "100 MPa.\n");
}

// Water of 295 K is ice under 930 MPa; the equation, beyond its range, has a liquid there that
// cools down when it is heated.
TEST(PlainWords, AHeatCapacityBelowZeroIsWarnedOf) {
  const std::string warning =
      "calvex: warning: The heat capacity is not above zero: the equation has no stable water "
      "here.\n";
  for (const char* member : {"CPT", "DPT"}) {
    const Answer answer = calvex({member, "930", "295", "--json"});
    EXPECT_LT(numberAt(answer.out, std::string("p") + *member), 0.0) << answer.out;
    EXPECT_TRUE(contains(answer.err, warning)) << answer.err;
    EXPECT_FALSE(contains(calvex({member, "600", "295"}).err, warning));
  }
  const Answer state = calvex({"state", "P=810", "T=280"});
  EXPECT_TRUE(contains(state.err, warning)) << state.err;
  EXPECT_TRUE(contains(state.out, "speed of sound: The heat capacity is not above zero"));
  EXPECT_FALSE(contains(state.out, "nan")) << state.out;
  EXPECT_FALSE(contains(calvex({"state", "P=810", "T=280", "--json"}).out, "nan"));
  EXPECT_TRUE(contains(calvex({"WPT", "810", "280"}).err,
                       "WPT failed: Solution Error.\nThe heat capacity is not above zero"));
}

TEST(PlainWords, TheNotesOfTheTimeTellTheirUnit) {
  const std::string out = calvex({"PSatT", "400", "-s", "TraceLevel=2", "--trace"}).out;
  EXPECT_TRUE(contains(out, "note: Time = ")) << out;
  const std::string unit = std::to_string(CLOCKS_PER_SEC);
  EXPECT_TRUE(contains(out, " (processor clock, " + unit + " ticks a second)\n")) << out;
}

}  // namespace
}  // namespace calvex::cli::test
