#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Measures what README.md plans with: makes pictures and segments, and converts each kind with one worker and with two,
in turns, of which the fastest counts: measure.py [FOLDER], where there are 4 GB."""
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

import numpy
import PIL.Image

import zorcc

HERE = pathlib.Path(__file__).parent
SIZE = (1920, 1080)
FILES, FRAMES, ROUNDS = 64, 60, 4


def photograph(seed):
    """Smooth shades with some noise, which files hold about as well as photographs."""
    random = numpy.random.default_rng(seed)
    small = PIL.Image.fromarray(random.integers(0, 256, (24, 40, 3), dtype=numpy.uint8))
    shades = numpy.asarray(small.resize(SIZE, PIL.Image.Resampling.BICUBIC), dtype=numpy.int16)
    return numpy.clip(shades + random.integers(-3, 4, shades.shape), 0, 255).astype(numpy.uint8)


def make_inputs(folder):
    for kind in ("png", "jpeg", "y4m"):
        (folder / kind).mkdir()
    for i in range(FILES):
        picture = photograph(i)
        PIL.Image.fromarray(picture).save(folder / "png" / f"{i:03}.png")
        PIL.Image.fromarray(picture).save(folder / "jpeg" / f"{i:03}.jpg", quality=90)
        if i < FILES // 8:
            frame = zorcc.convert(picture, "rgb24", "yuv420p", joined=True).tobytes()
            header = f"YUV4MPEG2 W{SIZE[0]} H{SIZE[1]} F25:1 Ip A1:1 C420jpeg\n".encode()
            (folder / "y4m" / f"{i:03}.y4m").write_bytes(header + FRAMES * (b"FRAME\n" + frame))


def main():
    with tempfile.TemporaryDirectory(dir=sys.argv[1] if len(sys.argv) > 1 else None) as folder:
        folder = pathlib.Path(folder)
        make_inputs(folder)
        for kind, format in (("png", "yuv420p"), ("jpeg", "yuv420p"), ("y4m", "nv12")):
            reports = {1: [], 2: []}
            for _ in range(ROUNDS):
                for workers, printed in reports.items():
                    result = folder / "result"
                    printed.append(subprocess.run(
                        [sys.executable, HERE / "archive.py", folder / kind, result, "--to", format, "--workers",
                         str(workers)], check=True, capture_output=True, text=True).stdout)
                    shutil.rmtree(result)
            for workers, printed in reports.items():
                fastest = min(printed, key=lambda text: float(re.search(r"in ([\d.]+) s:", text)[1]))
                print(f"\n{kind} to {format}, workers: {workers}\n{fastest.strip()}", flush=True)


if __name__ == "__main__":
    main()
