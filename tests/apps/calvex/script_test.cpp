#include "script.h"

#include <gtest/gtest.h>

#include <random>

#include "command_line_harness.h"
#include "support/checkout.h"

namespace calvex::cli::test {
namespace {

using Lines = std::vector<std::string>;

/// The lines that `calvex run --json` prints.
Lines jsonOf(const std::string& script) {
  std::istringstream out(calvexWithInput(script, {"run", "--json"}).out);
  Lines lines;
  for (std::string line; std::getline(out, line);) lines.push_back(line);
  return lines;
}

std::string refusal(const std::string& line) {
  try {
    static_cast<void>(splitLine(line));
    return "split";
  } catch (const UsageError& error) {
    return error.what();
  }
}

TEST(SplitLine, SeparatesWordsByBlanks) {
  EXPECT_EQ(splitLine("  HPT\t10  773.15 ").words, (Lines{"HPT", "10", "773.15"}));
  EXPECT_EQ(splitLine("").words, Lines{});
}

TEST(SplitLine, ACommentBeginsWhereAWordCould) {
  EXPECT_EQ(splitLine("HPT 10 # 773.15").words, (Lines{"HPT", "10"}));
  EXPECT_EQ(splitLine("# HPT").words, Lines{});
  EXPECT_EQ(splitLine("a#b \"# c\"").words, (Lines{"a#b", "# c"}));
}

TEST(SplitLine, QuotedTextsHaveTheEscapesOfJson) {
  EXPECT_EQ(splitLine(R"(SetUserUnit P "ft H2O")").words, (Lines{"SetUserUnit", "P", "ft H2O"}));
  EXPECT_EQ(splitLine(R"("" "a\"b\\c\/\n\tN/m\u00b2\u00B2")").words,
            (Lines{"", "a\"b\\c/\n\tN/m\u00B2\u00B2"}));
}

TEST(SplitLine, KeepsTheSourceOfTheWordsWithoutBlanksAndComment) {
  EXPECT_EQ(splitLine("\t SetUserUnit  P \"ft # H2O\" \t# water column").source,
            "SetUserUnit  P \"ft # H2O\"");
  EXPECT_EQ(splitLine("  # HPT").source, "");
  EXPECT_EQ(splitLine("HPT").source, "HPT");
}

TEST(SplitLine, MalformedQuotesAreRefused) {
  EXPECT_EQ(refusal("a \"b"), "a closing quote is missing");
  EXPECT_EQ(refusal("a \"b\\"), "a closing quote is missing");
  EXPECT_EQ(refusal("\"a\"b"), "a blank is missing after a closing quote");
  EXPECT_TRUE(contains(refusal("a\"b\""), "a quote inside a word"));
  EXPECT_TRUE(contains(refusal(R"("\q")"), "unknown escape"));
  EXPECT_TRUE(contains(refusal(R"("\u12")"), "four hexadecimal digits"));
  EXPECT_TRUE(contains(refusal(R"("\u00zz")"), "four hexadecimal digits"));
  EXPECT_TRUE(contains(refusal(R"("\ud800")"), "surrogate"));
}

TEST(RunCommand, RunsAllLinesWithOneClientObject) {
  const Lines lines = jsonOf("SetUserUnit T C\nHPT 10 500\nTraceLevel 2\nTraceLevel\n");
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_EQ(lines[0], R"({"member":"SetUserUnit","hresult":0,"pSucc":1})");
  EXPECT_NEAR(numberAt(lines[1], "pH"), 3373.99804895, 1e-9 * 3373.99804895);
  EXPECT_EQ(lines[2], R"({"member":"TraceLevel","hresult":0})");
  EXPECT_EQ(lines[3], R"({"member":"TraceLevel","hresult":0,"value":2})");
}

TEST(RunCommand, ValueMembersAnswerTheirValueWithItsUnit) {
  const Lines lines = jsonOf("CritT\nMolWeight\nVersionStr\nCritZ\n");
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_TRUE(lines[0].starts_with(R"({"member":"CritT","hresult":0,"value":647.)")) << lines[0];
  EXPECT_TRUE(lines[0].ends_with(R"("units":{"value":"K"}})")) << lines[0];
  EXPECT_NEAR(numberAt(lines[1], "value"), 18.015, 0.001);
  EXPECT_EQ(lines[2], R"({"member":"VersionStr","hresult":0,"value":")" +
                          calvex::test::projectVersion() + R"("})");
  EXPECT_FALSE(contains(lines[3], "units")) << lines[3];
}

