// SPDX-License-Identifier: MIT
// Exported gradient-directed Bayer interpolation.
#include "zorcc/bayer.h"
#include "demosaic/bayer_rows.h"

using namespace zorcc;

ZorStatus zoriCFAToRGB_8u_C1C3R(const uint8_t* pSrc, ZorRect srcRoi, ZorSize srcSize, int srcStep, uint8_t* pDst,
                                int dstStep, ZorBayerGrid grid, int)
{
    return demosaic(2, bayerRows().myCFAToRGB_8u_C1C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), srcSize,
                    srcRoi, grid);
}

ZorStatus zoriCFAToRGB_16u_C1C3R(const uint16_t* pSrc, ZorRect srcRoi, ZorSize srcSize, int srcStep, uint16_t* pDst,
                                 int dstStep, ZorBayerGrid grid, int)
{
    return demosaic(2, bayerRows().myCFAToRGB_16u_C1C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep),
                    srcSize, srcRoi, grid);
}
