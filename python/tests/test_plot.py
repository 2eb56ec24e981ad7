"""Diagrams: their lines are those of the engine, and the pictures are those that were looked at.

CALVEX_KEEP_PICTURES=1 keeps what is drawn now: look at it then.
"""
import os
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
