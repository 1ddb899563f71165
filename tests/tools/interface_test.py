# SPDX-License-Identifier: MIT
"""The command line: help, names that are nearly right, arguments of functions, comparisons."""
import math
import random
import unittest

from files import *

COMMANDS = ("list", "call", "convert", "reduce", "demosaic", "twist", "gamma", "grey", "tonemap", "chart", "compare",
            "sheet")


class Names(unittest.TestCase):
    def test_help(self):
        for command in COMMANDS:
            self.assertIn(command, zorcc("--help"))
            self.assertRegex(zorcc(command, "--help"), r"Examples?:\n  zorcc " + command)
            self.assertEqual(zorcc("help", command), zorcc(command, "--help"))
        self.assertEqual(zorcc("help"), zorcc("--help"))

    def test_version(self):
        version = zorcc("--version")
        self.assertRegex(version, r"^zorcc 6\.1 \(libzorccn8\.so\.6\.1, .*, n8, (ssse3|avx2|avx512)\)\n$")
        self.assertNotRegex(version, r"[A-Z][a-z][a-z] [0-9]+ 20[0-9]+")  # no date: builds are reproducible

    def test_nearest_names(self):
        zorcc("chart c.png --size 8x8")
        for line, text in (("convrt c.png d.png", "no command 'convrt'; did you mean convert"),
                           ("help convrt", "no command 'convrt'; did you mean convert"),
                           ("paint", "no command 'paint'"),
                           ("convert c.png d.yuv --to yuv42p", "unknown format yuv42p; the nearest is yuv422p"),
                           ("convert c.png d.yuv --matrix bt79", "unknown matrix bt79; the nearest is bt709"), ("convert c.png d.gif", "one of png jpg"),
                           ("call zoriRGBToYUV_8u_C3 c.png d.yuv", "did you mean zoriRGBToYUV_8u_C3"),
                           ("reduce c.png d.png --dither best", "'best' is none of none, ordered, fs, jjn, stucki"),
                           ("demosaic c.png d.png --grid rgb", "'rgb' is none of bggr, rggb, gbrg, grbg"),
                           ("convert c.png - ", "Say --as one of png jpg"),
                           ("convert c.png d.png --as gif", "--as: 'gif' is none of png jpg")):
            result = run(line)
            self.assertEqual((result.returncode, result.stdout), (2, ""), line)
            self.assertRegex(result.stderr, r"^zorcc: [^\n]{1,200}\n$")
            self.assertIn(text, result.stderr)

    def test_choices_in_any_case(self):
        zorcc("chart c.png --size 16x16")
        for small, large in (("reduce c.png a.png --dither stucki", "reduce c.png b.png --dither STUCKI"),
                             ("convert c.png a.png --matrix bt709", "convert c.png b.png --matrix BT709"),
                             ("twist c.png a.png --matrix sepia", "twist c.png b.png --matrix Sepia"),
                             ("convert c.png a.yuv --to yuv444p", "convert c.png b.yuv --to YUV444P"),
                             ("convert c.png a.raw --to hls", "convert c.png b.raw --to HLS")):
            zorcc(small)
            zorcc(large)
            out = small.split()[2]
            self.assertEqual(read(out), read("b" + out[1:]))

    def test_list_searches_formats_and_families(self):
        rows = zorcc("list").splitlines()
        self.assertEqual(zorcc("list NV12").splitlines().__len__(), sum("nv12" in row.split()[1:3] for row in rows))
        self.assertEqual(len(zorcc("list demosaicing").splitlines()), 4)
        formats = zorcc("list --formats").split()
        self.assertEqual(formats, sorted(formats))
        self.assertLess({"yuv420p", "nv21", "rgb565", "lab24"}, set(formats))
        self.assertEqual(zorcc("list --formats nv1").split(), ["nv11", "nv12", "nv16"])


class Arguments(unittest.TestCase):
    def test_every_argument_of_a_function(self):
        write_pnm("ramp.pgm", 16, 16, bytes(range(256)))
        zorcc("call zoriReduceBits_8u_C1R ramp.pgm a.pgm --levels 4 --method jjn --noise 30")
        zorcc("reduce ramp.pgm b.pgm --levels 4 --dither jjn --noise 30")
        self.assertEqual(read("a.pgm"), read("b.pgm"))
        zorcc("chart c.png --size 16x16")
        zorcc("call zoriColorTwist32f_8u_C3R c.png a.png --twist", "0 0 1 0; 0 1 0 0; 1 0 0 0")
        zorcc("twist c.png b.png --matrix swap")
        self.assertEqual(read("a.png"), read("b.png"))
        zorcc("call zoriColorToGray_8u_C3C1R c.png a.pgm --weights 0.5,0.25,0.25")
        zorcc("grey c.png b.pgm --weights 0.5,0.25,0.25")
        self.assertEqual(read("a.pgm"), read("b.pgm"))
        write("grey.yuv", bytes([100] * 4 + [128, 128]))
        zorcc("call zoriYCbCr420ToBGR_8u_P3C4R --size 2x2 grey.yuv out.raw --alpha 77")
        self.assertEqual(read("out.raw")[3::4], bytes([77] * 4))
        write("in.pfm", b"Pf\n2 1\n-1.0\n" + struct.pack("<2f", 10, 20))

    def test_region_of_a_mosaic(self):
        dice = random.Random(1)
        write_pnm("m.pgm", 40, 30, dice.randbytes(1200))
        for function, method in (("zoriDemosaicAHD_8u_C1C3R", "ahd"), ("zoriCFAToRGB_8u_C1C3R", "gradient")):
            zorcc(f"demosaic m.pgm whole.ppm --grid gbrg --method {method}")
            zorcc(f"call {function} m.pgm part.ppm --grid GBRG --region 6,4,20,10")
            width, height, _, part = read_pnm("part.ppm")
            whole = read_pnm("whole.ppm")[3]
            self.assertEqual((width, height), (20, 10))
            self.assertEqual(part, b"".join(whole[3 * (40 * (4 + y) + 6):][:60] for y in range(10)))
        self.assertIn("the region is not in the picture",
                      run("call zoriCFAToRGB_8u_C1C3R m.pgm part.ppm --region 30,0,20,10").stderr)

    def test_others_are_refused(self):
        zorcc("chart c.png --size 16x16")
        for options, text in (("--levels 3", "takes no arguments"), ("--region 0,0,1,1", "takes no arguments")):
            result = run("call zoriRGBToYUV_8u_C3R c.png a.yuv " + options)
            self.assertEqual(result.returncode, 2)
            self.assertIn(text, result.stderr)
        for options, text in (("--levels many", "'many' is no number"), ("--alpha 3", "takes noise, method, levels")):
            self.assertIn(text, run("call zoriReduceBits_8u_C3R c.png a.png " + options).stderr)


