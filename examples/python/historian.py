"""A historian's rows through a cluster: enthalpy, entropy and exergy of every row, with dask.

    python3 historian.py --rows 20000000 --workers 2
    python3 historian.py --rows 20000000 --workers 2 --kill

Rows lie in partitions, files of pressure, temperature and flow. Each partition is computed by some
worker, written beside its name and then given its name: there is never half a file, and a partition
that is computed twice, because a worker died, is there once. --kill kills a worker on the way.
"""
import argparse
import os
import pathlib
import signal
import sys
import tempfile
import time

# One process for each core: they share the machine, so each computes on one.
os.environ.setdefault("CALVEX_THREADS", "1")

import numpy as np  # noqa: E402
from distributed import Client, LocalCluster, as_completed  # noqa: E402

import calvex  # noqa: E402

T_AMBIENT, H_AMBIENT, S_AMBIENT = 293.15, 84.0, 0.2965  # K, kJ/kg, kJ/(kg.K)


def write(path, array):
    """All of it or nothing, under its name."""
    beside = path.with_suffix(f".{os.getpid()}.new")
    with open(beside, "wb") as file:
        np.save(file, array)
    os.replace(beside, path)


def record(folder, number, rows):
    """What the plant's historian has: pressure MPa, temperature K, flow kg/s. One in a thousand
    temperatures is a sensor's nonsense."""
    random = np.random.default_rng(number)
    P, flow = random.uniform(1, 12, rows), random.uniform(20, 60, rows)
    T = random.uniform(600, 850, rows)
    T[random.random(rows) < 0.001] = 9999
    write(folder / f"in-{number:05}.npy", np.stack([P, T, flow]))


def compute(folder, number):
    """A partition: (number, rows, failed rows, exergy in MW)."""
    P, T, flow = np.load(folder / f"in-{number:05}.npy", mmap_mode="r")
    state = calvex.state(P=P, T=T, errors="ignore")
    exergy = flow * (state.h - H_AMBIENT - T_AMBIENT * (state.s - S_AMBIENT)) / 1000
    write(folder / f"out-{number:05}.npy", np.stack([state.h, state.s, exergy]))
    return number, len(P), int(np.isnan(exergy).sum()), float(np.nansum(exergy))


def run(folder, partitions, workers, kill):
    """The partitions' answers, and the seconds that they took."""
    with LocalCluster(n_workers=workers, threads_per_worker=1, dashboard_address=None,
                      silence_logs=50) as cluster, Client(cluster) as client:
        client.run(lambda: calvex.HPT([10.0], 773.15))  # everybody is awake
        start = time.perf_counter()
        futures = client.map(compute, [folder] * partitions, range(partitions), pure=False, retries=3)
        answers = []
        for future, answer in as_completed(futures, with_results=True):
            answers.append(answer)
            future.release()
            if kill and len(answers) == max(partitions // 3, 1):
                kill = False
                victim = next(iter(client.run(os.getpid).values()))
                os.kill(victim, signal.SIGKILL)
                print(f"killed worker {victim} after {len(answers)} of {partitions} partitions")
        return answers, time.perf_counter() - start


def at_least_one(text):
    number = int(text) if text.lstrip("+-").isdigit() else 0
    if number < 1:
        raise argparse.ArgumentTypeError(f"{text} is no number of 1 or more")
    return number


def main():
    reader = argparse.ArgumentParser(description=__doc__.partition("\n")[0])
    reader.add_argument("--rows", type=at_least_one, default=20_000_000)
    reader.add_argument("--partition", type=at_least_one, default=250_000, help="rows in one")
    reader.add_argument("--workers", type=at_least_one, default=2)
    reader.add_argument("--kill", action="store_true", help="kill a worker on the way")
    reader.add_argument("--folder", help="where the rows are kept; else they are forgotten")
    given = reader.parse_args()
    if given.folder and not pathlib.Path(given.folder).is_dir():
        reader.error(f"--folder: there is no folder {given.folder}")
    partitions = -(-given.rows // given.partition)
    with tempfile.TemporaryDirectory() as temporary:
        folder = pathlib.Path(given.folder or temporary)
        for number in range(partitions):
            size = min(given.partition, given.rows - number * given.partition)
            record(folder, number, size)
        answers, seconds = run(folder, partitions, given.workers, given.kill)
        rows = sum(answer[1] for answer in answers)
        print(f"{rows} rows in {partitions} partitions, {given.workers} workers: {seconds:.2f} s, "
              f"{rows / seconds / 1e6:.2f} million rows/s; {sum(a[2] for a in answers)} rows failed")

        # Nothing is lost and nothing doubled: every partition answered once, and lies there whole.
        assert sorted(answer[0] for answer in answers) == list(range(partitions))
        assert rows == given.rows
        files = sorted(folder.glob("out-*.npy"))
        assert len(files) == partitions
        kept = [np.load(file, mmap_mode="r") for file in files]
        assert sum(array.shape[1] for array in kept) == given.rows
        assert np.isclose(sum(np.nansum(array[2]) for array in kept), sum(a[3] for a in answers))


if __name__ == "__main__":
    sys.exit(main())
