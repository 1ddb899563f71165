# SPDX-License-Identifier: MIT
"""The first program of the README."""
import unittest

from files import *


class PhotoToVideo(unittest.TestCase):
    def convert(self, path):
        with open(path, "rb") as photo, open("photo.y4m", "wb") as video:
            return subprocess.run([os.environ["ZORCC_EXAMPLE"]], stdin=photo, stdout=video).returncode

    def test_gives_the_frame_of_the_tool(self):
        for size in ("64x48", "65x49"):  # an odd column and row are left out
            width, height = (int(side) for side in size.split("x"))
            zorcc(f"chart photo.ppm --size {size}")
            self.assertEqual(self.convert("photo.ppm"), 0)
            rows = read_pnm("photo.ppm")[3]
            even = b"".join(rows[3 * width * y:][:3 * 64] for y in range(48))
            write_pnm("even.ppm", 64, 48, even)
            zorcc("convert even.ppm tool.y4m --matrix bt601")
            self.assertEqual(read_y4m("photo.y4m")[1], read_y4m("tool.y4m")[1])

    def test_refuses_what_is_no_photograph(self):
        for content in (b"", b"P5 2 2 255\n1234", b"P6 2 2 255\n123", b"P6 1 1 255\n123"):
            self.assertNotEqual(self.convert(write("other", content)), 0)
            self.assertEqual(read("photo.y4m"), b"")

    def test_stands_in_the_readme(self):
        program = read(os.path.join(SOURCE, "examples", "photo_to_video.c")).decode()
        readme = read(os.path.join(SOURCE, "README.md")).decode()
        self.assertIn("```c\n" + program.split("\n", 2)[2] + "```\n", readme)
