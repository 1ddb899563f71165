# SPDX-License-Identifier: MIT
"""Running the tool, and files written and read without it."""
import atexit
import os
import shutil
import struct
import subprocess
import tempfile
import zlib

ZORCC = os.environ["ZORCC_TOOL"]
SOURCE = os.environ["ZORCC_SOURCE"]
PICTURES = os.environ["ZORCC_PICTURES"]

# Under sanitizers, too, sizes that no machine has memory for end in the tool's own message, and a run at once.
ENVIRONMENT = dict(os.environ)
for name, option in (("ASAN_OPTIONS", "allocator_may_return_null=1"),
                     ("TSAN_OPTIONS", "allocator_may_return_null=1:atexit_sleep_ms=0")):
    ENVIRONMENT[name] = ":".join(filter(None, (os.environ.get(name), option)))

FOLDER = tempfile.mkdtemp(prefix="zorcc-test-")
atexit.register(shutil.rmtree, FOLDER)
os.chdir(FOLDER)


def run(*arguments, **options):
    return subprocess.run([ZORCC, *map(str, arguments)], capture_output=True, text=True, timeout=120, env=ENVIRONMENT,
                          **options)


def zorcc(*arguments):
    """Runs the tool, which must succeed without a word on stderr; gives what it printed."""
    result = run(*arguments)
    assert result.returncode == 0 and not result.stderr, (arguments, result)
    return result.stdout


def functions():
    """name, source and destination of every row of `zorcc list`."""
    return [line.split()[:3] for line in zorcc("list").splitlines()]


def compare(a, b):
    """{channel: (PSNR, largest difference)}"""
    rows = [line.split() for line in zorcc("compare", a, b).splitlines()[1:]]
    return {row[0]: (float(row[1]), float(row[2])) for row in rows}


def read(path):
    with open(path, "rb") as file:
        return file.read()


def write(path, content):
    with open(path, "wb") as file:
        file.write(content)
    return path


def write_ppm(path, width, height, samples):
    return write(path, b"P6\n%d %d\n255\n" % (width, height) + bytes(samples))


def read_pnm(path):
    """width, height, maximum, samples of a binary file as the tool writes it"""
    magic, size, maximum, samples = read(path).split(b"\n", 3)
    width, height = map(int, size.split())
    assert magic in (b"P5", b"P6")
    return width, height, int(maximum), samples


def write_y4m(path, width, height, frames, tags=b"F25:1 C420jpeg", frame_line=b"FRAME\n"):
    return write(path, b"YUV4MPEG2 W%d H%d %s\n" % (width, height, tags) + b"".join(frame_line + f for f in frames))


def read_y4m(path):
    """words of the header, bytes of the frames"""
    header, rest = read(path).split(b"\n", 1)
    words = header.decode().split()
    value = {word[0]: word[1:] for word in words[1:]}
    width, height = int(value["W"]), int(value["H"])
    half = lambda size: (size + 1) // 2
    chroma = {"420": half(width) * half(height), "422": half(width) * height, "444": width * height}[value["C"][:3]]
    step = len(b"FRAME\n") + width * height + 2 * chroma
    assert len(rest) % step == 0, (path, len(rest), step)
    frames = [rest[at:at + step] for at in range(0, len(rest), step)]
    assert all(frame.startswith(b"FRAME\n") for frame in frames)
    return words, [frame[6:] for frame in frames]


GREY, RGB, PALETTE, GREY_ALPHA, RGB_ALPHA = 0, 2, 3, 4, 6
PNG_CHANNELS = {GREY: 1, RGB: 3, PALETTE: 1, GREY_ALPHA: 2, RGB_ALPHA: 4}


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
    """depth, colour type, rows of pixels of a file that is not interlaced"""
    content, at, data = read(path), 8, b""
    while at < len(content):
        length, name = struct.unpack(">I4s", content[at:at + 8])
        body = content[at + 8:at + 8 + length]
        if name == b"IHDR":
            width, height, depth, colour, _, _, interlaced = struct.unpack(">IIBBBBB", body)
            assert depth in (8, 16) and not interlaced
        elif name == b"IDAT":
            data += body
        at += 12 + length
    data = zlib.decompress(data)
    sample_bytes = depth // 8
    pixel_bytes = PNG_CHANNELS[colour] * sample_bytes
    above, rows = bytearray(width * pixel_bytes), []
    for y in range(height):
        start = y * (1 + len(above))
        kind, row = data[start], bytearray(data[start + 1:start + 1 + len(above)])
        for i in range(len(row)):
            left, upper_left = (row[i - pixel_bytes], above[i - pixel_bytes]) if i >= pixel_bytes else (0, 0)
            estimate = left + above[i] - upper_left
            nearest = min((left, above[i], upper_left), key=lambda v: abs(estimate - v))
            row[i] = (row[i] + (0, left, above[i], (left + above[i]) // 2, nearest)[kind]) & 255
        above = row
        samples = [int.from_bytes(row[i:i + sample_bytes], "big") for i in range(0, len(row), sample_bytes)]
        channels = PNG_CHANNELS[colour]
        rows.append([tuple(samples[i:i + channels]) for i in range(0, len(samples), channels)])
    return depth, colour, rows
