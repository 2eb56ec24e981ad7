/// \file
/// What each member means in words: what it computes, what its parameters are, between which limits
/// they lie, and a call with sensible numbers. Every face's help reads it from here. Texts are
/// ASCII; numbers are in model units (K, MPa, kg/m3, kJ/kg, kJ/(kg.K), kg/s, kW).
#pragma once

#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "server/member_table.h"
#include "spreadsheet/variants.h"

namespace calvex {

/// The headings under which members are listed, in this order.
enum class MemberHeading : unsigned char {
  properties,
  saturation,
  equipment,    ///< also the models that only have a spreadsheet variant
  spreadsheet,  ///< the variants of models that have a member of their own
  units,
  diagnostics,
  settings,
};
inline constexpr int memberHeadingCount = 7;

/// "properties", "saturation line", ...
[[nodiscard]] std::string_view headingText(MemberHeading heading) noexcept;

/// Between which values an input is accepted; an infinite bound is none.
struct Limits {
  double low = -std::numeric_limits<double>::infinity();
  double high = std::numeric_limits<double>::infinity();
  bool aboveLow = false;   ///< the lower bound itself is refused
  bool belowHigh = false;  ///< the upper bound itself is refused
};

struct ParameterExplanation {
  std::string label;             ///< short and unique among a member's results: "H", "TOut1"
  std::string words;             ///< "enthalpy", "temperature at outlet 1"
  std::optional<Limits> limits;  ///< of an input or of a setting's value
};

/// An input of an example: a number in model units or a text.
using ExampleInput = std::variant<double, std::string>;

struct ExampleCall {
  const Member* member;
  std::vector<ExampleInput> inputs;  ///< of a setting: its new value
};

struct MemberExplanation {
  MemberHeading heading{};
  std::string title;                             ///< "enthalpy from pressure and temperature"
  std::string notes;                             ///< what else to know, in sentences; may be empty
  std::string other;                             ///< other words that a user may look for
  std::vector<ParameterExplanation> parameters;  ///< in the order of Member::parameters()
  std::vector<ExampleCall> preparation;          ///< what must run before the example
  ExampleCall example;                           ///< succeeds
};

[[nodiscard]] MemberExplanation explanation(const Member& member);

/// What a parameter is called where its value is shown, and in words. Cheaper than `explanation`.
[[nodiscard]] ParameterExplanation parameterExplanation(const Member& member,
                                                        const Parameter& parameter);

/// A letter of the property members' names.
struct LetterExplanation {
  char letter;
  UnitGroup group;
  bool hasUnit;
  std::string_view words;       ///< "enthalpy"
  std::string_view definition;  ///< a sentence, or empty
  std::string_view other;       ///< other words that a user may look for or type
};
[[nodiscard]] std::span<const LetterExplanation> letterExplanations() noexcept;
/// The row of a letter that has one.
[[nodiscard]] const LetterExplanation& letterExplanation(char letter) noexcept;

/// The row of a spreadsheet variant; nullptr for other members.
[[nodiscard]] const spreadsheet::Variant* variantOf(const Member& member) noexcept;
/// Its tokens; none for other members.
[[nodiscard]] std::span<const spreadsheet::Token> tokensOf(const Member& member) noexcept;
/// A token's result in words: "outlet temperature".
[[nodiscard]] std::string tokenWords(const Member& member, const spreadsheet::Token& token);

namespace detail {

/// A member that is no property, or an equipment model (its spreadsheet variant has the same row).
struct ExplanationRow {
  std::string_view member;
  MemberHeading heading;
  std::string_view title;
  std::string_view notes;
  /// Parameters whose words are not the common ones: "MIn=flow that leaves at outlet 1; ...". A
  /// word with a slash gives the label too: "pVal/unit=name of the unit".
  std::string_view parameters;
  /// Inputs separated by blanks; texts that have blanks or could be numbers stand in quotes.
  std::string_view example;
  std::string_view preparation = {};  ///< calls separated by semicolons
  std::string_view other = {};        ///< other words that a user may look for
};
/// nullptr when there is none.
[[nodiscard]] const ExplanationRow* explanationRow(std::string_view member) noexcept;

struct CommonWords {
  std::string_view parameter;
  std::string_view words;
};
/// Words of parameters that mean the same in all models; empty when there are none.
[[nodiscard]] std::string_view commonWords(std::string_view parameter) noexcept;

struct SpecialLimits {
  std::string_view member;
  std::string_view parameter;
  Limits limits;
};
/// Limits that are not those of the parameter's quantity; nullptr when there are none.
[[nodiscard]] const Limits* specialLimits(std::string_view member,
                                          std::string_view parameter) noexcept;

}  // namespace detail
}  // namespace calvex
