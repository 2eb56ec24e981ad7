#include "units/utf16.h"

#include <gtest/gtest.h>

namespace calvex {
namespace {

using namespace std::string_literals;

std::string utf8(const std::u16string& text) { return utf8Of<char16_t>(text); }
std::u16string utf16(const std::string& text) { return utf16Of<char16_t>(text); }

// The compiler encodes both literals.
TEST(Utf16, IsTheSameTextInUtf8) {
  const std::pair<std::u16string, std::string> texts[] = {
      {u"", ""},
      {u"N/m²"s, "N/m²"},
      {u"Łódź.xlsx", "Łódź.xlsx"},
      {u"Котельная.xlsx", "Котельная.xlsx"},
      {u"锅炉.xlsx", "锅炉.xlsx"},
      {u"🔥 \U00010000 \U0010FFFF", "🔥 \U00010000 \U0010FFFF"},
      {u"\u007F\u0080\u07FF\u0800\uD7FF\uE000\uFFFF", "\u007F\u0080\u07FF\u0800\uD7FF\uE000\uFFFF"},
      {u"a\0b"s, "a\0b"s},
  };
  for (const auto& [wide, narrow] : texts) {
    EXPECT_EQ(utf8(wide), narrow);
    EXPECT_EQ(utf16(narrow), wide) << narrow;
  }
}

TEST(Utf16, SurrogatesWithoutTheirPartnersSurvive) {
  for (const std::u16string& text : {u"\xD800"s, u"\xDFFF"s, u"a\xDBFF"s, u"\xDC00z"s,
                                     u"\xDC00\xD800"s, u"\xD83D\xD83D\xDD25"s}) {
    EXPECT_EQ(utf16(utf8(text)), text);
    EXPECT_FALSE(isUtf8(utf8(text)));
  }
  EXPECT_EQ(utf8(u"\xD800"s), "\xED\xA0\x80");
}

TEST(Utf16, EveryUnitSurvives) {
  for (unsigned first = 0; first < 0x10000; ++first) {
    const std::u16string text{static_cast<char16_t>(first), u'-'};
    ASSERT_EQ(utf16(utf8(text)), text) << first;
  }
}

TEST(Utf16, ABytePartOfNoCharacterBecomesTheReplacement) {
  EXPECT_EQ(utf16("a\xFFz\xC3"), u"a\uFFFDz\uFFFD");
}

}  // namespace
}  // namespace calvex
