// Every result in every unit that a client may choose. The values are those of the independent
// tables; the conversion is done here, from the numbers of the unit tables in tests/data.
#include <gtest/gtest.h>

#include <map>

#include "support/engine.h"
#include "support/failures.h"
#include "support/table.h"

namespace calvex::test {
namespace {

struct Unit {
  std::string name;
  double factor;
  double offset;
};

/// The units of each group: reference value = (x + offset) * factor.
const std::map<int, std::vector<Unit>>& units() {
  static const std::map<int, std::vector<Unit>> all = [] {
    std::map<int, std::vector<Unit>> groups;
    for (const Row& row : readTable("unit-tables.csv")) {
      groups[std::stoi(row.text("group"))].push_back(
          {row.text("unit"), row["factor"], row["offset"]});
    }
    return groups;
  }();
  return all;
}

/// A row of unit-groups.csv.
const Unit& internalUnit(int group) {
  static const std::vector<Row> groups = readTable("unit-groups.csv");
  const std::string name = groups.at(static_cast<std::size_t>(group)).text("internal unit");
  for (const Unit& unit : units().at(group)) {
    if (unit.name == name) return unit;
  }
  throw std::invalid_argument("group without its internal unit");
}

double inUnit(int group, const Unit& unit, double value) {
  const Unit& internal = internalUnit(group);
  return (value + internal.offset) * internal.factor / unit.factor - unit.offset;
}

/// The group of a result's letter; dimensionless ones have none.
const std::map<char, int> groupOf{{'T', 0},  {'P', 1},  {'R', 2},  {'V', 3},  {'S', 4},
                                  {'H', 5},  {'U', 6},  {'Q', 7},  {'C', 8},  {'D', 8},
                                  {'M', 13}, {'K', 14}, {'X', 15}, {'W', 16}, {'I', 17},
                                  {'J', 18}, {'B', 19}, {'L', 20}, {'A', 23}, {'G', 24}};

class OutputUnits : public testing::Test {
 protected:
  // Steam: the second row of the table.
  const Row steam = readTable("single-phase.csv").at(1);
  // Saturated water and steam at 335.46 K.
  const Row line = readTable("saturation.csv").at(5);
  ZvThermoInt engine;

