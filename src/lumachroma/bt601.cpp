// SPDX-License-Identifier: MIT
// Exported RGB and YCbCr (ITU-R BT.601) conversions.
#include "zorcc/bt601.h"
#include "lumachroma/bt601_rows.h"

using namespace zorcc;

static constexpr auto& rows = bt601Rows;

namespace {

using enum Checks::OddSize;

// For images that share chroma among their pixels at least one whole group. All pointers are checked before the size.
constexpr Checks planesFirst = {.planes = Checks::Planes::beforeSize};
constexpr Checks atLeastPair = {.minimum = {2, 1}, .planes = Checks::Planes::beforeSize};

constexpr Checks inBlocks(ZorSize block)
{
    return {.block = block, .minimum = block, .oddSize = convertedAndWarned, .planes = Checks::Planes::beforeSize};
}
constexpr Checks pairs = inBlocks({2, 1}), quads = inBlocks({4, 1}), squares = inBlocks({2, 2});

} // namespace

ZorStatus zoriRGBToYCbCr_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToYCbCr_8u_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToYCbCr_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToYCbCr_8u_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToYCbCr_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep,
                                  ZorSize roiSize)
{
    return convert(rows().myRGBToYCbCr_8u_C3P3R, interleaved(pSrc, srcStep), planar<3>(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToYCbCr_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep,
                                   ZorSize roiSize)
{
    return convert(rows().myRGBToYCbCr_8u_AC4P3R, interleaved(pSrc, srcStep), planar<3>(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToYCbCr_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3], int dstStep,
                                ZorSize roiSize)
{
    return convert(rows().myRGBToYCbCr_8u_P3R, planar<3>(pSrc, srcStep), planar<3>(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToYCbCr422_8u_C3C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToYCbCr422_8u_C3C2R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToYCbCr422_8u_P3C2R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                     ZorSize roiSize)
{
    return convert(rows().myRGBToYCbCr422_8u_P3C2R, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToYCbCr420_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], const int dstStep[3],
                                     ZorSize roiSize)
{
    return convert(even, rows(roiSize).myRGBToYCbCr420_8u_C3P3R, interleaved(pSrc, srcStep), planar(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriYCbCrToRGB_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myYCbCrToRGB_8u_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCrToRGB_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myYCbCrToRGB_8u_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCrToRGB_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3], int dstStep,
                                ZorSize roiSize)
{
    return convert(rows().myYCbCrToRGB_8u_P3R, planar<3>(pSrc, srcStep), planar<3>(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCrToRGB_8u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                  ZorSize roiSize)
{
    return convert(rows().myYCbCrToRGB_8u_P3C3R, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCrToRGB_8u_P3C4R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                  ZorSize roiSize, uint8_t aval)
{
    return convert(rows().myYCbCrToRGB_8u_P3C4R, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep), roiSize, aval);
}

ZorStatus zoriYCbCr422ToRGB_8u_C2C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myYCbCr422ToRGB_8u_C2C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr422ToRGB_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep,
                                     ZorSize roiSize)
{
    return convert(rows().myYCbCr422ToRGB_8u_C2P3R, interleaved(pSrc, srcStep), planar<3>(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr422ToRGB_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                     ZorSize roiSize)
{
    return convert(rows().myYCbCr422ToRGB_8u_P3C3R, planar(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr420ToRGB_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                     ZorSize roiSize)
{
    return convert(even, rows(roiSize).myYCbCr420ToRGB_8u_P3C3R, planar(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriYCbCr420ToBGR_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                     ZorSize roiSize)
{
    return convert(even, rows(roiSize).myYCbCr420ToBGR_8u_P3C3R, planar(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriYCbCr420ToBGR_8u_P3C4R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                     ZorSize roiSize, uint8_t aval)
{
    return convert(even, rows(roiSize).myYCbCr420ToBGR_8u_P3C4R, planar(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize, aval);
}

ZorStatus zoriYCrCb420ToRGB_8u_P3C4R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                     ZorSize roiSize, uint8_t aval)
{
    return convert(even, rows(roiSize).myYCrCb420ToRGB_8u_P3C4R, planarCrCb(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize, aval);
}

// ---- BGR with shared chroma -----------------------------------------------------------------------------------------

ZorStatus zoriBGRToYCbCr422_8u_C3C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(atLeastPair, rows().myBGRToYCbCr422_8u_C3C2R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriBGRToYCbCr422_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], const int dstStep[3],
                                     ZorSize roiSize)
{
    return convert(atLeastPair, rows().myBGRToYCbCr422_8u_C3P3R, interleaved(pSrc, srcStep), planar(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriBGRToYCbCr422_8u_AC4C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(atLeastPair, rows().myBGRToYCbCr422_8u_AC4C2R, interleaved(pSrc, srcStep),
                   interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriBGRToYCbCr422_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], const int dstStep[3],
                                      ZorSize roiSize)
{
    return convert(atLeastPair, rows().myBGRToYCbCr422_8u_AC4P3R, interleaved(pSrc, srcStep), planar(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriRGBToYCbCr422_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], const int dstStep[3],
                                     ZorSize roiSize)
{
    return convert(pairs, rows().myRGBToYCbCr422_8u_C3P3R, interleaved(pSrc, srcStep), planar(pDst, dstStep), roiSize);
}

ZorStatus zoriBGRToYCbCr411_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], const int dstStep[3],
                                     ZorSize roiSize)
{
    return convert(quads, rows().myBGRToYCbCr411_8u_C3P3R, interleaved(pSrc, srcStep), planar(pDst, dstStep), roiSize);
}

ZorStatus zoriBGRToYCbCr411_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], const int dstStep[3],
                                      ZorSize roiSize)
{
    return convert(quads, rows().myBGRToYCbCr411_8u_AC4P3R, interleaved(pSrc, srcStep), planar(pDst, dstStep), roiSize);
}

ZorStatus zoriBGRToYCbCr420_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], const int dstStep[3],
                                     ZorSize roiSize)
{
    return convert(squares, rows(roiSize).myBGRToYCbCr420_8u_C3P3R, interleaved(pSrc, srcStep), planar(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriBGRToYCbCr420_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], const int dstStep[3],
                                      ZorSize roiSize)
{
    return convert(squares, rows(roiSize).myBGRToYCbCr420_8u_AC4P3R, interleaved(pSrc, srcStep), planar(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriBGRToYCrCb420_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], const int dstStep[3],
                                     ZorSize roiSize)
{
    return convert(squares, rows(roiSize).myBGRToYCbCr420_8u_C3P3R, interleaved(pSrc, srcStep),
                   planarCrCb(pDst, dstStep), roiSize);
}

ZorStatus zoriBGRToYCrCb420_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], const int dstStep[3],
                                      ZorSize roiSize)
{
    return convert(squares, rows(roiSize).myBGRToYCbCr420_8u_AC4P3R, interleaved(pSrc, srcStep),
                   planarCrCb(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToYCrCb420_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], const int dstStep[3],
                                      ZorSize roiSize)
{
    return convert(squares, rows(roiSize).myRGBToYCrCb420_8u_AC4P3R, interleaved(pSrc, srcStep),
                   planarCrCb(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr422ToBGR_8u_C2C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(atLeastPair, rows().myYCbCr422ToBGR_8u_C2C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriYCbCr422ToBGR_8u_C2C4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                     uint8_t aval)
{
    return convert(atLeastPair, rows().myYCbCr422ToBGR_8u_C2C4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize, aval);
}

ZorStatus zoriYCbCr422ToBGR_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                     ZorSize roiSize)
{
    return convert(atLeastPair, rows().myYCbCr422ToBGR_8u_P3C3R, planar(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriYCbCrToBGR_8u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                  ZorSize roiSize)
{
    return convert(planesFirst, rows().myYCbCrToBGR_8u_P3C3R, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriYCbCrToBGR_8u_P3C4R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                  ZorSize roiSize, uint8_t aval)
{
    return convert(planesFirst, rows().myYCbCrToBGR_8u_P3C4R, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize, aval);
}

// ---- 4:1:1 ----------------------------------------------------------------------------------------------------------

ZorStatus zoriYCbCr411ToBGR_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                     ZorSize roiSize)
{
    return convert(rows().myYCbCr411ToBGR_8u_P3C3R, planar(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr411ToBGR_8u_P3C4R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                     ZorSize roiSize, uint8_t aval)
{
    return convert(rows().myYCbCr411ToBGR_8u_P3C4R, planar(pSrc, srcStep), interleaved(pDst, dstStep), roiSize, aval);
}

ZorStatus zoriYCrCb420ToBGR_Filter_8u_P3C4R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                            int dstStep, ZorSize roiSize, uint8_t aval)
{
    return convert(even, rows(roiSize).myYCrCb420ToBGR_Filter_8u_P3C4R, planarCrCb(pSrc, srcStep),
                   interleaved(pDst, dstStep), roiSize, aval);
}
