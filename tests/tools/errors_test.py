# SPDX-License-Identifier: MIT
"""What the commands do with broken files, bad arguments and signals: one line, an exit code, nothing half-written."""
import random
import signal
import time
import unittest

from files import *

FAILED, USAGE = 1, 2
HUGE = 2 ** 31 - 1


def prepare():
    zorcc("chart", "good.png", "--size", "64x48")
    zorcc("convert", "good.png", "good.jpg")
    zorcc("convert", "good.png", "good.ppm")
    zorcc("convert", "good.png", "good.y4m")
    zorcc("convert", "good.y4m", "good.yuv")
    zorcc("convert", "good.png", "444.y4m", "--to", "yuv444p")
    zorcc("chart", "other.png", "--size", "64x47")
    frame = read_y4m("good.y4m")[1][0]
    write_y4m("two.y4m", 64, 48, [frame, frame])
    write_y4m("cut_second.y4m", 64, 48, [frame, frame[:-1]])
    for name in ("png", "jpg", "ppm", "y4m"):
        content = read("good." + name)
        write("cut." + name, content[:len(content) // 2])
    write("cut.yuv", read("good.yuv")[:-1])
    write("empty.png", b"")
    write("text.png", b"no picture at all\n")
    write("big.png", png_header(HUGE, HUGE, 8, RGB_ALPHA))
    write("wide.png", png_header(HUGE, 1, 16, RGB_ALPHA))
    write("large.png", png_header(30000, 30000, 8, RGB) + png_chunk(b"IDAT", b"x"))
    write("zero.png", png_header(0, 5, 8, RGB))
    jpeg = read("good.jpg")
    frame_header = jpeg.index(b"\xff\xc0")
    write("large.jpg", jpeg[:frame_header + 5] + b"\xff\xff\xff\xff" + jpeg[frame_header + 9:])
    write("big.ppm", b"P6 %d %d 255\n" % (HUGE, HUGE))
    write("tiny.pgm", b"P5 4 4 255\n" + bytes(16))
    write("large.ppm", b"P6 100000 100000 255\n")
    write("overflow.ppm", b"P6 99999999999999999999 1 255\n")
    write("565.raw", bytes(8))
    write("zero.ppm", b"P6 0 1 255\n")
    write("deep.ppm", b"P6 1 1 65536\n" + bytes(6))
    write("big.pfm", b"PF %d %d -1\n" % (HUGE, HUGE))
    write("big.y4m", b"YUV4MPEG2 W%d H%d F25:1 C444\nFRAME\n" % (HUGE, HUGE))
    write("large.y4m", b"YUV4MPEG2 W100000 H100000 F25:1\nFRAME\n")
    write("deep.y4m", b"YUV4MPEG2 W4 H4 F25:1 C420p10\nFRAME\n" + bytes(48))
    write("rate.y4m", b"YUV4MPEG2 W4 H4 Fast C420\nFRAME\n" + bytes(24))
    write("sizeless.y4m", b"YUV4MPEG2 F25:1\nFRAME\n" + bytes(48))
    write("frameless.y4m", b"YUV4MPEG2 W4 H4 F25:1\n")
    write("wrong.y4m", b"YUV4MPEG2 W4 H4 F25:1\nFRAMED\n" + bytes(24))
    os.mkdir("folder")
    os.mkdir("folder.png")
    os.symlink("/dev/full", "full.ppm")
    os.symlink("/dev/full", "full.png")
    os.symlink("/dev/full", "full.jpg")
    os.symlink("/dev/full", "full.y4m")


C3 = "zoriRGBToYUV420_8u_C3P3R"
P3 = "zoriYUV420ToRGB_8u_P3C3R"

# command line, exit code, what the line on stderr holds
CASES = [
    ("reduce good.png out.png --levels 1", USAGE, "--levels"),
    ("reduce good.png out.png --levels 257", FAILED, "good.png: zoriReduceBits_8u_C3R: so many levels"),
    ("reduce good.png out.png --noise 101", USAGE, "--noise"),
    ("reduce good.png out.png --dither best", USAGE, "--dither"),
    ("reduce good.y4m out.png", FAILED, "good.y4m: cannot reduce yuv420p"),
    ("reduce missing.png out.png", FAILED, "missing.png: No such file"),
    ("convert missing.png out.png", FAILED, "missing.png: No such file"),
    ("convert folder out.png", FAILED, "folder: Is a directory"),
    ("convert empty.png out.png", FAILED, "empty.png: the file is empty"),
    ("convert text.png out.png", FAILED, "text.png: not a PNG"),
    ("convert cut.png out.png", FAILED, "cut.png: the file ends early"),
    ("convert cut.jpg out.png", FAILED, "cut.jpg: Premature end"),
    ("convert cut.ppm out.png", FAILED, "cut.ppm: the file ends early"),
    ("convert cut.y4m out.png", FAILED, "cut.y4m: the file ends early"),
    ("convert cut_second.y4m out.y4m", FAILED, "cut_second.y4m: the file ends early"),
    ("convert cut_second.y4m out_%d.png", FAILED, "cut_second.y4m: the file ends early"),
    ("convert --size 64x48 --format yuv420p cut.yuv out.png", FAILED, "cut.yuv: the file ends early"),
    ("convert --size 64x49 --format yuv420p good.yuv out.png", FAILED, "good.yuv: the file ends early"),
    ("convert --size 64x47 --format yuv420p good.yuv out.y4m", FAILED, "good.yuv: the file ends early"),
    ("convert big.png out.png", FAILED, "big.png: "),
    ("convert wide.png out.png", FAILED, "wide.png: "),
    ("convert large.png out.png", FAILED, "large.png: the file ends early"),
    ("convert zero.png out.png", FAILED, "zero.png: "),
    ("convert large.jpg out.png", FAILED, "large.jpg: "),
    ("convert big.ppm out.png", FAILED, "big.ppm: "),
    ("convert large.ppm out.png", FAILED, "large.ppm: the file ends early"),
    ("convert overflow.ppm out.png", FAILED, "overflow.ppm: 99999999999999999999 is not in"),
    ("convert zero.ppm out.png", FAILED, "zero.ppm: 0 is not in"),
    ("convert deep.ppm out.png", FAILED, "deep.ppm: 65536 is not in"),
    ("convert big.pfm out.png", FAILED, "big.pfm: "),
    ("convert big.y4m out.png", FAILED, "big.y4m: "),
    ("convert large.y4m out.png", FAILED, "large.y4m: the file ends early"),
    ("convert deep.y4m out.png", FAILED, "deep.y4m: colour space '420p10'"),
    ("convert rate.y4m out.png", FAILED, "rate.y4m: 'ast' is no frame rate"),
    ("convert sizeless.y4m out.png", FAILED, "sizeless.y4m: the header does not tell"),
    ("convert frameless.y4m out.png", FAILED, "frameless.y4m: there is no picture"),
    ("convert wrong.y4m out.png", FAILED, "wrong.y4m: no FRAME line"),
    (f"convert --size {HUGE}x{HUGE} --format yuv420p good.yuv out.png", FAILED, "good.yuv: "),
    (f"convert --size {HUGE}x{HUGE} --format rgba good.yuv out.png", FAILED, "good.yuv: "),
    ("convert two.y4m out.png", FAILED, "out.png: there is more than one picture"),
    ("convert good.y4m out.y4m --to rgb24", FAILED, "out.y4m: Y4M holds YUV"),
    ("convert good.png out.y4m --to hls24", FAILED, "out.y4m: Y4M holds YUV, and the picture is hls24: use .raw"),
    ("convert good.png out.png --to hsv24", FAILED, "out.png: this kind of file holds RGB"),
    ("call zoriHLSToRGB_8u_C3R good.png out.png", FAILED, "good.png: the file holds rgb24, but zoriHLSToRGB_8u_C3R"),
    ("convert good.png out.png --to yuv444p", FAILED, "out.png: this kind of file holds RGB"),
    ("convert --size 2x2 --format rgb565 565.raw out.png", FAILED, "out.png: this kind of file holds RGB or grey"),
    ("convert good.png out.pgm", FAILED, "out.pgm: PGM holds grey"),
    ("convert 444.y4m out.y4m --to yuv420p", FAILED, "444.y4m: no function converts yuv444p to yuv420p"),
    ("convert good.png nowhere/out.png", FAILED, "nowhere/out.png: No such file"),
    ("convert good.png good.jpg/out.png", FAILED, "good.jpg/out.png: Not a directory"),
    ("convert good.png folder.png", FAILED, "folder.png: Is a directory"),
    ("convert good.png /proc/out.png", FAILED, "/proc/out.png: "),
    ("convert good.png full.ppm", FAILED, "full.ppm: No space left"),
    ("convert good.png full.png", FAILED, "full.png: "),
    ("convert good.png full.jpg", FAILED, "full.jpg: "),
    ("convert good.png full.y4m", FAILED, "full.y4m: No space left"),
    (f"call {C3} good.y4m out.y4m", FAILED, f"good.y4m: the file holds yuv420p, but {C3} takes rgb24"),
    (f"call {P3} good.png out.png", FAILED, f"good.png: the file holds rgb24, but {P3} takes yuv420p: give a Y4M"),
    (f"call {P3} 444.y4m out.png", FAILED, "444.y4m: the file holds yuv444p"),
    (f"call {C3} good.png y.pgm nowhere/u.pgm v.pgm", FAILED, "nowhere/u.pgm: "),
    (f"call {C3} good.png out.png", FAILED, "out.png: this kind of file holds RGB"),
    ("compare good.png other.png", FAILED, "good.png, other.png: sizes differ: 64x48 and 64x47"),
    ("compare good.png good.y4m", FAILED, "good.png, good.y4m: one holds"),
    ("compare good.y4m two.y4m", FAILED, "good.y4m: has only 1 picture"),
    ("compare good.png missing.png", FAILED, "missing.png: No such file"),
    ("sheet out.png good.png missing.png", FAILED, "missing.png: No such file"),
    ("demosaic good.png out.png", FAILED, "good.png: the file holds rgb24, but a mosaic is a grey PGM"),
    ("demosaic tiny.pgm out.png", FAILED, "tiny.pgm: zoriDemosaicAHD_8u_C1C3R: the picture is too small"),
    ("demosaic missing.pgm out.png", FAILED, "missing.pgm: No such file"),
    ("chart out.y4m", FAILED, "out.y4m: Y4M holds YUV"),
    (f"chart out.png --size {HUGE}x{HUGE}", FAILED, "out.png: "),
    ("list nothing_of_the_kind", FAILED, "nothing_of_the_kind: "),
    ("", USAGE, "which command?"),
    ("paint", USAGE, "paint"),
    ("--threads 2", USAGE, "which command?"),
    ("convert good.png", USAGE, "OUT"),
    ("convert good.png out.png --quality 3", USAGE, "--quality"),
    ("convert good.png out.gif", USAGE, "out.gif"),
    ("convert good.png out", USAGE, "out"),
    ("convert good.png out.raw", USAGE, "--to"),
    ("convert good.png out.y4m --to yuv999p", USAGE, "unknown format yuv999p"),
    ("convert good.yuv out.png", USAGE, "good.yuv: a headerless file needs --size"),
    ("convert --size 64x48 good.yuv out.png", USAGE, "--format"),
    ("convert --format yuv420p good.png out.png", USAGE, "--size"),
    ("convert --size 64 --format yuv420p good.yuv out.png", USAGE, "--size"),
    ("convert --size 0x48 --format yuv420p good.yuv out.png", USAGE, "--size"),
    ("convert --size -4x4 --format yuv420p good.yuv out.png", USAGE, "--size"),
    ("convert --size 64x48x2 --format yuv420p good.yuv out.png", USAGE, "--size"),
    ("convert --size 4294967297x48 --format yuv420p good.yuv out.png", USAGE, "--size"),
    ("convert good.png out.png --repeat 0", USAGE, "--repeat"),
    ("convert good.png out.png --threads 0", USAGE, "--threads"),
    ("convert good.png out.png --threads many", USAGE, "--threads"),
    ("call zoriNothing good.png out.png", USAGE, "no function zoriNothing"),
    (f"call {C3} good.png", USAGE, "OUT"),
    (f"call {C3} good.png y.pgm u.pgm", USAGE, "name one file, or 3"),
    ("demosaic tiny.pgm out.png --grid rgb", USAGE, "--grid"),
    ("demosaic tiny.pgm out.png --method best", USAGE, "--method"),
    ("chart out.gif", USAGE, "out.gif"),
    ("sheet out.png", USAGE, "IN"),
]


class Errors(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        prepare()

    def assert_fails(self, arguments, code, text):
        before = {name: os.lstat(name).st_mtime_ns for name in os.listdir() if not os.path.islink(name)}
        result = run(*arguments)
        self.assertEqual(result.returncode, code, result)
        self.assertEqual(result.stdout, "")
        self.assertRegex(result.stderr, r"^zorcc: [^\n]+\n$")
        self.assertIn(text, result.stderr)
        after = {name: os.lstat(name).st_mtime_ns for name in os.listdir() if not os.path.islink(name)}
        self.assertEqual(after, before)

    def test_table(self):
        for line, code, text in CASES:
            with self.subTest(line):
                self.assert_fails(line.split(), code, text)

    def test_existing_output_stays(self):
        for line in ("convert cut.png old.png", "convert cut_second.y4m old.y4m", "convert two.y4m old.png"):
            path = write(line.split()[-1], b"what was there before")
            self.assert_fails(line.split(), FAILED, "")
            self.assertEqual(read(path), b"what was there before")
            os.remove(path)

    def test_every_cut(self):
        for name in ("good.png", "good.jpg", "good.y4m", "good.ppm"):
            content = read(name)
            cuts = [0, 1, 2, 3, 7, 8, 9, 20, 33, 40, len(content) // 3, len(content) - 13, len(content) - 2]
            for cut in cuts:
                with self.subTest(name=name, cut=cut):
                    self.assert_fails(["convert", write("prefix", content[:cut]), "out.png"], FAILED, "prefix: ")

    def test_damaged_files_never_crash(self):
        seed = random.SystemRandom().randrange(2 ** 32)
        dice = random.Random(seed)
        for name in ("good.png", "good.jpg", "good.y4m", "good.ppm"):
            for turn in range(25):
                content = bytearray(read(name))
                for _ in range(dice.choice((1, 1, 5))):
                    content[dice.randrange(min(len(content), dice.choice((60, 700, 10 ** 6))))] = dice.randrange(256)
                result = run("convert", write("damaged", bytes(content)), "out_%d.ppm")
                self.assertIn(result.returncode, (0, FAILED), (name, seed, turn, result))
                self.assertEqual(result.stderr.count("\n"), result.returncode, (name, seed, turn, result))
                for path in [f for f in os.listdir() if f.startswith("out_")]:
                    os.remove(path)

    def test_full_standard_output(self):
        with open("/dev/full", "w") as full:
            result = subprocess.run([ZORCC, "list"], stdout=full, stderr=subprocess.PIPE, text=True, env=ENVIRONMENT)
        self.assertEqual((result.returncode, result.stderr), (FAILED, "zorcc: standard output: cannot write\n"))

    def test_a_signal_removes_what_is_unfinished(self):
        header, frame = read("two.y4m").split(b"\n", 1)[0] + b"\n", b"FRAME\n" + read("good.yuv")
        for which, ending in (("out.y4m", signal.SIGTERM), ("out_%d.png", signal.SIGINT), ("out.yuv", signal.SIGHUP)):
            with self.subTest(signal=ending):
                os.mkfifo("pipe")
                os.mkdir("fresh")
                process = subprocess.Popen([ZORCC, "convert", "pipe", "fresh/" + which], env=ENVIRONMENT,
                                           stderr=subprocess.PIPE)
                with open("pipe", "wb") as pipe:
                    pipe.write(header + frame)
                    pipe.flush()
                    deadline = time.monotonic() + 60
                    while not os.listdir("fresh") and time.monotonic() < deadline:
                        time.sleep(0.01)
                    self.assertEqual(len(os.listdir("fresh")), 1)
                    process.send_signal(ending)
                    process.wait(60)
                self.assertEqual(process.returncode, -ending)
                process.stderr.close()
                self.assertEqual(os.listdir("fresh"), [])
                os.rmdir("fresh")
                os.remove("pipe")


if __name__ == "__main__":
    unittest.main()
