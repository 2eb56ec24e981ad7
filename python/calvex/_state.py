"""States of water from any pair of properties."""
import collections
import sys
import warnings

import numpy as np

from . import _calvex
from ._calvex import CalvexError, CalvexWarning
from ._results import number_text, table_html
from ._shells import is_lazy, taken_off
from ._value import Value

# attribute: (letter of the members' names, unit group, words)
PROPERTIES = {
    "P": ("P", 1, "pressure"),
    "T": ("T", 0, "temperature"),
    "h": ("H", 5, "enthalpy"),
    "s": ("S", 4, "entropy"),
    "u": ("U", 6, "internal energy"),
    "rho": ("R", 2, "density"),
    "v": ("V", 3, "specific volume"),
    "x": ("Q", 7, "vapour fraction"),
    "a": ("A", 23, "Helmholtz energy"),
    "g": ("G", 24, "Gibbs energy"),
    "cp": ("C", 8, "isobaric heat capacity"),
    "cv": ("D", 8, "isochoric heat capacity"),
    "w": ("W", 16, "speed of sound"),
    "mu": ("M", 13, "dynamic viscosity"),
    "k": ("K", 14, "thermal conductivity"),
    "Pr": ("N", -1, "Prandtl number"),
    "Z": ("Z", -1, "compressibility factor"),
    "epsilon": ("E", -1, "static dielectric constant"),
    "delta_T": ("I", 17, "isothermal throttling coefficient"),
    "mu_JT": ("J", 18, "Joule-Thomson coefficient"),
    "beta": ("B", 19, "thermal expansion coefficient"),
    "kappa": ("L", 20, "isothermal compressibility"),
}
OF_MIXTURES = ("P", "T", "h", "s", "u", "rho", "v", "x")
PAIRS = ("PT", "PH", "PS", "PU", "PR", "PV", "TH", "TS", "TU", "TR", "TV", "PQ", "TQ", "HS")
# As the extension numbers them; the last: -1, none.
PHASES = np.array(["liquid", "vapour", "supercritical", "two-phase", ""])
_LETTERS = ({name: PROPERTIES[name][0] for name in OF_MIXTURES} | {"r": "R", "q": "Q"}
            | {PROPERTIES[name][2].replace(" ", "_"): PROPERTIES[name][0] for name in OF_MIXTURES}
            | {"quality": "Q"})


def _letter(name):
    letter = _LETTERS.get(name) or _LETTERS.get(name.lower(), name.upper())
    if letter not in _LETTERS.values():
        raise TypeError(f"a state is given by two of {', '.join(OF_MIXTURES)}; {name!r} is none")
    return letter


def state(engine, pair, errors):
    """See Engine.state."""
    if len(pair) != 2:
        raise TypeError(f"a state is given by two of {', '.join(OF_MIXTURES)}, as P=10, T=773.15; "
                        f"{len(pair)} were given")
    given = {_letter(name): value for name, value in pair.items()}
    for name in PAIRS:
        if set(name) == set(given):
            return State(engine, name, [given[letter] for letter in name], errors)
    raise TypeError(f"{' and '.join(pair)} are no pair that gives a state; the pairs are "
                    + ", ".join(PAIRS) + " (R density, Q vapour fraction)")


def _plain(value, group, engine):
    """A number or an array in the engine's unit."""
    if isinstance(value, Value):
        return value.number_in(group, engine._unit(group))
    if hasattr(value, "magnitude"):
        from ._pint import magnitude
        return magnitude(engine._core, value, group)
    return value


class _Points:
    """States from arrays of numbers, which have one shape: solved at once, failures told."""

    def __init__(self, engine, pair, inputs, errors):
        self.engine, self.pair, self.errors = engine, pair, errors
        self.shape = _common_shape(pair, inputs)
        self.inputs = [value.ravel() if value.shape == self.shape or value.size == 1
                       else np.broadcast_to(value, self.shape).ravel() for value in inputs]
        values, phases = self._solve([PROPERTIES[name][0] for name in OF_MIXTURES])
        self.values = dict(zip(OF_MIXTURES, values))
        phases = PHASES[phases]
        phases.flags.writeable = False
        self.values["phase"] = phases.reshape(self.shape) if self.shape else str(phases[0])

    def get(self, name):
        if name not in self.values:
            self.values[name] = self._solve([PROPERTIES[name][0]])[0][0]
        return self.values[name]

    def _solve(self, letters):
        values, phases, status = _calvex.states(self.engine._core, self.pair, *self.inputs,
                                                "".join(letters))
        if status.any() and self.errors != "ignore":
            self._tell(self._why(letters, status))
        values.flags.writeable = False
        return [row.reshape(self.shape) if self.shape else float(row[0]) for row in values], phases

    def _why(self, letters, status):
        """(reason, cause) of each point that failed, by its place."""
        first, second = (np.broadcast_to(value, status.shape) for value in self.inputs)
        return {i: _calvex.state_reason(self.engine._core, self.pair, first[i], second[i],
                                        "".join(letters)) for i in np.flatnonzero(status)}

    def _tell(self, why):
        causes = collections.defaultdict(list)
        for reason, cause in why.values():
            causes[reason].append(cause)
        kinds = sorted(causes.items(), key=lambda kind: -len(kind[1]))
        texts = [" ".join(filter(None, (reason, "The first:" * (len(set(behind)) > 1), behind[0])))
                 for reason, behind in kinds]
        text = f"state failed: {texts[0]}"
        if self.shape:
            text = (f"state failed for {len(why)} of {np.prod(self.shape)} elements: "
                    + "; ".join(f"{len(behind)} x {text}" for text, (_, behind) in zip(texts, kinds)))
        if self.errors == "raise" or (self.errors is None and not self.shape):
            error = CalvexError(text)
            error.member, error.reason, error.cause = "state", kinds[0][0], kinds[0][1][0]
            raise error
        level, frame = 1, sys._getframe()  # the user's line, however it came here
        while frame is not None and frame.f_globals.get("__package__") == __package__:
            level, frame = level + 1, frame.f_back
        warnings.warn(text, CalvexWarning, stacklevel=level)

    def reasons(self):
        letters = [PROPERTIES[name][0] for name in OF_MIXTURES]
        _, _, status = _calvex.states(self.engine._core, self.pair, *self.inputs, "".join(letters))
        reasons = np.full(status.shape, "", object)
        for i, why in self._why(letters, status).items():
            reasons[i] = " ".join(filter(None, why))
        return reasons.reshape(self.shape) if self.shape else reasons[0]


