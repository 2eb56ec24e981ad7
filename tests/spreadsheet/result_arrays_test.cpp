// What a spreadsheet variant does with its token text, its model and its array.
#include "spreadsheet/result_arrays.h"

#include <cstring>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <stdexcept>

#include "diagnostics/outline.h"
#include "equipment/turbines_compressors.h"
#include "spreadsheet/samples.h"

namespace calvex::test {
namespace {

class ResultArrays : public testing::Test {
 protected:
  std::string trace() const { return outline(engine_.diagnostics().root()); }
  const ZvFunctionCall& lastCall() const {
    const ZvFunctionCall* call = engine_.diagnostics().root().firstChild();
    if (call == nullptr) throw std::logic_error("no call left a message");
    while (call->nextSibling() != nullptr) call = call->nextSibling();
    return *call;
  }

  Module module_;
  ZvCalvex client_{module_};
  ZvThermoInt& engine_ = client_.engine();
};

using Kind = ZvFunctionCall::Kind;

std::vector<std::string> callsBelow(const ZvFunctionCall& node) {
  std::vector<std::string> names;
  for (const auto* child = node.firstChild(); child != nullptr; child = child->nextSibling()) {
    if (child->kind() == Kind::call) names.emplace_back(child->text());
  }
  return names;
}

// The model's name as the outer node has it; ThermoCompB opens its node as ThermoCompA.
std::string innerName(const Sample& sample) {
  return sample.modelName() == "ThermoCompB" ? "ThermoCompA" : sample.modelName();
}

TEST_F(ResultArrays, SplitTokensAtCommasSemicolonsColonsAndBlanks) {
  const Sample& sample = sampleOf("XLTurbineA");
  const ResultArray expected = resultsOf(client_, sample, "Pow T_Out H_Out");
  ASSERT_EQ(expected.size(), 3U);
  EXPECT_EQ(std::get<std::string>(expected[0][0]), "Turbine Power");
  EXPECT_EQ(std::get<std::string>(expected[1][0]), "Outlet Temperature");
  EXPECT_EQ(std::get<std::string>(expected[2][0]), "Outlet Enthalpy");
  for (const char* text : {"Pow, T_Out;h_out", "Pow,T_Out,H_Out", "Pow;T_Out;H_Out",
                           "Pow:T_Out:H_Out", " ,;:Pow ;;T_Out,: ,H_Out: ;,"}) {
    EXPECT_EQ(resultsOf(client_, sample, text), expected) << text;
  }
}

TEST_F(ResultArrays, SplitTokensAtNothingElse) {
  const Sample& sample = sampleOf("XLTurbineA");
  for (const std::string separator :
       {"\t", "\n", "\r", "\v", "\f", ".", "|", "/", "-", "_", "\xA0", "\x01"}) {
    EXPECT_EQ(errorOf(client_, sample, "Pow" + separator + "T_Out"), "Invalid Token!");
    EXPECT_EQ(errorOf(client_, sample, separator + "Pow"), "Invalid Token!");
    EXPECT_EQ(errorOf(client_, sample, "Pow" + separator), "Invalid Token!");
  }
  EXPECT_EQ(errorOf(client_, sample, std::string("Pow\0T_Out", 9)), "Invalid Token!");
  EXPECT_EQ(errorOf(client_, sample, std::string("Pow\0", 4)), "Invalid Token!");
}

// Only whole tokens match, and only ASCII letters have two cases.
TEST_F(ResultArrays, RefuseWhatIsOnlyLikeAToken) {
  const Sample& sample = sampleOf("XLTurbineA");
  for (const char* text :
       {"Po", "Pow1", "T_Ou", "T_Outt", "T-Out", "XT_Out", "\"Pow\"", "Eff", "T_\xD6ut", "0"}) {
    EXPECT_EQ(errorOf(client_, sample, text), "Invalid Token!") << text;
  }
  // Differs from '_' as the cases of a letter do.
  EXPECT_EQ(errorOf(client_, sample, "T\x7FOut"), "Invalid Token!");
}

TEST_F(ResultArrays, AreNotMadeWithoutTokens) {
  for (const Sample& sample : samples()) {
    for (const char* text : {"", " ", ",", ";", ":", ",;: ", " , ; : ", "::::    ,,,,"}) {
      EXPECT_EQ(errorOf(client_, sample, text), "No return tokens specified!")
          << sample.member << " \"" << text << '"';
      // Turbines and compressors have not run then, the others have.
      const ZvFunctionCall& outer = lastCall();
      EXPECT_EQ(outer.text(), sample.modelName());
      EXPECT_EQ(callsBelow(outer), sample.tokensFirst
                                       ? std::vector<std::string>{}
                                       : std::vector<std::string>{innerName(sample)});
    }
  }
}

TEST_F(ResultArrays, AreNotMadeWhenTheModelFails) {
  for (const Sample& sample : samples()) {
    std::vector<double> outputs;
    engine_.ClearTraceInfo();
    ASSERT_EQ(sample.model(engine_, outputs, badInputs(sample)), 0) << sample.member;
    const std::string ownError = engine_.LastError();
    ASSERT_FALSE(ownError.empty());
    EXPECT_EQ(errorOf(client_, sample.member, badInputs(sample), allTokens(sample)), ownError);
    EXPECT_EQ(lastCall().childCount(), 1) << sample.member << ": the model's error only";
    EXPECT_EQ(callsBelow(lastCall()), std::vector<std::string>{innerName(sample)});
    // A failed model is told before a misspelt token ...
    EXPECT_EQ(errorOf(client_, sample.member, badInputs(sample), "Eff"), ownError);
    // ... and, by those that run it first, before missing ones.
    EXPECT_EQ(errorOf(client_, sample.member, badInputs(sample), " ;"),
              sample.tokensFirst ? "No return tokens specified!" : ownError);
  }
}

TEST_F(ResultArrays, AreLostWithOneBadTokenAfterOneRunOfTheModel) {
  for (const Sample& sample : samples()) {
    const std::string known = tokensOf(sample.member).front().text;
    for (const std::string& text : {known + " Eff", "Eff " + known, known + " Eff " + known}) {
      EXPECT_EQ(errorOf(client_, sample, text), "Invalid Token!") << sample.member << ' ' << text;
      const ZvFunctionCall& outer = lastCall();
      EXPECT_EQ(outer.text(), sample.modelName());
      ASSERT_EQ(outer.childCount(), 2) << sample.member;
      EXPECT_EQ(outer.firstChild()->text(), innerName(sample));
      EXPECT_EQ(outer.firstChild()->kind(), Kind::call);
      EXPECT_EQ(outer.firstChild()->nextSibling()->kind(), Kind::error);
      EXPECT_EQ(outer.firstChild()->nextSibling()->text(), "Invalid Token!");
    }
  }
}

TEST_F(ResultArrays, ReplaceWhatTheArrayHeld) {
  const ResultArray array = resultsOf(client_, sampleOf("XLFlashVessel"), "M_Vap");
  ASSERT_EQ(array.size(), 1U);
  EXPECT_EQ(std::get<std::string>(array[0][0]), "Steam Flow Rate");
}

TEST_F(ResultArrays, RefuseANumberInThePlaceOfTokens) {
  std::vector<Value> arguments{3214.0, 4.0, 0.01, 0.8, 10.0, 7.0, oldContent()};
  EXPECT_EQ(client_.invoke(*findMember("XLTurbineA"), arguments).hresult, HResult::typeMismatch);
  EXPECT_EQ(std::get<ResultArray>(arguments.back()), oldContent());
}

TEST_F(ResultArrays, ShowTwoNestedCalls) {
  engine_.SetTraceLevel(2);
  for (const Sample& sample : samples()) {
    engine_.ClearTraceInfo();
    resultsOf(client_, sample, allTokens(sample));
    const ZvFunctionCall& outer = lastCall();
    EXPECT_EQ(outer.text(), sample.modelName());
    // The units' names leave nothing in the trace.
    ASSERT_EQ(outer.childCount(), 1) << sample.member;
    EXPECT_EQ(outer.firstChild()->text(), innerName(sample));
    EXPECT_EQ(outer.firstChild()->kind(), Kind::call);
  }
}

TEST_F(ResultArrays, LeaveNoTraceWithoutAMessage) {
  resultsOf(client_, sampleOf("XLBoiler"), "H_Out");
  EXPECT_EQ(trace(), "");
}

TEST_F(ResultArrays, ShowAFailingCallAsATree) {
  const std::vector<double> tooEfficient{3214, 4, 0.01, 1.5, 10};
  errorOf(client_, "XLTurbineA", tooEfficient, "Pow");
  EXPECT_EQ(trace(),
            "call TurbineA\n"
            "  call TurbineA\n"
            "    error Efficiency parameter out of range (Valid range 0.00 to 1.00 Fraction).\n");
  errorOf(client_, sampleOf("XLTurbineA"), " ");
  EXPECT_EQ(trace(), "call TurbineA\n  error No return tokens specified!\n");
  errorOf(client_, "XLThermoCompB", {-1, 1, 2609, 0.02, 0.04, 0.7}, "H_Out");
  EXPECT_EQ(
      trace(),
      "call ThermoCompB\n"
      "  call ThermoCompA\n"
      "    error Motive Steam Enthalpy parameter out of range.\n"
      "    error Motive Steam Enthalpy -1 kJ/kg is below 0 kJ/kg, the least that is accepted.\n");
}

TEST_F(ResultArrays, RunTheModelAsThePlainCallDoes) {
  engine_.SetTraceLevel(2);
  for (const Sample& sample : samples()) {
    engine_.ClearTraceInfo();
    std::vector<double> outputs;
    ASSERT_EQ(sample.model(engine_, outputs, sample.inputs), 1) << sample.member;
    const std::vector<std::string> plain = callsBelow(lastCall());
    EXPECT_FALSE(plain.empty()) << sample.member;
    engine_.ClearTraceInfo();
    resultsOf(client_, sample, allTokens(sample) + allTokens(sample));
    ASSERT_EQ(callsBelow(lastCall()), std::vector<std::string>{innerName(sample)});
    EXPECT_EQ(callsBelow(*lastCall().firstChild()), plain) << sample.member;
  }
}

// Temperature and quality of the last outlet cost a property call, which is made when a token
// needs it. Those of the outlets before it come with the entropy that the next stage needs.
TEST_F(ResultArrays, ComputeTheOutletsStateOnlyForTokensThatNeedIt) {
  struct Case {
    const char* member;
    const char* tokens;
    std::vector<std::string> calls;
  };
  const std::vector<std::string> stage{"SPH", "HPS"}, stageTQ{"SPH", "HPS", "QTR_PH"};
  const std::vector<std::string> two{"SPH", "HPS", "QTS_PH", "HPS"},
      twoTQ{"SPH", "HPS", "QTS_PH", "HPS", "QTR_PH"};
  const std::vector<std::string> threeA{"SPH", "HPS", "QTS_PH", "HPS", "QTS_PH", "SPH", "HPS"},
      threeATQ{"SPH", "HPS", "QTS_PH", "HPS", "QTS_PH", "SPH", "HPS", "QTR_PH"};
  const std::vector<std::string> threeB{"SPH", "HPS", "QTS_PH", "HPS", "QTS_PH", "HPS"},
      threeBTQ{"SPH", "HPS", "QTS_PH", "HPS", "QTS_PH", "HPS", "QTR_PH"};
  const std::vector<Case> cases{
      {"XLTurbineA", "Pow H_Out", stage},
      {"XLTurbineA", "Pow T_Out", stageTQ},
      {"XLTurbineA", "q_out", stageTQ},
      {"XLTurbineA", "Q_Out T_Out T_Out", stageTQ},
      {"XLTurbineB", "M H_Out", stage},
      {"XLTurbineB", "M_In Q_Out", stageTQ},
      {"XLCompressorA", "Pow H_Out", stage},
      {"XLCompressorA", "T_Out", stageTQ},
      {"XLCompressorB", "M_In", stage},
      {"XLCompressorB", "Q_Out", stageTQ},
      {"XLTurbineE", "Pow H_Out", {"HPS"}},
      {"XLTurbineE", "T_Out", {"HPS", "QTR_PH"}},
      {"XLTurbineE", "Q_Out", {"HPS", "QTR_PH"}},
      {"XLTurbineE", "S_Out", {"HPS", "QTS_PH"}},
      {"XLTurbineE", "T_Out S_Out Q_Out", {"HPS", "QTS_PH"}},
      {"XLTurbineA2", "Pow T_Out1 Q_Out1 H_Out2", two},
      {"XLTurbineA2", "T_Out2", twoTQ},
      {"XLTurbineA2", "Q_Out2", twoTQ},
      {"XLTurbineB2", "M_Out2 T_Out1 Q_Out1", two},
      {"XLTurbineB2", "T_Out2", twoTQ},
      {"XLCompressorA2", "Pow T_Out1 Q_Out1", two},
      {"XLCompressorA2", "Q_Out2", twoTQ},
      {"XLCompressorB2", "M_Out2 T_Out1 Q_Out1", two},
      {"XLCompressorB2", "T_Out2", twoTQ},
      {"XLTurbineA3", "Pow T_Out1 Q_Out1 T_Out2 Q_Out2 H_Out3", threeA},
      {"XLTurbineA3", "T_Out3", threeATQ},
      {"XLTurbineA3", "q_out3", threeATQ},
      {"XLTurbineB3", "M_Out3 T_Out1 Q_Out1 T_Out2 Q_Out2", threeB},
      {"XLTurbineB3", "T_Out3", threeBTQ},
      {"XLTurbineB3", "Q_Out3", threeBTQ},
  };
  engine_.SetTraceLevel(2);
  for (const Case& expected : cases) {
    engine_.ClearTraceInfo();
    resultsOf(client_, sampleOf(expected.member), expected.tokens);
    ASSERT_NE(lastCall().firstChild(), nullptr);
    EXPECT_EQ(callsBelow(*lastCall().firstChild()), expected.calls)
        << expected.member << ' ' << expected.tokens;
  }
}

double valueAt(const ResultArray& array, std::size_t row) {
  return std::get<double>(array.at(row).at(1));
}
std::string unitAt(const ResultArray& array, std::size_t row) {
  return std::get<std::string>(array.at(row).at(2));
}

TEST_F(ResultArrays, FollowTheUsersUnits) {
  const Sample& sample = sampleOf("XLTurbineA");
  const ResultArray model = resultsOf(client_, sample, "T_Out Pow Q_Out");
  ASSERT_EQ(engine_.SetUserUnit("T", "C"), 1);
  ASSERT_EQ(engine_.SetUserUnit("Power", "MW"), 1);
  ASSERT_EQ(engine_.SetUserUnit("Q", "%"), 1);
  const ResultArray user = resultsOf(client_, sample, "T_Out Pow Q_Out");
  EXPECT_NEAR(valueAt(user, 0), valueAt(model, 0) - 273.15, 1e-9);
  EXPECT_EQ(unitAt(user, 0), "C");
  EXPECT_NEAR(valueAt(user, 1), valueAt(model, 1) / 1000, 1e-9);
  EXPECT_EQ(unitAt(user, 1), "MW");
  EXPECT_NEAR(valueAt(user, 2), valueAt(model, 2) * 100, 1e-9);
  EXPECT_EQ(unitAt(user, 2), "%");
  EXPECT_EQ(user[0][0], model[0][0]) << "labels do not change with units";
}

TEST_F(ResultArrays, TakeTheirInputsInTheUsersUnits) {
  const ResultArray model = resultsOf(client_, sampleOf("XLLetDownValve"), "T_Out");
  ASSERT_EQ(engine_.SetUserUnit("P", "kPa"), 1);
  const Answer user = call(client_, "XLLetDownValve", {2600, 4000, 300}, "T_Out");
  ASSERT_EQ(user.success, 1) << user.error;
  EXPECT_NEAR(valueAt(user.array, 0), valueAt(model, 0), 1e-9);
}

// One test for every group that a token has.
TEST_F(ResultArrays, NameTheUnitOfEachGroup) {
  const std::map<short, std::string> units{{0, "F"},      {1, "psia"}, {4, "Btu/(lb.F)"},
                                           {5, "Btu/lb"}, {7, "%"},    {9, "lb/h"},
                                           {10, "Btu/h"}, {12, "%"},   {22, "hp"}};
  std::set<short> seen;
  for (const auto& [group, unit] : units) {
    ASSERT_EQ(engine_.SetUserUnitIndex(group, unit), 1) << unit << ": " << engine_.LastError();
  }
  for (const Sample& sample : samples()) {
    // The inputs in these units; a plain number stays one.
    std::vector<double> inputs;
    const Member* member = findMember(sample.member);
    for (std::size_t i = 0; i < sample.inputs.size(); ++i) {
      const Parameter& parameter = member->parameters()[i];
      inputs.push_back(
          parameter.hasUnit()
              ? engine_.units().toUser(static_cast<UnitGroup>(parameter.group), sample.inputs[i])
              : sample.inputs[i]);
    }
    const Answer answer = call(client_, sample.member, inputs, allTokens(sample));
    ASSERT_EQ(answer.success, 1) << sample.member << ": " << answer.error;
    const std::vector<ExpectedToken> tokens = tokensOf(sample.member);
    ASSERT_EQ(answer.array.size(), tokens.size());
    for (std::size_t i = 0; i < tokens.size(); ++i) {
      EXPECT_EQ(unitAt(answer.array, i), units.at(tokens[i].group)) << tokens[i].text;
      seen.insert(tokens[i].group);
    }
  }
  EXPECT_EQ(seen.size(), units.size()) << "a group that no token has";
}

TEST_F(ResultArrays, NameCustomUnits) {
  ASSERT_EQ(engine_.SetAppLevel(3), 1);
  // A unit of 2 kJ/kg; reference value = (x + offset) * factor.
  ASSERT_EQ(engine_.SetCustomUserUnitIndex(5, "double kJ", 2.0, 0.0), 1);
  const Answer answer = call(client_, "XLDeSuperHeater", {1607, 210, 1, 500, 10}, "H_Out M_Out");
  ASSERT_EQ(answer.success, 1) << answer.error;
  EXPECT_EQ(unitAt(answer.array, 0), "double kJ");
  EXPECT_EQ(unitAt(answer.array, 1), "kg/s");
  ASSERT_EQ(engine_.SetAppLevel(2), 1);
  const ResultArray model = resultsOf(client_, sampleOf("XLDeSuperHeater"), "H_Out M_Out");
  EXPECT_NEAR(valueAt(answer.array, 0), valueAt(model, 0) / 2, 1e-9);
  EXPECT_NEAR(valueAt(answer.array, 1), valueAt(model, 1), 1e-9);
  EXPECT_EQ(unitAt(model, 0), "kJ/kg");
}

/// Converts nothing and names a group's unit after the group.
class NamingServer : public UnitsServer {
 public:
  bool declareGroup(std::string_view, std::string_view) override { return true; }
  bool setUserUnit(std::string_view, std::string_view, short&) override { return true; }
  bool getUserUnit(std::string_view group, std::string& unit, short&) override {
    unit = "unit of " + std::string(group);
    return true;
  }
  bool convert(std::string_view, std::string_view, std::string_view, double value, double& result,
               short&) override {
    result = value;
    return true;
  }
  bool toUser(std::string_view, double value, double& result, short&) override {
    result = value;
    return true;
  }
  bool toInternal(std::string_view, double value, double& result, short&) override {
    result = value;
    return true;
  }
  bool showDialog() override { return false; }
  std::string errorText(short) override { return {}; }
};

TEST(ResultArraysWithUnitsServer, NameTheServersUnits) {
  Module module([] { return std::make_unique<NamingServer>(); });
  ZvCalvex client(module);
  ASSERT_EQ(client.engine().SetAppLevel(1), 1);
  const ResultArray array = resultsOf(client, sampleOf("XLTurbineA"), "Pow H_Out");
  EXPECT_EQ(unitAt(array, 0), "unit of Power");
  EXPECT_EQ(unitAt(array, 1), "unit of Mass Specific Enthalpy");
}

TEST_F(ResultArrays, AreOperationsOfTheEngineToo) {
  ResultArray array;
  ASSERT_EQ(spreadsheet::XL<&TurbineA>(engine_, 3214, 4, 0.01, 0.8, 10, "Pow,T_Out", &array), 1);
  EXPECT_EQ(array, resultsOf(client_, sampleOf("XLTurbineA"), "Pow,T_Out"));
}

TEST_F(ResultArrays, ComeFromLongTokenTexts) {
  std::string text;
  for (int i = 0; i < 20000; ++i) text += "Pow,";
  EXPECT_EQ(resultsOf(client_, sampleOf("XLTurbineA"), text).size(), 20000U);
  EXPECT_EQ(errorOf(client_, sampleOf("XLTurbineA"), std::string(100000, 'P')), "Invalid Token!");
  EXPECT_EQ(errorOf(client_, sampleOf("XLTurbineA"), std::string(100000, ',')),
            "No return tokens specified!");
}

TEST_F(ResultArrays, SucceedOnlyWhenEveryTokenIsKnown) {
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE("seed " + std::to_string(seed));
  RecordProperty("seed", std::to_string(seed));
  std::mt19937 random(seed);
  const auto upTo = [&](std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>(0, limit)(random);
  };
  const auto upper = [](std::string text) {
    for (char& c : text) {
      if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
    }
    return text;
  };
  int succeeded = 0, refused = 0, empty = 0;
  for (int run = 0; run < 3000; ++run) {
    const Sample& sample = samples()[upTo(samples().size() - 1)];
    const std::vector<ExpectedToken> own = tokensOf(sample.member);
    std::string text;
    const std::size_t pieces = upTo(6);
    for (std::size_t i = 0; i < pieces; ++i) {
      switch (upTo(9)) {
        case 0:  // another variant's
          text += expectedTokens()[upTo(expectedTokens().size() - 1)].text;
          break;
        case 1:  // any bytes
          for (std::size_t n = upTo(4); n > 0; --n) text += static_cast<char>(upTo(255));
          break;
        default:
          text += own[upTo(own.size() - 1)].text;
          if (upTo(1) == 0) text.back() = upper(text).back();
      }
      for (std::size_t n = upTo(2) + (upTo(9) == 0 ? 0 : 1); n > 0; --n) text += ",;: "[upTo(3)];
    }

    // Told by the C library, which ends at a zero byte: after one the text is not judged.
    std::string copy = text;
    std::size_t count = 0, known = 0;
    char* rest = nullptr;
    for (char* word = strtok_r(copy.data(), ",;: ", &rest); word != nullptr;
         word = strtok_r(nullptr, ",;: ", &rest)) {
      ++count;
      for (const ExpectedToken& token : own) {
        if (upper(token.text) == upper(word)) {
          ++known;
          break;
        }
      }
    }
    const bool judged = text.find('\0') == std::string::npos;
    engine_.ClearTraceInfo();
    const Answer answer = call(client_, sample, text);
    const std::string what = sample.member + " \"" + text + '"';
    if (judged && count == 0) {
      EXPECT_EQ(answer.error, "No return tokens specified!") << what;
      ++empty;
    }
    if (!judged || known < count) {
      EXPECT_EQ(answer.error, "Invalid Token!") << what;
      ++refused;
    }
    const bool good = judged && count > 0 && known == count;
    ASSERT_EQ(answer.success, good ? 1 : 0) << what << ": " << answer.error;
    if (good) {
      EXPECT_EQ(answer.array.size(), count) << what;
      ++succeeded;
    } else {
      EXPECT_EQ(answer.array, oldContent()) << what;
    }
  }
  EXPECT_GT(succeeded, 100);
  EXPECT_GT(refused, 100);
  EXPECT_GT(empty, 10);
}

}  // namespace
}  // namespace calvex::test
