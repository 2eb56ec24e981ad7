"""Calls with arguments that are neither numbers nor arrays of them, and with words for results."""
import functools
import numbers
import sys

import numpy as np

from . import _calvex
from ._members import members
from ._results import Results
from . import units as _units
from ._value import Value


def call(binding, ufunc, arguments, words):
    """The result, or NotImplemented where NumPy finds the way by itself."""
    if "unit" in words:
        unit = words["unit"]
        rest = {name: value for name, value in words.items() if name != "unit"}
        return _with_unit(binding, ufunc, arguments, rest, unit)
    pint = sys.modules.get("pint")
    if pint is not None and any(isinstance(argument, pint.Quantity) for argument in arguments):
        from ._pint import call as call_pint
        return call_pint(binding, ufunc, arguments, words)
    if any(isinstance(argument, Value) for argument in arguments):
        return ufunc(*_in_units(binding, arguments), **words)
    if any(_is_exact(argument) for argument in arguments):
        return ufunc(*(float(a) if _is_exact(a) else a for a in arguments), **words)
    dask = sys.modules.get("dask.array")
    if dask is not None and any(isinstance(a, dask.Array) for a in arguments):
        # When the blocks are computed nobody else remembers the policy of this call.
        policy = words.get("errors") or _calvex.errors_of_call()
        if policy is not None:
            words = {**words, "errors": policy}
        if ufunc.nout == 1:
            if policy is None or len(arguments) != ufunc.nin or len(words) > 1:
                return NotImplemented
            return dask.core.elemwise(functools.partial(ufunc, **words), *arguments, dtype=float)
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
    if (len(arguments) == ufunc.nin and "where" not in words
            and any(isinstance(a, np.ma.MaskedArray) for a in arguments)):
        return _masked(ufunc, arguments, words)
    if "out" in words:
        return _into(ufunc, arguments, words)
    if "where" in words and len(arguments) == ufunc.nin and not any(
            hasattr(type(argument), "__array_ufunc__") and not isinstance(argument, _NUMPYS)
            for argument in arguments):
        return _with_nan(ufunc, arguments, words)
    return NotImplemented


_NUMPYS = (np.ndarray, np.generic)


def _with_nan(ufunc, arguments, words):
    """What is not computed is NaN, and not whatever stood in the memory."""
    shape = np.broadcast_shapes(*map(np.shape, (*arguments, words["where"])))
    outs = tuple(np.full(shape, np.nan) for _ in range(ufunc.nout))
    results = ufunc(*arguments, **words, out=outs)
    if shape:
        return results
    return type(results)(r[()] for r in results) if ufunc.nout > 1 else results[()]


def _is_exact(argument):
    """Decimals and fractions."""
    return (isinstance(argument, numbers.Number)
            and not isinstance(argument, (int, float, complex, np.generic)))


def _with_unit(binding, ufunc, arguments, words, unit):
    """unit=True: with the engine's unit; a unit's name, or names by result: in that unit."""
    outputs = members.row(binding.name).outputs
    wanted = _wanted_units(binding.name, outputs, unit)
    result = ufunc(*arguments, **words)
    if wanted is None:
        return result
    if isinstance(result, Results):
        values = {name: result.value(name) for name in result._fields}
        return type(result)(value.to(wanted[name]) if name in wanted else value
                            for name, value in values.items())
    group = outputs[0].group
    value = Value(result, _calvex.unit(binding.core, group) if group >= 0 else "", group)
    return value.to(wanted[outputs[0].name]) if wanted else value


def _wanted_units(name, outputs, unit):
    """Units by result; none of them: the engine's; None: bare numbers."""
    if unit is None or isinstance(unit, (bool, np.bool_)):
        return {} if unit else None
    groups = {slot.name: slot.group for slot in outputs}
    if isinstance(unit, str) and len(groups) == 1:
        unit = {outputs[0].name: unit}
    if isinstance(unit, str):
        raise ValueError(f"{name} has several results, and {unit!r} cannot be the unit of all: "
                         f"unit=True, or {{{outputs[0].name!r}: {unit!r}}}")
    if not isinstance(unit, dict):
        raise TypeError(f"unit is True, the name of a unit or names by result, not {unit!r}")
    for result, wanted in unit.items():
        if result not in groups:
            raise ValueError(f"{name} has no result {result!r}; it has {', '.join(groups)}")
        if groups[result] < 0:
            raise ValueError(f"{result} of {name} is a number without a unit")
        _units.find(groups[result], wanted)
    return unit


def _masked(ufunc, arguments, words):
    """What is masked is not computed and stays masked."""
    mask = np.logical_or.reduce(np.broadcast_arrays(*map(np.ma.getmaskarray, arguments)))
    plain = [np.ma.getdata(argument) for argument in arguments]
    results = ufunc(*plain, **words, where=~mask)
    if "out" in words:
        return results
    if ufunc.nout == 1:
        return np.ma.array(results, mask=mask)
    return type(results)(np.ma.array(result, mask=mask) for result in results)


def _in_units(binding, arguments):
    for slot, argument in zip(members.row(binding.name).inputs, arguments):
        if isinstance(argument, Value):
            unit = _calvex.unit(binding.core, slot.group) if slot.group >= 0 else ""
            argument = argument.number_in(slot.group, unit)
        yield argument
    yield from arguments[len(members.row(binding.name).inputs):]


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
