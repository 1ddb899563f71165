// SPDX-License-Identifier: MIT
// Exported BGR and HLS conversions from or to planes.
#include "zorcc/hlspl.h"
#include "colormodels/hlspl_rows.h"

using namespace zorcc;

static constexpr auto& rows = hlsplRows;

// Every pointer first, then the steps, then the size.
constexpr Checks strict = {.planes = Checks::Planes::beforeSize, .steps = Checks::Steps::positiveBeforeSize};

ZorStatus zoriBGRToHLS_8u_AC4P4R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[4], int dstStep, ZorSize roiSize)
{
    return convert(strict, rows().myBGRToHLS_8u_AC4P4R, interleaved(pSrc, srcStep), planar<4>(pDst, dstStep), roiSize);
}

ZorStatus zoriBGRToHLS_8u_AP4C4R(const uint8_t* const pSrc[4], int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(strict, rows().myBGRToHLS_8u_AP4C4R, planar<4>(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriBGRToHLS_8u_AP4R(const uint8_t* const pSrc[4], int srcStep, uint8_t* const pDst[4], int dstStep,
                               ZorSize roiSize)
{
    return convert(strict, rows().myBGRToHLS_8u_AP4R, planar<4>(pSrc, srcStep), planar<4>(pDst, dstStep), roiSize);
}

ZorStatus zoriBGRToHLS_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep, ZorSize roiSize)
{
    return convert(strict, rows().myBGRToHLS_8u_C3P3R, interleaved(pSrc, srcStep), planar<3>(pDst, dstStep), roiSize);
}

ZorStatus zoriBGRToHLS_8u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(strict, rows().myBGRToHLS_8u_P3C3R, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriBGRToHLS_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3], int dstStep,
                              ZorSize roiSize)
{
    return convert(strict, rows().myBGRToHLS_8u_P3R, planar<3>(pSrc, srcStep), planar<3>(pDst, dstStep), roiSize);
}

ZorStatus zoriHLSToBGR_8u_AC4P4R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[4], int dstStep, ZorSize roiSize)
{
    return convert(strict, rows().myHLSToBGR_8u_AC4P4R, interleaved(pSrc, srcStep), planar<4>(pDst, dstStep), roiSize);
}

ZorStatus zoriHLSToBGR_8u_AP4C4R(const uint8_t* const pSrc[4], int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(strict, rows().myHLSToBGR_8u_AP4C4R, planar<4>(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriHLSToBGR_8u_AP4R(const uint8_t* const pSrc[4], int srcStep, uint8_t* const pDst[4], int dstStep,
                               ZorSize roiSize)
{
    return convert(strict, rows().myHLSToBGR_8u_AP4R, planar<4>(pSrc, srcStep), planar<4>(pDst, dstStep), roiSize);
}

ZorStatus zoriHLSToBGR_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep, ZorSize roiSize)
{
    return convert(strict, rows().myHLSToBGR_8u_C3P3R, interleaved(pSrc, srcStep), planar<3>(pDst, dstStep), roiSize);
}

ZorStatus zoriHLSToBGR_8u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(strict, rows().myHLSToBGR_8u_P3C3R, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriHLSToBGR_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3], int dstStep,
                              ZorSize roiSize)
{
    return convert(strict, rows().myHLSToBGR_8u_P3R, planar<3>(pSrc, srcStep), planar<3>(pDst, dstStep), roiSize);
}
