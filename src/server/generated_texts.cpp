#include "server/generated_texts.h"

#include <fmt/format.h>

#include <algorithm>

#include "diagnostics/messages.h"
#include "server/identity.h"
#include "server/member_table.h"
#include "units/unit_catalogue.h"
#include "units/utf16.h"

namespace calvex {

namespace {

constexpr std::string_view notice = generatedNotice;

std::string_view automationType(ValueType type) {
  switch (type) {
    case ValueType::real:
      return "double";
    case ValueType::shortInteger:
      return "short";
    case ValueType::longInteger:
      return "long";
    case ValueType::text:
      return "BSTR";
    case ValueType::array:
      return "VARIANT";
  }
  return {};
}

std::string declaration(const Parameter& parameter) {
  return fmt::format("[{}] {}{} {}", directionName(parameter.direction),
                     automationType(parameter.type), parameter.isOutput() ? "*" : "",
                     parameter.name);
}

std::string_view displayName(const Parameter& parameter) {
  return unitGroupTable()[static_cast<std::size_t>(parameter.group)].displayName;
}

/// Which quantities the parameters are: "pH: Mass Specific Enthalpy, P: Pressure".
std::string help(const Member& member) {
  std::string text;
  for (const Parameter& parameter : member.parameters()) {
    if (!parameter.hasUnit()) continue;
    text +=
        fmt::format("{}{}: {}", text.empty() ? "" : ", ", parameter.name, displayName(parameter));
  }
  return text.empty() ? text : fmt::format(", helpstring(\"{}\")", text);
}

std::string entry(const Member& member, std::string_view kind, std::string_view parameters) {
  return fmt::format("    [{}id(0x{:02x}){}]\n    HRESULT {}({});\n", kind, member.dispatchId,
                     help(member), member.name, parameters);
}

std::string entries(const Member& member) {
  if (member.isProperty) {
    const Parameter& value = member.parameters()[0];
    std::string both = entry(member, "propget, ", declaration(value));
    if (member.put != nullptr) {
      both += entry(member, "propput, ",
                    declaration({"newVal", value.type, Direction::in, value.group}));
    }
    return both;
  }
  std::string parameters;
  for (const Parameter& parameter : member.parameters()) {
    parameters += (parameters.empty() ? "" : ", ") + declaration(parameter);
  }
  if (member.style == ReturnStyle::success) parameters += ", [out, retval] long* pSucc";
  return entry(member, "", parameters);
}

/// A text for the resource compiler; what is not ASCII as its number in UTF-16.
std::string quoted(std::string_view text) {
  std::string quotedText = "L\"";
  for (const char16_t unit : utf16Of<char16_t>(text)) {
    quotedText += unit < 0x80 ? std::string(1, static_cast<char>(unit))
                              : fmt::format("\\x{:04x}", static_cast<unsigned>(unit));
  }
  return quotedText + "\"";
}

void append(std::string& list, std::string_view element) {
  if (!list.empty()) list += ", ";
  list += element;
}

/// A cell shows numbers, and tokens say which: members that take or answer anything else are none.
bool isWorksheetFunction(const Member& member) {
  return !member.isProperty && member.style != ReturnStyle::status &&
         std::ranges::all_of(member.parameters(), [](const Parameter& parameter) {
           return parameter.type == ValueType::real || parameter.type == ValueType::array ||
                  parameter.name == "strTokens";
         });
}

/// What a member is given and what it answers, for a function of the worksheet.
struct WorksheetSignature {
  std::string inputs, arguments, outputs;
  std::string described, answered;  ///< with the quantities
  int inputCount = 0;
  int outputCount = 0;

