/* SPDX-License-Identifier: MIT */
/*
 * RGB and PhotoYCC: luma and two colour differences that fit the range of the type.
 *
 *   Y0 = 0.299 R + 0.587 G + 0.114 B (ITU-R BT.601)
 *   Y = 0.7132668 Y0, C1 = 0.4368627 (B - Y0) + 156 / 255, C2 = 0.53192 (R - Y0) + 137 / 255
 *
 *   Y' = 1.3584 Y, C1' = 2.2179 (C1 - 156 / 255), C2' = 1.8215 (C2 - 137 / 255)
 *   R = Y' + C2', G = Y' - 0.194 C1' - 0.509 C2', B = Y' + C1'
 *
 * Ranges: 8u 0..255, 16u 0..65535, 32f 0..1; 16s is the value plus 32768 in 0..65535. Channels stand in the order of
 * their names: Y, C1, C2. Integers saturate. 8u is fixed point, rounded down. 16u, 16s and 32f are computed in single
 * precision, every operation rounded as IEEE 754 says; 16u and 16s are raised by 0.49999 and truncated.
 *
 * Steps are not checked. Images above 4096 pixels are converted on ownGetNumThreads() threads, except inside a parallel
 * region of the caller.
 *
 * Names, images and statuses in general: zorcc.h.
 */
#ifndef ZORCC_PHOTOYCC_H
#define ZORCC_PHOTOYCC_H

#include "zorcc/types.h"

/* RGB to PhotoYCC. 32f is not limited. */
ZOR_API ZorStatus zoriRGBToYCC_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYCC_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYCC_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYCC_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                        ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYCC_16s_C3R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYCC_16s_AC4R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYCC_32f_C3R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYCC_32f_AC4R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize);

/* PhotoYCC to RGB. 32f: limited to 0..1; a channel that is no number becomes 0. */
ZOR_API ZorStatus zoriYCCToRGB_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCCToRGB_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCCToRGB_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCCToRGB_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                        ZorSize roiSize);
ZOR_API ZorStatus zoriYCCToRGB_16s_C3R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCCToRGB_16s_AC4R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCCToRGB_32f_C3R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCCToRGB_32f_AC4R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize);

#endif
