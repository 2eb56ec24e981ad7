"""Named tuples with units: what members with several results answer."""
import functools
from operator import itemgetter

from ._value import Value


def number_text(value):
    return f"{value:.10g}" if isinstance(value, (int, float)) else str(value)


def texts(value, unit):
    """A result and its unit; what has a unit of its own, as pint's quantities, says it."""
    if isinstance(value, Value):
        value, unit = value.value, value.unit
    return number_text(value), "" if hasattr(value, "units") else unit


def table_html(rows, title=""):
    """Rows of (name, value, unit, words)."""
    import html  # for notebooks only
    cells = "".join(
        "<tr>" + "".join(f"<td style='text-align:{side}'>{html.escape(str(text))}</td>"
                         for side, text in zip(("left", "right", "left", "left"), row)) + "</tr>"
        for row in rows)
    caption = f"<caption>{html.escape(title)}</caption>" if title else ""
    return f"<table>{caption}<tbody>{cells}</tbody></table>"


class Results(tuple):
    """The results of a member by name, in its order; `units` has the unit of each."""

    __slots__ = ()
    _fields: tuple = ()
    _member = ""
    _groups: tuple = ()
    units: dict = {}

    def _asdict(self):
        return dict(zip(self._fields, self))

    def __repr__(self):
        def row(name, value):
            return f"{name}={' '.join(texts(value, self.units[name]))}".rstrip()
        return f"{self._member}({', '.join(map(row, self._fields, self))})"

    def value(self, name):
        """A result with its unit."""
        if name not in self._fields:
            raise AttributeError(f"{self._member} has no result {name!r}; it has "
                                 + ", ".join(self._fields))
        i = self._fields.index(name)
        if isinstance(self[i], Value):
            return self[i]
        return Value(self[i], self.units[name], self._groups[i])

    def _repr_html_(self):
        return table_html([(name, *texts(value, self.units[name]), "")
                           for name, value in self._asdict().items()], self._member)

    def __reduce__(self):
        return _rebuild, (self._member, self._fields, self._groups, tuple(self.units.values()),
                          tuple(self))


@functools.lru_cache(maxsize=1024)
def result_type(member, fields, groups, units):
    """The type of a member's results for an engine's units."""
    body = {name: property(itemgetter(i)) for i, name in enumerate(fields)}
    body |= {"__slots__": (), "_fields": fields, "__match_args__": fields, "_member": member,
             "_groups": groups, "units": dict(zip(fields, units)), "__module__": __name__}
    return type(member, (Results,), body)


def _rebuild(member, fields, groups, units, values):
    return tuple.__new__(result_type(member, fields, groups, units), values)
