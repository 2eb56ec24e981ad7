#include "diagnostics/messages.h"

namespace calvex {

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

}  // namespace calvex
