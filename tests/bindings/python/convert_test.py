# SPDX-License-Identifier: MIT
"""zorcc.convert and zorcc.Plan give what libzorconvert gives, whatever arrays hold the pictures."""
import array
import sys
import threading
import time

import numpy
import pytest

import c_library
import zorcc
from pictures import ARRANGEMENTS, equal, noise, packed, padded, planes_of

FORMATS = zorcc.formats()
# Every format to and from some, and to its neighbour in the list.
PAIRS = sorted({pair for i, f in enumerate(FORMATS)
                for other in ("rgb24", "nv12", "rgba64", FORMATS[i - 1]) for pair in ((f, other), (other, f))})
SIZES = [(20, 12), (21, 13)]


def picture(format, size):
    layout = zorcc.layout(format, size)
    return packed([noise(shape, layout.dtype, seed) for seed, shape in enumerate(layout.shapes)])


def empty(format, size):
    layout = zorcc.layout(format, size)
    return packed([numpy.zeros(shape, layout.dtype) for shape in layout.shapes])


def test_every_format_gives_the_bytes_of_the_c_library():
    converted = 0
    for one, other in PAIRS:
        for size in SIZES:
            source, expected = picture(one, size), empty(other, size)
            status, text = c_library.convert(planes_of(source), one, other, size, planes_of(expected))
            if status != 0:
                with pytest.raises(zorcc.Error) as error:
                    zorcc.convert(source, one, other, size=size)
                assert (error.value.status, str(error.value)) == (status, text)
                continue
            assert equal(zorcc.convert(source, one, other, size=size), expected), (one, other, size)
            assert zorcc.describe(one, other, size) == text
            converted += 1
    assert converted > 1000


@pytest.mark.parametrize("arrangement", ARRANGEMENTS)
@pytest.mark.parametrize("pair", [("nv12", "rgb24"), ("rgb48", "i420"), ("yuyv", "bgra"), ("greyf32", "rgb444p")])
def test_strides(pair, arrangement):
    size = (20, 12)
    source, expected = picture(pair[0], size), empty(pair[1], size)
    c_library.convert(planes_of(source), *pair, size, planes_of(expected))
    moved = packed([ARRANGEMENTS[arrangement](plane) for plane in planes_of(source)])
    for plane in planes_of(moved):
        plane.flags.writeable = False
    out = packed([ARRANGEMENTS[arrangement](plane) for plane in planes_of(empty(pair[1], size))])
    assert zorcc.convert(moved, *pair, out=out) is out
    assert equal(out, expected)
    base = planes_of(out)[0].base
    if arrangement == "padded":  # nothing is written beyond the rows
        assert not base[0].any() and not base[-1].any() and not base[:, 0].any() and not base[:, -2:].any()


@pytest.mark.parametrize("format", ["nv12", "i420", "yv12", "i422", "i411", "i410", "nv24", "yuv444p", "gbrap"])
def test_planes_in_one_array(format):
    size = (16, 8)
    rgb = noise((8, 16, 3), "uint8")
    planes = zorcc.convert(rgb, "rgb24", format)
    joined = zorcc.convert(rgb, "rgb24", format, joined=True)
    assert joined.shape[1] == 16
    assert joined.tobytes() == b"".join(plane.tobytes() for plane in planes)
    expected = zorcc.convert(planes, format, "rgb24")
    assert equal(zorcc.convert(joined, format, "rgb24"), expected)
    assert equal(zorcc.convert(joined.ravel(), format, "rgb24", size=size), expected)
    if len({plane.shape for plane in planes}) == 1:
        assert equal(zorcc.convert(numpy.stack(planes), format, "rgb24"), expected)
    out = numpy.zeros_like(joined)
    assert equal(zorcc.convert(rgb, "rgb24", format, out=out), joined)


def test_rows_of_joined_planes_may_have_gaps_where_they_are_rows():
    joined = noise((12, 16), "uint8")
    assert equal(zorcc.convert(padded(joined), "nv12", "rgb24"), zorcc.convert(joined, "nv12", "rgb24"))
    with pytest.raises(zorcc.Error, match="gaps"):
        zorcc.convert(padded(joined), "i420", "rgb24")


class OnlyDLPack:
    def __init__(self, array):
        self.array = array

    def __dlpack__(self, stream=None):
        return self.array.__dlpack__()

    def __dlpack_device__(self):
        return self.array.__dlpack_device__()


@pytest.mark.parametrize("wrap", [OnlyDLPack, memoryview], ids=["dlpack", "buffer"])
def test_arrays_of_others(wrap):
    rgb = noise((6, 8, 3), "uint8")
    assert equal(zorcc.convert(wrap(rgb), "rgb24", "bgr24"), rgb[:, :, ::-1])
    assert equal(zorcc.demosaic(wrap(rgb[..., 0].copy())), zorcc.demosaic(rgb[..., 0].copy()))
    grey = noise((6, 8), "uint8")
    assert equal(zorcc.convert(bytes(grey), "grey8", "rgb24", size=(8, 6))[..., 1], grey)
    assert equal(zorcc.convert(array.array("f", [0, 0.25, 1]), "greyf32", "grey8", size=(3, 1)), [[0, 64, 255]])


