#include "steam/extremes.h"

#include <algorithm>
#include <cmath>

#include "steam/constants.h"
#include "steam/phase_equilibrium.h"
#include "steam/root_search.h"
#include "steam/saturation_correlations.h"

namespace calvex {

namespace {

using constants::criticalTemperature;
using constants::highestPressure;
using constants::highestTemperature;
using constants::lowestTemperature;
using constants::triplePointPressure;
using constants::triplePointTemperature;

/// The least and the greatest of what it is told; a NaN is none.
class Record {
 public:
  void take(double at, double value) {
    if (!(value >= least_.value)) least_ = {value, at};
    if (!(value <= greatest_.value)) greatest_ = {value, at};
  }
  [[nodiscard]] const Extreme& least() const { return least_; }
  [[nodiscard]] const Extreme& greatest() const { return greatest_; }

 private:
  Extreme least_{NAN, 0.0};
  Extreme greatest_{NAN, 0.0};
};

// Walks from one end to the other by equal factors and looks closer around the extremes met: golden
// section, to a hundredth of a step, where a flat top is known to 1e-5.
void walk(const auto& f, double from, double to, int steps, Record& record) {
  Record here;
  const double factor = std::pow(to / from, 1.0 / steps);
  const auto take = [&](double x) {
    const double value = f(x);
    if (std::isfinite(value)) here.take(x, value);
    return value;
  };
  for (int n = 0; n <= steps; ++n) take(n == steps ? to : from * std::pow(factor, n));
  for (const double sign : {1.0, -1.0}) {
    const double best = (sign > 0.0 ? here.greatest() : here.least()).at;
    if (best == 0.0) continue;  // no value at all
    constexpr double golden = 0.381966011250105;
    double a = std::max(from, best / factor);
    double b = std::min(to, best * factor);
    double x = a + golden * (b - a);
    double y = b - golden * (b - a);
    double fx = sign * take(x);
    double fy = sign * take(y);
    for (int n = 0; n < 10; ++n) {
      if (fx > fy) {
        b = y, y = x, fy = fx;
        fx = sign * take(x = a + golden * (b - a));
      } else {
        a = x, x = y, fx = fy;
        fy = sign * take(y = b - golden * (b - a));
      }
    }
  }
  for (const Extreme& one : {here.least(), here.greatest()}) record.take(one.at, one.value);
}

std::optional<Extremes> found(const Record& record) {
  if (!std::isfinite(record.least().value)) return std::nullopt;
  return Extremes{record.least(), record.greatest()};
}

Side sideAt(double P, double T) {
  if (T >= criticalTemperature) return Side::any;
  const double line = T < triplePointTemperature ? triplePointPressure : saturation::pressure(T);
  return P > line ? Side::liquid : Side::vapour;
}

}  // namespace

std::optional<Extremes> extremesAtPressure(double P, Property property) {
  const auto f = [&](double T) {
    const auto density = roots::density(P, T, sideAt(P, T));
    return density ? evaluate(property, T, *density) : NAN;
  };
  Record record;
  walk(f, lowestTemperature, highestTemperature, 16, record);
  return found(record);
}

std::optional<Extremes> extremesAtTemperature(double T, Property property) {
  constexpr double thinnest = 1e-30;
  const std::optional<double> densest = roots::density(highestPressure, T, Side::liquid);
  if (!densest) return std::nullopt;
  const auto f = [&](double density) { return evaluate(property, T, density); };
  Record record;
  record.take(thinnest, f(thinnest));
  constexpr double thin = 1e-3;  // below it a vapour is ideal
  if (T >= criticalTemperature) {
    walk(f, thin, *densest, 48, record);
  } else if (T >= triplePointTemperature) {
    const PhaseEquilibrium line = equilibriumAtT(T);
    walk(f, std::min(thin, line.vapourDensity), line.vapourDensity, 24, record);
    walk(f, line.liquidDensity, *densest, 12, record);
  } else {
    // Vapour below the triple point's pressure, water above it.
    const auto vapour = roots::density(triplePointPressure, T, Side::vapour);
    const auto liquid = roots::density(triplePointPressure, T, Side::liquid);
    if (vapour) walk(f, thin, *vapour, 4, record);
    if (liquid) walk(f, *liquid, *densest, 12, record);
  }
  auto extremes = found(record);
  if (!extremes) return extremes;
  for (Extreme* const one : {&extremes->least, &extremes->greatest}) {
    one->at = evaluate(Property::pressure, T, one->at);
  }
  return extremes;
}

}  // namespace calvex
