// SPDX-License-Identifier: MIT
// Exported conversions between linear RGB and CIE XYZ.
#include "zorcc/xyz.h"
#include "colormodels/xyz_rows.h"

using namespace zorcc;

static constexpr auto& rows = xyzRows;

ZorStatus zoriRGBToXYZ_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToXYZ_8u_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToXYZ_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToXYZ_8u_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToXYZ_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToXYZ_16u_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToXYZ_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToXYZ_16u_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToXYZ_16s_C3R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToXYZ_16s_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToXYZ_16s_AC4R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToXYZ_16s_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToXYZ_32f_C3R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToXYZ_32f_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToXYZ_32f_AC4R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToXYZ_32f_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriXYZToRGB_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myXYZToRGB_8u_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriXYZToRGB_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myXYZToRGB_8u_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriXYZToRGB_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myXYZToRGB_16u_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriXYZToRGB_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myXYZToRGB_16u_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriXYZToRGB_16s_C3R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myXYZToRGB_16s_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriXYZToRGB_16s_AC4R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myXYZToRGB_16s_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriXYZToRGB_32f_C3R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myXYZToRGB_32f_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriXYZToRGB_32f_AC4R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myXYZToRGB_32f_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}
