# SPDX-License-Identifier: MIT
"""How a shared library is linked: linkage.py LIBRARY SONAME NEEDED-LIBRARIES PATH...

NEEDED-LIBRARIES, joined by commas, may be needed beside the OpenMP runtime and the C library, and no PATH may stand in
the file.
"""
import re
import sys

from tools import Findings, output_of

library, soname, needed_libraries, *paths = sys.argv[1:]
allowed = {"libgomp.so.1", "libomp.so.5", "libc.so.6", "libm.so.6", "ld-linux-x86-64.so.2"}
findings = Findings()

dynamic = output_of("readelf", "-dW", library)
if re.findall(r"\(SONAME\).*\[(.*)\]", dynamic) != [soname]:
    findings.add(f"SONAME is not {soname}")
needed = re.findall(r"\(NEEDED\).*\[(.*)\]", dynamic)
if not needed:
    findings.add("needs no library: not read rightly")
for name in sorted(set(needed) - allowed - set(needed_libraries.split(","))):
    findings.add(f"needs {name}")
if not re.search(r"\(FLAGS(_1)?\).*\b(BIND_NOW|NOW)\b", dynamic):
    findings.add("symbols are not bound at once")
if "(TEXTREL)" in dynamic:
    findings.add("relocations in code")
for path in re.findall(r"\((?:RPATH|RUNPATH)\).*\[(.*)\]", dynamic):
    if path != "$ORIGIN":
        findings.add(f"search path {path}")

segments = output_of("readelf", "-lW", library)
if not re.search(r"^\s*GNU_RELRO", segments, re.M):
    findings.add("relocations are not made read-only")
stack = re.findall(r"^\s*GNU_STACK(?:\s+0x\w+){5}\s+([RWE ]+?)\s+0x", segments, re.M)
if stack != ["RW"]:
    findings.add(f"stack is {stack}, not RW")

with open(library, "rb") as file:
    content = file.read()
for path in paths:
    at = content.find(path.encode())
    if at >= 0:
        findings.add(f"the path {path} stands in the file: ...{content[at:at + 100]}")
findings.leave()
