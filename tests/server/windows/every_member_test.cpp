// Every member through the table of functions and through IDispatch, against the command line of
// the same engine: the same answers, bit for bit.
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <set>
#include <sstream>

#include "command_line_answers.h"
#include "spreadsheet/samples.h"
#include "units/user_units.h"

namespace calvex::test {
namespace {

using test::bits;  // beside those of variants below
using test::rowsBits;

// Answers of the server ------------------------------------------------------------------------

std::string bits(const VARIANT& value);
std::string rowsBits(SAFEARRAY* rows) {
  std::string text;
  EXPECT_EQ(SafeArrayGetDim(rows), 2U);
  LONG rowCount = 0, columnCount = 0, lower = 9;
  SafeArrayGetUBound(rows, 1, &rowCount);
  SafeArrayGetUBound(rows, 2, &columnCount);
  for (UINT dimension : {1, 2}) {
    SafeArrayGetLBound(rows, dimension, &lower);
    EXPECT_EQ(lower, 0);
  }
  for (LONG row = 0; row <= rowCount; ++row) {
    text += "[";
    for (LONG column = 0; column <= columnCount; ++column) {
      LONG index[] = {row, column};
      Variant cell;
      EXPECT_EQ(SafeArrayGetElement(rows, index, &cell), S_OK);
      text += bits(cell) + ";";
    }
    text += "]";
  }
  return text;
}
std::string bits(const VARIANT& value) {
  switch (value.vt) {
    case VT_R8:
      return bits(value.dblVal);
    case VT_I2:
      return bits(static_cast<double>(value.iVal));
    case VT_I4:
      return bits(static_cast<double>(value.lVal));
    case VT_BSTR:
      return fmt::format("'{}'", toUtf8(value.bstrVal));
    case VT_ARRAY | VT_VARIANT:
      return rowsBits(value.parray);
    default:
      return fmt::format("a variant of type {}", value.vt);
  }
}

Variant inputOf(const InterfaceParameter& parameter, const std::string& word) {
  switch (parameter.type) {
    case VT_R8:
      return Variant(std::stod(word));
    case VT_I2:
      return Variant(static_cast<short>(std::stoi(word)));
    case VT_I4:
      return Variant(std::stoi(word));
    default:
      return Variant(fromUtf8(word).c_str());
  }
}

/// A variable of the client for an output, with a content that no call writes.
struct Place {
  double real = std::bit_cast<double>(0x7ff4dead00000000ULL);
  short small = -31111;
  LONG large = -2111222333;
  BSTR text = nullptr;
  Variant variant;

  Place() = default;
  ~Place() { SysFreeString(text); }
  Place(const Place&) = delete;
  Place& operator=(const Place&) = delete;

