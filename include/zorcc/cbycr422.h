/* SPDX-License-Identifier: MIT */
/*
 * RGB and packed 4:2:2 with chroma before luma, or with Cr before Cb, by ITU-R BT.601 in studio range (bt601.h has the
 * matrix): two neighbouring pixels of a row share one Cb and one Cr. CbYCr images hold Cb Y0 Cr Y1 for a pair, YCrCb
 * images Y0 Cr Y1 Cb; a row has 2 * width bytes. RGB and BGR images hold their channels in the order of their name, AC4
 * a fourth byte that is not looked at; C4: the fourth byte of every pixel is `aval`.
 *
 * An odd last pixel of a row adds its Y and the chroma sample beside it, formed from the pixel alone, to the row; to
 * RGB it takes that sample and, for the other, the one of the pair before it (width 1: its own for both). All results
 * saturate. Steps are not checked unless stated. All functions run on the calling thread.
 *
 * Names, images and statuses in general: zorcc.h.
 */
#ifndef ZORCC_CBYCR422_H
#define ZORCC_CBYCR422_H

#include "zorcc/types.h"

/*
 * RGB to Cb Y0 Cr Y1. The chroma of a pair is sited on its first pixel: 1/2 of it and 1/4 each of its neighbours; the
 * pixel before a row counts as grey. All is calculated with 15-bit coefficients. The Gamma form takes linear light and
 * first applies the transfer curve of ITU-R BT.709 to R, G and B (4.5 x below 0.018, else 1.099 x^0.45 - 0.099, to the
 * nearest of 256 levels, ties to even); after the size it refuses steps below 1 with zorStatusBadStep.
 */
ZOR_API ZorStatus zoriRGBToCbYCr422_8u_C3C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                             ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToCbYCr422Gamma_8u_C3C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                                  ZorSize roiSize);

/*
 * BGR to Cb Y0 Cr Y1: the chroma of a pair is the mean of its pixels, Cr rounded with a constant 1/65536 lower. An odd
 * last pixel is converted as if its bytes were R, G, B.
 */
ZOR_API ZorStatus zoriBGRToCbYCr422_8u_AC4C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                              ZorSize roiSize);

/* Cb Y0 Cr Y1 to BGR and RGB, rounded to nearest. */
ZOR_API ZorStatus zoriCbYCr422ToBGR_8u_C2C4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                             ZorSize roiSize, uint8_t aval);
ZOR_API ZorStatus zoriCbYCr422ToRGB_8u_C2C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                             ZorSize roiSize);

/*
 * RGB to Y0 Cr Y1 Cb: the chroma of a pair is the mean of its pixels. After the last whole four pixels of a row the
 * luma of the second pixel of a pair is rounded down. One step serves all source planes of P3.
 */
ZOR_API ZorStatus zoriRGBToYCrCb422_8u_C3C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                             ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYCrCb422_8u_P3C2R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                             ZorSize roiSize);

/* Y0 Cr Y1 Cb to RGB, rounded down. One step serves all destination planes of P3. */
ZOR_API ZorStatus zoriYCrCb422ToRGB_8u_C2C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                             ZorSize roiSize);
ZOR_API ZorStatus zoriYCrCb422ToRGB_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep,
                                             ZorSize roiSize);

#endif
