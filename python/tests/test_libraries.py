"""pandas, xarray, dask and pint take members as they are."""
import decimal
import fractions

import calvex
import numpy as np
import pytest

pandas = pytest.importorskip("pandas")
xarray = pytest.importorskip("xarray")
dask_array = pytest.importorskip("dask.array")


@pytest.fixture
def plant():
    return pandas.DataFrame({"P": [100.0, 50.0, 10.0], "T": [500.0, 450.0, 400.0]},
                            index=pandas.date_range("2026-01-01", periods=3, freq="H"))


def test_a_series_keeps_its_index(steam, plant):
    h = steam.HPT(plant.P, plant["T"])
    assert isinstance(h, pandas.Series)
    pandas.testing.assert_index_equal(h.index, plant.index)
    assert h.tolist() == pytest.approx([steam.HPT(p, t) for p, t in plant.values])
    assert steam.TSatP(plant.P.astype(int)).index.equals(plant.index)


def test_series_are_aligned_by_their_index(steam, plant):
    h = steam.HPT(plant.P, plant["T"][::-1])
    assert h[plant.index].tolist() == pytest.approx(steam.HPT(plant.P, plant["T"]).tolist())


def test_equipment_of_series_is_a_named_tuple_of_series(steam, plant):
    work = steam.TurbineA(steam.HPT(plant.P, plant["T"]), plant.P, 1, 0.8, 5)
    assert isinstance(work.Power, pandas.Series) and work.units["Power"] == "kW"
    assert work.Power.index.equals(plant.index)


def test_failures_in_a_series_are_counted_once(steam, plant):
    plant.loc[plant.index[1], "T"] = 5000
    with pytest.warns(calvex.CalvexWarning, match="failed for 1 of 3") as caught:
        h = steam.HPT(plant.P, plant["T"])
    assert len(caught) == 1
    assert h.isna().tolist() == [False, True, False]
    assert steam.reasons()[1].startswith("Temperature")
    with pytest.raises(calvex.CalvexError):
        steam.HPT(plant.P, plant["T"], errors="raise")


def test_missing_values_stay_missing(steam, plant):
    plant.loc[plant.index[0], "P"] = np.nan
    h = steam.HPT(plant.P, plant["T"], errors="ignore")
    assert h.isna().tolist() == [True, False, False]


def test_xarray_broadcasts_by_name(steam):
    P = xarray.DataArray([10.0, 100.0], dims="P", coords={"P": [10.0, 100.0]})
    T = xarray.DataArray([300.0, 400.0, 500.0], dims="T", coords={"T": [300.0, 400.0, 500.0]})
    h = steam.HPT(P, T)
    assert h.dims == ("P", "T")
    assert float(h.sel(P=100, T=500)) == pytest.approx(steam.HPT(100, 500))
    work = steam.TurbineA(h.sel(T=500), P, 1, 0.8, 5)
    assert work.Power.dims == ("P",)


def test_dask_arrays_stay_lazy(steam):
    T = np.linspace(300, 600, 10_000)
    lazy = steam.HPT(100.0, dask_array.from_array(T, chunks=1000))
    assert isinstance(lazy, dask_array.Array)
    np.testing.assert_allclose(lazy.compute(), steam.HPT(100.0, T), rtol=1e-12)
    np.testing.assert_allclose(lazy.compute(scheduler="processes"), steam.HPT(100.0, T), rtol=1e-12)


def test_dask_tells_engines_apart(steam):
    P = dask_array.from_array(np.array([10.0, 20.0]), chunks=1)
    lazy = {unit: calvex.Engine(T=unit).TSatP(P) for unit in ("K", "C", "F")}
    assert len({array.name for array in lazy.values()}) == 3
    values = {unit: array.compute() for unit, array in lazy.items()}
    assert values["K"] - values["C"] == pytest.approx([273.15, 273.15])


def test_the_policy_of_a_call_is_that_of_its_blocks(recwarn):
    P = dask_array.from_array(np.array([100.0, -50.0]), chunks=1)
    named = xarray.DataArray(P, dims="t")
    for given in (P, named):
        lazy = calvex.Engine(T="C").HPT(given, 500, errors="ignore")
        assert np.isnan(np.asarray(lazy.compute())).tolist() == [False, True]
        lazy = calvex.Engine(T="C", errors="ignore").HPT(given, 500)
        assert np.isnan(np.asarray(lazy.compute())).tolist() == [False, True]
        assert not recwarn.list
        with pytest.raises(calvex.CalvexError):
            calvex.Engine(T="C").HPT(given, 500, errors="raise").compute()
        with pytest.raises(calvex.CalvexError):
            calvex.Engine(T="C", errors="raise").HPT(given, 500).compute()
    grid = calvex.HPT(P, dask_array.from_array(np.array([[500.0], [400.0]])), errors="ignore")
    assert grid.compute().shape == (2, 2)


def test_decimals_and_fractions_are_numbers(steam):
    h = steam.HPT(100, 500)
    assert steam.HPT(decimal.Decimal("100"), 500) == h == steam.HPT(fractions.Fraction(100), 500)
    assert steam.HPT(decimal.Decimal(100), [500])[0] == pytest.approx(h, rel=1e-10)
    assert steam.state(P=decimal.Decimal(100), T=500).h == pytest.approx(h, rel=1e-10)


