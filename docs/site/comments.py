#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Doxygen's input filter: comments.py HEADER

The headers' comments are plain text. Here they become Doxygen's, and what is in them reStructuredText: lists of a term
and its explanation in columns, indented formulas, names of functions and headers. The comment of a group of conversions
is that of all its members; its first clause is the title.
"""
import re
import sys

COMMENT = re.compile(r"^/\*(.*?)\*/\n", re.S | re.M)
TRAILING = re.compile(r"(?<=\S)( +)/\* (.*?) \*/$", re.M)
COLUMN = re.compile(r"\S+(?: \S+)*  +(?=\S)")
NAME = re.compile(r"\b(zor[A-Z]\w+|Zor[A-Z]\w+|zori\w+_\w+|ownGetNumThreads)(\(\))?")
HEADER = re.compile(r"\b(zorcc|zorcore|zorconvert|zorcc/\w+)\.h\b")


def lines_of(comment):
    """The text of a comment without its frame."""
    lines = [re.sub(r"^ \* ?|^   (?! )", "", line).rstrip() for line in comment.splitlines()]
    lines[0] = lines[0].strip()
    while lines and not lines[-1].strip(" *"):
        lines.pop()
    return lines[1:] if not lines[0] else lines


def inline(text):
    """A line of words, with names that lead somewhere."""
    def plain(part):
        part = re.sub(r"([*|\\]|_(?!\w))", r"\\\1", part)
        part = HEADER.sub(r":ref:`\g<0> <\g<0>>`", part)
        return NAME.sub(lambda m: f":c:{'func' if m[2] else 'data'}:`{m[1]}`", part)
    parts = re.split(r"`([^`]*)`", text)
    return "".join(f"``{part}``" if i % 2 else plain(part) for i, part in enumerate(parts))


def column_of(lines):
    """Where explanations begin, if these lines are terms with explanations; otherwise 0."""
    found = COLUMN.match(lines[0])
    if not found or "=" in lines[0]:
        return 0
    column = found.end()
    for line, following in zip(lines, lines[1:] + [""]):
        is_explanation = line.startswith(" " * column)
        is_term = line[0] != " " and (line[column - 1:column] in (" ", "") or following.startswith(" " * column))
        if not is_explanation and not is_term:
            return 0
    return column


def definitions(lines, column):
    """Terms with explanations."""
    out = []
    while lines:
        term = lines[0][:column] if lines[0][column - 1:column] == " " else lines[0]
        rest = [lines.pop(0)[len(term):].strip()]
        while lines and lines[0].startswith(" " * column):
            rest.append(lines.pop(0)[column:])
        explanation = text_of([line for line in rest if line]) or [".."]
        out += [inline(term.strip())] + ["   " + line for line in explanation]
    return out


def text_of(lines):
    """The text as reStructuredText."""
    out, i = [], 0
    while i < len(lines):
        end = i
        if not lines[i]:
            i += 1
            continue
        if lines[i][0] == " ":
            while end < len(lines) and lines[end].startswith(" "):
                end += 1
            margin = min(len(line) - len(line.lstrip()) for line in lines[i:end])
            block = [line[margin:] for line in lines[i:end]]
            column = column_of(block)
            out += definitions(block, column) if column else ["::", "", *("   " + line for line in block)]
        elif COLUMN.match(lines[i]) and i + 1 < len(lines):
            while end < len(lines) and lines[end]:
                end += 1
            out += definitions(lines[i:end], COLUMN.match(lines[i]).end())
        else:
            while end < len(lines) and lines[end] and lines[end][0] != " ":
                end += 1
            out += inline("\n".join(lines[i:end])).splitlines()
        out.append("")
        i = end
    return out[:-1]


def doxygen(lines, command=""):
    """A comment as Doxygen takes it."""
    rst = "\n".join(text_of(lines))
    return f"/** {command}\n@verbatim embed:rst\n{rst}\n@endverbatim\n*/\n" if rst else f"/** {command} */\n"


def group(lines):
    """The beginning of a group of conversions."""
    first = re.match(r"(.*?)(?<!\([A-Z])[.:;](?:\s+|$)(.*)", "\n".join(lines), re.S)
    title, rest = re.sub(r"\s+", " ", first[1]), first[2]
    return doxygen((rest[:1].upper() + rest[1:]).splitlines(), f"@name {title}") + "/** @{ */\n"


def filtered(text):
    text = TRAILING.sub(r"\1/**< \2 */", text)
    out, end, is_open, is_first = [], 0, False, True
    for found in COMMENT.finditer(text):
        out.append(text[end:found.start()])
        end = found.end()
        lines = lines_of(found[1])
        if lines[0].startswith(("SPDX", "----")):
            continue
        if is_open:
            out.append("/** @} */\n")
        is_open = not is_first and re.match(r"ZOR_API ZorStatus zori", text[end:]) is not None
        out.append(doxygen(lines, "@file") if is_first else group(lines) if is_open else doxygen(lines))
        is_first = False
    rest, guard, tail = text[end:].rpartition("#endif")
    out += [rest, "/** @} */\n" if is_open else "", guard, tail]
    return "".join(out)


if __name__ == "__main__":
    with open(sys.argv[1], encoding="utf-8") as header:
        sys.stdout.write(filtered(header.read()))
