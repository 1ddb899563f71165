#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Finishes Sphinx's manual pages: manuals.py MAN-FOLDER

Prototypes are neither hyphenated nor spread over the line, and `man zoriRGBToYUV_8u_C3R` shows the page of its family.
"""
import pathlib
import re
import sys

folder = pathlib.Path(sys.argv[1])
pages = {page: page.read_text(encoding="utf-8") for page in folder.glob("man?/*")}
for page, text in pages.items():
    page.write_text(re.sub(r"^\.TH .*\n", r"\g<0>.nh\n.ad l\n", text, flags=re.M), encoding="utf-8")
    for name in re.findall(r"^\.B .*?\b(zor\w+|ownGetNumThreads)\(", text, re.M):
        (folder / f"man3/{name}.3").write_text(f".so man3/{page.name}\n", encoding="utf-8")
