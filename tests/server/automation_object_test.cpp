// The automation object: how members are called, what they answer, and who shares the engine.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <vector>

#include "server/zv_calvex.h"
#include "support/checkout.h"

namespace calvex::test {
namespace {

class AutomationObject : public testing::Test {
 protected:
  Module module;
  ZvCalvex object{module};

  ZvCalvex::Result invoke(std::string_view name, std::vector<Value>& arguments) {
    return object.invoke(*findMember(name), arguments);
  }
  ZvCalvex::Result put(std::string_view name, Value value) {
    std::vector<Value> arguments{std::move(value)};
    return object.put(*findMember(name), arguments);
  }
  Value get(std::string_view name) {
    std::vector<Value> arguments(1);
    EXPECT_EQ(invoke(name, arguments).hresult, HResult::ok) << name;
    return arguments[0];
  }
  std::string lastError() { return std::get<std::string>(get("LastError")); }
};

bool isAbsent(const Value& value) { return std::holds_alternative<std::monostate>(value); }

// Methods that answer pSucc
// ------------------------------------------------------------------------------

TEST_F(AutomationObject, ComputingMembersAnswerOkAndTheSuccess) {
  std::vector<Value> arguments{{}, 10.0, 773.15};
  const ZvCalvex::Result result = invoke("HPT", arguments);
  EXPECT_EQ(result.hresult, HResult::ok);
  EXPECT_EQ(result.success, 1);
  EXPECT_NEAR(std::get<double>(arguments[0]), 3374.0, 0.05);
}

TEST_F(AutomationObject, FailedComputationsAnswerOkNoSuccessAndNoValue) {
  std::vector<Value> arguments{{}, 10.0, 100.0};
  const ZvCalvex::Result result = invoke("HPT", arguments);
  EXPECT_EQ(result.hresult, HResult::ok);
  EXPECT_EQ(result.success, 0);
  EXPECT_TRUE(isAbsent(arguments[0]));
  EXPECT_EQ(lastError(), "Temperature parameter out of range (Valid range 260.00 to 2500.00 K).");
}

TEST_F(AutomationObject, OutputsOfSeveralResultsAreAllAbsentOnFailure) {
  std::vector<Value> arguments{{}, {}, {}, {}, 1.0, 1.5};
  EXPECT_EQ(invoke("HVLTSat_PQ", arguments).success, 0);
  for (int i = 0; i < 4; ++i) EXPECT_TRUE(isAbsent(arguments[static_cast<std::size_t>(i)]));
  arguments = {{}, {}, {}, {}, 1.0, 0.5};
  EXPECT_EQ(invoke("HVLTSat_PQ", arguments).success, 1);
  for (int i = 0; i < 4; ++i) {
    EXPECT_TRUE(std::holds_alternative<double>(arguments[static_cast<std::size_t>(i)]));
  }
}

TEST_F(AutomationObject, UnitMembersAnswerTheSuccess) {
  std::vector<Value> arguments{std::string("T"), std::string("C")};
  EXPECT_EQ(invoke("SetUserUnit", arguments).success, 1);
  arguments = {std::string("T"), {}};
  EXPECT_EQ(invoke("GetUserUnit", arguments).success, 1);
  EXPECT_EQ(std::get<std::string>(arguments[1]), "C");
  arguments = {std::string("temp"), {}};
  const ZvCalvex::Result result = invoke("GetUserUnit", arguments);
  EXPECT_EQ(result.hresult, HResult::ok);
  EXPECT_EQ(result.success, 0);
  EXPECT_TRUE(isAbsent(arguments[1]));
  arguments = {std::string("P"), std::string("psig"), std::string("bara"), 0.0, {}};
  EXPECT_EQ(invoke("Convert", arguments).success, 1);
  EXPECT_NEAR(std::get<double>(arguments[4]), 1.01325, 1e-7);
}

// Members that answer S_OK or S_FALSE
// ----------------------------------------------------------------------

TEST_F(AutomationObject, RejectedSettingsAnswerFalseAndKeepTheirValue) {
  EXPECT_EQ(put("SolverTol", 1e-14).hresult, HResult::no);
  EXPECT_EQ(put("SolverTol", 1e-6).hresult, HResult::no);
  EXPECT_EQ(lastError(), "Invalid solver tolerance specified.");
  EXPECT_EQ(std::get<double>(get("SolverTol")), 1e-9);
  EXPECT_EQ(put("SolverTol", 1e-7).hresult, HResult::ok);
  EXPECT_EQ(std::get<double>(get("SolverTol")), 1e-7);
}

TEST_F(AutomationObject, RejectedMethodsOfStatusStyleAnswerFalse) {
  std::vector<Value> arguments{0, std::string("A1")};
  EXPECT_EQ(invoke("SetCustomTraceText", arguments).hresult, HResult::no);
  arguments = {{}};
  EXPECT_EQ(invoke("GetCellRef", arguments).hresult, HResult::no);
  EXPECT_TRUE(isAbsent(arguments[0]));
  arguments = {std::string("b"), std::string("s"), std::string("c")};
  EXPECT_EQ(invoke("SetCellRef", arguments).hresult, HResult::no);
}

TEST_F(AutomationObject, MethodsOfStatusStyleAnswerOk) {
  std::vector<Value> none;
  EXPECT_EQ(invoke("SetupExcelTracing", none).hresult, HResult::ok);
  std::vector<Value> arguments{std::string("Book1.xls"), std::string("Sheet1"), std::string("A1")};
  EXPECT_EQ(invoke("SetCellRef", arguments).hresult, HResult::ok);
  arguments = {{}};
  EXPECT_EQ(invoke("GetCellRef", arguments).hresult, HResult::ok);
  EXPECT_EQ(std::get<std::string>(arguments[0]), "'[Book1.xls]Sheet1'!A1");
  EXPECT_EQ(invoke("ClearTraceInfo", none).hresult, HResult::ok);
}

TEST_F(AutomationObject, AnAppLevelOfFourAnswersFalseWithoutAMessage) {
  EXPECT_EQ(put("AppLevel", short{4}).hresult, HResult::no);
  EXPECT_EQ(lastError(), "");
  EXPECT_EQ(std::get<short>(get("AppLevel")), 2);
}

TEST_F(AutomationObject, AlarmsAreAnArrayOfThreeByTwo) {
  std::vector<Value> arguments(1);
  const ZvCalvex::Result result = invoke("GetAlarms", arguments);
  EXPECT_EQ(result.hresult, HResult::ok);
  const ResultArray& alarms = std::get<ResultArray>(arguments[0]);
  ASSERT_EQ(alarms.size(), 3U);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(alarms[i],
              (std::vector<Cell>{"Alarm Name" + std::to_string(i), std::string("Alarm Message")}));
  }
}

TEST_F(AutomationObject, TheWindowHandleAnswersOkAndWritesNothing) {
  EXPECT_TRUE(isAbsent(get("hWnd")));
}

TEST_F(AutomationObject, TheVersionIsReadOnly) {
  EXPECT_EQ(std::get<std::string>(get("VersionStr")), test::projectVersion());
  EXPECT_EQ(put("VersionStr", std::string("5")).hresult, HResult::memberNotFound);
  EXPECT_EQ(put("LastError", std::string("x")).hresult, HResult::memberNotFound);
  EXPECT_EQ(put("hWnd", 1).hresult, HResult::memberNotFound);
  EXPECT_EQ(std::get<std::string>(get("VersionStr")), test::projectVersion());
}

TEST_F(AutomationObject, MethodsCannotBePut) {
  EXPECT_EQ(put("CritT", 1.0).hresult, HResult::memberNotFound);
  EXPECT_EQ(put("XT", 1.0).hresult, HResult::memberNotFound);
}

TEST_F(AutomationObject, EverySettingReadsBackWhatWasPut) {
  const std::vector<std::pair<const char*, Value>> settings{
      {"SolverTol", 1e-8},
      {"SolverIter", short{300}},
      {"TraceLevel", short{1}},
      {"SatPolish", 0},
      {"FunctionCallTracing", 0},
      {"MaxTraceSize", short{7}},
      {"ReturnModelUnits", 0},
      {"ReturnThermoUnits", 0},
      {"ReturnModelTokens", 0},
      {"AppLevel", short{3}},
      {"AppName", std::string("mine")},
      {"AppHelpFile", std::string("mine.chm")},
      {"UomHelpContext", 5}};
  for (const auto& [name, value] : settings) {
    EXPECT_NE(get(name), value) << name;
    EXPECT_EQ(put(name, value).hresult, HResult::ok) << name;
    EXPECT_EQ(get(name), value) << name;
  }
}

// Members whose result is the value
// --------------------------------------------------------------------------

TEST_F(AutomationObject, ConstantsAreTheValueItself) {
  EXPECT_EQ(std::get<double>(get("CritT")), 647.126);
  EXPECT_EQ(std::get<double>(get("MolWeight")), 18.0152);
  EXPECT_EQ(std::get<double>(get("TripleP")), 0.00061173);
}

TEST_F(AutomationObject, DialogsThatAreNotBuiltAnswerTwo) {
  for (const char* dialog : {"ShowTraceDlg", "ShowSelectUomDlg", "ShowOptionsDlg"}) {
    EXPECT_EQ(std::get<short>(get(dialog)), 2) << dialog;
  }
}

// Arguments
// -----------------------------------------------------------------------------------------------------

TEST_F(AutomationObject, AWrongNumberOfArgumentsIsRefused) {
  std::vector<Value> arguments{{}, 10.0};
  EXPECT_EQ(invoke("HPT", arguments).hresult, HResult::badParameterCount);
  arguments = {{}, 10.0, 773.15, 1.0};
  EXPECT_EQ(invoke("HPT", arguments).hresult, HResult::badParameterCount);
  arguments = {};
  EXPECT_EQ(invoke("SolverTol", arguments).hresult, HResult::badParameterCount);
  EXPECT_EQ(object.put(*findMember("SolverTol"), arguments).hresult, HResult::badParameterCount);
  arguments = {1.0};
  EXPECT_EQ(invoke("ClearTraceInfo", arguments).hresult, HResult::badParameterCount);
}

TEST_F(AutomationObject, AnArgumentOfTheWrongTypeIsRefused) {
  std::vector<Value> arguments{{}, std::string("10"), 773.15};
  EXPECT_EQ(invoke("HPT", arguments).hresult, HResult::typeMismatch);
  EXPECT_TRUE(isAbsent(arguments[0]));
  arguments = {{}, {}, 773.15};
  EXPECT_EQ(invoke("HPT", arguments).hresult, HResult::typeMismatch);
  arguments = {{}, ResultArray{}, 773.15};
  EXPECT_EQ(invoke("HPT", arguments).hresult, HResult::typeMismatch);
  EXPECT_EQ(put("SolverIter", std::string("many")).hresult, HResult::typeMismatch);
  EXPECT_EQ(put("SolverIter", 1e9).hresult, HResult::typeMismatch);
  EXPECT_EQ(lastError(), "");
}

TEST_F(AutomationObject, WholeNumbersServeAsRealInputs) {
  std::vector<Value> arguments{{}, short{10}, 773};
  EXPECT_EQ(invoke("HPT", arguments).success, 1);
  EXPECT_NEAR(std::get<double>(arguments[0]), 3373.6, 0.5);
}

TEST_F(AutomationObject, RealNumbersRoundToIntegerInputs) {
  EXPECT_EQ(put("SolverIter", 300.5).hresult, HResult::ok);
  EXPECT_EQ(std::get<short>(get("SolverIter")), 300);
  EXPECT_EQ(put("SolverIter", 301.5).hresult, HResult::ok);
  EXPECT_EQ(std::get<short>(get("SolverIter")), 302);
}

TEST(Coercion, RoundsHalvesToEven) {
  for (const auto& [real, whole] : std::vector<std::pair<double, short>>{{0.5, 0},
                                                                         {1.5, 2},
                                                                         {2.5, 2},
                                                                         {-0.5, 0},
                                                                         {-1.5, -2},
                                                                         {2.4999, 2},
                                                                         {2.5001, 3},
                                                                         {32767.4, 32767},
                                                                         {-32768.5, -32768}}) {
    Value value = real;
    EXPECT_TRUE(coerce(value, ValueType::shortInteger)) << real;
    EXPECT_EQ(value, Value(whole)) << real;
  }
}

TEST(Coercion, RefusesNumbersThatDoNotFit) {
  for (const double real :
       {32767.5, -32768.6, 1e300, -1e300, std::nan(""), std::numeric_limits<double>::infinity()}) {
    Value value = real;
    EXPECT_FALSE(coerce(value, ValueType::shortInteger)) << real;
  }
  for (const double real : {2147483647.5, -2147483649.0, std::nan("")}) {
    Value value = real;
    EXPECT_FALSE(coerce(value, ValueType::longInteger)) << real;
  }
  Value value = 40000;
  EXPECT_FALSE(coerce(value, ValueType::shortInteger));
}

TEST(Coercion, KeepsNumbersAcrossNumberTypes) {
  Value value = short{-7};
  EXPECT_TRUE(coerce(value, ValueType::longInteger));
  EXPECT_EQ(value, Value(-7));
  EXPECT_TRUE(coerce(value, ValueType::real));
  EXPECT_EQ(value, Value(-7.0));
  EXPECT_TRUE(coerce(value, ValueType::shortInteger));
  EXPECT_EQ(value, Value(short{-7}));
  value = 2147483647.0;
  EXPECT_TRUE(coerce(value, ValueType::longInteger));
  EXPECT_EQ(value, Value(2147483647));
}

TEST(Coercion, DoesNotReadNumbersFromTextsOrArrays) {
  for (const ValueType type : {ValueType::real, ValueType::shortInteger, ValueType::longInteger}) {
    Value value = std::string("1");
    EXPECT_FALSE(coerce(value, type));
    value = ResultArray{};
    EXPECT_FALSE(coerce(value, type));
    value = std::monostate{};
    EXPECT_FALSE(coerce(value, type));
  }
}

TEST(Coercion, LeavesValuesOfTheRightTypeAlone) {
  const double nan = std::nan("");
  Value value = nan;
  EXPECT_TRUE(coerce(value, ValueType::real));
  EXPECT_TRUE(std::isnan(std::get<double>(value)));
  value = std::string("text");
  EXPECT_TRUE(coerce(value, ValueType::text));
  EXPECT_EQ(value, Value(std::string("text")));
}

// Lifetime
// --------------------------------------------------------------------------------------------------------

TEST(AutomationObjects, ShareTheEngineUntilTheLastIsReleased) {
  Module module;
  auto first = std::make_unique<ZvCalvex>(module);
  auto second = std::make_unique<ZvCalvex>(module);
  EXPECT_EQ(module.engine().liveObjects(), 2);
  std::vector<Value> value{1e-8};
  ASSERT_EQ(first->put(*findMember("SolverTol"), value).hresult, HResult::ok);
  value = {{}};
  second->invoke(*findMember("SolverTol"), value);
  EXPECT_EQ(value[0], Value(1e-8));
  first.reset();
  value = {{}};
  second->invoke(*findMember("SolverTol"), value);
  EXPECT_EQ(value[0], Value(1e-8));
  second.reset();
  EXPECT_EQ(module.engine().liveObjects(), 0);
  ZvCalvex third(module);
  value = {{}};
  third.invoke(*findMember("SolverTol"), value);
  EXPECT_EQ(value[0], Value(1e-9));
}

TEST(AutomationObjects, FindDefaultsAndTheChosenUnitsAfterTheLastRelease) {
  Module module;
  {
    ZvCalvex object(module);
    module.engine().SetTraceLevel(2);
    module.engine().SetSolverIter(300);
    module.engine().SetMaxTraceSize(3);
    module.engine().SetUserUnit("T", "C");
    module.engine().SetAppLevel(3);
    module.engine().SetSolverTol(1.0);
  }
  ZvCalvex object(module);
  EXPECT_EQ(object.engine().TraceLevel(), 0);
  EXPECT_EQ(object.engine().AppLevel(), 2);
  EXPECT_EQ(object.engine().SolverTol(), 1e-9);
  EXPECT_EQ(object.engine().SolverIter(), 200);
  EXPECT_EQ(object.engine().MaxTraceSize(), 1000);
  EXPECT_EQ(object.engine().LastError(), "");
  std::string unit;
  ASSERT_EQ(object.engine().GetUserUnit("T", &unit), 1);
  EXPECT_EQ(unit, "C");
}

}  // namespace
}  // namespace calvex::test
