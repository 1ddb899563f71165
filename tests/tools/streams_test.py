# SPDX-License-Identifier: MIT
"""Standard input and output, sequences of files, and several threads."""
import unittest

from files import *


def piped(line, given=b""):
    """What the tool prints when it reads `given`"""
    result = run(line, binary=True, input=given)
    assert result.returncode == 0 and not result.stderr, (line, result)
    return result.stdout


def frames(count, width=16, height=12):
    return [bytes((7 * i + x) % 256 for x in range(width * height * 3 // 2)) for i in range(count)]


class Streams(unittest.TestCase):
    def test_standard_input_and_output(self):
        write_y4m("in.y4m", 16, 12, frames(5))
        zorcc("convert in.y4m out.y4m")
        zorcc("convert in.y4m nv12.yuv --to nv12")
        self.assertEqual(piped("convert - - --as y4m", read("in.y4m")), read("out.y4m"))
        self.assertEqual(piped("convert in.y4m - --as yuv --to nv12"), read("nv12.yuv"))
        piped("convert --size 16x12 --format nv12 - back.y4m", read("nv12.yuv"))
        self.assertEqual(read_y4m("back.y4m")[1], frames(5))
        zorcc("chart c.png --size 40x30")
        for kind in ("png", "jpg", "ppm"):
            zorcc(f"convert c.png named.dat --as {kind}")
            zorcc(f"convert c.png named.{kind}")
            picture = read("named." + kind)
            self.assertEqual(read("named.dat"), picture)
            self.assertEqual(piped(f"convert c.png - --as {kind}"), picture)
            self.assertEqual(piped("convert - - --as ppm", picture)[:3], b"P6\n")

    def test_measurements_stay_out_of_the_result(self):
        zorcc("chart c.png --size 40x30")
        result = run("convert c.png - --as y4m --stats", binary=True)
        self.assertTrue(result.stdout.startswith(b"YUV4MPEG2") and b"megapixels/s" not in result.stdout)
        self.assertIn("megapixels/s", result.stderr)

    def test_who_closes_the_pipe_ends_the_tool(self):
        write_y4m("long.y4m", 640, 480, frames(20, 640, 480))
        process = subprocess.Popen([ZORCC, *"convert long.y4m - --as yuv".split()], stdout=subprocess.PIPE,
                                   stderr=subprocess.PIPE, env=ENVIRONMENT)
        process.stdout.read(10)
        process.stdout.close()
        self.assertEqual((process.stderr.read(), process.wait(60)), (b"zorcc: standard output: Broken pipe\n", 1))
        process.stderr.close()

    def test_sequences(self):
        for first in (0, 1):
            with tempfile.TemporaryDirectory() as folder:
                for i in range(5):
                    write_pnm(f"{folder}/f_{first + i:03d}.ppm", 4, 2, bytes([40 * i, 0, 0] * 8))
                zorcc(f"convert {folder}/f_%03d.ppm all.rgb")
                self.assertEqual(read("all.rgb"), b"".join(bytes([40 * i, 0, 0] * 8) for i in range(5)))
                zorcc(f"grey {folder}/f_%03d.ppm grey_%d.pgm --weights 1,0,0")
                self.assertEqual([samples(f"grey_{i + 1}.pgm")[0] for i in range(5)], [0, 40, 80, 120, 160])

    def test_the_first_failure_of_a_sequence_is_reported_and_nothing_is_left(self):
        os.mkdir("failed")
        for i in range(1, 9):
            write_pnm(f"s_{i}.ppm", 4, 2, bytes(24))
        for i in (4, 6, 7):
            write(f"s_{i}.ppm", b"P6 4 2 255\n")
        for out in ("failed/o_%d.png", "failed/o.rgb"):
            for threads in (1, 2, 5):
                result = run(f"convert s_%d.ppm {out} --threads {threads}")
                self.assertEqual(result.returncode, 1)
                self.assertRegex(result.stderr, r"^zorcc: s_[467].ppm: the file ends early[^\n]*\n$")
                self.assertEqual(os.listdir("failed"), [])

    def test_the_result_does_not_depend_on_threads(self):
        write_y4m("in.y4m", 16, 12, frames(40))
        zorcc("chart in.png --size 300x200")
        for line in ("in.y4m out.y4m", "in.y4m out.rgb", "in.y4m o_%02d.png", "in.png out.y4m"):
            results, out = set(), line.split()[1]
            for threads in (1, 2, 3, 16, 500):
                zorcc(f"convert {line} --threads {threads}")
                results.add(b"".join(read(out % i) for i in range(1, 41)) if "%" in out else read(out))
            self.assertEqual(len(results), 1)


class Warnings(unittest.TestCase):
    """One line on stderr for what is lost or left alone, and none with --quiet."""
    def assert_warns(self, line, text):
        result = run(line)
        self.assertEqual(result.returncode, 0, result)
        self.assertRegex(result.stderr, r"^zorcc: warning: [^\n]*%s[^\n]*\n$" % text)
        self.assertEqual(run(line, "--quiet").stderr, "")

    def test_loss(self):
        write_png("alpha.png", [[(1, 2, 3, 4)]], 8, RGB_ALPHA)
        write_png("deep.png", [[(1000, 2, 3)]], 16, RGB)
        for out in ("out.ppm", "out.jpg", "out.y4m"):
            self.assert_warns("convert alpha.png " + out, "alpha is dropped")
        self.assert_warns("grey alpha.png out.png", "alpha.png: alpha is dropped")
        self.assert_warns("convert deep.png out.jpg", "16 bits become 8 to the nearest value")
        self.assert_warns("convert deep.png out.png --to rgb24", "deep.png: 16 bits become 8")
        for line in ("convert alpha.png out.png", "convert deep.png out.ppm", "reduce deep.png out.png --depth 8"):
            self.assertEqual(run(line).stderr, "")

    def test_metadata(self):
        zorcc("chart c.png --size 16x16")
        zorcc("convert c.png c.jpg")
        exif = lambda order, value: struct.pack(order + "2sHIHHHIHHI", b"II" if order == "<" else b"MM", 42, 8, 1, 0x112,
                                                3, 1, value, 0, 0)
        marker = lambda kind, content: b"\xff" + bytes([kind]) + struct.pack(">H", len(content) + 2) + content
        jpeg, png = read("c.jpg"), read("c.png")
        for order in "<>":
            write("turned.jpg", jpeg[:2] + marker(0xe1, b"Exif\0\0" + exif(order, 6)) + jpeg[2:])
            self.assert_warns("convert turned.jpg out.png", "turned.jpg: its EXIF orientation 6 is ignored")
            write("upright.jpg", jpeg[:2] + marker(0xe1, b"Exif\0\0" + exif(order, 1)) + jpeg[2:])
            self.assertEqual(run("convert upright.jpg out.png").stderr, "")
        write("turned.png", png[:33] + png_chunk(b"eXIf", exif("<", 3)) + png[33:])
        self.assert_warns("convert turned.png out.ppm", "turned.png: its EXIF orientation 3 is ignored")
        for cut in range(26):  # however short
            write("cut.jpg", jpeg[:2] + marker(0xe1, b"Exif\0\0" + exif("<", 6)[:cut]) + jpeg[2:])
            self.assertEqual(run("convert cut.jpg out.png").returncode, 0)
        write("profile.jpg", jpeg[:2] + marker(0xe2, b"ICC_PROFILE\0\1\1" + bytes(20)) + jpeg[2:])
        self.assert_warns("convert profile.jpg out.png", "profile.jpg: its colour profile is ignored")
