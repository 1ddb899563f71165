/* SPDX-License-Identifier: MIT */
/*
 * Grey of colour: a weighted sum of three channels. RGBToGray has the weights of ITU-R BT.601 luma, 0.299, 0.587 and
 * 0.114, for channels in the order R, G, B; ColorToGray has the caller's, in the order of memory, or those for a null
 * pointer. Weights are meant to be 0 or more, with a sum of at most 1. A fourth channel (AC4) is ignored.
 *   8u        weights are rounded to 1/4096, which makes them 1225, 2404 and 467; the sum is rounded, a half upwards.
 *             Of other weights than those meant, the lower 16 bits count; a sum above 255 becomes 255
 *   16u, 16s  single precision, each product and sum in the order of the channels; rounded to nearest, ties to even,
 *             and saturated. 16s counts from -32768. NaN, of weights that are no numbers, gives the least sample
 *   32f       single precision, in the same order, nothing saturated
 * The caller's rounding mode makes no difference. Steps of 32f images are rounded to whole floats towards zero. Calls
 * run on one thread.
 *
 * Names, images and statuses: zorcc.h. Steps are not checked.
 */
#ifndef ZORCC_GRAY_H
#define ZORCC_GRAY_H

#include "zorcc/types.h"

ZOR_API ZorStatus zoriRGBToGray_8u_C3C1R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToGray_8u_AC4C1R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                          ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToGray_16u_C3C1R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                          ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToGray_16u_AC4C1R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                           ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToGray_16s_C3C1R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep,
                                          ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToGray_16s_AC4C1R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep,
                                           ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToGray_32f_C3C1R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToGray_32f_AC4C1R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriColorToGray_8u_C3C1R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                           ZorSize roiSize, const float coeffs[3]);
ZOR_API ZorStatus zoriColorToGray_8u_AC4C1R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                            ZorSize roiSize, const float coeffs[3]);
ZOR_API ZorStatus zoriColorToGray_16u_C3C1R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                            ZorSize roiSize, const float coeffs[3]);
ZOR_API ZorStatus zoriColorToGray_16u_AC4C1R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                             ZorSize roiSize, const float coeffs[3]);
ZOR_API ZorStatus zoriColorToGray_16s_C3C1R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep,
                                            ZorSize roiSize, const float coeffs[3]);
ZOR_API ZorStatus zoriColorToGray_16s_AC4C1R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep,
                                             ZorSize roiSize, const float coeffs[3]);
ZOR_API ZorStatus zoriColorToGray_32f_C3C1R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize,
                                            const float coeffs[3]);
ZOR_API ZorStatus zoriColorToGray_32f_AC4C1R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize,
                                             const float coeffs[3]);

#endif
