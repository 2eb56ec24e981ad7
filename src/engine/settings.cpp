// The settings. A setter that checks its value is traced; a rejected value changes nothing.
#include "diagnostics/formatting.h"
#include "engine/thermo_engine.h"

namespace calvex {

void ZvThermoInt::TakeSettings(const ZvThermoInt& other) {
  units_ = other.units_;
  steam_.solver().setTolerance(other.SolverTol());
  steam_.solver().setIterations(other.SolverIter());
  steam_.setSatPolish(other.SatPolish());
}

int ZvThermoInt::SetSolverTol(double newVal) {
  return call("SetSolverTol", [&] {
    if (!steam_.solver().setTolerance(newVal)) {
      return fail(
          Message::invalidSolverTolerance,
          fmt::sprintf("The tolerance must be above 1e-14 and below 1e-06, not %g.", newVal));
    }
    diagnostics_.postNote(fmt::sprintf("Solver tolerance = %e.", newVal));
    return true;
  });
}

int ZvThermoInt::SetSolverIter(short newVal) {
  return call("SetSolverIter", [&] {
    if (!steam_.solver().setIterations(newVal)) {
      return fail(Message::invalidSolverIterations,
                  fmt::sprintf("The iterations must be 51 to 9998, not %d.", newVal));
    }
    diagnostics_.postNote(fmt::sprintf("Solver maximum iterations = %d.", newVal));
    return true;
  });
}

int ZvThermoInt::SetTraceLevel(short newVal) {
  return call("SetTraceLevel", [&] {
    if (newVal < 0 || newVal >= 3) {
      return fail(
          Message::invalidReportingLevel,
          fmt::sprintf("The level must be 0 (errors), 1 (also warnings) or 2 (also notes), not %d.",
                       newVal));
    }
    diagnostics_.setLevel(newVal);
    diagnostics_.postNote(fmt::sprintf("Reporting level set to %d.", newVal));
    return true;
  });
}

int ZvThermoInt::SetSatPolish(int newVal) {
  return call("SetSatPolish", [&] {
    steam_.setSatPolish(newVal);
    if (newVal != 0) {
      diagnostics_.postNote("Solver sat polishing enabled.");
    } else {
      diagnostics_.postWarning("Solver sat polishing disabled.");
    }
    return true;
  });
}

int ZvThermoInt::SetFunctionCallTracing(int newVal) {
  diagnostics_.setTracing(newVal);
  return 1;
}

int ZvThermoInt::SetMaxTraceSize(short newVal) {
  return call("SetMaxDiagSize", [&] {
    if (newVal < 2) {
      return fail("Illegal function trace list size.",
                  fmt::sprintf("The size must be 2 to 32767, not %d.", newVal));
    }
    diagnostics_.setMaxTraceSize(newVal);
    diagnostics_.postNote(fmt::sprintf("Max function trace list size set to %d.", newVal));
    return true;
  });
}

int ZvThermoInt::SetReturnModelUnits(int newVal) {
  returnModelUnits_ = newVal;
  return 1;
}

int ZvThermoInt::SetReturnThermoUnits(int newVal) {
  returnThermoUnits_ = newVal;
  return 1;
}

int ZvThermoInt::SetReturnModelTokens(int newVal) {
  returnModelTokens_ = newVal;
  return 1;
}

int ZvThermoInt::SetAppLevel(short newVal) { return units_.setMode(newVal) ? 1 : 0; }

int ZvThermoInt::SetAppName(std::string_view newVal) {
  appName_ = newVal;
  return 1;
}

int ZvThermoInt::SetAppHelpFile(std::string_view newVal) {
  appHelpFile_ = newVal;
  return 1;
}

int ZvThermoInt::SetUomHelpContext(int newVal) {
  uomHelpContext_ = newVal;
  return 1;
}

}  // namespace calvex
