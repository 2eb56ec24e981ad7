// The worksheet functions as a host calls them. Numbers are the engine's own, and those of the
// tables in tests/data where they stand here as digits.
#include <gtest/gtest.h>
#include <windows.h>

#include <calvex/calvex.hpp>
#include <cmath>

#include "host.h"
#include "server/member_columns.h"
#include "server/member_explanations.h"
#include "server/member_table.h"

namespace calvex::excel::test {
namespace {

const Address home{L"[Book1.xlsx]Sheet1", 0, 0};

class ExcelFunctions : public testing::Test {
 protected:
  Host host;

  void SetUp() override { ASSERT_EQ(host.entry<int(WINAPI*)()>("xlAutoOpen")(), 1); }
  // Whatever a test did: all memory is where it came from.
  void TearDown() override {
    EXPECT_EQ(host.results, host.freedResults);
    EXPECT_EQ(host.lent, host.givenBack);
  }

  Grid hpt(std::vector<Given> arguments) { return host.calculate(home, L"HPT", arguments); }
  std::string why(const Address& cell = home) {
    return host.text({L"[Book1.xlsx]Sheet1", 90, 9}, L"CALVEX.WHY", {cell});
  }
};

// A member that computes numbers, with the inputs of its example.
struct Example {
  const Member* member;
  std::vector<double> inputs;
  std::vector<std::string> tokens;
};

std::vector<Example> examples() {
  std::vector<Example> all;
  for (const Member& member : memberTable()) {
    if (!NumericMember::of(member)) continue;
    Example example{&member, {}, {}};
    for (const ExampleInput& input : explanation(member).example.inputs) {
      if (const auto* number = std::get_if<double>(&input)) {
        example.inputs.push_back(*number);
      } else {
        example.tokens.push_back(std::get<std::string>(input));
      }
    }
    all.push_back(std::move(example));
  }
  return all;
}

std::wstring nameOf(const Member& member) { return {member.name.begin(), member.name.end()}; }

std::vector<Given> given(const Example& example) {
  std::vector<Given> all(example.inputs.begin(), example.inputs.end());
  for (const std::string& token : example.tokens) all.emplace_back(Cell(token));
  return all;
}

TEST_F(ExcelFunctions, AnEnthalpyIsThatOfTheTables) {
  EXPECT_NEAR(numberOf(hpt({3.2776, 635.28})), 3137.45826150827, 1e-8);
}

TEST_F(ExcelFunctions, EachAnswersAsTheEngineDoesToTheLastBit) {
  int count = 0;
  for (const Example& example : examples()) {
    const Engine engine;
    const Grid got = host.calculate(home, nameOf(*example.member), given(example));
    if (!example.tokens.empty()) {
      const char* const text = example.tokens[0].c_str();
      ASSERT_EQ(
          calvex_call_texts(engine.handle(), example.member->dispatchId, example.inputs.data(),
                            example.inputs.size(), &text, nullptr, 1, nullptr, 0),
          CALVEX_OK);
      std::size_t rows = 0, columns = 0;
      calvex_answer_size(engine.handle(), &rows, &columns);
      ASSERT_EQ(got.rows, rows) << example.member->name;
      for (std::size_t i = 0; i < rows; ++i) {
        double number = 0;
        ASSERT_EQ(calvex_answer_number(engine.handle(), i, 1, &number), CALVEX_OK);
        EXPECT_EQ(numberOf(got, i, 1), number) << example.member->name << " row " << i;
      }
    } else {
      std::vector<double> expected(NumericMember::of(*example.member)->outputs().size());
      ASSERT_EQ(calvex_call(engine.handle(), example.member->dispatchId, example.inputs.data(),
                            example.inputs.size(), expected.data(), expected.size()),
                CALVEX_OK);
      ASSERT_EQ(got.cells.size(), expected.size()) << example.member->name;
      for (std::size_t i = 0; i < expected.size(); ++i) {
        if (std::isnan(expected[i])) {
          EXPECT_EQ(errorOf(got, 0, i), xlerrNA) << example.member->name;
        } else {
          EXPECT_EQ(numberOf(got, 0, i), expected[i]) << example.member->name << " result " << i;
        }
      }
    }
    ++count;
  }
  EXPECT_GT(count, 150);
}

TEST_F(ExcelFunctions, RangesAnswerAsSingleCellsDo) {
  for (const Example& example : examples()) {
    if (example.inputs.empty()) continue;
    std::vector<Given> ranges, alone = given(example);
    constexpr double factors[] = {1.0, 0.999, 1.001};
    for (std::size_t i = 0; i < example.inputs.size(); ++i) {
      Grid column(std::size(factors), 1);
      for (std::size_t row = 0; row < column.rows; ++row) {
        column.cells[row] = example.inputs[i] * (i == 0 ? factors[row] : 1.0);
      }
      ranges.emplace_back(column);
    }
    for (const std::string& token : example.tokens) ranges.emplace_back(Cell(token));
    const Grid many = host.calculate(home, nameOf(*example.member), ranges, 3, 1);
    ASSERT_EQ(many.rows, 3U) << example.member->name;
    for (std::size_t row = 0; row < many.rows; ++row) {
      alone[0] = Grid(Cell(example.inputs[0] * factors[row]));
      const Grid one = host.calculate({home.sheet, 50, 0}, nameOf(*example.member), alone);
      const bool isTable = !example.tokens.empty();
      if (isTable && errorOf(one) != -1) {
        EXPECT_EQ(errorOf(many, row, 0), errorOf(one)) << example.member->name;
        continue;
      }
      for (std::size_t k = 0; k < many.columns; ++k) {
        const double expected = isTable ? numberOf(one, k, 1) : numberOf(one, 0, k);
        if (std::isnan(expected)) {
          EXPECT_NE(errorOf(many, row, k), -1) << example.member->name;
        } else {
          EXPECT_NEAR(numberOf(many, row, k), expected, 1e-10 * std::max(1.0, std::abs(expected)))
              << example.member->name << " row " << row;
        }
      }
    }
  }
}

TEST_F(ExcelFunctions, ARowAndAColumnMakeATable) {
  Grid pressures(3, 1), temperatures(1, 2);
  pressures.cells = {1.0, 10.0, 20.0};
  temperatures.cells = {500.0, 800.0};
  const Grid table = host.calculate(home, L"HPT", {pressures, temperatures}, 3, 2);
  ASSERT_EQ(table.rows, 3U);
  ASSERT_EQ(table.columns, 2U);
  Engine engine;
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t j = 0; j < 2; ++j) {
      const double expected =
          engine.HPT(std::get<double>(pressures.cells[i]), std::get<double>(temperatures.cells[j]));
      EXPECT_NEAR(numberOf(table, i, j), expected, 1e-10 * expected);
    }
  }
}

