// Members over columns against the members called one by one.
#include "server/member_columns.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <set>
#include <stdexcept>

#include "server/direct_members.h"
#include "server/zv_calvex.h"
#include "spreadsheet/samples.h"
#include "support/engine.h"
#include "support/failures.h"

namespace calvex::test {
namespace {

NumericMember numeric(std::string_view name) {
  return NumericMember::of(*findMember(name)).value();
}

bool sameBits(double a, double b) {
  return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b) ||
         (std::isnan(a) && std::isnan(b));
}

// Columns of every input and every output of a member.
struct Sheet {
  Sheet(const NumericMember& itsMember, std::size_t rowCount)
      : member(itsMember),
        rows(rowCount),
        inputs(member.inputs().size(), std::vector<double>(rows)),
        outputs(member.outputs().size(), std::vector<double>(rows, untouched)),
        status(rows, -1),
        reasons(rows),
        warnings(rows) {
    for (std::vector<double>& column : inputs) inputColumns.push_back({column.data()});
    for (std::size_t i = 0; i < outputs.size(); ++i) targets.push_back({i, {outputs[i].data()}});
  }

  MemberRequest request() {
    return {member,
            inputColumns,
            targets,
            {status.data()},
            [this](std::size_t row, std::string_view text) { reasons[row] = text; },
            [this](std::size_t row, const ZvFunctionCall& call) { warnings[row] = textOf(call); }};
  }

  NumericMember member;
  std::size_t rows;
  std::vector<std::vector<double>> inputs, outputs;
  std::vector<short> status;
  std::vector<std::string> reasons, warnings;
  std::vector<direct::Column> inputColumns;
  std::vector<MemberRequest::Output> targets;
};

void useCelsiusAndPsig(ZvThermoInt& engine) {
  ASSERT_EQ(engine.SetUserUnit("T", "C"), 1);
  ASSERT_EQ(engine.SetUserUnit("P", "psig"), 1);
}

// Ordinary and hopeless values of a quantity, in Celsius and psig.
double valueOfGroup(short group, std::size_t row) {
  const auto i = static_cast<double>(row);
  switch (UnitGroup(group)) {
    case UnitGroup::temperature:
      return -100.0 + 60.0 * i;
    case UnitGroup::pressure:
      return -20.0 + 150.0 * i;
    case UnitGroup::quality:
      return 0.07 * i;
    case UnitGroup::entropy:
      return 0.4 * i;
    case UnitGroup::density:
      return 0.3 + 40.0 * i;
    case UnitGroup::specificVolume:
      return 0.0009 + 0.01 * i;
    default:
      return 200.0 * i;
  }
}

TEST(MemberColumns, AreOfferedForMembersThatComputeNumbers) {
  for (const char* name : {"HPT", "HPTQ", "QT_PH", "PSatT", "XT", "CritT", "TurbineA3",
                           "SolvePoly5", "XLTurbineA", "XLThermoCompressorG"}) {
    EXPECT_TRUE(NumericMember::of(*findMember(name))) << name;
  }
  for (const char* name : {"SolverTol", "LastError", "SetUserUnit", "Convert", "ShowTraceDlg",
                           "ClearTraceInfo", "GetAlarms", "SetCustomUserUnitIndex"}) {
    EXPECT_FALSE(NumericMember::of(*findMember(name))) << name;
  }
}

TEST(MemberColumns, OutputsGoByTheirNames) {
  const NumericMember turbine = numeric("TurbineA");
  ASSERT_EQ(turbine.inputs().size(), 5U);
  EXPECT_EQ(turbine.inputs()[3].name, "Eff");
  EXPECT_EQ(turbine.inputs()[3].group, static_cast<short>(UnitGroup::efficiency));
  ASSERT_EQ(turbine.outputs().size(), 4U);
  EXPECT_EQ(turbine.outputs()[0].name, "Power");
  for (const char* name : {"Power", "pPower", "power", "PPOWER"}) {
    EXPECT_EQ(turbine.output(name), 0U) << name;
  }
  EXPECT_EQ(turbine.output("QOut"), 3U);
  EXPECT_FALSE(turbine.output("Eff"));
  EXPECT_FALSE(turbine.output(""));
  EXPECT_EQ(numeric("XLTurbineA").output("pow"), 0U);
  EXPECT_EQ(numeric("PSatT").output("p"), 0U);
}

TEST(MemberColumns, EveryMemberAnswersAsItDoesRowByRow) {
  Module module;
  ZvCalvex object(module);
  ZvThermoInt& engine = object.engine();
  useCelsiusAndPsig(engine);
  Grid grid("rows");
  int members = 0;
  for (const Member& member : memberTable()) {
    const std::optional<NumericMember> found = NumericMember::of(member);
    if (!found || member.name.starts_with("XL")) continue;
    ++members;
    Sheet sheet(*found, 12);
    for (std::size_t k = 0; k < sheet.inputs.size(); ++k) {
      for (std::size_t row = 0; row < sheet.rows; ++row) {
        sheet.inputs[k][row] = valueOfGroup(found->inputs()[k].group, row);
      }
    }
    evaluate(sheet.request(), engine, 0, sheet.rows);
    for (std::size_t row = 0; row < sheet.rows; ++row) {
      engine.ClearTraceInfo();
      std::vector<Value> arguments(member.parameters().size());
      std::size_t input = 0;
      for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (member.parameters()[i].isInput()) arguments[i] = sheet.inputs[input++][row];
      }
      const int success = object.invoke(member, arguments).success;
      const std::string where = std::string(member.name) + " row " + std::to_string(row);
      grid.holds((sheet.status[row] == 0) == (success == 1), where + " status");
      grid.holds(sheet.reasons[row] == engine.LastError(), where + " " + sheet.reasons[row]);
      std::size_t output = 0;
      for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (!member.parameters()[i].isOutput()) continue;
        const double expected = success == 1 ? std::get<double>(arguments[i]) : NAN;
        grid.holds(sameBits(sheet.outputs[output++][row], expected), where);
      }
    }
  }
  EXPECT_GT(members, 130);
}

