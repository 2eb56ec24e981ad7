"""What the member table says: kinds, inputs and outputs, and the words for a docstring."""
import functools
import math
from typing import NamedTuple

from . import _calvex


class Slot(NamedTuple):
    """An input or an output of a member that computes numbers."""

    name: str
    group: int  # of units, or -1


class Row(NamedTuple):
    name: str
    kind: str  # "ufunc", "method", "setting", "reading"
    inputs: tuple
    outputs: tuple


class Parameter(NamedTuple):
    name: str
    type: str
    direction: str
    group: int
    label: str
    words: str
    low: float
    high: float


class Members:
    """The members by name; called, it lists those whose name or explanation has all the words."""

    def __init__(self):
        self.rows = {}
        for name, kind, inputs, outputs in _calvex.members():
            self.rows[name] = Row(name, kind, tuple(Slot(*i) for i in inputs),
                                  tuple(Slot(*o) for o in outputs))
        self.kinds = {row.name: row.kind for row in self.rows.values()}
        # A model that has only a member for spreadsheets goes by its own name too.
        for name in list(self.rows):
            if name.startswith("XL") and name[2:] not in self.rows:
                self.kinds[name[2:]] = self.kinds[name]

    def __call__(self, *words):
        """Names of the members whose name or explanation has all these words."""
        wanted = [word.lower() for part in words for word in part.split()]
        found = []
        for name in self.rows:
            text = f"{name} {explain(name)['title']}".lower() if wanted else ""
            if all(word in text for word in wanted):
                found.append(name)
        return found

    def __repr__(self):
        return f"<{len(self.rows)} members; members('enthalpy pressure') finds some>"

    def row(self, name):
        """The row of a member or of a model that a spreadsheet member stands for."""
        return self.rows.get(name) or self.rows["XL" + name]

    def near(self, name):
        """"; did you mean HPT?" or nothing."""
        import difflib
        close = difflib.get_close_matches(name, self.kinds, 1, 0.5)
        same = [known for known in self.kinds if known.lower() == name.lower()]
        return f"; did you mean {(same or close)[0]}?" if same or close else ""


members = Members()


@functools.lru_cache(maxsize=None)
def groups():
    """[(name, keywords, model unit, units, units beside the catalogue)], by number."""
    return _calvex.groups()


def model_unit(group):
    return groups()[group][2] if group >= 0 else ""


@functools.lru_cache(maxsize=None)
def explain(name):
    return _calvex.explain(name)


def parameters(name):
    return [Parameter(*row) for row in explain(name)["parameters"]]


def output_words(name):
    """(name, group, words) of each output."""
    row = members.row(name)
    if explain(row.name)["tokens"]:
        return [tuple(token) for token in explain(row.name)["tokens"]]
    outputs = [p for p in parameters(row.name) if p.direction != "in"]
    return [(slot.name, slot.group, p.words) for slot, p in zip(row.outputs, outputs)]


def _limits(low, high):
    if math.isinf(low) and math.isinf(high):
        return ""
    if math.isinf(high):
        return f", at least {low:g}"
    return f", {low:g} to {high:g}"


def docstring(name, unit=model_unit):
    """A member in words; `unit` tells the unit of a group. Limits are in model units."""
    row = members.row(name)
    explained = explain(row.name)
    lines = [explained["title"][:1].upper() + explained["title"][1:] + "."]
    if explained["notes"]:
        lines += ["", explained["notes"]]
    inputs = [p for p in parameters(row.name) if p.direction == "in" and p.name != "strTokens"]
    if inputs:
        lines += ["", "Parameters", "----------"]
    for p in inputs:
        lines.append(f"{p.name} : {unit(p.group) or p.type}")
        limits = _limits(p.low, p.high)
        if limits and unit(p.group) != model_unit(p.group):
            limits += f" {model_unit(p.group)}"
        lines.append(f"    {p.words}{limits}")
    if row.kind == "ufunc":
        lines += ["", "Returns", "-------"]
        for output, group, words in output_words(row.name):
            lines += [f"{output} : {unit(group) or 'number'}", f"    {words}"]
    example = explained["example"]
    if row.kind == "ufunc" and example and not any(isinstance(x, str) for x in example[:-1]):
        numbers = ", ".join(f"{x:g}" for x in example if not isinstance(x, str))
        lines += ["", "Examples", "--------", f">>> calvex.{row.name}({numbers})"]
    return "\n".join(lines)
