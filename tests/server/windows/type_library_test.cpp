// The type library in the module, as a compiler or an object browser reads it, against the list of
// the interface's members.
#include <set>

#include "client.h"
#include "interface_members.h"

namespace calvex::test {
namespace {

std::string guidText(REFGUID id) {
  wchar_t text[40];
  StringFromGUID2(id, text, 40);
  return narrow(text);
}

class TypeLibrary : public testing::Test {
 protected:
  TypeLibrary() {
    const std::wstring path = wide(CALVEX_SERVER);
    EXPECT_EQ(LoadTypeLibEx(path.c_str(), REGKIND_NONE, library.put()), S_OK);
    if (!library) return;
    // The type of a dual interface is its dispatch view; the other one hangs at it.
    EXPECT_EQ(library->GetTypeInfoOfGuid(__uuidof(IZvCalvex), dispatchView.put()), S_OK);
    HREFTYPE reference = 0;
    EXPECT_EQ(dispatchView->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference), S_OK);
    EXPECT_EQ(dispatchView->GetRefTypeInfo(reference, binaryView.put()), S_OK);
  }

  static std::string nameOf(ITypeInfo& type) {
    Text name;
    EXPECT_EQ(type.GetDocumentation(MEMBERID_NIL, name.place(), nullptr, nullptr, nullptr), S_OK);
    return name.ascii();
  }
  static std::string descriptionOf(ITypeInfo& type) {
    Text text;
    EXPECT_EQ(type.GetDocumentation(MEMBERID_NIL, nullptr, text.place(), nullptr, nullptr), S_OK);
    return text.ascii();
  }

  Apartment apartment;
  Ref<ITypeLib> library;
  Ref<ITypeInfo> dispatchView;
  Ref<ITypeInfo> binaryView;
};

/// A function of a type while it is looked at.
class Function {
 public:
  Function(ITypeInfo& type, UINT index) : type_(type) {
    EXPECT_EQ(type.GetFuncDesc(index, &description_), S_OK);
  }
  ~Function() { type_.ReleaseFuncDesc(description_); }
  Function(const Function&) = delete;
  Function& operator=(const Function&) = delete;
  const FUNCDESC* operator->() const { return description_; }

  /// The member's name, then those of its parameters.
  [[nodiscard]] std::vector<std::string> names() const {
    std::vector<BSTR> texts(static_cast<std::size_t>(description_->cParams) + 1);
    UINT count = 0;
    EXPECT_EQ(
        type_.GetNames(description_->memid, texts.data(), static_cast<UINT>(texts.size()), &count),
        S_OK);
    std::vector<std::string> names;
    for (const BSTR text : texts) {
      if (text != nullptr) names.push_back(narrow(text));
      SysFreeString(text);
    }
    return names;
  }

