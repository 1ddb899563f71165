# SPDX-License-Identifier: MIT
"""Mosaics made from pictures, and back."""
import struct
import unittest

from files import *

# Channels of the first 2 x 2 pixels.
GRIDS = {"rggb": (0, 1, 1, 2), "bggr": (2, 1, 1, 0), "gbrg": (1, 2, 0, 1), "grbg": (1, 0, 2, 1)}
WIDTH, HEIGHT = 61, 43


def picture():
    """A smooth picture: rows of (r, g, b)."""
    return [[(40 + 2 * x, 200 - x - y, 60 + 3 * y) for x in range(WIDTH)] for y in range(HEIGHT)]


def mosaic(pixels, grid):
    cell = GRIDS[grid]
    return [pixel[cell[y % 2 * 2 + x % 2]] for y, row in enumerate(pixels) for x, pixel in enumerate(row)]


def write_pgm(path, width, height, samples, maximum=255):
    packed = bytes(samples) if maximum < 256 else struct.pack(f">{len(samples)}H", *samples)
    return write(path, b"P5\n%d %d\n%d\n" % (width, height, maximum) + packed)


class Demosaic(unittest.TestCase):
    def test_every_grid_and_method(self):
        original = picture()
        write_ppm("original.ppm", WIDTH, HEIGHT, [value for row in original for pixel in row for value in pixel])
        for grid in GRIDS:
            samples = mosaic(original, grid)
            write_pgm("m8.pgm", WIDTH, HEIGHT, samples)
            write_pgm("m16.pgm", WIDTH, HEIGHT, [257 * sample for sample in samples], 65535)
            for method in ("gradient", "ahd"):
                for name in ("m8", "m16"):
                    with self.subTest(grid=grid, method=method, name=name):
                        zorcc("demosaic", f"{name}.pgm", "result.png", "--grid", grid, "--method", method)
                        depth, colour, _ = read_png("result.png")
                        self.assertEqual((depth, colour), (8 if name == "m8" else 16, RGB))
                        self.assertGreater(compare("original.ppm", "result.png")["all"][0], 44)

    def test_wrong_grid_shows(self):
        original = picture()
        write_ppm("original.ppm", WIDTH, HEIGHT, [value for row in original for pixel in row for value in pixel])
        write_pgm("m.pgm", WIDTH, HEIGHT, mosaic(original, "rggb"))
        zorcc("demosaic", "m.pgm", "wrong.png", "--grid", "bggr")
        self.assertLess(compare("original.ppm", "wrong.png")["all"][0], 20)

    def test_defaults(self):
        write_pgm("m.pgm", WIDTH, HEIGHT, mosaic(picture(), "rggb"))
        zorcc("demosaic", "m.pgm", "default.ppm")
        zorcc("demosaic", "m.pgm", "named.ppm", "--grid", "RGGB", "--method", "ahd")
        self.assertEqual(read("default.ppm"), read("named.ppm"))
        zorcc("call", "zoriDemosaicAHD_8u_C1C3R", "m.pgm", "called.ppm")
        self.assertEqual(read("default.ppm"), read("called.ppm"))

    def test_known_pixels(self):
        # Blue, green / green, red, at its smallest: every neighbour outside is the one on the other side.
        write_pgm("cell.pgm", 2, 2, [10, 20, 30, 40])
        zorcc("demosaic", "cell.pgm", "cell.ppm", "--grid", "bggr", "--method", "gradient")
        self.assertEqual(list(read_pnm("cell.ppm")[3]), [40, 25, 10, 40, 20, 10, 40, 30, 10, 40, 25, 10])


@unittest.skipUnless(os.path.isdir(PICTURES), "no pictures")
class RealMosaics(unittest.TestCase):
    def test_rose_is_red(self):
        for name in ("rose_bayer_rggb_768x512_8bit.pgm", "rose_bayer_rggb_768x512_16bit.pgm"):
            for method in ("gradient", "ahd"):
                with self.subTest(name=name, method=method):
                    zorcc("demosaic", os.path.join(PICTURES, name), "rose.png", "--method", method)
                    zorcc("convert", "rose.png", "rose.ppm", "--to", "rgb24")
                    width, height, _, samples = read_pnm("rose.ppm")
                    self.assertEqual((width, height), (768, 512))
                    reddest = max(range(width * height), key=lambda i: samples[3 * i] - samples[3 * i + 1])
                    red, green, blue = samples[3 * reddest:3 * reddest + 3]
                    self.assertGreater(red, 1.5 * max(green, blue))


if __name__ == "__main__":
    unittest.main()
