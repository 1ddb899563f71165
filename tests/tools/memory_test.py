# SPDX-License-Identifier: MIT
"""Every allocation and start of a thread of the tool's commands made to fail in turn: the result as it should be, or one
line, exit code 1 and nothing left. A run tries some of them; with ZORCC_EVERY_FAILURE=1 (ctest -C every -L every)
it tries all."""
import unittest

from files import *

PRELOAD = os.environ["ZORCC_FAILING_MEMORY"]
MOST = 10 ** 9 if os.environ.get("ZORCC_EVERY_FAILURE") else 40  # failures of each command


class Memory(unittest.TestCase):
    LINES = ("chart out/c.png --size 64x48", "convert in.png out/a.y4m", "convert in.jpg out/a.png",
             "convert clip.y4m out/f_%d.ppm --threads 3", "convert clip.y4m out/a.yuv --to nv12 --threads 3",
             "convert in.ppm out/a.raw --to lab --linear", "convert s_%d.ppm out/a.jpg --as png --threads 2",
             "call zoriRGBToYUV_8u_C3P3R in.png out/y.pgm out/u.pgm out/v.pgm", "reduce in.png out/a.png --threads 3",
             "demosaic in.pgm out/a.png --threads 2", "grey in.png out/a.pfm", "twist in.png out/a.ppm --matrix sepia",
             "compare in.png in.ppm", "sheet out/s.png in.png in.ppm", "list nv12", "help convert")

    def run_with(self, line, **environment):
        shutil.rmtree("out", ignore_errors=True)
        os.mkdir("out")
        return run(line, binary=True, env=dict(os.environ, LD_PRELOAD=PRELOAD, **environment))

    def results(self, result):
        return result.stdout, {name: read("out/" + name) for name in sorted(os.listdir("out"))}

    def test_each_in_turn(self):
        zorcc("chart in.png --size 64x48")
        for name in ("in.jpg", "in.ppm", "s_1.ppm"):
            zorcc("convert in.png", name)
        zorcc("grey in.png in.pgm")
        zorcc("convert in.png one.y4m")
        words, frames = read_y4m("one.y4m")
        write_y4m("clip.y4m", 64, 48, frames * 3)
        for line in self.LINES:
            good = self.run_with(line, ZORCC_COUNT="count")
            self.assertEqual(good.returncode, 0, good)
            expected, count = self.results(good), int(read("count"))
            self.assertGreater(count, 20, line)
            for number in sorted({1 + i * count // MOST for i in range(MOST)} if count > MOST else range(1, count + 1)):
                result = self.run_with(line, ZORCC_FAIL=str(number))
                with self.subTest(line=line, number=number):
                    if result.returncode == 0:
                        self.assertEqual(self.results(result), expected)
                        continue
                    self.assertEqual((result.returncode, os.listdir("out")), (1, []), result)
                    self.assertRegex(result.stderr.strip("\n"), r"^[^\n]+$")
