/// \file
/// What clients of the automation server are made of: an apartment, references to objects,
/// automation's types, calls through IDispatch. Written against the platform and the interface
/// definition alone.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "server/windows/automation.h"
// After the platform's declarations.
#include <calvex_interface.h>

namespace calvex::test {

inline constexpr const wchar_t* programId = L"Calvex32.ZvCalvex.3";

/// The object model, as long as it lives.
class Apartment {
 public:
  explicit Apartment(DWORD model = COINIT_APARTMENTTHREADED) {
    EXPECT_GE(CoInitializeEx(nullptr, model), 0);
  }
  ~Apartment() { CoUninitialize(); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
};

/// A counted reference.
template <class T>
class Ref {
 public:
  Ref() = default;
  explicit Ref(T* object) : object_(object) {}  ///< takes the reference over
  Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  Ref& operator=(Ref&& other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~Ref() { reset(); }

  void reset() {
    if (T* object = std::exchange(object_, nullptr)) object->Release();
  }
  [[nodiscard]] T* get() const { return object_; }
  [[nodiscard]] T** put() {
    reset();
    return &object_;
  }
  [[nodiscard]] void** putVoid() { return reinterpret_cast<void**>(put()); }
  T* operator->() const { return object_; }
  T& operator*() const { return *object_; }
  explicit operator bool() const { return object_ != nullptr; }

  /// Another interface of the object; none where it has none.
  template <class Other>
  [[nodiscard]] Ref<Other> as() const {
    Ref<Other> other;
    object_->QueryInterface(__uuidof(Other), other.putVoid());
    return other;
  }

 private:
  T* object_ = nullptr;
};

/// ASCII to UTF-16 and back.
inline std::wstring wide(const std::string& text) { return {text.begin(), text.end()}; }
inline std::string narrow(const wchar_t* text) {
  std::string result;
  for (; text != nullptr && *text != L'\0'; ++text) {
    result += *text < 0x80 ? static_cast<char>(*text) : '?';
  }
  return result;
}

/// A BSTR.
class Text {
 public:
  Text() = default;
  explicit Text(const std::wstring& text)
      : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {}
  ~Text() { SysFreeString(text_); }
  Text(const Text&) = delete;
  Text& operator=(const Text&) = delete;

  [[nodiscard]] BSTR get() const { return text_; }
  [[nodiscard]] BSTR* place() { return &text_; }  ///< for calls that replace it
  [[nodiscard]] std::wstring wideText() const { return {text_, text_ + SysStringLen(text_)}; }
  [[nodiscard]] std::string ascii() const { return narrow(text_); }

 private:
  BSTR text_ = nullptr;
};

/// A VARIANT.
class Variant : public VARIANT {
 public:
  Variant() { VariantInit(this); }
  Variant(double value) : Variant() {  // NOLINT: arguments of calls are written as values
    vt = VT_R8;
    dblVal = value;
  }
  Variant(int value) : Variant() {  // NOLINT
    vt = VT_I4;
    lVal = value;
  }
  Variant(short value) : Variant() {  // NOLINT
    vt = VT_I2;
    iVal = value;
  }
  Variant(const wchar_t* text) : Variant() {  // NOLINT
    vt = VT_BSTR;
    bstrVal = SysAllocString(text);
  }
  Variant(IDispatch* object) : Variant() {  // NOLINT
    vt = VT_DISPATCH;
    pdispVal = object;
    if (object != nullptr) object->AddRef();
  }
  // References to variables of the caller, by which results return.
  Variant(double* place) : Variant() {  // NOLINT
    vt = VT_BYREF | VT_R8;
    pdblVal = place;
  }
  Variant(short* place) : Variant() {  // NOLINT
    vt = VT_BYREF | VT_I2;
    piVal = place;
  }
  Variant(LONG* place) : Variant() {  // NOLINT
    vt = VT_BYREF | VT_I4;
    plVal = place;
  }
  Variant(BSTR* place) : Variant() {  // NOLINT
    vt = VT_BYREF | VT_BSTR;
    pbstrVal = place;
  }
  Variant(VARIANT* place) : Variant() {  // NOLINT
    vt = VT_BYREF | VT_VARIANT;
    pvarVal = place;
  }
  Variant(const Variant& other) : Variant() { VariantCopy(this, const_cast<Variant*>(&other)); }
  Variant& operator=(const Variant& other) {
    VariantCopy(this, const_cast<Variant*>(&other));
    return *this;
  }
  ~Variant() { VariantClear(this); }

