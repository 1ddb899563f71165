// SPDX-License-Identifier: MIT
// Exported adaptive homogeneity-directed demosaicing: argument checks, then the row driver of the active tier.
#include <stddef.h>

#include "demosaic/region.h"
#include "zorcc.h"

#define ZORCC_DRIVERS "demosaic/demosaicahd_rows.h"
#include "simd/each_tier.h"

using namespace zorcc;

ZorStatus zoriDemosaicAHD_8u_C1C3R(const uint8_t* pSrc, ZorRect srcRoi, ZorSize srcSize, int srcStep, uint8_t* pDst,
                                   int dstStep, ZorBayerGrid grid, uint8_t* pTmp, int tmpStep)
{
    if (auto s = checkMosaic(pSrc, pDst, srcSize, 5, grid); s != zorStatusOk) return s;
    const Region region = regionInside(srcRoi, srcSize);
    if (!region.empty()) ZORCC_ON_TIER(myDemosaicAHD_8u_C1C3R)
    (pSrc, srcStep, srcSize, region, pDst, dstStep, grid, pTmp, tmpStep);
    return zorStatusOk;
}

ZorStatus zoriDemosaicAHD_16u_C1C3R(const uint16_t* pSrc, ZorRect srcRoi, ZorSize srcSize, int srcStep, uint16_t* pDst,
                                    int dstStep, ZorBayerGrid grid, uint16_t* pTmp, int tmpStep)
{
    if (auto s = checkMosaic(pSrc, pDst, srcSize, 5, grid); s != zorStatusOk) return s;
    const Region region = regionInside(srcRoi, srcSize);
    if (!region.empty()) ZORCC_ON_TIER(myDemosaicAHD_16u_C1C3R)
    (pSrc, srcStep, srcSize, region, pDst, dstStep, grid, pTmp, tmpStep);
    return zorStatusOk;
}
