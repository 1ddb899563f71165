# SPDX-License-Identifier: MIT
"""What the checks of the built libraries share."""
import pathlib
import re
import subprocess
import sys


def output_of(*command):
    """Standard output of a command that must succeed and say something."""
    text = subprocess.run(command, check=True, capture_output=True, text=True).stdout
    if not text.strip():
        sys.exit(f"{' '.join(command)}: no output")
    return text


def declarations(header):
    """What a header itself declares, macros with a value included: one line each, white space normalised."""
    text = re.sub(r"/\*.*?\*/", " ", pathlib.Path(header).read_text(encoding="ascii"), flags=re.S)
    found = re.findall(r"^\s*#\s*define \w+\b .+$", text, flags=re.M)
    found += re.findall(r"[^;{]+(?:\{[^}]*\}[^;]*)?;", re.sub(r"^\s*#.*$", "", text, flags=re.M))
    return [" ".join(declaration.split()) for declaration in found]


def prototypes(header):
    """{name: (return type, [parameters])} of the functions that a header and the families' headers that it includes
    export."""
    header = pathlib.Path(header)
    families = re.findall(r'^#include "(zorcc/\w+\.h)"', header.read_text(encoding="ascii"), flags=re.M)
    found = {}
    for declaration in sum((declarations(path) for path in [header, *(header.parent / f for f in families)]), []):
        if function := re.fullmatch(r"ZOR_API (.*?) ?(\w+)\((.*)\);", declaration):
            found[function[2]] = (function[1], function[3].split(", "))
    if not found:
        sys.exit(f"{header}: no exported functions found")
    return found


def table_rows(tables):
    """{name: [names of its arguments beside images and size]} of the functions of the interface's tables, a folder."""
    rows = []
    for table in pathlib.Path(tables).iterdir():
        found = re.findall(r"^ZOR_FUNCTION\((\w+)(?:, )?(.*)\)$", table.read_text(encoding="ascii"), flags=re.M)
        if not found:
            sys.exit(f"{table}: no functions found")
        rows += found
    return {name: arguments.split(", ") if arguments else [] for name, arguments in rows}


def differences(one, other, what_one, what_other):
    return [f"{name}: only in {what_one if name in one else what_other}" for name in sorted(set(one) ^ set(other))]


def leave_with(findings):
    """Ends the check, with the faults that it found if there are any."""
    sys.exit("\n".join(findings) or 0)