 private:
  ITypeInfo& type_;
  FUNCDESC* description_ = nullptr;
};

/// What a parameter's type is, and whether a pointer to it.
std::pair<VARTYPE, bool> typeOf(const TYPEDESC& type) {
  return type.vt == VT_PTR ? std::pair(type.lptdesc->vt, true) : std::pair(type.vt, false);
}

USHORT flagsOf(const std::string& direction) {
  if (direction == "in") return PARAMFLAG_FIN;
  if (direction == "out") return PARAMFLAG_FOUT;
  if (direction == "inout") return PARAMFLAG_FIN | PARAMFLAG_FOUT;
  return PARAMFLAG_FOUT | PARAMFLAG_FRETVAL;
}

bool sameName(const std::string& a, const std::string& b) {
  return _stricmp(a.c_str(), b.c_str()) == 0;
}

TEST_F(TypeLibrary, HasItsNameVersionAndIdentity) {
  ASSERT_TRUE(library);
  TLIBATTR* attributes = nullptr;
  ASSERT_EQ(library->GetLibAttr(&attributes), S_OK);
  EXPECT_EQ(guidText(attributes->guid), "{F068E7F0-5511-41B5-B323-6AD406805778}");
  EXPECT_EQ(attributes->wMajorVerNum, 3);
  EXPECT_EQ(attributes->wMinorVerNum, 0);
  library->ReleaseTLibAttr(attributes);
  Text name, description;
  ASSERT_EQ(library->GetDocumentation(-1, name.place(), description.place(), nullptr, nullptr),
            S_OK);
  EXPECT_EQ(name.ascii(), "CALVEXLib");
  EXPECT_EQ(description.ascii(), "Calvex 4 Type Library");
}

TEST_F(TypeLibrary, HasTheClassWithItsOneInterface) {
  ASSERT_TRUE(library);
  Ref<ITypeInfo> type;
  ASSERT_EQ(library->GetTypeInfoOfGuid(classOf(programId), type.put()), S_OK);
  EXPECT_EQ(nameOf(*type), "ZvCalvex");
  EXPECT_EQ(descriptionOf(*type), "ZvCalvex Class");
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(type->GetTypeAttr(&attributes), S_OK);
  EXPECT_EQ(attributes->typekind, TKIND_COCLASS);
  EXPECT_EQ(attributes->cImplTypes, 1);
  EXPECT_NE(attributes->wTypeFlags & TYPEFLAG_FCANCREATE, 0);
  EXPECT_EQ(guidText(attributes->guid), "{4A623F37-F2B3-4A12-9359-F66186EBF6C4}");
  type->ReleaseTypeAttr(attributes);
  INT flags = 0;
  ASSERT_EQ(type->GetImplTypeFlags(0, &flags), S_OK);
  EXPECT_EQ(flags, IMPLTYPEFLAG_FDEFAULT);
  HREFTYPE reference = 0;
  Ref<ITypeInfo> interfaceType;
  ASSERT_EQ(type->GetRefTypeOfImplType(0, &reference), S_OK);
  ASSERT_EQ(type->GetRefTypeInfo(reference, interfaceType.put()), S_OK);
  EXPECT_EQ(nameOf(*interfaceType), "IZvCalvex");
}

TEST_F(TypeLibrary, HasTheDualInterface) {
  ASSERT_TRUE(binaryView);
  EXPECT_EQ(nameOf(*dispatchView), "IZvCalvex");
  EXPECT_EQ(descriptionOf(*dispatchView), "IZvCalvex Interface");
  for (ITypeInfo* view : {dispatchView.get(), binaryView.get()}) {
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(view->GetTypeAttr(&attributes), S_OK);
    EXPECT_EQ(guidText(attributes->guid), "{B39088B6-20B8-4BBF-A809-AAEE4F8E0E84}");
    EXPECT_NE(attributes->wTypeFlags & TYPEFLAG_FDUAL, 0);
    EXPECT_NE(attributes->wTypeFlags & TYPEFLAG_FDISPATCHABLE, 0);
    if (view == binaryView.get()) {
      EXPECT_EQ(attributes->typekind, TKIND_INTERFACE);
      EXPECT_NE(attributes->wTypeFlags & TYPEFLAG_FOLEAUTOMATION, 0);
    } else {
      EXPECT_EQ(attributes->typekind, TKIND_DISPATCH);
    }
    view->ReleaseTypeAttr(attributes);
  }
}

TEST_F(TypeLibrary, HasEveryEntryAtItsPlace) {
  ASSERT_TRUE(binaryView);
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(binaryView->GetTypeAttr(&attributes), S_OK);
  EXPECT_EQ(attributes->cFuncs, 218);
  EXPECT_EQ(attributes->cVars, 0);
  EXPECT_EQ(attributes->cbSizeVft, 225 * sizeof(void*));
  binaryView->ReleaseTypeAttr(attributes);

  ASSERT_EQ(interfaceEntries().size(), 218U);
  UINT index = 0;
  for (const InterfaceEntry& entry : interfaceEntries()) {
    SCOPED_TRACE(entry.name);
    const Function function(*binaryView, index++);
    EXPECT_EQ(function->memid, entry.id);
    EXPECT_EQ(function->invkind, entry.kind);
    EXPECT_EQ(function->funckind, FUNC_PUREVIRTUAL);
    EXPECT_EQ(function->callconv, CC_STDCALL);
    EXPECT_EQ(function->oVft, entry.slot * static_cast<int>(sizeof(void*)));
    EXPECT_EQ(function->elemdescFunc.tdesc.vt, VT_HRESULT);
    EXPECT_EQ(function->cParamsOpt, 0);
    ASSERT_EQ(function->cParams, static_cast<SHORT>(entry.parameters.size()));
    const std::vector<std::string> names = function.names();
    ASSERT_FALSE(names.empty());
    EXPECT_EQ(names[0], entry.name);
    // Names are asked by number, and a put has the number of its get.
    const bool named = entry.kind != INVOKE_PROPERTYPUT;
    if (named) {
      ASSERT_EQ(names.size(), entry.parameters.size() + 1);
    }
    for (std::size_t i = 0; i < entry.parameters.size(); ++i) {
      const InterfaceParameter& parameter = entry.parameters[i];
      SCOPED_TRACE(parameter.name);
      const ELEMDESC& description = function->lprgelemdescParam[i];
      EXPECT_EQ(description.paramdesc.wParamFlags, flagsOf(parameter.direction));
      EXPECT_EQ(typeOf(description.tdesc), std::pair(parameter.type, parameter.isOutput()));
      // A type library keeps one spelling of names that differ only in case.
      if (named) {
        EXPECT_TRUE(sameName(names[i + 1], parameter.name)) << names[i + 1];
      }
    }
  }
}

TEST_F(TypeLibrary, HasTheSameMembersForLateBoundClients) {
  ASSERT_TRUE(dispatchView);
  std::set<std::pair<DISPID, int>> expected, found;
  for (const InterfaceEntry& entry : interfaceEntries()) {
    expected.emplace(entry.id, entry.kind);
    std::wstring name = wide(entry.name);
    wchar_t* text = name.data();
    MEMBERID id = MEMBERID_NIL;
    EXPECT_EQ(dispatchView->GetIDsOfNames(&text, 1, &id), S_OK) << entry.name;
    EXPECT_EQ(id, entry.id) << entry.name;
  }
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(dispatchView->GetTypeAttr(&attributes), S_OK);
  const UINT count = attributes->cFuncs;
  dispatchView->ReleaseTypeAttr(attributes);
  ASSERT_EQ(count, 225U);  // with those of IDispatch
  for (UINT i = 7; i < count; ++i) {
    const Function function(*dispatchView, i);
    found.emplace(function->memid, function->invkind);
    EXPECT_EQ(function->funckind, FUNC_DISPATCH);
  }
  EXPECT_EQ(found, expected);
}

TEST_F(TypeLibrary, LeavesReservedNumbersFree) {
  ASSERT_TRUE(binaryView);
  std::set<MEMBERID> numbers;
  for (UINT i = 0; i < 218; ++i) numbers.insert(Function(*binaryView, i)->memid);
  EXPECT_EQ(numbers.size(), 205U);
  for (const MEMBERID id : {0x14, 0xba, 0xbb, 0xc0, 0xc1, 0xc2, 0xc3}) {
    EXPECT_EQ(numbers.count(id), 0U) << id;
  }
}

// Registered from the module itself.
TEST_F(TypeLibrary, IsFoundByItsIdentity) {
  ASSERT_TRUE(library);
  TLIBATTR* attributes = nullptr;
  ASSERT_EQ(library->GetLibAttr(&attributes), S_OK);
  Ref<ITypeLib> registered;
  EXPECT_EQ(LoadRegTypeLib(attributes->guid, 3, 0, LOCALE_NEUTRAL, registered.put()), S_OK);
  library->ReleaseTLibAttr(attributes);
  ASSERT_TRUE(registered);
  EXPECT_EQ(registered->GetTypeInfoCount(), library->GetTypeInfoCount());
}

}  // namespace
}  // namespace calvex::test
