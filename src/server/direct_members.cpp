#include "server/direct_members.h"

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

// The solver's settings by default.
constexpr double tolerance = 1e-9;
constexpr short iterations = 200;

// The member of a letter from two others, on the line with "Sat" between them.
const Member* memberOf(direct::Letter result, direct::Letter first, direct::Letter second) {
  const auto name = [](direct::Letter letter) {
    return "PTHSURVQAGMKCDZWNEIJBL"[static_cast<std::size_t>(letter)];
  };
  std::string text(1, name(result));
  if (second == direct::Letter::Q) text += "Sat";
  return findMember(text + name(first) + name(second));
}

// A state asked for by the direct road, in the client's units.
struct Asked {
  direct::Pair pair;
  double first;
  double second;
  const direct::Units& units;

  short evaluate(direct::Letter letter, double& value) const {
    short status = 0;
    const direct::Result results[] = {{letter, {&value}}};
    direct::Request request{pair, {&first}, {&second}, results};
    request.status = {&status};
    request.units = &units;
    direct::evaluate(request, 0, 1);
    return status;
  }

  // The first refusal by a member, or else by what all members ask of their inputs.
  DirectReason reason(direct::Letter letter, short status, ZvThermoInt& engine) const {
    using direct::Letter;
    const auto refuses = [&](const Member* member, double a, double b) {
      std::array<Value, 3> arguments{Value{}, a, b};
      return member != nullptr && member->invoke(engine, arguments) == 0;
    };
    const auto said = [&] {
      return DirectReason{engine.LastError(), engine.diagnostics().cause()};
    };
    if (pair == direct::Pair::HS) {
      const auto notNegative = [&](Letter input, double x) {
        const Quantity& row = quantity(static_cast<Quantity::Letter>(input));
        return engine.notNegative(row.name, row.group, engine.units().toInternal(row.group, x));
      };
      if (!notNegative(Letter::H, first) || !notNegative(Letter::S, second)) return said();
    }
    // A mixture has what H stands for, and not what A does.
    const Letter like = ofMixture(letter) ? Letter::H : Letter::A;
    for (const Letter result : {letter, like, Letter::T, Letter::P}) {
      if (refuses(memberOf(result, firstOf(pair), secondOf(pair)), first, second)) return said();
    }
    // The range of a correlation, or no speed of sound.
    double P = 0.0;
    double T = 0.0;
    if (evaluate(Letter::P, P) == 0 && evaluate(Letter::T, T) == 0 &&
        refuses(memberOf(letter, Letter::P, Letter::T), P, T)) {
      return said();
    }
    if (pair == direct::Pair::HS && evaluate(Letter::P, P) != 0) {
      return {std::string(messageText(status)),
              "No state within the range is found that has both this enthalpy and this entropy."};
    }
    return {std::string(messageText(status)), {}};
  }
};

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

bool hasDirectSettings(const ZvThermoInt& engine) {
  return engine.SatPolish() == 2 && engine.SolverTol() == tolerance &&
         engine.SolverIter() == iterations;
}

DirectReason directReason(direct::Pair pair, double first, double second,
                          std::span<const direct::Letter> letters, const direct::Units& units,
                          const ZvThermoInt& engine) {
  const direct::Letter given = firstOf(pair);
  const Asked asked{pair, first, second, units};
  for (const direct::Letter letter : letters.empty() ? std::span(&given, 1) : letters) {
    double value = 0.0;
    if (const short status = asked.evaluate(letter, value); status != 0) {
      ZvThermoInt own;
      own.TakeSettings(engine);
      own.SetSatPolish(2);
      own.SetSolverTol(tolerance);
      own.SetSolverIter(iterations);
      return asked.reason(letter, status, own);
    }
  }
  return {};
}

}  // namespace calvex