TEST_F(ExcelFunctions, AResultCanBeNamed) {
  std::vector<Given> turbine{3374.0, 10.0, 1.0, 0.8, 5.0};
  const Grid all = host.calculate(home, L"TurbineA", turbine, 1, 4);
  ASSERT_EQ(all.columns, 4U);
  turbine.emplace_back(Cell(std::string("tout")));
  const Grid one = host.calculate(home, L"TurbineA", turbine);
  ASSERT_EQ(one.cells.size(), 1U);
  EXPECT_EQ(numberOf(one), numberOf(all, 0, 1));
  turbine.back() = Grid(Cell(std::string("nothing")));
  EXPECT_EQ(errorOf(host.calculate(home, L"TurbineA", turbine)), xlerrValue);
  EXPECT_NE(why().find("names no result"), std::string::npos) << why();
  EXPECT_NE(why().find("Power, TOut"), std::string::npos) << why();
}

Grid namesOf(std::size_t rows, std::size_t columns, std::vector<Cell> names) {
  Grid grid(rows, columns);
  grid.cells = std::move(names);
  return grid;
}

TEST_F(ExcelFunctions, NamesInSeveralCellsGiveAResultEach) {
  const std::vector<Cell> words{std::string("TOut"), std::string("Power")};
  const Grid row = namesOf(1, 2, words), column = namesOf(2, 1, words);
  const Grid outlets = namesOf(2, 1, {1.0, 2.0}), across = namesOf(1, 2, {1.0, 2.0});
  const auto turbine = [&](const Given& outlet, const Grid& names) {
    return host.calculate(home, L"TurbineA", {3374.0, 10.0, outlet, 0.8, 5.0, names}, 2, 2);
  };
  const double T = numberOf(turbine(1.0, words[0])), power = numberOf(turbine(1.0, words[1]));
  EXPECT_EQ(turbine(1.0, row), namesOf(1, 2, {T, power}));
  EXPECT_EQ(turbine(1.0, column), namesOf(2, 1, {T, power}));
  const Grid beside = turbine(outlets, row), below = turbine(across, column);
  ASSERT_EQ(beside.cells.size(), 4U);
  EXPECT_NEAR(numberOf(beside, 0, 0), T, 1e-10 * T);
  EXPECT_NEAR(numberOf(beside, 0, 1), power, 1e-10 * power);
  EXPECT_EQ(numberOf(beside, 1, 0), numberOf(below, 0, 1));
  EXPECT_EQ(numberOf(beside, 1, 1), numberOf(below, 1, 1));
  EXPECT_EQ(errorOf(turbine(outlets, column)), xlerrValue);
  EXPECT_NE(why().find("the names of results stand in a row"), std::string::npos) << why();
  EXPECT_EQ(errorOf(turbine(across, row)), xlerrValue);
  EXPECT_NE(why().find("the names of results stand in a column"), std::string::npos) << why();
  EXPECT_EQ(errorOf(turbine(1.0, namesOf(1, 2, {words[0], std::string("nothing")}))), xlerrValue);
  EXPECT_NE(why().find("\"nothing\" names no result"), std::string::npos) << why();
}

