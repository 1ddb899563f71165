// SPDX-License-Identifier: MIT
// Exported bit-depth reductions.
#include "zorcc/reduce.h"
#include "reduce/methods.h"

using namespace zorcc;
using enum ReduceLayout;

ZorStatus zoriReduceBits_8u_C1R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my8u, C1, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my8u, C3, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_8u_C4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my8u, C4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                 int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my8u, AC4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_16u_C1R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize,
                                 int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my16u, C1, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize,
                                 int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my16u, C3, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_16u_C4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize,
                                 int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my16u, C4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize,
                                  int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my16u, AC4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_16u8u_C1R(const uint16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                   int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my16u8u, C1, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_16u8u_C3R(const uint16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                   int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my16u8u, C3, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_16u8u_C4R(const uint16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                   int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my16u8u, C4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_16u8u_AC4R(const uint16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                    int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my16u8u, AC4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_16s_C1R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize,
                                 int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my16s, C1, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_16s_C3R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize,
                                 int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my16s, C3, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_16s_C4R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize,
                                 int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my16s, C4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_16s_AC4R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize,
                                  int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my16s, AC4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_16s8u_C1R(const int16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                   int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my16s8u, C1, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_16s8u_C3R(const int16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                   int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my16s8u, C3, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_16s8u_C4R(const int16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                   int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my16s8u, C4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_16s8u_AC4R(const int16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                    int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my16s8u, AC4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_32f8u_C1R(const float* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                   int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my32f8u, C1, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_32f8u_C3R(const float* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                   int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my32f8u, C3, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_32f8u_C4R(const float* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                   int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my32f8u, C4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_32f8u_AC4R(const float* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                    int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my32f8u, AC4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_32f16u_C1R(const float* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize,
                                    int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my32f16u, C1, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_32f16u_C3R(const float* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize,
                                    int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my32f16u, C3, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_32f16u_C4R(const float* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize,
                                    int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my32f16u, C4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_32f16u_AC4R(const float* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize,
                                     int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my32f16u, AC4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_32f16s_C1R(const float* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize,
                                    int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my32f16s, C1, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_32f16s_C3R(const float* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize,
                                    int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my32f16s, C3, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_32f16s_C4R(const float* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize,
                                    int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my32f16s, C4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}

ZorStatus zoriReduceBits_32f16s_AC4R(const float* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize,
                                     int noise, ZorDitherMethod method, int levels)
{
    return reduceBits(reduceRows().my32f16s, AC4, pSrc, srcStep, pDst, dstStep, roiSize, noise, method, levels);
}
