#include "ui/trace_view.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace calvex {
namespace {

using Image = TraceView::Image;
using Strings = std::vector<std::string>;

// One outermost call of each kind that a trace can hold, in this order.
void recordOneOfEach(Diagnostics& diagnostics) {
  diagnostics.setLevel(2);
  {
    const ZvFuncTrace call(diagnostics, "noted");
    diagnostics.postNote("a note");
  }
  {
    const ZvFuncTrace call(diagnostics, "warned");
    diagnostics.postWarning("a warning");
  }
  {
    const ZvFuncTrace call(diagnostics, "failed");
    diagnostics.postError("an error");
  }
  diagnostics.addExternalError("client", "an external error");
}

Strings textsListed(const TraceView& view, int level) {
  Strings texts;
  for (const std::size_t i : view.listed(level)) texts.push_back(view.calls()[i].text());
  return texts;
}

// A line for each node: its depth as indent, "+" where it is expanded.
std::string outline(const TraceView::Call& call) {
  std::string lines;
  for (const TraceView::Node& node : call.nodes) {
    lines += std::string(static_cast<std::size_t>(node.depth) * 2, ' ') + node.text +
             (node.expanded ? " +\n" : "\n");
  }
  return lines;
}

TEST(TraceView, AReportingLevelListsTheCallsWhoseImageItCovers) {
  Diagnostics diagnostics;
  recordOneOfEach(diagnostics);
  const TraceView view(diagnostics);
  EXPECT_EQ(textsListed(view, 0), (Strings{"failed", "client"}));
  EXPECT_EQ(textsListed(view, 1), (Strings{"warned", "failed", "client"}));
  EXPECT_EQ(textsListed(view, 2), (Strings{"noted", "warned", "failed", "client"}));
}

TEST(TraceView, ACallShowsItsGravestMessage) {
  Diagnostics diagnostics;
  recordOneOfEach(diagnostics);
  const TraceView view(diagnostics);
  std::vector<Image> images;
  for (const TraceView::Call& call : view.calls()) images.push_back(call.image());
  EXPECT_EQ(images, (std::vector{Image::call, Image::warning, Image::error, Image::externalError}));
}

TEST(TraceView, TheTreeOfACallIsItselfAndEachDescendantBelowItsParent) {
  Diagnostics diagnostics;
  diagnostics.setLevel(2);
  {
    const ZvFuncTrace turbine(diagnostics, "Turbine");
    {
      const ZvFuncTrace inlet(diagnostics, "HPT");
      diagnostics.postWarning("near the limit");
      diagnostics.postNote("region 2");
    }
    const ZvFuncTrace outlet(diagnostics, "TPS");
    diagnostics.postError("no convergence");
  }
  const TraceView view(diagnostics);
  ASSERT_EQ(view.calls().size(), 1U);
  EXPECT_EQ(outline(view.calls()[0]),
            "Turbine +\n  HPT +\n    near the limit\n    region 2\n  TPS +\n    no convergence\n");
  std::vector<Image> images;
  for (const TraceView::Node& node : view.calls()[0].nodes) images.push_back(node.image);
  EXPECT_EQ(images, (std::vector{Image::error, Image::warning, Image::warning, Image::note,
                                 Image::error, Image::error}));
}

TEST(TraceView, WithoutCustomColumnsTheFunctionTakesTheWidth) {
  Diagnostics diagnostics;
  const TraceView view(diagnostics);
  ASSERT_EQ(view.columns().size(), 1U);
  EXPECT_EQ(view.columns()[0].title, "Function");
  EXPECT_EQ(view.columns()[0].width, 0.98);
}

TEST(TraceView, CustomColumnsShareAlmostHalfOfTheWidthButNoneGetsMoreThanAFifth) {
  Diagnostics diagnostics;
  for (const int count : {1, 2, 3, 4, 6}) {
    while (std::ssize(diagnostics.root().columnValues()) < count) diagnostics.addColumn("title");
    const TraceView view(diagnostics);
    ASSERT_EQ(std::ssize(view.columns()), count + 1);
    EXPECT_EQ(view.columns()[0].width, 0.5);
    const double expected[] = {0, 0.2, 0.2, 0.16, 0.12, 0, 0.08};
    for (std::size_t i = 1; i < view.columns().size(); ++i) {
      EXPECT_DOUBLE_EQ(view.columns()[i].width, expected[count]) << count << " columns";
    }
  }
}

TEST(TraceView, ColumnsBearTheTitlesOfTheRecord) {
  Diagnostics diagnostics;
  diagnostics.setupCellColumns();
  const TraceView view(diagnostics);
  Strings titles;
  for (const TraceView::Column& column : view.columns()) titles.push_back(column.title);
  EXPECT_EQ(titles, (Strings{"Function", "Book", "Sheet", "Cell"}));
}

TEST(TraceView, ACallHasOneValueForEachColumnAlsoWhenTheColumnsChangedAfterIt) {
  Diagnostics diagnostics;
  diagnostics.addColumn("Plant");
  diagnostics.setColumnText(0, "north");
  diagnostics.addExternalError("client", "an error");
  EXPECT_EQ(TraceView(diagnostics).calls()[0].columnValues, (Strings{"north"}));
  diagnostics.addColumn("Unit");
  EXPECT_EQ(TraceView(diagnostics).calls()[0].columnValues, (Strings{"north", ""}));
}

TEST(TraceView, TakingACallMakesItsColumnValuesThoseOfTheNextCall) {
  Diagnostics diagnostics;
  diagnostics.setupCellColumns();
  diagnostics.setCellReference("Book1.xls", "Sheet1", "A1");
  diagnostics.addExternalError("client", "first");
  diagnostics.setCellReference("Book1.xls", "Sheet1", "B7");
  diagnostics.addExternalError("client", "second");

  TraceView view(diagnostics);
  std::string reference;
  ASSERT_TRUE(diagnostics.getCellReference(reference));
  EXPECT_EQ(reference, "");
  view.take(view.calls().at(1));
  ASSERT_TRUE(diagnostics.getCellReference(reference));
  EXPECT_EQ(reference, "'[Book1.xls]Sheet1'!B7");
  view.take(view.calls().at(0));
  ASSERT_TRUE(diagnostics.getCellReference(reference));
  EXPECT_EQ(reference, "'[Book1.xls]Sheet1'!A1");
}

TEST(TraceView, OpensAtTheLevelOfTheRecordAndPutsItOnlyOnRequest) {
  Diagnostics diagnostics;
  diagnostics.setLevel(1);
  TraceView view(diagnostics);
  EXPECT_EQ(view.level(), 1);
  EXPECT_TRUE(view.listed(2).empty());
  EXPECT_EQ(diagnostics.level(), 1);
  view.putLevel(2);
  EXPECT_EQ(diagnostics.level(), 2);
}

TEST(TraceView, StaysAsItWasWhenTheRecordChangesBehindIt) {
  Diagnostics diagnostics;
  recordOneOfEach(diagnostics);
  const TraceView view(diagnostics);
  diagnostics.clear();
  const ZvFuncTrace call(diagnostics, "another");
  diagnostics.postError("written into a recycled node");
  EXPECT_EQ(textsListed(view, 2), (Strings{"noted", "warned", "failed", "client"}));
  EXPECT_EQ(outline(view.calls()[2]), "failed +\n  an error\n");
}

TEST(TraceView, TheReportingLevelsHaveTheirTexts) {
  EXPECT_EQ(Strings(TraceView::levelTexts.begin(), TraceView::levelTexts.end()),
            (Strings{"Errors Only", "Errors & Warnings", "Errors, Warnings & Diagnostic Info"}));
}

}  // namespace
}  // namespace calvex
