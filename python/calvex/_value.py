"""A number, or an array of them, with its unit."""
from typing import Any

import numpy as np

from . import units as _units
from ._members import groups

# What lies between two of a quantity: temperatures and pressures, whose scales have zeros of their
# own. The number of its group, by the quantity's.
_DIFFERENCES = {0: 25, 1: 26}
_SCALES_AND_DIFFERENCES = {*_DIFFERENCES, *_DIFFERENCES.values()}


class Value:
    """A number, or an array of them, with its unit.

        h = steam.HPT(100, 500, unit=True)
        h.value, h.unit                       # 3373.998..., "kJ/kg"
        h.to("BTU/lb")
        f"{h:.1f}"                            # "3374.0 kJ/kg"
        Value(100, "bar", "pressure")

    Values of one quantity are added, subtracted and compared in any units; a plain number beside
    one is in its unit. The difference of two temperatures or pressures is a quantity of its own.
    NumPy's functions see the bare number.
    """

    __slots__ = ("value", "unit", "group")
    value: Any
    unit: str
    group: int

    __array_priority__ = 100  # array + value is the value's to answer

    def __init__(self, value, unit="", group=-1):
        if not isinstance(group, int):
            group = _units.group(group)
            unit = _units.find(group, unit).name
        for name, content in (("value", value), ("unit", unit), ("group", group)):
            object.__setattr__(self, name, content)

    def __setattr__(self, name, value):
        raise AttributeError(f"a value stays as it is: {name} cannot be set")

    def __reduce__(self):
        return Value, (self.value, self.unit, self.group)

    def to(self, unit):
        """The same in another unit."""
        if self.group < 0:
            raise ValueError("a number without a unit cannot be converted")
        return Value(_units.convert(self.group, self.value, self.unit, unit),
                     _units.find(self.group, unit).name, self.group)

    def number_in(self, group, unit):
        """The number for an input of that quantity, in that unit."""
        if group < 0:
            return self.value
        try:
            if group != self.group and {group, self.group} & _SCALES_AND_DIFFERENCES:
                raise ValueError
            return self.to(unit).value
        except ValueError:
            raise TypeError(f"{self} is no {groups()[group][0].lower()}") from None

    # As a number --------------------------------------------------------------------------------

    def __float__(self):
        return float(self.value)

    def __int__(self):
        return int(self.value)

    def __bool__(self):
        return bool(self.value)

    def __array__(self, dtype=None):
        return np.asarray(self.value, dtype)

    def __round__(self, digits=None):
        return self._with(round(self.value, digits))

    def __len__(self):
        return len(self.value)

    def __getitem__(self, place):
        return self._with(self.value[place])

    def __iter__(self):
        return map(self._with, iter(self.value))

    # As text ------------------------------------------------------------------------------------

    def __format__(self, form):
        number = (format(self.value, form) if np.ndim(self.value) == 0 or not form else
                  np.array2string(np.asarray(self.value),
                                  formatter={"all": lambda x: format(x, form)}))
        return f"{number} {self.unit}".rstrip()

    def __str__(self):
        return format(self, "")

    def __repr__(self):
        return f"Value({self.value!r}, {self.unit!r})"

    # Arithmetic ---------------------------------------------------------------------------------

    def __add__(self, other):
        if not isinstance(other, Value):
            return self._with(self.value + other)
        if _DIFFERENCES.get(other.group) == self.group and self.group >= 0:
            return other + self
        if _DIFFERENCES.get(self.group) == other.group:
            return self._with(self.value + other._scaled(self._entry()))
        number = self._same(other)
        if self.group == 0 or self._has_zero_of_its_own():
            raise TypeError(f"two {self._words()} in {self.unit} have no sum")
        return self._with(self.value + number)

    __radd__ = __add__

    def __sub__(self, other):
        if not isinstance(other, Value):
            return self._with(self.value - other)
        if _DIFFERENCES.get(self.group) == other.group:
            return self._with(self.value - other._scaled(self._entry()))
        if self.group in _DIFFERENCES and other.group == self.group:
            return self._difference(self.value - self._same(other))
        return self._with(self.value - self._same(other))

    def __rsub__(self, other):
        if self._has_zero_of_its_own():
            raise TypeError(f"a plain number less {self._words()} in {self.unit} may be one of them "
                            "or a difference: give it a unit, Value(number, unit, quantity)")
        return self._with(other - self.value)

    def __mul__(self, other):
        if isinstance(other, Value):
            raise TypeError(f"{self.unit} times {other.unit}: .value has the numbers; pint knows "
                            "such units")
        return self._with(self._amount() * other)

    __rmul__ = __mul__

    def __truediv__(self, other):
        if isinstance(other, Value):
            other._amount()
            return self._amount() / self._same(other)
        return self._with(self._amount() / other)

    def __neg__(self):
        return self._with(-self._amount())

    def __pos__(self):
        return self

    def __abs__(self):
        return self._with(abs(self._amount()))

    # Comparisons --------------------------------------------------------------------------------

    def __eq__(self, other):
        if isinstance(other, Value) and other.group != self.group:
            return False
        return self.value == self._same(other)

    def __ne__(self, other):
        if isinstance(other, Value) and other.group != self.group:
            return True
        return self.value != self._same(other)

    def __lt__(self, other):
        return self.value < self._same(other)

    def __le__(self, other):
        return self.value <= self._same(other)

    def __gt__(self, other):
        return self.value > self._same(other)

    def __ge__(self, other):
        return self.value >= self._same(other)

    # --------------------------------------------------------------------------------------------

    def _with(self, value):
        return Value(value, self.unit, self.group)

    def _words(self):
        return groups()[self.group][0].lower() + "s" if self.group >= 0 else "numbers"

    def _entry(self):
        return _units.find(self.group, self.unit)

    def _same(self, other):
        """Another's number in this one's unit; a plain number is."""
        if not isinstance(other, Value):
            return other
        if other.group != self.group:
            raise TypeError(f"{self._words()} and {other._words()} do not go together")
        return other.value if other.unit == self.unit else other.to(self.unit).value

    def _has_zero_of_its_own(self):
        """Whether 0 of the unit is something: of °C and of a gauge."""
        return self.group in _DIFFERENCES and not np.isclose(
            _units.convert(self.group, 0.0, self.unit, groups()[self.group][2]), 0, atol=1e-6)

    def _amount(self):
        """The number, of a unit whose 0 is nothing."""
        if self._has_zero_of_its_own():
            raise TypeError(f"multiples of {self._words()} in {self.unit} mean nothing: take .value, "
                            f"or .to({groups()[self.group][2]!r}) first")
        return self.value

    def _scaled(self, unit):
        """A difference's number on the scale of that unit."""
        return self.value * (self._entry().factor / unit.factor)

    def _difference(self, value):
        group, mine = _DIFFERENCES[self.group], self._entry()
        known = {unit[0]: unit[1] for unit in groups()[group][3]}
        alike = [name for name in known if np.isclose(known[name], mine.factor, rtol=1e-4)]
        unit = self.unit if self.unit in known else (*alike, groups()[group][2])[0]
        return Value(value * (mine.factor / known[unit]), unit, group)