TEST(MemberColumns, SpreadsheetMembersAnswerByToken) {
  ZvThermoInt engine;
  Grid grid("tokens");
  for (const Sample& sample : samples()) {
    Sheet sheet(numeric(sample.member), 1);
    for (std::size_t k = 0; k < sheet.inputs.size(); ++k) sheet.inputs[k][0] = sample.inputs.at(k);
    evaluate(sheet.request(), engine, 0, 1);
    ASSERT_EQ(sheet.status[0], 0) << sample.member << ": " << sheet.reasons[0];
    const std::vector<ExpectedToken> tokens = tokensOf(sample.member);
    ASSERT_FALSE(tokens.empty());
    for (const ExpectedToken& token : tokens) {
      const std::size_t output = sheet.member.output(token.text).value();
      grid.relative(sheet.outputs[output][0], sample.result(engine, token.output), 1e-13,
                    sample.member + " " + token.text);
    }
  }
}

TEST(MemberColumns, ARowThatFailsLeavesTheOthersAlone) {
  ZvThermoInt engine;
  ASSERT_EQ(engine.SetUserUnit("T", "C"), 1);
  constexpr double inf = std::numeric_limits<double>::infinity();
  const std::vector<double> T{500, 3000, NAN, 500, inf, 311.0};
  const std::vector<double> P{10, 10, 10, -inf, 10, 10};
  const NumericMember member = numeric("HPT");
  std::vector<double> h(T.size(), untouched);
  std::vector<short> status(T.size(), -1);
  std::vector<std::string> reasons(T.size());
  const direct::Column inputs[] = {{P.data()}, {T.data()}};
  const MemberRequest::Output outputs[] = {{0, {h.data()}}};
  evaluate({member,
            inputs,
            outputs,
            {status.data()},
            [&](std::size_t row, std::string_view text) { reasons[row] = text; }},
           engine, 0, T.size());
  EXPECT_EQ(status, (std::vector<short>{0, 108, 108, 108, 108, 0}));
  EXPECT_EQ(h[0], valueOf(engine, &ZvThermoInt::HPT, 10.0, 500.0));
  for (const std::size_t row : {1U, 2U, 3U, 4U}) EXPECT_TRUE(std::isnan(h[row])) << row;
  EXPECT_EQ(h[5], valueOf(engine, &ZvThermoInt::HPT, 10.0, 311.0));
  EXPECT_EQ(reasons[0], "");
  EXPECT_EQ(reasons[1], "Temperature parameter out of range (Valid range -13.15 to 2226.85 C).");
  EXPECT_EQ(reasons[3], "Pressure parameter out of range (Valid range 0.00 to 3000.00 MPa).");
}

