# SPDX-License-Identifier: MIT
"""What the commands do with broken files, bad arguments and signals: one line, an exit code, nothing half-written."""
import signal
import time
import unittest

from files import *

FAILED, USAGE = 1, 2
HUGE = 2 ** 31 - 1

GOOD = ("good.png", "good.jpg", "good.y4m", "good.ppm")

# name: content, and what the message on reading it says. Where memory decides, that is one of several things.
UNREADABLE = {
    "empty.png": (b"", "the file is empty"),
    "text.png": (b"no picture at all\n", "not a PNG"),
    "big.png": (png_header(HUGE, HUGE, 8, RGB_ALPHA), ""),
    "large.png": (png_header(30000, 30000, 8, RGB) + png_chunk(b"IDAT", b"x"), "the file ends early"),
    "zero.png": (png_header(0, 5, 8, RGB), ""),
    "big.ppm": (b"P6 %d %d 255\n" % (HUGE, HUGE), ""),
    "large.ppm": (b"P6 100000 100000 255\n", "the file ends early"),
    "overflow.ppm": (b"P6 99999999999999999999 1 255\n", "99999999999999999999 is not in"),
    "zero.ppm": (b"P6 0 1 255\n", "0 is not in"),
    "deep.ppm": (b"P6 1 1 65536\n" + bytes(6), "65536 is not in"),
    "big.pfm": (b"PF %d %d -1\n" % (HUGE, HUGE), ""),
    "big.y4m": (b"YUV4MPEG2 W%d H%d F25:1 C444\nFRAME\n" % (HUGE, HUGE), ""),
    "large.y4m": (b"YUV4MPEG2 W100000 H100000 F25:1\nFRAME\n", "the file ends early"),
    "deep.y4m": (b"YUV4MPEG2 W4 H4 F25:1 C420p10\nFRAME\n" + bytes(48), "colour space '420p10'"),
    "rate.y4m": (b"YUV4MPEG2 W4 H4 Fast C420\nFRAME\n" + bytes(24), "'ast' is no frame rate"),
    "sizeless.y4m": (b"YUV4MPEG2 F25:1\nFRAME\n" + bytes(48), "the header lacks width and height"),
    "frameless.y4m": (b"YUV4MPEG2 W4 H4 F25:1\n", "there is no picture"),
    "wrong.y4m": (b"YUV4MPEG2 W4 H4 F25:1\nFRAMED\n" + bytes(24), "no FRAME line"),
}


def prepare():
    zorcc("chart good.png --size 64x48")
    zorcc("chart other.png --size 64x47")
    for line in ("good.png good.jpg", "good.png good.ppm", "good.png good.y4m", "good.y4m good.yuv",
                 "good.png 444.y4m --to yuv444p"):
        zorcc("convert", *line.split())
    for name, (content, _) in UNREADABLE.items():
        write(name, content)
    write("tiny.pgm", b"P5 4 4 255\n" + bytes(16))
    frame, jpeg = read("good.yuv"), read("good.jpg")
    write_y4m("two.y4m", 64, 48, [frame, frame])
    write_y4m("cut_second.y4m", 64, 48, [frame, frame[:-1]])
    write("cut.png", read("good.png")[:-100])
    write("cut.jpg", jpeg[:-100])
    frame_header = jpeg.index(b"\xff\xc0")
    write("large.jpg", jpeg[:frame_header + 5] + b"\xff\xff\xff\xff" + jpeg[frame_header + 9:])
    os.mkdir("folder.png")
    for kind in ("ppm", "png", "jpg", "y4m"):
        os.symlink("/dev/full", "full." + kind)


C3 = "zoriRGBToYUV420_8u_C3P3R"
P3 = "zoriYUV420ToRGB_8u_P3C3R"
RAW = "--format yuv420p good.yuv out.png --size"

