"""What the pages for users show runs."""
import re

import calvex
import matplotlib
import pytest
from conftest import ROOT

matplotlib.use("agg")


@pytest.mark.parametrize("page", ["docs/python.md", "README.md"])
def test_the_pages_code_runs(page, tmp_path, monkeypatch, steam):
    monkeypatch.chdir(tmp_path)
    text = (ROOT / page).read_text()
    blocks = [block for block in re.findall(r"```python\n(.*?)```", text, re.DOTALL)
              if not block.startswith(">>>")]
    assert blocks
    names = {"live": steam.state(P=100, T=500), "exhaust": steam.state(P=0.05, x=0.9)}
    for block in blocks:
        exec(compile(block, page, "exec"), names)
    matplotlib.pyplot.close("all")


def test_the_numbers_of_the_page_are_those(steam):
    page = (ROOT / "docs/python.md").read_text()
    assert repr(steam.TurbineA(3374, 100, 10, 0.8, 5)).startswith(
        re.search(r"# (TurbineA\(Power=.* C, )\.\.\.\)", page)[1])
    assert str(calvex.HPT(10, 773.15)).startswith("3373.998") and "3373.998..." in page
    assert str(steam.TSatP(1.01325, unit=True)).startswith("100.000") and "100.000... C" in page
    with pytest.warns(calvex.CalvexWarning) as said:
        steam.HPT([100, 100], [500, 3000])
    assert str(said[0].message) in re.sub(r"\s+", " ", page)
    h = steam.HPT(100, 500, unit="BTU/lb")
    assert f"{h:.1f}" == "1450.6 Btu/lb" and '# "1450.6 Btu/lb"' in page
    for call in (lambda: steam.TPH(100, 9000), lambda: steam.HPT(None, 500)):
        with pytest.raises((calvex.CalvexError, TypeError)) as failure:
            call()
        assert str(failure.value) in re.sub(r"\s+", " ", page)


def test_the_kept_diagram_is_the_one_that_is_drawn(tmp_path):
    from calvex import plot
    plot.hs(calvex.Engine(T="C", P="bar")).save(tmp_path / "mollier.svg").close()

    def parts(path):
        return re.findall(r'<path id="(?:DejaVu|[a-z]+)|<g id="(?:text|line2d)_\d+"', path.read_text())
    assert parts(tmp_path / "mollier.svg") == parts(ROOT / "docs/mollier.svg")
