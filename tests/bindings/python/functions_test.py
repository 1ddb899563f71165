# SPDX-License-Identifier: MIT
"""Every function of the table, by its name, gives what it gives when C calls it."""
import ast
import ctypes
import inspect
import pathlib

import numpy
import pytest

import c_library
import zorcc
from pictures import ARRANGEMENTS, equal, noise, packed, planes_of
from zorcc import _zorcc, functions

ROWS = {row.name: row for row in _zorcc.functions()}
SIZE = (32, 16)
TWIST = numpy.array([[0.5, 0.25, 0.125, 3], [0.25, 0.5, 0, 2], [0, 0.125, 0.5, 1], [0.25, 0, 0, 0.5]], numpy.float32)
WEIGHTS = numpy.array([0.5, 0.25, 0.125], numpy.float32)


def sample_arguments(row):
    """By keyword, and the same as C takes them"""
    names = dict(row.arguments)
    rows = 4 if "_32f_C4" in row.name else 3
    values = {"alpha": (99, 99), "slice": (21, 21), "noise": (10, 10), "levels": (5, 5), "method": ("jjn", 2),
              "grid": ("gbrg", 2), "interpolation": (0, 0), "twist": (TWIST[:rows], TWIST.ctypes),
              "weights": (WEIGHTS, WEIGHTS.ctypes), "vMin": (-0.5, ctypes.c_float(-0.5)),
              "vMax": (2.0, ctypes.c_float(2))}
    taken = [name for name in names if name != "region"]
    return {name: values[name][0] for name in taken}, [values[name][1] for name in taken]


def picture(row, of_destination, make):
    dtype, shapes = row.shapes(of_destination, SIZE)
    return packed([make(shape, dtype) for shape in shapes])


@pytest.mark.parametrize("family", dict.fromkeys(row.family for row in ROWS.values()))
def test_every_function(family):
    for name, row in ROWS.items():
        if row.family != family:
            continue
        function = getattr(functions, name)
        keywords, positional = sample_arguments(row)
        source = picture(row, False, noise)
        expected = packed([p.copy() for p in planes_of(source)]) if row.in_place else picture(row, True, numpy.zeros)
        assert c_library.call(name, planes_of(expected if row.in_place else source), planes_of(expected), SIZE,
                              positional) == 0, name
        for arrange in (None, *ARRANGEMENTS.values()):
            if arrange and not name.endswith("R"):
                continue  # without steps
            upwards = arrange and arrange is not ARRANGEMENTS["padded"]
            given = packed([arrange(p) if arrange else p.copy() for p in planes_of(source)])
            blank = None if row.in_place else picture(row, True, numpy.zeros)
            out = packed([arrange(p) if arrange else p for p in planes_of(blank)]) if blank is not None else None
            try:
                result = function(given, **keywords) if row.in_place else function(given, out=out, **keywords)
            except zorcc.Error as error:  # of the families that check steps
                assert upwards and error.status == zorcc.Status.zorStatusBadStep, (name, error)
                continue
            assert result is (given if row.in_place else out)
            assert equal(result, expected), name


def test_new_arrays():
    rgba = noise((8, 16, 4), "uint8")
    hls = functions.zoriRGBToHLS_8u_AC4R(rgba)
    assert hls.shape == rgba.shape and (hls[..., 3] == 255).all()  # which the function leaves alone
    planes = functions.zoriRGBToYCbCr420_8u_C3P3R(rgba[..., :3].copy())
    assert [plane.shape for plane in planes] == [(8, 16), (4, 8), (4, 8)]
    with pytest.warns(zorcc.StatusWarning, match="zorStatusOddSize"):
        planes = functions.zoriRGBToYCbCr420_8u_C3P3R(rgba[:7, :15, :3].copy())
    assert [plane.shape for plane in planes] == [(7, 15), (3, 7), (3, 7)] and not planes[0][-1].any()
    deep = noise((8, 16, 3), "uint16")
    part = functions.zoriDemosaicAHD_16u_C1C3R(deep[..., 0].copy(), grid=3, region=(2, 1, 9, 5))
    assert equal(part, functions.zoriDemosaicAHD_16u_C1C3R(deep[..., 0].copy(), grid="grbg")[1:6, 2:11])