TEST(RunCommand, OutputsThatWereNotWrittenAreAbsent) {
  EXPECT_EQ(jsonOf("hWnd"), Lines{R"({"member":"hWnd","hresult":0})"});
  EXPECT_EQ(jsonOf("GetUserUnit nowhere"),
            Lines{R"({"member":"GetUserUnit","hresult":0,"pSucc":0,)"
                  R"("lastError":"nowhere is not a defined unit group."})"});
}

TEST(RunCommand, LastErrorIsGivenWhenAStatusMemberRefuses) {
  EXPECT_EQ(jsonOf("TraceLevel 7"),
            Lines{R"({"member":"TraceLevel","hresult":1,"lastError":"Invalid reporting level.",)"
                  R"("cause":"The level must be 0 (errors), 1 (also warnings) or 2 (also notes), )"
                  R"(not 7."})"});
}

TEST(RunCommand, ACauseStandsBelowAReasonThatDoesNotSayIt) {
  const Answer text = calvexWithInput("HPT 1 2500.001\n", {"run"});
  const std::string failure =
      "HPT failed: Temperature parameter out of range (Valid range 260.00 to 2500.00 K).\n"
      "  Temperature 2500.001 K is above 2500 K.\n";
  EXPECT_EQ(text.out, "HPT 1 2500.001\n  " + failure);
  EXPECT_EQ(text.err, "calvex: line 1: " + failure);
  const Lines lines = jsonOf("HPT 1 2500.001\nHPT 1 3000\n");
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_TRUE(lines[0].ends_with(R"(,"cause":"Temperature 2500.001 K is above 2500 K."})"))
      << lines[0];
  EXPECT_FALSE(contains(lines[1], "cause")) << lines[1];
}

TEST(RunCommand, AnArrayIsAListOfRowsAndTakesNoArgument) {
  EXPECT_EQ(jsonOf("GetAlarms"),
            Lines{R"({"member":"GetAlarms","hresult":0,"pAlarmArray":[["Alarm Name0",)"
                  R"("Alarm Message"],["Alarm Name1","Alarm Message"],["Alarm Name2",)"
                  R"("Alarm Message"]]})"});
}

TEST(RunCommand, TextsAreQuotedAndInUtf8) {
  const Lines lines = jsonOf(
      "SetUserUnit P \"ft H2O\"\nGetUserUnit P\n"
      "SetUserUnit P N/m\u00B2\nGetUserUnit P\n"
      "AppName \"\\\"\u20AC\\n\"\nAppName\n");
  ASSERT_EQ(lines.size(), 6U);
  EXPECT_EQ(lines[1], R"({"member":"GetUserUnit","hresult":0,"pSucc":1,"pVal":"ft H2O"})");
  EXPECT_EQ(lines[3],
            "{\"member\":\"GetUserUnit\",\"hresult\":0,\"pSucc\":1,\"pVal\":\"N/m\u00B2\"}");
  EXPECT_EQ(lines[5], "{\"member\":\"AppName\",\"hresult\":0,\"value\":\"\\\"\u20AC\\u000a\"}");
}

