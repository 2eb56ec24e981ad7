"""Engines: every member of the table in one's own units."""
import copyreg
import functools
import os
import types

from . import _calvex, units as _units
from ._members import call_text, docstring, members, signature
from ._others import call as others
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

    def __init__(self, *unnamed, errors=None, units=None, **words):
        if unnamed:
            raise TypeError('units are chosen by their quantity: Engine(T="°C", P="bar")')
        self.__dict__["_core"] = _calvex.Core()
        self.errors = errors
        if not isinstance(units, (dict, type(None))):
            raise TypeError(f'units is a dictionary such as {{"T": "°C"}}, not {units!r}')
        chosen = {}
        for word, unit in [*(units or {}).items(), *words.items()]:
            number = _units.group(word)
            if number in chosen:
                raise ValueError(f"{chosen[number]} and {word} are the same quantity: one unit")
            chosen[number] = word
            _choose(self._core, number, _units.find(number, unit))

    # Members ------------------------------------------------------------------------------------

    def __getattr__(self, name):
        kind = None if name.startswith("_") else members.kinds.get(name)
        if kind is None:
            # With its name set Python makes no guess of its own beside this one.
            raise AttributeError(f"an engine has no {name!r}{members.near(name)}", name=name, obj=None)
        row = members.row(name)
        if kind in ("setting", "reading"):
            return _calvex.get(self._core, row.name)
        if kind == "method":
            return Method(self._core, row.name)
        # Found at once from now on.
        return self.__dict__.setdefault(name, _calvex.ufunc(self._core, row.name))

    def __setattr__(self, name, value):
        kind = members.kinds.get(name)
        if name == "errors":
            self._core.errors = value
        elif kind in ("setting", "reading"):
            _check_setting(name, value)
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

    def state(self, *unnamed, errors=None, **pair):
        """A state, or an array of them, from any pair of properties.

            s = steam.state(P=100, T=500)
            s.h, s.s, s.rho, s.x, s.phase, s.w

        The pair: P with T, h, s, u, rho, v or x; T with h, s, u, rho, v or x; h with s. Capital
        letters do as well, and words: state(pressure=100, temperature=500). Its phase is "liquid", "vapour", "two-phase" or, above the critical
        temperature or the critical pressure, "supercritical".
        """
        if unnamed:
            raise TypeError("a state is given by two properties with their names: "
                            "state(P=10, T=773.15)")
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

    def _kept(self):
        """A copy with the units and settings of the moment; the same one until they change."""
        generation, kept = self.__dict__.get("_copy", (None, None))
        now = self._core.generation  # before the copy: another thread may change units meanwhile
        if generation != now:
            kept = self.__copy__()
            kept.__dict__["_copy"] = (kept._core.generation, None)  # itself
            self.__dict__["_copy"] = (now, kept)
        return self if kept is None else kept

    # Copies -------------------------------------------------------------------------------------

    def __reduce__(self):
        return _restored, _content(self._core)

    def __copy__(self):
        return _restored(*_content(self._core))

    def __deepcopy__(self, memo):
        return self.__copy__()

    def __repr__(self):
        chosen = {number: unit[0] for number, unit in sorted(self._core.choices.items())}
        words = [f"{_units.keyword(number).replace(' ', '_')}={unit!r}"
                 for number, unit in chosen.items()]
        if self.errors is not None:
            words.append(f"errors={self.errors!r}")
        return f"calvex.Engine({', '.join(words)})"


class Method:
    """A member that takes or gives texts, changes something or is a constant."""

    def __init__(self, core, name):
        self._core = core
        self.__name__ = name
        self.__doc__ = docstring(name)
        self.__signature__ = signature(name)

    def __call__(self, *arguments, **words):
        if words:
            raise TypeError(f"{call_text(self.__name__)} takes its arguments by their place, without "
                            "their names")
        if len(arguments) != len(self.__signature__.parameters):
            from ._misuse import wrong_count
            raise TypeError(wrong_count(self.__name__, len(arguments)))
        named, choice = _named_units(self.__name__, arguments)
        if choice is not None:  # a unit that the catalogue may lack
            _choose(self._core, *choice)
            return None
        if self.__name__ == "SetCustomUserUnitIndex" and _calvex.get(self._core, "AppLevel") != 3:
            raise ValueError("units of one's own need AppLevel 3: steam.AppLevel = 3")
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
    if name in ("GetUserUnitIndex", "SetCustomUserUnitIndex"):
        arguments[0] = _units.group(arguments[0])
    if name == "GetUserUnit" and len(arguments) == 1:
        arguments[0] = _units.keyword(_units.group(arguments[0]))
    if name == "Convert" and len(arguments) == 4:
        number = _units.group(arguments[0])
        arguments[0] = _units.keyword(number)
        arguments[1:3] = [_units.find(number, unit).name for unit in arguments[1:3]]
    return tuple(arguments), None


# What the engine would take in silence for something else, or refuse without a word: AppLevel 1 is a
# units server, which there is on Windows.
_SETTINGS = {"SatPolish": (0, 1, 2), "AppLevel": (0, 2, 3)}


def _check_setting(name, value):
    allowed = _SETTINGS.get(name)
    if allowed and value not in allowed:
        raise ValueError(f"{name} is {', '.join(map(str, allowed[:-1]))} or {allowed[-1]}, not "
                         f"{value!r}")


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


def _reduce_ufunc(ufunc):
    binding = _calvex.binding(ufunc)
    return _restored_ufunc, (binding.name, *_content(binding.core))


copyreg.pickle(_calvex.Member, _reduce_ufunc)


# Hooks of the extension ---------------------------------------------------------------------------

def _result_type(core, name):
    row = members.row(name)
    return result_type(name, tuple(slot.name for slot in row.outputs),
                       tuple(slot.group for slot in row.outputs),
                       tuple(_calvex.unit(core, slot.group) if slot.group >= 0 else ""
                             for slot in row.outputs))


def _doc(binding):
    def user(group, value):
        if group < 0:
            return value
        factor, offset = _calvex.conversion(binding.core, group)
        return (value - offset) / factor

    def unit(group):
        return _calvex.unit(binding.core, group) if group >= 0 else ""
    return docstring(binding.name, unit, user,
                     "calvex" if binding.core is default._core else "engine")


def _misuse(binding, ufunc, arguments, words):
    from ._misuse import misuse
    return misuse(binding, ufunc, arguments, words)


_calvex.set_hooks(types.SimpleNamespace(
    others=others, misuse=_misuse, result_type=_result_type, doc=_doc,
    signature=lambda binding: signature(binding.name)))
os.register_at_fork(before=_calvex.before_fork, after_in_parent=_calvex.after_fork,
                    after_in_child=_calvex.after_fork)

#: The engine of the module's own functions: model units.
default = Engine()
