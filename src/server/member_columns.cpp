#include "server/member_columns.h"

#include <algorithm>
#include <array>
#include <limits>
#include <memory>

#include "server/direct_members.h"

namespace calvex {

namespace {

constexpr double none = std::numeric_limits<double>::quiet_NaN();

constexpr char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool equalInAnyCase(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, lower, lower);
}

// The parameters for results are named as pointers are.
std::string_view withoutPointerSign(std::string_view name) {
  const bool pointer = name.size() > 1 && name[0] == 'p' && name[1] >= 'A' && name[1] <= 'Z';
  return pointer ? name.substr(1) : name;
}

const spreadsheet::Variant* variantOf(const Member& member) {
  constexpr std::string_view prefix = "XL";
  if (!member.name.starts_with(prefix)) return nullptr;
  const auto variants = spreadsheet::variantTable();
  const auto found =
      std::ranges::find(variants, member.name.substr(prefix.size()), &spreadsheet::Variant::name);
  return found == variants.end() ? nullptr : &*found;
}

double at(const direct::Column& column, std::size_t row) {
  return column.data[static_cast<std::ptrdiff_t>(row) * column.stride];
}

template <class T>
void put(const direct::Target<T>& target, std::size_t row, T value) {
  if (target.data != nullptr) target.data[static_cast<std::ptrdiff_t>(row) * target.stride] = value;
}

// What the rows of a request leave in the engine is theirs: no warnings are collected, and no trace
// at all where nobody asks for reasons.
class QuietEngine {
 public:
  QuietEngine(ZvThermoInt& engine, bool reasons)
      : diagnostics_(engine.diagnostics()),
        tracing_(diagnostics_.tracingFlag()),
        level_(diagnostics_.level()) {
    diagnostics_.setTracing(reasons ? 1 : 0);
    diagnostics_.setLevel(0);
    diagnostics_.clear();
  }
  ~QuietEngine() {
    diagnostics_.setTracing(tracing_);
    diagnostics_.setLevel(level_);
  }
  QuietEngine(const QuietEngine&) = delete;
  QuietEngine& operator=(const QuietEngine&) = delete;

 private:
  Diagnostics& diagnostics_;
  int tracing_;
  short level_;
};

}  // namespace

std::optional<NumericMember> NumericMember::of(const Member& member) {
  if (member.isProperty) return std::nullopt;
  NumericMember numeric(member);
  numeric.variant_ = variantOf(member);
  for (const Parameter& parameter : member.parameters()) {
    if (parameter.type != ValueType::real) {
      if (numeric.variant_ != nullptr) continue;  // the text of tokens and the array for results
      return std::nullopt;
    }
    auto& slots = parameter.isInput() ? numeric.inputs_ : numeric.outputs_;
    slots.push_back({parameter.isInput() ? parameter.name : withoutPointerSign(parameter.name),
                     parameter.group});
  }
  if (numeric.variant_ != nullptr) {
    for (const spreadsheet::Token& token : numeric.variant_->tokens()) {
      numeric.outputs_.push_back({token.text, static_cast<short>(token.group)});
    }
  }
  if (numeric.outputs_.empty()) return std::nullopt;
  return numeric;
}

std::optional<std::size_t> NumericMember::output(std::string_view name) const noexcept {
  const auto named = [&](std::string_view wanted) {
    return std::ranges::find_if(
        outputs_, [&](const Slot& slot) { return equalInAnyCase(slot.name, wanted); });
  };
  auto found = named(name);
  if (found == outputs_.end() && (name.starts_with('p') || name.starts_with('P'))) {
    found = named(name.substr(1));
  }
  if (found == outputs_.end()) return std::nullopt;
  return static_cast<std::size_t>(found - outputs_.begin());
}

/// Calls a member once for each row; what a row needs is laid out before the first.
class RowCall {
 public:
  explicit RowCall(const MemberRequest& request)
      : request_(request),
        member_(request.member),
        arguments_(member_.member().parameters().size()) {
    if (member_.variant_ == nullptr) {
      for (std::size_t i = 0; i < arguments_.size(); ++i) {
        (member_.member().parameters()[i].isInput() ? inputPlaces_ : outputPlaces_).push_back(i);
      }
      return;
    }
    for (const MemberRequest::Output& output : request.outputs) {
      const int flag = member_.variant_->tokens()[output.index].flag;
      if (flag != spreadsheet::always) flags_.at(static_cast<std::size_t>(flag)) = 1;
    }
  }

  // False when the member fails; a value that it did not write is none.
  bool operator()(ZvThermoInt& engine, std::size_t row) {
    return member_.variant_ != nullptr ? callModel(engine, row) : callMember(engine, row);
  }

