/* SPDX-License-Identifier: MIT */
/*
 * Linear RGB and CIE 1976 L*u*v* (LUV): RGB with the primaries of ITU-R BT.709 and white D65. RGB counts as linear: no
 * gamma is removed or applied. With X, Y, Z as in zorcc/xyz.h and white (u'n, v'n) = (0.197839, 0.468342):
 *
 *   L = 116 Y^(1/3) - 16 where Y > 0.008856, otherwise 903.3 Y
 *   u' = 4 X / (X + 15 Y + 3 Z), v' = 9 Y / (X + 15 Y + 3 Z), 0 for black
 *   u = 13 L (u' - u'n), v = 13 L (v' - v'n)
 *
 * Ranges: 32f RGB in 0..1, L in 0..100, u and v as they are. 8u and 16u: RGB over the whole range of the type, L in
 * units of 100 / 255 or 100 / 65535, u + 134 in units of 354 / 255 or 354 / 65535, v + 140 in units of 262 / 255 or
 * 262 / 65535; saturated. 16s is the value plus 32768 of 16u. Channels stand in the order of their names. Results are
 * computed in single precision, every operation rounded as IEEE 754 says; cube roots are within two units in the last
 * place. An infinite channel, or NaN, gives NaN from RGB, and 0 to RGB.
 *
 * Steps are not checked. Images above 4096 pixels are converted on ownGetNumThreads() threads, except inside a parallel
 * region of the caller.
 *
 * Names, images and statuses in general: zorcc.h.
 */
#ifndef ZORCC_LUV_H
#define ZORCC_LUV_H

#include "zorcc/types.h"

/*
 * Linear RGB to LUV. 8u: L is that of Y rounded to a byte or, where that is below 32, to a quarter of one; L is rounded
 * to nearest, and so are u and v, a half up. 16u, 16s: rounded to nearest, ties of L and u to even, of v up.
 */
ZOR_API ZorStatus zoriRGBToLUV_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToLUV_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToLUV_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToLUV_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                        ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToLUV_16s_C3R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToLUV_16s_AC4R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToLUV_32f_C3R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToLUV_32f_AC4R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize);

/*
 * LUV to linear RGB, limited to the range of the type, integers rounded to nearest, ties to even. Where L is below 9e-5
 * all channels are 0. A v' of nearly 0 is raised by 9e-5: where its size is below 1.1920929e-7, of
 * integers 1.1920929e-5.
 */
ZOR_API ZorStatus zoriLUVToRGB_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriLUVToRGB_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriLUVToRGB_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriLUVToRGB_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                        ZorSize roiSize);
ZOR_API ZorStatus zoriLUVToRGB_16s_C3R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriLUVToRGB_16s_AC4R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriLUVToRGB_32f_C3R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriLUVToRGB_32f_AC4R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize);

#endif
