"""Diagrams of water and steam with matplotlib: the saturation dome and isolines in one's own units.

    from calvex import plot
    plot.hs(steam).save("mollier.svg")              # enthalpy over entropy, as Mollier drew it
    diagram = plot.Ts(steam, theme="dark")          # also logph and Pv
    diagram.draw([("1", steam.state(P=100, T=500)), ("2", steam.state(P=0.05, x=0.9))])

`python3 -m calvex.plot hs -u T=C -u P=bar -o mollier.svg` does the same.
"""
import argparse
import io
import math
import sys
from typing import NamedTuple

import numpy as np

try:
    import matplotlib
except ImportError as missing:
    raise ImportError("calvex.plot draws with matplotlib, which is not installed: "
                      "apt install python3-matplotlib, or pip install matplotlib") from missing
from matplotlib import patheffects, pyplot, ticker
from matplotlib.axes import Axes

from . import _calvex
from ._engine import Engine, default
from ._members import groups
from ._results import Results
from ._state import PROPERTIES, State

THEMES = {
    "light": {"paper": "#ffffff", "ink": "#1d2731", "grid": "#e3e7eb", "dome": "#22303c",
              "P": "#1f5fa8", "T": "#b3342d", "x": "#7b8794", "s": "#2e7d4f", "h": "#7a4fa3",
              "v": "#2e7d4f", "process": "#e07b00"},
    "dark": {"paper": "#11161c", "ink": "#e4e8ec", "grid": "#27303a", "dome": "#f2f4f6",
             "P": "#6aa9f0", "T": "#f0796f", "x": "#8d99a6", "s": "#63c08a", "h": "#b48be0",
             "v": "#63c08a", "process": "#ffb347"},
}

CRITICAL_T, CRITICAL_P, TRIPLE_T = 647.126, 22.055, 273.16  # K, MPa


class Kind(NamedTuple):
    """A diagram: the property of each axis, which axes are logarithmic, the window in model units,
    and the families of isolines: where on a line its label is best, and about how many lines."""

    x: str
    y: str
    logarithmic: str
    window: tuple  # x from, to, y from, to
    families: dict


KINDS = {
    "Ts": Kind("s", "T", "", (0.0, 9.5, 273.15, 1073.15),
               {"P": (0.96, 0), "h": (0.3, 16), "x": (0.35, 9)}),
    "hs": Kind("s", "h", "", (5.5, 9.2, 1900.0, 4000.0),
               {"P": (0.9, 0), "T": (0.97, 16), "x": (0.75, 9)}),
    "logph": Kind("h", "P", "y", (0.0, 4000.0, 0.001, 100.0),
                  {"T": (0.9, 16), "s": (0.75, 18), "x": (0.25, 9)}),
    "Pv": Kind("v", "P", "xy", (0.0008, 200.0, 0.001, 100.0), {"T": (0.55, 8), "x": (0.4, 4)}),
}


def absolute(engine):
    """The engine, or where its pressures are a gauge's one with the absolute unit of the same size:
    no logarithm is there of a gauge's zero, and no round pressures below it."""
    factor, offset = _calvex.conversion(engine._core, PROPERTIES["P"][1])  # MPa = factor x + offset
    if offset == 0:
        return engine
    _, _, model, catalogue, beside = groups()[PROPERTIES["P"][1]]
    alike = [name for name, size, zero in (*catalogue, *beside)
             if zero == 0 and math.isclose(size, factor * 1e6)]  # the catalogue's sizes are in Pa
    other = engine.__copy__()
    other.SetUserUnit("P", (*alike, model)[0])
    return other


def pretty(unit):
    """A unit's name as it is printed: "kJ/(kg·K)", "m³/kg", "°C"."""
    unit = {"C": "°C", "F": "°F", "bara": "bar", "Fraction": ""}.get(unit, unit)
    for sign, instead in (("^2", "²"), ("^3", "³"), (".", "·")):
        unit = unit.replace(sign, instead)
    return unit


def round_levels(low, high, count):
    """About so many round numbers between two."""
    raw = (high - low) / count
    power = 10 ** math.floor(math.log10(raw))
    step = next(m * power for m in (1, 2, 2.5, 5, 10) if m * power >= raw * 0.99)
    return [round(i * step, 12) for i in range(math.ceil(low / step), math.floor(high / step) + 1)]


def round_powers(low, high):
    """1, 2, 5 of each power of ten between two."""
    powers = range(math.floor(math.log10(low)), math.ceil(math.log10(high)) + 1)
    return [m * 10.0 ** p for p in powers for m in (1, 2, 5) if low <= m * 10.0 ** p <= high]


