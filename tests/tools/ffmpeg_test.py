# SPDX-License-Identifier: MIT
"""Y4M files of every matrix look right in another program. Skipped where ffmpeg is not installed."""
import shutil
import subprocess
import sys
import unittest

from files import *

SKIPPED = 77  # what ctest takes for a skipped test

# By matrix: how ffmpeg names it, and its range.
MATRICES = {"bt601": ("bt601", "limited"), "bt709": ("bt709", "limited"), "bt709full": ("bt709", "full")}


def decode(path, matrix):
    """The file as ffmpeg shows it, without dithering or shortcuts in chroma."""
    name, value_range = MATRICES[matrix]
    scale = f"scale=in_color_matrix={name}:in_range={value_range}:flags=accurate_rnd+full_chroma_int+bilinear"
    subprocess.run(["ffmpeg", "-v", "error", "-y", "-i", path, "-vf", scale, "-pix_fmt", "rgb24", "decoded.ppm"],
                   check=True, stdin=subprocess.DEVNULL)
    return "decoded.ppm"


def means(path):
    samples = read_pnm(path)[3]
    return [sum(samples[channel::3]) / (len(samples) / 3) for channel in range(3)]


class Ffmpeg(unittest.TestCase):
    def check(self, original, matrix, to, floor):
        zorcc("convert", original, "original.ppm")
        zorcc("convert", original, "picture.y4m", "--matrix", matrix, "--to", to)
        decoded = decode("picture.y4m", matrix)
        self.assertGreater(compare("original.ppm", decoded)["all"][0], floor)
        for before, after in zip(means("original.ppm"), means(decoded)):
            # No cast of colour: 4:2:0 chroma is rounded down by up to 7/8, which R and B show twice; a wrong matrix or
            # range shows several times that.
            self.assertLess(abs(before - after), 1.5)

    def test_chart_in_full_resolution(self):
        zorcc("chart", "chart.png", "--size", "641x361")
        self.check("chart.png", "bt601", "yuv444p", 42)

    def test_photographs(self):
        for name in ("astronaut_512x512.png", "chelsea_451x300.png", "parrots_768x512.png"):
            for matrix in MATRICES:
                with self.subTest(name=name, matrix=matrix):
                    path = os.path.join(PICTURES, name)
                    if not os.path.exists(path):
                        self.skipTest("no " + path)
                    self.check(path, matrix, "yuv420p", 38)

    def test_range_is_told(self):
        zorcc("chart", "chart.png", "--size", "64x64")
        for matrix, (_, value_range) in MATRICES.items():
            zorcc("convert", "chart.png", "chart.y4m", "--matrix", matrix)
            self.assertIn(b" XCOLORRANGE=" + value_range.upper().encode(), read("chart.y4m").split(b"\n", 1)[0])


if __name__ == "__main__":
    if not shutil.which("ffmpeg"):
        print("skipped: ffmpeg is not installed")
        sys.exit(SKIPPED)
    unittest.main()
