"""What the member table says: kinds, inputs and outputs, and the words for a docstring."""
import functools
import inspect
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
    above_low: bool  # the bound itself is refused
    below_high: bool


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
        wanted = [word.lower() for part in words for word in str(part).split()]
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
        """"; did you mean HPT?" or nothing: the same letters in another case or order come first."""
        import difflib
        word = name.lower()
        same = [known for known in self.kinds if known.lower() == word]
        turned = [known for known in self.kinds
                  if sorted(known.lower()) == sorted(word) and known[0].lower() == word[0]]
        found = same or turned or difflib.get_close_matches(name, self.kinds, 1, 0.6)
        return f"; did you mean {found[0]}?" if found else ""


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


def input_names(name):
    """What a member's inputs are called, in their order."""
    row = members.row(name)
    if row.kind == "ufunc":
        return [slot.name for slot in row.inputs]
    return [p.name for p in parameters(row.name) if p.direction == "in"]


def call_text(name):
    """"HPT(P, T)"."""
    return f"{name}({', '.join(input_names(name))})"


def signature(name):
    """The inputs, which go by their place, and the words of a call."""
    inputs = [inspect.Parameter(word, inspect.Parameter.POSITIONAL_ONLY)
              for word in input_names(name)]
    if members.row(name).kind == "ufunc":
        inputs.append(inspect.Parameter("out", inspect.Parameter.POSITIONAL_OR_KEYWORD, default=None))
        inputs += [inspect.Parameter(word, inspect.Parameter.KEYWORD_ONLY, default=default)
                   for word, default in (("where", True), ("errors", None), ("unit", False))]
    return inspect.Signature(inputs)


def _limits(low, high, above_low, below_high):
    if math.isinf(low) and math.isinf(high):
        return ""
    if math.isinf(high):
        return f", {'above' if above_low else 'at least'} {low:.6g}"
    return f", {'above ' * above_low}{low:.6g} to {'below ' * below_high}{high:.6g}"


def docstring(name, unit=model_unit, user=lambda group, value: value, caller="calvex"):
    """A member in words. `unit` tells the unit of a group, `user` a model value in it; `caller` is
    whom the example calls."""
    row = members.row(name)
    explained = explain(row.name)
    lines = [call_text(name), "",
             explained["title"][:1].upper() + explained["title"][1:] + "."]
    if explained["notes"]:
        lines += ["", explained["notes"]]
    inputs = [p for p in parameters(row.name) if p.direction == "in" and p.name != "strTokens"]
    if inputs:
        lines += ["", "Parameters", "----------"]
    for p in inputs:
        lines.append(f"{p.name} : {unit(p.group) or p.type}")
        limits = _limits(user(p.group, p.low), user(p.group, p.high), p.above_low, p.below_high)
        lines.append(f"    {p.words}{limits}")
    if row.kind == "ufunc":
        lines += ["", "Returns", "-------"]
        for output, group, words in output_words(row.name):
            lines += [f"{output} : {unit(group) or 'number'}", f"    {words}"]
    example = explained["example"]
    if row.kind == "ufunc" and example and not any(isinstance(x, str) for x in example[:-1]):
        numbers = [x for x in example if not isinstance(x, str)]
        texts = (f"{user(slot.group, x):.10g}" for slot, x in zip(row.inputs, numbers))
        lines += ["", "Examples", "--------", f">>> {caller}.{name}({', '.join(texts)})"]
    return "\n".join(lines)