TEST_F(ExcelFunctions, TokensMayStandInSeveralCells) {
  const auto rows = [&](const Grid& names) {
    return host.calculate(home, L"XLTurbineA", {3374.0, 10.0, 1.0, 0.8, 5.0, names}, 2, 3);
  };
  const Grid table = rows(Cell(std::string("Pow T_Out")));
  ASSERT_EQ(table.rows, 2U);
  EXPECT_EQ(rows(namesOf(1, 2, {std::string("Pow"), std::string("T_Out")})), table);
  EXPECT_EQ(errorOf(rows(namesOf(1, 2, {std::string("Pow"), Blank{}}))), xlerrValue);
  EXPECT_NE(why().find("no text that names a result"), std::string::npos) << why();
}

TEST_F(ExcelFunctions, ResultsStandBesideColumnsAndBelowRows) {
  Grid column(2, 1), row(1, 2);
  column.cells = row.cells = {1770.0, 2500.0};
  const Grid beside = host.calculate(home, L"QT_PH", {1.0, column}, 2, 2);
  const Grid below = host.calculate(home, L"QT_PH", {1.0, row}, 2, 2);
  for (std::size_t i = 0; i < 2; ++i) {
    const Grid one = host.calculate({home.sheet, 40, 0}, L"QT_PH", {1.0, column.cells[i]});
    for (std::size_t k = 0; k < 2; ++k) {
      EXPECT_NEAR(numberOf(beside, i, k), numberOf(one, 0, k), 1e-10 * numberOf(one, 0, k));
      EXPECT_EQ(numberOf(below, k, i), numberOf(beside, i, k));
    }
  }
}

TEST_F(ExcelFunctions, TextsAreReadWithThePointWhateverTheLocale) {
  const double expected = numberOf(hpt({10.5, 773.15}));
  EXPECT_EQ(numberOf(hpt({Cell(std::string("10.5")), Cell(std::string(" 773.15 "))})), expected);
  for (const char* text : {"10,5", "1e", "0x10", "inf", "nan", "10 MPa", "+-1", "TRUE"}) {
    EXPECT_EQ(errorOf(hpt({Cell(std::string(text)), 773.15})), xlerrValue) << text;
    EXPECT_NE(why().find("P is the text \"" + std::string(text)), std::string::npos) << why();
  }
}

TEST_F(ExcelFunctions, WrongInputsAreErrorsWithReasons) {
  EXPECT_EQ(errorOf(hpt({10.0, 3000.0})), xlerrNA);
  EXPECT_EQ(why(), "HPT: Temperature parameter out of range (Valid range 260.00 to 2500.00 K).");
  EXPECT_EQ(errorOf(hpt({10.0})), xlerrValue);
  EXPECT_EQ(why(), "HPT: T is missing. It takes P (MPa), T (K).");
  EXPECT_EQ(errorOf(hpt({Cell(Blank{}), 500.0})), xlerrNA);
  EXPECT_NE(why().find("P is an empty cell"), std::string::npos) << why();
  EXPECT_EQ(errorOf(hpt({Cell(Error{ErrorKind::given, xlerrDiv0}), 500.0})), xlerrDiv0);
  EXPECT_NE(why().find("P is itself #DIV/0!"), std::string::npos) << why();
  EXPECT_NEAR(numberOf(hpt({3.2776, 635.28})), 3137.45826150827, 1e-8);
  EXPECT_EQ(why(), "");
  host.cells[home] = Error{ErrorKind::given, xlerrRef};
  EXPECT_NE(why().find("No function of Calvex has failed here"), std::string::npos) << why();
}

