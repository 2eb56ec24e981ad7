/// \file
/// The engine's messages: one list of number and text.
#pragma once

#include <string_view>

namespace calvex {

// CALVEX_VERSION is the project's, for the one source that holds the texts.
// X(number, name, text); the texts are printf formats, kept letter by letter (9 ends in two full
// stops, 5 lacks its conversion letter).
#define CALVEX_MESSAGES(X)                                                         \
  X(1, version, CALVEX_VERSION)                                                    \
  X(3, typeMismatch, "Type mismatch in %s parameter.")                             \
  X(4, arrayDimensionMismatch, "Array dimension mismatch in %s parameter.")        \
  X(5, arraySizeMismatch, "Array size mismatch in % parameter.")                   \
  X(6, invalidProblem, "Invalid problem specification in varSpec parameter.")      \
  X(7, invalidReportingLevel, "Invalid reporting level.")                          \
  X(8, invalidSolverTolerance, "Invalid solver tolerance specified.")              \
  X(9, invalidSolverIterations, "Invalid number of solver iterations specified..") \
  X(100, errorFrame, "%s")                                                         \
  X(101, outOfRangeBounds, "%s parameter out of range (Valid range %s to %s).")    \
  X(102, outOfRange, "%s parameter out of range.")                                 \
  X(103, maximumIterations, "Maximum number of iterations reached.")               \
  X(104, solutionError, "Solution Error.")                                         \
  X(105, noSolution, "No solution !! (Solver return code = %d).")                  \
  X(106, twoPhase, "Two phase conditions - Underspecified problem.")               \
  X(107, unknownSolverCode, "Unknown solver return code.")                         \
  X(108, outOfRangeUnit, "%s parameter out of range (Valid range %s to %s %s).")   \
  X(200, warningFrame, "%s")                                                       \
  X(201, outOfStrictRange, "%s parameter out of strictly valid range.")            \
  X(300, noteFrame, "%s")                                                          \
  X(301, solverNote, "Solver : Iter = %d, f() = %10.2e, %10.2e, %10.2e.")

/// The messages by name; the values are their numbers.
enum class Message : int {
#define X(number, name, text) name = number,
  CALVEX_MESSAGES(X)
#undef X
};

/// The text of a message; empty for a number that has none.
[[nodiscard]] std::string_view messageText(int number) noexcept;
[[nodiscard]] inline std::string_view messageText(Message message) noexcept {
  return messageText(static_cast<int>(message));
}

/// The number of the error (100 to 199) whose text this is, with whatever its format was filled
/// with; 100, the error of any text, when it is none of the others.
[[nodiscard]] short messageNumber(std::string_view errorText) noexcept;

}  // namespace calvex
