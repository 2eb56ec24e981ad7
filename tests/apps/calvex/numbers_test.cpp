#include "numbers.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

#include "failure.h"
#include "json.h"

namespace calvex::cli {
namespace {

std::string refusal(const std::string& word) {
  try {
    return "read as " + shortestText(parseNumber(word));
  } catch (const UsageError& error) {
    return error.what();
  }
}

TEST(Numbers, AreReadWhateverTheirForm) {
  EXPECT_EQ(parseNumber("10"), 10.0);
  EXPECT_EQ(parseNumber("-5"), -5.0);
  EXPECT_EQ(parseNumber("+773.15"), 773.15);
  EXPECT_EQ(parseNumber("-.5e-3"), -0.0005);
  EXPECT_EQ(parseNumber("5e-324"), std::numeric_limits<double>::denorm_min());
}

TEST(Numbers, ThatAreMalformedAreRefused) {
  for (const char* word :
       {"", "x", "1x", "1 ", " 1", "--1", "+-1", "1e", "0x10", "1.2.3", "+", "."}) {
    EXPECT_NE(refusal(word).find("is not a number"), std::string::npos) << word;
  }
  EXPECT_NE(refusal("1013,25").find("the decimal sign is a point"), std::string::npos);
}

TEST(Numbers, ThatAreNotFiniteAreRefused) {
  for (const char* word : {"nan", "NaN", "-nan", "inf", "-inf", "+inf", "Infinity"}) {
    EXPECT_NE(refusal(word).find("is not a finite number"), std::string::npos) << word;
  }
  EXPECT_NE(refusal("1e999").find("beyond the numbers"), std::string::npos);
  EXPECT_NE(refusal("-1e999").find("beyond the numbers"), std::string::npos);
}

TEST(Numbers, ThatShouldBeWholeAreChecked) {
  EXPECT_EQ(parseWholeNumber("1e2", -32768, 32767), 100);
  EXPECT_EQ(parseWholeNumber("-32768", -32768, 32767), -32768);
  EXPECT_THROW(static_cast<void>(parseWholeNumber("2.5", -32768, 32767)), UsageError);
  EXPECT_THROW(static_cast<void>(parseWholeNumber("32768", -32768, 32767)), UsageError);
}

TEST(Numbers, PrintedAsJsonReadBackToTheSameBits) {
  std::mt19937_64 random(1);
  int finite = 0;
  for (int i = 0; i < 200000; ++i) {
    const auto value = std::bit_cast<double>(random());
    if (!std::isfinite(value)) continue;
    ++finite;
    const std::string text = jsonNumber(value);
    double read = 0.0;
    std::from_chars(text.data(), text.data() + text.size(), read);
    ASSERT_EQ(std::bit_cast<std::uint64_t>(read), std::bit_cast<std::uint64_t>(value)) << text;
  }
  EXPECT_GT(finite, 190000);
}

TEST(Numbers, WithoutAJsonFormAreStrings) {
  EXPECT_EQ(jsonNumber(std::numeric_limits<double>::infinity()), "\"inf\"");
  EXPECT_EQ(jsonNumber(-std::numeric_limits<double>::infinity()), "\"-inf\"");
  EXPECT_EQ(jsonNumber(std::numeric_limits<double>::quiet_NaN()), "\"nan\"");
  EXPECT_EQ(jsonNumber(-0.0), "-0.0");
}

TEST(Numbers, ForPeopleHaveTenDigits) {
  EXPECT_EQ(readableText(1.0 / 3.0), "0.3333333333");
  EXPECT_EQ(readableText(10.0), "10");
}

TEST(Json, EscapesWhatMustBeEscaped) {
  EXPECT_EQ(jsonString("a\"b\\c\n\x01"), "\"a\\\"b\\\\c\\u000a\\u0001\"");
  EXPECT_EQ(jsonString("\u00B2"), "\"\u00B2\"");
  EXPECT_EQ(jsonString("\xFF"), "\"\uFFFD\"");
}

}  // namespace
}  // namespace calvex::cli
