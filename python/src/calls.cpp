#include <limits>

#include "functions.h"
#include "numpy_api.h"
#include "server/member_columns.h"
#include "server/member_table.h"
#include "server/zv_calvex.h"
#include "ui/trace_view.h"

namespace calvex::python {

namespace {

// Raises a TypeError that names the argument: false.
bool refuse(std::string_view name, const char* wanted, PyObject* object) {
  if (const Ref text = unicode(name)) {
    PyErr_Format(PyExc_TypeError, "%U is to be %s, not %R", text.get(), wanted, object);
  }
  return false;
}

// An argument as the parameter's type; false with an exception.
bool fromPython(PyObject* object, std::string_view name, ValueType type, Value& value) {
  switch (type) {
    case ValueType::real: {
      const double number = PyFloat_AsDouble(object);
      value = number;
      if (number != -1.0 || PyErr_Occurred() == nullptr) return true;
      return refuse(name, "a number", object);
    }
    case ValueType::shortInteger:
    case ValueType::longInteger: {
      const long number = PyLong_AsLong(object);
      if (number == -1 && PyErr_Occurred() != nullptr) {
        return PyErr_ExceptionMatches(PyExc_OverflowError) == 0 &&
               refuse(name, "a whole number", object);
      }
      value = static_cast<double>(number);
      if (coerce(value, type)) return true;
      PyErr_Format(PyExc_OverflowError, "%ld is too large", number);
      return false;
    }
    case ValueType::text: {
      if (!PyUnicode_Check(object)) return refuse(name, "a text", object);
      std::optional<std::string> text = encoded(object);
      if (text) value = std::move(*text);
      return text.has_value();
    }
    case ValueType::array:
      break;
  }
  PyErr_SetString(PyExc_TypeError, "arrays are results");
  return false;
}

Ref toPython(const Cell& cell) {
  if (const auto* number = std::get_if<double>(&cell)) return Ref(PyFloat_FromDouble(*number));
  return unicode(std::get<std::string>(cell));
}

Ref toPython(const Value& value) {
  if (const auto* number = std::get_if<double>(&value)) return Ref(PyFloat_FromDouble(*number));
  if (const auto* number = std::get_if<short>(&value)) return Ref(PyLong_FromLong(*number));
  if (const auto* number = std::get_if<int>(&value)) return Ref(PyLong_FromLong(*number));
  if (const auto* text = std::get_if<std::string>(&value)) return unicode(*text);
  if (const auto* array = std::get_if<ResultArray>(&value)) {
    Ref rows(PyList_New(0));
    for (const auto& cells : *array) {
      const Ref row(PyList_New(0));
      for (const Cell& cell : cells) {
        const Ref item = toPython(cell);
        if (!item || PyList_Append(row.get(), item.get()) < 0) return {};
      }
      if (!rows || PyList_Append(rows.get(), row.get()) < 0) return {};
    }
    return rows;
  }
  return Ref::to(Py_None);
}

}  // namespace

Core* coreArgument(PyObject* object) {
  if (PyObject_TypeCheck(object, coreType())) return &coreOf(object);
  PyErr_Format(PyExc_TypeError, "expected an engine, not %R", object);
  return nullptr;
}

const Member* memberArgument(PyObject* name) {
  const char* const text = PyUnicode_AsUTF8(name);
  if (text == nullptr) return nullptr;
  const Member* const member = calvex::findMember(text);
  if (member == nullptr) PyErr_Format(PyExc_AttributeError, "there is no member %R", name);
  return member;
}

PyObject* callMember(PyObject* /*module*/, PyObject* arguments) {
  PyObject *object = nullptr, *name = nullptr, *given = nullptr;
  if (!PyArg_ParseTuple(arguments, "OUO!", &object, &name, &PyTuple_Type, &given)) return nullptr;
  Core* const core = coreArgument(object);
  const Member* const member = core == nullptr ? nullptr : memberArgument(name);
  if (member == nullptr) return nullptr;
  const auto parameters = member->parameters();
  std::vector<Value> values(parameters.size());
  const Py_ssize_t count = PyTuple_GET_SIZE(given);
  Py_ssize_t next = 0;
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    if (parameters[i].direction != Direction::in) {
      if (parameters[i].type == ValueType::real) {
        values[i] = std::numeric_limits<double>::quiet_NaN();
      }
      continue;
    }
    if (next < count && !fromPython(PyTuple_GET_ITEM(given, next), parameters[i].name,
                                    parameters[i].type, values[i])) {
      return nullptr;
    }
    ++next;
  }
  if (next != count) {
    PyErr_Format(PyExc_TypeError, "%zd arguments were given, %zd are taken", count, next);
    return nullptr;
  }
  Failure failure;
  const auto invoke = [&](ZvThermoInt& engine) {
    const EntryOfCall left(engine.diagnostics());
    const int answer = member->invoke(engine, values);
    if (answer == 0) failure = failureOf(engine, left);
    return answer;
  };
  const bool constant = NumericMember::of(*member).has_value();
  const int success = constant ? core->with(invoke) : core->change(invoke);
  if (success == 0) return raiseFailure(member->name, failure.reason, failure.cause);
  const Ref results(PyList_New(0));
  for (std::size_t i = 0; results && i < parameters.size(); ++i) {
    if (!parameters[i].isOutput()) continue;
    const Ref result = toPython(values[i]);
    if (!result || PyList_Append(results.get(), result.get()) < 0) return nullptr;
  }
  if (!results) return nullptr;
  if (PyList_GET_SIZE(results.get()) == 0) Py_RETURN_NONE;
  if (PyList_GET_SIZE(results.get()) == 1) return Py_NewRef(PyList_GET_ITEM(results.get(), 0));
  return PyList_AsTuple(results.get());
}

