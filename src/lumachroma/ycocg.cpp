// SPDX-License-Identifier: MIT
// Exported RGB and YCoCg conversions.
#include "zorcc/ycocg.h"
#include "lumachroma/ycocg_rows.h"

using namespace zorcc;

static constexpr auto& rows = ycocgRows;

// Pointers alone are checked.
static constexpr Checks anySize = {.planes = Checks::Planes::beforeSize, .anySize = true};

ZorStatus zoriBGRToYCoCg_8u16s_C3P3R(const uint8_t* pSrc, int srcStep, int16_t* const pDst[3], int dstStep,
                                     ZorSize roiSize)
{
    return convert(anySize, rows().myBGRToYCoCg_8u16s_C3P3R, interleaved(pSrc, srcStep), planar<3>(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriBGRToYCoCg_8u16s_C4P3R(const uint8_t* pSrc, int srcStep, int16_t* const pDst[3], int dstStep,
                                     ZorSize roiSize)
{
    return convert(anySize, rows().myBGRToYCoCg_8u16s_C4P3R, interleaved(pSrc, srcStep), planar<3>(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriSBGRToYCoCg_16s_C3P3R(const int16_t* pSrc, int srcStep, int16_t* const pDst[3], int dstStep,
                                    ZorSize roiSize)
{
    return convert(anySize, rows().mySBGRToYCoCg_16s_C3P3R, interleaved(pSrc, srcStep), planar<3>(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriSBGRToYCoCg_16s_C4P3R(const int16_t* pSrc, int srcStep, int16_t* const pDst[3], int dstStep,
                                    ZorSize roiSize)
{
    return convert(anySize, rows().mySBGRToYCoCg_16s_C4P3R, interleaved(pSrc, srcStep), planar<3>(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriSBGRToYCoCg_16s32s_C3P3R(const int16_t* pSrc, int srcStep, int32_t* const pDst[3], int dstStep,
                                       ZorSize roiSize)
{
    return convert(anySize, rows().mySBGRToYCoCg_16s32s_C3P3R, interleaved(pSrc, srcStep), planar<3>(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriSBGRToYCoCg_16s32s_C4P3R(const int16_t* pSrc, int srcStep, int32_t* const pDst[3], int dstStep,
                                       ZorSize roiSize)
{
    return convert(anySize, rows().mySBGRToYCoCg_16s32s_C4P3R, interleaved(pSrc, srcStep), planar<3>(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriYCoCgToBGR_16s8u_P3C3R(const int16_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                     ZorSize roiSize)
{
    return convert(anySize, rows().myYCoCgToBGR_16s8u_P3C3R, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriYCoCgToBGR_16s8u_P3C4R(const int16_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                     ZorSize roiSize, uint8_t aval)
{
    return convert(anySize, rows().myYCoCgToBGR_16s8u_P3C4R, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize, aval);
}

ZorStatus zoriYCoCgToSBGR_16s_P3C3R(const int16_t* const pSrc[3], int srcStep, int16_t* pDst, int dstStep,
                                    ZorSize roiSize)
{
    return convert(anySize, rows().myYCoCgToSBGR_16s_P3C3R, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriYCoCgToSBGR_16s_P3C4R(const int16_t* const pSrc[3], int srcStep, int16_t* pDst, int dstStep,
                                    ZorSize roiSize, int16_t aval)
{
    return convert(anySize, rows().myYCoCgToSBGR_16s_P3C4R, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize, aval);
}

ZorStatus zoriYCoCgToSBGR_32s16s_P3C3R(const int32_t* const pSrc[3], int srcStep, int16_t* pDst, int dstStep,
                                       ZorSize roiSize)
{
    return convert(anySize, rows().myYCoCgToSBGR_32s16s_P3C3R, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriYCoCgToSBGR_32s16s_P3C4R(const int32_t* const pSrc[3], int srcStep, int16_t* pDst, int dstStep,
                                       ZorSize roiSize, int16_t aval)
{
    return convert(anySize, rows().myYCoCgToSBGR_32s16s_P3C4R, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize, aval);
}

ZorStatus zoriBGRToYCoCg_Rev_8u16s_C3P3R(const uint8_t* pSrc, int srcStep, int16_t* const pDst[3], int dstStep,
                                         ZorSize roiSize)
{
    return convert(anySize, rows().myBGRToYCoCg_Rev_8u16s_C3P3R, interleaved(pSrc, srcStep), planar<3>(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriBGRToYCoCg_Rev_8u16s_C4P3R(const uint8_t* pSrc, int srcStep, int16_t* const pDst[3], int dstStep,
                                         ZorSize roiSize)
{
    return convert(anySize, rows().myBGRToYCoCg_Rev_8u16s_C4P3R, interleaved(pSrc, srcStep), planar<3>(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriSBGRToYCoCg_Rev_16s_C3P3R(const int16_t* pSrc, int srcStep, int16_t* const pDst[3], int dstStep,
                                        ZorSize roiSize)
{
    return convert(anySize, rows().mySBGRToYCoCg_Rev_16s_C3P3R, interleaved(pSrc, srcStep), planar<3>(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriSBGRToYCoCg_Rev_16s_C4P3R(const int16_t* pSrc, int srcStep, int16_t* const pDst[3], int dstStep,
                                        ZorSize roiSize)
{
    return convert(anySize, rows().mySBGRToYCoCg_Rev_16s_C4P3R, interleaved(pSrc, srcStep), planar<3>(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriSBGRToYCoCg_Rev_16s32s_C3P3R(const int16_t* pSrc, int srcStep, int32_t* const pDst[3], int dstStep,
                                           ZorSize roiSize)
{
    return convert(anySize, rows().mySBGRToYCoCg_Rev_16s32s_C3P3R, interleaved(pSrc, srcStep), planar<3>(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriSBGRToYCoCg_Rev_16s32s_C4P3R(const int16_t* pSrc, int srcStep, int32_t* const pDst[3], int dstStep,
                                           ZorSize roiSize)
{
    return convert(anySize, rows().mySBGRToYCoCg_Rev_16s32s_C4P3R, interleaved(pSrc, srcStep), planar<3>(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriYCoCgToBGR_Rev_16s8u_P3C3R(const int16_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                         ZorSize roiSize)
{
    return convert(anySize, rows().myYCoCgToBGR_Rev_16s8u_P3C3R, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriYCoCgToBGR_Rev_16s8u_P3C4R(const int16_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                         ZorSize roiSize, uint8_t aval)
{
    return convert(anySize, rows().myYCoCgToBGR_Rev_16s8u_P3C4R, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize, aval);
}

ZorStatus zoriYCoCgToSBGR_Rev_16s_P3C3R(const int16_t* const pSrc[3], int srcStep, int16_t* pDst, int dstStep,
                                        ZorSize roiSize)
{
    return convert(anySize, rows().myYCoCgToSBGR_Rev_16s_P3C3R, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriYCoCgToSBGR_Rev_16s_P3C4R(const int16_t* const pSrc[3], int srcStep, int16_t* pDst, int dstStep,
                                        ZorSize roiSize, int16_t aval)
{
    return convert(anySize, rows().myYCoCgToSBGR_Rev_16s_P3C4R, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize, aval);
}

ZorStatus zoriYCoCgToSBGR_Rev_32s16s_P3C3R(const int32_t* const pSrc[3], int srcStep, int16_t* pDst, int dstStep,
                                           ZorSize roiSize)
{
    return convert(anySize, rows().myYCoCgToSBGR_Rev_32s16s_P3C3R, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriYCoCgToSBGR_Rev_32s16s_P3C4R(const int32_t* const pSrc[3], int srcStep, int16_t* pDst, int dstStep,
                                           ZorSize roiSize, int16_t aval)
{
    return convert(anySize, rows().myYCoCgToSBGR_Rev_32s16s_P3C4R, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize, aval);
}

ZorStatus zoriRGBToYCoCg_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep,
                                  ZorSize roiSize)
{
    return convert(anySize, rows().myRGBToYCoCg_8u_C3P3R, interleaved(pSrc, srcStep), planar<3>(pDst, dstStep),
                   roiSize);
}

ZorStatus zoriYCoCgToRGB_8u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                  ZorSize roiSize)
{
    return convert(anySize, rows().myYCoCgToRGB_8u_P3C3R, planar<3>(pSrc, srcStep), interleaved(pDst, dstStep),
                   roiSize);
}
