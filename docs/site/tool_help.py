# SPDX-License-Identifier: MIT
"""The tool's own help as a page: `.. tool-help:: convert`, or without a command that of all."""
import re
import subprocess

from comments import text_of
from headers import HeaderText, see_also, titled

INTEGER = re.compile(r" (\w+):INT in \[(\d+) - (\d+)\](?:=(\d+))?")


def blocks(lines):
    """The entries of a list of options: names and explanation."""
    entries = []
    for line in lines:
        if re.match(r"  \S", line):
            name, _, text = line.strip().partition("  ")
            entries.append((name, text.strip()))
        else:  # the names were long
            entries[-1] = (entries[-1][0], line.strip())
    return entries


def option(name, text):
    """An option and its value as people write them."""
    limits = INTEGER.search(name)
    if limits:
        _, low, high, default = limits.groups()
        is_open = int(high) >= 2**31 - 1
        text += f" ({low} or more" if is_open else f" ({low} to {high}"
        text += f"; {default} if not given)" if default else ")"
        name = INTEGER.sub(r" \1", name)
    if name.endswith(" REQUIRED"):
        text += " (required)"
    name = re.sub(r" (REQUIRED|x \d+)", "", name)
    return ", ".join(name.split(",")) if name.startswith("-") and " " not in name else \
        re.sub(r"(?<=[a-z]),(?=-)", ", ", name), text


class ToolHelp(HeaderText):
    required_arguments, optional_arguments = 0, 1

    def run(self):
        tool, command = self.config.zorcc_tool, " ".join(self.arguments)
        self.env.note_dependency(tool)
        text = subprocess.run([tool, "help", *self.arguments], check=True, capture_output=True, text=True).stdout
        lines = text.splitlines()
        what, usage = lines[0], lines[1].removeprefix("Usage: ").removeprefix("zorcc ")
        rst = titled("Synopsis", "-") + f"::\n\n   zorcc {usage}\n\n" + titled("Description", "-") + what + ".\n\n"
        rst += f".. program:: {' '.join(['zorcc', command]).strip()}\n\n"
        lists, rest = [], lines[2:]
        while rest:
            line = rest.pop(0)
            if not re.fullmatch(r"(Positionals|Options|Subcommands|Arguments of \w+):", line):
                if line:
                    rest.insert(0, line)
                    break
                continue
            entries = []
            while rest and rest[0]:
                entries.append(rest.pop(0))
            lists.append((line[:-1], blocks(entries)))
        footer = re.sub(r"^(?=Examples?:$)", "\n", "\n".join(rest), flags=re.M)
        rst += "\n".join(text_of(footer.splitlines())) + "\n\n"
        for title, entries in lists:
            rst += titled({"Positionals": "Files"}.get(title, title), "-")
            for name, words in entries:
                name, words = option(name, words)
                words = "\n   ".join(text_of([words]))
                if title == "Subcommands":
                    rst += f":doc:`zorcc {name} <{name}>`\n   {words}\n"
                elif title == "Positionals":
                    rst += f"{name.removesuffix(' ...').removesuffix(' TEXT')}\n   {words}\n"
                else:
                    rst += f".. option:: {name}\n\n   {words}\n\n"
            rst += "\n"
        return self.parse(rst + see_also("zorcc(1)") if command else rst)


def setup(app):
    app.add_directive("tool-help", ToolHelp)
    return {"parallel_read_safe": True}
