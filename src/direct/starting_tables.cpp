#include "direct/starting_tables.h"

#include <hwy/base.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

#include "steam/constants.h"
#include "steam/property.h"
#include "steam/saturation_correlations.h"

namespace calvex::direct {

namespace {

#include "direct/one_lane-inl.h"
//
#include "direct/states-inl.h"
//
#include "direct/lookup-inl.h"

using constants::criticalTemperature;
using constants::gasConstant;

// The line --------------------------------------------------------------------------------------

// The next of equally spaced values, by the parabola of the last three.
double next(const LineTable::Column& column, int i) {
  const auto at = [&](int j) { return column[static_cast<std::size_t>(j)]; };
  return i < 3 ? at(std::max(i - 1, 0)) : 3.0 * at(i - 1) - 3.0 * at(i - 2) + at(i - 3);
}

void put(LineTable& table, int i, const Equilibrium<double>& line) {
  const auto set = [&](LineTable::Name name, double value) {
    table.column[name][static_cast<std::size_t>(i)] = value;
  };
  TemperaturePart part;
  part.prepare(line.T, TemperatureOrder::energy);
  const HelmholtzPoint liquid(part, line.liquid);
  const HelmholtzPoint vapour(part, line.vapour);
  set(LineTable::T, line.T);
  set(LineTable::P, line.P);
  set(LineTable::liquid, line.liquid);
  set(LineTable::vapour, line.vapour);
  set(LineTable::hL, liquid.enthalpy());
  set(LineTable::hV, vapour.enthalpy());
  set(LineTable::sL, liquid.entropy());
  set(LineTable::sV, vapour.entropy());
  set(LineTable::uL, liquid.internalEnergy());
  set(LineTable::uV, vapour.internalEnergy());
}

// From the bottom, where the correlations start well, to the top, where the parabola does.
std::unique_ptr<LineTable> buildLineByTemperature() {
  auto table = std::make_unique<LineTable>();
  table->axis = {std::sqrt(criticalTemperature - lineTop),
                 std::sqrt(criticalTemperature - lineBottom), LineTable::count};
  // Counted from the bottom, so that `next` looks at what is there.
  LineTable fromBottom{};
  for (int i = 0; i < LineTable::count; ++i) {
    const double x = table->axis.at(LineTable::count - 1 - i);
    const double T = criticalTemperature - x * x;
    const bool first = i == 0;
    const double liquid =
        first ? saturation::liquidDensityGuess(T) : next(fromBottom.column[LineTable::liquid], i);
    const double vapour =
        first ? saturation::vapourDensityGuess(T) : next(fromBottom.column[LineTable::vapour], i);
    put(fromBottom, i, equilibriumAtT(T, liquid, vapour));
  }
  for (std::size_t c = 0; c < LineTable::columns; ++c) {
    std::reverse_copy(fromBottom.column[c].begin(), fromBottom.column[c].end(),
                      table->column[c].begin());
  }
  return table;
}

std::unique_ptr<LineTable> buildLineByPressure() {
  auto table = std::make_unique<LineTable>();
  const LineTable& byT = lineByTemperature();
  const double lowest = byT.column[LineTable::P].back();
  table->axis = {std::sqrt(logCriticalPressure - std::log(lineTopPressure)),
                 std::sqrt(logCriticalPressure - std::log(lowest)), LineTable::count};
  for (int i = 0; i < LineTable::count; ++i) {
    const double y = table->axis.at(i);
    const double P = std::exp(logCriticalPressure - y * y);
    double T = next(table->column[LineTable::T], i);
    if (i < 3) {
      // P falls along the other table.
      const LineTable::Column& pressures = byT.column[LineTable::P];
      const auto* const below =
          std::lower_bound(pressures.begin(), pressures.end(), P, std::greater<>());
      T = byT.column[LineTable::T][static_cast<std::size_t>(below - pressures.begin())];
    }
    const LinePlace<double> place = placeAtT(byT, T);
    put(*table, i,
        equilibriumAtP(P, T, place(byT.column[LineTable::liquid]),
                       place(byT.column[LineTable::vapour])));
  }
  return table;
}

// States ----------------------------------------------------------------------------------------

double unfocused(const Focus& focus, double u) {
  return focus.centre + focus.width * u / (1.0 - std::fabs(u));
}

FloatPair& nodeAt(StateTable& table, int layer, int row, int column) {
  const auto at = [](int n) { return static_cast<std::size_t>(n); };
  return table
      .node[at(layer) * at(StateTable::layer) + at(row) * at(StateTable::columns) + at(column)];
}

// In the gas layer the density is divided by the pressure: nearly constant where steam is thin.
void putState(StateTable& table, int layer, int row, int column, double T, double density,
              double P) {
  nodeAt(table, layer, row, column) = {static_cast<float>(T),
                                       static_cast<float>(layer == 0 ? density : density / P)};
}

constexpr double logLowest = -7.418580902748128;  // ln(6e-4)
constexpr double logHighest = 8.006367567650246;  // ln(3000)

constexpr Axis pressureAxis() { return {logLowest, logHighest, StateTable::rows}; }

constexpr double focusedAt(const Focus& focus, double x) {
  const double from = x - focus.centre;
  return from / (focus.width + (from < 0.0 ? -from : from));
}

// From a density on the right side of the root, also where Newton's method leaves its ground.
double density(const TemperaturePart& part, double P, double start) {
  const OnePhase<double> state = densityAt(part, P, start);
  if (state.found) return state.density;
  double low = 0.0;
  double high = 1900.0;
  while (high - low > 1e-3 * low) {
    const double middle = 0.5 * (low + high);
    (HelmholtzPoint(part, middle).pressure() < P ? low : high) = middle;
  }
  return 0.5 * (low + high);
}

std::unique_ptr<DensityTable> buildDensityFromPT() {
  auto table = std::make_unique<DensityTable>();
  constexpr int rows = DensityTable::rows;
  // Finest around the critical point.
  table->firstFocus = {2.9, 2.5};
  table->first = {focusedAt(table->firstFocus, logLowest), focusedAt(table->firstFocus, logHighest),
                  rows};
  table->secondFocus = {650.0, 400.0};
  table->second = {focusedAt(table->secondFocus, 255.0), focusedAt(table->secondFocus, 2540.0),
                   DensityTable::columns};
  const LineTable& line = lineByTemperature();
  for (int column = 0; column < DensityTable::columns; ++column) {
    const double T = unfocused(table->secondFocus, table->second.at(column));
    TemperaturePart part;
    part.prepare(T, TemperatureOrder::energy);
    const bool subcritical = T < criticalTemperature;
    const auto at = [](int i) { return static_cast<std::size_t>(i); };
    std::array<double, rows> dense;
    std::array<double, rows> gas;
    int above = 0;  // the first row above the line
    const auto pressure = [&](int row) {
      return std::exp(unfocused(table->firstFocus, table->first.at(row)));
    };
    // Below the critical temperature both phases go on beyond the line, as far as they are stable,
    // and from there on straight.
    if (subcritical) {
      const LinePlace<double> place = placeAtT(line, std::clamp(T, lineBottom, lineTop));
      const double Ps = T < lineTop ? place(line.column[LineTable::P]) : saturation::pressure(T);
      table->border[at(column)] = std::log(Ps);
      while (pressure(above) <= Ps) ++above;
      const auto goOn = [&](LineTable::Name phase, int begin, int end, double lowest,
                            double highest, std::array<double, rows>& densities) {
        const double saturated = place(line.column[phase]);
        const double slope = 1000.0 / (saturated * HelmholtzPoint(part, saturated).pressureSlope());
        double last = saturated;
        bool stable = true;
        for (int row = begin; row != end; row += begin < end ? 1 : -1) {
          const OnePhase<double> state = densityAt(part, pressure(row), last);
          stable = stable && state.found && state.density > lowest && state.density < highest;
          const double straight =
              saturated * (1.0 + std::clamp((pressure(row) - Ps) * slope, -0.2, 0.5));
          last = stable ? state.density : straight;
          densities[at(row)] = last;
        }
      };
      goOn(LineTable::liquid, above - 1, -1, 1.1 * constants::criticalDensity, 1100.0, dense);
      goOn(LineTable::vapour, above, rows, 0.0, 0.9 * constants::criticalDensity, gas);
      double last = place(line.column[LineTable::liquid]);
      for (int row = above; row < rows; ++row) {
        dense[at(row)] = last = density(part, pressure(row), last);
      }
    } else {
      constexpr double slope = 0.27;  // MPa/K
      table->border[at(column)] =
          std::log(constants::criticalPressure + slope * (T - criticalTemperature));
      above = rows;
    }
    for (int row = 0; row < above; ++row) {
      const double P = pressure(row);
      gas[at(row)] =
          density(part, P, row == 0 ? 1000.0 * P / (gasConstant * T) : gas[at(row - 1)] * 1.14);
    }
    if (!subcritical) dense = gas;
    for (int row = 0; row < rows; ++row) {
      double* const node =
          table->node.data() + std::ptrdiff_t{row} * DensityTable::columns + column;
      node[0] = dense[at(row)];
      node[DensityTable::layer] = gas[at(row)] / pressure(row);
    }
  }
  return table;
}

struct State {
  double T;
  double density;
};

State stateAt(double P, double T, double start) {
  TemperaturePart part;
  part.prepare(T, TemperatureOrder::energy);
  return {T, density(part, P, start)};
}

// Along an isobar from a known state, in steps of one column: the parabola of the last three states
// starts the next; where there is none, the last line is followed.
template <Letter second>
class March {
 public:
  March(StateTable& table, int layer, int row, double P, State start)
      : table_(table), layer_(layer), row_(row), P_(P), last_{start, start, start} {}

