"""Calls with arguments that are neither numbers nor arrays of them, and with words for results."""
import sys

import numpy as np

from . import _calvex
from ._members import members
from ._results import Results
from .units import Value


def call(binding, ufunc, arguments, words):
    """The result, or NotImplemented where NumPy finds the way by itself."""
    if words.get("unit"):
        return _with_unit(binding, ufunc, arguments, {**words, "unit": False})
    pint = sys.modules.get("pint")
    if pint is not None and any(isinstance(argument, pint.Quantity) for argument in arguments):
        from ._pint import call as call_pint
        return call_pint(binding, ufunc, arguments, words)
    if any(isinstance(argument, Value) for argument in arguments):
        return ufunc(*_in_units(binding, arguments), **words)
    dask = sys.modules.get("dask.array")
    if dask is not None and ufunc.nout > 1 and any(isinstance(a, dask.Array) for a in arguments):
        # dask maps functions with several results over blocks by their signature only.
        signature = ",".join(["()"] * ufunc.nin) + "->" + ",".join(["()"] * ufunc.nout)
        results = dask.apply_gufunc(ufunc, signature, *arguments,
                                    output_dtypes=[float] * ufunc.nout, **words)
        return tuple.__new__(binding.result_type, results)
    pandas = sys.modules.get("pandas")
    if pandas is not None and len({type(argument) for argument in arguments}) > 1:
        series = [a for a in arguments if isinstance(a, pandas.Series)]
        if len(series) > 1:
            # pandas aligns several series, but not while there is anything else among them.
            return ufunc(*(a if isinstance(a, pandas.Series) else pandas.Series(a, series[0].index)
                           for a in arguments), **words)
    if "out" in words:
        return _into(ufunc, arguments, words)
    return NotImplemented


def _with_unit(binding, ufunc, arguments, words):
    result = ufunc(*arguments, **words)
    if isinstance(result, Results):
        return type(result)(tuple(result.value(name) for name in result._fields))
    group = members.row(binding.name).outputs[0].group
    return Value(result, _calvex.unit(binding.core, group) if group >= 0 else "", group)


def _in_units(binding, arguments):
    for slot, argument in zip(members.row(binding.name).inputs, arguments):
        if isinstance(argument, Value) and slot.group >= 0:
            argument = argument.to(_calvex.unit(binding.core, slot.group)).value
        yield argument


def _into(ufunc, arguments, words):
    """Targets of another type than double are filled afterwards, so that a failed element is known
    by its place."""
    targets = words["out"] if isinstance(words["out"], tuple) else (words["out"],)
    if not any(isinstance(t, np.ndarray) and t.dtype != float for t in targets):
        return NotImplemented
    words = {name: value for name, value in words.items() if name != "out"}
    where = words.get("where", True)
    results = ufunc(*arguments, **words)
    for target, result in zip(targets, results if ufunc.nout > 1 else (results,)):
        if target is not None:
            np.copyto(target, result, casting="same_kind", where=where)
    return targets if ufunc.nout > 1 else targets[0]
