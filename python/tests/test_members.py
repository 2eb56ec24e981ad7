"""Members: values of published tables, and that they are NumPy ufuncs."""
import calvex
import numpy as np
import pytest
from calvex._members import members
from conftest import ROOT, table

SINGLE_PHASE = table("single-phase.csv")
SATURATION = table("saturation.csv")
LETTERS = [name for name in SINGLE_PHASE[0] if name not in ("P", "T")]


# Where the range of the correlation is smaller than that of the table, MPa and K.
TRANSPORT = {"M": (100, 1073), "K": (70, 923), "N": (70, 923), "E": (500, 823)}


@pytest.mark.parametrize("letter", LETTERS)
def test_properties_are_those_of_the_table_one_by_one_and_as_an_array(letter):
    member = getattr(calvex, letter + "PT")
    highest_P, highest_T = TRANSPORT.get(letter, (3000, 2500))
    rows = [row for row in SINGLE_PHASE if row["P"] < highest_P and row["T"] < highest_T]
    assert len(rows) > 30
    expected = [row[letter] for row in rows]
    P, T = ([row[name] for row in rows] for name in "PT")
    assert [member(p, t) for p, t in zip(P, T)] == pytest.approx(expected, rel=1e-9)
    assert member(P, T) == pytest.approx(expected, rel=1e-9)


@pytest.mark.parametrize("name, column", [
    ("PSatT", "P"), ("XT", "X")])
def test_the_saturation_line_is_that_of_the_table(name, column):
    T = np.array([row["T"] for row in SATURATION])
    assert getattr(calvex, name)(T) == pytest.approx([row[column] for row in SATURATION], rel=2e-8)


@pytest.mark.parametrize("letter", "RHSU")
@pytest.mark.parametrize("quality, side", [(0, "L"), (1, "V")])
def test_both_sides_of_the_line_are_those_of_the_table(letter, quality, side):
    rows = [row for row in SATURATION if row["T"] > 274]  # the liquid's zero is at the triple point
    T = np.array([row["T"] for row in rows])
    values = getattr(calvex, letter + "SatTQ")(T, quality)
    assert values == pytest.approx([row[f"{letter}_{side}"] for row in rows], rel=1e-7)


def test_every_member_of_the_table_is_there():
    lines = (ROOT / "tests/data/members.csv").read_text().splitlines()
    names = {line.split(";")[1] for line in lines if line[0] != "#"} - {"name"}
    assert len(names) > 200
    missing = [name for name in names if not hasattr(calvex.default, name)]
    assert missing == []
    assert set(members.rows) == names


def test_members_that_compute_numbers_are_ufuncs():
    ufuncs = [name for name, kind in members.kinds.items() if kind == "ufunc"]
    assert len(ufuncs) > 150
    for name in ufuncs:
        member = getattr(calvex, name)
        assert isinstance(member, np.ufunc)
        assert member.nin == len(members.row(name).inputs)
        assert member.nout == len(members.row(name).outputs)


def test_a_scalar_call_answers_a_float():
    assert type(calvex.HPT(10, 773.15)) is float
    assert calvex.HPT(10, 773.15) == pytest.approx(3373.998, abs=1e-3)
    assert calvex.HPT(np.float64(10), np.int32(773)) == calvex.HPT(10.0, 773)


def test_arguments_broadcast(steam):
    P, T = np.array([[10.0], [100.0]]), np.array([300.0, 400.0, 500.0])
    grid = steam.HPT(P, T)
    assert grid.shape == (2, 3)
    assert grid[1, 2] == pytest.approx(steam.HPT(100, 500), rel=1e-10)
    assert steam.HPT.outer([10, 100], [300, 400, 500]) == pytest.approx(grid)


def test_a_large_grid_is_that_of_its_points(steam):
    P, T = np.linspace(1, 100, 150)[:, None], np.linspace(350, 600, 200)
    grid = steam.HPT(P, T)
    assert grid.shape == (150, 200)
    for i, j in ((0, 0), (3, 199), (149, 0), (149, 199), (77, 123)):
        assert grid[i, j] == pytest.approx(steam.HPT(P[i, 0], T[j]), rel=1e-10)


def test_results_go_where_out_says():
    P, T = np.linspace(1, 10, 50), np.full(50, 773.15)
    out = np.empty(50)
    assert calvex.HPT(P, T, out=out) is out
    assert out == pytest.approx([calvex.HPT(p, 773.15) for p in P], rel=1e-10)
    strided = np.zeros(100)
    calvex.HPT(P, T, out=strided[::2])
    assert strided[::2] == pytest.approx(out) and not strided[1::2].any()
    narrow = np.empty(50, np.float32)
    assert calvex.HPT(P, T, out=narrow) is narrow
    assert narrow == pytest.approx(out, rel=1e-6)
    with pytest.raises(TypeError):
        calvex.HPT(P, T, out=np.empty(50, int))