  /// A reference to the variable of that type.
  Variant reference(VARTYPE type) {
    switch (type) {
      case VT_R8:
        return Variant(&real);
      case VT_I2:
        return Variant(&small);
      case VT_I4:
        return Variant(&large);
      case VT_BSTR:
        return Variant(&text);
      default:
        return Variant(static_cast<VARIANT*>(&variant));
    }
  }
  /// Empty when nothing was written.
  [[nodiscard]] std::string written(VARTYPE type) const {
    const Place untouched;
    switch (type) {
      case VT_R8:
        return bits(real) == bits(untouched.real) ? "" : bits(real);
      case VT_I2:
        return small == untouched.small ? "" : bits(static_cast<double>(small));
      case VT_I4:
        return large == untouched.large ? "" : bits(static_cast<double>(large));
      case VT_BSTR:
        return text == nullptr ? "" : fmt::format("'{}'", toUtf8(text));
      default:
        return variant.vt == VT_EMPTY ? "" : bits(variant);
    }
  }
};

std::string lastErrorUtf8(IZvCalvex& steam) {
  Text text;
  EXPECT_EQ(steam.get_LastError(text.place()), S_OK);
  return toUtf8(text.get());
}

/// The call's outputs by name; then, when it failed, the engine's last error.
template <class Written>
std::string answerText(IZvCalvex& steam, const InterfaceEntry& entry, HRESULT result,
                       const Written& written) {
  EXPECT_GE(result, 0) << entry.name;
  std::string text = fmt::format("hresult={}", result);
  bool failed = result != S_OK;
  for (std::size_t i = 0; i < entry.parameters.size(); ++i) {
    const InterfaceParameter& parameter = entry.parameters[i];
    if (!parameter.isOutput()) continue;
    const std::string value = written(i);
    if (!value.empty()) text += fmt::format(" {}={}", parameter.name, value);
    if (parameter.name == "pSucc" && value == bits(0.0)) failed = true;
  }
  if (failed) text += " error=" + lastErrorUtf8(steam);
  return text;
}

/// Through the entry's function, with variables of the parameters' own types.
std::string callFunction(IZvCalvex& steam, const Line& line) {
  const InterfaceEntry& entry = *line.entry;
  std::vector<Place> places(entry.parameters.size());
  std::vector<Variant> arguments(entry.parameters.size());
  auto word = line.words.begin();
  std::vector<VARTYPE> types;
  std::vector<VARIANTARG*> pointers;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const InterfaceParameter& parameter = entry.parameters[i];
    arguments[i] =
        parameter.isInput() ? inputOf(parameter, *word++) : places[i].reference(parameter.type);
    types.push_back(arguments[i].vt);
    pointers.push_back(&arguments[i]);
  }
  VARIANT result;
  VariantInit(&result);
  EXPECT_EQ(
      DispCallFunc(&steam, static_cast<ULONG_PTR>(entry.slot) * sizeof(void*), CC_STDCALL, VT_ERROR,
                   static_cast<UINT>(types.size()), types.data(), pointers.data(), &result),
      S_OK);
  return answerText(steam, entry, result.scode,
                    [&](std::size_t i) { return places[i].written(entry.parameters[i].type); });
}

/// Through IDispatch, with variants as scripts have them.
std::string callByName(IZvCalvex& steam, const Line& line) {
  const InterfaceEntry& entry = *line.entry;
  std::vector<Variant> variables(entry.parameters.size());
  std::vector<Variant> arguments;
  auto word = line.words.begin();
  for (std::size_t i = 0; i < entry.parameters.size(); ++i) {
    const InterfaceParameter& parameter = entry.parameters[i];
    if (parameter.isInput()) arguments.push_back(inputOf(parameter, *word++));
    if (parameter.isOutput() && parameter.direction != "retval") {
      arguments.emplace_back(static_cast<VARIANT*>(&variables[i]));
    }
  }
  const bool isPut = entry.kind == INVOKE_PROPERTYPUT;
  const LateCall call =
      invoke(steam, idOf(steam, wide(entry.name)), static_cast<WORD>(entry.kind), arguments,
             isPut ? std::vector<DISPID>{DISPID_PROPERTYPUT} : std::vector<DISPID>{});
  return answerText(steam, entry, call.result, [&](std::size_t i) -> std::string {
    const bool returned = entry.parameters[i].direction == "retval";
    const VARIANT& value = returned ? call.value : variables[i];
    if (value.vt == VT_EMPTY) return {};
    EXPECT_EQ(value.vt, entry.parameters[i].type == VT_VARIANT ? VT_ARRAY | VT_VARIANT
                                                               : entry.parameters[i].type)
        << entry.name;
    return bits(value);
  });
}

// Sequences -------------------------------------------------------------------------------------

struct State {
  double P, T, H, S, U, R, V, Q;
};
// Steam, compressed water and a supercritical state of tests/data/single-phase.csv, wet steam of
// tests/data/saturation.csv; the first two with the qualities that saturation members take.
const std::vector<State> states{
    {0.9934, 468.79, 2817.24632869232, 6.67459716871144, 2613.69717597416, 4.88039368739346,
     0.204901502635556, 0.25},
    {53.7316, 619.03, 1550.08436864542, 3.49251350034666, 1474.16395432466, 707.735863676733,
     0.00141295651573305, 1.0},
    {74.4053, 812.86, 2692.1209397764, 5.03630278794523, 2479.87184810097, 350.556506096997,
     0.00285260716206278, 0.0},
    {0.46975345809, 422.68, 1159.1675846, 3.0885441634, 1137.0955431, 9.95, 0.1005, 0.25},
    {-1.0, 100.0, -1.0, -1.0, -1.0, -1.0, -1.0, -0.5}};

double valueAt(const State& state, const InterfaceParameter& parameter) {
  switch (parameter.group) {
    case 0:
      return state.T;
    case 1:
      return state.P;
    case 2:
      return state.R;
    case 3:
      return state.V;
    case 4:
      return state.S;
    case 5:
      return state.H;
    case 6:
      return state.U;
    case 7:
      return state.Q;
    default:
      throw std::invalid_argument("no property: " + parameter.name);
  }
}

class Sequence {
 public:
  /// The sequence's units; SetUserUnitIndex of all groups comes first.
  explicit Sequence(const std::vector<std::string>& unitNames) {
    for (std::size_t group = 0; group < unitNames.size(); ++group) {
      EXPECT_TRUE(units_.setCatalogueUnit(static_cast<int>(group), unitNames[group]));
      call("SetUserUnitIndex", {std::to_string(group), unitNames[group]});
    }
  }
  void useCustomUnits() {
    put("AppLevel", "3");
    EXPECT_TRUE(units_.setMode(3));
    for (int group = 0; group < unitGroupCount; ++group) {
      const double factor = 0.25 + 0.5 * group, offset = group % 3;
      const std::string name = fmt::format("x{}", group);
      EXPECT_TRUE(units_.setCustomUnit(group, name, factor, offset));
      call("SetCustomUserUnitIndex", {std::to_string(group), name, exact(factor), exact(offset)});
    }
  }

