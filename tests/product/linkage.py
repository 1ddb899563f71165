# SPDX-License-Identifier: MIT
"""How a shared library is linked: linkage.py LIBRARY HEADER SONAME NEEDED-LIBRARIES PATH...

It exports the functions that its header declares, no more and no fewer. NEEDED-LIBRARIES, joined by commas, may be
needed beside the OpenMP runtime and the C library, and no PATH may stand in the file.
"""
import pathlib
import re
import subprocess
import sys

from tools import differences, leave_with, output_of, prototypes

library, header, soname, needed_libraries, *paths = sys.argv[1:]
allowed = {"libgomp.so.1", "libomp.so.5", "libc.so.6", "libm.so.6", "ld-linux-x86-64.so.2"}
symbols = [line.split() for line in output_of("nm", "-D", "--defined-only", library).splitlines()]
versions = {name.partition("@@")[2] for _, kind, name in symbols if kind != "A"}
exported = [(kind, name.partition("@@")[0]) for _, kind, name in symbols if kind != "A"]  # A: the version itself
dynamic = output_of("readelf", "-dW", library)
needed = re.findall(r"\(NEEDED\).*\[(.*)\]", dynamic)
segments = output_of("readelf", "-lW", library)
stack = re.findall(r"^\s*GNU_STACK(?:\s+0x\w+){5}\s+([RWE ]+?)\s+0x", segments, re.M)
notes = subprocess.run(("readelf", "-nW", library), capture_output=True, text=True, check=True).stdout
entry = min(prototypes(header))
code = output_of("objdump", "-d", f"--disassemble={entry}", library)
content = pathlib.Path(library).read_bytes()

findings = differences({name for _, name in exported}, prototypes(header), "the library", "the header")
faults = (
    ("symbols other than functions", {kind for kind, _ in exported} - {"T"}),
    (f"versions of symbols are {versions}", len(versions) != 1 or not re.fullmatch(r"ZOR\w+_6\.1", max(versions))),
    (f"SONAME is not {soname}", re.findall(r"\(SONAME\).*\[(.*)\]", dynamic) != [soname]),
    ("needs no library: not read rightly", not needed),
    ("needs other libraries", set(needed) - allowed - set(needed_libraries.split(","))),
    ("symbols are not bound at once", not re.search(r"\(FLAGS(_1)?\).*\b(BIND_NOW|NOW)\b", dynamic)),
    ("may be unmapped while the OpenMP runtime's threads run", not re.search(r"\(FLAGS_1\).*\bNODELETE\b", dynamic)),
    ("shadow stacks are not allowed", not re.search(r"x86 feature:.*SHSTK", notes)),
    ("indirect calls land without a mark", not re.search(rf"<{entry}(?:@@\w+\.\d)?>:\n[^\n]*endbr64", code)),
    ("no stack protector", "__stack_chk_fail" not in output_of("nm", "-D", library)),
    ("relocations in code", "(TEXTREL)" in dynamic),
    ("search paths", set(re.findall(r"\((?:RPATH|RUNPATH)\).*\[(.*)\]", dynamic)) - {"$ORIGIN"}),
    ("relocations are not made read-only", not re.search(r"^\s*GNU_RELRO", segments, re.M)),
    (f"stack is {stack}, not RW", stack != ["RW"]),
    ("paths of this machine stand in the file", [path for path in paths if path.encode() in content]))
leave_with(findings + [f"{fault}: {found}" for fault, found in faults if found])
