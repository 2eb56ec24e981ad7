// A reason belongs to what stands in the cell: its formula and its inputs as they are now.
#include <gtest/gtest.h>

#include "host.h"

namespace calvex::excel::test {
namespace {

const Address home{L"[Book1.xlsx]Sheet1", 0, 0}, input{L"[Book1.xlsx]Sheet1", 0, 1},
    elsewhere{L"[Book1.xlsx]Sheet2", 4, 2};
const Error notAvailable{ErrorKind::given, xlerrNA}, division{ErrorKind::given, xlerrDiv0};

class ExcelReasons : public testing::Test {
 protected:
  Host host;

  void SetUp() override { ASSERT_EQ(host.entry<int(WINAPI*)()>("xlAutoOpen")(), 1); }
  void TearDown() override {
    EXPECT_EQ(host.results, host.freedResults);
    EXPECT_EQ(host.lent, host.givenBack);
  }

  // What somebody types over a cell, and what the cell shows then.
  void type(const Address& cell, const wchar_t* formula, const Cell& shown) {
    host.formulas[cell] = formula;
    host.cells[cell] = shown;
  }
  Grid call(const wchar_t* formula, const wchar_t* name, std::vector<Given> arguments) {
    return host.calculate(home, name, std::move(arguments), 1, 1, formula);
  }
  std::string why(const Address& cell = home) {
    return host.text({L"[Book1.xlsx]Sheet1", 90, 9}, L"CALVEX.WHY", {cell});
  }
  bool hasNone(const Address& cell = home) {
    return why(cell).starts_with("No function of Calvex has failed here");
  }
};

constexpr char tooHot[] =
    "HPT: Temperature parameter out of range (Valid range 260.00 to 2500.00 K).";

TEST_F(ExcelReasons, AFormulaThatIsTypedOverTakesItsReasonAway) {
  host.calculate(home, L"HPT", {10.0, 3000.0});
  EXPECT_EQ(why(), tooHot);
  type(home, L"=1/0", division);
  EXPECT_TRUE(hasNone()) << why();
  type(home, L"=NA()", notAvailable);
  EXPECT_TRUE(hasNone()) << why();
  EXPECT_EQ(host.text({home.sheet, 60, 0}, L"CALVEX.TRACE", {home}), "");
}

// The function is not reached with the new input, and the host tells nobody.
TEST_F(ExcelReasons, AnotherInputTakesTheReasonAway) {
  constexpr auto formula = L"=IF(B1>0,HPT(10,B1),NA())";
  host.cells[input] = 3000.0;
  call(formula, L"HPT", {10.0, input});
  EXPECT_EQ(why(), tooHot);
  host.cells[input] = -1.0;
  EXPECT_TRUE(hasNone()) << why();
  host.cells[input] = 3000.0;
  EXPECT_EQ(why(), tooHot);
}

TEST_F(ExcelReasons, AnInputOnAnotherSheetOrInARangeCountsToo) {
  for (const auto* formula : {L"=IF(Sheet2!$C$5>0,HPT(10,3000),NA())",
                              L"=IF(SUM('[Book1.xlsx]Sheet2'!B4:C5)>0,HPT(10,3000),NA())"}) {
    host.cells[elsewhere] = 1.0;
    call(formula, L"HPT", {10.0, 3000.0});
    EXPECT_EQ(why(), tooHot);
    host.cells[elsewhere] = 0.0;
    EXPECT_TRUE(hasNone()) << why();
  }
}

TEST_F(ExcelReasons, TheSheetThatCountsIsThatOfTheOwnWorkbook) {
  host.cells[elsewhere] = 1.0;
  call(L"=IF(Sheet2!C5>0,HPT(10,3000),NA())", L"HPT", {10.0, 3000.0});
  host.activeSheet = L"[Other.xlsx]Sheet1";
  host.cells[{L"[Other.xlsx]Sheet2", 4, 2}] = 7.0;
  EXPECT_EQ(why(), tooHot);
}

// Rows are inserted: the formula that comes to this address reads as the one before.
TEST_F(ExcelReasons, AFormulaThatHasMovedHereDoesNotInheritAReason) {
  host.cells[input] = 3000.0;
  call(L"=HPT(10,B1)", L"HPT", {10.0, input});
  host.cells[input] = std::string("hot");
  host.cells[home] = notAvailable;
  EXPECT_TRUE(hasNone()) << why();
}

// What is behind INDIRECT may be another thing there.
TEST_F(ExcelReasons, AWorkbookOfTheSameNameInheritsNone) {
  constexpr auto formula = L"=IF(INDIRECT(\"B1\")>0,HPT(10,3000),NA())";
  call(formula, L"HPT", {10.0, 3000.0});
  EXPECT_EQ(why(), tooHot);
  host.reopen();
  EXPECT_TRUE(hasNone()) << why();
  call(formula, L"HPT", {10.0, 3000.0});
  EXPECT_EQ(why(), tooHot);
}

TEST_F(ExcelReasons, OtherUnitsAreOtherInputs) {
  host.calculate(home, L"HPT", {10.0, 3000.0});
  host.unitNames[L"Book1.xlsx"] = std::wstring(L"T=C");
  EXPECT_TRUE(hasNone()) << why();
  host.calculate(home, L"HPT", {10.0, 3000.0});
  EXPECT_EQ(why(), "HPT: Temperature parameter out of range (Valid range -13.15 to 2226.85 C).");
}

TEST_F(ExcelReasons, TheCellOfTheUnitsHasAReasonItself) {
  for (const bool namesAreValues : {false, true}) {
    host.namesAreValues = namesAreValues;
    host.unitNames[L"Book1.xlsx"] = home;
    host.cells[home] = std::string("T=C");
    const auto text = [](const char* word) { return Given(Cell(std::string(word))); };
    host.calculate(home, L"CALVEX.UNITS", {text("T"), text("furlong")});
    EXPECT_NE(why().find("'furlong' is not a unit of Temperature"), std::string::npos) << why();
  }
}

TEST_F(ExcelReasons, OfAFormulaWithTwoCallsTheOneThatTheCellShowsIsTold) {
  constexpr auto formula = L"=HPT(10,3000)+HPT(10,\"hot\")";
  call(formula, L"HPT", {10.0, 3000.0});
  call(formula, L"HPT", {10.0, Cell(std::string("hot"))});
  host.cells[home] = notAvailable;
  EXPECT_EQ(why(), tooHot);
  host.cells[home] = Error{ErrorKind::given, xlerrValue};
  EXPECT_NE(why().find("T is the text \"hot\", which is no number with a point"), std::string::npos)
      << why();
  host.cells[home] = division;
  EXPECT_TRUE(hasNone()) << why();
}

TEST_F(ExcelReasons, ACallThatSucceedsInTheSameFormulaLeavesTheReason) {
  constexpr auto formula = L"=HPT(10,3000)+HPT(10,500)";
  call(formula, L"HPT", {10.0, 3000.0});
  call(formula, L"HPT", {10.0, 500.0});
  host.cells[home] = notAvailable;
  EXPECT_EQ(why(), tooHot);
}

TEST_F(ExcelReasons, TheInnerOfTwoCallsOfOneFunctionIsTold) {
  constexpr auto formula = L"=HPT(10,HPT(10,3000))";
  call(formula, L"HPT", {10.0, 3000.0});
  call(formula, L"HPT", {10.0, Cell(notAvailable)});
  EXPECT_EQ(why(), tooHot);
}

TEST_F(ExcelReasons, AFormulaThatMakesOneValueOfAnArrayHasTheReasonOfItsFirstFailure) {
  Grid temperatures(3, 1);
  temperatures.cells = {500.0, 600.0, 3000.0};
  call(L"=SUM(HPT(10,B1:B3))", L"HPT", {10.0, temperatures});
  host.cells[home] = notAvailable;
  EXPECT_EQ(why(), tooHot);
  host.cells[home] = division;
  EXPECT_TRUE(hasNone()) << why();
}

TEST_F(ExcelReasons, CellsBeyondAnArrayHaveNoElement) {
  Grid pressures(2, 1), temperatures(1, 2);
  pressures.cells = {10.0, -1.0};
  temperatures.cells = {500.0, 600.0};
  host.calculate(home, L"HPT", {pressures, temperatures}, 3, 3);
  const Address beyond{home.sheet, 2, 2};
  host.cells[beyond] = notAvailable;
  EXPECT_NE(why(beyond).find("has no element here"), std::string::npos) << why(beyond);
}

TEST_F(ExcelReasons, WhatIsTypedIntoACellThatAResultHadReachedHasNone) {
  for (const bool spilledCellsHaveFormulas : {false, true}) {
    host.spilledCellsHaveFormulas = spilledCellsHaveFormulas;
    Grid temperatures(3, 1);
    temperatures.cells = {500.0, 600.0, 3000.0};
    call(L"=HPT(10,B1:B3)", L"HPT", {10.0, temperatures});
    const Address last{home.sheet, 2, 0};
    EXPECT_EQ(why(last), tooHot);
    type(last, L"=NA()", notAvailable);
    EXPECT_TRUE(hasNone(last)) << why(last);
    type(last, L"#N/A", notAvailable);
    host.cells[home] = Error{ErrorKind::given, xlerrRef};  // there is no room for the result
    EXPECT_TRUE(hasNone(last)) << why(last);
    host.formulas.erase(last);
  }
}

TEST_F(ExcelReasons, AConversionHasTheReasonOfItsElement) {
  Grid values(4, 1);
  values.cells = {1.0, std::string("1,5"), Blank{}, 1e308};
  const auto text = [](const char* word) { return Given(Cell(std::string(word))); };
  const Grid got =
      host.calculate(home, L"CALVEX.CONVERT", {text("P"), text("MPa"), text("Pa"), values}, 4, 1);
  EXPECT_DOUBLE_EQ(numberOf(got), 1e6);
  EXPECT_EQ(errorOf(got, 1), xlerrValue);
  EXPECT_EQ(errorOf(got, 2), xlerrNA);
  EXPECT_EQ(errorOf(got, 3), xlerrNA);
  const auto reason = [&](int row) { return why({home.sheet, row, 0}); };
  EXPECT_EQ(reason(0), "");
  EXPECT_EQ(reason(1),
            "CALVEX.CONVERT: the value is the text \"1,5\", which is no number with a point");
  EXPECT_EQ(reason(2), "CALVEX.CONVERT: the value is an empty cell or text");
  EXPECT_EQ(reason(3), "CALVEX.CONVERT: the value is too large to be a number of Pa");
  EXPECT_EQ(
      errorOf(host.calculate(home, L"CALVEX.CONVERT", {text("P"), text("barr"), text("Pa"), 1.0})),
      xlerrValue);
  EXPECT_NE(why().find("'barr' is not a unit of Pressure; did you mean bara"), std::string::npos)
      << why();
  host.calculate(home, L"CALVEX.CONVERT", {text(""), text(""), text(""), 1.0});
  EXPECT_NE(why().find("'' is not a unit group"), std::string::npos) << why();
  EXPECT_EQ(errorOf(host.calculate(home, L"CALVEX.CONVERT", {text("P"), text("MPa"), text("Pa")})),
            xlerrValue);
  EXPECT_EQ(why(), "CALVEX.CONVERT: the value is missing");
  EXPECT_EQ(errorOf(host.calculate(home, L"CALVEX.CONVERT",
                                   {text("P"), Cell(division), text("Pa"), 1.0})),
            xlerrDiv0);
  host.calculate(home, L"CALVEX.CONVERT", {text("P"), text("MPa"), text("Pa"), Cell(division)});
  EXPECT_EQ(why(), "CALVEX.CONVERT: the value is itself #DIV/0!");
}

}  // namespace
}  // namespace calvex::excel::test
