// What the solver says of a status that is not convergence.
#include "steam/solver.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "diagnostics/diagnostics.h"
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

// Residuals that the solve does not have are written as 0, whatever lies behind those it has.
TEST(SolverNote, HasTheResidualsOfTheSolveInTheirOrder) {
  constexpr std::array<double, 3> f{1.25e-9, -2.5e-8, 5e-7};
  const auto note = [&](int m) {
    Diagnostics diagnostics;
    diagnostics.setLevel(2);
    const ZvFuncTrace call(diagnostics, "TPH");
    ZvSolver::note(diagnostics, 17, m, f.data());
    return std::string(diagnostics.root().firstChild()->firstChild()->text());
  };
  EXPECT_EQ(note(1), "Solver : Iter = 17, f() =   1.25e-09,   0.00e+00,   0.00e+00.");
  EXPECT_EQ(note(2), "Solver : Iter = 17, f() =   1.25e-09,  -2.50e-08,   0.00e+00.");
  EXPECT_EQ(note(3), "Solver : Iter = 17, f() =   1.25e-09,  -2.50e-08,   5.00e-07.");
}

}  // namespace
}  // namespace calvex
