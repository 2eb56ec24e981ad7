// Tables with computed columns, against the calls of the command line.
#include "batch.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>

#include "command_line_harness.h"
#include "csv.h"

namespace calvex::cli::test {
namespace {

Answer batch(const std::string& table, Words words) {
  words.insert(words.begin(), {"batch", "-"});
  return calvexWithInput(table, std::move(words));
}

std::vector<std::vector<std::string>> rowsOf(std::string_view text, char separator = ',') {
  std::vector<std::vector<std::string>> rows;
  std::string buffer;
  while (!text.empty()) {
    CsvRecord record;
    takeRecord(text, separator, record);
    auto& row = rows.emplace_back();
    for (const std::string_view cell : record.cells) row.emplace_back(cellText(cell, buffer));
  }
  return rows;
}

// What the command line answers to a single call.
double called(Words words, const std::string& output) {
  words.emplace_back("--json");
  const Answer answer = calvex(words);
  EXPECT_EQ(answer.status, 0) << answer.err;
  return numberAt(answer.out, output);
}

// A cell beside a call's answer. Many states at once agree with single ones to 1e-10.
void expectSame(const std::string& cell, double expected) {
  ASSERT_NE(cell, "");
  EXPECT_NEAR(std::stod(cell), expected, 1e-9 * std::abs(expected)) << cell;
}

TEST(Batch, AnswersTheFirstQuestion) {
  const Answer answer = batch("P,T\n10,500\n", {"h=HPT(P,T)", "-u", "T=C"});
  EXPECT_EQ(answer.status, 0) << answer.err;
  EXPECT_EQ(answer.err, "");
  const auto rows = rowsOf(answer.out);
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0], (std::vector<std::string>{"P", "T", "h", "why"}));
  // The steam tables of the formulation: 3373.998049 kJ/kg at 10 MPa and 773.15 K.
  EXPECT_NEAR(std::stod(rows[1].at(2)), 3373.998049, 5e-7);
  EXPECT_EQ(rows[1].at(3), "");
}

TEST(Batch, AnswersAsTheCommandLineDoes) {
  const std::vector<Words> states{{"10", "500"}, {"0.1", "20"}, {"25", "400"}, {"1", "179.9"}};
  std::string table = "P,T\n";
  for (const Words& state : states) table += state[0] + "," + state[1] + "\n";
  const auto rows = rowsOf(batch(table, {"h=HPT(P,T)", "s=SPT(P,T)", "T2=TPS(P,s)", "x=QPH(P,h)",
                                         "w=TurbineA(h,P,0.01,0.8,10).Power",
                                         "q=TurbineA(h,P,0.01,0.8,10).QOut", "-u", "T=C"})
                               .out);
  ASSERT_EQ(rows.size(), 1 + states.size());
  for (std::size_t i = 0; i < states.size(); ++i) {
    const std::vector<std::string>& row = rows[i + 1];
    const Words units{"-u", "T=C"};
    const auto call = [&](Words words, const std::string& output) {
      words.insert(words.end(), units.begin(), units.end());
      return called(words, output);
    };
    expectSame(row.at(2), call({"HPT", row[0], row[1]}, "pH"));
    expectSame(row.at(3), call({"SPT", row[0], row[1]}, "pS"));
    expectSame(row.at(4), call({"TPS", row[0], row[3]}, "pT"));
    expectSame(row.at(5), call({"QPH", row[0], row[2]}, "pQ"));
    const Words turbine{"TurbineA", row[2], row[0], "0.01", "0.8", "10"};
    expectSame(row.at(6), call(turbine, "pPower"));
    expectSame(row.at(7), call(turbine, "pQOut"));
    EXPECT_EQ(row.at(8), "");
  }
}

TEST(Batch, TextsOfAnswersAreThoseOfCalls) {
  // In the ten digits that a call prints.
  const auto rows = rowsOf(batch("P,T\n10,773.15\n1,300\n", {"h=HPT(P,T)"}).out);
  for (const std::size_t i : {1U, 2U}) {
    char text[64];
    std::snprintf(text, sizeof text, "H = %.10g kJ/kg  enthalpy\n", std::stod(rows.at(i).at(2)));
    EXPECT_EQ(calvex({"HPT", rows[i][0], rows[i][1]}).out, text);
  }
}

