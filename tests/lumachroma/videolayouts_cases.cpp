// SPDX-License-Identifier: MIT
#include "tests/harness/cases.h"
#include "tests/reference/sampling.h"

namespace zorcc::test {

using namespace reference;

namespace {

// At least one block; what does not fill one is cut off.
constexpr Case inBlocks(std::string_view name, Reference reference, ZorSize block)
{
    return {name, reference, OddSize::cutOff, block, block, Checks::pointersSize};
}

constexpr Case cases[] = {
    inBlocks("zoriYCbCr422ToCbYCr422_8u_C2R", moveChroma, {2, 1}),
    inBlocks("zoriCbYCr422ToYCbCr422_8u_C2R", moveChroma, {2, 1}),
    inBlocks("zoriCbYCr422ToYCbCr420_8u_C2P2R", moveChroma, {2, 2}),
    inBlocks("zoriCbYCr422ToYCrCb420_8u_C2P3R", moveChroma, {2, 2}),
    inBlocks("zoriYCbCr422ToYCbCr420_8u_C2P2R", moveChroma, {2, 2}),
    inBlocks("zoriYCbCr422ToYCrCb420_8u_C2P3R", moveChroma, {2, 2}),
    inBlocks("zoriYCbCr420ToCbYCr422_8u_P2C2R", moveChroma, {2, 2}),
    inBlocks("zoriYCbCr420ToYCbCr422_8u_P2C2R", moveChroma, {2, 2}),
    inBlocks("zoriYCbCr420ToYCrCb420_8u_P2P3R", moveChroma, {2, 2}),
    inBlocks("zoriYCrCb420ToCbYCr422_8u_P3C2R", moveChroma, {2, 2}),
    inBlocks("zoriYCrCb420ToYCbCr420_8u_P3P2R", moveChroma, {2, 2}),
    inBlocks("zoriYCrCb420ToYCbCr422_8u_P3C2R", moveChroma, {2, 2}),
    inBlocks("zoriYCbCr420ToYCbCr422_Filter_8u_P2C2R", deinterlace, {2, 2}),
    inBlocks("zoriYCbCr420ToYCrCb420_Filter_8u_P2P3R", deinterlace, {2, 2}),
};

} // namespace

std::span<const Case> familyCases() { return cases; }

} // namespace zorcc::test
