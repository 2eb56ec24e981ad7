"""Properties of water and steam, and the equipment of steam systems, in any unit of measure.

    import calvex
    calvex.HPT(10, 773.15)                        # 3373.998..., model units: MPa, K, kJ/kg
    steam = calvex.Engine(T="°C", P="bar")
    steam.HPT(100, [480, 500, 520])               # array in, array out
    steam.state(P=100, T=500).w                   # any pair; everything about a state

The letters of a member say what it does: result first, then what it is given. `calvex.members()`
lists them, `help(calvex.Engine)` tells about engines, `calvex.plot` draws.
"""
import importlib

from ._calvex import CalvexError, CalvexWarning, version as __version__
from ._engine import Engine, members
from .units import Value, convert

__all__ = ["CalvexError", "CalvexWarning", "Engine", "Value", "convert", "default", "members",
           "plot", "reasons", "state", "trace", "units", "__version__"]

#: The engine of the module's own functions: model units.
default = Engine()


def state(*, errors=None, **pair):
    """A state from any pair of properties in model units; see Engine.state."""
    return default.state(errors=errors, **pair)


def trace():
    """The trace of the module's own functions; see Engine.trace."""
    return default.trace()


def reasons():
    """Why elements of the last array failed; see Engine.reasons."""
    return default.reasons()


def __getattr__(name):
    # Members are made when they are first asked for, and only once.
    if name == "plot":
        return importlib.import_module(".plot", __name__)
    if not name.startswith("_"):
        kind = members.kinds.get(name)
        if kind in ("ufunc", "method"):
            value = getattr(default, name)
            globals()[name] = value
            return value
        if kind is not None:
            raise AttributeError(f"{name} is a setting of an engine: calvex.default.{name}")
    raise AttributeError(f"module 'calvex' has no attribute {name!r}{members.near(name)}")


def __dir__():
    return sorted({*globals(), *__all__, *(n for n, k in members.kinds.items()
                                           if k in ("ufunc", "method"))})
