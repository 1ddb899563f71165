// SPDX-License-Identifier: MIT
// Exported RGB and HLS conversions of interleaved images.
#include "zorcc/hls.h"
#include "colormodels/hls_rows.h"

using namespace zorcc;

static constexpr auto& rows = hlsRows;

ZorStatus zoriRGBToHLS_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToHLS_8u_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToHLS_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToHLS_8u_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToHLS_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToHLS_16u_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToHLS_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToHLS_16u_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToHLS_16s_C3R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToHLS_16s_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToHLS_16s_AC4R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToHLS_16s_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToHLS_32f_C3R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToHLS_32f_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriRGBToHLS_32f_AC4R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myRGBToHLS_32f_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriHLSToRGB_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myHLSToRGB_8u_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriHLSToRGB_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myHLSToRGB_8u_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriHLSToRGB_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myHLSToRGB_16u_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriHLSToRGB_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myHLSToRGB_16u_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriHLSToRGB_16s_C3R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myHLSToRGB_16s_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriHLSToRGB_16s_AC4R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myHLSToRGB_16s_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriHLSToRGB_32f_C3R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myHLSToRGB_32f_C3R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriHLSToRGB_32f_AC4R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myHLSToRGB_32f_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}

ZorStatus zoriBGRToHLS_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize)
{
    return convert(rows().myBGRToHLS_8u_AC4R, interleaved(pSrc, srcStep), interleaved(pDst, dstStep), roiSize);
}
