# SPDX-License-Identifier: MIT
"""One file of an archive: pictures (PNG, JPEG) and Y4M segments, converted frame by frame, written atomically."""
import contextlib
import os
import pathlib
import time
from dataclasses import dataclass, field

import numpy
import PIL.Image

import zorcc

PICTURES = {".png", ".jpg", ".jpeg"}
VIDEOS = {".y4m"}
MODES = {"L": "grey8", "RGB": "rgb24", "RGBA": "rgba", "I;16": "grey16"}  # others are read as RGB
Y4M_FORMATS = {"420": "yuv420p", "422": "yuv422p", "444": "yuv444p", "411": "yuv411p", "mono": "grey8"}
Y4M_COLOURS = {"yuv420p": "420jpeg", "yuv422p": "422", "yuv444p": "444", "yuv411p": "411", "grey8": "mono"}


@dataclass
class Report:
    """What the conversion of files took: seconds, bytes, pixels."""
    files: int = 0
    frames: int = 0
    megapixels: float = 0
    read: float = 0
    written: float = 0
    processor: float = 0  # seconds, which others on the machine do not make longer
    seconds: dict = field(default_factory=lambda: {"decode": 0.0, "convert": 0.0, "write": 0.0})

    @contextlib.contextmanager
    def timed(self, stage):
        start = time.perf_counter()
        yield
        self.seconds[stage] += time.perf_counter() - start

    def add(self, other):
        for name in ("files", "frames", "megapixels", "read", "written", "processor"):
            setattr(self, name, getattr(self, name) + getattr(other, name))
        for stage, seconds in other.seconds.items():
            self.seconds[stage] += seconds


@dataclass
class Source:
    format: str
    size: tuple
    frames: object  # gives arrays, each good until the next one
    range: str = "default"
    parameters: str = "F25:1 Ip A1:1"  # what a Y4M header says beside size and format


def open_picture(path):
    image = PIL.Image.open(path)
    if image.mode not in MODES:
        image = image.convert("RGB")
    # Decoded when the frame is asked for.
    return Source(MODES[image.mode], image.size, (numpy.asarray(image) for _ in range(1)))


def read_frames(file, size):
    frame = numpy.empty(size, numpy.uint8)
    while line := file.readline():
        if not line.startswith(b"FRAME") or file.readinto(frame) != size:
            raise ValueError("the file ends within a frame")
        yield frame


def open_video(path):
    file = open(path, "rb")
    words = file.readline(1000).decode("ascii", "replace").split()
    values = {word[0]: word[1:] for word in words[1:] if word[0] != "X"}
    colours = values.pop("C", "420")
    known = [name for name in Y4M_FORMATS if colours.startswith(name) and "p1" not in colours]
    if words[:1] != ["YUV4MPEG2"] or not known:
        raise ValueError(f"no Y4M file of 8 bits ({colours})")
    format, size = Y4M_FORMATS[known[0]], (int(values.pop("W")), int(values.pop("H")))
    shapes = zorcc.layout(format, size).shapes
    frames = read_frames(file, sum(int(numpy.prod(shape)) for shape in shapes))
    return Source(format, size, frames, "full" if "XCOLORRANGE=FULL" in words else "default",
                  " ".join(key + value for key, value in values.items()))


@contextlib.contextmanager
def atomic(path):
    """A file that has its name when it is whole and on the disk; the remains of an interrupted one are overwritten."""
    path.parent.mkdir(parents=True, exist_ok=True)
    part = path.with_name(f".{path.name}.part")
    try:
        with open(part, "wb") as file:
            yield file
            file.flush()
            os.fsync(file.fileno())
        os.replace(part, path)
    except BaseException:
        part.unlink(missing_ok=True)
        raise


def suffix_of(format):
    return ".y4m" if format in Y4M_COLOURS else f".{format}"


def y4m_header(source, format, options):
    full = options.get("range") == "full" or options.get("matrix") == "yuv"
    return (f"YUV4MPEG2 W{source.size[0]} H{source.size[1]} {source.parameters} C{Y4M_COLOURS[format]} "
            f"XCOLORRANGE={'FULL' if full else 'LIMITED'}\n").encode()


def convert_file(source, destination, format, options):
    """Converts a file to a Y4M file, or one of planes without a header; options are those of zorcc.Plan."""
    source, destination, report = pathlib.Path(source), pathlib.Path(destination), Report()
    begun = time.process_time()
    with report.timed("decode"):
        opened = (open_video if source.suffix.lower() in VIDEOS else open_picture)(source)
        frames = iter(opened.frames)
    plan = zorcc.Plan(opened.format, format, opened.size, from_range=opened.range, threads=1, **options)
    layout = zorcc.layout(format, opened.size)
    out = numpy.empty(sum(int(numpy.prod(shape)) for shape in layout.shapes), layout.dtype)
    is_y4m = format in Y4M_COLOURS
    with atomic(destination) as file:
        if is_y4m:
            file.write(y4m_header(opened, format, options))
        while True:
            with report.timed("decode"):
                frame = next(frames, None)
            if frame is None:
                break
            with report.timed("convert"):
                plan(frame, out)
            with report.timed("write"):
                file.write(b"FRAME\n" if is_y4m else b"")
                file.write(out)
            report.frames += 1
            report.megapixels += opened.size[0] * opened.size[1] * 1e-6
        with report.timed("write"):
            file.flush()
            os.fsync(file.fileno())
    if report.frames == 0:
        destination.unlink()
        raise ValueError("no frames")
    report.processor = time.process_time() - begun
    report.files, report.read, report.written = 1, source.stat().st_size, destination.stat().st_size
    return report
