#include "batch_plan.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>

#include "call.h"
#include "encoding.h"
#include "failure.h"
#include "quantities.h"
#include "server/suggestions.h"

namespace calvex::cli {

namespace {

class Planner {
 public:
  Planner(std::span<const std::string> header, const UserUnits& units)
      : header_(header), units_(units) {}

  BatchPlan plan(std::span<const BatchColumn> columns) {
    // The places of the columns that are read come first, so they are found before the others.
    for (const BatchColumn& column : columns) {
      checkName(column, columns);
      for (const BatchOperand& operand : column.operands) readIfInTable(operand, column);
    }
    plan_.places = plan_.read.size();
    for (const BatchColumn& column : columns) {
      try {
        add(column);
      } catch (const UsageError& error) {
        throw UsageError(fmt::format("{}: {}", inQuotes(column.source), error.what()));
      }
    }
    return std::move(plan_);
  }

 private:
  void checkName(const BatchColumn& column, std::span<const BatchColumn> columns) const {
    if (std::ranges::find(header_, column.name) != header_.end()) {
      throw UsageError(fmt::format("{}: the table has a column {} already", inQuotes(column.source),
                                   inQuotes(column.name)));
    }
    if (std::ranges::count(columns, column.name, &BatchColumn::name) > 1) {
      throw UsageError(fmt::format("{} is added twice", inQuotes(column.name)));
    }
  }

  void readIfInTable(const BatchOperand& operand, const BatchColumn& column) {
    const auto* const name = std::get_if<std::string>(&operand);
    if (name == nullptr) return;
    const auto found = std::ranges::find(header_, *name);
    if (found == header_.end()) return;
    if (std::ranges::count(header_, *name) > 1) {
      throw UsageError(fmt::format("{}: the table has more than one column {}",
                                   inQuotes(column.source), inQuotes(*name)));
    }
    const auto index = static_cast<std::size_t>(found - header_.begin());
    if (std::ranges::find(plan_.read, index) == plan_.read.end()) plan_.read.push_back(index);
  }

  void add(const BatchColumn& column) {
    if (column.member.empty()) {
      plan_.added.push_back(
          {column.name, {std::nullopt, std::get<double>(column.operands.front())}});
      return;
    }
    NumericMember member = numeric(column.member);
    const std::size_t output = outputOf(member, column.output);
    if (column.operands.size() != member.inputs().size()) {
      throw UsageError(fmt::format("{} takes {} inputs, not {}{}{}", member.member().name,
                                   member.inputs().size(), column.operands.size(),
                                   member.inputs().empty() ? "" : ": ", describeInputs(member)));
    }
    std::vector<BatchPlan::Operand> operands;
    operands.reserve(column.operands.size());
    for (const BatchOperand& operand : column.operands) operands.push_back(resolve(operand));
    plan_.added.push_back(
        {column.name, {resultOf(std::move(member), std::move(operands), output, column.name)}});
  }

  [[nodiscard]] static NumericMember numeric(const std::string& name) {
    const Member& member = memberNamed(name);
    if (std::optional<NumericMember> found = NumericMember::of(member)) return *std::move(found);
    throw UsageError(fmt::format("{} does not compute numbers from numbers", member.name));
  }

  [[nodiscard]] static std::size_t outputOf(const NumericMember& member, const std::string& name) {
    if (name.empty() && member.outputs().size() == 1) return 0;
    if (const auto output = member.output(name)) return *output;
    std::vector<std::string> names;
    for (const NumericMember::Slot& slot : member.outputs()) names.emplace_back(slot.name);
    const std::string_view called = member.member().name;
    if (name.empty()) {
      throw UsageError(
          fmt::format("{} has several results; name one of them, as in {}(...).{}\n"
                      "Results: {}",
                      called, called, names.front(), fmt::join(names, ", ")));
    }
    throw UsageError(fmt::format("{} has no result {}{}\nResults: {}", called, inQuotes(name),
                                 didYouMean(name, names), fmt::join(names, ", ")));
  }

  [[nodiscard]] std::string describeInputs(const NumericMember& member) const {
    std::vector<std::string> texts;
    for (const NumericMember::Slot& slot : member.inputs()) {
      const std::string unit = currentUnit(units_, slot.group);
      texts.push_back(fmt::format("{}{}", slot.name, unit.empty() ? "" : " (" + unit + ")"));
    }
    return fmt::format("{}", fmt::join(texts, ", "));
  }

  [[nodiscard]] BatchPlan::Operand resolve(const BatchOperand& operand) const {
    if (const auto* const number = std::get_if<double>(&operand)) return {std::nullopt, *number};
    const auto& name = std::get<std::string>(operand);
    if (const auto added = std::ranges::find(plan_.added, name, &BatchPlan::Added::name);
        added != plan_.added.end()) {
      return added->value;
    }
    for (std::size_t place = 0; place < plan_.read.size(); ++place) {
      if (header_[plan_.read[place]] == name) return {place};
    }
    std::vector<std::string> names(header_.begin(), header_.end());
    for (const BatchPlan::Added& added : plan_.added) names.push_back(added.name);
    if (!unitBehind(name).empty()) {
      throw UsageError(fmt::format(
          "{} is neither a column nor a number; numbers are plain here, in the units that -u "
          "chooses, as in 500 with -u T=C",
          inQuotes(name)));
    }
    throw UsageError(fmt::format(
        "there is no column {}{}\nColumns: {} (an added column can be used by those behind it)",
        inQuotes(name), didYouMean(name, names), fmt::join(names, ", ")));
  }

  std::size_t resultOf(NumericMember member, std::vector<BatchPlan::Operand> operands,
                       std::size_t output, const std::string& column) {
    auto call = std::ranges::find_if(plan_.calls, [&](const BatchPlan::Call& known) {
      return &known.member.member() == &member.member() && known.operands == operands;
    });
    if (call == plan_.calls.end()) {
      // Behind the last one with the same inputs.
      const auto last = std::ranges::find(plan_.calls.rbegin(), plan_.calls.rend(), operands,
                                          &BatchPlan::Call::operands);
      const auto place = last == plan_.calls.rend() ? plan_.calls.end() : last.base();
      call = plan_.calls.insert(place, {std::move(member), std::move(operands), {}, {}});
    }
    call->columns += (call->columns.empty() ? "" : ", ") + column;
    for (const BatchPlan::Result& result : call->results) {
      if (result.output == output) return result.place;
    }
    call->results.push_back({output, plan_.places});
    return plan_.places++;
  }

  std::span<const std::string> header_;
  const UserUnits& units_;
  BatchPlan plan_;
};

}  // namespace

BatchPlan makeBatchPlan(std::span<const BatchColumn> columns, std::span<const std::string> header,
                        const UserUnits& units) {
  return Planner(header, units).plan(columns);
}

}  // namespace calvex::cli
