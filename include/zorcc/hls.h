/* SPDX-License-Identifier: MIT */
/*
 * RGB and HLS, interleaved: R'G'B' to and from the hexcone model of hue, lightness and saturation. With R, G, B in
 * 0..1, M the largest and m the smallest of them, d = M - m:
 *   H = 60 (G - B) / d if R = M, or else 120 + 60 (B - R) / d if G = M, or else 240 + 60 (R - G) / d, in degrees; 360
 *       more if that is negative
 *   L = (M + m) / 2,  S = d / (M + m) up to L = 1/2 and d / (2 - (M + m)) above
 * Grey (d = 0; 32f: d not above 2^-23) has H = S = 0. Where S is 0, R, G and B are copies of L.
 *
 * Ranges: 8u R, G, B, L, S in 0..255, hue in degrees * 255 / 360; 16u the same with 65535; 16s as 16u, every sample
 * less 32768; 32f R, G, B, L, S in 0..1, hue in degrees / 360, nothing is clamped. Channels stand in the order of their
 * names: H, L, S. Single precision, every operation rounded as IEEE 754 says, so that integer results, too, are the
 * same everywhere; they are truncated.
 *
 * Steps are not checked. Images above 4096 pixels are converted on ownGetNumThreads() threads, except inside a parallel
 * region of the caller.
 *
 * Names, images and statuses in general: zorcc.h.
 */
#ifndef ZORCC_HLS_H
#define ZORCC_HLS_H

#include "zorcc/types.h"

/* RGB or BGR to HLS. */
ZOR_API ZorStatus zoriRGBToHLS_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToHLS_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToHLS_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToHLS_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                        ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToHLS_16s_C3R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToHLS_16s_AC4R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToHLS_32f_C3R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToHLS_32f_AC4R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToHLS_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);

/* HLS to RGB. */
ZOR_API ZorStatus zoriHLSToRGB_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriHLSToRGB_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriHLSToRGB_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriHLSToRGB_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                        ZorSize roiSize);
ZOR_API ZorStatus zoriHLSToRGB_16s_C3R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriHLSToRGB_16s_AC4R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriHLSToRGB_32f_C3R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriHLSToRGB_32f_AC4R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize);

#endif
