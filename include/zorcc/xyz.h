/* SPDX-License-Identifier: MIT */
/*
 * Linear RGB and CIE XYZ: RGB with the primaries of ITU-R BT.709 and white D65 to and from CIE 1931 XYZ. RGB counts as
 * linear: no gamma is removed or applied.
 *
 *   X = 0.412453 R + 0.357580 G + 0.180423 B      R =  3.240479 X - 1.537150 Y - 0.498535 Z
 *   Y = 0.212671 R + 0.715160 G + 0.072169 B      G = -0.969256 X + 1.875991 Y + 0.041556 Z
 *   Z = 0.019334 R + 0.119193 G + 0.950227 B      B =  0.055648 X - 0.204043 Y + 1.057311 Z
 *
 * Ranges: 8u 0..255, 16u 0..65535, 32f 0..1; 16s is the value plus 32768 in 0..65535. White has Z = 1.088754 of the
 * range. Integers saturate; X, Y and Z of 32f are not limited. Channels stand in the order of their names. 16u, 16s and
 * 32f are computed in single precision, every operation rounded as IEEE 754 says, sums from left to right; 16u and 16s
 * are truncated.
 *
 * Steps are not checked. Images above 4096 pixels are converted on ownGetNumThreads() threads, except inside a parallel
 * region of the caller.
 *
 * Names, images and statuses in general: zorcc.h.
 */
#ifndef ZORCC_XYZ_H
#define ZORCC_XYZ_H

#include "zorcc/types.h"

/*
 * Linear RGB to XYZ. 8u: fixed point, rounded down, with weights in units of 1/32768 in the first 8 * (width / 8)
 * pixels of a row and of 1/65536 in the others, so that Y and Z of a colour may be one apart there.
 */
ZOR_API ZorStatus zoriRGBToXYZ_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToXYZ_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToXYZ_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToXYZ_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                        ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToXYZ_16s_C3R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToXYZ_16s_AC4R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToXYZ_32f_C3R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToXYZ_32f_AC4R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize);

/*
 * XYZ to linear RGB. 8u: fixed point with weights in units of 1/8192, rounded down. 32f: limited to 0..1; a channel
 * that is no number becomes 0.
 */
ZOR_API ZorStatus zoriXYZToRGB_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriXYZToRGB_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriXYZToRGB_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriXYZToRGB_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                        ZorSize roiSize);
ZOR_API ZorStatus zoriXYZToRGB_16s_C3R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriXYZToRGB_16s_AC4R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriXYZToRGB_32f_C3R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriXYZToRGB_32f_AC4R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize);

#endif