  explicit WorksheetSignature(const Member& member) {
    for (const Parameter& parameter : member.parameters()) {
      const std::string name(parameter.name);
      const std::string quantity =
          parameter.hasUnit() ? fmt::format("{} ({})", name, displayName(parameter)) : name;
      if (parameter.isOutput()) {
        append(outputs, name);
        append(answered, quantity);
        ++outputCount;
        if (parameter.direction != Direction::retval) append(arguments, name);
      } else {
        append(inputs, name);
        append(described, quantity);
        ++inputCount;
        append(arguments, parameter.type == ValueType::text
                              ? fmt::format("Text({})", name)
                              : fmt::format("Number({}, \"{}\")", name, name));
      }
    }
  }
};

std::string worksheetFunction(const Member& member) {
  const WorksheetSignature signature(member);
  const bool isValue = member.style == ReturnStyle::value;
  return fmt::format(
      R"(
' {}{}{}
Public Function Steam{}({})
  Dim ok, {}
  On Error Resume Next
  {} = Asked().{}({})
  Steam{} = Outcome({}, {})
End Function
)",
      signature.answered, isValue ? "" : " from ", signature.described, member.name,
      signature.inputs, signature.outputs, isValue ? signature.outputs : "ok", member.name,
      signature.arguments, member.name, isValue ? "1" : "ok",
      signature.outputCount == 1 ? signature.outputs : "Array(" + signature.outputs + ")");
}

/// The branch that finds a worksheet function by its member's name.
std::string worksheetCase(const Member& member) {
  const WorksheetSignature signature(member);
  std::string name(member.name);
  std::ranges::transform(name, name.begin(), [](char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  });
  std::string inputs;
  for (int i = 0; i < signature.inputCount; ++i) append(inputs, fmt::format("X({})", i));
  return fmt::format(
      "  Case \"{}\"\n"
      "    If UBound(X) = {} Then Steam = Steam{}({}): Exit Function\n"
      "    inputs = \"{}\"\n",
      name, signature.inputCount - 1, member.name, inputs,
      signature.inputs.empty() ? "no inputs" : signature.inputs);
}

}  // namespace

std::string interfaceDefinition() {
  using namespace identity;
  std::string text = fmt::format(R"(// {}
import "oaidl.idl";

[
  uuid({}),
  version({}.0),
  helpstring("Calvex 4 Type Library")
]
library CALVEXLib
{{
  importlib("stdole2.tlb");

  [
    object,
    uuid({}),
    dual,
    oleautomation,
    pointer_default(unique),
    helpstring("IZvCalvex Interface")
  ]
  interface IZvCalvex : IDispatch
  {{
)",
                                 notice, typeLibraryId, typeLibraryVersion, interfaceId);
  for (const Member& member : memberTable()) text += entries(member);
  text += fmt::format(R"(  }}

  [
    uuid({}),
    helpstring("{}")
  ]
  coclass ZvCalvex
  {{
    [default] interface IZvCalvex;
  }}
}}
)",
                      classId, className);
  return text;
}

std::string stringResources() {
  std::string text = fmt::format("// {}\nSTRINGTABLE\nBEGIN\n  {} CALVEX_VERSION\n", notice,
                                 static_cast<int>(Message::version));
  const auto add = [&](int number, std::string_view value) {
    text += fmt::format("  {} {}\n", number, quoted(value));
  };
#define X(number, name, message) \
  if (Message::name != Message::version) add(number, messageText(number));
  CALVEX_MESSAGES(X)
#undef X
  int number = 20;
  for (const UnitGroupRow& row : unitGroupTable()) add(number++, row.displayName);
  number = 50;
  for (const UnitGroupRow& row : unitGroupTable()) add(number++, row.internalUnit);
  return text + "END\n";
}

std::string worksheetFunctions() {
  std::string functions;
  std::string cases;
  for (const Member& member : memberTable()) {
    if (!isWorksheetFunction(member)) continue;
    functions += worksheetFunction(member);
    cases += worksheetCase(member);
  }
  return fmt::format(R"(' From here on: {}

' What a member answers, by its name: =Steam("HPT", A1, B1).
Public Function Steam(Member, ParamArray X() As Variant)
  Dim inputs
  Select Case UCase(Text(Member))
{}  Case Else
    Steam = Mark & "there is no function " & Text(Member)
    Exit Function
  End Select
  Steam = Mark & Text(Member) & " takes " & inputs
End Function
{})",
                     notice, cases, functions);
}

}  // namespace calvex
