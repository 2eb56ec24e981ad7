// The tables that the JavaScript package is built with, as one text in JSON: the members and what
// they mean in words, the quantities and their units, the letters and the messages.
#include <fmt/format.h>

#include <array>
#include <cmath>
#include <numeric>
#include <string>
#include <string_view>
#include <vector>

#include "diagnostics/messages.h"
#include "server/member_columns.h"
#include "server/member_explanations.h"
#include "server/member_table.h"
#include "units/unit_words.h"

namespace {

using namespace calvex;

/// The tables' texts have no control characters.
std::string quoted(std::string_view utf8) {
  std::string json = "\"";
  for (const char c : utf8) {
    if (c == '"' || c == '\\') json += '\\';
    if (c == '\n') {
      json += "\\n";
    } else {
      json += c;
    }
  }
  return json + '"';
}

/// null: infinite.
std::string number(double value) {
  return std::isfinite(value) ? fmt::format("{}", value) : std::string("null");
}

template <class Range, class ToText>
std::string list(const Range& range, ToText toText) {
  std::string json = "[";
  for (const auto& element : range) {
    if (json.size() > 1) json += ',';
    json += toText(element);
  }
  return json + ']';
}

std::string_view kindOf(const Member& member) {
  if (member.isProperty) return member.put == nullptr ? "reading" : "setting";
  const std::optional<NumericMember> numeric = NumericMember::of(member);
  return numeric && !numeric->inputs().empty() ? "function" : "method";
}

std::string_view typeName(ValueType type) {
  switch (type) {
    case ValueType::real:
      return "number";
    case ValueType::shortInteger:
    case ValueType::longInteger:
      return "integer";
    case ValueType::text:
      return "string";
    case ValueType::array:
      break;
  }
  return "table";
}

std::string value(std::string_view name, std::string_view type, int group, std::string_view words) {
  return fmt::format(R"("name":{},"type":"{}","group":{},"words":{})", quoted(name), type, group,
                     quoted(words));
}

/// Without the sign of a pointer: "TOut" of pTOut.
std::string_view resultName(const Parameter& parameter) {
  const std::string_view name = parameter.name;
  const bool pointer = name.size() > 1 && name[0] == 'p' && name[1] >= 'A' && name[1] <= 'Z';
  return pointer ? name.substr(1) : name;
}

std::string input(const Parameter& parameter, const ParameterExplanation& explained) {
  const Limits limits = explained.limits.value_or(Limits{});
  return fmt::format(
      R"({{{},"low":{},"high":{},"aboveLow":{},"belowHigh":{}}})",
      value(parameter.name, typeName(parameter.type), parameter.group, explained.words),
      number(limits.low), number(limits.high), limits.aboveLow, limits.belowHigh);
}

std::string token(const Member& member, const spreadsheet::Token& row) {
  return '{' + value(row.text, "number", static_cast<int>(row.group), tokenWords(member, row)) +
         '}';
}

/// What a member takes and gives; a spreadsheet member what its tokens name.
struct Parameters {
  std::vector<std::string> inputs, outputs;

  Parameters(const Member& member, const MemberExplanation& explained) {
    for (const auto& row : tokensOf(member)) outputs.push_back(token(member, row));
    const bool hasTokens = !outputs.empty();
    for (std::size_t i = 0; i < member.parameters().size(); ++i) {
      const Parameter& parameter = member.parameters()[i];
      const ParameterExplanation& words = explained.parameters[i];
      if (hasTokens && parameter.type != ValueType::real) continue;
      if (parameter.isInput() && parameter.type != ValueType::array) {
        inputs.push_back(input(parameter, words));
      } else {
        outputs.push_back(
            '{' +
            value(resultName(parameter), typeName(parameter.type), parameter.group, words.words) +
            '}');
      }
    }
  }
};

std::string call(const ExampleCall& example) {
  return fmt::format(R"({{"member":"{}","inputs":{}}})", example.member->name,
                     list(example.inputs, [](const ExampleInput& given) {
                       const double* real = std::get_if<double>(&given);
                       return real != nullptr ? number(*real)
                                              : quoted(std::get<std::string>(given));
                     }));
}

std::string memberRow(const Member& member) {
  const MemberExplanation explained = explanation(member);
  const Parameters parameters(member, explained);
  const auto asItIs = [](const std::string& json) { return json; };
  return fmt::format(
      R"({{"name":"{}","number":{},"kind":"{}","heading":"{}","title":{},"notes":{},"other":{},)"
      R"("inputs":{},"outputs":{},"hasTokens":{},"preparation":{},"example":{}}})",
      member.name, member.dispatchId, kindOf(member), headingText(explained.heading),
      quoted(explained.title), quoted(explained.notes), quoted(explained.other),
      list(parameters.inputs, asItIs), list(parameters.outputs, asItIs), !tokensOf(member).empty(),
      list(explained.preparation, call), call(explained.example));
}

std::string unit(UnitGroup group, const ZvUomLiteKeyword& row) {
  return fmt::format(R"({{"name":{},"factor":{},"offset":{},"notice":{}}})", quoted(row.name),
                     number(row.factor), number(row.offset), quoted(unitNotice(group, row.name)));
}

std::string groupRow(int index) {
  const auto group = UnitGroup(index);
  const UnitGroupRow& row = unitGroupTable()[static_cast<std::size_t>(group)];
  std::vector<ZvUomLiteKeyword> units(row.units.begin(), row.units.end());
  const auto beside = unitsBesideCatalogue(group);
  units.insert(units.end(), beside.begin(), beside.end());
  return fmt::format(
      R"({{"number":{},"name":{},"keywords":{},"modelUnit":{},"notice":{},"units":{}}})", index,
      quoted(row.displayName), list(row.keywords, quoted), quoted(row.internalUnit),
      quoted(groupNotice(group)),
      list(units, [&](const ZvUomLiteKeyword& each) { return unit(group, each); }));
}

std::string letterRow(const LetterExplanation& row) {
  return fmt::format(R"({{"letter":"{}","group":{},"words":{},"definition":{},"other":{}}})",
                     row.letter, row.hasUnit ? static_cast<int>(row.group) : -1, quoted(row.words),
                     quoted(row.definition), quoted(row.other));
}

constexpr Message messageRows[] = {
#define X(number, name, text) Message::name,
    CALVEX_MESSAGES(X)
#undef X
};

std::string tables() {
  std::array<int, unitGroupCount> groups{};
  std::iota(groups.begin(), groups.end(), 0);
  return fmt::format(R"({{"members":{},"groups":{},"letters":{},"messages":{}}})",
                     list(memberTable(), memberRow), list(groups, groupRow),
                     list(letterExplanations(), letterRow), list(messageRows, [](Message message) {
                       return fmt::format(R"({{"number":{},"text":{}}})", static_cast<int>(message),
                                          quoted(messageText(message)));
                     }));
}

}  // namespace

/// All of it, ended by a zero byte.
extern "C" const char* calvex_web_tables() {
  static const std::string text = tables();
  return text.c_str();
}
