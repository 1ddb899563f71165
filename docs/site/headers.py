# SPDX-License-Identifier: MIT
"""Pages of the headers, from Doxygen's XML and the interface's table.

    .. family:: RGB and YUV    the headers of a family: a table of its functions, what they compute, their prototypes
    .. header:: zorcc.h        what a header says of itself
    .. statuses:: zorcc.h      the constants of its enumeration without a name
"""
import functools
import pathlib
import re
import subprocess
from typing import NamedTuple
from xml.etree import ElementTree

from docutils import nodes
from docutils.statemachine import StringList
from sphinx.errors import ExtensionError
from sphinx.util.docutils import SphinxDirective
from sphinx.util.nodes import make_refnode, nested_parse_with_titles

from comments import inline


class Function(NamedTuple):
    name: str
    source: str  # formats
    destination: str
    family: str


@functools.cache
def table(tool):
    """The interface's table, as the tool has it."""
    out = subprocess.run([tool, "list"], check=True, capture_output=True, text=True).stdout
    return [Function(*re.split(" {2,}", line.strip(), maxsplit=3)) for line in out.splitlines()]


class Group(NamedTuple):
    title: str
    text: str
    functions: dict  # prototypes by names


class Header(NamedTuple):
    text: str
    groups: list
    statuses: list  # names, values and explanations


def text_of(element, description):
    """What comments.py has made of a comment."""
    return "".join(v.text.removeprefix("embed:rst\n") for v in element.iterfind(f"{description}//verbatim"))


@functools.cache
def headers(xml):
    """All headers by their names, as in #include."""
    found = {}
    for compound in ElementTree.parse(xml / "index.xml").findall("compound[@kind='file']"):
        definition = ElementTree.parse(xml / f"{compound.get('refid')}.xml").find("compounddef")
        groups = [Group(section.findtext("header", ""), text_of(section, "description"),
                        {f.findtext("name"): f.findtext("definition") + f.findtext("argsstring")
                         for f in section.iterfind("memberdef[@kind='function']")})
                  for section in definition.iter("sectiondef")]
        statuses = [(value.findtext("name"), value.findtext("initializer"),
                     "".join(value.find("detaileddescription").itertext()).strip())
                    for enum in definition.iterfind("sectiondef/memberdef[@kind='enum']") if "@" in enum.findtext("name")
                    for value in enum.iterfind("enumvalue")]
        name = definition.find("location").get("file").removeprefix("include/")
        found[name] = Header(text_of(definition, "detaileddescription"), groups, statuses)
    return found


def titled(title, underline):
    return f"{title}\n{underline * len(title)}\n\n"


def see_also(page):
    return ".. only:: man\n\n   See also " + f":manpage:`{page}`.\n\n"


class HeaderText(SphinxDirective):
    required_arguments = 1

    def parse(self, rst):
        node = nodes.section()
        node.document = self.state.document
        nested_parse_with_titles(self.state, StringList(rst.splitlines(), source=self.get_source_info()[0]), node)
        return node.children

    def headers(self):
        xml = pathlib.Path(self.config.breathe_projects[self.config.breathe_default_project])
        self.env.note_dependency(str(xml / "index.xml"))
        return headers(xml)

    def text(self, name):
        found = self.headers()[name].text
        return f".. _{name}:\n\n.. code-block:: c\n\n   #include <{name}>\n\n{found}\n\n"

    def run(self):
        return self.parse(self.text(self.arguments[0]))


class Statuses(HeaderText):
    def run(self):
        return self.parse("\n".join(f".. c:enumerator:: {name} {value}\n\n   {inline(text)}\n" for name, value, text
                                    in self.headers()[self.arguments[0]].statuses))


class Family(HeaderText):
    final_argument_whitespace = True

    def run(self):
        functions = [f for f in table(self.config.zorcc_tool) if f.family == self.arguments[0]]
        names = {f.name for f in functions}
        ours = {name: header for name, header in self.headers().items()
                if any(names.intersection(group.functions) for group in header.groups)}
        declared = {name for header in ours.values() for group in header.groups for name in group.functions}
        if not names or names != declared:
            raise ExtensionError(f"{self.arguments[0]}: the table and the headers differ: {names ^ declared}")

        rst = ""
        for name, header in ours.items():
            level = "-"
            if len(ours) > 1:
                rst += titled(re.split("[:.]", header.text)[0], "-")
                level = "~"
            rst += self.text(name)
            for group in header.groups:
                if group.title:
                    rst += titled(group.title, level) + group.text + "\n\n"
                rst += "".join(f".. c:function:: {prototype}\n" for prototype in group.functions.values()) + "\n"
        rst += titled("Formats", "-") + (
            ".. only:: html\n\n   .. list-table::\n      :header-rows: 1\n      :class: functions\n\n"
            "      * - function\n        - from\n        - to\n")
        rst += "".join(f"      * - ``{f.name}``\n        - {f.source}\n        - {f.destination}\n" for f in functions)
        rst += "\n.. only:: man\n\n   ::\n\n"
        rst += "".join(f"      {f.name}\n          {f.source} to {f.destination}\n" for f in functions)
        return self.parse(rst + "\n" + see_also("zorcc(3)"))


@functools.cache
def enumerators(env):
    """Where enumerators are, by their names alone."""
    return {name.rpartition(".")[2]: (page, anchor)
            for name, _, kind, page, anchor, _ in env.get_domain("c").get_objects() if kind == "enumerator"}


def enumerator(app, env, node, contnode):
    """C has all enumerators in one scope; Sphinx has them in their enumeration's."""
    found = enumerators(env).get(node["reftarget"]) if node.get("refdomain") == "c" else None
    return make_refnode(app.builder, node["refdoc"], *found, contnode) if found else None


def setup(app):
    app.connect("missing-reference", enumerator)
    app.add_config_value("zorcc_tool", "zorcc", "env")
    app.add_directive("header", HeaderText)
    app.add_directive("statuses", Statuses)
    app.add_directive("family", Family)
    return {"parallel_read_safe": True}
