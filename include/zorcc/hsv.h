/* SPDX-License-Identifier: MIT */
/*
 * RGB and HSV: R'G'B' to and from the hexcone model of hue, saturation and value. Hue as in zorcc/hls.h; with M the
 * largest and m the smallest of R, G, B: V = M, S = (M - m) / M. Grey has H = S = 0.
 *
 * Ranges: 8u R, G, B, S, V in 0..255, hue in degrees * 255 / 360; 16u the same with 65535. Channels stand in the order
 * of their names: H, S, V. Results are computed in single precision, every operation rounded as IEEE 754 says, and
 * rounded to nearest, ties to even.
 *
 * Steps are not checked. Images above 4096 pixels are converted on ownGetNumThreads() threads, except inside a parallel
 * region of the caller.
 *
 * Names, images and statuses in general: zorcc.h.
 */
#ifndef ZORCC_HSV_H
#define ZORCC_HSV_H

#include "zorcc/types.h"

/*
 * RGB to HSV. 8u: in the first 4 * (width / 4) pixels of a row hue and saturation are truncated instead, so that they
 * can be less by one than in the others.
 */
ZOR_API ZorStatus zoriRGBToHSV_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToHSV_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToHSV_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToHSV_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                        ZorSize roiSize);

/* HSV to RGB. The greatest hue is taken for hue 0. */
ZOR_API ZorStatus zoriHSVToRGB_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriHSVToRGB_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriHSVToRGB_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriHSVToRGB_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                        ZorSize roiSize);

#endif
