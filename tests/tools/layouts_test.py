# SPDX-License-Identifier: MIT
"""Video layouts and chroma samplings, there and back through Y4M files of many pictures."""
import random
import unittest

from files import *


def interleaved(*streams):
    """The bytes of the streams in turn."""
    return bytes(byte for samples in zip(*streams, strict=True) for byte in samples)


SPLIT = lambda y, cb, cr: y + cb + cr
SWAPPED = lambda y, cb, cr: y + cr + cb
PAIRS = lambda y, cb, cr: y + interleaved(cb, cr)
# By the tag of Y4M: columns and rows that share a sample of chroma, and how Y, Cb and Cr lie in files of a format.
LAYOUTS = {
    "420jpeg": (2, 2, {"i420": SPLIT, "yuv420p": SPLIT, "yv12": SWAPPED, "nv12": PAIRS}),
    "422": (2, 1, {"i422": SPLIT, "yuv422p": SPLIT, "yv16": SWAPPED,
                   "yuy2": lambda y, cb, cr: interleaved(y[0::2], cb, y[1::2], cr),
                   "yvyu": lambda y, cb, cr: interleaved(y[0::2], cr, y[1::2], cb),
                   "uyvy": lambda y, cb, cr: interleaved(cb, y[0::2], cr, y[1::2])}),
    "411": (4, 1, {"i411": SPLIT, "nv11": PAIRS}),
}
WIDTH, HEIGHT = 72, 12


def pictures(across, down):
    """Y, Cb, Cr of three random pictures"""
    chroma = WIDTH // across * (HEIGHT // down)
    return [tuple(map(random.randbytes, (WIDTH * HEIGHT, chroma, chroma))) for _ in range(3)]


class Layouts(unittest.TestCase):
    def test_y4m_both_ways(self):
        for tag, (across, down, layouts) in LAYOUTS.items():
            frames = pictures(across, down)
            content = [SPLIT(*frame) for frame in frames]
            write_y4m("in.y4m", WIDTH, HEIGHT, content, b"F50:1 Ip A1:1 C" + tag.encode())
            for name, layout in layouts.items():
                with self.subTest(tag=tag, name=name):
                    zorcc("convert in.y4m out.yuv --to", name)
                    self.assertEqual(read("out.yuv"), b"".join(layout(*frame) for frame in frames))
                    zorcc(f"convert --size {WIDTH}x{HEIGHT} --format {name} out.yuv back.y4m")
                    words, again = read_y4m("back.y4m")
                    self.assertIn("C" + tag, words)
                    self.assertEqual(again, content)

    def test_y4m_takes_410_in_another_sampling(self):
        write("in.yuv", b"".join(SPLIT(*frame) for frame in pictures(4, 4)))
        zorcc(f"convert --size {WIDTH}x{HEIGHT} --format i410 in.yuv out.y4m")
        self.assertEqual(len(read_y4m("out.y4m")[1]), 3)


def comb(even, odd):
    """A 16x8 picture whose rows alternate in luma"""
    return (bytes(16 * [even]) + bytes(16 * [odd])) * 4 + bytes(32 * [90]) + bytes(32 * [160])


class Deinterlacing(unittest.TestCase):
    def test_combs_go_and_flat_pictures_stay_in_every_layout(self):
        write_y4m("comb.y4m", 16, 8, [comb(40, 200), comb(70, 70)])
        smoothed = [80] + 6 * [120] + [160]
        zorcc("convert comb.y4m smooth.y4m --deinterlace")
        luma = bytes(value for value in smoothed for _ in range(16))
        self.assertEqual(read_y4m("smooth.y4m")[1], [luma + comb(0, 0)[128:], comb(70, 70)])
        zorcc("convert comb.y4m smooth.yuv --to yuy2 --deinterlace")
        self.assertEqual(read("smooth.yuv"), bytes(v for y in smoothed + 8 * [70] for v in 8 * (y, 90, y, 160)))
        line = zorcc("convert comb.y4m smooth.rgb --deinterlace --stats").splitlines()[-1]
        self.assertEqual(line.split(":")[0], "zoriYCbCr420_8u_P3P2R, zoriYCbCr420ToYCrCb420_Filter_8u_P2P3R, "
                         "zoriYCbCr420ToRGB_8u_P3C3R")
