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
    return bytes(byte for together in zip(*streams, strict=True) for byte in together)


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


def pictures(width, height, across, down, count=3):
    """Y, Cb, Cr of random pictures; the same for the same sampling"""
    dice = random.Random(across * 10 + down)
    return [tuple(dice.randbytes(size) for size in (width * height,) + 2 * (width // across * (height // down),))
            for _ in range(count)]


def packed(name, frames):
    return b"".join(LAYOUTS[name][2](*frame) for frame in frames)


def rows(plane, width):
    return [plane[at:at + width] for at in range(0, len(plane), width)]


class Layouts(unittest.TestCase):
    WIDTH, HEIGHT = 72, 12

    def convert(self, source, target, frames, *options):
        write("in.yuv", packed(source, frames))
        zorcc("convert", "--size", f"{self.WIDTH}x{self.HEIGHT}", "--format", source, "in.yuv", "out.yuv", "--to",
              target, *options)
        return read("out.yuv")

    def test_order_alone(self):
        for source, (across, down, _) in LAYOUTS.items():
            frames = pictures(self.WIDTH, self.HEIGHT, across, down)
            for target in (name for name, layout in LAYOUTS.items() if layout[:2] == (across, down)):
                with self.subTest(source=source, target=target):
                    self.assertEqual(self.convert(source, target, frames), packed(target, frames))

    def test_rows_of_chroma(self):
        frames = pictures(self.WIDTH, self.HEIGHT, 2, 1)
        half = self.WIDTH // 2
        every_second = [(y,) + tuple(b"".join(rows(c, half)[::2]) for c in chroma) for y, *chroma in frames]
        twice = [(y,) + tuple(b"".join(2 * row for row in rows(c, half)) for c in chroma)
                 for y, *chroma in every_second]
        for source in ("i422", "yuy2", "yvyu", "uyvy"):
            for target in ("i420", "yv12", "nv12"):
                with self.subTest(source=source, target=target):
                    self.assertEqual(self.convert(source, target, frames), packed(target, every_second))
                    self.assertEqual(self.convert(target, source, every_second), packed(source, twice))

    def test_columns_of_chroma(self):
        frames = pictures(self.WIDTH, self.HEIGHT, 2, 1)
        every_second = [(y,) + tuple(c[::2] for c in chroma) for y, *chroma in frames]
        twice = [(y,) + tuple(interleaved(c, c) for c in chroma) for y, *chroma in every_second]
        for source in ("i422", "yuy2", "uyvy"):
            for target in ("i411", "nv11"):
                with self.subTest(source=source, target=target):
                    self.assertEqual(self.convert(source, target, frames), packed(target, every_second))
                    self.assertEqual(self.convert(target, source, every_second), packed(source, twice))

    def test_y4m_both_ways(self):
        for tag, name in Y4M.items():
            across, down, _ = LAYOUTS[name]
            frames = pictures(self.WIDTH, self.HEIGHT, across, down)
            header = b"YUV4MPEG2 W%d H%d F50:1 Ip A1:1 C%s\n" % (self.WIDTH, self.HEIGHT, tag.encode())
            write("in.y4m", header + b"".join(b"FRAME\n" + packed(name, [frame]) for frame in frames))
            for other in (n for n, layout in LAYOUTS.items() if layout[:2] == (across, down)):
                with self.subTest(tag=tag, other=other):
                    zorcc("convert", "in.y4m", "out.yuv", "--to", other)
                    self.assertEqual(read("out.yuv"), packed(other, frames))
                    zorcc("convert", "--size", f"{self.WIDTH}x{self.HEIGHT}", "--format", other, "out.yuv", "back.y4m")
                    again, content = read("back.y4m").split(b"\n", 1)
                    self.assertIn(b" C" + tag.encode(), again)
                    self.assertEqual(content, read("in.y4m").split(b"\n", 1)[1])

    def test_y4m_does_not_hold_410(self):
        frames = pictures(8, 8, 4, 4)
        write("in.yuv", b"".join(SPLIT(*frame) for frame in frames))
        result = run("convert", "--size", "8x8", "--format", "i410", "in.yuv", "out.y4m", "--to", "i410")
        self.assertEqual((result.returncode, os.path.exists("out.y4m")), (1, False))
        self.assertRegex(result.stderr, r"^zorcc: out.y4m: Y4M holds no chroma of i410: [^\n]*\n$")
        zorcc("convert", "--size", "8x8", "--format", "i410", "in.yuv", "out.y4m")
        self.assertEqual(len(read_y4m("out.y4m")[1]), 3)

    def test_odd_sizes_lose_nothing(self):
        luma = bytes(range(15))
        write_y4m("odd.y4m", 3, 5, [luma + bytes(6 * [100]) + bytes(6 * [200])])
        for name in ("nv12", "yv12", "uyvy"):
            zorcc("convert", "odd.y4m", "odd.yuv", "--to", name)
            zorcc("convert", "--size", "3x5", "--format", name, "odd.yuv", "back.y4m")
            frame = read_y4m("back.y4m")[1][0]
            self.assertEqual(frame[:15], luma)
            self.assertEqual(set(frame[15:]), {100, 200})

    def test_functions_of_the_library_do_it(self):
        frames = pictures(self.WIDTH, self.HEIGHT, 2, 2)
        write("in.yuv", packed("nv12", frames))
        for target, function in (("yuy2", "zoriYCbCr420ToYCbCr422_8u_P2C2R"), ("yv12", "zoriYCbCr420ToYCrCb420_8u_P2P3R"),
                                 ("i420", "zoriYCbCr420_8u_P2P3R"), ("yuv420p", "zoriYCbCr420_8u_P2P3R")):
            line = zorcc("convert", "--size", f"{self.WIDTH}x{self.HEIGHT}", "--format", "nv12", "in.yuv", "out.yuv",
                         "--to", target, "--stats")
            self.assertTrue(line.startswith(f"{function}: 3 pictures of {self.WIDTH}x{self.HEIGHT}, "), line)

    def test_colours_pass_through_every_layout(self):
        write_ppm("grey.ppm", 8, 8, bytes(range(64)) * 3)
        zorcc("convert", "grey.ppm", "direct.y4m")
        for name in ("nv12", "yv12", "i420"):
            zorcc("convert", "grey.ppm", "there.yuv", "--to", name)
            zorcc("convert", "--size", "8x8", "--format", name, "there.yuv", "back.y4m")
            self.assertEqual(read_y4m("back.y4m")[1], read_y4m("direct.y4m")[1])
            zorcc("convert", "--size", "8x8", "--format", name, "there.yuv", "back.ppm")
            self.assertEqual(read_pnm("back.ppm")[:2], (8, 8))

    def test_models_are_not_mixed(self):
        write("in.yuv", bytes(96))
        result = run("convert", "--size", "8x8", "--format", "yuv420p_bt601", "in.yuv", "out.yuv", "--to",
                     "yuv420p_bt709")
        self.assertEqual(result.returncode, 1)
        self.assertIn("no function converts", result.stderr)


class Deinterlacing(unittest.TestCase):
    WIDTH, HEIGHT = 16, 8

    def comb(self, even, odd):
        luma = (bytes([even]) * self.WIDTH + bytes([odd]) * self.WIDTH) * (self.HEIGHT // 2)
        return luma + bytes([90]) * (self.WIDTH * self.HEIGHT // 4) + bytes([160]) * (self.WIDTH * self.HEIGHT // 4)

    def test_combs_go_and_flat_pictures_stay(self):
        write_y4m("comb.y4m", self.WIDTH, self.HEIGHT, [self.comb(40, 200), self.comb(70, 70)])
        zorcc("convert", "comb.y4m", "smooth.y4m", "--deinterlace")
        first, second = read_y4m("smooth.y4m")[1]
        self.assertEqual(second, self.comb(70, 70))
        self.assertEqual(first[self.WIDTH:-self.WIDTH * self.HEIGHT // 2 - self.WIDTH],
                         bytes([120]) * (self.WIDTH * (self.HEIGHT - 2)))
        self.assertEqual(first[:self.WIDTH], bytes([80]) * self.WIDTH)
        self.assertEqual(first[self.WIDTH * self.HEIGHT:], self.comb(0, 0)[self.WIDTH * self.HEIGHT:])

    def test_into_every_layout(self):
        write_y4m("comb.y4m", self.WIDTH, self.HEIGHT, [self.comb(40, 200)])
        zorcc("convert", "comb.y4m", "smooth.yuv", "--to", "yuy2", "--deinterlace")
        packed_rows = rows(read("smooth.yuv"), 2 * self.WIDTH)
        self.assertEqual([row[0] for row in packed_rows], [80] + [120] * (self.HEIGHT - 2) + [160])
        self.assertEqual({row[1] for row in packed_rows}, {90})
        self.assertEqual({row[3] for row in packed_rows}, {160})
        for name in ("i422", "nv12", "rgb24"):
            zorcc("convert", "comb.y4m", "smooth.raw", "--to", name, "--deinterlace")
            zorcc("convert", "comb.y4m", "comb.raw", "--to", name)
            self.assertEqual(len(read("smooth.raw")), len(read("comb.raw")))
            self.assertNotEqual(read("smooth.raw"), read("comb.raw"))

    def test_says_both_functions(self):
        write_y4m("comb.y4m", self.WIDTH, self.HEIGHT, [self.comb(40, 200)])
        lines = zorcc("convert", "comb.y4m", "smooth.png", "--deinterlace", "--stats").splitlines()
        self.assertEqual([line.split(":")[0] for line in lines],
                         ["zoriYCbCr420ToYCrCb420_Filter_8u_P2P3R", "zoriYUV420ToRGB_8u_P3C3R"])

    def test_only_420(self):
        write_ppm("colours.ppm", 2, 2, bytes(12))
        result = run("convert", "colours.ppm", "out.y4m", "--deinterlace")
        self.assertEqual((result.returncode, result.stderr),
                         (1, "zorcc: colours.ppm: deinterlacing takes 4:2:0, and the picture is rgb24\n"))


if __name__ == "__main__":
    unittest.main()
