#include <fmt/format.h>

#include <algorithm>

#include "server/generated_texts.h"
#include "server/member_table.h"
#include "server/worksheet_functions.h"
#include "units/unit_catalogue.h"

namespace calvex {

namespace {

constexpr std::string_view notice = generatedNotice;

std::string_view displayName(const Parameter& parameter) {
  return unitGroupTable()[static_cast<std::size_t>(parameter.group)].displayName;
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
  std::string inputs, given, names, arguments, outputs, emptied;
  std::string described, answered;  ///< with the quantities
  int inputCount = 0;
  int numberCount = 0;
  int outputCount = 0;

  explicit WorksheetSignature(const Member& member) {
    for (const Parameter& parameter : member.parameters()) {
      const std::string name(parameter.name);
      const std::string quantity =
          parameter.hasUnit() ? fmt::format("{} ({})", name, displayName(parameter)) : name;
      if (parameter.isOutput()) {
        append(outputs, name);
        append(answered, quantity);
        emptied += name + " = Empty: ";
        ++outputCount;
        if (parameter.direction != Direction::retval) append(arguments, name);
        continue;
      }
      append(inputs, name);
      append(described, quantity);
      ++inputCount;
      if (parameter.type == ValueType::text) {
        append(arguments, fmt::format("Text({})", name));
        continue;
      }
      append(given, name);
      names += (names.empty() ? "" : " ") + name;
      append(arguments, fmt::format("theX({})", numberCount++));
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
  Dim i, {}{}
  On Error Resume Next
  For i = 0 To Opened("{}", "{}", Array({}))
    If Ready(i) Then {}{} = theServer.{}({}): Keep i, {}, {}
  Next
  Steam{} = Closed()
End Function
)",
      signature.answered, isValue ? "" : " from ", signature.described, member.name,
      signature.inputs, isValue ? "" : "ok, ", signature.outputs, member.name, signature.names,
      signature.given, signature.emptied, isValue ? signature.outputs : "ok", member.name,
      signature.arguments, isValue ? "1" : "ok",
      signature.outputCount == 1 ? signature.outputs : "Array(" + signature.outputs + ")",
      member.name);
}

/// A text for Visual Basic, as long as the wizard takes it.
std::string quotedText(std::string text) {
  constexpr std::size_t longest = 255;
  if (text.size() > longest) {
    text.resize(longest);
    const std::size_t end = text.rfind(". ");
    text.resize(end == std::string::npos ? text.rfind(' ') : end + 1);
  }
  std::string quoted = "\"";
  for (const char c : text) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + '"';
}

/// What the function wizard shows, in procedures as long as the compiler takes them.
std::string worksheetDescriptions() {
  constexpr int perProcedure = 20;
  std::string procedures, calls;
  int count = 0;
  for (const WorksheetFunction& function : worksheetFunctionTable(excelHabit)) {
    const Member* const member = findMember(function.member);
    if (member == nullptr || !isWorksheetFunction(*member)) continue;
    if (count % perProcedure == 0) {
      const int number = count / perProcedure + 1;
      if (count > 0) procedures += "End Sub\n";
      procedures += fmt::format("\nPrivate Sub Describe{}()\n", number);
      calls += fmt::format("  Describe{}\n", number);
    }
    ++count;
    std::string arguments;
    const std::size_t given = static_cast<std::size_t>(WorksheetSignature(*member).inputCount);
    for (std::size_t i = 0; i < given && i < function.arguments.size(); ++i) {
      const std::string words = sentence(function.arguments[i].words);
      arguments += fmt::format("{}{}", i == 0 ? " _\n    " : ", _\n    ", quotedText(words));
    }
    procedures +=
        fmt::format("  Describe \"Steam{}\", \"{}\", _\n    {}, Array({})\n", function.name,
                    function.category, quotedText(function.description), arguments);
  }
  return procedures + "End Sub\n\nPrivate Sub DescribeAll()\n" + calls + "End Sub\n";
}

/// The quantities by number: the keyword that selects each, and the unit of the model.
std::string quantityTexts() {
  std::string keywords, units;
  for (const UnitGroupRow& row : unitGroupTable()) {
    keywords += fmt::format("{}{}", keywords.empty() ? "" : "|", row.keywords[0]);
    units += fmt::format("{}{}", units.empty() ? "" : "|", row.internalUnit);
  }
  return fmt::format(
      "\nPrivate Function Keywords()\n  Keywords = Split(\"{}\", \"|\")\nEnd Function\n"
      "\nPrivate Function ModelUnits()\n  ModelUnits = Split(\"{}\", \"|\")\nEnd Function\n",
      keywords, units);
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

/// "XLOPER12* a0, XLOPER12* a1" or "a0, a1".
std::string numbered(std::string_view type, std::size_t count) {
  std::string list;
  for (std::size_t i = 0; i < count; ++i) append(list, fmt::format("{}a{}", type, i));
  return list;
}

}  // namespace

std::string worksheetFunctions() {
  std::string functions;
  std::string cases;
  for (const Member& member : memberTable()) {
    if (!isWorksheetFunction(member)) continue;
    functions += worksheetFunction(member);
    cases += worksheetCase(member);
  }
  return fmt::format(R"(' From here on: {}
{}
' What a member answers, by its name: =Steam("HPT", A1, B1).
Public Function Steam(Member, ParamArray X() As Variant)
  Dim inputs
  Select Case UCase(Text(Member))
{}  Case Else
    Steam = Refused("Steam", "there is no function " & Text(Member))
    Exit Function
  End Select
  Steam = Refused("Steam", Text(Member) & " takes " & inputs)
End Function
{}{})",
                     notice, quantityTexts(), cases, functions, worksheetDescriptions());
}

std::string worksheetEntryPoints() {
  std::string text = fmt::format("// {}\n", notice);
  for (const WorksheetFunction& function : worksheetFunctionTable(excelHabit)) {
    std::size_t count = function.arguments.size();
    std::string answer;
    switch (function.own) {
      case OwnFunction::none:
        answer = fmt::format("answerMember({}, {{{}}})", function.member, numbered("", count));
        break;
      case OwnFunction::units:
        count = 2UL * unitGroupCount;
        answer = fmt::format("answerUnits(std::array<const XLOPER12*, {}>{{{}}})", count,
                             numbered("", count));
        break;
      case OwnFunction::convert:
        answer = fmt::format("answerConvert({{{}}})", numbered("", count));
        break;
      case OwnFunction::unit:
      case OwnFunction::why:
      case OwnFunction::trace:
        answer = fmt::format("answer{}(a0)", function.name);
        break;
    }
    text += fmt::format("CALVEX_ENTRY XLOPER12* WINAPI Calvex{}({}) {{ return {}; }}\n",
                        function.name, numbered("XLOPER12* ", count), answer);
  }
  return text;
}

}  // namespace calvex
