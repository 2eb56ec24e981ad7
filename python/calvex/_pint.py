"""Quantities of pint: taken in any unit, answered in the engine's where pint knows it by a name."""
import functools

import numpy as np

from . import _calvex
from ._members import groups, members
from ._results import Results

# The engine's own units as pint writes them, by group.
_MODEL = ("kelvin", "megapascal", "kg/m**3", "m**3/kg", "kJ/kg/K", "kJ/kg", "kJ/kg", "", "kJ/kg/K",
          "kg/s", "kW", "", "", "Pa*s", "W/K/m", "N/m", "m/s", "kJ/kg/MPa", "K/MPa", "1/K", "1/MPa",
          "kg/kmol", "kW", "kJ/kg", "kJ/kg", "delta_degC", "megapascal")
# Names of the catalogue that pint has others for.
_OTHER_NAMES = {"C": "degC", "F": "degF", "R": "degR", "K": "kelvin", "bara": "bar", "psia": "psi",
                "Fraction": "", "%": "percent"}


_TEMPERATURE, _TEMPERATURE_DIFFERENCE = 0, 25
_OF_DIFFERENCES = {"C": "delta_degC", "°C": "delta_degC", "F": "delta_degF", "°F": "delta_degF",
                   "°K": "kelvin", "R": "degR", "°R": "degR"}


def _pint_unit(registry, group, name):
    other = _OF_DIFFERENCES if group == _TEMPERATURE_DIFFERENCE else _OTHER_NAMES
    text = other.get(name, name)
    for sign, instead in (("²", "**2"), ("³", "**3"), ("^", "**"), ("µ", "u"), (".", "*")):
        text = text.replace(sign, instead)
    return registry.Unit(text)


@functools.lru_cache(maxsize=None)
def unit_of(registry, group, name):
    """The engine's unit for pint: by its name where pint means the same by it, else the model's."""
    if group < 0:
        return registry.Unit(""), False
    model = registry.Unit(_MODEL[group])
    units = {unit[0]: unit for unit in (*groups()[group][3], *groups()[group][4])}
    ours, to = units.get(name), units[groups()[group][2]]
    try:
        unit = _pint_unit(registry, group, name)
        for x in (1.0, 20.0):
            expected = (x + ours[2]) * ours[1] / to[1] - to[2]
            if not np.isclose(registry.Quantity(x, unit).to(model).magnitude, expected, rtol=1e-6):
                return model, True
        return unit, False
    except Exception:  # whatever pint makes of a name that it does not know
        return model, True


def magnitude(core, quantity, group):
    """The number of a quantity in the engine's unit."""
    registry = quantity._REGISTRY
    # pint takes one for the other, counted from 0 K.
    if group == _TEMPERATURE and any("delta_" in name for name in quantity._units):
        raise TypeError(f"{quantity} is a difference of temperatures and no temperature")
    if group == _TEMPERATURE_DIFFERENCE and not quantity._is_multiplicative:
        raise TypeError(f"{quantity} is a temperature and no difference of two: that is in "
                        "delta_degC, delta_degF or kelvin")
    name = _calvex.unit(core, group) if group >= 0 else ""
    unit, by_model = unit_of(registry, group, name)
    value = quantity.to(unit).magnitude
    if by_model and group >= 0:
        factor, offset = _calvex.conversion(core, group)
        value = (value - offset) / factor
    return value


def _quantity(core, registry, value, group):
    name = _calvex.unit(core, group) if group >= 0 else ""
    unit, by_model = unit_of(registry, group, name)
    if by_model and group >= 0:
        factor, offset = _calvex.conversion(core, group)
        value = value * factor + offset
    return registry.Quantity(value, unit)


def call(binding, ufunc, arguments, words):
    """A member of quantities answers quantities; plain numbers are in the engine's units."""
    registry = next(a._REGISTRY for a in arguments if hasattr(a, "_REGISTRY"))
    row = members.row(binding.name)
    numbers = [magnitude(binding.core, argument, slot.group) if hasattr(argument, "_REGISTRY")
               else argument for slot, argument in zip(row.inputs, arguments)]
    result = ufunc(*numbers, *arguments[len(numbers):], **words)
    if isinstance(result, Results):
        return tuple.__new__(type(result), (
            _quantity(binding.core, registry, value, slot.group)
            for slot, value in zip(row.outputs, result)))
    return _quantity(binding.core, registry, result, row.outputs[0].group)
