/* SPDX-License-Identifier: MIT */
/*
 * YCoCg: R'G'B' to and from luma, orange chroma and green chroma in three planes, by shifts alone:
 *   plain          Y = (R + 2 G + B + 2) >> 2, Co = (R - B + 1) >> 1, Cg = (2 G - R - B + 2) >> 2
 *                  R = Y + Co - Cg, G = Y + Cg, B = Y - Co - Cg
 *   reversible     Co = R - B, t = B + (Co >> 1), Cg = G - t, Y = t + (Cg >> 1)
 *   (Rev)          t = Y - (Cg >> 1), G = Cg + t, B = t - (Co >> 1), R = B + Co
 * The plain form comes back within 1; the reversible one exactly. One step serves all three planes. C4 sources: the
 * fourth sample is ignored; C4 destinations: it is `aval`. SBGR pixels are signed.
 *
 *   8u16s, 16s8u   bytes and 16-bit planes; back to bytes sums are cut to 16 bits and saturate
 *   16s            all results modulo 2^16; every step of the reversible form wraps, and it comes back exactly
 *   16s32s, 32s16s planes that hold every result; back to 16 bits the low 16 bits
 *   8u             Co and Cg plus 128, saturated
 *
 * Pointers are checked, those of planes included; steps are not, and a width or height below 1 converts nothing and
 * gives zorStatusOk. All functions run on the calling thread.
 *
 * Names, images and statuses in general: zorcc.h.
 */
#ifndef ZORCC_YCOCG_H
#define ZORCC_YCOCG_H

#include "zorcc/types.h"

/* Plain, to planes. */
ZOR_API ZorStatus zoriBGRToYCoCg_8u16s_C3P3R(const uint8_t* pSrc, int srcStep, int16_t* const pDst[3], int dstStep,
                                             ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToYCoCg_8u16s_C4P3R(const uint8_t* pSrc, int srcStep, int16_t* const pDst[3], int dstStep,
                                             ZorSize roiSize);
ZOR_API ZorStatus zoriSBGRToYCoCg_16s_C3P3R(const int16_t* pSrc, int srcStep, int16_t* const pDst[3], int dstStep,
                                            ZorSize roiSize);
ZOR_API ZorStatus zoriSBGRToYCoCg_16s_C4P3R(const int16_t* pSrc, int srcStep, int16_t* const pDst[3], int dstStep,
                                            ZorSize roiSize);
ZOR_API ZorStatus zoriSBGRToYCoCg_16s32s_C3P3R(const int16_t* pSrc, int srcStep, int32_t* const pDst[3], int dstStep,
                                               ZorSize roiSize);
ZOR_API ZorStatus zoriSBGRToYCoCg_16s32s_C4P3R(const int16_t* pSrc, int srcStep, int32_t* const pDst[3], int dstStep,
                                               ZorSize roiSize);

/* Reversible, to planes. */
ZOR_API ZorStatus zoriBGRToYCoCg_Rev_8u16s_C3P3R(const uint8_t* pSrc, int srcStep, int16_t* const pDst[3], int dstStep,
                                                 ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToYCoCg_Rev_8u16s_C4P3R(const uint8_t* pSrc, int srcStep, int16_t* const pDst[3], int dstStep,
                                                 ZorSize roiSize);
ZOR_API ZorStatus zoriSBGRToYCoCg_Rev_16s_C3P3R(const int16_t* pSrc, int srcStep, int16_t* const pDst[3], int dstStep,
                                                ZorSize roiSize);
ZOR_API ZorStatus zoriSBGRToYCoCg_Rev_16s_C4P3R(const int16_t* pSrc, int srcStep, int16_t* const pDst[3], int dstStep,
                                                ZorSize roiSize);
ZOR_API ZorStatus zoriSBGRToYCoCg_Rev_16s32s_C3P3R(const int16_t* pSrc, int srcStep, int32_t* const pDst[3],
                                                   int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriSBGRToYCoCg_Rev_16s32s_C4P3R(const int16_t* pSrc, int srcStep, int32_t* const pDst[3],
                                                   int dstStep, ZorSize roiSize);

/* Plain, from planes. */
ZOR_API ZorStatus zoriYCoCgToBGR_16s8u_P3C3R(const int16_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                             ZorSize roiSize);
ZOR_API ZorStatus zoriYCoCgToBGR_16s8u_P3C4R(const int16_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                             ZorSize roiSize, uint8_t aval);
ZOR_API ZorStatus zoriYCoCgToSBGR_16s_P3C3R(const int16_t* const pSrc[3], int srcStep, int16_t* pDst, int dstStep,
                                            ZorSize roiSize);
ZOR_API ZorStatus zoriYCoCgToSBGR_16s_P3C4R(const int16_t* const pSrc[3], int srcStep, int16_t* pDst, int dstStep,
                                            ZorSize roiSize, int16_t aval);
ZOR_API ZorStatus zoriYCoCgToSBGR_32s16s_P3C3R(const int32_t* const pSrc[3], int srcStep, int16_t* pDst, int dstStep,
                                               ZorSize roiSize);
ZOR_API ZorStatus zoriYCoCgToSBGR_32s16s_P3C4R(const int32_t* const pSrc[3], int srcStep, int16_t* pDst, int dstStep,
                                               ZorSize roiSize, int16_t aval);

/* Reversible, from planes. */
ZOR_API ZorStatus zoriYCoCgToBGR_Rev_16s8u_P3C3R(const int16_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                                 ZorSize roiSize);
ZOR_API ZorStatus zoriYCoCgToBGR_Rev_16s8u_P3C4R(const int16_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                                 ZorSize roiSize, uint8_t aval);
ZOR_API ZorStatus zoriYCoCgToSBGR_Rev_16s_P3C3R(const int16_t* const pSrc[3], int srcStep, int16_t* pDst, int dstStep,
                                                ZorSize roiSize);
ZOR_API ZorStatus zoriYCoCgToSBGR_Rev_16s_P3C4R(const int16_t* const pSrc[3], int srcStep, int16_t* pDst, int dstStep,
                                                ZorSize roiSize, int16_t aval);
ZOR_API ZorStatus zoriYCoCgToSBGR_Rev_32s16s_P3C3R(const int32_t* const pSrc[3], int srcStep, int16_t* pDst,
                                                   int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCoCgToSBGR_Rev_32s16s_P3C4R(const int32_t* const pSrc[3], int srcStep, int16_t* pDst,
                                                   int dstStep, ZorSize roiSize, int16_t aval);

/* Bytes with chroma around 128. */
ZOR_API ZorStatus zoriRGBToYCoCg_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep,
                                          ZorSize roiSize);
ZOR_API ZorStatus zoriYCoCgToRGB_8u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                          ZorSize roiSize);

#endif