# Command lines by what the line on stderr holds: those that fail at work, some with a result that exists
# and must stay as it is, and those that are not understood.
FAILING = {
    **{f"{name}: {text}": f"convert {name} out.png" for name, (_, text) in UNREADABLE.items()},
    **{f"full.{kind}: ": f"convert good.png full.{kind}" for kind in ("ppm", "png", "jpg", "y4m")},
    "good.png: zoriReduceBits_8u_C3R: this number of levels is not supported": "reduce good.png out.png --levels 257",
    "good.y4m: cannot reduce yuv420p": "reduce good.y4m out.png",
    "good.png: a picture of 8 bits cannot be reduced to 16": "reduce good.png out.png --depth 16",
    "missing.png: No such file": ("convert missing.png out.png", "compare good.png missing.png",
                                  "sheet out.png good.png missing.png", "reduce missing.png out.png"),
    "missing.pgm: No such file": "demosaic missing.pgm out.png",
    "cut.png: the file ends early": "convert cut.png other.png",
    "cut.jpg: Premature end": "convert cut.jpg out.png",
    "cut_second.y4m: the file ends early": ("convert cut_second.y4m two.y4m", "convert cut_second.y4m out_%d.png"),
    "good.yuv: the file ends early": (f"convert {RAW} 64x49", f"convert {RAW} 64x47"),
    "good.yuv: ": (f"convert {RAW} {HUGE}x{HUGE}", f"convert --size {HUGE}x{HUGE} --format rgba good.yuv out.png"),
    "large.jpg: ": "convert large.jpg out.png",
    "other.png: there is more than one picture": "convert two.y4m other.png",
    "out.y4m: Y4M holds YUV": ("convert good.y4m out.y4m --to rgb24", "chart out.y4m"),
    "out.y4m: Y4M holds YUV, and the picture is hls24: use .raw": "convert good.png out.y4m --to hls24",
    "out.y4m: Y4M holds no chroma of i410: ": "convert --size 8x8 --format i410 good.yuv out.y4m --to i410",
    "out.png: this kind of file holds RGB": (
        "convert good.png out.png --to hsv24", "convert good.png out.png --to yuv444p", f"call {C3} good.png out.png"),
    "out.pgm: PGM holds grey": "convert good.png out.pgm",
    "good.png: no conversion leads to bt2020 of limited range; the nearest that there is: bt601":
        "convert good.png out.y4m --matrix bt2020",
    "good.png: --dither is for pixels of 16 bits": "convert good.png out.y4m --dither",
    "good.png: deinterlacing takes 4:2:0, and the picture is rgb24\n": "convert good.png out.y4m --deinterlace",
    "nowhere/out.png: No such file": "convert good.png nowhere/out.png",
    "good.jpg/out.png: Not a directory": "convert good.png good.jpg/out.png",
    "folder.png: Is a directory": ("convert folder.png out.png", "convert good.png folder.png"),
    "/proc/out.png: ": "convert good.png /proc/out.png",
    "good.png: the file holds rgb24, but zoriHLSToRGB_8u_C3R": "call zoriHLSToRGB_8u_C3R good.png out.png",
    f"good.y4m: the file holds yuv420p, but {C3} takes rgb24": f"call {C3} good.y4m out.y4m",
    f"good.png: the file holds rgb24, but {P3} takes yuv420p: give a Y4M": f"call {P3} good.png out.png",
    "444.y4m: the file holds yuv444p": f"call {P3} 444.y4m out.png",
    f"good.yuv: the file is by another matrix than {P3} takes":
        f"call {P3} --size 64x48 --format yuv420p_bt709 good.yuv out.png",
    "nowhere/u.pgm: ": f"call {C3} good.png y.pgm nowhere/u.pgm v.pgm",
    "good.png, other.png: sizes differ: 64x48 and 64x47": "compare good.png other.png",
    "good.png, good.y4m: one holds": "compare good.png good.y4m",
    "good.y4m: has only 1 picture": "compare good.y4m two.y4m",
    "good.png: the file holds rgb24, but a mosaic is a grey PGM": "demosaic good.png out.png",
    "tiny.pgm: zoriDemosaicAHD_8u_C1C3R: the picture is too small": "demosaic tiny.pgm out.png",
    "good.y4m: the file holds yuv420p: convert it to RGB": (
        "twist good.y4m out.png --matrix swap", "grey good.y4m out.png", "gamma good.y4m out.png"),
    "good.png: the file holds rgb24, but tone mapping takes a grey PFM": "tonemap good.png out.png",
    "tiny.pgm: the region is not in the picture": "call zoriCFAToRGB_8u_C1C3R tiny.pgm out.png --region 3,0,2,2",
    "none_%d.png: No such file": "convert none_%d.png out.y4m",
    "out.png: ": f"chart out.png --size {HUGE}x{HUGE}",
    "nothing_of_the_kind: ": "list nothing_of_the_kind",
}
MISUSED = {
    "which command?": ("", "--threads 2"),
    "no command 'paint'": "paint",
    "no command 'convrt'; did you mean convert": ("convrt good.png out.png", "help convrt"),
    "OUT": ("convert good.png", f"call {C3} good.png"),
    "IN": "sheet out.png",
    "out.gif: write which kind of file? Name it, or say --as, one of png jpg": (
        "convert good.png out.gif", "chart out.gif"),
    "out: ": "convert good.png out",
    "Say --as one of png jpg": "convert good.png -",
    "--as: 'gif' is none of png jpg": "convert good.png out.png --as gif",
    "--to": "convert good.png out.raw",
    "unknown format yuv42p; the nearest is yuv422p": "convert good.png out.y4m --to yuv42p",
    "unknown matrix bt79; the nearest is bt709": "convert good.png out.yuv --matrix bt79",
    "good.yuv: a headerless file needs --size": "convert good.yuv out.png",
    "--format": "convert --size 64x48 good.yuv out.png",
    "--size": ("convert --format yuv420p good.png out.png",
               *(f"convert {RAW} {size}" for size in ("64", "0x48", "-4x4", "64x48x2", "4294967297x48"))),
    **{f"--{option}": [f"{command} good.png out.png --{option} {value}" for value in values.split()]
       for command, option, values in (
           ("convert", "quality", "3"), ("convert", "repeat", "0"), ("convert", "threads", "0 many"),
           ("reduce", "levels", "1"), ("reduce", "noise", "101"), ("demosaic", "method", "best"),
           ("grey", "weights", "1,2 1,2,x"), ("twist", "matrix", "sepi saturation= 1;2;3"))},
    "'best' is none of none, ordered, fs, jjn, stucki": "reduce good.png out.png --dither best",
    "'rgb' is none of bggr, rggb, gbrg, grbg": "demosaic good.png out.png --grid rgb",
    "no function zoriNothing": "call zoriNothing good.png out.png",
    "no function zoriRGBToYUV_8u_C3; did you mean zoriRGBToYUV_8u_C3": "call zoriRGBToYUV_8u_C3 good.png out.yuv",
    "takes no arguments": [f"call {C3} good.png out.yuv {more}" for more in ("--levels 3", "--region 0,0,1,1")],
    "'many' is no number": "call zoriReduceBits_8u_C3R good.png out.png --levels many",
    "takes noise, method, levels": "call zoriReduceBits_8u_C3R good.png out.png --alpha 3",
    "name one file, or 3": f"call {C3} good.png y.pgm u.pgm",
}


