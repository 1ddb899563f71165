# SPDX-License-Identifier: MIT
"""Exact colour conversions of pictures in NumPy arrays.

    rgb = zorcc.convert(frame, "nv12", "rgb24", matrix="bt709")

Formats have the names of `formats()`, of ffmpeg's pixel formats or of fourccs. Pictures are read and written where
they are, without copies:

one plane       an array (height, width, samples), or (height, width) where a pixel has one sample. Packed 4:2:2 is
                (height, width, 2) of bytes.
several planes  a tuple of them, luma (height, width), the pairs of chroma of nv12 (height / 2, width / 2, 2); or one
                array with all planes below each other, as OpenCV has them: (height * 3 / 2, width) for 4:2:0. Planes of
                one size may be an array (planes, height, width).

Results with several planes are a tuple, or of `joined=True` one array of planes below each other. Where shapes do not
say the size, as for odd widths of shared chroma, `size=(width, height)` does; the planes then may have any shape of
that many rows and samples, or of all samples in a row. Rows may be any distance apart, upwards, too; the samples of a
row lie side by side. Arrays of other libraries are taken by the buffer protocol or DLPack; sources may be read-only.
Calls release the interpreter's lock. What cannot be is an `Error`, which has a `status` and says why.
"""
from __future__ import annotations

import functools as _functools
import math as _math
from typing import TYPE_CHECKING, Any, List, NamedTuple, Optional, Sequence, Tuple, TypedDict, Union

import numpy as _numpy
import numpy.typing as _npt

from . import _zorcc, functions
from ._png import Shown
from ._status import Error, Status, StatusWarning
from ._types import Array, Picture, Result, Size

if TYPE_CHECKING:
    from typing_extensions import Unpack

__all__ = ["Error", "Layout", "Options", "Plan", "Shown", "Status", "StatusWarning", "convert", "demosaic", "describe",
           "formats", "functions", "layout", "psnr", "reduce", "set_threads", "show", "threads"]
__version__: str = _zorcc.__version__


# ---- formats --------------------------------------------------------------------------------------------------------

class Layout(NamedTuple):
    """What a picture looks like in memory."""
    name: str
    channels: str  # in the order of memory, one letter each
    dtype: _npt.DTypeLike
    shapes: Tuple[Tuple[int, ...], ...]  # of the planes


def formats() -> List[str]:
    """The names of all formats. Others that are understood, such as yuyv422 or gray, are names for these."""
    return _zorcc.formats()


def layout(format: str, size: Size) -> Layout:
    """The layout of pictures of a format and a size (width, height)."""
    return Layout(*_zorcc.layout(format, size))


# ---- conversions ----------------------------------------------------------------------------------------------------

class Options(TypedDict, total=False):
    """Options of plans, all of which may be left out.

    matrix, range            of luma and chroma at either end: bt601, bt709, yuv; limited, full. Without: what the name
                             of the format says, otherwise bt709 for pictures of 720 rows and more and bt601 below, in
                             limited range. Formats without luma and chroma ignore them
    from_matrix, to_matrix,  the same of one end
    from_range, to_range
    alpha                    drop: where only the source has alpha, it is dropped; refuse: such a plan is an Error;
                             opaque: the result is opaque, whatever the source has
    depth                    how more than 8 bits become 8: nearest, truncate, ordered (dithering), or by diffusion of
                             errors: fs (Floyd-Steinberg), jjn (Jarvis-Judice-Ninke), stucki
    dither                   ordered dithering into packed 16-bit formats, from luma and chroma
    grey                     how colours become grey: luma, refuse, or three weights of red, green and blue
    threads                  the most threads of a call; 0: as many as `threads()` says
    """
    matrix: Optional[str]
    from_matrix: Optional[str]
    to_matrix: Optional[str]
    range: str
    from_range: str
    to_range: str
    alpha: str
    depth: str
    dither: bool
    grey: Union[str, Sequence[float]]
    threads: int


