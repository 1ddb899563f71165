// SPDX-License-Identifier: MIT
#include "tests/harness/cases.h"
#include "tests/reference/sampling.h"

namespace zorcc::test {

using namespace reference;

namespace {

// At least one block; what does not fill one is cut off.
constexpr Case inBlocks(std::string_view name, Reference reference, ZorSize block, OddSize oddSize = OddSize::cutOff)
{
    return {name, reference, oddSize, block, block, Checks::pointersSize};
}

constexpr Case cases[] = {
    inBlocks("zoriYCbCr422ToYCbCr420_8u_P3R", moveChroma, {2, 2}),
    inBlocks("zoriYCbCr422ToYCbCr420_8u_P3P2R", moveChroma, {2, 2}),
    inBlocks("zoriYCbCr422ToYCbCr420_8u_C2P3R", moveChroma, {2, 2}),
    inBlocks("zoriYCrCb422ToYCbCr420_8u_C2P3R", moveChroma, {2, 2}),
    inBlocks("zoriYCbCr420ToYCbCr422_8u_P3R", moveChroma, {2, 2}),
    inBlocks("zoriYCbCr420ToYCbCr422_8u_P2P3R", moveChroma, {2, 2}),
    inBlocks("zoriYCrCb420ToYCbCr422_8u_P3R", moveChroma, {2, 2}),
    inBlocks("zoriYCbCr420ToYCbCr422_Filter_8u_P3R", filterOddRows, {2, 8}),
    inBlocks("zoriYCbCr420ToYCbCr422_Filter_8u_P2P3R", filterOddRows, {2, 8}),
    inBlocks("zoriYCrCb420ToYCbCr422_Filter_8u_P3R", filterOddRows, {2, 8}),
    inBlocks("zoriYCbCr422ToYCbCr411_8u_P3R", moveChroma, {4, 1}),
    inBlocks("zoriYCbCr422ToYCbCr411_8u_P3P2R", moveChroma, {4, 1}),
    inBlocks("zoriYCbCr422ToYCbCr411_8u_C2P3R", moveChroma, {4, 1}),
    inBlocks("zoriYCbCr422ToYCbCr411_8u_C2P2R", moveChroma, {4, 1}),
    inBlocks("zoriYCrCb422ToYCbCr411_8u_C2P3R", moveChroma, {4, 1}),
    inBlocks("zoriCbYCr422ToYCbCr411_8u_C2P3R", moveChroma, {4, 1}),
    inBlocks("zoriYCbCr411ToYCbCr422_8u_P3R", moveChroma, {4, 1}),
    inBlocks("zoriYCbCr411ToYCbCr422_8u_P2P3R", moveChroma, {4, 1}),
    inBlocks("zoriYCbCr411ToYCbCr422_8u_P3C2R", moveChroma, {4, 1}),
    inBlocks("zoriYCbCr411ToYCbCr422_8u_P2C2R", moveChroma, {4, 1}),
    inBlocks("zoriYCbCr411ToYCrCb422_8u_P3R", moveChroma, {4, 1}),
    inBlocks("zoriYCbCr411ToYCrCb422_8u_P3C2R", moveChroma, {4, 1}),
    inBlocks("zoriYCbCr411ToYCbCr420_8u_P3R", rearrange411As420, {4, 2}),
    inBlocks("zoriYCbCr411ToYCbCr420_8u_P2P3R", rearrange411As420, {4, 2}),
    inBlocks("zoriYCbCr411ToYCbCr420_8u_P3P2R", rearrange411As420, {4, 2}),
    inBlocks("zoriYCbCr411ToYCrCb420_8u_P2P3R", rearrange411As420, {4, 2}),
    inBlocks("zoriYCbCr420ToYCbCr411_8u_P2P3R", rearrange420As411, {4, 2}),
    inBlocks("zoriYCbCr420ToYCbCr411_8u_P3P2R", rearrange420As411, {4, 2}),
    inBlocks("zoriYCrCb420ToYCbCr411_8u_P3P2R", rearrange420As411, {4, 2}),
    inBlocks("zoriYCbCr411_8u_P2P3R", moveChroma, {4, 1}),
    inBlocks("zoriYCbCr411_8u_P3P2R", moveChroma, {4, 1}),
    inBlocks("zoriYCbCr420_8u_P2P3R", moveChroma, {2, 2}),
    inBlocks("zoriYCbCr420_8u_P3P2R", moveChroma, {2, 2}),
    inBlocks("zoriYCbCr422_8u_C2P3R", moveChroma, {2, 1}),
    inBlocks("zoriYCrCb422ToYCbCr422_8u_C2P3R", moveChroma, {2, 1}),
    inBlocks("zoriCbYCr422ToYCbCr422_8u_C2P3R", moveChroma, {2, 1}),
    inBlocks("zoriYCbCr422ToYCrCb422_8u_C2R", moveChroma, {2, 1}),
    inBlocks("zoriYCbCr422ToYCrCb422_8u_P3C2R", moveChroma, {2, 1}),
    inBlocks("zoriCbYCr422ToYCbCr420_8u_C2P3R", moveChroma, {2, 2}),
    inBlocks("zoriYCbCr420To1620_8u_P3R", moveChroma, {4, 4}, OddSize::refused),
    inBlocks("zoriYCbCr1620To420_8u_P3R", doubleColumnsAndRows, {4, 4}, OddSize::refused),
    inBlocks("zoriYCbCr411To420_8u_P3R", doubleColumns, {4, 4}, OddSize::refused),
    inBlocks("zoriYCbCr420To411_8u_P3R", doubleRows, {4, 2}, OddSize::refused),
    inBlocks("zoriCbYCr422ToYCbCr420_Interlace_8u_C2P3R", mixFieldsTo420, {2, 4}, OddSize::warning),
    inBlocks("zoriYCbCr422To420_Interlace_8u_P3R", mixFieldsTo420, {2, 4}, OddSize::warning),
    inBlocks("zoriYCbCr420To422_Interlace_8u_P3R", mixFieldsTo422, {2, 4}, OddSize::warning),
    inBlocks("zoriYCbCr420ToCbYCr422_Interlace_8u_P3C2R", mixFieldsTo422, {2, 4}, OddSize::warning),
};

} // namespace

std::span<const Case> familyCases() { return cases; }

} // namespace zorcc::test
