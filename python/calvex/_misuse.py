"""What is wrong with a call that NumPy refused, in words that name the member's inputs."""
import inspect

import numpy as np

from ._members import call_text, input_names, signature

# The words of every ufunc, besides those of a member's signature.
_OF_NUMPY = {"axes", "axis", "casting", "dtype", "extobj", "keepdims", "order", "sig", "signature",
             "subok"}


def misuse(binding, ufunc, arguments, words):
    """The message, or None where NumPy's own says it all."""
    name = binding.name
    return (_wrong_words(name, words) or _wrong_count(name, ufunc, arguments)
            or _wrong_kinds(name, arguments) or _wrong_shapes(name, ufunc, arguments, words))


def wrong_count(name, given):
    """"HPT(P, T) takes 2 arguments, 1 was given: T is missing"."""
    names = input_names(name)
    text = (f"{call_text(name)} takes {len(names)} argument{'s' * (len(names) != 1)}, "
            f"{given} {'was' if given == 1 else 'were'} given")
    missing = names[given:]
    if missing:
        text += f": {' and '.join(missing)} {'is' if len(missing) == 1 else 'are'} missing"
    return text


def _wrong_words(name, words):
    known = {p.name for p in signature(name).parameters.values()
             if p.kind != inspect.Parameter.POSITIONAL_ONLY}
    wrong = [word for word in words if word not in known | _OF_NUMPY]
    if any(word in input_names(name) for word in wrong):
        return f"{call_text(name)} takes its inputs by their place, without their names"
    if wrong:
        return (f"{call_text(name)} has no word {wrong[0]!r}; it has " + ", ".join(sorted(known)))
    return None


def _wrong_count(name, ufunc, arguments):
    outputs = arguments[ufunc.nin:]
    if len(arguments) < ufunc.nin or len(outputs) > ufunc.nout or not all(
            output is None or hasattr(output, "__array_wrap__") or hasattr(output, "__array_ufunc__")
            for output in outputs):
        return wrong_count(name, len(arguments))
    return None


def _wrong_kinds(name, arguments):
    for word, argument in zip(input_names(name), arguments):
        if hasattr(argument, "magnitude") or hasattr(argument, "compute"):
            continue  # pint's and dask's have words of their own
        wanted = f"{call_text(name)}: {word} is to be a number or an array of numbers"
        if argument is None or isinstance(argument, (str, bytes, complex, dict, set)):
            return f"{wanted}, not {argument!r}"
        try:
            array = np.asarray(argument)
        except ValueError:
            return f"{wanted}; its rows have different lengths"
        if array.dtype.kind in "biuf":
            continue
        if array.ndim == 0:
            return f"{wanted}, not {argument!r}"
        for place in np.ndindex(array.shape):
            if not isinstance(array[place], (int, float, np.number)) or np.iscomplexobj(array[place]):
                hint = "; nan stands for a missing one" if array[place] is None else ""
                return f"{wanted}; at {list(place)} it has {array[place]!r}{hint}"
        return f"{wanted}; it is one of {array.dtype}: .astype(float) makes it one"
    return None


def _wrong_shapes(name, ufunc, arguments, words):
    shapes = {word: np.shape(argument) for word, argument in zip(input_names(name), arguments)}
    if "where" in words:
        shapes["where"] = np.shape(words["where"])
    try:
        result = np.broadcast_shapes(*shapes.values())
    except ValueError:
        return (f"{call_text(name)}: arrays of these shapes do not go together: "
                + ", ".join(f"{word} {shape}" for word, shape in shapes.items() if shape))
    out = words.get("out", arguments[ufunc.nin:])
    for target in out if isinstance(out, tuple) else (out,):
        if isinstance(target, (list, int, float, str)):
            return f"{call_text(name)}: out is an array that takes the result, not {target!r}"
        if target is not None and np.shape(target) != result:
            return f"{call_text(name)}: out has shape {np.shape(target)}, the result {result}"
    return None
