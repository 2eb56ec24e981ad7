// What is told of members against what they do.
#include "server/member_explanations.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "server/zv_calvex.h"

namespace calvex::test {
namespace {

/// The example's arguments in call order, model units.
std::vector<Value> exampleArguments(const Member& member, const ExampleCall& example) {
  std::vector<Value> arguments(member.parameters().size());
  std::size_t next = 0;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const bool given = member.parameters()[i].isInput() || member.put != nullptr;
    if (!given || next == example.inputs.size()) continue;
    std::visit([&](const auto& input) { arguments[i] = input; }, example.inputs[next++]);
  }
  EXPECT_EQ(next, example.inputs.size()) << member.name;
  return arguments;
}

TEST(MemberExplanations, EveryMemberAndParameterHasWords) {
  for (const Member& member : memberTable()) {
    const MemberExplanation explained = explanation(member);
    EXPECT_FALSE(explained.title.empty()) << member.name;
    EXPECT_FALSE(explained.title.ends_with('.')) << explained.title;
    if (!explained.notes.empty()) {
      EXPECT_TRUE(explained.notes.ends_with('.')) << explained.notes;
    }
    ASSERT_EQ(explained.parameters.size(), member.parameters().size());
    for (std::size_t i = 0; i < explained.parameters.size(); ++i) {
      EXPECT_FALSE(explained.parameters[i].words.empty())
          << member.name << " " << member.parameters()[i].name;
      EXPECT_FALSE(explained.parameters[i].label.empty()) << member.name;
    }
    for (const spreadsheet::Token& token : tokensOf(member)) {
      EXPECT_FALSE(tokenWords(member, token).empty()) << token.text;
    }
    for (const std::string& text : {explained.title, explained.notes, explained.other}) {
      for (const char c : text) EXPECT_TRUE(c >= ' ' && c <= '~') << text;
    }
  }
}

TEST(MemberExplanations, RowsSpeakOfParametersThatTheirMembersHave) {
  for (const Member& member : memberTable()) {
    const detail::ExplanationRow* row = detail::explanationRow(member.name);
    if (row == nullptr) continue;
    std::string_view rest = row->parameters;
    while (!rest.empty()) {
      const std::string_view part = rest.substr(0, rest.find(';'));
      std::string_view name = part.substr(part.find_first_not_of(' '));
      name = name.substr(0, name.find_first_of("=/"));
      bool has = false;
      for (const Parameter& parameter : member.parameters()) has = has || parameter.name == name;
      EXPECT_TRUE(has) << member.name << " has no " << name;
      rest.remove_prefix(std::min(rest.size(), part.size() + 1));
    }
  }
}

TEST(MemberExplanations, SentencesOfPropertiesComeFromTheirLetters) {
  EXPECT_EQ(explanation(*findMember("HPT")).title, "enthalpy from pressure and temperature");
  EXPECT_EQ(explanation(*findMember("QTS")).title, "quality from temperature and entropy");
  EXPECT_EQ(explanation(*findMember("PSatT")).title, "saturation pressure from temperature");
  EXPECT_EQ(explanation(*findMember("VSatPQ")).title,
            "saturated specific volume from pressure and quality");
  EXPECT_EQ(explanation(*findMember("QTS_PH")).title,
            "quality, temperature and entropy from pressure and enthalpy");
  EXPECT_EQ(explanation(*findMember("XT")).title, "surface tension from temperature");
}

/// At 25 C liquid of 10 MPa has 113.968 kJ/kg, saturated liquid 104.753, saturated vapour 2546.27.
TEST(MemberExplanations, TemperatureAndEnthalpyTellThatTheyHaveTwoAnswers) {
  for (const char* name : {"PTH", "STH", "QTH"}) {
    EXPECT_NE(explanation(*findMember(name)).notes.find("compressed liquid can have both values"),
              std::string::npos)
        << name;
  }
}

TEST(MemberExplanations, ASpreadsheetVariantSharesTheRowOfItsModel) {
  const MemberExplanation model = explanation(*findMember("Boiler"));
  const MemberExplanation variant = explanation(*findMember("XLBoiler"));
  EXPECT_EQ(model.heading, MemberHeading::equipment);
  EXPECT_EQ(variant.heading, MemberHeading::spreadsheet);
  EXPECT_EQ(variant.title, model.title + ", as an array of results");
  EXPECT_EQ(explanation(*findMember("XLGasTurbineA")).heading, MemberHeading::equipment)
      << "it has no other member";
}

TEST(MemberExplanations, EveryExampleSucceedsAndWritesItsResults) {
  for (const Member& member : memberTable()) {
    if (member.name == "hWnd") continue;  // answers nothing
    Module module;
    ZvCalvex object(module);
    const MemberExplanation explained = explanation(member);
    for (const ExampleCall& call : explained.preparation) {
      // Texts as they are typed; the numbers among them are whole.
      std::vector<Value> arguments = exampleArguments(*call.member, call);
      for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (call.member->parameters()[i].type == ValueType::text) continue;
        arguments[i] = std::stoi(std::get<std::string>(arguments[i]));
      }
      const auto result = call.member->put != nullptr ? object.put(*call.member, arguments)
                                                      : object.invoke(*call.member, arguments);
      EXPECT_EQ(result.success, 1) << member.name << " after " << call.member->name;
    }
    std::vector<Value> arguments = exampleArguments(member, explained.example);
    const auto result =
        member.put != nullptr ? object.put(member, arguments) : object.invoke(member, arguments);
    EXPECT_EQ(result.success, 1) << member.name << ": " << object.engine().LastError();
    for (std::size_t i = 0; i < arguments.size(); ++i) {
      EXPECT_FALSE(std::holds_alternative<std::monostate>(arguments[i])) << member.name << i;
      const auto* number = std::get_if<double>(&arguments[i]);
      EXPECT_TRUE(number == nullptr || std::isfinite(*number)) << member.name;
    }
  }
}

// Just inside a limit the example may fail for another reason; just outside it must fail.
TEST(MemberExplanations, LimitsThatAreToldHold) {
  int limited = 0;
  for (const Member& member : memberTable()) {
    const MemberExplanation explained = explanation(member);
    for (std::size_t i = 0; i < explained.parameters.size(); ++i) {
      if (!explained.parameters[i].limits) continue;
      const Limits& limits = *explained.parameters[i].limits;
      const double low =
          limits.aboveLow ? limits.low : limits.low - 1e-6 - 1e-6 * std::abs(limits.low);
      const double high = limits.high + 1e-6 + 1e-6 * std::abs(limits.high);
      for (double outside : {low, high}) {
        if (std::isinf(outside)) continue;
        Module module;
        ZvCalvex object(module);
        std::vector<Value> arguments = exampleArguments(member, explained.example);
        const ValueType type = member.parameters()[i].type;
        if (type != ValueType::real)
          outside = outside < limits.high ? limits.low - 1 : limits.high + 1;
        arguments[i] = outside;
        const auto result = member.put != nullptr ? object.put(member, arguments)
                                                  : object.invoke(member, arguments);
        EXPECT_EQ(result.success, 0)
            << member.name << " " << member.parameters()[i].name << " = " << outside;
        ++limited;
      }
    }
  }
  EXPECT_GT(limited, 500);
}

}  // namespace
}  // namespace calvex::test
