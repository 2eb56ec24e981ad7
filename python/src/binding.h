/// \file
/// `_calvex.Binding`: a member of the table bound to an engine, and the NumPy ufunc over it.
#pragma once

#include "core.h"
#include "numpy_api.h"
#include "server/member_columns.h"

namespace calvex::python {

/// What is Python's to answer, as functions of one object:
/// others(binding, ufunc, arguments, words), of arguments that are neither numbers nor arrays of
/// them, before NumPy sees them: the result or NotImplemented;
/// misuse(binding, ufunc, arguments, words), of a call that NumPy refused: what is wrong, or None;
/// result_type(core, member name), of several results: a subclass of tuple;
/// doc(binding) and signature(binding), for help().
[[nodiscard]] PyObject*& hooks();

class Binding {
 public:
  Binding(PyObject* core, const NumericMember& member);

  [[nodiscard]] Core& core() noexcept { return coreOf(core_.get()); }
  [[nodiscard]] PyObject* coreObject() const noexcept { return core_.get(); }
  [[nodiscard]] const NumericMember& member() const noexcept { return member_; }
  [[nodiscard]] std::string_view name() const noexcept { return member_.member().name; }

  /// One call of the engine in the client's units, with the engine's trace. False when it fails.
  /// Needs the engine: use it inside Core::with.
  bool call(ZvThermoInt& engine, const double* inputs, double* outputs);

  /// The results of one call as the user gets them: a number, or a named tuple.
  [[nodiscard]] Ref results(const double* values);
  /// The named tuple of NumPy's tuple.
  [[nodiscard]] Ref results(Ref tuple);

  /// The named tuple for the engine's units; null with an exception.
  [[nodiscard]] PyTypeObject* resultType();

  /// A ufunc over the member, which owns its binding; null with an exception.
  [[nodiscard]] static Ref ufunc(PyObject* core, const NumericMember& member);
  /// The binding of one of our ufuncs; null for others, without an exception.
  [[nodiscard]] static PyObject* of(PyObject* ufunc);

 private:
  friend struct UfuncBody;
  Ref core_;
  NumericMember member_;
  const spreadsheet::Variant* variant_;
  std::string name_;
  std::vector<char> types_;
  void* data_[1] = {this};
  std::vector<Value> values_;  ///< the arguments of `call`
  Ref resultType_;
  unsigned resultGeneration_ = 0;
};

struct BindingObject {
  PyObject ob_base;
  Binding* binding;
};
[[nodiscard]] inline Binding& bindingOf(PyObject* object) {
  return *reinterpret_cast<BindingObject*>(object)->binding;
}

[[nodiscard]] bool addBinding(PyObject* module);

}  // namespace calvex::python
