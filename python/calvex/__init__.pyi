from typing import Any

import numpy as np
from numpy.typing import NDArray

from . import plot as plot, units as units
from ._table import *  # noqa: F403  (the members)
from ._table import Errors, Members
from ._value import Value as Value
from .units import convert as convert

__version__: str

class CalvexError(ValueError):
    """A call failed."""
    reason: str
    cause: str
    member: str

class CalvexWarning(UserWarning):
    """Elements of an array failed and are NaN."""

class Trace:
    """The record of scalar calls that left messages."""
    nodes: list[tuple[int, str, str]]
    def __len__(self) -> int: ...
    def _repr_html_(self) -> str: ...

class State:
    """A state of water, or an array of them; numbers are arrays where the state is one."""
    shape: tuple[int, ...]
    phase: Any
    P: Any
    T: Any
    h: Any
    s: Any
    u: Any
    rho: Any
    v: Any
    x: Any
    a: Any
    g: Any
    cp: Any
    cv: Any
    w: Any
    mu: Any
    k: Any
    Pr: Any
    Z: Any
    epsilon: Any
    delta_T: Any
    mu_JT: Any
    beta: Any
    kappa: Any
    def unit(self, name: str) -> str: ...
    def value(self, name: str) -> Value: ...
    def reasons(self) -> Any: ...

class Engine(Members):
    """Every member of the table, in one's own units."""
    def __init__(self, *, errors: Errors = ..., units: dict[str, str] | None = ...,
                 **words: str) -> None: ...
    errors: Errors
    def state(self, *, errors: Errors = ..., **pair: Any) -> State: ...
    def trace(self) -> Trace: ...
    def reasons(self) -> NDArray[np.object_]: ...
    def unit(self, what: str) -> Any: ...

class _Finder:
    rows: dict[str, Any]
    kinds: dict[str, str]
    def __call__(self, *words: str) -> list[str]: ...

default: Engine
members: _Finder
def state(*, errors: Errors = ..., **pair: Any) -> State: ...
def trace() -> Trace: ...
def reasons() -> NDArray[np.object_]: ...
def unit(what: str) -> Any: ...
