# SPDX-License-Identifier: MIT
"""The binary interface of a library is the one that its headers declare: abidiff.py LIBRARY HEADER COMPILER

A library of the same name is made of HEADER's functions and compared with LIBRARY by abidiff, which reads the debugger
information of both: functions and their versions, sizes and members of types, enumerators. That the headers declare
what programs have been compiled with is seen by abi.py.
"""
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

from tools import leave_with, output_of, prototypes

library, header, compiler = sys.argv[1:]
if not shutil.which("abidiff"):
    print("skipped: no abidiff")
    sys.exit(77)
if ".debug_info" not in output_of("readelf", "-SW", library):
    print("skipped: no debug information in the library")
    sys.exit(77)

version = re.search(r"@@(ZOR\w+_\d\.\d)", output_of("nm", "-D", "--defined-only", library))[1]
functions = [f'extern "C" {result} {name}({", ".join(parameters)}) {{ __builtin_trap(); }}'
             for name, (result, parameters) in prototypes(header).items()]
with tempfile.TemporaryDirectory() as folder:
    folder = pathlib.Path(folder)
    (folder / "declared.cpp").write_text("\n".join([f'#include "{header}"', *functions]), encoding="ascii")
    (folder / "declared.map").write_text(f"{version} {{ global: zor*; own*; local: *; }};\n", encoding="ascii")
    declared = folder / pathlib.Path(library).resolve().name
    subprocess.run([compiler, "-g", "-shared", "-fPIC", "-w", f"-I{pathlib.Path(header).parent}",
                    f"-Wl,--version-script={folder}/declared.map", f"-Wl,-soname,{declared.name}", "-o", declared,
                    folder / "declared.cpp"], check=True)
    result = subprocess.run(["abidiff", "--no-unreferenced-symbols", declared, library], capture_output=True, text=True)
leave_with([result.stdout + result.stderr] if result.returncode else [])