TEST(MemberColumns, ConstantsAndStridesAreTaken) {
  ZvThermoInt engine;
  const double P = 10.0;
  const double table[] = {300, -1, -1, 400, -1, -1, 500, -1, -1};  // every third
  double h[] = {untouched, untouched, untouched, untouched};
  const NumericMember member = numeric("HPT");
  const direct::Column inputs[] = {{&P, 0}, {table, 3}};
  const MemberRequest::Output outputs[] = {{0, {&h[3], -1}}};  // backwards
  evaluate({member, inputs, outputs}, engine, 0, 3);
  EXPECT_EQ(h[3], valueOf(engine, &ZvThermoInt::HPT, 10.0, 300.0));
  EXPECT_EQ(h[1], valueOf(engine, &ZvThermoInt::HPT, 10.0, 500.0));
  EXPECT_EQ(h[0], untouched);
}

TEST(MemberColumns, OnlyTheRowsAskedForAreTouched) {
  ZvThermoInt engine;
  Sheet sheet(numeric("TSatP"), 5);
  for (double& P : sheet.inputs[0]) P = 1.0;
  evaluate(sheet.request(), engine, 1, 3);
  EXPECT_EQ(sheet.outputs[0][0], untouched);
  EXPECT_EQ(sheet.outputs[0][3], untouched);
  EXPECT_EQ(sheet.status, (std::vector<short>{-1, 0, 0, -1, -1}));
  EXPECT_EQ(sheet.outputs[0][1], valueOf(engine, &ZvThermoInt::TSatP, 1.0));
}

TEST(MemberColumns, TheEnginesSettingsAreAsBefore) {
  ZvThermoInt engine;
  engine.SetTraceLevel(2);
  engine.SetFunctionCallTracing(0);
  Sheet sheet(numeric("HPT"), 2);
  evaluate(sheet.request(), engine, 0, 2);
  EXPECT_EQ(sheet.status, (std::vector<short>{108, 108}));  // 0 K
  EXPECT_NE(sheet.reasons[1], "");
  EXPECT_EQ(engine.TraceLevel(), 2);
  EXPECT_EQ(engine.FunctionCallTracing(), 0);
  EXPECT_EQ(keptCalls(engine), 0);
}

// 200 states of every kind, also hopeless ones.
Sheet statesOf(std::string_view name) {
  Sheet sheet(numeric(name), 200);
  for (std::size_t row = 0; row < sheet.rows; ++row) {
    sheet.inputs[0][row] = -0.5 + 0.3 * static_cast<double>(row % 37);
    sheet.inputs[1][row] = 100.0 + 40.0 * static_cast<double>(row % 53);  // kJ/kg
  }
  return sheet;
}

TEST(MemberColumns, AreTheSameOnAnyNumberOfThreads) {
  ZvThermoInt like;
  ASSERT_EQ(like.SetUserUnit("P", "bara"), 1);
  like.SetSatPolish(2);
  for (const char* name : {"TPH", "QPH", "SPH"}) {
    Sheet alone = statesOf(name);
    EXPECT_TRUE(evaluate(alone.request(), like, alone.rows, {.threads = 1, .chunk = 200}));
    EXPECT_GT(std::ranges::count(alone.status, 0), 50) << name;
    EXPECT_GT(std::ranges::count(alone.status, 108), 0);
    for (const unsigned threads : {2U, 3U}) {
      Sheet shared = statesOf(name);
      EXPECT_TRUE(evaluate(shared.request(), like, shared.rows, {.threads = threads, .chunk = 7}));
      EXPECT_EQ(shared.status, alone.status);
      EXPECT_EQ(shared.reasons, alone.reasons);
      for (std::size_t row = 0; row < alone.rows; ++row) {
        EXPECT_TRUE(sameBits(shared.outputs[0][row], alone.outputs[0][row])) << name << row;
      }
    }
  }
}

