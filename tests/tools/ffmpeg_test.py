# SPDX-License-Identifier: MIT
"""Files mean the same in another program: Y4M of every matrix, all formats that both know, pipes. Skipped where ffmpeg
is not installed."""
import itertools
import random
import re
import sys
import unittest

from files import *

if not shutil.which("ffmpeg"):
    print("skipped: ffmpeg is not installed")
    sys.exit(77)  # what ctest takes for a skipped test

# By matrix: how ffmpeg names it, and its range.
MATRICES = {"bt601": ("bt601", "limited"), "bt709": ("bt709", "limited"), "bt709full": ("bt709", "full")}


def ffmpeg(line):
    subprocess.run(["ffmpeg", "-v", "error", "-y", *line.split()], check=True, stdin=subprocess.DEVNULL)


class Ffmpeg(unittest.TestCase):
    def check(self, original, matrix, to, floor):
        zorcc("convert", original, "original.ppm")
        zorcc("convert", original, "picture.y4m", "--matrix", matrix, "--to", to)
        # As ffmpeg shows it, without dithering or shortcuts in chroma.
        name, value_range = MATRICES[matrix]
        scale = f"scale=in_color_matrix={name}:in_range={value_range}:flags=accurate_rnd+full_chroma_int+bilinear"
        ffmpeg(f"-i picture.y4m -vf {scale} -pix_fmt rgb24 decoded.ppm")
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


# Red, green and blue, alpha and grey, with the type of their samples, and of those of 16 bits a pixel the PSNR that is
# left of the bits that are not there.
RGB_FORMATS = {"rgb24": "B", "bgr24": "B", "rgba": "B", "bgra": "B", "argb": "B", "abgr": "B", "gbrp": "B",
               "gbrap": "B", "rgb48le": "H", "bgr48le": "H", "rgba64le": "H", "bgra64le": "H", "gray": "B",
               "gray16le": "H", "grayf32le": "f"}
PACKED_BITS = {"rgb565le": 30, "bgr565le": 30, "rgb555le": 30, "bgr555le": 30, "rgb444le": 23, "bgr444le": 23}
# Luma and chroma, by what shares a sample of chroma.
SAMPLINGS = {"yuv420p": ("yuv420p", "nv12", "nv21", "yuva420p"), "yuv411p": ("yuv411p",),
             "yuv422p": ("yuv422p", "nv16", "yuyv422", "uyvy422", "yvyu422", "yuva422p"),
             "yuv444p": ("yuv444p", "nv24", "nv42")}
YUV_FORMATS = [name for names in SAMPLINGS.values() for name in names]
# By name: whether ffmpeg converts it both ways.
FFMPEG = {name: flags.startswith("IO") for flags, name in re.findall(
    r"^([IOHPB.]{5}) (\w+) ", subprocess.run("ffmpeg -v error -pix_fmts".split(), check=True, capture_output=True,
                                            text=True).stdout, re.M)}
SIZE = "64x48"
RAW = f"-f rawvideo -s {SIZE} -pix_fmt"
# Exact, with chroma repeated and left out as the library does for pictures of blocks of one colour.
SCALE = "scale=flags=neighbor+accurate_rnd+full_chroma_int+full_chroma_inp:sws_dither=none"


def raw_psnr(a, b, kind="B"):
    """Of files with samples of a type of the array module"""
    peak = {"B": 255, "H": 65535, "f": 1}[kind]
    return psnr(*([value / peak for value in array.array(kind, read(path))] for path in (a, b)))


