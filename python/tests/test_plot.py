"""Diagrams: their lines are those of the engine, and the pictures are those that were looked at.

CALVEX_KEEP_PICTURES=1 keeps what is drawn now: look at it then.
"""
import copy
import os
import pickle
import subprocess
import sys

import calvex
import numpy as np
import pytest
from conftest import PACKAGE, ROOT

matplotlib = pytest.importorskip("matplotlib")
matplotlib.use("agg")
from calvex import plot  # noqa: E402  (the output is chosen first)

PICTURES = ROOT / "python/tests/pictures"


def rankine(steam):
    """A cycle with reheat: the expansion in the low-pressure part is a line of many points."""
    live = steam.state(P=150, T=540)
    cold = steam.state(P=35, h=steam.TurbineA(live.h, 150, 35, 0.87, 1).HOut)
    hot = steam.state(P=35, T=540)
    P = np.geomspace(34.9, 0.05, 30)
    exhaust = steam.state(P=P, h=steam.TurbineA(hot.h, 35, P, 0.88, 1).HOut)
    water = steam.state(P=0.05, x=0)
    feed = steam.state(P=150, h=steam.WaterPump(water.h, 0.05, 150, 1, 0.8).HOut)
    return [("1", live), ("2", cold), ("3", hot), ("4", exhaust), ("5", water), ("6", feed)]


CASES = {
    "Ts": lambda steam: plot.Ts(steam),
    "hs": lambda steam: plot.hs(steam),
    "logph": lambda steam: plot.logph(steam),
    "Pv": lambda steam: plot.Pv(steam),
    "hs-imperial": lambda steam: plot.hs(calvex.Engine(T="F", P="psia", H="BTU/lbm",
                                                       S="BTU/(lbm.F)")),
    "cycle-dark": lambda steam: plot.Ts(steam, theme="dark").draw(rankine(steam), closed=True),
    "line": lambda steam: plot.hs(steam).draw(rankine(steam)[:4]),
}


def root_mean_square(a, b):
    return float(np.sqrt(np.mean((a[..., :3] - b[..., :3]) ** 2)))


@pytest.mark.parametrize("name", CASES)
def test_pictures_are_those_that_were_looked_at(steam, name, tmp_path):
    drawn = tmp_path / f"{name}.png"
    CASES[name](steam).save(drawn, dpi=60).close()
    kept = PICTURES / f"{name}.png"
    if os.environ.get("CALVEX_KEEP_PICTURES"):
        kept.write_bytes(drawn.read_bytes())
    a, b = matplotlib.image.imread(drawn), matplotlib.image.imread(kept)
    assert a.shape == b.shape
    # Other fonts or a line moved by one pixel make 0.005; a line missing makes 0.02.
    assert root_mean_square(a, b) < 0.01
    # The comparison is one that can fail.
    assert root_mean_square(a, np.roll(b, 8, axis=0)) > 0.03


def test_isolines_lie_where_the_engine_says(steam):
    diagram = plot.hs(steam)
    s, h = diagram._line("P", 20.0)
    states = steam.state(P=20.0, h=h[np.isfinite(s)])
    np.testing.assert_allclose(states.s, s[np.isfinite(s)], rtol=1e-9)
    s, h = diagram._line("T", 500.0)
    np.testing.assert_allclose(steam.state(h=h[50:300], s=s[50:300]).T, 500, rtol=1e-6)
    diagram.close()


@pytest.mark.parametrize("kind", plot.KINDS)
def test_every_family_is_labelled_in_the_users_units(kind):
    diagram = plot.Diagram(kind, calvex.Engine(T="F", P="psia"))
    texts = [text.get_text() for text in diagram.axes.texts]
    if "T" in diagram.kind.families:
        assert sum("°F" in text for text in texts) >= 3
    if "P" in diagram.kind.families:
        assert sum("psia" in text for text in texts) >= 5
    assert sum("x = " in text for text in texts) >= 2
    labels = diagram.axes.get_xlabel() + diagram.axes.get_ylabel()
    assert ", " in labels and "·" in labels or "psia" in labels or "m³" in labels
    diagram.close()


