// The trace of calls, the last error, custom columns, cell references, external errors and alarms
// as a client sees them.
#include <fmt/format.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>

#include "support/engine.h"

namespace calvex::test {
namespace {

class TraceMembers : public testing::Test {
 protected:
  ZvThermoInt engine;
  double value = untouched;

  void callThatFails(double T = 100.0) { EXPECT_EQ(engine.HPT(&value, 1.0, T), 0); }
  void callThatSucceeds() { EXPECT_EQ(engine.HPT(&value, 10.0, 773.15), 1); }

  std::string customText(int index) {
    std::string text = "untouched";
    EXPECT_EQ(engine.GetCustomTraceText(index, &text), 1);
    return text;
  }
  std::string cellReference() {
    std::string text = "untouched";
    EXPECT_EQ(engine.GetCellRef(&text), 1);
    return text;
  }
};

TEST_F(TraceMembers, ASuccessfulCallLeavesNothing) {
  callThatSucceeds();
  EXPECT_EQ(traceOf(engine), "");
}

TEST_F(TraceMembers, WarningsAreKeptFromLevelOne) {
  EXPECT_EQ(engine.HPT(&value, 1.0, 1300.0), 1);
  EXPECT_EQ(keptCalls(engine), 0);
  engine.SetTraceLevel(1);
  EXPECT_EQ(engine.HPT(&value, 1.0, 1300.0), 1);
  EXPECT_EQ(traceOf(engine),
            "HPT\n  warning: Temperature parameter out of strictly valid range.\n");
}

TEST_F(TraceMembers, NotesOfTheSolverAreKeptAtLevelTwo) {
  engine.SetTraceLevel(2);
  engine.ClearTraceInfo();
  callThatSucceeds();
  ASSERT_EQ(keptCalls(engine), 1);
  const ZvFunctionCall* call = engine.diagnostics().root().firstChild();
  ASSERT_EQ(call->childCount(), 1) << traceOf(engine);
  EXPECT_EQ(call->firstChild()->kind(), ZvFunctionCall::Kind::note);
  const std::string note(call->firstChild()->text());
  int evaluations = 0;
  std::array<double, 3> f{1.0, 1.0, 1.0};
  ASSERT_EQ(std::sscanf(note.c_str(), "Solver : Iter = %d, f() = %le, %le, %le.", &evaluations,
                        &f[0], &f[1], &f[2]),
            4)
      << note;
  std::array<char, 200> written{};
  std::snprintf(written.data(), written.size(), "Solver : Iter = %d, f() = %10.2e, %10.2e, %10.2e.",
                evaluations, f[0], f[1], f[2]);
  EXPECT_EQ(note, written.data());
  EXPECT_GT(evaluations, 0);
  EXPECT_LT(std::abs(f[0]), 1e-6);
  // Of two equations the third residual does not exist.
  EXPECT_EQ(f[2], 0.0);
}

TEST_F(TraceMembers, OfThreeFailingCallsATraceOfTwoKeepsTheLast) {
  engine.SetMaxTraceSize(2);
  callThatFails();
  EXPECT_EQ(engine.TPH(&value, 1.0, -1.0), 0);
  EXPECT_EQ(engine.APT(&value, 1.0, 100.0), 0);
  EXPECT_EQ(keptCalls(engine), 2);
  EXPECT_TRUE(traceOf(engine).starts_with("TPH\n")) << traceOf(engine);
}

constexpr const char* negativeEnthalpy =
    "TPH\n  error: Enthalpy parameter out of range.\n  error: Enthalpy -1 kJ/kg is below 0 kJ/kg, "
    "the least that is accepted.\n";

TEST_F(TraceMembers, AFullTraceDropsItsOldestWhenACallEntersThatThenLeavesNothing) {
  engine.SetMaxTraceSize(2);
  callThatFails();
  EXPECT_EQ(engine.TPH(&value, 1.0, -1.0), 0);
  callThatSucceeds();
  EXPECT_EQ(traceOf(engine), negativeEnthalpy);
}

TEST_F(TraceMembers, AThousandCallsAreKept) {
  for (int i = 0; i < 1005; ++i) callThatFails();
  EXPECT_EQ(keptCalls(engine), 1000);
}

TEST_F(TraceMembers, ASmallerTraceSizePrunesAtOnceAndCountsThePutItself) {
  for (int i = 0; i < 5; ++i) callThatFails();
  EXPECT_EQ(engine.SetMaxTraceSize(2), 1);
  EXPECT_EQ(keptCalls(engine), 1);
}

TEST_F(TraceMembers, WithTracingOffNothingChanges) {
  callThatFails();
  const std::string before = traceOf(engine);
  const std::string error = engine.LastError();
  engine.SetFunctionCallTracing(0);
  EXPECT_EQ(engine.TPH(&value, 1.0, -1.0), 0);
  EXPECT_EQ(value, untouched);
  EXPECT_EQ(engine.SetSolverTol(1.0), 0);
  EXPECT_EQ(engine.SetUserUnit("temp", "K"), 0);
  EXPECT_EQ(traceOf(engine), before);
  EXPECT_EQ(engine.LastError(), error);
  callThatSucceeds();
}

TEST_F(TraceMembers, TracingBackOnTracesAgain) {
  engine.SetFunctionCallTracing(0);
  callThatFails();
  engine.SetFunctionCallTracing(1);
  callThatFails();
  EXPECT_EQ(keptCalls(engine), 1);
  EXPECT_FALSE(engine.diagnostics().inCall());
}

TEST_F(TraceMembers, NestedCallsShowUnderTheirCallerWhenAMessageArises) {
  engine.SetTraceLevel(2);
  engine.ClearTraceInfo();
  ASSERT_EQ(engine.HPU(&value, 1.0, 1500.0), 1);
  ASSERT_EQ(keptCalls(engine), 1);
  const ZvFunctionCall* call = engine.diagnostics().root().firstChild();
  EXPECT_EQ(call->text(), "HPU");
  const ZvFunctionCall* nested = childOf(*call, "HSatPQ");
  ASSERT_NE(nested, nullptr) << traceOf(engine);
  EXPECT_EQ(nested->kind(), ZvFunctionCall::Kind::call);
}

TEST_F(TraceMembers, SaturationRoutinesHaveTheirOwnEntries) {
  engine.SetTraceLevel(2);
  for (const auto& [member, routine, first, second] :
       std::vector<std::tuple<PairOperation, const char*, double, double>>{
           {&ZvThermoInt::TPH, "HSat_PH", 1.0, 3000.0},
           {&ZvThermoInt::TPS, "SSat_PS", 1.0, 7.0},
           {&ZvThermoInt::TPU, "USat_PU", 1.0, 2800.0},
           {&ZvThermoInt::TPR, "RSat_PR", 1.0, 3.0},
           {&ZvThermoInt::PTH, "HSat_TH", 500.0, 2900.0},
           {&ZvThermoInt::PTS, "SSat_TS", 500.0, 7.0},
           {&ZvThermoInt::PTU, "USat_TU", 500.0, 2700.0},
           {&ZvThermoInt::PTR, "RSat_TR", 500.0, 3.0}}) {
    engine.ClearTraceInfo();
    ASSERT_EQ((engine.*member)(&value, first, second), 1) << engine.LastError();
    const ZvFunctionCall* call = engine.diagnostics().root().firstChild();
    ASSERT_NE(call, nullptr);
    EXPECT_NE(childOf(*call, routine), nullptr) << routine << "\n" << traceOf(engine);
  }
}

// The calls of a record, nested in parentheses: "HSatTQ(HSatTQ(PSatT))".
std::string callsOf(const ZvFunctionCall& call) {
  std::string nested;
  for (const ZvFunctionCall* child = call.firstChild(); child != nullptr;
       child = child->nextSibling()) {
    if (child->kind() != ZvFunctionCall::Kind::call) continue;
    nested += (nested.empty() ? "" : " ") + callsOf(*child);
  }
  return std::string(call.text()) + (nested.empty() ? "" : "(" + nested + ")");
}

TEST_F(TraceMembers, InnerNodesCarryTheNamesOfTheirRoutines) {
  engine.SetTraceLevel(2);
  double a = 0.0, b = 0.0, c = 0.0;
  const auto expectCalls = [&](const std::string& calls, int success) {
    EXPECT_EQ(success, 1) << engine.LastError();
    EXPECT_EQ(keptCalls(engine), 1);
    EXPECT_EQ(callsOf(*engine.diagnostics().root().firstChild()), calls);
    engine.ClearTraceInfo();
  };
  engine.ClearTraceInfo();
  for (const PairMember& member : saturationMembers()) {
    const bool fromT = member.name[4] == 'T';
    // The V members mix densities.
    std::string routine(member.name);
    if (member.result() == 'V') routine[0] = 'R';
    expectCalls(fmt::format("{}({}({}))", member.name, routine, fromT ? "PSatT" : "TSatP"),
                (engine.*member.call)(&value, fromT ? 450.0 : 1.0, 0.5));
  }
  expectCalls("PSatT(PSatT)", engine.PSatT(&value, 450.0));
  expectCalls("TSatP(TSatP)", engine.TSatP(&value, 1.0));
  expectCalls("HVLTSat_PQ(TSatP)", engine.HVLTSat_PQ(&value, &a, &b, &c, 1.0, 0.5));
  expectCalls("HPT", engine.HPT(&value, 1.0, 800.0));
  expectCalls("TPH", engine.TPH(&value, 30.0, 3000.0));
  expectCalls("QTS_PH(HSat_PH(TSatP))", engine.QTS_PH(&value, &a, &b, 1.0, 1500.0));
  for (const auto& [member, routine, first, second] :
       std::vector<std::tuple<PairOperation, std::string, double, double>>{
           {&ZvThermoInt::QPH, "HSat_PH(TSatP)", 1.0, 1500.0},
           {&ZvThermoInt::QPS, "SSat_PS(TSatP)", 1.0, 4.0},
           {&ZvThermoInt::QPU, "USat_PU(TSatP)", 1.0, 1500.0},
           {&ZvThermoInt::QPR, "RSat_PR(TSatP)", 1.0, 50.0},
           {&ZvThermoInt::QPV, "RSat_PR(TSatP)", 1.0, 0.02},
           {&ZvThermoInt::QTH, "HSat_TH(PSatT)", 450.0, 1500.0},
           {&ZvThermoInt::QTS, "SSat_TS(PSatT)", 450.0, 4.0},
           {&ZvThermoInt::QTU, "USat_TU(PSatT)", 450.0, 1500.0},
           {&ZvThermoInt::QTR, "RSat_TR(PSatT)", 450.0, 50.0},
           {&ZvThermoInt::QTV, "RSat_TR(PSatT)", 450.0, 0.02}}) {
    const int success = (engine.*member)(&value, first, second);
    const ZvFunctionCall* call = engine.diagnostics().root().firstChild();
    ASSERT_NE(call, nullptr);
    expectCalls(std::string(call->text()) + "(" + routine + ")", success);
  }
  expectCalls("HPU(USat_PU(TSatP) HSatPQ(HSatPQ(TSatP)))", engine.HPU(&value, 1.0, 1500.0));
  expectCalls("PTS(SSat_TS(PSatT) PSatT(PSatT))", engine.PTS(&value, 450.0, 4.0));
}

TEST_F(TraceMembers, ClearingEmptiesTraceLastErrorAndCustomTexts) {
  engine.AddCustomTraceTitle("Cell");
  callThatFails();
  engine.SetCustomTraceText(0, "A1");
  EXPECT_EQ(engine.ClearTraceInfo(), 1);
  EXPECT_EQ(traceOf(engine), "");
  EXPECT_EQ(engine.LastError(), "");
  EXPECT_EQ(customText(0), "");
  EXPECT_EQ(engine.diagnostics().root().columnValues(), std::vector<std::string>{"Cell"});
}

// The last error
// ------------------------------------------------------------------------------------------

TEST_F(TraceMembers, ASuccessfulCallDoesNotClearTheLastError) {
  callThatFails();
  const std::string error = engine.LastError();
  EXPECT_NE(error, "");
  callThatSucceeds();
  EXPECT_EQ(engine.LastError(), error);
}

TEST_F(TraceMembers, WarningsDoNotTouchTheLastError) {
  engine.SetTraceLevel(1);
  EXPECT_EQ(engine.HPT(&value, 1.0, 1300.0), 1);
  EXPECT_EQ(engine.LastError(), "");
}

// Custom columns
// --------------------------------------------------------------------------------------------

TEST_F(TraceMembers, CustomTextsNeedATitle) {
  std::string text = "untouched";
  EXPECT_EQ(engine.SetCustomTraceText(0, "A1"), 0);
  EXPECT_EQ(engine.GetCustomTraceText(0, &text), 0);
  EXPECT_EQ(engine.AddCustomTraceTitle("Cell"), 1);
  EXPECT_EQ(engine.SetCustomTraceText(-1, "A1"), 0);
  EXPECT_EQ(engine.SetCustomTraceText(1, "A1"), 0);
  EXPECT_EQ(engine.GetCustomTraceText(1, &text), 0);
  EXPECT_EQ(engine.GetCustomTraceText(-1, &text), 0);
  EXPECT_EQ(text, "untouched");
  EXPECT_EQ(engine.SetCustomTraceText(0, "A1"), 1);
  EXPECT_EQ(customText(0), "A1");
}

TEST_F(TraceMembers, CustomTextsGoToTheNextOutermostCallAndAreThenEmptied) {
  engine.AddCustomTraceTitle("Sheet");
  engine.AddCustomTraceTitle("Cell");
  engine.SetCustomTraceText(0, "One");
  engine.SetCustomTraceText(1, "A1");
  callThatFails();
  const ZvFunctionCall* call = engine.diagnostics().root().firstChild();
  ASSERT_NE(call, nullptr);
  EXPECT_EQ(call->columnValues(), (std::vector<std::string>{"One", "A1"}));
  EXPECT_TRUE(call->firstChild()->columnValues().empty());
  EXPECT_EQ(customText(0), "");
  EXPECT_EQ(customText(1), "");
}

TEST_F(TraceMembers, ASuccessfulCallEmptiesCustomTexts) {
  engine.AddCustomTraceTitle("Cell");
  engine.SetCustomTraceText(0, "A1");
  callThatSucceeds();
  EXPECT_EQ(customText(0), "");
}

TEST_F(TraceMembers, TracedPutsEmptyCustomTexts) {
  engine.AddCustomTraceTitle("Cell");
  const auto emptiedBy = [&](auto put) {
    engine.SetCustomTraceText(0, "A1");
    put();
    return customText(0).empty();
  };
  std::string text;
  EXPECT_TRUE(emptiedBy([&] { engine.SetSolverTol(1e-8); }));
  EXPECT_TRUE(emptiedBy([&] { engine.SetSolverIter(300); }));
  EXPECT_TRUE(emptiedBy([&] { engine.SetTraceLevel(0); }));
  EXPECT_TRUE(emptiedBy([&] { engine.SetSatPolish(1); }));
  EXPECT_TRUE(emptiedBy([&] { engine.SetMaxTraceSize(100); }));
  EXPECT_TRUE(emptiedBy([&] { engine.SetUserUnit("T", "K"); }));
  EXPECT_TRUE(emptiedBy([&] { engine.GetUserUnit("T", &text); }));
  EXPECT_TRUE(emptiedBy([&] { engine.Convert("T", "K", "C", 1.0, &value); }));
  EXPECT_TRUE(emptiedBy([&] { engine.SetUserUnitIndex(0, "K"); }));
  EXPECT_TRUE(emptiedBy([&] { engine.GetUserUnitIndex(0, &text); }));
  EXPECT_TRUE(emptiedBy([&] { engine.SetCustomUserUnitIndex(0, "K", 1.0, 0.0); }));
  // Also when they refuse, with or without a word.
  EXPECT_TRUE(emptiedBy([&] { engine.SetSolverTol(1.0); }));
  EXPECT_TRUE(emptiedBy([&] { engine.SetCustomUserUnitIndex(27, "K", 1.0, 0.0); }));
}

TEST_F(TraceMembers, WhatIsNotTracedKeepsCustomTextsAndTheOldestCall) {
  engine.AddCustomTraceTitle("Cell");
  engine.SetMaxTraceSize(2);
  callThatFails();
  callThatFails();
  engine.SetCustomTraceText(0, "A1");
  ResultArray alarms;
  EXPECT_EQ(engine.SetAppLevel(2), 1);
  EXPECT_EQ(engine.SetAppLevel(0), 1);
  EXPECT_EQ(engine.SetAppLevel(3), 1);
  EXPECT_EQ(engine.SetAppLevel(1), 0);
  EXPECT_EQ(engine.SetAppLevel(4), 0);
  EXPECT_EQ(engine.SetAppLevel(2), 1);
  EXPECT_EQ(engine.SetReturnModelUnits(1), 1);
  EXPECT_EQ(engine.SetReturnThermoUnits(1), 1);
  EXPECT_EQ(engine.SetReturnModelTokens(1), 1);
  EXPECT_EQ(engine.SetFunctionCallTracing(1), 1);
  EXPECT_EQ(engine.SetAppName("x"), 1);
  EXPECT_EQ(engine.SetAppHelpFile("y"), 1);
  EXPECT_EQ(engine.SetUomHelpContext(1), 1);
  EXPECT_EQ(engine.GetAlarms(&alarms), 1);
  EXPECT_EQ(engine.ShowTraceDlg(), 2);
  EXPECT_EQ(engine.ShowSelectUomDlg(), 2);
  EXPECT_EQ(engine.CritT(), 647.126);
  EXPECT_EQ(customText(0), "A1");
  EXPECT_EQ(keptCalls(engine), 2);
}

TEST_F(TraceMembers, SwitchingTracingOffInsideACallLeavesNoDeadNodeToLaterCalls) {
  engine.call("Outer", [&] {
    callThatFails();
    EXPECT_EQ(engine.SetFunctionCallTracing(0), 1);
    return true;
  });
  EXPECT_EQ(engine.SetFunctionCallTracing(1), 1);
  EXPECT_EQ(engine.TPH(&value, 1.0, -1.0), 0);
  EXPECT_EQ(traceOf(engine),
            std::string("Outer\n  HPT\n    error: Temperature parameter out of range (Valid range "
                        "260.00 to 2500.00 K).\n") +
                negativeEnthalpy);
  EXPECT_EQ(engine.AddExternalError("Sheet", "It broke."), 1);
}

TEST_F(TraceMembers, CustomTextsStayWhileTracingIsOff) {
  engine.AddCustomTraceTitle("Cell");
  engine.SetCustomTraceText(0, "A1");
  engine.SetFunctionCallTracing(0);
  callThatSucceeds();
  engine.SetSolverTol(1e-8);
  EXPECT_EQ(customText(0), "A1");
}

// External errors
// ---------------------------------------------------------------------------------------------

TEST_F(TraceMembers, ExternalErrorsAreRecordedEvenWithTracingOff) {
  engine.SetFunctionCallTracing(0);
  EXPECT_EQ(engine.AddExternalError("Sheet", "It broke."), 1);
  EXPECT_EQ(engine.LastError(), "It broke.");
  EXPECT_EQ(traceOf(engine), "external: Sheet\n  external: It broke.\n");
}

TEST_F(TraceMembers, ExternalErrorsTakeTheCustomTexts) {
  engine.AddCustomTraceTitle("Cell");
  engine.SetCustomTraceText(0, "A1");
  EXPECT_EQ(engine.AddExternalError("Sheet", "It broke."), 1);
  const ZvFunctionCall* node = engine.diagnostics().root().firstChild();
  ASSERT_NE(node, nullptr);
  EXPECT_EQ(node->columnValues(), std::vector<std::string>{"A1"});
  EXPECT_EQ(customText(0), "");
}

TEST_F(TraceMembers, ExternalErrorsFailInsideACall) {
  int answer = -1;
  engine.call("Outer", [&] {
    answer = engine.AddExternalError("Sheet", "It broke.");
    return true;
  });
  EXPECT_EQ(answer, 0);
  EXPECT_EQ(engine.LastError(), "");
  EXPECT_EQ(traceOf(engine), "");
}

TEST_F(TraceMembers, ExternalErrorsCountTowardsTheTraceSize) {
  engine.SetMaxTraceSize(2);
  for (int i = 0; i < 3; ++i) engine.AddExternalError(fmt::format("E{}", i), "text");
  EXPECT_EQ(keptCalls(engine), 2);
  EXPECT_TRUE(traceOf(engine).starts_with("external: E1\n")) << traceOf(engine);
}

TEST_F(TraceMembers, ExternalErrorTextsAreOwnedByTheTrace) {
  std::string name(100, 'n');
  std::string text(100, 't');
  engine.AddExternalError(name, text);
  name.assign(100, '-');
  text.assign(100, '-');
  const ZvFunctionCall* node = engine.diagnostics().root().firstChild();
  ASSERT_NE(node, nullptr);
  EXPECT_EQ(node->text(), std::string(100, 'n'));
  EXPECT_EQ(node->firstChild()->text(), std::string(100, 't'));
}

// Cell references
// -----------------------------------------------------------------------------------------------

TEST_F(TraceMembers, CellReferencesAreWrittenAsTheSpreadsheetDoes) {
  ASSERT_EQ(engine.SetupExcelTracing(), 1);
  EXPECT_EQ(engine.diagnostics().root().columnValues(),
            (std::vector<std::string>{"Book", "Sheet", "Cell"}));
  ASSERT_EQ(engine.SetCellRef("Book1.xls", "Sheet1", "A1"), 1);
  EXPECT_EQ(cellReference(), "'[Book1.xls]Sheet1'!A1");
  callThatSucceeds();
  EXPECT_EQ(cellReference(), "");
}

TEST_F(TraceMembers, CellReferencesWithAnEmptyPartAreEmptyAndSucceed) {
  engine.SetupExcelTracing();
  EXPECT_EQ(cellReference(), "");
  for (const auto& [book, sheet, cell] : std::vector<std::array<const char*, 3>>{
           {"", "Sheet1", "A1"}, {"Book1", "", "A1"}, {"Book1", "Sheet1", ""}}) {
    ASSERT_EQ(engine.SetCellRef(book, sheet, cell), 1);
    EXPECT_EQ(cellReference(), "");
  }
}

TEST_F(TraceMembers, CellReferencesNeedExactlyThreeColumns) {
  std::string text = "untouched";
  EXPECT_EQ(engine.SetCellRef("b", "s", "c"), 0);
  EXPECT_EQ(engine.GetCellRef(&text), 0);
  engine.SetupExcelTracing();
  engine.AddCustomTraceTitle("Fourth");
  EXPECT_EQ(engine.SetCellRef("b", "s", "c"), 0);
  EXPECT_EQ(engine.GetCellRef(&text), 0);
  EXPECT_EQ(text, "untouched");
}

TEST_F(TraceMembers, SetupReplacesOtherColumns) {
  engine.AddCustomTraceTitle("Mine");
  engine.SetCustomTraceText(0, "text");
  engine.SetupExcelTracing();
  EXPECT_EQ(engine.diagnostics().root().columnValues().size(), 3U);
  EXPECT_EQ(customText(0), "");
  EXPECT_EQ(engine.SetCustomTraceText(3, "x"), 0);
}

TEST_F(TraceMembers, FailingCallsCarryTheirCell) {
  engine.SetupExcelTracing();
  engine.SetCellRef("Book1.xls", "Sheet1", "B7");
  callThatFails();
  EXPECT_EQ(engine.diagnostics().root().firstChild()->columnValues(),
            (std::vector<std::string>{"Book1.xls", "Sheet1", "B7"}));
  callThatFails();
  EXPECT_EQ(engine.diagnostics().root().firstChild()->nextSibling()->columnValues(),
            (std::vector<std::string>{"", "", ""}));
}

// Alarms
// -----------------------------------------------------------------------------------------------------------

TEST_F(TraceMembers, AlarmsAreThreeFixedRows) {
  const ResultArray expected{{std::string("Alarm Name0"), std::string("Alarm Message")},
                             {std::string("Alarm Name1"), std::string("Alarm Message")},
                             {std::string("Alarm Name2"), std::string("Alarm Message")}};
  ResultArray alarms;
  EXPECT_EQ(engine.GetAlarms(&alarms), 1);
  EXPECT_EQ(alarms, expected);
  callThatFails();
  alarms.assign(9, {1.0});
  EXPECT_EQ(engine.GetAlarms(&alarms), 1);
  EXPECT_EQ(alarms, expected);
}

// Failures travel as messages
// ----------------------------------------------------------------------------------------

TEST_F(TraceMembers, ASolverFailureIsPostedOnceAndThenItsCause) {
  engine.TPH(&value, 0.0, 3000.0);
  EXPECT_EQ(value, untouched);
  EXPECT_EQ(traceOf(engine),
            "TPH\n  error: Solution Error.\n  error: Pressure must be above 0 MPa.\n");
  EXPECT_EQ(engine.LastError(), "Solution Error.");
}

TEST_F(TraceMembers, AFailedCallKeepsTheStoredState) {
  callThatSucceeds();
  const SteamState before = engine.steam().state();
  EXPECT_NEAR(before.temperature, 773.15, 1e-6);
  EXPECT_EQ(engine.HPT(&value, 0.0, 500.0), 0);
  EXPECT_EQ(engine.HPT(&value, correlatedPSat(450.0), 450.0), 0);
  // No steam is so hot: the solver runs, to no state.
  engine.SetTraceLevel(2);
  for (const auto& [member, first, second] :
       std::vector<std::tuple<PairOperation, double, double>>{{&ZvThermoInt::TPH, 30.0, 9000.0},
                                                              {&ZvThermoInt::TPS, 30.0, 16.0},
                                                              {&ZvThermoInt::TPU, 30.0, 9000.0},
                                                              {&ZvThermoInt::PTS, 700.0, 0.5}}) {
    EXPECT_EQ(errorOf(engine, member, first, second), "Solution Error.");
    EXPECT_TRUE(contains(traceOf(engine), "note: Solver : ")) << traceOf(engine);
  }
  EXPECT_EQ(engine.steam().state().temperature, before.temperature);
  EXPECT_EQ(engine.steam().state().density, before.density);
  EXPECT_EQ(engine.steam().state().quality, before.quality);
}

// Evaluations of a call's solves, by their notes.
int evaluationsOf(const ZvFunctionCall& call) {
  int sum = 0;
  for (const ZvFunctionCall* child = call.firstChild(); child != nullptr;
       child = child->nextSibling()) {
    int evaluations = 0;
    if (child->kind() == ZvFunctionCall::Kind::note) {
      std::sscanf(std::string(child->text()).c_str(), "Solver : Iter = %d", &evaluations);
    }
    sum += evaluations + evaluationsOf(*child);
  }
  return sum;
}

TEST_F(TraceMembers, ToleranceAndIterationsReachTheSolver) {
  engine.SetTraceLevel(2);
  const auto evaluations = [&](double h) {
    engine.ClearTraceInfo();
    engine.TPH(&value, 30.0, h);
    return evaluationsOf(engine.diagnostics().root());
  };
  std::array<int, 3> all{};
  const std::array<double, 3> tolerances{0.99e-6, 1e-9, 1.1e-14};
  for (std::size_t i = 0; i < tolerances.size(); ++i) {
    ASSERT_EQ(engine.SetSolverTol(tolerances.at(i)), 1);
    for (double h = 200.0; h < 4000.0; h += 100.0) all.at(i) += evaluations(h);
  }
  EXPECT_GT(all[0], 0);
  EXPECT_LT(all[0], all[1]);
  EXPECT_LT(all[1], all[2]);
}

}  // namespace
}  // namespace calvex::test
