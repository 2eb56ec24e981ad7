#include "server/direct_members.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace calvex {

namespace {

// The letters of both roads are the same, in the same order.
direct::Letter letterOf(Quantity::Letter letter) { return static_cast<direct::Letter>(letter); }
static_assert(static_cast<int>(Quantity::Letter::L) == static_cast<int>(direct::Letter::L));

std::optional<direct::Pair> pairOf(direct::Letter first, direct::Letter second) {
  for (int i = 0; i < direct::pairCount; ++i) {
    const auto pair = static_cast<direct::Pair>(i);
    if (firstOf(pair) == first && secondOf(pair) == second) return pair;
  }
  return std::nullopt;
}

}  // namespace

std::optional<DirectMember> directMember(const Member& member) {
  using direct::Letter;
  using direct::Pair;
  for (int i = 0; i < PropertyMember::count; ++i) {
    const PropertyMember& row = propertyMember(static_cast<PropertyMember::Index>(i));
    if (row.name != member.name) continue;
    const auto pair = pairOf(letterOf(row.first), letterOf(row.second));
    if (!pair) return std::nullopt;
    return DirectMember{*pair, letterOf(row.result)};
  }
  if (member.name == "PSatT") return DirectMember{Pair::TQ, Letter::P, true};
  if (member.name == "TSatP") return DirectMember{Pair::PQ, Letter::T, true};
#define X(result)                                                                    \
  if (member.name == #result "SatTQ") return DirectMember{Pair::TQ, Letter::result}; \
  if (member.name == #result "SatPQ") return DirectMember{Pair::PQ, Letter::result};
  CALVEX_SATURATION_RESULTS(X)
#undef X
  return std::nullopt;
}

std::optional<direct::Units> directUnits(const UserUnits& units) {
  if (units.mode() == UnitsMode::server) return std::nullopt;
  direct::Units all = direct::modelUnits();
  for (int i = 0; i < direct::letterCount; ++i) {
    const Quantity& row = quantity(static_cast<Quantity::Letter>(i));
    if (!row.hasUnit) continue;
    if (units.isInternal(row.group)) continue;
    const ZvUomLiteKeyword from = units.currentUnit(row.group);
    const ZvUomLiteKeyword& to = units.catalogue()[row.group].internalUnit();
    const double factor = from.factor / to.factor;
    // A custom unit may be of any numbers; these are none that values can be told in.
    if (!(std::fabs(factor) > 1e-100 && std::fabs(factor) < 1e100 && std::isfinite(from.offset))) {
      return std::nullopt;
    }
    all.at(static_cast<std::size_t>(i)) = {factor, from.offset - to.offset / factor, from.name};
  }
  return all;
}

DirectReason directReason(direct::Pair pair, double first, double second,
                          std::span<const direct::Letter> letters, const direct::Units& units,
                          const ZvThermoInt& engine) {
  DirectReason reason{direct::reason(pair, first, second, letters, units), {}};
  if (reason.text.empty()) return reason;
  ZvThermoInt asked;
  asked.TakeSettings(engine);
  asked.SetSatPolish(2);
  const short status = messageNumber(reason.text);
  // Those of the properties wanted first; the others refuse in the same words what all refuse.
  for (const bool wanted : {true, false}) {
    for (const Member& member : memberTable()) {
      const std::optional<DirectMember> direct = directMember(member);
      if (!direct || direct->pair != pair || direct->ofLiquid) continue;
      if ((std::ranges::find(letters, direct->result) != letters.end()) != wanted) continue;
      std::array<Value, 3> arguments{Value{}, first, second};
      if (member.invoke(asked, arguments) != 0) continue;
      if (messageNumber(asked.LastError()) != status) continue;
      return {asked.LastError(), asked.diagnostics().cause()};
    }
  }
  return reason;
}

bool hasDirectSettings(const ZvThermoInt& engine) {
  constexpr double tolerance = 1e-9;
  constexpr short iterations = 200;
  return engine.SatPolish() == 2 && engine.SolverTol() == tolerance &&
         engine.SolverIter() == iterations;
}

}  // namespace calvex