def test_out_may_be_a_buffer():
    rgb, out = noise((6, 8, 3), "uint8"), bytearray(6 * 8 * 3)
    assert zorcc.convert(rgb, "rgb24", "bgr24", size=(8, 6), out=out) is out
    assert out == rgb[:, :, ::-1].tobytes()


RGB = noise((8, 16, 3), "uint8")
GREY = noise((8, 16), "uint8")
BAD = zorcc.Status.zorStatusBadArgument
SIZE = zorcc.Status.zorStatusBadSize
STEP = zorcc.Status.zorStatusBadStep
READ_ONLY = numpy.zeros_like(RGB)
READ_ONLY.flags.writeable = False
FAULTS = {
    "format": ((RGB, "rgb24", "nv13"), {}, zorcc.Status.zorStatusUnknownFormat, "nearest is nv12"),
    "matrix": ((RGB, "rgb24", "nv12"), {"matrix": "bt2020"}, zorcc.Status.zorStatusNoConversion, "bt601"),
    "refused": ((noise((8, 16, 4), "uint8"), "rgba", "rgb24"), {"alpha": "refuse"}, zorcc.Status.zorStatusRefused,
                "rgb24 has no alpha"),
    "shape": ((RGB, "nv12", "rgb24"), {}, SIZE, r"\(8, 16, 3\) of uint8"),
    "planes": (((GREY,), "nv12", "rgb24"), {}, SIZE, "the source is"),
    "chroma": (((GREY, GREY[:4, :14].reshape(4, 7, 2)), "nv12", "rgb24"), {}, SIZE, "16x8 pixels"),
    "transposed": ((GREY.T, "grey8", "rgb24"), {"size": (16, 8)}, SIZE, r"\(16, 8\)"),
    "joined, transposed": ((numpy.zeros((16, 12), "uint8"), "nv12", "rgb24"), {"size": (16, 8)}, SIZE, r"\(12, 16\)"),
    "no arrays": (((), "nv12", "rgb24"), {}, SIZE, "nothing"),
    "empty": ((RGB[:0], "rgb24", "bgr24"), {}, SIZE, "16x0"),
    "size": ((RGB, "rgb24", "bgr24"), {"size": (17, 8)}, SIZE, "17x8"),
    "type": ((RGB.astype("uint16"), "rgb24", "bgr24"), {}, BAD, "is of uint16"),
    "byte order": ((RGB.astype(">u2"), "rgb48", "bgr24"), {}, BAD, "is of >u2"),
    "columns": ((RGB[:, ::-1], "rgb24", "bgr24"), {}, STEP, "side by side"),
    "channels": ((RGB[:, :, ::-1], "rgb24", "bgr24"), {}, STEP, "side by side"),
    "one row again": ((numpy.broadcast_to(RGB[:1], RGB.shape), "rgb24", "bgr24"), {}, STEP, "overlap"),
    "alignment": ((numpy.frombuffer(bytes(97), "uint8")[1:].view("uint16").reshape(4, 4, 3), "rgb48", "bgr24"), {},
                  STEP, "aligned"),
    "shape of out": ((RGB, "rgb24", "bgr24"), {"out": RGB[:7].copy()}, SIZE, "the out is"),
    "read-only out": ((RGB, "rgb24", "bgr24"), {"out": READ_ONLY}, BAD, "read-only"),
    "out is source": ((RGB, "rgb24", "bgr24"), {"out": RGB}, BAD, "overlap"),
    "joined odd": ((RGB[:7], "rgb24", "nv12"), {"joined": True}, SIZE, "one array"),
}


@pytest.mark.parametrize("fault", FAULTS)
def test_errors(fault):
    arguments, options, status, text = FAULTS[fault]
    before = RGB.copy()
    with pytest.raises(zorcc.Error, match=text) as error:
        zorcc.convert(*arguments, **options)
    assert error.value.status == status
    assert equal(RGB, before)


def test_options_that_there_are_not():
    for options in ({"matix": "bt601"}, {"grey": [1, 0]}, {"threads": "many"}):
        with pytest.raises((TypeError, RuntimeError)):
            zorcc.convert(RGB, "rgb24", "grey8", **options)
    with pytest.raises(ValueError, match="one of drop, refuse, opaque"):
        zorcc.convert(RGB, "rgb24", "nv12", alpha="half")


