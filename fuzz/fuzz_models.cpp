// Every equipment model and spreadsheet variant on arbitrary doubles: no crash, no hang, and no
// success with a NaN from finite inputs but by the divisions that are meant to stay unguarded.
#include <cmath>
#include <cstdint>
#include <cstring>
#include <vector>

#include "server/zv_calvex.h"

namespace {

bool isModel(const calvex::Member& member) {
  if (member.style != calvex::ReturnStyle::success || member.parameterCount == 0) return false;
  const int id = member.dispatchId;
  return (id >= 0x8a && id <= 0x98) || member.name.starts_with("XL") || id == 0xc7 || id == 0xc9 ||
         id == 0xcd || id == 0xd1;
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
  bool infinite = false;
  for (const calvex::Parameter& parameter : member.parameters()) {
    if (parameter.type == calvex::ValueType::text) {
      arguments.emplace_back(std::string("H_Out,T_Out"));
    } else if (parameter.type == calvex::ValueType::array) {
      arguments.emplace_back(calvex::ResultArray());
    } else {
      double value = 0.0;
      if (parameter.isInput() && size >= sizeof value) {
        std::memcpy(&value, data, sizeof value);
        data += sizeof value;
        size -= sizeof value;
      }
      infinite = infinite || !std::isfinite(value);
      arguments.emplace_back(value);
    }
  }
  const auto result = object.invoke(member, arguments);
  if (result.success == 0 && object.engine().LastError().empty()) __builtin_trap();
  // A quotient of two zeros is the client's; enthalpies and temperatures are the model's.
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const calvex::Parameter& parameter = member.parameters()[i];
    const double* output = std::get_if<double>(&arguments[i]);
    const bool state = parameter.group == 0 || parameter.group == 5 || parameter.group == 7;
    if (parameter.isOutput() && state && !infinite && output != nullptr && std::isnan(*output)) {
      __builtin_trap();
    }
  }
  return 0;
}
