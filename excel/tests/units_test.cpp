// Units belong to a workbook: to its name Calvex_Units.
#include <gtest/gtest.h>

#include "host.h"

namespace calvex::excel::test {
namespace {

constexpr double h = 3137.45826150827;  // of 3.2776 MPa and 635.28 K, from tests/data
constexpr double P = 3.2776, kelvin = 635.28, celsius = kelvin - 273.15;
const Address one{L"[Book1.xlsx]Sheet1", 4, 2}, other{L"[It's mine.xlsx]Sheet1", 4, 2};

Grid word(const char* text) { return Cell(std::string(text)); }

class ExcelUnits : public testing::Test {
 protected:
  Host host;
  void SetUp() override { ASSERT_EQ(host.entry<int(WINAPI*)()>("xlAutoOpen")(), 1); }
  void TearDown() override {
    EXPECT_EQ(host.results, host.freedResults);
    EXPECT_EQ(host.lent, host.givenBack);
  }
  std::string why(const Address& cell) {
    return host.text({cell.sheet, 90, 9}, L"CALVEX.WHY", {cell});
  }
};

TEST_F(ExcelUnits, WithoutTheNameTheyAreThoseOfTheModel) {
  EXPECT_NEAR(numberOf(host.calculate(one, L"HPT", {P, kelvin})), h, 1e-8);
  EXPECT_EQ(host.text(one, L"CALVEX.UNIT", {word("P")}), "MPa");
  EXPECT_EQ(host.text(one, L"CALVEX.UNITS", {}), "");
}

TEST_F(ExcelUnits, TwoWorkbooksHaveEachItsOwn) {
  host.unitNames[L"Book1.xlsx"] = std::wstring(L"T=°C; P=bar");
  host.unitNames[L"It's mine.xlsx"] = std::wstring(L"T=K");
  for (int round = 0; round < 2; ++round) {
    EXPECT_NEAR(numberOf(host.calculate(one, L"HPT", {32.776, celsius})), h, 1e-6);
    EXPECT_NEAR(numberOf(host.calculate(other, L"HPT", {P, kelvin})), h, 1e-8);
  }
  EXPECT_EQ(host.text(one, L"CALVEX.UNIT", {word("pressure")}), "bara");
  EXPECT_EQ(host.text(other, L"CALVEX.UNIT", {word("pressure")}), "MPa");
}

TEST_F(ExcelUnits, ReasonsAreToldInThem) {
  host.unitNames[L"Book1.xlsx"] = std::wstring(L"T=C");
  EXPECT_EQ(errorOf(host.calculate(one, L"HPT", {P, 3000.0})), xlerrNA);
  EXPECT_EQ(why(one), "HPT: Temperature parameter out of range (Valid range -13.15 to 2226.85 C).");
}

TEST_F(ExcelUnits, TheNameMayReferToACellWithThem) {
  for (const bool asValue : {false, true}) {  // the reference does not say how it comes
    host.namesAreValues = asValue;
    const Address cell{one.sheet, 2, 0};
    host.cells.erase(cell);
    host.unitNames[L"Book1.xlsx"] = cell;
    const std::vector<Given> choices{word("T"), word("°C"), word("pressure"), word("bar")};
    const std::string text = host.text(cell, L"CALVEX.UNITS", choices);
    EXPECT_EQ(text, "T=C; P=bara");
    EXPECT_NEAR(numberOf(host.calculate(one, L"HPT", {32.776, celsius})), h, 1e-6);
    // The same choice elsewhere changes nothing; another one is none.
    EXPECT_EQ(host.text(one, L"CALVEX.UNITS", choices), text);
    EXPECT_EQ(errorOf(host.calculate(one, L"CALVEX.UNITS", {word("T"), word("F")})), xlerrNA);
    EXPECT_NE(why(one).find("Define the name Calvex_Units"), std::string::npos) << why(one);
  }
}

// A workbook that was calculated where there was no add-in.
TEST_F(ExcelUnits, ACellThatShowsNameIsNotAMissingName) {
  for (const bool asValue : {false, true}) {
    host.namesAreValues = asValue;
    const Address cell{one.sheet, 2, 0};
    host.unitNames[L"Book1.xlsx"] = cell;
    host.cells[cell] = Error{ErrorKind::given, xlerrName};
    EXPECT_EQ(errorOf(host.calculate(one, L"HPT", {P, kelvin})), xlerrValue);
    EXPECT_EQ(host.text(cell, L"CALVEX.UNITS", {word("T"), word("C"), word("flow"), word("t/h")}),
              "T=C; Flow Rate=te/h");
    EXPECT_NEAR(numberOf(host.calculate(one, L"HPT", {P, celsius})), h, 1e-6);
  }
}

// Never a number in other units than those that stand in a cell.
TEST_F(ExcelUnits, ChoicesWithoutTheNameAreAnError) {
  EXPECT_EQ(errorOf(host.calculate(one, L"CALVEX.UNITS", {word("T"), word("C")})), xlerrNA);
  EXPECT_NE(why(one).find("those of the model"), std::string::npos) << why(one);
}

TEST_F(ExcelUnits, UnitsThatCannotBeReadAreNotThoseOfTheModel) {
  const Address empty{one.sheet, 2, 0};
  for (const std::variant<std::wstring, Address, Error>& wrong :
       {std::variant<std::wstring, Address, Error>(std::wstring(L"T=furlong")),
        {std::wstring(L"degrees")},
        {std::wstring(L"")},
        {empty},
        {Error{ErrorKind::given, xlerrRef}}}) {
    host.unitNames[L"Book1.xlsx"] = wrong;
    EXPECT_EQ(errorOf(host.calculate(one, L"HPT", {P, kelvin})), xlerrValue);
    EXPECT_NE(why(one).find("Calvex_Units"), std::string::npos) << why(one);
  }
  host.unitNames.clear();
  EXPECT_NEAR(numberOf(host.calculate(one, L"HPT", {P, kelvin})), h, 1e-8);
}

TEST_F(ExcelUnits, TwoUnitsOfOneQuantityContradictEachOther) {
  constexpr char reason[] = "T is C and K: give it one unit";
  host.unitNames[L"Book1.xlsx"] = std::wstring(L"T=C; temperature=K");
  EXPECT_EQ(errorOf(host.calculate(one, L"HPT", {P, kelvin})), xlerrValue);
  EXPECT_NE(why(one).find(reason), std::string::npos) << why(one);
  EXPECT_EQ(
      errorOf(host.calculate(one, L"CALVEX.UNITS", {word("T"), word("C"), word("T"), word("K")})),
      xlerrValue);
  EXPECT_NE(why(one).find(reason), std::string::npos) << why(one);
  host.unitNames[L"Book1.xlsx"] = std::wstring(L"T=C; P=bara; temperature=°C");  // twice the same
  EXPECT_NEAR(numberOf(host.calculate(one, L"HPT", {32.776, celsius})), h, 1e-6);
}

TEST_F(ExcelUnits, WrongChoicesAreErrorsWithReasons) {
  EXPECT_EQ(errorOf(host.calculate(one, L"CALVEX.UNITS", {word("T")})), xlerrValue);
  EXPECT_NE(why(one).find("pairs"), std::string::npos) << why(one);
  EXPECT_EQ(errorOf(host.calculate(one, L"CALVEX.UNITS", {word("T"), word("furlong")})),
            xlerrValue);
  EXPECT_NE(why(one).find("furlong"), std::string::npos) << why(one);
  EXPECT_EQ(errorOf(host.calculate(one, L"CALVEX.UNIT", {word("weather")})), xlerrValue);
  EXPECT_NE(why(one).find("name of a quantity"), std::string::npos) << why(one);
}

TEST_F(ExcelUnits, OfSeveralQuantitiesEachHasItsUnit) {
  Grid quantities(3, 1);
  quantities.cells = {std::string("T"), std::string("weather"), std::string("H")};
  const Grid units = host.calculate(one, L"CALVEX.UNIT", {quantities}, 3, 1);
  ASSERT_EQ(units.rows, 3U);
  EXPECT_EQ(textOf(units, 0), "K");
  EXPECT_EQ(errorOf(units, 1), xlerrValue);
  EXPECT_EQ(textOf(units, 2), "kJ/kg");
  const Address second{one.sheet, one.row + 1, one.column};
  EXPECT_NE(why(second).find("name of a quantity"), std::string::npos) << why(second);
}

TEST_F(ExcelUnits, ARangeIsNoChoice) {
  Grid quantities(1, 2), units(1, 2);
  quantities.cells = {std::string("T"), std::string("P")};
  units.cells = {std::string("C"), std::string("bar")};
  EXPECT_EQ(errorOf(host.calculate(one, L"CALVEX.UNITS", {quantities, units})), xlerrValue);
  EXPECT_NE(why(one).find("single texts, no ranges"), std::string::npos) << why(one);
}

TEST_F(ExcelUnits, ValuesAreConverted) {
  const auto converted = [&](const Given& value) {
    return host.calculate(one, L"CALVEX.CONVERT", {word("P"), word("psia"), word("bara"), value});
  };
  EXPECT_NEAR(numberOf(converted(100.0)), 6.89476, 1e-5);  // 1 psi = 6894.76 Pa
  EXPECT_NEAR(numberOf(converted(word("100"))), 6.89476, 1e-5);
  EXPECT_EQ(errorOf(converted(word("1,5"))), xlerrValue);
  EXPECT_EQ(
      errorOf(host.calculate(one, L"CALVEX.CONVERT", {word("P"), word("psia"), word("K"), 1.0})),
      xlerrValue);
  EXPECT_NE(why(one).find("CALVEX.CONVERT"), std::string::npos) << why(one);
}

TEST_F(ExcelUnits, RangesAreConverted) {
  Grid values(3, 1), wanted(1, 2);
  values.cells = {0.0, 100.0, -40.0};
  wanted.cells = {std::string("K"), std::string("F")};
  const Grid column =
      host.calculate(one, L"CALVEX.CONVERT", {word("T"), word("C"), word("K"), values}, 3, 1);
  ASSERT_EQ(column.rows, 3U);
  EXPECT_NEAR(numberOf(column, 0), 273.15, 1e-10);
  EXPECT_NEAR(numberOf(column, 1), 373.15, 1e-10);
  EXPECT_NEAR(numberOf(column, 2), 233.15, 1e-10);
  const Grid table =
      host.calculate(one, L"CALVEX.CONVERT", {word("T"), word("C"), wanted, values}, 3, 2);
  ASSERT_EQ(table.columns, 2U);
  EXPECT_NEAR(numberOf(table, 1, 0), 373.15, 1e-10);
  // The catalogue's Fahrenheit has nine digits.
  EXPECT_NEAR(numberOf(table, 1, 1), 212.0, 1e-8);
  EXPECT_NEAR(numberOf(table, 2, 1), -40.0, 1e-8);
}

}  // namespace
}  // namespace calvex::excel::test
