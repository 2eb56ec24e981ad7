// Numbers that no client should give: every member answers with a finite value or a reason.
#include <gtest/gtest.h>

#include <array>
#include <cfloat>

#include "support/engine.h"
#include "support/failures.h"

namespace calvex::test {
namespace {

const std::vector<double>& hostileNumbers() {
  static const std::vector<double> numbers{
      std::numeric_limits<double>::quiet_NaN(),
      std::numeric_limits<double>::infinity(),
      -std::numeric_limits<double>::infinity(),
      0.0,
      -0.0,
      5e-324,
      DBL_MAX,
      -DBL_MAX,
      1e300,
      1e-12,
      -1.0,
      0.00061173,
      1.0,
      22.055,
      300.0,
      647.126,
      2500.0,
      1e6,
  };
  return numbers;
}

class HostileNumbers : public testing::Test {
 protected:
  ZvThermoInt engine;

  // Calls the member, which has so many outputs, and judges each of them.
  template <std::size_t outputs, class Call>
  void judgeAll(Grid& grid, const std::string& inputs, Call call) {
    std::array<double, outputs> values;
    values.fill(untouched);
    engine.ClearTraceInfo();
    const int success = call(values.data());
    grid.holds(success == 0 || success == 1, inputs + ": answers neither 0 nor 1");
    for (const double value : values) {
      if (success == 1) {
        grid.holds(std::isfinite(value), fmt::format("{}: succeeds with {}", inputs, value));
        grid.holds(value != untouched, inputs + ": succeeds and does not write all");
      } else {
        grid.holds(value == untouched, fmt::format("{}: fails and writes {}", inputs, value));
      }
    }
    if (success == 0) {
      grid.holds(!engine.LastError().empty(), inputs + ": fails without a reason");
    }
    grid.holds(!engine.diagnostics().inCall(), inputs + ": leaves a call open");
  }
  template <class Call>
  void judge(Grid& grid, const std::string& inputs, Call call) {
    judgeAll<1>(grid, inputs, call);
  }
};

TEST_F(HostileNumbers, InEveryMemberFromTwoInputs) {
  Grid grid("members from two inputs");
  std::vector<PairMember> members = pairMembers();
  members.insert(members.end(), saturationMembers().begin(), saturationMembers().end());
  for (const PairMember& member : members) {
    for (const double first : hostileNumbers()) {
      for (const double second : hostileNumbers()) {
        judge(grid, fmt::format("{}({}, {})", member.name, first, second),
              [&](double* value) { return (engine.*member.call)(value, first, second); });
      }
    }
  }
}

TEST_F(HostileNumbers, InEveryMemberFromOneInput) {
  Grid grid("members from one input");
  for (const double input : hostileNumbers()) {
    judge(grid, fmt::format("PSatT({})", input),
          [&](double* value) { return engine.PSatT(value, input); });
    judge(grid, fmt::format("TSatP({})", input),
          [&](double* value) { return engine.TSatP(value, input); });
    judge(grid, fmt::format("XT({})", input),
          [&](double* value) { return engine.XT(value, input); });
  }
}

TEST_F(HostileNumbers, InTheMembersOfSeveralResults) {
  Grid grid("members of several results");
  for (const double first : hostileNumbers()) {
    for (const double second : hostileNumbers()) {
      for (const double third : {0.5, std::numeric_limits<double>::quiet_NaN()}) {
        judge(grid, fmt::format("HPTQ({}, {}, {})", first, second, third),
              [&](double* value) { return engine.HPTQ(value, first, second, third); });
      }
      judgeAll<2>(grid, fmt::format("QT_PH({}, {})", first, second),
                  [&](double* x) { return engine.QT_PH(x, x + 1, first, second); });
      judgeAll<3>(grid, fmt::format("QTS_PH({}, {})", first, second),
                  [&](double* x) { return engine.QTS_PH(x, x + 1, x + 2, first, second); });
      judgeAll<3>(grid, fmt::format("QTR_PH({}, {})", first, second),
                  [&](double* x) { return engine.QTR_PH(x, x + 1, x + 2, first, second); });
      judgeAll<4>(grid, fmt::format("HVLTSat_PQ({}, {})", first, second), [&](double* x) {
        return engine.HVLTSat_PQ(x, x + 1, x + 2, x + 3, first, second);
      });
    }
  }
}

// A result that its unit cannot hold fails the whole call, whichever of the results it is.
TEST_F(HostileNumbers, InUnitsThatMakeAnyOneResultInfinite) {
  ASSERT_EQ(engine.SetAppLevel(3), 1);
  Grid grid("results that are too large");
  const auto judgeBoth = [&](short group) {
    ASSERT_EQ(engine.SetCustomUserUnitIndex(group, "tiny", 1e-320, 0.0), 1);
    // Only results have these groups, or a zero.
    for (const double P : {1.0, 30.0}) {
      judgeAll<2>(grid, fmt::format("QT_PH({}, 0), group {}", P, group),
                  [&](double* x) { return engine.QT_PH(x, x + 1, P, 0.0); });
      judgeAll<3>(grid, fmt::format("QTS_PH({}, 0), group {}", P, group),
                  [&](double* x) { return engine.QTS_PH(x, x + 1, x + 2, P, 0.0); });
      judgeAll<3>(grid, fmt::format("QTR_PH({}, 0), group {}", P, group),
                  [&](double* x) { return engine.QTR_PH(x, x + 1, x + 2, P, 0.0); });
    }
    judgeAll<4>(grid, fmt::format("HVLTSat_PQ(1, 0), group {}", group),
                [&](double* x) { return engine.HVLTSat_PQ(x, x + 1, x + 2, x + 3, 1.0, 0.0); });
    ASSERT_EQ(engine.SetCustomUserUnitIndex(group, "unit", 1.0, 0.0), 1);
  };
  for (const short group : {short{0}, short{2}, short{4}, short{5}}) judgeBoth(group);
  ASSERT_EQ(engine.SetCustomUserUnitIndex(5, "tiny", 1e-320, 0.0), 1);
  EXPECT_EQ(errorOf(engine, &ZvThermoInt::HSatPQ, 1.0, 0.0), "Solution Error.");
}

TEST_F(HostileNumbers, WithThePolishOff) {
  engine.SetSatPolish(0);
  Grid grid("without polish");
  for (const std::string_view name : {"HPT", "TPH", "QTS", "PTR", "VPS", "HSatPQ", "RSatTQ"}) {
    for (const std::vector<PairMember>* members : {&pairMembers(), &saturationMembers()}) {
      for (const PairMember& member : *members) {
        if (member.name != name) continue;
        for (const double first : hostileNumbers()) {
          for (const double second : hostileNumbers()) {
            judge(grid, fmt::format("{}({}, {})", member.name, first, second),
                  [&](double* value) { return (engine.*member.call)(value, first, second); });
          }
        }
      }
    }
  }
}

TEST_F(HostileNumbers, InConvertAnswerWhatTheArithmeticGives) {
  for (const double input : hostileNumbers()) {
    double value = untouched;
    engine.ClearTraceInfo();
    const int success = engine.Convert("P", "psig", "bara", input, &value);
    EXPECT_EQ(success == 0, value == untouched) << input;
    if (std::isfinite(input) && std::abs(input) < 1e300) {
      EXPECT_EQ(success, 1) << input;
      EXPECT_TRUE(std::isfinite(value)) << input;
    }
  }
}

TEST_F(HostileNumbers, LeaveTheEngineAsGoodAsNew) {
  for (const PairMember& member : pairMembers()) {
    for (const double first : hostileNumbers()) {
      double value = untouched;
      (engine.*member.call)(&value, first, std::numeric_limits<double>::quiet_NaN());
    }
  }
  ZvThermoInt fresh;
  for (const PairMember& member : pairMembers()) {
    if (!member.isFromPT()) continue;
    EXPECT_EQ(valueOf(engine, member.call, 10.0, 773.15), valueOf(fresh, member.call, 10.0, 773.15))
        << member.name;
  }
}

}  // namespace
}  // namespace calvex::test