  void call(const std::string& name, std::vector<std::string> words = {}) {
    lines.push_back({&entryOf(name), std::move(words)});
  }
  void get(const std::string& name) { lines.push_back({&entryOf(name, INVOKE_PROPERTYGET), {}}); }
  void put(const std::string& name, const std::string& value) {
    lines.push_back({&entryOf(name, INVOKE_PROPERTYPUT), {value}});
  }

  /// Settings: read, put, refused, read again.
  void settings() {
    const std::vector<std::pair<std::string, std::vector<std::string>>> values{
        {"SolverTol", {"1e-8", "1", "1e-9"}},
        {"SolverIter", {"300", "50", "200"}},
        {"TraceLevel", {"1", "3", "-1", "0"}},
        {"SatPolish", {"0", "1"}},
        {"FunctionCallTracing", {"0", "1"}},
        {"MaxTraceSize", {"2", "1", "1000"}},
        {"ReturnModelUnits", {"0", "1"}},
        {"ReturnThermoUnits", {"0", "1"}},
        {"ReturnModelTokens", {"0", "1"}},
        {"AppLevel", {"4", "-1"}},
        {"AppName", {"Cycle § 7 \"a\\b\"", "Łódź, 锅炉 🔥", "", "ZvCalvex"}},
        {"AppHelpFile", {"plant.chm", ""}},
        {"UomHelpContext", {"-7", "2147483647"}}};
    for (const auto& [name, list] : values) {
      get(name);
      for (const std::string& value : list) {
        put(name, value);
        get(name);
      }
    }
    for (const char* name : {"LastError", "VersionStr", "hWnd"}) get(name);
  }
  void constants() {
    for (const char* name : {"MolWeight", "CritT", "CritP", "CritV", "CritR", "CritZ", "TripleT",
                             "TripleP", "ShowOptionsDlg"}) {
      call(name);
    }
  }
  void diagnostics() {
    call("GetCustomTraceText", {"0"});
    call("SetCustomTraceText", {"0", "x"});
    call("AddCustomTraceTitle", {"Case µ Ł"});
    call("SetCustomTraceText", {"0", "café Котельная.xlsx"});
    call("GetCustomTraceText", {"0"});
    call("GetCellRef");
    call("SetCellRef", {"Book", "Sheet", "A1"});
    call("SetupExcelTracing");
    call("SetCellRef", {"Book1.xls", "Sheet1", "A1"});
    call("GetCellRef");
    call("AddExternalError", {"Pump", "µ Насос 🔥 is dry."});
    get("LastError");
    call("GetAlarms");
    call("ClearTraceInfo");
    get("LastError");
  }
  void unitMembers() {
    for (const char* group : {"T", "Pressure", "mass flow rate", "none such"}) {
      call("GetUserUnit", {group});
    }
    for (const char* group : {"0", "1", "26", "27", "-1"}) call("GetUserUnitIndex", {group});
    call("SetUserUnit", {"Velocity", "knot"});  // of no input
    call("SetUserUnit", {"P", "furlong"});
    call("SetUserUnitIndex", {"1", "K"});
    call("SetUserUnitIndex", {"99", "K"});
    call("Convert", {"P", "psig", "N/m²", "1.5"});
    call("Convert", {"P", "psig", "C", "1.5"});
    call("Convert", {"none such", "psig", "C", "1.5"});
    call("SetCustomUserUnitIndex", {"27", "x", "1", "0"});
  }
  /// All that take properties only, at every state.
  void properties() {
    for (const InterfaceEntry& entry : interfaceEntries()) {
      if (!takesProperties(entry)) continue;
      for (const State& state : states) {
        std::vector<std::string> words;
        for (const InterfaceParameter& parameter : entry.parameters) {
          if (parameter.isInput()) words.push_back(user(parameter, valueAt(state, parameter)));
        }
        lines.push_back({&entry, std::move(words)});
      }
    }
  }
  /// Models and their spreadsheet variants with the inputs of an ordinary plant, then senseless.
  void models() {
    for (const Sample& sample : samples()) {
      const std::string member = sample.member;
      const std::vector<ExpectedToken> tokens = tokensOf(member);
      std::string all;
      for (const ExpectedToken& token : tokens) all += token.text + ",";
      variant(member, sample.inputs, all);
      variant(member, sample.inputs, tokens.front().text);
      variant(member, sample.inputs, "nonsense");
      variant(member, sample.inputs, "");
      variant(member, badInputs(sample), all);
      if (isMember(sample.modelName())) {
        model(sample.modelName(), sample.inputs);
        model(sample.modelName(), badInputs(sample));
      }
    }
    call("SolvePoly5", {"-120", "274", "-225", "85", "-15", "1", "3.1"});
  }

