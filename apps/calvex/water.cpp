#include "water.h"

#include <algorithm>

#include "call.h"
#include "diagnostics/formatting.h"
#include "output.h"
#include "steam/constants.h"
#include "steam/property.h"

namespace calvex::cli {

namespace {

// The letters are those of the engine's table.
Property propertyOf(char letter) {
  constexpr std::string_view order = "PTHSURVQAGMKCDZWNEIJBL";
  return quantity(Quantity::Letter(order.find(letter))).property;
}

}  // namespace

Answer Water::ask(std::string_view name, const std::vector<Given>& inputs) {
  const Member& member = memberNamed(name);
  Call call{&member, false, std::vector<Value>(member.parameters().size())};
  for (std::size_t i = 0; i < call.arguments.size(); ++i) {
    const Parameter& parameter = member.parameters()[i];
    if (!parameter.isInput()) continue;
    const auto given = std::ranges::find(inputs, parameter.name.front(), &Given::letter);
    call.arguments[i] = given->value;
  }
  const Outcome outcome = perform(client_, std::move(call));
  for (const std::string& warning : outcome.warnings) warnOf(warning);
  if (!outcome.succeeded()) {
    if (!outcome.reasonRecorded) return {std::nullopt, failureText(outcome)};
    const std::string_view blank = outcome.cause.empty() ? "" : " ";
    return {std::nullopt, fmt::format("{}{}{}", outcome.lastError, blank, outcome.cause)};
  }
  return {std::get<double>(outcome.call.arguments.front()), {}};
}

void Water::warnOf(std::string_view text) {
  if (std::ranges::find(warnings_, text) == warnings_.end()) warnings_.emplace_back(text);
}

double Water::property(char letter, double T, double density) const {
  return toUser(letter, evaluate(propertyOf(letter), T, density));
}

double Water::toUser(char letter, double value) const {
  const LetterExplanation& row = letterExplanation(letter);
  return row.hasUnit ? client_.units().toUser(row.group, value) : value;
}

double Water::toModel(char letter, double value) const {
  const LetterExplanation& row = letterExplanation(letter);
  return row.hasUnit ? client_.units().toInternal(row.group, value) : value;
}

std::string Water::unit(char letter) const {
  const LetterExplanation& row = letterExplanation(letter);
  return row.hasUnit ? currentUnit(client_.units(), static_cast<int>(row.group)) : std::string();
}

std::string_view phaseName(double P, double T, double density) {
  if (T >= constants::criticalTemperature) {
    return P >= constants::criticalPressure ? "supercritical fluid" : "superheated vapour";
  }
  return density > constants::criticalDensity ? "compressed liquid" : "superheated vapour";
}

std::optional<Saturation> saturationAt(Water& water, Given given, std::string* failure) {
  const bool byT = given.letter == 'T';
  Saturation line{};
  const auto number = [&](std::string_view member, const std::vector<Given>& inputs, char letter,
                          double& model) {
    const Answer answer = water.ask(member, inputs);
    if (answer.value) model = water.toModel(letter, *answer.value);
    if (!answer.value && failure != nullptr) *failure = answer.failure;
    return answer.value.has_value();
  };
  const auto atQuality = [&](double quality) {
    return std::vector<Given>{given, {'Q', water.toUser('Q', quality)}};
  };
  (byT ? line.T : line.P) = water.toModel(given.letter, given.value);
  const bool found =
      number(byT ? "PSatT" : "TSatP", {given}, byT ? 'P' : 'T', byT ? line.P : line.T) &&
      number(byT ? "RSatTQ" : "RSatPQ", atQuality(0.0), 'R', line.liquidDensity) &&
      number(byT ? "RSatTQ" : "RSatPQ", atQuality(1.0), 'R', line.vapourDensity);
  if (!found) return std::nullopt;
  return line;
}

}  // namespace calvex::cli
