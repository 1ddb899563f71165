// SPDX-License-Identifier: MIT
#include "tests/harness/cases.h"
#include "tests/reference/sampling.h"

namespace zorcc::test {

using namespace reference;

namespace {

constexpr Case pairs(std::string_view name, Reference reference)
{
    return {name, reference, OddSize::cutOff, {2, 1}, {2, 1}, Checks::pointersSize};
}

constexpr Case squares(std::string_view name, Reference reference)
{
    return {name, reference, OddSize::cutOff, {2, 2}, {2, 2}, Checks::pointersSize};
}

constexpr Case cases[] = {
    pairs("zoriYCbCr422ToCbYCr422_8u_C2R", moveChroma),
    pairs("zoriCbYCr422ToYCbCr422_8u_C2R", moveChroma),
    squares("zoriCbYCr422ToYCbCr420_8u_C2P2R", moveChroma),
    squares("zoriCbYCr422ToYCrCb420_8u_C2P3R", moveChroma),
    squares("zoriYCbCr422ToYCbCr420_8u_C2P2R", moveChroma),
    squares("zoriYCbCr422ToYCrCb420_8u_C2P3R", moveChroma),
    squares("zoriYCbCr420ToCbYCr422_8u_P2C2R", moveChroma),
    squares("zoriYCbCr420ToYCbCr422_8u_P2C2R", moveChroma),
    squares("zoriYCbCr420ToYCrCb420_8u_P2P3R", moveChroma),
    squares("zoriYCrCb420ToCbYCr422_8u_P3C2R", moveChroma),
    squares("zoriYCrCb420ToYCbCr420_8u_P3P2R", moveChroma),
    squares("zoriYCrCb420ToYCbCr422_8u_P3C2R", moveChroma),
    squares("zoriYCbCr420ToYCbCr422_Filter_8u_P2C2R", deinterlace),
    squares("zoriYCbCr420ToYCrCb420_Filter_8u_P2P3R", deinterlace),
};

} // namespace

std::span<const Case> familyCases() { return cases; }

} // namespace zorcc::test
