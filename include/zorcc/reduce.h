/* SPDX-License-Identifier: MIT */
/*
 * Bit-depth reduction: quantises the samples of a colour or grey image to `levels` equally spaced values from black to
 * white, and converts them to the destination's sample type (two types joined: source, destination). Black and white
 * are 0 and 255 in 8u, 0 and 65535 in 16u, -32768 and 32767 in 16s, 0 and 1 in 32f; what lies beyond saturates, NaN is
 * black. C4 converts all four channels, AC4 leaves the fourth. With a quantisation step of white / (levels - 1), in
 * single precision:
 *   zorDitherMethodNone     the nearest level, of two the lower one; `noise` has no effect
 *   zorDitherMethodOrdered  the level above where the sample exceeds the level below by more than the threshold of its
 *                           pixel in a 4 x 4 matrix of n / 15 steps, n = 0..15, which all channels of the pixel share
 *   zorDitherMethodFloydSteinberg, zorDitherMethodJarvisJudiceNinke, zorDitherMethodStucki
 *                           the nearest level to the sample plus the errors that its neighbours to the left and above
 *                           have left; every channel separately, every row from left to right. Samples that saturate
 *                           leave no error
 * `noise`, 0..100, moves every threshold by a pseudo-random amount of up to `noise` percent of a step. The amounts
 * are the same in every call: equal input gives equal output.
 *
 * A level's value is rounded down. Where source and destination differ in scale it is level * white / (levels - 1) in
 * integers; where they do not it is computed in single precision and may, for a few values of `levels`, be one
 * less, white as 254.
 *
 * Statuses after the general ones, in this order:
 *   zorStatusNoiseRange     noise is outside 0..100, whatever the method
 *   zorStatusDitherLevels   levels is below 2 or above 256; above 65536 where source and destination have 16 bits
 *   zorStatusOk             for a method that is not in the enumeration; nothing is written
 *   zorStatusNoMemory
 * Steps are not checked. Of ownGetNumThreads() threads each converts a band of rows in ordered dithering, and whole
 * channels in error diffusion; plain quantisation runs on the calling thread.
 *
 * Names, images and statuses in general: zorcc.h.
 */
#ifndef ZORCC_REDUCE_H
#define ZORCC_REDUCE_H

#include "zorcc/types.h"

ZOR_API ZorStatus zoriReduceBits_8u_C1R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                        int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                        int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_8u_C4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                        int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                         int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_16u_C1R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                         ZorSize roiSize, int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                         ZorSize roiSize, int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_16u_C4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                         ZorSize roiSize, int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                          ZorSize roiSize, int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_16u8u_C1R(const uint16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                           ZorSize roiSize, int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_16u8u_C3R(const uint16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                           ZorSize roiSize, int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_16u8u_C4R(const uint16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                           ZorSize roiSize, int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_16u8u_AC4R(const uint16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                            ZorSize roiSize, int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_16s_C1R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize,
                                         int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_16s_C3R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize,
                                         int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_16s_C4R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize,
                                         int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_16s_AC4R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize,
                                          int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_16s8u_C1R(const int16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                           ZorSize roiSize, int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_16s8u_C3R(const int16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                           ZorSize roiSize, int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_16s8u_C4R(const int16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                           ZorSize roiSize, int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_16s8u_AC4R(const int16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                            ZorSize roiSize, int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_32f8u_C1R(const float* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                           int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_32f8u_C3R(const float* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                           int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_32f8u_C4R(const float* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                           int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_32f8u_AC4R(const float* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                            int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_32f16u_C1R(const float* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                            ZorSize roiSize, int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_32f16u_C3R(const float* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                            ZorSize roiSize, int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_32f16u_C4R(const float* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                            ZorSize roiSize, int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_32f16u_AC4R(const float* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                             ZorSize roiSize, int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_32f16s_C1R(const float* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize,
                                            int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_32f16s_C3R(const float* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize,
                                            int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_32f16s_C4R(const float* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize,
                                            int noise, ZorDitherMethod method, int levels);
ZOR_API ZorStatus zoriReduceBits_32f16s_AC4R(const float* pSrc, int srcStep, int16_t* pDst, int dstStep,
                                             ZorSize roiSize, int noise, ZorDitherMethod method, int levels);

#endif
