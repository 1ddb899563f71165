# SPDX-License-Identifier: MIT
"""Mosaics made from pictures, and back."""
import itertools
import unittest

from files import *

# Channels of the first 2 x 2 pixels.
GRIDS = {"rggb": (0, 1, 1, 2), "bggr": (2, 1, 1, 0), "gbrg": (1, 2, 0, 1), "grbg": (1, 0, 2, 1)}
WIDTH, HEIGHT = 61, 43


# A smooth picture: rows of (r, g, b).
PIXELS = [[(40 + 2 * x, 200 - x - y, 60 + 3 * y) for x in range(WIDTH)] for y in range(HEIGHT)]


def mosaic(grid):
    cell = GRIDS[grid]
    return [pixel[cell[y % 2 * 2 + x % 2]] for y, row in enumerate(PIXELS) for x, pixel in enumerate(row)]


class Demosaic(unittest.TestCase):
    def test_every_grid_method_and_depth(self):
        write_ppm("original.ppm", WIDTH, HEIGHT, [value for row in PIXELS for pixel in row for value in pixel])
        for grid, method, depth in itertools.product(GRIDS, ("gradient", "ahd"), (8, 16)):
            with self.subTest(grid=grid, method=method, depth=depth):
                maximum = 2 ** depth - 1
                write_pgm("m.pgm", WIDTH, HEIGHT, [maximum // 255 * sample for sample in mosaic(grid)], maximum)
                zorcc(f"demosaic m.pgm result.png --grid {grid} --method {method}")
                self.assertEqual(read_png("result.png")[:2], (depth, RGB))
                self.assertGreater(compare("original.ppm", "result.png")["all"][0], 44)
        zorcc("demosaic m.pgm wrong.png --grid bggr")
        self.assertLess(compare("original.ppm", "wrong.png")["all"][0], 20)

    def test_defaults(self):
        write_pgm("m.pgm", WIDTH, HEIGHT, mosaic("rggb"))
        results = {(zorcc(line, "m.pgm", "out.ppm"), read("out.ppm")) for line in (
            "demosaic", "demosaic --grid RGGB --method ahd", "call zoriDemosaicAHD_8u_C1C3R")}
        self.assertEqual(len(results), 1)


if __name__ == "__main__":
    unittest.main()
