"""Engines: every member of the table in one's own units."""
import copyreg
import functools
import os

import numpy as np

from . import _calvex, units as _units
from ._members import docstring, members
from ._results import result_type


class Engine:
    """Every member of the table, in one's own units.

        steam = calvex.Engine(T="°C", P="bar")
        steam.HPT(100, 500)                      # a number
        steam.HPT(100, [480, 500, 520])          # an array
        steam.state(P=100, T=500)                # everything about a state
        steam.TurbineA(3374, 100, 10, 0.8, 5)    # a named tuple, with units

    Keywords choose units: quantities by letter or word (T, P, H, flow, power, ...), units as people
    write them; `units` takes the same as a dictionary. Members that compute numbers are NumPy
    ufuncs: they broadcast, take out= and where=, and work on pandas, xarray and dask.

    errors: what a failed call does. None: a scalar call raises CalvexError, in an array the element
    is NaN and a CalvexWarning counts the failures by reason (`reasons` has each). "raise", "warn"
    or "ignore" for both alike; each call takes errors= as well. With unit=True a call answers a
    Value.

    An engine may be used from any number of threads, pickled and copied.
    """

    def __init__(self, *, errors=None, units=None, **words):
        self.__dict__["_core"] = _calvex.Core()
        self.errors = errors
        for group, unit in {**(units or {}), **words}.items():
            _choose(self._core, _units.group(group), _units.find(group, unit))

    # Members ------------------------------------------------------------------------------------

    def __getattr__(self, name):
        kind = None if name.startswith("_") else members.kinds.get(name)
        if kind is None:
            raise AttributeError(f"an engine has no {name!r}{members.near(name)}")
        row = members.row(name)
        if kind in ("setting", "reading"):
            return _calvex.get(self._core, row.name)
        if kind == "method":
            return Method(self._core, row.name)
        # Found at once from now on.
        ufunc = _calvex.ufunc(self._core, row.name, docstring(row.name, self._unit))
        return self.__dict__.setdefault(name, ufunc)

    def __setattr__(self, name, value):
        kind = members.kinds.get(name)
        if name == "errors":
            self._core.errors = value
        elif kind in ("setting", "reading"):
            _calvex.put(self._core, name, value)
        elif kind is not None:
            raise AttributeError(f"{name} is a member and stays")
        else:
            raise AttributeError(f"an engine has no setting {name!r}{members.near(name)}")

    def __dir__(self):
        return sorted({*super().__dir__(), *members.kinds})

    @property
    def errors(self):
        """What a failed call does: None, "raise", "warn" or "ignore"."""
        return self._core.errors

    # States -------------------------------------------------------------------------------------

    def state(self, *, errors=None, **pair):
        """A state, or an array of them, from any pair of properties.

            s = steam.state(P=100, T=500)
            s.h, s.s, s.rho, s.x, s.phase, s.w

        The pair: P with T, h, s, u, rho, v or x; T with h, s, u, rho, v or x; h with s. Capital
        letters do as well.
        """
        from ._state import state
        return state(self, pair, errors)

    # What the engine has to tell ------------------------------------------------------------------

    def trace(self):
        """The record of scalar calls that left messages: a tree, as text and as HTML."""
        from ._trace import Trace
        return Trace(_calvex.trace(self._core))

    def reasons(self):
        """Why elements of the last array failed, in its shape; "" for those that did not."""
        return _calvex.reasons(self._core)

    # Units --------------------------------------------------------------------------------------

    def _unit(self, group):
        return _calvex.unit(self._core, group) if group >= 0 else ""

    def unit(self, what):
        """The unit of a quantity ("T", "flow") or of a member's result: the one of `HPT`, or a
        dictionary for several. "" where there is none."""
        if members.kinds.get(what) == "ufunc":
            outputs = members.row(what).outputs
            if len(outputs) == 1:
                return self._unit(outputs[0].group)
            return {slot.name: self._unit(slot.group) for slot in outputs}
        return self._unit(_units.group(what))

    # Copies -------------------------------------------------------------------------------------

    def __reduce__(self):
        return _restored, _content(self._core)

    def __copy__(self):
        return _restored(*_content(self._core))

    def __deepcopy__(self, memo):
        return self.__copy__()

    def __repr__(self):
        chosen = {number: unit[0] for number, unit in sorted(self._core.choices.items())}
        words = [f"{_units.keyword(number)}={unit!r}" for number, unit in chosen.items()]
        if self.errors is not None:
            words.append(f"errors={self.errors!r}")
        return f"calvex.Engine({', '.join(words)})"


