// Token texts as arbitrary bytes: no crash, a row for each token of a text that succeeds, and an
// untouched array otherwise.
#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "server/zv_calvex.h"

namespace {

struct Call {
  std::string_view member;
  std::vector<double> inputs;
};

// Models that read their tokens first, with one flag and with two, and models that run first.
const Call calls[] = {
    {"XLTurbineB", {3214, 4, 0.01, 0.8, 5000}},
    {"XLTurbineE", {3214, 4, 0.01, 0.8, 10, 6.77}},
    {"XLLetDownValve", {2600, 4, 0.3}},
    {"XLFlashVessel", {10, 1000, 0.3}},
};

std::size_t wordCount(std::string_view text) {
  const auto separates = [](char c) { return c == ',' || c == ';' || c == ':' || c == ' '; };
  std::size_t words = 0;
  bool inWord = false;
  for (const char c : text) {
    if (!separates(c) && !inWord) ++words;
    inWord = !separates(c);
  }
  return words;
}

}  // namespace

// The first byte chooses the member and the columns, then comes the text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static calvex::Module module;
  static calvex::ZvCalvex object(module);
  if (size == 0) return 0;
  const Call& call = calls[data[0] % std::size(calls)];
  object.engine().SetReturnModelTokens(data[0] & 0x40);
  object.engine().SetReturnModelUnits(data[0] & 0x80);
  const std::string text(data + 1, data + size);

  const calvex::ResultArray old{{calvex::Cell(1.5)}};
  std::vector<calvex::Value> arguments(call.inputs.begin(), call.inputs.end());
  arguments.emplace_back(text);
  arguments.emplace_back(old);
  const auto result = object.invoke(*calvex::findMember(call.member), arguments);
  const auto& array = std::get<calvex::ResultArray>(arguments.back());
  if (result.success == 0) {
    if (array != old) __builtin_trap();
    return 0;
  }
  const std::size_t columns =
      1U + ((data[0] & 0x40) != 0 ? 1U : 0U) + ((data[0] & 0x80) != 0 ? 1U : 0U);
  if (array.empty() || array.size() != wordCount(text)) __builtin_trap();
  for (const auto& row : array) {
    if (row.size() != columns) __builtin_trap();
  }
  return 0;
}
