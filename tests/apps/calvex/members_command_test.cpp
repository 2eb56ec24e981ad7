#include <gtest/gtest.h>

#include "command_line_harness.h"
#include "member_help.h"
#include "script.h"
#include "server/member_explanations.h"

namespace calvex::cli::test {
namespace {

std::vector<std::string> listedNames(const std::string& text) {
  std::vector<std::string> names;
  for (const std::string& line : linesOf(text)) {
    if (line.starts_with("  ")) names.push_back(line.substr(2, line.find(' ', 2) - 2));
  }
  return names;
}

bool lists(const std::string& text, const std::string& name) {
  const auto names = listedNames(text);
  return std::find(names.begin(), names.end(), name) != names.end();
}

TEST(MembersCommand, ListsEveryMemberOnceUnderItsHeading) {
  const std::string text = calvex({"members"}).out;
  EXPECT_EQ(listedNames(text).size(), memberTable().size());
  for (const Member& member : memberTable()) {
    EXPECT_TRUE(lists(text, std::string(member.name))) << member.name;
  }
  std::vector<std::string> headings;
  for (const std::string& line : linesOf(text)) {
    if (!line.empty() && line.front() != ' ') headings.push_back(line);
    EXPECT_LE(line.size(), 125U) << line;
  }
  EXPECT_EQ(headings,
            (std::vector<std::string>{"properties", "saturation line", "equipment", "spreadsheet",
                                      "units", "diagnostics", "settings"}));
}

TEST(MembersCommand, FindsByPatternAndPartWhateverTheCase) {
  const Answer glob = calvex({"members", "?satpq"});
  EXPECT_EQ(listedNames(glob.out).size(), 5U) << glob.out;
  EXPECT_TRUE(contains(glob.out, "HSatPQ  saturated enthalpy from pressure and quality"))
      << glob.out;
  EXPECT_TRUE(contains(calvex({"members", "userunit"}).out, "SetCustomUserUnitIndex"));
  EXPECT_EQ(listedNames(calvex({"members", "*"}).out).size(), memberTable().size());
  const Answer none = calvex({"members", "HTP"});
  EXPECT_EQ(none.status, 2);
  EXPECT_TRUE(contains(none.err, "did you mean HPT")) << none.err;
}

TEST(MembersCommand, FindsByWordsWhatAnswersThem) {
  struct Case {
    Words words;
    const char* found;
    const char* notFound;
  };
  for (const Case& one : {Case{{"enthalpy"}, "HPT", "SPH"},
                          {{"enthalpy"}, "TurbineA", "CritT"},
                          {{"saturation pressure"}, "PSatT", "HSatPQ"},
                          {{"saturation", "Pressure"}, "PSatT", "TSatP"},
                          {{"boiling"}, "TSatP", "Boiler"},
                          {{"cp"}, "CPT", "DPT"},
                          {{"speed of sound"}, "WPT", "HPT"},
                          {{"ejector"}, "XLThermoCompB", "XLTurbineA"},
                          {{"heat exchanger"}, "XLHeatExchangerA", "Boiler"},
                          {{"spray"}, "DeSuperHeater", "Boiler"},
                          {{"blowdown"}, "Boiler_B", "TurbineA"},
                          {{"warnings"}, "TraceLevel", "HPT"},
                          {{"latent", "heat"}, "HVLTSat_PQ", "CPT"},
                          {{"heat", "of", "evaporation"}, "HVLTSat_PQ", "CPT"},
                          {{"wet", "steam"}, "QPH", "HPT"},
                          {{"viscosity"}, "MPT", "KPT"}}) {
    Words words = one.words;
    words.insert(words.begin(), "members");
    const Answer answer = calvex(words);
    EXPECT_EQ(answer.status, 0) << one.words.front();
    EXPECT_TRUE(lists(answer.out, one.found)) << one.words.front() << "\n" << answer.out;
    EXPECT_FALSE(lists(answer.out, one.notFound)) << one.words.front() << "\n" << answer.out;
  }
  EXPECT_TRUE(contains(calvex({"members", "enthalpy"}).out, "also in the inputs or notes of"));
  const Answer settings = calvex({"members", "settings"});
  EXPECT_TRUE(lists(settings.out, "SolverTol")) << "a heading is a word too";
  EXPECT_FALSE(lists(settings.out, "HPT"));
  EXPECT_EQ(calvex({"members", "banana"}).status, 2);
}

TEST(MembersCommand, ExplainsAMemberInTheCurrentUnits) {
  const std::string expected =
      "HPT P T\n"
      "\n"
      "Enthalpy from pressure and temperature.\n"
      "On the saturation line pressure and temperature do not determine the state: there the "
      "quality is\n"
      "needed (HPTQ, HSatPQ and their like) or another pair.\n"
      "\n"
      "inputs\n"
      "  P  pressure     MPa  above 0 to 3000\n"
      "  T  temperature  C    -13.15 to 2226.85\n"
      "\n"
      "results\n"
      "  H  enthalpy  kJ/kg\n"
      "\n"
      "example\n"
      "  calvex HPT 10 500 -u T=C\n"
      "  H = 3373.998049 kJ/kg  enthalpy\n"
      "\n"
      "for automation clients\n"
      "  HPT([out] double pH, [in] double P, [in] double T, [out, retval] long pSucc)\n"
      "  dispatch id 0x33\n";
  EXPECT_EQ(calvex({"members", "hpt", "-u", "T=C"}).out, expected);
  EXPECT_EQ(calvex({"help", "HPT", "-u", "T=C"}).out, expected);
  EXPECT_EQ(calvex({"HPT", "--help", "-u", "T=C"}).out, expected);
}

TEST(MembersCommand, ExplainsWhatShortNamesMean) {
  const std::string chart = calvex({"help", "XLThermoCompressorB"}).out;
  EXPECT_TRUE(contains(chart, "MSP        motive steam pressure")) << chart;
  const std::string deaerator = calvex({"help", "DeAerator"}).out;
  EXPECT_TRUE(contains(deaerator, "MRatio  vent flow per flow of deaerated water")) << deaerator;
  EXPECT_TRUE(contains(deaerator, "Hs      enthalpy of the heating steam")) << deaerator;
  EXPECT_TRUE(contains(calvex({"help", "NPT"}).out, "cp times the dynamic viscosity"));
}

TEST(MembersCommand, ListsTheTokensOfASpreadsheetMember) {
  const Answer answer = calvex({"members", "XLTurbineA", "-u", "T=C"});
  EXPECT_TRUE(contains(answer.out,
                       "\nresults, by the tokens that strTokens names\n"
                       "  Pow    turbine power       kW\n"
                       "  T_Out  outlet temperature  C\n"
                       "  H_Out  outlet enthalpy     kJ/kg\n"
                       "  Q_Out  outlet quality      Fraction\n"))
      << answer.out;
  EXPECT_FALSE(contains(calvex({"members", "TurbineA"}).out, "tokens"));
  for (const Member& member : memberTable()) {
    EXPECT_EQ(contains(calvex({"members", std::string(member.name)}).out, "by the tokens"),
              member.name.starts_with("XL"))
        << member.name;
  }
}

TEST(MembersCommand, ExplainsTheStartOfASettingHereAndInTheServer) {
  const std::string polish = calvex({"members", "SatPolish"}).out;
  EXPECT_TRUE(contains(polish, "\n  2 at the start here, 1 in the automation server\n")) << polish;
  EXPECT_TRUE(contains(polish, "calvex MEMBER ... -s SatPolish=VALUE  sets it for a call\n"))
      << polish;
  EXPECT_TRUE(contains(calvex({"members", "TraceLevel"}).out,
                       "\n  0 to 2\n  1 at the start here, 0 in the automation server\n"));
  EXPECT_TRUE(contains(calvex({"members", "SolverTol"}).out,
                       "\n  above 1e-14, below 1e-06\n  1e-09 at the start\n"));
}

// The example is what a user copies: it must run, and the help shows what it answers.
TEST(MembersCommand, TheExampleOfEveryMemberRuns) {
  for (const Member& member : memberTable()) {
    Client client;
    const std::vector<std::string> lines = exampleLines(member, client.units());
    ASSERT_FALSE(lines.empty());
    std::string script;
    for (const std::string& line : lines) script += line + "\n";
    EXPECT_TRUE(contains(script, std::string(member.name))) << script;
    const Answer run = calvexWithInput(script, {"run"});
    EXPECT_EQ(run.status, 0) << script << run.err;
    const bool dialog = member.name.ends_with("Dlg");
    EXPECT_EQ(contains(run.err, "only in the automation server on Windows"), dialog) << run.err;
    EXPECT_EQ(run.err.empty(), !dialog) << run.err;

    const std::string help = calvex({"help", std::string(member.name)}).out;
    const std::string answer = run.out.substr(run.out.find('\n') + 1);
    const bool inScript = contains(help, "\nexample, in a script\n  " + lines[0] + "\n");
    const bool onItsOwn = contains(help, "\nexample\n  calvex " + lines[0] + "\n" + answer);
    EXPECT_TRUE(inScript || (lines.size() == 1 && onItsOwn)) << help << run.out;
  }
}

TEST(MembersCommand, TheExampleOfEveryMemberRunsInOtherUnits) {
  const Words units = {"-u", "P=psia",        "-u", "T=F", "-u", "H=Btu/lb",
                       "-u", "S=Btu/(lb.R)",  "-u", "Q=%", "-u", "Power=hp",
                       "-u", "Flow Rate=lb/h"};
  for (const Member& member : memberTable()) {
    Words words = {"help", std::string(member.name)};
    words.insert(words.end(), units.begin(), units.end());
    const Answer help = calvex(words);
    EXPECT_EQ(help.status, 0) << member.name << help.err;
    EXPECT_TRUE(contains(help.out, "\nexample")) << help.out;
    EXPECT_FALSE(contains(help.out, "no answer in these units")) << help.out;
  }
}

}  // namespace
}  // namespace calvex::cli::test
