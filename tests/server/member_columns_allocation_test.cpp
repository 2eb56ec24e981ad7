// A row that succeeds takes nothing from the heap, however many there are.
#include <gtest/gtest.h>

#include "allocation_counter.h"
#include "server/member_columns.h"
#include "support/engine.h"

namespace calvex::test {
namespace {

long allocationsOf(std::string_view name, std::vector<double> row, std::size_t rows) {
  ZvThermoInt engine;
  const NumericMember member = NumericMember::of(*findMember(name)).value();
  std::vector<direct::Column> inputs;
  for (const double& value : row) inputs.push_back({&value, 0});
  std::vector<double> values(rows);
  std::vector<short> status(rows, -1);
  const MemberRequest::Output outputs[] = {{0, {values.data()}}};
  const MemberRequest request{member, inputs, outputs, {status.data()}};
  evaluate(request, engine, 0, 1);  // warms the engine
  const long before = allocations();
  evaluate(request, engine, 0, rows);
  const long taken = allocations() - before;
  EXPECT_EQ(status, std::vector<short>(rows, 0)) << name;
  return taken;
}

TEST(MemberColumnsAllocations, DoNotGrowWithTheRows) {
  const std::pair<std::string_view, std::vector<double>> calls[] = {
      {"HPT", {10, 700}},
      {"QPH", {1, 2000}},
      {"TurbineA", {3214, 4, 0.01, 0.8, 10}},
      {"XLTurbineA", {3214, 4, 0.01, 0.8, 10}},
  };
  for (const auto& [name, row] : calls) {
    const long few = allocationsOf(name, row, 2);
    EXPECT_EQ(allocationsOf(name, row, 200), few) << name;
  }
}

}  // namespace
}  // namespace calvex::test
