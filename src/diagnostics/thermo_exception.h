/// \file
/// The engine's exception: thrown by the steam layer, caught by the engine operation that called
/// it.
#pragma once

#include <stdexcept>
#include <string>

namespace calvex {

/// A numerical failure with the text that the user will read.
class ZvThermoException : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace calvex
