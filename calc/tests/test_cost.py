"""What the functions cost, in seconds of a processor, beside a function of the spreadsheet itself."""
import os
import pathlib
import time

from office import save

CELLS = 100_000


def processor(office):
    """Seconds of a processor that the office has used so far."""
    for status in pathlib.Path("/proc").glob("[0-9]*/cmdline"):
        try:
            words = status.read_bytes().decode(errors="replace")
        except OSError:
            continue
        if "soffice.bin" in words and str(office.profile) in words:
            fields = (status.parent / "stat").read_text().rsplit(")", 1)[1].split()
            return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")
    raise AssertionError("the office is gone")


def cost(office, action):
    before, start = processor(office), time.perf_counter()
    action()
    return processor(office) - before, time.perf_counter() - start


def states(sheet, count):
    sheet[f"A1:B{count}"].DataArray = tuple(
        (0.01 + 30 * i / count, 500 + 200 * i / count) for i in range(count))


def fill(sheet, formula, count):
    sheet.put("C1", formula)
    sheet[f"C1:C{count}"].fillAuto(0, 1)  # downwards


def test_100_000_cells(office, sheet, document, capsys):
    states(sheet, CELLS)
    costs = {}
    for name, formula in (("SIN", "=SIN(A1)*B1"), ("HPT", "=HPT(A1;B1)")):
        fill(sheet, formula, CELLS)
        costs[name] = min(cost(office, document.calculateAll) for _ in range(2))
        assert sheet.error(f"C{CELLS}") == 0
        last = sheet[f"C{CELLS}"].Value
        sheet[f"C1:C{CELLS}"].clearContents(1023)
    sheet[f"C1:C{CELLS}"].ArrayFormula = f"=HPT(A1:A{CELLS};B1:B{CELLS})"
    costs["array"] = min(cost(office, document.calculateAll) for _ in range(2))
    assert abs(sheet[f"C{CELLS}"].Value - last) < 1e-10 * last
    with capsys.disabled():
        print("\n100,000 cells, seconds of a processor (and by the clock): " + ", ".join(
            f"{name} {used:.2f} ({clock:.2f})" for name, (used, clock) in costs.items()))
    assert costs["HPT"][0] < 5
    assert costs["array"][0] < 0.5


def test_opening_10_000_functions(office, sheet, document, folder, capsys):
    count = 10_000
    states(sheet, count)
    used = {}
    for name, formula in (("SIN", "=SIN(A1)*B1"), ("HPT", "=HPT(A1;B1)")):
        fill(sheet, formula, count)
        save(document, folder / f"{name}.ods")

        def opened():
            again = office.open(folder / f"{name}.ods")
            assert again.Sheets[0].getCellRangeByName(f"C{count}").Value != 0
            again.close(True)
        used[name] = cost(office, opened)[0]
    with capsys.disabled():
        print(f"\nopening 10,000 cells: SIN {used['SIN']:.2f}, HPT {used['HPT']:.2f} s")
    assert used["HPT"] - used["SIN"] < 2
