#include "csv.h"

#include <gtest/gtest.h>

#include <sstream>

#include "failure.h"

namespace calvex::cli::test {
namespace {

using Cells = std::vector<std::string>;

// What the cells of each record say.
std::vector<Cells> recordsOf(std::string_view text, char separator = ',') {
  std::vector<Cells> records;
  std::string buffer;
  while (!text.empty()) {
    CsvRecord record;
    takeRecord(text, separator, record);
    Cells& cells = records.emplace_back();
    for (const std::string_view cell : record.cells) cells.emplace_back(cellText(cell, buffer));
  }
  return records;
}

std::string refusal(std::string_view text) {
  try {
    recordsOf(text);
  } catch (const UsageError& error) {
    return error.what();
  }
  return {};
}

// The numbered definitions of RFC 4180, section 2.
TEST(Csv, RecordsEndInLineBreaks) {
  EXPECT_EQ(recordsOf("aaa,bbb,ccc\r\nzzz,yyy,xxx\r\n"),
            (std::vector<Cells>{{"aaa", "bbb", "ccc"}, {"zzz", "yyy", "xxx"}}));
}
TEST(Csv, TheLastRecordNeedNotBeEnded) {
  EXPECT_EQ(recordsOf("aaa,bbb\r\nzzz,yyy"), (std::vector<Cells>{{"aaa", "bbb"}, {"zzz", "yyy"}}));
}
TEST(Csv, BlanksBelongToTheCell) {
  EXPECT_EQ(recordsOf(" aaa , bbb\n"), (std::vector<Cells>{{" aaa ", " bbb"}}));
}
TEST(Csv, ACellMayStandInQuotes) {
  EXPECT_EQ(recordsOf("\"aaa\",\"\",bbb\r\n"), (std::vector<Cells>{{"aaa", "", "bbb"}}));
}
TEST(Csv, QuotesHoldLineBreaksAndSeparators) {
  EXPECT_EQ(recordsOf("\"aaa\",\"b\r\nb,b\",ccc\r\nzzz\r\n"),
            (std::vector<Cells>{{"aaa", "b\r\nb,b", "ccc"}, {"zzz"}}));
}
TEST(Csv, AQuoteInsideQuotesIsDoubled) {
  EXPECT_EQ(recordsOf("\"b\"\"b\",\"\"\"\",\"\"\"a\"\n"),
            (std::vector<Cells>{{"b\"b", "\"", "\"a"}}));
}

TEST(Csv, LineFeedsAloneEndRecordsToo) {
  EXPECT_EQ(recordsOf("a,b\nc,\n\n,\n"),
            (std::vector<Cells>{{"a", "b"}, {"c", ""}, {""}, {"", ""}}));
}

TEST(Csv, AQuoteInsideACellWithoutQuotesIsItself) {
  EXPECT_EQ(recordsOf("5\" pipe,a\"\"b, \"c\"\n"),
            (std::vector<Cells>{{"5\" pipe", "a\"\"b", " \"c\""}}));
}

TEST(Csv, SeparatorsAreTabsAndSemicolonsToo) {
  EXPECT_EQ(recordsOf("a,b\tc;d\n", '\t'), (std::vector<Cells>{{"a,b", "c;d"}}));
  EXPECT_EQ(recordsOf("a,b;\"c;d\"\n", ';'), (std::vector<Cells>{{"a,b", "c;d"}}));
}

TEST(Csv, ARecordKeepsHowItStands) {
  std::string_view text = "\"a\",b\r\nc";
  CsvRecord record;
  takeRecord(text, ',', record);
  EXPECT_EQ(record.text, "\"a\",b");
  EXPECT_EQ(record.lineEnd, "\r\n");
  EXPECT_EQ(record.cells.front(), "\"a\"");
  EXPECT_FALSE(record.isBlank());
  takeRecord(text, ',', record);
  EXPECT_EQ(record.text, "c");
  EXPECT_EQ(record.lineEnd, "");
  EXPECT_TRUE(text.empty());
  text = "\r\nx";
  takeRecord(text, ',', record);
  EXPECT_TRUE(record.isBlank());
  EXPECT_EQ(record.lineEnd, "\r\n");
}

TEST(Csv, WrongQuotesAreRefused) {
  EXPECT_NE(refusal("a,\"b").find("never closed"), std::string::npos);
  EXPECT_NE(refusal("\"").find("never closed"), std::string::npos);
  EXPECT_NE(refusal("\"a\"\"").find("never closed"), std::string::npos);
  for (const char* text : {"\"a\" ,b", "\"a\"b,c", "\"a\"b\",c", "\"a\"\r,c"}) {
    EXPECT_NE(refusal(text).find("between a closing quote and"), std::string::npos) << text;
  }
}

TEST(Csv, CellsAreQuotedWhereTheyNeedIt) {
  EXPECT_EQ(csvCell("plain text", ','), "plain text");
  EXPECT_EQ(csvCell("", ','), "");
  EXPECT_EQ(csvCell("a,b", ','), "\"a,b\"");
  EXPECT_EQ(csvCell("a,b", ';'), "a,b");
  EXPECT_EQ(csvCell("a\tb", '\t'), "\"a\tb\"");
  EXPECT_EQ(csvCell("say \"x\"", ','), "\"say \"\"x\"\"\"");
  EXPECT_EQ(csvCell("two\nlines", ','), "\"two\nlines\"");
}

TEST(Csv, WrittenCellsReadBack) {
  for (const std::string text : {"", "a", "\"", "\"\"", ",", "a,\"b\"\r\nc", "\r", " x "}) {
    EXPECT_EQ(recordsOf(csvCell(text, ',') + ",end\n"), (std::vector<Cells>{{text, "end"}}));
  }
}

TEST(Csv, TheSeparatorIsGuessedFromTheFirstLine) {
  EXPECT_EQ(guessSeparator("P,T\n1;2;3"), ',');
  EXPECT_EQ(guessSeparator("P;T\n1,2;3,4"), ';');
  EXPECT_EQ(guessSeparator("P, bar\tT, C\n"), '\t');
  EXPECT_EQ(guessSeparator("\"P;T;x\",T\n"), ',');
  EXPECT_EQ(guessSeparator("\"P\tx\",T\n"), ',');
  EXPECT_EQ(guessSeparator("P"), ',');
  EXPECT_EQ(guessSeparator(""), ',');
}

std::vector<CsvBlocks::Block> blocksOf(const std::string& text, char separator = ',') {
  std::istringstream in(text);
  CsvBlocks blocks(in);
  std::vector<CsvBlocks::Block> all;
  for (;;) {
    CsvBlocks::Block block = blocks.next(separator);
    if (block.text.empty()) return all;
    all.push_back(std::move(block));
  }
}

TEST(CsvBlocks, HoldWholeRecordsAndTogetherTheWholeText) {
  // Quoted line breaks wherever a block may end.
  for (const std::size_t length : {1U, 7U, 50U, 1000U, 70000U}) {
    std::string text;
    std::size_t lines = 0;
    while (text.size() < 4 * CsvBlocks::blockSize) {
      text += "\"" + std::string(length, 'x') + "\n\"\"\r\n\"," + std::to_string(lines++) + "\r\n";
    }
    std::string together;
    std::size_t line = 1;
    for (const CsvBlocks::Block& block : blocksOf(text)) {
      EXPECT_EQ(block.firstLine, line);
      EXPECT_TRUE(block.text.ends_with("\r\n"));
      line += 3 * recordsOf(block.text).size();  // throws where a record is cut
      together += block.text;
    }
    EXPECT_EQ(together, text) << length;
    EXPECT_EQ(line, 1 + 3 * lines);
  }
}

TEST(CsvBlocks, AnEndThatIsNoLineEndIsKept) {
  for (const char* text : {"a", "a\nb", "a\n", "\n", "\"a\n\"", "a,\"b"}) {
    std::string together;
    for (const CsvBlocks::Block& block : blocksOf(text)) together += block.text;
    EXPECT_EQ(together, text);
  }
  EXPECT_TRUE(blocksOf("").empty());
}

TEST(CsvBlocks, AByteOrderMarkIsSetAside) {
  std::istringstream in("\xEF\xBB\xBFP,T\n");
  CsvBlocks blocks(in);
  EXPECT_TRUE(blocks.hadByteOrderMark());
  EXPECT_EQ(blocks.beginning(), "P,T\n");
  EXPECT_EQ(blocks.next(',').text, "P,T\n");
}

TEST(CsvBlocks, OtherEncodingsAreRefused) {
  for (const std::string& text : {std::string("\xFF\xFEP\0,\0", 6), std::string("\xFE\xFF\0P", 4),
                                  std::string("P\0,\0", 4)}) {
    std::istringstream in(text);
    EXPECT_THROW(CsvBlocks{in}, UsageError);
  }
}

TEST(CsvBlocks, AQuoteThatIsNotClosedEndsTheReading) {
  const std::string text = "P,T\n\"" + std::string(3 * CsvBlocks::longestRecord, 'x');
  try {
    blocksOf(text);
    FAIL();
  } catch (const UsageError& error) {
    EXPECT_NE(std::string(error.what()).find("line 2"), std::string::npos) << error.what();
    EXPECT_NE(std::string(error.what()).find("quote"), std::string::npos);
  }
}

}  // namespace
}  // namespace calvex::cli::test