PyObject* getSetting(PyObject* /*module*/, PyObject* arguments) {
  PyObject *object = nullptr, *name = nullptr;
  if (!PyArg_ParseTuple(arguments, "OU", &object, &name)) return nullptr;
  Core* const core = coreArgument(object);
  const Member* const member = core == nullptr ? nullptr : memberArgument(name);
  if (member == nullptr) return nullptr;
  Value value;
  core->with([&](ZvThermoInt& engine) { return member->invoke(engine, {&value, 1}); });
  return toPython(value).release();
}

PyObject* putSetting(PyObject* /*module*/, PyObject* arguments) {
  PyObject *object = nullptr, *name = nullptr, *given = nullptr;
  if (!PyArg_ParseTuple(arguments, "OUO", &object, &name, &given)) return nullptr;
  Core* const core = coreArgument(object);
  const Member* const member = core == nullptr ? nullptr : memberArgument(name);
  if (member == nullptr) return nullptr;
  if (member->put == nullptr) {
    PyErr_Format(PyExc_AttributeError, "%U can only be read", name);
    return nullptr;
  }
  Value value;
  if (!fromPython(given, member->name, member->parameters()[0].type, value)) return nullptr;
  Failure failure;
  const int success = core->change([&](ZvThermoInt& engine) {
    const EntryOfCall left(engine.diagnostics());
    const int answer = member->put(engine, {&value, 1});
    if (answer == 0) failure = failureOf(engine, left);
    return answer;
  });
  if (success == 0) return raiseFailure(member->name, failure.reason, failure.cause);
  Py_RETURN_NONE;
}

PyObject* trace(PyObject* /*module*/, PyObject* object) {
  Core* const core = coreArgument(object);
  if (core == nullptr) return nullptr;
  const TraceView view =
      core->with([](ZvThermoInt& engine) { return TraceView(engine.diagnostics()); });
  Ref nodes(PyList_New(0));
  for (const TraceView::Call& call : view.calls()) {
    for (const TraceView::Node& node : call.nodes) {
      const Ref text = unicode(node.text);
      const Ref row(text ? Py_BuildValue("(iOi)", node.depth, text.get(), int(node.image))
                         : nullptr);
      if (!nodes || !row || PyList_Append(nodes.get(), row.get()) < 0) return nullptr;
    }
  }
  return nodes.release();
}

PyObject* reasons(PyObject* /*module*/, PyObject* object) {
  Core* const core = coreArgument(object);
  if (core == nullptr) return nullptr;
  const Reasons& reasons = core->reasons;
  std::vector<npy_intp> shape(reasons.shape.begin(), reasons.shape.end());
  const Ref array(PyArray_SimpleNew(static_cast<int>(shape.size()), shape.data(), NPY_OBJECT));
  const Ref none = unicode("");
  if (!array || !none) return nullptr;
  auto* const all = reinterpret_cast<PyArrayObject*>(array.get());
  auto** const cells = static_cast<PyObject**>(PyArray_DATA(all));
  for (npy_intp i = 0; i < PyArray_SIZE(all); ++i) Py_XSETREF(cells[i], Py_NewRef(none.get()));
  std::vector<Ref> texts;
  for (const std::string& text : reasons.texts) {
    texts.push_back(unicode(text));
    if (!texts.back()) return nullptr;
  }
  for (const Reasons::Row& row : reasons.rows) {
    Py_SETREF(cells[row.index], Py_NewRef(texts[row.text].get()));
  }
  return PyArray_Return(reinterpret_cast<PyArrayObject*>(Py_NewRef(array.get())));
}

}  // namespace calvex::python
