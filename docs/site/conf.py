# SPDX-License-Identifier: MIT
# Sphinx: the site and the manual pages. docs/CMakeLists.txt says where the tool and Doxygen's XML are, and the version.
import pathlib
import sys

site = pathlib.Path(__file__).parent
sys.path.insert(0, str(site))

project = "zorcc"
author = "the authors of zorcc"
project_copyright = "the authors of zorcc"
extensions = ["breathe", "myst_parser", "texts", "headers", "tool_help", "pictures"]
root_doc = "index"
smartquotes = False
highlight_language = "none"
nitpicky = True
# Types of the C library.
nitpick_ignore_regex = [("c:identifier", r"u?int\d+_t|size_t")]

breathe_default_project = "zorcc"
breathe_domain_by_extension = {"h": "c"}
breathe_show_include = False
myst_enable_extensions = ["deflist"]
myst_heading_anchors = 3

html_theme = "furo"
pygments_style = pygments_dark_style = "default"
html_title = "zorcc"
html_static_path = [str(site / "static")]
html_css_files = ["style.css"]
html_show_sphinx = False
html_copy_source = False

man_make_section_directory = True


def pages_of(folder, section, prefix):
    """The manual pages of a folder: a command's or a family's name, and the title of its page."""
    for page in sorted((site.parent / "pages" / folder).glob("*.rst")):
        title = page.read_text(encoding="utf-8").splitlines()[0]
        yield f"{folder}/{page.stem}", prefix + page.stem, title.removeprefix(f"zorcc {page.stem}: "), "", section


man_pages = [
    ("tool/index", "zorcc", "colour conversion of picture and video files", "", 1),
    *(page for page in pages_of("tool", 1, "zorcc-") if page[0] != "tool/index"),
    ("conventions", "zorcc", "exact colour conversion of raster images", "", 3),
    ("zorcore", "zorcore", "memory, cache size and thread count for zorcc", "", 3),
    ("zorconvert", "zorconvert", "any picture format to any other", "", 3),
    *pages_of("families", 3, "zorcc_"),
]
