# SPDX-License-Identifier: MIT
"""How a shared library is linked: linkage.py LIBRARY HEADER SONAME NEEDED-LIBRARIES PATH...

It exports the functions that its header declares, no more and no fewer. NEEDED-LIBRARIES, joined by commas, may be
needed beside the OpenMP runtime and the C library, and no PATH may stand in the file.
"""
import pathlib
import re
import sys

from tools import differences, leave_with, output_of, prototypes

library, header, soname, needed_libraries, *paths = sys.argv[1:]
allowed = {"libgomp.so.1", "libomp.so.5", "libc.so.6", "libm.so.6", "ld-linux-x86-64.so.2"}
symbols = [line.split() for line in output_of("nm", "-D", "--defined-only", library).splitlines()]
dynamic = output_of("readelf", "-dW", library)
needed = re.findall(r"\(NEEDED\).*\[(.*)\]", dynamic)
segments = output_of("readelf", "-lW", library)
stack = re.findall(r"^\s*GNU_STACK(?:\s+0x\w+){5}\s+([RWE ]+?)\s+0x", segments, re.M)
content = pathlib.Path(library).read_bytes()

findings = differences({name for _, _, name in symbols}, prototypes(header), "the library", "the header")
faults = (
    ("symbols other than functions", {kind for _, kind, _ in symbols} - {"T"}),
    (f"SONAME is not {soname}", re.findall(r"\(SONAME\).*\[(.*)\]", dynamic) != [soname]),
    ("needs no library: not read rightly", not needed),
    ("needs other libraries", set(needed) - allowed - set(needed_libraries.split(","))),
    ("symbols are not bound at once", not re.search(r"\(FLAGS(_1)?\).*\b(BIND_NOW|NOW)\b", dynamic)),
    ("relocations in code", "(TEXTREL)" in dynamic),
    ("search paths", set(re.findall(r"\((?:RPATH|RUNPATH)\).*\[(.*)\]", dynamic)) - {"$ORIGIN"}),
    ("relocations are not made read-only", not re.search(r"^\s*GNU_RELRO", segments, re.M)),
    (f"stack is {stack}, not RW", stack != ["RW"]),
    ("paths of this machine stand in the file", [path for path in paths if path.encode() in content]))
leave_with(findings + [f"{fault}: {found}" for fault, found in faults if found])
