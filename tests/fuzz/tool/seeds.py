# SPDX-License-Identifier: MIT
"""Small files of all kinds for the fuzz targets: seeds.py ZORCC FOLDER"""
import os
import random
import subprocess
import sys

tool, folder = os.path.abspath(sys.argv[1]), sys.argv[2]
FORMATS = subprocess.run([tool, "list", "--formats"], check=True, capture_output=True, text=True).stdout.split()


def path(target, name):
    os.makedirs(os.path.join(folder, target), exist_ok=True)
    return os.path.join(folder, target, name)


def zorcc(*words):
    subprocess.run([tool, "--quiet", *words], check=True)


def write(target, name, content):
    with open(path(target, name), "wb") as file:
        file.write(content)


chart, grey = path("file_reader/png", "chart.png"), path("file_reader/png", "grey.png")
zorcc("chart", chart, "--size", "23x17")
zorcc("grey", chart, grey)
for depth in ("rgb48", "rgba"):
    zorcc("convert", chart, path("file_reader/png", depth + ".png"), "--to", depth)
for picture in (chart, grey):
    name = os.path.basename(picture)[:-4]
    zorcc("convert", picture, path("file_reader/jpeg", name + ".jpg"))
    zorcc("convert", picture, path("file_reader/pnm", name + ".ppm"))
    zorcc("convert", picture, path("file_reader/pnm", name + ".pfm"))
zorcc("convert", grey, path("file_reader/pnm", "grey.pgm"))
write("file_reader/pnm", "text.ppm", b"P3\n# text\n2 2\n255\n1 2 3 4 5 6 7 8 9 10 11 12\n")
for form in ("yuv420p", "yuv422p", "yuv444p"):
    zorcc("convert", chart, path("file_reader/y4m", form + ".y4m"), "--to", form)
write("file_reader/y4m", "tags.y4m", b"YUV4MPEG2 W2 H2 F24000:1001 It A10:11 C420mpeg2 XCOLORRANGE=FULL\n" +
      2 * (b"FRAME Ip\n" + bytes(6)))
dice = random.Random(1)
for form in ("yuv420p", "nv12", "yuyv", "rgb24", "rgb565", "rgbf32"):
    write("headerless_reader", form, bytes([FORMATS.index(form), 4, 2, 0]) + dice.randbytes(200))
for i, line in enumerate((
        "convert a.png b.y4m --matrix bt709", "convert --size 64x48 --format nv12 - out.raw --to lab --linear",
        "call zoriReduceBits_8u_C3R a.png b.png --levels 4 --method fs --noise 3", "list --formats nv", "help convert",
        "reduce a.png b.png --levels 4 --dither stucki --depth 8", "twist a.png b.png --matrix saturation=0.5",
        "demosaic a.pgm b.png --grid rggb --method ahd --threads 2", "grey a.png b.png --weights 0.3,0.6,0.1 -q",
        "compare a.png b.png --min-psnr 40 --max-pixels 1000", "chart c.png --size 64x48 --as png", "--version")):
    write("command_line", str(i), "\n".join(line.split()).encode())
