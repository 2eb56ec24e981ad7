import json
import pathlib
import re
import shlex
import subprocess
import zipfile

import pytest

from office import Office, temporary_folder

ROOT = pathlib.Path(__file__).resolve().parents[2]
COMMAND = ROOT / "build/release/apps/calvex"


def calvex(*words):
    """What the command line answers, in model units and with all digits."""
    run = subprocess.run([COMMAND, "--no-config", *words], capture_output=True, text=True)
    return run.stdout, run.returncode


@pytest.fixture(scope="session")
def extension():
    (archive,) = (ROOT / "build").glob("calvex-*.oxt")
    return archive


@pytest.fixture(scope="session")
def office(extension):
    with temporary_folder() as folder, Office(folder, extension) as running:
        yield running


@pytest.fixture
def folder():
    with temporary_folder() as made:
        yield made


@pytest.fixture
def document(office):
    opened = office.new()
    yield opened
    opened.close(True)


@pytest.fixture
def sheet(document):
    return Sheet(document.Sheets[0])


class Sheet:
    """Cells by their names."""

    def __init__(self, sheet):
        self.sheet = sheet

    def __getitem__(self, name):
        return self.sheet.getCellRangeByName(name)

    def put(self, name, formula):
        cell = self[name]
        cell.Formula = formula
        return cell

    def array(self, name, formula):
        cells = self[name]
        cells.ArrayFormula = formula
        return cells.DataArray

    def error(self, name):
        return self[name].getError()


@pytest.fixture(scope="session")
def functions(extension):
    """The names of the worksheet functions that are members, with an example's arguments."""
    made = zipfile.ZipFile(extension).read("CalcAddIns.xcu").decode()
    names = re.findall(r'"DisplayName"><value xml:lang="en">([^<]+)</value></prop><prop '
                       r'oor:name="Description"><value xml:lang="en">[^<]*</value></prop>\n'
                       r'<prop oor:name="Category"', made)
    found = {}
    for name in names:
        if name.startswith("CALVEX."):
            continue
        text, _ = calvex("help", name)
        lines = [shlex.split(line) for line in text.splitlines() if line.startswith("  calvex ")]
        (example,) = [line for line in lines if line[1] == name]
        found[name] = example[2:]
    return found


def answers(name, words):
    """The numbers, or the table, that the command line answers with."""
    text, code = calvex("--json", name, *words)
    if code != 0:
        return None
    answer = json.loads(text)
    if "pRetArray" in answer:
        return answer["pRetArray"]
    return [value for key, value in answer.items()
            if key not in ("member", "hresult", "pSucc", "units")]