  std::vector<Line> lines;

 private:
  static std::string exact(double value) { return fmt::format("{:.17g}", value); }
  std::string user(const InterfaceParameter& parameter, double value) const {
    return exact(parameter.group < 0 ? value : units_.toUser(UnitGroup(parameter.group), value));
  }
  static bool isMember(const std::string& name) {
    for (const InterfaceEntry& entry : interfaceEntries()) {
      if (entry.name == name) return true;
    }
    return false;
  }
  static bool takesProperties(const InterfaceEntry& entry) {
    int inputs = 0;
    for (const InterfaceParameter& parameter : entry.parameters) {
      if (!parameter.isInput()) continue;
      if (parameter.group < 0 || parameter.group > 7) return false;
      ++inputs;
    }
    return inputs > 0 && entry.name != "LetDownValve";
  }
  std::vector<std::string> inputWords(const InterfaceEntry& entry,
                                      const std::vector<double>& inputs) const {
    std::vector<std::string> words;
    for (const InterfaceParameter& parameter : entry.parameters) {
      if (parameter.isInput() && parameter.type == VT_R8) {
        words.push_back(user(parameter, inputs.at(words.size())));
      }
    }
    return words;
  }
  void model(const std::string& name, const std::vector<double>& inputs) {
    call(name, inputWords(entryOf(name), inputs));
  }
  void variant(const std::string& name, const std::vector<double>& inputs,
               const std::string& tokens) {
    std::vector<std::string> words = inputWords(entryOf(name), inputs);
    words.push_back(tokens);
    call(name, words);
  }

