#include "server/member_columns.h"

#include <algorithm>
#include <array>
#include <deque>
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

// What the rows of a request leave in the engine is theirs: only what somebody asks for is
// collected.
class QuietEngine {
 public:
  QuietEngine(ZvThermoInt& engine, bool reasons, bool warnings)
      : diagnostics_(engine.diagnostics()),
        tracing_(diagnostics_.tracingFlag()),
        level_(diagnostics_.level()) {
    diagnostics_.setTracing(reasons || warnings ? 1 : 0);
    diagnostics_.setLevel(warnings ? 1 : 0);
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

namespace {

// Asks the member for one row at a time and notes why it fails.
class MemberRows {
 public:
  MemberRows(const MemberRequest& request, ZvThermoInt& engine)
      : request_(request), engine_(engine), call_(request) {}

  void ask(std::size_t row) {
    if (call_(engine_, row)) {
      put(request_.status, row, short{0});
      // A call that succeeds without a warning leaves nothing.
      const ZvFunctionCall* left = engine_.diagnostics().root().firstChild();
      if (left == nullptr) return;
      if (request_.warning) request_.warning(row, *left);
      engine_.ClearTraceInfo();
      return;
    }
    for (const MemberRequest::Output& output : request_.outputs) put(output.value, row, none);
    if (!engine_.diagnostics().tracing()) return;
    put(request_.status, row, messageNumber(engine_.LastError()));
    if (request_.reason) {
      request_.reason(row, request_.withCause ? withCause() : engine_.LastError());
    }
    engine_.ClearTraceInfo();
  }

  static bool wantsReasons(const MemberRequest& request) {
    return request.status.data != nullptr || request.reason;
  }
  static bool wantsWarnings(const MemberRequest& request) { return bool(request.warning); }

  // Whether the member may warn of a row that the direct road answers: of inputs beyond the
  // strictly valid range, and of water below 325 K under more than 790 MPa, which the equation
  // makes unstable.
  [[nodiscard]] bool mayWarn(const DirectMember& member, std::size_t row) const {
    if (!request_.warning || member.pair == direct::Pair::PQ || member.pair == direct::Pair::TQ) {
      return false;
    }
    const auto input = [&](std::size_t i) {
      return engine_.units().toInternal(UnitGroup(request_.member.inputs()[i].group),
                                        at(request_.inputs[i], row));
    };
    const RangeLimits limits;
    const auto isUsual = [&](double T, double lowest) {
      return T >= lowest && T <= limits.TStrictMax;
    };
    if (member.pair == direct::Pair::PT) {
      constexpr double atLowestTemperature = 500.0, ofViscosity = 100.0;  // MPa
      const bool isViscosity = member.result == direct::Letter::M;
      return !isUsual(input(1), limits.TStrictMin) ||
             input(0) > (isViscosity ? ofViscosity : atLowestTemperature);
    }
    return direct::firstOf(member.pair) == direct::Letter::P ? input(0) > 790.0
                                                             : !isUsual(input(0), 325.0);
  }

 private:
  [[nodiscard]] std::string withCause() const {
    const std::string& cause = engine_.diagnostics().cause();
    return engine_.LastError() + (cause.empty() ? "" : " " + cause);
  }

  const MemberRequest& request_;
  ZvThermoInt& engine_;
  RowCall call_;
};

// The column from that row on.
template <class Column>
Column from(const Column& column, std::size_t row) {
  if (column.data == nullptr) return column;
  return {column.data + static_cast<std::ptrdiff_t>(row) * column.stride, column.stride};
}

// Rows through the direct road, in blocks: properties of one pair and the same inputs. What is
// refused of several is asked for one by one, and of one is the member's to decide.
class DirectRows {
 public:
  DirectRows(const DirectMember& pair, const direct::Units& units) : pair_(pair), units_(units) {}

  [[nodiscard]] bool takes(const DirectMember& member) const {
    return member.pair == pair_.pair && member.ofLiquid == pair_.ofLiquid;
  }
  void add(const MemberRequest& request, direct::Letter letter, MemberRows& rows) {
    for (const MemberRequest::Output& output : request.outputs) {
      targets_.push_back(output.value);
      results_.push_back({letter, {}});
    }
    members_.push_back({&request, letter, &rows});
  }

  void evaluate(std::size_t begin, std::size_t end) {
    std::array<short, 1024> status;
    for (std::size_t at = begin; at < end; at += status.size()) {
      const std::size_t count = std::min(end - at, status.size());
      for (std::size_t i = 0; i < results_.size(); ++i) results_[i].value = from(targets_[i], at);
      evaluate(results_, at, count, status.data());
      for (std::size_t i = 0; i < count; ++i) settle(at + i, status.at(i));
    }
  }

 private:
  struct OneMember {
    const MemberRequest* request;
    direct::Letter letter;
    MemberRows* rows;
  };

  void evaluate(std::span<const direct::Result> results, std::size_t at, std::size_t count,
                short* status) const {
    static constexpr double liquid = 0.0;
    const std::span<const direct::Column> inputs = members_.front().request->inputs;
    direct::Request request{pair_.pair, from(inputs[0], at),
                            pair_.ofLiquid ? direct::Column{&liquid, 0} : from(inputs[1], at),
                            results};
    request.status = {status};
    request.units = &units_;
    direct::evaluate(request, 0, count);
  }

  void settle(std::size_t row, short together) const {
    for (const OneMember& member : members_) {
      short status = together;
      if (status != 0 && members_.size() > 1) {
        double value = none;
        const direct::Result alone[] = {{member.letter, {&value}}};
        evaluate(alone, row, 1, &status);
        for (const MemberRequest::Output& output : member.request->outputs) {
          put(output.value, row, value);
        }
      }
      if (status == 0 && !member.rows->mayWarn({pair_.pair, member.letter}, row)) {
        put(member.request->status, row, short{0});
      } else {
        member.rows->ask(row);
      }
    }
  }

  DirectMember pair_;
  const direct::Units& units_;
  std::vector<direct::Target<double>> targets_;
  std::vector<direct::Result> results_;
  std::vector<OneMember> members_;
};

}  // namespace

void evaluate(const MemberRequest& request, ZvThermoInt& engine, std::size_t begin,
              std::size_t end) {
  evaluate({&request, 1}, engine, begin, end);
}

void evaluate(std::span<const MemberRequest> requests, ZvThermoInt& engine, std::size_t begin,
              std::size_t end) {
  const QuietEngine quiet(engine, std::ranges::any_of(requests, MemberRows::wantsReasons),
                          std::ranges::any_of(requests, MemberRows::wantsWarnings));
  const std::optional<direct::Units> units =
      hasDirectSettings(engine) ? directUnits(engine.units()) : std::nullopt;
  std::deque<MemberRows> members;  // they stay where they are
  std::vector<DirectRows> pairs;
  for (const MemberRequest& request : requests) {
    MemberRows& rows = members.emplace_back(request, engine);
    const std::optional<DirectMember> member =
        units ? directMember(request.member.member()) : std::nullopt;
    if (!member) {
      for (std::size_t row = begin; row < end; ++row) rows.ask(row);
      continue;
    }
    auto pair =
        std::ranges::find_if(pairs, [&](const DirectRows& known) { return known.takes(*member); });
    if (pair == pairs.end()) {
      pairs.emplace_back(*member, *units);
      pair = pairs.end() - 1;
    }
    pair->add(request, member->result, rows);
  }
  for (DirectRows& pair : pairs) pair.evaluate(begin, end);
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
