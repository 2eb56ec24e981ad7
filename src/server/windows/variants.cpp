#include "server/windows/variants.h"

#include <dispex.h>

#include <array>
#include <memory>
#include <new>

#include "server/windows/boundary.h"
#include "units/number.h"
#include "units/utf16.h"

namespace calvex::com {

namespace {

/// Answers what `use` makes of the text in UTF-16. Short ones, nearly all, need no memory for it.
template <class Use>
auto withUtf16(std::string_view text, Use&& use) {
  std::array<wchar_t, 64> units;
  bool ascii = text.size() <= units.size();
  for (std::size_t i = 0; ascii && i < text.size(); ++i) {
    units[i] = static_cast<unsigned char>(text[i]);
    ascii = units[i] < 0x80;
  }
  if (ascii) return use(units.data(), static_cast<UINT>(text.size()));
  const std::wstring wide = utf16Of<wchar_t>(text);
  return use(wide.data(), static_cast<UINT>(wide.size()));
}

/// A variant that frees what it holds.
struct Variant : VARIANT {
  Variant() { VariantInit(this); }
  ~Variant() { VariantClear(this); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;

  void setText(std::string_view text) {
    bstrVal = toBstr(text);
    vt = VT_BSTR;
  }
  void setRows(const ResultArray& rows);
  void set(const Value& value);
  /// Hands the content over.
  VARIANT release() {
    const VARIANT content = *this;
    vt = VT_EMPTY;
    return content;
  }
};

// Elements lie with the row running fastest.
void Variant::setRows(const ResultArray& rows) {
  const ULONG columns = rows.empty() ? 0 : static_cast<ULONG>(rows[0].size());
  SAFEARRAYBOUND bounds[] = {{static_cast<ULONG>(rows.size()), 0}, {columns, 0}};
  parray = SafeArrayCreate(VT_VARIANT, 2, bounds);
  if (parray == nullptr) throw std::bad_alloc();
  vt = VT_ARRAY | VT_VARIANT;  // from here on destroyed with the elements that it has
  void* data = nullptr;
  if (FAILED(SafeArrayAccessData(parray, &data))) throw std::bad_alloc();
  const auto unlock = [](SAFEARRAY* array) { SafeArrayUnaccessData(array); };
  const std::unique_ptr<SAFEARRAY, decltype(unlock)> access(parray, unlock);
  auto* elements = static_cast<VARIANT*>(data);
  for (std::size_t column = 0; column < columns; ++column) {
    for (const auto& row : rows) {
      const Cell& cell = row[column];
      if (const auto* text = std::get_if<std::string>(&cell)) {
        elements->bstrVal = toBstr(*text);
        elements->vt = VT_BSTR;
      } else {
        elements->dblVal = std::get<double>(cell);
        elements->vt = VT_R8;
      }
      ++elements;
    }
  }
}

void Variant::set(const Value& value) {
  if (const auto* real = std::get_if<double>(&value)) {
    dblVal = *real;
    vt = VT_R8;
  } else if (const auto* small = std::get_if<short>(&value)) {
    iVal = *small;
    vt = VT_I2;
  } else if (const auto* large = std::get_if<int>(&value)) {
    lVal = *large;
    vt = VT_I4;
  } else if (const auto* text = std::get_if<std::string>(&value)) {
    setText(*text);
  } else if (const auto* rows = std::get_if<ResultArray>(&value)) {
    setRows(*rows);
  }
}

void assign(VARIANT& target, Variant& content) {
  VariantClear(&target);
  target = content.release();
}

constexpr VARTYPE variantType(ValueType type) {
  switch (type) {
    case ValueType::real:
      return VT_R8;
    case ValueType::shortInteger:
      return VT_I2;
    case ValueType::longInteger:
      return VT_I4;
    case ValueType::text:
      return VT_BSTR;
    case ValueType::array:
      return VT_ARRAY | VT_VARIANT;
  }
  return VT_EMPTY;
}

/// A variable of a script arrives as a reference to a variant, through procedures to another one.
/// Null where a reference leads nowhere, or in a circle.
const VARIANT* follow(const VARIANT& argument) {
  constexpr int mostProcedures = 1000;
  const VARIANT* variable = &argument;
  for (int i = 0; i < mostProcedures; ++i) {
    const bool isNowhere = (variable->vt & VT_BYREF) != 0 && variable->byref == nullptr;
    if (isNowhere) return nullptr;
    if (variable->vt != (VT_BYREF | VT_VARIANT)) return variable;
    variable = variable->pvarVal;
  }
  return nullptr;
}

/// What is there by value or by reference; null where there is something else or nothing.
BSTR textIn(const VARIANT& given) {
  if (given.vt == VT_BSTR) return given.bstrVal;
  return given.vt == (VT_BYREF | VT_BSTR) ? *given.pbstrVal : nullptr;
}
IDispatch* objectIn(const VARIANT& given) {
  if (given.vt == VT_DISPATCH) return given.pdispVal;
  return given.vt == (VT_BYREF | VT_DISPATCH) ? *given.ppdispVal : nullptr;
}

HRESULT giveTyped(const VARIANT& reference, const Variant& content) {
  switch (content.vt) {
    case VT_R8:
      *reference.pdblVal = content.dblVal;
      break;
    case VT_I2:
      *reference.piVal = content.iVal;
      break;
    case VT_I4:
      *reference.plVal = content.lVal;
      break;
    default:
      return DISP_E_TYPEMISMATCH;
  }
  return S_OK;
}

HRESULT putProperty(IDispatch& object, DISPID id, Variant& content) {
  DISPID put = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{&content, &put, 1, 1};
  return object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &parameters,
                       nullptr, nullptr, nullptr);
}

HRESULT giveObject(IDispatch& object, Variant& content) {
  IDispatchEx* script = nullptr;
  if (SUCCEEDED(object.QueryInterface(__uuidof(IDispatchEx), reinterpret_cast<void**>(&script)))) {
    DISPID id = DISPID_UNKNOWN;
    const BSTR name = SysAllocString(L"value");
    HRESULT result = script->GetDispID(name, fdexNameEnsure | fdexNameCaseSensitive, &id);
    SysFreeString(name);
    if (SUCCEEDED(result)) result = putProperty(*script, id, content);
    script->Release();
    if (SUCCEEDED(result)) return result;
  }
  return putProperty(object, DISPID_VALUE, content);
}

}  // namespace

// Nearly all texts are ASCII, and these two lie in the path of every call that has one.
std::string toText(BSTR text) {
  const std::wstring_view wide(text, SysStringLen(text));
  std::string bytes(wide.size(), '\0');
  unsigned bits = 0;
  for (std::size_t i = 0; i < wide.size(); ++i) {
    bits |= wide[i];
    bytes[i] = static_cast<char>(wide[i]);
  }
  if (bits < 0x80) return bytes;
  return utf8Of(wide);
}

BSTR toBstr(std::string_view text) {
  return withUtf16(text, [](const wchar_t* wide, UINT size) {
    const BSTR made = SysAllocStringLen(wide, size);
    if (made == nullptr) throw std::bad_alloc();
    return made;
  });
}

// In place where it fits, which costs half of a new one.
void replace(BSTR& target, std::string_view text) {
  withUtf16(text, [&](const wchar_t* wide, UINT size) {
    if (SysReAllocStringLen(&target, wide, size) == FALSE) throw std::bad_alloc();
  });
}

void replace(VARIANT& target, const ResultArray& rows) {
  if ((target.vt & VT_BYREF) != 0) {  // the variable is elsewhere
    HRESULT taken = checkOutput(target, ValueType::array);
    if (SUCCEEDED(taken)) taken = give(target, Value(rows));
    if (FAILED(taken)) throw Failure{taken, L"The argument cannot take an array of results."};
    return;
  }
  Variant content;
  content.setRows(rows);
  assign(target, content);
}

void replace(VARIANT& target, const Value& value) {
  Variant content;
  content.set(value);
  assign(target, content);
}

HRESULT read(const VARIANT& argument, ValueType type, Value& value) {
  const VARIANT* content = follow(argument);
  if (content == nullptr) return E_INVALIDARG;
  if (type == ValueType::array) return S_OK;  // what it held is replaced
  if (content->vt == VT_ERROR && content->scode == DISP_E_PARAMNOTFOUND) {
    return DISP_E_PARAMNOTOPTIONAL;
  }
  Variant held, written, coerced;
  if (IDispatch* object = objectIn(*content)) {  // a cell is its value
    DISPPARAMS none{};
    if (FAILED(object->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET,
                              &none, &held, nullptr, nullptr))) {
      return DISP_E_TYPEMISMATCH;
    }
    content = &held;
  }
  if (BSTR text = textIn(*content); text != nullptr && type != ValueType::text) {
    const std::optional<double> number = numberIn(toText(text));
    if (!number) return DISP_E_TYPEMISMATCH;
    written.set(*number);
    content = &written;
  }
  if (const VARTYPE wanted = variantType(type); content->vt != wanted) {
    // The declaration lacks a const.
    auto* source = const_cast<VARIANT*>(content);
    const HRESULT result = VariantChangeTypeEx(&coerced, source, LOCALE_INVARIANT, 0, wanted);
    if (FAILED(result)) return result == DISP_E_OVERFLOW ? result : DISP_E_TYPEMISMATCH;
    content = &coerced;
  }
  switch (type) {
    case ValueType::real:
      value = content->dblVal;
      break;
    case ValueType::shortInteger:
      value = content->iVal;
      break;
    case ValueType::longInteger:
      value = static_cast<int>(content->lVal);
      break;
    default:
      value = toText(content->bstrVal);
  }
  return S_OK;
}