def test_results_may_overwrite_the_inputs(recwarn):
    P, T = np.array([1.0, -1.0, 10.0]), np.array([773.15, 773.15, 773.15])
    expected = calvex.HPT(P, T, errors="ignore")
    reasons = calvex.reasons()
    assert reasons[1].startswith("Pressure")
    for out in (T, P):
        given = {"P": P.copy(), "T": T.copy()}
        calvex.HPT(*given.values(), out=given["T" if out is T else "P"], errors="ignore")
        np.testing.assert_array_equal(given["T" if out is T else "P"], expected)
        assert calvex.reasons().tolist() == reasons.tolist()  # not those of what was written over
    values = [np.array([3374.0, 3000.0]), 10.0, 1.0, 0.8, np.array([5.0, 6.0])]
    expected = calvex.TurbineA(*values)
    results = calvex.TurbineA(*values, out=(values[0], values[4], None, None))
    assert results[0] is values[0]
    for result, wanted in zip(results, expected):
        np.testing.assert_array_equal(result, wanted)


def test_only_where_it_says():
    out = np.full(4, -1.0)
    calvex.HPT([1, 1, 1, 1], [600, 700, 800, 5000], out=out, where=[True, False, True, False])
    assert out == pytest.approx([calvex.HPT(1, 600), -1, calvex.HPT(1, 800), -1])


@pytest.mark.parametrize("dtype", [np.float32, np.int64, np.int8, bool, np.float16])
def test_numbers_of_other_types_are_taken(dtype):
    P = np.array([1, 1, 1], dtype)
    assert calvex.TSatP(P).dtype == float
    assert calvex.TSatP(P) == pytest.approx([calvex.TSatP(1)] * 3)


def test_what_is_no_number_is_refused():
    for wrong in ("abc", None, 1j, [1j], ["a"], object(), {}):
        with pytest.raises((TypeError, ValueError)):
            calvex.HPT(wrong, 500)
    with pytest.raises((TypeError, ValueError)):
        calvex.HPT([1, 2, 3], [500, 600])
    with pytest.raises(TypeError):
        calvex.HPT(1)
    with pytest.raises(TypeError):
        calvex.HPT(1, 500, wrong=3)


def test_empty_arrays_are_no_failure():
    assert calvex.HPT([], []).shape == (0,)
    assert calvex.reasons().shape == (0,)
    assert calvex.TurbineA([], 1, 1, 1, 1).Power.shape == (0,)


def test_strange_strides(steam):
    records = np.zeros(5, [("a", "u1"), ("P", "f8"), ("T", "f8")])
    records["P"], records["T"] = 100, np.linspace(400, 500, 5)
    expected = [steam.HPT(100, t) for t in np.linspace(400, 500, 5)]
    assert steam.HPT(records["P"], records["T"]) == pytest.approx(expected)
    assert steam.HPT(100, records["T"][::-1]) == pytest.approx(expected[::-1])
    swapped = np.linspace(400, 500, 5).astype(">f8")
    assert steam.HPT(100, swapped) == pytest.approx(expected)
    fortran = np.asfortranarray(np.linspace(400, 500, 6).reshape(2, 3))
    assert steam.HPT(100, fortran) == pytest.approx(steam.HPT(100, fortran.copy("C")))


def test_equipment_answers_a_named_tuple_with_units(steam):
    work = steam.TurbineA(3374, 100, 10, 0.8, 5)
    assert work._fields == ("Power", "TOut", "HOut", "QOut")
    assert work.units == {"Power": "kW", "TOut": "C", "HOut": "kJ/kg", "QOut": "Fraction"}
    # The energy balance of the machine.
    assert work.Power == pytest.approx(5 * (3374 - work.HOut), rel=1e-12)
    power, *_ = work
    assert power == work[0] == work.Power
    assert str(work.value("TOut")).endswith(" C")
    assert "kW" in repr(work) and "<table>" in work._repr_html_()
    several = steam.TurbineA([3374, 3300], 100, 10, 0.8, 5)
    assert several.Power == pytest.approx(5 * (np.array([3374, 3300]) - several.HOut))


def test_models_for_spreadsheets_go_by_their_own_name_too(steam):
    by_spreadsheet = steam.XLThermoCompressorA(10, 250, 1, 1, 120, 0.5)
    assert steam.ThermoCompressorA(10, 250, 1, 1, 120, 0.5) == by_spreadsheet
    assert by_spreadsheet.M_Out == pytest.approx(1.5)  # what goes in comes out


def test_docstrings_are_those_of_the_table(steam):
    text = steam.HPT.__doc__
    assert "Enthalpy from pressure and temperature." in text
    assert "P : bara" in text and "T : C" in text and "H : kJ/kg" in text
    assert steam.SetUserUnit.__doc__


def test_names_are_found():
    assert "PSatT" in calvex.members("saturation pressure")
    assert "HPT" in dir(calvex) and "HPT" in dir(calvex.Engine())
    with pytest.raises(AttributeError, match="did you mean HPT"):
        calvex.Hpt
    with pytest.raises(AttributeError, match="did you mean TurbineA"):
        calvex.Engine().turbineA


def test_the_readme_of_the_module_is_true():
    import doctest
    examples = doctest.DocTestParser().get_examples(calvex.__doc__)
    steam = calvex.Engine(T="°C", P="bar")
    assert steam.HPT(100, [480, 500, 520]).shape == (3,)
    assert not examples and "HPT(10, 773.15)" in calvex.__doc__


def test_version_is_that_of_the_project():
    import re
    assert calvex.__version__ == re.search(r"project\(calvex VERSION ([0-9.]+)",
                                           (ROOT / "CMakeLists.txt").read_text())[1]
    assert calvex.default.VersionStr == calvex.__version__
