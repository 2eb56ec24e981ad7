"""What a failed call does."""
import warnings

import calvex
import numpy as np
import pytest
from calvex._members import explain, members

RANGE = "Temperature parameter out of range (Valid range -13.15 to 2226.85 C)."


def test_a_scalar_call_raises_the_engines_text_in_the_users_units(steam):
    with pytest.raises(calvex.CalvexError) as failure:
        steam.HPT(100, 3000)
    assert str(failure.value) == f"HPT failed: {RANGE}"
    assert failure.value.reason == RANGE
    assert failure.value.member == "HPT"
    assert isinstance(failure.value, ValueError)


def test_the_state_on_the_line_is_underspecified(steam):
    with pytest.raises(calvex.CalvexError, match="Two phase conditions - Underspecified problem."):
        steam.HPT(steam.PSatT(100), 100)


def test_failed_elements_are_nan_and_counted_by_reason(steam):
    with pytest.warns(calvex.CalvexWarning) as caught:
        values = steam.HPT([[100, 100, -5], [100, 100, 100]], [[500, 3000, 20], [4000, 500, 500]])
    assert len(caught) == 1
    assert str(caught[0].message) == (
        f"HPT failed for 3 of 6 elements: 2 x {RANGE}; 1 x Pressure parameter out of range (Valid "
        "range 0.00 to 30000.00 bara).")
    assert caught[0].filename == __file__
    assert np.isnan(values).tolist() == [[False, True, True], [True, False, False]]
    reasons = steam.reasons()
    assert reasons.shape == (2, 3)
    assert reasons[0, 1] == reasons[1, 0] == RANGE
    assert reasons[0, 2].startswith("Pressure") and reasons[0, 0] == reasons[1, 1] == ""


def test_an_array_without_failures_has_no_reasons(steam, recwarn):
    steam.HPT([100, 100], [500, 5000], errors="ignore")
    steam.HPT([100, 100], [500, 600])
    assert steam.reasons().tolist() == ["", ""]
    assert not recwarn.list


@pytest.mark.parametrize("errors", ["raise", "warn", "ignore"])
@pytest.mark.parametrize("by", ["call", "engine"])
def test_errors_are_treated_as_told(errors, by):
    engine = calvex.Engine(T="C", errors=errors if by == "engine" else None)
    words = {"errors": errors} if by == "call" else {}
    for arguments in ((10, 3000), ([10, 10], [500, 3000])):
        with warnings.catch_warnings(record=True) as caught:
            warnings.simplefilter("always")
            if errors == "raise":
                with pytest.raises(calvex.CalvexError, match="Temperature parameter"):
                    engine.HPT(*arguments, **words)
                continue
            value = engine.HPT(*arguments, **words)
        assert np.isnan(np.atleast_1d(value)[-1])
        assert [w.category for w in caught] == [calvex.CalvexWarning] * (errors == "warn")


def test_other_policies_are_refused(steam):
    with pytest.raises(ValueError, match='"raise", "warn", "ignore" or None'):
        calvex.Engine(errors="explode")
    with pytest.raises(ValueError):
        steam.HPT(100, 500, errors="explode")
    with pytest.raises(ValueError):
        steam.errors = 3
    assert steam.errors is None


def test_warnings_may_be_errors(steam):
    with warnings.catch_warnings():
        warnings.simplefilter("error")
        with pytest.raises(calvex.CalvexWarning):
            steam.HPT([100], [3000])
        assert steam.HPT(100, 500) > 3000


def test_numpy_warns_of_nothing(steam, recwarn):
    P, T = np.meshgrid(np.linspace(-1, 400, 60), np.linspace(-50, 3000, 60))
    steam.HPT(P, T, errors="ignore")
    steam.RPT(P, T, errors="ignore")
    random = np.random.default_rng(4)
    for name, row in members.rows.items():
        if row.kind == "ufunc":
            example = [x for x in explain(name)["example"] if not isinstance(x, str)]
            getattr(calvex, name)(*(x * random.uniform(-0.5, 3, 100) for x in example),
                                  errors="ignore")
    assert not recwarn.list


@pytest.mark.parametrize("view", [
    lambda a: a[::-1], lambda a: a.T, lambda a: a[:, ::2], lambda a: a.T[::-1, ::-1]])
