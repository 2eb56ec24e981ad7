// Every property member on arbitrary doubles: no crash, no hang, and no success without finite
// outputs.
#include <cmath>
#include <cstdint>
#include <cstring>

#include "server/zv_calvex.h"

namespace {

// The members that compute properties: from PSatT to XT by dispatch id, and the later ones.
bool isProperty(const calvex::Member& member) {
  const int id = member.dispatchId;
  return (id >= 0x1f && id <= 0x89) || (id >= 0xc4 && id <= 0xc6) || id == 0xd3 || id == 0xd4;
}

}  // namespace

// The first byte chooses the member, the second settings, then come the inputs, eight bytes each.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static calvex::Module module;
  static calvex::ZvCalvex object(module);
  if (size < 2) return 0;
  const auto members = calvex::memberTable();
  const calvex::Member& member = members[data[0] % members.size()];
  if (!isProperty(member)) return 0;
  object.engine().SetSatPolish(data[1] & 1);
  object.engine().SetTraceLevel(static_cast<short>((data[1] >> 1) % 3));
  data += 2;
  size -= 2;

  std::vector<calvex::Value> arguments;
  for (const calvex::Parameter& parameter : member.parameters()) {
    double value = 0.0;
    if (parameter.isInput() && size >= sizeof value) {
      std::memcpy(&value, data, sizeof value);
      data += sizeof value;
      size -= sizeof value;
    }
    arguments.emplace_back(value);
  }
  const auto result = object.invoke(member, arguments);
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (!member.parameters()[i].isOutput()) continue;
    const double* output = std::get_if<double>(&arguments[i]);
    if (result.success != 0 && (output == nullptr || !std::isfinite(*output))) __builtin_trap();
    if (result.success == 0 && output != nullptr) __builtin_trap();
  }
  return 0;
}
