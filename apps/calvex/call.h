/// \file
/// One call of a member: from words to arguments, and what came of it.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "client.h"
#include "server/member_explanations.h"

namespace calvex::cli {

/// A member with its arguments, ready to run.
struct Call {
  const Member* member;
  bool isPut;
  std::vector<Value> arguments;  ///< one for each parameter
  UnitChoice choice = {};        ///< of a member that takes units; the warning also of a setting
};

/// What a call answered.
struct Outcome {
  Call call;  ///< outputs are written into the arguments
  ZvCalvex::Result result;
  std::string lastError;        ///< UTF-8
  bool reasonRecorded = false;  ///< lastError is this call's
  bool tracing = true;
  std::vector<std::string> warnings;  ///< of this call and of those that it made, each once, UTF-8
  std::string cause = {};             ///< behind lastError, where that does not say it, UTF-8

  [[nodiscard]] bool succeeded() const noexcept { return result.success != 0; }
};

/// Throws UsageError with the nearest names.
[[nodiscard]] const Member& memberNamed(std::string_view name);

/// Parameters for which a caller gives a word: all inputs but arrays, which members fill.
[[nodiscard]] std::vector<const Parameter*> inputs(const Member& member);
[[nodiscard]] std::vector<const Parameter*> outputs(const Member& member);

/// How a parameter is told from others in text and JSON: its name, or "value" for the one value of
/// a setting or of a member that answers its value.
[[nodiscard]] std::string_view outputName(const Member& member, const Parameter& parameter);

/// The quantity, or what kind of value it is: "Pressure", "text".
[[nodiscard]] std::string_view meaning(const Parameter& parameter);

/// "P (Pressure, MPa), T (Temperature, K)".
[[nodiscard]] std::string describeInputs(const Member& member, const UserUnits& units);

/// "above 0 to 3000", in the client's unit.
[[nodiscard]] std::string limitsText(const Limits& limits, const Parameter& parameter,
                                     const UserUnits& units);

/// A setting takes no word (get) or one (put), every other member one word for each input:
/// in order, or each as NAME=VALUE. A unit may stand behind a number. Throws UsageError saying what
/// was expected.
[[nodiscard]] Call prepare(const Member& member, std::span<const std::string> words,
                           const UserUnits& units);

[[nodiscard]] Outcome perform(Client& client, Call call);

/// What a call as the trace has it was warned of, with those that it made, each text once, UTF-8.
[[nodiscard]] std::vector<std::string> warningsOf(const ZvFunctionCall& call,
                                                  const UserUnits& units);

/// "HPT failed: ..." with the reason as far as it is known.
[[nodiscard]] std::string failureText(const Outcome& outcome);

/// What a failed call would have needed, as far as its arguments tell: the nearest names of units,
/// the tokens that the member knows, the range of a setting. Empty when there is nothing to say.
[[nodiscard]] std::string hint(const Outcome& outcome);

}  // namespace calvex::cli
