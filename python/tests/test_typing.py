"""The types that are kept are those of the member table, and say what is so."""
import os
import re
import shutil
import subprocess
import sys

import calvex
import pytest
from calvex._members import members
from conftest import PACKAGE, ROOT

ENVIRONMENT = {**os.environ, "PYTHONPATH": str(PACKAGE), "MYPYPATH": str(ROOT / "python")}


def test_kept_types_are_those_of_the_table():
    made = subprocess.run([sys.executable, ROOT / "scripts/write-python-types"], text=True, check=True,
                          capture_output=True, env=ENVIRONMENT).stdout
    assert made == (ROOT / "python/calvex/_table.pyi").read_text(), \
        "scripts/update-generated makes them anew"


def mypy(*arguments, cwd=ROOT):
    if shutil.which("mypy", path="/usr/bin") is None:
        pytest.fail("mypy is missing: scripts/install-packages check")
    run = subprocess.run(["/usr/bin/mypy", "--no-incremental", "--cache-dir=/dev/null",
                          "--python-executable", sys.executable, *map(str, arguments)], text=True,
                         capture_output=True, env=ENVIRONMENT, cwd=cwd)
    return run.stdout + run.stderr


def test_a_typed_program_is_understood_and_its_mistakes_are_found():
    program = ROOT / "python/tests/typed_program.py"
    wrong = {i for i, line in enumerate(program.read_text().splitlines(), 1) if "# wrong" in line}
    report = mypy(program)
    found = {int(n) for n in re.findall(r"typed_program\.py:(\d+): error", report)}
    assert found == wrong, report
    assert "calvex/" not in report, report


def test_everything_that_is_there_is_typed():
    declared = (ROOT / "python/calvex/__init__.pyi").read_text() \
        + (ROOT / "python/calvex/_table.pyi").read_text()
    for name in [*members.kinds, *calvex.__all__]:
        assert re.search(rf"\b{name}\b", declared), name
    from calvex import _state
    for name in _state.PROPERTIES:
        assert re.search(rf"^    {name}: ", declared, re.MULTILINE), name
