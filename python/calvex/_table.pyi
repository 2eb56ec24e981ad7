# Made from the member table by scripts/update-generated.
# mypy: disable-error-code="misc"
from typing import Any, Generic, Literal, TypeVar, overload

import numpy as np
from numpy.typing import ArrayLike, NDArray

from ._value import Value

Errors = Literal["raise", "warn", "ignore"] | None
Units = Literal[True] | str | dict[str, str]
Array = NDArray[np.float64]
_N = TypeVar("_N")

class Ufunc:
    """A member as a NumPy ufunc."""
    nin: int
    nout: int
    __name__: str
    def outer(self, a: Any, b: Any, /, **words: Any) -> Any: ...

class Results(tuple[_N, ...]):
    """The results of a member by name; `units` has the unit of each."""
    units: dict[str, str]
    def value(self, name: str) -> Value: ...
    def _asdict(self) -> dict[str, _N]: ...

class _of_T(Ufunc):
    @overload
    def __call__(self, T: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> float: ...
    @overload
    def __call__(self, T: Any, /, *, errors: Errors = ..., unit: Units) -> Value: ...
    @overload
    def __call__(self, T: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> Array: ...
    @overload
    def __call__(self, T: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class _of_P(Ufunc):
    @overload
    def __call__(self, P: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> float: ...
    @overload
    def __call__(self, P: Any, /, *, errors: Errors = ..., unit: Units) -> Value: ...
    @overload
    def __call__(self, P: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> Array: ...
    @overload
    def __call__(self, P: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class _of_T_Q(Ufunc):
    @overload
    def __call__(self, T: float, Q: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> float: ...
    @overload
    def __call__(self, T: Any, Q: Any, /, *, errors: Errors = ..., unit: Units) -> Value: ...
    @overload
    def __call__(self, T: ArrayLike, Q: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> Array: ...
    @overload
    def __call__(self, T: Any, Q: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class _of_P_Q(Ufunc):
    @overload
    def __call__(self, P: float, Q: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> float: ...
    @overload
    def __call__(self, P: Any, Q: Any, /, *, errors: Errors = ..., unit: Units) -> Value: ...
    @overload
    def __call__(self, P: ArrayLike, Q: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> Array: ...
    @overload
    def __call__(self, P: Any, Q: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class _of_T_H(Ufunc):
    @overload
    def __call__(self, T: float, H: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> float: ...
    @overload
    def __call__(self, T: Any, H: Any, /, *, errors: Errors = ..., unit: Units) -> Value: ...
    @overload
    def __call__(self, T: ArrayLike, H: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> Array: ...
    @overload
    def __call__(self, T: Any, H: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class _of_T_S(Ufunc):
    @overload
    def __call__(self, T: float, S: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> float: ...
    @overload
    def __call__(self, T: Any, S: Any, /, *, errors: Errors = ..., unit: Units) -> Value: ...
    @overload
    def __call__(self, T: ArrayLike, S: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> Array: ...
    @overload
    def __call__(self, T: Any, S: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class _of_T_U(Ufunc):
    @overload
    def __call__(self, T: float, U: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> float: ...
    @overload
    def __call__(self, T: Any, U: Any, /, *, errors: Errors = ..., unit: Units) -> Value: ...
    @overload
    def __call__(self, T: ArrayLike, U: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> Array: ...
    @overload
    def __call__(self, T: Any, U: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class _of_T_R(Ufunc):
    @overload
    def __call__(self, T: float, R: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> float: ...
    @overload
    def __call__(self, T: Any, R: Any, /, *, errors: Errors = ..., unit: Units) -> Value: ...
    @overload
    def __call__(self, T: ArrayLike, R: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> Array: ...
    @overload
    def __call__(self, T: Any, R: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class _of_T_V(Ufunc):
    @overload
    def __call__(self, T: float, V: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> float: ...
    @overload
    def __call__(self, T: Any, V: Any, /, *, errors: Errors = ..., unit: Units) -> Value: ...
    @overload
    def __call__(self, T: ArrayLike, V: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> Array: ...
    @overload
    def __call__(self, T: Any, V: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class _of_P_H(Ufunc):
    @overload
    def __call__(self, P: float, H: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> float: ...
    @overload
    def __call__(self, P: Any, H: Any, /, *, errors: Errors = ..., unit: Units) -> Value: ...
    @overload
    def __call__(self, P: ArrayLike, H: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> Array: ...
    @overload
    def __call__(self, P: Any, H: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class _of_P_S(Ufunc):
    @overload
    def __call__(self, P: float, S: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> float: ...
    @overload
    def __call__(self, P: Any, S: Any, /, *, errors: Errors = ..., unit: Units) -> Value: ...
    @overload
    def __call__(self, P: ArrayLike, S: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> Array: ...
    @overload
    def __call__(self, P: Any, S: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class _of_P_U(Ufunc):
    @overload
    def __call__(self, P: float, U: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> float: ...
    @overload
    def __call__(self, P: Any, U: Any, /, *, errors: Errors = ..., unit: Units) -> Value: ...
    @overload
    def __call__(self, P: ArrayLike, U: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> Array: ...
    @overload
    def __call__(self, P: Any, U: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class _of_P_R(Ufunc):
    @overload
    def __call__(self, P: float, R: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> float: ...
    @overload
    def __call__(self, P: Any, R: Any, /, *, errors: Errors = ..., unit: Units) -> Value: ...
    @overload
    def __call__(self, P: ArrayLike, R: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> Array: ...
    @overload
    def __call__(self, P: Any, R: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class _of_P_V(Ufunc):
    @overload
    def __call__(self, P: float, V: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> float: ...
    @overload
    def __call__(self, P: Any, V: Any, /, *, errors: Errors = ..., unit: Units) -> Value: ...
    @overload
    def __call__(self, P: ArrayLike, V: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> Array: ...
    @overload
    def __call__(self, P: Any, V: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class _of_P_T(Ufunc):
    @overload
    def __call__(self, P: float, T: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> float: ...
    @overload
    def __call__(self, P: Any, T: Any, /, *, errors: Errors = ..., unit: Units) -> Value: ...
    @overload
    def __call__(self, P: ArrayLike, T: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> Array: ...
    @overload
    def __call__(self, P: Any, T: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class _of_P_T_Q(Ufunc):
    @overload
    def __call__(self, P: float, T: float, Q: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> float: ...
    @overload
    def __call__(self, P: Any, T: Any, Q: Any, /, *, errors: Errors = ..., unit: Units) -> Value: ...
    @overload
    def __call__(self, P: ArrayLike, T: ArrayLike, Q: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> Array: ...
    @overload
    def __call__(self, P: Any, T: Any, Q: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class TurbineAResults(Results[_N], Generic[_N]):
    @property
    def Power(self) -> _N:
        """shaft power"""
    @property
    def TOut(self) -> _N:
        """outlet temperature"""
    @property
    def HOut(self) -> _N:
        """outlet enthalpy"""
    @property
    def QOut(self) -> _N:
        """outlet quality"""

class _TurbineA(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut: float, Eff: float, MIn: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> TurbineAResults[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, Eff: Any, MIn: Any, /, *, errors: Errors = ..., unit: Units) -> TurbineAResults[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut: ArrayLike, Eff: ArrayLike, MIn: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> TurbineAResults[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, Eff: Any, MIn: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class TurbineBResults(Results[_N], Generic[_N]):
    @property
    def MIn(self) -> _N:
        """inlet flow"""
    @property
    def TOut(self) -> _N:
        """outlet temperature"""
    @property
    def HOut(self) -> _N:
        """outlet enthalpy"""
    @property
    def QOut(self) -> _N:
        """outlet quality"""

class _TurbineB(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut: float, Eff: float, Power: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> TurbineBResults[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, Eff: Any, Power: Any, /, *, errors: Errors = ..., unit: Units) -> TurbineBResults[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut: ArrayLike, Eff: ArrayLike, Power: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> TurbineBResults[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, Eff: Any, Power: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class TurbineA2Results(Results[_N], Generic[_N]):
    @property
    def Power(self) -> _N:
        """shaft power"""
    @property
    def TOut1(self) -> _N:
        """temperature at outlet 1"""
    @property
    def TOut2(self) -> _N:
        """temperature at outlet 2"""
    @property
    def HOut1(self) -> _N:
        """enthalpy at outlet 1"""
    @property
    def HOut2(self) -> _N:
        """enthalpy at outlet 2"""
    @property
    def QOut1(self) -> _N:
        """quality at outlet 1"""
    @property
    def QOut2(self) -> _N:
        """quality at outlet 2"""

class _TurbineA2(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut1: float, POut2: float, Eff1: float, Eff2: float, MIn: float, MOut1: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> TurbineA2Results[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut1: Any, POut2: Any, Eff1: Any, Eff2: Any, MIn: Any, MOut1: Any, /, *, errors: Errors = ..., unit: Units) -> TurbineA2Results[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut1: ArrayLike, POut2: ArrayLike, Eff1: ArrayLike, Eff2: ArrayLike, MIn: ArrayLike, MOut1: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> TurbineA2Results[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut1: Any, POut2: Any, Eff1: Any, Eff2: Any, MIn: Any, MOut1: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class TurbineB2Results(Results[_N], Generic[_N]):
    @property
    def MOut2(self) -> _N:
        """flow that leaves at outlet 2"""
    @property
    def TOut1(self) -> _N:
        """temperature at outlet 1"""
    @property
    def TOut2(self) -> _N:
        """temperature at outlet 2"""
    @property
    def HOut1(self) -> _N:
        """enthalpy at outlet 1"""
    @property
    def HOut2(self) -> _N:
        """enthalpy at outlet 2"""
    @property
    def QOut1(self) -> _N:
        """quality at outlet 1"""
    @property
    def QOut2(self) -> _N:
        """quality at outlet 2"""

class _TurbineB2(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut1: float, POut2: float, Eff1: float, Eff2: float, Power: float, MOut1: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> TurbineB2Results[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut1: Any, POut2: Any, Eff1: Any, Eff2: Any, Power: Any, MOut1: Any, /, *, errors: Errors = ..., unit: Units) -> TurbineB2Results[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut1: ArrayLike, POut2: ArrayLike, Eff1: ArrayLike, Eff2: ArrayLike, Power: ArrayLike, MOut1: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> TurbineB2Results[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut1: Any, POut2: Any, Eff1: Any, Eff2: Any, Power: Any, MOut1: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class TurbineA3Results(Results[_N], Generic[_N]):
    @property
    def Power(self) -> _N:
        """shaft power"""
    @property
    def TOut1(self) -> _N:
        """temperature at outlet 1"""
    @property
    def TOut2(self) -> _N:
        """temperature at outlet 2"""
    @property
    def TOut3(self) -> _N:
        """temperature at outlet 3"""
    @property
    def HOut1(self) -> _N:
        """enthalpy at outlet 1"""
    @property
    def HOut2(self) -> _N:
        """enthalpy at outlet 2"""
    @property
    def HOut3(self) -> _N:
        """enthalpy at outlet 3"""
    @property
    def QOut1(self) -> _N:
        """quality at outlet 1"""
    @property
    def QOut2(self) -> _N:
        """quality at outlet 2"""
    @property
    def QOut3(self) -> _N:
        """quality at outlet 3"""

class _TurbineA3(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut1: float, POut2: float, POut3: float, Eff1: float, Eff2: float, Eff3: float, MIn: float, MOut1: float, MOut2: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> TurbineA3Results[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut1: Any, POut2: Any, POut3: Any, Eff1: Any, Eff2: Any, Eff3: Any, MIn: Any, MOut1: Any, MOut2: Any, /, *, errors: Errors = ..., unit: Units) -> TurbineA3Results[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut1: ArrayLike, POut2: ArrayLike, POut3: ArrayLike, Eff1: ArrayLike, Eff2: ArrayLike, Eff3: ArrayLike, MIn: ArrayLike, MOut1: ArrayLike, MOut2: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> TurbineA3Results[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut1: Any, POut2: Any, POut3: Any, Eff1: Any, Eff2: Any, Eff3: Any, MIn: Any, MOut1: Any, MOut2: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class TurbineB3Results(Results[_N], Generic[_N]):
    @property
    def MOut3(self) -> _N:
        """flow that leaves at outlet 3"""
    @property
    def TOut1(self) -> _N:
        """temperature at outlet 1"""
    @property
    def TOut2(self) -> _N:
        """temperature at outlet 2"""
    @property
    def TOut3(self) -> _N:
        """temperature at outlet 3"""
    @property
    def HOut1(self) -> _N:
        """enthalpy at outlet 1"""
    @property
    def HOut2(self) -> _N:
        """enthalpy at outlet 2"""
    @property
    def HOut3(self) -> _N:
        """enthalpy at outlet 3"""
    @property
    def QOut1(self) -> _N:
        """quality at outlet 1"""
    @property
    def QOut2(self) -> _N:
        """quality at outlet 2"""
    @property
    def QOut3(self) -> _N:
        """quality at outlet 3"""

class _TurbineB3(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut1: float, POut2: float, POut3: float, Eff1: float, Eff2: float, Eff3: float, Power: float, MOut1: float, MOut2: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> TurbineB3Results[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut1: Any, POut2: Any, POut3: Any, Eff1: Any, Eff2: Any, Eff3: Any, Power: Any, MOut1: Any, MOut2: Any, /, *, errors: Errors = ..., unit: Units) -> TurbineB3Results[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut1: ArrayLike, POut2: ArrayLike, POut3: ArrayLike, Eff1: ArrayLike, Eff2: ArrayLike, Eff3: ArrayLike, Power: ArrayLike, MOut1: ArrayLike, MOut2: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> TurbineB3Results[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut1: Any, POut2: Any, POut3: Any, Eff1: Any, Eff2: Any, Eff3: Any, Power: Any, MOut1: Any, MOut2: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class CompressorAResults(Results[_N], Generic[_N]):
    @property
    def Power(self) -> _N:
        """shaft power"""
    @property
    def TOut(self) -> _N:
        """outlet temperature"""
    @property
    def HOut(self) -> _N:
        """outlet enthalpy"""
    @property
    def QOut(self) -> _N:
        """outlet quality"""

class _CompressorA(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut: float, Eff: float, MIn: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> CompressorAResults[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, Eff: Any, MIn: Any, /, *, errors: Errors = ..., unit: Units) -> CompressorAResults[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut: ArrayLike, Eff: ArrayLike, MIn: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> CompressorAResults[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, Eff: Any, MIn: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class CompressorBResults(Results[_N], Generic[_N]):
    @property
    def MIn(self) -> _N:
        """inlet flow"""
    @property
    def TOut(self) -> _N:
        """outlet temperature"""
    @property
    def HOut(self) -> _N:
        """outlet enthalpy"""
    @property
    def QOut(self) -> _N:
        """outlet quality"""

class _CompressorB(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut: float, Eff: float, Power: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> CompressorBResults[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, Eff: Any, Power: Any, /, *, errors: Errors = ..., unit: Units) -> CompressorBResults[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut: ArrayLike, Eff: ArrayLike, Power: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> CompressorBResults[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, Eff: Any, Power: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class CompressorA2Results(Results[_N], Generic[_N]):
    @property
    def Power(self) -> _N:
        """shaft power"""
    @property
    def TOut1(self) -> _N:
        """temperature at outlet 1"""
    @property
    def TOut2(self) -> _N:
        """temperature at outlet 2"""
    @property
    def HOut1(self) -> _N:
        """enthalpy at outlet 1"""
    @property
    def HOut2(self) -> _N:
        """enthalpy at outlet 2"""
    @property
    def QOut1(self) -> _N:
        """quality at outlet 1"""
    @property
    def QOut2(self) -> _N:
        """quality at outlet 2"""

class _CompressorA2(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut1: float, POut2: float, Eff1: float, Eff2: float, MIn: float, MOut1: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> CompressorA2Results[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut1: Any, POut2: Any, Eff1: Any, Eff2: Any, MIn: Any, MOut1: Any, /, *, errors: Errors = ..., unit: Units) -> CompressorA2Results[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut1: ArrayLike, POut2: ArrayLike, Eff1: ArrayLike, Eff2: ArrayLike, MIn: ArrayLike, MOut1: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> CompressorA2Results[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut1: Any, POut2: Any, Eff1: Any, Eff2: Any, MIn: Any, MOut1: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class CompressorB2Results(Results[_N], Generic[_N]):
    @property
    def MOut2(self) -> _N:
        """flow that leaves at outlet 2"""
    @property
    def TOut1(self) -> _N:
        """temperature at outlet 1"""
    @property
    def TOut2(self) -> _N:
        """temperature at outlet 2"""
    @property
    def HOut1(self) -> _N:
        """enthalpy at outlet 1"""
    @property
    def HOut2(self) -> _N:
        """enthalpy at outlet 2"""
    @property
    def QOut1(self) -> _N:
        """quality at outlet 1"""
    @property
    def QOut2(self) -> _N:
        """quality at outlet 2"""

class _CompressorB2(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut1: float, POut2: float, Eff1: float, Eff2: float, Power: float, MOut1: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> CompressorB2Results[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut1: Any, POut2: Any, Eff1: Any, Eff2: Any, Power: Any, MOut1: Any, /, *, errors: Errors = ..., unit: Units) -> CompressorB2Results[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut1: ArrayLike, POut2: ArrayLike, Eff1: ArrayLike, Eff2: ArrayLike, Power: ArrayLike, MOut1: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> CompressorB2Results[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut1: Any, POut2: Any, Eff1: Any, Eff2: Any, Power: Any, MOut1: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class DeAeratorResults(Results[_N], Generic[_N]):
    @property
    def Hd(self) -> _N:
        """enthalpy of the deaerated water"""
    @property
    def Td(self) -> _N:
        """temperature of the deaerated water"""
    @property
    def Mw(self) -> _N:
        """flow of make-up water"""
    @property
    def Ms(self) -> _N:
        """flow of heating steam"""

class _DeAerator(Ufunc):
    @overload
    def __call__(self, POp: float, Hs: float, Tw: float, Md: float, MRatio: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> DeAeratorResults[float]: ...
    @overload
    def __call__(self, POp: Any, Hs: Any, Tw: Any, Md: Any, MRatio: Any, /, *, errors: Errors = ..., unit: Units) -> DeAeratorResults[Value]: ...
    @overload
    def __call__(self, POp: ArrayLike, Hs: ArrayLike, Tw: ArrayLike, Md: ArrayLike, MRatio: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> DeAeratorResults[Array]: ...
    @overload
    def __call__(self, POp: Any, Hs: Any, Tw: Any, Md: Any, MRatio: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class DeSuperHeaterResults(Results[_N], Generic[_N]):
    @property
    def Hs(self) -> _N:
        """enthalpy of the cooled steam"""
    @property
    def Mw(self) -> _N:
        """flow of spray water"""
    @property
    def Ms(self) -> _N:
        """flow of cooled steam"""

class _DeSuperHeater(Ufunc):
    @overload
    def __call__(self, HIn: float, Hw: float, POp: float, TOp: float, MIn: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> DeSuperHeaterResults[float]: ...
    @overload
    def __call__(self, HIn: Any, Hw: Any, POp: Any, TOp: Any, MIn: Any, /, *, errors: Errors = ..., unit: Units) -> DeSuperHeaterResults[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, Hw: ArrayLike, POp: ArrayLike, TOp: ArrayLike, MIn: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> DeSuperHeaterResults[Array]: ...
    @overload
    def __call__(self, HIn: Any, Hw: Any, POp: Any, TOp: Any, MIn: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class LetDownValveResults(Results[_N], Generic[_N]):
    @property
    def TOut(self) -> _N:
        """outlet temperature"""
    @property
    def QOut(self) -> _N:
        """outlet quality"""

class _LetDownValve(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> LetDownValveResults[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, /, *, errors: Errors = ..., unit: Units) -> LetDownValveResults[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> LetDownValveResults[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class BoilerResults(Results[_N], Generic[_N]):
    @property
    def MBd(self) -> _N:
        """flow of blowdown"""
    @property
    def DeltaH(self) -> _N:
        """heat taken up"""
    @property
    def HOut(self) -> _N:
        """enthalpy of the steam"""
    @property
    def HBd(self) -> _N:
        """enthalpy of the blowdown"""
    @property
    def MIn(self) -> _N:
        """flow of feed water"""

class _Boiler(Ufunc):
    @overload
    def __call__(self, HIn: float, Mout: float, TOut: float, POut: float, BRatio: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> BoilerResults[float]: ...
    @overload
    def __call__(self, HIn: Any, Mout: Any, TOut: Any, POut: Any, BRatio: Any, /, *, errors: Errors = ..., unit: Units) -> BoilerResults[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, Mout: ArrayLike, TOut: ArrayLike, POut: ArrayLike, BRatio: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> BoilerResults[Array]: ...
    @overload
    def __call__(self, HIn: Any, Mout: Any, TOut: Any, POut: Any, BRatio: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class FlashVesselResults(Results[_N], Generic[_N]):
    @property
    def TOut(self) -> _N:
        """temperature in the vessel"""
    @property
    def MVap(self) -> _N:
        """flow of vapour"""
    @property
    def MLiq(self) -> _N:
        """flow of liquid"""
    @property
    def HVap(self) -> _N:
        """enthalpy of the vapour, 0 without any"""
    @property
    def HLiq(self) -> _N:
        """enthalpy of the liquid, 0 without any"""

class _FlashVessel(Ufunc):
    @overload
    def __call__(self, MIn: float, HIn: float, POp: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> FlashVesselResults[float]: ...
    @overload
    def __call__(self, MIn: Any, HIn: Any, POp: Any, /, *, errors: Errors = ..., unit: Units) -> FlashVesselResults[Value]: ...
    @overload
    def __call__(self, MIn: ArrayLike, HIn: ArrayLike, POp: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> FlashVesselResults[Array]: ...
    @overload
    def __call__(self, MIn: Any, HIn: Any, POp: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLTurbineAResults(Results[_N], Generic[_N]):
    @property
    def Pow(self) -> _N:
        """turbine power"""
    @property
    def T_Out(self) -> _N:
        """outlet temperature"""
    @property
    def H_Out(self) -> _N:
        """outlet enthalpy"""
    @property
    def Q_Out(self) -> _N:
        """outlet quality"""

class _XLTurbineA(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut: float, Eff: float, MIn: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLTurbineAResults[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, Eff: Any, MIn: Any, /, *, errors: Errors = ..., unit: Units) -> XLTurbineAResults[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut: ArrayLike, Eff: ArrayLike, MIn: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLTurbineAResults[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, Eff: Any, MIn: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLTurbineBResults(Results[_N], Generic[_N]):
    @property
    def M_In(self) -> _N:
        """flow rate"""
    @property
    def M(self) -> _N:
        """flow rate"""
    @property
    def T_Out(self) -> _N:
        """outlet temperature"""
    @property
    def H_Out(self) -> _N:
        """outlet enthalpy"""
    @property
    def Q_Out(self) -> _N:
        """outlet quality"""

class _XLTurbineB(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut: float, Eff: float, Power: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLTurbineBResults[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, Eff: Any, Power: Any, /, *, errors: Errors = ..., unit: Units) -> XLTurbineBResults[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut: ArrayLike, Eff: ArrayLike, Power: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLTurbineBResults[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, Eff: Any, Power: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLTurbineA2Results(Results[_N], Generic[_N]):
    @property
    def Pow(self) -> _N:
        """turbine power"""
    @property
    def H_Out1(self) -> _N:
        """outlet 1 enthalpy"""
    @property
    def T_Out1(self) -> _N:
        """outlet 1 temperature"""
    @property
    def Q_Out1(self) -> _N:
        """outlet 1 quality"""
    @property
    def H_Out2(self) -> _N:
        """outlet 2 enthalpy"""
    @property
    def T_Out2(self) -> _N:
        """outlet 2 temperature"""
    @property
    def Q_Out2(self) -> _N:
        """outlet 2 quality"""

class _XLTurbineA2(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut1: float, POut2: float, Eff1: float, Eff2: float, MIn: float, MOut1: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLTurbineA2Results[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut1: Any, POut2: Any, Eff1: Any, Eff2: Any, MIn: Any, MOut1: Any, /, *, errors: Errors = ..., unit: Units) -> XLTurbineA2Results[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut1: ArrayLike, POut2: ArrayLike, Eff1: ArrayLike, Eff2: ArrayLike, MIn: ArrayLike, MOut1: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLTurbineA2Results[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut1: Any, POut2: Any, Eff1: Any, Eff2: Any, MIn: Any, MOut1: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLTurbineB2Results(Results[_N], Generic[_N]):
    @property
    def M_Out2(self) -> _N:
        """outlet 2 flow rate"""
    @property
    def H_Out1(self) -> _N:
        """outlet 1 enthalpy"""
    @property
    def T_Out1(self) -> _N:
        """outlet 1 temperature"""
    @property
    def Q_Out1(self) -> _N:
        """outlet 1 quality"""
    @property
    def H_Out2(self) -> _N:
        """outlet 2 enthalpy"""
    @property
    def T_Out2(self) -> _N:
        """outlet 2 temperature"""
    @property
    def Q_Out2(self) -> _N:
        """outlet 2 quality"""

class _XLTurbineB2(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut1: float, POut2: float, Eff1: float, Eff2: float, Power: float, MOut1: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLTurbineB2Results[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut1: Any, POut2: Any, Eff1: Any, Eff2: Any, Power: Any, MOut1: Any, /, *, errors: Errors = ..., unit: Units) -> XLTurbineB2Results[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut1: ArrayLike, POut2: ArrayLike, Eff1: ArrayLike, Eff2: ArrayLike, Power: ArrayLike, MOut1: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLTurbineB2Results[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut1: Any, POut2: Any, Eff1: Any, Eff2: Any, Power: Any, MOut1: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLTurbineA3Results(Results[_N], Generic[_N]):
    @property
    def Pow(self) -> _N:
        """turbine power"""
    @property
    def H_Out1(self) -> _N:
        """outlet 1 enthalpy"""
    @property
    def T_Out1(self) -> _N:
        """outlet 1 temperature"""
    @property
    def Q_Out1(self) -> _N:
        """outlet 1 quality"""
    @property
    def H_Out2(self) -> _N:
        """outlet 2 enthalpy"""
    @property
    def T_Out2(self) -> _N:
        """outlet 2 temperature"""
    @property
    def Q_Out2(self) -> _N:
        """outlet 2 quality"""
    @property
    def H_Out3(self) -> _N:
        """outlet 3 enthalpy"""
    @property
    def T_Out3(self) -> _N:
        """outlet 3 temperature"""
    @property
    def Q_Out3(self) -> _N:
        """outlet 3 quality"""

class _XLTurbineA3(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut1: float, POut2: float, POut3: float, Eff1: float, Eff2: float, Eff3: float, MIn: float, MOut1: float, MOut2: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLTurbineA3Results[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut1: Any, POut2: Any, POut3: Any, Eff1: Any, Eff2: Any, Eff3: Any, MIn: Any, MOut1: Any, MOut2: Any, /, *, errors: Errors = ..., unit: Units) -> XLTurbineA3Results[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut1: ArrayLike, POut2: ArrayLike, POut3: ArrayLike, Eff1: ArrayLike, Eff2: ArrayLike, Eff3: ArrayLike, MIn: ArrayLike, MOut1: ArrayLike, MOut2: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLTurbineA3Results[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut1: Any, POut2: Any, POut3: Any, Eff1: Any, Eff2: Any, Eff3: Any, MIn: Any, MOut1: Any, MOut2: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLTurbineB3Results(Results[_N], Generic[_N]):
    @property
    def M_Out3(self) -> _N:
        """outlet 3 flow rate"""
    @property
    def H_Out1(self) -> _N:
        """outlet 1 enthalpy"""
    @property
    def T_Out1(self) -> _N:
        """outlet 1 temperature"""
    @property
    def Q_Out1(self) -> _N:
        """outlet 1 quality"""
    @property
    def H_Out2(self) -> _N:
        """outlet 2 enthalpy"""
    @property
    def T_Out2(self) -> _N:
        """outlet 2 temperature"""
    @property
    def Q_Out2(self) -> _N:
        """outlet 2 quality"""
    @property
    def H_Out3(self) -> _N:
        """outlet 3 enthalpy"""
    @property
    def T_Out3(self) -> _N:
        """outlet 3 temperature"""
    @property
    def Q_Out3(self) -> _N:
        """outlet 3 quality"""

class _XLTurbineB3(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut1: float, POut2: float, POut3: float, Eff1: float, Eff2: float, Eff3: float, Power: float, MOut1: float, MOut2: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLTurbineB3Results[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut1: Any, POut2: Any, POut3: Any, Eff1: Any, Eff2: Any, Eff3: Any, Power: Any, MOut1: Any, MOut2: Any, /, *, errors: Errors = ..., unit: Units) -> XLTurbineB3Results[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut1: ArrayLike, POut2: ArrayLike, POut3: ArrayLike, Eff1: ArrayLike, Eff2: ArrayLike, Eff3: ArrayLike, Power: ArrayLike, MOut1: ArrayLike, MOut2: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLTurbineB3Results[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut1: Any, POut2: Any, POut3: Any, Eff1: Any, Eff2: Any, Eff3: Any, Power: Any, MOut1: Any, MOut2: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLCompressorAResults(Results[_N], Generic[_N]):
    @property
    def Pow(self) -> _N:
        """compressor power"""
    @property
    def T_Out(self) -> _N:
        """outlet temperature"""
    @property
    def H_Out(self) -> _N:
        """outlet enthalpy"""
    @property
    def Q_Out(self) -> _N:
        """outlet quality"""

class _XLCompressorA(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut: float, Eff: float, MIn: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLCompressorAResults[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, Eff: Any, MIn: Any, /, *, errors: Errors = ..., unit: Units) -> XLCompressorAResults[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut: ArrayLike, Eff: ArrayLike, MIn: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLCompressorAResults[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, Eff: Any, MIn: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLCompressorBResults(Results[_N], Generic[_N]):
    @property
    def M(self) -> _N:
        """flow rate"""
    @property
    def M_In(self) -> _N:
        """flow rate"""
    @property
    def T_Out(self) -> _N:
        """outlet temperature"""
    @property
    def H_Out(self) -> _N:
        """outlet enthalpy"""
    @property
    def Q_Out(self) -> _N:
        """outlet quality"""

class _XLCompressorB(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut: float, Eff: float, Power: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLCompressorBResults[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, Eff: Any, Power: Any, /, *, errors: Errors = ..., unit: Units) -> XLCompressorBResults[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut: ArrayLike, Eff: ArrayLike, Power: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLCompressorBResults[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, Eff: Any, Power: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLCompressorA2Results(Results[_N], Generic[_N]):
    @property
    def Pow(self) -> _N:
        """compressor power"""
    @property
    def H_Out1(self) -> _N:
        """outlet 1 enthalpy"""
    @property
    def T_Out1(self) -> _N:
        """outlet 1 temperature"""
    @property
    def Q_Out1(self) -> _N:
        """outlet 1 quality"""
    @property
    def H_Out2(self) -> _N:
        """outlet 2 enthalpy"""
    @property
    def T_Out2(self) -> _N:
        """outlet 2 temperature"""
    @property
    def Q_Out2(self) -> _N:
        """outlet 2 quality"""

class _XLCompressorA2(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut1: float, POut2: float, Eff1: float, Eff2: float, MIn: float, MOut1: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLCompressorA2Results[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut1: Any, POut2: Any, Eff1: Any, Eff2: Any, MIn: Any, MOut1: Any, /, *, errors: Errors = ..., unit: Units) -> XLCompressorA2Results[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut1: ArrayLike, POut2: ArrayLike, Eff1: ArrayLike, Eff2: ArrayLike, MIn: ArrayLike, MOut1: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLCompressorA2Results[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut1: Any, POut2: Any, Eff1: Any, Eff2: Any, MIn: Any, MOut1: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLCompressorB2Results(Results[_N], Generic[_N]):
    @property
    def M_Out2(self) -> _N:
        """outlet 2 flow rate"""
    @property
    def H_Out1(self) -> _N:
        """outlet 1 enthalpy"""
    @property
    def T_Out1(self) -> _N:
        """outlet 1 temperature"""
    @property
    def Q_Out1(self) -> _N:
        """outlet 1 quality"""
    @property
    def H_Out2(self) -> _N:
        """outlet 2 enthalpy"""
    @property
    def T_Out2(self) -> _N:
        """outlet 2 temperature"""
    @property
    def Q_Out2(self) -> _N:
        """outlet 2 quality"""

class _XLCompressorB2(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut1: float, POut2: float, Eff1: float, Eff2: float, Power: float, MOut1: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLCompressorB2Results[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut1: Any, POut2: Any, Eff1: Any, Eff2: Any, Power: Any, MOut1: Any, /, *, errors: Errors = ..., unit: Units) -> XLCompressorB2Results[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut1: ArrayLike, POut2: ArrayLike, Eff1: ArrayLike, Eff2: ArrayLike, Power: ArrayLike, MOut1: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLCompressorB2Results[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut1: Any, POut2: Any, Eff1: Any, Eff2: Any, Power: Any, MOut1: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLDeAeratorResults(Results[_N], Generic[_N]):
    @property
    def M_Water(self) -> _N:
        """water flow rate"""
    @property
    def M_Steam(self) -> _N:
        """steam flow rate"""
    @property
    def H_Out(self) -> _N:
        """outlet enthalpy"""
    @property
    def T_Out(self) -> _N:
        """outlet temperature"""

class _XLDeAerator(Ufunc):
    @overload
    def __call__(self, POp: float, Hs: float, Tw: float, Md: float, MRatio: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLDeAeratorResults[float]: ...
    @overload
    def __call__(self, POp: Any, Hs: Any, Tw: Any, Md: Any, MRatio: Any, /, *, errors: Errors = ..., unit: Units) -> XLDeAeratorResults[Value]: ...
    @overload
    def __call__(self, POp: ArrayLike, Hs: ArrayLike, Tw: ArrayLike, Md: ArrayLike, MRatio: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLDeAeratorResults[Array]: ...
    @overload
    def __call__(self, POp: Any, Hs: Any, Tw: Any, Md: Any, MRatio: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLDeSuperHeaterResults(Results[_N], Generic[_N]):
    @property
    def M_Water(self) -> _N:
        """water flow rate"""
    @property
    def M_Out(self) -> _N:
        """outlet flow rate"""
    @property
    def H_Out(self) -> _N:
        """outlet enthalpy"""

class _XLDeSuperHeater(Ufunc):
    @overload
    def __call__(self, HIn: float, Hw: float, POp: float, TOp: float, MIn: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLDeSuperHeaterResults[float]: ...
    @overload
    def __call__(self, HIn: Any, Hw: Any, POp: Any, TOp: Any, MIn: Any, /, *, errors: Errors = ..., unit: Units) -> XLDeSuperHeaterResults[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, Hw: ArrayLike, POp: ArrayLike, TOp: ArrayLike, MIn: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLDeSuperHeaterResults[Array]: ...
    @overload
    def __call__(self, HIn: Any, Hw: Any, POp: Any, TOp: Any, MIn: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLLetDownValveResults(Results[_N], Generic[_N]):
    @property
    def T_Out(self) -> _N:
        """outlet temperature"""
    @property
    def Q_Out(self) -> _N:
        """outlet quality"""

class _XLLetDownValve(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLLetDownValveResults[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, /, *, errors: Errors = ..., unit: Units) -> XLLetDownValveResults[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLLetDownValveResults[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLBoilerResults(Results[_N], Generic[_N]):
    @property
    def M_In(self) -> _N:
        """inlet flow rate"""
    @property
    def M_Bd(self) -> _N:
        """blowdown flow rate"""
    @property
    def H_Out(self) -> _N:
        """outlet enthalpy"""
    @property
    def Q_Abs(self) -> _N:
        """absorbed duty"""
    @property
    def H_delta(self) -> _N:
        """absorbed duty"""
    @property
    def H_Bd(self) -> _N:
        """blowdown enthalpy"""

class _XLBoiler(Ufunc):
    @overload
    def __call__(self, HIn: float, Mout: float, TOut: float, POut: float, BRatio: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLBoilerResults[float]: ...
    @overload
    def __call__(self, HIn: Any, Mout: Any, TOut: Any, POut: Any, BRatio: Any, /, *, errors: Errors = ..., unit: Units) -> XLBoilerResults[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, Mout: ArrayLike, TOut: ArrayLike, POut: ArrayLike, BRatio: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLBoilerResults[Array]: ...
    @overload
    def __call__(self, HIn: Any, Mout: Any, TOut: Any, POut: Any, BRatio: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLFlashVesselResults(Results[_N], Generic[_N]):
    @property
    def M_Vap(self) -> _N:
        """steam flow rate"""
    @property
    def M_Liq(self) -> _N:
        """water flow rate"""
    @property
    def T_Vap(self) -> _N:
        """steam temperature"""
    @property
    def H_Vap(self) -> _N:
        """steam enthalpy"""
    @property
    def H_Liq(self) -> _N:
        """water enthalpy"""

class _XLFlashVessel(Ufunc):
    @overload
    def __call__(self, MIn: float, HIn: float, POp: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLFlashVesselResults[float]: ...
    @overload
    def __call__(self, MIn: Any, HIn: Any, POp: Any, /, *, errors: Errors = ..., unit: Units) -> XLFlashVesselResults[Value]: ...
    @overload
    def __call__(self, MIn: ArrayLike, HIn: ArrayLike, POp: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLFlashVesselResults[Array]: ...
    @overload
    def __call__(self, MIn: Any, HIn: Any, POp: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLGasTurbineAResults(Results[_N], Generic[_N]):
    @property
    def T_Whb(self) -> _N:
        """firing temperature of the waste-heat boiler"""
    @property
    def D_WhbFuel(self) -> _N:
        """fuel duty of the waste-heat boiler"""
    @property
    def T_DewPtActual(self) -> _N:
        """dew point of the stack gas"""
    @property
    def T_DewPtMax(self) -> _N:
        """dew point of the stack gas at full firing"""
    @property
    def R_ExhaustO2(self) -> _N:
        """oxygen mole fraction in the stack gas"""
    @property
    def D_GTFuel(self) -> _N:
        """fuel duty of the gas turbine"""
    @property
    def R_HeatUtil(self) -> _N:
        """heat utilisation"""
    @property
    def M_BaseLoad(self) -> _N:
        """steam that the exhaust raises without firing"""
    @property
    def M_Actual(self) -> _N:
        """steam that is raised"""
    @property
    def D_HeatLoss(self) -> _N:
        """heat loss"""

class _XLGasTurbineA(Ufunc):
    @overload
    def __call__(self, GTPower: float, FPRatio: float, AirTemp: float, ExhaustTemp: float, SteamPress: float, SteamTemp: float, BFWTemp: float, SteamDemand: float, DTMin: float, MinO2Stack: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLGasTurbineAResults[float]: ...
    @overload
    def __call__(self, GTPower: Any, FPRatio: Any, AirTemp: Any, ExhaustTemp: Any, SteamPress: Any, SteamTemp: Any, BFWTemp: Any, SteamDemand: Any, DTMin: Any, MinO2Stack: Any, /, *, errors: Errors = ..., unit: Units) -> XLGasTurbineAResults[Value]: ...
    @overload
    def __call__(self, GTPower: ArrayLike, FPRatio: ArrayLike, AirTemp: ArrayLike, ExhaustTemp: ArrayLike, SteamPress: ArrayLike, SteamTemp: ArrayLike, BFWTemp: ArrayLike, SteamDemand: ArrayLike, DTMin: ArrayLike, MinO2Stack: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLGasTurbineAResults[Array]: ...
    @overload
    def __call__(self, GTPower: Any, FPRatio: Any, AirTemp: Any, ExhaustTemp: Any, SteamPress: Any, SteamTemp: Any, BFWTemp: Any, SteamDemand: Any, DTMin: Any, MinO2Stack: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLThermoCompressorAResults(Results[_N], Generic[_N]):
    @property
    def P_Out(self) -> _N:
        """discharge pressure"""
    @property
    def T_Out(self) -> _N:
        """discharge temperature"""
    @property
    def M_Out(self) -> _N:
        """discharge flow rate"""
    @property
    def D_Hx(self) -> _N:
        """duty"""

class _XLThermoCompressorA(Ufunc):
    @overload
    def __call__(self, MSP: float, MST: float, MSF: float, SSP: float, SST: float, SSF: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLThermoCompressorAResults[float]: ...
    @overload
    def __call__(self, MSP: Any, MST: Any, MSF: Any, SSP: Any, SST: Any, SSF: Any, /, *, errors: Errors = ..., unit: Units) -> XLThermoCompressorAResults[Value]: ...
    @overload
    def __call__(self, MSP: ArrayLike, MST: ArrayLike, MSF: ArrayLike, SSP: ArrayLike, SST: ArrayLike, SSF: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLThermoCompressorAResults[Array]: ...
    @overload
    def __call__(self, MSP: Any, MST: Any, MSF: Any, SSP: Any, SST: Any, SSF: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLThermoCompressorBResults(Results[_N], Generic[_N]):
    @property
    def M_Out(self) -> _N:
        """discharge flow rate"""
    @property
    def T_Out(self) -> _N:
        """discharge temperature"""
    @property
    def M_Motive(self) -> _N:
        """motive flow rate"""
    @property
    def M_Suction(self) -> _N:
        """suction flow rate"""

class _XLThermoCompressorB(Ufunc):
    @overload
    def __call__(self, MSP: float, MST: float, SSP: float, SST: float, DSP: float, HXDuty: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLThermoCompressorBResults[float]: ...
    @overload
    def __call__(self, MSP: Any, MST: Any, SSP: Any, SST: Any, DSP: Any, HXDuty: Any, /, *, errors: Errors = ..., unit: Units) -> XLThermoCompressorBResults[Value]: ...
    @overload
    def __call__(self, MSP: ArrayLike, MST: ArrayLike, SSP: ArrayLike, SST: ArrayLike, DSP: ArrayLike, HXDuty: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLThermoCompressorBResults[Array]: ...
    @overload
    def __call__(self, MSP: Any, MST: Any, SSP: Any, SST: Any, DSP: Any, HXDuty: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLThermoCompressorCResults(Results[_N], Generic[_N]):
    @property
    def T_Out(self) -> _N:
        """discharge temperature"""
    @property
    def D_Hx(self) -> _N:
        """duty"""
    @property
    def M_Motive(self) -> _N:
        """motive flow rate"""
    @property
    def M_Suction(self) -> _N:
        """suction flow rate"""

class _XLThermoCompressorC(Ufunc):
    @overload
    def __call__(self, MSP: float, MST: float, SSP: float, SST: float, DSP: float, DSF: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLThermoCompressorCResults[float]: ...
    @overload
    def __call__(self, MSP: Any, MST: Any, SSP: Any, SST: Any, DSP: Any, DSF: Any, /, *, errors: Errors = ..., unit: Units) -> XLThermoCompressorCResults[Value]: ...
    @overload
    def __call__(self, MSP: ArrayLike, MST: ArrayLike, SSP: ArrayLike, SST: ArrayLike, DSP: ArrayLike, DSF: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLThermoCompressorCResults[Array]: ...
    @overload
    def __call__(self, MSP: Any, MST: Any, SSP: Any, SST: Any, DSP: Any, DSF: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLThermoCompressorDResults(Results[_N], Generic[_N]):
    @property
    def T_Out(self) -> _N:
        """discharge temperature"""
    @property
    def D_Hx(self) -> _N:
        """duty"""
    @property
    def M_Out(self) -> _N:
        """discharge flow rate"""
    @property
    def M_Motive(self) -> _N:
        """motive flow rate"""

class _XLThermoCompressorD(Ufunc):
    @overload
    def __call__(self, MSP: float, MST: float, SSP: float, SST: float, DSP: float, SSF: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLThermoCompressorDResults[float]: ...
    @overload
    def __call__(self, MSP: Any, MST: Any, SSP: Any, SST: Any, DSP: Any, SSF: Any, /, *, errors: Errors = ..., unit: Units) -> XLThermoCompressorDResults[Value]: ...
    @overload
    def __call__(self, MSP: ArrayLike, MST: ArrayLike, SSP: ArrayLike, SST: ArrayLike, DSP: ArrayLike, SSF: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLThermoCompressorDResults[Array]: ...
    @overload
    def __call__(self, MSP: Any, MST: Any, SSP: Any, SST: Any, DSP: Any, SSF: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLThermoCompressorEResults(Results[_N], Generic[_N]):
    @property
    def T_Out(self) -> _N:
        """discharge temperature"""
    @property
    def D_Hx(self) -> _N:
        """duty"""
    @property
    def M_Out(self) -> _N:
        """discharge flow rate"""
    @property
    def M_Suction(self) -> _N:
        """suction flow rate"""

class _XLThermoCompressorE(Ufunc):
    @overload
    def __call__(self, MSP: float, MST: float, SSP: float, SST: float, DSP: float, MSF: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLThermoCompressorEResults[float]: ...
    @overload
    def __call__(self, MSP: Any, MST: Any, SSP: Any, SST: Any, DSP: Any, MSF: Any, /, *, errors: Errors = ..., unit: Units) -> XLThermoCompressorEResults[Value]: ...
    @overload
    def __call__(self, MSP: ArrayLike, MST: ArrayLike, SSP: ArrayLike, SST: ArrayLike, DSP: ArrayLike, MSF: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLThermoCompressorEResults[Array]: ...
    @overload
    def __call__(self, MSP: Any, MST: Any, SSP: Any, SST: Any, DSP: Any, MSF: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLThermoCompressorFResults(Results[_N], Generic[_N]):
    @property
    def T_Out(self) -> _N:
        """discharge temperature"""
    @property
    def P_Out(self) -> _N:
        """discharge pressure"""
    @property
    def M_Out(self) -> _N:
        """discharge flow rate"""
    @property
    def M_Motive(self) -> _N:
        """motive flow rate"""

class _XLThermoCompressorF(Ufunc):
    @overload
    def __call__(self, MSP: float, MST: float, SSP: float, SST: float, SSF: float, HXDuty: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLThermoCompressorFResults[float]: ...
    @overload
    def __call__(self, MSP: Any, MST: Any, SSP: Any, SST: Any, SSF: Any, HXDuty: Any, /, *, errors: Errors = ..., unit: Units) -> XLThermoCompressorFResults[Value]: ...
    @overload
    def __call__(self, MSP: ArrayLike, MST: ArrayLike, SSP: ArrayLike, SST: ArrayLike, SSF: ArrayLike, HXDuty: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLThermoCompressorFResults[Array]: ...
    @overload
    def __call__(self, MSP: Any, MST: Any, SSP: Any, SST: Any, SSF: Any, HXDuty: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLThermoCompressorGResults(Results[_N], Generic[_N]):
    @property
    def T_Out(self) -> _N:
        """discharge temperature"""
    @property
    def P_Out(self) -> _N:
        """discharge pressure"""
    @property
    def M_Out(self) -> _N:
        """discharge flow rate"""
    @property
    def M_Suction(self) -> _N:
        """suction flow rate"""

class _XLThermoCompressorG(Ufunc):
    @overload
    def __call__(self, MSP: float, MST: float, SSP: float, SST: float, MSF: float, HXDuty: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLThermoCompressorGResults[float]: ...
    @overload
    def __call__(self, MSP: Any, MST: Any, SSP: Any, SST: Any, MSF: Any, HXDuty: Any, /, *, errors: Errors = ..., unit: Units) -> XLThermoCompressorGResults[Value]: ...
    @overload
    def __call__(self, MSP: ArrayLike, MST: ArrayLike, SSP: ArrayLike, SST: ArrayLike, MSF: ArrayLike, HXDuty: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLThermoCompressorGResults[Array]: ...
    @overload
    def __call__(self, MSP: Any, MST: Any, SSP: Any, SST: Any, MSF: Any, HXDuty: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLHeatExchangerAResults(Results[_N], Generic[_N]):
    @property
    def H_HOut(self) -> _N:
        """hot outlet enthalpy"""
    @property
    def D_Hx(self) -> _N:
        """heat from the hot to the cold stream"""
    @property
    def H_CIn(self) -> _N:
        """cold inlet enthalpy"""
    @property
    def H_COut(self) -> _N:
        """cold outlet enthalpy"""
    @property
    def H_HIn(self) -> _N:
        """hot inlet enthalpy"""
    @property
    def M_HOut(self) -> _N:
        """hot outlet flow rate"""

class _XLHeatExchangerA(Ufunc):
    @overload
    def __call__(self, ColdFlowIn: float, ColdPressureIn: float, ColdDP: float, ColdTempIn: float, ColdTempOut: float, ColdQualityIn: float, ColdQualityOut: float, HotPressureIn: float, HotDP: float, HotTempIn: float, HotTempOut: float, HotQualityIn: float, HotQualityOut: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLHeatExchangerAResults[float]: ...
    @overload
    def __call__(self, ColdFlowIn: Any, ColdPressureIn: Any, ColdDP: Any, ColdTempIn: Any, ColdTempOut: Any, ColdQualityIn: Any, ColdQualityOut: Any, HotPressureIn: Any, HotDP: Any, HotTempIn: Any, HotTempOut: Any, HotQualityIn: Any, HotQualityOut: Any, /, *, errors: Errors = ..., unit: Units) -> XLHeatExchangerAResults[Value]: ...
    @overload
    def __call__(self, ColdFlowIn: ArrayLike, ColdPressureIn: ArrayLike, ColdDP: ArrayLike, ColdTempIn: ArrayLike, ColdTempOut: ArrayLike, ColdQualityIn: ArrayLike, ColdQualityOut: ArrayLike, HotPressureIn: ArrayLike, HotDP: ArrayLike, HotTempIn: ArrayLike, HotTempOut: ArrayLike, HotQualityIn: ArrayLike, HotQualityOut: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLHeatExchangerAResults[Array]: ...
    @overload
    def __call__(self, ColdFlowIn: Any, ColdPressureIn: Any, ColdDP: Any, ColdTempIn: Any, ColdTempOut: Any, ColdQualityIn: Any, ColdQualityOut: Any, HotPressureIn: Any, HotDP: Any, HotTempIn: Any, HotTempOut: Any, HotQualityIn: Any, HotQualityOut: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLHeatExchangerBResults(Results[_N], Generic[_N]):
    @property
    def H_HOut(self) -> _N:
        """hot outlet enthalpy"""
    @property
    def T_COut(self) -> _N:
        """cold outlet temperature"""
    @property
    def H_CIn(self) -> _N:
        """cold inlet enthalpy"""
    @property
    def H_COut(self) -> _N:
        """cold outlet enthalpy"""
    @property
    def H_HIn(self) -> _N:
        """hot inlet enthalpy"""
    @property
    def M_HOut(self) -> _N:
        """hot outlet flow rate"""

class _XLHeatExchangerB(Ufunc):
    @overload
    def __call__(self, ColdFlowIn: float, ColdPressureIn: float, ColdDP: float, ColdTempIn: float, HXDuty: float, ColdQualityIn: float, ColdQualityOut: float, HotPressureIn: float, HotDP: float, HotTempIn: float, HotTempOut: float, HotQualityIn: float, HotQualityOut: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLHeatExchangerBResults[float]: ...
    @overload
    def __call__(self, ColdFlowIn: Any, ColdPressureIn: Any, ColdDP: Any, ColdTempIn: Any, HXDuty: Any, ColdQualityIn: Any, ColdQualityOut: Any, HotPressureIn: Any, HotDP: Any, HotTempIn: Any, HotTempOut: Any, HotQualityIn: Any, HotQualityOut: Any, /, *, errors: Errors = ..., unit: Units) -> XLHeatExchangerBResults[Value]: ...
    @overload
    def __call__(self, ColdFlowIn: ArrayLike, ColdPressureIn: ArrayLike, ColdDP: ArrayLike, ColdTempIn: ArrayLike, HXDuty: ArrayLike, ColdQualityIn: ArrayLike, ColdQualityOut: ArrayLike, HotPressureIn: ArrayLike, HotDP: ArrayLike, HotTempIn: ArrayLike, HotTempOut: ArrayLike, HotQualityIn: ArrayLike, HotQualityOut: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLHeatExchangerBResults[Array]: ...
    @overload
    def __call__(self, ColdFlowIn: Any, ColdPressureIn: Any, ColdDP: Any, ColdTempIn: Any, HXDuty: Any, ColdQualityIn: Any, ColdQualityOut: Any, HotPressureIn: Any, HotDP: Any, HotTempIn: Any, HotTempOut: Any, HotQualityIn: Any, HotQualityOut: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class QT_PHResults(Results[_N], Generic[_N]):
    @property
    def Q(self) -> _N:
        """quality"""
    @property
    def T(self) -> _N:
        """temperature"""

class _QT_PH(Ufunc):
    @overload
    def __call__(self, P: float, H: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> QT_PHResults[float]: ...
    @overload
    def __call__(self, P: Any, H: Any, /, *, errors: Errors = ..., unit: Units) -> QT_PHResults[Value]: ...
    @overload
    def __call__(self, P: ArrayLike, H: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> QT_PHResults[Array]: ...
    @overload
    def __call__(self, P: Any, H: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class HVLTSat_PQResults(Results[_N], Generic[_N]):
    @property
    def H(self) -> _N:
        """enthalpy"""
    @property
    def HVap(self) -> _N:
        """vapour enthalpy"""
    @property
    def HLiq(self) -> _N:
        """liquid enthalpy"""
    @property
    def TSat(self) -> _N:
        """saturation temperature"""

class _HVLTSat_PQ(Ufunc):
    @overload
    def __call__(self, P: float, Q: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> HVLTSat_PQResults[float]: ...
    @overload
    def __call__(self, P: Any, Q: Any, /, *, errors: Errors = ..., unit: Units) -> HVLTSat_PQResults[Value]: ...
    @overload
    def __call__(self, P: ArrayLike, Q: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> HVLTSat_PQResults[Array]: ...
    @overload
    def __call__(self, P: Any, Q: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class QTS_PHResults(Results[_N], Generic[_N]):
    @property
    def Q(self) -> _N:
        """quality"""
    @property
    def T(self) -> _N:
        """temperature"""
    @property
    def S(self) -> _N:
        """entropy"""

class _QTS_PH(Ufunc):
    @overload
    def __call__(self, P: float, H: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> QTS_PHResults[float]: ...
    @overload
    def __call__(self, P: Any, H: Any, /, *, errors: Errors = ..., unit: Units) -> QTS_PHResults[Value]: ...
    @overload
    def __call__(self, P: ArrayLike, H: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> QTS_PHResults[Array]: ...
    @overload
    def __call__(self, P: Any, H: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class DeSuperHeaterBResults(Results[_N], Generic[_N]):
    @property
    def Hs(self) -> _N:
        """enthalpy of the cooled steam"""
    @property
    def Mw(self) -> _N:
        """flow of spray water"""
    @property
    def Ms(self) -> _N:
        """inlet flow of steam"""

class _DeSuperHeaterB(Ufunc):
    @overload
    def __call__(self, HIn: float, Hw: float, POp: float, TOp: float, Mout: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> DeSuperHeaterBResults[float]: ...
    @overload
    def __call__(self, HIn: Any, Hw: Any, POp: Any, TOp: Any, Mout: Any, /, *, errors: Errors = ..., unit: Units) -> DeSuperHeaterBResults[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, Hw: ArrayLike, POp: ArrayLike, TOp: ArrayLike, Mout: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> DeSuperHeaterBResults[Array]: ...
    @overload
    def __call__(self, HIn: Any, Hw: Any, POp: Any, TOp: Any, Mout: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLDeSuperHeaterBResults(Results[_N], Generic[_N]):
    @property
    def M_Water(self) -> _N:
        """water flow rate"""
    @property
    def M_in(self) -> _N:
        """inlet flow rate"""
    @property
    def H_Out(self) -> _N:
        """outlet enthalpy"""

class _XLDeSuperHeaterB(Ufunc):
    @overload
    def __call__(self, HIn: float, Hw: float, POp: float, TOp: float, Mout: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLDeSuperHeaterBResults[float]: ...
    @overload
    def __call__(self, HIn: Any, Hw: Any, POp: Any, TOp: Any, Mout: Any, /, *, errors: Errors = ..., unit: Units) -> XLDeSuperHeaterBResults[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, Hw: ArrayLike, POp: ArrayLike, TOp: ArrayLike, Mout: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLDeSuperHeaterBResults[Array]: ...
    @overload
    def __call__(self, HIn: Any, Hw: Any, POp: Any, TOp: Any, Mout: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class TurbineEResults(Results[_N], Generic[_N]):
    @property
    def Power(self) -> _N:
        """shaft power"""
    @property
    def TOut(self) -> _N:
        """outlet temperature"""
    @property
    def HOut(self) -> _N:
        """outlet enthalpy"""
    @property
    def QOut(self) -> _N:
        """outlet quality"""
    @property
    def SOut(self) -> _N:
        """outlet entropy"""

class _TurbineE(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut: float, Eff: float, MIn: float, SIn: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> TurbineEResults[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, Eff: Any, MIn: Any, SIn: Any, /, *, errors: Errors = ..., unit: Units) -> TurbineEResults[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut: ArrayLike, Eff: ArrayLike, MIn: ArrayLike, SIn: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> TurbineEResults[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, Eff: Any, MIn: Any, SIn: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLTurbineEResults(Results[_N], Generic[_N]):
    @property
    def Pow(self) -> _N:
        """turbine power"""
    @property
    def S_Out(self) -> _N:
        """outlet entropy"""
    @property
    def T_Out(self) -> _N:
        """outlet temperature"""
    @property
    def H_Out(self) -> _N:
        """outlet enthalpy"""
    @property
    def Q_Out(self) -> _N:
        """outlet quality"""

class _XLTurbineE(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut: float, Eff: float, MIn: float, SIn: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLTurbineEResults[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, Eff: Any, MIn: Any, SIn: Any, /, *, errors: Errors = ..., unit: Units) -> XLTurbineEResults[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut: ArrayLike, Eff: ArrayLike, MIn: ArrayLike, SIn: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLTurbineEResults[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, Eff: Any, MIn: Any, SIn: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class _of_a_b_c_d_e_f_T1(Ufunc):
    @overload
    def __call__(self, a: float, b: float, c: float, d: float, e: float, f: float, T1: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> float: ...
    @overload
    def __call__(self, a: Any, b: Any, c: Any, d: Any, e: Any, f: Any, T1: Any, /, *, errors: Errors = ..., unit: Units) -> Value: ...
    @overload
    def __call__(self, a: ArrayLike, b: ArrayLike, c: ArrayLike, d: ArrayLike, e: ArrayLike, f: ArrayLike, T1: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> Array: ...
    @overload
    def __call__(self, a: Any, b: Any, c: Any, d: Any, e: Any, f: Any, T1: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class WaterPumpResults(Results[_N], Generic[_N]):
    @property
    def HOut(self) -> _N:
        """outlet enthalpy"""
    @property
    def Power(self) -> _N:
        """shaft power"""

class _WaterPump(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut: float, m: float, Eff: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> WaterPumpResults[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, m: Any, Eff: Any, /, *, errors: Errors = ..., unit: Units) -> WaterPumpResults[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut: ArrayLike, m: ArrayLike, Eff: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> WaterPumpResults[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, m: Any, Eff: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLWaterPumpResults(Results[_N], Generic[_N]):
    @property
    def Pow(self) -> _N:
        """power"""
    @property
    def H_Out(self) -> _N:
        """outlet enthalpy"""

class _XLWaterPump(Ufunc):
    @overload
    def __call__(self, HIn: float, PIn: float, POut: float, m: float, Eff: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLWaterPumpResults[float]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, m: Any, Eff: Any, /, *, errors: Errors = ..., unit: Units) -> XLWaterPumpResults[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, PIn: ArrayLike, POut: ArrayLike, m: ArrayLike, Eff: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLWaterPumpResults[Array]: ...
    @overload
    def __call__(self, HIn: Any, PIn: Any, POut: Any, m: Any, Eff: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLThermoCompAResults(Results[_N], Generic[_N]):
    @property
    def PerfF(self) -> _N:
        """performance factor"""
    @property
    def H_Out(self) -> _N:
        """discharge enthalpy"""
    @property
    def E_Ratio(self) -> _N:
        """expansion ratio"""
    @property
    def C_Ratio(self) -> _N:
        """compression ratio"""

class _XLThermoCompA(Ufunc):
    @overload
    def __call__(self, Hms: float, pMs: float, Hss: float, Pss: float, Pds: float, Rs: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLThermoCompAResults[float]: ...
    @overload
    def __call__(self, Hms: Any, pMs: Any, Hss: Any, Pss: Any, Pds: Any, Rs: Any, /, *, errors: Errors = ..., unit: Units) -> XLThermoCompAResults[Value]: ...
    @overload
    def __call__(self, Hms: ArrayLike, pMs: ArrayLike, Hss: ArrayLike, Pss: ArrayLike, Pds: ArrayLike, Rs: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLThermoCompAResults[Array]: ...
    @overload
    def __call__(self, Hms: Any, pMs: Any, Hss: Any, Pss: Any, Pds: Any, Rs: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLThermoCompBResults(Results[_N], Generic[_N]):
    @property
    def Rs_Out(self) -> _N:
        """motive/suction steam ratio"""
    @property
    def H_Out(self) -> _N:
        """discharge enthalpy"""
    @property
    def E_Ratio(self) -> _N:
        """expansion ratio"""
    @property
    def C_Ratio(self) -> _N:
        """compression ratio"""

class _XLThermoCompB(Ufunc):
    @overload
    def __call__(self, Hms: float, pMs: float, Hss: float, Pss: float, Pds: float, PF: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLThermoCompBResults[float]: ...
    @overload
    def __call__(self, Hms: Any, pMs: Any, Hss: Any, Pss: Any, Pds: Any, PF: Any, /, *, errors: Errors = ..., unit: Units) -> XLThermoCompBResults[Value]: ...
    @overload
    def __call__(self, Hms: ArrayLike, pMs: ArrayLike, Hss: ArrayLike, Pss: ArrayLike, Pds: ArrayLike, PF: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLThermoCompBResults[Array]: ...
    @overload
    def __call__(self, Hms: Any, pMs: Any, Hss: Any, Pss: Any, Pds: Any, PF: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class Boiler_BResults(Results[_N], Generic[_N]):
    @property
    def MBd(self) -> _N:
        """flow of blowdown"""
    @property
    def Duty(self) -> _N:
        """heat taken up"""
    @property
    def HOut(self) -> _N:
        """enthalpy of the steam"""
    @property
    def HBd(self) -> _N:
        """enthalpy of the blowdown"""
    @property
    def MIn(self) -> _N:
        """flow of feed water"""
    @property
    def QFired(self) -> _N:
        """heat of the fuel"""

class _Boiler_B(Ufunc):
    @overload
    def __call__(self, HIn: float, Mout: float, TOut: float, POut: float, BRatio: float, Eff: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> Boiler_BResults[float]: ...
    @overload
    def __call__(self, HIn: Any, Mout: Any, TOut: Any, POut: Any, BRatio: Any, Eff: Any, /, *, errors: Errors = ..., unit: Units) -> Boiler_BResults[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, Mout: ArrayLike, TOut: ArrayLike, POut: ArrayLike, BRatio: ArrayLike, Eff: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> Boiler_BResults[Array]: ...
    @overload
    def __call__(self, HIn: Any, Mout: Any, TOut: Any, POut: Any, BRatio: Any, Eff: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class XLBoiler_BResults(Results[_N], Generic[_N]):
    @property
    def Q_Fired(self) -> _N:
        """fired duty"""
    @property
    def M_In(self) -> _N:
        """inlet flow rate"""
    @property
    def M_Bd(self) -> _N:
        """blowdown flow rate"""
    @property
    def H_Out(self) -> _N:
        """outlet enthalpy"""
    @property
    def Q_Abs(self) -> _N:
        """absorbed duty"""
    @property
    def H_delta(self) -> _N:
        """absorbed duty"""
    @property
    def H_Bd(self) -> _N:
        """blowdown enthalpy"""

class _XLBoiler_B(Ufunc):
    @overload
    def __call__(self, HIn: float, Mout: float, TOut: float, POut: float, BRatio: float, Eff: float, /, *, errors: Errors = ..., unit: Literal[False] = ...) -> XLBoiler_BResults[float]: ...
    @overload
    def __call__(self, HIn: Any, Mout: Any, TOut: Any, POut: Any, BRatio: Any, Eff: Any, /, *, errors: Errors = ..., unit: Units) -> XLBoiler_BResults[Value]: ...
    @overload
    def __call__(self, HIn: ArrayLike, Mout: ArrayLike, TOut: ArrayLike, POut: ArrayLike, BRatio: ArrayLike, Eff: ArrayLike, /, out: Any = ..., *, where: ArrayLike = ..., errors: Errors = ..., unit: Literal[False] = ...) -> XLBoiler_BResults[Array]: ...
    @overload
    def __call__(self, HIn: Any, Mout: Any, TOut: Any, POut: Any, BRatio: Any, Eff: Any, /, out: Any = ..., *, where: Any = ..., errors: Errors = ..., unit: Units | bool = ...) -> Any: ...

class Members:
    """What every engine has."""
    SolverTol: float
    SolverIter: int
    TraceLevel: int
    SatPolish: int
    FunctionCallTracing: int
    MaxTraceSize: int
    @property
    def LastError(self) -> str: ...
    @property
    def VersionStr(self) -> str: ...
    def MolWeight(self) -> float: ...
    def CritT(self) -> float: ...
    def CritP(self) -> float: ...
    def CritV(self) -> float: ...
    def CritR(self) -> float: ...
    def CritZ(self) -> float: ...
    def TripleT(self) -> float: ...
    def TripleP(self) -> float: ...
    def ShowTraceDlg(self) -> int: ...
    def ShowSelectUomDlg(self) -> int: ...
    def ShowOptionsDlg(self) -> int: ...
    def ClearTraceInfo(self) -> None: ...
    def AddCustomTraceTitle(self, strTitle: str, /) -> None: ...
    def SetCustomTraceText(self, nIndex: int, strText: str, /) -> None: ...
    def GetCustomTraceText(self, nIndex: int, /) -> str: ...
    def AddExternalError(self, strName: str, strText: str, /) -> None: ...
    def SetUserUnit(self, groupStr: str, newVal: str, /) -> None: ...
    def GetUserUnit(self, groupStr: str, /) -> str: ...
    def SetUserUnitIndex(self, nGroupID: int, newVal: str, /) -> None: ...
    def GetUserUnitIndex(self, nGroupID: int, /) -> str: ...
    def Convert(self, strGroup: str, strFromUnit: str, strToUnit: str, dblFromVal: float, /) -> float: ...
    PSatT: _of_T
    TSatP: _of_P
    HSatTQ: _of_T_Q
    HSatPQ: _of_P_Q
    SSatTQ: _of_T_Q
    SSatPQ: _of_P_Q
    USatTQ: _of_T_Q
    USatPQ: _of_P_Q
    RSatTQ: _of_T_Q
    RSatPQ: _of_P_Q
    PTH: _of_T_H
    PTS: _of_T_S
    PTU: _of_T_U
    PTR: _of_T_R
    PTV: _of_T_V
    TPH: _of_P_H
    TPS: _of_P_S
    TPU: _of_P_U
    TPR: _of_P_R
    TPV: _of_P_V
    HPT: _of_P_T
    HPTQ: _of_P_T_Q
    HPS: _of_P_S
    HPU: _of_P_U
    HPR: _of_P_R
    HPV: _of_P_V
    HTS: _of_T_S
    HTU: _of_T_U
    HTR: _of_T_R
    HTV: _of_T_V
    SPT: _of_P_T
    SPH: _of_P_H
    SPU: _of_P_U
    SPR: _of_P_R
    SPV: _of_P_V
    STH: _of_T_H
    STU: _of_T_U
    STR: _of_T_R
    STV: _of_T_V
    UPT: _of_P_T
    UPH: _of_P_H
    UPS: _of_P_S
    UPR: _of_P_R
    UPV: _of_P_V
    UTH: _of_T_H
    UTS: _of_T_S
    UTR: _of_T_R
    UTV: _of_T_V
    RPT: _of_P_T
    RPH: _of_P_H
    RPS: _of_P_S
    RPU: _of_P_U
    RTH: _of_T_H
    RTS: _of_T_S
    RTU: _of_T_U
    VPT: _of_P_T
    VPH: _of_P_H
    VPS: _of_P_S
    VPU: _of_P_U
    VTH: _of_T_H
    VTS: _of_T_S
    VTU: _of_T_U
    QPH: _of_P_H
    QPS: _of_P_S
    QPU: _of_P_U
    QPR: _of_P_R
    QPV: _of_P_V
    QTH: _of_T_H
    QTS: _of_T_S
    QTU: _of_T_U
    QTR: _of_T_R
    QTV: _of_T_V
    APT: _of_P_T
    APH: _of_P_H
    APS: _of_P_S
    APU: _of_P_U
    APR: _of_P_R
    APV: _of_P_V
    ATH: _of_T_H
    ATS: _of_T_S
    ATU: _of_T_U
    ATR: _of_T_R
    ATV: _of_T_V
    GPT: _of_P_T
    GPH: _of_P_H
    GPS: _of_P_S
    GPU: _of_P_U
    GPR: _of_P_R
    GPV: _of_P_V
    GTH: _of_T_H
    GTS: _of_T_S
    GTU: _of_T_U
    GTR: _of_T_R
    GTV: _of_T_V
    MPT: _of_P_T
    KPT: _of_P_T
    CPT: _of_P_T
    DPT: _of_P_T
    ZPT: _of_P_T
    WPT: _of_P_T
    NPT: _of_P_T
    EPT: _of_P_T
    IPT: _of_P_T
    JPT: _of_P_T
    BPT: _of_P_T
    LPT: _of_P_T
    XT: _of_T
    TurbineA: _TurbineA
    TurbineB: _TurbineB
    TurbineA2: _TurbineA2
    TurbineB2: _TurbineB2
    TurbineA3: _TurbineA3
    TurbineB3: _TurbineB3
    CompressorA: _CompressorA
    CompressorB: _CompressorB
    CompressorA2: _CompressorA2
    CompressorB2: _CompressorB2
    DeAerator: _DeAerator
    DeSuperHeater: _DeSuperHeater
    LetDownValve: _LetDownValve
    Boiler: _Boiler
    FlashVessel: _FlashVessel
    def SetupExcelTracing(self) -> None: ...
    def SetCellRef(self, strBook: str, strSheet: str, strCell: str, /) -> None: ...
    def GetCellRef(self) -> str: ...
    XLTurbineA: _XLTurbineA
    ReturnModelUnits: int
    ReturnThermoUnits: int
    XLTurbineB: _XLTurbineB
    XLTurbineA2: _XLTurbineA2
    XLTurbineB2: _XLTurbineB2
    XLTurbineA3: _XLTurbineA3
    XLTurbineB3: _XLTurbineB3
    XLCompressorA: _XLCompressorA
    XLCompressorB: _XLCompressorB
    XLCompressorA2: _XLCompressorA2
    XLCompressorB2: _XLCompressorB2
    XLDeAerator: _XLDeAerator
    XLDeSuperHeater: _XLDeSuperHeater
    XLLetDownValve: _XLLetDownValve
    XLBoiler: _XLBoiler
    XLFlashVessel: _XLFlashVessel
    XLGasTurbineA: _XLGasTurbineA
    XLThermoCompressorA: _XLThermoCompressorA
    XLThermoCompressorB: _XLThermoCompressorB
    XLThermoCompressorC: _XLThermoCompressorC
    XLThermoCompressorD: _XLThermoCompressorD
    XLThermoCompressorE: _XLThermoCompressorE
    XLThermoCompressorF: _XLThermoCompressorF
    XLThermoCompressorG: _XLThermoCompressorG
    AppLevel: int
    XLHeatExchangerA: _XLHeatExchangerA
    XLHeatExchangerB: _XLHeatExchangerB
    ReturnModelTokens: int
    def GetAlarms(self) -> list[list[str | float]]: ...
    AppName: str
    AppHelpFile: str
    @property
    def hWnd(self) -> int: ...
    UomHelpContext: int
    QT_PH: _QT_PH
    HVLTSat_PQ: _HVLTSat_PQ
    QTS_PH: _QTS_PH
    DeSuperHeaterB: _DeSuperHeaterB
    XLDeSuperHeaterB: _XLDeSuperHeaterB
    TurbineE: _TurbineE
    XLTurbineE: _XLTurbineE
    def SetCustomUserUnitIndex(self, nGroupID: int, newVal: str, CFactor: float, COffset: float, /) -> None: ...
    SolvePoly5: _of_a_b_c_d_e_f_T1
    WaterPump: _WaterPump
    XLWaterPump: _XLWaterPump
    XLThermoCompA: _XLThermoCompA
    XLThermoCompB: _XLThermoCompB
    Boiler_B: _Boiler_B
    XLBoiler_B: _XLBoiler_B
    VSatTQ: _of_T_Q
    VSatPQ: _of_P_Q
    GasTurbineA: _XLGasTurbineA
    ThermoCompressorA: _XLThermoCompressorA
    ThermoCompressorB: _XLThermoCompressorB
    ThermoCompressorC: _XLThermoCompressorC
    ThermoCompressorD: _XLThermoCompressorD
    ThermoCompressorE: _XLThermoCompressorE
    ThermoCompressorF: _XLThermoCompressorF
    ThermoCompressorG: _XLThermoCompressorG
    HeatExchangerA: _XLHeatExchangerA
    HeatExchangerB: _XLHeatExchangerB
    ThermoCompA: _XLThermoCompA
    ThermoCompB: _XLThermoCompB

def MolWeight() -> float: ...
def CritT() -> float: ...
def CritP() -> float: ...
def CritV() -> float: ...
def CritR() -> float: ...
def CritZ() -> float: ...
def TripleT() -> float: ...
def TripleP() -> float: ...
def ShowTraceDlg() -> int: ...
def ShowSelectUomDlg() -> int: ...
def ShowOptionsDlg() -> int: ...
def ClearTraceInfo() -> None: ...
def AddCustomTraceTitle(strTitle: str, /) -> None: ...
def SetCustomTraceText(nIndex: int, strText: str, /) -> None: ...
def GetCustomTraceText(nIndex: int, /) -> str: ...
def AddExternalError(strName: str, strText: str, /) -> None: ...
def SetUserUnit(groupStr: str, newVal: str, /) -> None: ...
def GetUserUnit(groupStr: str, /) -> str: ...
def SetUserUnitIndex(nGroupID: int, newVal: str, /) -> None: ...
def GetUserUnitIndex(nGroupID: int, /) -> str: ...
def Convert(strGroup: str, strFromUnit: str, strToUnit: str, dblFromVal: float, /) -> float: ...
PSatT: _of_T
TSatP: _of_P
HSatTQ: _of_T_Q
HSatPQ: _of_P_Q
SSatTQ: _of_T_Q
SSatPQ: _of_P_Q
USatTQ: _of_T_Q
USatPQ: _of_P_Q
RSatTQ: _of_T_Q
RSatPQ: _of_P_Q
PTH: _of_T_H
PTS: _of_T_S
PTU: _of_T_U
PTR: _of_T_R
PTV: _of_T_V
TPH: _of_P_H
TPS: _of_P_S
TPU: _of_P_U
TPR: _of_P_R
TPV: _of_P_V
HPT: _of_P_T
HPTQ: _of_P_T_Q
HPS: _of_P_S
HPU: _of_P_U
HPR: _of_P_R
HPV: _of_P_V
HTS: _of_T_S
HTU: _of_T_U
HTR: _of_T_R
HTV: _of_T_V
SPT: _of_P_T
SPH: _of_P_H
SPU: _of_P_U
SPR: _of_P_R
SPV: _of_P_V
STH: _of_T_H
STU: _of_T_U
STR: _of_T_R
STV: _of_T_V
UPT: _of_P_T
UPH: _of_P_H
UPS: _of_P_S
UPR: _of_P_R
UPV: _of_P_V
UTH: _of_T_H
UTS: _of_T_S
UTR: _of_T_R
UTV: _of_T_V
RPT: _of_P_T
RPH: _of_P_H
RPS: _of_P_S
RPU: _of_P_U
RTH: _of_T_H
RTS: _of_T_S
RTU: _of_T_U
VPT: _of_P_T
VPH: _of_P_H
VPS: _of_P_S
VPU: _of_P_U
VTH: _of_T_H
VTS: _of_T_S
VTU: _of_T_U
QPH: _of_P_H
QPS: _of_P_S
QPU: _of_P_U
QPR: _of_P_R
QPV: _of_P_V
QTH: _of_T_H
QTS: _of_T_S
QTU: _of_T_U
QTR: _of_T_R
QTV: _of_T_V
APT: _of_P_T
APH: _of_P_H
APS: _of_P_S
APU: _of_P_U
APR: _of_P_R
APV: _of_P_V
ATH: _of_T_H
ATS: _of_T_S
ATU: _of_T_U
ATR: _of_T_R
ATV: _of_T_V
GPT: _of_P_T
GPH: _of_P_H
GPS: _of_P_S
GPU: _of_P_U
GPR: _of_P_R
GPV: _of_P_V
GTH: _of_T_H
GTS: _of_T_S
GTU: _of_T_U
GTR: _of_T_R
GTV: _of_T_V
MPT: _of_P_T
KPT: _of_P_T
CPT: _of_P_T
DPT: _of_P_T
ZPT: _of_P_T
WPT: _of_P_T
NPT: _of_P_T
EPT: _of_P_T
IPT: _of_P_T
JPT: _of_P_T
BPT: _of_P_T
LPT: _of_P_T
XT: _of_T
TurbineA: _TurbineA
TurbineB: _TurbineB
TurbineA2: _TurbineA2
TurbineB2: _TurbineB2
TurbineA3: _TurbineA3
TurbineB3: _TurbineB3
CompressorA: _CompressorA
CompressorB: _CompressorB
CompressorA2: _CompressorA2
CompressorB2: _CompressorB2
DeAerator: _DeAerator
DeSuperHeater: _DeSuperHeater
LetDownValve: _LetDownValve
Boiler: _Boiler
FlashVessel: _FlashVessel
def SetupExcelTracing() -> None: ...
def SetCellRef(strBook: str, strSheet: str, strCell: str, /) -> None: ...
def GetCellRef() -> str: ...
XLTurbineA: _XLTurbineA
XLTurbineB: _XLTurbineB
XLTurbineA2: _XLTurbineA2
XLTurbineB2: _XLTurbineB2
XLTurbineA3: _XLTurbineA3
XLTurbineB3: _XLTurbineB3
XLCompressorA: _XLCompressorA
XLCompressorB: _XLCompressorB
XLCompressorA2: _XLCompressorA2
XLCompressorB2: _XLCompressorB2
XLDeAerator: _XLDeAerator
XLDeSuperHeater: _XLDeSuperHeater
XLLetDownValve: _XLLetDownValve
XLBoiler: _XLBoiler
XLFlashVessel: _XLFlashVessel
XLGasTurbineA: _XLGasTurbineA
XLThermoCompressorA: _XLThermoCompressorA
XLThermoCompressorB: _XLThermoCompressorB
XLThermoCompressorC: _XLThermoCompressorC
XLThermoCompressorD: _XLThermoCompressorD
XLThermoCompressorE: _XLThermoCompressorE
XLThermoCompressorF: _XLThermoCompressorF
XLThermoCompressorG: _XLThermoCompressorG
XLHeatExchangerA: _XLHeatExchangerA
XLHeatExchangerB: _XLHeatExchangerB
def GetAlarms() -> list[list[str | float]]: ...
QT_PH: _QT_PH
HVLTSat_PQ: _HVLTSat_PQ
QTS_PH: _QTS_PH
DeSuperHeaterB: _DeSuperHeaterB
XLDeSuperHeaterB: _XLDeSuperHeaterB
TurbineE: _TurbineE
XLTurbineE: _XLTurbineE
def SetCustomUserUnitIndex(nGroupID: int, newVal: str, CFactor: float, COffset: float, /) -> None: ...
SolvePoly5: _of_a_b_c_d_e_f_T1
WaterPump: _WaterPump
XLWaterPump: _XLWaterPump
XLThermoCompA: _XLThermoCompA
XLThermoCompB: _XLThermoCompB
Boiler_B: _Boiler_B
XLBoiler_B: _XLBoiler_B
VSatTQ: _of_T_Q
VSatPQ: _of_P_Q
GasTurbineA: _XLGasTurbineA
ThermoCompressorA: _XLThermoCompressorA
ThermoCompressorB: _XLThermoCompressorB
ThermoCompressorC: _XLThermoCompressorC
ThermoCompressorD: _XLThermoCompressorD
ThermoCompressorE: _XLThermoCompressorE
ThermoCompressorF: _XLThermoCompressorF
ThermoCompressorG: _XLThermoCompressorG
HeatExchangerA: _XLHeatExchangerA
HeatExchangerB: _XLHeatExchangerB
ThermoCompA: _XLThermoCompA
ThermoCompB: _XLThermoCompB