def test_labels_do_not_cover_each_other(steam):
    for kind in plot.KINDS:
        diagram = plot.Diagram(kind, steam)
        spots = [text.get_window_extent().get_points().mean(axis=0) for text in diagram.axes.texts]
        assert len(spots) > 8
        for i, a in enumerate(spots):
            assert all(np.hypot(*(a - b)) > 8 for b in spots[:i]), kind
        diagram.close()


def test_a_process_follows_the_isobar_through_the_wet_region(steam):
    diagram = plot.Ts(steam)
    diagram.draw([steam.state(P=10, T=20), steam.state(P=10, T=400)])
    s, T = diagram.axes.lines[-3].get_data()
    assert T.max() == pytest.approx(400) and T.min() == pytest.approx(20)
    # It rests on the saturation temperature for half of its way.
    assert np.isclose(T, steam.TSatP(10), rtol=1e-6).sum() > 60
    diagram.close()


def test_svg_is_the_same_every_time(steam, tmp_path):
    for name in ("a.svg", "b.svg"):
        plot.logph(steam).save(tmp_path / name).close()
    assert (tmp_path / "a.svg").read_bytes() == (tmp_path / "b.svg").read_bytes()
    assert b"<svg" in (tmp_path / "a.svg").read_bytes()


def test_wrong_words_are_refused(steam):
    with pytest.raises(ValueError, match="light and dark"):
        plot.Ts(steam, theme="pink")


def run(*arguments):
    return subprocess.run([sys.executable, "-m", "calvex.plot", *map(str, arguments)], text=True,
                          capture_output=True, env={**os.environ, "PYTHONPATH": str(PACKAGE)})


def test_the_command_draws_and_tells_what_is_wrong(tmp_path):
    done = run("hs", "-u", "T=C", "-u", "P=bar", "-o", tmp_path / "mollier.svg")
    assert (done.returncode, done.stderr) == (0, "")
    assert (tmp_path / "mollier.svg").stat().st_size > 10_000
    wrong = run("hs", "-u", "T=Grad", "-o", tmp_path / "x.svg")
    assert wrong.returncode == 1 and "'Grad' is not a unit of Temperature" in wrong.stderr
    assert run("xy", "-o", tmp_path / "x.svg").returncode == 2
    assert not (tmp_path / "x.svg").exists()


GAUGES = {"barg": "bara", "psig": "psia", "mbarg": "mbar", "kPag": "kPa", "MPag": "MPa",
          "kgf/cm2g": "kgf/cm²"}


def test_every_gauge_has_its_absolute_unit():
    units = [*calvex._members.groups()[1][3], *calvex._members.groups()[1][4]]
    assert {unit[0] for unit in units if unit[2] != 0} == set(GAUGES)
    for gauge, unit in GAUGES.items():
        engine = plot.absolute(calvex.Engine(P=gauge, T="C"))
        assert (engine.unit("P"), engine.unit("T")) == (unit, "C")
    same = calvex.Engine(P="bar")
    assert plot.absolute(same) is same


@pytest.mark.parametrize("kind", plot.KINDS)
def test_the_diagram_of_a_gauge_is_absolute_and_says_so(kind, recwarn):
    diagram = plot.Diagram(kind, calvex.Engine(T="C", P="barg"))
    like = plot.Diagram(kind, calvex.Engine(T="C", P="bar"))
    lines = [[line.get_xydata() for line in d.axes.lines] for d in (diagram, like)]
    assert len(lines[0]) == len(lines[1]) > 10
    for one, other in zip(*lines):
        np.testing.assert_allclose(one, other, rtol=1e-9)
    texts = [text.get_text() for text in diagram.axes.texts]
    labels = diagram.axes.get_xlabel() + diagram.axes.get_ylabel()
    assert not any("barg" in text for text in (*texts, labels))
    if "P" in diagram.kind.families:
        assert sum(text.endswith(" bara") for text in texts) >= 5
    if "P" in (diagram.kind.x, diagram.kind.y):
        assert "pressure, bara (absolute)" in labels
    assert not recwarn.list
    for each in (diagram, like):
        each.close()


