/// \file
/// Members over columns: every member that computes numbers from numbers, for many rows at once.
///
///     const NumericMember turbine = *NumericMember::of(*findMember("TurbineA"));
///     MemberRequest request{turbine, inputs, outputs};
///     evaluate(request, engine, rows, {});
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "direct/chunks.h"
#include "direct/direct_road.h"
#include "engine/thermo_engine.h"
#include "server/member_table.h"
#include "spreadsheet/variants.h"

namespace calvex {

/// A member seen as a function from numbers to numbers: properties, the saturation line, constants
/// and equipment; a spreadsheet member's outputs are those that its tokens name.
class NumericMember {
 public:
  struct Slot {
    std::string_view name;
    short group;  ///< unit group, or -1
  };

  /// Nothing for a member that takes or gives anything but numbers, and for settings.
  [[nodiscard]] static std::optional<NumericMember> of(const Member& member);

  [[nodiscard]] const Member& member() const noexcept { return *member_; }
  [[nodiscard]] std::span<const Slot> inputs() const noexcept { return inputs_; }
  /// Without the "p" of the parameters' names: "Power", "TOut".
  [[nodiscard]] std::span<const Slot> outputs() const noexcept { return outputs_; }
  /// The output of that name, whatever its case and with or without its "p".
  [[nodiscard]] std::optional<std::size_t> output(std::string_view name) const noexcept;

 private:
  friend class RowCall;
  explicit NumericMember(const Member& member) : member_(&member) {}

  const Member* member_;
  const spreadsheet::Variant* variant_ = nullptr;  ///< of a spreadsheet member
  std::vector<Slot> inputs_;
  std::vector<Slot> outputs_;
};

/// What is asked of a member.
struct MemberRequest {
  struct Output {
    std::size_t index;  ///< into the member's outputs
    direct::Target<double> value;
  };

  const NumericMember& member;
  /// One for each of the member's inputs, in the client's units.
  std::span<const direct::Column> inputs;
  std::span<const Output> outputs;
  /// 0 for success, else the number of the message (diagnostics/messages.h); 100 for a reason that
  /// is no message of that list, or none.
  direct::Target<short> status{};
  /// Told of each row that fails, with the member's last error (empty when it gave none),
  /// by the thread that has the row.
  std::function<void(std::size_t row, std::string_view reason)> reason{};
  /// Told of each row that is answered with a warning, with its call as the trace has it. Rows that
  /// may be warned of are then asked of the member.
  std::function<void(std::size_t row, const ZvFunctionCall& call)> warning{};
  /// Whether that has the cause behind it, where there is one: "Pressure ... . Pressure 0 is ...".
  bool withCause = false;
};

/// Computes the rows [begin, end) on this thread with this engine, whose trace is empty afterwards.
/// The outputs of a row that fails are NaN. Nothing is allocated for a row that succeeds.
///
/// The answers are the members'. Those of the members from two properties and of the saturation
/// line come by the direct road, many at once and equal to 1e-10, while the engine has its settings
/// (SatPolish 2, the solver's by default); a row that it refuses is asked of the member.
void evaluate(const MemberRequest& request, ZvThermoInt& engine, std::size_t begin,
              std::size_t end);

/// The same for several members that have the same inputs: those that the direct road answers from
/// one pair of properties cost one solve a row.
void evaluate(std::span<const MemberRequest> requests, ZvThermoInt& engine, std::size_t begin,
              std::size_t end);

/// Computes the rows [0, n) on all cores, each thread with an engine that has the units and the
/// solver's settings of `like`. Answers false when it was stopped. The units server (AppLevel 1)
/// has one client: with it there is one thread.
bool evaluate(const MemberRequest& request, const ZvThermoInt& like, std::size_t n,
              const ChunkedLoop& loop);

}  // namespace calvex
