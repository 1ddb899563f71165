# SPDX-License-Identifier: MIT
"""What surrounds the tool fails: closed streams, limits of the system, memory, and files made to be costly."""
import resource
import sys
import unittest

from files import *

def limited(line, what, limit):
    """Runs the tool under a limit of the system."""
    return run(line, preexec_fn=lambda: resource.setrlimit(what, (limit, limit)))


def peak_memory(line, given):
    """Exit code and the greatest number of KiB that the tool's process had in memory"""
    code = ("import resource, subprocess, sys; p = subprocess.run(sys.argv[1:], stderr=subprocess.DEVNULL); "
            "print(p.returncode, resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss)")
    result = subprocess.run([sys.executable, "-c", code, ZORCC, *line.split()], input=given, capture_output=True,
                            env=ENVIRONMENT, timeout=120)
    return tuple(map(int, result.stdout.split()))


class Faults(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        zorcc("chart good.png --size 640x480")
        zorcc("convert good.png good.y4m")
        zorcc("convert good.png good.jpg")

    def assert_fails(self, result, text):
        self.assertEqual(result.returncode, 1, result)
        self.assertRegex(result.stderr, r"^zorcc: [^\n]+\n$")
        self.assertIn(text, result.stderr)
        self.assertEqual(os.listdir("results"), [])

    def setUp(self):
        shutil.rmtree("results", ignore_errors=True)
        os.mkdir("results")

    @unittest.skipIf(SANITIZED, "sanitizers note every byte of what is allocated")
    def test_headers_alone_take_no_memory(self):
        header = png_header(1, 10 ** 6, 16, RGB_ALPHA) + png_chunk(b"IDAT", zlib.compress(b"")[:2])
        small = png_header(4, 4, 8, RGB) + png_chunk(b"IDAT", b"")
        usual = peak_memory("convert - results/out.png", small)[1]
        jpeg = read("good.jpg")
        sof = jpeg.index(b"\xff\xc0")
        for name, content in (("tall.png", header), ("wide.ppm", b"P6 250000000 1 255\n"),
                              ("wide.pgm", b"P5 130000000 2 65535\n"), ("text.ppm", b"P3 80000000 3 255\n1 "),
                              ("wide.pfm", b"PF 80000000 1 -1\n"),
                              ("large.y4m", b"YUV4MPEG2 W16000 H16000 F25:1\nFRAME\n"),
                              ("large.jpg", jpeg[:sof + 5] + b"\x3e\x80\x3e\x80" + jpeg[sof + 9:sof + 200])):
            with self.subTest(name):
                code, memory = peak_memory("convert - results/out.png", content)
                self.assertEqual(code, 1)
                self.assertLess(memory, usual + 30000)

    def test_more_pixels_than_allowed(self):
        for header in (png_header(20000, 20000, 8, RGB) + png_chunk(b"IDAT", b"x"), b"P6 20000 20000 255\n",
                       b"Pf 20000 20000 -1\n", b"YUV4MPEG2 W20000 H20000 F25:1\nFRAME\n"):
            self.assert_fails(run("convert - results/out.png", input=header), "--max-pixels allows")
        self.assert_fails(run("convert good.jpg results/out.png --max-pixels 307199"), "640x480 pixels are more than")
        zorcc("convert good.jpg out.png --max-pixels 307200")
        self.assert_fails(run("convert - results/out.png --max-pixels 99999999999",
                              input=png_header(2000000, 3, 8, RGB)), "")

    def test_scans_without_end(self):
        """Each scan of a progressive file costs a whole picture."""
        def marker(kind, content):
            return b"\xff" + bytes([kind]) + struct.pack(">H", len(content) + 2) + content
        frame = marker(0xc2, b"\x08" + struct.pack(">HH", 800, 800) + b"\x01\x01\x11\0")
        # Of one code of one bit, 0: no difference, and the end of a block.
        table = lambda place: marker(0xc4, bytes([place, 1] + 15 * [0] + [0]))
        tables = marker(0xdb, b"\0" + bytes([1] * 64)) + table(0) + table(0x10)
        scan = lambda first, last, bits: marker(0xda, bytes([1, 1, 0, first, last, bits])) + bytes(100 * 100 // 8)
        # Each frequency on its own, all bits but the last and the last.
        scans = [scan(k, k, bits) for bits in (0x01, 0x10) for k in range(1, 64)]
        good = b"\xff\xd8" + tables + frame + scan(0, 0, 0)
        zorcc("convert", write("scans.jpg", good + b"".join(scans[:90]) + b"\xff\xd9"), "grey.png")
        write("scans.jpg", good + b"".join(scans) + b"\xff\xd9")
        self.assert_fails(run("convert scans.jpg results/out.png"), "scans.jpg: more than 100 scans")

    def test_corrupt_jpeg_data(self):
        content = bytearray(read("good.jpg"))
        start = content.index(b"\xff\xda") + 14
        for at in range(start, start + 400, 20):
            content[at:at + 1] = b"\xff\xd5"
        write("corrupt.jpg", content)
        self.assert_fails(run("convert corrupt.jpg results/out.png"), "corrupt.jpg: Corrupt JPEG data")

    def test_closed_standard_streams(self):
        zorcc("chart odd.png --size 33x33")  # whose warning must go nowhere
        for streams in ((0,), (1,), (2,), (0, 1, 2)):
            def close():
                for stream in streams:
                    os.close(stream)
            result = run("call zoriRGBToYUV420_8u_C3P3R good.png results/a.y4m", preexec_fn=close)
            self.assertEqual(result.returncode, 0)
            result = run("--max-pixels 1 convert good.png results/b.y4m", preexec_fn=close)
            self.assertEqual((result.returncode, os.listdir("results")), (1, ["a.y4m"]))
            run("call zoriRGBToYUV420_8u_C3P3R odd.png results/a.yuv", preexec_fn=close)
            self.assertEqual(len(read("results/a.yuv")), 33 * 33 + 2 * 16 * 16)
            os.remove("results/a.yuv")
        os.remove("results/a.y4m")
        self.assert_fails(run("list", preexec_fn=lambda: os.close(1)), "standard output: cannot write")

    def test_limits_of_the_system(self):
        for out in ("results/out.y4m", "results/out.png", "results/out.jpg", "results/o_%d.ppm"):
            self.assert_fails(limited("convert good.y4m " + out, resource.RLIMIT_FSIZE, 4096), ": ")

    @unittest.skipIf(SANITIZED, "sanitizers need pipes of their own")
    def test_few_files_at_once(self):
        for files in range(4, 10):
            result = limited("convert good.y4m results/out.y4m", resource.RLIMIT_NOFILE, files)
            if result.returncode == 0:
                os.remove("results/out.y4m")
            else:
                self.assert_fails(result, ": ")
        self.assertEqual(result.returncode, 0)

    @unittest.skipIf(SANITIZED, "sanitizers reserve terabytes of addresses")
    def test_little_memory(self):
        """Whatever runs out first, the library's threads included: one line, and nothing left."""
        failures = 0
        for mebibytes in range(8, 160, 8):
            for line in ("convert good.y4m results/out.png", "reduce good.png results/out.png --threads 16"):
                result = limited(line, resource.RLIMIT_AS, mebibytes << 20)
                if result.returncode == 0:
                    os.remove("results/out.png")
                    continue
                self.assertEqual(os.listdir("results"), [], (mebibytes, line, result))
                if "error while loading" in result.stderr or result.returncode == 127:
                    continue  # not even the libraries fit
                failures += 1
                self.assertEqual((result.returncode, result.stderr.strip().count("\n")), (1, 0), (mebibytes, result))
        self.assertGreater(failures, 0)

    def test_full_standard_output(self):
        for line in ("--help", "--version", "help convert", "list", "compare good.png good.png",
                     "convert good.y4m - --as y4m"):
            with open("/dev/full", "w") as full:
                result = run(line, stdout=full)
            self.assert_fails(result, "standard output: ")
