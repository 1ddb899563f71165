# SPDX-License-Identifier: MIT
"""Completion for bash, as bash calls it."""
import unittest

from files import *


class Completion(unittest.TestCase):
    def complete(self, *words):
        script = os.path.join(SOURCE, "tools/zorcc/completion/zorcc.bash")
        code = 'source "$1"; shift; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _zorcc; printf "%s\\n" "${COMPREPLY[@]}"'
        result = subprocess.run(["bash", "-c", code, "bash", script, ZORCC, *words], capture_output=True, text=True,
                                env=ENVIRONMENT)
        self.assertEqual(result.stderr, "")
        return result.stdout.split()

    def test_commands_options_and_choices(self):
        self.assertEqual(self.complete("co"), ["convert", "compare"])
        self.assertEqual(self.complete("help", "ch"), ["chart"])
        self.assertEqual(self.complete("convert", "--to", "nv1"), ["nv11", "nv12", "nv16"])
        self.assertEqual(self.complete("convert", "--matrix", "bt709"), ["bt709", "bt709full"])
        self.assertEqual(self.complete("reduce", "--dither", "s"), ["stucki"])
        self.assertEqual(self.complete("compare", "--min"), ["--min-psnr"])
        self.assertEqual(self.complete("call", "zoriDemosaic"), ["zoriDemosaicAHD_8u_C1C3R", "zoriDemosaicAHD_16u_C1C3R"])
        self.assertEqual(self.complete("convert", "photo"), [])  # files, which bash adds
