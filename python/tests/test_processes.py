"""Copies, threads, processes and memory."""
import concurrent.futures
import copy
import gc
import multiprocessing
import os
import pickle
import subprocess
import sys
import threading
import time

import calvex
import numpy as np
import pytest
from conftest import PACKAGE, ROOT


@pytest.mark.parametrize("again", [lambda e: pickle.loads(pickle.dumps(e)), copy.copy,
                                   copy.deepcopy])
def test_engines_are_copied_with_units_and_settings(again):
    engine = calvex.Engine(T="°F", P="inHg", errors="ignore")
    engine.SolverIter = 150
    other = again(engine)
    assert other is not engine and repr(other) == repr(engine)
    assert (other.errors, other.SolverIter) == ("ignore", 150)
    assert other.TSatP(29.9212) == engine.TSatP(29.9212) == pytest.approx(212, abs=0.1)
    other.SetUserUnit("T", "C")
    assert engine.unit("T") == "F"


def test_members_results_and_states_are_pickled(steam):
    for thing in (steam.HPT, calvex.HPT):
        again = pickle.loads(pickle.dumps(thing))
        assert isinstance(again, np.ufunc) and again(50, 500) == thing(50, 500)
    assert pickle.loads(pickle.dumps(np.add)) is np.add
    assert pickle.loads(pickle.dumps(steam.SetUserUnit)).__name__ == "SetUserUnit"
    work = steam.TurbineA(3374, 100, 10, 0.8, 5)
    again = pickle.loads(pickle.dumps(work))
    assert again == work and again.units == work.units and again.Power == work.Power
    state = pickle.loads(pickle.dumps(steam.state(P=100, T=[400, 500])))
    assert state.h == pytest.approx(steam.HPT(100, [400, 500]))


def test_errors_are_pickled(steam):
    with pytest.raises(calvex.CalvexError) as failure:
        steam.HPT(100, 3000)
    again = pickle.loads(pickle.dumps(failure.value))
    assert str(again) == str(failure.value) and again.reason == failure.value.reason