// Without a drop of pressure no mass flow makes power.
TEST_F(ExcelFunctions, AnInfiniteResultIsAnError) {
  Grid outlets(2, 1);
  outlets.cells = {10.0, 1.0};
  const Cell wanted = std::string("MIn");
  const Grid mass =
      host.calculate(home, L"TurbineB", {3374.0, 10.0, outlets, 0.8, 500.0, wanted}, 2, 1);
  EXPECT_EQ(errorOf(mass, 0), xlerrNA);
  EXPECT_GT(numberOf(mass, 1), 0.0);
  EXPECT_EQ(why(), "TurbineB: MIn is infinite here");
  const Address other{home.sheet, 7, 0};
  EXPECT_EQ(errorOf(host.calculate(other, L"TurbineB", {3374.0, 10.0, 10.0, 0.8, 500.0, wanted})),
            xlerrNA);
  EXPECT_EQ(why(other), "TurbineB: MIn is infinite here");
}

TEST_F(ExcelFunctions, OfSeveralResultsTheInfiniteOnesAreErrors) {
  const std::vector<Given> turbine{3374.0, 10.0, 10.0, 0.8, 5000.0};
  const std::vector<Given> cooler{2852.0, 2852.0, 1.0, 500.0, 1.3};  // as hot as its water
  const auto cells = [&](const wchar_t* name, std::vector<Given> inputs, const char* tokens,
                         std::size_t width, std::vector<int> errors, const char* reason) {
    if (*tokens != '\0') inputs.emplace_back(Cell(std::string(tokens)));
    const Grid got = host.calculate(home, name, inputs, 4, 4);
    ASSERT_EQ(got.cells.size(), errors.size() * width) << name;
    for (std::size_t i = 0; i < errors.size(); ++i) {
      const std::size_t row = width == 1 ? 0 : i, column = width == 1 ? i : 1;
      EXPECT_EQ(errorOf(got, row, column), errors[i]) << name << ' ' << i;
      const Address cell{home.sheet, static_cast<int>(row), static_cast<int>(column)};
      EXPECT_EQ(why(cell), errors[i] == -1 ? "" : reason);
    }
  };
  cells(L"TurbineB", turbine, "", 1, {xlerrNA, -1, -1, -1}, "TurbineB: MIn is infinite here");
  cells(L"DeSuperHeaterB", cooler, "", 1, {-1, xlerrNA, xlerrNA},
        "DeSuperHeaterB: Mw, Ms are infinite here");
  cells(L"XLTurbineB", turbine, "T_Out M_In", 3, {-1, xlerrNA},
        "XLTurbineB: M_In is infinite here");
  cells(L"XLDeSuperHeaterB", cooler, "M_Water", 3, {xlerrNA},
        "XLDeSuperHeaterB: M_Water is infinite here");
}

TEST_F(ExcelFunctions, OneBadRowDoesNotSpoilTheColumn) {
  Grid pressures(5, 1);
  pressures.cells = {10.0, -1.0, std::string("text"), Blank{}, 10.0};
  const Grid answers = host.calculate(home, L"HPT", {pressures, 773.15}, 5, 1);
  EXPECT_EQ(numberOf(answers, 4), numberOf(answers, 0));
  EXPECT_EQ(errorOf(answers, 1), xlerrNA);
  EXPECT_EQ(errorOf(answers, 2), xlerrValue);
  EXPECT_EQ(errorOf(answers, 3), xlerrNA);
  const auto below = [](int row) { return Address{home.sheet, row, 0}; };
  EXPECT_EQ(why(below(0)), "");
  EXPECT_NE(why(below(1)).find("Pressure"), std::string::npos) << why(below(1));
  EXPECT_NE(why(below(2)).find("P is the text \"text\""), std::string::npos) << why(below(2));
  EXPECT_NE(why(below(3)).find("empty cell"), std::string::npos) << why(below(3));
}

