// SPDX-License-Identifier: MIT
// Exported BGR and YCbCr (ITU-R BT.709) conversions: argument checks, then the row driver of the active tier.
#include "frame/checks.h"
#include "frame/steps.h"
#include "zorcc.h"

#define ZORCC_DRIVERS "lumachroma/bt709_rows.h"
#include "simd/each_tier.h"

using namespace zorcc;

ZorStatus zoriBGRToYCbCr420_709CSC_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                            const int dstStep[3], ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myBGRToYCbCr420_709CSC_8u_C3P3R)
    (pSrc, srcStep, pDst, planeSteps(dstStep), roiSize.width, roiSize.height);
    return oddSizeStatus(roiSize);
}

ZorStatus zoriBGRToYCbCr420_709CSC_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                             const int dstStep[3], ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myBGRToYCbCr420_709CSC_8u_AC4P3R)
    (pSrc, srcStep, pDst, planeSteps(dstStep), roiSize.width, roiSize.height);
    return oddSizeStatus(roiSize);
}

ZorStatus zoriBGRToYCrCb420_709CSC_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                            const int dstStep[3], ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myBGRToYCbCr420_709CSC_8u_C3P3R)
    (pSrc, srcStep, crFirst(pDst), crFirst(dstStep), roiSize.width, roiSize.height);
    return oddSizeStatus(roiSize);
}

ZorStatus zoriBGRToYCrCb420_709CSC_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                             const int dstStep[3], ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myBGRToYCbCr420_709CSC_8u_AC4P3R)
    (pSrc, srcStep, crFirst(pDst), crFirst(dstStep), roiSize.width, roiSize.height);
    return oddSizeStatus(roiSize);
}

ZorStatus zoriYCbCr420ToBGR_709CSC_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                            int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYCbCr420ToBGR_709CSC_8u_P3C3R)
    (pSrc, planeSteps(srcStep), pDst, dstStep, roiSize.width, roiSize.height);
    return oddSizeStatus(roiSize);
}

ZorStatus zoriYCbCrToBGR_709CSC_8u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                         ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYCbCrToBGR_709CSC_8u_P3C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriYCbCrToBGR_709CSC_8u_P3C4R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                         ZorSize roiSize, uint8_t aval)
{
    if (auto s = checkImages(planar<3>(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYCbCrToBGR_709CSC_8u_P3C4R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, aval);
    return zorStatusOk;
}

ZorStatus zoriBGRToYCbCr420_709HDTV_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                              const int dstStep[3], ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myBGRToYCbCr420_709HDTV_8u_AC4P3R)
    (pSrc, srcStep, pDst, planeSteps(dstStep), roiSize.width, roiSize.height);
    return oddSizeStatus(roiSize);
}

ZorStatus zoriYCbCr420ToBGR_709HDTV_8u_P3C4R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                             int dstStep, ZorSize roiSize, uint8_t aval)
{
    if (auto s = checkImages(planar<3>(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYCbCr420ToBGR_709HDTV_8u_P3C4R)
    (pSrc, planeSteps(srcStep), pDst, dstStep, roiSize.width, roiSize.height, aval);
    return oddSizeStatus(roiSize);
}

ZorStatus zoriBGRToCbYCr422_709HDTV_8u_C3C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                             ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myBGRToCbYCr422_709HDTV_8u_C3C2R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriBGRToCbYCr422_709HDTV_8u_AC4C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                              ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myBGRToCbYCr422_709HDTV_8u_AC4C2R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriCbYCr422ToBGR_709HDTV_8u_C2C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                             ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myCbYCr422ToBGR_709HDTV_8u_C2C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriCbYCr422ToBGR_709HDTV_8u_C2C4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                             ZorSize roiSize, uint8_t aval)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myCbYCr422ToBGR_709HDTV_8u_C2C4R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height, aval);
    return zorStatusOk;
}
