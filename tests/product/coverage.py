# SPDX-License-Identifier: MIT
"""Every function of the table is in a family's test, with its family or by its name: coverage.py TABLE TESTS-FOLDER"""
import pathlib
import re
import sys

from tools import Findings, table_rows

table, tests = sys.argv[1:]
cases = "".join(file.read_text(encoding="ascii") for file in pathlib.Path(tests).glob("*/*_cases.cpp"))
tested = set(re.findall(r'"([^"\n]+)"', cases))
findings = Findings()
for function, (family, _) in table_rows(table).items():
    if not tested & {function, family}:
        findings.add(f"{function}: in no family's test")
findings.leave()
