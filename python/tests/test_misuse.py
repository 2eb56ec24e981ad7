"""What is wrong with a call is said in words that name the member's inputs."""
import inspect
import warnings

import calvex
import numpy as np
import pytest

WRONG_CALLS = [
    (lambda e: e.HPT(None, 3), TypeError, r"HPT\(P, T\): P is to be a number .*, not None"),
    (lambda e: e.HPT(100, "a"), TypeError, r"HPT\(P, T\): T is to be a number .*, not 'a'"),
    (lambda e: e.HPT([100, None], 3), TypeError, r"P is .* at \[1\] it has None; nan stands"),
    (lambda e: e.HPT(["100"], 3), TypeError, r"at \[0\] it has '100'"),
    (lambda e: e.HPT(1j, 3), TypeError, "not 1j"),
    (lambda e: e.HPT([[1], [2, 3]], 3), ValueError, "rows have different lengths"),
    (lambda e: e.HPT([1, 2], [1, 2, 3]), ValueError, r"do not go together: P \(2,\), T \(3,\)"),
    (lambda e: e.HPT([1, 2], 500, where=[True, False, True]), ValueError, r"where \(3,\)"),
    (lambda e: e.HPT(), TypeError, "takes 2 arguments, 0 were given: P and T are missing"),
    (lambda e: e.HPT(100), TypeError, "takes 2 arguments, 1 was given: T is missing"),
    (lambda e: e.HPT(1, 2, 3, 4), TypeError, "takes 2 arguments, 4 were given"),
    (lambda e: e.TurbineA(1, 2, 3, 4, 5, 6), TypeError, "TurbineA.* takes 5 arguments, 6 were given"),
    (lambda e: e.HPT(P=100, T=500), TypeError, "by their place, without their names"),
    (lambda e: e.HPT(100, 500, colour=3), TypeError, "no word 'colour'; it has errors, out, unit, wh"),
    (lambda e: e.SetUserUnit("T"), TypeError, "takes 2 arguments, 1 was given: newVal is missing"),
    (lambda e: e.SetCustomTraceText("a", "b"), TypeError, "is to be a whole number, not 'a'"),
    (lambda e: e.SetUserUnit(groupStr="T", newVal="C"), TypeError, "without their names"),
    (lambda e: e.SetUserUnit("T", "Grad"), ValueError, "'Grad' is not a unit .*Units: C, F, K, R"),
    (lambda e: e.SetUserUnit("colour", "C"), ValueError, "no quantity with a unit; there are T, P"),
    (lambda e: e.SetUserUnitIndex(99, "C"), ValueError, "no quantity number 99: they are 0 to 26"),
    (lambda e: e.GetUserUnitIndex(99), ValueError, "no quantity number 99: they are 0 to 26"),
    (lambda e: calvex.units.names(None), TypeError, "a quantity is a text such as"),
    (lambda e: calvex.Engine(T="C", temperature="K"), ValueError, "T and temperature are the same"),
    (lambda e: calvex.Engine(units={"T": "C"}, t="K"), ValueError, "T and t are the same quantity"),
    (lambda e: calvex.Engine(units=3), TypeError, "units is a dictionary"),
    (lambda e: calvex.convert("P", "a", "psia", "bara"), TypeError, "is converted, not 'a'"),
    (lambda e: calvex.convert("P", [1, None], "psia", "bara"), TypeError, "is converted, not"),
    (lambda e: e.HPT([1, 2], 500, out=[0, 0]), TypeError, "out is an array that takes the result"),
    (lambda e: calvex.Engine("C"), TypeError, r'Engine\(T="°C", P="bar"\)'),
    (lambda e: calvex.Engine(T=3), TypeError, "one of C, F, K, R, not 3"),
    (lambda e: e.state(100, 500), TypeError, r"with their names: state\(P=10, T=773.15\)"),
    (lambda e: e.state(P=None, T=500), TypeError, "numbers or arrays of numbers, not None"),
    (lambda e: e.state(P="a", T=500), TypeError, "not 'a'"),
    (lambda e: e.state(P=[1, 2], T=[1, 2, 3]), ValueError, r"do not go together: P \(2,\), T \(3,\)"),
    (lambda e: e.state(P=1, T=500, errors="bogus"), ValueError, '"raise", "warn", "ignore" or None'),
    (lambda e: e.state(P=1, T=calvex.HPT(10, 773.15, unit=True)), TypeError, "is no temperature"),
    (lambda e: e.state(P=1, T=500).unit("colour"), ValueError, "no property 'colour'; it has P, T"),
    (lambda e: e.HPT(100, calvex.HPT(10, 773.15, unit=True)), TypeError, "is no temperature"),
]


@pytest.mark.parametrize("case", range(len(WRONG_CALLS)))
def test_a_wrong_call_is_told_in_plain_words(steam, case):
    call, kind, said = WRONG_CALLS[case]
    with pytest.raises(kind, match=said) as failure:
        call(steam)
    assert not isinstance(failure.value, calvex.CalvexError)
    assert steam.HPT(100, 500) > 3000


