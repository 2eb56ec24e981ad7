"""Units in the words of people, values that carry them, and states."""
import calvex
import numpy as np
import pytest
from conftest import table


@pytest.mark.parametrize("words, P, T", [
    ({"T": "°C", "P": "bar"}, 100, 500),
    ({"T": "degC", "P": "bara"}, 100, 500),
    ({"temperature": "celsius", "pressure": "Bar"}, 100, 500),
    ({"T": "F", "P": "psia"}, 100 / 0.0689475729, 932),
    ({"T": "C", "P": "barg"}, 100 - 1.01325, 500),
    ({"T": "C", "P": "kPa"}, 10_000, 500),
    ({"units": {"Pressure": "bar", "T": "C"}}, 100, 500),
])
def test_units_are_understood_as_people_write_them(words, P, T):
    engine = calvex.Engine(**words)
    expected = calvex.HPT(10, 773.15)
    assert engine.HPT(P, T) == pytest.approx(expected, rel=1e-7)
    assert engine.HPT([P], T)[0] == pytest.approx(expected, rel=1e-7)
    assert engine.state(P=P, T=T).h == pytest.approx(expected, rel=1e-7)


def test_units_that_the_catalogue_lacks_are_taken_too():
    beside = [(group, name) for group in range(27)
              for name in (row[0] for row in calvex._members.groups()[group][4])]
    assert beside
    for group, name in beside:
        engine = calvex.Engine(units={group: name})
        assert engine._unit(group) == name
        # Everything else stays as it is, also where the engine has left its catalogue.
        assert engine.unit("T" if group != 0 else "P") in ("K", "MPa")
    engine = calvex.Engine(P="inHg", T="C") if any(n == "inHg" for _, n in beside) else None
    if engine is not None:
        assert engine.TSatP(29.9212) == pytest.approx(100, abs=0.05)


def test_what_an_engine_prints_makes_another():
    engine = calvex.Engine(T="°C", P="bar", flow="t/h", power="MW", duty="kW", errors="warn")
    again = eval(repr(engine))
    assert repr(again) == repr(engine) and again.unit("flow") == engine.unit("flow") == "te/h"


def test_units_that_do_not_exist_are_refused_with_those_that_do():
    with pytest.raises(ValueError, match="'Grad' is not a unit of Temperature.*C, F, K, R"):
        calvex.Engine(T="Grad")
    with pytest.raises(ValueError, match="'colour' is no quantity"):
        calvex.Engine(colour="red")


def test_each_engine_has_its_own_units(steam):
    other = calvex.Engine()
    assert steam.HPT(100, 500) == pytest.approx(other.HPT(10, 773.15))
    assert steam.unit("T") == "C" and other.unit("T") == "K"
    assert steam.unit("HPT") == "kJ/kg"
    assert steam.unit("TurbineA")["Power"] == "kW"


def test_units_may_change_and_results_follow(steam):
    work = steam.TurbineA
    assert work(3374, 100, 10, 0.8, 5).units["TOut"] == "C"
    steam.SetUserUnit("T", "°F")
    assert work(3374, 100, 10, 0.8, 5).units["TOut"] == "F"
    assert steam.TSatP([1.01325]) == pytest.approx([212], abs=0.05)
    assert steam.GetUserUnit("temperature") == "F"


def test_every_unit_of_the_catalogue_converts_as_the_tables_say():
    rows = table("unit-tables.csv")
    assert len(rows) > 150
    for row in rows:
        group, unit = int(row["group"]), row["unit"]
        if not isinstance(unit, str):
            continue
        found = calvex.units.find(group, unit)
        assert (found.factor, found.offset) == (row["factor"], row["offset"]), unit


def test_conversion_of_numbers_and_arrays():
    assert calvex.convert("P", 100, "psia", "bara") == pytest.approx(6.89475729, rel=1e-5)
    assert calvex.convert("T", [0, 100], "C", "F") == pytest.approx([32, 212])
    assert calvex.convert("flow", 1, "t/h", "kg/s") == pytest.approx(1 / 3.6)
    assert calvex.default.Convert("T", "°C", "K", 0) == pytest.approx(273.15)


def test_results_carry_their_unit_on_request(steam):
    h = steam.HPT(100, 500, unit=True)
    assert h.unit == "kJ/kg" and h.value == steam.HPT(100, 500)
    assert h.to("BTU/lb").value == pytest.approx(h.value / 2.326, rel=1e-4)
    assert str(steam.TSatP(1.01325, unit=True)).endswith(" C")
    assert steam.HPT([100, 100], 500, unit=True).value.shape == (2,)
    work = steam.TurbineA(3374, 100, 10, 0.8, 5, unit=True)
    assert work.Power.unit == "kW" and work.TOut.unit == "C"


