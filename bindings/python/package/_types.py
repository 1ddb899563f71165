# SPDX-License-Identifier: MIT
"""Types of arguments."""
from __future__ import annotations

from typing import Any, Protocol, Sequence, Tuple, Union

import numpy.typing as npt


class SupportsDLPack(Protocol):
    """Arrays of other libraries, in this machine's memory."""

    def __dlpack__(self, *, stream: Any = ...) -> Any: ...


Array = Union[npt.ArrayLike, SupportsDLPack]
Picture = Union[Array, Sequence[Array]]  # an array, or the planes
Result = Any  # an array, or a tuple of planes
Size = Tuple[int, int]  # width and height
