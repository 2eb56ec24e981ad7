// Unit names and keywords as arbitrary bytes: no crash, and no success with a unit that the
// catalogue does not hold.
#include <cstdint>
#include <string_view>

#include "engine/thermo_engine.h"

// Words parted by zero bytes: keyword, unit, other unit.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static calvex::ZvThermoInt engine;
  std::string_view rest(reinterpret_cast<const char*>(data), size);
  std::string_view words[3];
  for (std::string_view& word : words) {
    const std::size_t end = rest.find('\0');
    word = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  }
  const auto& catalogue = engine.units().catalogue();
  const auto* group = catalogue.group(catalogue.groupIndex(words[0]));
  const bool known = group != nullptr && group->find(words[1]) != nullptr;
  if ((engine.SetUserUnit(words[0], words[1]) != 0) != known) __builtin_trap();
  if (known) {
    std::string unit;
    if (engine.GetUserUnit(words[0], &unit) == 0 || unit != words[1]) __builtin_trap();
  }
  double converted = 0.0;
  const bool both = known && group->find(words[2]) != nullptr;
  if ((engine.Convert(words[0], words[1], words[2], 1.0, &converted) != 0) != both) {
    __builtin_trap();
  }
  return 0;
}
