// SPDX-License-Identifier: MIT
// Exported conversions between linear RGB and CIE L*u*v*.
#include "zorcc/luv.h"
#include "colormodels/luv_rows.h"

using namespace zorcc;

static constexpr auto& rows = luvRows;

ZorStatus zoriRGBToLUV_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToLUV_8u_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToLUV_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToLUV_8u_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToLUV_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToLUV_16u_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToLUV_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToLUV_16u_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToLUV_16s_C3R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToLUV_16s_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToLUV_16s_AC4R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToLUV_16s_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToLUV_32f_C3R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToLUV_32f_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToLUV_32f_AC4R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToLUV_32f_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriLUVToRGB_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myLUVToRGB_8u_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriLUVToRGB_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myLUVToRGB_8u_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriLUVToRGB_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myLUVToRGB_16u_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriLUVToRGB_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myLUVToRGB_16u_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriLUVToRGB_16s_C3R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myLUVToRGB_16s_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriLUVToRGB_16s_AC4R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myLUVToRGB_16s_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriLUVToRGB_32f_C3R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myLUVToRGB_32f_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriLUVToRGB_32f_AC4R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myLUVToRGB_32f_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}
