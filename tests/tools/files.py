# SPDX-License-Identifier: MIT
"""Running the tool, and files written and read without it."""
import array
import atexit
import math
import os
import shutil
import struct
import subprocess
import tempfile
import zlib

ZORCC = os.environ["ZORCC_TOOL"]
SOURCE = os.environ["ZORCC_SOURCE"]
PICTURES = os.environ["ZORCC_PICTURES"]
SANITIZED = bool(os.environ.get("ZORCC_SANITIZE"))

# Under sanitizers, too, sizes that no machine has memory for end in the tool's own message, and a run at once.
ENVIRONMENT = dict(os.environ)
for name, option in (("ASAN_OPTIONS", "allocator_may_return_null=1"),
                     ("TSAN_OPTIONS", "allocator_may_return_null=1:atexit_sleep_ms=0")):
    ENVIRONMENT[name] = ":".join(filter(None, (os.environ.get(name), option)))

FOLDER = tempfile.mkdtemp(prefix="zorcc-test-")
atexit.register(shutil.rmtree, FOLDER)
os.chdir(FOLDER)


def run(line, *more, binary=False, stdout=subprocess.PIPE, env=ENVIRONMENT, **options):
    """Runs the tool with the words of a line, and further arguments as they are; options are those of subprocess. What
    it prints is text, or bytes where that is binary."""
    result = subprocess.run([ZORCC, *line.split(), *map(str, more)], stdout=stdout, stderr=subprocess.PIPE, env=env,
                            timeout=120, **options)
    result.stderr = result.stderr.decode()
    if not binary and result.stdout is not None:
        result.stdout = result.stdout.decode()
    return result


def zorcc(line, *more):
    """Runs the tool, which must succeed without a word on stderr but for warnings; gives what it printed."""
    result = run(line, *more, "--quiet")
    assert result.returncode == 0 and not result.stderr, (line, more, result)
    return result.stdout


def compare(a, b):
    """{channel: (PSNR, largest difference)}"""
    rows = [line.split() for line in zorcc("compare", a, b).splitlines()[1:]]
    return {row[0]: (float(row[1]), float(row[2])) for row in rows}


def psnr(a, b):
    """Of two sequences of samples of which 1 is white"""
    assert len(a) == len(b) > 0, (len(a), len(b))
    squares = sum((x - y) ** 2 for x, y in zip(a, b))
    return 10 * math.log10(len(a) / squares) if squares else math.inf


def read(path):
    with open(path, "rb") as file:
        return file.read()


def write(path, content):
    with open(path, "wb") as file:
        file.write(content)
    return path


def write_pnm(path, width, height, samples, maximum=255):
    """Grey, or three samples a pixel"""
    kind = 5 if len(samples) == width * height else 6
    packed = bytes(samples) if maximum < 256 else struct.pack(f">{len(samples)}H", *samples)
    return write(path, b"P%d\n%d %d\n%d\n" % (kind, width, height, maximum) + packed)


def read_pnm(path):
    """width, height, maximum, samples of a binary file as the tool writes it"""
    magic, size, maximum, samples = read(path).split(b"\n", 3)
    width, height = map(int, size.split())
    assert magic in (b"P5", b"P6")
    return width, height, int(maximum), samples


def write_y4m(path, width, height, frames, tags=b"F25:1 C420jpeg", frame_line=b"FRAME\n"):
    return write(path, b"YUV4MPEG2 W%d H%d %s\n" % (width, height, tags) + b"".join(frame_line + f for f in frames))


def read_y4m(path):
    """words of the header, bytes of the frames, which are all of one size"""
    header, *frames = read(path).split(b"FRAME\n")
    assert header.endswith(b"\n") and len(set(map(len, frames))) == 1, (path, header, [len(f) for f in frames])
    return header.decode().split(), frames


def write_pfm(path, width, height, values):
    """Grey, or three samples a pixel"""
    kind = b"Pf" if len(values) == width * height else b"PF"
    return write(path, kind + b"\n%d %d\n-1.0\n" % (width, height) + struct.pack(f"<{len(values)}f", *values))


def read_pfm(path):
    """The samples of a file as the tool writes it"""
    values = read(path).split(b"\n", 3)[3]
    return list(struct.unpack(f"<{len(values) // 4}f", values))


GREY, RGB, PALETTE, GREY_ALPHA, RGB_ALPHA = 0, 2, 3, 4, 6
PNG_CHANNELS = {GREY: 1, RGB: 3, PALETTE: 1, GREY_ALPHA: 2, RGB_ALPHA: 4}
# What holds the samples of a PNG file in a headerless one, by depth and colour type.
HEADERLESS = {(8, GREY): "grey8", (16, GREY): "grey16", (8, RGB): "rgb24", (16, RGB): "rgb48",
              (8, RGB_ALPHA): "rgba", (16, RGB_ALPHA): "rgba64"}


def png_chunk(name, data):
    return struct.pack(">I", len(data)) + name + data + struct.pack(">I", zlib.crc32(name + data))


def png_header(width, height, depth, colour, interlaced=0):
    header = struct.pack(">IIBBBBB", width, height, depth, colour, 0, 0, interlaced)
    return b"\x89PNG\r\n\x1a\n" + png_chunk(b"IHDR", header)


def write_png(path, pixels, depth, colour, interlaced=False, palette=None, transparent=None):
    """pixels: rows of pixels, each a tuple of samples"""
    def row_bytes(row):
        bits = "".join(format(sample, "0%db" % depth) for pixel in row for sample in pixel)
        bits += "0" * (-len(bits) % 8)
        return b"\0" + int(bits, 2).to_bytes(len(bits) // 8, "big")

    # Adam7: first column and row, distance between columns and rows.
    passes = [(0, 0, 8, 8), (4, 0, 8, 8), (0, 4, 4, 8), (2, 0, 4, 4), (0, 2, 2, 4), (1, 0, 2, 2), (0, 1, 1, 2)]
    data = b""
    for x, y, across, down in passes if interlaced else [(0, 0, 1, 1)]:
        data += b"".join(row_bytes(row[x::across]) for row in pixels[y::down] if row[x::across])
    content = png_header(len(pixels[0]), len(pixels), depth, colour, int(interlaced))
    if palette:
        content += png_chunk(b"PLTE", bytes(sum(palette, ())))
    if transparent:
        content += png_chunk(b"tRNS", bytes(transparent))
    return write(path, content + png_chunk(b"IDAT", zlib.compress(data)) + png_chunk(b"IEND", b""))


def read_png(path):
    """depth, colour type, samples. The tool decodes them: its decoder must first pass on files of write_png."""
    depth, colour = read(path)[24:26]
    zorcc("convert", path, "samples.raw", "--to", HEADERLESS[depth, colour])
    return depth, colour, list(array.array("B" if depth == 8 else "H", read("samples.raw")))


def samples(path):
    """The samples of a PNM or PNG file, or the bytes of any other"""
    if path.endswith(".png"):
        return read_png(path)[2]
    if not path.endswith((".pgm", ".ppm")):
        return list(read(path))
    _, _, maximum, packed = read_pnm(path)
    return list(packed) if maximum < 256 else list(struct.unpack(f">{len(packed) // 2}H", packed))


def unit_samples(path):
    """The samples of a PNM file, of which 1 is white"""
    maximum = read_pnm(path)[2]
    return [value / maximum for value in samples(path)]