TEST(MemberColumns, SeveralOfOnePairAreAsEachAlone) {
  ZvThermoInt engine;
  engine.SetSatPolish(2);
  // Of a mixture of liquid and vapour G has no value and the others have; PT is another pair.
  const char* const names[] = {"TPH", "GPH", "SPH", "HPT", "QPH"};
  std::vector<Sheet> alone, together;
  for (const char* name : names) {
    alone.push_back(statesOf(name));
    evaluate(alone.back().request(), engine, 0, alone.back().rows);
    together.push_back(statesOf(name));
  }
  std::vector<MemberRequest> requests;
  for (Sheet& sheet : together) requests.push_back(sheet.request());
  evaluate(requests, engine, 0, together.front().rows);
  EXPECT_GT(std::ranges::count(alone[1].status, 106), 10);
  EXPECT_GT(std::ranges::count(alone[0].status, 0), 50);
  for (std::size_t i = 0; i < alone.size(); ++i) {
    EXPECT_EQ(together[i].status, alone[i].status) << names[i];
    EXPECT_EQ(together[i].reasons, alone[i].reasons) << names[i];
    for (std::size_t row = 0; row < alone[i].rows; ++row) {
      EXPECT_TRUE(sameBits(together[i].outputs[0][row], alone[i].outputs[0][row])) << names[i];
    }
  }
}

TEST(MemberColumns, TheDirectRoadAnswersAsTheMembersDo) {
  ZvThermoInt exact;
  useCelsiusAndPsig(exact);
  ASSERT_EQ(exact.SetUserUnit("H", "Btu/lb"), 1);
  exact.SetSatPolish(2);
  ZvThermoInt memberwise;
  memberwise.TakeSettings(exact);
  memberwise.SetSolverIter(201);  // not the direct road's settings
  Grid grid("direct road");
  int members = 0;
  for (const Member& member : memberTable()) {
    if (!directMember(member)) continue;
    ++members;
    const NumericMember found = NumericMember::of(member).value();
    Sheet direct(found, 60), single(found, 60);
    for (std::size_t k = 0; k < direct.inputs.size(); ++k) {
      for (std::size_t row = 0; row < direct.rows; ++row) {
        // All pairs of some values.
        const double value = valueOfGroup(found.inputs()[k].group, k == 0 ? row % 12 : row / 5);
        direct.inputs[k][row] = single.inputs[k][row] = value;
      }
    }
    evaluate(direct.request(), exact, 0, direct.rows);
    evaluate(single.request(), memberwise, 0, single.rows);
    for (std::size_t row = 0; row < direct.rows; ++row) {
      const std::string where = std::string(member.name) + " row " + std::to_string(row);
      grid.holds(direct.status[row] == single.status[row], where + " " + direct.reasons[row]);
      grid.holds(direct.reasons[row] == single.reasons[row], where + " " + direct.reasons[row]);
      if (single.status[row] != 0) continue;
      // Energies and entropies have their zero where the formulation put it: 1 of a unit is their
      // scale.
      const double scale = std::max(std::abs(single.outputs[0][row]), 1.0);
      grid.near(direct.outputs[0][row], single.outputs[0][row], 1e-8, scale, where);
    }
  }
  EXPECT_EQ(members, 95 + 10 + 2);  // all
}

