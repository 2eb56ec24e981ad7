#include "steam/root_search.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "steam/constants.h"

namespace calvex::roots {

namespace {

using constants::criticalTemperature;
using constants::densest;
using constants::phasesMeet;

struct Interval {
  double from, to;  // the function has other signs at the ends
};

// The root between two ends of other signs, to the last bits: inverse quadratic interpolation where
// it is safe, else halving (T. R. Chandrupatla, Adv. Eng. Softw. 28 (1997) 145).
double rootWithin(const auto& f, Interval interval) {
  double x1 = interval.to, f1 = f(x1);
  double x2 = interval.from, f2 = f(x2);
  double x3 = x2, f3 = f2;
  double share = 0.5;
  for (int n = 0; n < 100; ++n) {
    const double x = x1 + share * (x2 - x1);
    const double fx = f(x);
    if ((fx > 0.0) == (f1 > 0.0)) {
      x3 = x1, f3 = f1;
    } else {
      x3 = x2, f3 = f2;
      x2 = x1, f2 = f1;
    }
    x1 = x, f1 = fx;
    const double best = std::fabs(f1) < std::fabs(f2) ? x1 : x2;
    const double tolerance = 1e-15 * std::fabs(best) / std::fabs(x2 - x1);
    if (tolerance > 0.5 || f1 == 0.0 || f2 == 0.0) return best;
    const double xi = (x1 - x2) / (x3 - x2);
    const double phi = (f1 - f2) / (f3 - f2);
    share = 0.5;
    if (phi * phi < xi && (1.0 - phi) * (1.0 - phi) < 1.0 - xi) {
      share =
          f1 / (f2 - f1) * f3 / (f2 - f3) + (x3 - x1) / (x2 - x1) * f1 / (f3 - f1) * f2 / (f3 - f2);
    }
    share = std::clamp(share, tolerance, 1.0 - tolerance);
  }
  return x1;
}

// Where f, which turns back towards zero between a and c, crosses it, if it does: golden section.
std::optional<double> beyondZero(const auto& f, double a, double c, double sign) {
  constexpr double golden = 0.381966011250105;
  double x = a + golden * (c - a);
  double fx = sign * f(x);
  for (int n = 0; n < 40 && fx > 0.0; ++n) {
    const bool right = std::fabs(c - x) > std::fabs(x - a);
    const double y = x + golden * ((right ? c : a) - x);
    const double fy = sign * f(y);
    if (fy < fx) {
      (right ? a : c) = x;
      x = y;
      fx = fy;
    } else {
      (right ? c : a) = y;
    }
  }
  return fx <= 0.0 ? std::optional(x) : std::nullopt;
}

// The first change of sign on the way from `from` to `to` in the steps of `next`; two changes
// within a step are seen by the turn between them.
std::optional<Interval> firstChange(const auto& f, double from, double to, const auto& next) {
  const bool upwards = to > from;
  double before = from;
  double x0 = from, f0 = f(from);
  bool nearing = true;  // |f| has fallen on the last step
  while (x0 != to) {
    double x = next(x0);
    if (upwards ? x > to : x < to) x = to;
    const double fx = f(x);
    if ((f0 > 0.0) != (fx > 0.0) && std::isfinite(f0) && std::isfinite(fx)) return Interval{x0, x};
    const bool nears = std::fabs(fx) < std::fabs(f0);
    if (nearing && (!nears || x == to)) {
      if (const auto beyond = beyondZero(f, before, x, f0 > 0.0 ? 1.0 : -1.0)) {
        return Interval{before, *beyond};
      }
    }
    before = x0;
    nearing = nears;
    x0 = x;
    f0 = fx;
  }
  return std::nullopt;
}

auto scaledBy(double factor) {
  return [factor](double x) { return x * factor; };
}

double pressure(const TemperaturePart& temperature, double density) {
  return HelmholtzPoint(temperature, density).pressure();
}

bool isStable(const TemperaturePart& temperature, double density) {
  return HelmholtzPoint(temperature, density).pressureSlope() > 0.0;
}

// Newton's method from outside of the root: the pressure's curve bends towards it, from the light
// side for a vapour, from the dense one for a liquid, so that no step passes it.
std::optional<double> newton(const TemperaturePart& temperature, double P, double from) {
  double density = from;
  for (int n = 0; n < 20; ++n) {
    const HelmholtzPoint point(temperature, density);
    const double slope = point.pressureSlope();
    if (!(slope > 0.0)) return std::nullopt;
    const double step = 1000.0 * (P - point.pressure()) / slope;
    density += step;
    if (!(density > 0.0 && density < densest)) return std::nullopt;
    if (std::fabs(step) < 1e-12 * density) return density;
  }
  return std::nullopt;
}

}  // namespace

std::optional<double> density(double P, double T, Side side) {
  TemperaturePart temperature;
  temperature.prepare(T, TemperaturePart::Order::pressure);
  const auto f = [&](double density) { return pressure(temperature, density) - P; };
  const double idealGas = 1000.0 * P / (constants::gasConstant * T);
  // From a denormal number no factor leads on: 5e-324 MPa.
  if (!std::isnormal(idealGas / 20.0)) return std::nullopt;
  const bool twoSides = T < criticalTemperature;
  // Away from the critical point, where the curve bends both ways.
  if (T > 700.0 || (twoSides && side == Side::vapour && T < 640.0)) {
    if (const auto root = newton(temperature, P, std::min(idealGas, 1000.0))) return root;
  }
  // The compressibility factor is below 20 everywhere.
  const auto interval =
      twoSides && side == Side::liquid
          ? firstChange(f, densest, phasesMeet, scaledBy(0.98))
          // A density of zero would never grow: 5e-324 MPa is a pressure, too.
          : firstChange(f, std::max(idealGas / 20.0, std::numeric_limits<double>::min()),
                        twoSides ? phasesMeet : densest, scaledBy(1.08));
  if (!interval) return std::nullopt;
  const double root = rootWithin(f, *interval);
  return isStable(temperature, root) ? std::optional(root) : std::nullopt;
}

std::optional<double> superheatedLiquid(double P, double T, double saturated) {
  TemperaturePart temperature;
  temperature.prepare(T, TemperaturePart::Order::pressure);
  const auto f = [&](double density) { return pressure(temperature, density) - P; };
  if (!(f(saturated) > 0.0)) return saturated;  // on the line, but for its rounding
  // The liquid ends before it has lost half of its density.
  const auto interval = firstChange(f, saturated, 0.5 * saturated, scaledBy(0.99));
  if (!interval) return std::nullopt;
  const double root = rootWithin(f, *interval);
  return isStable(temperature, root) ? std::optional(root) : std::nullopt;
}

std::optional<double> density(double T, Property property, double value, double from, double to) {
  TemperaturePart temperature;
  temperature.prepare(T, std::max(orderOf(property), TemperaturePart::Order::pressure));
  const auto f = [&](double density) { return evaluate(property, temperature, density) - value; };
  // A thin gas is ideal: only its entropy depends on the density.
  const auto next = [&](double density) {
    const double ratio = density < 1e-3 ? 10.0 : density < 1.0 ? 1.3 : 1.03;
    return to > from ? density * ratio : density / ratio;
  };
  while (const auto interval = firstChange(f, from, to, next)) {
    const double root = rootWithin(f, *interval);
    if (isStable(temperature, root)) return root;
    from = interval->to;
    if (from == to) break;
  }
  return std::nullopt;
}

std::optional<double> temperature(double P, Property property, double value, Side side,
                                  double lower, double upper) {
  // Not a number where the side has ended.
  const auto f = [&](double T) {
    const auto root = density(P, T, side);
    return root ? evaluate(property, T, *root) - value : NAN;
  };
  // Next to the critical point the line may be a scaling law, at whose temperature a side has no
  // root: then 0.06 K off.
  if (std::isnan(f(lower))) lower *= 1.0 + 1e-4;
  if (std::isnan(f(upper))) upper *= 1.0 - 1e-4;
  const double atLower = f(lower);
  if (!(f(upper) >= 0.0)) return std::nullopt;
  // Above it cold water's energies and entropy rise, fall and rise again with the temperature: the
  // warmest of several states is the stable one.
  constexpr double oneStateBelow = 790.0;  // MPa
  if (P < oneStateBelow) {
    return atLower <= 0.0 ? std::optional(rootWithin(f, {lower, upper})) : std::nullopt;
  }
  // At 844.7 MPa 771.6625 kJ/kg are those of 289.9, 288.3 and 276.0 K.
  const auto next = [](double T) { return T * (T > 330.0 ? 0.95 : 0.99); };
  const auto interval = firstChange(f, upper, lower, next);
  return interval ? std::optional(rootWithin(f, *interval)) : std::nullopt;
}

std::optional<double> warmest(double P, double density, double lower, double upper) {
  TemperaturePart temperature;
  const auto f = [&](double T) {
    temperature.prepare(T, TemperaturePart::Order::pressure);
    return pressure(temperature, density) - P;
  };
  if (!(f(upper) >= 0.0)) return std::nullopt;
  const auto interval = firstChange(f, upper, lower, scaledBy(0.985));
  return interval ? std::optional(rootWithin(f, *interval)) : std::nullopt;
}

std::optional<double> colder(double P, double density, double lower, double warm) {
  TemperaturePart temperature;
  const auto f = [&](double T) {
    temperature.prepare(T, TemperaturePart::Order::pressure);
    return pressure(temperature, density) - P;
  };
  // The step away from the warmer root is larger than its error.
  const double start = warm * (1.0 - 1e-6);
  if (!(start > lower && f(start) < 0.0)) return std::nullopt;
  const auto interval = firstChange(f, start, lower, scaledBy(0.985));
  return interval ? std::optional(rootWithin(f, *interval)) : std::nullopt;
}

}  // namespace calvex::roots