class Errors(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        prepare()

    def assert_fails(self, line, code, text):
        state = lambda: {name: os.lstat(name).st_mtime_ns for name in os.listdir() if not os.path.islink(name)}
        before = state()
        result = run(line)
        self.assertEqual((result.returncode, result.stdout), (code, ""), result)
        self.assertRegex(result.stderr, r"^zorcc: [^\n]{1,200}\n$")
        self.assertIn(text, result.stderr)
        self.assertEqual(state(), before)

    def test_message_and_exit_code(self):
        for code, table in ((FAILED, FAILING), (USAGE, MISUSED)):
            for text, lines in table.items():
                for line in [lines] if isinstance(lines, str) else lines:
                    with self.subTest(line):
                        self.assert_fails(line, code, text)

    def test_every_cut(self):
        for name in GOOD:
            content = read(name)
            for cut in (0, 1, 2, 3, 7, 8, 9, 20, 33, 40, len(content) // 3, len(content) - 13, len(content) - 2):
                with self.subTest(name=name, cut=cut):
                    write("prefix", content[:cut])
                    self.assert_fails("convert prefix out.png", FAILED, "prefix: ")

    def test_a_signal_removes_what_is_unfinished(self):
        frame = read("two.y4m").split(b"\n", 1)[0] + b"\nFRAME\n" + read("good.yuv")
        os.mkfifo("pipe")
        os.mkdir("fresh")
        for which, ending in (("out.y4m", signal.SIGTERM), ("out_%d.png", signal.SIGINT), ("out.yuv", signal.SIGHUP)):
            with self.subTest(signal=ending):
                process = subprocess.Popen([ZORCC, "convert", "pipe", "fresh/" + which], env=ENVIRONMENT)
                with open("pipe", "wb") as pipe:
                    pipe.write(frame)
                    pipe.flush()
                    deadline = time.monotonic() + 60
                    while not os.listdir("fresh") and time.monotonic() < deadline:
                        time.sleep(0.01)
                    self.assertEqual(len(os.listdir("fresh")), 1)
                    process.send_signal(ending)
                    process.wait(60)
                self.assertEqual(process.returncode, -ending)
                self.assertEqual(os.listdir("fresh"), [])
