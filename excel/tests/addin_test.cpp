// The life of the add-in, and what the host is told of its functions.
#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <set>

#include "host.h"
#include "server/member_columns.h"

namespace calvex::excel::test {
namespace {

class ExcelAddIn : public testing::Test {
 protected:
  Host host;
  int open() { return host.entry<int(WINAPI*)()>("xlAutoOpen")(); }
};

std::string narrow(const std::wstring& text) { return {text.begin(), text.end()}; }

TEST_F(ExcelAddIn, RegistersEveryMemberThatComputesNumbersAndItsOwn) {
  ASSERT_EQ(open(), 1);
  std::set<std::wstring> expected{L"CALVEX.UNITS", L"CALVEX.UNIT", L"CALVEX.WHY", L"CALVEX.TRACE",
                                  L"CALVEX.CONVERT"};
  for (const Member& member : memberTable()) {
    if (NumericMember::of(member)) expected.emplace(member.name.begin(), member.name.end());
  }
  std::set<std::wstring> got;
  for (const auto& [name, function] : host.functions) got.insert(name);
  EXPECT_EQ(got, expected);
  EXPECT_GT(got.size(), 150U);
  EXPECT_EQ(host.lent, host.givenBack);
}

TEST_F(ExcelAddIn, EachFunctionHasAnEntryPointAndTypesThatFit) {
  ASSERT_EQ(open(), 1);
  for (const auto& [name, function] : host.functions) {
    EXPECT_NE(function.entry, nullptr) << narrow(name);
    EXPECT_TRUE(std::regex_match(narrow(function.types), std::regex("Q[QU]*#"))) << narrow(name);
    EXPECT_EQ(function.macroType, 1.0);
    const auto names =
        std::ranges::count(function.argumentNames, L',') + (function.argumentNames.empty() ? 0 : 1);
    const auto letters = static_cast<std::ptrdiff_t>(function.types.size()) - 2;
    if (name == L"CALVEX.UNITS") {
      EXPECT_GT(letters, names);  // "Quantity, Unit, ..."
    } else {
      EXPECT_EQ(letters, names) << narrow(name);
      EXPECT_EQ(letters, static_cast<std::ptrdiff_t>(function.argumentHelp.size()));
    }
  }
}

// The host takes texts of 255 characters, and its wizard loses the end of the last one.
TEST_F(ExcelAddIn, TheWizardShowsWholeSentences) {
  ASSERT_EQ(open(), 1);
  for (const auto& [name, function] : host.functions) {
    std::vector<std::wstring> texts{function.help};
    texts.insert(texts.end(), function.argumentHelp.begin(), function.argumentHelp.end());
    for (const std::wstring& text : texts) EXPECT_LE(text.size(), 255U) << narrow(name);
    EXPECT_LE(function.argumentNames.size(), 255U);
    texts.back().resize(texts.back().size() - 2);
    for (const std::wstring& text : texts) {
      EXPECT_EQ(text.back(), L'.') << narrow(name) << ": " << narrow(text);
    }
  }
  EXPECT_EQ(host.functions[L"HPT"].argumentNames, L"P,T");
  EXPECT_NE(host.functions[L"HPT"].argumentHelp[0].find(L"workbook"), std::wstring::npos);
  EXPECT_EQ(host.functions[L"TurbineA"].argumentNames, L"HIn,PIn,POut,Eff,MIn,[Result]");
}

// Cells go to XFD1048576; functions of that name would be references. R1C1 references likewise.
TEST_F(ExcelAddIn, NoNameIsACellOrAnotherFunction) {
  ASSERT_EQ(open(), 1);
  const std::regex cell("[A-Z]{1,3}[0-9]+", std::regex::icase);
  const std::regex relative("R[0-9]*(C[0-9]*)?|C[0-9]*", std::regex::icase);
  const std::set<std::string> builtIn{
      "ABS",     "AND",  "ASC",  "CODE",    "COS",    "COSH",   "COT",    "CSC",  "DATE",    "DAY",
      "DB",      "DDB",  "DISC", "EVEN",    "EXP",    "FACT",   "FIND",   "FV",   "GCD",     "HOUR",
      "IF",      "IFS",  "INT",  "IPMT",    "IRR",    "ISNA",   "LCM",    "LEFT", "LEN",     "LET",
      "LN",      "LOG",  "MAP",  "MAX",     "MID",    "MIN",    "MIRR",   "MOD",  "MODE",    "N",
      "NA",      "NOT",  "NOW",  "NPER",    "NPV",    "ODD",    "OR",     "PHI",  "PI",      "PMT",
      "PPMT",    "PV",   "RAND", "RANK",    "RATE",   "ROW",    "ROWS",   "RRI",  "RTD",     "SEC",
      "SIGN",    "SIN",  "SLN",  "SQRT",    "SUM",    "SYD",    "T",      "TAN",  "TEXT",    "TIME",
      "TRUE",    "TYPE", "VAR",  "VDB",     "XIRR",   "XNPV",   "XOR",    "YEAR", "CONVERT", "BASE",
      "BIN2DEC", "CELL", "CHAR", "HEX2DEC", "HSTACK", "VSTACK", "UNICODE"};
  for (const auto& [name, function] : host.functions) {
    std::string text = narrow(name);
    EXPECT_FALSE(std::regex_match(text, cell)) << text;
    EXPECT_FALSE(std::regex_match(text, relative)) << text;
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::toupper(c); });
    EXPECT_FALSE(builtIn.contains(text)) << text;
  }
}

