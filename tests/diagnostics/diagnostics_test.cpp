#include "diagnostics/diagnostics.h"

#include <gtest/gtest.h>

#include <charconv>
#include <ctime>
#include <string>
#include <vector>

#include "diagnostics/outline.h"

namespace calvex {
namespace {

using Kind = ZvFunctionCall::Kind;
using Values = std::vector<std::string>;

void quietCall(Diagnostics& diagnostics) { const ZvFuncTrace trace(diagnostics, "quiet"); }

void failingCall(Diagnostics& diagnostics, std::string_view text) {
  const ZvFuncTrace trace(diagnostics, "failing");
  diagnostics.postError(text);
}

std::string columnText(const Diagnostics& diagnostics, int index) {
  std::string text = "(no column)";
  return diagnostics.getColumnText(index, text), text;
}

// Messages ---------------------------------------------------------------------------------------

TEST(Diagnostics, ErrorByCodeRecordsItsTextAndSetsTheLastError) {
  Diagnostics diagnostics;
  {
    const ZvFuncTrace trace(diagnostics, "HPT");
    diagnostics.postError(Message::twoPhase);
  }
  EXPECT_EQ(outline(diagnostics.root()),
            "call HPT\n  error Two phase conditions - Underspecified problem.\n");
  EXPECT_EQ(diagnostics.lastError(), "Two phase conditions - Underspecified problem.");
}

TEST(Diagnostics, ErrorTextIsNotAFormat) {
  Diagnostics diagnostics;
  failingCall(diagnostics, "100 %s of %d % parameter %");
  EXPECT_EQ(diagnostics.lastError(), "100 %s of %d % parameter %");
  diagnostics.postError(Message::arraySizeMismatch);
  EXPECT_EQ(diagnostics.lastError(), "Array size mismatch in % parameter.");
}

TEST(Diagnostics, TextsPassUnharmed) {
  Diagnostics diagnostics;
  failingCall(diagnostics, "N/m² and °F");
  EXPECT_EQ(diagnostics.lastError(), "N/m² and °F");
}

TEST(Diagnostics, RangeErrorChoosesItsTextByWhatItIsGiven) {
  Diagnostics diagnostics;
  diagnostics.postRangeError("Enthalpy");
  EXPECT_EQ(diagnostics.lastError(), "Enthalpy parameter out of range.");
  diagnostics.postRangeError("Quality", "0.00", "1.00");
  EXPECT_EQ(diagnostics.lastError(), "Quality parameter out of range (Valid range 0.00 to 1.00).");
  diagnostics.postRangeError("Temperature", "260.00", "2500.00", "K");
  EXPECT_EQ(diagnostics.lastError(),
            "Temperature parameter out of range (Valid range 260.00 to 2500.00 K).");
  diagnostics.postRangeError("Temperature", "8.33", "4040.33", "°F");
  EXPECT_EQ(diagnostics.lastError(),
            "Temperature parameter out of range (Valid range 8.33 to 4040.33 °F).");
}

TEST(Diagnostics, RangeErrorsAreRecordedUnderTheRunningCall) {
  Diagnostics diagnostics;
  {
    const ZvFuncTrace trace(diagnostics, "HPT");
    diagnostics.postRangeError("Enthalpy");
    diagnostics.postRangeError("Quality", "0.00", "1.00");
    diagnostics.postRangeError("Pressure", "0.00", "3000.00", "MPa");
  }
  EXPECT_EQ(outline(diagnostics.root()),
            "call HPT\n"
            "  error Enthalpy parameter out of range.\n"
            "  error Quality parameter out of range (Valid range 0.00 to 1.00).\n"
            "  error Pressure parameter out of range (Valid range 0.00 to 3000.00 MPa).\n");
}

TEST(Diagnostics, LevelGatesWarningsAtOneAndNotesAtTwoAndNeverErrors) {
  const std::vector<std::string> outlines = {
      "call call\n  error error\n",
      "call call\n  error error\n  warning warning\n",
      "call call\n  error error\n  warning warning\n  note note\n",
  };
  for (short level = 0; level <= 2; ++level) {
    Diagnostics diagnostics;
    diagnostics.setLevel(level);
    EXPECT_EQ(diagnostics.level(), level);
    EXPECT_EQ(diagnostics.wantsWarnings(), level >= 1);
    EXPECT_EQ(diagnostics.wantsNotes(), level >= 2);
    {
      const ZvFuncTrace trace(diagnostics, "call");
      diagnostics.postError("error");
      diagnostics.postWarning("warning");
      diagnostics.postNote("note");
    }
    EXPECT_EQ(outline(diagnostics.root()), outlines.at(static_cast<std::size_t>(level)));
    EXPECT_EQ(diagnostics.lastError(), "error");
  }
}

TEST(Diagnostics, WarningAloneKeepsItsCallAndIsNoError) {
  Diagnostics diagnostics;
  diagnostics.setLevel(1);
  {
    const ZvFuncTrace trace(diagnostics, "HPT");
    diagnostics.postWarning("Temperature parameter out of strictly valid range.");
  }
  EXPECT_EQ(outline(diagnostics.root()),
            "call HPT\n  warning Temperature parameter out of strictly valid range.\n");
  EXPECT_EQ(diagnostics.lastError(), "");
}

TEST(Diagnostics, WarningBelowItsLevelLeavesNoCall) {
  Diagnostics diagnostics;
  {
    const ZvFuncTrace trace(diagnostics, "HPT");
    diagnostics.postWarning("Temperature parameter out of strictly valid range.");
  }
  EXPECT_EQ(diagnostics.root().childCount(), 0);
}

TEST(Diagnostics, TimeNoteHoldsTheProcessorClock) {
  Diagnostics diagnostics;
  diagnostics.setLevel(2);
  const std::clock_t before = std::clock();
  {
    const ZvFuncTrace trace(diagnostics, "call");
    diagnostics.postTimeNote();
  }
  const std::clock_t after = std::clock();
  ASSERT_EQ(diagnostics.root().childCount(), 1);
  const ZvFunctionCall* note = diagnostics.root().firstChild()->firstChild();
  ASSERT_NE(note, nullptr);
  EXPECT_EQ(note->kind(), Kind::note);
  const std::string text(note->text());
  ASSERT_EQ(text.substr(0, 7), "Time = ");
  std::clock_t time = -1;
  const auto [end, error] = std::from_chars(text.data() + 7, text.data() + text.size(), time);
  EXPECT_EQ(error, std::errc());
  EXPECT_EQ(end, text.data() + text.size());
  EXPECT_LE(before, time);
  EXPECT_LE(time, after);
}

TEST(Diagnostics, TimeNoteNeedsLevelTwo) {
  Diagnostics diagnostics;
  diagnostics.setLevel(1);
  {
    const ZvFuncTrace trace(diagnostics, "call");
    diagnostics.postTimeNote();
  }
  EXPECT_EQ(diagnostics.root().childCount(), 0);
}

TEST(Diagnostics, LastErrorIsKeptWhileTracingIsOff) {
  Diagnostics diagnostics;
  failingCall(diagnostics, "first");
  diagnostics.setTracing(0);
  failingCall(diagnostics, "second");
  diagnostics.postError(Message::twoPhase);
  diagnostics.postRangeError("Enthalpy");
  diagnostics.postRangeError("Quality", "0.00", "1.00");
  diagnostics.postRangeError("Pressure", "0.00", "3000.00", "MPa");
  EXPECT_EQ(diagnostics.lastError(), "first");
}

TEST(Diagnostics, SuccessfulCallKeepsTheLastError) {
  Diagnostics diagnostics;
  failingCall(diagnostics, "first");
  quietCall(diagnostics);
  EXPECT_EQ(diagnostics.lastError(), "first");
}

// Custom columns ---------------------------------------------------------------------------------

TEST(Diagnostics, ColumnTextNeedsItsColumn) {
  Diagnostics diagnostics;
  std::string text = "untouched";
  EXPECT_FALSE(diagnostics.setColumnText(0, "North"));
  EXPECT_FALSE(diagnostics.getColumnText(0, text));
  diagnostics.addColumn("Plant");
  EXPECT_FALSE(diagnostics.setColumnText(-1, "North"));
  EXPECT_FALSE(diagnostics.setColumnText(1, "North"));
  EXPECT_FALSE(diagnostics.getColumnText(-1, text));
  EXPECT_FALSE(diagnostics.getColumnText(1, text));
  EXPECT_EQ(text, "untouched");
  EXPECT_TRUE(diagnostics.setColumnText(0, "North"));
  EXPECT_TRUE(diagnostics.getColumnText(0, text));
  EXPECT_EQ(text, "North");
}

TEST(Diagnostics, NewColumnStartsEmptyAndKeepsTheOthers) {
  Diagnostics diagnostics;
  diagnostics.addColumn("Plant");
  ASSERT_TRUE(diagnostics.setColumnText(0, "North"));
  diagnostics.addColumn("Unit");
  EXPECT_EQ(columnText(diagnostics, 0), "North");
  EXPECT_EQ(columnText(diagnostics, 1), "");
  EXPECT_EQ(diagnostics.root().columnValues(), (Values{"Plant", "Unit"}));
}

TEST(Diagnostics, ColumnTextsGoToTheNextOutermostCallOnly) {
  Diagnostics diagnostics;
  diagnostics.addColumn("Plant");
  diagnostics.addColumn("Unit");
  ASSERT_TRUE(diagnostics.setColumnText(0, "North"));
  ASSERT_TRUE(diagnostics.setColumnText(1, "3"));
  {
    const ZvFuncTrace trace(diagnostics, "outer");
    failingCall(diagnostics, "inner");
  }
  failingCall(diagnostics, "next");
  const ZvFunctionCall* outer = diagnostics.root().firstChild();
  ASSERT_NE(outer, nullptr);
  EXPECT_EQ(outer->columnValues(), (Values{"North", "3"}));
  EXPECT_EQ(outer->firstChild()->columnValues(), Values{});
  ASSERT_NE(outer->nextSibling(), nullptr);
  EXPECT_EQ(outer->nextSibling()->columnValues(), (Values{"", ""}));
}

TEST(Diagnostics, AnyTracedOutermostCallEmptiesTheColumnTextsAtItsEnd) {
  Diagnostics diagnostics;
  diagnostics.addColumn("Plant");
  ASSERT_TRUE(diagnostics.setColumnText(0, "North"));
  {
    const ZvFuncTrace outer(diagnostics, "outer");
    quietCall(diagnostics);
    EXPECT_EQ(columnText(diagnostics, 0), "North") << "a nested call empties nothing";
  }
  EXPECT_EQ(columnText(diagnostics, 0), "") << "though the call left nothing";
}

TEST(Diagnostics, CallsKeepTheColumnTextsWhileTracingIsOff) {
  Diagnostics diagnostics;
  diagnostics.addColumn("Plant");
  ASSERT_TRUE(diagnostics.setColumnText(0, "North"));
  diagnostics.setTracing(0);
  failingCall(diagnostics, "unseen");
  EXPECT_EQ(columnText(diagnostics, 0), "North");
}

TEST(Diagnostics, ValuesOfAListedCallBecomeThoseOfTheNextCall) {
  Diagnostics diagnostics;
  diagnostics.setupCellColumns();
  ASSERT_TRUE(diagnostics.setCellReference("Book1.xls", "Sheet1", "A1"));
  failingCall(diagnostics, "listed");
  diagnostics.addColumn("Plant");
  ASSERT_TRUE(diagnostics.setColumnText(3, "North"));
  diagnostics.takeColumnValues(diagnostics.root().firstChild()->columnValues());
  EXPECT_EQ(columnText(diagnostics, 0), "Book1.xls");
  EXPECT_EQ(columnText(diagnostics, 1), "Sheet1");
  EXPECT_EQ(columnText(diagnostics, 2), "A1");
  EXPECT_EQ(columnText(diagnostics, 3), "") << "the call is older than this column";
}

// External errors --------------------------------------------------------------------------------

TEST(Diagnostics, ExternalErrorIsRecordedUnderTheRootWithItsTextBelowIt) {
  Diagnostics diagnostics;
  EXPECT_TRUE(diagnostics.addExternalError("Macro", "No such sheet."));
  EXPECT_EQ(outline(diagnostics.root()), "external Macro\n  external No such sheet.\n");
  EXPECT_EQ(diagnostics.lastError(), "No such sheet.");
}

TEST(Diagnostics, ExternalErrorCopiesItsTexts) {
  Diagnostics diagnostics;
  std::string name = "Macro";
  std::string text = "No such sheet.";
  ASSERT_TRUE(diagnostics.addExternalError(name, text));
  name.assign(5, 'x');
  text.assign(14, 'x');
  EXPECT_EQ(outline(diagnostics.root()), "external Macro\n  external No such sheet.\n");
}

TEST(Diagnostics, ExternalErrorIsRecordedWhileTracingIsOff) {
  Diagnostics diagnostics;
  diagnostics.setTracing(0);
  EXPECT_TRUE(diagnostics.addExternalError("Macro", "No such sheet."));
  EXPECT_EQ(diagnostics.root().childCount(), 1);
  EXPECT_EQ(diagnostics.lastError(), "No such sheet.");
}

TEST(Diagnostics, ExternalErrorFailsInsideACall) {
  Diagnostics diagnostics;
  failingCall(diagnostics, "first");
  {
    const ZvFuncTrace trace(diagnostics, "call");
    EXPECT_TRUE(diagnostics.inCall());
    EXPECT_FALSE(diagnostics.addExternalError("Macro", "No such sheet."));
  }
  EXPECT_FALSE(diagnostics.inCall());
  EXPECT_EQ(outline(diagnostics.root()), "call failing\n  error first\n");
  EXPECT_EQ(diagnostics.lastError(), "first");
}

TEST(Diagnostics, ExternalErrorRespectsTheRootsLimit) {
  Diagnostics diagnostics;
  diagnostics.setMaxTraceSize(2);
  for (const char* name : {"first", "second", "third"}) {
    ASSERT_TRUE(diagnostics.addExternalError(name, "text"));
  }
  EXPECT_EQ(outline(diagnostics.root()),
            "external second\n  external text\nexternal third\n  external text\n");
}

TEST(Diagnostics, ExternalErrorTakesTheColumnTextsAndEmptiesThem) {
  Diagnostics diagnostics;
  diagnostics.addColumn("Plant");
  ASSERT_TRUE(diagnostics.setColumnText(0, "North"));
  ASSERT_TRUE(diagnostics.addExternalError("Macro", "No such sheet."));
  const ZvFunctionCall* node = diagnostics.root().firstChild();
  ASSERT_NE(node, nullptr);
  EXPECT_EQ(node->columnValues(), Values{"North"});
  EXPECT_EQ(node->firstChild()->columnValues(), Values{});
  EXPECT_EQ(columnText(diagnostics, 0), "");
}

// Cell references --------------------------------------------------------------------------------

TEST(Diagnostics, CellReferenceReadsBackUntilACallHasRun) {
  Diagnostics diagnostics;
  diagnostics.setupCellColumns();
  EXPECT_EQ(diagnostics.root().columnValues(), (Values{"Book", "Sheet", "Cell"}));
  ASSERT_TRUE(diagnostics.setCellReference("Book1.xls", "Sheet1", "A1"));
  std::string reference;
  EXPECT_TRUE(diagnostics.getCellReference(reference));
  EXPECT_EQ(reference, "'[Book1.xls]Sheet1'!A1");
  quietCall(diagnostics);
  EXPECT_TRUE(diagnostics.getCellReference(reference));
  EXPECT_EQ(reference, "");
}

TEST(Diagnostics, FailingCallCarriesItsCell) {
  Diagnostics diagnostics;
  diagnostics.setupCellColumns();
  ASSERT_TRUE(diagnostics.setCellReference("Book1.xls", "Sheet1", "A1"));
  failingCall(diagnostics, "failed");
  EXPECT_EQ(diagnostics.root().firstChild()->columnValues(), (Values{"Book1.xls", "Sheet1", "A1"}));
}

TEST(Diagnostics, CellReferenceIsEmptyWhenAnyPartIsEmpty) {
  Diagnostics diagnostics;
  diagnostics.setupCellColumns();
  for (const Values& parts : {Values{"", "", ""}, Values{"", "Sheet1", "A1"},
                              Values{"Book1.xls", "", "A1"}, Values{"Book1.xls", "Sheet1", ""}}) {
    ASSERT_TRUE(diagnostics.setCellReference(parts[0], parts[1], parts[2]));
    std::string reference = "not empty";
    EXPECT_TRUE(diagnostics.getCellReference(reference));
    EXPECT_EQ(reference, "");
  }
}

TEST(Diagnostics, CellReferenceNeedsExactlyThreeColumns) {
  Diagnostics diagnostics;
  std::string reference = "untouched";
  for (int columns = 0; columns <= 4; ++columns) {
    EXPECT_EQ(diagnostics.setCellReference("Book1.xls", "Sheet1", "A1"), columns == 3) << columns;
    if (columns != 3) {
      EXPECT_FALSE(diagnostics.getCellReference(reference)) << columns;
      EXPECT_EQ(reference, "untouched") << columns;
    }
    diagnostics.addColumn("Column");
  }
  diagnostics.setupCellColumns();
  EXPECT_TRUE(diagnostics.setCellReference("Book1.xls", "Sheet1", "A1"))
      << "setting up the cell columns replaces the others";
}

TEST(Diagnostics, SettingUpTheCellColumnsEmptiesTheTexts) {
  Diagnostics diagnostics;
  diagnostics.addColumn("Plant");
  ASSERT_TRUE(diagnostics.setColumnText(0, "North"));
  diagnostics.setupCellColumns();
  for (int index = 0; index < 3; ++index) EXPECT_EQ(columnText(diagnostics, index), "");
  EXPECT_FALSE(diagnostics.setColumnText(3, "North"));
}

}  // namespace
}  // namespace calvex
