"""What Python adds to the engine's own cost, measured in turns in one run."""
import json
import os
import subprocess
import sys
import timeit

import calvex
import numpy as np
import pytest
from conftest import BUILD, PACKAGE

POINTS = 1_000_000
CALLS = {
    "XT": (200_000, lambda: (calvex.XT, (300.0,))),
    "HPT": (20_000, lambda: (calvex.HPT, (10.0, 773.15))),
    "TurbineA": (2_000, lambda: (calvex.TurbineA, (3374.0, 10.0, 1.0, 0.8, 10.0))),
}


def engine_costs():
    run = subprocess.run([BUILD / "python/calvex_python_cost", str(POINTS)], check=True, text=True,
                         capture_output=True)
    return json.loads(run.stdout)


def best(one, other, enough):
    """The pair of measurements with the best ratio, in turns, until it is good enough: other
    programs on the machine only ever make it worse."""
    pairs = []
    for _ in range(6):
        pairs.append((one(), other()))
        if enough(*pairs[-1]):
            break
    return min(pairs, key=lambda pair: pair[0] / pair[1])


@pytest.mark.parametrize("name", CALLS)
def test_a_scalar_call_costs_less_than_a_microsecond_above_the_engines(name):
    count, make = CALLS[name]
    member, arguments = make()
    call = "member(" + ", ".join(f"x{i}" for i in range(len(arguments))) + ")"
    space = {"member": member, **{f"x{i}": x for i, x in enumerate(arguments)}}

    def python():
        return min(timeit.repeat(call, number=count, repeat=7, globals=space)) / count * 1e6
    ours, engine = best(python, lambda: engine_costs()[name], lambda a, b: a - b < 1)
    print(f"\n{name}: {ours:.2f} us in Python, {engine:.2f} us in the engine")
    assert ours - engine < 1


def test_a_million_points_cost_as_much_as_by_the_c_interface():
    i = np.arange(POINTS)
    P, T = 0.1 + i * 7919 % 19900 * 1e-3, 300 + i * 104729 % 700000 * 1e-3

    def python():
        return min(timeit.repeat(lambda: calvex.HPT(P, T, errors="ignore"), number=1, repeat=5))
    ours, engine = best(python, lambda: engine_costs()["many"], lambda a, b: a < 1.2 * b)
    print(f"\n{POINTS} x HPT: {ours:.3f} s in Python, {engine:.3f} s by the C interface")
    assert ours < 1.2 * engine


def seconds_to(program, enough):
    """The best of several, of the processor's time, which other programs change least."""
    environment = {**os.environ, "PYTHONPATH": str(PACKAGE)}

    def once():
        run = subprocess.run([sys.executable, "-c", "import time\nt = time.process_time()\n" + program
                              + "\nprint(time.process_time() - t)"], text=True, check=True,
                             capture_output=True, env=environment)
        return float(run.stdout)
    best_time = once()
    for _ in range(14):
        if best_time < enough:
            break
        best_time = min(best_time, once())
    return best_time


def test_import_takes_less_than_50_milliseconds():
    alone = seconds_to("import calvex", 0.05)
    first = seconds_to("import numpy\nt = time.process_time()\nimport calvex\n"
                       "calvex.HPT(10, 773.15)", 0.05)
    print(f"\nimport calvex: {alone * 1e3:.1f} ms; after NumPy, with the first call {first * 1e3:.1f} ms")
    assert alone < 0.05
    assert first < 0.05


def test_import_brings_no_matplotlib():
    run = subprocess.run([sys.executable, "-c", "import sys, calvex; calvex.HPT(10, 773.15); "
                          "calvex.Engine(T='C').state(P=1, T=50); "
                          "print(*(m for m in ('matplotlib', 'pandas', 'pint', 'dask') "
                          "if m in sys.modules))"], text=True, check=True, capture_output=True,
                         env={**os.environ, "PYTHONPATH": str(PACKAGE)})
    assert run.stdout.strip() == ""
