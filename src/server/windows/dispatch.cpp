#include "server/windows/dispatch.h"

#include <array>
#include <string>

#include "server/windows/variants.h"

namespace calvex::com {

namespace {

/// Names of members and parameters are ASCII; a longer or other name is none of them.
std::string nameOf(const wchar_t* wide) {
  std::string name;
  for (; *wide != L'\0'; ++wide) name += *wide < 0x80 ? static_cast<char>(*wide) : '?';
  return name;
}

bool sameName(std::string_view a, std::string_view b) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [&](char x, char y) { return lower(x) == lower(y); });
}

DISPID parameterId(const Member& member, std::string_view name) {
  const auto parameters = member.parameters();
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    if (sameName(parameters[i].name, name)) return static_cast<DISPID>(i);
  }
  return DISPID_UNKNOWN;
}

/// The client's arguments in call order. Clients list them backwards, those given by name first.
class Arguments {
 public:
  Arguments(const DISPPARAMS& given, UINT* wrong) : given_(given), wrong_(wrong) {}

  HRESULT arrange(std::size_t count) {
    if (given_.cArgs != count || given_.cNamedArgs > given_.cArgs) return DISP_E_BADPARAMCOUNT;
    places_.fill(none);
    for (UINT i = 0; i < given_.cArgs; ++i) {
      const bool named = i < given_.cNamedArgs;
      const DISPID place =
          named ? given_.rgdispidNamedArgs[i] : static_cast<DISPID>(given_.cArgs - 1 - i);
      if (place < 0 || place >= static_cast<DISPID>(count) ||
          places_[static_cast<std::size_t>(place)] != none) {
        return blame(i, DISP_E_PARAMNOTFOUND);
      }
      places_[static_cast<std::size_t>(place)] = i;
    }
    return S_OK;
  }
  const VARIANT& operator[](std::size_t parameter) const {
    return given_.rgvarg[places_[parameter]];
  }
  /// Tells the client which of its arguments a failure is about.
  HRESULT blameFor(std::size_t parameter, HRESULT failure) {
    return blame(places_[parameter], failure);
  }

 private:
  HRESULT blame(UINT argument, HRESULT failure) {
    if (wrong_ != nullptr) *wrong_ = argument;
    return failure;
  }

  static constexpr UINT none = ~0U;
  const DISPPARAMS& given_;
  UINT* wrong_;
  std::array<UINT, maxParameters> places_{};
};

HRESULT callMethod(ZvCalvex& object, const Member& member, const DISPPARAMS& given, VARIANT* result,
                   UINT* wrongArgument) {
  const std::span<const Parameter> parameters = member.parameters();
  Arguments arguments(given, wrongArgument);
  if (const HRESULT arranged = arguments.arrange(parameters.size()); FAILED(arranged)) {
    return arranged;
  }
  std::array<Value, maxParameters> values;
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    const HRESULT ready = parameters[i].isOutput()
                              ? checkOutput(arguments[i], parameters[i].type)
                              : read(arguments[i], parameters[i].type, values[i]);
    if (FAILED(ready)) return arguments.blameFor(i, ready);
  }
  const ZvCalvex::Result called = object.invoke(member, {values.data(), parameters.size()});
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    if (!parameters[i].isOutput() || std::holds_alternative<std::monostate>(values[i])) continue;
    if (const HRESULT taken = give(arguments[i], values[i]); FAILED(taken)) {
      return arguments.blameFor(i, taken);
    }
  }
  if (result != nullptr && member.style == ReturnStyle::success) {
    result->vt = VT_I4;
    result->lVal = called.success;
  }
  return static_cast<HRESULT>(called.hresult);
}

HRESULT getValue(ZvCalvex& object, const Member& member, const DISPPARAMS& given, VARIANT* result) {
  if (given.cArgs != 0) return DISP_E_BADPARAMCOUNT;
  Value value;
  const ZvCalvex::Result got = object.invoke(member, {&value, 1});
  if (result != nullptr) replace(*result, value);
  return static_cast<HRESULT>(got.hresult);
}

HRESULT putSetting(ZvCalvex& object, const Member& member, const DISPPARAMS& given,
                   UINT* wrongArgument) {
  if (member.put == nullptr) return DISP_E_MEMBERNOTFOUND;
  if (given.cArgs != 1) return DISP_E_BADPARAMCOUNT;
  Value value;
  const HRESULT ready = read(given.rgvarg[0], member.parameters()[0].type, value);
  if (FAILED(ready)) {
    if (wrongArgument != nullptr) *wrongArgument = 0;
    return ready;
  }
  return static_cast<HRESULT>(object.put(member, {&value, 1}).hresult);
}

}  // namespace

HRESULT idsOfNames(LPOLESTR* names, UINT count, DISPID* ids) {
  const Member* member = findMember(nameOf(names[0]));
  ids[0] = member != nullptr ? member->dispatchId : DISPID_UNKNOWN;
  bool allKnown = member != nullptr;
  for (UINT i = 1; i < count; ++i) {
    ids[i] = member != nullptr ? parameterId(*member, nameOf(names[i])) : DISPID_UNKNOWN;
    allKnown = allKnown && ids[i] != DISPID_UNKNOWN;
  }
  return allKnown ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT invoke(ZvCalvex& object, DISPID id, WORD flags, const DISPPARAMS& given, VARIANT* result,
               UINT* wrongArgument) {
  if (result != nullptr) VariantInit(result);
  const Member* member = findMember(id);
  if (member == nullptr) return DISP_E_MEMBERNOTFOUND;
  if (member->isProperty) {
    if ((flags & DISPATCH_PROPERTYGET) != 0) return getValue(object, *member, given, result);
    if ((flags & DISPATCH_PROPERTYPUT) != 0) {
      return putSetting(object, *member, given, wrongArgument);
    }
    return DISP_E_MEMBERNOTFOUND;
  }
  if ((flags & DISPATCH_METHOD) == 0) return DISP_E_MEMBERNOTFOUND;
  if (member->style == ReturnStyle::value) return getValue(object, *member, given, result);
  return callMethod(object, *member, given, result, wrongArgument);
}

}  // namespace calvex::com
