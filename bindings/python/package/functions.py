# SPDX-License-Identifier: MIT
"""Every exported function by its name, on arrays:

    y, u, v = zorcc.functions.zoriRGBToYCbCr420_8u_C3P3R(rgb)

An image is an array (height, width, samples), or a tuple of planes; the module zorcc says which shapes are understood.
The size is that of the image, or `size=(width, height)`. The result goes to new arrays or to `out`; functions in place
take one image and give it. Arguments beside images are keywords. What a function leaves alone in new arrays is 0, and
alpha opaque. A status that is a warning is a `zorcc.StatusWarning`, one that is an error a `zorcc.Error`.
"""
from __future__ import annotations

import inspect
from typing import Any, Callable, List

from . import _zorcc
from ._headers import FAMILIES, FUNCTIONS

_ROWS = {row.name: row for row in _zorcc.functions()}
__all__ = list(_ROWS)


def _signature(row: Any) -> inspect.Signature:
    def keyword(name: str, default: Any) -> inspect.Parameter:
        return inspect.Parameter(name, inspect.Parameter.KEYWORD_ONLY,
                                 default=inspect.Parameter.empty if default is ... else default)

    image = inspect.Parameter("image" if row.in_place else "source", inspect.Parameter.POSITIONAL_ONLY)
    out = [] if row.in_place else [keyword("out", None)]
    arguments = [keyword(name, default) for name, default in row.arguments]
    return inspect.Signature([image, *out, keyword("size", None), *arguments])


def _documentation(name: str) -> str:
    prototype, comment, family = FUNCTIONS[name]
    return "\n\n".join(filter(None, (prototype, comment, FAMILIES[family])))


def _make(row: Any) -> Callable[..., Any]:
    run = row.run
    if row.in_place:
        def function(image: Any, /, *, size: Any = None, **arguments: Any) -> Any:
            return run(image, None, size, arguments)
    else:
        def function(source: Any, /, *, out: Any = None, size: Any = None, **arguments: Any) -> Any:
            return run(source, out, size, arguments)
    function.__name__ = function.__qualname__ = row.name
    function.__doc__ = _documentation(row.name)
    function.__signature__ = _signature(row)  # type: ignore[attr-defined]
    return function


def __getattr__(name: str) -> Callable[..., Any]:
    """Functions are made when they are asked for."""
    if name not in _ROWS:
        raise AttributeError(f"module {__name__} has no function {name}")
    made = globals()[name] = _make(_ROWS[name])
    return made


def __dir__() -> List[str]:
    return __all__
