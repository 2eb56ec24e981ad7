#include "encoding.h"

#include <gtest/gtest.h>

namespace calvex::cli {
namespace {

TEST(Encoding, EveryByteOfWindows1252SurvivesTheWayToUtf8AndBack) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    EXPECT_EQ(toWindows1252(fromWindows1252(text)), text) << byte;
  }
}

// Code points from the published Windows-1252 table.
TEST(Encoding, BytesAbove7FAreTheCharactersOfTheTable) {
  EXPECT_EQ(fromWindows1252("\x80"), "\u20AC");
  EXPECT_EQ(fromWindows1252("\x85"), "\u2026");
  EXPECT_EQ(fromWindows1252("\x8A"), "\u0160");
  EXPECT_EQ(fromWindows1252("\x99"), "\u2122");
  EXPECT_EQ(fromWindows1252("\x9F"), "\u0178");
  EXPECT_EQ(fromWindows1252("\xB0"), "\u00B0");
  EXPECT_EQ(fromWindows1252("N/m\xB2"), "N/m\u00B2");
  EXPECT_EQ(fromWindows1252("\xFF"), "\u00FF");
}

TEST(Encoding, CharactersThatWindows1252LacksAreRefused) {
  for (const char* text : {"\u0100", "\u2192", "\u6C34", "\U0001F600", "\u0080"}) {
    EXPECT_EQ(toWindows1252(text), std::nullopt) << text;
  }
}

TEST(Encoding, MalformedUtf8IsRefused) {
  for (const char* text : {"\x80", "\xC2", "\xC0\x80", "\xE2\x82", "\xED\xA0\x80",
                           "\xF4\x90\x80\x80", "\xFF", "m\xB2", "\xE0\x80\xAF"}) {
    EXPECT_EQ(toWindows1252(text), std::nullopt);
    EXPECT_FALSE(isUtf8(text));
  }
  for (const char* text : {"", "m\u00B2", "\u6C34", "\U0001F600"})
    EXPECT_TRUE(isUtf8(text)) << text;
}

TEST(Encoding, AWordInAMessageIsWellFormedShortAndOnOneLine) {
  EXPECT_EQ(inQuotes("N/m\u00B2"), "'N/m\u00B2'");
  EXPECT_EQ(inQuotes("a\nb\x1B[31m\xFF"), "'a\uFFFDb\uFFFD[31m\uFFFD'");
  EXPECT_EQ(inQuotes(std::string(1000, 'x')), "'" + std::string(60, 'x') + "...'");
}

TEST(Encoding, WidthCountsCharacters) {
  EXPECT_EQ(width("N/m\u00B2"), 4U);
  EXPECT_EQ(width(""), 0U);
}

}  // namespace
}  // namespace calvex::cli
