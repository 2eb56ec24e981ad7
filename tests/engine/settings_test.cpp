// The settings: what is accepted, what is said of it, and what a reset brings back.
#include <gtest/gtest.h>

#include <limits>

#include "support/checkout.h"
#include "support/engine.h"

namespace calvex::test {
namespace {

class Settings : public testing::Test {
 protected:
  ZvThermoInt engine;
};

TEST_F(Settings, HaveTheirDefaults) {
  EXPECT_EQ(engine.SolverTol(), 1e-9);
  EXPECT_EQ(engine.SolverIter(), 200);
  EXPECT_EQ(engine.TraceLevel(), 0);
  EXPECT_EQ(engine.SatPolish(), 1);
  EXPECT_EQ(engine.FunctionCallTracing(), 1);
  EXPECT_EQ(engine.MaxTraceSize(), 1000);
  EXPECT_EQ(engine.ReturnModelUnits(), 1);
  EXPECT_EQ(engine.ReturnThermoUnits(), 1);
  EXPECT_EQ(engine.ReturnModelTokens(), 1);
  EXPECT_EQ(engine.AppLevel(), 2);
  EXPECT_EQ(engine.AppName(), "ZvCalvex");
  EXPECT_EQ(engine.AppHelpFile(), "");
  EXPECT_EQ(engine.UomHelpContext(), 0);
  EXPECT_EQ(engine.LastError(), "");
  EXPECT_EQ(engine.VersionStr(), test::projectVersion());
  EXPECT_EQ(engine.diagnostics().root().text(), "Root");
  EXPECT_EQ(engine.diagnostics().root().kind(), ZvFunctionCall::Kind::root);
}

TEST_F(Settings, SolverToleranceBoundsAreExclusive) {
  EXPECT_EQ(engine.SetSolverTol(1e-7), 1);
  for (const double rejected :
       {1e-14, 1e-6, 0.0, -1e-9, 1.0, std::numeric_limits<double>::quiet_NaN(),
        std::numeric_limits<double>::infinity()}) {
    EXPECT_EQ(engine.SetSolverTol(rejected), 0) << rejected;
    EXPECT_EQ(engine.LastError(), "Invalid solver tolerance specified.");
    EXPECT_EQ(engine.SolverTol(), 1e-7) << rejected;
  }
  EXPECT_EQ(engine.SetSolverTol(1.1e-14), 1);
  EXPECT_EQ(engine.SolverTol(), 1.1e-14);
  EXPECT_EQ(engine.SetSolverTol(0.99e-6), 1);
  EXPECT_EQ(engine.SolverTol(), 0.99e-6);
}

TEST_F(Settings, SolverIterationsAreFrom51To9998) {
  for (const short accepted : {short{51}, short{9998}, short{300}}) {
    EXPECT_EQ(engine.SetSolverIter(accepted), 1) << accepted;
    EXPECT_EQ(engine.SolverIter(), accepted);
  }
  for (const short rejected : {short{50}, short{9999}, short{0}, short{-1}, short{32767}}) {
    engine.ClearTraceInfo();
    EXPECT_EQ(engine.SetSolverIter(rejected), 0) << rejected;
    EXPECT_EQ(engine.LastError(), "Invalid number of solver iterations specified..");
    EXPECT_EQ(engine.SolverIter(), 300) << rejected;
  }
}

TEST_F(Settings, TraceLevelsAreZeroToTwo) {
  for (const short accepted : {short{0}, short{1}, short{2}}) {
    EXPECT_EQ(engine.SetTraceLevel(accepted), 1);
    EXPECT_EQ(engine.TraceLevel(), accepted);
  }
  for (const short rejected : {short{3}, short{-1}}) {
    engine.ClearTraceInfo();
    EXPECT_EQ(engine.SetTraceLevel(rejected), 0);
    EXPECT_EQ(engine.LastError(), "Invalid reporting level.");
    EXPECT_EQ(engine.TraceLevel(), 2);
  }
}

TEST_F(Settings, TheTraceLevelsNoteIsJudgedByTheNewLevel) {
  engine.SetTraceLevel(2);
  EXPECT_EQ(traceOf(engine), "SetTraceLevel\n  note: Reporting level set to 2.\n");
  engine.ClearTraceInfo();
  engine.SetTraceLevel(1);
  EXPECT_EQ(traceOf(engine), "");
}

TEST_F(Settings, PutsNoteWhatTheyDidAtTheHighestLevel) {
  engine.SetTraceLevel(2);
  engine.ClearTraceInfo();
  engine.SetSolverTol(1e-8);
  engine.SetSolverIter(300);
  engine.SetSatPolish(1);
  engine.SetSatPolish(0);
  engine.SetMaxTraceSize(50);
  EXPECT_EQ(traceOf(engine),
            "SetSolverTol\n  note: Solver tolerance = 1.000000e-08.\n"
            "SetSolverIter\n  note: Solver maximum iterations = 300.\n"
            "SetSatPolish\n  note: Solver sat polishing enabled.\n"
            "SetSatPolish\n  warning: Solver sat polishing disabled.\n"
            "SetMaxDiagSize\n  note: Max function trace list size set to 50.\n");
}

TEST_F(Settings, PutsLeaveNothingBelowTheHighestLevelButThePolishesWarning) {
  engine.SetTraceLevel(1);
  engine.SetSolverTol(1e-8);
  engine.SetSolverIter(300);
  engine.SetSatPolish(1);
  engine.SetMaxTraceSize(50);
  EXPECT_EQ(traceOf(engine), "");
  engine.SetSatPolish(0);
  EXPECT_EQ(traceOf(engine), "SetSatPolish\n  warning: Solver sat polishing disabled.\n");
  engine.SetTraceLevel(0);
  engine.ClearTraceInfo();
  engine.SetSatPolish(0);
  EXPECT_EQ(traceOf(engine), "");
}

TEST_F(Settings, RejectionsAreTracedUnderThePutsName) {
  engine.SetSolverTol(1.0);
  engine.SetSolverIter(1);
  engine.SetTraceLevel(3);
  engine.SetMaxTraceSize(1);
  EXPECT_EQ(traceOf(engine),
            "SetSolverTol\n  error: Invalid solver tolerance specified.\n"
            "  error: The tolerance must be above 1e-14 and below 1e-06, not 1.\n"
            "SetSolverIter\n  error: Invalid number of solver iterations specified..\n"
            "  error: The iterations must be 51 to 9998, not 1.\n"
            "SetTraceLevel\n  error: Invalid reporting level.\n"
            "  error: The level must be 0 (errors), 1 (also warnings) or 2 (also notes), not 3.\n"
            "SetMaxDiagSize\n  error: Illegal function trace list size.\n"
            "  error: The size must be 2 to 32767, not 1.\n");
}

TEST_F(Settings, AnySatPolishIsStored) {
  for (const int flag : {0, 1, 5, -3}) {
    EXPECT_EQ(engine.SetSatPolish(flag), 1);
    EXPECT_EQ(engine.SatPolish(), flag);
  }
}

TEST_F(Settings, FlagsAndTextsAreStoredAsTheyAre) {
  for (const int flag : {0, 7, -1}) {
    EXPECT_EQ(engine.SetReturnModelUnits(flag), 1);
    EXPECT_EQ(engine.SetReturnThermoUnits(flag), 1);
    EXPECT_EQ(engine.SetReturnModelTokens(flag), 1);
    EXPECT_EQ(engine.SetUomHelpContext(flag), 1);
    EXPECT_EQ(engine.SetFunctionCallTracing(flag), 1);
    EXPECT_EQ(engine.ReturnModelUnits(), flag);
    EXPECT_EQ(engine.ReturnThermoUnits(), flag);
    EXPECT_EQ(engine.ReturnModelTokens(), flag);
    EXPECT_EQ(engine.UomHelpContext(), flag);
    EXPECT_EQ(engine.FunctionCallTracing(), flag);
  }
  EXPECT_EQ(engine.SetAppName("My sheet"), 1);
  EXPECT_EQ(engine.AppName(), "My sheet");
  EXPECT_EQ(engine.SetAppHelpFile("help.chm"), 1);
  EXPECT_EQ(engine.AppHelpFile(), "help.chm");
}

TEST_F(Settings, NoFlagChangesAConversion) {
  engine.SetUserUnit("T", "C");
  const double h = valueOf(engine, &ZvThermoInt::HPT, 10.0, 500.0);
  engine.SetReturnThermoUnits(0);
  engine.SetReturnModelUnits(0);
  engine.SetReturnModelTokens(0);
  EXPECT_EQ(valueOf(engine, &ZvThermoInt::HPT, 10.0, 500.0), h);
}

TEST_F(Settings, PutsThatDoNotValidateAreNotTraced) {
  engine.SetTraceLevel(2);
  engine.ClearTraceInfo();
  engine.AddCustomTraceTitle("Cell");
  engine.SetCustomTraceText(0, "A1");
  engine.SetReturnModelUnits(0);
  engine.SetReturnThermoUnits(0);
  engine.SetReturnModelTokens(0);
  engine.SetAppName("x");
  engine.SetAppHelpFile("y");
  engine.SetUomHelpContext(3);
  engine.SetFunctionCallTracing(1);
  std::string text;
  ASSERT_EQ(engine.GetCustomTraceText(0, &text), 1);
  EXPECT_EQ(text, "A1");
  EXPECT_EQ(traceOf(engine), "");
}

TEST_F(Settings, AMaxTraceSizeOfOneIsRejected) {
  for (const short rejected : {short{1}, short{0}, short{-1}}) {
    EXPECT_EQ(engine.SetMaxTraceSize(rejected), 0);
    EXPECT_EQ(engine.LastError(), "Illegal function trace list size.");
    EXPECT_EQ(engine.MaxTraceSize(), 1000);
  }
  EXPECT_EQ(engine.SetMaxTraceSize(2), 1);
  EXPECT_EQ(engine.MaxTraceSize(), 2);
}

TEST_F(Settings, AnAppLevelOutsideZeroToThreeFailsSilently) {
  for (const short rejected : {short{4}, short{-1}}) {
    EXPECT_EQ(engine.SetAppLevel(rejected), 0);
    EXPECT_EQ(engine.AppLevel(), 2);
    EXPECT_EQ(engine.LastError(), "");
    EXPECT_EQ(traceOf(engine), "");
  }
}

TEST_F(Settings, PuttingTheSameAppLevelAgainSucceeds) {
  EXPECT_EQ(engine.SetAppLevel(2), 1);
  EXPECT_EQ(engine.AppLevel(), 2);
  for (const short level : {short{0}, short{3}, short{3}, short{2}}) {
    EXPECT_EQ(engine.SetAppLevel(level), 1);
    EXPECT_EQ(engine.AppLevel(), level);
  }
}

TEST_F(Settings, WithoutAUnitsServerAppLevelOneFailsAndKeepsTheMode) {
  EXPECT_EQ(engine.SetAppLevel(1), 0);
  EXPECT_EQ(engine.AppLevel(), 2);
  ASSERT_EQ(engine.SetAppLevel(3), 1);
  EXPECT_EQ(engine.SetAppLevel(1), 0);
  EXPECT_EQ(engine.AppLevel(), 3);
}

TEST_F(Settings, DialogsThatAreNotBuiltAreCancelled) {
  EXPECT_EQ(engine.ShowTraceDlg(), 2);
  EXPECT_EQ(engine.ShowSelectUomDlg(), 2);
  EXPECT_EQ(engine.ShowOptionsDlg(), 2);
}

TEST_F(Settings, TheEvaluationLimitIsTheOneThatIsSet) {
  // The steam of these states needs more than the least number of evaluations.
  engine.SetSolverIter(9998);
  EXPECT_TRUE(succeeds(engine, &ZvThermoInt::TPS, 0.001, 11.0)) << engine.LastError();
}

// Reset
// -------------------------------------------------------------------------------------------------

class Reset : public Settings {
 protected:
  void changeEverything() {
    engine.SetSolverTol(1e-8);
    engine.SetSolverIter(300);
    engine.SetTraceLevel(2);
    engine.SetSatPolish(0);
    engine.SetMaxTraceSize(5);
    engine.SetReturnModelUnits(0);
    engine.SetReturnThermoUnits(0);
    engine.SetReturnModelTokens(0);
    engine.SetAppName("other");
    engine.SetAppHelpFile("other.chm");
    engine.SetUomHelpContext(9);
    engine.SetUserUnit("T", "C");
    engine.SetUserUnit("P", "bara");
    engine.SetAppLevel(3);
    engine.SetCustomUserUnitIndex(5, "half", 2.0, 0.0);
    engine.AddCustomTraceTitle("Cell");
    engine.SetSolverTol(1.0);
    engine.SetFunctionCallTracing(0);
  }
};

TEST_F(Reset, BringsBackEverySetting) {
  changeEverything();
  engine.Reset();
  EXPECT_EQ(engine.SolverTol(), 1e-9);
  EXPECT_EQ(engine.SolverIter(), 200);
  EXPECT_EQ(engine.TraceLevel(), 0);
  EXPECT_EQ(engine.SatPolish(), 1);
  EXPECT_EQ(engine.FunctionCallTracing(), 1);
  EXPECT_EQ(engine.MaxTraceSize(), 1000);
  EXPECT_EQ(engine.ReturnModelUnits(), 1);
  EXPECT_EQ(engine.ReturnThermoUnits(), 1);
  EXPECT_EQ(engine.ReturnModelTokens(), 1);
  EXPECT_EQ(engine.AppLevel(), 2);
  EXPECT_EQ(engine.AppName(), "ZvCalvex");
  EXPECT_EQ(engine.AppHelpFile(), "");
  EXPECT_EQ(engine.UomHelpContext(), 0);
  EXPECT_EQ(engine.LastError(), "");
  EXPECT_EQ(keptCalls(engine), 0);
  EXPECT_TRUE(engine.diagnostics().root().columnValues().empty());
  std::string text;
  EXPECT_EQ(engine.GetCustomTraceText(0, &text), 0);
}

TEST_F(Reset, KeepsTheUsersUnits) {
  changeEverything();
  engine.Reset();
  std::string unit;
  ASSERT_EQ(engine.GetUserUnit("T", &unit), 1);
  EXPECT_EQ(unit, "C");
  ASSERT_EQ(engine.GetUserUnit("P", &unit), 1);
  EXPECT_EQ(unit, "bara");
  EXPECT_NEAR(valueOf(engine, &ZvThermoInt::HPT, 100.0, 500.0), 3374.0, 0.05);
}

TEST_F(Reset, OfTheSolverMatchesAFreshEngine) {
  // A solver by itself begins with more iterations than the engine gives it.
  engine.Reset();
  ZvThermoInt fresh;
  EXPECT_EQ(fresh.SolverIter(), engine.SolverIter());
  EXPECT_EQ(valueOf(engine, &ZvThermoInt::TPH, 10.0, 3000.0),
            valueOf(fresh, &ZvThermoInt::TPH, 10.0, 3000.0));
}

TEST_F(Reset, HappensWhenTheLastObjectIsReleased) {
  engine.AddObject();
  engine.AddObject();
  EXPECT_EQ(engine.liveObjects(), 2);
  engine.SetSolverTol(1e-8);
  engine.ReleaseObject();
  EXPECT_EQ(engine.SolverTol(), 1e-8);
  engine.ReleaseObject();
  EXPECT_EQ(engine.liveObjects(), 0);
  EXPECT_EQ(engine.SolverTol(), 1e-9);
}

TEST_F(Settings, OfAnotherEngineAreTakenOverWithItsUnits) {
  ZvThermoInt other;
  other.SetAppLevel(3);
  other.SetUserUnit("T", "C");
  other.SetCustomUserUnitIndex(1, "decabar", 1.0, 0.0);
  other.SetSolverTol(1e-8);
  other.SetSolverIter(123);
  other.SetSatPolish(0);
  engine.TakeSettings(other);
  EXPECT_EQ(engine.AppLevel(), 3);
  EXPECT_EQ(engine.SolverTol(), 1e-8);
  EXPECT_EQ(engine.SolverIter(), 123);
  EXPECT_EQ(engine.SatPolish(), 0);
  EXPECT_EQ(engine.unitName(UnitGroup::pressure), "decabar");
  EXPECT_EQ(engine.LastError(), "");
  other.SetAppLevel(2);
  EXPECT_EQ(other.unitName(UnitGroup::temperature), "C");
  engine.TakeSettings(other);
  EXPECT_EQ(engine.unitName(UnitGroup::temperature), "C");
  EXPECT_EQ(valueOf(engine, &ZvThermoInt::TSatP, 1.0), valueOf(other, &ZvThermoInt::TSatP, 1.0));
}

}  // namespace
}  // namespace calvex::test