class Method:
    """A member that takes or gives texts, changes something or is a constant."""

    def __init__(self, core, name):
        self._core = core
        self.__name__ = name
        self.__doc__ = docstring(name)

    def __call__(self, *arguments):
        named, choice = _named_units(self.__name__, arguments)
        if choice is not None:  # a unit that the catalogue may lack
            _choose(self._core, *choice)
            return None
        result = _calvex.call(self._core, self.__name__, named)
        if self.__name__ == "SetCustomUserUnitIndex":
            group, name, factor, offset = named
            self._core.choices[group] = _units.Unit(name, factor, offset, False)
        return result

    def __repr__(self):
        return f"<member {self.__name__}>"

    def __reduce__(self):
        return getattr, (_restored(*_content(self._core)), self.__name__)


# Members that take a quantity or units take them in the words that people use.
def _named_units(name, arguments):
    arguments = list(arguments)
    if name in ("SetUserUnit", "SetUserUnitIndex") and len(arguments) == 2:
        number = _units.group(arguments[0])
        return arguments, (number, _units.find(number, arguments[1]))
    if name == "GetUserUnit" and len(arguments) == 1:
        arguments[0] = _units.keyword(_units.group(arguments[0]))
    if name == "Convert" and len(arguments) == 4:
        number = _units.group(arguments[0])
        arguments[0] = _units.keyword(number)
        arguments[1:3] = [_units.find(number, unit).name for unit in arguments[1:3]]
    return tuple(arguments), None


def _choose(core, number, unit):
    _calvex.choose_unit(core, number, *unit)
    core.choices[number] = unit


# The units and settings of a core, from which another can be made: in the order of _restored.
def _content(core):
    settings = tuple((name, _calvex.get(core, name)) for name, kind in members.kinds.items()
                     if kind == "setting")
    return core.errors, tuple(sorted(core.choices.items())), settings


def _restored(errors, choices, settings):
    engine = Engine(errors=errors)
    core = engine._core
    for name, value in settings:
        if _calvex.get(core, name) != value:
            _calvex.put(core, name, value)
    for number, unit in choices:
        _choose(core, number, _units.Unit(*unit))
    return engine


@functools.lru_cache(maxsize=64)
def _restored_ufunc(name, errors, choices, settings):
    """A member of a pickled engine. Tasks that share its content share the engine."""
    return getattr(_restored(errors, choices, settings), name)


_numpys_reduction = copyreg.dispatch_table[np.ufunc]


def _reduce_ufunc(ufunc):
    binding = _calvex.binding(ufunc)
    if binding is None:
        return _numpys_reduction(ufunc)
    return _restored_ufunc, (binding.name, *_content(binding.core))


copyreg.pickle(np.ufunc, _reduce_ufunc)


# Hooks of the extension ---------------------------------------------------------------------------

def _result_type(core, name):
    row = members.row(name)
    return result_type(name, tuple(slot.name for slot in row.outputs),
                       tuple(slot.group for slot in row.outputs),
                       tuple(_calvex.unit(core, slot.group) if slot.group >= 0 else ""
                             for slot in row.outputs))


def _others(binding, ufunc, arguments, words):
    from ._others import call
    return call(binding, ufunc, arguments, words)


_calvex.set_hooks(_others, _result_type)
os.register_at_fork(before=_calvex.before_fork, after_in_parent=_calvex.after_fork,
                    after_in_child=_calvex.after_fork)

#: The engine of the module's own functions: model units.
default = Engine()