  void run(int from, int to) {
    const int step = to >= from ? 1 : -1;
    int missed = 0;
    for (int column = from; column != to + step; column += step) {
      const double x = unfocused(table_.focus, table_.second.at(column));
      const int n = std::min(known_, 3);
      const auto guess = [&](auto member) {
        const double a = last_[0].*member;
        const double b = last_[1].*member;
        const double c = last_[2].*member;
        if (n < 2) return a;
        return n < 3 || missed > 0 ? a + (a - b) * (missed > 0 ? 0.7 : 1.0) : 3.0 * (a - b) + c;
      };
      State state{std::max(guess(&State::T), 150.0),
                  std::max(guess(&State::density), 0.5 * last_[0].density)};
      if (missed == 0) {
        const OnePhase<double> found = stateFrom<Letter::P, second>(P_, x, state.T, state.density);
        // A jump is another branch.
        const bool near = found.found && found.T > 230.0 && found.T < 2800.0 &&
                          std::fabs(found.density / state.density - 1.0) < 0.5;
        if (near) {
          state = {found.T, found.density};
        } else if (known_ > 0) {
          missed = 1;
        }
      }
      last_ = {state, last_[0], last_[1]};
      ++known_;
      putState(table_, layer_, row_, column, state.T, state.density, P_);
    }
  }