HRESULT checkOutput(const VARIANT& argument, ValueType type) {
  const VARIANT* const followed = follow(argument);
  if (followed == nullptr) return E_INVALIDARG;
  const VARIANT& place = *followed;
  if (place.vt == (VT_BYREF | VT_ARRAY | VT_VARIANT) && *place.pparray != nullptr) {
    // An array of fixed size cannot become one of another.
    constexpr USHORT fixed = FADF_AUTO | FADF_STATIC | FADF_EMBEDDED | FADF_FIXEDSIZE;
    if (((*place.pparray)->fFeatures & fixed) != 0) return DISP_E_TYPEMISMATCH;
    if ((*place.pparray)->cLocks != 0) return DISP_E_ARRAYISLOCKED;
  }
  const bool typed = (place.vt & VT_BYREF) != 0;
  return !typed || place.vt == (VT_BYREF | variantType(type)) ? S_OK : DISP_E_TYPEMISMATCH;
}

HRESULT give(const VARIANT& argument, const Value& value) {
  const VARIANT& place = *follow(argument);
  Variant content;
  content.set(value);
  if (place.vt == (VT_BYREF | VT_BSTR)) {
    SysFreeString(*place.pbstrVal);
    *place.pbstrVal = content.release().bstrVal;
    return S_OK;
  }
  if (place.vt == (VT_BYREF | VT_ARRAY | VT_VARIANT)) {
    if (*place.pparray != nullptr && FAILED(SafeArrayDestroy(*place.pparray))) {
      return DISP_E_ARRAYISLOCKED;
    }
    *place.pparray = content.release().parray;
    return S_OK;
  }
  if ((place.vt & VT_BYREF) != 0) return giveTyped(place, content);
  if (argument.vt == (VT_BYREF | VT_VARIANT)) {
    assign(const_cast<VARIANT&>(place), content);  // the client's variable
    return S_OK;
  }
  if (place.vt == VT_DISPATCH && place.pdispVal != nullptr) {
    return giveObject(*place.pdispVal, content);
  }
  return S_OK;
}

}  // namespace calvex::com
