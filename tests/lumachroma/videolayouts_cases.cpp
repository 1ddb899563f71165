// SPDX-License-Identifier: MIT
#include "tests/harness/cases.h"
#include "tests/reference/sampling.h"

namespace zorcc::test {

using namespace reference;

namespace {

// At least one block; what does not fill one is cut off.
constexpr Case inBlocks(std::string_view name, Reference reference, ZorSize block)
{
    return {name, reference, OddSize::cutOff, Checks::pointersFirst, block, block};
}

constexpr Case rules[] = {
    inBlocks("zori*_Filter_*", deinterlace, {2, 2}),
    inBlocks("zori*420*", moveChroma, {2, 2}),
    inBlocks("zori*422*", moveChroma, {2, 1}),
};

} // namespace

Family family() { return {"Video layouts and deinterlacing", rules}; }

} // namespace zorcc::test
