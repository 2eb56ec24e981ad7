"""The kinds of arrays that states are made of: their index, names or mask goes to every result."""
import sys

import numpy as np


def taken_off(values):
    """(arrays, dress): NumPy's or dask's arrays of what was given, which go together, and what makes
    a result the kind that was given."""
    pandas, xarray = sys.modules.get("pandas"), sys.modules.get("xarray")
    if xarray is not None and any(isinstance(v, xarray.DataArray) for v in values):
        return _of_xarray(xarray, values)
    if pandas is not None and any(isinstance(v, (pandas.Series, pandas.DataFrame, pandas.Index))
                                  for v in values):
        return _of_pandas(pandas, values)
    if any(isinstance(v, np.ma.MaskedArray) for v in values):
        return _of_masked(values)
    return [_numbers(v) for v in values], lambda array: array


def is_lazy(value):
    dask = sys.modules.get("dask.array")
    return dask is not None and isinstance(value, dask.Array)


def _numbers(value):
    if is_lazy(value):
        return value
    try:
        return np.asarray(value, float) if value is not None else _refuse(value)
    except (TypeError, ValueError):
        return _refuse(value)


def _refuse(value):
    raise TypeError(f"a state is given by numbers or arrays of numbers, not {value!r}")


def _of_xarray(xarray, values):
    """By the names of their dimensions; a bare array has those of the one that it fits."""
    like = next(v for v in values if isinstance(v, xarray.DataArray))
    named = [v if isinstance(v, xarray.DataArray) else like.copy(data=_spread(v, like.shape))
             for v in values]
    named = xarray.broadcast(*xarray.align(*named, join="inner"))

    def dress(array):
        return named[0].copy(data=array).rename(None)
    return [_numbers(v.data) for v in named], dress


def _of_pandas(pandas, values):
    """By their index, as pandas aligns them."""
    kinds = (pandas.Series, pandas.DataFrame)
    values = [v.to_series() if isinstance(v, pandas.Index) else v for v in values]
    framed = [i for i, v in enumerate(values) if isinstance(v, kinds)]
    if len(framed) == 2:
        if type(values[0]) is not type(values[1]):
            raise TypeError("a state of a table and a column: give two columns, or two tables")
        values = list(values[0].align(values[1]))
    like = values[framed[0]]

    def dress(array):
        if isinstance(like, pandas.Series):
            return pandas.Series(array, like.index)
        return pandas.DataFrame(array, like.index, like.columns)
    return [_column(v) if isinstance(v, kinds) else _spread(v, like.shape) for v in values], dress


def _column(series):
    try:
        return series.to_numpy(float, na_value=np.nan)
    except (TypeError, ValueError):
        return _refuse(series)


def _spread(value, shape):
    value = _numbers(value)
    try:
        return np.broadcast_to(value, shape)
    except ValueError:
        raise ValueError("arrays of these shapes do not go together: "
                         f"{value.shape}, {shape}") from None


def _of_masked(values):
    """What is masked is not computed, and stays masked."""
    free = ~np.logical_or.reduce(np.broadcast_arrays(*map(np.ma.getmaskarray, values)))

    def dress(array):
        all_of_them = np.ma.masked_all(free.shape, array.dtype)
        all_of_them[free] = array
        return all_of_them
    return [np.broadcast_to(_numbers(np.ma.getdata(v)), free.shape)[free] for v in values], dress
