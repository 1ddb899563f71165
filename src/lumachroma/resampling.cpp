// SPDX-License-Identifier: MIT
// Exported changes of chroma sampling that interpolate between chroma samples.
#include "lumachroma/sampled_checks.h"
#include "zorcc.h"

#define ZORCC_DRIVERS "lumachroma/resampling_rows.h"
#include "simd/each_tier.h"

using namespace zorcc;

// Sizes of broken blocks are refused.
constexpr Blocks wholeFours = {{4, 4}, true}, wholeQuadPairs = {{4, 2}, true};

ZorStatus zoriYCbCr420To1620_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                    const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(wholeFours, roiSize, cbFirst(pSrc, srcStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(myYCbCr420To1620_8u_P3R));
}

ZorStatus zoriYCbCr1620To420_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                    const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(wholeFours, roiSize, cbFirst(pSrc, srcStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(myYCbCr1620To420_8u_P3R));
}

ZorStatus zoriYCbCr411To420_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                   const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(wholeFours, roiSize, cbFirst(pSrc, srcStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(myYCbCr411To420_8u_P3R));
}

ZorStatus zoriYCbCr420To411_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                   const int dstStep[3], ZorSize roiSize)
{
    return convertBlocks(wholeQuadPairs, roiSize, cbFirst(pSrc, srcStep), cbFirst(pDst, dstStep),
                         ZORCC_ON_TIER(myYCbCr420To411_8u_P3R));
}
