#include "binding.h"

#include <algorithm>
#include <array>
#include <cfenv>
#include <limits>

#include "failures.h"
#include "server/member_explanations.h"

namespace calvex::python {

namespace {

constexpr double none = std::numeric_limits<double>::quiet_NaN();

// More than that go to all cores. Starting a thread costs as much as some hundred states.
constexpr npy_intp manyElements = 8192;

// NumPy's own call of a ufunc.
vectorcallfunc callOfNumPy = nullptr;

PyTypeObject type{};        // Binding
PyTypeObject memberType{};  // the ufunc over one

// A column of the loop's argument; its steps are in bytes.
direct::Column column(const char* data, npy_intp step) {
  return {reinterpret_cast<const double*>(data), step / npy_intp{sizeof(double)}};
}

// Whether results are written where other rows are still to be read from.
bool overlap(char** arguments, const npy_intp* steps, npy_intp n, std::size_t inputs,
             std::size_t outputs) {
  struct Range {
    const char *begin, *end;
  };
  const auto range = [&](std::size_t i) {
    const npy_intp reach = steps[i] * (n - 1);
    return Range{arguments[i] + std::min<npy_intp>(reach, 0),
                 arguments[i] + std::max<npy_intp>(reach, 0) + sizeof(double)};
  };
  for (std::size_t i = 0; i < inputs; ++i) {
    for (std::size_t o = inputs; o < inputs + outputs; ++o) {
      if (range(i).begin < range(o).end && range(o).begin < range(i).end) return true;
    }
  }
  return false;
}

}  // namespace

PyObject*& hooks() {
  static PyObject* all = nullptr;
  return all;
}

/// What NumPy calls.
struct UfuncBody {
  static void loop(char** arguments, const npy_intp* dimensions, const npy_intp* steps,
                   void* data) noexcept {
    auto& binding = *static_cast<Binding*>(data);
    const npy_intp n = dimensions[0];
    const std::size_t inputs = binding.member_.inputs().size();
    const std::size_t outputs = binding.member_.outputs().size();
    Failures* failures = Failures::current();
    std::optional<Failures> stray;
    if (failures == nullptr) failures = &stray.emplace(Errors::warn);
    const auto fail = [&](std::size_t row, std::string_view reason, std::string_view cause) {
      failures->add(arguments[inputs] + static_cast<npy_intp>(row) * steps[inputs], reason, cause);
    };
    try {
      run(binding, arguments, steps, n, fail);
    } catch (const std::exception& failure) {
      for (std::size_t o = inputs; o < inputs + outputs; ++o) {
        for (npy_intp i = 0; i < n; ++i)
          *reinterpret_cast<double*>(arguments[o] + i * steps[o]) = none;
      }
      failures->add(arguments[inputs], failure.what(), {});
    }
    std::feclearexcept(FE_ALL_EXCEPT);  // NumPy would warn of what the solver tried
    if (stray && !stray->empty()) warnOf(binding, *stray, n);
  }

