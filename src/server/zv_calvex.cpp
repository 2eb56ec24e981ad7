#include "server/zv_calvex.h"

#include <cmath>
#include <limits>

namespace calvex {

namespace {

template <class Integer>
bool toInteger(Value& value) {
  double number = 0.0;
  if (const auto* real = std::get_if<double>(&value)) {
    number = std::nearbyint(*real);
  } else if (const auto* small = std::get_if<short>(&value)) {
    number = *small;
  } else if (const auto* large = std::get_if<int>(&value)) {
    number = *large;
  } else {
    return false;
  }
  if (!(number >= std::numeric_limits<Integer>::min() &&
        number <= std::numeric_limits<Integer>::max())) {
    return false;
  }
  value = static_cast<Integer>(number);
  return true;
}

}  // namespace

bool coerce(Value& value, ValueType type) {
  switch (type) {
    case ValueType::real:
      if (const auto* small = std::get_if<short>(&value)) value = static_cast<double>(*small);
      if (const auto* large = std::get_if<int>(&value)) value = static_cast<double>(*large);
      return std::holds_alternative<double>(value);
    case ValueType::shortInteger:
      return toInteger<short>(value);
    case ValueType::longInteger:
      return toInteger<int>(value);
    case ValueType::text:
      return std::holds_alternative<std::string>(value);
    case ValueType::array:
      return true;  // what it held is replaced
  }
  return false;
}

ZvCalvex::Result ZvCalvex::invoke(const Member& member, std::span<Value> arguments) {
  const std::span<const Parameter> parameters = member.parameters();
  if (arguments.size() != parameters.size()) return {HResult::badParameterCount, 0};
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    if (parameters[i].isInput()) {
      if (!coerce(arguments[i], parameters[i].type)) return {HResult::typeMismatch, 0};
    } else {
      arguments[i] = {};
    }
  }
  const int success = member.invoke(engine_, arguments);
  const bool refused = member.style == ReturnStyle::status && success == 0;
  return {refused ? HResult::no : HResult::ok, success};
}

ZvCalvex::Result ZvCalvex::put(const Member& member, std::span<Value> arguments) {
  if (member.put == nullptr) return {HResult::memberNotFound, 0};
  if (arguments.size() != 1) return {HResult::badParameterCount, 0};
  if (!coerce(arguments[0], member.parameters()[0].type)) return {HResult::typeMismatch, 0};
  const int success = member.put(engine_, arguments);
  return {success != 0 ? HResult::ok : HResult::no, success};
}

}  // namespace calvex