def test_source_and_out_may_be_the_same_image():
    rgb = noise((8, 16, 3), "uint8")
    expected = functions.zoriColorTwist32f_8u_C3R(rgb, twist=TWIST[:3])
    assert equal(functions.zoriColorTwist32f_8u_C3R(rgb, twist=TWIST[:3], out=rgb), expected)
    with pytest.raises(zorcc.Error, match="overlap"):
        functions.zoriColorTwist32f_8u_C3R(rgb[1:], twist=TWIST[:3], out=rgb[:-1])


GREY = noise((8, 16), "uint8")
RGB = noise((8, 16, 3), "uint8")
PLANES = [noise((8, 16), "uint8", seed) for seed in range(3)]
FAULTS = [
    (zorcc.Error, "is of uint16", lambda: functions.zoriRGBToYUV_8u_C3R(RGB.astype("uint16"))),
    (zorcc.Error, "the source is", lambda: functions.zoriRGBToYUV_8u_C3R(GREY)),
    (zorcc.Error, "zorStatusDitherLevels", lambda: functions.zoriReduceBits_8u_C3R(RGB, levels=1)),
    (zorcc.Error, "one step", lambda: functions.zoriRGBToYUV_8u_P3R([ARRANGEMENTS["padded"](PLANES[0]), *PLANES[1:]])),
    (zorcc.Error, "without gaps", lambda: functions.zoriRGBToYUV422_8u_P3([ARRANGEMENTS["padded"](p) for p in PLANES])),
    (zorcc.Error, "region", lambda: functions.zoriCFAToRGB_8u_C1C3R(GREY, region=(8, 0, 9, 8))),
    (zorcc.Error, "whole frames", lambda: functions.zoriYCbCr420ToYCrCb420_Filter_8u_P2P3R(
        (GREY, RGB[:4, :8, :2].copy()), slice=4)),
    (zorcc.Error, "4, 8, 2", lambda: functions.zoriYCbCr420_8u_P2P3R((GREY, RGB[:8, :8, :2].copy()))),
    (TypeError, "takes the argument levels", lambda: functions.zoriReduceBits_8u_C3R(RGB)),
    (TypeError, "takes no argument level", lambda: functions.zoriReduceBits_8u_C3R(RGB, levels=2, level=2)),
    (TypeError, "noise cannot be", lambda: functions.zoriReduceBits_8u_C3R(RGB, levels=2, noise="some")),
    (ValueError, "one of none, fs", lambda: functions.zoriReduceBits_8u_C3R(RGB, levels=2, method="best")),
    (ValueError, r"shape \(3, 4\)", lambda: functions.zoriColorTwist32f_8u_C3R(RGB, twist=TWIST)),
    (AttributeError, "zoriNothing", lambda: functions.zoriNothing),
]


@pytest.mark.parametrize("kind, text, call", FAULTS, ids=[text for _, text, _ in FAULTS])
def test_errors(kind, text, call):
    with pytest.raises(kind, match=text):
        call()


def test_documentation_is_of_the_headers():
    for name in functions.__all__:
        text = inspect.getdoc(getattr(functions, name))
        assert text.startswith(f"ZorStatus {name}(") and len(text) > 300, name
    assert "a block gets the mean" in functions.zoriRGBToYCbCr420_8u_C3P3R.__doc__
    assert zorcc.Status.zorStatusBadStep == -14 and zorcc.Status.zorStatusRefused == -203


def parameters(signature):
    return [(p.name, p.kind, p.default if p.default is not inspect.Parameter.empty else ...)
            for p in signature.parameters.values()]


def test_stubs_agree_with_the_module():
    stub = ast.parse((pathlib.Path(zorcc.__file__).parent / "functions.pyi").read_text())
    found = {node.name: node.args for node in stub.body if isinstance(node, ast.FunctionDef)}
    assert list(found) == functions.__all__ and len(found) == len(ROWS)
    for name, args in found.items():
        expected = [(args.posonlyargs[0].arg, inspect.Parameter.POSITIONAL_ONLY, ...)]
        expected += [(arg.arg, inspect.Parameter.KEYWORD_ONLY, ast.literal_eval(default) if default else ...)
                     for arg, default in zip(args.kwonlyargs, args.kw_defaults)]
        assert parameters(inspect.signature(getattr(functions, name))) == expected, name
