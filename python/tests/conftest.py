"""What the tests share. CALVEX_PACKAGE says where the package under test is."""
import csv
import os
import pathlib
import sys

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ.get("CALVEX_BUILD", ROOT / "build/release"))
PACKAGE = pathlib.Path(os.environ.get("CALVEX_PACKAGE", BUILD / "python"))
sys.path.insert(0, str(PACKAGE))


def table(name):
    """The rows of a file of tests/data, numbers as such."""
    lines = [line for line in (ROOT / "tests/data" / name).read_text().splitlines()
             if line and not line.startswith("#")]

    def value(text):
        try:
            return float(text)
        except ValueError:
            return text
    return [{key: value(text) for key, text in row.items()} for row in csv.DictReader(lines)]


@pytest.fixture
def steam():
    import calvex
    return calvex.Engine(T="°C", P="bar")
