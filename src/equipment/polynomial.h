/// \file
/// Root of a fifth-degree polynomial.
#pragma once

namespace calvex {

class ZvThermoInt;

/// T2 is where the engine's solver ends that starts at T1 with a + b T + c T^2 + d T^3 + e T^4 + f
/// T^5 = 0, whether it converged or not. No units, no trace.
int SolvePoly5(ZvThermoInt& engine, double* T2, double a, double b, double c, double d, double e,
               double f, double T1);

}  // namespace calvex
