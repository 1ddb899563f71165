// SPDX-License-Identifier: MIT
// Exported RGB and YCbCr (ITU-R BT.601) conversions: argument checks, then the row driver of the active tier.
#include "frame/checks.h"
#include "frame/steps.h"
#include "zorcc.h"

#define ZORCC_DRIVERS "lumachroma/ycbcr_rows.h"
#include "simd/each_tier.h"

using namespace zorcc;

ZorStatus zoriRGBToYCbCr_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToYCbCr_8u_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriRGBToYCbCr_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToYCbCr_8u_AC4R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriRGBToYCbCr_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep,
                                  ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToYCbCr_8u_C3P3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriRGBToYCbCr_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep,
                                   ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToYCbCr_8u_AC4P3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriRGBToYCbCr_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3], int dstStep,
                                ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToYCbCr_8u_P3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriRGBToYCbCr422_8u_C3C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToYCbCr422_8u_C3C2R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriRGBToYCbCr422_8u_P3C2R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                     ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToYCbCr422_8u_P3C2R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriRGBToYCbCr420_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], const int dstStep[3],
                                     ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToYCbCr420_8u_C3P3R)(pSrc, srcStep, pDst, planeSteps(dstStep), roiSize.width, roiSize.height);
    return oddSizeStatus(roiSize);
}

ZorStatus zoriYCbCrToRGB_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYCbCrToRGB_8u_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriYCbCrToRGB_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYCbCrToRGB_8u_AC4R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriYCbCrToRGB_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3], int dstStep,
                                ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYCbCrToRGB_8u_P3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriYCbCrToRGB_8u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                  ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYCbCrToRGB_8u_P3C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriYCbCrToRGB_8u_P3C4R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                  ZorSize roiSize, uint8_t aval)
{
    if (auto s = checkImages(planar<3>(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYCbCrToRGB_8u_P3C4R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, aval);
    return zorStatusOk;
}

ZorStatus zoriYCbCr422ToRGB_8u_C2C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYCbCr422ToRGB_8u_C2C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriYCbCr422ToRGB_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep,
                                     ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYCbCr422ToRGB_8u_C2P3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriYCbCr422ToRGB_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                     ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYCbCr422ToRGB_8u_P3C3R)(pSrc, planeSteps(srcStep), pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriYCbCr420ToRGB_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                     ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYCbCr420ToRGB_8u_P3C3R)(pSrc, planeSteps(srcStep), pDst, dstStep, roiSize.width, roiSize.height);
    return oddSizeStatus(roiSize);
}

ZorStatus zoriYCbCr420ToBGR_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                     ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYCbCr420ToBGR_8u_P3C3R)(pSrc, planeSteps(srcStep), pDst, dstStep, roiSize.width, roiSize.height);
    return oddSizeStatus(roiSize);
}

ZorStatus zoriYCbCr420ToBGR_8u_P3C4R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                     ZorSize roiSize, uint8_t aval)
{
    if (auto s = checkImages(planar<3>(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYCbCr420ToBGR_8u_P3C4R)
    (pSrc, planeSteps(srcStep), pDst, dstStep, roiSize.width, roiSize.height, aval);
    return oddSizeStatus(roiSize);
}

ZorStatus zoriYCrCb420ToRGB_8u_P3C4R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                     ZorSize roiSize, uint8_t aval)
{
    if (auto s = checkImages(planar<3>(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYCrCb420ToRGB_8u_P3C4R)
    (crFirst(pSrc), crFirst(srcStep), pDst, dstStep, roiSize.width, roiSize.height, aval);
    return oddSizeStatus(roiSize);
}

ZorStatus zoriYCbCr411ToBGR_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                     ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYCbCr411ToBGR_8u_P3C3R)(pSrc, planeSteps(srcStep), pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriYCbCr411ToBGR_8u_P3C4R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                     ZorSize roiSize, uint8_t aval)
{
    if (auto s = checkImages(planar<3>(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYCbCr411ToBGR_8u_P3C4R)
    (pSrc, planeSteps(srcStep), pDst, dstStep, roiSize.width, roiSize.height, aval);
    return zorStatusOk;
}

ZorStatus zoriYCrCb420ToBGR_Filter_8u_P3C4R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                            int dstStep, ZorSize roiSize, uint8_t aval)
{
    if (auto s = checkImages(planar<3>(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYCrCb420ToBGR_Filter_8u_P3C4R)
    (crFirst(pSrc), crFirst(srcStep), pDst, dstStep, roiSize.width, roiSize.height, aval);
    return oddSizeStatus(roiSize);
}
