/// \file
/// The results of an equipment model: all of them are written, or none.
#pragma once

#include <cmath>
#include <initializer_list>
#include <optional>

#include "engine/thermo_engine.h"

namespace calvex {

/// A result in model units of its group, or as the client gets it.
struct ModelResult {
  ModelResult(double* target, double modelValue, UnitGroup itsGroup)
      : out(target), value(modelValue), group(itsGroup) {}
  ModelResult(double* target, double userValue) : out(target), value(userValue) {}

  double* out;
  double value;
  std::optional<UnitGroup> group;
};

/// Writes the results in the client's units. One that is not finite is none: message 104, false,
/// and nothing written.
inline bool giveAll(ZvThermoInt& engine, std::initializer_list<ModelResult> results) {
  const auto shown = [&](const ModelResult& result) {
    return result.group ? engine.units().toUser(*result.group, result.value) : result.value;
  };
  for (const ModelResult& result : results) {
    if (!std::isfinite(shown(result))) return engine.fail(Message::solutionError);
  }
  for (const ModelResult& result : results) *result.out = shown(result);
  return true;
}

}  // namespace calvex
