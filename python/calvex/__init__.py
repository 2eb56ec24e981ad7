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

# Where each name is. Nothing is imported, and NumPy not before it is needed, until a name is asked
# for.
_PLACES = {
    "CalvexError": "._calvex", "CalvexWarning": "._calvex",
    "Engine": "._engine", "default": "._engine",
    "members": "._members",
    "State": "._state",
    "Value": "._value", "convert": ".units",
    "plot": ".plot", "units": ".units",
}
# What the engine of the module's own functions answers, besides its members.
_OF_DEFAULT = ("reasons", "state", "trace", "unit")

__all__ = ["__version__", *_PLACES, *_OF_DEFAULT]


def __getattr__(name):
    if name in ("plot", "units"):
        return importlib.import_module("." + name, __name__)
    if name in _PLACES:
        value = getattr(importlib.import_module(_PLACES[name], __name__), name)
    elif name == "__version__":
        from ._calvex import version as value
    elif name in _OF_DEFAULT:
        from ._engine import default
        value = getattr(default, name)
    elif name.startswith("_"):
        raise AttributeError(f"module 'calvex' has no attribute {name!r}")
    else:
        from ._engine import default
        from ._members import members
        kind = members.kinds.get(name)
        if kind in ("setting", "reading"):
            raise AttributeError(f"{name} is a setting of an engine: calvex.default.{name}")
        if kind is None:
            raise AttributeError(f"module 'calvex' has no attribute {name!r}{members.near(name)}",
                                 name=name, obj=None)
        value = getattr(default, name)
    globals()[name] = value
    return value


def __dir__():
    from ._members import members
    return sorted({*globals(), *__all__,
                   *(name for name, kind in members.kinds.items() if kind in ("ufunc", "method"))})
