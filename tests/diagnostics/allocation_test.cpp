#include <gtest/gtest.h>

#include <string>

#include "allocation_counter.h"
#include "diagnostics/diagnostics.h"

namespace calvex {
namespace {

// An outermost call with nested calls at two depths and columns with long texts, as the engine
// and a spreadsheet make it.
void tracedCall(Diagnostics& diagnostics) {
  diagnostics.setCellReference("A book with a long name.xls", "A sheet with a long name", "AAA999");
  const ZvFuncTrace outer(diagnostics, "an equipment call with a long name");
  for (int i = 0; i < 3; ++i) {
    const ZvFuncTrace nested(diagnostics, "a property call with a long name");
    const ZvFuncTrace deeper(diagnostics, "a saturation call with a long name");
    diagnostics.postWarning("not wanted at this level");
  }
}

long allocationsOf(Diagnostics& diagnostics, int calls) {
  const long before = allocations();
  for (int i = 0; i < calls; ++i) tracedCall(diagnostics);
  return allocations() - before;
}

TEST(Allocation, CounterCounts) {
  const long before = allocations();
  const std::string text(100, 'x');
  EXPECT_EQ(text.size(), 100U);
  EXPECT_EQ(allocations() - before, 1);
}

TEST(Allocation, CallsWithoutMessagesAllocateNothingAfterTheFirst) {
  Diagnostics diagnostics;
  diagnostics.setupCellColumns();
  EXPECT_GT(allocationsOf(diagnostics, 1), 0);
  EXPECT_EQ(allocationsOf(diagnostics, 100), 0);
}

TEST(Allocation, CallsWithoutMessagesAllocateNothingBesideAFullTrace) {
  Diagnostics diagnostics;
  diagnostics.setupCellColumns();
  diagnostics.setMaxTraceSize(10);
  for (int i = 0; i < 20; ++i) {
    const ZvFuncTrace failing(diagnostics, "failing");
    diagnostics.postError("a text that is too long for a short string");
  }
  allocationsOf(diagnostics, 1);
  EXPECT_EQ(allocationsOf(diagnostics, 100), 0);
  EXPECT_EQ(diagnostics.root().childCount(), 9);
}

TEST(Allocation, CallsAllocateNothingWhileTracingIsOff) {
  Diagnostics diagnostics;
  diagnostics.setTracing(0);
  EXPECT_EQ(allocationsOf(diagnostics, 100), 0);
}

}  // namespace
}  // namespace calvex