 private:
  StateTable& table_;
  int layer_;
  int row_;
  double P_;
  std::array<State, 3> last_;
  int known_ = 0;
};

template <Letter second>
double valueOf(const State& state) {
  constexpr Property property = second == Letter::H   ? Property::enthalpy
                                : second == Letter::S ? Property::entropy
                                                      : Property::internalEnergy;
  return calvex::evaluate(property, state.T, state.density);
}

template <Letter second>
std::unique_ptr<StateTable> buildStatesFromP(Focus focus, double low, double high) {
  auto table = std::make_unique<StateTable>();
  table->first = pressureAxis();
  table->focus = focus;
  table->second = {focusedAt(focus, low), focusedAt(focus, high), StateTable::columns};
  const LineTable& line = lineByPressure();
  constexpr int last = StateTable::columns - 1;
  // The columns on both sides of the state's value: up to it, from it.
  const auto columnAt = [&](const State& state) {
    const double y =
        (focusedAt(focus, valueOf<second>(state)) - table->second.low) * table->second.perUnit();
    return std::clamp(static_cast<int>(std::floor(y)), 0, last);
  };
  for (int row = 0; row < StateTable::rows; ++row) {
    const double P = std::exp(table->first.at(row));
    if (P < lineTopPressure) {
      const LinePlace<double> place = placeAtLogP(line, std::log(P));
      const double T = place(line.column[LineTable::T]);
      const State sides[] = {{T, place(line.column[LineTable::liquid])},
                             {T, place(line.column[LineTable::vapour])}};
      for (int layer = 0; layer < 2; ++layer) {
        const State& start = sides[layer];
        const int column = columnAt(start);
        March<second>(*table, layer, row, P, start).run(column, 0);
        if (column < last) March<second>(*table, layer, row, P, start).run(column + 1, last);
      }
    } else {
      // Cold states are reached from a cold one, hot states from a hot one: between them, next to
      // the critical pressure, a step may end on another branch.
      const State cold = stateAt(P, 300.0, 1000.0);
      const State hot = stateAt(P, 900.0, 1000.0 * P / (gasConstant * 900.0 + P));
      const int coldColumn = columnAt(cold);
      const int hotColumn = columnAt(hot);
      const int middle = std::max(
          columnAt(State{constants::criticalTemperature, constants::criticalDensity}), coldColumn);
      for (int layer = 0; layer < 2; ++layer) {
        March<second>(*table, layer, row, P, cold).run(coldColumn, 0);
        March<second>(*table, layer, row, P, cold).run(coldColumn, std::min(middle, hotColumn));
        if (middle < hotColumn) {
          March<second>(*table, layer, row, P, hot).run(hotColumn, middle + 1);
        }
        March<second>(*table, layer, row, P, hot).run(hotColumn, last);
      }
    }
  }
  return table;
}

// From one state to its neighbours, as far as there are any: a state between the phases, or one
// that Newton's method does not reach, is none.
std::unique_ptr<StateTable> buildStatesFromHS() {
  auto table = std::make_unique<StateTable>();
  table->first = {-0.2, 15.0, StateTable::rows};
  table->focus = {2080.0, 1500.0};
  table->second = {focusedAt(table->focus, -60.0), focusedAt(table->focus, 11500.0),
                   StateTable::columns};
  constexpr float none = std::numeric_limits<float>::quiet_NaN();
  table->node.fill({none, none});
  const LineTable& line = lineByTemperature();
  struct Place {
    int row, column;
    State start;
  };
  const State first = stateAt(1.0, 700.0, 3.0);
  const auto nearest = [](double x, int count) {
    return std::clamp(static_cast<int>(std::lround(x)), 0, count - 1);
  };
  std::vector<Place> waiting{
      {nearest((valueOf<Letter::S>(first) - table->first.low) * table->first.perUnit(),
               StateTable::rows),
       nearest((focusedAt(table->focus, valueOf<Letter::H>(first)) - table->second.low) *
                   table->second.perUnit(),
               StateTable::columns),
       first}};
  for (std::size_t i = 0; i < waiting.size(); ++i) {
    const Place place = waiting[i];
    FloatPair& node = nodeAt(*table, 0, place.row, place.column);
    if (!std::isnan(node.first)) continue;
    const double h = unfocused(table->focus, table->second.at(place.column));
    const OnePhase<double> state = stateFrom<Letter::H, Letter::S>(
        h, table->first.at(place.row), place.start.T, place.start.density);
    if (!state.found || !(state.T > 230.0 && state.T < 2900.0 && state.density > 1e-7)) continue;
    if (state.T < lineTop) {
      // A little beyond the line is a start as well.
      const LinePlace<double> at = placeAtT(line, std::max(state.T, lineBottom));
      if (state.density < 0.97 * at(line.column[LineTable::liquid]) &&
          state.density > 1.15 * at(line.column[LineTable::vapour])) {
        continue;
      }
    }
    node = {static_cast<float>(state.T), static_cast<float>(std::log(state.density))};
    for (const auto& [row, column] : {std::pair(-1, 0), {1, 0}, {0, -1}, {0, 1}}) {
      const int r = place.row + row;
      const int c = place.column + column;
      if (r < 0 || r >= StateTable::rows || c < 0 || c >= StateTable::columns) continue;
      waiting.push_back({r, c, {state.T, state.density}});
    }
  }
  return table;
}

}  // namespace

// Each is kept for the life of the process; threads that need one wait for the first.
const LineTable& lineByTemperature() {
  static const std::unique_ptr<LineTable> table = buildLineByTemperature();
  return *table;
}
const LineTable& lineByPressure() {
  static const std::unique_ptr<LineTable> table = buildLineByPressure();
  return *table;
}
const DensityTable& densityFromPT() {
  static const std::unique_ptr<DensityTable> table = buildDensityFromPT();
  return *table;
}
const StateTable& statesFromPH() {
  static const std::unique_ptr<StateTable> table =
      buildStatesFromP<Letter::H>({2080.0, 1500.0}, -60.0, 11500.0);
  return *table;
}
const StateTable& statesFromPS() {
  static const std::unique_ptr<StateTable> table =
      buildStatesFromP<Letter::S>({4.4, 5.0}, -0.2, 15.8);
  return *table;
}
const StateTable& statesFromHS() {
  static const std::unique_ptr<StateTable> table = buildStatesFromHS();
  return *table;
}
const StateTable& statesFromPU() {
  static const std::unique_ptr<StateTable> table =
      buildStatesFromP<Letter::U>({1950.0, 1400.0}, -60.0, 7500.0);
  return *table;
}

}  // namespace calvex::direct
