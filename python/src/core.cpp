#include "core.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <new>

namespace calvex::python {

namespace {

// All engines, for the fork. The lock is taken with or without the interpreter's, never while an
// engine is held.
std::mutex registryMutex;
std::list<Core*>& registry() {
  static std::list<Core*> cores;
  return cores;
}

PyObject* errorType = nullptr;
PyObject* warningType = nullptr;

constexpr std::array<const char*, 3> errorNames = {"raise", "warn", "ignore"};

}  // namespace

void lock(std::mutex& mutex) {
  if (mutex.try_lock()) return;
  if (PyGILState_Check() == 0) return mutex.lock();
  const Unlocked unlocked;
  mutex.lock();
}

bool readErrors(PyObject* object, Errors& errors) {
  if (object == Py_None) {
    errors = Errors::byKind;
    return true;
  }
  for (std::size_t i = 0; PyUnicode_Check(object) && i < errorNames.size(); ++i) {
    if (PyUnicode_CompareWithASCIIString(object, errorNames.at(i)) != 0) continue;
    errors = static_cast<Errors>(i + 1);
    return true;
  }
  PyErr_Format(
      PyExc_ValueError,
      R"(errors is "raise", "warn", "ignore" or None (scalars raise, arrays warn), not %R)",
      object);
  return false;
}

Ref errorsText(Errors errors) {
  if (errors == Errors::byKind) return Ref::to(Py_None);
  return unicode(errorNames.at(static_cast<std::size_t>(errors) - 1));
}

const ChunkedLoop& allCores() {
  static const ChunkedLoop loop = [] {
    ChunkedLoop made;
    const char* const threads = std::getenv("CALVEX_THREADS");
    if (threads != nullptr) {
      made.threads = static_cast<unsigned>(std::clamp(std::atoi(threads), 0, 1024));
    }
    return made;
  }();
  return loop;
}

Core::Core() {
  engine_.SetSatPolish(2);  // the exact saturation line, as the direct road and the command line
  engine_.SetTraceLevel(1);
  lock(registryMutex);
  const std::unique_lock held(registryMutex, std::adopt_lock);
  place_ = registry().insert(registry().end(), this);
}

Core::~Core() {
  lock(registryMutex);
  const std::unique_lock held(registryMutex, std::adopt_lock);
  registry().erase(place_);
}

Core::Loan::Loan(Core& core) : core_(core) {
  lock(core.mutex_);
  const std::unique_lock held(core.mutex_, std::adopt_lock);
  generation_ = core.generation_;
  if (!core.idle_.empty()) {
    engine_ = std::move(core.idle_.back());
    core.idle_.pop_back();
    return;
  }
  engine_ = std::make_unique<ZvThermoInt>();
  engine_->TakeSettings(core.engine_);
}

Core::Loan::~Loan() {
  lock(core_.mutex_);
  const std::unique_lock held(core_.mutex_, std::adopt_lock);
  if (generation_ == core_.generation_) core_.idle_.push_back(std::move(engine_));
}

void Core::beforeFork() {
  const Unlocked unlocked;
  registryMutex.lock();
  for (Core* core : registry()) core->mutex_.lock();
}

void Core::afterFork() {
  for (Core* core : registry()) core->mutex_.unlock();
  registryMutex.unlock();
}

PyObject* calvexError() { return errorType; }
PyObject* calvexWarning() { return warningType; }

Failure failureOf(const ZvThermoInt& engine, const EntryOfCall& left) {
  const Diagnostics& diagnostics = engine.diagnostics();
  if (left.hasReason()) return {diagnostics.lastError(), diagnostics.cause()};
  if (diagnostics.tracing()) return {};
  return {"tracing is off, so no reason was recorded (FunctionCallTracing = 1 turns it on).", {}};
}

std::string withCause(std::string_view reason, std::string_view cause) {
  std::string all(reason);
  if (!cause.empty()) all.append(" ").append(cause);
  return all;
}

void raiseError(PyObject* text, std::string_view member, std::string_view reason,
                std::string_view cause) {
  const Ref name = unicode(member);
  const Ref why = unicode(reason);
  const Ref behind = unicode(cause);
  if (!name || !why || !behind) return;
  const Ref error(PyObject_CallOneArg(errorType, text));
  if (!error || PyObject_SetAttrString(error.get(), "member", name.get()) < 0 ||
      PyObject_SetAttrString(error.get(), "reason", why.get()) < 0 ||
      PyObject_SetAttrString(error.get(), "cause", behind.get()) < 0) {
    return;
  }
  PyErr_SetObject(errorType, error.get());
}

Ref failureText(std::string_view member, std::string_view reason, std::string_view cause) {
  if (reason.empty()) reason = "the engine gave no reason.";
  return unicode(std::string(member) + " failed: " + withCause(reason, cause));
}

PyObject* raiseFailure(std::string_view member, std::string_view reason, std::string_view cause) {
  if (const Ref text = failureText(member, reason, cause)) {
    raiseError(text.get(), member, reason, cause);
  }
  return nullptr;
}

namespace {

PyObject* newCore(PyTypeObject* type, PyObject* /*arguments*/, PyObject* /*words*/) {
  Ref self(type->tp_alloc(type, 0));
  if (!self) return nullptr;
  try {
    reinterpret_cast<CoreObject*>(self.get())->core = new Core;
  } catch (const std::exception& failure) {
    PyErr_SetString(PyExc_RuntimeError, failure.what());
    return nullptr;
  }
  reinterpret_cast<CoreObject*>(self.get())->choices = PyDict_New();
  return PyErr_Occurred() == nullptr ? self.release() : nullptr;
}

void deleteCore(PyObject* self) {
  PyTypeObject* type = Py_TYPE(self);
  delete reinterpret_cast<CoreObject*>(self)->core;
  Py_XDECREF(reinterpret_cast<CoreObject*>(self)->choices);
  type->tp_free(self);
}

PyObject* getErrors(PyObject* self, void* /*closure*/) {
  return errorsText(coreOf(self).errors).release();
}

int setErrors(PyObject* self, PyObject* value, void* /*closure*/) {
  if (value == nullptr) {
    PyErr_SetString(PyExc_AttributeError, "errors cannot be deleted");
    return -1;
  }
  return readErrors(value, coreOf(self).errors) ? 0 : -1;
}

PyObject* getGeneration(PyObject* self, void* /*closure*/) {
  return PyLong_FromUnsignedLong(coreOf(self).generation());
}

PyObject* getChoices(PyObject* self, void* /*closure*/) {
  return Py_NewRef(reinterpret_cast<CoreObject*>(self)->choices);
}

PyGetSetDef attributes[] = {
    {"choices", getChoices, nullptr, "The units chosen, by group.", nullptr},
    {"generation", getGeneration, nullptr,
     "Another number after units or settings may have changed.", nullptr},
    {"errors", getErrors, setErrors,
     R"(What a failed call does: "raise", "warn", "ignore"; None: scalars raise, arrays warn.)",
     nullptr},
    {nullptr, nullptr, nullptr, nullptr, nullptr},
};

PyTypeObject type{};

}  // namespace

PyTypeObject* coreType() { return &type; }

bool addCore(PyObject* module) {
  Py_SET_REFCNT(reinterpret_cast<PyObject*>(&type), 1);
  type.tp_name = "calvex._calvex.Core";
  type.tp_basicsize = sizeof(CoreObject);
  type.tp_flags = Py_TPFLAGS_DEFAULT;
  type.tp_new = newCore;
  type.tp_dealloc = deleteCore;
  type.tp_getset = attributes;
  type.tp_doc = "An engine with its units and settings, which calvex.Engine has.";
  if (PyType_Ready(&type) < 0) return false;
  errorType = PyErr_NewExceptionWithDoc(
      "calvex.CalvexError",
      "A call failed; `reason` is the engine's text in the user's units, `cause` what is behind "
      "it\n"
      "where the text does not say so (else \"\"), `member` what was called.",
      PyExc_ValueError, nullptr);
  warningType = PyErr_NewExceptionWithDoc(
      "calvex.CalvexWarning", "Elements of an array failed and are NaN; counts them by reason.",
      PyExc_UserWarning, nullptr);
  return errorType != nullptr && warningType != nullptr &&
         PyModule_AddObjectRef(module, "Core", reinterpret_cast<PyObject*>(&type)) == 0 &&
         PyModule_AddObjectRef(module, "CalvexError", errorType) == 0 &&
         PyModule_AddObjectRef(module, "CalvexWarning", warningType) == 0;
}

}  // namespace calvex::python
