# SPDX-License-Identifier: MIT
"""Demosaicing, reduction, comparison, notebooks."""
import math
import struct
import zlib

import numpy
import pytest

import zorcc
from pictures import equal, noise
from zorcc import functions


@pytest.mark.parametrize("dtype, name", [("uint8", "8u"), ("uint16", "16u")])
def test_demosaic(dtype, name):
    raw = noise((16, 24), dtype)
    for method, operation in (("ahd", "DemosaicAHD"), ("gradient", "CFAToRGB")):
        expected = getattr(functions, f"zori{operation}_{name}_C1C3R")(raw, grid="gbrg")
        assert equal(zorcc.demosaic(raw, "gbrg", method), expected)
    flat = numpy.full((16, 24), 77, dtype)
    assert (zorcc.demosaic(flat, method="gradient") == 77).all()
    with pytest.raises(zorcc.Error, match="float64"):
        zorcc.demosaic(raw.astype(float))


@pytest.mark.parametrize("shape", [(8, 16), (8, 16, 3), (8, 16, 4)])
@pytest.mark.parametrize("dtype", ["uint8", "uint16"])
def test_reduce(shape, dtype):
    array = noise(shape, dtype)
    few = zorcc.reduce(array, 4, dither="ordered", noise=10)
    colours = few[..., :3] if few.ndim == 3 else few
    assert few.dtype == array.dtype and len(numpy.unique(colours)) == 4
    if shape[-1] == 4:
        assert equal(few[..., 3], array[..., 3])
        assert len(numpy.unique(zorcc.reduce(array, 2, alpha=True)[..., 3])) == 2
    small = zorcc.reduce(array, 2, dtype="uint8")
    assert small.dtype == "uint8"
    if shape[-1] == 4 and dtype == "uint16":
        assert equal(small[..., 3], zorcc.convert(array, "rgba64", "rgba")[..., 3])
    with pytest.raises(zorcc.Error, match="no reduction"):
        zorcc.reduce(noise((8, 16, 2), dtype), 4)


def test_psnr():
    a = numpy.zeros((4, 4), numpy.uint8)
    b = a.copy()
    assert zorcc.psnr(a, b) == math.inf
    b[0, 0] = 255  # one of sixteen samples is as wrong as can be
    assert zorcc.psnr(a, b) == pytest.approx(10 * math.log10(16))
    assert zorcc.psnr(a / numpy.float32(255), b / numpy.float32(255)) == pytest.approx(10 * math.log10(16))
    with pytest.raises(zorcc.Error):
        zorcc.psnr(a, b[:2])


def png_pixels(data):
    """Size, colour type, and the rows of a PNG file without filters"""
    chunks, rest = {}, data[8:]
    while rest:
        length, kind = struct.unpack(">I4s", rest[:8])
        assert struct.unpack(">I", rest[8 + length:12 + length])[0] == zlib.crc32(rest[4:8 + length])
        chunks[kind], rest = rest[8:8 + length], rest[12 + length:]
    width, height, depth, colour_type = struct.unpack(">IIBB", chunks[b"IHDR"][:10])
    rows = numpy.frombuffer(zlib.decompress(chunks[b"IDAT"]), numpy.uint8).reshape(height, -1)
    assert depth == 8 and not rows[:, 0].any()
    return width, height, colour_type, rows[:, 1:]


@pytest.mark.parametrize("format, shown, colour_type", [("nv12", "rgb24", 2), ("grey16", "grey8", 0),
                                                        ("rgba64", "rgba", 6), ("lab24", "rgb24", 2)])
def test_show(format, shown, colour_type):
    rgb = noise((8, 16, 3), "uint8")
    picture = zorcc.convert(rgb, "rgb24", format)
    width, height, kind, rows = png_pixels(zorcc.show(picture, format)._repr_png_())
    assert (width, height, kind) == (16, 8, colour_type)
    assert rows.tobytes() == zorcc.convert(picture, format, shown).tobytes()


def test_show_guesses_formats_of_arrays():
    for array in (noise((8, 16), "uint8"), noise((8, 16, 3), "uint16"), noise((8, 16, 4), "float32")):
        assert png_pixels(zorcc.show(array)._repr_png_())[:2] == (16, 8)
    with pytest.raises(zorcc.Error, match="say the format"):
        zorcc.show(noise((8, 16, 2), "uint8"))


def test_lists():
    assert len(zorcc.formats()) == len(set(zorcc.formats())) > 50
    assert zorcc.layout("nv12", (5, 3)).shapes == ((3, 5), (2, 3, 2))
    zorcc.set_threads(2)
    assert zorcc.threads() == 2
    with pytest.raises(zorcc.Error):
        zorcc.set_threads(0)
