// Every equipment model and spreadsheet variant on arbitrary doubles: no crash, no hang, no failure
// without a reason, and no success with a NaN.
#include <cmath>
#include <cstdint>
#include <cstring>
#include <vector>

#include "server/zv_calvex.h"
#include "spreadsheet/variants.h"

namespace {

bool isModel(const calvex::Member& member) {
  if (member.style != calvex::ReturnStyle::success || member.parameterCount == 0) return false;
  const int id = member.dispatchId;
  return (id >= 0x8a && id <= 0x98) || member.name.starts_with("XL") || id == 0xc7 || id == 0xc9 ||
         id == 0xcd || id == 0xd1;
}

// All tokens of the variant.
std::string tokensOf(const calvex::Member& member) {
  std::string text;
  for (const auto& variant : calvex::spreadsheet::variantTable()) {
    if (member.name.substr(2) != variant.name) continue;
    for (const auto& token : variant.tokens()) {
      text += token.text;
      text += ' ';
    }
  }
  return text;
}

bool hasNan(const calvex::Value& value) {
  if (const double* number = std::get_if<double>(&value)) return std::isnan(*number);
  const auto* rows = std::get_if<calvex::ResultArray>(&value);
  if (rows == nullptr) return false;
  for (const auto& row : *rows) {
    for (const calvex::Cell& cell : row) {
      const double* number = std::get_if<double>(&cell);
      if (number != nullptr && std::isnan(*number)) return true;
    }
  }
  return false;
}

}  // namespace

// The first byte chooses the member; then come the inputs, eight bytes each.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static calvex::Module module;
  static calvex::ZvCalvex object(module);
  if (size < 1) return 0;
  const auto members = calvex::memberTable();
  const calvex::Member& member = members[data[0] % members.size()];
  if (!isModel(member)) return 0;
  ++data;
  --size;

  std::vector<calvex::Value> arguments;
  for (const calvex::Parameter& parameter : member.parameters()) {
    if (parameter.type == calvex::ValueType::text) {
      arguments.emplace_back(tokensOf(member));
    } else if (parameter.type == calvex::ValueType::array) {
      arguments.emplace_back(calvex::ResultArray());
    } else {
      double value = 0.0;
      if (parameter.isInput() && size >= sizeof value) {
        std::memcpy(&value, data, sizeof value);
        data += sizeof value;
        size -= sizeof value;
      }
      arguments.emplace_back(value);
    }
  }
  object.engine().ClearTraceInfo();
  const auto result = object.invoke(member, arguments);
  if (result.success == 0 && object.engine().LastError().empty()) __builtin_trap();
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (member.parameters()[i].isOutput() && hasNan(arguments[i])) __builtin_trap();
  }
  return 0;
}
