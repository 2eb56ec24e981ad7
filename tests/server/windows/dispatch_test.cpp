// The rules of late-bound calls.
#include "client.h"
#include "interface_members.h"

namespace calvex::test {
namespace {

// tests/data/single-phase.csv
constexpr double P = 0.9934, T = 468.79, H = 2817.24632869232;
constexpr double tolerance = 1e-7 * H;

constexpr DISPID idOfHPT = 0x33, idOfSolverIter = 0x02;

class Dispatch : public Client {
 protected:
  /// A call whose arguments are listed as IDispatch wants them: backwards, the named ones first.
  LateCall invokeNamed(DISPID id, std::vector<Variant> backwards, std::vector<DISPID> names) {
    return invoke(*steam, id, DISPATCH_METHOD,
                  std::vector<Variant>(backwards.rbegin(), backwards.rend()), std::move(names));
  }
  LateCall HPT(Variant pH, Variant pressure, Variant temperature) {
    return invoke(*steam, idOfHPT, DISPATCH_METHOD,
                  {std::move(pH), std::move(pressure), std::move(temperature)});
  }
  /// HPT with those inputs must succeed.
  void expectEnthalpy(const Variant& pressure, const Variant& temperature) {
    double h = 0.0;
    const LateCall call = HPT(&h, pressure, temperature);
    EXPECT_EQ(call.result, S_OK);
    EXPECT_EQ(call.value.lVal, 1) << lastError(*steam);
    EXPECT_NEAR(h, H, tolerance);
  }
  /// HPT must be refused for the argument at that place of the client's list.
  void expectRefusal(const LateCall& call, HRESULT result, UINT argument) {
    EXPECT_EQ(call.result, result);
    EXPECT_EQ(call.wrongArgument, argument);
    EXPECT_EQ(call.value.vt, VT_EMPTY);
    EXPECT_EQ(lastError(*steam), "");
  }
};

HRESULT idsOf(IDispatch& object, std::vector<std::wstring> names, std::vector<DISPID>& ids) {
  std::vector<LPOLESTR> texts;
  for (std::wstring& name : names) texts.push_back(name.data());
  ids.assign(names.size(), 12345);
  return object.GetIDsOfNames(IID_NULL, texts.data(), static_cast<UINT>(texts.size()),
                              LOCALE_USER_DEFAULT, ids.data());
}

// Names -----------------------------------------------------------------------------------------

TEST_F(Dispatch, FindsEveryMemberInAnyCase) {
  for (const InterfaceEntry& entry : interfaceEntries()) {
    std::wstring lower = wide(entry.name), upper = lower;
    for (wchar_t& c : lower) c = static_cast<wchar_t>(std::towlower(c));
    for (wchar_t& c : upper) c = static_cast<wchar_t>(std::towupper(c));
    EXPECT_EQ(idOf(*steam, wide(entry.name)), entry.id) << entry.name;
    EXPECT_EQ(idOf(*steam, lower), entry.id) << entry.name;
    EXPECT_EQ(idOf(*steam, upper), entry.id) << entry.name;
  }
}

TEST_F(Dispatch, FindsParametersByTheirPlace) {
  std::vector<DISPID> ids;
  EXPECT_EQ(idsOf(*steam, {L"hpt", L"T", L"PH", L"p"}, ids), S_OK);
  EXPECT_EQ(ids, (std::vector<DISPID>{idOfHPT, 2, 0, 1}));
}

TEST_F(Dispatch, TellsWhichNamesItDoesNotKnow) {
  std::vector<DISPID> ids;
  EXPECT_EQ(idsOf(*steam, {L"HPT", L"X", L"T"}, ids), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(ids, (std::vector<DISPID>{idOfHPT, DISPID_UNKNOWN, 2}));
  EXPECT_EQ(idsOf(*steam, {L"HPX", L"T"}, ids), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(ids, (std::vector<DISPID>{DISPID_UNKNOWN, DISPID_UNKNOWN}));
  for (const wchar_t* name : {L"", L" HPT", L"HP\x0422", L"pSucc", L"QTR_PH"}) {
    EXPECT_EQ(idsOf(*steam, {name}, ids), DISP_E_UNKNOWNNAME);
  }
}

TEST_F(Dispatch, TakesNoOtherInterfaceOfNames) {
  std::wstring name = L"HPT";
  wchar_t* text = name.data();
  DISPID id = 0;
  EXPECT_EQ(steam->GetIDsOfNames(IID_IUnknown, &text, 1, 0, &id), DISP_E_UNKNOWNINTERFACE);
  DISPPARAMS none{};
  EXPECT_EQ(
      steam->Invoke(1, IID_IUnknown, 0, DISPATCH_PROPERTYGET, &none, nullptr, nullptr, nullptr),
      DISP_E_UNKNOWNINTERFACE);
}

// Arguments by name -----------------------------------------------------------------------------

TEST_F(Dispatch, TakesArgumentsByName) {
  double h = 0.0;
  EXPECT_EQ(invokeNamed(idOfHPT, {T, &h, P}, {2, 0, 1}).result, S_OK);
  EXPECT_NEAR(h, H, tolerance);
  h = 0.0;
  EXPECT_EQ(invokeNamed(idOfHPT, {P, T, &h}, {1, 2}).result, S_OK);
  EXPECT_NEAR(h, H, tolerance);
}

TEST_F(Dispatch, RefusesNamesThatAreNotParametersOrComeTwice) {
  double h = 1.0;
  expectRefusal(invokeNamed(idOfHPT, {P, T, &h}, {1, 3}), DISP_E_PARAMNOTFOUND, 1);
  expectRefusal(invokeNamed(idOfHPT, {P, T, &h}, {1, -4}), DISP_E_PARAMNOTFOUND, 1);
  expectRefusal(invokeNamed(idOfHPT, {P, T, &h}, {1, 1}), DISP_E_PARAMNOTFOUND, 1);
  EXPECT_FALSE(SUCCEEDED(invokeNamed(idOfHPT, {P, T, &h}, {1, 0}).result));  // 0 by place, too
  EXPECT_EQ(h, 1.0);
}

TEST_F(Dispatch, CountsWrongArgumentsInTheClientsOrder) {
  double h = 1.0;
  expectRefusal(HPT(&h, L"ten", T), DISP_E_TYPEMISMATCH, 1);
  expectRefusal(HPT(&h, P, L"warm"), DISP_E_TYPEMISMATCH, 0);
  expectRefusal(invokeNamed(idOfHPT, {L"ten", T, &h}, {1, 2}), DISP_E_TYPEMISMATCH, 0);
  expectRefusal(invokeNamed(idOfHPT, {T, L"ten", &h}, {2, 1}), DISP_E_TYPEMISMATCH, 1);
  EXPECT_EQ(h, 1.0);
}

// Members and counts ----------------------------------------------------------------------------

TEST_F(Dispatch, HasNoMemberUnderOtherNumbers) {
  for (const DISPID id : {0, -1, 0x14, 0xba, 0xbb, 0xc0, 0xc3, 0xd5, 0x10033}) {
    for (const int flags : {DISPATCH_METHOD, DISPATCH_PROPERTYGET, DISPATCH_PROPERTYPUT}) {
      EXPECT_EQ(invoke(*steam, id, static_cast<WORD>(flags), {}).result, DISP_E_MEMBERNOTFOUND)
          << id;
    }
  }
}

TEST_F(Dispatch, HasNoPutOfWhatIsReadOnlyAndNoPutByReference) {
  EXPECT_EQ(putProperty(*steam, L"VersionStr", L"5").result, DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(putProperty(*steam, L"LastError", L"x").result, DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(putProperty(*steam, L"CritT", 1.0).result, DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(putProperty(*steam, L"HPT", 1.0).result, DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(
      invoke(*steam, idOfSolverIter, DISPATCH_PROPERTYPUTREF, {300}, {DISPID_PROPERTYPUT}).result,
      DISP_E_MEMBERNOTFOUND);
}

TEST_F(Dispatch, ReadsSettingsAndCallsMethodsOfLanguagesThatDoNotTellThemApart) {
  constexpr WORD either = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
  EXPECT_EQ(invoke(*steam, idOfSolverIter, either, {}).value.iVal, 200);
  EXPECT_EQ(invoke(*steam, idOf(*steam, L"CritT"), either, {}).value.dblVal, 647.126);
  double h = 0.0;
  EXPECT_EQ(invoke(*steam, idOfHPT, either, {&h, P, T}).result, S_OK);
  EXPECT_NEAR(h, H, tolerance);
}

TEST_F(Dispatch, CountsArguments) {
  double h = 1.0;
  const auto result = [&](const wchar_t* member, WORD flags, std::vector<Variant> arguments) {
    return invoke(*steam, idOf(*steam, member), flags, std::move(arguments)).result;
  };
  EXPECT_EQ(result(L"HPT", DISPATCH_METHOD, {}), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(result(L"HPT", DISPATCH_METHOD, {&h, P}), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(result(L"HPT", DISPATCH_METHOD, {&h, P, T, 1.0}), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(result(L"HPT", DISPATCH_METHOD, std::vector<Variant>(300, Variant(1.0))),
            DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(result(L"CritT", DISPATCH_METHOD, {1.0}), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(result(L"ClearTraceInfo", DISPATCH_METHOD, {1.0}), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(result(L"SolverTol", DISPATCH_PROPERTYGET, {1.0}), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(result(L"SolverTol", DISPATCH_PROPERTYPUT, {}), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(result(L"SolverTol", DISPATCH_PROPERTYPUT, {1e-8, 1e-8}), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(h, 1.0);
  EXPECT_EQ(getProperty(*steam, L"SolverTol").value.dblVal, 1e-9);
}

TEST_F(Dispatch, NeedsNoPlaceForTheSuccessOrTheWrongArgument) {
  double h = 0.0;
  std::vector<VARIANT> backwards{Variant(T), Variant(P), Variant(&h)};
  DISPPARAMS parameters{backwards.data(), nullptr, 3, 0};
  EXPECT_EQ(steam->Invoke(idOfHPT, IID_NULL, 0x409, DISPATCH_METHOD, &parameters, nullptr, nullptr,
                          nullptr),
            S_OK);
  EXPECT_NEAR(h, H, tolerance);
  parameters.cArgs = 2;
  EXPECT_EQ(steam->Invoke(idOfHPT, IID_NULL, 0x409, DISPATCH_METHOD, &parameters, nullptr, nullptr,
                          nullptr),
            DISP_E_BADPARAMCOUNT);
}

// Inputs ----------------------------------------------------------------------------------------

TEST_F(Dispatch, BringsInputsToTheParametersType) {
  const auto typed = [](VARTYPE type, double value) {
    Variant variant, source(value);
    EXPECT_EQ(VariantChangeType(&variant, &source, 0, type), S_OK) << type;
    return variant;
  };
  double expected = 0.0;
  ASSERT_EQ(HPT(&expected, 10.0, 773.0).value.lVal, 1);
  ASSERT_NEAR(expected, 3373.6, 0.1);  // 3374.0 at 773.15 K, 2.6 kJ/kg for each kelvin
  for (const VARTYPE type : {VT_I1, VT_UI1, VT_I2, VT_UI2, VT_I4, VT_UI4, VT_I8, VT_UI8, VT_R4,
                             VT_CY, VT_DECIMAL, VT_DATE, VT_BSTR}) {
    double h = 0.0;
    EXPECT_EQ(HPT(&h, typed(type == VT_DATE ? VARTYPE{VT_R8} : type, 10.0), 773.0).value.lVal, 1);
    EXPECT_EQ(h, expected) << type;
  }
  Variant date(773.0);
  date.vt = VT_DATE;  // the number of days is the number
  double h = 0.0;
  EXPECT_EQ(HPT(&h, 10.0, date).value.lVal, 1);
  EXPECT_EQ(h, expected);
}

TEST_F(Dispatch, ReadsTextsWithAPointWhateverTheClientsLocale) {
  double h = 0.0;
  const auto call = [&](Variant pressure, LCID locale) {
    LateCall called;
    h = 1.0;
    std::vector<VARIANT> backwards{Variant(T), pressure, Variant(&h)};
    DISPPARAMS parameters{backwards.data(), nullptr, 3, 0};
    called.result = steam->Invoke(idOfHPT, IID_NULL, locale, DISPATCH_METHOD, &parameters,
                                  &called.value, nullptr, &called.wrongArgument);
    return called;
  };
  constexpr LCID english = 0x409, german = 0x407;
  for (const LCID locale : {english, german}) {
    for (const wchar_t* good : {L"0.9934", L" +993.4e-3 "}) {
      EXPECT_EQ(call(good, locale).value.lVal, 1);
      EXPECT_NEAR(h, H, tolerance);
      Text text(good);
      EXPECT_EQ(call(text.place(), locale).value.lVal, 1);
      EXPECT_NEAR(h, H, tolerance);
    }
    for (const wchar_t* bad :
         {L"0,9934", L"1,000", L"1 000", L"(1)", L"$1", L"&H1", L"1 MPa", L""}) {
      expectRefusal(call(bad, locale), DISP_E_TYPEMISMATCH, 1);
      EXPECT_EQ(h, 1.0) << narrow(bad);
    }
  }
}

TEST_F(Dispatch, TakesInputsByReferenceHoweverDeep) {
  double pressure = P;
  Variant inner(P), middle(static_cast<VARIANT*>(&inner)), outer(static_cast<VARIANT*>(&middle));
  expectEnthalpy(&pressure, T);
  expectEnthalpy(static_cast<VARIANT*>(&inner), T);
  expectEnthalpy(static_cast<VARIANT*>(&outer), T);
  Variant reference(&pressure);
  expectEnthalpy(static_cast<VARIANT*>(&reference), T);
}

TEST_F(Dispatch, RefusesInputsThatAreNoNumbers) {
  double h = 1.0;
  Variant null;
  null.vt = VT_NULL;
  expectRefusal(HPT(&h, null, T), DISP_E_TYPEMISMATCH, 1);
  expectRefusal(HPT(&h, P, L"warm"), DISP_E_TYPEMISMATCH, 0);
  Variant array;
  array.vt = VT_ARRAY | VT_R8;
  array.parray = SafeArrayCreateVector(VT_R8, 0, 3);
  expectRefusal(HPT(&h, array, T), DISP_E_TYPEMISMATCH, 1);
  expectRefusal(HPT(&h, P, Variant::omitted()), DISP_E_PARAMNOTOPTIONAL, 0);
  EXPECT_EQ(h, 1.0);
}

TEST_F(Dispatch, RefusesReferencesToNowhere) {
  const auto nowhere = [](int type) {
    Variant reference;
    reference.vt = static_cast<VARTYPE>(VT_BYREF | type);
    reference.byref = nullptr;
    return reference;
  };
  double h = 1.0;
  for (const int type :
       {+VT_VARIANT, +VT_R8, +VT_I2, +VT_BSTR, +VT_DISPATCH, VT_ARRAY | VT_VARIANT}) {
    Variant inner = nowhere(type);
    for (const Variant& reference : {inner, Variant(static_cast<VARIANT*>(&inner))}) {
      expectRefusal(HPT(&h, reference, T), E_INVALIDARG, 1);
      expectRefusal(HPT(&h, P, reference), E_INVALIDARG, 0);
      expectRefusal(HPT(reference, P, T), E_INVALIDARG, 2);
      const LateCall put = putProperty(*steam, L"SolverIter", reference);
      EXPECT_EQ(put.result, E_INVALIDARG);
      EXPECT_EQ(put.wrongArgument, 0U);
      EXPECT_EQ(callMethod(*steam, L"GetAlarms", {reference}).result, E_INVALIDARG);
      Variant early = reference;
      EXPECT_EQ(steam->GetAlarms(&early), E_INVALIDARG);
    }
  }
  EXPECT_EQ(h, 1.0);
}

TEST_F(Dispatch, RefusesReferencesInACircle) {
  Variant circle;
  circle.vt = VT_BYREF | VT_VARIANT;
  circle.pvarVal = &circle;
  double h = 1.0;
  expectRefusal(HPT(&h, circle, T), E_INVALIDARG, 1);
  expectRefusal(HPT(circle, P, T), E_INVALIDARG, 2);
  EXPECT_EQ(h, 1.0);
}

TEST_F(Dispatch, RefusesNumbersThatDoNotFit) {
  LateCall call = putProperty(*steam, L"SolverIter", 40000);
  EXPECT_EQ(call.result, DISP_E_OVERFLOW);
  EXPECT_EQ(call.wrongArgument, 0U);
  call = putProperty(*steam, L"UomHelpContext", 3e9);
  EXPECT_EQ(call.result, DISP_E_OVERFLOW);
  EXPECT_EQ(putProperty(*steam, L"SolverIter", L"many").result, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(putProperty(*steam, L"SolverIter", Variant::omitted()).result, DISP_E_PARAMNOTOPTIONAL);
  EXPECT_EQ(getProperty(*steam, L"SolverIter").value.iVal, 200);
}

TEST_F(Dispatch, RoundsHalvesToEven) {
  for (const auto& [given, kept] : {std::pair(300.5, 300), {301.5, 302}, {302.4, 302}}) {
    EXPECT_EQ(putProperty(*steam, L"SolverIter", given).result, S_OK);
    EXPECT_EQ(getProperty(*steam, L"SolverIter").value.iVal, kept);
  }
}

TEST_F(Dispatch, TakesNumbersForTexts) {
  Text name;
  EXPECT_EQ(callMethod(*steam, L"AddCustomTraceTitle", {7}).result, S_OK);
  EXPECT_EQ(callMethod(*steam, L"SetCustomTraceText", {0, 42}).result, S_OK);
  EXPECT_EQ(callMethod(*steam, L"GetCustomTraceText", {0, name.place()}).result, S_OK);
  EXPECT_EQ(name.ascii(), "42");
}

// Outputs ---------------------------------------------------------------------------------------

TEST_F(Dispatch, WritesVariablesOfTheExactType) {
  double h = 0.0;
  EXPECT_EQ(HPT(&h, P, T).result, S_OK);
  EXPECT_NEAR(h, H, tolerance);
  Text unit;
  EXPECT_EQ(callMethod(*steam, L"GetUserUnit", {L"T", unit.place()}).value.lVal, 1);
  EXPECT_EQ(unit.ascii(), "K");
  EXPECT_EQ(callMethod(*steam, L"GetUserUnit", {L"P", unit.place()}).value.lVal, 1);
  EXPECT_EQ(unit.ascii(), "MPa");
  SAFEARRAY* rows = nullptr;
  Variant reference;
  reference.vt = VT_BYREF | VT_ARRAY | VT_VARIANT;
  reference.pparray = &rows;
  EXPECT_EQ(callMethod(*steam, L"GetAlarms", {reference}).result, S_OK);
  EXPECT_EQ(callMethod(*steam, L"GetAlarms", {reference}).result, S_OK);  // in place of the old
  ASSERT_NE(rows, nullptr);
  EXPECT_EQ(SafeArrayGetDim(rows), 2U);
  SafeArrayDestroy(rows);
}

TEST_F(Dispatch, RefusesVariablesOfOtherTypesBeforeItComputes) {
  float single = 1.0F;
  LONG whole = 1;
  short small = 1;
  Variant reference;
  reference.vt = VT_BYREF | VT_R4;
  reference.pfltVal = &single;
  expectRefusal(HPT(reference, 10.0, 100.0), DISP_E_TYPEMISMATCH, 2);
  expectRefusal(HPT(&whole, 10.0, 100.0), DISP_E_TYPEMISMATCH, 2);
  expectRefusal(HPT(&small, 10.0, 100.0), DISP_E_TYPEMISMATCH, 2);
  Variant inside(&whole);
  expectRefusal(HPT(static_cast<VARIANT*>(&inside), 10.0, 100.0), DISP_E_TYPEMISMATCH, 2);
  Text text(L"before");
  expectRefusal(HPT(text.place(), 10.0, 100.0), DISP_E_TYPEMISMATCH, 2);
  EXPECT_EQ(single, 1.0F);
  EXPECT_EQ(whole, 1);
  EXPECT_EQ(small, 1);
  EXPECT_EQ(text.ascii(), "before");
}

TEST_F(Dispatch, GivesVariantsTheOutputsType) {
  Variant variable(L"before");
  EXPECT_EQ(HPT(static_cast<VARIANT*>(&variable), P, T).value.lVal, 1);
  EXPECT_EQ(variable.vt, VT_R8);
  EXPECT_NEAR(variable.dblVal, H, tolerance);
  EXPECT_EQ(callMethod(*steam, L"GetUserUnit", {L"T", static_cast<VARIANT*>(&variable)}).result,
            S_OK);
  EXPECT_EQ(variable.vt, VT_BSTR);
  EXPECT_EQ(narrow(variable.bstrVal), "K");
  EXPECT_EQ(callMethod(*steam, L"GetAlarms", {static_cast<VARIANT*>(&variable)}).result, S_OK);
  EXPECT_EQ(variable.vt, VT_ARRAY | VT_VARIANT);
}

TEST_F(Dispatch, WritesNothingOnFailure) {
  Variant variable(L"before");
  double h = 1.0;
  Text unit(L"before");
  EXPECT_EQ(HPT(static_cast<VARIANT*>(&variable), P, 100.0).value.lVal, 0);
  EXPECT_EQ(HPT(&h, P, 100.0).value.lVal, 0);
  EXPECT_EQ(callMethod(*steam, L"GetUserUnit", {L"none", unit.place()}).value.lVal, 0);
  EXPECT_EQ(callMethod(*steam, L"XLFlashVessel",
                       {5.0, 1000.0, 0.5, L"nonsense", static_cast<VARIANT*>(&variable)})
                .value.lVal,
            0);
  EXPECT_EQ(narrow(variable.bstrVal), "before");
  EXPECT_EQ(h, 1.0);
  EXPECT_EQ(unit.ascii(), "before");
}

TEST_F(Dispatch, WritesThroughVariantsThatReferToVariables) {
  double h = 0.0;
  Variant reference(&h);
  EXPECT_EQ(HPT(static_cast<VARIANT*>(&reference), P, T).result, S_OK);
  EXPECT_NEAR(h, H, tolerance);
  EXPECT_EQ(reference.vt, VT_BYREF | VT_R8);
  Variant inner, outer(static_cast<VARIANT*>(&inner));
  EXPECT_EQ(HPT(static_cast<VARIANT*>(&outer), P, T).result, S_OK);
  EXPECT_EQ(outer.vt, VT_BYREF | VT_VARIANT);
  EXPECT_EQ(inner.vt, VT_R8);
  EXPECT_NEAR(inner.dblVal, H, tolerance);
}

TEST_F(Dispatch, LosesOutputsThatHaveNoPlace) {
  EXPECT_EQ(HPT(1.0, P, T).value.lVal, 1);
  EXPECT_EQ(HPT(Variant(), P, T).value.lVal, 1);
}

/// An object that keeps what is put into its default property, and hands it out.
class Cell final : public ClientObject {
 public:
  explicit Cell(bool open) : open_(open) {}
  Variant content;

  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* given,
                                   VARIANT* result, EXCEPINFO*, UINT*) override {
    if (id == DISPID_VALUE && (flags & DISPATCH_PROPERTYGET) != 0 && open_) {
      return VariantCopy(result, &content);
    }
    if (id != DISPID_VALUE || flags != DISPATCH_PROPERTYPUT || !open_) {
      return DISP_E_MEMBERNOTFOUND;
    }
    if (given->cArgs != 1 || given->cNamedArgs != 1 ||
        given->rgdispidNamedArgs[0] != DISPID_PROPERTYPUT) {
      return DISP_E_BADPARAMCOUNT;
    }
    return VariantCopy(&content, &given->rgvarg[0]);
  }

 private:
  bool open_;
};

TEST_F(Dispatch, PutsOutputsIntoObjectsWithADefaultProperty) {
  Cell cell(true);
  EXPECT_EQ(HPT(static_cast<IDispatch*>(&cell), P, T).value.lVal, 1);
  EXPECT_EQ(cell.content.vt, VT_R8);
  EXPECT_NEAR(cell.content.dblVal, H, tolerance);
  EXPECT_EQ(callMethod(*steam, L"GetUserUnit", {L"T", static_cast<IDispatch*>(&cell)}).value.lVal,
            1);
  EXPECT_EQ(narrow(cell.content.bstrVal), "K");
  EXPECT_EQ(HPT(static_cast<IDispatch*>(&cell), P, 100.0).value.lVal, 0);
  EXPECT_EQ(narrow(cell.content.bstrVal), "K");
  EXPECT_EQ(cell.references, 1);
}

TEST_F(Dispatch, ReadsObjectsByTheirDefaultProperty) {
  Cell pressure(true);
  Variant cell(static_cast<IDispatch*>(&pressure));
  pressure.content = P;
  expectEnthalpy(cell, T);
  pressure.content = L"0.9934";
  expectEnthalpy(static_cast<VARIANT*>(&cell), T);
  pressure.content = L"0,9934";
  double h = 1.0;
  expectRefusal(HPT(&h, cell, T), DISP_E_TYPEMISMATCH, 1);
  Cell closed(false);
  expectRefusal(HPT(&h, P, static_cast<IDispatch*>(&closed)), DISP_E_TYPEMISMATCH, 0);
  expectRefusal(HPT(&h, P, static_cast<IDispatch*>(nullptr)), DISP_E_TYPEMISMATCH, 0);
  EXPECT_EQ(h, 1.0);
  EXPECT_EQ(pressure.references, 2);
}

TEST_F(Dispatch, TellsWhenAnObjectTakesNoOutput) {
  Cell cell(false);
  const LateCall call = HPT(static_cast<IDispatch*>(&cell), P, T);
  EXPECT_EQ(call.result, DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(call.wrongArgument, 2U);
  EXPECT_EQ(cell.references, 1);
}

// Results ---------------------------------------------------------------------------------------

TEST_F(Dispatch, AnswersSettingsThatRefuseWithFalse) {
  for (const auto& [name, value] :
       std::vector<std::pair<const wchar_t*, Variant>>{{L"SolverTol", 1e-6},
                                                       {L"SolverIter", 50},
                                                       {L"TraceLevel", 3},
                                                       {L"MaxTraceSize", 1},
                                                       {L"AppLevel", 4}}) {
    const LateCall before = getProperty(*steam, name);
    EXPECT_EQ(putProperty(*steam, name, value).result, S_FALSE) << narrow(name);
    const LateCall after = getProperty(*steam, name);
    EXPECT_EQ(after.result, S_OK);
    EXPECT_EQ(VarCmp(const_cast<Variant*>(&before.value), const_cast<Variant*>(&after.value), 0, 0),
              VARCMP_EQ)
        << narrow(name);
  }
  EXPECT_EQ(steam->put_SolverTol(1e-6), S_FALSE);
  EXPECT_EQ(steam->put_SolverTol(1e-7), S_OK);
  EXPECT_EQ(callMethod(*steam, L"SetCustomTraceText", {0, L"x"}).result, S_FALSE);
}

TEST_F(Dispatch, AnswersNothingWhereThereIsNoValue) {
  EXPECT_EQ(callMethod(*steam, L"ClearTraceInfo").value.vt, VT_EMPTY);
  EXPECT_EQ(getProperty(*steam, L"hWnd").value.vt, VT_EMPTY);
  EXPECT_EQ(getProperty(*steam, L"hWnd").result, S_OK);
  LONG window = 77;
  EXPECT_EQ(steam->get_hWnd(&window), S_OK);
  EXPECT_EQ(window, 77);
}

// Descriptions ----------------------------------------------------------------------------------

TEST_F(Dispatch, DescribesItsInterface) {
  UINT count = 9;
  EXPECT_EQ(steam->GetTypeInfoCount(&count), S_OK);
  EXPECT_EQ(count, 1U);
  Ref<ITypeInfo> type;
  ASSERT_EQ(steam->GetTypeInfo(0, 0, type.put()), S_OK);
  Text name;
  ASSERT_EQ(type->GetDocumentation(idOfHPT, name.place(), nullptr, nullptr, nullptr), S_OK);
  EXPECT_EQ(name.ascii(), "HPT");
  EXPECT_EQ(steam->GetTypeInfo(1, 0, type.put()), DISP_E_BADINDEX);
  EXPECT_FALSE(type);
  EXPECT_EQ(steam->GetTypeInfo(0, 0, nullptr), E_POINTER);
}

TEST_F(Dispatch, DescribesItsClass) {
  const auto provider = steam.as<IProvideClassInfo>();
  ASSERT_TRUE(provider);
  Ref<ITypeInfo> type;
  ASSERT_EQ(provider->GetClassInfo(type.put()), S_OK);
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(type->GetTypeAttr(&attributes), S_OK);
  EXPECT_EQ(attributes->typekind, TKIND_COCLASS);
  EXPECT_EQ(attributes->guid, classOf(programId));
  type->ReleaseTypeAttr(attributes);
}

}  // namespace
}  // namespace calvex::test
