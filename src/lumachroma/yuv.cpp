// SPDX-License-Identifier: MIT
// Exported RGB and YUV conversions: argument checks, then the row driver of the active tier.
#include "frame/checks.h"
#include "frame/steps.h"
#include "zorcc.h"

#define ZORCC_DRIVERS "lumachroma/yuv_rows.h"
#include "simd/each_tier.h"

using namespace zorcc;

ZorStatus zoriRGBToYUV_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToYUV_8u_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriRGBToYUV_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToYUV_8u_AC4R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriRGBToYUV_8u_AC4P4R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[4], int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), planar<4>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToYUV_8u_AC4P4R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriRGBToYUV_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToYUV_8u_C3P3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriRGBToYUV_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3], int dstStep,
                              ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToYUV_8u_P3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriYUVToRGB_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYUVToRGB_8u_C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriYUVToRGB_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYUVToRGB_8u_AC4R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriYUVToRGB_8u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYUVToRGB_8u_P3C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriYUVToRGB_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3], int dstStep,
                              ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYUVToRGB_8u_P3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriRGBToYUV422_8u_C3C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToYUV422_8u_C3C2R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriRGBToYUV422_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], const int dstStep[3],
                                   ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToYUV422_8u_C3P3R)(pSrc, srcStep, pDst, planeSteps(dstStep), roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriRGBToYUV422_8u_C3P3(const uint8_t* pSrc, uint8_t* const pDst[3], ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToYUV422_8u_C3P3R)
    (pSrc, contiguousC3(roiSize.width), pDst, contiguousHalfWidthChroma(roiSize.width), roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriRGBToYUV422_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3],
                                 const int dstStep[3], ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToYUV422_8u_P3R)(pSrc, srcStep, pDst, planeSteps(dstStep), roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriRGBToYUV422_8u_P3(const uint8_t* const pSrc[3], uint8_t* const pDst[3], ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToYUV422_8u_P3R)
    (pSrc, roiSize.width, pDst, contiguousHalfWidthChroma(roiSize.width), roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriRGBToYUV420_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], const int dstStep[3],
                                   ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToYUV420_8u_C3P3R)(pSrc, srcStep, pDst, planeSteps(dstStep), roiSize.width, roiSize.height);
    return oddSizeStatus(roiSize);
}

ZorStatus zoriRGBToYUV420_8u_C3P3(const uint8_t* pSrc, uint8_t* const pDst[3], ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToYUV420_8u_C3P3R)
    (pSrc, contiguousC3(roiSize.width), pDst, contiguousHalfWidthChroma(roiSize.width), roiSize.width, roiSize.height);
    return oddSizeStatus(roiSize);
}

ZorStatus zoriRGBToYUV420_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3],
                                 const int dstStep[3], ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToYUV420_8u_P3R)(pSrc, srcStep, pDst, planeSteps(dstStep), roiSize.width, roiSize.height);
    return oddSizeStatus(roiSize);
}

ZorStatus zoriRGBToYUV420_8u_P3(const uint8_t* const pSrc[3], uint8_t* const pDst[3], ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGBToYUV420_8u_P3R)
    (pSrc, roiSize.width, pDst, contiguousHalfWidthChroma(roiSize.width), roiSize.width, roiSize.height);
    return oddSizeStatus(roiSize);
}

ZorStatus zoriBGRToYUV420_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], const int dstStep[3],
                                    ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myBGRToYUV420_8u_AC4P3R)(pSrc, srcStep, pDst, planeSteps(dstStep), roiSize.width, roiSize.height);
    return oddSizeStatus(roiSize);
}

ZorStatus zoriRGB565ToYUV420_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                         const int dstStep[3], ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGB565ToYUV420_16u8u_C3P3R)
    (pSrc, srcStep, pDst, planeSteps(dstStep), roiSize.width, roiSize.height);
    return oddSizeStatus(roiSize);
}

ZorStatus zoriRGB565ToYUV422_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                         const int dstStep[3], ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myRGB565ToYUV422_16u8u_C3P3R)
    (pSrc, srcStep, pDst, planeSteps(dstStep), roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriYUV422ToRGB_8u_C2C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(interleaved(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYUV422ToRGB_8u_C2C3R)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriYUV422ToRGB_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                   ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYUV422ToRGB_8u_P3C3R)(pSrc, planeSteps(srcStep), pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriYUV422ToRGB_8u_P3C3(const uint8_t* const pSrc[3], uint8_t* pDst, ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYUV422ToRGB_8u_P3C3R)
    (pSrc, contiguousHalfWidthChroma(roiSize.width), pDst, contiguousC3(roiSize.width), roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriYUV422ToRGB_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                 int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYUV422ToRGB_8u_P3R)(pSrc, planeSteps(srcStep), pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriYUV422ToRGB_8u_P3(const uint8_t* const pSrc[3], uint8_t* const pDst[3], ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYUV422ToRGB_8u_P3R)
    (pSrc, contiguousHalfWidthChroma(roiSize.width), pDst, roiSize.width, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriYUV422ToRGB_8u_P3AC4R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                    ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYUV422ToRGB_8u_P3AC4R)(pSrc, planeSteps(srcStep), pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriYUV420ToRGB_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                   ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYUV420ToRGB_8u_P3C3R)(pSrc, planeSteps(srcStep), pDst, dstStep, roiSize.width, roiSize.height);
    return oddSizeStatus(roiSize);
}

ZorStatus zoriYUV420ToRGB_8u_P3C3(const uint8_t* const pSrc[3], uint8_t* pDst, ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYUV420ToRGB_8u_P3C3R)
    (pSrc, contiguousHalfWidthChroma(roiSize.width), pDst, contiguousC3(roiSize.width), roiSize.width, roiSize.height);
    return oddSizeStatus(roiSize);
}

ZorStatus zoriYUV420ToRGB_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                 int dstStep, ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYUV420ToRGB_8u_P3R)(pSrc, planeSteps(srcStep), pDst, dstStep, roiSize.width, roiSize.height);
    return oddSizeStatus(roiSize);
}

ZorStatus zoriYUV420ToRGB_8u_P3(const uint8_t* const pSrc[3], uint8_t* const pDst[3], ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), planar<3>(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYUV420ToRGB_8u_P3R)
    (pSrc, contiguousHalfWidthChroma(roiSize.width), pDst, roiSize.width, roiSize.width, roiSize.height);
    return oddSizeStatus(roiSize);
}

ZorStatus zoriYUV420ToBGR_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                   ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYUV420ToBGR_8u_P3C3R)(pSrc, planeSteps(srcStep), pDst, dstStep, roiSize.width, roiSize.height);
    return oddSizeStatus(roiSize);
}

ZorStatus zoriYUV420ToRGB_8u_P3AC4R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                    ZorSize roiSize)
{
    if (auto s = checkImages(planar<3>(pSrc), interleaved(pDst), roiSize); s != zorStatusOk) return s;
    ZORCC_ON_TIER(myYUV420ToRGB_8u_P3AC4R)(pSrc, planeSteps(srcStep), pDst, dstStep, roiSize.width, roiSize.height);
    return oddSizeStatus(roiSize);
}