TEST_F(ExcelAddIn, TellsItsNameToTheListOfAddIns) {
  const auto info = host.entry<XLOPER12*(WINAPI*)(XLOPER12*)>("xlAddInManagerInfo12");
  const auto release = host.entry<void(WINAPI*)(XLOPER12*)>("xlAutoFree12");
  XLOPER12 action{};
  action.xltype = xltypeNum;
  action.val.num = 1;
  XLOPER12* answer = info(&action);
  ASSERT_EQ(answer->xltype, xltypeStr | xlbitDLLFree);
  EXPECT_EQ(std::wstring(answer->val.str + 1, 6), L"Calvex");
  release(answer);
  action.val.num = 2;
  answer = info(&action);
  ASSERT_EQ(answer->xltype, xltypeErr | xlbitDLLFree);
  EXPECT_EQ(answer->val.err, xlerrValue);
  release(answer);
}

TEST_F(ExcelAddIn, LeavesNothingWhereItIsTakenOff) {
  const auto close = host.entry<int(WINAPI*)()>("xlAutoClose");
  ASSERT_EQ(open(), 1);
  const std::size_t count = host.functions.size();
  const auto names = [&] {
    std::set<std::wstring> all;
    for (const auto& [name, function] : host.functions) all.insert(name);
    return all;
  }();
  host.unitNames[L"Book1.xlsx"] = std::wstring(L"T=C");
  host.calculate({L"[Book1.xlsx]Sheet1", 1, 1}, L"HPT", {10.0, 500.0});
  Grid cold(100000, 1);
  std::ranges::fill(cold.cells, -300.0);
  const double before = memoryInUse();
  host.calculate({L"[Book1.xlsx]Sheet1", 0, 0}, L"HPT", {10.0, cold}, 1, 1);
  host.cells.clear();
  EXPECT_GT(memoryInUse() - before, 2.0) << "MB of a failure";
  EXPECT_EQ(close(), 1);
  EXPECT_LT(memoryInUse() - before, 0.1) << "MB";
  EXPECT_TRUE(host.functions.empty());
  EXPECT_EQ(std::set(host.deletedNames.begin(), host.deletedNames.end()), names);
  EXPECT_EQ(close(), 1);
  ASSERT_EQ(open(), 1);
  EXPECT_EQ(host.functions.size(), count);
  EXPECT_EQ(errorOf(host.calculate({L"[Book1.xlsx]Sheet1", 0, 0}, L"HPT", {10.0, 3000.0})),
            xlerrNA);
  EXPECT_EQ(close(), 1);
  EXPECT_TRUE(host.functions.empty());
  EXPECT_EQ(host.lent, host.givenBack);
}

TEST_F(ExcelAddIn, SaysSoWhenTheHostRefuses) {
  host.refusesRegistration = true;
  EXPECT_EQ(open(), 0);
}

}  // namespace
}  // namespace calvex::excel::test
