// A call that leaves no message takes nothing from the heap once the engine is warm.
#include <gtest/gtest.h>

#include "allocation_counter.h"
#include "support/engine.h"

namespace calvex::test {
namespace {

// Every call as a client makes it, with inputs in the client's units.
class Allocations : public testing::Test {
 protected:
  ZvThermoInt engine;
  bool fromCells = false;

  // Allocations of a hundred calls after the first.
  template <class Call>
  long allocationsOf(Call call) {
    const auto callOfACell = [&] {
      if (fromCells) {
        EXPECT_EQ(engine.SetCellRef("A book with a long name.xls", "A sheet with a long name",
                                    "a cell with a long name"),
                  1);
      }
      return call();
    };
    EXPECT_EQ(callOfACell(), 1) << engine.LastError();
    const long before = allocations();
    int successes = 0;
    for (int i = 0; i < 100; ++i) successes += callOfACell();
    const long taken = allocations() - before;
    EXPECT_EQ(successes, 100);
    return taken;
  }

  void expectNone() {
    double value = untouched, other = untouched, third = untouched, fourth = untouched;
    const auto p = [&](double x) { return engine.units().toUser(UnitGroup::pressure, x); };
    const auto t = [&](double x) { return engine.units().toUser(UnitGroup::temperature, x); };
    const auto h = [&](double x) { return engine.units().toUser(UnitGroup::enthalpy, x); };
    const auto u = [&](double x) { return engine.units().toUser(UnitGroup::internalEnergy, x); };
    const auto s = [&](double x) { return engine.units().toUser(UnitGroup::entropy, x); };
    const auto v = [&](double x) { return engine.units().toUser(UnitGroup::specificVolume, x); };
    const auto q = [&](double x) { return engine.units().toUser(UnitGroup::quality, x); };
    EXPECT_EQ(allocationsOf([&] { return engine.HPT(&value, p(10.0), t(773.15)); }), 0) << "steam";
    EXPECT_EQ(allocationsOf([&] { return engine.HPT(&value, p(10.0), t(300.0)); }), 0) << "liquid";
    EXPECT_EQ(allocationsOf([&] { return engine.TPH(&value, p(10.0), h(3000.0)); }), 0) << "steam";
    EXPECT_EQ(allocationsOf([&] { return engine.TPH(&value, p(10.0), h(2000.0)); }), 0) << "both";
    EXPECT_EQ(allocationsOf([&] { return engine.TPH(&value, p(10.0), h(500.0)); }), 0) << "liquid";
    EXPECT_EQ(allocationsOf([&] { return engine.VPS(&value, p(1.0), s(4.0)); }), 0) << "nested";
    EXPECT_EQ(allocationsOf([&] { return engine.QTV(&value, t(450.0), v(0.1)); }), 0);
    EXPECT_EQ(allocationsOf([&] { return engine.HPU(&value, p(1.0), u(1500.0)); }), 0) << "nested";
    EXPECT_EQ(allocationsOf([&] { return engine.HSatPQ(&value, p(1.0), q(0.5)); }), 0);
    EXPECT_EQ(allocationsOf([&] { return engine.PSatT(&value, t(450.0)); }), 0);
    EXPECT_EQ(allocationsOf([&] { return engine.MPT(&value, p(1.0), t(500.0)); }), 0);
    EXPECT_EQ(
        allocationsOf([&] { return engine.QTS_PH(&value, &other, &third, p(1.0), h(1500.0)); }), 0);
    EXPECT_EQ(allocationsOf([&] {
                return engine.HVLTSat_PQ(&value, &other, &third, &fourth, p(1.0), q(0.5));
              }),
              0);
  }

  // Units with other factors and, where there are, offsets, for all that the calls take and give.
  void chooseOtherUnits() {
    for (const auto& [group, unit] :
         std::vector<std::pair<const char*, const char*>>{{"P", "psig"},
                                                          {"T", "F"},
                                                          {"H", "Btu/lb"},
                                                          {"U", "kcal/kg"},
                                                          {"S", "Btu/(lb.F)"},
                                                          {"V", "cm^3/g"},
                                                          {"R", "lb/ft^3"},
                                                          {"Q", "%"},
                                                          {"M", "cP"}}) {
      ASSERT_EQ(engine.SetUserUnit(group, unit), 1) << engine.LastError();
    }
  }
};

TEST_F(Allocations, OfCallsWithoutMessagesAreNone) { expectNone(); }

TEST_F(Allocations, AreNoneInOtherUnits) {
  chooseOtherUnits();
  expectNone();
}

TEST_F(Allocations, AreNoneInCustomUnits) {
  ASSERT_EQ(engine.SetAppLevel(3), 1);
  for (short group = 0; group < 9; ++group) {
    ASSERT_EQ(engine.SetCustomUserUnitIndex(group, "a unit with a long name", 1e-3, 0.0), 1);
  }
  expectNone();
}

TEST_F(Allocations, AreNoneWithLongCellReferencesBesideAFullTrace) {
  engine.SetupExcelTracing();
  engine.SetMaxTraceSize(3);
  double value = untouched;
  for (int i = 0; i < 10; ++i) engine.HPT(&value, 1.0, 100.0);
  fromCells = true;
  chooseOtherUnits();
  expectNone();
}

}  // namespace
}  // namespace calvex::test
