# SPDX-License-Identifier: MIT
"""Frames of the example with FFmpeg's libraries, beside those that the tool makes of the same samples."""
import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

ZORCC, EXAMPLE = os.environ["ZORCC_TOOL"], os.environ["ZORCC_EXAMPLE"]
CLIP = pathlib.Path(os.environ["ZORCC_PICTURES"], "cockatoo_352x288_10f_420.y4m")

# Name, size, arguments of ffmpeg to write it, format of the samples, options of the tool for those without a header.
# The rows of the last one are decoded with a negative step.
CLIPS = (
    ("motion.avi", "320x240", "-c:v mpeg4 -pix_fmt yuv420p", "yuv420p", ""),
    ("odd.mkv", "321x181", "-c:v ffv1 -pix_fmt yuv422p -colorspace bt709 -color_range tv", "yuv422p",
     "--matrix bt709"),
    ("large.mkv", "1280x720", "-c:v ffv1 -pix_fmt yuv420p", "yuv420p", ""),
    ("full.mkv", "320x240", "-c:v ffv1 -pix_fmt yuv420p -colorspace bt709 -color_range pc", "yuv420p",
     "--matrix bt709full"),
    ("planes.nut", "64x48", "-c:v rawvideo -pix_fmt nv12", "nv12", ""),
    ("grey.mkv", "65x49", "-c:v ffv1 -pix_fmt gray", "gray", ""),
    ("upside_down.avi", "65x49", "-c:v rawvideo -pix_fmt bgr24 -flipped_raw_rgb 1", "bgr24", ""),
)


def run(*words):
    return subprocess.run([str(word) for word in words], stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
                          timeout=120)


@unittest.skipUnless(shutil.which("ffmpeg"), "ffmpeg is not installed")
class FramesToPpm(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def ffmpeg(self, *words):
        self.assertEqual(run("ffmpeg", "-v", "error", "-y", *words).stderr, "")

    def expect_same_frames(self, video, count, *convert):
        result = run(EXAMPLE, video, self.folder / "ours_%03d.ppm")
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, f"{count} frames\n", ""))
        self.assertEqual(run(ZORCC, "convert", *convert, self.folder / "tool_%03d.ppm", "--quiet").returncode, 0)
        for number in range(1, count + 1):
            ours, tools = (self.folder / f"{who}_{number:03}.ppm" for who in ("ours", "tool"))
            self.assertEqual(ours.read_bytes(), tools.read_bytes(), f"{video}, frame {number}")

    def test_drawn_clips(self):
        for name, size, arguments, samples, options in CLIPS:
            with self.subTest(name):
                video, raw = self.folder / name, self.folder / "samples.raw"
                self.ffmpeg("-f", "lavfi", "-i", f"testsrc=size={size}:rate=5:duration=0.6", *arguments.split(), video)
                self.ffmpeg("-i", video, "-f", "rawvideo", "-pix_fmt", samples, raw)
                self.expect_same_frames(video, 3, "--size", size, "--format", samples, *options.split(), raw)

    @unittest.skipUnless(CLIP.exists(), "the clip is not there")
    def test_real_clip(self):
        self.expect_same_frames(CLIP, 10, CLIP)

    def test_what_has_no_exact_conversion_is_refused(self):
        for arguments, words in (("-c:v mjpeg -pix_fmt yuvj420p", "bt601 of full range"),
                                 ("-c:v ffv1 -pix_fmt yuv420p10le", "unknown format yuv420p10le"),
                                 ("-c:v ffv1 -pix_fmt yuv420p -colorspace bt2020nc", "bt2020 of limited range")):
            with self.subTest(arguments):
                video = self.folder / "video.mkv"
                self.ffmpeg("-f", "lavfi", "-i", "testsrc=size=64x48:duration=0.1", *arguments.split(), video)
                result = run(EXAMPLE, video)
                self.assertEqual((result.returncode, result.stdout), (1, ""))
                self.assertIn(words, result.stderr)

    def test_no_video(self):
        self.assertEqual(run(EXAMPLE, __file__).returncode, 1)
        self.assertEqual(run(EXAMPLE).returncode, 1)


if __name__ == "__main__":
    unittest.main()
