# SPDX-License-Identifier: MIT
"""Objects hold no instruction beyond their tier, and no symbol of which the linker keeps one tier's copy for all.

instructions.py LISTS, a folder of files that name objects line by line: baseline, ssse3, avx2, avx512, weak. The last
are objects that do have weak symbols, to show that the check finds them.
"""
import os
import re
import sys

from tools import leave_with, output_of

MULTIPLY_ADD = r"^vfn?m(add|sub)"
# Those that are meant, in quotients by constants, say how to round on AVX-512; the compiler's own do not. On AVX2 none
# can say so: its objects come from the same sources with the same flags.
MEANT_MULTIPLY_ADD = MULTIPLY_ADD + r".*\{rn-sae\}"
BIT_MANIPULATION = (r"^(popcnt|lzcnt|movbe|crc32|andn|bextr|blsi|blsmsk|blsr|bzhi|pdep|pext|rorx|sarx|shlx|shrx|mulx|"
                    r"adcx|adox)[lqwb]?\b")
MASKS_AND_HIGH_REGISTERS = r"%zmm|%k[0-7]|%[xy]mm(1[6-9]|2\d|3[01])\b"
EVEX_ONLY = (r"^v(pternlog|perm[it]2|permb|permw|pdpbusd|pdpwssd|movdq[ua](8|16|32|64)\b|ps[lr][la]vw|pmullq|pmovm2|"
             r"pmov[us]*(wb|db|dw|qb|qw|qd)\b|pabsq|psraq|pm(ax|in)[su]q|broadcast[if]\d+x|extract[if]\d+x[248]|"
             r"shuf[if]\d+x|align[dq]|dbpsadbw|pmultishiftqb|p(compress|expand))")
SSE4 = (r"^(pmulld|pmuldq|pm(in|ax)(sb|sd|uw|ud)|p?blendv?(b|w|ps|pd)|pextr[bdq]|extractps|pinsr[bdq]|insertps|"
        r"pmov[sz]x\w+|packusdw|ptest|round[ps][sd]|dpp[sd]|mpsadbw|phminposuw|pcmp(eq|gt)q|pcmp[ei]str[im]|movntdqa)\b")
AVX = r"^v|%[yz]mm"
FORBIDDEN = {
    "baseline": [AVX, SSE4, BIT_MANIPULATION],
    "ssse3": [AVX, SSE4, BIT_MANIPULATION],
    "avx2": [MASKS_AND_HIGH_REGISTERS, EVEX_ONLY, BIT_MANIPULATION],
    "avx512": [BIT_MANIPULATION],
}


def objects(name):
    with open(os.path.join(sys.argv[1], name), encoding="utf-8") as file:
        found = [line for line in file.read().splitlines() if line]
    if not found:
        sys.exit(f"no objects in the list {name}")
    return found


def instructions(path):
    """Instruction texts with the function that each stands in."""
    function = "?"
    for line in output_of("objdump", "-d", "--no-show-raw-insn", "-M", "att", path).splitlines():
        if label := re.match(r"[0-9a-f]+ <(.*)>:$", line):
            function = label[1]
        elif "\t" in line:
            yield function, line.split("\t", 1)[1].split("#")[0].strip()


def forbidden(path, tier):
    pattern = re.compile("|".join(FORBIDDEN[tier]))
    prefix = re.compile(r"^((rep|repz|repnz|lock|notrack|data16|cs|bnd)\s+)+")
    return [(function, text) for function, text in instructions(path) if pattern.search(prefix.sub("", text))]


def contracted(path):
    """The multiply-adds of an AVX-512 object beyond those that are meant."""
    texts = [text for _, text in instructions(path)]
    count = lambda pattern: sum(bool(re.search(pattern, text)) for text in texts)
    return count(MULTIPLY_ADD) - count(MEANT_MULTIPLY_ADD)


def weak(path):
    """Symbols that are weak, or writable other than by relocations."""
    symbols = output_of("nm", "--format=sysv", path).splitlines()
    return [line for line in symbols if re.search(r"\|\s*[WwVuiB-D]\s*\|", line) and ".data.rel.ro" not in line]


findings = []
for tier in FORBIDDEN:
    for path in objects(tier):
        found = [f"{function}: {text}" for function, text in forbidden(path, tier)[:5]]
        found += [f"weak or writable: {symbol}" for symbol in weak(path) if tier != "baseline"]
        if tier == "avx512" and (count := contracted(path)):
            found.append(f"{count} contracted multiply-adds")
        findings += [f"{tier}: {os.path.basename(path)}: {text}" for text in found]

# The tiers differ, so what is right for one must be found where another is expected.
for expected, given in (("ssse3", "avx2"), ("avx2", "avx512")):
    if not any(forbidden(path, expected) for path in objects(given)):
        findings.append(f"this check takes {given} objects for {expected}")
if not any(weak(path) for path in objects("weak")):
    findings.append("this check finds no weak symbols where there are some")
leave_with(findings)