def test_the_window_of_a_gauge_is_given_in_its_unit():
    diagram = plot.logph(calvex.Engine(P="barg"), ylim=(0, 99))
    assert diagram.axes.get_ylim() == pytest.approx((1.01325, 100.01325))
    diagram.close()
    with pytest.raises(ValueError, match=r"pressure above -1\.01325 barg, in this order"):
        plot.logph(calvex.Engine(P="barg"), ylim=(-2, 99))


def test_states_of_other_engines_are_drawn_where_they_belong(steam):
    diagram = plot.hs(steam).draw([calvex.state(P=10, T=773.15)])
    point = diagram.axes.lines[-1].get_xydata()[0]
    assert point == pytest.approx([6.59706, 3374.0], rel=1e-5)
    diagram.close()
    gauge = calvex.Engine(T="C", P="barg", H="J/kg")
    diagram = plot.logph(gauge).draw(gauge.state(P=99, T=500))
    assert diagram.axes.lines[-1].get_xydata()[0] == pytest.approx([gauge.HPT(99, 500), 100.01325])
    diagram.close()


@pytest.mark.parametrize("wrong, kind, said", [
    (lambda e: plot.Diagram("xy"), ValueError, "'xy'; there are Ts, hs, logph and Pv"),
    (lambda e: plot.Diagram(3), ValueError, "there are Ts"),
    (lambda e: plot.hs("steam"), TypeError, "units of a calvex.Engine, not of 'steam'"),
    (lambda e: plot.hs(e, axes=3), TypeError, "axes are matplotlib's"),
    (lambda e: plot.hs(e, size=3), ValueError, "width and height in inches"),
    (lambda e: plot.hs(e, xlim=3), TypeError, "the lowest and the highest entropy"),
    (lambda e: plot.hs(e, xlim=(9, 5)), ValueError, r"in this order, not \(9, 5\)"),
    (lambda e: plot.logph(e, ylim=(0, 100)), ValueError, "pressure above 0 bara"),
    (lambda e: plot.Ts(e, ylim=(0, float("nan"))), ValueError, "in this order"),
])
def test_a_wrong_diagram_is_refused_and_leaves_no_figure(steam, wrong, kind, said):
    before = matplotlib.pyplot.get_fignums()
    with pytest.raises(kind, match=said):
        wrong(steam)
    assert matplotlib.pyplot.get_fignums() == before


@pytest.mark.parametrize("wrong", [3, "1", [3], [("1", 3)], [(3, "1")]])
def test_what_is_no_process_is_refused(steam, wrong):
    diagram = plot.Ts(steam)
    lines = len(diagram.axes.lines)
    with pytest.raises(TypeError, match="a process is a state or a list of states"):
        diagram.draw(wrong)
    with pytest.raises(TypeError, match="a process is a state or a list of states"):
        diagram.draw(steam.TurbineA(3374, 100, 10, 0.8, 5))
    assert len(diagram.axes.lines) == lines
    diagram.close()


@pytest.mark.parametrize("again", [lambda d: pickle.loads(pickle.dumps(d)), copy.deepcopy])
def test_diagrams_are_pickled_and_copied(steam, again, tmp_path):
    diagram = plot.Ts(steam).draw(rankine(steam), closed=True)
    other = again(diagram).save(tmp_path / "b.svg")
    diagram.save(tmp_path / "a.svg")
    assert (tmp_path / "a.svg").read_bytes() == (tmp_path / "b.svg").read_bytes()
    lines = len(diagram.axes.lines)
    other.draw(steam.state(P=1, T=300))
    assert len(other.axes.lines) > lines == len(diagram.axes.lines)
    for each in (diagram, other):
        each.close()


def test_a_diagram_shows_itself_in_a_notebook_once(steam):
    diagram = plot.Ts(steam)
    number = diagram.figure.number
    assert diagram._repr_svg_().startswith("<?xml") and "<svg" in diagram._repr_svg_()
    assert diagram._repr_png_().startswith(b"\x89PNG")
    assert number not in matplotlib.pyplot.get_fignums()
    figure, axes = matplotlib.pyplot.subplots()
    others = plot.Ts(steam, axes=axes)  # the figure is somebody else's to show
    assert others._repr_svg_() is others._repr_png_() is None
    assert figure.number in matplotlib.pyplot.get_fignums()
    matplotlib.pyplot.close(figure)