  UserUnits units_;
};

/// The unit of each group that stands first or last in tests/data/unit-tables.csv.
std::vector<std::string> tabulatedUnits(bool last) {
  std::vector<std::string> names(unitGroupCount);
  for (const Row& row : readTable("unit-tables.csv", ',')) {
    std::string& name = names.at(static_cast<std::size_t>(row["group"]));
    if (last || name.empty()) name = row.text("unit");
  }
  return names;
}
std::vector<std::string> internalUnits() {
  std::vector<std::string> names;
  for (const Row& row : readTable("unit-groups.csv", ','))
    names.push_back(row.text("internal unit"));
  return names;
}

/// Runs a sequence three times; answers the members that succeeded.
std::set<std::string> compare(const Sequence& sequence) {
  const std::vector<Line>& lines = sequence.lines;
  const Answers expected = answersOfCommandLine(lines);
  EXPECT_EQ(expected.size(), lines.size());
  std::set<std::string> succeeded;
  int differences = 0;
  for (const bool late : {false, true}) {
    const Ref<IZvCalvex> steam = makeObject();
    for (std::size_t i = 0; i < expected.size(); ++i) {
      const std::string answer =
          late ? callByName(*steam, lines[i]) : callFunction(*steam, lines[i]);
      if (answer != expected[i] && ++differences <= 20) {
        ADD_FAILURE() << (late ? "late bound, " : "early bound, ") << "line " << i + 1 << ": "
                      << lines[i].entry->name << " "
                      << fmt::format("{}", fmt::join(lines[i].words, " ")) << "\n  " << answer
                      << "\n  " << expected[i];
      }
      if (answer.find("error=") == std::string::npos) succeeded.insert(lines[i].entry->name);
    }
  }
  EXPECT_EQ(differences, 0) << "of " << lines.size() << " lines";
  return succeeded;
}

TEST(EveryMember, AnswersAsTheCommandLineInInternalUnits) {
  const Apartment apartment;
  Sequence sequence(internalUnits());
  sequence.settings();
  sequence.constants();
  sequence.diagnostics();
  sequence.unitMembers();
  sequence.properties();
  sequence.models();
  sequence.useCustomUnits();
  std::set<std::string> expected, called;
  for (const InterfaceEntry& entry : interfaceEntries()) expected.insert(entry.name);
  // These two show dialogs, and wait.
  expected.erase("ShowTraceDlg");
  expected.erase("ShowSelectUomDlg");
  EXPECT_EQ(expected.size(), 203U);
  for (const Line& line : sequence.lines) called.insert(line.entry->name);
  EXPECT_EQ(called, expected);
  std::set<std::string> neverSucceeded = expected;
  for (const std::string& name : compare(sequence)) neverSucceeded.erase(name);
  EXPECT_EQ(neverSucceeded, std::set<std::string>());
}

TEST(EveryMember, AnswersAsTheCommandLineInOtherUnits) {
  const Apartment apartment;
  for (const bool last : {false, true}) {
    Sequence sequence(tabulatedUnits(last));
    sequence.constants();
    sequence.unitMembers();
    sequence.properties();
    sequence.models();
    EXPECT_GE(compare(sequence).size(), 170U);
  }
}

TEST(EveryMember, AnswersAsTheCommandLineInUnitsOfTheClientsOwn) {
  const Apartment apartment;
  Sequence sequence(internalUnits());
  sequence.useCustomUnits();
  sequence.constants();
  sequence.unitMembers();
  sequence.properties();
  sequence.models();
  EXPECT_GE(compare(sequence).size(), 170U);
}

TEST(EveryMember, AnswersAsTheCommandLineWithOtherSettings) {
  const Apartment apartment;
  Sequence sequence(internalUnits());
  sequence.put("SatPolish", "0");
  sequence.put("TraceLevel", "2");
  sequence.put("SolverTol", "1e-7");
  sequence.put("ReturnModelTokens", "0");
  sequence.put("ReturnModelUnits", "0");
  sequence.properties();
  sequence.models();
  EXPECT_GE(compare(sequence).size(), 165U);
}

}  // namespace
}  // namespace calvex::test
