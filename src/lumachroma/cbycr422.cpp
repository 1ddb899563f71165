// SPDX-License-Identifier: MIT
// Exported conversions between RGB and packed CbYCr and YCrCb 4:2:2 (ITU-R BT.601).
#include "zorcc/cbycr422.h"
#include "lumachroma/cbycr422_rows.h"

using namespace zorcc;

static constexpr auto& rows = cbycr422Rows;

ZorStatus zoriRGBToCbYCr422_8u_C3C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToCbYCr422_8u_C3C2R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToCbYCr422Gamma_8u_C3C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(positiveSteps, rows().myRGBToCbYCr422Gamma_8u_C3C2R, interleaved(pSrc, srcStep),
                   interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriBGRToCbYCr422_8u_AC4C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myBGRToCbYCr422_8u_AC4C2R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriCbYCr422ToBGR_8u_C2C4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                     uint8_t aval)
{
    return convert(rows().myCbYCr422ToBGR_8u_C2C4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize,
                   aval);
}

ZorStatus zoriCbYCr422ToRGB_8u_C2C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myCbYCr422ToRGB_8u_C2C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToYCrCb422_8u_C3C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToYCrCb422_8u_C3C2R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToYCrCb422_8u_P3C2R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                     ZorSize roiSize)
{
    return convert(rows().myRGBToYCrCb422_8u_P3C2R, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriYCrCb422ToRGB_8u_C2C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myYCrCb422ToRGB_8u_C2C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriYCrCb422ToRGB_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep,
                                     ZorSize roiSize)
{
    return convert(rows().myYCrCb422ToRGB_8u_C2P3R, interleaved(pSrc, srcStep), planar<3>(pDst, dstStep), roiSize);
}
