#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""What the package takes from the C headers, _headers.py, and the stub of its functions, functions.pyi:
generate.py INCLUDE-FOLDER PACKAGE-FOLDER, where the extension module is."""
import pathlib
import pprint
import re
import sys
import textwrap

TYPES = {"int": "int", "float": "float", "str": "str"}
ARGUMENT_TYPES = {"levels": "int", "twist": "npt.ArrayLike", "weights": "Optional[Sequence[float]]",
                  "region": "Optional[tuple[int, int, int, int]]"}  # those whose defaults do not say


def plain(comment):
    """The text of a C comment."""
    lines = [re.sub(r"^ ?\* ?", "", line.strip()).rstrip() for line in comment.strip("/* \n").splitlines()]
    return textwrap.dedent("\n".join(lines)).strip()


def statuses(*headers):
    """{name: (number, text)}"""
    constant = re.compile(r"\b(zorStatus\w+) = (-?\d+),? *(?:/\* (.*?) \*/)?")
    found = (constant.findall(header.read_text(encoding="ascii")) for header in headers)
    return {name: (int(number), text) for name, number, text in sum(found, [])}


def functions(header):
    """Text of a family's header, and {name: (prototype, comment of its group)}"""
    text = header.read_text(encoding="ascii")
    family, comment, found = None, "", {}
    for token in re.finditer(r"/\*.*?\*/|^ZOR_API \w+ (\w+)\(.*?\);", text, flags=re.S | re.M):
        if token[1]:
            found[token[1]] = (re.sub(r"^ZOR_API ", "", re.sub(r"\s+", " ", token[0])), comment)
        elif "SPDX" not in token[0]:
            comment = plain(token[0])
            if family is None:
                family, comment = comment, ""
    return family, found


def stub(row):
    """The line of a function in the stub."""
    dtype, shapes = row.shapes(True, (16, 16))
    array = f"npt.NDArray[numpy.{dtype}]"
    result = array if len(shapes) == 1 else f"tuple[{', '.join([array] * len(shapes))}]"
    out = [] if row.in_place else ["out: Optional[Picture] = None"]
    arguments = []
    for name, default in row.arguments:
        kind = ARGUMENT_TYPES.get(name) or TYPES[type(default).__name__]
        arguments.append(f"{name}: {kind}" + ("" if default is ... else f" = {default!r}"))
    image = "image" if row.in_place else "source"
    parameters = ", ".join([f"{image}: Picture", "/", "*", *out, "size: Optional[Size] = None", *arguments])
    return f"def {row.name}({parameters}) -> {result}: ..."


def main():
    include, package = map(pathlib.Path, sys.argv[1:])
    sys.path.insert(0, str(package))
    import _zorcc

    families, prototypes = {}, {}
    for header in sorted((include / "zorcc").glob("*.h")):
        family, found = functions(header)
        if found:
            families[header.stem] = family
            prototypes.update({name: (*texts, header.stem) for name, texts in found.items()})
    rows = _zorcc.functions()
    if missing := [row.name for row in rows if row.name not in prototypes]:
        sys.exit(f"no header declares {', '.join(missing)}")

    tables = {"STATUSES": statuses(include / "zorcc" / "types.h", include / "zorconvert.h"), "FAMILIES": families,
              "FUNCTIONS": {row.name: prototypes[row.name] for row in rows}}
    note = "# Made by generate.py of the C headers.\n"
    (package / "_headers.py").write_text(note + "".join(
        f"{name} = {pprint.pformat(table, width=120, sort_dicts=False)}\n" for name, table in tables.items()))
    (package / "functions.pyi").write_text(
        note + "from typing import Optional, Sequence\n\nimport numpy\nimport numpy.typing as npt\n\n"
        "from ._types import Picture, Size\n\n__all__: list[str]\n\n" + "".join(stub(row) + "\n" for row in rows))


if __name__ == "__main__":
    main()
