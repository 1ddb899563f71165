# SPDX-License-Identifier: MIT
"""The prototypes of zorcc.h are those that the functions' names ask for: prototypes.py HEADER

The table of functions makes the list of exports, which is held against the header where the library's exports are."""
import re
import sys

from tools import Findings, prototypes

TYPES = {"8u": "uint8_t", "16u": "uint16_t", "16s": "int16_t", "32s": "int32_t", "32f": "float"}
TYPE = r"\d+[usf]"
LAYOUT = r"AC4|AP4|C[1-4]|P[2-4]"


def image(role, sample, layout, subsampled, steps):
    """Parameters of one image."""
    const = "const " if role == "Src" else ""
    if layout == "P2":  # two planes, each with its step
        return [parameter for plane in ("Y", "CbCr")
                for parameter in (f"{const}{sample}* p{role}{plane}", f"int {role.lower()}{plane}Step")]
    planes = {"P": layout[-1], "A": "4" if layout == "AP4" else ""}.get(layout[0], "")
    parameters = [f"{const}{sample}* const p{role}[{planes}]" if planes else f"{const}{sample}* p{role}"]
    if steps:
        step = role.lower() + "Step"
        parameters.append(f"const int {step}[{planes}]" if planes and subsampled else f"int {step}")
    return parameters


MOSAIC = re.compile(r"zori(CFAToRGB|DemosaicAHD)_(\w+?)_C1C3R")


def demosaicing(method, sample):
    scratch = [f"{sample}* pTmp", "int tmpStep"] if method == "DemosaicAHD" else ["int interpolation"]
    return [f"const {sample}* pSrc", "ZorRect srcRoi", "ZorSize srcSize", "int srcStep", f"{sample}* pDst",
            "int dstStep", "ZorBayerGrid grid"] + scratch


def expected(name):
    """Parameters of a function up to the size, of a bit-depth reduction all."""
    reduction = re.fullmatch(rf"zoriReduceBits_({TYPE})({TYPE})?_({LAYOUT})R", name)
    if reduction:
        from_type, to_type, layout = reduction.groups()
        return (image("Src", TYPES[from_type], layout, False, True)
                + image("Dst", TYPES[to_type or from_type], layout, False, True)
                + ["ZorSize roiSize", "int noise", "ZorDitherMethod method", "int levels"])
    if mosaic := MOSAIC.fullmatch(name):
        return demosaicing(mosaic[1], TYPES[mosaic[2]])
    found = re.fullmatch(rf"zori(\w+?)(?:To(\w+?))?_({TYPE})({TYPE})?_({LAYOUT})({LAYOUT})?(R?)", name)
    if not found:
        return None
    source, destination, from_type, to_type, from_layout, to_layout, steps = found.groups()
    destination = destination or source
    half = re.compile(r"4(22|20|11)|1620")
    return (image("Src", TYPES[from_type], from_layout, half.search(source), steps)
            + image("Dst", TYPES[to_type or from_type], to_layout or from_layout, half.search(destination), steps)
            + ["ZorSize roiSize"])


(header,) = sys.argv[1:]
findings = Findings()
for name, (result, parameters) in prototypes(header).items():
    if name == "zorccGetLibVersion":
        continue
    wanted = expected(name)
    if wanted is None:
        findings.add(f"{name}: a name that this check cannot read")
    elif result != "ZorStatus" or parameters[:len(wanted)] != wanted:
        findings.add(f"{name}: declared {result} ({', '.join(parameters)}), not ({', '.join(wanted)})")
findings.leave()
