// What the solver says of a status that is not convergence.
#include "steam/solver.h"

#include <gtest/gtest.h>

#include <string>

#include "diagnostics/thermo_exception.h"

namespace calvex {
namespace {

std::string raised(int status) {
  try {
    ZvSolver::raise(status);
  } catch (const ZvThermoException& failure) {
    return failure.what();
  }
}

TEST(SolverStatus, OnlyConvergedUnknownsCountAsSuccess) {
  for (int status = -2; status <= 9; ++status) {
    EXPECT_EQ(ZvSolver::converged(status), status >= 2 && status <= 4) << status;
  }
  EXPECT_FALSE(ZvSolver::converged(ZvSolver::notASolution));
}

TEST(SolverStatus, EveryOtherStatusHasItsMessage) {
  EXPECT_EQ(raised(5), "Maximum number of iterations reached.");
  for (const int status : {-2, -1, 0, 1, 6, 7, 8}) {
    EXPECT_EQ(raised(status),
              "No solution !! (Solver return code = " + std::to_string(status) + ").");
  }
  EXPECT_EQ(raised(9), "Unknown solver return code.");
  EXPECT_EQ(raised(ZvSolver::notASolution), "Solution Error.");
}

}  // namespace
}  // namespace calvex