def test_reasons_stand_where_the_elements_do(steam, view):
    T = view(np.where(np.arange(24).reshape(4, 6) % 5 == 0, 3000.0, 500.0))
    out = view(np.zeros((4, 6)))
    steam.HPT(100, T, out=out, errors="ignore")
    np.testing.assert_array_equal(steam.reasons() != "", T == 3000)


def test_reasons_of_a_large_array(steam):
    T = np.full(50_000, 500.0)
    T[::997] = 5000
    with pytest.warns(calvex.CalvexWarning, match=f"{len(T[::997])} of 50000 elements"):
        values = steam.HPT(100, T)
    np.testing.assert_array_equal(np.isnan(values), T == 5000)
    np.testing.assert_array_equal(steam.reasons() != "", T == 5000)


def test_ways_of_ufuncs_that_bypass_the_call_warn_too(steam):
    with pytest.warns(calvex.CalvexWarning):
        table = steam.HPT.outer([100, 200], [500, 3000])
    assert np.isnan(table[:, 1]).all() and not np.isnan(table[:, 0]).any()


def test_equipment_that_fails_is_nan_in_all_results(steam):
    with pytest.warns(calvex.CalvexWarning, match="TurbineA failed for 1 of 2"):
        results = steam.TurbineA([3374, 3374], [100, -1], 10, 0.8, 5)
    assert all(np.isnan(result[1]) and not np.isnan(result[0]) for result in results)
    with pytest.raises(calvex.CalvexError, match="TurbineA failed"):
        steam.TurbineA(3374, -1, 10, 0.8, 5)
    failed = steam.TurbineA(3374, -1, 10, 0.8, 5, errors="ignore")
    assert all(np.isnan(value) for value in failed) and failed.units["Power"] == "kW"


def test_the_trace_is_a_tree_as_text_and_as_html(steam):
    assert str(steam.trace()) == "" and len(steam.trace()) == 0
    with pytest.raises(calvex.CalvexError):
        steam.HPT(100, 3000)
    trace = steam.trace()
    assert str(trace).splitlines()[:2] == ["HPT", f"  {RANGE}"]
    assert trace.nodes[1][2] == "error"
    html = trace._repr_html_()
    assert html.count("<ul") == html.count("</ul>") and html.count("<li") == html.count("</li>")
    assert RANGE in html
    steam.ClearTraceInfo()
    assert len(steam.trace()) == 0


def test_arrays_leave_the_trace_alone(steam):
    with pytest.raises(calvex.CalvexError):
        steam.HPT(100, 3000)
    steam.HPT([100, 100], [500, 3000], errors="ignore")
    assert len(steam.trace()) == 1


def test_settings_are_attributes_and_refuse_what_the_engine_refuses(steam):
    assert steam.SatPolish == 2
    steam.SolverIter = 150
    assert steam.SolverIter == 150
    with pytest.raises(calvex.CalvexError, match="Invalid number of solver iterations"):
        steam.SolverIter = -1
    with pytest.raises(AttributeError):
        steam.VersionStr = "5"
    with pytest.raises(AttributeError):
        steam.HPT = 3
    with pytest.raises(AttributeError):
        steam.Colour = "red"
    with pytest.raises(OverflowError):
        steam.SolverIter = 10**9
    assert steam.SolverIter == 150


def test_methods_take_and_answer_texts(steam):
    steam.AddCustomTraceTitle("Tag")
    for text in "Kessel 3 – 50 °C", "Łódź", "Котельная", "锅炉 🔥", "a\0b":
        steam.SetCustomTraceText(0, text)
        assert steam.GetCustomTraceText(0) == text
    with pytest.raises(UnicodeEncodeError):
        steam.SetCustomTraceText(0, "\ud800")
    assert steam.GetCustomTraceText(0) == "a\0b"
    with pytest.raises(TypeError):
        steam.SetCustomTraceText(0)
    assert steam.GetUserUnit("T") == "C"
    assert isinstance(steam.GetAlarms(), list)
    assert calvex.CritT() == 647.126 and steam.CritT() == pytest.approx(373.976)


ABOVE = "Enthalpy {} kJ/kg is above any that water has at 100 bara: the highest is 8047.14 kJ/kg"


