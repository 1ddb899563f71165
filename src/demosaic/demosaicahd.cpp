// SPDX-License-Identifier: MIT
// Exported adaptive homogeneity-directed demosaicing.
#include "zorcc/demosaicahd.h"
#include "demosaic/demosaicahd_rows.h"

using namespace zorcc;

ZorStatus zoriDemosaicAHD_8u_C1C3R(const uint8_t* pSrc, ZorRect srcRoi, ZorSize srcSize, int srcStep, uint8_t* pDst,
                                   int dstStep, ZorBayerGrid grid, uint8_t* pTmp, int tmpStep)
{
    return demosaic(5, demosaicAhdRows().myDemosaicAHD_8u_C1C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep),
                    srcSize, srcRoi, grid, interleaved(pTmp, tmpStep));
}

ZorStatus zoriDemosaicAHD_16u_C1C3R(const uint16_t* pSrc, ZorRect srcRoi, ZorSize srcSize, int srcStep, uint16_t* pDst,
                                    int dstStep, ZorBayerGrid grid, uint16_t* pTmp, int tmpStep)
{
    return demosaic(5, demosaicAhdRows().myDemosaicAHD_16u_C1C3R, interleaved(pSrc, srcStep),
                    interleaved(pDst, dstStep), srcSize, srcRoi, grid, interleaved(pTmp, tmpStep));
}
