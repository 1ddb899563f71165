// SPDX-License-Identifier: MIT
// Exported RGB and HSV conversions of interleaved images.
#include "zorcc/hsv.h"
#include "colormodels/hsv_rows.h"

using namespace zorcc;

static constexpr auto& rows = hsvRows;

ZorStatus zoriRGBToHSV_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToHSV_8u_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToHSV_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToHSV_8u_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToHSV_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToHSV_16u_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToHSV_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToHSV_16u_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriHSVToRGB_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myHSVToRGB_8u_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriHSVToRGB_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myHSVToRGB_8u_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriHSVToRGB_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myHSVToRGB_16u_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriHSVToRGB_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myHSVToRGB_16u_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}