class _Blocks:
    """The same of dask's arrays: each property is computed block by block, when it is asked to be."""

    def __init__(self, engine, pair, inputs, errors):
        import dask.array
        self.dask, self.state = dask.array, (engine, pair, errors)
        self.shape = _common_shape(pair, inputs)
        self.inputs = dask.array.broadcast_arrays(*map(dask.array.asarray, inputs))

    def get(self, name):
        kind = PHASES.dtype if name == "phase" else float
        return self._map(lambda points: points.get(name), kind)

    def reasons(self):
        return self._map(_Points.reasons, object)

    def _map(self, what, dtype):
        engine, pair, errors = self.state

        def block(first, second):
            return what(_Points(engine, pair, [first, second], errors))
        return self.dask.map_blocks(block, *self.inputs, dtype=dtype,
                                    meta=np.empty((0,) * len(self.shape), dtype))


def _common_shape(pair, inputs):
    first, second = (value.shape for value in inputs)
    try:
        return first if first == second else np.broadcast_shapes(first, second)
    except ValueError:
        raise ValueError(f"arrays of these shapes do not go together: {pair[0]} {first}, {pair[1]} "
                         f"{second}") from None


class State:
    """A state of water, or an array of them: its properties are attributes, in the engine's units.

    P, T, h, s, u, rho, v, x (vapour fraction) and phase are there for all states; a, g, cp, cv, w
    (speed of sound), mu (viscosity), k (thermal conductivity), Pr, Z, epsilon, delta_T, mu_JT, beta
    and kappa for those of one phase.

    phase is "liquid", "vapour", "two-phase" or "supercritical": above the critical temperature,
    647.126 K, or above the critical pressure, 22.055 MPa, whatever the other is.

    Of a pandas Series, an xarray or a dask array the properties are such too. A state keeps the units
    that its engine had when it was made, and does not change.
    """

    __slots__ = ("_engine", "_pair", "_errors", "_given", "_dress", "_points", "shape")

    def __init__(self, engine, pair, values, errors=None):
        engine = engine._kept()
        _calvex.check_errors(errors)
        given = [_plain(value, _row(letter)[1], engine) for letter, value in zip(pair, values)]
        inputs, dress = taken_off(given)
        errors = errors if errors is not None else engine.errors
        kind = _Blocks if any(map(is_lazy, inputs)) else _Points
        points = kind(engine, pair, inputs, errors)
        for name, value in (("_engine", engine), ("_pair", pair), ("_errors", errors),
                            ("_given", given), ("_dress", dress), ("_points", points)):
            object.__setattr__(self, name, value)
        object.__setattr__(self, "shape", np.shape(self.P) if points.shape else ())

    def __setattr__(self, name, value):
        raise AttributeError(f"a state stays as its pair makes it: {name} cannot be set; "
                             "steam.state(...) makes another")

    def __delattr__(self, name):
        raise AttributeError(f"a state stays as its pair makes it: {name} cannot be deleted")

    def reasons(self):
        """Why elements have no state, in its shape; "" for those that have one."""
        reasons = self._points.reasons()
        return self._dress(reasons) if self._points.shape else reasons

    def __getattr__(self, name):
        if name != "phase" and name not in PROPERTIES:
            raise AttributeError(f"a state has no {name!r}; it has phase, " + ", ".join(PROPERTIES))
        value = self._points.get(name)
        return self._dress(value) if self._points.shape else value

    def __dir__(self):
        return sorted({*super().__dir__(), "phase", *PROPERTIES})

    def unit(self, name):
        """The unit of a property: "kJ/kg" for "h"; "" where there is none."""
        if name not in PROPERTIES:
            raise ValueError(f"a state has no property {name!r}; it has {', '.join(PROPERTIES)}")
        return self._engine._unit(PROPERTIES[name][1])

    def value(self, name):
        """A property with its unit."""
        unit = self.unit(name)
        return Value(getattr(self, name), unit, PROPERTIES[name][1])

    def _rows(self):
        for name, (_, _, words) in PROPERTIES.items():
            try:
                yield name, number_text(getattr(self, name)), self.unit(name), words
            except CalvexError:
                pass  # not defined for a mixture, or outside the range of its correlation

    def __repr__(self):
        if self.shape:
            return f"<calvex.State of shape {self.shape}>"
        lines = [f"{name:<8}{value:>16} {unit:<13} {words}"
                 for name, value, unit, words in self._rows()]
        return "\n".join([f"{'phase':<8}{self.phase:>16}", *map(str.rstrip, lines)])

    def _repr_html_(self):
        if self.shape:
            return None
        return table_html([("phase", self.phase, "", ""), *self._rows()])

    def __reduce__(self):
        return State, (self._engine, self._pair, self._given, self._errors)


def _row(letter):
    return next(row for row in PROPERTIES.values() if row[0] == letter)