TEST(RunCommand, TheClientsTextsPassUnharmedInAnyScript) {
  const Lines lines = jsonOf(
      "SetupExcelTracing\nSetCellRef Łódź.xlsx Котельная 锅炉\nGetCellRef\n"
      "AddExternalError Насос \"🔥 is dry\"\nLastError\n");
  ASSERT_EQ(lines.size(), 5U);
  EXPECT_TRUE(contains(lines[2], "\"'[Łódź.xlsx]Котельная'!锅炉\"")) << lines[2];
  EXPECT_TRUE(contains(lines[4], "\"🔥 is dry\"")) << lines[4];
}

TEST(RunCommand, ALineThatCannotBeRunIsAnErrorAndTheNextOneRuns) {
  const Lines lines = jsonOf(
      "HPT 10\nHPT 10 nan\nHTP 10 773.15\nHPT 10 inf\nSatPolish 0.5\n"
      "AppName \"\xFF\"\nreset now\nSatPolish\n");
  ASSERT_EQ(lines.size(), 8U);
  EXPECT_EQ(lines[0],
            R"({"error":"HPT takes 2 arguments: P (Pressure, MPa), T (Temperature, K), but 1 was )"
            R"(given","line":1,"text":"HPT 10"})");
  EXPECT_TRUE(contains(lines[1], "'nan' is not a finite number")) << lines[1];
  EXPECT_TRUE(contains(lines[2], "did you mean HPT")) << lines[2];
  EXPECT_TRUE(contains(lines[3], "'inf' is not a finite number")) << lines[3];
  EXPECT_TRUE(contains(lines[4], "'0.5' is not a whole number")) << lines[4];
  EXPECT_TRUE(contains(lines[5], "is not UTF-8")) << lines[5];
  EXPECT_TRUE(contains(lines[6], "reset takes no arguments")) << lines[6];
  EXPECT_EQ(lines[7], R"({"member":"SatPolish","hresult":0,"value":2})");
}

TEST(RunCommand, TheTraceIsNestedFromTheRoot) {
  const Lines lines = jsonOf(
      "AddCustomTraceTitle Cell\nSetCustomTraceText 0 A1\nHPT 10 99999\n"
      "trace\n");
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_EQ(lines[3],
            R"({"text":"Root","kind":0,"columns":["Cell"],"children":[{"text":"HPT","kind":1,)"
            R"("columns":["A1"],"children":[{"text":"Temperature parameter out of range (Valid )"
            R"(range 260.00 to 2500.00 K).","kind":2,"columns":[],"children":[]}]}]})");
}

TEST(RunCommand, ResetMakesANewClientObject) {
  const Lines lines = jsonOf(
      "SatPolish 0\nSetUserUnit T C\nHPT 10 99999\nreset\nSatPolish\n"
      "GetUserUnit T\ntrace\nTraceLevel\n");
  ASSERT_EQ(lines.size(), 8U);
  EXPECT_EQ(lines[4], R"({"member":"SatPolish","hresult":0,"value":2})");
  EXPECT_EQ(lines[7], R"({"member":"TraceLevel","hresult":0,"value":1})");
  EXPECT_TRUE(contains(lines[5], R"("pVal":"C")")) << "the units stay";
  EXPECT_EQ(lines[6], R"({"text":"Root","kind":0,"columns":[],"children":[]})");
}

TEST(RunCommand, PrintsReadableTextAndReasonsWithLineNumbers) {
  const Answer answer =
      calvexWithInput("# steam\nHPT 10 773.15\n\nHPT 10 99999\nAppLevel 4\ntrace\n", {"run", "-"});
  EXPECT_EQ(answer.out,
            "HPT 10 773.15\n  H = 3373.998049 kJ/kg  enthalpy\nHPT 10 99999\n"
            "  HPT failed: Temperature parameter out of range (Valid range 260.00 to 2500.00 K).\n"
            "AppLevel 4\n  AppLevel failed: 4 is not 0 or 2 (units of the catalogue), 1 (a units "
            "server) or 3 (units of one's own)\n"
            "trace\n  HPT\n"
            "    error: Temperature parameter out of range (Valid range 260.00 to 2500.00 K).\n");
  EXPECT_EQ(answer.err,
            "calvex: line 4: HPT failed: Temperature parameter out of range (Valid range 260.00 to "
            "2500.00 K).\ncalvex: line 5: AppLevel failed: 4 is not 0 or 2 (units of the "
            "catalogue), 1 (a units server) or 3 (units of one's own)\n");
}

