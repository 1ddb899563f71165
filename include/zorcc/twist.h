/* SPDX-License-Identifier: MIT */
/*
 * Colour twist: every pixel times a matrix of the caller's. Row k of a 3 x 4 matrix makes channel k of the channels
 * c0, c1, c2 in the order of memory, whatever they mean, and of a constant; in single precision, in this order:
 *   8u, 8s, 16u, 16s  (t[k][3] + t[k][0] c0) + (t[k][2] c2 + t[k][1] c1), rounded to nearest, ties to even, and
 *                     saturated to the type. NaN, of a matrix with infinities or NaN, gives the least sample
 *   32f               ((t[k][3] + t[k][0] c0) + t[k][1] c1) + t[k][2] c2, nothing saturated
 *   32f C4            a 4 x 4 matrix: ((t[k][0] c0 + t[k][1] c1) + t[k][2] c2) + t[k][3] c3
 * The fourth channel of AC4 stays as it is. Forms with I convert one image in place; the others may, too. The caller's
 * rounding mode makes no difference and is the same after the call. Calls run on one thread.
 *
 * Statuses, in this order:
 *   zorStatusNullPointer  the source or its array, one of its planes, the destination likewise, or the matrix is null
 *   zorStatusBadSize      width or height is below 1
 *   zorStatusBadStep      a step is below 1
 *   zorStatusOk
 *
 * Names and images in general: zorcc.h.
 */
#ifndef ZORCC_TWIST_H
#define ZORCC_TWIST_H

#include "zorcc/types.h"

ZOR_API ZorStatus zoriColorTwist32f_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                           ZorSize roiSize, const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist32f_8u_C3IR(uint8_t* pSrcDst, int srcDstStep, ZorSize roiSize, const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist32f_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                            ZorSize roiSize, const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist32f_8u_AC4IR(uint8_t* pSrcDst, int srcDstStep, ZorSize roiSize,
                                             const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist32f_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3],
                                           int dstStep, ZorSize roiSize, const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist32f_8u_IP3R(uint8_t* const pSrcDst[3], int srcDstStep, ZorSize roiSize,
                                            const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist32f_8s_C3R(const int8_t* pSrc, int srcStep, int8_t* pDst, int dstStep, ZorSize roiSize,
                                           const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist32f_8s_C3IR(int8_t* pSrcDst, int srcDstStep, ZorSize roiSize, const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist32f_8s_AC4R(const int8_t* pSrc, int srcStep, int8_t* pDst, int dstStep, ZorSize roiSize,
                                            const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist32f_8s_AC4IR(int8_t* pSrcDst, int srcDstStep, ZorSize roiSize, const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist32f_8s_P3R(const int8_t* const pSrc[3], int srcStep, int8_t* const pDst[3], int dstStep,
                                           ZorSize roiSize, const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist32f_8s_IP3R(int8_t* const pSrcDst[3], int srcDstStep, ZorSize roiSize,
                                            const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist32f_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                            ZorSize roiSize, const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist32f_16u_C3IR(uint16_t* pSrcDst, int srcDstStep, ZorSize roiSize,
                                             const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist32f_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                             ZorSize roiSize, const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist32f_16u_AC4IR(uint16_t* pSrcDst, int srcDstStep, ZorSize roiSize,
                                              const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist32f_16u_P3R(const uint16_t* const pSrc[3], int srcStep, uint16_t* const pDst[3],
                                            int dstStep, ZorSize roiSize, const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist32f_16u_IP3R(uint16_t* const pSrcDst[3], int srcDstStep, ZorSize roiSize,
                                             const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist32f_16s_C3R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep,
                                            ZorSize roiSize, const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist32f_16s_C3IR(int16_t* pSrcDst, int srcDstStep, ZorSize roiSize,
                                             const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist32f_16s_AC4R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep,
                                             ZorSize roiSize, const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist32f_16s_AC4IR(int16_t* pSrcDst, int srcDstStep, ZorSize roiSize,
                                              const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist32f_16s_P3R(const int16_t* const pSrc[3], int srcStep, int16_t* const pDst[3],
                                            int dstStep, ZorSize roiSize, const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist32f_16s_IP3R(int16_t* const pSrcDst[3], int srcDstStep, ZorSize roiSize,
                                             const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist_32f_C3R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize,
                                         const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist_32f_C3IR(float* pSrcDst, int srcDstStep, ZorSize roiSize, const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist_32f_AC4R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize,
                                          const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist_32f_AC4IR(float* pSrcDst, int srcDstStep, ZorSize roiSize, const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist_32f_P3R(const float* const pSrc[3], int srcStep, float* const pDst[3], int dstStep,
                                         ZorSize roiSize, const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist_32f_IP3R(float* const pSrcDst[3], int srcDstStep, ZorSize roiSize,
                                          const float twist[3][4]);
ZOR_API ZorStatus zoriColorTwist_32f_C4R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize,
                                         const float twist[4][4]);

#endif
