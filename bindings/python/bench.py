#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Speed on one thread beside OpenCV and Pillow, and the time that a call takes beside its work: bench.py [PART...]
Every contender writes into an array that is there, where it can; `new` gives a new one at each call."""
import sys
import time

import cv2
import numpy
import PIL.Image

import zorcc

ROUNDS, SECONDS = 15, 0.02
WIDTH, HEIGHT = 1920, 1080


def contest(title, contenders, size):
    """Rounds in which all take turns; of each the median. The last one is what the others are compared with, in speed
    and by the mean difference of samples."""
    print(f"\n{title}")
    results = {name: numpy.array(call(), dtype=int) for name, call in contenders.items()}
    expected = list(results.values())[-1]
    times = {name: [] for name in contenders}
    for _ in range(ROUNDS):
        for name, call in contenders.items():
            calls, start = 0, time.perf_counter()
            while (elapsed := time.perf_counter() - start) < SECONDS:
                call()
                calls += 1
            times[name].append(elapsed / calls)
    medians = {name: float(numpy.median(rounds)) for name, rounds in times.items()}
    last = list(medians.values())[-1]
    for name, seconds in medians.items():
        print(f"  {name:34}{seconds * 1e6:9.1f} us {size[0] * size[1] / seconds * 1e-6:8.0f} megapixels/s"
              f"{last / seconds:7.2f} x, differs by {abs(results[name] - expected).mean():.2f}")


def nv12_to_rgb(size):
    """Limited range of BT.601, which is what OpenCV has."""
    width, height = size
    frame = numpy.random.default_rng(1).integers(0, 256, (height * 3 // 2, width), dtype=numpy.uint8)
    planes = frame[:height], frame[height:].reshape(height // 2, width // 2, 2)
    rgb = numpy.empty((height, width, 3), numpy.uint8)
    options = {"matrix": "bt601", "threads": 1}
    plan = zorcc.Plan("nv12", "rgb24", size, **options)
    return {"zorcc.convert": lambda: zorcc.convert(frame, "nv12", "rgb24", out=rgb, **options),
            "zorcc.convert of planes": lambda: zorcc.convert(planes, "nv12", "rgb24", out=rgb, **options),
            "zorcc.Plan": lambda: plan(frame, rgb),
            "zorcc.convert, new": lambda: zorcc.convert(frame, "nv12", "rgb24", **options),
            "cv2.cvtColor, new": lambda: cv2.cvtColor(frame, cv2.COLOR_YUV2RGB_NV12),
            "cv2.cvtColor": lambda: cv2.cvtColor(frame, cv2.COLOR_YUV2RGB_NV12, dst=rgb)}


def rgb_to_i420(size):
    """OpenCV takes the chroma of one pixel of four, which differs much in noise; here it is their mean."""
    width, height = size
    rgb = numpy.random.default_rng(2).integers(0, 256, (height, width, 3), dtype=numpy.uint8)
    frame = numpy.empty((height * 3 // 2, width), numpy.uint8)
    options = {"matrix": "bt601", "threads": 1}
    return {"zorcc.convert": lambda: zorcc.convert(rgb, "rgb24", "i420", out=frame, **options),
            "cv2.cvtColor": lambda: cv2.cvtColor(rgb, cv2.COLOR_RGB2YUV_I420, dst=frame)}


def ycbcr_to_rgb(size):
    """Interleaved 4:4:4, which Pillow has, in full range; here in limited range."""
    width, height = size
    ycbcr = numpy.random.default_rng(3).integers(0, 256, (height, width, 3), dtype=numpy.uint8)
    rgb = numpy.empty_like(ycbcr)
    image = PIL.Image.fromarray(ycbcr, "YCbCr")
    options = {"matrix": "bt601", "threads": 1}
    return {"zorcc.convert": lambda: zorcc.convert(ycbcr, "yuv24", "rgb24", out=rgb, **options),
            "zorcc.convert, new": lambda: zorcc.convert(ycbcr, "yuv24", "rgb24", **options),
            "PIL convert, new": lambda: image.convert("RGB")}


def rgb_to_grey(size):
    width, height = size
    rgb = numpy.random.default_rng(4).integers(0, 256, (height, width, 3), dtype=numpy.uint8)
    grey = numpy.empty((height, width), numpy.uint8)
    image = PIL.Image.fromarray(rgb)
    function = zorcc.functions.zoriRGBToGray_8u_C3C1R
    return {"zorcc.convert": lambda: zorcc.convert(rgb, "rgb24", "grey8", out=grey, threads=1),
            "zorcc.functions": lambda: function(rgb, out=grey),
            "PIL convert, new": lambda: image.convert("L"),
            "cv2.cvtColor": lambda: cv2.cvtColor(rgb, cv2.COLOR_RGB2GRAY, dst=grey)}


PARTS = {f.__name__: f for f in (nv12_to_rgb, rgb_to_i420, ycbcr_to_rgb, rgb_to_grey)}


def main():
    cv2.setNumThreads(1)
    zorcc.set_threads(1)
    print(f"zorcc {zorcc.__version__}, OpenCV {cv2.__version__}, Pillow {PIL.__version__}, NumPy {numpy.__version__}")
    for name in sys.argv[1:] or PARTS:
        for size in ((WIDTH, HEIGHT), (16, 16)):
            contest(f"{name}, {size[0]}x{size[1]}", PARTS[name](size), size)


if __name__ == "__main__":
    main()