def test_columns_with_gaps(steam):
    P = pandas.Series([100, None], dtype="Int64")
    assert steam.HPT(P, 500).isna().tolist() == [False, True]
    assert steam.state(P=P, T=500, errors="ignore").h.isna().tolist() == [False, True]
    for wrong in (lambda: steam.state(P=pandas.Series(["a", 3]), T=500),
                  lambda: steam.HPT(pandas.Series(["a", 3]), 500)):
        with pytest.raises(TypeError, match="numbers"):
            wrong()
    for like in (pandas.Series([1.0, 2.0]), xarray.DataArray([1.0, 2.0], dims="t")):
        with pytest.raises(ValueError, match="do not go together"):
            steam.state(P=like, T=[500, 500, 500])


def test_equipment_of_dask_arrays(steam):
    flow = dask_array.from_array(np.linspace(1, 5, 100), chunks=10)
    work = steam.TurbineA(3374, 100, 10, 0.8, flow)
    assert work.units["Power"] == "kW"
    np.testing.assert_allclose(work.Power.compute(),
                               steam.TurbineA(3374, 100, 10, 0.8, np.linspace(1, 5, 100)).Power)


class TestPint:
    pint = pytest.importorskip("pint")
    registry = pint.UnitRegistry()

    def quantity(self, value, unit):
        return self.registry.Quantity(value, unit)

    @pytest.mark.parametrize("engine", [calvex.Engine(), calvex.Engine(T="C", P="bar"),
                                        calvex.Engine(T="F", P="psig", H="BTU/lb")])
    def test_quantities_in_quantities_out(self, engine):
        h = engine.HPT(self.quantity(100, "bar"), self.quantity(500, "degC"))
        assert h.to("kJ/kg").magnitude == pytest.approx(calvex.HPT(10, 773.15), rel=1e-4)
        several = engine.HPT(self.quantity(10, "MPa"), self.quantity([700, 773.15], "kelvin"))
        assert several.to("kJ/kg").magnitude[1] == pytest.approx(calvex.HPT(10, 773.15), rel=1e-4)

    def test_quantities_and_numbers_mix(self, steam):
        h = steam.HPT(self.quantity(10, "MPa"), 500)
        assert h.to("kJ/kg").magnitude == pytest.approx(steam.HPT(100, 500))

    def test_the_unit_of_the_answer_is_the_engines(self, steam):
        assert steam.TSatP(self.quantity(1, "atm")).units == self.registry.degC
        assert steam.TSatP(self.quantity(1, "atm")).magnitude == pytest.approx(100, abs=0.05)

    def test_a_wrong_quantity_is_refused(self, steam):
        with pytest.raises(self.pint.DimensionalityError):
            steam.HPT(self.quantity(1, "kg"), 500)

    def test_equipment_and_states(self, steam):
        work = steam.TurbineA(self.quantity(3374, "kJ/kg"), self.quantity(10, "MPa"),
                              self.quantity(1, "MPa"), 0.8, self.quantity(18, "t/h"))
        assert work.Power.to("MW").magnitude == pytest.approx(
            steam.TurbineA(3374, 100, 10, 0.8, 5).Power / 1000)
        state = steam.state(P=self.quantity(10, "MPa"), T=self.quantity(500, "degC"))
        assert state.h == pytest.approx(steam.HPT(100, 500))

    GAS_TURBINE = (5000, 0.3, 15, 520, 40, 400, 105, 4)

    @pytest.mark.parametrize("unit", ["C", "F", "K", "R"])
    def test_differences_of_temperatures_are_not_counted_from_0_kelvin(self, unit):
        engine = calvex.Engine(T="C", P="bar", DT=unit)
        expected = calvex.Engine(T="C", P="bar").GasTurbineA(*self.GAS_TURBINE, 15, 0.03)
        for least in (self.quantity(15, "delta_degC"), self.quantity(27, "delta_degF"),
                      self.quantity(15, "kelvin")):
            result = engine.GasTurbineA(*self.GAS_TURBINE, least, 0.03)
            assert result.M_BaseLoad.magnitude == pytest.approx(expected.M_BaseLoad, rel=1e-9)
        with pytest.raises(TypeError, match="is a temperature and no difference"):
            engine.GasTurbineA(*self.GAS_TURBINE, self.quantity(15, "degC"), 0.03)
        with pytest.raises(TypeError, match="is a difference of temperatures and no temperature"):
            engine.HPT(100, self.quantity(500, "delta_degC"))
        with pytest.raises(TypeError, match="is a difference"):
            engine.state(P=100, T=self.quantity(500, "delta_degC"))

    def test_results_of_quantities_are_printed_with_their_unit_once(self, steam):
        work = steam.TurbineA(self.quantity(3374, "kJ/kg"), 100, 10, 0.8, 5)
        assert "2364.95" in repr(work) and "kilowatt" in repr(work) and " kW" not in repr(work)

    def test_every_model_unit_has_its_quantity(self):
        from calvex import _members, _pint
        for group, row in enumerate(_members.groups()):
            unit, _ = _pint.unit_of(self.registry, group, row[2])
            assert unit.is_compatible_with(_pint._MODEL[group])
