// SPDX-License-Identifier: MIT
// Exported RGB and YUV conversions.
#include "zorcc/yuv.h"
#include "lumachroma/yuv_rows.h"

using namespace zorcc;

static constexpr auto& rows = yuvRows;

ZorStatus zoriRGBToYUV_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToYUV_8u_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToYUV_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToYUV_8u_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToYUV_8u_AC4P4R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[4], int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToYUV_8u_AC4P4R, interleaved(pSrc, srcStep), planar<4>(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToYUV_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToYUV_8u_C3P3R, interleaved(pSrc, srcStep), planar<3>(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToYUV_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3], int dstStep,
                              ZorSize roiSize)
{
    return convert(rows().myRGBToYUV_8u_P3R, planar<3>(pSrc, srcStep), planar<3>(pDst, dstStep), roiSize);
}

ZorStatus zoriYUVToRGB_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myYUVToRGB_8u_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriYUVToRGB_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myYUVToRGB_8u_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriYUVToRGB_8u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myYUVToRGB_8u_P3C3R, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriYUVToRGB_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3], int dstStep,
                              ZorSize roiSize)
{
    return convert(rows().myYUVToRGB_8u_P3R, planar<3>(pSrc, srcStep), planar<3>(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToYUV422_8u_C3C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToYUV422_8u_C3C2R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToYUV422_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], const int dstStep[3],
                                   ZorSize roiSize)
{
    return convert(rows().myRGBToYUV422_8u_C3P3R, interleaved(pSrc, srcStep), planar(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToYUV422_8u_C3P3(const uint8_t* pSrc, uint8_t* const pDst[3], ZorSize roiSize)
{
    return convert(rows().myRGBToYUV422_8u_C3P3R, contiguousC3(pSrc, roiSize.width),
                   contiguousHalfWidthChroma(pDst, roiSize.width), roiSize);
}

ZorStatus zoriRGBToYUV422_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3],
                                 const int dstStep[3], ZorSize roiSize)
{
    return convert(rows().myRGBToYUV422_8u_P3R, planar<3>(pSrc, srcStep), planar(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToYUV422_8u_P3(const uint8_t* const pSrc[3], uint8_t* const pDst[3], ZorSize roiSize)
{
    return convert(rows().myRGBToYUV422_8u_P3R, contiguousPlanes(pSrc, roiSize.width),
                   contiguousHalfWidthChroma(pDst, roiSize.width), roiSize);
}

ZorStatus zoriRGBToYUV420_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], const int dstStep[3],
                                   ZorSize roiSize)
{
    return convert(even, rows(roiSize).myRGBToYUV420_8u_C3P3R, interleaved(pSrc, srcStep), planar(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriRGBToYUV420_8u_C3P3(const uint8_t* pSrc, uint8_t* const pDst[3], ZorSize roiSize)
{
    return convert(even, rows(roiSize).myRGBToYUV420_8u_C3P3R, contiguousC3(pSrc, roiSize.width),
                   contiguousHalfWidthChroma(pDst, roiSize.width), roiSize);
}

ZorStatus zoriRGBToYUV420_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3],
                                 const int dstStep[3], ZorSize roiSize)
{
    return convert(even, rows(roiSize).myRGBToYUV420_8u_P3R, planar<3>(pSrc, srcStep), planar(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToYUV420_8u_P3(const uint8_t* const pSrc[3], uint8_t* const pDst[3], ZorSize roiSize)
{
    return convert(even, rows(roiSize).myRGBToYUV420_8u_P3R, contiguousPlanes(pSrc, roiSize.width),
                   contiguousHalfWidthChroma(pDst, roiSize.width), roiSize);
}

ZorStatus zoriBGRToYUV420_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], const int dstStep[3],
                                    ZorSize roiSize)
{
    return convert(even, rows(roiSize).myBGRToYUV420_8u_AC4P3R, interleaved(pSrc, srcStep), planar(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriRGB565ToYUV420_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                         const int dstStep[3], ZorSize roiSize)
{
    return convert(even, rows(roiSize).myRGB565ToYUV420_16u8u_C3P3R, interleaved(pSrc, srcStep), planar(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriRGB565ToYUV422_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                         const int dstStep[3], ZorSize roiSize)
{
    return convert(rows().myRGB565ToYUV422_16u8u_C3P3R, interleaved(pSrc, srcStep), planar(pDst, dstStep), roiSize);
}

ZorStatus zoriYUV422ToRGB_8u_C2C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myYUV422ToRGB_8u_C2C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriYUV422ToRGB_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                   ZorSize roiSize)
{
    return convert(rows().myYUV422ToRGB_8u_P3C3R, planar(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriYUV422ToRGB_8u_P3C3(const uint8_t* const pSrc[3], uint8_t* pDst, ZorSize roiSize)
{
    return convert(rows().myYUV422ToRGB_8u_P3C3R, contiguousHalfWidthChroma(pSrc, roiSize.width),
                   contiguousC3(pDst, roiSize.width), roiSize);
}

ZorStatus zoriYUV422ToRGB_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                 int dstStep, ZorSize roiSize)
{
    return convert(rows().myYUV422ToRGB_8u_P3R, planar(pSrc, srcStep), planar<3>(pDst, dstStep), roiSize);
}

ZorStatus zoriYUV422ToRGB_8u_P3(const uint8_t* const pSrc[3], uint8_t* const pDst[3], ZorSize roiSize)
{
    return convert(rows().myYUV422ToRGB_8u_P3R, contiguousHalfWidthChroma(pSrc, roiSize.width),
                   contiguousPlanes(pDst, roiSize.width), roiSize);
}

ZorStatus zoriYUV422ToRGB_8u_P3AC4R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                    ZorSize roiSize)
{
    return convert(rows().myYUV422ToRGB_8u_P3AC4R, planar(pSrc, srcStep), interleaved(pDst, dstStep), roiSize, 0);
}

ZorStatus zoriYUV420ToRGB_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                   ZorSize roiSize)
{
    return convert(even, rows(roiSize).myYUV420ToRGB_8u_P3C3R, planar(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriYUV420ToRGB_8u_P3C3(const uint8_t* const pSrc[3], uint8_t* pDst, ZorSize roiSize)
{
    return convert(even, rows(roiSize).myYUV420ToRGB_8u_P3C3R, contiguousHalfWidthChroma(pSrc, roiSize.width),
                   contiguousC3(pDst, roiSize.width), roiSize);
}

ZorStatus zoriYUV420ToRGB_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                 int dstStep, ZorSize roiSize)
{
    return convert(even, rows(roiSize).myYUV420ToRGB_8u_P3R, planar(pSrc, srcStep), planar<3>(pDst, dstStep), roiSize);
}

ZorStatus zoriYUV420ToRGB_8u_P3(const uint8_t* const pSrc[3], uint8_t* const pDst[3], ZorSize roiSize)
{
    return convert(even, rows(roiSize).myYUV420ToRGB_8u_P3R, contiguousHalfWidthChroma(pSrc, roiSize.width),
                   contiguousPlanes(pDst, roiSize.width), roiSize);
}

ZorStatus zoriYUV420ToBGR_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                   ZorSize roiSize)
{
    return convert(even, rows(roiSize).myYUV420ToBGR_8u_P3C3R, planar(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriYUV420ToRGB_8u_P3AC4R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst, int dstStep,
                                    ZorSize roiSize)
{
    return convert(even, rows(roiSize).myYUV420ToRGB_8u_P3AC4R, planar(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize, 0);
}
