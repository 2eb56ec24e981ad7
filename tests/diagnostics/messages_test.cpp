#include "diagnostics/messages.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "support/checkout.h"

namespace calvex {
namespace {

TEST(Messages, TextsAreLetterByLetter) {
  const std::map<int, std::string> texts = {
      {1, test::projectVersion()},
      {3, "Type mismatch in %s parameter."},
      {4, "Array dimension mismatch in %s parameter."},
      {5, "Array size mismatch in % parameter."},
      {6, "Invalid problem specification in varSpec parameter."},
      {7, "Invalid reporting level."},
      {8, "Invalid solver tolerance specified."},
      {9, "Invalid number of solver iterations specified.."},
      {100, "%s"},
      {101, "%s parameter out of range (Valid range %s to %s)."},
      {102, "%s parameter out of range."},
      {103, "Maximum number of iterations reached."},
      {104, "Solution Error."},
      {105, "No solution !! (Solver return code = %d)."},
      {106, "Two phase conditions - Underspecified problem."},
      {107, "Unknown solver return code."},
      {108, "%s parameter out of range (Valid range %s to %s %s)."},
      {200, "%s"},
      {201, "%s parameter out of strictly valid range."},
      {300, "%s"},
      {301, "Solver : Iter = %d, f() = %10.2e, %10.2e, %10.2e."},
  };
  for (int number = -1; number <= 400; ++number) {
    const auto found = texts.find(number);
    EXPECT_EQ(messageText(number), found == texts.end() ? "" : found->second) << number;
  }
}

TEST(Messages, NamesCarryTheirNumbers) {
  EXPECT_EQ(messageText(Message::twoPhase), messageText(106));
  EXPECT_EQ(messageText(Message::invalidSolverIterations), messageText(9));
  EXPECT_EQ(static_cast<int>(Message::outOfStrictRange), 201);
}

TEST(Messages, ANumberIsFoundByItsText) {
  EXPECT_EQ(messageNumber("Temperature parameter out of range (Valid range -13.15 to 2226.85 C)."),
            108);
  EXPECT_EQ(messageNumber("Quality parameter out of range (Valid range 0.00 to 1.00)."), 101);
  EXPECT_EQ(messageNumber("Enthalpy parameter out of range."), 102);
  EXPECT_EQ(messageNumber("Maximum number of iterations reached."), 103);
  EXPECT_EQ(messageNumber("Solution Error."), 104);
  EXPECT_EQ(messageNumber("No solution !! (Solver return code = -1)."), 105);
  EXPECT_EQ(messageNumber("Two phase conditions - Underspecified problem."), 106);
  EXPECT_EQ(messageNumber("Unknown solver return code."), 107);
  for (const char* other : {"", "Solution Error", "Solution Error..", "A text of a model",
                            " parameter out of range (Valid range", "%s"}) {
    EXPECT_EQ(messageNumber(other), 100) << other;
  }
}

}  // namespace
}  // namespace calvex
