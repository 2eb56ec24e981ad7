// Calls through the table of functions: null pointers, and arrays that the client holds elsewhere.
#include "client.h"
#include "interface_members.h"

namespace calvex::test {
namespace {

using EarlyBinding = Client;

TEST_F(EarlyBinding, LeavesADescriptionOfANullPointer) {
  const auto support = steam.as<ISupportErrorInfo>();
  ASSERT_TRUE(support);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(__uuidof(IZvCalvex)), S_OK);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID_IProvideClassInfo), S_FALSE);
  LONG success = 9;
  double h = 1.0;
  const auto described = [] {
    Ref<IErrorInfo> information;
    if (GetErrorInfo(0, information.put()) != S_OK) return std::string("nothing");
    Text description, source;
    GUID id{};
    EXPECT_EQ(information->GetDescription(description.place()), S_OK);
    EXPECT_EQ(information->GetSource(source.place()), S_OK);
    EXPECT_EQ(information->GetGUID(&id), S_OK);
    EXPECT_EQ(source.ascii(), "Calvex32.ZvCalvex");
    EXPECT_EQ(id, __uuidof(IZvCalvex));
    return description.ascii();
  };
  const std::string nullPointer = "An argument that takes a result is a null pointer.";
  EXPECT_EQ(steam->HPT(nullptr, 1.0, 500.0, &success), E_POINTER);
  EXPECT_EQ(success, 0);
  EXPECT_EQ(described(), nullPointer);
  EXPECT_EQ(steam->HPT(&h, 1.0, 500.0, nullptr), E_POINTER);
  EXPECT_EQ(h, 1.0);
  EXPECT_EQ(described(), nullPointer);
  EXPECT_EQ(steam->get_SolverTol(nullptr), E_POINTER);
  EXPECT_EQ(described(), nullPointer);
  EXPECT_EQ(steam->CritT(nullptr), E_POINTER);
  EXPECT_EQ(described(), nullPointer);
  EXPECT_EQ(steam->GetUserUnit(nullptr, nullptr, &success), E_POINTER);
  EXPECT_EQ(described(), nullPointer);
  EXPECT_EQ(described(), "nothing");
}

// Every entry, by signature: whichever pointer is null, the call is refused or does not need it.
TEST_F(EarlyBinding, SurvivesNullPointersInEveryEntry) {
  constexpr VARTYPE pointer = sizeof(void*) == 8 ? VT_I8 : VT_I4;
  for (const InterfaceEntry& entry : interfaceEntries()) {
    std::vector<VARTYPE> types;
    std::vector<Variant> arguments(entry.parameters.size());
    std::vector<VARIANTARG*> pointers;
    bool takesResult = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
      const InterfaceParameter& parameter = entry.parameters[i];
      takesResult = takesResult || parameter.isOutput();
      arguments[i].vt = parameter.isOutput() ? pointer : parameter.type;  // zero, null
      arguments[i].llVal = 0;
      if (parameter.isInput() && parameter.type == VT_I2) arguments[i].iVal = -1;
      types.push_back(arguments[i].vt);
      pointers.push_back(&arguments[i]);
    }
    VARIANT result;
    EXPECT_EQ(DispCallFunc(steam.get(), static_cast<ULONG_PTR>(entry.slot) * sizeof(void*),
                           CC_STDCALL, VT_ERROR, static_cast<UINT>(types.size()), types.data(),
                           pointers.data(), &result),
              S_OK);
    const HRESULT expected = entry.name == "hWnd" ? S_OK : E_POINTER;
    if (takesResult) {
      EXPECT_EQ(result.scode, expected) << entry.name;
    } else {
      EXPECT_GE(result.scode, 0) << entry.name;
    }
  }
}

TEST_F(EarlyBinding, TakesANullTextAsAnEmptyOne) {
  EXPECT_EQ(steam->AddExternalError(nullptr, nullptr), S_OK);
  EXPECT_EQ(lastError(*steam), "");
  LONG success = 9;
  EXPECT_EQ(steam->SetUserUnit(nullptr, nullptr, &success), S_OK);
  EXPECT_EQ(success, 0);
  EXPECT_EQ(lastError(*steam), " is not a defined unit group.");
}

// An array that the client holds elsewhere -------------------------------------------------------

TEST_F(EarlyBinding, AnEarlyBoundArrayReachesTheVariableThatTheVariantRefersTo) {
  Variant variable;
  VARIANT reference;
  reference.vt = VT_BYREF | VT_VARIANT;
  reference.pvarVal = &variable;
  EXPECT_EQ(steam->GetAlarms(&reference), S_OK);
  EXPECT_EQ(reference.vt, VT_BYREF | VT_VARIANT);
  ASSERT_EQ(variable.vt, VT_ARRAY | VT_VARIANT);
  EXPECT_EQ(SafeArrayGetDim(variable.parray), 2U);
}

TEST_F(EarlyBinding, AnArrayOfFixedSizeIsRefused) {
  SAFEARRAYBOUND bounds[] = {{1, 0}, {1, 0}};
  SAFEARRAY* array = SafeArrayCreate(VT_VARIANT, 2, bounds);
  array->fFeatures |= FADF_FIXEDSIZE;
  Variant argument;
  argument.vt = VT_BYREF | VT_ARRAY | VT_VARIANT;
  argument.pparray = &array;
  const LateCall late = callMethod(*steam, L"GetAlarms", {argument});
  EXPECT_EQ(late.result, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(late.wrongArgument, 0U);
  EXPECT_EQ(steam->GetAlarms(&argument), DISP_E_TYPEMISMATCH);
  array->fFeatures = static_cast<USHORT>(array->fFeatures & ~FADF_FIXEDSIZE);
  EXPECT_EQ(steam->GetAlarms(&argument), S_OK);
  long upper = -1;
  EXPECT_EQ(SafeArrayGetUBound(array, 1, &upper), S_OK);
  EXPECT_EQ(upper, 2);
  SafeArrayDestroy(array);
}

}  // namespace
}  // namespace calvex::test
