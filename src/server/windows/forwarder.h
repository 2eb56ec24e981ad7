/// \file
/// The functions of the dual interface: for each operation of the engine one with the binary
/// signature that clients call early bound. Made from the operation's C++ signature, as the rest of
/// the member table is.
#pragma once

#include <string>
#include <string_view>

#include "server/member_table.h"
#include "server/signature.h"
#include "server/windows/automation.h"
#include "server/windows/boundary.h"
#include "server/windows/variants.h"

namespace calvex::com {

/// How a parameter crosses the interface. Numbers pass as they are.
template <class T>
struct Wire {
  using Type = T;
  explicit Wire(T given) : value(given) {}
  [[nodiscard]] bool isNull() const { return false; }
  T pass() { return value; }
  void giveBack() {}
  T value;
};
template <>
struct Wire<int> : Wire<LONG> {
  using Wire<LONG>::Wire;
};
template <>
struct Wire<double*> {
  using Type = double*;
  explicit Wire(double* given) : value(given) {}
  [[nodiscard]] bool isNull() const { return value == nullptr; }
  double* pass() { return value; }
  void giveBack() {}
  double* value;
};
template <>
struct Wire<std::string_view> {
  using Type = BSTR;
  explicit Wire(BSTR given) : value(toText(given)) {}
  [[nodiscard]] bool isNull() const { return false; }
  std::string_view pass() { return value; }
  void giveBack() {}
  std::string value;
};

/// Texts and arrays replace the client's on success.
template <class T, class ClientType>
struct ObjectWire {
  using Type = ClientType*;
  explicit ObjectWire(ClientType* given) : target(given) {}
  [[nodiscard]] bool isNull() const { return target == nullptr; }
  T* pass() { return &value; }
  void giveBack() { replace(*target, value); }
  ClientType* target;
  T value;
};
template <>
struct Wire<std::string*> : ObjectWire<std::string, BSTR> {
  using ObjectWire::ObjectWire;
};
template <>
struct Wire<ResultArray*> : ObjectWire<ResultArray, VARIANT> {
  using ObjectWire::ObjectWire;
};

/// Runs an operation on what the client handed over.
template <auto Op, class... A>
HRESULT run(int& success, Wire<A>... arguments) {
  if ((arguments.isNull() || ...)) return noPlaceForResult();
  success = detail::apply<Op>(engine(), arguments.pass()...);
  if (success != 0) (arguments.giveBack(), ...);
  return S_OK;
}

template <auto Op, ReturnStyle Style, class Types = typename detail::SignatureOf<Op>::Types>
struct Forwarder;

template <auto Op, class... A>
struct Forwarder<Op, ReturnStyle::success, std::tuple<A...>> {
  static HRESULT STDMETHODCALLTYPE call(void* /*self*/, typename Wire<A>::Type... arguments,
                                        LONG* pSucc) {
    if (pSucc == nullptr) return noPlaceForResult();
    *pSucc = 0;
    return atBoundary([&] {
      int success = 0;
      const HRESULT result = run<Op, A...>(success, Wire<A>(arguments)...);
      *pSucc = success;
      return result;
    });
  }
};

template <auto Op, class... A>
struct Forwarder<Op, ReturnStyle::status, std::tuple<A...>> {
  static HRESULT STDMETHODCALLTYPE call(void* /*self*/, typename Wire<A>::Type... arguments) {
    return atBoundary([&] {
      int success = 0;
      const HRESULT result = run<Op, A...>(success, Wire<A>(arguments)...);
      return result == S_OK && success == 0 ? S_FALSE : result;
    });
  }
};

/// What the client's variable for a returned value is.
template <class T>
struct ReturnedAs {
  using Type = T;
};
template <>
struct ReturnedAs<int> {
  using Type = LONG;
};
template <>
struct ReturnedAs<std::string> {
  using Type = BSTR;
};
template <>
struct ReturnedAs<std::string_view> {
  using Type = BSTR;
};

template <auto Op>
struct Forwarder<Op, ReturnStyle::value, std::tuple<>> {
  using Target = typename ReturnedAs<typename detail::SignatureOf<Op>::Result>::Type;
  static HRESULT STDMETHODCALLTYPE call(void* /*self*/, Target* pVal) {
    if (pVal == nullptr) return noPlaceForResult();
    return atBoundary([&] {
      if constexpr (std::is_same_v<Target, BSTR>) {
        replace(*pVal, detail::apply<Op>(engine()));
      } else {
        *pVal = detail::apply<Op>(engine());
      }
      return S_OK;
    });
  }
};

inline HRESULT STDMETHODCALLTYPE writeNothing(void* /*self*/, LONG* /*pVal*/) { return S_OK; }

}  // namespace calvex::com
