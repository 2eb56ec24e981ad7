"""Values: numbers that carry their unit through arithmetic, comparisons and texts."""
import copy
import pickle

import calvex
import numpy as np
import pytest
from calvex import Value


def test_a_value_is_printed_with_its_unit_once(steam):
    work = steam.TurbineA(3374, 100, 10, 0.8, 5, unit=True)
    assert str(work).count("kW") == 1 and str(work).startswith("TurbineA(Power=2364.9589")
    assert work._repr_html_().count("kW") == 1
    assert work.value("Power") is work.Power
    assert f"{work.Power:.2f}" == "2364.96 kW" and f"{work.Power}" == str(work.Power)
    assert f"{Value(np.array([1.0, 2.5]), 'bara', 'P'):.1f}" == "[1.0 2.5] bara"
    assert repr(Value(3.0, "kW", "power")) == "Value(3.0, 'kW')"


@pytest.mark.parametrize("left, right, expected", [
    (Value(1.0, "MPa", "P"), Value(5.0, "bar", "P"), 1.5),
    (Value(1.0, "bar", "P"), 2, 3.0),
    (2, Value(1.0, "bar", "P"), 3.0),
    (Value(20.0, "C", "T"), Value(10.0, "K", "DT"), 30.0),
    (Value(18.0, "F", "DT"), Value(20.0, "C", "T"), 30.0),
    (Value(20.0, "F", "T"), Value(10.0, "K", "DT"), 38.0),
    (Value(2.0, "barg", "P"), Value(100.0, "kPa", "DP"), 3.0),
])
def test_sums(left, right, expected):
    total = left + right
    assert isinstance(total, Value) and total.value == pytest.approx(expected, rel=1e-9)


@pytest.mark.parametrize("left, right, expected, unit", [
    (Value(500.0, "C", "T"), Value(400.0, "C", "T"), 100.0, "C"),
    (Value(500.0, "C", "T"), Value(673.15, "K", "T"), 100.0, "C"),
    (Value(212.0, "F", "T"), Value(0.0, "C", "T"), 180.0, "F"),
    (Value(10.0, "barg", "P"), Value(1.0, "bara", "P"), 10.01325, "bara"),
    (Value(500.0, "C", "T"), 20, 480.0, "C"),
    (Value(500.0, "C", "T"), Value(18.0, "F", "DT"), 490.0, "C"),
    (Value(3.0, "kW", "power"), Value(1.0, "MW", "power"), -997.0, "kW"),
])
def test_differences(left, right, expected, unit):
    difference = left - right
    assert difference.value == pytest.approx(expected, rel=1e-9) and difference.unit == unit


def test_the_difference_of_two_temperatures_is_no_temperature():
    difference = Value(500.0, "C", "T") - Value(400.0, "C", "T")
    assert difference.to("K").value == pytest.approx(100)
    assert difference.to("F").value == pytest.approx(180)
    # One inch of mercury of a pressure is not quite one of a difference in the catalogue.
    mercury = Value(10.0, "in Hg", "P") - Value(0.0, "in Hg", "P")
    assert mercury.to("MPa").value == pytest.approx(0.0338639, rel=1e-5)


def test_products_and_ratios():
    power = Value(5.0, "MW", "power")
    assert (power * 2).value == (2 * power).value == 10 and (power / 2).unit == power.unit
    assert power / Value(2500.0, "kW", "power") == pytest.approx(2)
    assert (-power).value == -5 and abs(-power).value == 5
    assert Value(300.0, "K", "T") * 2 == Value(600.0, "K", "T")
    assert round(Value(1.234, "MW", "power"), 1).value == 1.2


@pytest.mark.parametrize("wrong, said", [
    (lambda T, h: T + T, "have no sum"),
    (lambda T, h: T * 2, "mean nothing"),
    (lambda T, h: -T, "mean nothing"),
    (lambda T, h: 5 - T, "give it a unit"),
    (lambda T, h: T + h, "do not go together"),
    (lambda T, h: T < h, "do not go together"),
    (lambda T, h: h * h, "pint knows such units"),
    (lambda T, h: T / T, "mean nothing"),
])
def test_what_means_nothing_is_refused(wrong, said):
    with pytest.raises(TypeError, match=said):
        wrong(Value(20.0, "C", "T"), Value(3000.0, "kJ/kg", "H"))


def test_values_are_compared_in_any_units():
    one = Value(1.0, "MPa", "P")
    assert one == Value(10.0, "bara", "P") and one != Value(1.0, "bara", "P")
    assert one > Value(9.9, "bara", "P") and one <= Value(10.0, "bar", "P") and one < 2
    assert one != Value(1.0, "kJ/kg", "H")
    assert (Value(np.array([1.0, 3.0]), "bara", "P") > Value(0.2, "MPa", "P")).tolist() == [False,
                                                                                           True]


def test_numpy_and_values(steam):
    T = steam.TSatP([1.01325, 10], unit=True)
    assert isinstance(np.array([1.0, 2.0]) + T, Value)
    assert np.asarray(T).tolist() == T.value.tolist() and np.sqrt(T)[0] == np.sqrt(T.value[0])
    assert len(T) == 2 and isinstance(T[0], Value) and [x.unit for x in T] == ["C", "C"]
    assert float(T[0]) == T.value[0] and int(T[0]) == int(T.value[0]) and bool(T[0])


def test_values_are_copied_and_stay():
    value = Value(1.0, "bar", "pressure")
    assert value.unit == "bara" and value.group == 1
    for again in (copy.deepcopy(value), pickle.loads(pickle.dumps(value))):
        assert again == value and repr(again) == repr(value)
    with pytest.raises(AttributeError):
        value.value = 2
    with pytest.raises(ValueError, match="without a unit"):
        Value(1.0).to("bar")
    with pytest.raises(ValueError, match="'foo' is not a unit of Pressure"):
        Value(1.0, "foo", "P")


def test_a_result_is_answered_in_the_unit_that_is_named(steam):
    h = steam.HPT(100, 500)
    assert steam.HPT(100, 500, unit="BTU/lb").value == pytest.approx(h / 2.326, rel=1e-6)
    assert steam.HPT([100], 500, unit="BTU/lb").unit == "Btu/lb"
    assert type(steam.HPT(100, 500, unit=None)) is type(steam.HPT(100, 500, unit=False)) is float
    work = steam.TurbineA(3374, 100, 10, 0.8, 5, unit={"Power": "MW", "TOut": "F"})
    assert work.Power.value == pytest.approx(steam.TurbineA(3374, 100, 10, 0.8, 5).Power / 1000)
    assert (work.Power.unit, work.TOut.unit, work.HOut.unit) == ("MW", "F", "kJ/kg")


@pytest.mark.parametrize("member, arguments, unit, kind, said", [
    ("HPT", (100, 500), "H", ValueError, "'H' is not a unit of Mass Specific Enthalpy. Units: kJ/kg"),
    ("HPT", (100, 500), 3, TypeError, "not 3"),
    ("NPT", (100, 500), "kW", ValueError, "number without a unit"),
    ("TurbineA", (3374, 100, 10, 0.8, 5), "MW", ValueError, "has several results"),
    ("TurbineA", (3374, 100, 10, 0.8, 5), {"Colour": "MW"}, ValueError, "it has Power, TOut"),
])
def test_a_unit_that_is_none_of_the_results_is_refused(steam, member, arguments, unit, kind, said):
    with pytest.raises(kind, match=said):
        getattr(steam, member)(*arguments, unit=unit)
    assert calvex.default.HPT(10, 773.15) > 0