TEST(Batch, SettingsAreThoseOfTheCommandLine) {
  const Answer answer = batch("T\n500\n", {"P=PSatT(T)", "-s", "SatPolish=0"});
  expectSame(rowsOf(answer.out).at(1).at(1), called({"PSatT", "500", "-s", "SatPolish=0"}, "pP"));
  const Answer plain = batch("T\n500\n", {"P=PSatT(T)"});
  expectSame(rowsOf(plain.out).at(1).at(1), called({"PSatT", "500"}, "pP"));
  EXPECT_NE(answer.out, plain.out);
}

TEST(Batch, SpreadsheetMembersAnswerByTheirTokens) {
  const auto rows = rowsOf(
      batch("MSP\n0.5\n", {"T=XLThermoCompressorA(MSP,430,5,0.1,380,2).T_Out", "-u", "T=C"}).out);
  const Answer call = calvex({"XLThermoCompressorA", "0.5", "430", "5", "0.1", "380", "2", "T_Out",
                              "-u", "T=C", "--json"});
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_TRUE(contains(call.out, "," + rows[1].at(1) + ",")) << call.out << rows[1].at(1);
}

TEST(Batch, ConstantsAndLaterColumnsUseEarlierOnes) {
  const auto rows = rowsOf(batch("T\n500\n", {"P=2", "h=HPT(P,T)", "T2=TPH(P,h)"}).out);
  EXPECT_EQ(rows.at(1).at(1), "2");
  expectSame(rows.at(1).at(2), called({"HPT", "2", "500"}, "pH"));
  EXPECT_NEAR(std::stod(rows.at(1).at(3)), 500.0, 1e-6);
}

TEST(Batch, TheTableStaysAsItIs) {
  const std::string table =
      "tag ,\"P, bar\",T\r\n"
      "\"a \"\"1\"\"\r\nline\", 10 ,\"500\"\r\n"
      "\r\n"
      "5\" pipe,+1e1,500.000,\r\n"
      ",10,500";
  const Answer answer = batch(table, {"h=HPT(\"P, bar\",T)", "-u", "P=bara"});
  EXPECT_EQ(answer.status, 0) << answer.err;
  const std::string h = rowsOf(answer.out).at(1).at(3);
  EXPECT_GT(h.size(), 10U);
  EXPECT_EQ(answer.out,
            "tag ,\"P, bar\",T,h,why\r\n"
            "\"a \"\"1\"\"\r\nline\", 10 ,\"500\"," +
                h +
                ",\r\n"
                "\r\n"
                "5\" pipe,+1e1,500.000," +
                h +
                ",\r\n"
                ",10,500," +
                h + ",");
}

TEST(Batch, AByteOrderMarkStays) {
  const Answer answer = batch("\xEF\xBB\xBFP,T\n10,500\n", {"h=HPT(P,T)"});
  EXPECT_EQ(answer.status, 0) << answer.err;
  EXPECT_TRUE(answer.out.starts_with("\xEF\xBB\xBFP,T,h,why\n10,500,")) << answer.out;
}

TEST(Batch, ATableInWindows1252StaysOne) {
  // The degree sign is B0 there.
  const Answer answer =
      batch("T \xB0\x43,P\n500,10\n500,\xB0\n", {"h\u00B2=HPT(P,T \u00B0C)", "-u", "T=C"});
  EXPECT_EQ(answer.status, 1);
  EXPECT_TRUE(answer.out.starts_with("T \xB0\x43,P,h\xB2,why\n500,10,3373.99")) << answer.out;
  EXPECT_TRUE(contains(answer.out, "500,\xB0,,P: '\xB0' is not a number\n")) << answer.out;
}

TEST(Batch, TabsAndSemicolonsSeparateToo) {
  EXPECT_TRUE(batch("P\tT\n10\t500\n", {"h=HPT(P,T)"}).out.starts_with("P\tT\th\twhy\n10\t500\t9"));
  EXPECT_TRUE(batch("P;T\n10;500\n", {"h=HPT(P,T)"}).out.starts_with("P;T;h;why\n10;500;9"));
  const Answer chosen = batch("P;T,x\n10;500\n", {"c=1", "--separator", "comma"});
  EXPECT_TRUE(chosen.out.starts_with("P;T,x,c,why\n10;500,,1,\n")) << chosen.out;
}

