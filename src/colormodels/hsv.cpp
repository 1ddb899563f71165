// SPDX-License-Identifier: MIT
// Exported RGB and HSV conversions of interleaved images: argument checks, then the row driver of the active tier.
#include <stddef.h>

#include "frame/checks.h"
#include "zorcc.h"

#define ZORCC_DRIVERS "colormodels/hsv_rows.h"
#include "simd/each_tier.h"

using namespace zorcc;

ZorStatus zoriRGBToHSV_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToHSV_8u_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, 3);
    return zorStatusOk;
}

ZorStatus zoriRGBToHSV_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToHSV_8u_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, 4);
    return zorStatusOk;
}

ZorStatus zoriRGBToHSV_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToHSV_16u_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, 3);
    return zorStatusOk;
}

ZorStatus zoriRGBToHSV_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToHSV_16u_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, 4);
    return zorStatusOk;
}

ZorStatus zoriHSVToRGB_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myHSVToRGB_8u_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, 3);
    return zorStatusOk;
}

ZorStatus zoriHSVToRGB_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myHSVToRGB_8u_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, 4);
    return zorStatusOk;
}

ZorStatus zoriHSVToRGB_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myHSVToRGB_16u_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, 3);
    return zorStatusOk;
}

ZorStatus zoriHSVToRGB_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myHSVToRGB_16u_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, 4);
    return zorStatusOk;
}
