/// \file
/// What the compiler knows of an operation: a member function of the engine or a function over it.
#pragma once

#include <tuple>
#include <type_traits>

namespace calvex {

class ZvThermoInt;

namespace detail {

template <class F>
struct Signature;
template <class R, class... A>
struct Signature<R (ZvThermoInt::*)(A...)> {
  using Result = std::remove_cvref_t<R>;
  using Types = std::tuple<A...>;
};
template <class R, class... A>
struct Signature<R (ZvThermoInt::*)(A...) const> : Signature<R (ZvThermoInt::*)(A...)> {};
template <class R, class... A>
struct Signature<R (*)(ZvThermoInt&, A...)> : Signature<R (ZvThermoInt::*)(A...)> {};

template <auto Op>
using SignatureOf = Signature<decltype(Op)>;

/// Calls it.
template <auto Op, class... A>
auto apply(ZvThermoInt& engine, A&&... arguments) {
  if constexpr (std::is_member_function_pointer_v<decltype(Op)>) {
    return (engine.*Op)(arguments...);
  } else {
    return Op(engine, arguments...);
  }
}

}  // namespace detail
}  // namespace calvex