def test_one_engine_serves_eight_threads(steam):
    T = np.linspace(320, 600, 3000)
    expected, reason = steam.HPT(100, T), None
    wrong = []

    def work(seed):
        random = np.random.default_rng(seed)
        for _ in range(30):
            i = random.integers(len(T))
            if abs(steam.HPT(100, T[i]) - expected[i]) > 1e-9 * expected[i]:
                wrong.append(i)
            if not np.array_equal(steam.HPT(100, T), expected):
                wrong.append("array")
            try:
                steam.HPT(100, 3000 + seed)
                wrong.append("no failure")
            except calvex.CalvexError as failure:
                if "Temperature" not in str(failure):
                    wrong.append(str(failure))
    threads = [threading.Thread(target=work, args=(seed,)) for seed in range(8)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert wrong == [] and reason is None


def test_units_may_change_while_others_compute():
    engine = calvex.Engine()
    kelvin = calvex.TSatP(np.full(2000, 1.0))[0]
    allowed = np.array([kelvin, kelvin - 273.15])
    stop, wrong = threading.Event(), []

    def compute():
        while not stop.is_set():
            values = engine.TSatP(np.full(2000, 1.0))
            if not np.isclose(values[0], allowed).any() or np.ptp(values) > 1e-9:
                wrong.append(values[0])
    threads = [threading.Thread(target=compute) for _ in range(4)]
    for thread in threads:
        thread.start()
    for _ in range(200):
        for unit, expected in (("C", kelvin - 273.15), ("K", kelvin)):
            engine.SetUserUnit("T", unit)
            time.sleep(2e-4)  # others give back what they borrowed before
            if not np.isclose(engine.TSatP(np.full(10, 1.0)), expected).all():
                wrong.append(unit)
    stop.set()
    for thread in threads:
        thread.join()
    assert wrong == []


def test_a_state_is_in_one_unit_while_others_change_it():
    engine = calvex.Engine()
    kelvin = calvex.TSatP(1.0)
    expected = {"K": kelvin, "C": kelvin - 273.15}
    stop, wrong = threading.Event(), []

    def compute():
        while not stop.is_set():
            state = engine.state(P=1.0, x=0.5)
            if abs(state.T - expected[state.unit("T")]) > 1e-6:
                wrong.append((state.T, state.unit("T")))
    threads = [threading.Thread(target=compute) for _ in range(4)]
    for thread in threads:
        thread.start()
    for _ in range(300):
        for unit in ("C", "K"):
            engine.SetUserUnit("T", unit)
            if engine.state(P=1.0, x=0.5).unit("T") != unit:
                wrong.append(unit)
    stop.set()
    for thread in threads:
        thread.join()
    assert wrong == []


def _enthalpies(engine, T):
    return engine.HPT(100, T)


@pytest.mark.parametrize("method", ["fork", "spawn", "forkserver"])
def test_processes(steam, method):
    expected = steam.HPT(100, np.linspace(320, 600, 20_000))
    with multiprocessing.get_context(method).Pool(2) as pool:
        parts = pool.starmap(_enthalpies, [(steam, part) for part in
                                           np.array_split(np.linspace(320, 600, 20_000), 4)])
    np.testing.assert_allclose(np.concatenate(parts), expected, rtol=1e-12)


def test_members_go_to_processes_as_they_are(steam):
    with concurrent.futures.ProcessPoolExecutor(2) as pool:
        assert list(pool.map(steam.TSatP, [1.0, 10.0])) == [steam.TSatP(1), steam.TSatP(10)]


def test_a_fork_while_threads_compute_leaves_a_child_that_can(steam):
    stop = threading.Event()
    T = np.linspace(320, 600, 20_000)
    few = np.full(600, 20.0)

    def compute():
        while not stop.is_set():
            steam.HPT(100, T[:1000])
            for _ in range(50):
                steam.XT(few)  # in and out of the lock
    threads = [threading.Thread(target=compute) for _ in range(3)]
    for thread in threads:
        thread.start()
    try:
        for _ in range(60):
            child = os.fork()
            if child == 0:
                status = 1
                try:
                    fine = steam.HPT(100, 500) > 3000 and len(steam.HPT(100, T)) == len(T)
                    status = 0 if fine and calvex.Engine().HPT(10, 773.15) > 3000 else 2
                finally:
                    os._exit(status)
            assert os.waitpid(child, 0)[1] == 0
    finally:
        stop.set()
        for thread in threads:
            thread.join()


def _memory():
    """Resident bytes."""
    pages = int(open("/proc/self/statm").read().split()[1])
    return pages * os.sysconf("SC_PAGE_SIZE")


def _fail(engine):
    try:
        engine.XT(-1)
    except calvex.CalvexError:
        pass


LEAKS = {
    "a million scalar calls": (1_000_000, lambda e: e.HPT(100.0, 500.0)),
    "named tuples": (100_000, lambda e: e.QTS_PH(10, 3000)),
    "failures": (30_000, _fail),
    "arrays": (3_000, lambda e: e.XT(np.linspace(10, 300, 100))),
    "arrays with failures": (3_000, lambda e: e.XT([10.0, -400.0] * 50, errors="ignore")),
    "grids": (30, lambda e: e.XT(np.full((200, 300), 20.0).T)),
    "engines with members": (300, lambda e: calvex.Engine(T="F").XT(100)),
    "states": (10_000, lambda e: e.state(P=100, T=500).w),
    "states that fail": (3_000, lambda e: e.state(P=100, h=[9000, 2800], errors="ignore").reasons()),
    "failures with causes": (3_000, lambda e: e.TPH(100, [9000.0, 2800.0], errors="ignore")),
    "units that change": (300, lambda e: (e.SetUserUnit("T", "C"), e.state(P=100, T=500))),
    "values and their sums": (10_000, lambda e: e.XT(100, unit=True) + e.XT(100, unit=True)),
    "signatures and help": (1_000, lambda e: (e.HPT.__doc__, e.HPT.__signature__)),
    "pickles": (300, lambda e: pickle.loads(pickle.dumps(e)).XT(100)),
    "values": (10_000, lambda e: e.XT(100, unit=True)),
    "traces": (1_000, lambda e: str(e.trace())),
    "wrong arguments": (10_000, lambda e: pytest.raises(TypeError, e.XT, "a")),
}


@pytest.mark.parametrize("name", LEAKS)
def test_memory_stays(steam, name):
    count, work = LEAKS[name]
    for _ in range(max(count // 10, 20)):
        work(steam)
    gc.collect()
    before, objects = _memory(), len(gc.get_objects())
    for _ in range(count):
        work(steam)
    gc.collect()
    assert len(gc.get_objects()) - objects < 50
    # 48 bytes lost a call would be 48 MB in a million, and 0.1 MB in 3,000: as far as noise allows.
    assert _memory() - before < max(2e6, 16 * count)


def test_a_library_that_is_absent_is_no_obstacle():
    program = ("import sys\nfor n in ('matplotlib', 'pandas', 'pint', 'dask', 'xarray'):\n"
               "    sys.modules[n] = None\n"
               "import calvex\nprint(calvex.HPT(10, 773.15), calvex.HPT([10], 773.15)[0])")
    run = subprocess.run([sys.executable, "-c", program], capture_output=True, text=True, check=True,
                         env={**os.environ, "PYTHONPATH": str(PACKAGE)}, cwd=ROOT)
    scalar, array = map(float, run.stdout.split())
    assert scalar == pytest.approx(array) == pytest.approx(3373.998, abs=1e-3)


def test_without_numpy_it_says_what_is_missing():
    program = "import sys\nsys.modules['numpy'] = None\nimport calvex\ncalvex.HPT(10, 773.15)"
    run = subprocess.run([sys.executable, "-c", program], capture_output=True, text=True,
                         env={**os.environ, "PYTHONPATH": str(PACKAGE)}, cwd=ROOT)
    assert run.returncode == 1 and run.stderr.splitlines()[-1].startswith(
        "ImportError: calvex computes with NumPy, which this Python does not have: apt install")


# Prints the most threads that there are while an array is computed, beside the one that counts.
THREADS = """
import os, threading, numpy, calvex
calvex.HPT([10.0], 773.15)
before, most, stop = len(os.listdir("/proc/self/task")), 0, False
def count():
    global most
    while not stop:
        most = max(most, len(os.listdir("/proc/self/task")) - before - 1)
counter = threading.Thread(target=count)
counter.start()
calvex.HPT(10.0, numpy.linspace(600, 800, 600_000))
stop = True
counter.join()
print(most)
"""


@pytest.mark.parametrize("asked, more", [("1", {0}), ("3", {2})])
def test_the_threads_of_an_array_may_be_limited(asked, more):
    run = subprocess.run([sys.executable, "-c", THREADS], capture_output=True, text=True, check=True,
                         env={**os.environ, "PYTHONPATH": str(PACKAGE), "CALVEX_THREADS": asked})
    assert {int(run.stdout)} == more
