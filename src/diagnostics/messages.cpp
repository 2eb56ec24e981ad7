#include "diagnostics/messages.h"

namespace calvex {

namespace {

// Whether the text is one that this format gives: the literal parts in their order, with anything
// in the place of each conversion (which is one letter long here).
bool isOfFormat(std::string_view text, std::string_view format) {
  const std::size_t sign = format.find('%');
  if (sign == std::string_view::npos) return text == format;
  if (!text.starts_with(format.substr(0, sign))) return false;
  text.remove_prefix(sign);
  format.remove_prefix(sign + 2);
  for (std::size_t begin = 0; begin <= text.size(); ++begin) {
    if (isOfFormat(text.substr(begin), format)) return true;
  }
  return false;
}

}  // namespace

std::string_view messageText(int number) noexcept {
  switch (number) {
#define X(code, name, text) \
  case code:                \
    return text;
    CALVEX_MESSAGES(X)
#undef X
    default:
      return {};
  }
}

short messageNumber(std::string_view errorText) noexcept {
  // The more a format says, the earlier it is asked: what 108 says 101 would take as well.
  using enum Message;
  for (const Message message : {outOfRangeUnit, outOfRangeBounds, outOfRange, maximumIterations,
                                solutionError, noSolution, twoPhase, unknownSolverCode}) {
    if (isOfFormat(errorText, messageText(message))) return static_cast<short>(message);
  }
  return static_cast<short>(errorFrame);
}

}  // namespace calvex
