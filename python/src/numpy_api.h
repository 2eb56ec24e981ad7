/// \file
/// NumPy's two interfaces; one source (module.cpp) fills their tables for all.
#pragma once

#include "references.h"

#define NPY_NO_DEPRECATED_API NPY_1_7_API_VERSION
#define PY_ARRAY_UNIQUE_SYMBOL calvex_array_api
#define PY_UFUNC_UNIQUE_SYMBOL calvex_ufunc_api
#ifndef CALVEX_IMPORTS_NUMPY
#define NO_IMPORT_ARRAY
#define NO_IMPORT_UFUNC
#endif
#include <numpy/arrayobject.h>
#include <numpy/arrayscalars.h>
#include <numpy/ufuncobject.h>