_DEFAULTS: Options = {"matrix": None, "from_matrix": None, "to_matrix": None, "range": "default",
                      "from_range": "default", "to_range": "default", "alpha": "drop", "depth": "nearest",
                      "dither": False, "grey": "luma", "threads": 0}


def _settings(from_format: str, to_format: str, options: Options) -> Any:
    if unknown := options.keys() - _DEFAULTS.keys():
        raise TypeError(f"unknown option {min(unknown)}; there are {', '.join(_DEFAULTS)}")
    return _zorcc.Settings(from_format, to_format, *{**_DEFAULTS, **options}.values())


@_functools.lru_cache(maxsize=64)
def _conversion(from_format: str, to_format: str, **options: Any) -> Any:
    return _zorcc.Conversion(_settings(from_format, to_format, options)).run  # type: ignore[arg-type]


def convert(source: Picture, from_format: str, to_format: str, *, size: Optional[Size] = None,
            out: Optional[Picture] = None, joined: bool = False, **options: Unpack[Options]) -> Result:
    """Converts a picture from any format to any other, into new arrays or into `out`, which it gives. `size` is needed
    where the shape of the source does not say it; see the module for shapes, and `Options` for options. Plans of the
    last calls are kept for the next ones."""
    try:
        run = _conversion(from_format, to_format, **options)
    except TypeError:  # weights of grey in a list or an array
        if "grey" not in options or isinstance(options["grey"], (str, tuple)):
            raise
        options["grey"] = tuple(options["grey"])
        run = _conversion(from_format, to_format, **options)
    return run(source, size, out, joined)


class Plan:
    """How pictures of one size go from one format to another: a chain of functions, run over strips of rows. For many
    pictures of one size it is a little faster than `convert`. Threads may share a plan; they wait for each other."""

    def __init__(self, from_format: str, to_format: str, size: Size, **options: Unpack[Options]):
        self._plan = _zorcc.Plan(_settings(from_format, to_format, options), size)

    def __call__(self, source: Picture, out: Optional[Picture] = None, *, joined: bool = False) -> Result:
        """Converts a picture, as `convert` does."""
        return self._plan.run(source, out, joined)

    @property
    def size(self) -> Size:
        return self._plan.size

    @property
    def text(self) -> str:
        """The plan in words, a line for each picture, step, and thing that is lost or made up."""
        return self._plan.text

    @property
    def losses(self) -> str:
        """Those lines of the text that say what is lost; empty where nothing is."""
        return self._plan.losses

    @property
    def steps(self) -> List[Tuple[str, str]]:
        """For each step the name of its function, empty where samples change places, and the format that it gives."""
        return self._plan.steps

    def __repr__(self) -> str:
        return f"<zorcc.Plan {self.text}>"


def describe(from_format: str, to_format: str, size: Size, **options: Unpack[Options]) -> str:
    """The plan of such a conversion in words. An `Error` says why there is none, and the nearest that there is."""
    return Plan(from_format, to_format, size, **options).text


def threads() -> int:
    """The threads that one call may use."""
    return _zorcc.threads()


def set_threads(count: int) -> None:
    """Sets the threads that one call may use, for the whole process."""
    _zorcc.set_threads(count)


# ---- single pictures ------------------------------------------------------------------------------------------------

_TYPE_NAMES = {"uint8": "8u", "uint16": "16u", "int16": "16s", "float32": "32f"}


def _array(given: Any) -> _npt.NDArray[Any]:
    """Without a copy, also of what has nothing but DLPack"""
    is_other = hasattr(given, "__dlpack__") and not hasattr(given, "__array__")
    return _numpy.from_dlpack(given) if is_other else _numpy.asarray(given)


def _type_name(dtype: _npt.DTypeLike) -> str:
    name = _numpy.dtype(dtype).name
    if name not in _TYPE_NAMES:
        raise Error(f"samples are {', '.join(_TYPE_NAMES)}, not {name}", Status["zorStatusBadArgument"])
    return _TYPE_NAMES[name]


def _function(name: str, what: str) -> Any:
    if name not in functions.__all__:
        raise Error(f"there is no {what} ({name})", Status["zorStatusBadArgument"])
    return getattr(functions, name)


