// SPDX-License-Identifier: MIT
// Exported gradient-directed Bayer interpolation: argument checks, then the row driver of the active tier.
#include <stddef.h>

#include "demosaic/region.h"
#include "zorcc.h"

#define ZORCC_DRIVERS "demosaic/bayer_rows.h"
#include "simd/each_tier.h"

using namespace zorcc;

ZorStatus zoriCFAToRGB_8u_C1C3R(const uint8_t* pSrc, ZorRect srcRoi, ZorSize srcSize, int srcStep, uint8_t* pDst,
                                int dstStep, ZorBayerGrid grid, int)
{
    if (auto s = checkMosaic(pSrc, pDst, srcSize, 2, grid); s != zorStatusOk) return s;
    const Region region = regionInside(srcRoi, srcSize);
    if (!region.empty()) ZORCC_ON_TIER(myCFAToRGB_8u_C1C3R)(pSrc, srcStep, srcSize, region, pDst, dstStep, grid);
    return zorStatusOk;
}

ZorStatus zoriCFAToRGB_16u_C1C3R(const uint16_t* pSrc, ZorRect srcRoi, ZorSize srcSize, int srcStep, uint16_t* pDst,
                                 int dstStep, ZorBayerGrid grid, int)
{
    if (auto s = checkMosaic(pSrc, pDst, srcSize, 2, grid); s != zorStatusOk) return s;
    const Region region = regionInside(srcRoi, srcSize);
    if (!region.empty()) ZORCC_ON_TIER(myCFAToRGB_16u_C1C3R)(pSrc, srcStep, srcSize, region, pDst, dstStep, grid);
    return zorStatusOk;
}
