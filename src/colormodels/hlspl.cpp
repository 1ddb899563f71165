// SPDX-License-Identifier: MIT
// Exported BGR and HLS conversions from or to planes: argument checks, then the row driver of the active tier.
#include <stddef.h>

#include "frame/checks.h"
#include "zorcc.h"

#define ZORCC_DRIVERS "colormodels/hlspl_rows.h"
#include "simd/each_tier.h"

using namespace zorcc;

ZorStatus zoriBGRToHLS_8u_AC4P4R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[4], int dstStep, ZorSize roiSize)
{
    if (auto s = checkPlanesAndSteps(interleaved(pSrc), srcStep, planar<4>(pDst), dstStep, roiSize); s != zorStatusOk)
        return s;
    ZORCC_ON_TIER(ownpi_BGRToHLS_8u_AC4P4)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriBGRToHLS_8u_AP4C4R(const uint8_t* const pSrc[4], int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkPlanesAndSteps(planar<4>(pSrc), srcStep, interleaved(pDst), dstStep, roiSize); s != zorStatusOk)
        return s;
    ZORCC_ON_TIER(ownpi_BGRToHLS_8u_AP4C4)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriBGRToHLS_8u_AP4R(const uint8_t* const pSrc[4], int srcStep, uint8_t* const pDst[4], int dstStep,
                               ZorSize roiSize)
{
    if (auto s = checkPlanesAndSteps(planar<4>(pSrc), srcStep, planar<4>(pDst), dstStep, roiSize); s != zorStatusOk)
        return s;
    ZORCC_ON_TIER(ownpi_BGRToHLS_8u_AP4)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriBGRToHLS_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep, ZorSize roiSize)
{
    if (auto s = checkPlanesAndSteps(interleaved(pSrc), srcStep, planar<3>(pDst), dstStep, roiSize); s != zorStatusOk)
        return s;
    ZORCC_ON_TIER(ownpi_BGRToHLS_8u_C3P3)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriBGRToHLS_8u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkPlanesAndSteps(planar<3>(pSrc), srcStep, interleaved(pDst), dstStep, roiSize); s != zorStatusOk)
        return s;
    ZORCC_ON_TIER(ownpi_BGRToHLS_8u_P3C3)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriBGRToHLS_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3], int dstStep,
                              ZorSize roiSize)
{
    if (auto s = checkPlanesAndSteps(planar<3>(pSrc), srcStep, planar<3>(pDst), dstStep, roiSize); s != zorStatusOk)
        return s;
    ZORCC_ON_TIER(ownpi_BGRToHLS_8u_P3)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriHLSToBGR_8u_AC4P4R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[4], int dstStep, ZorSize roiSize)
{
    if (auto s = checkPlanesAndSteps(interleaved(pSrc), srcStep, planar<4>(pDst), dstStep, roiSize); s != zorStatusOk)
        return s;
    ZORCC_ON_TIER(ownpi_HLSToBGR_8u_AC4P4)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriHLSToBGR_8u_AP4C4R(const uint8_t* const pSrc[4], int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkPlanesAndSteps(planar<4>(pSrc), srcStep, interleaved(pDst), dstStep, roiSize); s != zorStatusOk)
        return s;
    ZORCC_ON_TIER(ownpi_HLSToBGR_8u_AP4C4)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriHLSToBGR_8u_AP4R(const uint8_t* const pSrc[4], int srcStep, uint8_t* const pDst[4], int dstStep,
                               ZorSize roiSize)
{
    if (auto s = checkPlanesAndSteps(planar<4>(pSrc), srcStep, planar<4>(pDst), dstStep, roiSize); s != zorStatusOk)
        return s;
    ZORCC_ON_TIER(ownpi_HLSToBGR_8u_AP4)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriHLSToBGR_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep, ZorSize roiSize)
{
    if (auto s = checkPlanesAndSteps(interleaved(pSrc), srcStep, planar<3>(pDst), dstStep, roiSize); s != zorStatusOk)
        return s;
    ZORCC_ON_TIER(ownpi_HLSToBGR_8u_C3P3)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriHLSToBGR_8u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    if (auto s = checkPlanesAndSteps(planar<3>(pSrc), srcStep, interleaved(pDst), dstStep, roiSize); s != zorStatusOk)
        return s;
    ZORCC_ON_TIER(ownpi_HLSToBGR_8u_P3C3)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}

ZorStatus zoriHLSToBGR_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3], int dstStep,
                              ZorSize roiSize)
{
    if (auto s = checkPlanesAndSteps(planar<3>(pSrc), srcStep, planar<3>(pDst), dstStep, roiSize); s != zorStatusOk)
        return s;
    ZORCC_ON_TIER(ownpi_HLSToBGR_8u_P3)(pSrc, srcStep, pDst, dstStep, roiSize.width, roiSize.height);
    return zorStatusOk;
}