def test_overlap_is_a_matter_of_bytes():
    both = noise((8, 32, 3), "uint8")
    expected = zorcc.convert(both[:, :16].copy(), "rgb24", "bgr24")
    zorcc.convert(both[:, :16], "rgb24", "bgr24", out=both[:, 16:])  # side by side in the same rows
    assert equal(both[:, 16:], expected)
    for shared in (both[:, 15:31], both[:, 1:17], both[::-1, :16]):
        with pytest.raises(zorcc.Error, match="overlap"):
            zorcc.convert(both[:, :16], "rgb24", "bgr24", out=shared)


def test_options():
    size, nv12 = (16, 8), noise((12, 16), "uint8")
    results = {}
    for name, options in {"601": {"matrix": "bt601"}, "709": {"from_matrix": "bt709"},
                          "709 full": {"matrix": "bt709", "range": "full"},
                          "from range": {"matrix": "bt709", "from_range": "full"}}.items():
        results[name] = zorcc.convert(nv12, "nv12", "rgb24", **options)
    assert equal(results["709 full"], results.pop("from range"))
    assert len({result.tobytes() for result in results.values()}) == 3
    assert "bt709, full range" in zorcc.describe("nv12", "rgb24", size, matrix="bt709", range="full")
    assert zorcc.convert(RGB, "rgb24", "bgr24", matrix="bt709", range="limited").shape == RGB.shape  # has none

    red = zorcc.convert(RGB, "rgb24", "grey8", grey=[1.0, 0.0, 0.0])
    assert equal(red, RGB[..., 0]) and equal(red, zorcc.convert(RGB, "rgb24", "grey8", grey=numpy.array([1, 0, 0])))
    rgba = noise((8, 16, 4), "uint8")
    assert (zorcc.convert(rgba, "rgba", "bgra", alpha="opaque")[..., 3] == 255).all()
    deep = noise((8, 16, 3), "uint16")
    depths = ("nearest", "truncate", "fs", "jjn", "stucki", "ordered")
    assert len({zorcc.convert(deep, "rgb48", "rgb24", depth=depth).tobytes() for depth in depths}) == 6
    assert equal(zorcc.convert(deep, "rgb48", "rgb24", depth="truncate"), (deep >> 8).astype("uint8"))
    plain, dithered = (zorcc.convert(nv12, "nv12", "rgb565", dither=dither) for dither in (False, True))
    assert not equal(plain, dithered)


def test_plan():
    plan = zorcc.Plan("nv12", "rgb24", (16, 8), matrix="bt709", threads=1)
    nv12 = noise((12, 16), "uint8")
    out = numpy.zeros_like(RGB)
    assert plan(nv12, out) is out and equal(out, zorcc.convert(nv12, "nv12", "rgb24", matrix="bt709"))
    assert plan.size == (16, 8) and plan.losses == "" and plan.steps[-1][1] == "rgb24"
    called = [function for function, _ in plan.steps if function]
    assert called and all(function in zorcc.functions.__all__ and function in plan.text for function in called)
    with pytest.raises(zorcc.Error, match="16x8"):
        plan(noise((24, 16), "uint8"))
    assert "alpha is dropped" in zorcc.Plan("rgba", "rgb24", (16, 8)).losses


def test_threads_share_a_plan():
    plan = zorcc.Plan("nv12", "rgb24", (64, 64))
    frames = [noise((96, 64), "uint8", seed) for seed in range(8)]
    expected = [plan(frame) for frame in frames]
    failures = []

    def work(i):
        for _ in range(50):
            if not equal(plan(frames[i]), expected[i]) or not equal(zorcc.convert(frames[i], "nv12", "rgb24"),
                                                                     expected[i]):
                failures.append(i)

    threads = [threading.Thread(target=work, args=(i,)) for i in range(len(frames))]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert not failures


@pytest.mark.parametrize("call", [
    lambda deep: zorcc.convert(deep, "rgb48", "rgb24", depth="stucki", threads=1),
    lambda deep: zorcc.functions.zoriReduceBits_16u8u_C3R(deep, levels=256, method="stucki")], ids=["plan", "function"])
def test_calls_release_the_interpreter(call):
    deep = noise((4000, 2000, 3), "uint16")
    zorcc.set_threads(1)
    span = []

    def work():
        start = time.perf_counter()
        call(deep)
        span.extend((start, time.perf_counter()))

    thread = threading.Thread(target=work)
    thread.start()
    seen = []
    while thread.is_alive():
        seen.append(time.perf_counter())
        time.sleep(0.001)
    thread.join()
    inside = [moment for moment in seen if span[0] + 0.1 * (span[1] - span[0]) < moment < span[1]]
    assert span[1] - span[0] > 0.02 and len(inside) > 3


def test_nothing_is_kept_of_a_call():
    source, out = noise((8, 16, 3), "uint8"), numpy.zeros_like(RGB)
    before = sys.getrefcount(source), sys.getrefcount(out)
    for _ in range(10):
        zorcc.convert(source, "rgb24", "bgr24", out=out)
    assert (sys.getrefcount(source), sys.getrefcount(out)) == before