def demosaic(raw: Array, grid: str = "rggb", method: str = "ahd", *, out: Optional[Array] = None) -> Result:
    """Colours of a Bayer mosaic (height, width) of 8 or 16 bits, as (height, width, 3). `grid` is the colours of the
    first 2 x 2 pixels, row by row; `method` is ahd (adaptive homogeneity-directed) or the faster gradient."""
    operations = {"ahd": "DemosaicAHD", "gradient": "CFAToRGB"}
    if method not in operations:
        raise ValueError(f"method must be one of {', '.join(operations)}, not {method}")
    raw = _array(raw)
    function = _function(f"zori{operations[method]}_{_type_name(raw.dtype)}_C1C3R", f"mosaic of {raw.dtype}")
    return function(raw, grid=grid, out=out)


def reduce(array: Array, levels: int, *, dither: str = "fs", noise: int = 0, dtype: Optional[_npt.DTypeLike] = None,
           alpha: bool = False, out: Optional[Array] = None) -> Result:
    """Reduces (height, width) or (height, width, channels) to `levels` values of each channel from black to white.
    `dither` is none, ordered, fs, jjn or stucki; `noise` moves its thresholds by so many percent of a level. `dtype` is
    that of the result, if not the array's. The fourth of four channels is alpha, which is copied unless `alpha`."""
    array = _array(array)
    channels = array.shape[2] if array.ndim == 3 else 1
    source, result = _type_name(array.dtype), _type_name(dtype or array.dtype)
    layout = "AC4" if channels == 4 and not alpha else f"C{channels}"
    function = _function(f"zoriReduceBits_{source}{'' if result == source else result}_{layout}R",
                         f"reduction from {channels} channels of {array.dtype} to {_numpy.dtype(dtype or array.dtype)}")
    reduced = function(array, noise=noise, method=dither, levels=levels, out=out)
    if layout == "AC4" and out is None:
        reduced[..., 3] = convert(array, _guess(array), _guess(reduced))[..., 3] if dtype else array[..., 3]
    return reduced


def psnr(a: Array, b: Array) -> float:
    """Peak signal-to-noise ratio of all samples, in dB; infinite for equal ones. The peak is the largest value of
    integers, and 1 of floats."""
    a, b = _array(a), _array(b)
    if a.shape != b.shape or a.dtype != b.dtype:
        raise Error(f"pictures that differ: {a.shape} of {a.dtype} and {b.shape} of {b.dtype}",
                    Status["zorStatusBadArgument"])
    peak = float(_numpy.iinfo(a.dtype).max) if a.dtype.kind in "iu" else 1.0
    mean = float(_numpy.square(_numpy.subtract(a, b, dtype=_numpy.float64)).mean())
    return 10 * _math.log10(peak * peak / mean) if mean else _math.inf


def _guess(array: _npt.NDArray[Any]) -> str:
    """The usual format of an array of grey, RGB or RGBA."""
    names = {"uint8": ("grey8", "rgb24", "rgba"), "uint16": ("grey16", "rgb48", "rgba64"),
             "float32": ("greyf32", "rgbf32", "rgbaf32")}
    samples = array.shape[2] if array.ndim == 3 else 1
    if array.dtype.name not in names or array.ndim not in (2, 3) or samples not in (1, 3, 4):
        raise Error(f"say the format: {array.shape} of {array.dtype} is no usual one", Status["zorStatusUnknownFormat"])
    return names[array.dtype.name][samples - 1 if samples == 1 else samples - 2]


def show(picture: Picture, format: Optional[str] = None, *, size: Optional[Size] = None,
         **options: Unpack[Options]) -> Shown:
    """A picture of any format for a notebook to display. Without a format it is grey, RGB or RGBA by its shape."""
    if format is None:
        picture = _array(picture)
        format = _guess(picture)
    channels = layout(format, (16, 16)).channels
    shown = "grey8" if channels == "L" else "rgba" if "A" in channels else "rgb24"
    return Shown(convert(picture, format, shown, size=size, **options))
