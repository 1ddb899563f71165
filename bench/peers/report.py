#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Draws docs/speed.svg and fills in the README's figures, from the JSON of zorcc_peers.

    bench/peers/report.py              # runs build/release/bin/zorcc_peers on AVX2 and AVX-512, for some minutes
    bench/peers/report.py FILE.json... # what it has written before, by --tier and --json
"""
import json
import math
import pathlib
import re
import subprocess
import sys
import tempfile
import textwrap
from html import escape

ROOT = pathlib.Path(__file__).resolve().parents[2]
TIERS = {"avx2": "AVX2", "avx512": "AVX-512"}
CACHED, FRAME = "256x64", "1920x1080"
NO_SUCH_CHOICE = 105  # the code with which zorcc_peers leaves for an option's value that is none of its choices

# What the README's table shows.
CONVERSIONS = {
    "RGB to YCbCr 4:2:0": "zoriRGBToYCbCr420_8u_C3P3R",
    "YCbCr 4:2:0 to RGB": "zoriYCbCr420ToRGB_8u_P3C3R",
    "YCbCr 4:2:0 to BGRA": "zoriYCbCr420ToBGR_8u_P3C4R",
    "YUY2 to RGB": "zoriYCbCr422ToRGB_8u_C2C3R",
    "NV12 to planar 4:2:0": "zoriYCbCr420_8u_P2P3R",
    "UYVY to planar 4:2:0": "zoriCbYCr422ToYCbCr420_8u_C2P3R",
    "4:2:0 to 5-6-5, dithered": "zoriYCbCr420ToRGB565Dither_8u16u_P3C3R",
    "RGB to grey": "zoriRGBToGray_8u_C3C1R",
    "RGB to HLS": "zoriRGBToHLS_8u_C3R",
    "BGR to L\\*a\\*b\\*": "zoriBGRToLab_8u_C3R",
    "RGB to L\\*u\\*v\\*, floats": "zoriRGBToLUV_32f_C3R",
    "colour twist": "zoriColorTwist32f_8u_C3R",
    "gamma": "zoriGammaFwd_8u_C3R",
    "gamma, floats": "zoriGammaFwd_32f_C3R",
    "error diffusion": "zoriReduceBits_8u_C3R fs",
    "Bayer to RGB": "zoriCFAToRGB_16u_C1C3R",
    "Bayer to RGB, adaptive": "zoriDemosaicAHD_16u_C1C3R",
}

STYLE = """
  text { font: 9.5px ui-monospace, "DejaVu Sans Mono", Menlo, Consolas, monospace; fill: #24292f }
  .words { font-family: system-ui, "DejaVu Sans", Helvetica, Arial, sans-serif; font-size: 11px }
  .title { font-size: 17px; font-weight: 600 }
  .faint { fill: #6e7781 }
  .page { fill: #ffffff; stroke: #d0d7de }
  .stripe { fill: #f3f5f7 }
  .behind { fill: #cf222e; fill-opacity: .09 }
  .grid { stroke: #d8dee4 }
  .even { stroke: #cf222e; stroke-width: 1.4 }
  .avx2 { stroke: #c4690c; fill: #c4690c }
  .avx512 { stroke: #1f6feb; fill: #1f6feb }
  .frame { fill: #ffffff }
  @media (prefers-color-scheme: dark) {
    text { fill: #e6edf3 } .faint { fill: #9198a1 } .page { fill: #0d1117; stroke: #30363d }
    .stripe { fill: #161b22 } .behind { fill: #f85149; fill-opacity: .16 } .grid { stroke: #2b3138 }
    .even { stroke: #f85149 } .avx2 { stroke: #f0a040; fill: #f0a040 } .avx512 { stroke: #58a6ff; fill: #58a6ff }
    .frame { fill: #0d1117 }
  }
"""


def best_peer(result):
    """The name and speed of the fastest one; None if there is none."""
    return max(result["peers"].items(), key=lambda peer: peer[1], default=None)


def geomean(values):
    return math.exp(sum(map(math.log, values)) / len(values))


def ratios_of(runs):
    """Our speed in multiples of the best peer's: {function: {(tier, size): ratio}}."""
    ratios = {}
    for tier, results in runs.items():
        for r in results:
            if r["size"] in (CACHED, FRAME) and (peer := best_peer(r)):
                ratios.setdefault(r["function"], {})[tier, r["size"]] = r["zorcc"][tier] / peer[1]
    return ratios


def plot(ratios):
    """One row a function, best first, in two columns: a lane for each tier, with both sizes joined by a line."""
    row, lane, names, width, gap, left, top = 13, 2.7, 222, 300, 26, 16, 92
    rows = sorted(ratios.items(), key=lambda item: -geomean(item[1].values()))
    all_ratios = [ratio for _, figures in rows for ratio in figures.values()]
    low = math.floor(math.log2(min(all_ratios)))
    high = math.ceil(math.log2(max(all_ratios)))
    half = -(-len(rows) // 2)
    total = (left * 2 + 2 * (names + width) + gap, top + half * row + 34)
    out = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {total[0]} {total[1]}" width="{total[0]}" '
           f'height="{total[1]}">', f"<style>{STYLE}</style>",
           f'<rect class="page" x=".5" y=".5" width="{total[0] - 1}" height="{total[1] - 1}" rx="8"/>',
           f'<text class="words title" x="{left}" y="28">Speed of zorcc in multiples of the fastest peer\'s</text>']

    def words(x, y, text, kind="words", anchor="start"):
        out.append(f'<text class="{kind}" x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}">{escape(text)}</text>')

    def dot(x, y, kind):
        out.append(f'<circle class="{kind}" cx="{x:.1f}" cy="{y:.1f}" r="2.3"/>')

    x = left + 3
    for tier, title in TIERS.items():
        for size, kind in ((CACHED, tier), (FRAME, tier + " frame")):
            dot(x, 48, kind)
            words(x + 8, 52, f"{title}, {size}")
            x += 132
    words(total[0] - left, 52, "one thread; logarithmic scale; right of the red line zorcc is ahead", "words faint",
          "end")

    for column in (0, 1):
        origin = left + column * (names + width + gap) + names
        part = rows[column * half:(column + 1) * half]
        bottom = top + len(part) * row

        def place(ratio):
            return origin + (math.log2(ratio) - low) / (high - low) * width

        for i in range(1, len(part), 2):
            out.append(f'<rect class="stripe" x="{origin - names}" y="{top + i * row}" width="{names + width}" '
                       f'height="{row}"/>')
        out.append(f'<rect class="behind" x="{origin}" y="{top}" width="{place(1) - origin:.1f}" '
                   f'height="{bottom - top}"/>')
        for power in range(low, high + 1):
            at = place(2 ** power)
            out.append(f'<line class="{"grid" if power else "even"}" x1="{at:.1f}" x2="{at:.1f}" y1="{top}" '
                       f'y2="{bottom}"/>')
            for y in (top - 7, bottom + 15):
                words(at, y, f"{2 ** power:g}", "words faint", "middle")
        for i, (name, figures) in enumerate(part):
            middle = top + (i + .5) * row
            tip = "".join(f"\n{TIERS[tier]}, {size}: {ratio:.2f}" for (tier, size), ratio in sorted(figures.items()))
            out.append(f"<g><title>{escape(name + tip)}</title>")
            words(origin - 8, middle + 3.4, name.removeprefix("zori"), "name", "end")
            for k, tier in enumerate(TIERS):
                ends = {size: place(figures[tier, size]) for size in (FRAME, CACHED) if (tier, size) in figures}
                y = middle + (2 * k - 1) * lane
                if len(ends) == 2:
                    out.append(f'<line class="{tier}" x1="{ends[FRAME]:.1f}" x2="{ends[CACHED]:.1f}" y1="{y:.1f}" '
                               f'y2="{y:.1f}"/>')
                for size, x in ends.items():
                    dot(x, y, tier + (" frame" if size == FRAME else ""))
            out.append("</g>")
    return "\n".join(out) + "\n</svg>\n"


def summary(ratios):
    tiers = {tier: [r for figures in ratios.values() for (t, _), r in figures.items() if t == tier] for tier in TIERS}
    tiers = {TIERS[tier]: values for tier, values in tiers.items() if values}
    pairs = len(next(iter(tiers.values())))
    means = " and ".join(f"{geomean(values):.2f} on {title}" for title, values in tiers.items())
    behind = " and ".join(f"in {sum(v < 1 for v in values)} on {title}" for title, values in tiers.items())
    return textwrap.fill(f"Over all {pairs} pairs of function and size that have a peer, the geometric mean of zorcc's "
                         f"speed in multiples of the fastest peer's is {means}; zorcc is behind {behind}.", 120)


def table(runs):
    lines = [f'| conversion | function | {" | ".join(TIERS[tier] for tier in runs)} | memcpy |',
             "|---|---|" + "---|" * len(runs) + "---|"]
    found = {(tier, r["function"]): r for tier, results in runs.items() for r in results if r["size"] == FRAME}

    def cell(tier, function):
        result = found[tier, function]
        name, speed = best_peer(result)
        library = name.split()[0 if "library" not in name else -1]
        ours = result["zorcc"][tier]
        return f"{ours:.0f}, {ours / speed:.2f} x {library}"

    for conversion, function in CONVERSIONS.items():
        lines.append(f'| {conversion} | `{function}` | {" | ".join(cell(tier, function) for tier in runs)} '
                     f'| {found[next(iter(runs)), function]["memcpy"]:.0f} |')
    return "\n".join(lines)


def measure(tier):
    """None where the processor lacks the tier."""
    with tempfile.NamedTemporaryFile(suffix=".json") as file:
        run = subprocess.run([ROOT / "build/release/bin/zorcc_peers", "--tier", tier, "--json", file.name, "--seconds",
                              "0.25"], stdout=subprocess.DEVNULL)
        if run.returncode == NO_SUCH_CHOICE:
            return None
        run.check_returncode()
        return json.load(file)


def main():
    data = [json.loads(pathlib.Path(path).read_text()) for path in sys.argv[1:]] or filter(None, map(measure, TIERS))
    runs = {run["tier"]: run["results"] for run in data}
    ratios = ratios_of(runs)
    (ROOT / "docs/speed.svg").write_text(plot(ratios))
    readme = ROOT / "README.md"
    mark = "<!-- {} of bench/peers/report.py -->"
    begin, end = mark.format("begin"), mark.format("end")
    made = f"{begin}\n\n{summary(ratios)}\n\n{table(runs)}\n\n{end}"
    text, count = re.subn(f"{begin}.*{end}", lambda _: made, readme.read_text(), flags=re.S)
    if count != 1:
        sys.exit(f"README.md lacks {begin}")
    readme.write_text(text)


if __name__ == "__main__":
    main()
