// The extension module `calvex._calvex`.
#define CALVEX_IMPORTS_NUMPY
#include "numpy_api.h"
// The two tables of NumPy's interface are filled above all else.
#include "binding.h"
#include "failures.h"
#include "functions.h"
#include "server/member_explanations.h"

namespace calvex::python {

namespace {

PyObject* makeUfunc(PyObject* /*module*/, PyObject* arguments) {
  PyObject *object = nullptr, *name = nullptr;
  if (!PyArg_ParseTuple(arguments, "OU", &object, &name)) return nullptr;
  const Member* const member = coreArgument(object) == nullptr ? nullptr : memberArgument(name);
  if (member == nullptr) return nullptr;
  const std::optional<NumericMember> numeric = NumericMember::of(*member);
  if (!numeric || numeric->inputs().empty()) {
    PyErr_Format(PyExc_TypeError, "%U does not compute numbers from numbers", name);
    return nullptr;
  }
  return Binding::ufunc(object, *numeric).release();
}

PyObject* bindingOfUfunc(PyObject* /*module*/, PyObject* ufunc) {
  PyObject* const binding = Binding::of(ufunc);
  return Py_NewRef(binding == nullptr ? Py_None : binding);
}

PyObject* setHooks(PyObject* /*module*/, PyObject* object) {
  Py_XSETREF(hooks(), Py_NewRef(object));
  Py_RETURN_NONE;
}

// The policy that a text means, or an exception that lists them.
PyObject* checkErrors(PyObject* /*module*/, PyObject* object) {
  Errors errors{};
  return readErrors(object, errors) ? Py_NewRef(object) : nullptr;
}

PyObject* beforeFork(PyObject* /*module*/, PyObject* /*none*/) {
  Core::beforeFork();
  Py_RETURN_NONE;
}

PyObject* afterFork(PyObject* /*module*/, PyObject* /*none*/) {
  Core::afterFork();
  Py_RETURN_NONE;
}

// Of the call that this one is inside of; else None.
PyObject* errorsOfCall(PyObject* /*module*/, PyObject* /*none*/) {
  const Failures* const call = Failures::current();
  return errorsText(call == nullptr ? Errors::byKind : call->errors()).release();
}

PyMethodDef functions[] = {
    {"ufunc", makeUfunc, METH_VARARGS, "ufunc(core, member): a member as a NumPy ufunc."},
    {"binding", bindingOfUfunc, METH_O, "binding(ufunc): its member and engine; None for others."},
    {"set_hooks", setHooks, METH_O, "set_hooks(object): see binding.h."},
    {"errors_of_call", errorsOfCall, METH_NOARGS, "The policy of the call that is running."},
    {"check_errors", checkErrors, METH_O, "check_errors(policy): itself, if it is one."},
    {"before_fork", beforeFork, METH_NOARGS, "Waits for all engines and holds them."},
    {"after_fork", afterFork, METH_NOARGS, "Lets them go, in both processes."},
    {"call", callMember, METH_VARARGS, "call(core, member, arguments)."},
    {"get", getSetting, METH_VARARGS, "get(core, setting)."},
    {"put", putSetting, METH_VARARGS, "put(core, setting, value)."},
    {"trace", trace, METH_O, "trace(core): [(depth, text, kind)]."},
    {"reasons", reasons, METH_O, "reasons(core): why elements of the last array failed."},
    {"members", members, METH_NOARGS, "[(name, kind, inputs, outputs)]."},
    {"explain", explain, METH_O, "explain(member): what it means, in words."},
    {"groups", groups, METH_NOARGS, "The quantities and their units."},
    {"find_group", findGroup, METH_O, "find_group(word): its number, or None."},
    {"find_unit", findUnit, METH_VARARGS, "find_unit(group, word)."},
    {"choose_unit", chooseUnit, METH_VARARGS,
     "choose_unit(core, group, name, factor, offset, in_catalogue)."},
    {"unit", unitOf, METH_VARARGS, "unit(core, group): the unit in use."},
    {"conversion", conversion, METH_VARARGS, "conversion(core, group): (a, b), model = a x + b."},
    {"states", states, METH_VARARGS,
     "states(core, pair, first, second, letters): (values, phases, status)."},
    {"state_reason", stateReason, METH_VARARGS,
     "state_reason(core, pair, first, second, letters): why it fails, and what is behind that."},
    {nullptr, nullptr, 0, nullptr},
};

PyModuleDef definition = {PyModuleDef_HEAD_INIT,
                          "_calvex",
                          "The engine for Python; calvex is made of it.",
                          -1,
                          functions,
                          nullptr,
                          nullptr,
                          nullptr,
                          nullptr};

bool importNumPy() { return _import_array() >= 0 && _import_umath() >= 0; }

}  // namespace
}  // namespace calvex::python

// The name is Python's.
PyMODINIT_FUNC PyInit__calvex();   // NOLINT(bugprone-reserved-identifier)
PyMODINIT_FUNC PyInit__calvex() {  // NOLINT(bugprone-reserved-identifier)
  using namespace calvex::python;
  if (!importNumPy()) {
    if (PyErr_ExceptionMatches(PyExc_ModuleNotFoundError) != 0) {
      PyErr_SetString(PyExc_ImportError,
                      "calvex computes with NumPy, which this Python does not have: apt install "
                      "python3-numpy, or pip install 'numpy<2'");
    }
    return nullptr;
  }
  Ref module(PyModule_Create(&definition));
  if (!module || !addCore(module.get()) || !addBinding(module.get()) ||
      PyModule_AddStringConstant(module.get(), "version", CALVEX_VERSION) < 0) {
    return nullptr;
  }
  return module.release();
}
