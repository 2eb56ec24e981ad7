// Texts of the client's come back as they were given, whatever they are made of: names of workbooks
// in any script, characters beyond the first 65,536, halves of such, null characters, long ones.
#include "client.h"

namespace calvex::test {
namespace {

using namespace std::string_literals;

const std::wstring texts[] = {
    L"Plant.xlsx",
    L"Łódź.xlsx",
    L"Котельная.xlsx",
    L"锅炉.xlsx",
    L"Kessel 3 – 50 °C, kg/m³, 5 €",
    L"🔥.xlsx",
    L"half \xD83D of one",
    L"\xDD25\xD83D",
    L"before\0behind"s,
    std::wstring(9999, L'x') + L"й",
};

class Texts : public Client {
 protected:
  Ref<IDispatch> late = steam.as<IDispatch>();

  std::wstring lastErrorText() const {
    Text text;
    EXPECT_EQ(steam->get_LastError(text.place()), S_OK);
    return text.wideText();
  }
};

/// As a script passes it.
Variant variant(const std::wstring& text) {
  Variant argument;
  argument.vt = VT_BSTR;
  argument.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  return argument;
}

std::wstring textIn(const VARIANT& value) {
  EXPECT_EQ(value.vt, VT_BSTR);
  if (value.vt != VT_BSTR) return L"no text";
  return {value.bstrVal, value.bstrVal + SysStringLen(value.bstrVal)};
}

TEST_F(Texts, OfACellComeBackEarlyBound) {
  ASSERT_EQ(steam->SetupExcelTracing(), S_OK);
  for (const std::wstring& text : texts) {
    ASSERT_EQ(steam->SetCellRef(Text(text).get(), Text(text).get(), Text(text).get()), S_OK);
    Text reference;
    EXPECT_EQ(steam->GetCellRef(reference.place()), S_OK);
    EXPECT_EQ(reference.wideText(), L"'[" + text + L"]" + text + L"'!" + text);
  }
}

TEST_F(Texts, OfACellComeBackLateBound) {
  ASSERT_EQ(steam->SetupExcelTracing(), S_OK);
  for (const std::wstring& text : texts) {
    const LateCall set =
        callMethod(*late, L"SetCellRef", {variant(text), variant(text), variant(text)});
    EXPECT_EQ(set.result, S_OK);
    Text typed;
    EXPECT_EQ(callMethod(*late, L"GetCellRef", {Variant(typed.place())}).result, S_OK);
    EXPECT_EQ(typed.wideText(), L"'[" + text + L"]" + text + L"'!" + text);
    Variant variable;
    EXPECT_EQ(callMethod(*late, L"GetCellRef", {Variant(&variable)}).result, S_OK);
    EXPECT_EQ(textIn(variable), typed.wideText());
  }
}

TEST_F(Texts, OfCustomColumnsComeBack) {
  ASSERT_EQ(steam->AddCustomTraceTitle(Text(L"Колонка").get()), S_OK);
  for (const std::wstring& text : texts) {
    EXPECT_EQ(steam->SetCustomTraceText(0, Text(text).get()), S_OK);
    Text early;
    EXPECT_EQ(steam->GetCustomTraceText(0, early.place()), S_OK);
    EXPECT_EQ(early.wideText(), text);
    Variant variable;
    EXPECT_EQ(callMethod(*late, L"GetCustomTraceText", {0, Variant(&variable)}).result, S_OK);
    EXPECT_EQ(textIn(variable), text);
  }
}

TEST_F(Texts, OfExternalErrorsComeBack) {
  for (const std::wstring& text : texts) {
    ASSERT_EQ(steam->AddExternalError(Text(L"Насос").get(), Text(text).get()), S_OK);
    EXPECT_EQ(lastErrorText(), text);
    EXPECT_EQ(textIn(getProperty(*late, L"LastError").value), text);
  }
}

TEST_F(Texts, OfSettingsComeBack) {
  for (const std::wstring& text : texts) {
    EXPECT_EQ(steam->put_AppName(Text(text).get()), S_OK);
    EXPECT_EQ(textIn(getProperty(*late, L"AppName").value), text);
    EXPECT_EQ(putProperty(*late, L"AppHelpFile", variant(text)).result, S_OK);
    Text file;
    EXPECT_EQ(steam->get_AppHelpFile(file.place()), S_OK);
    EXPECT_EQ(file.wideText(), text);
  }
}

TEST_F(Texts, OfCustomUnitsComeBackAndStandInMessagesAndResultArrays) {
  ASSERT_EQ(steam->put_AppLevel(3), S_OK);
  for (const std::wstring& text : texts) {
    LONG success = 0;
    // The degree Celsius under another name.
    ASSERT_EQ(steam->SetCustomUserUnitIndex(0, Text(text).get(), 1.0, 0.0, &success), S_OK);
    ASSERT_EQ(success, 1);
    Text unit;
    EXPECT_EQ(steam->GetUserUnit(Text(L"T").get(), unit.place(), &success), S_OK);
    EXPECT_EQ(unit.wideText(), text);

    double h = 0.0;
    EXPECT_EQ(steam->HPT(&h, 10, 3000, &success), S_OK);
    EXPECT_EQ(success, 0);
    EXPECT_EQ(lastErrorText(),
              L"Temperature parameter out of range (Valid range -13.15 to 2226.85 " + text + L").");

    Variant rows;
    EXPECT_EQ(steam->XLFlashVessel(10, 1000, 0.6, Text(L"T_Vap").get(), &rows, &success), S_OK);
    ASSERT_EQ(success, 1) << lastError(*steam);
    LONG index[] = {0, 2};
    Variant cell;
    EXPECT_EQ(SafeArrayGetElement(rows.parray, index, &cell), S_OK);
    EXPECT_EQ(textIn(cell), text);
  }
}

TEST_F(Texts, ThatNameNothingStandInTheReason) {
  for (const std::wstring& text : texts) {
    LONG success = 9;
    EXPECT_EQ(steam->SetUserUnit(Text(text).get(), Text(L"C").get(), &success), S_OK);
    EXPECT_EQ(success, 0);
    EXPECT_EQ(lastErrorText(), text + L" is not a defined unit group.");
    EXPECT_EQ(callMethod(*late, L"SetUserUnit", {Variant(L"P"), variant(text)}).value.lVal, 0);
    EXPECT_EQ(lastErrorText(), text + L" is not a defined unit of P.");
  }
}

// Those of the engine's own that are not ASCII: as they ever were.
TEST_F(Texts, OfTheEngineHaveTheirCharacters) {
  const std::pair<short, const wchar_t*> units[] = {{1, L"N/m²"}, {2, L"kg/m³"}, {25, L"°C"}};
  for (const auto& [group, name] : units) {
    LONG success = 0;
    EXPECT_EQ(steam->SetUserUnitIndex(group, Text(name).get(), &success), S_OK);
    EXPECT_EQ(success, 1) << group;
    Text unit;
    EXPECT_EQ(steam->GetUserUnitIndex(group, unit.place(), &success), S_OK);
    EXPECT_EQ(unit.wideText(), name);
  }
}

}  // namespace
}  // namespace calvex::test
