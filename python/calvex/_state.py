"""States of water from any pair of properties."""
import collections
import sys
import warnings

import numpy as np

from . import _calvex
from ._calvex import CalvexError, CalvexWarning
from ._members import groups
from ._results import number_text, table_html
from .units import Value

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
PHASES = np.array(["liquid", "vapour", "supercritical", "two-phase", ""])  # the last: -1, none
_LETTERS = {name: row[0] for name, row in PROPERTIES.items()} | {"r": "R", "q": "Q"}


def _letter(name):
    letter = _LETTERS.get(name) or _LETTERS.get(name.lower()) or name.upper()
    if letter not in "PTHSURVQ" or len(letter) > 1:
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
        value = value.to(engine._unit(group)).value
    elif hasattr(value, "magnitude"):
        from ._pint import magnitude
        value = magnitude(engine._core, value, group)
    return np.asarray(value, float)


class State:
    """A state of water, or an array of them: its properties are attributes, in the engine's units.

    P, T, h, s, u, rho, v, x (vapour fraction) and phase are there for all states; a, g, cp, cv, w
    (speed of sound), mu (viscosity), k (thermal conductivity), Pr, Z, epsilon, delta_T, mu_JT, beta
    and kappa for those of one phase.
    """

    def __init__(self, engine, pair, values, errors=None):
        self._engine = engine
        self._pair = pair
        self._errors = errors if errors is not None else engine.errors
        inputs = [_plain(value, _row(letter)[1], engine) for letter, value in zip(pair, values)]
        self.shape = np.broadcast_shapes(*(value.shape for value in inputs))
        self._inputs = [value.ravel() if value.shape == self.shape or value.size == 1
                        else np.broadcast_to(value, self.shape).ravel() for value in inputs]
        values, phases = self._solve([PROPERTIES[name][0] for name in OF_MIXTURES])
        self._values = dict(zip(OF_MIXTURES, values))
        self.phase = PHASES[phases].reshape(self.shape) if self.shape else str(PHASES[phases[0]])

    def _solve(self, letters):
        values, phases, status = _calvex.states(self._engine._core, self._pair, *self._inputs,
                                                "".join(letters))
        if status.any() and self._errors != "ignore":
            self._tell(self._why(letters, status))
        return [row.reshape(self.shape) if self.shape else float(row[0]) for row in values], phases

    def _why(self, letters, status):
        """The reason of each point that failed, by its place."""
        first, second = (np.broadcast_to(value, status.shape) for value in self._inputs)
        return {i: _calvex.state_reason(self._engine._core, self._pair, first[i], second[i],
                                        "".join(letters)) for i in np.flatnonzero(status)}

    def _tell(self, reasons):
        counts = collections.Counter(reasons.values()).most_common()
        text = f"state failed: {counts[0][0]}"
        if self.shape:
            text = (f"state failed for {len(reasons)} of {np.prod(self.shape)} elements: "
                    + "; ".join(f"{count} x {why}" for why, count in counts))
        if self._errors == "raise" or (self._errors is None and not self.shape):
            error = CalvexError(text)
            error.member, error.reason = "state", counts[0][0]
            raise error
        level, frame = 1, sys._getframe()  # the user's line, however it came here
        while frame is not None and frame.f_globals.get("__package__") == __package__:
            level, frame = level + 1, frame.f_back
        warnings.warn(text, CalvexWarning, stacklevel=level)

    def reasons(self):
        """Why elements have no state, in its shape; "" for those that have one."""
        letters = [PROPERTIES[name][0] for name in OF_MIXTURES]
        _, _, status = _calvex.states(self._engine._core, self._pair, *self._inputs,
                                      "".join(letters))
        reasons = np.full(status.shape, "", object)
        for i, why in self._why(letters, status).items():
            reasons[i] = why
        return reasons.reshape(self.shape) if self.shape else reasons[0]

    def __getattr__(self, name):
        if name.startswith("_") or name not in PROPERTIES:
            raise AttributeError(f"a state has no {name!r}; it has phase, " + ", ".join(PROPERTIES))
        if name not in self._values:
            self._values[name] = self._solve([PROPERTIES[name][0]])[0][0]
        return self._values[name]

    def __dir__(self):
        return sorted({*super().__dir__(), *PROPERTIES})

    def unit(self, name):
        """The unit of a property: "kJ/kg" for "h"."""
        return self._engine._unit(PROPERTIES[name][1])

    def value(self, name):
        """A property with its unit."""
        return Value(getattr(self, name), self.unit(name), PROPERTIES[name][1])

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
        return State, (self._engine, self._pair,
                       [v.reshape(self.shape) if v.size > 1 else v[0] for v in self._inputs],
                       self._errors)


def _row(letter):
    return next(row for row in PROPERTIES.values() if row[0] == letter)


