#!/usr/bin/env python3
"""The example workbook for Excel is what its script makes, and shows what the command line answers.

    workbook_test.py CALVEX
"""
import json
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml
import zipfile

root = pathlib.Path(__file__).resolve().parent.parent.parent
calvex = sys.argv[1]
kept = root / "examples/excel/steam-plant.xlsx"
spaces = {"m": "http://schemas.openxmlformats.org/spreadsheetml/2006/main"}


def contents(path):
    with zipfile.ZipFile(path) as archive:
        return {name: archive.read(name).decode() for name in archive.namelist()}


with tempfile.TemporaryDirectory() as folder:
    made = pathlib.Path(folder) / "made.xlsx"
    subprocess.run([root / "excel/workbook/make", calvex, made], check=True)
    old, new = contents(kept), contents(made)
for name in sorted(old.keys() | new.keys()):
    if old.get(name) != new.get(name):
        sys.exit(f"{name} is another one: run excel/workbook/make CALVEX {kept.relative_to(root)}")


def cells(text):
    found = {}
    for cell in xml.fromstring(text).iterfind(".//m:c", spaces):
        formula = cell.find("m:f", spaces)
        value = cell.find("m:v", spaces)
        found[cell.get("r")] = (None if formula is None else formula.text,
                                None if value is None else value.text)
    return found


# Every formula that is one call: its inputs are read from the file as a person would read them.
unit_words = re.search(r'CALVEX.UNITS\(([^)]*)\)', cells(old["xl/worksheets/sheet1.xml"])["A3"][0])
words = [word.strip('"') for word in unit_words[1].split(",")]
units = [part for pair in zip(words[::2], words[1::2]) for part in ("-u", "=".join(pair))]
checked, wrong = 0, []
for name, text in old.items():
    if not name.startswith("xl/worksheets/"):
        continue
    sheet = cells(text)
    for place, (formula, value) in sheet.items():
        plain = (formula or "").replace('CALVEX.CONVERT("Q","Fraction",CALVEX.UNIT("Q"),1)', "1")
        call = re.fullmatch(r"([A-Za-z_0-9]+)\(([^()]*)\)", plain)
        if call is None:
            continue
        arguments = call[2].split(",")
        if any(re.search(r"[-+*/^]", argument) for argument in arguments):
            continue
        given = [sheet[argument.replace("$", "")][1] if re.fullmatch(r"\$?[A-Z]\$?\d+", argument)
                 else argument for argument in arguments if '"' not in argument]
        answer = json.loads(subprocess.run(
            [calvex, "--no-config", "--json", call[1], *given, *units],
            check=True, capture_output=True, text=True).stdout)
        result = arguments[-1].strip('"') if '"' in arguments[-1] else None
        found = [number for key, number in answer.items()
                 if key not in ("member", "hresult", "pSucc", "units")
                 and (result is None or key == "p" + result)]
        if len(found) != 1 or abs(found[0] - float(value)) > 1e-12 * abs(found[0]):
            wrong.append(f"{name} {place} {formula}: {value}, the command line: {found}")
        checked += 1
print("\n".join(wrong) if wrong else f"{checked} values are the command line's")
sys.exit(bool(wrong) or checked < 400)