def test_values_with_a_unit_are_taken_in_any_engine(steam):
    h = calvex.HPT(10, 773.15, unit=True)
    boiling = calvex.TSatP(10, unit=True)
    assert steam.TPH(100, h) == pytest.approx(500)
    assert steam.PSatT(boiling) == pytest.approx(100)
    assert steam.state(P=100, h=h).T == pytest.approx(500)


STATE_COLUMNS = {"h": "H", "s": "S", "u": "U", "rho": "R", "v": "V", "a": "A", "g": "G", "cp": "C",
                 "cv": "D", "w": "W", "Z": "Z", "delta_T": "I", "mu_JT": "J", "beta": "B",
                 "kappa": "L"}


def test_a_state_has_the_properties_of_the_table():
    rows = table("single-phase.csv")
    state = calvex.state(P=[row["P"] for row in rows], T=[row["T"] for row in rows])
    for name, letter in STATE_COLUMNS.items():
        assert getattr(state, name) == pytest.approx([row[letter] for row in rows], rel=1e-9), name
    one = calvex.state(P=rows[0]["P"], T=rows[0]["T"])
    for name, letter in {**STATE_COLUMNS, "mu": "M", "k": "K", "Pr": "N", "epsilon": "E"}.items():
        assert getattr(one, name) == pytest.approx(rows[0][letter], rel=1e-9), name


@pytest.mark.parametrize("pair", ["PT", "Ph", "Ps", "Pu", "P rho", "Pv", "Th", "Ts", "Tu", "T rho",
                                  "Tv", "hs"])
def test_any_pair_gives_the_state(steam, pair):
    first = steam.state(P=100, T=500)
    names = pair.split() if " " in pair else list(pair)
    again = steam.state(**{name: getattr(first, name) for name in names})
    for name in ("P", "T", "h", "s", "rho", "w"):
        assert getattr(again, name) == pytest.approx(getattr(first, name), rel=1e-8)
    assert again.phase == "supercritical"


def test_words_name_the_properties_of_a_pair(steam):
    h = steam.state(P=100, T=500).h
    assert steam.state(pressure=100, temperature=500).h == h
    assert steam.state(pressure=100, enthalpy=h).T == pytest.approx(500)
    for word in ("x", "q", "quality", "vapour_fraction"):
        assert steam.state(P=100, **{word: 0.5}).phase == "two-phase"
    assert steam.state(T=500, specific_volume=steam.VPT(100, 500)).P == pytest.approx(100)
    with pytest.raises(TypeError, match="'w' is none"):
        steam.state(P=100, w=500)


def test_phases_and_mixtures(steam):
    wet = steam.state(P=10, x=0.9)
    assert wet.phase == "two-phase" and wet.x == pytest.approx(0.9)
    assert wet.T == pytest.approx(steam.TSatP(10))
    assert steam.state(T=wet.T, x=0.9).P == pytest.approx(10)
    with pytest.raises(calvex.CalvexError, match="Two phase conditions"):
        wet.w
    assert "speed of sound" not in repr(wet) and "enthalpy" in repr(wet)
    states = steam.state(P=10, T=[20, 100, 300, 500])
    assert states.phase.tolist() == ["liquid", "liquid", "vapour", "supercritical"]
    assert states.h == pytest.approx(steam.HPT(10, [20, 100, 300, 500]), rel=1e-9)
    assert states.value("h").unit == "kJ/kg"


def test_a_state_that_is_none_says_why(steam):
    with pytest.raises(calvex.CalvexError, match="Temperature parameter out of range"):
        steam.state(P=100, T=3000)
    with pytest.warns(calvex.CalvexWarning, match="state failed for 1 of 2 elements") as said:
        states = steam.state(P=100, T=[500, 3000])
        states.w
    assert [warning.filename for warning in said] == [__file__] * 2
    assert np.isnan(states.h).tolist() == [False, True] and states.phase[1] == ""
    assert states.reasons()[0] == "" and states.reasons()[1].startswith("Temperature parameter")
    with pytest.raises(TypeError, match="are no pair"):
        steam.state(u=2000, s=6)
    with pytest.raises(TypeError, match="two of P, T, h"):
        steam.state(P=100)
    with pytest.raises(TypeError, match="'colour' is none"):
        steam.state(P=100, colour=3)
    with pytest.raises(AttributeError, match="a state has no 'colour'"):
        steam.state(P=100, T=500).colour
