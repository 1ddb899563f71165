/* SPDX-License-Identifier: MIT */
/*
 * RGB and YUV: 8-bit R'G'B' to and from the Y'UV of analogue television, with the luma weights of ITU-R BT.601 (0.299,
 * 0.587, 0.114) and full-range luma:
 *   Y = 0.299 R + 0.587 G + 0.114 B,  U = 0.492 (B - Y) + 128,  V = 0.877 (R - Y) + 128
 *   R = Y + 1.140 (V - 128),  G = Y - 0.394 (U - 128) - 0.581 (V - 128),  B = Y + 2.032 (U - 128)
 * all in 0..255; U stays within 16..239, V saturates. Fixed point, rounded down, unless a function says otherwise.
 * Channel (or plane) 0 is R, Y, or in BGR images B. At 4:4:4 one step serves all planes of an image. Steps are not
 * checked. All functions run on the calling thread.
 *
 * 4:2:2: two neighbouring pixels of a row share one U and one V. C2 is packed Y0 U Y1 V; the chroma planes of P3 are
 * width / 2 (rounded down) by height.
 *
 * 4:2:0, planar: the four pixels of a 2 x 2 block share one U and one V; the chroma planes are width / 2 by height / 2.
 * An odd last column or row is neither read nor written; the result is then zorStatusOddSize instead of zorStatusOk.
 *
 * Names, images and statuses in general: zorcc.h.
 */
#ifndef ZORCC_YUV_H
#define ZORCC_YUV_H

#include "zorcc/types.h"

/* RGB to 4:4:4. AC4P4: plane 3 receives the alpha of every source pixel. */
ZOR_API ZorStatus zoriRGBToYUV_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYUV_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYUV_8u_AC4P4R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[4], int dstStep,
                                         ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYUV_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep,
                                        ZorSize roiSize);

/*
 * RGB to 4:4:4, planes to planes, by a matrix:
 *   U = -0.147 R - 0.289 G + 0.436 B + 128,  V = 0.615 R - 0.515 G - 0.100 B + 128
 * In the first 16 * (width / 16) pixels of a row each weighted term of Y is rounded down to 1/256 before they are
 * added; in the other pixels only the sum is rounded. Y can differ by one between the two.
 */
ZOR_API ZorStatus zoriRGBToYUV_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3], int dstStep,
                                      ZorSize roiSize);

/* 4:4:4 to RGB. The planar sources use coefficients that are 1/65536 below those of all other sources. */
ZOR_API ZorStatus zoriYUVToRGB_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYUVToRGB_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYUVToRGB_8u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                        ZorSize roiSize);
ZOR_API ZorStatus zoriYUVToRGB_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3], int dstStep,
                                      ZorSize roiSize);

/*
 * RGB to 4:2:2: a pair of pixels gets the mean of its U and V. An odd last pixel adds its Y and its own U to a packed
 * row, and its Y alone to planes.
 */
ZOR_API ZorStatus zoriRGBToYUV422_8u_C3C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                           ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYUV422_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                           const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYUV422_8u_C3P3(const uint8_t* pSrc, uint8_t* const pDst[3], ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYUV422_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3],
                                         const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYUV422_8u_P3(const uint8_t* const pSrc[3], uint8_t* const pDst[3], ZorSize roiSize);

/*
 * 16-bit 5-6-5 pixels to planar 4:2:2: R in bits 4..0, G in bits 10..5, B in bits 15..11, each moved to the top of a
 * byte with zeros below, so that white is (248, 252, 248).
 */
ZOR_API ZorStatus zoriRGB565ToYUV422_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                 const int dstStep[3], ZorSize roiSize);

/*
 * 4:2:2 to RGB: both pixels of a pair take the pair's U and V. An odd last pixel takes its own U and the V of the pair
 * before it from a packed row (width 1: its U for both), the last U and V of the row from planes (width 1: 128).
 */
ZOR_API ZorStatus zoriYUV422ToRGB_8u_C2C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                           ZorSize roiSize);
ZOR_API ZorStatus zoriYUV422ToRGB_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                           int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYUV422ToRGB_8u_P3C3(const uint8_t* const pSrc[3], uint8_t* pDst, ZorSize roiSize);
ZOR_API ZorStatus zoriYUV422ToRGB_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                         int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYUV422ToRGB_8u_P3(const uint8_t* const pSrc[3], uint8_t* const pDst[3], ZorSize roiSize);

/* The same, rounded to nearest; despite the name the fourth byte of every pixel is written: 0. */
ZOR_API ZorStatus zoriYUV422ToRGB_8u_P3AC4R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                            int dstStep, ZorSize roiSize);

/* RGB or BGR to 4:2:0: a block gets the mean of the U and V of its pixels. */
ZOR_API ZorStatus zoriRGBToYUV420_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                           const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYUV420_8u_C3P3(const uint8_t* pSrc, uint8_t* const pDst[3], ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYUV420_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3],
                                         const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYUV420_8u_P3(const uint8_t* const pSrc[3], uint8_t* const pDst[3], ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToYUV420_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                            const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriRGB565ToYUV420_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                 const int dstStep[3], ZorSize roiSize);

/* 4:2:0 to RGB or BGR: the four pixels of a block take its U and V. */
ZOR_API ZorStatus zoriYUV420ToRGB_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                           int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYUV420ToRGB_8u_P3C3(const uint8_t* const pSrc[3], uint8_t* pDst, ZorSize roiSize);
ZOR_API ZorStatus zoriYUV420ToRGB_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                         int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYUV420ToRGB_8u_P3(const uint8_t* const pSrc[3], uint8_t* const pDst[3], ZorSize roiSize);
ZOR_API ZorStatus zoriYUV420ToBGR_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                           int dstStep, ZorSize roiSize);

/* The same, rounded to nearest; despite the name the fourth byte of every pixel is written: 0. */
ZOR_API ZorStatus zoriYUV420ToRGB_8u_P3AC4R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                            int dstStep, ZorSize roiSize);

#endif
