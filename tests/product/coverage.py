# SPDX-License-Identifier: MIT
"""Every function of the table has a reference case in a family's test: coverage.py TABLE TESTS-FOLDER"""
import pathlib
import re
import sys

from tools import Findings, table_rows

table, tests = sys.argv[1:]
cases = []
for file in pathlib.Path(tests).glob("*/*_cases.cpp"):
    cases += re.findall(r'[{(]"(zori\w+)",\s*\w', file.read_text(encoding="ascii"))
findings = Findings()
findings.same(table_rows(table), cases, "the table", "the cases of the tests")
findings.leave()
