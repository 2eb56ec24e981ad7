#include "server/windows/registration.h"

#include <initializer_list>
#include <vector>

#include "server/windows/guids.h"

// Windows has them since Vista; the compiler's headers lack them.
extern "C" {
HRESULT WINAPI RegisterTypeLibForUser(ITypeLib* library, OLECHAR* path, OLECHAR* helpFolder);
HRESULT WINAPI UnRegisterTypeLibForUser(REFGUID library, WORD major, WORD minor, LCID locale,
                                        SYSKIND system);
}

namespace calvex::com {

namespace {

const std::wstring classes = L"Software\\Classes\\";

/// One value of one key; the name of a key's default value is empty.
struct Entry {
  std::wstring key;
  std::wstring name;
  std::wstring value;
};

std::vector<Entry> entries(const std::wstring& modulePath) {
  const std::wstring program = wide(identity::programId);
  const std::wstring anyVersion = wide(identity::versionIndependentProgramId);
  const std::wstring description = wide(identity::className);
  const std::wstring clsid = braced(identity::classId);
  const std::wstring key = L"CLSID\\" + clsid;
  return {
      {program, L"", description},
      {program + L"\\CLSID", L"", clsid},
      {anyVersion, L"", description},
      {anyVersion + L"\\CLSID", L"", clsid},
      {anyVersion + L"\\CurVer", L"", program},
      {key, L"", description},
      {key + L"\\ProgID", L"", program},
      {key + L"\\VersionIndependentProgID", L"", anyVersion},
      {key + L"\\Programmable", L"", L""},
      {key + L"\\InprocServer32", L"", modulePath},
      {key + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
  };
}

HRESULT write(HKEY root, const Entry& entry) {
  HKEY key = nullptr;
  LSTATUS status = RegCreateKeyExW(root, (classes + entry.key).c_str(), 0, nullptr, 0, KEY_WRITE,
                                   nullptr, &key, nullptr);
  if (status != ERROR_SUCCESS) return HRESULT_FROM_WIN32(static_cast<DWORD>(status));
  // The key alone says it where there is no value.
  if (!entry.value.empty()) {
    status = RegSetValueExW(key, entry.name.c_str(), 0, REG_SZ,
                            reinterpret_cast<const BYTE*>(entry.value.c_str()),
                            static_cast<DWORD>((entry.value.size() + 1) * sizeof(wchar_t)));
  }
  RegCloseKey(key);
  return HRESULT_FROM_WIN32(static_cast<DWORD>(status));
}

/// The registered server of the other word length shares the program ids with this one.
bool otherWordLengthIsRegistered(HKEY root) {
  constexpr REGSAM otherView = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;
  BOOL narrowOnWide = FALSE;
  if (sizeof(void*) == 4 && !(IsWow64Process(GetCurrentProcess(), &narrowOnWide) && narrowOnWide)) {
    return false;  // there is no other view
  }
  HKEY key = nullptr;
  const std::wstring name = classes + L"CLSID\\" + braced(identity::classId);
  if (RegOpenKeyExW(root, name.c_str(), 0, KEY_READ | otherView, &key) != ERROR_SUCCESS) {
    return false;
  }
  RegCloseKey(key);
  return true;
}

HRESULT removeKey(HKEY root, const std::wstring& key) {
  const LSTATUS status = RegDeleteTreeW(root, (classes + key).c_str());
  return status == ERROR_FILE_NOT_FOUND ? S_OK : HRESULT_FROM_WIN32(static_cast<DWORD>(status));
}

HRESULT removeFrom(HKEY root) {
  HRESULT result = removeKey(root, L"CLSID\\" + braced(identity::classId));
  // Asked when the own key is gone: where the word lengths share their classes it is the same key.
  if (otherWordLengthIsRegistered(root)) return result;
  for (const auto program : {identity::programId, identity::versionIndependentProgramId}) {
    const HRESULT removed = removeKey(root, wide(program));
    if (SUCCEEDED(result)) result = removed;
  }
  return result;
}

constexpr SYSKIND systemKind = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;

HRESULT registerTypeLibrary(const std::wstring& modulePath, bool forUser) {
  ITypeLib* library = nullptr;
  HRESULT result = LoadTypeLibEx(modulePath.c_str(), REGKIND_NONE, &library);
  if (FAILED(result)) return result;
  auto* path = const_cast<wchar_t*>(modulePath.c_str());  // the declaration lacks a const
  result = forUser ? RegisterTypeLibForUser(library, path, nullptr)
                   : RegisterTypeLib(library, path, nullptr);
  library->Release();
  return result;
}

// These answer an error where nothing is registered.
void unregisterTypeLibrary(bool forUser) {
  const auto unregister = forUser ? &UnRegisterTypeLibForUser : &UnRegisterTypeLib;
  unregister(typeLibraryId, identity::typeLibraryVersion, 0, LOCALE_NEUTRAL, systemKind);
}

HRESULT registerIn(HKEY root, const std::wstring& modulePath, bool forUser) {
  for (const Entry& entry : entries(modulePath)) {
    if (const HRESULT result = write(root, entry); FAILED(result)) {
      removeFrom(root);
      return result;
    }
  }
  const HRESULT result = registerTypeLibrary(modulePath, forUser);
  if (FAILED(result)) removeFrom(root);
  return result;
}

bool isRefusal(HRESULT result) {
  return result == E_ACCESSDENIED || result == TYPE_E_REGISTRYACCESS;
}

}  // namespace

HRESULT registerServer(const std::wstring& modulePath, bool forUser) {
  if (!forUser) {
    // Entries of the user's own would hide those for all.
    unregisterTypeLibrary(true);
    const HRESULT result = registerIn(HKEY_LOCAL_MACHINE, modulePath, false);
    if (SUCCEEDED(result)) removeFrom(HKEY_CURRENT_USER);
    if (!isRefusal(result)) return result;
  }
  return registerIn(HKEY_CURRENT_USER, modulePath, true);
}

HRESULT unregisterServer(bool forUser) {
  unregisterTypeLibrary(true);
  const HRESULT ofUser = removeFrom(HKEY_CURRENT_USER);
  if (forUser) return ofUser;
  unregisterTypeLibrary(false);
  const HRESULT ofMachine = removeFrom(HKEY_LOCAL_MACHINE);
  return FAILED(ofMachine) ? ofMachine : ofUser;
}

}  // namespace calvex::com
