// SPDX-License-Identifier: MIT
// Exported conversions between 4:2:2 and 4:2:0 that keep the two fields of an interlaced image apart.
#include "lumachroma/sampled_checks.h"
#include "zorcc.h"

#define ZORCC_DRIVERS "lumachroma/interlace_rows.h"
#include "simd/each_tier.h"

using namespace zorcc;

namespace {

// Two rows of each field.
constexpr Blocks fieldRows = {{2, 4}};

ZorStatus convertFields(ZorSize roiSize, const SampledArgument<const uint8_t>& from, const SampledArgument<uint8_t>& to,
                        SampledDriver driver)
{
    if (auto s = convertBlocks(fieldRows, roiSize, from, to, driver); s != zorStatusOk) return s;
    return isSame(fieldRows.within(roiSize), roiSize) ? zorStatusOk : zorStatusOddSize;
}

} // namespace

ZorStatus zoriCbYCr422ToYCbCr420_Interlace_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                    const int dstStep[3], ZorSize roiSize)
{
    return convertFields(roiSize, packed(pSrc, srcStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(myUYVYTo420_Interlace_8u_C2P3R));
}

ZorStatus zoriYCbCr422To420_Interlace_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                             const int dstStep[3], ZorSize roiSize)
{
    return convertFields(roiSize, cbFirst(pSrc, srcStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(my422To420_Interlace_8u_P3R));
}

ZorStatus zoriYCbCr420To422_Interlace_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                             const int dstStep[3], ZorSize roiSize)
{
    return convertFields(roiSize, cbFirst(pSrc, srcStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(my420To422_Interlace_8u_P3R));
}

ZorStatus zoriYCbCr420ToCbYCr422_Interlace_8u_P3C2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                                    int dstStep, ZorSize roiSize)
{
    return convertFields(roiSize, cbFirst(pSrc, srcStep), packed(pDst, dstStep),
                         ZORCC_ON_TIER(my420ToUYVY_Interlace_8u_P3C2R));
}