 private:
  template <class Fail>
  static void run(Binding& binding, char** arguments, const npy_intp* steps, npy_intp n,
                  const Fail& fail) {
    const std::size_t inputs = binding.member_.inputs().size();
    const std::size_t outputs = binding.member_.outputs().size();
    std::array<direct::Column, maxParameters> from;
    std::array<MemberRequest::Output, spreadsheet::maxOutputs> to;
    std::vector<double> own;
    const bool apart = overlap(arguments, steps, n, inputs, outputs);
    if (apart) own.resize(outputs * static_cast<std::size_t>(n));
    for (std::size_t i = 0; i < inputs; ++i) from.at(i) = column(arguments[i], steps[i]);
    for (std::size_t o = 0; o < outputs; ++o) {
      const npy_intp step = steps[inputs + o];
      to.at(o) = apart ? MemberRequest::Output{o, {own.data() + o * static_cast<std::size_t>(n)}}
                       : MemberRequest::Output{o,
                                               {reinterpret_cast<double*>(arguments[inputs + o]),
                                                step / npy_intp{sizeof(double)}}};
    }
    const auto compute = [&](const Chunk& chunk) {
      Core::Loan loan(binding.core());
      const auto tell = [&](std::size_t row, std::string_view reason) {
        fail(row, reason, loan.engine().diagnostics().cause());
      };
      const MemberRequest request{
          binding.member_, {from.data(), inputs}, {to.data(), outputs}, {}, tell};
      evaluate(request, loan.engine(), chunk.begin, chunk.end);
    };
    if (n > manyElements) {
      forEachChunk(static_cast<std::size_t>(n), allCores(), compute);
    } else {
      compute({0, static_cast<std::size_t>(n), 0});
    }
    if (!apart) return;
    for (std::size_t o = 0; o < outputs; ++o) {
      for (npy_intp i = 0; i < n; ++i) {
        *reinterpret_cast<double*>(arguments[inputs + o] + i * steps[inputs + o]) =
            own[o * static_cast<std::size_t>(n) + static_cast<std::size_t>(i)];
      }
    }
  }

  // Nobody waits for an answer that could be an exception.
  static void warnOf(Binding& binding, Failures& failures, npy_intp n) {
    const PyGILState_STATE state = PyGILState_Ensure();
    if (!failures.warn(binding.name(), static_cast<std::size_t>(n))) {
      PyErr_WriteUnraisable(nullptr);
    }
    PyGILState_Release(state);
  }
};

Binding::Binding(PyObject* core, const NumericMember& member)
    : core_(Ref::to(core)),
      member_(member),
      variant_(variantOf(member.member())),
      name_(member.member().name),
      types_(member.inputs().size() + member.outputs().size(), NPY_DOUBLE),
      values_(member.member().parameters().size()) {}

bool Binding::call(ZvThermoInt& engine, const double* inputs, double* outputs) {
  if (variant_ != nullptr) {
    std::array<double, spreadsheet::maxOutputs> all;
    std::array<int, spreadsheet::maxFlags> flags;
    all.fill(none);
    flags.fill(1);
    const auto run = [&] { return variant_->run(engine, all.data(), inputs, flags.data()) != 0; };
    if (engine.call(variant_->name, run) == 0) return false;
    for (const spreadsheet::Token& token : variant_->tokens()) {
      *outputs++ = all.at(static_cast<std::size_t>(token.output));
    }
    return true;
  }
  const auto parameters = member_.member().parameters();
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    values_[i] = parameters[i].isInput() ? *inputs++ : none;
  }
  if (member_.member().invoke(engine, values_) == 0) return false;
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    if (!parameters[i].isInput()) *outputs++ = std::get<double>(values_[i]);
  }
  return true;
}

PyTypeObject* Binding::resultType() {
  if (!resultType_ || resultGeneration_ != core().generation()) {
    resultGeneration_ = core().generation();
    const Ref name = unicode(name_);
    if (!name) return nullptr;
    resultType_ = Ref(PyObject_CallMethod(hooks(), "result_type", "OO", core_.get(), name.get()));
  }
  return reinterpret_cast<PyTypeObject*>(resultType_.get());
}

Ref Binding::results(const double* values) {
  const auto count = static_cast<Py_ssize_t>(member_.outputs().size());
  if (count == 1) return Ref(PyFloat_FromDouble(*values));
  PyTypeObject* const named = resultType();
  if (named == nullptr) return {};
  Ref tuple(named->tp_alloc(named, count));
  for (Py_ssize_t i = 0; tuple && i < count; ++i) {
    PyObject* const value = PyFloat_FromDouble(values[i]);
    if (value == nullptr) return {};
    PyTuple_SET_ITEM(tuple.get(), i, value);
  }
  return tuple;
}

