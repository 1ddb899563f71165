# SPDX-License-Identifier: MIT
"""Video layouts and chroma samplings, there and back, over many pictures."""
import random
import unittest

from files import *

# Format: chroma columns and rows per sample, and how Y, Cb and Cr lie in a file.
SPLIT = lambda y, cb, cr: y + cb + cr
SWAPPED = lambda y, cb, cr: y + cr + cb


def interleaved(*streams):
    """The bytes of the streams in turn."""
    return bytes(byte for samples in zip(*streams, strict=True) for byte in samples)


PAIRS = lambda y, cb, cr: y + interleaved(cb, cr)
LAYOUTS = {
    "i420": (2, 2, SPLIT), "yv12": (2, 2, SWAPPED), "nv12": (2, 2, PAIRS), "yuv420p": (2, 2, SPLIT),
    "i422": (2, 1, SPLIT), "yv16": (2, 1, SWAPPED), "yuv422p": (2, 1, SPLIT),
    "yuy2": (2, 1, lambda y, cb, cr: interleaved(y[0::2], cb, y[1::2], cr)),
    "yvyu": (2, 1, lambda y, cb, cr: interleaved(y[0::2], cr, y[1::2], cb)),
    "uyvy": (2, 1, lambda y, cb, cr: interleaved(cb, y[0::2], cr, y[1::2])),
    "i411": (4, 1, SPLIT), "nv11": (4, 1, PAIRS),
}
Y4M = {"420jpeg": "i420", "422": "i422", "411": "i411"}
WIDTH, HEIGHT = 72, 12
HEADERLESS = f"convert --size {WIDTH}x{HEIGHT} --format"


def pictures(across, down, count=3):
    """Y, Cb, Cr of random pictures; the same for the same sampling"""
    dice = random.Random(across * 10 + down)
    return [tuple(dice.randbytes(size) for size in (WIDTH * HEIGHT,) + 2 * (WIDTH // across * (HEIGHT // down),))
            for _ in range(count)]


def packed(name, frames):
    return b"".join(LAYOUTS[name][2](*frame) for frame in frames)


class Layouts(unittest.TestCase):
    def check(self, source, frames, target, expected):
        with self.subTest(source=source, target=target):
            write("in.yuv", packed(source, frames))
            zorcc(f"{HEADERLESS} {source} in.yuv out.yuv --to {target}")
            self.assertEqual(read("out.yuv"), packed(target, expected))

    def test_rows_and_columns_of_chroma_are_left_out_and_repeated(self):
        chroma_rows = lambda plane: [plane[at:at + WIDTH // 2] for at in range(0, len(plane), WIDTH // 2)]
        for sources, targets, fewer, more in (
                (("i422", "yuy2", "yvyu", "uyvy"), ("i420", "yv12", "nv12"), lambda c: b"".join(chroma_rows(c)[::2]),
                 lambda c: b"".join(2 * row for row in chroma_rows(c))),
                (("i422", "yuy2", "uyvy"), ("i411", "nv11"), lambda c: c[::2], lambda c: interleaved(c, c))):
            frames = pictures(2, 1)
            every_second = [(y, fewer(cb), fewer(cr)) for y, cb, cr in frames]
            twice = [(y, more(cb), more(cr)) for y, cb, cr in every_second]
            for source in sources:
                for target in targets:
                    self.check(source, frames, target, every_second)
                    self.check(target, every_second, source, twice)

    def test_y4m_both_ways(self):
        for tag, name in Y4M.items():
            sampling = LAYOUTS[name][:2]
            frames = pictures(*sampling)
            content = [packed(name, [frame]) for frame in frames]
            write_y4m("in.y4m", WIDTH, HEIGHT, content, b"F50:1 Ip A1:1 C" + tag.encode())
            for other in (other for other, layout in LAYOUTS.items() if layout[:2] == sampling):
                with self.subTest(tag=tag, other=other):
                    zorcc("convert in.y4m out.yuv --to", other)
                    self.assertEqual(read("out.yuv"), packed(other, frames))
                    zorcc(f"{HEADERLESS} {other} out.yuv back.y4m")
                    words, again = read_y4m("back.y4m")
                    self.assertIn("C" + tag, words)
                    self.assertEqual(again, content)

    def test_y4m_takes_410_in_another_sampling(self):
        write("in.yuv", b"".join(SPLIT(*frame) for frame in pictures(4, 4)))
        zorcc(f"{HEADERLESS} i410 in.yuv out.y4m")
        self.assertEqual(len(read_y4m("out.y4m")[1]), 3)

    def test_functions_of_the_library_do_it(self):
        write("in.yuv", packed("nv12", pictures(2, 2)))
        for target, function in (("yuy2", "420ToYCbCr422_8u_P2C2R"), ("yv12", "420ToYCrCb420_8u_P2P3R"),
                                 ("i420", "420_8u_P2P3R"), ("yuv420p", "420_8u_P2P3R")):
            line = zorcc(f"{HEADERLESS} nv12 in.yuv out.yuv --stats --to", target)
            self.assertIn(f"\nzoriYCbCr{function}: 3 pictures of {WIDTH}x{HEIGHT}, ", line)


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
