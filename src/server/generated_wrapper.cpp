// The C++ wrapper's members: a function with the member's real signature for each row of the table.
#include <fmt/format.h>

#include "server/generated_texts.h"
#include "server/member_explanations.h"
#include "server/member_table.h"

namespace calvex {

namespace {

bool isNumber(const Parameter& parameter) {
  return parameter.type != ValueType::text && parameter.type != ValueType::array;
}

bool isWhole(const Parameter& parameter) {
  return parameter.type == ValueType::shortInteger || parameter.type == ValueType::longInteger;
}

std::string_view cppType(const Parameter& parameter) {
  if (parameter.type == ValueType::array) return "Table";
  if (parameter.type == ValueType::text) {
    return parameter.isInput() ? "std::string_view" : "std::string";
  }
  return isWhole(parameter) ? "int" : "double";
}

/// Without the sign of a pointer: "TOut" of pTOut.
std::string_view resultName(const Parameter& parameter) {
  const std::string_view name = parameter.name;
  const bool pointer = name.size() > 1 && name[0] == 'p' && name[1] >= 'A' && name[1] <= 'Z';
  return pointer ? name.substr(1) : name;
}

void append(std::string& list, std::string_view element) {
  if (!list.empty()) list += ", ";
  list += element;
}

struct WrapperFunction {
  std::string declared, numbers, texts;  ///< parameters and what is passed on of them
  std::vector<const Parameter*> results;

  explicit WrapperFunction(const Member& member) {
    for (const Parameter& parameter : member.parameters()) {
      if (!parameter.isInput() || parameter.type == ValueType::array) {
        results.push_back(&parameter);
        continue;
      }
      append(declared, fmt::format("{} {}", cppType(parameter), parameter.name));
      append(isNumber(parameter) ? numbers : texts, isWhole(parameter)
                                                        ? fmt::format("double({})", parameter.name)
                                                        : std::string(parameter.name));
    }
  }

  [[nodiscard]] std::string arguments(const Member& member) const {
    return fmt::format("{}, {{{}}}, {{{}}}", member.dispatchId, numbers, texts);
  }
};

std::string resultOf(const Member& member, const WrapperFunction& function) {
  if (function.results.size() > 1) return fmt::format("{}Result", member.name);
  return function.results.empty() ? "void" : std::string(cppType(*function.results.front()));
}

/// What a member with several results answers.
std::string structure(const Member& member) {
  const WrapperFunction function(member);
  if (function.results.size() < 2) return {};
  std::string fields;
  for (const Parameter* result : function.results) {
    fields += fmt::format("  double {};  ///< {}\n", resultName(*result),
                          parameterExplanation(member, *result).words);
  }
  return fmt::format("struct {}Result {{\n{}}};\n", member.name, fields);
}

std::string definition(const Member& member) {
  const WrapperFunction function(member);
  const std::string result = resultOf(member, function);
  std::string body;
  if (function.results.empty()) {
    body = fmt::format("compute<0>({});", function.arguments(member));
  } else if (function.results.size() > 1) {
    std::string fields;
    for (std::size_t i = 0; i < function.results.size(); ++i)
      append(fields, fmt::format("r[{}]", i));
    body = fmt::format("const auto r = compute<{}>({});\n    return {{{}}};",
                       function.results.size(), function.arguments(member), fields);
  } else if (isNumber(*function.results.front())) {
    const std::string value = fmt::format("compute<1>({})[0]", function.arguments(member));
    body = result == "int" ? fmt::format("return static_cast<int>({});", value)
                           : fmt::format("return {};", value);
  } else {
    body = fmt::format("compute<0>({});\n    return {};", function.arguments(member),
                       result == "Table" ? "table()" : "answeredText()");
  }
  return fmt::format("  /// {}\n  {} {}({}) {{\n    {}\n  }}\n", explanation(member).title, result,
                     member.name, function.declared, body);
}

std::string change(const Member& member) {
  if (member.put == nullptr) return {};
  const Parameter& value = member.parameters().front();
  const bool isText = value.type == ValueType::text;
  return fmt::format("  void Set{0}({1} value) {{ put({2}, value); }}\n", member.name,
                     isText ? "std::string_view" : cppType(value), member.dispatchId);
}

std::string header(std::string_view include, std::string_view declarations) {
  return fmt::format(R"(// {}
// clang-format off
#pragma once
{}
namespace calvex {{

{}
}}  // namespace calvex
)",
                     generatedNotice, include, declarations);
}

}  // namespace

std::string wrapperResults() {
  std::string structures;
  for (const Member& member : memberTable()) structures += structure(member);
  return header("", structures);
}

std::string wrapperMembers() {
  std::string functions;
  for (const Member& member : memberTable()) functions += definition(member) + change(member);
  return header("\n// Included by calvex.hpp.\n#include \"calvex/results.hpp\"\n",
                fmt::format(R"(/// An engine with every member. Values are in the engine's units.
class Engine : public Core {{
 public:
{}}};
)",
                            functions));
}

std::string wrapperVisits() {
  std::string visits;
  for (const Member& member : memberTable()) {
    visits += fmt::format("  visit(\"{0}\", &Engine::{0});\n", member.name);
    if (member.put != nullptr) {
      visits += fmt::format("  visit(\"{0}\", &Engine::Set{0});\n", member.name);
    }
  }
  return header(
      "\n#include \"calvex/calvex.hpp\"\n",
      fmt::format(
          R"(/// Calls visit(name, function) with every member, of a setting with the one that reads it and the
/// one that changes it.
template <class Visit>
void forEachMember(Visit&& visit) {{
{}}}
)",
          visits));
}

}  // namespace calvex
