# SPDX-License-Identifier: MIT
"""The header declares the functions of the table, and calls their parameters by the usual names; that their types are
those which the names ask for is checked where the table is compiled: prototypes.py HEADER TABLES"""
import re
import sys

from tools import differences, leave_with, prototypes, table_rows

ALIASES = {"alpha": "aval", "scratch": "pTmp", "scratchStep": "tmpStep", "weights": "coeffs"}


def image(role):
    """Parameters of one image: a plane, an array of planes, or a plane of luma and one of chroma."""
    pointer, step = rf"(const )?\w+\* p{role}", role[0].lower() + role[1:]
    return (rf"({pointer}, int {step}Step"
            rf"|(const )?\w+\* const p{role}\[\d\](, int {step}Step|, const int {step}Step\[\d\])?"
            rf"|{pointer}(?=, \w+\* const pDst\[\d\], ZorSize|, ZorSize)"  # without steps
            rf"|{pointer}Y, int {step}YStep, {pointer}CbCr, int {step}CbCrStep)")


IMAGES = re.compile(f"({image('Src')}, {image('Dst')}|{image('SrcDst')}), ZorSize roiSize")
REGION = re.compile(r"const \w+\* pSrc, ZorRect srcRoi, ZorSize srcSize, int srcStep, \w+\* pDst, int dstStep")

header, tables = sys.argv[1:]
declared = prototypes(header)
rows = table_rows(tables)
findings = differences(rows, set(declared) - {"zorccGetLibVersion"}, "the table", "the header")
for name in set(rows) & set(declared):
    result, parameters = declared[name]
    arguments = [ALIASES.get(argument, argument) for argument in rows[name]]
    images = parameters[:len(parameters) - len(arguments)]
    found = [re.split(r"[ *]", parameter.partition("[")[0])[-1] for parameter in parameters[len(images):]]
    form = ", ".join(images)
    if result != "ZorStatus" or found != arguments or not (IMAGES.fullmatch(form) or REGION.fullmatch(form)):
        findings.append(f"{name}: declared {result} ({', '.join(parameters)})")
leave_with(findings)
