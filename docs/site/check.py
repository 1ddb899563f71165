#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""What Sphinx does not see: check.py TOOL HTML-FOLDER MAN-FOLDER

Every link inside the site leads to a page, file or anchor. Every function of the interface's table and every command
has an anchor or a page, and a manual page. The manual pages are shown without warnings.
"""
import concurrent.futures
import os
import pathlib
import re
import subprocess
import sys
from urllib.parse import unquote, urlsplit

tool, html, man = sys.argv[1], *map(pathlib.Path, sys.argv[2:])
findings = []


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


pages = {page: page.read_text(encoding="utf-8") for page in html.rglob("*.html")}
anchors = {page.resolve(): set(re.findall(r'\bid="([^"]+)"', text)) for page, text in pages.items()}
for page, text in pages.items():
    for link in set(re.findall(r'\b(?:href|src)="([^"]+)"', text)):
        url = urlsplit(link)
        if url.scheme or url.netloc:
            continue
        target = (page.parent / unquote(url.path)).resolve() if url.path else page.resolve()
        if not target.exists():
            findings.append(f"{page.relative_to(html)}: no {link}")
        elif url.fragment and target in anchors and unquote(url.fragment) not in anchors[target]:
            findings.append(f"{page.relative_to(html)}: no anchor {link}")

everywhere = set().union(*anchors.values())
functions = [line.split()[0] for line in output(tool, "list").splitlines()]
findings += [f"no anchor of {name}" for name in functions if f"c.{name}" not in everywhere]
findings += [f"no manual page of {name}" for name in functions if not (man / f"man3/{name}.3").exists()]
commands = re.findall(r"^  (\w+) ", output(tool, "help").partition("Subcommands:\n")[2].partition("\n\n")[0],
                      re.M)
findings += [f"no manual page of zorcc {name}" for name in commands if not (man / f"man1/zorcc-{name}.1").exists()]


def warnings_of(page):
    environment = {**os.environ, "LC_ALL": "C.UTF-8", "MANWIDTH": "80"}
    shown = subprocess.run(["man", "--warnings", "--local-file", page], env=environment, capture_output=True, text=True)
    return shown.stderr


with concurrent.futures.ThreadPoolExecutor() as pool:
    findings += filter(None, pool.map(warnings_of, [page for page in man.glob("man?/*") if page.stat().st_size > 100]))
print("\n".join(findings[:50]) or f"{len(pages)} pages, {len(functions)} functions, {len(commands)} commands: all found")
sys.exit(bool(findings))
