# SPDX-License-Identifier: MIT
"""Pictures that the tool makes while the pages are built, with the commands that make them:

    .. pictures:: What they show.
       :show: chart.png before; back.png after
       :crop: 440,150,64,48
       :enlarge: 5

       zorcc chart chart.png
       ...

Pictures stand side by side where there is room. An enlarged pixel is a square.
"""
import os
import pathlib
import re
import subprocess

from docutils import nodes
from docutils.parsers.rst import directives
from PIL import Image
from sphinx import addnodes
from sphinx.errors import ExtensionError
from sphinx.util.docutils import SphinxDirective

HERE = pathlib.Path(__file__).resolve().parent


def shown(path, crop, factor):
    """A picture, or a part of it, enlarged, as browsers show it."""
    picture = Image.open(path)
    left, top, width, height = map(int, crop.split(",")) if crop else (0, 0, *picture.size)
    out = path.with_name(f"{path.stem}-{left}-{top}-{width}x{height}-{factor}.png")
    part = picture.crop((left, top, left + width, top + height))
    part.resize((width * factor, height * factor), Image.Resampling.NEAREST).save(out)
    return out


class Pictures(SphinxDirective):
    required_arguments = 1
    final_argument_whitespace = True
    has_content = True
    option_spec = {"show": directives.unchanged_required, "crop": directives.unchanged, "enlarge": int}

    def run(self):
        folder = pathlib.Path(self.config.zorcc_pictures) / self.env.docname
        folder.mkdir(parents=True, exist_ok=True)
        self.env.note_dependency(self.config.zorcc_tool)
        commands = "\n".join(self.content)
        path = os.pathsep.join([os.path.dirname(self.config.zorcc_tool), str(HERE / "bin"), "/usr/bin", "/bin"])
        result = subprocess.run(["bash", "-euc", commands], cwd=folder, env={**os.environ, "PATH": path},
                                capture_output=True, text=True)
        if result.returncode:
            raise ExtensionError(f"{self.env.docname}: {commands}\n{result.stderr}")

        row = nodes.container(classes=["pictures"])
        for item in self.options["show"].split(";"):
            name, label = item.strip().split(maxsplit=1)
            file = shown(folder / name, self.options.get("crop"), self.options.get("enlarge", 1))
            page = pathlib.Path(self.env.doc2path(self.env.docname)).parent
            row += nodes.figure("", nodes.image(uri=os.path.relpath(file, page), alt=label), nodes.caption("", label))
        caption = nodes.paragraph("", self.arguments[0].replace("\n", " "), classes=["caption"])
        listing = nodes.literal_block(commands, re.sub(r"\s*#.*", "", commands), language="sh")
        only = addnodes.only("", row, caption, listing, expr="html")
        return [only]


def setup(app):
    app.add_config_value("zorcc_pictures", "pictures", "env")
    app.add_directive("pictures", Pictures)
    return {"parallel_read_safe": True}