Ref Binding::results(Ref tuple) {
  if (!tuple || !PyTuple_CheckExact(tuple.get())) return tuple;
  PyTypeObject* const named = resultType();
  if (named == nullptr) return {};
  const Py_ssize_t count = PyTuple_GET_SIZE(tuple.get());
  Ref copy(named->tp_alloc(named, count));
  for (Py_ssize_t i = 0; copy && i < count; ++i) {
    PyTuple_SET_ITEM(copy.get(), i, Py_NewRef(PyTuple_GET_ITEM(tuple.get(), i)));
  }
  return copy;
}

namespace {

// A Python or NumPy number that is no array.
bool asNumber(PyObject* object, double& number) {
  if (PyFloat_Check(object)) {
    number = PyFloat_AS_DOUBLE(object);
    return true;
  }
  if (!PyLong_Check(object) && !PyArray_IsScalar(object, Integer) &&
      !PyArray_IsScalar(object, Floating)) {
    return false;
  }
  number = PyFloat_AsDouble(object);
  if (number != -1.0 || PyErr_Occurred() == nullptr) return true;
  PyErr_Clear();  // an integer beyond all doubles: NumPy says so
  return false;
}

PyObject* callScalar(Binding& binding, Errors errors, const double* inputs) {
  std::array<double, spreadsheet::maxOutputs> outputs;
  Failure failure;
  const bool succeeded = binding.core().with([&](ZvThermoInt& engine) {
    const EntryOfCall left(engine.diagnostics());
    if (binding.call(engine, inputs, outputs.data())) return true;
    failure = failureOf(engine, left);
    return false;
  });
  const auto& [reason, cause] = failure;
  if (!succeeded) {
    if (errors == Errors::byKind || errors == Errors::raise) {
      return raiseFailure(binding.name(), reason, cause);
    }
    outputs.fill(none);
    binding.core().reasons = {{}, {{0, 0}}, {withCause(reason, cause)}};
    if (errors == Errors::warn) {
      const Ref text = failureText(binding.name(), reason, cause);
      if (!text || PyErr_WarnFormat(calvexWarning(), 1, "%U", text.get()) < 0) {
        return nullptr;
      }
    }
  }
  return binding.results(outputs.data()).release();
}

// What becomes an array of doubles here, so that the loop sees whole columns and not the blocks in
// which NumPy casts.
bool isPlain(PyObject* object) {
  return PyArray_CheckExact(object) || PyList_CheckExact(object) || PyTuple_CheckExact(object);
}

// The array of a plain argument; numbers as doubles, anything else as it is, for NumPy to refuse.
Ref asDoubles(PyObject* argument) {
  Ref array(PyArray_FROM_O(argument));
  if (!array) return array;
  const int number = PyArray_TYPE(reinterpret_cast<PyArrayObject*>(array.get()));
  const bool plain =
      PyTypeNum_ISINTEGER(number) || PyTypeNum_ISFLOAT(number) || PyTypeNum_ISBOOL(number);
  if (!plain) return array;
  return Ref(PyArray_FROM_OTF(array.get(), NPY_DOUBLE, NPY_ARRAY_ALIGNED));
}

// Arrays of several dimensions that are not one column each are laid out as such, for a loop over
// all of them and all cores.
bool layOut(std::vector<Ref>& arrays) {
  std::vector<PyObject*> several;
  bool lines = true;
  for (const Ref& array : arrays) {
    if (!array) continue;
    several.push_back(array.get());
    lines = lines && PyArray_NDIM(reinterpret_cast<PyArrayObject*>(array.get())) < 2;
  }
  if (lines) return true;
  const Ref shape(
      PyArray_MultiIterFromObjects(several.data(), static_cast<int>(several.size()), 0));
  if (!shape) {
    PyErr_Clear();  // NumPy says that they do not fit
    return true;
  }
  auto* const all = reinterpret_cast<PyArrayMultiIterObject*>(shape.get());
  if (all->size <= manyElements) return true;
  for (Ref& array : arrays) {
    auto* const given = reinterpret_cast<PyArrayObject*>(array.get());
    if (given == nullptr || PyArray_NDIM(given) == 0) continue;
    if (PyArray_SIZE(given) == all->size && PyArray_IS_C_CONTIGUOUS(given)) {
      continue;
    }
    Ref whole(PyArray_SimpleNew(all->nd, all->dimensions, NPY_DOUBLE));
    if (!whole || PyArray_CopyInto(reinterpret_cast<PyArrayObject*>(whole.get()), given) < 0) {
      return false;
    }
    array = std::move(whole);
  }
  return true;
}

PyObject* callArrays(PyObject* self, Binding& binding, Errors errors, PyObject* const* arguments,
                     Py_ssize_t count, PyObject* words) {
  const auto inputs = static_cast<Py_ssize_t>(binding.member().inputs().size());
  const Py_ssize_t all = count + (words == nullptr ? 0 : PyTuple_GET_SIZE(words));
  std::vector<PyObject*> passed(arguments, arguments + all);
  std::vector<Ref> arrays(static_cast<std::size_t>(std::min(count, inputs)));
  for (std::size_t i = 0; i < arrays.size(); ++i) {
    if (!isPlain(arguments[i])) continue;
    arrays[i] = asDoubles(arguments[i]);
    if (!arrays[i]) return nullptr;
  }
  if (words == nullptr && !layOut(arrays)) return nullptr;
  for (std::size_t i = 0; i < arrays.size(); ++i) {
    if (arrays[i]) passed[i] = arrays[i].get();
  }
  Failures failures(errors);
  Ref result(callOfNumPy(self, passed.data(), static_cast<std::size_t>(count), words));
  if (!result) return nullptr;
  PyObject* const first =
      PyTuple_Check(result.get()) ? PyTuple_GET_ITEM(result.get(), 0) : result.get();
  // A result of another library came from a call inside this one, which has reported.
  if ((PyArray_Check(first) || PyFloat_Check(first)) &&
      !failures.report(binding.core(), binding.name(), result.get())) {
    return nullptr;
  }
  return binding.results(std::move(result)).release();
}

// The words of a call: those that are ours, and the rest with its values after the arguments.
struct Words {
  Errors errors;
  bool unit = false;
  Ref rest;
  std::vector<PyObject*> arguments;