  // Calls in every unit of the group and compares with the value converted here.
  template <class Call>
  void expectInEveryUnit(Grid& grid, int group, double internal, const std::string& name,
                         Call call) {
    for (const Unit& unit : units().at(group)) {
      ASSERT_EQ(engine.SetUserUnitIndex(static_cast<short>(group), unit.name), 1);
      const double expected = inUnit(group, unit, internal);
      double value = untouched;
      EXPECT_EQ(call(&value), 1) << name << " in " << unit.name << ": " << engine.LastError();
      const double scale = std::max(std::abs(expected), std::abs(expected + unit.offset));
      grid.near(value, expected, 2e-8, scale, name + " in " + unit.name);
    }
    ASSERT_EQ(engine.SetUserUnitIndex(static_cast<short>(group), internalUnit(group).name), 1);
  }
};

TEST_F(OutputUnits, OfEveryMemberFromPressureAndTemperature) {
  Grid grid("members from (P, T)");
  int members = 0;
  for (const PairMember& member : pairMembers()) {
    const auto group = groupOf.find(member.result());
    if (!member.isFromPT() || group == groupOf.end()) continue;
    ++members;
    expectInEveryUnit(
        grid, group->second, steam[std::string{member.result()}], std::string(member.name),
        [&](double* value) { return (engine.*member.call)(value, steam["P"], steam["T"]); });
  }
  EXPECT_EQ(members, 16);
}

// A result in the unit of another result's group would pass the test above for enthalpy and the
// energies if it were made with the same unit everywhere.
TEST_F(OutputUnits, AreThoseOfTheOwnGroupAlone) {
  for (const char letter : std::string("HUAGSC")) {
    const PairMember* found = nullptr;
    for (const PairMember& member : pairMembers()) {
      if (member.isFromPT() && member.result() == letter) found = &member;
    }
    ASSERT_NE(found, nullptr) << letter;
    const double before = valueOf(engine, found->call, steam["P"], steam["T"]);
    for (const auto& [group, all] : units()) {
      if (group == groupOf.at(letter) || group < 2) continue;
      ASSERT_EQ(engine.SetUserUnitIndex(static_cast<short>(group), all.back().name), 1);
    }
    EXPECT_EQ(valueOf(engine, found->call, steam["P"], steam["T"]), before) << letter;
    for (const auto& [group, all] : units()) {
      engine.SetUserUnitIndex(static_cast<short>(group), internalUnit(group).name);
    }
  }
}

TEST_F(OutputUnits, DoNotTouchDimensionlessResults) {
  for (const auto& [group, all] : units()) {
    ASSERT_EQ(engine.SetUserUnitIndex(static_cast<short>(group), all.back().name), 1);
  }
  const double T = inUnit(0, units().at(0).back(), steam["T"]);
  const double P = inUnit(1, units().at(1).back(), steam["P"]);
  ASSERT_NE(T, steam["T"]);
  for (const auto& [member, column] : std::vector<std::pair<PairOperation, const char*>>{
           {&ZvThermoInt::ZPT, "Z"}, {&ZvThermoInt::NPT, "N"}, {&ZvThermoInt::EPT, "E"}}) {
    EXPECT_NEAR(valueOf(engine, member, P, T), steam[column], 1e-7) << column;
  }
}

TEST_F(OutputUnits, OfEveryMemberFromAnotherPair) {
  Grid grid("members from other pairs");
  for (const PairMember& member : pairMembers()) {
    const auto group = groupOf.find(member.result());
    if (member.isFromPT() || member.result() == 'Q' || group == groupOf.end()) continue;
    // The row's inputs have twelve digits more than enough, and the units of inputs stay.
    const double first = steam[std::string{member.first()}];
    const double second = steam[std::string{member.second()}];
    const double expected = steam[std::string{member.result()}];
    const Unit& unit = units().at(group->second).front().name == internalUnit(group->second).name
                           ? units().at(group->second)[1]
                           : units().at(group->second).front();
    ASSERT_EQ(engine.SetUserUnitIndex(static_cast<short>(group->second), unit.name), 1);
    grid.near(valueOf(engine, member.call, first, second), inUnit(group->second, unit, expected),
              1e-7, std::abs(inUnit(group->second, unit, expected)) + std::abs(unit.offset),
              std::string(member.name) + " in " + unit.name);
    ASSERT_EQ(engine.SetUserUnitIndex(static_cast<short>(group->second),
                                      internalUnit(group->second).name),
              1);
  }
}

TEST_F(OutputUnits, OfTheSaturationMembers) {
  Grid grid("saturation members");
  const double T = line["T"], P = line["P"], Q = 0.25;
  const auto mixed = [&](const std::string& letter) {
    return (1.0 - Q) * line[letter + "_L"] + Q * line[letter + "_V"];
  };
  const double volume = (1.0 - Q) / line["R_L"] + Q / line["R_V"];
  expectInEveryUnit(grid, 1, P, "PSatT", [&](double* p) { return engine.PSatT(p, T); });
  expectInEveryUnit(grid, 0, T, "TSatP", [&](double* t) { return engine.TSatP(t, P); });
  expectInEveryUnit(grid, 15, line["X"], "XT", [&](double* x) { return engine.XT(x, T); });
  for (const PairMember& member : saturationMembers()) {
    const char letter = member.result();
    const double expected = letter == 'R'   ? 1.0 / volume
                            : letter == 'V' ? volume
                                            : mixed(std::string{letter});
    expectInEveryUnit(grid, groupOf.at(letter), expected, std::string(member.name),
                      [&](double* value) {
                        return (engine.*member.call)(value, member.name[4] == 'T' ? T : P, Q);
                      });
  }
  for (const char second : std::string("HSU")) {
    for (const PairMember& member : pairMembers()) {
      if (member.name != std::string("QP") + second) continue;
      expectInEveryUnit(grid, 7, Q, std::string(member.name), [&](double* value) {
        return (engine.*member.call)(value, P, mixed(std::string{second}));
      });
    }
  }
}

TEST_F(OutputUnits, OfTheMembersOfSeveralResults) {
  Grid grid("members of several results");
  const double P = line["P"], Q = 0.25;
  const double h = 0.75 * line["H_L"] + 0.25 * line["H_V"];
  const double s = 0.75 * line["S_L"] + 0.25 * line["S_V"];
  const double r = 1.0 / (0.75 / line["R_L"] + 0.25 / line["R_V"]);
  double a = 0.0, b = 0.0, c = 0.0;
  for (const auto& [third, group] : {std::pair{'S', 4}, {'R', 2}}) {
    const auto call = [&](double* q, double* t, double* x) {
      return third == 'S' ? engine.QTS_PH(q, t, x, P, h) : engine.QTR_PH(q, t, x, P, h);
    };
    const std::string name = third == 'S' ? "QTS_PH" : "QTR_PH";
    expectInEveryUnit(grid, 7, Q, name, [&](double* q) { return call(q, &b, &c); });
    expectInEveryUnit(grid, 0, line["T"], name, [&](double* t) { return call(&a, t, &c); });
    expectInEveryUnit(grid, group, third == 'S' ? s : r, name,
                      [&](double* x) { return call(&a, &b, x); });
  }
  expectInEveryUnit(grid, 7, Q, "QT_PH", [&](double* q) { return engine.QT_PH(q, &b, P, h); });
  expectInEveryUnit(grid, 0, line["T"], "QT_PH",
                    [&](double* t) { return engine.QT_PH(&a, t, P, h); });
  // Of these the enthalpy's unit is that of three results.
  double t = 0.0;
  expectInEveryUnit(grid, 5, h, "H of HVLTSat_PQ",
                    [&](double* x) { return engine.HVLTSat_PQ(x, &a, &b, &t, P, Q); });
  expectInEveryUnit(grid, 5, line["H_V"], "HVap of HVLTSat_PQ",
                    [&](double* x) { return engine.HVLTSat_PQ(&a, x, &b, &t, P, Q); });
  expectInEveryUnit(grid, 5, line["H_L"], "HLiq of HVLTSat_PQ",
                    [&](double* x) { return engine.HVLTSat_PQ(&a, &b, x, &t, P, Q); });
  expectInEveryUnit(grid, 0, line["T"], "TSat of HVLTSat_PQ",
                    [&](double* x) { return engine.HVLTSat_PQ(&a, &b, &c, x, P, Q); });
  expectInEveryUnit(grid, 5, steam["H"], "HPTQ",
                    [&](double* x) { return engine.HPTQ(x, steam["P"], steam["T"], 1.0); });
}

TEST_F(OutputUnits, OfTheConstants) {
  Grid grid("constants");
  const auto constant = [&](int group, double value, double (ZvThermoInt::*member)() const,
                            const std::string& name) {
    expectInEveryUnit(grid, group, value, name, [&](double* out) {
      *out = (engine.*member)();
      return 1;
    });
  };
  constant(0, 647.126, &ZvThermoInt::CritT, "CritT");
  constant(0, 273.16, &ZvThermoInt::TripleT, "TripleT");
  constant(1, 22.055, &ZvThermoInt::CritP, "CritP");
  constant(1, 0.00061173, &ZvThermoInt::TripleP, "TripleP");
  constant(2, 321.8870385, &ZvThermoInt::CritR, "CritR");
  constant(3, 1.0 / 321.8870385, &ZvThermoInt::CritV, "CritV");
  constant(21, 18.0152, &ZvThermoInt::MolWeight, "MolWeight");
}

// The definitions of the units themselves (1 Btu/lb = 2.326 kJ/kg, International Steam Tables;
// 1 cal = 4.1868 J; 1 cP = 1 mPa.s), which need no table.
TEST_F(OutputUnits, AreThePhysicalOnes) {
  const double P = steam["P"], T = steam["T"];
  const auto in = [&](const char* group, const char* unit, PairOperation member) {
    EXPECT_EQ(engine.SetUserUnit(group, unit), 1) << engine.LastError();
    return valueOf(engine, member, P, T);
  };
  const auto expectNear = [](double value, double expected) {
    EXPECT_NEAR(value, expected, 1e-3 * std::abs(expected));
  };
  expectNear(in("A", "Btu/lb", &ZvThermoInt::APT), steam["A"] / 2.326);
  expectNear(in("G", "Btu/lb", &ZvThermoInt::GPT), steam["G"] / 2.326);
  expectNear(in("M", "cP", &ZvThermoInt::MPT), steam["M"] * 1e3);
  expectNear(in("K", "kcal/(C.m.h)", &ZvThermoInt::KPT), steam["K"] * 3.6 / 4.1868);
  expectNear(in("C", "kcal/(kg.K)", &ZvThermoInt::CPT), steam["C"] / 4.1868);
  expectNear(in("D", "J/(kg.K)", &ZvThermoInt::DPT), steam["D"] * 1e3);
  expectNear(in("W", "ft/s", &ZvThermoInt::WPT), steam["W"] / 0.3048);
  expectNear(in("I", "kJ/(kg.bar)", &ZvThermoInt::IPT), steam["I"] * 0.1);
  expectNear(in("J", "K/bar", &ZvThermoInt::JPT), steam["J"] * 0.1);
  expectNear(in("B", "1/F", &ZvThermoInt::BPT), steam["B"] / 1.8);
  expectNear(in("L", "1/psi", &ZvThermoInt::LPT), steam["L"] * 0.006894757);
}

}  // namespace
}  // namespace calvex::test
