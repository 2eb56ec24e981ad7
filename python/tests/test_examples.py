"""The examples run, as scripts and as notebooks. What they compute is asserted in them."""
import os
import subprocess
import sys

import pytest
from conftest import PACKAGE, ROOT

FOLDER = ROOT / "examples/python"
SCRIPTS = sorted(FOLDER.glob("*.py"))
NOTEBOOKS = sorted(FOLDER.glob("*.ipynb"))
ENVIRONMENT = {**os.environ, "PYTHONPATH": str(PACKAGE), "MPLBACKEND": "agg"}
PRINTED = {
    "boiler-balance": "HPT failed for 2 of 8 elements",
    "expansion-line": "power, MW",
    "reheat-cycle": "efficiency",
    "thermocompressor-map": "10000 ejectors",
    "historian": "rows/s",
}


@pytest.mark.parametrize("script", SCRIPTS, ids=lambda path: path.stem)
def test_scripts_run(script, tmp_path):
    words = ["--rows", "400000", "--folder",
             str(tmp_path)] if script.stem == "historian" else []
    run = subprocess.run([sys.executable, "-W", "error::RuntimeWarning", script, *words], text=True,
                         cwd=tmp_path, capture_output=True,
                         env={**ENVIRONMENT, "PICTURES": str(tmp_path)}, timeout=120)
    assert run.returncode == 0, run.stderr
    assert PRINTED[script.stem] in run.stdout
    if "PICTURES" in script.read_text():
        assert (tmp_path / f"{script.stem}.svg").stat().st_size > 10_000


def test_notebooks_are_those_of_the_scripts():
    assert len(NOTEBOOKS) == 4
    run = subprocess.run([ROOT / "scripts/make-notebooks", "--check"], text=True,
                         capture_output=True)
    assert run.returncode == 0, run.stdout


@pytest.mark.parametrize("path", NOTEBOOKS, ids=lambda path: path.stem)
def test_notebooks_run(path, monkeypatch):
    nbformat, nbclient = pytest.importorskip("nbformat"), pytest.importorskip("nbclient")
    monkeypatch.setenv("PYTHONPATH", str(PACKAGE))
    monkeypatch.delenv("MPLBACKEND", raising=False)
    notebook = nbformat.read(path, as_version=4)
    nbclient.NotebookClient(notebook, timeout=120, kernel_name="python3",
                            resources={"metadata": {"path": str(FOLDER)}}).execute()
    outputs = [output for cell in notebook.cells for output in cell.get("outputs", [])]
    assert any(PRINTED[path.stem] in output.get("text", "") for output in outputs)
    if "plot" in path.read_text():
        assert any("image/png" in output.get("data", {}) for output in outputs)


def test_a_killed_worker_loses_and_doubles_nothing(tmp_path):
    """The example asserts it of itself; here the files are compared with what one process makes."""
    import numpy as np

    import calvex
    run = subprocess.run([sys.executable, FOLDER / "historian.py", "--rows", "400000", "--partition",
                          "20000", "--workers", "3", "--kill", "--folder", str(tmp_path)], text=True,
                         capture_output=True, env=ENVIRONMENT, timeout=200)
    assert run.returncode == 0, run.stderr
    assert "killed worker" in run.stdout and "400000 rows in 20 partitions" in run.stdout
    assert len(list(tmp_path.glob("out-*.npy"))) == 20
    for number in range(20):
        P, T, _ = np.load(tmp_path / f"in-{number:05}.npy")
        h, _, _ = np.load(tmp_path / f"out-{number:05}.npy")
        np.testing.assert_allclose(h, calvex.HPT(P, T, errors="ignore"), rtol=1e-10)


@pytest.mark.parametrize("words, said", [
    ("--workers 0", "--workers: 0 is no number of 1 or more"),
    ("--workers -2", "--workers: -2 is no"), ("--rows -5", "--rows: -5 is no number of 1 or more"),
    ("--rows many", "--rows: many is no"), ("--partition 0", "--partition: 0 is no"),
    ("--folder /none", "--folder: there is no folder /none"),
])
def test_the_historian_refuses_what_it_cannot_do(words, said):
    run = subprocess.run([sys.executable, FOLDER / "historian.py", *words.split()], text=True,
                         capture_output=True, env=ENVIRONMENT, timeout=60)
    assert run.returncode == 2 and said in run.stderr and "Traceback" not in run.stderr


def test_a_worker_that_dies_with_nobody_left_is_followed_by_another(tmp_path):
    run = subprocess.run([sys.executable, FOLDER / "historian.py", "--rows", "40000", "--partition",
                          "10000", "--workers", "1", "--kill", "--folder", str(tmp_path)], text=True,
                         capture_output=True, env=ENVIRONMENT, timeout=100)
    assert run.returncode == 0 and "40000 rows in 4 partitions, 1 workers" in run.stdout, run.stderr
