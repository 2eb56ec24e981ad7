#!/usr/bin/env python3
"""The numbers kept beside the Windows examples are those of the tables, and what follows from them.

The kept texts are compared with what the examples print elsewhere; this keeps a wrong number of the
program's own from getting in there.
"""
import pathlib
import re
import sys

root = pathlib.Path(__file__).resolve().parent.parent.parent


def rows(name):
    lines = (root / "tests/data" / name).read_text("utf-8").splitlines()
    lines = [line for line in lines if not line.startswith("#")]
    keys = lines[0].split(",")
    return [dict(zip(keys, line.split(","))) for line in lines[1:]]


def the_row(name, **values):
    found = [row for row in rows(name) if all(row[k] == v for k, v in values.items())]
    assert len(found) == 1, (name, values, found)
    return {k: float(v) for k, v in found[0].items() if re.fullmatch(r"[-+.\de]+", v)}


hot = the_row("single-phase.csv", P="3.2776", T="635.28")
mild = the_row("single-phase.csv", P="0.9934", T="468.79")
wet = the_row("saturation.csv", T="372.84")
btu_per_lb = the_row("unit-tables.csv", group="5", unit="Btu/lb")["factor"]
psi = the_row("unit-tables.csv", group="1", unit="psia")["factor"]
bar = the_row("unit-tables.csv", group="1", unit="bara")["factor"]

# The turbine's ideal expansion ends in the wet region: the lever rule gives its enthalpy.
efficiency, flow = 0.8, 10.0
ideal = wet["H_L"] + (hot["S"] - wet["S_L"]) / (wet["S_V"] - wet["S_L"]) * (wet["H_V"] - wet["H_L"])
outlet = hot["H"] - efficiency * (hot["H"] - ideal)

# As many as the examples show, and the engine has in common with the tables.
DECIMALS = 6
EXPECTED = {
    "first-steps.txt": [hot["H"], hot["S"], hot["T"], wet["T"], wet["H_V"]],
    "turbine.txt": [flow * (hot["H"] - outlet), outlet, wet["T"],
                    (outlet - wet["H_L"]) / (wet["H_V"] - wet["H_L"])],
    "units.txt": [mild["H"], mild["H"] / btu_per_lb, 100 * psi / bar],
    "trace.txt": [],
}

failed = 0
version, = re.findall(r"^project\(calvex VERSION ([\d.]+)", (root / "CMakeLists.txt").read_text(), re.M)
if (root / "examples/windows/first-steps.txt").read_text().splitlines()[0] != f"Calvex {version}":
    failed += 1
    print("first-steps.txt has another version; run scripts/update-generated")
kept = {path.name for path in (root / "examples/windows").glob("*.txt")}
if kept != set(EXPECTED):
    failed += 1
    print("kept texts without expected numbers, or the reverse:", kept ^ set(EXPECTED))
for name, numbers in EXPECTED.items():
    text = (root / "examples/windows" / name).read_text()
    # A result follows a colon and has a fraction.
    found = re.findall(r": (\d+\.\d+)(?: [\w/()%.]+)?$", text, re.MULTILINE)
    expected = [f"{round(number, DECIMALS):.15g}" for number in numbers]
    if found != expected:
        failed += 1
        print(f"{name}: {found} instead of {expected}")
    else:
        print(f"{name}: {len(numbers)} numbers as the tables have them")
sys.exit(failed != 0)
