# SPDX-License-Identifier: MIT
"""PNG for notebooks."""
from __future__ import annotations

import struct
import zlib
from typing import Any

import numpy.typing as npt

_COLOUR_TYPES = {1: 0, 3: 2, 4: 6}  # by channels


def encode(pixels: npt.NDArray[Any]) -> bytes:
    """The PNG file of an array of bytes, (height, width) or (height, width, 3 or 4)."""
    def chunk(kind: bytes, data: bytes) -> bytes:
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    height, width = pixels.shape[:2]
    colour_type = _COLOUR_TYPES[pixels.shape[2] if pixels.ndim == 3 else 1]
    rows = b"".join(b"\0" + row.tobytes() for row in pixels)  # without a filter
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, colour_type, 0, 0, 0)) +
            chunk(b"IDAT", zlib.compress(rows, 1)) + chunk(b"IEND", b""))


class Shown:
    """What a notebook displays: `pixels` are grey, RGB or RGBA in bytes."""

    def __init__(self, pixels: npt.NDArray[Any]):
        self.pixels = pixels

    def _repr_png_(self) -> bytes:
        return encode(self.pixels)

    def __repr__(self) -> str:
        return f"<zorcc.Shown {self.pixels.shape[1]}x{self.pixels.shape[0]}>"
