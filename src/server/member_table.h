/// \file
/// The member table: one row for each member of `IZvCalvex`. Every face that a client sees is
/// driven by it: dispatch by number and by name, the command line and its help.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "server/value.h"
#include "units/unit_catalogue.h"

namespace calvex {

class ZvThermoInt;

enum class Direction : unsigned char { in, out, inOut, retval };

/// As an interface definition has it: "in", "out", "in, out", "out, retval".
[[nodiscard]] std::string_view directionName(Direction direction) noexcept;

struct Parameter {
  std::string_view name;
  ValueType type;
  Direction direction;
  short group;  ///< unit group of the value, or -1

  [[nodiscard]] bool hasUnit() const noexcept { return group >= 0; }
  [[nodiscard]] bool isInput() const noexcept {
    return direction == Direction::in || direction == Direction::inOut;
  }
  [[nodiscard]] bool isOutput() const noexcept { return direction != Direction::in; }
};

/// How a member answers.
enum class ReturnStyle : unsigned char {
  success,  ///< always S_OK; the engine's 1 or 0 is the last argument, `pSucc`
  status,   ///< S_OK when the engine succeeds, S_FALSE when it does not
  value,    ///< always S_OK; the engine's result is the value itself
};

/// Runs an operation of the engine on its arguments, in call order; outputs are written into
/// theirs. Answers the success flag (1 for members whose result is the value).
using Operation = int (*)(ZvThermoInt& engine, std::span<Value> arguments);

/// Answers the address of a member's function in the dual interface. A function of each signature
/// has a type of its own, which a table cannot hold.
using EntryPoint = const void* (*)();

/// The longest list of parameters (`TurbineA3`).
inline constexpr int maxParameters = 21;

struct Member {
  short dispatchId;
  std::string_view name;
  ReturnStyle style;
  bool isProperty;  ///< a setting: `invoke` gets, `put` puts (null: read only)
  Operation invoke;
  Operation put;
  /// Call order, without `pSucc`; of a setting or value member the one value.
  std::array<Parameter, maxParameters> parameterStore;
  int parameterCount;
  EntryPoint entry = nullptr;  ///< null on a platform without the object model
  EntryPoint putEntry = nullptr;

  [[nodiscard]] std::span<const Parameter> parameters() const noexcept {
    return {parameterStore.data(), static_cast<std::size_t>(parameterCount)};
  }
};

/// All members, by dispatch id.
[[nodiscard]] std::span<const Member> memberTable() noexcept;

/// nullptr when there is no such member; names are found whatever their case.
[[nodiscard]] const Member* findMember(std::string_view name);
[[nodiscard]] const Member* findMember(int dispatchId) noexcept;

}  // namespace calvex
