// The tokens of every spreadsheet variant: labels, values and units.
#include <algorithm>
#include <map>
#include <set>

#include "spreadsheet/samples.h"

namespace calvex::test {
namespace {

class Tokens : public testing::Test {
 protected:
  Module module_;
  ZvCalvex client_{module_};
  ZvThermoInt& engine_ = client_.engine();
};

TEST_F(Tokens, HaveASampleForEverySpreadsheetMember) {
  std::set<std::string> members;
  for (const Member& member : memberTable()) {
    if (member.name.starts_with("XL")) members.emplace(member.name);
  }
  std::set<std::string> sampled, listed;
  for (const Sample& sample : samples()) sampled.insert(sample.member);
  for (const ExpectedToken& token : expectedTokens()) listed.insert(token.member);
  EXPECT_EQ(members.size(), 31U);
  EXPECT_EQ(sampled, members);
  EXPECT_EQ(listed, members);
}

// Otherwise a token of the wrong output could pass.
TEST_F(Tokens, AreTriedWhereNoTwoOutputsAreEqual) {
  for (const Sample& sample : samples()) {
    std::vector<double> values;
    ASSERT_EQ(sample.model(engine_, values, sample.inputs), 1)
        << sample.member << ": " << engine_.LastError();
    const std::set<double> different(values.begin(), values.end());
    EXPECT_EQ(different.size(), values.size()) << sample.member;
  }
}

TEST_F(Tokens, GiveLabelValueAndUnitAsTheFlagsAsk) {
  std::map<short, std::string> modelUnits;
  for (const std::vector<std::string>& row : readCells("unit-groups.csv")) {
    modelUnits[static_cast<short>(std::stoi(row.at(0)))] = row.at(2);
  }
  for (const int withUnits : {0, 1, -1}) {
    for (const int withLabels : {0, 1, 2}) {
      engine_.SetReturnModelUnits(withUnits);
      engine_.SetReturnModelTokens(withLabels);
      for (const ExpectedToken& token : expectedTokens()) {
        const Sample& sample = sampleOf(token.member);
        std::vector<Cell> expected{sample.result(engine_, token.output)};
        if (withLabels != 0) expected.insert(expected.begin(), token.label);
        if (withUnits != 0) expected.emplace_back(modelUnits.at(token.group));
        EXPECT_EQ(resultsOf(client_, sample, token.text), ResultArray{expected})
            << token.member << ' ' << token.text << " units " << withUnits << " labels "
            << withLabels;
      }
    }
  }
}

TEST_F(Tokens, GiveARowWithLabelAndUnitUnlessToldOtherwise) {
  const ResultArray array = resultsOf(client_, sampleOf("XLTurbineA"), "Pow");
  ASSERT_EQ(array.size(), 1U);
  ASSERT_EQ(array[0].size(), 3U);
  EXPECT_EQ(std::get<std::string>(array[0][0]), "Turbine Power");
  EXPECT_EQ(std::get<std::string>(array[0][2]), "kW");
}

TEST_F(Tokens, GiveRowsInTheirOwnOrder) {
  for (const Sample& sample : samples()) {
    std::vector<ExpectedToken> tokens = tokensOf(sample.member);
    for (int reversed = 0; reversed < 2; ++reversed) {
      std::string text;
      ResultArray expected;
      for (const ExpectedToken& token : tokens) {
        text += token.text + ' ';
        expected.push_back({Cell(token.label), Cell(sample.result(engine_, token.output)),
                            Cell(unitOf(engine_, token.group))});
      }
      EXPECT_EQ(resultsOf(client_, sample, text), expected) << sample.member << ' ' << text;
      std::ranges::reverse(tokens);
    }
  }
}

TEST_F(Tokens, GiveARowEachTimeTheyAreNamed) {
  for (const Sample& sample : samples()) {
    const std::string first = tokensOf(sample.member).front().text;
    const std::string last = tokensOf(sample.member).back().text;
    const ResultArray once = resultsOf(client_, sample, first + "," + last);
    ASSERT_EQ(once.size(), 2U);
    EXPECT_EQ(resultsOf(client_, sample, first + "," + last + "," + first + "," + first),
              (ResultArray{once[0], once[1], once[0], once[0]}))
        << sample.member;
  }
}

TEST_F(Tokens, AreKnownInAnyCaseOfTheirLetters) {
  const auto inCase = [](std::string text, int (*change)(int)) {
    for (char& c : text) c = static_cast<char>(change(static_cast<unsigned char>(c)));
    return text;
  };
  for (const ExpectedToken& token : expectedTokens()) {
    const Sample& sample = sampleOf(token.member);
    const ResultArray expected = resultsOf(client_, sample, token.text);
    EXPECT_EQ(resultsOf(client_, sample, inCase(token.text, std::tolower)), expected);
    EXPECT_EQ(resultsOf(client_, sample, inCase(token.text, std::toupper)), expected);
  }
}

TEST_F(Tokens, OfOtherVariantsAreInvalid) {
  std::set<std::string> everyText;
  const auto lower = [](std::string text) {
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
  };
  for (const ExpectedToken& token : expectedTokens()) everyText.insert(lower(token.text));
  int refused = 0;
  for (const Sample& sample : samples()) {
    std::set<std::string> foreign = everyText;
    for (const ExpectedToken& token : tokensOf(sample.member)) foreign.erase(lower(token.text));
    for (const std::string& text : foreign) {
      EXPECT_EQ(errorOf(client_, sample, text), "Invalid Token!") << sample.member << ' ' << text;
      ++refused;
    }
  }
  EXPECT_GT(refused, 1000);
}

TEST_F(Tokens, NameTheFlowMOnlyInTurbineBAndCompressorB) {
  for (const Sample& sample : samples()) {
    if (sample.member == "XLTurbineB" || sample.member == "XLCompressorB") {
      const ResultArray flow = resultsOf(client_, sample, "M_In");
      EXPECT_EQ(resultsOf(client_, sample, "M"), flow);
      EXPECT_EQ(resultsOf(client_, sample, "m"), flow);
      EXPECT_EQ(std::get<std::string>(flow.at(0).at(0)), "Flow Rate");
    } else {
      EXPECT_EQ(errorOf(client_, sample, "M"), "Invalid Token!") << sample.member;
    }
  }
}

TEST_F(Tokens, LabelTheHotOutletOfHeatExchangerAAnInlet) {
  const auto label = [&](const std::string& member) {
    return std::get<std::string>(resultsOf(client_, sampleOf(member), "H_HOut").at(0).at(0));
  };
  EXPECT_EQ(label("XLHeatExchangerA"), "Hot Inlet Enthalpy");
  EXPECT_EQ(label("XLHeatExchangerB"), "Hot Outlet Enthalpy");
}

TEST_F(Tokens, CallTheDutyOfABoilerByTwoNames) {
  for (const std::string member : {"XLBoiler", "XLBoiler_B"}) {
    const Sample& sample = sampleOf(member);
    EXPECT_EQ(resultsOf(client_, sample, "Q_Abs"), resultsOf(client_, sample, "H_delta"));
  }
}

// The entropy of XLTurbineE alone makes the model compute it.
TEST_F(Tokens, AskForWhatTheyNeedWhereverTheyStand) {
  const Sample& sample = sampleOf("XLTurbineE");
  const ResultArray all = resultsOf(client_, sample, "Pow T_Out Q_Out S_Out");
  EXPECT_EQ(resultsOf(client_, sample, "S_Out"), ResultArray{all.at(3)});
  EXPECT_EQ(resultsOf(client_, sample, "Pow,q_out"), (ResultArray{all.at(0), all.at(2)}));
  EXPECT_EQ(resultsOf(client_, sample, "Pow,t_OUT"), (ResultArray{all.at(0), all.at(1)}));
}

}  // namespace
}  // namespace calvex::test