class Diagram:
    """A diagram in an engine's units; `axes` and `figure` are matplotlib's.

    kind: "Ts", "hs", "logph" or "Pv". theme: "light" or "dark". axes: where to draw, else a figure
    of its own. xlim, ylim: the window, in the engine's units. size: of the figure, in inches.

    Pressures of a diagram are absolute and say so: of an engine in barg it draws bara.
    """

    def __init__(self, kind, engine=None, *, theme="light", axes=None, xlim=None, ylim=None,
                 size=(8.0, 5.6)):
        _one_of("kind of diagram", kind, KINDS)
        _one_of("theme", theme, THEMES)
        if engine is not None and not isinstance(engine, Engine):
            raise TypeError(f"a diagram is drawn in the units of a calvex.Engine, not of {engine!r}")
        if axes is not None and not isinstance(axes, Axes):
            raise TypeError(f"axes are matplotlib's, as of pyplot.subplots(), not {axes!r}")
        given = (engine or default)._kept()
        self.kind, self.engine, self.colours = KINDS[kind], absolute(given), THEMES[theme]
        window = self.kind.window
        self.xlim = self._limits("x", self.kind.x, xlim, given, window[:2])
        self.ylim = self._limits("y", self.kind.y, ylim, given, window[2:])
        self._gauge = self.engine is not given
        self._own = axes is None
        if axes is None:
            if not (np.shape(size) == (2,) and all(inches > 0 for inches in size)):
                raise ValueError(f"size is width and height in inches, not {size!r}")
            axes = pyplot.figure(figsize=size, dpi=100).add_subplot()
        self.axes, self.figure = axes, axes.figure
        self._labels = []  # boxes on the page that are taken
        self._frame()
        for family, (place, count) in self.kind.families.items():
            self._family(family, place, count)
        self._dome()

    # Units --------------------------------------------------------------------------------------

    @property
    def _core(self):
        return self.engine._core

    def _user(self, name, value):
        factor, offset = _calvex.conversion(self._core, PROPERTIES[name][1])
        return (np.asarray(value, float) - offset) / factor

    def _model(self, name, value, engine=None):
        factor, offset = _calvex.conversion((engine or self.engine)._core, PROPERTIES[name][1])
        return np.asarray(value, float) * factor + offset

    def _unit(self, name):
        unit = self.engine._unit(PROPERTIES[name][1])
        # Beside an engine's gauge the sign of an absolute pressure stays.
        return unit if name == "P" and self._gauge else pretty(unit)

    def _limits(self, side, name, limits, engine, window):
        """The window on one axis, in the diagram's units."""
        if limits is None:
            return [float(value) for value in self._user(name, window)]
        try:
            low, high = (float(limit) for limit in limits)
        except (TypeError, ValueError):
            raise TypeError(f"{side}lim is the lowest and the highest {PROPERTIES[name][2]}, such as "
                            f"({window[0]:g}, {window[1]:g}), not {limits!r}") from None
        if engine is not self.engine:
            low, high = (float(self._user(name, self._model(name, limit, engine)))
                         for limit in (low, high))
        logarithmic = side in self.kind.logarithmic
        if not (0.0 if logarithmic else -math.inf) < low < high < math.inf:
            factor, offset = _calvex.conversion(engine._core, PROPERTIES[name][1])
            above = f" above {0.0 - offset / factor:.6g} {engine._unit(PROPERTIES[name][1])}"
            raise ValueError(f"{side}lim is the lowest and the highest {PROPERTIES[name][2]}"
                             f"{above * logarithmic}, in this order, not {limits!r}")
        return [low, high]

    # Lines: x and y of points, in the engine's units ----------------------------------------------

    def _points(self, pair, first, second, names=None):
        first, second = np.broadcast_arrays(np.asarray(first, float), np.asarray(second, float))
        values, _, _ = _calvex.states(
            self._core, pair, first.ravel(), second.ravel(),
            "".join(PROPERTIES[name][0] for name in names or (self.kind.x, self.kind.y)))
        return values

    def _pressures(self, count=160):
        return self._user("P", np.geomspace(0.0003, 100.0, count))

    def _line(self, family, level):
        """An isoline from one end of the diagram to the other."""
        if family == "P":
            enthalpies = self._user("h", np.linspace(1.0, 4800.0, 600))
            return self._points("PH", level, enthalpies)
        if family == "T":
            T = float(self._model("T", level))
            if T >= CRITICAL_T:
                return self._points("PT", self._pressures(400)[::-1], level)
            boiling = float(self._points("TQ", level, 0.0, "P")[0, 0])
            above = self._user("P", np.geomspace(100.0, 1.00001 * self._model("P", boiling), 80))
            below = self._user("P", np.geomspace(0.99999 * self._model("P", boiling), 0.0003, 80))
            across = self._points("TQ", level, self._user("x", np.linspace(0.0, 1.0, 40)))
            if "P" in self.kind.families:
                across[:] = np.nan  # where an isotherm is an isobar
            return np.hstack([self._points("PT", above, level), across,
                              self._points("PT", below, level)])
        if family == "x":
            return self._points("TQ", self._saturated(), level)
        pair = {"h": "PH", "s": "PS", "v": "PV"}[family]
        return self._points(pair, self._pressures(400)[::-1], level)

    def _saturated(self):
        """Temperatures from the triple to the critical point, close together near this one."""
        below = (CRITICAL_T - TRIPLE_T) * np.linspace(1, 0.002, 160) ** 2
        return self._user("T", CRITICAL_T - below)

    def _levels(self, family, count):
        if family == "x":
            fractions = np.arange(1, count + 1) / (count + 1)
            return [round(float(self._user("x", q)), 9) for q in fractions]
        if family == "P":
            low, high = self._user("P", [0.001, 100.0])
            return round_powers(max(low, 1e-9 * high), high)
        if family == "T":
            low, high = self._user("T", [TRIPLE_T, 1073.15])
            return [level for level in round_levels(low, high, count) if level > low]
        low, high = self._user(family, {"h": [200.0, 4400.0], "s": [0.5, 9.5]}[family])
        return round_levels(low, high, count)

    # Drawing ------------------------------------------------------------------------------------

    def _frame(self):
        axes, colours = self.axes, self.colours
        self.figure.set_facecolor(colours["paper"])
        axes.set_facecolor(colours["paper"])
        for name, scale, limits, axis in (
                (self.kind.x, axes.set_xscale, axes.set_xlim, axes.xaxis),
                (self.kind.y, axes.set_yscale, axes.set_ylim, axes.yaxis)):
            side = "x" if axis is axes.xaxis else "y"
            if side in self.kind.logarithmic:
                scale("log")
                axis.set_major_formatter(ticker.FuncFormatter(_plain_number))
                axis.set_minor_formatter(ticker.NullFormatter())
            limits(self.xlim if side == "x" else self.ylim)
            unit = self._unit(name) + " (absolute)" * (name == "P" and self._gauge)
            axis.set_label_text(PROPERTIES[name][2] + (f", {unit}" if unit else ""))
            axis.label.set_color(colours["ink"])
        axes.tick_params(which="both", colors=colours["ink"], length=3)
        axes.grid(color=colours["grid"], linewidth=0.6)
        axes.set_axisbelow(True)
        for side, spine in axes.spines.items():
            spine.set_visible(side in ("left", "bottom"))
            spine.set_color(colours["ink"])
        if self._own:  # before the labels, which are laid on the page as it is
            self.figure.tight_layout(pad=0.8)

    def _dome(self):
        ends = self._points("TQ", self._saturated()[-1], [0.0, self._user("x", 1.0)])
        critical = ends.mean(axis=1)
        sides = [self._points("TQ", self._saturated(), float(self._user("x", q))) for q in (0, 1)]
        line = np.hstack([sides[0], critical[:, None], sides[1][:, ::-1]])
        self.axes.plot(*line, color=self.colours["dome"], linewidth=1.8, zorder=3)
        self.axes.plot(*critical, "o", color=self.colours["dome"], markersize=4, zorder=3)

    def _family(self, family, place, count):
        colour, wet = self.colours[family], family == "x"
        unit = self._unit(family)
        for level in self._levels(family, count):
            x, y = self._line(family, level)
            self.axes.plot(x, y, color=colour, linewidth=0.7 if wet else 0.9, alpha=0.9,
                           linestyle=(0, (5, 3)) if wet else "-", zorder=2)
            sign = "x = " if wet and not unit else ""
            text = f"{sign}{level:.6g}" + (f" {unit}" if unit else "")
            self._label(x, y, text, colour, place)

    def _label(self, x, y, text, colour, place):
        """Writes on the line where it is straight enough and the page is free, near `place` of its
        visible part."""
        page = self.axes.transData.transform(np.column_stack([x, y]))
        box = self.axes.bbox
        inside = (np.isfinite(page).all(axis=1) & (page[:, 0] > box.x0) & (page[:, 0] < box.x1)
                  & (page[:, 1] > box.y0) & (page[:, 1] < box.y1))
        if inside.sum() < 2:
            return
        points = self._longest(page, inside)
        lengths = np.concatenate([[0.0], np.cumsum(np.hypot(*np.diff(points, axis=0).T))])
        width, height = 0.058 * self.figure.dpi * len(text) + 4, 0.105 * self.figure.dpi
        if lengths[-1] < 1.6 * width:
            return
        for shift in (0, -0.06, 0.06, -0.12, 0.12, -0.2, 0.2, -0.3, 0.3, -0.4, -0.5, -0.6):
            at = (place + shift) * lengths[-1]
            if not width * 0.6 < at < lengths[-1] - width * 0.6:
                continue
            ends = np.array([[np.interp(at + side * width / 2, lengths, points[:, axis])
                              for axis in (0, 1)] for side in (-1, 0, 1)])
            middle = ends[1]
            chord = ends[2] - ends[0]
            bend = abs(np.cross(chord, middle - ends[0])) / max(np.hypot(*chord), 1e-9)
            if bend > 0.35 * height or np.hypot(*chord) < 0.8 * width:
                continue
            spots = ends[0] + np.linspace(0, 1, 7)[:, None] * chord
            if not all(box.x0 < sx < box.x1 and box.y0 < sy < box.y1 for sx, sy in spots):
                continue
            if any(np.hypot(*(spot - other)) < 1.15 * height for spot in spots
                   for other in self._labels):
                continue
            self._labels.extend(spots)
            angle = math.degrees(math.atan2(chord[1], chord[0]))
            angle = (angle + 90) % 180 - 90
            self.axes.annotate(
                text, self.axes.transData.inverted().transform(middle), color=colour, fontsize=7.5,
                rotation=angle, rotation_mode="anchor", ha="center", va="center_baseline", zorder=4,
                annotation_clip=True,
                bbox={"facecolor": self.colours["paper"], "edgecolor": "none", "pad": 0.6})
            return

    @staticmethod
    def _longest(page, inside):
        """The longest stretch of a line that is visible."""
        edges = np.flatnonzero(np.diff(np.concatenate([[False], inside, [False]]).astype(int)))
        stretches = [page[a:b] for a, b in zip(edges[::2], edges[1::2]) if b - a > 1]
        return max(stretches or [page[inside]],
                   key=lambda part: np.hypot(*np.diff(part, axis=0).T).sum())

    def draw(self, process, *, closed=False, colour=None, label=None):
        """Draws a process: a sequence of states, or of (name, state), or one state of many points.

        Between two states of one pressure the line follows the isobar, through the wet region too;
        between others it is straight, as expansion lines are drawn. `closed` returns to the first.
        A state of many points, such as an expansion in steps, is drawn as the line that it is. States
        of any engine are drawn where they belong, whatever its units.
        """
        colour = colour or self.colours["process"]
        names, states = _named_states(process)
        ends = [self._ends(state) for state in states]
        line = [np.array(self._coordinates(states[0]))] if states else []
        pairs = list(zip(range(len(states)), range(1, len(states))))
        for i, k in pairs + ([(len(states) - 1, 0)] if closed and len(states) > 1 else []):
            line.append(self._way(ends[i][1], ends[k][0]))
            if k != 0:
                line.append(np.array(self._coordinates(states[k])))
        if line:
            self.axes.plot(*np.hstack(line), color=colour, linewidth=2.0, zorder=5, label=label,
                           solid_joinstyle="round")
        for name, state, (first, last) in zip(names, states, ends):
            marked = [first] if first is last else [first, last]
            for point in marked:
                self.axes.plot(point[self.kind.x], point[self.kind.y], "o", color=colour,
                               markersize=5, markeredgecolor=self.colours["paper"], zorder=6)
            if name:
                self.axes.annotate(
                    name, (last[self.kind.x], last[self.kind.y]), xytext=(6, 5),
                    textcoords="offset points", color=self.colours["ink"], fontsize=10,
                    fontweight="bold", zorder=7, path_effects=[
                        patheffects.withStroke(linewidth=3, foreground=self.colours["paper"])])
        return self

    def _coordinates(self, state):
        return [self._of_state(state, name) for name in (self.kind.x, self.kind.y)]

    def _of_state(self, state, name):
        values = np.ma.filled(np.ma.masked_invalid(getattr(state, name)), np.nan)
        return np.ravel(self._user(name, self._model(name, values, state._engine)))

    def _ends(self, state):
        """The first and the last point of a state, as numbers."""
        def point(i):
            return {name: float(self._of_state(state, name)[i])
                    for name in {self.kind.x, self.kind.y, "P", "h"}}
        first = point(0)
        return first, first if not state.shape else point(-1)

    def _way(self, a, b):
        if not math.isclose(a["P"], b["P"], rel_tol=1e-6):
            return np.array([[a[self.kind.x], b[self.kind.x]], [a[self.kind.y], b[self.kind.y]]])
        return self._points("PH", a["P"], np.linspace(a["h"], b["h"], 200))

    def save(self, path, **words):
        """Writes SVG, PNG or whatever the path's ending says; the same every time."""
        with matplotlib.rc_context({"svg.hashsalt": "calvex", "svg.fonttype": "path"}):
            svg = str(path).endswith(".svg") or words.get("format") == "svg"
            metadata = {"Date": None} if svg else None
            self.figure.savefig(path, metadata=metadata, facecolor=self.colours["paper"], **words)
        return self

    def close(self):
        """Gives the figure's memory back."""
        pyplot.close(self.figure)

    # In a notebook, for a diagram that is the value of a cell: shown once, here, and not among the
    # figures that matplotlib has open at the end of the cell.
    def _repr_svg_(self):
        return self._picture("svg").decode() if self._own else None

    def _repr_png_(self):
        return self._picture("png") if self._own else None

    def _picture(self, kind):
        file = io.BytesIO()
        self.save(file, format=kind)
        self.close()
        return file.getvalue()

    def __repr__(self):
        kind = next(name for name, kind in KINDS.items() if kind == self.kind)
        return f"<diagram {kind} of {self.engine!r}>"


