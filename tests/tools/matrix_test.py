# SPDX-License-Identifier: MIT
"""Which matrix pictures of luma and chroma are made by, and what files say of it."""
import unittest

from files import *

# Y'UV has no room for red: what comes back is less saturated.
TOLERANCE = {"yuv": 40}
# Red, of which the matrices differ most: Y, Cb, Cr by their standards.
RED = {"yuv": (76, 90, 255), "bt601": (81, 90, 240), "bt709": (63, 102, 240), "bt709full": (54, 99, 255)}
RANGES = {"yuv": "FULL", "bt601": "LIMITED", "bt709": "LIMITED", "bt709full": "FULL"}


def write_red(rows):
    write_pnm("red.ppm", 8, rows, bytes([255, 0, 0]) * 8 * rows)


def frame_of(matrix, rows):
    y, cb, cr = RED[matrix]
    return bytes([y] * 8 * rows + [cb] * (4 * (rows // 2)) + [cr] * (4 * (rows // 2)))


class Matrix(unittest.TestCase):
    def assert_red(self, frame, rows, matrix):
        colour = frame[0], frame[8 * rows], frame[8 * rows + 4 * (rows // 2)]
        for found, expected in zip(colour, RED[matrix]):
            self.assertLessEqual(abs(found - expected), 1, (colour, matrix))

    def assert_back(self, line):
        zorcc("convert", *line.split(), "back.ppm")
        tolerance = TOLERANCE.get(line.split()[-1], 6)
        self.assertTrue(all(abs(a - b) <= tolerance for a, b in zip(samples("back.ppm")[:3], (255, 0, 0))),
                        (line, samples("back.ppm")[:3]))

    def test_bt709_from_720_rows_on(self):
        for rows, matrix in ((718, "bt601"), (720, "bt709"), (1080, "bt709")):
            write_red(rows)
            zorcc("convert red.ppm red.y4m")
            words, frames = read_y4m("red.y4m")
            self.assertEqual(words, f"YUV4MPEG2 W8 H{rows} F25:1 Ip A1:1 C420jpeg XCOLORRANGE=LIMITED".split())
            self.assert_red(frames[0], rows, matrix)
            zorcc("convert red.ppm red.yuv")
            self.assertEqual(read("red.yuv"), frames[0])
            for line in ("red.y4m", f"--size 8x{rows} --format yuv420p red.yuv"):
                self.assert_back(line)
            write_y4m("unlabelled.y4m", 8, rows, frames)  # limited, as players take it
            self.assert_back("unlabelled.y4m")

    def test_named_matrices_and_their_labels(self):
        write_red(48)
        for matrix, value_range in RANGES.items():
            zorcc("convert red.ppm red.y4m --matrix", matrix.upper())
            words, frames = read_y4m("red.y4m")
            self.assertIn("XCOLORRANGE=" + value_range, words)
            self.assert_red(frames[0], 48, matrix)
            for option in ("matrix", "from-matrix"):
                self.assert_back(f"red.y4m --{option} {matrix}")
            write("red.yuv", frames[0])
            zorcc(f"convert --size 8x48 --format yuv420p red.yuv label.y4m --from-matrix {matrix}")
            self.assertEqual(read_y4m("label.y4m"), (words, frames))

    def test_full_range(self):
        """By BT.709 there is an exact function, for BT.601 not: then somebody must say what to take it for."""
        write_y4m("hd.y4m", 8, 720, [frame_of("bt709full", 720)], b"F25:1 C420jpeg XCOLORRANGE=FULL")
        self.assert_back("hd.y4m")
        write_y4m("sd.y4m", 8, 48, [frame_of("yuv", 48)], b"F25:1 C420jpeg XCOLORRANGE=FULL")
        result = run("convert sd.y4m out.ppm")
        self.assertEqual(result.returncode, 1)
        self.assertIn("no conversion comes from bt601 of full range; the nearest that there is: bt601 of limited range; "
                      "--from-matrix says what to take it for\n", result.stderr)
        self.assert_back("sd.y4m --matrix yuv")
        # Samples that only change places need no matrix.
        for line in ("sd.y4m copy.y4m", "sd.y4m nv12.yuv --to nv12"):
            zorcc("convert", *line.split())
        self.assertIn("XCOLORRANGE=FULL", read_y4m("copy.y4m")[0])
        self.assertEqual(read_y4m("copy.y4m")[1], read_y4m("sd.y4m")[1])

    def test_from_luma_and_chroma_to_the_same_by_another_matrix_converts(self):
        for rows, usual in ((48, "bt601"), (720, "bt709")):
            write_y4m("in.y4m", 8, rows, [frame_of(usual, rows)])
            for matrix in ("bt601", "bt709"):
                zorcc("convert in.y4m out.y4m --matrix", matrix)
                words, frames = read_y4m("out.y4m")
                self.assertIn("XCOLORRANGE=LIMITED", words)
                self.assert_red(frames[0], rows, matrix)
                if matrix == usual:
                    self.assertEqual(frames, read_y4m("in.y4m")[1])
        write_y4m("in.y4m", 8, 48, [frame_of("bt709", 48)])
        zorcc("convert in.y4m out.y4m --from-matrix bt709 --matrix bt601")
        self.assert_red(read_y4m("out.y4m")[1][0], 48, "bt601")
        zorcc("convert --size 8x48 --format yuv420p_bt709", write("in.yuv", frame_of("bt709", 48)),
              "out.yuv", "--to", "yuv420p_bt601")
        self.assert_red(read("out.yuv"), 48, "bt601")

    def test_matrices_without_functions(self):
        """They are known, and can be moved to other layouts."""
        frame = frame_of("bt601", 48)
        write("in.yuv", frame)
        zorcc("convert --size 8x48 --format yuv420p in.yuv nv12.yuv --to nv12 --from-matrix bt2020")
        zorcc("convert --size 8x48 --format nv12 nv12.yuv out.yuv --to yuv420p --from-matrix bt2020")
        self.assertEqual(read("out.yuv"), frame)

    def test_y4m_keeps_what_its_header_says(self):
        frame = frame_of("bt601", 48)
        for tags in ("F24000:1001 It A10:11 C420mpeg2", "F50:1 Ib A1:1 C420paldv", "F25:1 C420jpeg"):
            write_y4m("in.y4m", 8, 48, [frame, frame], tags.encode())
            zorcc("convert in.y4m out.y4m")
            words, frames = read_y4m("out.y4m")
            self.assertEqual(words, f"YUV4MPEG2 W8 H48 {tags} XCOLORRANGE=LIMITED".split())
            self.assertEqual(frames, [frame, frame])
        write_y4m("in.y4m", 8, 48, [frame], b"F25:1 It A1:1 C420jpeg")
        zorcc("convert in.y4m out.y4m --deinterlace")
        self.assertIn("Ip", read_y4m("out.y4m")[0])
