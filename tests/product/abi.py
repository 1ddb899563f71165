# SPDX-License-Identifier: MIT
"""The binary interface is what programs have been compiled with: abi.py INCLUDE-FOLDER BASELINE

BASELINE has a line for each header: its name, how many declarations it has, and a digest of them, in which their order
and the names of parameters do not count. That the libraries export what is declared is seen by linkage.py: a definition
with other parameters is a function of its own, which nothing exports.
"""
import hashlib
import pathlib
import re
import sys

from tools import declarations, leave_with

WHAT_TO_DO = """{header} does not declare what programs have been compiled with. Changes since that was recorded:
    git diff $(git log -1 --format=%h -- {baseline}) -- {header}
Programs break by any change of a declaration, of a structure or of a number: undo it. If functions were added, or a
version begins that needs new programs, this is the header's line in {baseline} from now on:
    {line}"""


def line_of(name, header):
    found = sorted(re.sub(r"(?<=[\w*] )\w+((?:\[\w*\])*[,)])", r"\1", declaration)
                   for declaration in declarations(header))
    return f"{name} {len(found)} {hashlib.sha256(' '.join(found).encode()).hexdigest()[:16]}" if found else ""


include, baseline = map(pathlib.Path, sys.argv[1:])
recorded = {line.split()[0]: line for line in baseline.read_text(encoding="ascii").splitlines() if line[0] != "#"}
headers = {path.relative_to(include).as_posix(): path for path in include.rglob("*.h")}
findings = []
for name in sorted(set(headers) | set(recorded)):
    line = line_of(name, headers[name]) if name in headers else ""
    if line != recorded.get(name, ""):
        findings.append(WHAT_TO_DO.format(header=include / name, baseline=baseline, line=line or "(none)"))
leave_with(findings)
