# SPDX-License-Identifier: MIT
"""The command line: help, lists, arguments of functions, comparisons. errors_test has what is refused."""
import random
import unittest

from files import *


class Names(unittest.TestCase):
    def test_help(self):
        overview = zorcc("--help")
        self.assertEqual(zorcc("help"), overview)
        for command in ("list", "call", "convert", "reduce", "demosaic", "twist", "gamma", "grey", "tonemap", "chart",
                        "compare", "sheet"):
            self.assertIn(command, overview)
            text = zorcc("help", command)
            self.assertRegex(text, r"Examples?:\n  zorcc " + command)
            self.assertEqual(zorcc(command, "--help"), text)

    def test_version(self):
        version = zorcc("--version")
        self.assertRegex(version, r"^zorcc 6\.1 \(libzorccn8\.so\.6\.1, .*, n8, (ssse3|avx2|avx512)\)\n$")
        self.assertNotRegex(version, r"[A-Z][a-z][a-z] [0-9]+ 20[0-9]+")  # no date: builds are reproducible

    def test_choices_in_any_case(self):
        zorcc("chart c.png --size 16x16")
        for line, choice in (("reduce c.png {}.png --dither", "stucki"), ("convert c.png {}.y4m --matrix", "bt709"),
                             ("twist c.png {}.png --matrix", "sepia"), ("convert c.png {}.yuv --to", "yuv444p"),
                             ("convert c.png {}.raw --to", "hls")):
            zorcc(line.format("small"), choice)
            zorcc(line.format("large"), choice.upper())
            out = line.split()[2]
            self.assertEqual(read(out.format("small")), read(out.format("large")))

    def test_list_searches_formats_and_families(self):
        rows = zorcc("list").splitlines()
        self.assertEqual(len(zorcc("list NV12").splitlines()), sum("nv12" in row.split()[1:3] for row in rows))
        self.assertEqual(len(zorcc("list demosaicing").splitlines()), 4)
        formats = zorcc("list --formats").split()
        self.assertEqual(formats, sorted(formats))
        self.assertLess({"yuv420p", "nv21", "rgb565", "lab24"}, set(formats))
        self.assertEqual(zorcc("list --formats nv1").split(), ["nv11", "nv12", "nv16"])


class Arguments(unittest.TestCase):
    def test_every_argument_of_a_function(self):
        zorcc("chart c.png --size 16x16")
        for call, last, command in (
                ("zoriReduceBits_8u_C3R c.png a.png --levels 4 --noise 30 --method", "jjn",
                 "reduce c.png b.png --levels 4 --noise 30 --dither jjn"),
                ("zoriColorTwist32f_8u_C3R c.png a.png --twist", "0 0 1 0; 0 1 0 0; 1 0 0 0",
                 "twist c.png b.png --matrix swap"),
                ("zoriColorToGray_8u_C3C1R c.png a.png --weights", "0.5,0.25,0.25",
                 "grey c.png b.png --weights 0.5,0.25,0.25")):
            zorcc("call " + call, last)
            zorcc(command)
            self.assertEqual(read("a.png"), read("b.png"))
        write("grey.yuv", bytes([100] * 4 + [128, 128]))
        zorcc("call zoriYCbCr420ToBGR_8u_P3C4R --size 2x2 grey.yuv out.raw --alpha 77")
        self.assertEqual(read("out.raw")[3::4], bytes([77] * 4))

    def test_region_of_a_mosaic(self):
        write_pnm("m.pgm", 40, 30, random.Random(1).randbytes(1200))
        for function, method in (("zoriDemosaicAHD_8u_C1C3R", "ahd"), ("zoriCFAToRGB_8u_C1C3R", "gradient")):
            zorcc(f"demosaic m.pgm whole.ppm --grid gbrg --method {method}")
            zorcc(f"call {function} m.pgm part.ppm --grid GBRG --region 6,4,20,10")
            width, height, _, part = read_pnm("part.ppm")
            whole = read_pnm("whole.ppm")[3]
            self.assertEqual((width, height), (20, 10))
            self.assertEqual(part, b"".join(whole[3 * (40 * (4 + y) + 6):][:60] for y in range(10)))


