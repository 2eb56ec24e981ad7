/// \file
/// What is behind `calvex_engine`.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "c/border.h"

namespace calvex::c {

/// A node of the trace as it was when its picture was taken. Texts are UTF-8.
struct TraceNode {
  calvex_node facts;
  std::string text;
  std::vector<std::string> columns;
};

}  // namespace calvex::c

struct calvex_engine {
  calvex::Client client;
  std::vector<calvex::Value> arguments;  ///< of a call, kept for its room
  calvex::ResultArray answer;
  std::vector<calvex::c::TraceNode> trace;

  /// Runs a body; whatever goes wrong becomes the last failure.
  template <class Body>
  int guarded(Body&& body) noexcept {
    return calvex::c::guarded(
        body, [this](auto&& failure) { this->keep(std::forward<decltype(failure)>(failure)); });
  }

  /// A failure that the engine has answered.
  int fail(calvex::c::Misuse failure) noexcept {
    const int code = failure.code;
    keep(std::move(failure));
    return code;
  }

  [[nodiscard]] std::string_view lastError() const noexcept {
    return plain_.empty() ? std::string_view(error_) : plain_;
  }
  [[nodiscard]] std::string_view lastCause() const noexcept { return cause_; }

 private:
  std::string error_;
  std::string cause_;
  std::string_view plain_;  ///< instead of `error_`: a text that needs no memory

  void keep(calvex::c::Misuse&& failure) noexcept {
    error_ = std::move(failure.text);
    cause_ = std::move(failure.cause);
    plain_ = {};
  }
  void keep(const char* text) noexcept {
    cause_.clear();
    plain_ = text;
  }
};
