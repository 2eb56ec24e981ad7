"""A program whose types mypy checks; lines marked "wrong" must be refused."""
from typing import Any, assert_type

import numpy as np

import calvex
from calvex import Engine, Value

steam = Engine(T="°C", P="bar", errors="warn")
assert_type(calvex.HPT(10, 773.15), float)
assert_type(steam.HPT(100, 500), float)
assert_type(steam.HPT(100, [480, 500, 520]), "np.ndarray[Any, np.dtype[np.float64]]")
assert_type(steam.HPT(100, 500, unit=True), Value)
assert_type(steam.HPT(100, 500, unit="BTU/lb"), Value)
assert_type(steam.HPT(100, 500, unit=True).unit, str)
assert_type(steam.TurbineA(3374, 100, 10, 0.8, 5).Power, float)
power, temperature, *rest = steam.TurbineA(3374, 100, 10, 0.8, 5)
assert_type(steam.SatPolish, int)
assert_type(steam.VersionStr, str)
assert_type(steam.GetUserUnit("T"), str)
assert_type(steam.CritT(), float)
assert_type(calvex.CritT(), float)
assert_type(steam.SetUserUnit("T", "C"), None)
assert_type(steam.state(P=100, T=500).unit("h"), str)
assert_type(steam.ThermoCompressorA(10, 250, 1, 1, 120, 0.5).M_Out, float)
assert_type(calvex.members("saturation"), list[str])

try:
    steam.HPT(100, 3000, errors="raise")
except calvex.CalvexError as failure:
    assert_type(failure.reason, str)
    assert_type(failure.cause, str)

steam.HPT(100)  # wrong
steam.HPT("a", errors="explode")  # wrong
steam.Colour  # wrong
calvex.HPTX(1, 2)  # wrong
steam.SatPolish = "two"  # wrong
steam.TurbineA(3374, 100, 10, 0.8, 5).Colour  # wrong
Engine(T=3)  # wrong