class Compare(unittest.TestCase):
    def test_squares_and_the_largest_difference(self):
        write_pnm("a.ppm", 31, 17, bytes([100] * 31 * 17 * 3))
        write_pnm("b.ppm", 31, 17, bytes([109] + 99 * [100] + [83] + [100] * (31 * 17 * 3 - 101)))
        found = compare("a.ppm", "b.ppm")
        for name, squares, count, largest in (("R", 81, 527, 9), ("G", 289, 527, 17), ("all", 81 + 289, 3 * 527, 17)):
            self.assertAlmostEqual(found[name][0], 10 * math.log10(255 ** 2 * count / squares), delta=0.006)
            self.assertEqual(found[name][1], largest)
        self.assertEqual(found["B"], (math.inf, 0))

    def test_y4m_over_all_frames(self):
        frames = [bytes(range(i, i + 15)) + bytes(12 * [100]) for i in range(3)]
        write_y4m("a.y4m", 3, 5, frames)
        write_y4m("b.y4m", 3, 5, frames[:2] + [frames[2][:14] + bytes([116]) + frames[2][15:26] + bytes([103])])
        found = compare("a.y4m", "b.y4m")
        self.assertEqual({name: found[name][1] for name in found}, {"Y": 100, "U": 0, "V": 3, "all": 100})
        self.assertAlmostEqual(found["Y"][0], 10 * math.log10(255 ** 2 * 45 / 100 ** 2), delta=0.006)

    def test_headerless_files(self):
        for form, count in (("yuv420p", 24), ("nv12", 24), ("yuyv", 32)):
            write("a.yuv", bytes(range(count)))
            write("b.yuv", bytes([1, *range(1, count - 1), count + 1]))
            rows = [line.split() for line in zorcc(f"compare --size 4x4 --format {form} a.yuv b.yuv").splitlines()[1:]]
            self.assertEqual([(row[0], row[2]) for row in rows], [("Y", "1"), ("U", "0"), ("V", "2"), ("all", "2")])
        write_y4m("a.y4m", 4, 4, [read(write("a.yuv", bytes(range(24))))])
        self.assertIn("inf", zorcc("compare --size 4x4 --format yuv420p a.yuv a.y4m").splitlines()[-1])

    def test_ssim(self):
        """Of constants only the first factor is left; noise ruins structure that a shift leaves."""
        write_pnm("a.pgm", 16, 16, bytes([100] * 256))
        write_pnm("b.pgm", 16, 16, bytes([120] * 256))
        c1 = (0.01 * 255) ** 2
        ssim = lambda x, y: float(zorcc("compare", x, y).splitlines()[-1].split()[3])
        self.assertAlmostEqual(ssim("a.pgm", "b.pgm"), (2 * 100 * 120 + c1) / (100 ** 2 + 120 ** 2 + c1), delta=6e-6)
        dice = random.Random(3)
        grey = [dice.randrange(60, 190) for _ in range(64 * 64)]
        write_pnm("g.pgm", 64, 64, grey)
        write_pnm("shifted.pgm", 64, 64, [v + 20 for v in grey])
        write_pnm("noisy.pgm", 64, 64, [v + dice.choice((-20, 20)) for v in grey])
        self.assertEqual(ssim("g.pgm", "g.pgm"), 1)
        self.assertGreater(ssim("g.pgm", "shifted.pgm"), ssim("g.pgm", "noisy.pgm") + 0.02)

    def test_least_psnr(self):
        write_pnm("a.pgm", 16, 16, bytes([100] * 256))
        write_pnm("b.pgm", 16, 16, bytes([110] * 256))  # 28.13 dB
        zorcc("compare a.pgm b.pgm --min-psnr 28.1")
        result = run("compare a.pgm b.pgm --min-psnr 28.2")
        self.assertEqual((result.returncode, result.stderr),
                         (1, "zorcc: a.pgm, b.pgm: PSNR of 28.13 dB, below 28.2 dB\n"))

    def test_alpha(self):
        for alpha in (4, 14):
            write_png(f"{alpha}.png", [[(1, 2, 3, alpha)]], 8, RGB_ALPHA)
            write_png(f"deep{alpha}.png", [[(1, 2, 3, alpha * 257)]], 16, RGB_ALPHA)
        self.assertEqual(compare("4.png", "14.png")["A"][1], 10)
        for path in ("4.png", "deep4.png"):
            self.assertAlmostEqual(compare(path, "deep14.png")["A"][1], 10 / 255, delta=1e-6)
        write_pnm("opaque.ppm", 1, 1, [1, 2, 3])
        self.assertEqual(compare("4.png", "opaque.ppm"), {name: (math.inf, 0) for name in ("R", "G", "B", "all")})
        self.assertRegex(run("compare opaque.ppm 4.png").stderr, "warning: 4.png: its alpha is not compared")