@pytest.mark.parametrize("typed, meant", [
    ("HTP", "HPT"), ("hpt", "HPT"), ("turbinea", "TurbineA"), ("PsatT", "PSatT"), ("SHP", "SPH")])
def test_a_member_typed_wrongly_is_guessed(steam, typed, meant):
    for where in (steam, calvex):
        with pytest.raises(AttributeError, match=f"did you mean {meant}\\?"):
            getattr(where, typed)


def test_members_have_a_signature(steam):
    assert str(inspect.signature(calvex.HPT)) == \
        "(P, T, /, out=None, *, where=True, errors=None, unit=False)"
    assert list(inspect.signature(steam.TurbineA).parameters)[:5] == ["HIn", "PIn", "POut", "Eff",
                                                                      "MIn"]
    assert list(inspect.signature(steam.SetUserUnit).parameters) == ["groupStr", "newVal"]
    for name, kind in calvex.members.kinds.items():
        if kind in ("ufunc", "method"):
            inspect.signature(getattr(steam, name))


def test_help_is_in_the_engines_units_of_the_moment():
    engine = calvex.Engine(T="°C", P="bar")
    text = engine.HPT.__doc__
    assert text.startswith("HPT(P, T)\n") and "pressure, above 0 to 30000\n" in text
    assert "temperature, -13.15 to 2226.85\n" in text and "MPa" not in text
    assert ">>> engine.HPT(100, 500)" in text and engine.HPT(100, 500) > 3000
    engine.SetUserUnit("P", "barg")
    assert "P : barg\n    pressure, above -1.01325 to 29999" in engine.HPT.__doc__
    assert ">>> calvex.HPT(10, 773.15)" in calvex.HPT.__doc__
    assert "P : MPa\n    pressure, above 0 to 3000\n" in calvex.HPT.__doc__


@pytest.mark.parametrize("wrong", [3, -1, 7, "x", None, 1.5])
def test_the_saturation_line_is_as_exact_as_0_1_or_2(steam, wrong):
    with pytest.raises(ValueError, match="SatPolish is 0, 1 or 2, not"):
        steam.SatPolish = wrong
    assert steam.SatPolish == 2
    steam.SatPolish = np.int64(0)
    assert steam.SatPolish == 0


def test_strange_arrays(steam, recwarn):
    h = steam.HPT(100, 500)
    assert steam.HPT(np.array(100.0), 500) == pytest.approx(h, rel=1e-10)
    assert steam.HPT(np.empty((0, 3)), 500).shape == (0, 3)
    assert steam.HPT(np.full((3, 1, 1), 100.0), np.full((1, 4, 5), 500.0)).shape == (3, 4, 5)
    huge = np.broadcast_to(np.array([100.0]), (300, 1000))
    assert np.allclose(steam.HPT(huge, 500), h)
    out = np.zeros(3)
    out.flags.writeable = False
    with pytest.raises(ValueError, match="read-only"):
        steam.HPT([100, 100, 100], 500, out=out)
    assert not out.any()
    with pytest.raises(ValueError, match=r"out has shape \(2,\), the result \(3,\)"):
        steam.HPT([100, 100, 100], 500, out=np.zeros(2))
    assert not recwarn.list


def test_what_is_masked_is_not_computed(steam):
    P = np.ma.array([100.0, -999.0, 50.0], mask=[False, True, False])
    with warnings.catch_warnings():
        warnings.simplefilter("error")
        h = steam.HPT(P, 500)
        work = steam.TurbineA(3374, P, 10, 0.8, 5)
        state = steam.state(P=P, T=500)
    for result in (h, work.Power, state.h, state.w):
        assert isinstance(result, np.ma.MaskedArray) and result.mask.tolist() == [False, True, False]
    assert h[0] == state.h[0] == pytest.approx(steam.HPT(100, 500), rel=1e-10)
    assert state.phase.tolist() == ["supercritical", None, "supercritical"]
    with pytest.warns(calvex.CalvexWarning, match="failed for 1 of"):
        assert np.isnan(steam.HPT(np.ma.array([100.0, -5.0], mask=[True, False]), 500)[1])


def test_what_is_not_computed_is_nan(steam):
    """NumPy would leave what stood in the memory."""
    used = np.full(1000, 7.0)
    del used
    h = steam.HPT(np.full(1000, 100.0), 500, where=np.arange(1000) % 2 == 0)
    assert np.isnan(h[1::2]).all() and not np.isnan(h[::2]).any()
    assert np.isnan(steam.HPT(100, 500, where=False))
    assert isinstance(steam.HPT(100, 500, where=True), float)
    assert isinstance(steam.TurbineA(3374, 100, 10, 0.8, 5, where=True).Power, float)
    work = steam.TurbineA([3374, 3374], 100, 10, 0.8, 5, where=[True, False])
    assert all(np.isnan(column).tolist() == [False, True] for column in work)
    assert work.units["Power"] == "kW"
    out = np.array([-1.0, -1.0])
    steam.HPT(100, [500, 500], out=out, where=[True, False])
    assert out[1] == -1