TEST(Batch, DecimalCommasAreReadAndWritten) {
  const Answer answer = batch("P;T\n10,5;500\n1.000;500\n", {"h=HPT(P,T)", "--decimal-comma"});
  EXPECT_EQ(answer.status, 1);
  const auto rows = rowsOf(answer.out, ';');
  std::string h = rows.at(1).at(2);
  ASSERT_EQ(h.find('.'), std::string::npos);
  h.at(h.find(',')) = '.';
  expectSame(h, called({"HPT", "10.5", "500"}, "pH"));
  EXPECT_EQ(rows.at(2).at(3),
            "P: '1.000' is not a number; with --decimal-comma the decimal sign is a comma");
  const Answer quoted = batch("P,T\n\"10,5\",500\n", {"h=HPT(P,T)", "--decimal-comma"});
  EXPECT_EQ(rowsOf(quoted.out).at(1).at(2), rows.at(1).at(2));
}

TEST(Batch, ARowWithoutAnAnswerSaysWhy) {
  const Answer answer =
      batch("P,T\n10,3000\n,500\nabc,500\n\"3,5\",500\n10\n10,inf\n-1,500\n10,500\n",
            {"h=HPT(P,T)", "s=SPT(P,T)", "x=QPH(P,h)", "Ts=TSatP(P)", "-u", "T=C"});
  EXPECT_EQ(answer.status, 1);
  const auto rows = rowsOf(answer.out);
  ASSERT_EQ(rows.size(), 9U);
  const std::string range =
      "h, s: Temperature parameter out of range (Valid range -13.15 to 2226.85 C).";
  const char* const expected[] = {
      range.c_str(),
      "P: the cell is empty",
      "P: 'abc' is not a number",
      "P: '3,5' is not a number; --decimal-comma reads numbers such as 3,5",
      "T: the row ends before it",
      "T: 'inf' is not a finite number",
      "h, s: Pressure parameter out of range (Valid range 0.00 to 3000.00 MPa).; "
      "Ts: Pressure parameter out of range (Valid range 0.00 to 22.05 MPa).",
      "",
  };
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    const std::vector<std::string>& row = rows[i + 1];
    ASSERT_EQ(row.size(), 7U) << i;
    EXPECT_EQ(row[6], expected[i]);
    EXPECT_EQ(row[2].empty(), row[6] != "") << i;
    EXPECT_EQ(row[4].empty(), row[6] != "") << i;
  }
  EXPECT_NE(rows[1][5], "");  // what can be computed is
  EXPECT_EQ(answer.err, "calvex: 7 of 8 rows have a reason in column 'why'; the first, line 2: " +
                            range + "\n");
}

TEST(Batch, RowsThatAreNoneAreRefusedByTheirLine) {
  const std::pair<const char*, const char*> faults[] = {
      {"P,T\n1,300\n\"a\nb\",1\n1,2,3\n", "line 5: the row has 3 cells and the header 2"},
      {"P,T\n1,300\n1,\"2\n", "line 3: a quote is never closed"},
      {"P,T\n\"1\"2,300\n", "line 2: something stands between a closing quote"},
      {"P,\"T\n", "line 1: a quote is never closed"},
      {"", "the input is empty"},
  };
  for (const auto& [table, expected] : faults) {
    const Answer answer = batch(table, {"h=HPT(P,T)"});
    EXPECT_EQ(answer.status, 2) << table;
    EXPECT_TRUE(contains(answer.err, expected)) << table << answer.err;
  }
}

