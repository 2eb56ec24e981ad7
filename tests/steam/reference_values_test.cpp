// Every property as a function of density and temperature, against tables computed independently to
// 15 digits from the fundamental equation.
#include <gtest/gtest.h>

#include "steam/property.h"
#include "support/failures.h"
#include "support/table.h"

namespace calvex::test {
namespace {

constexpr double R = 0.461522;  // kJ/(kg.K)

struct Column {
  const char* name;
  Property property;
  /// The size of the terms that a property is the sum of. In a sum that nearly cancels, the last
  /// digit is one of the terms.
  double (*scale)(const Row&);
};

double molecularEnergy(const Row& row) { return R * row["T"]; }

const Column columns[] = {
    // P = rho R T (1 + ...): attraction and repulsion of a liquid are each many times rho R T.
    {"P", Property::pressure, [](const Row& row) { return 1e-3 * row["R"] * R * row["T"]; }},
    {"V", Property::specificVolume, [](const Row&) { return 0.0; }},
    // Energies and entropy have their zero set by the constants a0 and s0.
    {"A", Property::helmholtz, [](const Row& row) { return 1997.67722651 + molecularEnergy(row); }},
    {"G", Property::gibbs, [](const Row& row) { return 1997.67722651 + molecularEnergy(row); }},
    {"H", Property::enthalpy, [](const Row& row) { return 1997.67722651 + molecularEnergy(row); }},
    {"U", Property::internalEnergy,
     [](const Row& row) { return 1997.67722651 + molecularEnergy(row); }},
    {"S", Property::entropy, [](const Row&) { return 3.51591161006; }},
    {"C", Property::isobaricHeatCapacity, [](const Row&) { return R; }},
    {"D", Property::isochoricHeatCapacity, [](const Row&) { return R; }},
    // Z is the pressure over rho R T.
    {"Z", Property::compressibilityFactor, [](const Row&) { return 1.0; }},
    {"W", Property::speedOfSound,
     [](const Row& row) { return std::sqrt(1000.0 * molecularEnergy(row)); }},
    // delta = v (1 - T alpha), muJT = -delta/cp
    {"I", Property::isothermalThrottling, [](const Row& row) { return 1000.0 * row["V"]; }},
    {"J", Property::jouleThomson, [](const Row& row) { return 1000.0 * row["V"] / row["C"]; }},
    // The ideal gas has alpha = 1/T.
    {"B", Property::thermalExpansion, [](const Row& row) { return 1.0 / row["T"]; }},
    {"L", Property::compressibility, [](const Row&) { return 0.0; }},
    {"M", Property::viscosity, [](const Row&) { return 0.0; }},
    {"K", Property::thermalConductivity, [](const Row&) { return 0.0; }},
    {"N", Property::prandtlNumber, [](const Row&) { return 0.0; }},
    {"E", Property::dielectricConstant, [](const Row&) { return 1.0; }},
};

TEST(ReferenceValues, EveryPropertyAtGivenDensityAndTemperature) {
  const std::vector<Row> rows = readTable("single-phase.csv");
  ASSERT_GE(rows.size(), 60U);
  for (const Column& column : columns) {
    Grid grid(column.name);
    for (const Row& row : rows) {
      const double expected = row[column.name];
      grid.near(evaluate(column.property, row["T"], row["R"]), expected, 1e-11,
                std::max(std::abs(expected), column.scale(row)),
                fmt::format("T = {}, rho = {}", row["T"], row["R"]));
    }
  }
}

TEST(ReferenceValues, TemperatureAndDensityAreThemselves) {
  EXPECT_EQ(evaluate(Property::temperature, 500.0, 3.0), 500.0);
  EXPECT_EQ(evaluate(Property::density, 500.0, 3.0), 3.0);
  EXPECT_EQ(evaluate(Property::specificVolume, 500.0, 4.0), 0.25);
}

TEST(ReferenceValues, SaturatedPhasesOfTheTable) {
  Grid grid("saturated phases");
  for (const Row& row : readTable("saturation.csv")) {
    const double T = row["T"];
    for (const char* phase : {"_L", "_V"}) {
      const double density = row[std::string("R") + phase];
      const std::string at = fmt::format("T = {}{}", T, phase);
      // The table has 12 digits of density; a liquid multiplies what the 13th leaves out.
      grid.near(evaluate(Property::pressure, T, density), row["P"], 1e-10,
                std::max(row["P"], 1e-3 * density * R * T), "P, " + at);
      grid.near(evaluate(Property::enthalpy, T, density), row[std::string("H") + phase], 1e-10,
                1997.67722651, "H, " + at);
      grid.near(evaluate(Property::internalEnergy, T, density), row[std::string("U") + phase],
                1e-10, 1997.67722651, "U, " + at);
      grid.near(evaluate(Property::entropy, T, density), row[std::string("S") + phase], 1e-10,
                3.51591161006, "S, " + at);
    }
  }
}

}  // namespace
}  // namespace calvex::test