  bool take(PyObject* const* given, Py_ssize_t count, PyObject* words) {
    arguments.assign(given, given + count);
    const Ref names(PyList_New(0));
    if (!names) return false;
    for (Py_ssize_t i = 0; i < PyTuple_GET_SIZE(words); ++i) {
      PyObject* const name = PyTuple_GET_ITEM(words, i);
      PyObject* const value = given[count + i];
      if (PyUnicode_CompareWithASCIIString(name, "errors") == 0) {
        if (!readErrors(value, errors)) return false;
      } else if (PyUnicode_CompareWithASCIIString(name, "unit") == 0) {
        unit = value != Py_False;
      } else {
        if (PyList_Append(names.get(), name) < 0) return false;
        arguments.push_back(value);
      }
    }
    if (PyList_GET_SIZE(names.get()) == 0) return true;
    rest = Ref(PyList_AsTuple(names.get()));
    return static_cast<bool>(rest);
  }
};

// A call's arguments as Python's own: hook(binding, ufunc, arguments, words).
PyObject* callHook(const char* hook, PyObject* self, PyObject* const* arguments, Py_ssize_t count,
                   PyObject* words) {
  const Ref values(PyTuple_New(count));
  const Ref named(PyDict_New());
  if (!values || !named) return nullptr;
  for (Py_ssize_t i = 0; i < count; ++i) {
    PyTuple_SET_ITEM(values.get(), i, Py_NewRef(arguments[i]));
  }
  for (Py_ssize_t i = 0; words != nullptr && i < PyTuple_GET_SIZE(words); ++i) {
    if (PyDict_SetItem(named.get(), PyTuple_GET_ITEM(words, i), arguments[count + i]) < 0) {
      return nullptr;
    }
  }
  return PyObject_CallMethod(hooks(), hook, "OOOO", reinterpret_cast<PyUFuncObject*>(self)->obj,
                             self, values.get(), named.get());
}

// NumPy's word for a wrong argument gives way to one that names the member's inputs, where there is
// one. Exceptions of other libraries, and the engine's own, stay.
void explainMisuse(PyObject* self, PyObject* const* arguments, Py_ssize_t count, PyObject* words) {
  PyObject* const raised = PyErr_Occurred();
  if (raised != PyExc_TypeError && raised != PyExc_ValueError) return;
  PyObject *kind = nullptr, *value = nullptr, *traceback = nullptr;
  PyErr_Fetch(&kind, &value, &traceback);
  const Ref text(callHook("misuse", self, arguments, count, words));
  if (text && text.get() != Py_None) {
    PyErr_SetObject(kind, text.get());
    Py_XDECREF(kind);
    Py_XDECREF(value);
    Py_XDECREF(traceback);
    return;
  }
  PyErr_Restore(kind, value, traceback);
}

// Called in NumPy's place: numbers go straight to the engine, arrays to NumPy's own call, with
// somebody there to hear of failures.
PyObject* callAny(PyObject* self, PyObject* const* arguments, Py_ssize_t count, PyObject* words) {
  Binding& binding = bindingOf(reinterpret_cast<PyUFuncObject*>(self)->obj);
  const auto inputs = static_cast<Py_ssize_t>(binding.member().inputs().size());

  std::array<double, maxParameters> numbers;
  Py_ssize_t scalars = 0;
  while (count == inputs && scalars < inputs &&
         asNumber(arguments[scalars], numbers.at(static_cast<std::size_t>(scalars)))) {
    ++scalars;
  }
  const bool scalar = scalars == inputs && inputs == count;
  if (scalar && words == nullptr) {
    return callScalar(binding, binding.core().errors, numbers.data());
  }

  const Failures* const outer = Failures::current();
  Words ours{outer != nullptr ? outer->errors() : binding.core().errors, false, Ref(), {}};
  const auto isOther = [](PyObject* argument) {
    double number = 0.0;
    return !isPlain(argument) && !asNumber(argument, number);
  };
  const bool others = std::any_of(arguments, arguments + std::min(count, inputs), isOther);
  if (words != nullptr && !ours.take(arguments, count, words)) return nullptr;
  if (others || ours.unit || ours.rest) {
    Ref result(callHook("others", self, arguments, count, words));
    if (result.get() != Py_NotImplemented) return result.release();
  }
  if (scalar && !ours.rest) return callScalar(binding, ours.errors, numbers.data());
  return callArrays(self, binding, ours.errors,
                    words == nullptr ? arguments : ours.arguments.data(), count, ours.rest.get());
}

PyObject* callUfunc(PyObject* self, PyObject* const* arguments, std::size_t flags,
                    PyObject* words) {
  const Py_ssize_t count = PyVectorcall_NARGS(flags);
  PyObject* const result = callAny(self, arguments, count, words);
  if (result == nullptr) explainMisuse(self, arguments, count, words);
  return result;
}

PyObject* newBinding(PyTypeObject* /*type*/, PyObject* /*arguments*/, PyObject* /*words*/) {
  PyErr_SetString(PyExc_TypeError, "bindings are made by ufunc()");
  return nullptr;
}

void deleteBinding(PyObject* self) {
  delete reinterpret_cast<BindingObject*>(self)->binding;
  Py_TYPE(self)->tp_free(self);
}

PyObject* getCore(PyObject* self, void* /*closure*/) {
  return Py_NewRef(bindingOf(self).coreObject());
}
PyObject* getName(PyObject* self, void* /*closure*/) {
  return unicode(bindingOf(self).name()).release();
}

PyObject* getResultType(PyObject* self, void* /*closure*/) {
  return Py_XNewRef(reinterpret_cast<PyObject*>(bindingOf(self).resultType()));
}

// What help() and inspect ask of a member, in the engine's units of the moment.
PyObject* getDoc(PyObject* self, void* /*closure*/) {
  return PyObject_CallMethod(hooks(), "doc", "O", reinterpret_cast<PyUFuncObject*>(self)->obj);
}
PyObject* getSignature(PyObject* self, void* /*closure*/) {
  return PyObject_CallMethod(hooks(), "signature", "O",
                             reinterpret_cast<PyUFuncObject*>(self)->obj);
}

PyGetSetDef memberAttributes[] = {
    {"__doc__", getDoc, nullptr, nullptr, nullptr},
    {"__signature__", getSignature, nullptr, nullptr, nullptr},
    {nullptr, nullptr, nullptr, nullptr, nullptr},
};

PyGetSetDef attributes[] = {
    {"result_type", getResultType, nullptr, "The named tuple of its results.", nullptr},
    {"core", getCore, nullptr, "The engine.", nullptr},
    {"name", getName, nullptr, "The member's name.", nullptr},
    {nullptr, nullptr, nullptr, nullptr, nullptr},
};

}  // namespace