// A newer host calls from the first cell alone and lets the result spill.
TEST_F(ExcelFunctions, ASpilledCellKnowsItsReason) {
  Grid pressures(3, 1);
  pressures.cells = {10.0, 10.0, -1.0};
  host.calculate(home, L"HPT", {pressures, 773.15}, 1, 1);
  EXPECT_NE(why({home.sheet, 2, 0}).find("Pressure"), std::string::npos);
}

TEST_F(ExcelFunctions, CellsOfTheOwnSheetMayBeGivenByShortReferences) {
  host.shortReferences = true;
  host.unitNames[L"Book1.xlsx"] = Address{home.sheet, 2, 0};
  host.cells[{home.sheet, 2, 0}] = std::string("T=C");
  EXPECT_EQ(errorOf(hpt({10.0, 3000.0})), xlerrNA);
  EXPECT_EQ(why(), "HPT: Temperature parameter out of range (Valid range -13.15 to 2226.85 C).");
}

TEST_F(ExcelFunctions, TheInnerFailureOfAFormulaIsTheOneThatIsTold) {
  constexpr auto formula = L"=HPT(10,TPH(10,99999))";
  const Grid inner = host.calculate(home, L"TPH", {10.0, 99999.0}, 1, 1, formula);
  EXPECT_EQ(errorOf(host.calculate(home, L"HPT", {10.0, inner.cells[0]}, 1, 1, formula)), xlerrNA);
  EXPECT_TRUE(why().starts_with("TPH: ")) << why();
}

TEST_F(ExcelFunctions, TheRecordOfAFailedCellHasItsCall) {
  hpt({10.0, 3000.0});
  const Grid record = host.calculate({home.sheet, 60, 0}, L"CALVEX.TRACE", {home});
  ASSERT_EQ(record.columns, 3U);
  ASSERT_GE(record.rows, 2U);
  EXPECT_EQ(numberOf(record, 0, 0), 0.0);
  EXPECT_EQ(textOf(record, 0, 1), "call");
  EXPECT_NE(textOf(record, 0, 2).find("HPT"), std::string::npos);
  EXPECT_EQ(textOf(record, 1, 1), "error");
  EXPECT_NE(textOf(record, 1, 2).find("out of range"), std::string::npos);
}

TEST_F(ExcelFunctions, AHundredThousandRowsAreAnswered) {
  Grid pressures(100000, 1), temperatures(100000, 1);
  for (std::size_t i = 0; i < pressures.rows; ++i) {
    pressures.cells[i] = 0.01 + 1e-4 * static_cast<double>(i);
    temperatures.cells[i] = 300.0 + 7e-3 * static_cast<double>(i);
  }
  const Grid answers = host.calculate(home, L"HPT", {pressures, temperatures}, 100000, 1);
  ASSERT_EQ(answers.rows, 100000U);
  Engine engine;
  for (std::size_t i = 0; i < answers.rows; i += 9973) {
    const double expected =
        engine.HPT(std::get<double>(pressures.cells[i]), std::get<double>(temperatures.cells[i]));
    EXPECT_NEAR(numberOf(answers, i), expected, 1e-10 * expected) << i;
  }
}

TEST_F(ExcelFunctions, NothingIsKeptOfManyCalls) {
  Grid pressures(1000, 1);
  for (std::size_t i = 0; i < pressures.rows; ++i) {
    pressures.cells[i] = i % 7 == 0 ? Cell(-1.0) : Cell(1.0 + 1e-3 * static_cast<double>(i));
  }
  const auto round = [&](int times) {
    for (int i = 0; i < times; ++i) host.calculate(home, L"HPT", {pressures, 773.15}, 1000, 1);
  };
  round(50);
  const double before = memoryInUse();
  round(200);  // 6 MB of results, each with its texts and cells
  EXPECT_LT(memoryInUse() - before, 1.0) << "MB";
}

TEST_F(ExcelFunctions, AMacroIsAnsweredInTheUnitsOfTheActiveWorkbook) {
  host.unitNames[L"Book1.xlsx"] = std::wstring(L"T=C");
  EXPECT_NEAR(numberOf(host.run(L"HPT", {3.2776, 635.28 - 273.15})), 3137.45826150827, 1e-6);
}

}  // namespace
}  // namespace calvex::excel::test
