// A call that leaves no message takes nothing from the heap once the engine is warm.
#include <gtest/gtest.h>

#include "allocation_counter.h"
#include "support/engine.h"

namespace calvex::test {
namespace {

// Allocations of a hundred calls after the first.
template <class Call>
long allocationsOf(Call call) {
  EXPECT_EQ(call(), 1);
  const long before = allocations();
  int successes = 0;
  for (int i = 0; i < 100; ++i) successes += call();
  const long taken = allocations() - before;
  EXPECT_EQ(successes, 100);
  return taken;
}

void expectNoAllocations(ZvThermoInt& engine) {
  double value = untouched;
  EXPECT_EQ(allocationsOf([&] { return engine.HPT(&value, 10.0, 773.15); }), 0) << "steam";
  EXPECT_EQ(allocationsOf([&] { return engine.HPT(&value, 10.0, 300.0); }), 0) << "liquid";
  EXPECT_EQ(allocationsOf([&] { return engine.TPH(&value, 10.0, 3000.0); }), 0) << "steam";
  EXPECT_EQ(allocationsOf([&] { return engine.TPH(&value, 10.0, 2000.0); }), 0) << "two phases";
  EXPECT_EQ(allocationsOf([&] { return engine.TPH(&value, 10.0, 500.0); }), 0) << "liquid";
  EXPECT_EQ(allocationsOf([&] { return engine.HSatPQ(&value, 1.0, 0.5); }), 0);
  EXPECT_EQ(allocationsOf([&] { return engine.HPU(&value, 1.0, 1500.0); }), 0) << "nested";
}

TEST(Allocations, OfCallsWithoutMessagesAreNone) {
  ZvThermoInt engine;
  expectNoAllocations(engine);
}

TEST(Allocations, AreNoneInOtherUnits) {
  ZvThermoInt engine;
  ASSERT_EQ(engine.SetUserUnit("Q", "Fraction"), 1);
  ASSERT_EQ(engine.SetUserUnit("S", "Btu/(lb.F)"), 1);
  ASSERT_EQ(engine.SetUserUnit("V", "cm^3/g"), 1);
  expectNoAllocations(engine);
}

TEST(Allocations, AreNoneWithLongCellReferencesBesideAFullTrace) {
  ZvThermoInt engine;
  engine.SetupExcelTracing();
  engine.SetMaxTraceSize(3);
  double value = untouched;
  for (int i = 0; i < 10; ++i) engine.HPT(&value, 1.0, 100.0);
  expectNoAllocations(engine);
}

}  // namespace
}  // namespace calvex::test