Ref Binding::ufunc(PyObject* core, const NumericMember& member) {
  Ref object(type.tp_alloc(&type, 0));
  if (!object) return object;
  auto* const binding = new Binding(core, member);
  reinterpret_cast<BindingObject*>(object.get())->binding = binding;
  static PyUFuncGenericFunction loops[] = {&UfuncBody::loop};
  Ref ufunc(PyUFunc_FromFuncAndData(
      loops, binding->data_, binding->types_.data(), 1, static_cast<int>(member.inputs().size()),
      static_cast<int>(member.outputs().size()), PyUFunc_None, binding->name_.c_str(), "", 0));
  if (!ufunc) return ufunc;
  auto* const made = reinterpret_cast<PyUFuncObject*>(ufunc.get());
  made->obj = object.release();
  callOfNumPy = made->vectorcall;
  made->vectorcall = callUfunc;
  Py_SET_TYPE(ufunc.get(), &memberType);
  return ufunc;
}

PyObject* Binding::of(PyObject* ufunc) {
  if (!Py_IS_TYPE(ufunc, &memberType)) return nullptr;
  return reinterpret_cast<PyUFuncObject*>(ufunc)->obj;
}

bool addBinding(PyObject* module) {
  Py_SET_REFCNT(reinterpret_cast<PyObject*>(&type), 1);
  type.tp_name = "calvex._calvex.Binding";
  type.tp_basicsize = sizeof(BindingObject);
  type.tp_flags = Py_TPFLAGS_DEFAULT;
  type.tp_new = newBinding;
  type.tp_dealloc = deleteBinding;
  type.tp_getset = attributes;
  type.tp_doc = "A member bound to an engine.";
  // A ufunc that knows its inputs' names.
  Py_SET_REFCNT(reinterpret_cast<PyObject*>(&memberType), 1);
  memberType.tp_name = "calvex.Member";
  memberType.tp_base = &PyUFunc_Type;
  memberType.tp_flags = Py_TPFLAGS_DEFAULT;
  memberType.tp_getset = memberAttributes;
  return PyType_Ready(&type) == 0 && PyType_Ready(&memberType) == 0 &&
         PyModule_AddObjectRef(module, "Binding", reinterpret_cast<PyObject*>(&type)) == 0 &&
         PyModule_AddObjectRef(module, "Member", reinterpret_cast<PyObject*>(&memberType)) == 0;
}

}  // namespace calvex::python
