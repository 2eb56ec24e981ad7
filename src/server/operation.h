/// \file
/// Turns an operation of the engine into one on a list of values: the types and directions of a
/// member's parameters are those of the C++ signature, so the two cannot differ.
#pragma once

#include <bit>
#include <cstdint>
#include <tuple>
#include <type_traits>
#include <utility>

#include "server/member_table.h"
#include "server/signature.h"
#ifdef _WIN32
#include "server/windows/forwarder.h"
#endif

namespace calvex::detail {

// An output that the engine did not write keeps this pattern, a NaN that no arithmetic makes.
inline constexpr double unwritten = std::bit_cast<double>(std::uint64_t{0x7FF9'5A1E'CA17'E400});
inline bool isWritten(double value) {
  return std::bit_cast<std::uint64_t>(value) != std::bit_cast<std::uint64_t>(unwritten);
}

/// What a C++ parameter type means, how it is read from a value and written back.
template <class T>
struct Argument;

template <class T, ValueType Type>
struct InputArgument {
  static constexpr ValueType type = Type;
  static constexpr Direction direction = Direction::in;
  explicit InputArgument(Value& value) : input(std::get<T>(value)) {}
  const T& pass() { return input; }
  void writeBack(bool /*success*/) {}
  const T& input;
};
template <>
struct Argument<double> : InputArgument<double, ValueType::real> {
  using InputArgument::InputArgument;
};
template <>
struct Argument<short> : InputArgument<short, ValueType::shortInteger> {
  using InputArgument::InputArgument;
};
template <>
struct Argument<int> : InputArgument<int, ValueType::longInteger> {
  using InputArgument::InputArgument;
};
template <>
struct Argument<std::string_view> : InputArgument<std::string, ValueType::text> {
  using InputArgument::InputArgument;
};

/// Some operations write numbers before they fail.
template <>
struct Argument<double*> {
  static constexpr ValueType type = ValueType::real;
  static constexpr Direction direction = Direction::out;
  explicit Argument(Value& value) : target(value) {}
  double* pass() { return &output; }
  void writeBack(bool /*success*/) {
    if (isWritten(output)) target = output;
  }
  Value& target;
  double output = unwritten;
};

/// Texts and arrays are handed out only on success.
template <class T, ValueType Type, Direction Way>
struct ObjectArgument {
  static constexpr ValueType type = Type;
  static constexpr Direction direction = Way;
  explicit ObjectArgument(Value& value) : target(value) {}
  T* pass() { return &output; }
  void writeBack(bool success) {
    if (success) target = std::move(output);
  }
  Value& target;
  T output;
};
template <>
struct Argument<std::string*> : ObjectArgument<std::string, ValueType::text, Direction::out> {
  using ObjectArgument::ObjectArgument;
};
template <>
struct Argument<ResultArray*> : ObjectArgument<ResultArray, ValueType::array, Direction::inOut> {
  using ObjectArgument::ObjectArgument;
};

/// A value that an operation returns.
template <class T>
constexpr ValueType returnedType() {
  if constexpr (std::is_same_v<T, double>) {
    return ValueType::real;
  } else if constexpr (std::is_same_v<T, short>) {
    return ValueType::shortInteger;
  } else if constexpr (std::is_same_v<T, int>) {
    return ValueType::longInteger;
  } else {
    return ValueType::text;
  }
}
template <class T>
Value returned(const T& result) {
  if constexpr (returnedType<T>() == ValueType::text) {
    return std::string(result);
  } else {
    return result;
  }
}

template <class Types>
struct ArgumentList;
template <class... A>
struct ArgumentList<std::tuple<A...>> {
  using Type = std::tuple<Argument<A>...>;
};
template <auto Op>
using ArgumentsOf = typename ArgumentList<typename SignatureOf<Op>::Types>::Type;

/// Runs an operation that answers a success flag.
template <auto Op>
int run(ZvThermoInt& engine, std::span<Value> values) {
  using Arguments = ArgumentsOf<Op>;
  return [&]<std::size_t... I>(std::index_sequence<I...>) {
    [[maybe_unused]] Arguments arguments(values[I]...);
    const int success = apply<Op>(engine, std::get<I>(arguments).pass()...);
    (std::get<I>(arguments).writeBack(success != 0), ...);
    return success;
  }
  (std::make_index_sequence<std::tuple_size_v<Arguments>>());
}

/// Runs an operation whose result is the value.
template <auto Op>
int get(ZvThermoInt& engine, std::span<Value> values) {
  values[0] = returned((engine.*Op)());
  return 1;
}

#ifdef _WIN32
template <auto Op, ReturnStyle Style>
inline constexpr EntryPoint entryOf =
    [] { return reinterpret_cast<const void*>(&com::Forwarder<Op, Style>::call); };
inline constexpr EntryPoint silentEntry = [] {
  return reinterpret_cast<const void*>(&com::writeNothing);
};
#else
template <auto Op, ReturnStyle Style>
inline constexpr EntryPoint entryOf = nullptr;
inline constexpr EntryPoint silentEntry = nullptr;
#endif

/// Lays names and unit groups, written "pH:5 P:1 T:0", over the parameters of an operation.
template <auto Op>
constexpr int describe(std::array<Parameter, maxParameters>& parameters, std::string_view names) {
  using Arguments = ArgumentsOf<Op>;
  constexpr std::size_t count = std::tuple_size_v<Arguments>;
  static_assert(count <= maxParameters);
  [&]<std::size_t... I>(std::index_sequence<I...>) {
    ((parameters[I].type = std::tuple_element_t<I, Arguments>::type,
      parameters[I].direction = std::tuple_element_t<I, Arguments>::direction),
     ...);
  }
  (std::make_index_sequence<count>());

  std::size_t named = 0;
  while (!names.empty()) {
    const std::string_view word = names.substr(0, names.find(' '));
    names.remove_prefix(word.size() < names.size() ? word.size() + 1 : word.size());
    const std::size_t colon = word.find(':');
    Parameter& parameter = parameters.at(named++);
    parameter.name = word.substr(0, colon);
    parameter.group = -1;
    if (colon == std::string_view::npos) continue;
    parameter.group = 0;
    for (const char digit : word.substr(colon + 1)) {
      parameter.group = static_cast<short>(10 * parameter.group + (digit - '0'));
    }
  }
  if (named != count) throw "as many names as parameters";
  return static_cast<int>(count);
}

/// Answers pSucc.
template <auto Op>
constexpr Member method(short id, std::string_view name, std::string_view parameters) {
  Member member{id, name, ReturnStyle::success, false, &run<Op>, nullptr, {}, 0};
  member.parameterCount = describe<Op>(member.parameterStore, parameters);
  member.entry = entryOf<Op, ReturnStyle::success>;
  return member;
}

/// A model without its flags, the `int` parameters at its end: each is 1.
template <auto Model, class Indices = void>
struct FlagsSet;
template <class... A, int (*Model)(ZvThermoInt&, A...)>
struct FlagsSet<Model> {
  static constexpr std::size_t flags = (std::size_t{std::is_same_v<A, int>} + ...);
  using Kept = std::make_index_sequence<sizeof...(A) - flags>;
  using Types = std::tuple<A...>;
};
template <auto Model, std::size_t... I>
struct FlagsSet<Model, std::index_sequence<I...>> {
  using All = FlagsSet<Model>;
  static int call(ZvThermoInt& engine, std::tuple_element_t<I, typename All::Types>... arguments) {
    return [&]<std::size_t... Flag>(std::index_sequence<Flag...>) {
      return Model(engine, arguments..., (static_cast<void>(Flag), 1)...);
    }
    (std::make_index_sequence<All::flags>());
  }
};

/// A model of which the client wants everything.
template <auto Model>
consteval Member model(short id, std::string_view name, std::string_view parameters) {
  return method<&FlagsSet<Model, typename FlagsSet<Model>::Kept>::call>(id, name, parameters);
}

/// Answers S_OK or S_FALSE.
template <auto Op>
constexpr Member action(short id, std::string_view name, std::string_view parameters = {}) {
  Member member = method<Op>(id, name, parameters);
  member.style = ReturnStyle::status;
  member.entry = entryOf<Op, ReturnStyle::status>;
  return member;
}

/// Answers the value itself.
template <auto Op>
constexpr Member value(short id, std::string_view name, std::string_view returnName,
                       short group = -1) {
  Member member{id, name, ReturnStyle::value, false, &get<Op>, nullptr, {}, 1};
  member.parameterStore[0] = {returnName, returnedType<typename SignatureOf<Op>::Result>(),
                              Direction::retval, group};
  member.entry = entryOf<Op, ReturnStyle::value>;
  return member;
}

/// A property that can be read ...
template <auto Get>
constexpr Member setting(short id, std::string_view name) {
  Member member = value<Get>(id, name, "pVal");
  member.style = ReturnStyle::status;
  member.isProperty = true;
  return member;
}
/// ... and written.
template <auto Get, auto Put>
constexpr Member setting(short id, std::string_view name) {
  Member member = setting<Get>(id, name);
  member.put = &run<Put>;
  member.putEntry = entryOf<Put, ReturnStyle::status>;
  return member;
}

/// A property that answers S_OK and writes nothing.
constexpr Member silentSetting(short id, std::string_view name, ValueType type) {
  Member member{id,
                name,
                ReturnStyle::status,
                true,
                [](ZvThermoInt&, std::span<Value>) { return 1; },
                nullptr,
                {},
                1};
  member.parameterStore[0] = {"pVal", type, Direction::retval, -1};
  member.entry = silentEntry;
  return member;
}

}  // namespace calvex::detail