def _plain_number(value, _place):
    return f"{value:g}"


def _one_of(what, word, words):
    if not isinstance(word, str) or word not in words:
        *most, last = words
        raise ValueError(f"there is no {what} {word!r}; there are {', '.join(most)} and {last}")


def _named_states(process):
    """(names, states) of a process."""
    wanted = ('a process is a state or a list of states or of (name, state): '
              'diagram.draw([("1", live), ("2", steam.state(P=10, h=work.HOut))])')
    if isinstance(process, State):
        process = [process]
    if isinstance(process, (str, Results)) or not hasattr(process, "__iter__"):
        raise TypeError(f"{wanted}; not {process!r}")
    names, states = [], []
    for item in process:
        name, state = item if isinstance(item, tuple) and len(item) == 2 else ("", item)
        if not isinstance(state, State) or not isinstance(name, str):
            raise TypeError(f"{wanted}; it has a {type(item).__name__} that is neither")
        names.append(name)
        states.append(state)
    return names, states


def Ts(engine=None, **words):
    """Temperature over entropy; words as for Diagram."""
    return Diagram("Ts", engine, **words)


def hs(engine=None, **words):
    """Enthalpy over entropy (Mollier); words as for Diagram."""
    return Diagram("hs", engine, **words)


def logph(engine=None, **words):
    """Pressure, logarithmic, over enthalpy; words as for Diagram."""
    return Diagram("logph", engine, **words)


