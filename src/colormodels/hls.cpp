// SPDX-License-Identifier: MIT
// Exported RGB and HLS conversions of interleaved images: argument checks, then the row driver of the active tier.
#include <stddef.h>

#include "frame/checks.h"
#include "zorcc.h"

#define ZORCC_DRIVERS "colormodels/hls_rows.h"
#include "simd/each_tier.h"

using namespace zorcc;

ZorStatus zoriRGBToHLS_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToHLS_8u_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, 3);
    return zorStatusOk;
}

ZorStatus zoriRGBToHLS_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToHLS_8u_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, 4);
    return zorStatusOk;
}

ZorStatus zoriRGBToHLS_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToHLS_16u_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, 3);
    return zorStatusOk;
}

ZorStatus zoriRGBToHLS_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToHLS_16u_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, 4);
    return zorStatusOk;
}

ZorStatus zoriRGBToHLS_16s_C3R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToHLS_16s_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, 3);
    return zorStatusOk;
}

ZorStatus zoriRGBToHLS_16s_AC4R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToHLS_16s_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, 4);
    return zorStatusOk;
}

ZorStatus zoriRGBToHLS_32f_C3R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToHLS_32f_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, 3);
    return zorStatusOk;
}

ZorStatus zoriRGBToHLS_32f_AC4R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToHLS_32f_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, 4);
    return zorStatusOk;
}

ZorStatus zoriHLSToRGB_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myHLSToRGB_8u_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, 3);
    return zorStatusOk;
}

ZorStatus zoriHLSToRGB_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myHLSToRGB_8u_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, 4);
    return zorStatusOk;
}

ZorStatus zoriHLSToRGB_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myHLSToRGB_16u_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, 3);
    return zorStatusOk;
}

ZorStatus zoriHLSToRGB_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myHLSToRGB_16u_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, 4);
    return zorStatusOk;
}

ZorStatus zoriHLSToRGB_16s_C3R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myHLSToRGB_16s_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, 3);
    return zorStatusOk;
}

ZorStatus zoriHLSToRGB_16s_AC4R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myHLSToRGB_16s_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, 4);
    return zorStatusOk;
}

ZorStatus zoriHLSToRGB_32f_C3R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myHLSToRGB_32f_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, 3);
    return zorStatusOk;
}

ZorStatus zoriHLSToRGB_32f_AC4R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myHLSToRGB_32f_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, 4);
    return zorStatusOk;
}

ZorStatus zoriBGRToHLS_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myBGRToHLS_8u_AC4R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}
