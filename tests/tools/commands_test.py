# SPDX-License-Identifier: MIT
"""What the commands do with sound files."""
import itertools
import random
import re
import unittest

from files import *


def smooth(width, height):
    """A gradient whose neighbouring pixels hardly differ, so that shared chroma loses little."""
    across, down = max(width, 64), max(height, 64)
    return bytes(value for y in range(height) for x in range(width)
                 for value in (40 + 150 * x // across, 60 + 140 * y // down, 200 - 120 * (x + y) // (across + down)))


def there_and_back(picture, target, size):
    """What the tool prints on the way to a headerless file of another format, and the PSNR of what comes back"""
    printed = zorcc("convert", picture, "there.raw", "--stats", "--to", target)
    zorcc(f"convert --size {size} --format {target} there.raw back.ppm --to rgb24")
    return printed, psnr(unit_samples(picture), unit_samples("back.ppm"))


class List(unittest.TestCase):
    def test_shows_every_row_of_the_table_in_columns_and_finds_patterns(self):
        source = lambda path: read(os.path.join(SOURCE, path)).decode()
        table = "".join(map(source, re.findall(r'#include "(.*)"', source("interface/functions.def"))))
        rows = re.findall(r"^ZOR_FUNCTION\((\w+)", table, re.MULTILINE)
        names = lambda *pattern: [line.split()[0] for line in zorcc("list", *pattern).splitlines()]
        self.assertEqual(names(), rows)
        self.assertEqual(names("YUV420To"), [name for name in rows if "YUV420To" in name])
        self.assertEqual(names("*_P3R"), [name for name in rows if name.endswith("_P3R")])
        lines = zorcc("list", "RGB and YUV").splitlines()
        self.assertEqual((len(lines), len({len(line) for line in lines})), (33, 1))


class Call(unittest.TestCase):
    def test_every_function_there_and_back(self):
        """Each function's result, converted back or compared as it is, is the picture it came from."""
        write_pnm("rgb24.ppm", 64, 48, smooth(64, 48))
        zorcc("convert rgb24.ppm rgb48.ppm --to rgb48")
        original, kinds = unit_samples("rgb24.ppm"), set()
        for name, source, destination in (line.split()[:3] for line in zorcc("list").splitlines()):
            if source.startswith("bayer") or not re.search(r"(RGB|BGR|5[56]5)To|To(RGB|BGR|SBGR)", name):
                continue
            # Grey is another picture, gamma takes linear light, and no function makes 4:4:4 of BT.709.
            if re.search("ToGray|Gamma|YCbCrToBGR_709CSC", name):
                continue
            # Under sanitizers one function of each pair of layouts, such as 8u_C3P3R.
            kind = name.split("_", 1)[1] if SANITIZED else name
            if kind in kinds:
                continue
            kinds.add(kind)
            depth = "rgb48" if "SBGR" in name else "rgb24"
            with self.subTest(name):
                if source.startswith(("rgb", "bgr")):
                    zorcc("call", name, "rgb24.ppm", "result.yuv")
                    zorcc(f"convert --size 64x48 --format {destination} result.yuv back.ppm --matrix yuv --to {depth}")
                else:
                    given = f"{source}_{depth}.yuv"
                    if not os.path.exists(given):
                        zorcc(f"convert {depth}.ppm {given} --matrix yuv --to {source}")
                    zorcc(f"call {name} --size 64x48 {given} back.ppm")
                # To PhotoYCC and back makes colours darker by 3 %: its coefficients are rounded like that.
                floor = 27 if "444" in name else 32 if re.search("5[56]5|YCC", name) else 38
                self.assertGreater(psnr(original, unit_samples("back.ppm")), floor)

    def test_known_pixels(self):
        """Planes, alpha and rearranged inputs, by the luma weights 19595, 38470 and 7471 of 65536."""
        write_pnm("row.ppm", 3, 1, [255, 255, 255, 0, 0, 255, 255, 0, 0])
        write_pnm("square.ppm", 2, 2, [255, 0, 0, 0, 255, 0, 0, 0, 255, 255, 255, 255])
        write_png("alpha.png", [[(255, 0, 0, 7), (0, 0, 255, 200)]], 8, RGB_ALPHA)
        write("grey.yuv", bytes([9, 99, 128, 128]))
        write("red.yuv", bytes([63, 102, 240]))
        for line, *expected in (
                ("zoriRGBToYUV_8u_C3P3R row.ppm y.pgm u.pgm v.pgm", [128, 102, 255], [128, 239, 90], [255, 29, 76]),
                ("zoriRGBToYUV_8u_AC4R alpha.png kept.yuv", [76, 90, 255, 255, 29, 239, 102, 255]),
                ("zoriRGBToYUV_8u_AC4P4R alpha.png copied.yuv", [76, 29, 90, 239, 255, 102, 7, 200]),
                ("zoriYUV422ToRGB_8u_P3AC4R --size 2x1 grey.yuv zero.png", [9, 9, 9, 0, 99, 99, 99, 0]),
                ("zoriRGBToYUV420_8u_P3R square.ppm planes.yuv", [76, 149, 29, 255]),
                ("zoriBGRToYUV420_8u_AC4P3R square.ppm bgra.yuv", [76, 149, 29, 255]),
                ("zoriYCbCrToBGR_709CSC_8u_P3C3R --size 1x1 red.yuv red.ppm", [255, 0, 0]),
                ("zoriYCbCrToBGR_709CSC_8u_P3C4R --size 1x1 red.yuv red.ppm", [255, 0, 0]),
                # 5-6-5: cut down to the top bits, red lowest.
                ("zoriRGB565ToYUV420_16u8u_C3P3R square.ppm cut.yuv", [74, 147, 28, 250])):
            with self.subTest(line):
                zorcc("call", *line.split())
                for wanted, path in zip(expected, reversed(line.split())):
                    self.assertEqual(samples(path)[:len(wanted)], wanted)
        self.assertEqual(read("planes.yuv"), read("bgra.yuv"))

    def test_odd_size_stays_as_it_is_and_warns_once(self):
        frame = bytes(range(15)) + bytes(12 * [128])
        write_y4m("odd.y4m", 3, 5, [frame, frame])
        result = run("call zoriYUV420ToRGB_8u_P3C3R odd.y4m odd_%d.ppm")
        self.assertEqual(result.returncode, 0)
        self.assertRegex(result.stderr, r"^zorcc: warning: odd.y4m: odd size 3x5: [^\n]*\n$")
        grey = [0 if x == 2 or y == 4 else 3 * y + x for y in range(5) for x in range(3)]
        for path in ("odd_1.ppm", "odd_2.ppm"):
            self.assertEqual(samples(path), [value for value in grey for _ in range(3)])
        self.assertEqual(run("call zoriRGBToYUV420_8u_C3P3R odd_1.ppm odd.yuv").returncode, 0)
        self.assertEqual(len(read("odd.yuv")), 15 + 2 * 2)


class Stats(unittest.TestCase):
    def test_one_line(self):
        write_pnm("grey.pgm", 32, 20, bytes(32 * 20))
        for line, function in (("call zoriDemosaicAHD_8u_C1C3R grey.pgm c.png --stats", "zoriDemosaicAHD_8u_C1C3R"),
                               ("demosaic grey.pgm c.png --method gradient --verbose", "zoriCFAToRGB_8u_C1C3R"),
                               ("reduce c.png r.png -v", "zoriReduceBits_8u_C3R"),
                               ("twist c.png r.png --matrix swap -v", "zoriColorTwist32f_8u_C3R"),
                               ("convert c.png c.y4m --stats", "zoriRGBToYCbCr420_8u_C3P3R")):
            self.assertRegex(zorcc(line, "--repeat", 3).splitlines(keepends=True)[-1],
                             rf"^{function}: 1 picture of 32x20, [0-9.]+ megapixels/s \(best of 3\)\n$")
        self.assertEqual(zorcc("convert c.y4m d.y4m --stats").splitlines()[-1],
                         "samples stay where they are: 1 picture of 32x20")


class Reduce(unittest.TestCase):
    def test_levels_methods_and_noise(self):
        write_pnm("ramp.pgm", 256, 16, bytes(range(256)) * 16)

        def reduced(options):
            zorcc("reduce ramp.pgm out.pgm", *options.split())
            return bytes(samples("out.pgm"))

        results = set()
        for method in ("none", "ordered", "fs", "jjn", "stucki"):
            for levels, values in ((2, {0, 255}), (4, {0, 85, 170, 255}), (16, set(range(0, 256, 17)))):
                results.add(reduced(f"--levels {levels} --dither {method}"))
                self.assertEqual(set(samples("out.pgm")), values)
            self.assertEqual(reduced(f"--levels 16 --dither {method} --noise 50") in results, method == "none")
        self.assertEqual(len(results), 15)
        self.assertEqual(reduced(""), reduced("--levels 2 --dither fs --noise 0"))

    def test_every_kind_of_sample_and_depth(self):
        for depth, colour, options, pixel, result, expected in (
                (8, RGB, "--levels 2", (0, 127, 128), 8, [0, 0, 255]), (16, GREY, "--levels 2", (32768,), 16, [65535]),
                (16, RGB_ALPHA, "--levels 4", (0, 40000, 30000, 12345), 16, [0, 43690, 21845, 12345]),
                (16, RGB, "--levels 4 --depth 8", (0, 32767, 65535), 8, [0, 85, 255]),
                (16, RGB, "--levels 4 --depth 16", (0, 32767, 65535), 16, [0, 21845, 65535])):
            write_png("in.png", [[pixel]], depth, colour)
            zorcc("reduce in.png out.png --dither none", *options.split())
            self.assertEqual(read_png("out.png"), (result, colour, expected))
        write_pfm("in.pfm", 4, 1, [-3.0, 0.3, 0.6, math.nan])
        zorcc("reduce in.pfm out.pfm --dither none --levels 3")
        self.assertEqual([round(value, 4) for value in read_pfm("out.pfm")], [0, 0.5, 0.5, 0])
        zorcc("reduce in.pfm out.pgm --dither none --levels 4 --depth 8")
        self.assertEqual(samples("out.pgm"), [0, 85, 170, 0])


class Demosaic(unittest.TestCase):
    # Channels of the first 2 x 2 pixels.
    GRIDS = {"rggb": (0, 1, 1, 2), "bggr": (2, 1, 1, 0), "gbrg": (1, 2, 0, 1), "grbg": (1, 0, 2, 1)}

    def write_mosaic(self, grid, depth):
        """A smooth picture, which it gives, through the grid of colours."""
        colours, maximum = smooth(61, 43), 2 ** depth - 1
        write_pnm("m.pgm", 61, 43, [colours[3 * (61 * y + x) + self.GRIDS[grid][y % 2 * 2 + x % 2]] * maximum // 255
                                    for y in range(43) for x in range(61)], maximum)
        return [value / 255 for value in colours]

    def test_every_grid_method_and_depth(self):
        for grid, method, depth in itertools.product(self.GRIDS, ("gradient", "ahd"), (8, 16)):
            with self.subTest(grid=grid, method=method, depth=depth):
                original = self.write_mosaic(grid, depth)
                zorcc(f"demosaic m.pgm result.ppm --grid {grid} --method {method}")
                self.assertEqual(read_pnm("result.ppm")[2], 2 ** depth - 1)
                self.assertGreater(psnr(original, unit_samples("result.ppm")), 44)
        zorcc("demosaic m.pgm wrong.ppm --grid bggr")
        self.assertLess(psnr(original, unit_samples("wrong.ppm")), 20)

    def test_defaults(self):
        self.write_mosaic("rggb", 8)
        results = {(zorcc(line, "m.pgm", "out.ppm"), read("out.ppm")) for line in (
            "demosaic", "demosaic --grid RGGB --method ahd", "call zoriDemosaicAHD_8u_C1C3R")}
        self.assertEqual(len(results), 1)


class ColourModels(unittest.TestCase):
    """twist, gamma, grey, tonemap: the function of the file's samples, alpha, names of matrices."""

    def test_twist(self):
        write_png("alpha.png", [[(200, 100, 50, 7)]], 8, RGB_ALPHA)
        for matrix, expected in (("identity", [200, 100, 50, 7]), ("swap", [50, 100, 200, 7]),
                                 ("sepia", [165, 147, 114, 7]), ("saturation=0", [124, 124, 124, 7]),
                                 ("saturation=1", [200, 100, 50, 7]), ("saturation=2", [255, 76, 0, 7]),
                                 ("-1 0 0 1; 0 -1 0 1;0  0 -1 1", [55, 155, 205, 7])):
            zorcc("twist alpha.png out.png --matrix", matrix)
            self.assertEqual(read_png("out.png"), (8, RGB_ALPHA, expected), matrix)
        write_png("deep.png", [[(20000, 10000, 5000)]], 16, RGB)
        zorcc("twist deep.png out.png --matrix", "1 0 0 0.5; 0 0 0 1; 0 1 1 0")
        self.assertEqual(read_png("out.png")[2], [52768, 65535, 15000])  # 52767.5
        write_pfm("in.pfm", 1, 1, [-3.0, 0.5, 2.0])
        zorcc("twist in.pfm out.pfm --matrix", "0 0 1 1; 1 0 0 0; 0 1 0 0")
        self.assertEqual(read_pfm("out.pfm"), [3, -3, 0.5])

    def test_gamma(self):
        write_png("in.png", [[(1, 128, 255, 9)]], 8, RGB_ALPHA)
        zorcc("gamma in.png out.png")
        self.assertEqual(read_png("out.png")[2], [4, 180, 255, 9])  # 1.099 * 0.50196^0.45 - 0.099 = 0.7068
        zorcc("gamma out.png back.png --inverse")
        self.assertEqual(read_png("back.png")[2], [1, 128, 255, 9])
        write_png("deep.png", [[(1000,), (65535,)]], 16, GREY)
        zorcc("gamma deep.png out.png")
        self.assertEqual(read_png("out.png"), (16, RGB, [4500] * 3 + [65535] * 3))

    def test_grey(self):
        write_png("in.png", [[(200, 100, 50, 9), (255, 255, 255, 0)]], 8, RGB_ALPHA)
        zorcc("grey in.png out.png")
        self.assertEqual(read_png("out.png"), (8, GREY, [124, 255]))
        zorcc("grey in.png out.png --weights 0.5,0.25,0.25")
        self.assertEqual(read_png("out.png")[2], [138, 255])  # 137.5
        write_pfm("in.pfm", 1, 1, [1.0, 0.0, 0.0])
        zorcc("grey in.pfm out.pfm --weights 0.25,1,1")
        self.assertEqual(read_pfm("out.pfm"), [0.25])

    def test_tonemap(self):
        write_pfm("in.pfm", 4, 1, [0, 2, 4, 510])
        zorcc("tonemap in.pfm out.png")
        self.assertEqual(read_png("out.png"), (8, GREY, [0, 1, 2, 255]))
        zorcc("tonemap in.pfm out.png --mean")  # twice the mean is 258
        self.assertEqual(read_png("out.png")[2], [0, 1, 3, 255])


class Convert(unittest.TestCase):
    def test_every_model_there_and_back_by_the_function_of_its_samples(self):
        """Floors in dB: what shared chroma and rounding leave of the gradient; wide samples lose nothing."""
        write_pnm("smooth.ppm", 200, 100, smooth(200, 100))
        for target, function, floor in (("yuv444p", "ToYCbCr_8u_C3P3R", 43), ("yuv24", "ToYCbCr_8u_C3R", 43),
                                        ("yuv422p", "YCbCr422_8u_C3P3R", 43), ("yuyv", "YCbCr422_8u_C3C2R", 43),
                                        ("yuv420p", "YCbCr420_8u_C3P3R", 42), ("hls24", "GBToHLS_8u_C3R", 45),
                                        ("hsv24", "GBToHSV_8u_C3R", 45), ("hls444p", "BGRToHLS_8u_C3P3R", 45),
                                        ("hls48", "GBToHLS_16u_C3R", math.inf), ("hsv48", "HSV_16u_C3R", math.inf),
                                        ("hls48s", "GBToHLS_16s_C3R", math.inf), ("hlsf32", "HLS_32f_C3R", math.inf),
                                        ("xyz24", "GBToXYZ_8u_C3R", 40), ("luv24", "GBToLUV_8u_C3R", 38),
                                        ("lab24", "GRToLab_8u_C3R", 40), ("lab48", "ToLab_8u16u_C3R", 60),
                                        ("photoycc24", "GBToYCC_8u_C3R", 32), ("xyz48", "ToXYZ_16u_C3R", 60),
                                        ("luv48s", "ToLUV_16s_C3R", math.inf), ("luvf32", "ToLUV_32f_C3R", math.inf),
                                        ("photoycc48", "ToYCC_16u_C3R", 35)):
            with self.subTest(target):
                printed, found = there_and_back("smooth.ppm", target, "200x100")
                self.assertIn(function + ":", printed)
                self.assertGreaterEqual(found, floor)

    def test_models_by_name_have_the_samples_of_the_input(self):
        write_pnm("bytes.ppm", 1, 1, [255, 0, 0])
        write_pnm("words.ppm", 1, 1, [65535, 0, 0], 65535)
        write_pfm("floats.pfm", 1, 1, [1, 0, 0])
        for model, in_bytes, in_words in (("xyz", [105, 54, 4], [27030, 13937, 1267]),
                                          ("luv", [136, 223, 173], [34891, 57207, 44462]),
                                          ("lab", [136, 208, 195], [34891, 53064, 49776])):
            for picture, form, expected in (("bytes.ppm", "3B", in_bytes), ("words.ppm", "3H", in_words)):
                with self.subTest(model=model, picture=picture):
                    zorcc("convert", picture, "model.raw", "--to", model)
                    found = struct.unpack(form, read("model.raw"))
                    # Pixels after whole blocks of eight have other weights.
                    self.assertLessEqual(max(abs(a - b) for a, b in zip(found, expected)), 1)
        zorcc("convert floats.pfm model.raw --to luv")
        self.assertEqual([round(value, 1) for value in struct.unpack("3f", read("model.raw"))], [53.2, 175.0, 37.8])

    def test_srgb_made_linear_has_the_lab_that_others_show(self):
        """188 of sRGB is linear light of 128.2 of 255, whose lightness is 76.2."""
        write_pnm("grey.ppm", 1, 1, [188, 188, 188])
        zorcc("convert grey.ppm lab.raw --to lab --linear")
        self.assertEqual(list(read("lab.raw")), [194, 128, 128])
        zorcc("convert --size 1x1 --format lab24 lab.raw back.ppm --linear")
        self.assertEqual(samples("back.ppm"), [188, 188, 188])

    def test_odd_sizes_lose_nothing(self):
        for width, height in ((1, 1), (9, 1), (2, 7), (131, 97)):
            picture = smooth(width, height)
            write_pnm("odd.ppm", width, height, picture)
            for target, tag in (("yuv420p", "420jpeg"), ("yuv422p", "422"), ("yuv444p", "444"), ("yuyv", "422"),
                                ("nv12", "420jpeg"), ("yv12", "420jpeg")):
                with self.subTest(width=width, height=height, target=target):
                    zorcc("convert odd.ppm odd.y4m --to", target)
                    words, frames = read_y4m("odd.y4m")
                    self.assertEqual((words[1:3], words[6], len(frames)), ([f"W{width}", f"H{height}"], "C" + tag, 1))
                    zorcc("convert odd.y4m back.ppm")
                    # A lost last column or row would show here.
                    self.assertLess(max(abs(a - b) for a, b in zip(picture, samples("back.ppm"), strict=True)), 9)

    def test_many_pictures(self):
        frames = [bytes([40 * i + y // 2 for y in range(8 * 6)] + 24 * [100 + i]) for i in range(5)]
        write_y4m("clip.y4m", 8, 6, frames, b"F24000:1001 Ip A1:1 C420mpeg2 XYSCSS=420MPEG2 XCOLORRANGE=LIMITED",
                  b"FRAME Ixyz\n")
        for line in ("clip.y4m copy.y4m", "clip.y4m frame_%03d.ppm", "clip.y4m clip.rgb",
                     "--size 8x6 --format rgb24 clip.rgb again.y4m"):
            zorcc("convert", *line.split())
        self.assertEqual(read_y4m("copy.y4m"), (
            "YUV4MPEG2 W8 H6 F24000:1001 Ip A1:1 C420mpeg2 XCOLORRANGE=LIMITED".split(), frames))
        pictures = ["frame_%03d.ppm" % i for i in range(1, 6)]
        self.assertFalse(os.path.exists("frame_006.ppm"))
        self.assertEqual(len({read(path) for path in pictures}), 5)
        self.assertEqual(read("clip.rgb"), b"".join(read_pnm(path)[3] for path in pictures))
        self.assertEqual(len(read_y4m("again.y4m")[1]), 5)
        zorcc("convert", write("joined.ppm", b"".join(map(read, pictures))), "joined.rgb")
        self.assertEqual(read("joined.rgb"), read("clip.rgb"))

    @unittest.skipUnless(os.path.isdir(PICTURES), "no pictures")
    def test_real_pictures_and_mosaics_lose_nothing(self):
        for name in os.listdir(PICTURES):
            if name.endswith((".png", ".pgm", ".y4m")):
                with self.subTest(name):
                    path = os.path.join(PICTURES, name)
                    zorcc("convert", path, "copy" + name[-4:])
                    self.assertEqual(set(compare(path, "copy" + name[-4:]).values()), {(math.inf, 0)})

    def test_sixteen_bits_a_pixel(self):
        write_pnm("smooth.ppm", 200, 100, smooth(200, 100))
        write_pnm("flat.ppm", 8, 8, bytes([101, 60, 190]) * 64)
        zorcc("convert flat.ppm flat709.y4m --matrix bt709")  # of which no function dithers
        words = lambda path: set(struct.unpack("<64H", read(path)))
        for target, floor in (("rgb565", 33), ("bgr565", 33), ("rgb555", 31), ("bgr555", 31), ("rgb444", 28),
                              ("bgr444", 28)):
            with self.subTest(target):
                self.assertGreater(there_and_back("smooth.ppm", target, "200x100")[1], floor)
                # Of a flat picture cutting down makes one word, dithering several.
                lines = zorcc(f"convert flat.ppm dithered.raw --to {target} --dither --stats").splitlines()
                self.assertIn(f"To{target.upper()}Dither_8u16u_P3C3R", lines[-1])
                lines = zorcc(f"convert flat709.y4m 709.raw --to {target} --dither --stats --matrix bt709").splitlines()
                self.assertIn("Dither", lines[-1])
                zorcc("convert flat.ppm cut.raw --to", target)
                self.assertEqual((len(words("cut.raw")), len(words("dithered.raw")) > 1), (1, True))
        # The channel named first is in the low bits, elsewhere in the high ones.
        write("565.raw", bytes([0x1f, 0]))
        for name, expected in (("rgb565", [248, 0, 0]), ("bgr565", [0, 0, 248]), ("rgb565le", [0, 0, 248])):
            zorcc(f"convert --size 1x1 --format {name} 565.raw one.ppm")
            self.assertEqual(samples("one.ppm"), expected)

    def test_reversible_ycocg(self):
        """Lifting loses nothing, be it of 8 bits or of 16."""
        dice = random.Random(5)
        write_pnm("8.ppm", 64, 48, dice.randbytes(64 * 48 * 3))
        write_pnm("16.ppm", 64, 48, [dice.randrange(65536) for _ in range(64 * 48 * 3)], 65535)
        for depth, lifted, back in ((8, "ycocgr444p16s", ""), (16, "ycocgr444p16s", "--to rgb48"),
                                    (16, "ycocgr444p32s", "")):
            with self.subTest(depth=depth, lifted=lifted):
                zorcc(f"convert {depth}.ppm lifted.raw --to {lifted}")
                zorcc(f"convert --size 64x48 --format {lifted} lifted.raw back.ppm {back}")
                self.assertEqual(read("back.ppm"), read(f"{depth}.ppm"))

    def test_onto_itself_and_through_a_link_whose_name_hides_the_kind(self):
        zorcc("chart c.png --size 20x10")
        os.rename("c.png", "c.dat")
        os.symlink("c.dat", "link.ppm")
        zorcc("convert link.ppm link.ppm")
        self.assertTrue(os.path.islink("link.ppm"))
        self.assertEqual(read_pnm("c.dat")[:2], (20, 10))


class Files(unittest.TestCase):
    def test_png_kinds(self):
        palette, alpha = [(10, 20, 30), (200, 100, 50), (0, 255, 0), (255, 255, 255)], [255, 0, 7, 255]
        colours, all_alpha = {"palette": palette}, {"palette": palette, "transparent": alpha}
        unchanged = lambda *pixel: pixel
        # depth and colour type; colour type of the result and what becomes of a pixel; limit of samples, chunks
        kinds = [(16, colour, colour, unchanged, 65536, {}) for colour in (GREY, RGB, RGB_ALPHA)]
        kinds += [(depth, PALETTE, RGB, lambda i: palette[i], 4, colours) for depth in (2, 4, 8)]
        kinds += [(2, PALETTE, RGB_ALPHA, lambda i: palette[i] + (alpha[i],), 4, all_alpha),
                  (8, GREY_ALPHA, RGB_ALPHA, lambda g, a: (g, g, g, a), 256, {}), (8, GREY, GREY, unchanged, 256, {})]
        kinds += [(depth, GREY, GREY, lambda v, full=2 ** depth - 1: (v * 255 // full,), 2 ** depth, {})
                  for depth in (1, 2, 4)]
        for depth, colour, result, expanded, limit, more in kinds:
            pixels = [[tuple((5003 * x + 77 * y + 1009 * c) % limit for c in range(PNG_CHANNELS[colour]))
                       for x in range(11)] for y in range(9)]
            expected = (max(depth, 8), result, [v for row in pixels for pixel in row for v in expanded(*pixel)])
            for interlaced in (False, True):
                with self.subTest(depth=depth, colour=colour, interlaced=interlaced, **more):
                    write_png("in.png", pixels, depth, colour, interlaced, **more)
                    zorcc("convert in.png out.png")
                    self.assertEqual(read_png("out.png"), expected)

    def test_pnm_kinds_either_order_of_floats_and_rounding_to_eight_bits(self):
        colours = b"P6\n2 1\n255\n" + bytes([1, 2, 3, 4, 5, 6])
        deep = struct.pack(">6H", 0, 128, 129, 0x8000, 65406, 65407)
        upper, lower = (0.501, 2), (-1, 1)
        floats = b"Pf\n2 2\n-1.0\n" + struct.pack("<4f", *lower, *upper)  # the lower row first
        for content, out, expected in (
                (b"P6 2 1 255\n" + colours[-6:], "out.ppm", colours),
                (b"P3\n# a comment\n2 1 # another\n255\n1 2 3\n4 5 6\n", "out.ppm", colours),
                (b"P5 3 1 100\n" + bytes([0, 50, 100]), "out.pgm", b"P5\n3 1\n255\n" + bytes([0, 128, 255])),
                (b"P5 6 1 65535\n" + deep, "out.pgm", b"P5\n6 1\n65535\n" + deep),
                (b"P6 2 1 65535\n" + deep, "out.rgb --to rgb24", bytes([0, 0, 1, 128, 254, 255])),
                (floats, "out.pfm", floats),
                (b"Pf\n2 2\n1.0\n" + struct.pack(">4f", *lower, *upper), "out.pfm", floats),
                (floats, "out.rgb --to rgb24", bytes(3 * [128] + 3 * [255] + 3 * [0] + 3 * [255]))):
            with self.subTest(content):
                out, *options = out.split()
                zorcc("convert", write("in", content), out, *options)
                self.assertEqual(read(out), expected)

    def test_jpeg(self):
        write_pnm("smooth.ppm", 93, 71, smooth(93, 71))
        write_pnm("grey.pgm", 16, 16, range(256))
        for path, channel, floor in (("smooth.ppm", "all", 33), ("grey.pgm", "grey", 40)):
            zorcc("convert", path, "out.jpg")
            self.assertGreater(compare(path, "out.jpg")[channel][0], floor)


class Chart(unittest.TestCase):
    def test_any_size_the_same_bytes_every_time_and_all_corners_and_greys(self):
        for size in ("1x1", "2x1", "1x9", "3x5", "17x13", "2000x3", "641x481", "1280x720"):
            zorcc("chart a.ppm --size", size)
            self.assertEqual("%dx%d" % read_pnm("a.ppm")[:2], size)
        zorcc("chart default.ppm")
        self.assertEqual(read("default.ppm"), read("a.ppm"))
        values = samples("default.ppm")
        colours = set(zip(values[0::3], values[1::3], values[2::3]))
        self.assertGreater(len(colours), 20000)
        corners = {(red, green, blue) for red in (0, 255) for green in (0, 255) for blue in (0, 255)}
        self.assertEqual((corners | {(grey, grey, grey) for grey in range(256)}) - colours, set())


class Sheet(unittest.TestCase):
    def test_sheet(self):
        write_pnm("a.ppm", 2, 3, 6 * [1, 2, 3])
        write_pnm("b.ppm", 1, 1, [4, 5, 6])
        zorcc("sheet s.ppm a.ppm b.ppm")
        self.assertEqual(read_pnm("s.ppm")[:2], (2 + 8 + 1, 3))
        self.assertEqual(samples("s.ppm")[:66], 2 * [1, 2, 3] + 24 * [32] + [4, 5, 6] + 2 * [1, 2, 3] + 27 * [32])
