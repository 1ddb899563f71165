// SPDX-License-Identifier: MIT
#include "tests/harness/cases.h"
#include "tests/reference/sampling.h"

namespace zorcc::test {

using namespace reference;

namespace {

// At least one block; what does not fill one is cut off.
constexpr Case inBlocks(std::string_view name, Reference reference, ZorSize block, OddSize oddSize = OddSize::cutOff)
{
    return {name, reference, oddSize, Checks::pointersFirst, block, block};
}

constexpr Case rules[] = {
    inBlocks("zori*_Filter_*", filterOddRows, {2, 8}),
    inBlocks("zori*422To*_Interlace_*", mixFieldsTo420, {2, 4}, OddSize::warning),
    inBlocks("zori*420To*_Interlace_*", mixFieldsTo422, {2, 4}, OddSize::warning),
    inBlocks("zori*420To1620_*", moveChroma, {4, 4}, OddSize::refused),
    inBlocks("zori*1620To420_*", doubleColumnsAndRows, {4, 4}, OddSize::refused),
    inBlocks("zori*411To420_*", doubleColumns, {4, 4}, OddSize::refused),
    inBlocks("zori*420To411_*", doubleRows, {4, 2}, OddSize::refused),
    inBlocks("zori*411ToY*420_*", rearrange411As420, {4, 2}),
    inBlocks("zori*420ToY*411_*", rearrange420As411, {4, 2}),
    inBlocks("zori*411*", moveChroma, {4, 1}),
    inBlocks("zori*420*", moveChroma, {2, 2}),
    inBlocks("zori*422*", moveChroma, {2, 1}),
};

} // namespace

Family family() { return {"Chroma sampling and plane orders", rules}; }

} // namespace zorcc::test