TEST(Batch, NamesAreChecked) {
  const std::pair<Words, const char*> faults[] = {
      {{"h=HPT(p,300)"}, "there is no column 'p'; did you mean P?"},
      {{"h=HPT(Pressure,300)"}, "Columns: P, T, T, note"},
      {{"x=QPH(P,h)", "h=HPT(P,300)"}, "there is no column 'h'"},
      {{"h=HPT(P,T)"}, "the table has more than one column 'T'"},
      {{"note=HPT(P,300)"}, "the table has a column 'note' already"},
      {{"h=1", "h=2"}, "'h' is added twice"},
      {{"h=HTP(P,300)"}, "there is no member 'HTP'; did you mean HPT"},
      {{"h=HPT(P)"}, "HPT takes 2 inputs, not 1: P (MPa), T (K)"},
      {{"h=SolverTol()"}, "SolverTol does not compute numbers from numbers"},
      {{"h=Convert(P,P,P,1)"}, "Convert does not compute numbers from numbers"},
      {{"w=TurbineA(P,P,1,1,1)"}, "name one of them, as in TurbineA(...).Power"},
      {{"w=TurbineA(P,P,1,1,1).Powr"}, "no result 'Powr'; did you mean Power?"},
      {{"why=1"}, "'why' is the column for reasons; --why NAME"},
      {{"h=1", "--why", "note"}, "the table has a column 'note' already; --why NAME"},
      {{"h=1", "-u", "T=parsec"}, "is not a unit of Temperature"},
      {{"h=1", "--separator", "dot"}, "--separator takes comma, semicolon or tab"},
      {{"h=1", "--threads", "many"}, "'many' is not a number"},
      {{}, "which columns are to be added"},
  };
  for (const auto& [words, expected] : faults) {
    const Answer answer = batch("P,T,T,note\n1,300,300,\n", words);
    EXPECT_EQ(answer.status, 2) << expected;
    EXPECT_EQ(answer.out, "") << expected;
    EXPECT_TRUE(contains(answer.err, expected)) << expected << "\n" << answer.err;
  }
}

TEST(Batch, TheColumnForReasonsMayHaveAnotherName) {
  const Answer answer = batch("P,why\n1,x\n", {"T=TSatP(P)", "--why", "reason"});
  EXPECT_EQ(answer.status, 0) << answer.err;
  EXPECT_TRUE(answer.out.starts_with("P,why,T,reason\n1,x,")) << answer.out;
}

TEST(Batch, ASeparatorAloneIsARowAndNoBlankLine) {
  EXPECT_EQ(batch("P\n,\n\n", {"T=TSatP(P)"}).out, "P,T,why\n,,P: the cell is empty\n\n");
}

TEST(Batch, AHeaderAloneIsATableToo) {
  EXPECT_EQ(batch("P,T\n", {"h=HPT(P,T)"}).out, "P,T,h,why\n");
  EXPECT_EQ(batch("P,T", {"h=HPT(P,T)"}).out, "P,T,h,why");
}

// Some hundred kilobytes: several blocks and more than one round of them.
std::string longTable() {
  std::string table = "note,P,T\n";
  for (int i = 0; i < 60000; ++i) {
    table += (i % 1000 == 0 ? "\"two\nlines\"," : "row,") + std::to_string(i % 7 * 3) + "," +
             (i % 97 == 0 ? "none" : std::to_string(280 + i % 500)) + "\n";
  }
  return table;
}

TEST(Batch, RowsThatAreWarnedOfAreCounted) {
  const Answer answer =
      batch("P,T,P0\n10,773.15,0.01\n2000,500,0.01\n10,1300,0.01\n0.1,1400,0.2\n10,-5,0.01\n",
            {"h=HPT(P,T)", "s=SPT(P,T)", "back=TPH(P,h)", "w=LetDownValve(h,P,P0).TOut"});
  EXPECT_EQ(answer.status, 1);
  EXPECT_EQ(rowsOf(answer.out).size(), 6U);
  EXPECT_EQ(
      linesOf(answer.err),
      (std::vector<std::string>{
          "calvex: warning: 3 of 5 rows are warned of in column 'h'; the first, line 3: "
          "Pressure parameter out of strictly valid range. Strictly valid: up to 500 MPa at "
          "273.15 K, rising to 1500 MPa from 423.15 K on.",
          "calvex: warning: 3 of 5 rows are warned of in column 's'; the first, line 3: "
          "Pressure parameter out of strictly valid range. Strictly valid: up to 500 MPa at "
          "273.15 K, rising to 1500 MPa from 423.15 K on.",
          "calvex: warning: 1 of 5 rows are warned of in column 'back'; the first, line 3: "
          "Pressure parameter out of strictly valid range. Strictly valid: up to 500 MPa at "
          "273.15 K, rising to 1500 MPa from 423.15 K on.",
          "calvex: warning: 2 of 5 rows are warned of in column 'w'; the first, line 3: "
          "Inlet Pressure parameter out of strictly valid range. Strictly valid: up to 500 MPa at "
          "273.15 K, rising to 1500 MPa from 423.15 K on.",
          "calvex: 1 of 5 rows have a reason in column 'why'; the first, line 6: h, s: "
          "Temperature parameter out of range (Valid range 260.00 to 2500.00 K)."}))
      << answer.err;
  EXPECT_EQ(batch("P,T\n10,773.15\n", {"h=HPT(P,T)"}).err, "");
}

