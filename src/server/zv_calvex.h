/// \file
/// The automation object and the module that serves it, without the platform's object model.
#pragma once

#include <span>

#include "engine/thermo_engine.h"
#include "server/member_table.h"

namespace calvex {

/// Results of the automation layer.
enum class HResult : unsigned {
  ok = 0,
  no = 1,                           ///< S_FALSE: the engine refused
  memberNotFound = 0x80020003u,     ///< no member of that number or name, or no put of it
  typeMismatch = 0x80020005u,       ///< an argument's type cannot become the parameter's
  badParameterCount = 0x8002000Eu,  ///< not as many arguments as parameters
};

/// What is loaded once: the one engine that all automation objects share.
class Module {
 public:
  explicit Module(UnitsServerFactory unitsServer = {}, std::unique_ptr<Dialogs> dialogs = {})
      : engine_(std::move(unitsServer), std::move(dialogs)) {}
  Module(const Module&) = delete;
  Module& operator=(const Module&) = delete;

  [[nodiscard]] ZvThermoInt& engine() noexcept { return engine_; }
  [[nodiscard]] const ZvThermoInt& engine() const noexcept { return engine_; }

 private:
  ZvThermoInt engine_;
};

/// An automation object. It has no state of its own; releasing the last one of a module resets the
/// engine to its defaults (the units that the client chose stay).
class ZvCalvex {
 public:
  explicit ZvCalvex(Module& module) : engine_(module.engine()) { engine_.AddObject(); }
  ~ZvCalvex() { engine_.ReleaseObject(); }
  ZvCalvex(const ZvCalvex&) = delete;
  ZvCalvex& operator=(const ZvCalvex&) = delete;

  [[nodiscard]] ZvThermoInt& engine() noexcept { return engine_; }

  struct Result {
    HResult hresult = HResult::ok;
    int success = 1;  ///< pSucc of members that have one, else whether hresult is ok
  };

  /// Calls a method or gets a setting. `arguments` are those of the parameters in call order
  /// (a setting or value member has one, written); inputs are brought to the parameter's type,
  /// outputs that the engine did not write are left without a value.
  Result invoke(const Member& member, std::span<Value> arguments);
  /// Puts a setting; the one argument is its new value.
  Result put(const Member& member, std::span<Value> arguments);

 private:
  ZvThermoInt& engine_;
};

/// Brings a value to a type as automation does: numbers round to integers (halves to even) when
/// they fit, texts are not numbers. False when it cannot.
bool coerce(Value& value, ValueType type);

}  // namespace calvex
