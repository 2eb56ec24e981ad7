#include "diagnostics/trace.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "diagnostics/diagnostics.h"
#include "diagnostics/outline.h"

namespace calvex {
namespace {

using Kind = ZvFunctionCall::Kind;
using Image = ZvFunctionCall::Image;
using Values = std::vector<std::string>;

void failingCall(Diagnostics& diagnostics, std::string_view name) {
  const ZvFuncTrace trace(diagnostics, name);
  diagnostics.postError("failed");
}

void quietCall(Diagnostics& diagnostics, std::string_view name = "quiet") {
  const ZvFuncTrace trace(diagnostics, name);
}

TEST(Trace, KindsAndImagesHaveTheirNumbers) {
  EXPECT_EQ(static_cast<int>(Kind::root), 0);
  EXPECT_EQ(static_cast<int>(Kind::call), 1);
  EXPECT_EQ(static_cast<int>(Kind::error), 2);
  EXPECT_EQ(static_cast<int>(Kind::warning), 3);
  EXPECT_EQ(static_cast<int>(Kind::note), 4);
  EXPECT_EQ(static_cast<int>(Kind::externalError), 5);
  EXPECT_EQ(static_cast<int>(Image::error), 0);
  EXPECT_EQ(static_cast<int>(Image::warning), 1);
  EXPECT_EQ(static_cast<int>(Image::note), 2);
  EXPECT_EQ(static_cast<int>(Image::call), 3);
  EXPECT_EQ(static_cast<int>(Image::externalError), 4);
}

TEST(Trace, StartsAsARootOfAtMostThousandCalls) {
  const Diagnostics diagnostics;
  EXPECT_EQ(diagnostics.root().text(), "Root");
  EXPECT_EQ(diagnostics.root().kind(), Kind::root);
  EXPECT_EQ(diagnostics.root().parent(), nullptr);
  EXPECT_EQ(diagnostics.root().childCount(), 0);
  EXPECT_EQ(diagnostics.maxTraceSize(), 1000);
  EXPECT_EQ(diagnostics.tracingFlag(), 1);
  EXPECT_EQ(diagnostics.level(), 0);
  EXPECT_EQ(diagnostics.lastError(), "");
}

TEST(Trace, SuccessfulCallLeavesNothing) {
  Diagnostics diagnostics;
  quietCall(diagnostics);
  EXPECT_EQ(outline(diagnostics.root()), "");
  EXPECT_EQ(diagnostics.root().childCount(), 0);
}

TEST(Trace, FailingCallStaysWithItsErrorBelowIt) {
  Diagnostics diagnostics;
  failingCall(diagnostics, "HPT");
  EXPECT_EQ(outline(diagnostics.root()), "call HPT\n  error failed\n");
  const ZvFunctionCall* call = diagnostics.root().firstChild();
  ASSERT_NE(call, nullptr);
  EXPECT_EQ(call->parent(), &diagnostics.root());
  EXPECT_EQ(call->maxChildren(), -1);
}

TEST(Trace, NestedCallsStayWhenAnyOfThemLeavesAMessage) {
  Diagnostics diagnostics;
  {
    const ZvFuncTrace outer(diagnostics, "TurbineA");
    quietCall(diagnostics, "HPT");
    failingCall(diagnostics, "SPT");
    quietCall(diagnostics, "TPS");
  }
  EXPECT_EQ(outline(diagnostics.root()),
            "call TurbineA\n"
            "  call HPT\n"
            "  call SPT\n"
            "    error failed\n"
            "  call TPS\n");
}

TEST(Trace, NestedCallsVanishWithAnOuterCallThatLeavesNoMessage) {
  Diagnostics diagnostics;
  {
    const ZvFuncTrace outer(diagnostics, "TurbineA");
    quietCall(diagnostics, "HPT");
    EXPECT_EQ(outline(diagnostics.root()), "call TurbineA\n  call HPT\n");
  }
  EXPECT_EQ(outline(diagnostics.root()), "");
}

TEST(Trace, MessagesAfterANestedCallBelongToTheOuterOne) {
  Diagnostics diagnostics;
  {
    const ZvFuncTrace outer(diagnostics, "TurbineA");
    quietCall(diagnostics, "HPT");
    diagnostics.postError("No flow.");
  }
  EXPECT_EQ(outline(diagnostics.root()), "call TurbineA\n  call HPT\n  error No flow.\n");
}

TEST(Trace, KeepsTheLastTwoOfThreeFailingCallsWhenItsSizeIsTwo) {
  Diagnostics diagnostics;
  diagnostics.setMaxTraceSize(2);
  for (const char* name : {"first", "second", "third"}) failingCall(diagnostics, name);
  EXPECT_EQ(outline(diagnostics.root()),
            "call second\n  error failed\ncall third\n  error failed\n");
  EXPECT_EQ(diagnostics.root().childCount(), 2);
}

TEST(Trace, FullRootLosesItsOldestCallToACallThatLeavesNothing) {
  Diagnostics diagnostics;
  diagnostics.setMaxTraceSize(2);
  failingCall(diagnostics, "first");
  failingCall(diagnostics, "second");
  quietCall(diagnostics);
  EXPECT_EQ(outline(diagnostics.root()), "call second\n  error failed\n");
  quietCall(diagnostics);
  EXPECT_EQ(outline(diagnostics.root()), "call second\n  error failed\n")
      << "a root with room loses nothing";
}

TEST(Trace, LimitHoldsForTheRootOnly) {
  Diagnostics diagnostics;
  diagnostics.setMaxTraceSize(2);
  {
    const ZvFuncTrace outer(diagnostics, "outer");
    for (int i = 0; i < 5; ++i) failingCall(diagnostics, "inner");
  }
  ASSERT_EQ(diagnostics.root().childCount(), 1);
  EXPECT_EQ(diagnostics.root().firstChild()->childCount(), 5);
}

TEST(Trace, SmallerSizePrunesTheOldestCallsAtOnce) {
  Diagnostics diagnostics;
  for (const char* name : {"first", "second", "third", "fourth"}) failingCall(diagnostics, name);
  {
    const ZvFuncTrace setter(diagnostics, "SetMaxDiagSize");
    diagnostics.setMaxTraceSize(2);
    EXPECT_EQ(outline(diagnostics.root()), "call fourth\n  error failed\ncall SetMaxDiagSize\n")
        << "the running call counts and is the newest";
  }
  EXPECT_EQ(diagnostics.maxTraceSize(), 2);
  EXPECT_EQ(diagnostics.root().childCount(), 1);
}

TEST(Trace, DefaultLimitKeepsTheLastThousandCalls) {
  Diagnostics diagnostics;
  failingCall(diagnostics, "oldest");
  for (int i = 0; i < 999; ++i) failingCall(diagnostics, "later");
  EXPECT_EQ(diagnostics.root().childCount(), 1000);
  EXPECT_EQ(diagnostics.root().firstChild()->text(), "oldest");
  failingCall(diagnostics, "newest");
  EXPECT_EQ(diagnostics.root().childCount(), 1000);
  EXPECT_EQ(diagnostics.root().firstChild()->text(), "later");
}

TEST(Trace, DoesNotChangeWhileTracingIsOff) {
  Diagnostics diagnostics;
  failingCall(diagnostics, "before");
  diagnostics.setTracing(0);
  diagnostics.setLevel(2);
  {
    const ZvFuncTrace trace(diagnostics, "unseen");
    EXPECT_FALSE(diagnostics.inCall());
    diagnostics.postError("unseen");
    diagnostics.postWarning("unseen");
    diagnostics.postNote("unseen");
    diagnostics.postTimeNote();
  }
  EXPECT_EQ(outline(diagnostics.root()), "call before\n  error failed\n");
}

TEST(Trace, AnyNonZeroFlagSwitchesTracingOnAndIsKept) {
  Diagnostics diagnostics;
  diagnostics.setTracing(-7);
  EXPECT_EQ(diagnostics.tracingFlag(), -7);
  failingCall(diagnostics, "seen");
  EXPECT_EQ(diagnostics.root().childCount(), 1);
}

TEST(Trace, ContainsLooksAtTheNodeAndAllBelowIt) {
  Diagnostics diagnostics;
  diagnostics.setLevel(2);
  {
    const ZvFuncTrace outer(diagnostics, "outer");
    const ZvFuncTrace inner(diagnostics, "inner");
    diagnostics.postNote("note");
  }
  const ZvFunctionCall& root = diagnostics.root();
  EXPECT_TRUE(root.contains(Kind::root));
  EXPECT_TRUE(root.contains(Kind::call));
  EXPECT_TRUE(root.contains(Kind::note));
  EXPECT_FALSE(root.contains(Kind::warning));
  EXPECT_FALSE(root.contains(Kind::error));
  EXPECT_FALSE(root.firstChild()->contains(Kind::root));
  EXPECT_TRUE(root.containsMessage());
}

TEST(Trace, ImageShowsTheGravestMessageOfTheSubtree) {
  Diagnostics diagnostics;
  diagnostics.setLevel(2);
  {
    const ZvFuncTrace outer(diagnostics, "outer");
    {
      const ZvFuncTrace noted(diagnostics, "noted");
      diagnostics.postNote("note");
    }
    {
      const ZvFuncTrace warned(diagnostics, "warned");
      diagnostics.postNote("note");
      diagnostics.postWarning("warning");
    }
    {
      const ZvFuncTrace failed(diagnostics, "failed");
      diagnostics.postWarning("warning");
      diagnostics.postError("error");
    }
  }
  const ZvFunctionCall* outer = diagnostics.root().firstChild();
  ASSERT_NE(outer, nullptr);
  const ZvFunctionCall* noted = outer->firstChild();
  const ZvFunctionCall* warned = noted->nextSibling();
  const ZvFunctionCall* failed = warned->nextSibling();
  EXPECT_EQ(noted->image(), Image::error) << "0 until the images are updated";
  diagnostics.updateImages();
  EXPECT_EQ(diagnostics.root().image(), Image::error);
  EXPECT_EQ(outer->image(), Image::error);
  EXPECT_EQ(noted->image(), Image::call);
  EXPECT_EQ(noted->firstChild()->image(), Image::note);
  EXPECT_EQ(warned->image(), Image::warning);
  EXPECT_EQ(warned->firstChild()->image(), Image::note);
  EXPECT_EQ(failed->image(), Image::error);
  EXPECT_EQ(failed->firstChild()->image(), Image::warning);
}

TEST(Trace, ExternalErrorShowsAboveAWarningAndBelowAnError) {
  Diagnostics diagnostics;
  diagnostics.setLevel(1);
  ASSERT_TRUE(diagnostics.addExternalError("client", "outside"));
  {
    const ZvFuncTrace warned(diagnostics, "warned");
    diagnostics.postWarning("warning");
  }
  diagnostics.updateImages();
  EXPECT_EQ(diagnostics.root().image(), Image::externalError);
  EXPECT_EQ(diagnostics.root().firstChild()->image(), Image::externalError);
  EXPECT_EQ(diagnostics.root().firstChild()->firstChild()->image(), Image::externalError);
  failingCall(diagnostics, "failed");
  diagnostics.updateImages();
  EXPECT_EQ(diagnostics.root().image(), Image::error);
}

TEST(Trace, RootWithoutMessagesHasTheFirstImage) {
  Diagnostics diagnostics;
  diagnostics.updateImages();
  EXPECT_EQ(diagnostics.root().image(), Image::error);
}

TEST(Trace, ClearEmptiesTheTreeTheLastErrorAndTheColumnTexts) {
  Diagnostics diagnostics;
  diagnostics.addColumn("Plant");
  failingCall(diagnostics, "HPT");
  ASSERT_TRUE(diagnostics.setColumnText(0, "North"));
  diagnostics.clear();
  EXPECT_EQ(diagnostics.root().childCount(), 0);
  EXPECT_EQ(diagnostics.lastError(), "");
  std::string text = "untouched";
  ASSERT_TRUE(diagnostics.getColumnText(0, text)) << "the column itself stays";
  EXPECT_EQ(text, "");
  EXPECT_EQ(diagnostics.root().columnValues(), Values{"Plant"});
}

TEST(Trace, ClearKeepsTheSettings) {
  Diagnostics diagnostics;
  diagnostics.setLevel(2);
  diagnostics.setMaxTraceSize(5);
  diagnostics.clear();
  EXPECT_EQ(diagnostics.level(), 2);
  EXPECT_EQ(diagnostics.maxTraceSize(), 5);
}

TEST(Trace, ClearInsideACallEndsItsRecord) {
  Diagnostics diagnostics;
  {
    const ZvFuncTrace outer(diagnostics, "outer");
    diagnostics.clear();
    EXPECT_FALSE(diagnostics.inCall());
  }
  EXPECT_FALSE(diagnostics.inCall());
  failingCall(diagnostics, "next");
  EXPECT_EQ(outline(diagnostics.root()), "call next\n  error failed\n");
}

TEST(Trace, SwitchingOffInsideCallsEndsTheirRecord) {
  Diagnostics diagnostics;
  diagnostics.addColumn("Cell");
  diagnostics.setColumnText(0, "A1");
  {
    const ZvFuncTrace outer(diagnostics, "outer");
    diagnostics.postError("before");
    {
      const ZvFuncTrace inner(diagnostics, "inner");
      diagnostics.setTracing(0);
      EXPECT_FALSE(diagnostics.inCall());
      diagnostics.postError("unheard");
    }
  }
  std::string text = "untouched";
  ASSERT_TRUE(diagnostics.getColumnText(0, text));
  EXPECT_EQ(text, "");
  diagnostics.setTracing(1);
  EXPECT_FALSE(diagnostics.inCall());
  failingCall(diagnostics, "next");
  EXPECT_EQ(outline(diagnostics.root()),
            "call outer\n  error before\n  call inner\ncall next\n  error failed\n");
}

TEST(Trace, SwitchingOffInsideACallWithoutMessagesLeavesNothingOfIt) {
  Diagnostics diagnostics;
  {
    const ZvFuncTrace outer(diagnostics, "outer");
    diagnostics.setTracing(0);
  }
  EXPECT_EQ(outline(diagnostics.root()), "");
  EXPECT_TRUE(diagnostics.addExternalError("Sheet", "It broke."));
}

TEST(Trace, SwitchingOffAndOnInsideACallTracesTheRestOfItByItself) {
  Diagnostics diagnostics;
  {
    const ZvFuncTrace outer(diagnostics, "outer");
    diagnostics.setTracing(0);
    diagnostics.setTracing(1);
    failingCall(diagnostics, "nested");
  }
  EXPECT_FALSE(diagnostics.inCall());
  failingCall(diagnostics, "next");
  EXPECT_EQ(outline(diagnostics.root()),
            "call nested\n  error failed\ncall next\n  error failed\n");
}

TEST(Trace, SwitchingOnAgainInsideACallKeepsItsRecord) {
  Diagnostics diagnostics;
  {
    const ZvFuncTrace outer(diagnostics, "outer");
    diagnostics.setTracing(5);
    EXPECT_TRUE(diagnostics.inCall());
    diagnostics.postError("heard");
  }
  EXPECT_EQ(outline(diagnostics.root()), "call outer\n  error heard\n");
}

TEST(Trace, ResetRestoresEveryDefault) {
  Diagnostics diagnostics;
  diagnostics.setupCellColumns();
  failingCall(diagnostics, "HPT");
  diagnostics.setLevel(2);
  diagnostics.setMaxTraceSize(5);
  diagnostics.setTracing(0);
  diagnostics.reset();
  EXPECT_EQ(diagnostics.root().childCount(), 0);
  EXPECT_EQ(diagnostics.root().text(), "Root");
  EXPECT_EQ(diagnostics.root().columnValues(), Values{});
  EXPECT_EQ(diagnostics.maxTraceSize(), 1000);
  EXPECT_EQ(diagnostics.level(), 0);
  EXPECT_EQ(diagnostics.tracingFlag(), 1);
  EXPECT_EQ(diagnostics.lastError(), "");
  std::string reference;
  EXPECT_FALSE(diagnostics.getCellReference(reference));
}

TEST(Trace, CallNameIsNotCopied) {
  static constexpr std::string_view name = "HVLTSat_PQ and a name too long for a short string";
  Diagnostics diagnostics;
  failingCall(diagnostics, name);
  EXPECT_EQ(diagnostics.root().firstChild()->text().data(), name.data());
}

TEST(Trace, RecycledNodeKeepsNothingOfItsFormerLife) {
  Diagnostics diagnostics;
  diagnostics.addColumn("Plant");
  ASSERT_TRUE(diagnostics.setColumnText(0, "North"));
  failingCall(diagnostics, "first");
  diagnostics.updateImages();
  diagnostics.clear();
  diagnostics.setLevel(2);
  {
    const ZvFuncTrace outer(diagnostics, "outer");
    const ZvFuncTrace inner(diagnostics, "inner");
    diagnostics.postNote("note");
  }
  EXPECT_EQ(outline(diagnostics.root()), "call outer\n  call inner\n    note note\n");
  const ZvFunctionCall* outer = diagnostics.root().firstChild();
  const ZvFunctionCall* inner = outer->firstChild();
  const ZvFunctionCall* note = inner->firstChild();
  EXPECT_EQ(outer->columnValues(), Values{""});
  EXPECT_EQ(inner->columnValues(), Values{});
  EXPECT_EQ(note->columnValues(), Values{});
  for (const ZvFunctionCall* node : {outer, inner, note}) {
    EXPECT_EQ(node->image(), Image::error) << node->text();
    EXPECT_EQ(node->nextSibling(), nullptr) << node->text();
  }
}

TEST(TracePool, LinksSurviveDeletionAtBothEnds) {
  TracePool pool;
  ZvFunctionCall& root = pool.make(Kind::root, nullptr);
  std::array<ZvFunctionCall*, 4> nodes{};
  for (ZvFunctionCall*& node : nodes) node = &pool.make(Kind::call, &root);
  pool.deleteFirstChild(root);
  pool.deleteLastChild(root);
  EXPECT_EQ(root.childCount(), 2);
  EXPECT_EQ(root.firstChild(), nodes[1]);
  EXPECT_EQ(nodes[1]->nextSibling(), nodes[2]);
  EXPECT_EQ(nodes[2]->nextSibling(), nullptr);
  pool.deleteLastChild(root);
  pool.deleteFirstChild(root);
  pool.deleteFirstChild(root);
  pool.deleteLastChild(root);
  EXPECT_EQ(root.childCount(), 0);
  EXPECT_EQ(root.firstChild(), nullptr);
}

}  // namespace
}  // namespace calvex
