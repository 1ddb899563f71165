# SPDX-License-Identifier: MIT
"""Real pictures there and back; skipped where their folder is not."""
import sys
import unittest

from files import *

SKIPPED = 77  # what ctest takes for a skipped test


class Pictures(unittest.TestCase):
    FLOORS = {"yuv444p": 43, "yuv422p": 40, "yuv420p": 37.5}  # PSNR in dB

    def test_there_and_back(self):
        for name in ("astronaut_512x512.png", "canyon_1920x1080.png", "chelsea_451x300.png", "coffee_599x399.png",
                     "parrots_768x512.png", "tulips_alpha_500x500.png"):
            path = os.path.join(PICTURES, name)
            for target, floor in self.FLOORS.items():
                with self.subTest(name=name, target=target):
                    zorcc("convert", path, "there.y4m", "--to", target)
                    zorcc("convert", "there.y4m", "back.png")
                    self.assertGreater(compare(path, "back.png")["all"][0], floor)

    def test_alpha_reaches_the_fourth_plane(self):
        path = os.path.join(PICTURES, "tulips_alpha_500x500.png")
        zorcc("call", "zoriRGBToYUV_8u_AC4P4R", path, "y.pgm", "u.pgm", "v.pgm", "a.pgm")
        alpha = read_pnm("a.pgm")[3]
        self.assertEqual(alpha, bytes(pixel[3] for row in read_png(path)[2] for pixel in row))

    def test_clip(self):
        path = os.path.join(PICTURES, "cockatoo_352x288_10f_420.y4m")
        zorcc("convert", path, "frame_%02d.png")
        self.assertTrue(os.path.exists("frame_10.png") and not os.path.exists("frame_11.png"))
        zorcc("convert", path, "clip.rgb")
        zorcc("convert", "--size", "352x288", "--format", "rgb24", "clip.rgb", "back.y4m", "--matrix", "bt601")
        found = compare(path, "back.y4m")  # of limited range, and so taken for bt601
        self.assertGreater(found["Y"][0], 47)
        self.assertGreater(found["all"][0], 47)
        zorcc("convert", path, "copy.y4m")
        self.assertEqual(read("copy.y4m").split(b"\n", 1)[1], read(path).split(b"\n", 1)[1])

    def test_bayer_mosaics_are_read_as_they_are(self):
        for name in ("rose_bayer_rggb_768x512_16bit.pgm", "rose_bayer_rggb_768x512_8bit.pgm"):
            path = os.path.join(PICTURES, name)
            zorcc("convert", path, "copy.pgm")
            self.assertEqual(read_pnm("copy.pgm")[3], read(path)[-len(read_pnm("copy.pgm")[3]):])


if __name__ == "__main__":
    if not os.path.isdir(PICTURES):
        print(f"skipped: no pictures in {PICTURES}")
        sys.exit(SKIPPED)
    unittest.main()
