# SPDX-License-Identifier: MIT
"""What the commands do with sound files."""
import math
import re
import struct
import unittest

from files import *


def smooth(width, height):
    """A gradient whose neighbouring pixels hardly differ, so that shared chroma loses little."""
    across, down = max(width, 64), max(height, 64)
    return bytes(value for y in range(height) for x in range(width)
                 for value in (40 + 150 * x // across, 60 + 140 * y // down, 200 - 120 * (x + y) // (across + down)))


def psnr(a, b):
    squares = sum((p - q) ** 2 for p, q in zip(a, b, strict=True))
    return math.inf if squares == 0 else 10 * math.log10(255 ** 2 * len(a) / squares)


# Formats of the functions that take YUV to YUV (layouts_test.py).
MOVED = {"i422", "yv16", "i420", "yv12", "i411", "i410", "nv12", "nv11", "yuy2", "uyvy", "yvyu"}


class List(unittest.TestCase):
    def test_shows_every_row_of_the_table(self):
        table = read(os.path.join(SOURCE, "interface/functions.def")).decode()
        rows = re.findall(r"^ZOR_FUNCTION\((\w+)", table, re.MULTILINE)
        self.assertGreaterEqual(len(rows), 33)
        self.assertEqual([row[0] for row in functions()], rows)

    def test_columns_line_up(self):
        lines = zorcc("list").splitlines()
        family = "RGB and YUV"
        self.assertEqual(len({len(line) for line in lines if line.endswith(family)}), 1)

    def test_patterns(self):
        names = lambda pattern: [line.split()[0] for line in zorcc("list", pattern).splitlines()]
        everything = [row[0] for row in functions()]
        self.assertEqual(names("YUV420To"), [name for name in everything if "YUV420To" in name])
        self.assertEqual(names("*_P3R"), [name for name in everything if name.endswith("_P3R")])
        self.assertEqual(len(names("RGB and YUV")), 33)


class Call(unittest.TestCase):
    def test_every_function_there_and_back(self):
        """Each function's result, converted back or compared as it is, is the picture it came from."""
        write_ppm("smooth.ppm", 64, 48, smooth(64, 48))
        conversions = [row for row in functions() if "To" in row[0] and not row[1].startswith("bayer")]
        made = {destination for name, source, destination in conversions}
        for name, source, destination in conversions:
            with self.subTest(name):
                if source in MOVED:
                    continue
                to_rgb = name.split("_")[0].endswith(("ToRGB", "ToBGR"))
                if to_rgb and source not in made:
                    # No function makes the format: what is grey must come out grey.
                    samples = 3 if "444" in source else 2 if "422" in source else 1.5
                    write("source.yuv", bytes([128]) * int(64 * 48 * samples))
                    zorcc("call", name, "--size", "64x48", "source.yuv", "result.ppm")
                    pixels = read_pnm("result.ppm")[3]
                    self.assertEqual(len(set(pixels)), 1)
                    self.assertAlmostEqual(pixels[0], 128, delta=3)
                    continue
                if to_rgb:
                    zorcc("convert", "smooth.ppm", "source.yuv", "--to", source)
                    zorcc("call", name, "--size", "64x48", "source.yuv", "result.png")
                else:
                    zorcc("call", name, "smooth.ppm", "result.yuv")
                    zorcc("convert", "--size", "64x48", "--format", destination, "result.yuv", "result.png",
                          "--to", "rgb24")
                found = compare("smooth.ppm", "result.png")["all"][0]
                self.assertGreater(found, 33 if "565" in name else 40)

    def test_planes(self):
        write_ppm("colours.ppm", 3, 1, [255, 255, 255, 0, 0, 255, 255, 0, 0])
        zorcc("call", "zoriRGBToYUV_8u_C3P3R", "colours.ppm", "y.pgm", "u.pgm", "v.pgm")
        self.assertEqual([list(read_pnm(f)[3]) for f in ("y.pgm", "u.pgm", "v.pgm")],
                         [[255, 29, 76], [128, 239, 90], [128, 102, 255]])

    def test_alpha(self):
        pixels = [[(255, 0, 0, 7), (0, 0, 255, 200)]]
        write_png("alpha.png", pixels, 8, RGB_ALPHA)
        zorcc("call", "zoriRGBToYUV_8u_AC4R", "alpha.png", "kept.yuv")
        self.assertEqual(list(read("kept.yuv")), [76, 90, 255, 255, 29, 239, 102, 255])
        zorcc("call", "zoriRGBToYUV_8u_AC4P4R", "alpha.png", "copied.yuv")
        self.assertEqual(list(read("copied.yuv")), [76, 29, 90, 239, 255, 102, 7, 200])
        write("grey.yuv", bytes([9, 99, 128, 128]))
        zorcc("call", "zoriYUV422ToRGB_8u_P3AC4R", "--size", "2x1", "grey.yuv", "zero.png")
        self.assertEqual(read_png("zero.png"), (8, RGB_ALPHA, [[(9, 9, 9, 0), (99, 99, 99, 0)]]))

    def test_rearranges_the_input(self):
        write_ppm("colours.ppm", 2, 2, [255, 0, 0, 0, 255, 0, 0, 0, 255, 77, 88, 99])
        zorcc("call", "zoriRGBToYUV420_8u_C3P3R", "colours.ppm", "c3.yuv")
        zorcc("call", "zoriRGBToYUV420_8u_P3R", "colours.ppm", "p3.yuv")
        zorcc("call", "zoriBGRToYUV420_8u_AC4P3R", "colours.ppm", "bgra.yuv")
        self.assertLessEqual(max(abs(p - q) for p, q in zip(read("c3.yuv"), read("p3.yuv"), strict=True)), 1)
        self.assertEqual(read("p3.yuv"), read("bgra.yuv"))
        # 5-6-5: cut down to the top bits, red lowest.
        write_ppm("cut.ppm", 2, 2, 4 * [255, 255, 255])
        zorcc("call", "zoriRGB565ToYUV420_16u8u_C3P3R", "cut.ppm", "cut.yuv")
        luma = (19595 * 248 + 38470 * 252 + 7471 * 248) >> 16
        self.assertEqual(list(read("cut.yuv")[:4]), 4 * [luma])

    def test_odd_size_stays_as_it_is_and_warns_once(self):
        frame = bytes(range(15)) + bytes(12 * [128])
        write_y4m("odd.y4m", 3, 5, [frame, frame])
        result = run("call", "zoriYUV420ToRGB_8u_P3C3R", "odd.y4m", "odd_%d.ppm")
        self.assertEqual(result.returncode, 0)
        self.assertRegex(result.stderr, r"^zorcc: warning: odd.y4m: odd size 3x5: [^\n]*\n$")
        for path in ("odd_1.ppm", "odd_2.ppm"):
            grey = [0 if x == 2 or y == 4 else 3 * y + x for y in range(5) for x in range(3)]
            self.assertEqual(list(read_pnm(path)[3]), [value for value in grey for _ in range(3)])
        write_ppm("odd.ppm", 3, 5, bytes(45))
        self.assertEqual(run("call", "zoriRGBToYUV420_8u_C3P3R", "odd.ppm", "odd.yuv").returncode, 0)
        self.assertEqual(len(read("odd.yuv")), 15 + 2 * 2)

    def test_headerless_in_the_functions_own_format(self):
        write("pair.yuv", bytes([10, 128, 20, 128]))
        zorcc("call", "zoriYUV422ToRGB_8u_C2C3R", "--size", "2x1", "pair.yuv", "pair.ppm")
        self.assertEqual(list(read_pnm("pair.ppm")[3]), [10, 10, 10, 20, 20, 20])


class Stats(unittest.TestCase):
    def test_one_line(self):
        zorcc("chart", "c.png", "--size", "320x200")
        write("grey.pgm", b"P5\n320 200\n255\n" + bytes(320 * 200))
        commands = {"call zoriRGBToYUV420_8u_C3P3R c.png c.y4m": "zoriRGBToYUV420_8u_C3P3R",
                    "reduce c.png r.png": "zoriReduceBits_8u_C3R",
                    "demosaic grey.pgm d.png --method gradient": "zoriCFAToRGB_8u_C1C3R",
                    "convert c.png c.y4m": "zoriRGBToYUV420_8u_C3P3R"}
        for command, function in commands.items():
            for option in ("--stats", "-v", "--verbose"):
                with self.subTest(command=command, option=option):
                    line = zorcc(*command.split(), "--repeat", "3", option)
                    self.assertRegex(line, "^" + function + r": 1 picture of 320x200, "
                                                            r"[0-9.]+ megapixels/s \(best of 3\)\n$")


class Reduce(unittest.TestCase):
    RAMP = bytes(range(256)) * 16
    METHODS = ("none", "ordered", "fs", "jjn", "stucki")

    def reduced(self, source, result, *options):
        zorcc("reduce", source, result, *options)
        return read_pnm(result)[3]

    def test_levels_and_mean(self):
        write("ramp.pgm", b"P5\n256 16\n255\n" + self.RAMP)
        results = set()
        for method in self.METHODS:
            for levels, values in ((2, {0, 255}), (4, {0, 85, 170, 255}), (16, set(range(0, 256, 17)))):
                samples = self.reduced("ramp.pgm", "out.pgm", "--levels", str(levels), "--dither", method)
                self.assertEqual(set(samples), values)
                self.assertAlmostEqual(sum(samples) / len(samples), 127.5, delta=2)
                results.add(bytes(samples))
        self.assertEqual(len(results), 15)

    def test_plain_ignores_noise_and_the_others_do_not(self):
        write("ramp.pgm", b"P5\n256 16\n255\n" + self.RAMP)
        for method in self.METHODS:
            plain = self.reduced("ramp.pgm", "plain.pgm", "--dither", method)
            noisy = self.reduced("ramp.pgm", "noisy.pgm", "--dither", method, "--noise", "50")
            self.assertEqual(plain == noisy, method == "none")

    def test_floyd_steinberg_at_two_levels_by_default(self):
        write("ramp.pgm", b"P5\n256 16\n255\n" + self.RAMP)
        self.assertEqual(self.reduced("ramp.pgm", "usual.pgm"),
                         self.reduced("ramp.pgm", "named.pgm", "--levels", "2", "--dither", "fs", "--noise", "0"))

    def test_colours_and_alpha_of_png(self):
        write_png("rgb.png", [[(0, 100, 200), (255, 127, 128)]], 8, RGB)
        zorcc("reduce", "rgb.png", "out.png", "--dither", "none")
        self.assertEqual(read_png("out.png"), (8, RGB, [[(0, 0, 255), (255, 0, 255)]]))
        write_png("alpha.png", [[(0, 40000, 30000, 12345)]], 16, RGB_ALPHA)
        zorcc("reduce", "alpha.png", "out.png", "--dither", "none", "--levels", "4")
        self.assertEqual(read_png("out.png"), (16, RGB_ALPHA, [[(0, 43690, 21845, 12345)]]))

    def test_words_and_floats(self):
        write("deep.pgm", b"P5\n3 1\n65535\n" + struct.pack(">3H", 1000, 32768, 65535))
        zorcc("reduce", "deep.pgm", "out.pgm", "--dither", "none")
        self.assertEqual(read("out.pgm")[-6:], struct.pack(">3H", 0, 65535, 65535))
        write("float.pfm", b"Pf\n4 1\n-1.0\n" + struct.pack("<4f", -3.0, 0.3, 0.6, math.nan))
        zorcc("reduce", "float.pfm", "out.pfm", "--dither", "none", "--levels", "3")
        for value, wanted in zip(struct.unpack("<4f", read("out.pfm")[-16:]), (0, 0.5, 0.5, 0), strict=True):
            self.assertAlmostEqual(value, wanted, delta=1e-4)

class Convert(unittest.TestCase):
    # Floors in dB for the chart, whose finest details shared chroma cannot hold nor V its purest red, and the gradient.
    FLOORS = {"yuv444p": (30.5, 43), "yuv24": (30.5, 43), "yuv422p": (21.5, 43), "yuyv": (21.5, 43),
              "yuv420p": (20.5, 42)}

    def test_there_and_back(self):
        zorcc("chart", "chart.png", "--size", "640x360")
        write_ppm("smooth.ppm", 200, 100, smooth(200, 100))
        for target, floors in self.FLOORS.items():
            for picture, size, floor in (("chart.png", "640x360", floors[0]), ("smooth.ppm", "200x100", floors[1])):
                with self.subTest(target=target, picture=picture):
                    zorcc("convert", picture, "there.yuv", "--to", target)
                    zorcc("convert", "--size", size, "--format", target, "there.yuv", "back.png")
                    self.assertGreater(compare(picture, "back.png")["all"][0], floor)

    def test_hexcone_models_there_and_back(self):
        """By the function of the format's own samples: wide ones lose nothing."""
        write_ppm("smooth.ppm", 200, 100, smooth(200, 100))
        for target, function, floor in (("hls24", "8u_C3R", 45), ("hsv24", "8u_C3R", 45), ("hls444p", "8u_C3P3R", 45),
                                        ("hls48", "16u_C3R", math.inf), ("hls48s", "16s_C3R", math.inf),
                                        ("hsv48", "16u_C3R", math.inf), ("hlsf32", "32f_C3R", math.inf)):
            with self.subTest(target):
                line = zorcc("convert", "smooth.ppm", "there.raw", "--to", target, "--stats")
                self.assertIn("GBTo" if target != "hls444p" else "BGRTo", line)
                self.assertIn("_" + function + ":", line)
                zorcc("convert", "--size", "200x100", "--format", target, "there.raw", "back.png", "--to", "rgb24")
                self.assertGreaterEqual(compare("smooth.ppm", "back.png")["all"][0], floor)

    def test_odd_sizes_lose_nothing(self):
        for width, height in ((1, 1), (3, 5), (641, 481), (2, 7), (9, 1)):
            write_ppm("odd.ppm", width, height, smooth(width, height))
            for target in ("yuv420p", "yuv422p", "yuv444p"):
                with self.subTest(width=width, height=height, target=target):
                    zorcc("convert", "odd.ppm", "odd.y4m", "--to", target)
                    words, frames = read_y4m("odd.y4m")
                    self.assertEqual((words[1], words[2], len(frames)), ("W%d" % width, "H%d" % height, 1))
                    zorcc("convert", "odd.y4m", "back.ppm")
                    self.assertEqual(read_pnm("back.ppm")[:2], (width, height))
                    found = compare("odd.ppm", "back.ppm")["all"]
                    self.assertGreater(found[0], 40)
                    self.assertLess(found[1], 9)  # a lost last column or row would show here
            for target in ("yuv420p", "yuyv"):
                zorcc("convert", "odd.ppm", "odd.yuv", "--to", target)
                zorcc("convert", "--size", f"{width}x{height}", "--format", target, "odd.yuv", "back.ppm")
                self.assertGreater(compare("odd.ppm", "back.ppm")["all"][0], 40)

    def test_usual_formats(self):
        zorcc("chart", "c.png", "--size", "64x36")
        for target, tag in (("yuv420p", "420jpeg"), ("yuv422p", "422"), ("yuv444p", "444"), ("yuyv", "422")):
            zorcc("convert", "c.png", "c.y4m", "--to", target)
            self.assertIn("C" + tag, read_y4m("c.y4m")[0])
        zorcc("convert", "c.png", "c.y4m")
        words, frames = read_y4m("c.y4m")
        self.assertEqual(words, "YUV4MPEG2 W64 H36 F25:1 Ip A1:1 C420jpeg XCOLORRANGE=FULL".split())
        zorcc("convert", "c.y4m", "c.yuv")
        self.assertEqual(read("c.yuv"), frames[0])
        zorcc("convert", "c.png", "c.rgb")
        zorcc("convert", "c.png", "c.ppm")
        self.assertEqual(read("c.rgb"), read_pnm("c.ppm")[3])
        zorcc("convert", "c.y4m", "bgr.raw", "--to", "bgr24")
        zorcc("convert", "c.y4m", "rgb.raw", "--to", "rgb24")
        self.assertEqual(read("bgr.raw")[0::3], read("rgb.raw")[2::3])

    def test_many_pictures(self):
        frames = [bytes([40 * i + y // 2 for y in range(8 * 6)] + 24 * [100 + i]) for i in range(5)]
        write_y4m("clip.y4m", 8, 6, frames, b"F24000:1001 Ip A1:1 C420mpeg2 XYSCSS=420MPEG2 XCOLORRANGE=LIMITED",
                  b"FRAME Ixyz\n")
        zorcc("convert", "clip.y4m", "copy.y4m")
        words, copied = read_y4m("copy.y4m")
        self.assertEqual(words, "YUV4MPEG2 W8 H6 F24000:1001 Ip A1:1 C420mpeg2 XCOLORRANGE=LIMITED".split())
        self.assertEqual(copied, frames)
        zorcc("convert", "clip.y4m", "frame_%03d.ppm")
        zorcc("convert", "clip.y4m", "clip.rgb")
        pictures = [read_pnm("frame_%03d.ppm" % i)[3] for i in range(1, 6)]
        self.assertFalse(os.path.exists("frame_006.ppm"))
        self.assertEqual(len(set(pictures)), 5)
        self.assertEqual(read("clip.rgb"), b"".join(pictures))
        self.assertEqual(compare("clip.y4m", "copy.y4m")["all"], (math.inf, 0))
        zorcc("convert", "--size", "8x6", "--format", "rgb24", "clip.rgb", "again.y4m")
        self.assertEqual(len(read_y4m("again.y4m")[1]), 5)
        write("joined.ppm", b"".join(read("frame_%03d.ppm" % i) for i in range(1, 6)))
        zorcc("convert", "joined.ppm", "joined.rgb")
        self.assertEqual(read("joined.rgb"), read("clip.rgb"))

    def test_packed_and_planar_422_are_the_same_samples(self):
        packed = bytes(range(2 * 4 * 3))
        zorcc("convert", "--size", "4x3", "--format", "yuyv", write("packed.yuv", packed), "planar.y4m")
        planar = read_y4m("planar.y4m")[1][0]
        self.assertEqual(planar, packed[0::2] + packed[1::4] + packed[3::4])
        zorcc("convert", "planar.y4m", "again.yuv", "--to", "yuyv")
        self.assertEqual(read("again.yuv"), packed)

    def test_packed_bits(self):
        # Blue, green, red: 5-6-5 with red lowest; an odd size is filled up in packed bits, too.
        write("565.raw", struct.pack("<3H", 31 << 11, 63 << 5, 31))
        zorcc("convert", "--size", "3x1", "--format", "rgb565", "565.raw", "565.y4m")
        luma = [19595 * r + 38470 * g + 7471 * b >> 16 for r, g, b in ((0, 0, 248), (0, 252, 0), (248, 0, 0))]
        self.assertEqual(list(read_y4m("565.y4m")[1][0][:3]), luma)
        zorcc("convert", "--size", "3x1", "--format", "rgb565", "565.raw", "copy.raw", "--to", "rgb565")
        self.assertEqual(read("copy.raw"), read("565.raw"))

    def test_result_does_not_depend_on_threads(self):
        zorcc("chart", "c.png", "--size", "300x200")
        for threads in (1, 2, 3, 500):
            zorcc("convert", "c.png", f"c{threads}.y4m", "--threads", threads)
            self.assertEqual(read(f"c{threads}.y4m"), read("c1.y4m"))

    def test_onto_itself_and_through_a_link(self):
        zorcc("chart", "c.ppm", "--size", "20x10")
        os.symlink("c.ppm", "link.ppm")
        zorcc("convert", "link.ppm", "link.ppm")
        self.assertTrue(os.path.islink("link.ppm"))
        self.assertEqual(read_pnm("c.ppm")[:2], (20, 10))


class Files(unittest.TestCase):
    def test_png_kinds(self):
        palette = [(10, 20, 30), (200, 100, 50), (0, 255, 0), (255, 255, 255)]
        index = [[((3 * x + y) % 4,) for x in range(11)] for y in range(9)]
        for interlaced in (False, True):
            def expanded(depth, colour, pixels, **more):
                write_png("in.png", pixels, depth, colour, interlaced, **more)
                zorcc("convert", "in.png", "out.png")
                return read_png("out.png")

            with self.subTest(interlaced=interlaced):
                for depth in (2, 4, 8):
                    self.assertEqual(expanded(depth, PALETTE, index, palette=palette),
                                     (8, RGB, [[palette[i] for (i,) in row] for row in index]))
                alpha = [255, 0, 7, 255]
                self.assertEqual(expanded(2, PALETTE, index, palette=palette, transparent=alpha),
                                 (8, RGB_ALPHA, [[palette[i] + (alpha[i],) for (i,) in row] for row in index]))
                for depth in (1, 2, 4, 8):
                    full = 2 ** depth - 1
                    grey = [[(min(i, full),) for (i,) in row] for row in index]
                    self.assertEqual(expanded(depth, GREY, grey),
                                     (8, GREY, [[(i * 255 // full,) for (i,) in row] for row in grey]))
                pair = [[(50 * i, 255 - i) for (i,) in row] for row in index]
                self.assertEqual(expanded(8, GREY_ALPHA, pair),
                                 (8, RGB_ALPHA, [[(g, g, g, a) for g, a in row] for row in pair]))
                for colour in (GREY, RGB, RGB_ALPHA):
                    deep = [[tuple((x * 5000 + 77 * y + c) % 65536 for c in range(PNG_CHANNELS[colour]))
                             for x in range(11)] for y in range(9)]
                    self.assertEqual(expanded(16, colour, deep), (16, colour, deep))

    def test_sixteen_bits_round_to_eight(self):
        write_png("deep.png", [[(v, v, v) for v in (0, 128, 129, 0x8000, 65406, 65407, 65535)]], 16, RGB)
        zorcc("convert", "deep.png", "deep.rgb", "--to", "rgb24")
        self.assertEqual(list(read("deep.rgb")[::3]), [0, 0, 1, 128, 254, 255, 255])

    def test_pnm_kinds(self):
        for content in (b"P6 2 1 255\n" + bytes([1, 2, 3, 4, 5, 6]),
                        b"P3\n# a comment\n2 1 # another\n255\n1 2 3\n4 5 6\n"):
            zorcc("convert", write("in.ppm", content), "out.ppm")
            self.assertEqual(read_pnm("out.ppm"), (2, 1, 255, bytes([1, 2, 3, 4, 5, 6])))
        zorcc("convert", write("in.pgm", b"P5 3 1 100\n" + bytes([0, 50, 100])), "out.pgm")
        self.assertEqual(read_pnm("out.pgm"), (3, 1, 255, bytes([0, 128, 255])))
        deep = struct.pack(">3H", 1, 256, 65535)
        zorcc("convert", write("in.pgm", b"P5 3 1 65535\n" + deep), "out.pgm")
        self.assertEqual(read_pnm("out.pgm"), (3, 1, 65535, deep))

    def test_pfm(self):
        for order, scale in (("<", b"-1.0"), (">", b"1.0")):
            rows = struct.pack(order + "2f", 0.5, 2) + struct.pack(order + "2f", -1, 1)  # the lower row first
            write("in.pfm", b"Pf\n2 2\n" + scale + b"\n" + rows)
            zorcc("convert", "in.pfm", "out.pfm")
            self.assertEqual(read("out.pfm"), b"Pf\n2 2\n-1.0\n" + struct.pack("<4f", 0.5, 2, -1, 1))
            zorcc("convert", "in.pfm", "out.rgb", "--to", "rgb24")
            self.assertEqual(list(read("out.rgb")[::3]), [0, 255, 128, 255])

    def test_jpeg(self):
        write_ppm("smooth.ppm", 93, 71, smooth(93, 71))
        zorcc("convert", "smooth.ppm", "smooth.jpg")
        zorcc("convert", "smooth.jpg", "smooth.png")
        self.assertGreater(compare("smooth.ppm", "smooth.png")["all"][0], 33)
        zorcc("convert", write("grey.pgm", b"P5 16 16 255\n" + bytes(range(256))), "grey.jpg")
        self.assertGreater(compare("grey.pgm", "grey.jpg")["grey"][0], 40)

    def test_content_decides_not_the_name(self):
        zorcc("chart", "c.png", "--size", "30x20")
        os.rename("c.png", "c.dat")
        zorcc("convert", "c.dat", "c.ppm")
        self.assertEqual(read_pnm("c.ppm")[:2], (30, 20))


class Chart(unittest.TestCase):
    def test_same_bytes_every_time(self):
        for size in ("1280x720", "641x481"):
            zorcc("chart", "a.png", "--size", size)
            zorcc("chart", "b.png", "--size", size)
            self.assertEqual(read("a.png"), read("b.png"))
        zorcc("chart", "default.png")
        zorcc("chart", "a.png", "--size", "1280x720")
        self.assertEqual(read("default.png"), read("a.png"))

    def test_holds_what_it_promises(self):
        zorcc("chart", "c.ppm")
        samples = read_pnm("c.ppm")[3]
        colours = set(zip(samples[0::3], samples[1::3], samples[2::3]))
        self.assertGreater(len(colours), 20000)
        for red in (0, 255):
            for green in (0, 255):
                for blue in (0, 255):
                    self.assertIn((red, green, blue), colours)
        for value in range(256):
            self.assertIn((value, value, value), colours)

    def test_any_size(self):
        for size in ("1x1", "2x1", "1x9", "3x5", "17x13", "64x36", "2000x3"):
            zorcc("chart", "c.ppm", "--size", size)
            self.assertEqual("%dx%d" % read_pnm("c.ppm")[:2], size)


class CompareAndSheet(unittest.TestCase):
    def test_compare_counts_what_python_counts(self):
        a, b = smooth(31, 17), bytearray(smooth(31, 17))
        b[3] += 9
        b[4 + 3 * 31] -= 17
        write_ppm("a.ppm", 31, 17, a)
        write_ppm("b.ppm", 31, 17, b)
        found = compare("a.ppm", "b.ppm")
        for channel, name in enumerate("RGB"):
            self.assertAlmostEqual(found[name][0], psnr(a[channel::3], b[channel::3]), delta=0.006)
        self.assertAlmostEqual(found["all"][0], psnr(a, b), delta=0.006)
        self.assertEqual([found[name][1] for name in ("R", "G", "B", "all")], [9, 17, 0, 17])
        self.assertEqual(found["B"][0], math.inf)

    def test_compare_y4m_over_all_frames(self):
        frames = [bytes(range(i, i + 15)) + bytes(12 * [100]) for i in range(3)]
        write_y4m("a.y4m", 3, 5, frames)
        write_y4m("b.y4m", 3, 5, frames[:2] + [frames[2][:14] + bytes([116]) + frames[2][15:26] + bytes([103])])
        found = compare("a.y4m", "b.y4m")
        self.assertEqual({name: found[name][1] for name in found}, {"Y": 100, "U": 0, "V": 3, "all": 100})
        self.assertAlmostEqual(found["Y"][0], 10 * math.log10(255 ** 2 * 45 / 100 ** 2), delta=0.006)

    def test_compare_alpha_only_where_both_have_it(self):
        write_png("a.png", [[(1, 2, 3, 4)]], 8, RGB_ALPHA)
        write_png("b.png", [[(1, 2, 3, 14)]], 8, RGB_ALPHA)
        write_ppm("c.ppm", 1, 1, [1, 2, 3])
        self.assertEqual(compare("a.png", "b.png")["A"][1], 10)
        self.assertEqual(compare("a.png", "c.ppm"), {name: (math.inf, 0) for name in ("R", "G", "B", "all")})

    def test_sheet(self):
        write_ppm("a.ppm", 2, 3, 6 * [1, 2, 3])
        write_ppm("b.ppm", 1, 1, [4, 5, 6])
        zorcc("sheet", "s.ppm", "a.ppm", "b.ppm")
        width, height, _, samples = read_pnm("s.ppm")
        self.assertEqual((width, height), (2 + 8 + 1, 3))
        self.assertEqual(samples[:33], bytes([1, 2, 3, 1, 2, 3] + 24 * [32] + [4, 5, 6]))
        self.assertEqual(samples[33:66], bytes([1, 2, 3, 1, 2, 3] + 27 * [32]))


class Help(unittest.TestCase):
    def test_help_and_version(self):
        self.assertIn("libzorccn8.so.6.1", zorcc("--version"))
        for command in ("list", "call", "convert", "chart", "compare", "sheet"):
            self.assertIn(command, zorcc("--help"))
            self.assertRegex(zorcc(command, "--help"), r"Examples?:\n  zorcc " + command)


if __name__ == "__main__":
    unittest.main()