// Where the two streams go to one place, each reason is told once, in its place.
TEST(RunCommand, FailingLinesKeepTheirPlaceAmongTheAnswers) {
  std::istringstream in("TraceLevel\nHPT 10\nHPT 10 99999\nSatPolish 1\n");
  std::ostringstream both;
  Console console{in, both, both};
  console.errIsOut = true;
  EXPECT_EQ(static_cast<int>(runCommandLine({"run"}, console)), 2);
  EXPECT_EQ(both.str(),
            "TraceLevel\n  TraceLevel = 1  reporting level\nHPT 10\n"
            "calvex: line 2: HPT takes 2 arguments: P (Pressure, MPa), T (Temperature, K), but 1 "
            "was given\nHPT 10 99999\n"
            "calvex: line 3: HPT failed: Temperature parameter out of range (Valid range 260.00 to "
            "2500.00 K).\nSatPolish 1\n  done\n");
  const Answer apart = calvexWithInput("TraceLevel\n  HPT 10  # one\nTraceLevel\n", {"run"});
  EXPECT_EQ(apart.out,
            "TraceLevel\n  TraceLevel = 1  reporting level\nHPT 10\n"
            "  HPT takes 2 arguments: P (Pressure, MPa), T (Temperature, K), but 1 was given\n"
            "TraceLevel\n  TraceLevel = 1  reporting level\n");
}

TEST(RunCommand, AnErroneousLineInJsonCarriesItsNumberAndText) {
  EXPECT_EQ(jsonOf("\n# steam\n  HPT \"10 \n"),
            Lines{R"({"error":"a closing quote is missing","line":3,"text":"HPT \"10"})"});
}

TEST(RunCommand, UnitsAreChosenInTheWordsPeopleUse) {
  const Lines lines = jsonOf(
      "SetUserUnit pressure BAR\nSetUserUnitIndex 0 degC\nHPT 100 500\nGetUserUnit PRESSURE\n"
      "Convert Pressure psi bar 100\n");
  ASSERT_EQ(lines.size(), 5U);
  EXPECT_NEAR(numberAt(lines[2], "pH"), 3373.99804895, 1e-9 * 3373.99804895);
  EXPECT_TRUE(contains(lines[3], R"("pVal":"bara")")) << lines[3];
  EXPECT_NEAR(numberAt(lines[4], "dblToVal"), 6.89476751, 1e-12);
}

// 0.0328 m3/kg at 10 MPa and 500 C in published tables; 1 ft3/lbm = 0.06242796 m3/kg.
TEST(RunCommand, AUnitThatTheCatalogueLacksLastsLikeTheOthers) {
  const Lines lines = jsonOf(
      "SetUserUnit T C\nVPT 10 500\nSetUserUnit V \"cu ft/lb\"\nVPT 10 500\nGetUserUnit V\n"
      "SetUserUnit P bar\nVPT 100 500\nreset\nVPT 100 500\nSetUserUnit V m3/kg\nVPT 100 500\n"
      "Convert V ft3/lbm m3/kg 1\nConvert V ft3/lbm l/kg 1e308\n");
  ASSERT_EQ(lines.size(), 13U);
  const double volume = numberAt(lines[1], "pV");
  EXPECT_NEAR(volume, 0.0328, 0.0001);
  for (const std::size_t line : {3U, 6U, 8U}) {
    EXPECT_NEAR(numberAt(lines[line], "pV"), volume / 0.0624279605761446, 1e-12) << lines[line];
    EXPECT_TRUE(contains(lines[line], R"("units":{"pV":"cu ft/lb"})")) << lines[line];
  }
  EXPECT_TRUE(contains(lines[4], R"("pVal":"cu ft/lb")")) << lines[4];
  EXPECT_NEAR(numberAt(lines[10], "pV"), volume, 1e-15);
  EXPECT_NEAR(numberAt(lines[11], "dblToVal"), 0.0624279605761446, 1e-16);
  EXPECT_TRUE(contains(lines[12], "Cannot convert 1e+308 ft3/lbm to l/kg: the result is no"))
      << lines[12];
}