class Reduce(unittest.TestCase):
    def test_depth(self):
        write_png("deep.png", [[(0, 32767, 65535)]], 16, RGB)
        write("in.pfm", b"Pf\n3 1\n-1.0\n" + struct.pack("<3f", 0, 0.4, 1))
        for name, expected in (("deep.png", [0, 85, 255]), ("in.pfm", [0, 85, 255])):
            zorcc(f"reduce {name} out.png --depth 8 --levels 4 --dither none")
            self.assertEqual((read_png("out.png")[0], read_png("out.png")[2]), (8, expected))
        zorcc("reduce deep.png out.png --depth 16 --levels 4 --dither none")
        self.assertEqual(read_png("out.png")[0], 16)
        zorcc("chart c.png --size 8x8")
        self.assertIn("8 bits cannot be reduced to 16", run("reduce c.png out.png --depth 16").stderr)


class Compare(unittest.TestCase):
    def test_headerless_files(self):
        a, b = bytes(range(24)), bytes([1]) + bytes(range(1, 23)) + bytes([25])
        for form, first, last in (("yuv420p", "Y", "V"), ("nv12", "Y", "V"), ("yuyv", "Y", "V")):
            count = 24 if form != "yuyv" else 32
            write("a.yuv", (a * 2)[:count])
            write("b.yuv", b[:1] + (a * 2)[1:count - 1] + bytes([(a * 2)[count - 1] + 2]))
            rows = [line.split() for line in zorcc(f"compare --size 4x4 --format {form} a.yuv b.yuv").splitlines()[1:]]
            self.assertEqual([row[0] for row in rows], ["Y", "U", "V", "all"])
            self.assertEqual([row[2] for row in rows], ["1", "0", "2", "2"])
        write_y4m("a.y4m", 4, 4, [a])
        write("a.yuv", a)
        self.assertIn("inf", zorcc("compare --size 4x4 --format yuv420p a.yuv a.y4m").splitlines()[-1])

    def test_ssim(self):
        """Of constants only the first factor is left; noise ruins structure that a shift leaves."""
        write_pnm("a.pgm", 16, 16, bytes([100] * 256))
        write_pnm("b.pgm", 16, 16, bytes([120] * 256))
        c1 = (0.01 * 255) ** 2
        ssim = lambda x, y: float(zorcc("compare", x, y).splitlines()[-1].split()[3])
        self.assertAlmostEqual(ssim("a.pgm", "b.pgm"), (2 * 100 * 120 + c1) / (100 ** 2 + 120 ** 2 + c1), delta=6e-6)
        zorcc("chart c.png --size 64x64")
        self.assertEqual(ssim("c.png", "c.png"), 1)
        dice = random.Random(3)
        grey = [dice.randrange(60, 190) for _ in range(64 * 64)]
        write_pnm("g.pgm", 64, 64, grey)
        write_pnm("shifted.pgm", 64, 64, [v + 20 for v in grey])
        write_pnm("noisy.pgm", 64, 64, [v + dice.choice((-20, 20)) for v in grey])
        self.assertGreater(ssim("g.pgm", "shifted.pgm"), ssim("g.pgm", "noisy.pgm") + 0.02)

    def test_least_psnr(self):
        write_pnm("a.pgm", 16, 16, bytes([100] * 256))
        write_pnm("b.pgm", 16, 16, bytes([110] * 256))  # 28.13 dB
        self.assertEqual(run("compare a.pgm b.pgm --min-psnr 28.1").returncode, 0)
        result = run("compare a.pgm b.pgm --min-psnr 28.2")
        self.assertEqual((result.returncode, result.stderr), (1, "zorcc: a.pgm, b.pgm: PSNR of 28.13 dB, below 28.2 dB\n"))

    def test_alpha(self):
        for alpha in (4, 14):
            write_png(f"{alpha}.png", [[(1, 2, 3, alpha)]], 8, RGB_ALPHA)
            write_png(f"deep{alpha}.png", [[(1, 2, 3, alpha * 257)]], 16, RGB_ALPHA)
        self.assertAlmostEqual(compare("deep4.png", "deep14.png")["A"][1], 10 / 255, delta=1e-6)
        self.assertAlmostEqual(compare("4.png", "deep14.png")["A"][1], 10 / 255, delta=1e-6)
        write_pnm("opaque.ppm", 1, 1, [1, 2, 3])
        self.assertRegex(run("compare opaque.ppm 4.png").stderr, "warning: 4.png: its alpha is not compared")
