/* SPDX-License-Identifier: MIT */
/*
 * BGR and YCbCr (ITU-R BT.709), 8 bits. 709CSC is studio range (Y 16..235, Cb and Cr 16..240):
 *   Y  =  0.183 R + 0.614 G + 0.062 B + 16      R = 1.164 (Y - 16)                      + 1.793 (Cr - 128)
 *   Cb = -0.101 R - 0.338 G + 0.439 B + 128     G = 1.164 (Y - 16) - 0.213 (Cb - 128) - 0.534 (Cr - 128)
 *   Cr =  0.439 R - 0.399 G - 0.040 B + 128     B = 1.164 (Y - 16) + 2.115 (Cb - 128)
 * 709HDTV is full range (luma 0..255, chroma around 128), saturated:
 *   Y  =  0.213 R + 0.715 G + 0.072 B           R = Y                      + 1.540 (Cr - 128)
 *   Cb = -0.117 R - 0.394 G + 0.511 B + 128     G = Y - 0.183 (Cb - 128) - 0.459 (Cr - 128)
 *   Cr =  0.511 R - 0.464 G - 0.047 B + 128     B = Y + 1.816 (Cb - 128)
 * Results are rounded to nearest, except that 4:2:0 chroma is the mean of a block plus 1/8, rounded down. Channel 0 is
 * B; YCrCb images have Cr in plane 1. C4: the fourth byte of every pixel is `aval`. Chroma is shared, and odd sizes are
 * treated, as in zorcc/bt601.h; the order of packed 4:2:2 here is Cb Y0 Cr Y1. At 4:4:4 one step serves all planes of
 * an image. Steps are not checked. All functions run on the calling thread.
 *
 * Names, images and statuses in general: zorcc.h.
 */
#ifndef ZORCC_BT709_H
#define ZORCC_BT709_H

#include "zorcc/types.h"

/* BGR to 4:2:0. */
ZOR_API ZorStatus zoriBGRToYCbCr420_709CSC_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                    const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToYCbCr420_709CSC_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                     const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToYCrCb420_709CSC_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                    const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToYCrCb420_709CSC_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                     const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToYCbCr420_709HDTV_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                      const int dstStep[3], ZorSize roiSize);

/* 4:2:0 and 4:4:4 planes to BGR. */
ZOR_API ZorStatus zoriYCbCr420ToBGR_709CSC_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                                    int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420ToBGR_709HDTV_8u_P3C4R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                                     int dstStep, ZorSize roiSize, uint8_t aval);
ZOR_API ZorStatus zoriYCbCrToBGR_709CSC_8u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                                 ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToBGR_709CSC_8u_P3C4R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                                 ZorSize roiSize, uint8_t aval);

/*
 * BGR to and from packed 4:2:2. To 4:2:2 every sample is limited to 1..254. An odd last pixel adds its own Cb and its Y
 * to the row; to BGR it takes this Cb and the Cr of the pair before it (width 1: its Cb for both).
 */
ZOR_API ZorStatus zoriBGRToCbYCr422_709HDTV_8u_C3C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                                     ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToCbYCr422_709HDTV_8u_AC4C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                                      ZorSize roiSize);
ZOR_API ZorStatus zoriCbYCr422ToBGR_709HDTV_8u_C2C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                                     ZorSize roiSize);
ZOR_API ZorStatus zoriCbYCr422ToBGR_709HDTV_8u_C2C4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                                     ZorSize roiSize, uint8_t aval);

#endif