TEST(RunCommand, WarnsOfAUnitThatIsNotPhysical) {
  const Answer answer = calvexWithInput("SetUserUnit V ft3/lb\n", {"run"});
  EXPECT_EQ(answer.status, 0);
  EXPECT_TRUE(contains(answer.err, "calvex: warning: line 1: ft3/lb: not the physical unit"))
      << answer.err;
}

TEST(RunCommand, ACustomUnitHasWhateverNameItsMakerGivesIt) {
  const Lines lines = jsonOf("AppLevel 3\nSetCustomUserUnitIndex 1 bar 2 0\nGetUserUnitIndex 1\n");
  EXPECT_TRUE(contains(lines.at(2), R"("pVal":"bar")")) << lines.at(2);
}

TEST(RunCommand, ARepeatedFailureGivesItsReasonAgain) {
  for (const std::string line :
       {"XLTurbineA 3374 10 1 0.8 10 nonsense", "MaxTraceSize 1", "HPT 10 99999"}) {
    const Answer answer = calvexWithInput(line + '\n' + line + '\n', {"run"});
    const std::string second = "calvex: line 2: ";
    const std::size_t at = answer.err.find(second);
    ASSERT_NE(at, std::string::npos) << answer.err;
    const std::string reason = answer.err.substr(at + second.size());
    EXPECT_TRUE(contains(reason, " failed: ")) << reason;
    EXPECT_TRUE(contains(answer.err, "calvex: line 1: " + reason)) << answer.err;
  }
}

TEST(RunCommand, ARepeatedFailureGivesItsReasonWhenTheTraceIsFull) {
  const Answer answer = calvexWithInput(
      "MaxTraceSize 2\nHPT 10 99999\nHPT 10 99999\nHPT 10 99999\nHPT 10 99999\n", {"run"});
  for (const char* line : {"line 2", "line 3", "line 4", "line 5"}) {
    EXPECT_TRUE(contains(answer.err, std::string(line) + ": HPT failed: Temperature")) << line;
  }
}

TEST(RunCommand, ASilentFailureDoesNotTakeTheReasonOfTheCallBefore) {
  const Answer answer = calvexWithInput(
      "MaxTraceSize 2\nHPT 10 99999\nHPT 10 99999\n"
      "SetCustomUserUnitIndex 0 X 1 0\nAppLevel 4\n",
      {"run"});
  EXPECT_TRUE(contains(answer.err, "SetCustomUserUnitIndex failed: custom units")) << answer.err;
  EXPECT_TRUE(contains(answer.err, "AppLevel failed: 4 is not")) << answer.err;
}

TEST(RunCommand, AWarningSaysWhichLine) {
  const Answer answer = calvexWithInput("HPT 1 1300\nHPT 1 1200\nHPT 1 1300\n", {"run"});
  EXPECT_EQ(answer.status, 0);
  EXPECT_EQ(
      answer.err,
      "calvex: warning: line 1: Temperature parameter out of strictly valid range. Strictly valid: "
      "273.15 K to 1273.15 K.\n"
      "calvex: warning: line 3: Temperature parameter out of strictly valid range. Strictly valid: "
      "273.15 K to 1273.15 K.\n");
}