TEST(MemberColumns, WarnOfTheRowsThatTheMembersWarnOf) {
  ZvThermoInt exact;
  exact.SetSatPolish(2);
  ZvThermoInt memberwise;
  memberwise.TakeSettings(exact);
  memberwise.SetSolverIter(201);  // not the direct road's settings
  constexpr double temperatures[] = {265.0, 273.1, 273.2, 280.0,  300.0, 315.0,
                                     324.0, 326.0, 400.0, 1273.0, 1274.0};
  constexpr double pressures[] = {0.1,   90.0,  110.0,  499.0,  501.0,  789.0,
                                  820.0, 900.0, 1340.0, 1350.0, 2000.0, 2900.0};
  Grid grid("warnings");
  std::size_t warned = 0;
  std::size_t rows = 0;
  for (const Member& member : memberTable()) {
    const std::optional<DirectMember> way = directMember(member);
    if (!way) continue;
    const NumericMember found = NumericMember::of(member).value();
    Sheet direct(found, std::size(temperatures) * std::size(pressures)), single(found, direct.rows);
    const direct::Letter letters[] = {direct::firstOf(way->pair), direct::secondOf(way->pair)};
    for (std::size_t row = 0; row < direct.rows; ++row) {
      double values[2] = {400.0, 0.5};
      if (letters[1] != direct::Letter::Q) {
        direct::evaluate(direct::Pair::PT, pressures[row % std::size(pressures)],
                         temperatures[row / std::size(pressures)], letters, values);
      }
      for (std::size_t k = 0; k < direct.inputs.size(); ++k) {
        direct.inputs[k][row] = single.inputs[k][row] = values[k];
      }
    }
    evaluate(direct.request(), exact, 0, direct.rows);
    evaluate(single.request(), memberwise, 0, single.rows);
    for (std::size_t row = 0; row < direct.rows; ++row) {
      grid.holds(direct.warnings[row] == single.warnings[row],
                 fmt::format("{} row {}: {} {}", member.name, row, direct.warnings[row],
                             single.warnings[row]));
      warned += direct.warnings[row].empty() ? 0 : 1;
    }
    rows += direct.rows;
    // Whoever does not ask is not told, and the member is not asked.
    MemberRequest silent = direct.request();
    silent.warning = {};
    evaluate(silent, exact, 0, direct.rows);
  }
  EXPECT_GT(warned, rows / 4);
  EXPECT_LT(warned, 3 * rows / 4);
}

TEST(MemberColumns, TheDirectRoadIsLeftWhereTheSettingsAreOthers) {
  ZvThermoInt engine;
  EXPECT_FALSE(hasDirectSettings(engine));
  engine.SetSatPolish(2);
  EXPECT_TRUE(hasDirectSettings(engine));
  engine.SetSolverTol(1e-8);
  EXPECT_FALSE(hasDirectSettings(engine));
  EXPECT_TRUE(directUnits(engine.units()));
}

// 1 ksi is 6894757.293168361 Pa, the reference for pressures in the catalogue.
TEST(MemberColumns, TheDirectRoadKnowsCustomUnitsThatValuesCanBeToldIn) {
  ZvThermoInt engine;
  engine.SetAppLevel(3);
  ASSERT_EQ(engine.SetCustomUserUnitIndex(1, "ksi", 6894757.293168361, 0.0), 1);
  const auto units = directUnits(engine.units());
  ASSERT_TRUE(units);
  const direct::Unit& pressure = (*units)[static_cast<std::size_t>(direct::Letter::P)];
  EXPECT_NEAR((1.0 + pressure.offset) * pressure.factor, 6.894757293168361, 1e-14);  // MPa
  EXPECT_EQ(pressure.name, "ksi");
  for (const double factor : {0.0, 1e-200, 1e300, std::nan("")}) {
    engine.SetCustomUserUnitIndex(1, "none", factor, 0.0);
    EXPECT_FALSE(directUnits(engine.units())) << factor;
  }
}

TEST(MemberColumns, AStopEndsThemEarly) {
  ZvThermoInt like;
  Sheet sheet = statesOf("HPT");
  std::stop_source source;
  const ChunkedLoop loop{
      .threads = 1, .chunk = 10, .stop = source.get_token(), .progress = [&](std::size_t done) {
        if (done >= 50) source.request_stop();
      }};
  EXPECT_FALSE(evaluate(sheet.request(), like, sheet.rows, loop));
  EXPECT_EQ(sheet.status[49] == -1, false);
  EXPECT_EQ(sheet.status[50], -1);
}

}  // namespace
}  // namespace calvex::test
