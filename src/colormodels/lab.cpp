// SPDX-License-Identifier: MIT
// Exported conversions between linear BGR and CIE L*a*b*.
#include "zorcc/lab.h"
#include "colormodels/lab_rows.h"

using namespace zorcc;

static constexpr auto& rows = labRows;

ZorStatus zoriBGRToLab_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myBGRToLab_8u_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriBGRToLab_8u16u_C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myBGRToLab_8u16u_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriLabToBGR_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myLabToBGR_8u_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriLabToBGR_16u8u_C3R(const uint16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myLabToBGR_16u8u_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}