TEST(Batch, WarningsAreTheSameOnAnyNumberOfThreads) {
  std::string table = "P,T\n";
  for (int row = 0; row < 50000; ++row) {
    table += std::to_string(1 + row % 7) + "," + std::to_string(300 + row % 1000) + "\n";
  }
  // 1274 K to 1299 K of every thousand rows
  const std::string expected =
      "calvex: warning: 1300 of 50000 rows are warned of in column 'h'; the first, line 976: "
      "Temperature parameter out of strictly valid range. Strictly valid: 273.15 K to 1273.15 K.\n";
  for (const char* threads : {"1", "3"}) {
    EXPECT_EQ(batch(table, {"h=HPT(P,T)", "--threads", threads}).err, expected);
  }
}

TEST(Batch, TheOutputIsTheSameOnAnyNumberOfThreads) {
  const std::string table = longTable();
  const Answer alone = batch(table, {"v=SolvePoly5(P,-1,0,0,0,0,T)", "h=XT(T)", "--threads", "1"});
  EXPECT_EQ(alone.status, 1);
  EXPECT_EQ(rowsOf(alone.out).size(), 60001U);
  for (const char* threads : {"2", "5"}) {
    const Answer shared =
        batch(table, {"v=SolvePoly5(P,-1,0,0,0,0,T)", "h=XT(T)", "--threads", threads});
    EXPECT_TRUE(shared.out == alone.out) << threads;
    EXPECT_EQ(shared.err, alone.err);
  }
}

TEST(Batch, TheOutputDoesNotDependOnHowTheInputArrives) {
  // A pipe that gives a few bytes at a time.
  class Trickle : public std::streambuf {
   public:
    explicit Trickle(const std::string& text) : text_(text) {}

   private:
    int_type underflow() override {
      if (at_ == text_.size()) return traits_type::eof();
      const std::size_t length = std::min<std::size_t>(1 + at_ % 977, text_.size() - at_);
      char* const begin = const_cast<char*>(text_.data()) + at_;
      setg(begin, begin, begin + length);
      at_ += length;
      return traits_type::to_int_type(*begin);
    }
    const std::string& text_;
    std::size_t at_ = 0;
  };
  const std::string table = longTable();
  const BatchRequest request{.columns = {readBatchColumn("h=XT(T)")}, .threads = 2};
  std::istringstream whole(table);
  Trickle trickle(table);
  std::istream pieces(&trickle);
  std::ostringstream outOfWhole, outOfPieces;
  std::size_t bytes = 0;
  const BatchOutcome outcome =
      runBatch(whole, outOfWhole, request, [&](std::size_t done) { bytes = done; });
  runBatch(pieces, outOfPieces, request);
  EXPECT_EQ(outcome.rows, 60000U);
  EXPECT_EQ(bytes, table.size() - std::string("note,P,T\n").size());
  EXPECT_LE(outcome.calling, outcome.working);
  EXPECT_TRUE(outOfPieces.str() == outOfWhole.str());
}

TEST(Batch, AnOutputThatCannotBeWrittenIsAFailure) {
  std::istringstream in(longTable());
  std::ostringstream out;
  out.setstate(std::ios::badbit);
  EXPECT_THROW(runBatch(in, out, {.columns = {readBatchColumn("c=1")}}), Failure);
}

}  // namespace
}  // namespace calvex::cli::test
