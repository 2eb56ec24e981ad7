#include "direct/reasons.h"

#include <fmt/printf.h>

#include <optional>
#include <string_view>

#include "diagnostics/messages.h"
#include "direct/member_road.h"
#include "steam/constants.h"

namespace calvex::direct {

namespace {

// An input as the members call it.
std::string_view nameOf(Letter letter) {
  switch (letter) {
    case Letter::P:
      return "Pressure";
    case Letter::T:
      return "Temperature";
    case Letter::H:
      return "Enthalpy";
    case Letter::S:
      return "Entropy";
    case Letter::U:
      return "Internal Energy";
    case Letter::R:
      return "Density";
    case Letter::V:
      return "Specific Volume";
    default:
      return "Quality";
  }
}

struct Range {
  Letter letter;
  double low;
  double high;
};

bool outside(const Range& range, double x) { return !(x >= range.low && x <= range.high); }

// The first range that the inputs, or the state that they have, are outside of.
std::optional<Range> violated(Pair pair, double first, double second,
                              std::span<const Letter> letters) {
  using namespace constants;
  const bool onLine = secondOf(pair) == Letter::Q;
  const Range pressure = onLine ? Range{Letter::P, triplePointPressure, criticalPressure}
                                : Range{Letter::P, 0.0, highestPressure};
  const Range temperature = onLine ? Range{Letter::T, triplePointTemperature, criticalTemperature}
                                   : Range{Letter::T, lowestTemperature, highestTemperature};
  const bool fromP = firstOf(pair) == Letter::P;
  if (pair == Pair::PT && outside(temperature, second)) return temperature;
  if (pair != Pair::HS && outside(fromP ? pressure : temperature, first)) {
    return fromP ? pressure : temperature;
  }
  if (onLine && outside({Letter::Q, 0.0, 1.0}, second)) return Range{Letter::Q, 0.0, 1.0};

  double state[] = {0.0, 0.0};
  const Letter both[] = {Letter::P, Letter::T};
  if (evaluate(pair, first, second, both, state) != 0) {
    if (pair != Pair::PT) return Range{Letter::T, triplePointTemperature, criticalTemperature};
    state[0] = first;
    state[1] = second;
  }
  for (const Letter letter : letters) {
    if (checkTransport(letter, state[0], state[1]) == 0) continue;
    const Range T{Letter::T, celsiusZero, highestTransportTemperature(letter)};
    if (outside(T, state[1])) return T;
    return Range{Letter::P, 0.0, highestTransportPressure(letter, state[1])};
  }
  return std::nullopt;
}

}  // namespace

std::string reasonText(int status, Pair pair, double first, double second,
                       std::span<const Letter> letters, const Units& units) {
  const auto message = static_cast<Message>(status);
  if (message == Message::outOfRange) {
    const bool nameFirst = pair == Pair::HS && !(first >= 0.0);
    return fmt::sprintf(messageText(message),
                        std::string(nameOf(nameFirst ? firstOf(pair) : secondOf(pair))));
  }
  // It names the solver's return code, which a status does not keep.
  if (message == Message::noSolution) {
    return secondOf(pair) == Letter::V
               ? MemberRoad().refusal(firstOf(pair) == Letter::P ? Pair::PR : Pair::TR, first,
                                      1.0 / second)
               : MemberRoad().refusal(pair, first, second);
  }
  if (message != Message::outOfRangeUnit) return std::string(messageText(message));
  const auto range = violated(pair, first, second, letters);
  if (!range) return {};
  const Unit& unit = units[static_cast<std::size_t>(range->letter)];
  const auto bound = [&](double x) { return fmt::sprintf("%.2f", x / unit.factor - unit.offset); };
  return fmt::sprintf(messageText(message), std::string(nameOf(range->letter)), bound(range->low),
                      bound(range->high), std::string(unit.name));
}

}  // namespace calvex::direct
