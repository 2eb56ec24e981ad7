/// \file
/// The functions of the module; each answers a new reference, or null with an exception.
#pragma once

#include "core.h"
#include "server/member_table.h"

namespace calvex::python {

// calls.cpp: members that are no ufuncs, and what an engine has to tell ---------------------------
PyObject* callMember(PyObject* module, PyObject* arguments);
PyObject* getSetting(PyObject* module, PyObject* arguments);
PyObject* putSetting(PyObject* module, PyObject* arguments);
PyObject* trace(PyObject* module, PyObject* object);
PyObject* reasons(PyObject* module, PyObject* object);

// tables.cpp: the member table, its explanations, and units ---------------------------------------
PyObject* members(PyObject* module, PyObject* none);
PyObject* explain(PyObject* module, PyObject* name);
PyObject* groups(PyObject* module, PyObject* none);
PyObject* findGroup(PyObject* module, PyObject* word);
PyObject* findUnit(PyObject* module, PyObject* arguments);
PyObject* chooseUnit(PyObject* module, PyObject* arguments);
PyObject* unitOf(PyObject* module, PyObject* arguments);
PyObject* conversion(PyObject* module, PyObject* arguments);

// states.cpp: states by the direct road -----------------------------------------------------------
PyObject* states(PyObject* module, PyObject* arguments);
PyObject* stateReason(PyObject* module, PyObject* arguments);

/// The core of an argument; null with an exception.
[[nodiscard]] Core* coreArgument(PyObject* object);
/// The member of that name; null with an exception.
[[nodiscard]] const Member* memberArgument(PyObject* name);

}  // namespace calvex::python
