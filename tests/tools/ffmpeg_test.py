# SPDX-License-Identifier: MIT
"""Y4M files of every matrix look right in another program. Skipped where ffmpeg is not installed."""
import itertools
import shutil
import subprocess
import sys
import unittest

from files import *

if not shutil.which("ffmpeg"):
    print("skipped: ffmpeg is not installed")
    sys.exit(77)  # what ctest takes for a skipped test

# By matrix: how ffmpeg names it, and its range.
MATRICES = {"bt601": ("bt601", "limited"), "bt709": ("bt709", "limited"), "bt709full": ("bt709", "full")}


class Ffmpeg(unittest.TestCase):
    def check(self, original, matrix, to, floor):
        zorcc("convert", original, "original.ppm")
        zorcc("convert", original, "picture.y4m", "--matrix", matrix, "--to", to)
        # As ffmpeg shows it, without dithering or shortcuts in chroma.
        name, value_range = MATRICES[matrix]
        scale = f"scale=in_color_matrix={name}:in_range={value_range}:flags=accurate_rnd+full_chroma_int+bilinear"
        subprocess.run(["ffmpeg", "-v", "error", "-y", "-i", "picture.y4m", "-vf", scale, "-pix_fmt", "rgb24",
                        "decoded.ppm"], check=True, stdin=subprocess.DEVNULL)
        self.assertGreater(compare("original.ppm", "decoded.ppm")["all"][0], floor)
        before, after = samples("original.ppm"), samples("decoded.ppm")
        for channel in range(3):
            # No cast of colour: 4:2:0 chroma is rounded down by up to 7/8, which R and B show twice; a wrong matrix or
            # range shows several times that.
            self.assertLess(abs(sum(before[channel::3]) - sum(after[channel::3])), 1.5 * len(before) / 3)

    def test_chart_in_full_resolution(self):
        zorcc("chart chart.png --size 641x361")
        self.check("chart.png", "bt601", "yuv444p", 42)

    @unittest.skipUnless(os.path.isdir(PICTURES), "no pictures")
    def test_photographs(self):
        for name, matrix in itertools.product(("astronaut_512x512", "chelsea_451x300", "parrots_768x512"), MATRICES):
            with self.subTest(name=name, matrix=matrix):
                self.check(os.path.join(PICTURES, name + ".png"), matrix, "yuv420p", 38)
