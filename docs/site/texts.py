# SPDX-License-Identifier: MIT
"""Texts that live elsewhere in the repository. A line of a page

    {{ README.md }}                     is that file
    {{ README.md # Limits }}            is what is under that heading, without the heading
    {{ x/README.md, or: C++ }}          may be missing, and then says so under that title
    {{ differences of libyuv }}         is how far its results are from those of the page's functions, as measured

Links to what is no page of the site become their words. In all pages the names of functions lead to them.
"""
import os
import pathlib
import re

from docutils import nodes
from sphinx.addnodes import pending_xref
from sphinx.errors import ExtensionError
from sphinx.transforms import SphinxTransform

ROOT = pathlib.Path(__file__).resolve().parents[2]
TEXT = re.compile(r"^\{\{ ([\w./-]+)(?: # (.+?))?(?:, or: (.+?))? \}\}$", re.M)
CODE = re.compile(r"(```.*?```|``?[^`]+``?|^    .*?$)", re.S | re.M)
LINK = re.compile(r"(!?)\[([^\]]*)\]\((?!\w+:)([^)#]*)(#[^)]*)?\)")
DIFFERENCES = re.compile(r"^\{\{ differences of (\w+) \}\}$", re.M)
FUNCTION = re.compile(r"zor[A-Z]\w+|zori\w+_\w+|ownGetNumThreads")


def under(heading, text, path):
    """What is under a heading, up to the next one of its level or above."""
    found = re.search(rf"^(#+) {re.escape(heading)}\n(.*?)(?=^#{{1,2}} |\Z)", text, re.S | re.M)
    if not found:
        raise ExtensionError(f"{path} has no heading {heading}")
    return found[2].strip()


def differences(library, page):
    """A table from docs/differences.txt, which `zorcc_peers --differences` has printed."""
    lines = (ROOT / "docs/differences.txt").read_text(encoding="utf-8").splitlines()
    version = next(line for line in lines if line.startswith(library))
    rows = []
    for line in lines:
        function, peer, difference = (re.split(" {2,}", line, maxsplit=2) + [""] * 2)[:3]
        if peer.startswith(f"{library} ") and "only" not in peer and f"`{function}`" in page:
            largest, share = re.fullmatch(r"largest +(\d+), +([\d.]+ %) differ", difference).groups()
            rows.append(f"| `{function}` | {peer.removeprefix(library).strip()} | {largest} | {share} |")
    return "\n".join([f"## Measured differences\n\n{version}, random bytes, by `zorcc_peers --differences`:\n",
                      "| zorcc | theirs | largest | bytes that differ |", "|---|---|---|---|", *rows])


def insert(app, docname, source):
    page = pathlib.Path(app.env.doc2path(docname)).parent

    def text_of(found):
        name, heading, title = found.groups()
        path = ROOT / name
        if title and not path.exists():
            return f"# {title}\n\nThis part is not in the sources that these pages are made of.\n"
        app.env.note_dependency(str(path))
        text = path.read_text(encoding="utf-8")
        if heading:
            text = under(heading, text, name)

        def link(found):
            picture, words, target, anchor = found.groups()
            file = path.parent / target if target else path
            relative = os.path.relpath(file, page)
            if picture:
                return f"![{words}]({relative})"
            is_page = target and app.srcdir in str(file.resolve()) and file.exists()
            return f"[{words}]({relative}{anchor or ''})" if is_page or not target else words

        return "".join(part if i % 2 else LINK.sub(link, part) for i, part in enumerate(CODE.split(text)))

    source[0] = DIFFERENCES.sub(lambda found: differences(found[1], source[0]), TEXT.sub(text_of, source[0]))


class NamesOfFunctions(SphinxTransform):
    """Names of functions that are written as code lead to them: none may be wrong."""
    default_priority = 400

    def apply(self):
        for literal in list(self.document.findall(nodes.literal)):
            name = literal.astext()
            if FUNCTION.fullmatch(name) and not isinstance(literal.parent, (nodes.reference, pending_xref)):
                reference = pending_xref("", refdomain="c", reftype="func", reftarget=name, refexplicit=True,
                                         refwarn=True, refdoc=self.env.docname)
                literal.replace_self(reference)
                reference += literal


def setup(app):
    app.connect("source-read", insert)
    app.add_transform(NamesOfFunctions)
    return {"parallel_read_safe": True}
