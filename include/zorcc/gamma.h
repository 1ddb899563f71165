/* SPDX-License-Identifier: MIT */
/*
 * Gamma correction by the transfer curve of ITU-R BT.709, from linear intensities x (GammaFwd) and back (GammaInv):
 *   forward  4.5 x below 0.018, otherwise 1.099 x^0.45 - 0.099
 *   inverse  x / 4.5 below 0.0812, otherwise ((x + 0.099) / 1.099)^(1 / 0.45)
 * in double precision, for x from 0 to 1. The inverse changes over at 0.0812, not at 4.5 * 0.018.
 *   8u, 16u  0..255 and 0..65535 stand for 0..1; rounded to nearest, ties to even (in 16u of the value after it is
 *            rounded to single precision)
 *   32f      vMin..vMax stands for 0..1; values beyond it go by the same formulas, those below vMin by the linear one.
 *            Results are within one unit in the last place of the exact ones, but where adding vMin cancels digits; NaN
 *            stays NaN
 * The power function is this library's own: the same bytes on every processor. The fourth channel of AC4 stays as it
 * is. Forms with I convert one image in place; the others may, too. The caller's rounding mode makes no difference.
 * Calls run on one thread.
 *
 * Statuses, in this order:
 *   zorStatusBadRange     32f: vMax - vMin is not greater than 0, or NaN
 *   zorStatusNullPointer  the source or its array, one of its planes, or the destination likewise, is null
 *   zorStatusBadSize      width or height is below 1
 *   zorStatusBadStep      a step is below 1
 *   zorStatusNoMemory     16u images of more than 65536 samples: there is none for a table of 128 KiB
 *   zorStatusOk
 *
 * Names and images in general: zorcc.h.
 */
#ifndef ZORCC_GAMMA_H
#define ZORCC_GAMMA_H

#include "zorcc/types.h"

ZOR_API ZorStatus zoriGammaFwd_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriGammaFwd_8u_C3IR(uint8_t* pSrcDst, int srcDstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriGammaFwd_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriGammaFwd_8u_AC4IR(uint8_t* pSrcDst, int srcDstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriGammaFwd_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3], int dstStep,
                                      ZorSize roiSize);
ZOR_API ZorStatus zoriGammaFwd_8u_IP3R(uint8_t* const pSrcDst[3], int srcDstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriGammaFwd_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriGammaFwd_16u_C3IR(uint16_t* pSrcDst, int srcDstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriGammaFwd_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                        ZorSize roiSize);
ZOR_API ZorStatus zoriGammaFwd_16u_AC4IR(uint16_t* pSrcDst, int srcDstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriGammaFwd_16u_P3R(const uint16_t* const pSrc[3], int srcStep, uint16_t* const pDst[3], int dstStep,
                                       ZorSize roiSize);
ZOR_API ZorStatus zoriGammaFwd_16u_IP3R(uint16_t* const pSrcDst[3], int srcDstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriGammaFwd_32f_C3R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize,
                                       float vMin, float vMax);
ZOR_API ZorStatus zoriGammaFwd_32f_C3IR(float* pSrcDst, int srcDstStep, ZorSize roiSize, float vMin, float vMax);
ZOR_API ZorStatus zoriGammaFwd_32f_AC4R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize,
                                        float vMin, float vMax);
ZOR_API ZorStatus zoriGammaFwd_32f_AC4IR(float* pSrcDst, int srcDstStep, ZorSize roiSize, float vMin, float vMax);
ZOR_API ZorStatus zoriGammaFwd_32f_P3R(const float* const pSrc[3], int srcStep, float* const pDst[3], int dstStep,
                                       ZorSize roiSize, float vMin, float vMax);
ZOR_API ZorStatus zoriGammaFwd_32f_IP3R(float* const pSrcDst[3], int srcDstStep, ZorSize roiSize, float vMin,
                                        float vMax);
ZOR_API ZorStatus zoriGammaInv_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriGammaInv_8u_C3IR(uint8_t* pSrcDst, int srcDstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriGammaInv_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriGammaInv_8u_AC4IR(uint8_t* pSrcDst, int srcDstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriGammaInv_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3], int dstStep,
                                      ZorSize roiSize);
ZOR_API ZorStatus zoriGammaInv_8u_IP3R(uint8_t* const pSrcDst[3], int srcDstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriGammaInv_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriGammaInv_16u_C3IR(uint16_t* pSrcDst, int srcDstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriGammaInv_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                        ZorSize roiSize);
ZOR_API ZorStatus zoriGammaInv_16u_AC4IR(uint16_t* pSrcDst, int srcDstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriGammaInv_16u_P3R(const uint16_t* const pSrc[3], int srcStep, uint16_t* const pDst[3], int dstStep,
                                       ZorSize roiSize);
ZOR_API ZorStatus zoriGammaInv_16u_IP3R(uint16_t* const pSrcDst[3], int srcDstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriGammaInv_32f_C3R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize,
                                       float vMin, float vMax);
ZOR_API ZorStatus zoriGammaInv_32f_C3IR(float* pSrcDst, int srcDstStep, ZorSize roiSize, float vMin, float vMax);
ZOR_API ZorStatus zoriGammaInv_32f_AC4R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize,
                                        float vMin, float vMax);
ZOR_API ZorStatus zoriGammaInv_32f_AC4IR(float* pSrcDst, int srcDstStep, ZorSize roiSize, float vMin, float vMax);
ZOR_API ZorStatus zoriGammaInv_32f_P3R(const float* const pSrc[3], int srcStep, float* const pDst[3], int dstStep,
                                       ZorSize roiSize, float vMin, float vMax);
ZOR_API ZorStatus zoriGammaInv_32f_IP3R(float* const pSrcDst[3], int srcDstStep, ZorSize roiSize, float vMin,
                                        float vMax);

#endif
