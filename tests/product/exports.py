# SPDX-License-Identifier: MIT
"""A library exports the functions that its header declares, no more and no fewer: exports.py HEADER LIBRARY"""
import sys

from tools import Findings, output_of, prototypes

header, library = sys.argv[1:]
exported = set()
findings = Findings()
for line in output_of("nm", "-D", "--defined-only", library).splitlines():
    _, kind, name = line.split()
    exported.add(name)
    if kind != "T":
        findings.add(f"{name}: symbol of type {kind}, not a function")
findings.same(exported, prototypes(header), "the library", "the header")
findings.leave()