 private:
  bool callMember(ZvThermoInt& engine, std::size_t row) {
    for (std::size_t i = 0; i < inputPlaces_.size(); ++i) {
      arguments_[inputPlaces_[i]] = at(request_.inputs[i], row);
    }
    for (const std::size_t place : outputPlaces_) arguments_[place] = none;
    if (member_.member().invoke(engine, arguments_) == 0) return false;
    for (const MemberRequest::Output& output : request_.outputs) {
      put(output.value, row, std::get<double>(arguments_[outputPlaces_[output.index]]));
    }
    return true;
  }

  bool callModel(ZvThermoInt& engine, std::size_t row) {
    for (std::size_t i = 0; i < request_.inputs.size(); ++i)
      inputs_[i] = at(request_.inputs[i], row);
    outputs_.fill(none);
    const int success = engine.call(member_.variant_->name, [&] {
      return member_.variant_->run(engine, outputs_.data(), inputs_.data(), flags_.data()) != 0;
    });
    if (success == 0) return false;
    for (const MemberRequest::Output& output : request_.outputs) {
      const spreadsheet::Token& token = member_.variant_->tokens()[output.index];
      put(output.value, row, outputs_.at(static_cast<std::size_t>(token.output)));
    }
    return true;
  }

  const MemberRequest& request_;
  const NumericMember& member_;
  std::vector<Value> arguments_;
  std::vector<std::size_t> inputPlaces_;
  std::vector<std::size_t> outputPlaces_;
  std::array<double, maxParameters> inputs_{};
  std::array<double, spreadsheet::maxOutputs> outputs_{};
  std::array<int, spreadsheet::maxFlags> flags_{};
};

/// Rows through the direct road, in blocks; those that it refuses are the member's to decide.
class DirectRows {
 public:
  static std::optional<DirectRows> of(const MemberRequest& request, const ZvThermoInt& engine) {
    const std::optional<DirectMember> member = directMember(request.member.member());
    if (!member || !hasDirectSettings(engine)) return std::nullopt;
    const std::optional<direct::Units> units = directUnits(engine.units());
    if (!units) return std::nullopt;
    return DirectRows(request, *member, *units);
  }

  template <class Refused>
  void evaluate(std::size_t begin, std::size_t end, Refused&& refused) {
    static constexpr double liquid = 0.0;
    std::array<short, 1024> status;
    for (std::size_t at = begin; at < end;) {
      const std::size_t count = std::min(end - at, status.size());
      for (std::size_t i = 0; i < results_.size(); ++i) {
        results_[i].value = from(request_.outputs[i].value, at);
      }
      direct::Request request{
          member_.pair, from(request_.inputs[0], at),
          member_.ofLiquid ? direct::Column{&liquid, 0} : from(request_.inputs[1], at), results_};
      request.status = {status.data()};
      request.units = &units_;
      direct::evaluate(request, 0, count);
      for (std::size_t i = 0; i < count; ++i) {
        if (status.at(i) != 0) {
          refused(at + i);
        } else {
          put(request_.status, at + i, short{0});
        }
      }
      at += count;
    }
  }

 private:
  DirectRows(const MemberRequest& request, const DirectMember& member, const direct::Units& units)
      : request_(request), member_(member), units_(units), results_(request.outputs.size()) {
    for (direct::Result& result : results_) result.letter = member.result;
  }

  // The column from that row on.
  template <class Column>
  static Column from(const Column& column, std::size_t row) {
    if (column.data == nullptr) return column;
    return {column.data + static_cast<std::ptrdiff_t>(row) * column.stride, column.stride};
  }

  const MemberRequest& request_;
  DirectMember member_;
  direct::Units units_;
  std::vector<direct::Result> results_;
};

void evaluate(const MemberRequest& request, ZvThermoInt& engine, std::size_t begin,
              std::size_t end) {
  const bool reasons = request.status.data != nullptr || request.reason;
  const QuietEngine quiet(engine, reasons);
  RowCall call(request);
  const auto ask = [&](std::size_t row) {
    if (call(engine, row)) {
      put(request.status, row, short{0});
      return;
    }
    for (const MemberRequest::Output& output : request.outputs) put(output.value, row, none);
    if (!reasons) return;
    put(request.status, row, messageNumber(engine.LastError()));
    if (request.reason) request.reason(row, engine.LastError());
    engine.ClearTraceInfo();
  };
  if (std::optional<DirectRows> rows = DirectRows::of(request, engine)) {
    rows->evaluate(begin, end, ask);
  } else {
    for (std::size_t row = begin; row < end; ++row) ask(row);
  }
}

bool evaluate(const MemberRequest& request, const ZvThermoInt& like, std::size_t n,
              const ChunkedLoop& loop) {
  ChunkedLoop ours = loop;
  if (like.units().mode() == UnitsMode::server) ours.threads = 1;
  std::vector<std::unique_ptr<ZvThermoInt>> engines(ours.workers(n));
  for (auto& engine : engines) {
    engine = std::make_unique<ZvThermoInt>();
    engine->TakeSettings(like);
  }
  return forEachChunk(n, ours, [&](const Chunk& chunk) {
    evaluate(request, *engines[chunk.worker], chunk.begin, chunk.end);
  });
}

}  // namespace calvex
