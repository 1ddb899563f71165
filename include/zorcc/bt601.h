/* SPDX-License-Identifier: MIT */
/*
 * RGB and YCbCr (ITU-R BT.601): 8-bit R'G'B' to and from Y'CbCr in studio range, Y 16..235, Cb and Cr 16..240 around
 * 128:
 *   Y  =  0.257 R + 0.504 G + 0.098 B + 16      R = 1.164 (Y - 16)                      + 1.596 (Cr - 128)
 *   Cb = -0.148 R - 0.291 G + 0.439 B + 128     G = 1.164 (Y - 16) - 0.392 (Cb - 128) - 0.813 (Cr - 128)
 *   Cr =  0.439 R - 0.368 G - 0.071 B + 128     B = 1.164 (Y - 16) + 2.017 (Cb - 128)
 * From RGB results are rounded to nearest and never leave studio range; to RGB they are rounded down and saturate, so
 * that peak white (235, 128, 128) gives 254. Channel (or plane) 0 is R, Y, or in BGR images B; YCrCb images have Cr in
 * plane 1. C4: the fourth byte of every pixel is `aval`. At 4:4:4 one step serves all planes of an image. Steps are not
 * checked. All functions run on the calling thread.
 *
 * 4:2:2: two neighbouring pixels of a row share one Cb and one Cr. C2 is packed Y0 Cb Y1 Cr; the chroma planes of P3
 * are width / 2 (rounded down) by height.
 *
 * 4:2:0, planar: the four pixels of a 2 x 2 block share one Cb and one Cr; the chroma planes are width / 2 by
 * height / 2. An odd last column or row is neither read nor written; the result is then zorStatusOddSize instead of
 * zorStatusOk.
 *
 * Names, images and statuses in general: zorcc.h.
 */
#ifndef ZORCC_BT601_H
#define ZORCC_BT601_H

#include "zorcc/types.h"

/* RGB to 4:4:4. */
ZOR_API ZorStatus zoriRGBToYCbCr_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYCbCr_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYCbCr_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep,
                                          ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYCbCr_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep,
                                           ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYCbCr_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3], int dstStep,
                                        ZorSize roiSize);

/* 4:4:4 to RGB. The coefficients of the forms from planes to interleaved pixels are 2/65536 lower. */
ZOR_API ZorStatus zoriYCbCrToRGB_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToRGB_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToRGB_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3], int dstStep,
                                        ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToRGB_8u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                          ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToRGB_8u_P3C4R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                          ZorSize roiSize, uint8_t aval);

/*
 * RGB to packed 4:2:2: a pair of pixels gets the mean of its chroma. The luma of its second pixel is rounded down. An
 * odd last pixel adds its Y and its own Cb to the row.
 */
ZOR_API ZorStatus zoriRGBToYCbCr422_8u_C3C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                             ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYCbCr422_8u_P3C2R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                             ZorSize roiSize);

/*
 * 4:2:2 to RGB: both pixels of a pair take its chroma. An odd last pixel takes its own Cb and the Cr of the pair before
 * it from a packed row (width 1: its Cb for both), the last chroma samples of the row from planes (width 1: 128). The
 * constants of the packed forms are up to 57/65536 lower than exact centring gives.
 */
ZOR_API ZorStatus zoriYCbCr422ToRGB_8u_C2C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                             ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToRGB_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep,
                                             ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToRGB_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                             int dstStep, ZorSize roiSize);

/* RGB to 4:2:0: a block gets the mean of the chroma of its pixels plus 1/8, rounded down. */
ZOR_API ZorStatus zoriRGBToYCbCr420_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                             const int dstStep[3], ZorSize roiSize);

/* 4:2:0 to RGB or BGR: the four pixels of a block take its chroma. */
ZOR_API ZorStatus zoriYCbCr420ToRGB_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                             int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420ToBGR_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                             int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420ToBGR_8u_P3C4R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                             int dstStep, ZorSize roiSize, uint8_t aval);
ZOR_API ZorStatus zoriYCrCb420ToRGB_8u_P3C4R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                             int dstStep, ZorSize roiSize, uint8_t aval);

/*
 * The same with chroma upsampled by a centred triangle filter: of the four chroma samples around a pixel the nearest
 * counts 9/16, its two neighbours 3/16 each, the diagonal one 1/16, rounded to nearest; beyond an
 * edge the outermost chroma samples repeat.
 */
ZOR_API ZorStatus zoriYCrCb420ToBGR_Filter_8u_P3C4R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                                    int dstStep, ZorSize roiSize, uint8_t aval);

/*
 * BGR with chroma of a group of pixels, from their mean, which takes at least one group: width and height below it give
 * zorStatusBadSize, after all pointers are checked.
 *
 * To 4:2:2 (2 x 1 pixels), 4:1:1 (4 x 1) and 4:2:0 (2 x 2), chroma rounded with 1/8. Pixels that do not fill a group
 * get luma alone. Then the result is zorStatusOddSize for 4:1:1, 4:2:0 and the form from RGB.
 */
ZOR_API ZorStatus zoriBGRToYCbCr422_8u_C3C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                             ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToYCbCr422_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                             const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToYCbCr422_8u_AC4C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                              ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToYCbCr422_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                              const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYCbCr422_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                             const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToYCbCr411_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                             const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToYCbCr411_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                              const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToYCbCr420_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                             const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToYCbCr420_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                              const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToYCrCb420_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                             const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToYCrCb420_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                              const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYCrCb420_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                              const int dstStep[3], ZorSize roiSize);

/* 4:2:2 and 4:4:4 to BGR with the constants of the packed forms above. An odd last pixel as there. */
ZOR_API ZorStatus zoriYCbCr422ToBGR_8u_C2C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                             ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToBGR_8u_C2C4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                             ZorSize roiSize, uint8_t aval);
ZOR_API ZorStatus zoriYCbCr422ToBGR_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                             int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToBGR_8u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                          ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToBGR_8u_P3C4R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                          ZorSize roiSize, uint8_t aval);

/*
 * Planar 4:1:1, chroma planes of width / 4 by height, to BGR: four pixels take a chroma sample; the last width mod 4
 * pixels of a row take its last one (width below 4: 128).
 */
ZOR_API ZorStatus zoriYCbCr411ToBGR_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                             int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr411ToBGR_8u_P3C4R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                             int dstStep, ZorSize roiSize, uint8_t aval);

#endif
