#include "server/suggestions.h"

#include <gtest/gtest.h>

namespace calvex {
namespace {

TEST(Suggestions, SwappedNeighboursAreOneStep) {
  EXPECT_EQ(editDistance("HTP", "HPT"), 1U);
  EXPECT_EQ(editDistance("hpt", "HPT"), 0U);
  EXPECT_EQ(editDistance("", "HPT"), 3U);
  EXPECT_EQ(editDistance("kitten", "sitting"), 3U);
}

TEST(Suggestions, AreTheNearestNamesBestFirst) {
  const std::vector<std::string> names = {"MPa", "bara", "barg", "psia", "psig"};
  EXPECT_EQ(nearest("bar", names), (std::vector<std::string>{"bara", "barg"}));
  EXPECT_EQ(didYouMean("psi", names), "; did you mean psia or psig?");
}

TEST(Suggestions, AWordThatIsNearNothingGetsNone) {
  EXPECT_EQ(didYouMean("furlong", {"bara", "psia"}), "");
  EXPECT_EQ(didYouMean("", {"bara"}), "");
  EXPECT_EQ(didYouMean(std::string(100000, 'x'), {"bara"}), "");
}

TEST(Suggestions, ADegreeSignMakesNoDifference) {
  EXPECT_EQ(didYouMean("\u00B0F", {"K", "C", "F"}), "; did you mean F?");
  EXPECT_EQ(didYouMean("F", {"K", "\u00B0C", "\u00B0F"}), "; did you mean \u00B0F?");
  EXPECT_EQ(didYouMean("\u00B0", {"K", "C"}), "");
}

TEST(Suggestions, TheBeginningOfANameFindsIt) {
  EXPECT_EQ(nearest("Pres", {"Pressure", "P", "Power"}), (std::vector<std::string>{"Pressure"}));
}

}  // namespace
}  // namespace calvex
