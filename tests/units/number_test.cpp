#include "units/number.h"

#include <gtest/gtest.h>

namespace calvex {
namespace {

TEST(Number, IsWrittenWithAPoint) {
  EXPECT_EQ(numberIn("10.5"), 10.5);
  EXPECT_EQ(numberIn(" +1e-3\t"), 1e-3);
  EXPECT_EQ(numberIn("-.5"), -0.5);
  for (const char* text :
       {"", " ", "10,5", "1,000", "1 000", "+-1", "0x10", "1 MPa", "$1", "(1)", "ten"}) {
    EXPECT_FALSE(numberIn(text)) << text;
  }
}

TEST(Number, IsFinite) {
  for (const char* text : {"inf", "-infinity", "nan", "1e999"})
    EXPECT_FALSE(numberIn(text)) << text;
}

}  // namespace
}  // namespace calvex
