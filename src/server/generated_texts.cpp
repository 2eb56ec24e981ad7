#include "server/generated_texts.h"

#include <fmt/format.h>

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

}  // namespace calvex