  /// An argument that was left out.
  static Variant omitted() {
    Variant argument;
    argument.vt = VT_ERROR;
    argument.scode = DISP_E_PARAMNOTFOUND;
    return argument;
  }
};

/// What IDispatch::Invoke answered.
struct LateCall {
  HRESULT result = E_UNEXPECTED;
  Variant value;
  UINT wrongArgument = 999;
};

inline DISPID idOf(IDispatch& object, const std::wstring& name) {
  DISPID id = DISPID_UNKNOWN;
  auto* text = const_cast<wchar_t*>(name.c_str());
  object.GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id);
  return id;
}

/// Calls with arguments in call order; those behind `names` in front, given by number. `locale`
/// 0x409: English, so that texts have decimal points.
inline LateCall invoke(IDispatch& object, DISPID id, WORD flags, std::vector<Variant> arguments,
                       std::vector<DISPID> names = {}) {
  LateCall call;
  std::vector<VARIANT> backwards(arguments.rbegin(), arguments.rend());
  DISPPARAMS parameters{backwards.data(), names.data(), static_cast<UINT>(backwards.size()),
                        static_cast<UINT>(names.size())};
  call.result = object.Invoke(id, IID_NULL, 0x409, flags, &parameters, &call.value, nullptr,
                              &call.wrongArgument);
  return call;
}
inline LateCall callMethod(IDispatch& object, const std::wstring& name,
                           std::vector<Variant> arguments = {}) {
  return invoke(object, idOf(object, name), DISPATCH_METHOD, std::move(arguments));
}
inline LateCall getProperty(IDispatch& object, const std::wstring& name) {
  return invoke(object, idOf(object, name), DISPATCH_PROPERTYGET, {});
}
inline LateCall putProperty(IDispatch& object, const std::wstring& name, Variant value) {
  return invoke(object, idOf(object, name), DISPATCH_PROPERTYPUT, {std::move(value)},
                {DISPID_PROPERTYPUT});
}

/// An object of the client's that the server calls by number: its members have no names. It lives
/// as long as its scope; the count tells whether the server gave back what it took.
class ClientObject : public IDispatch {
 public:
  int references = 1;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override {
    const bool known = id == IID_IUnknown || id == IID_IDispatch;
    *out = known ? this : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++references); }
  ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--references); }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    ADD_FAILURE() << "its members have no names";
    return DISP_E_UNKNOWNNAME;
  }
};

inline CLSID classOf(const wchar_t* program) {
  CLSID id{};
  EXPECT_EQ(CLSIDFromProgID(program, &id), S_OK);
  return id;
}

/// A new object of the registered server.
inline Ref<IZvCalvex> makeObject() {
  Ref<IZvCalvex> object;
  EXPECT_EQ(CoCreateInstance(classOf(programId), nullptr, CLSCTX_INPROC_SERVER, __uuidof(IZvCalvex),
                             object.putVoid()),
            S_OK);
  return object;
}

inline std::string lastError(IZvCalvex& object) {
  Text text;
  EXPECT_EQ(object.get_LastError(text.place()), S_OK);
  return text.ascii();
}

/// A test with an object of its own; the last released resets the engine.
class Client : public testing::Test {
 protected:
  Apartment apartment;
  Ref<IZvCalvex> steam = makeObject();
};

}  // namespace calvex::test
