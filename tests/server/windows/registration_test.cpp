// What registration writes, and that nothing of it stays: the classes of the registry before and
// after.
#include <algorithm>
#include <map>

#include "client.h"

namespace calvex::test {
namespace {

/// Values by "hklm\\key|name", in small letters: the registry does not tell cases apart.
using Registry = std::map<std::wstring, std::wstring>;

std::wstring small(std::wstring text) {
  for (wchar_t& c : text) c = static_cast<wchar_t>(std::towlower(c));
  return text;
}

/// The server's own keys, which are read with all that is below them.
bool isOurs(const std::wstring& path) {
  for (const wchar_t* name :
       {L"calvex", L"{4a623f37-f2b3-4a12-9359-f66186ebf6c4}",
        L"{b39088b6-20b8-4bbf-a809-aaee4f8e0e84}", L"{f068e7f0-5511-41b5-b323-6ad406805778}"}) {
    if (path.find(name) != std::wstring::npos) return true;
  }
  return false;
}

/// The keys that hold one key for each class, interface or type library.
bool isList(const std::wstring& path) {
  const std::wstring name = path.substr(path.find_last_of(L'\\') + 1);
  return name == L"clsid" || name == L"interface" || name == L"typelib" || name == L"wow6432node" ||
         name == L"hklm" || name == L"hkcu";
}

void readKey(HKEY root, const std::wstring& name, const std::wstring& path, Registry& all) {
  all[path + L"|"] = L"";
  if (!isOurs(path) && !isList(path)) return;  // reading everything takes seconds
  HKEY key = nullptr;
  if (RegOpenKeyExW(root, name.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return;
  std::vector<wchar_t> item(16384), data(65536);
  for (DWORD i = 0;; ++i) {
    DWORD length = 16384, type = 0, size = 65536 * sizeof(wchar_t);
    if (RegEnumValueW(key, i, item.data(), &length, nullptr, &type,
                      reinterpret_cast<BYTE*>(data.data()), &size) != ERROR_SUCCESS) {
      break;
    }
    std::wstring value = type == REG_SZ ? std::wstring(data.data(), size / sizeof(wchar_t))
                                        : L"type " + std::to_wstring(type);
    while (!value.empty() && value.back() == L'\0') value.pop_back();
    all[path + L"|" + small(std::wstring(item.data(), length))] = value;
  }
  for (DWORD i = 0;; ++i) {
    DWORD length = 16384;
    if (RegEnumKeyExW(key, i, item.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
        ERROR_SUCCESS) {
      break;
    }
    const std::wstring child(item.data(), length);
    readKey(key, child, path + L"\\" + small(child), all);
  }
  RegCloseKey(key);
}

/// The classes of the machine and of the user.
Registry readRegistry() {
  Registry all;
  readKey(HKEY_LOCAL_MACHINE, L"Software\\Classes", L"hklm", all);
  readKey(HKEY_CURRENT_USER, L"Software\\Classes", L"hkcu", all);
  EXPECT_GT(all.size(), 1000U);
  return all;
}

/// The values of `now` that `before` does not have.
Registry added(const Registry& before, const Registry& now) {
  Registry result;
  std::set_difference(now.begin(), now.end(), before.begin(), before.end(),
                      std::inserter(result, result.end()));
  return result;
}

std::string text(const Registry& registry) {
  std::string lines;
  for (const auto& [key, value] : registry) lines += narrow((key + L" = " + value + L"\n").c_str());
  return lines;
}

class Registration : public testing::Test {
 protected:
  using Register = HRESULT(STDAPICALLTYPE*)();
  using Install = HRESULT(STDAPICALLTYPE*)(BOOL, const wchar_t*);

  Registration() {
    EXPECT_NE(module, nullptr);
    wchar_t name[32768];
    GetModuleFileNameW(module, name, 32768);
    path = name;
    EXPECT_EQ(unregisterServer(), S_OK);
    // What holds the classes is nobody's to remove.
    HKEY key = nullptr;
    EXPECT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, L"Software\\Classes\\CLSID", 0, nullptr, 0,
                              KEY_WRITE, nullptr, &key, nullptr),
              ERROR_SUCCESS);
    RegCloseKey(key);
    before = readRegistry();
  }
  ~Registration() override {
    EXPECT_EQ(unregisterServer(), S_OK);
    expectNothing();
    EXPECT_EQ(registerServer(), S_OK);  // as the other clients found it
    FreeLibrary(module);
  }

  template <class Function>
  [[nodiscard]] Function entry(const char* name) const {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
  }

  /// The class must be registered below that root and nowhere else; answers what there is besides,
  /// all of it of the type library.
  Registry expectClass(const std::wstring& root) const {
    Registry classEntries, library;
    for (const auto& entry : added(before, readRegistry())) {
      (isOfTheLibrary(entry.first) ? library : classEntries).insert(entry);
    }
    EXPECT_EQ(text(classEntries), text(expectedClass(root)));
    return library;
  }
  /// As well as the type library, whose place is the system's choice.
  void expectRegistered(const std::wstring& root) const {
    const Registry library = expectClass(root);
    const std::wstring any = L"hklm";  // here even the user's
    const auto valueOf = [&](const std::wstring& key) {
      for (const std::wstring& hive : {root, any}) {
        if (const auto found = library.find(hive + key); found != library.end()) {
          return narrow(found->second.c_str());
        }
      }
      return std::string("nothing");
    };
    EXPECT_EQ(valueOf(L"\\" + libraryKey + L"\\3.0|"), "Calvex 4 Type Library");
    EXPECT_EQ(valueOf(L"\\" + libraryKey + L"\\3.0\\0\\" + platform + L"|"), narrow(path.c_str()));
    EXPECT_EQ(valueOf(L"\\" + interfaceKey + L"|"), "IZvCalvex");
    EXPECT_EQ(valueOf(L"\\" + interfaceKey + L"\\proxystubclsid32|"),
              "{00020424-0000-0000-C000-000000000046}");
    EXPECT_EQ(valueOf(L"\\" + interfaceKey + L"\\typelib|"),
              "{F068E7F0-5511-41B5-B323-6AD406805778}");
    EXPECT_EQ(valueOf(L"\\" + interfaceKey + L"\\typelib|version"), "3.0");
  }
  void expectNothing() const {
    const Registry now = readRegistry();
    EXPECT_EQ(text(added(before, now)), "");
    EXPECT_EQ(text(added(now, before)), "");
  }

  static bool isOfTheLibrary(const std::wstring& key) {
    return key.find(L"\\" + libraryKey) != std::wstring::npos ||
           key.find(L"\\" + interfaceKey) != std::wstring::npos;
  }
  [[nodiscard]] Registry expectedClass(const std::wstring& root) const {
    const std::wstring id = L"{4A623F37-F2B3-4A12-9359-F66186EBF6C4}";
    const std::wstring key = root + L"\\clsid\\" + small(id);
    return {
        {root + L"\\calvex32.zvcalvex.3|", L"ZvCalvex Class"},
        {root + L"\\calvex32.zvcalvex.3\\clsid|", id},
        {root + L"\\calvex32.zvcalvex|", L"ZvCalvex Class"},
        {root + L"\\calvex32.zvcalvex\\clsid|", id},
        {root + L"\\calvex32.zvcalvex\\curver|", L"Calvex32.ZvCalvex.3"},
        {key + L"|", L"ZvCalvex Class"},
        {key + L"\\progid|", L"Calvex32.ZvCalvex.3"},
        {key + L"\\versionindependentprogid|", L"Calvex32.ZvCalvex"},
        {key + L"\\programmable|", L""},
        {key + L"\\inprocserver32|", path},
        {key + L"\\inprocserver32|threadingmodel", L"Apartment"},
    };
  }

  inline static const std::wstring libraryKey = L"typelib\\{f068e7f0-5511-41b5-b323-6ad406805778}";
  inline static const std::wstring interfaceKey =
      L"interface\\{b39088b6-20b8-4bbf-a809-aaee4f8e0e84}";
  inline static const std::wstring platform = sizeof(void*) == 8 ? L"win64" : L"win32";

  Apartment apartment;
  HMODULE module = LoadLibraryW(wide(CALVEX_SERVER).c_str());
  Register registerServer = entry<Register>("DllRegisterServer");
  Register unregisterServer = entry<Register>("DllUnregisterServer");
  Install install = entry<Install>("DllInstall");
  std::wstring path;
  Registry before;
};

TEST_F(Registration, WritesExactlyItsEntries) {
  ASSERT_EQ(registerServer(), S_OK);
  expectRegistered(L"hklm");
  EXPECT_TRUE(makeObject());
}

TEST_F(Registration, MayBeDoneAndUndoneTwice) {
  EXPECT_EQ(registerServer(), S_OK);
  EXPECT_EQ(registerServer(), S_OK);
  expectRegistered(L"hklm");
  EXPECT_EQ(unregisterServer(), S_OK);
  expectNothing();
  EXPECT_EQ(unregisterServer(), S_OK);
  CLSID id{};
  EXPECT_FALSE(SUCCEEDED(CLSIDFromProgID(programId, &id)));
}

TEST_F(Registration, ForTheUserAloneWritesTheSameForTheUser) {
  EXPECT_EQ(install(TRUE, L"user"), S_OK);
  expectRegistered(L"hkcu");
  EXPECT_EQ(install(FALSE, L"User"), S_OK);
  expectNothing();
}

// The system merges the user's classes and the machine's into HKEY_CLASSES_ROOT, the user's on top
// (Windows SDK, "HKEY_CLASSES_ROOT Key"). Wine 8 does not: here the user's keys are put where they
// appear in that view, and nothing else is there.
TEST_F(Registration, ForTheUserAloneIsAllThatAnObjectNeeds) {
  ASSERT_EQ(install(TRUE, L"user"), S_OK);
  const std::wstring classes = L"Software\\Classes\\";
  for (const std::wstring key : {L"Calvex32.ZvCalvex.3", L"Calvex32.ZvCalvex",
                                 L"CLSID\\{4A623F37-F2B3-4A12-9359-F66186EBF6C4}"}) {
    HKEY merged = nullptr;
    ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, (classes + key).c_str(), 0, nullptr, 0, KEY_WRITE,
                              nullptr, &merged, nullptr),
              ERROR_SUCCESS);
    EXPECT_EQ(RegCopyTreeW(HKEY_CURRENT_USER, (classes + key).c_str(), merged), ERROR_SUCCESS);
    RegCloseKey(merged);
    EXPECT_EQ(RegDeleteTreeW(HKEY_CURRENT_USER, (classes + key).c_str()), ERROR_SUCCESS);
  }
  expectClass(L"hklm");
  for (const wchar_t* const program : {programId, L"Calvex32.ZvCalvex"}) {
    Ref<IZvCalvex> object;
    ASSERT_EQ(CoCreateInstance(classOf(program), nullptr, CLSCTX_INPROC_SERVER, __uuidof(IZvCalvex),
                               object.putVoid()),
              S_OK)
        << narrow(program);
    double t = 0.0;
    EXPECT_EQ(object->CritT(&t), S_OK);
    EXPECT_EQ(t, 647.126);
  }
}

TEST_F(Registration, OfTheUserGoesToo) {
  EXPECT_EQ(install(TRUE, L"user"), S_OK);
  EXPECT_EQ(registerServer(), S_OK);
  EXPECT_EQ(install(FALSE, L"user"), S_OK);
  expectClass(L"hklm");  // some systems have one type library for all users
  EXPECT_EQ(install(TRUE, L"user"), S_OK);
  EXPECT_EQ(unregisterServer(), S_OK);
  expectNothing();
}

TEST_F(Registration, WithoutAWordIsForAllUsersAndAnotherWordIsRefused) {
  EXPECT_EQ(install(TRUE, L"everybody"), E_INVALIDARG);
  EXPECT_EQ(install(FALSE, L"everybody"), E_INVALIDARG);
  expectNothing();
  EXPECT_EQ(install(TRUE, nullptr), S_OK);
  expectRegistered(L"hklm");
  EXPECT_EQ(install(FALSE, L""), S_OK);
  expectNothing();
}

TEST_F(Registration, LeavesTheEntriesOfOthersAlone) {
  HKEY key = nullptr;
  ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, L"Software\\Classes\\Calvex32.ZvCalvex.2", 0,
                            nullptr, 0, KEY_WRITE, nullptr, &key, nullptr),
            ERROR_SUCCESS);
  RegCloseKey(key);
  const Registry withOther = readRegistry();
  EXPECT_EQ(registerServer(), S_OK);
  EXPECT_EQ(unregisterServer(), S_OK);
  EXPECT_EQ(readRegistry(), withOther);
  EXPECT_EQ(RegDeleteKeyW(HKEY_LOCAL_MACHINE, L"Software\\Classes\\Calvex32.ZvCalvex.2"),
            ERROR_SUCCESS);
}

}  // namespace
}  // namespace calvex::test
