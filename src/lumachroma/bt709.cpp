// SPDX-License-Identifier: MIT
// Exported BGR and YCbCr (ITU-R BT.709) conversions.
#include "zorcc/bt709.h"
#include "lumachroma/bt709_rows.h"

using namespace zorcc;

static constexpr auto& rows = bt709Rows;

ZorStatus zoriBGRToYCbCr420_709CSC_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                            const int dstStep[3], ZorSize roiSize)
{
    return convert(even, rows(roiSize).myBGRToYCbCr420_709CSC_8u_C3P3R, interleaved(pSrc, srcStep),
                   planar(pDst, dstStep), roiSize);
}

ZorStatus zoriBGRToYCbCr420_709CSC_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                             const int dstStep[3], ZorSize roiSize)
{
    return convert(even, rows(roiSize).myBGRToYCbCr420_709CSC_8u_AC4P3R, interleaved(pSrc, srcStep),
                   planar(pDst, dstStep), roiSize);
}

ZorStatus zoriBGRToYCrCb420_709CSC_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                            const int dstStep[3], ZorSize roiSize)
{
    return convert(even, rows(roiSize).myBGRToYCbCr420_709CSC_8u_C3P3R, interleaved(pSrc, srcStep),
                   planarCrCb(pDst, dstStep), roiSize);
}

ZorStatus zoriBGRToYCrCb420_709CSC_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                             const int dstStep[3], ZorSize roiSize)
{
    return convert(even, rows(roiSize).myBGRToYCbCr420_709CSC_8u_AC4P3R, interleaved(pSrc, srcStep),
                   planarCrCb(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr420ToBGR_709CSC_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                            int dstStep, ZorSize roiSize)
{
    return convert(even, rows(roiSize).myYCbCr420ToBGR_709CSC_8u_P3C3R, planar(pSrc, srcStep),
                   interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCrToBGR_709CSC_8u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                         ZorSize roiSize)
{
    return convert(rows().myYCbCrToBGR_709CSC_8u_P3C3R, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCrToBGR_709CSC_8u_P3C4R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                         ZorSize roiSize, uint8_t aval)
{
    return convert(rows().myYCbCrToBGR_709CSC_8u_P3C4R, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep), roiSize,
                   aval);
}

ZorStatus zoriBGRToYCbCr420_709HDTV_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                              const int dstStep[3], ZorSize roiSize)
{
    return convert(even, rows(roiSize).myBGRToYCbCr420_709HDTV_8u_AC4P3R, interleaved(pSrc, srcStep),
                   planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYCbCr420ToBGR_709HDTV_8u_P3C4R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                             int dstStep, ZorSize roiSize, uint8_t aval)
{
    return convert(even, rows(roiSize).myYCbCr420ToBGR_709HDTV_8u_P3C4R, planar(pSrc, srcStep),
                   interleaved(pDst, dstStep), roiSize, aval);
}

ZorStatus zoriBGRToCbYCr422_709HDTV_8u_C3C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                             ZorSize roiSize)
{
    return convert(rows().myBGRToCbYCr422_709HDTV_8u_C3C2R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriBGRToCbYCr422_709HDTV_8u_AC4C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                              ZorSize roiSize)
{
    return convert(rows().myBGRToCbYCr422_709HDTV_8u_AC4C2R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriCbYCr422ToBGR_709HDTV_8u_C2C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                             ZorSize roiSize)
{
    return convert(rows().myCbYCr422ToBGR_709HDTV_8u_C2C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriCbYCr422ToBGR_709HDTV_8u_C2C4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                             ZorSize roiSize, uint8_t aval)
{
    return convert(rows().myCbYCr422ToBGR_709HDTV_8u_C2C4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize, aval);
}