class Formats(unittest.TestCase):
    """Both programs make a format of the same picture, and the same picture of a format."""
    def setUp(self):
        dice = random.Random(1)
        colours = [[(dice.randrange(256), dice.randrange(256), dice.randrange(256)) for _ in range(16)]
                   for _ in range(24)]  # blocks of 4 x 2 pixels
        write_pnm("blocks.ppm", 64, 48, [v for y in range(48) for x in range(64) for v in colours[y // 2][x // 4]])
        write("blocks.raw", read_pnm("blocks.ppm")[3])

    def check(self, formats, to_format, to_rgb, matrix=""):
        """formats: {name: sample type, least PSNR of the files and of the pictures that are made of them}"""
        formats = {name: values for name, values in formats.items() if FFMPEG[name]}
        encode = f"{RAW} rgb24 -i blocks.raw"
        for name in formats:
            encode += f" -vf {SCALE}{to_format} -pix_fmt {name} -f rawvideo ffmpeg_{name}.raw"
        ffmpeg(encode)
        decode = "".join(f" {RAW} {name} -i ffmpeg_{name}.raw" for name in formats)
        for number, name in enumerate(formats):
            decode += f" -map {number} -vf {SCALE}{to_rgb} -pix_fmt rgb24 -f rawvideo ffmpeg_{name}.rgb"
        ffmpeg(decode)
        for name, (kind, files, pictures) in formats.items():
            with self.subTest(name, matrix=matrix):
                zorcc(f"convert --size {SIZE} --format rgb24 blocks.raw tool.raw --to {name} {matrix}")
                self.assertGreaterEqual(raw_psnr("tool.raw", f"ffmpeg_{name}.raw", kind), files)
                zorcc(f"convert --size {SIZE} --format {name} ffmpeg_{name}.raw tool.rgb --to rgb24 {matrix}")
                self.assertGreaterEqual(raw_psnr("tool.rgb", f"ffmpeg_{name}.rgb"), pictures)

    def test_red_green_blue(self):
        # ffmpeg takes 16 bits for 15 on the way.
        floor = lambda name, kind: math.inf if kind == "B" and name != "gray" else 50
        self.check({name: (kind, floor(name, kind), floor(name, kind)) for name, kind in RGB_FORMATS.items()},
                   ":out_color_matrix=bt601:out_range=full", ":in_color_matrix=bt601:in_range=full")

    def test_packed_bits(self):
        # Fields of 4 bits are dithered by ffmpeg all the same.
        self.check({name: ("H", 50 if "444" in name else math.inf, floor) for name, floor in PACKED_BITS.items()}, "", "")

    def test_luma_and_chroma(self):
        for matrix in ("bt601", "bt709"):
            there = [name for name in YUV_FORMATS if matrix == "bt601" or name in SAMPLINGS["yuv420p"]]
            # The library's function to UYVY filters chroma, whose samples it takes to lie on the first pixel of a pair.
            self.check({name: ("B", 30 if name == "uyvy422" else 50, 50) for name in there}, f":out_color_matrix={matrix}:out_range=limited",
                       f":in_color_matrix={matrix}:in_range=limited", "--matrix " + matrix)

    def test_layouts_of_one_sampling_lose_nothing(self):
        for base, names in SAMPLINGS.items():
            ffmpeg(f"{RAW} rgb24 -i blocks.raw -pix_fmt {base} -f rawvideo base.raw")
            for name in filter(FFMPEG.get, names):
                with self.subTest(name):
                    ffmpeg(f"{RAW} {base} -i base.raw -pix_fmt {name} -f rawvideo there.raw")
                    zorcc(f"convert --size {SIZE} --format {base} base.raw tool.raw --to {name}")
                    self.assertEqual(read("tool.raw"), read("there.raw"))
                    zorcc(f"convert --size {SIZE} --format {name} there.raw back.raw --to {base}")
                    self.assertEqual(read("back.raw"), read("base.raw"))

    @unittest.skipIf(SANITIZED, "two hundred starts for names alone")
    def test_no_format_is_forgotten(self):
        """Those of ffmpeg that the tool knows are in the tables above, but for full range by name."""
        tabled = {*RGB_FORMATS, *PACKED_BITS, *YUV_FORMATS}
        moved = {"yuv410p", "yuv440p", "yuva444p"}  # no function makes them of colours
        write("none.raw", b"")
        for name in FFMPEG:
            known = "unknown format" not in run(f"convert --size 4x4 --format {name} none.raw out.ppm").stderr
            self.assertEqual(known, name in tabled | moved or name.startswith("yuvj"), name)


class Pipes(unittest.TestCase):
    def test_from_ffmpeg_and_back(self):
        source = "-f lavfi -i testsrc=size=66x50:rate=25 -frames:v 7 -pix_fmt yuv420p -f yuv4mpegpipe"
        ffmpeg(source + " clip.y4m")
        with subprocess.Popen(f"ffmpeg -v error {source} -".split(), stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE) as pipe:
            run("convert - out.y4m", stdin=pipe.stdout)
        self.assertEqual(read_y4m("out.y4m")[1], read_y4m("clip.y4m")[1])
        with subprocess.Popen([ZORCC, "convert", "clip.y4m", "-", "--as", "y4m"], stdout=subprocess.PIPE,
                              env=ENVIRONMENT) as pipe:
            subprocess.run("ffmpeg -v error -y -f yuv4mpegpipe -i - -f rawvideo back.yuv".split(), stdin=pipe.stdout,
                           check=True)
        self.assertEqual(read("back.yuv"), b"".join(read_y4m("clip.y4m")[1]))