TEST(RunCommand, ALineIsPrintedSoThatItCanBeRunAgain) {
  EXPECT_EQ(calvexWithInput(" SetUserUnit P \"ft H2O\"  # water column\n", {"run"}).out,
            "SetUserUnit P \"ft H2O\"\n  done\n");
}

TEST(RunCommand, ExitStatusTellsTheWorstLine) {
  EXPECT_EQ(calvexWithInput("HPT 10 773.15\n", {"run"}).status, 0);
  EXPECT_EQ(calvexWithInput("", {"run"}).status, 0);
  EXPECT_EQ(calvexWithInput("HPT 10 99999\nHPT 10 773.15\n", {"run"}).status, 1);
  EXPECT_EQ(calvexWithInput("HPT 10\nHPT 10 99999\nHPT 10 773.15\n", {"run"}).status, 2);
}

TEST(RunCommand, TakesUnitsSettingsAndTrace) {
  const Answer answer = calvexWithInput(
      "HPT 10 500\nTraceLevel\n", {"run", "-u", "T=C", "-s", "TraceLevel=1", "--json", "--trace"});
  EXPECT_NEAR(numberAt(answer.out, "pH"), 3373.998, 0.001);
  EXPECT_TRUE(contains(answer.out, "\"value\":1}\n{\"text\":\"Root\"")) << answer.out;
  EXPECT_EQ(calvexWithInput("", {"run", "-u", "T=X"}).status, 2);
}

TEST(RunCommand, ReadsLinesOfOtherSystems) {
  EXPECT_EQ(calvexWithInput("\xEF\xBB\xBFTraceLevel\r\nSatPolish\r\n", {"run"}).out,
            "TraceLevel\n  TraceLevel = 1  reporting level\nSatPolish\n"
            "  SatPolish = 2  exactness of the saturation line\n");
  EXPECT_EQ(calvexWithInput("TraceLevel", {"run"}).out,
            "TraceLevel\n  TraceLevel = 1  reporting level\n");
}

TEST(RunCommand, ALineThatIsTooLongIsRefusedAndTheNextOneRuns) {
  const Answer answer =
      calvexWithInput("AppName " + std::string(1 << 20, 'x') + "\nTraceLevel\n", {"run", "--json"});
  EXPECT_EQ(answer.out,
            "{\"error\":\"the line is longer than 65536 bytes\",\"line\":1,\"text\":\"AppName " +
                std::string(192, 'x') +
                "\"}\n"
                "{\"member\":\"TraceLevel\",\"hresult\":0,\"value\":1}\n");
}

TEST(RunCommand, FilesThatCannotBeReadAreUsageErrors) {
  const Answer missing = calvex({"run", "no/such/file"});
  EXPECT_EQ(missing.status, 2);
  EXPECT_TRUE(contains(missing.err, "cannot read 'no/such/file': No such file")) << missing.err;
  EXPECT_EQ(calvex({"run", testing::TempDir()}).status, 2);
}

// Every line is answered by one object whatever bytes come in.
TEST(RunCommand, SurvivesAnyBytes) {
  std::mt19937 random(7);
  using std::string_literals::operator""s;
  const std::string alphabet = "HPT 10\"\\u#\t\xFF\xC3\xB2-.e9nif\r\0xSetUserUnit"s;
  for (int i = 0; i < 200; ++i) {
    std::string script;
    for (int j = 0; j < 300; ++j) {
      script += j % 40 == 39 ? '\n' : alphabet[random() % alphabet.size()];
    }
    const Answer answer = calvexWithInput(script, {"run", "--json"});
    EXPECT_LE(answer.status, 2);
    std::istringstream lines(answer.out);
    for (std::string line; std::getline(lines, line);) {
      EXPECT_TRUE(line.starts_with('{') && line.ends_with('}')) << line;
    }
  }
}

}  // namespace
}  // namespace calvex::cli::test
