# SPDX-License-Identifier: MIT
"""The binary interface is what it was: abi.py LIBRARY BASELINE COMPILER

BASELINE has the types and the functions that callers have been compiled with, in C++. A library of the same name is
made of it and compared with LIBRARY by abidiff: functions and their versions, sizes and members of types, enumerators.
What a release adds is added to the baseline; nothing in it is changed.
"""
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

from tools import leave_with, output_of

library, baseline, compiler = sys.argv[1:]
if not shutil.which("abidiff"):
    print("skipped: no abidiff")
    sys.exit(77)
if ".debug_info" not in output_of("readelf", "-SW", library):
    print("skipped: no debug information in the library")
    sys.exit(77)

text = pathlib.Path(baseline).read_text(encoding="ascii")
version = re.search(r"^// Version (\w+\.\d+)$", text, re.M)[1]
functions = re.sub(r"^((?:\w|[ *])+\w+\(.*\));$", r'extern "C" \1 { __builtin_trap(); }', text, flags=re.M)
with tempfile.TemporaryDirectory() as folder:
    folder = pathlib.Path(folder)
    (folder / "baseline.cpp").write_text(functions, encoding="ascii")
    (folder / "baseline.map").write_text(f"{version} {{ global: zor*; own*; local: *; }};\n", encoding="ascii")
    former = folder / pathlib.Path(library).resolve().name
    subprocess.run([compiler, "-g", "-shared", "-fPIC", "-w", f"-Wl,--version-script={folder}/baseline.map",
                    f"-Wl,-soname,{former.name}", "-o", former, folder / "baseline.cpp"], check=True)
    result = subprocess.run(["abidiff", "--no-unreferenced-symbols", former, library], capture_output=True, text=True)
leave_with([result.stdout + result.stderr] if result.returncode else [])
