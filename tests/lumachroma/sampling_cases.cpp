// SPDX-License-Identifier: MIT
#include "tests/harness/cases.h"
#include "tests/reference/sampling.h"

namespace zorcc::test {

using namespace reference;

namespace {

constexpr Case squares(std::string_view name, Reference reference)
{
    return {name, reference, OddSize::cutOff, {2, 2}, {2, 2}, Checks::pointersSize};
}

constexpr Case filtered(std::string_view name, Reference reference)
{
    return {name, reference, OddSize::cutOff, {2, 8}, {2, 8}, Checks::pointersSize};
}

constexpr Case quads(std::string_view name, Reference reference)
{
    return {name, reference, OddSize::cutOff, {4, 1}, {4, 1}, Checks::pointersSize};
}

constexpr Case quadPairs(std::string_view name, Reference reference)
{
    return {name, reference, OddSize::cutOff, {4, 2}, {4, 2}, Checks::pointersSize};
}

constexpr Case pairs(std::string_view name, Reference reference)
{
    return {name, reference, OddSize::cutOff, {2, 1}, {2, 1}, Checks::pointersSize};
}

constexpr Case wholeFours(std::string_view name, Reference reference)
{
    return {name, reference, OddSize::refused, {4, 4}, {4, 4}, Checks::pointersSize};
}

constexpr Case wholeQuadPairs(std::string_view name, Reference reference)
{
    return {name, reference, OddSize::refused, {4, 2}, {4, 2}, Checks::pointersSize};
}

constexpr Case fields(std::string_view name, Reference reference)
{
    return {name, reference, OddSize::warning, {2, 4}, {2, 4}, Checks::pointersSize};
}

constexpr Case cases[] = {
    squares("zoriYCbCr422ToYCbCr420_8u_P3R", moveChroma),
    squares("zoriYCbCr422ToYCbCr420_8u_P3P2R", moveChroma),
    squares("zoriYCbCr422ToYCbCr420_8u_C2P3R", moveChroma),
    squares("zoriYCrCb422ToYCbCr420_8u_C2P3R", moveChroma),
    squares("zoriYCbCr420ToYCbCr422_8u_P3R", moveChroma),
    squares("zoriYCbCr420ToYCbCr422_8u_P2P3R", moveChroma),
    squares("zoriYCrCb420ToYCbCr422_8u_P3R", moveChroma),
    filtered("zoriYCbCr420ToYCbCr422_Filter_8u_P3R", filterOddRows),
    filtered("zoriYCbCr420ToYCbCr422_Filter_8u_P2P3R", filterOddRows),
    filtered("zoriYCrCb420ToYCbCr422_Filter_8u_P3R", filterOddRows),
    quads("zoriYCbCr422ToYCbCr411_8u_P3R", moveChroma),
    quads("zoriYCbCr422ToYCbCr411_8u_P3P2R", moveChroma),
    quads("zoriYCbCr422ToYCbCr411_8u_C2P3R", moveChroma),
    quads("zoriYCbCr422ToYCbCr411_8u_C2P2R", moveChroma),
    quads("zoriYCrCb422ToYCbCr411_8u_C2P3R", moveChroma),
    quads("zoriCbYCr422ToYCbCr411_8u_C2P3R", moveChroma),
    quads("zoriYCbCr411ToYCbCr422_8u_P3R", moveChroma),
    quads("zoriYCbCr411ToYCbCr422_8u_P2P3R", moveChroma),
    quads("zoriYCbCr411ToYCbCr422_8u_P3C2R", moveChroma),
    quads("zoriYCbCr411ToYCbCr422_8u_P2C2R", moveChroma),
    quads("zoriYCbCr411ToYCrCb422_8u_P3R", moveChroma),
    quads("zoriYCbCr411ToYCrCb422_8u_P3C2R", moveChroma),
    quadPairs("zoriYCbCr411ToYCbCr420_8u_P3R", rearrange411As420),
    quadPairs("zoriYCbCr411ToYCbCr420_8u_P2P3R", rearrange411As420),
    quadPairs("zoriYCbCr411ToYCbCr420_8u_P3P2R", rearrange411As420),
    quadPairs("zoriYCbCr411ToYCrCb420_8u_P2P3R", rearrange411As420),
    quadPairs("zoriYCbCr420ToYCbCr411_8u_P2P3R", rearrange420As411),
    quadPairs("zoriYCbCr420ToYCbCr411_8u_P3P2R", rearrange420As411),
    quadPairs("zoriYCrCb420ToYCbCr411_8u_P3P2R", rearrange420As411),
    quads("zoriYCbCr411_8u_P2P3R", moveChroma),
    quads("zoriYCbCr411_8u_P3P2R", moveChroma),
    squares("zoriYCbCr420_8u_P2P3R", moveChroma),
    squares("zoriYCbCr420_8u_P3P2R", moveChroma),
    pairs("zoriYCbCr422_8u_C2P3R", moveChroma),
    pairs("zoriYCrCb422ToYCbCr422_8u_C2P3R", moveChroma),
    pairs("zoriCbYCr422ToYCbCr422_8u_C2P3R", moveChroma),
    pairs("zoriYCbCr422ToYCrCb422_8u_C2R", moveChroma),
    pairs("zoriYCbCr422ToYCrCb422_8u_P3C2R", moveChroma),
    squares("zoriCbYCr422ToYCbCr420_8u_C2P3R", moveChroma),
    wholeFours("zoriYCbCr420To1620_8u_P3R", moveChroma),
    wholeFours("zoriYCbCr1620To420_8u_P3R", doubleColumnsAndRows),
    wholeFours("zoriYCbCr411To420_8u_P3R", doubleColumns),
    wholeQuadPairs("zoriYCbCr420To411_8u_P3R", doubleRows),
    fields("zoriCbYCr422ToYCbCr420_Interlace_8u_C2P3R", mixFieldsTo420),
    fields("zoriYCbCr422To420_Interlace_8u_P3R", mixFieldsTo420),
    fields("zoriYCbCr420To422_Interlace_8u_P3R", mixFieldsTo422),
    fields("zoriYCbCr420ToCbYCr422_Interlace_8u_P3C2R", mixFieldsTo422),
};

} // namespace

std::span<const Case> familyCases() { return cases; }

} // namespace zorcc::test
