"""Quantities and their units, in the words that people use.

    calvex.convert("P", 100, "psia", "bara")
    calvex.units.group("flow")            # 9
    calvex.units.names("T")               # ['C', 'F', 'K', 'R']
"""
import warnings
from typing import NamedTuple

import numpy as np

from . import _calvex
from ._members import groups


class Unit(NamedTuple):
    """value in the reference unit of its group = (value + offset) * factor."""

    name: str
    factor: float
    offset: float
    in_catalogue: bool


def group(word):
    """The number of a quantity by its letter, name or a common word: "T", "pressure", "flow"."""
    if isinstance(word, int):
        if not 0 <= word < len(groups()):
            raise ValueError(f"there is no quantity number {word}: they are 0 to {len(groups()) - 1}")
        return word
    if not isinstance(word, str):
        raise TypeError(f"a quantity is a text such as \"T\" or \"pressure\", not {word!r}")
    found = _calvex.find_group(word.replace("_", " "))
    if found is None:
        raise ValueError(f"{word!r} is no quantity with a unit; there are "
                         + ", ".join(row[1][0] for row in groups()))
    return found


def keyword(number):
    """The shortest of the words for a quantity: "T"."""
    return groups()[number][1][0]


def names(word):
    """The units of a quantity, those beside the catalogue last."""
    row = groups()[group(word)]
    return [unit[0] for unit in (*row[3], *row[4])]


def find(word, unit):
    """A unit of a quantity by its name or a common word for it."""
    number = group(word)
    if not isinstance(unit, str):
        raise TypeError(f"a unit of {groups()[number][0]} is a text, one of "
                        f"{', '.join(names(number))}, not {unit!r}")
    found = _calvex.find_unit(number, unit)
    if isinstance(found, list):
        hint = f"; did you mean {' or '.join(found)}? m is milli, M is mega" if found else ""
        raise ValueError(f"{unit!r} is not a unit of {groups()[number][0]}{hint}. Units: "
                         + ", ".join(names(number)))
    name, factor, offset, in_catalogue, notice = found
    if notice:
        warnings.warn(f"{unit}: {notice}", UserWarning, stacklevel=3)
    return Unit(name, factor, offset, in_catalogue)


def convert(word, value, given, wanted):
    """A number or an array of a quantity from one unit to another."""
    a, b = find(word, given), find(word, wanted)
    if isinstance(value, (list, tuple)):
        value = np.asarray(value)
    if value is None or isinstance(value, (str, bytes)) or getattr(value, "dtype", None) == object:
        raise TypeError(f"a number or an array of numbers is converted, not {value!r}")
    if a == b:
        return value
    return (value + a.offset) * a.factor / b.factor - b.offset