def Pv(engine=None, **words):
    """Pressure over specific volume, both logarithmic; words as for Diagram."""
    return Diagram("Pv", engine, **words)


def main(arguments=None):
    """calvex plot hs -u T=C -u P=bar -o mollier.svg"""
    reader = argparse.ArgumentParser(
        prog="calvex plot", description="Draws a diagram of water and steam.")
    reader.add_argument("diagram", choices=KINDS, help="Ts, hs (Mollier), logph or Pv")
    reader.add_argument("-u", "--unit", action="append", default=[], metavar="GROUP=UNIT",
                        help="unit of a quantity, such as T=C; may be repeated")
    reader.add_argument("-o", "--output", required=True, metavar="FILE",
                        help="where to: .svg, .png or .pdf")
    reader.add_argument("--dark", action="store_true", help="for a dark page")
    given = reader.parse_args(arguments)
    for choice in given.unit:
        if "=" not in choice:
            reader.error(f"{choice!r} should read GROUP=UNIT, such as T=C")
    try:
        engine = Engine(units=dict(choice.split("=", 1) for choice in given.unit))
        matplotlib.use("agg")
        Diagram(given.diagram, engine, theme="dark" if given.dark else "light").save(given.output)
    except (ValueError, OSError) as failure:
        print(f"calvex: {failure}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