def test_what_is_behind_a_failure_is_told(steam):
    """As the command line tells it in its second line."""
    with pytest.raises(calvex.CalvexError) as failure:
        steam.TPH(100, 9000)
    assert failure.value.reason == "Solution Error."
    assert failure.value.cause.startswith(ABOVE.format(9000))
    assert str(failure.value) == f"TPH failed: Solution Error. {failure.value.cause}"
    with pytest.raises(calvex.CalvexError) as failure:
        steam.HPT(100, 3000)
    assert failure.value.cause == ""
    with pytest.warns(calvex.CalvexWarning, match="Solution Error. Enthalpy 9000 kJ/kg is above"):
        steam.TPH(100, 9000, errors="warn")
    assert ABOVE.format(9000) in str(steam.reasons())


def test_what_is_behind_the_failures_of_an_array_is_told(steam):
    with pytest.warns(calvex.CalvexWarning) as said:
        steam.TPH(100, [9000, 2800, 9100])
    assert "failed for 2 of 3 elements: 2 x Solution Error. The first: " + ABOVE.format(9000) in str(
        said[0].message)
    first, none, last = steam.reasons()
    assert first.startswith("Solution Error. " + ABOVE.format(9000)) and none == ""
    assert last.startswith("Solution Error. " + ABOVE.format(9100))
    with pytest.raises(calvex.CalvexError) as failure:
        steam.TPH(100, [2800, 9000], errors="raise")
    assert failure.value.reason == "Solution Error."
    assert failure.value.cause.startswith(ABOVE.format(9000)) and ABOVE.format(9000) in str(
        failure.value)
    with pytest.warns(calvex.CalvexWarning, match=r"2 x Solution Error\. Pressure must be above 0"):
        steam.HPT([0, 0], 500)


def test_what_is_behind_a_state_that_is_none_is_told(steam):
    with pytest.raises(calvex.CalvexError) as failure:
        steam.state(P=100, h=9000)
    assert failure.value.member == "state" and failure.value.reason == "Solution Error."
    assert failure.value.cause.startswith(ABOVE.format(9000))
    assert str(failure.value).endswith(failure.value.cause)
    with pytest.warns(calvex.CalvexWarning, match="2 x Solution Error. The first: Enthalpy 9000"):
        states = steam.state(P=100, h=[9000, 2800, 9100])
    assert ABOVE.format(9100) in states.reasons()[2] and states.reasons()[1] == ""
    assert ABOVE.format(9000) in steam.state(P=100, h=9000, errors="ignore").reasons()
    with pytest.raises(calvex.CalvexError, match=r"Pressure must be above 0 bara\."):
        steam.state(P=0, T=500)


def test_many_causes_do_not_fill_the_memory(steam):
    """Beyond 10,000 texts an element has its reason alone."""
    n = 12_000
    H = 9000 + np.arange(n) * 1e-3
    steam.TPH(100, H, errors="ignore")
    reasons = steam.reasons()
    assert len(set(reasons)) == 10_001
    assert all(reason.startswith("Solution Error.") for reason in reasons)


def test_a_failure_without_a_word_does_not_tell_the_last_ones(steam):
    with pytest.raises(calvex.CalvexError, match="Temperature parameter"):
        steam.HPT(100, 3000)
    with pytest.raises(calvex.CalvexError) as failure:
        steam.GetCustomTraceText(5)
    assert str(failure.value) == "GetCustomTraceText failed: the engine gave no reason."
    assert failure.value.reason == failure.value.cause == ""
    steam.FunctionCallTracing = 0
    for call in (lambda: steam.TPH(100, 9000), lambda: setattr(steam, "SolverIter", -1)):
        with pytest.raises(calvex.CalvexError, match="tracing is off, so no reason was recorded"):
            call()
    with pytest.raises(ValueError, match="AppLevel is 0, 2 or 3, not 9"):
        steam.AppLevel = 9
    with pytest.raises(ValueError, match="need AppLevel 3"):
        steam.SetCustomUserUnitIndex(0, "X", 1, 0)
    steam.AppLevel = 3
    steam.SetCustomUserUnitIndex("T", "X", 1, 0)
    assert steam.unit("T") == "X"
