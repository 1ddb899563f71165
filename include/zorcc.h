/* SPDX-License-Identifier: MIT */
/*
 * zorcc: colour conversion of raster images (libzorccn8.so.6.1). Valid C99 and C++17.
 *
 * Names: zori<Operation>_<sample types>_<layouts>R. Sample types: 8u, 16u, 16s, 32f (two joined: source, destination).
 * Layouts (two joined: source, destination):
 *   C1, C2, C3, C4  that many samples a pixel, interleaved, channel 0 at the lowest address
 *   AC4             four samples a pixel; the fourth is alpha: ignored in a source, left as it is in a destination (its
 *                   value stays, but may be rewritten: no other thread may change it during the call)
 *   P2, P3, P4      planes; a P2 image is a luma plane and a plane of interleaved chroma pairs
 *   AP4             three colour planes and an alpha plane
 * An I before the layout marks the forms that work in place.
 *
 * Images: a pointer to the first pixel of the region and a step, the distance in bytes from one row to the next. A step
 * is never in pixels, may be larger than a row, and may be negative, which walks the image upwards from the pointer,
 * unless the function's group says that steps are checked. A planar image is an array of plane pointers; where its
 * planes differ in size there is an array of steps, too. Pointers and steps need no alignment beyond the sample type's.
 * Names without the final R take no steps: rows follow each other without gaps (a chroma plane that shares samples
 * between two columns has rows of width / 2 bytes, rounded down).
 *
 * No byte outside the rows of the images is read or written. Source and destination must not overlap, except where both
 * are the same image (same pointers, steps and sample layout).
 *
 * Statuses: the first failing check decides, and then nothing is written. Unless a group says otherwise:
 *   zorStatusNullPointer  an image pointer or an array of plane pointers is null (source before destination)
 *   zorStatusBadSize      width or height is below 1
 *   zorStatusNullPointer  a plane pointer inside an array is null (source planes before destination planes)
 *   zorStatusOk
 *
 * Results of integer conversions are exact: the same bytes on every processor, alignment, step and thread count.
 * All functions may be called from any thread at any time, on distinct destinations.
 */
#ifndef ZORCC_H
#define ZORCC_H

#include "zorcore.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The version record: always the same address. */
ZOR_API const ZorVersion* zorccGetLibVersion(void);

/*
 * ---- RGB and YUV ----------------------------------------------------------------------------------------------------
 *
 * 8-bit R'G'B' to and from the Y'UV of analogue television with the luma weights of ITU-R BT.601 (0.299, 0.587, 0.114)
 * and full-range luma:
 *   Y = 0.299 R + 0.587 G + 0.114 B,  U = 0.492 (B - Y) + 128,  V = 0.877 (R - Y) + 128
 *   R = Y + 1.140 (V - 128),  G = Y - 0.394 (U - 128) - 0.581 (V - 128),  B = Y + 2.032 (U - 128)
 * all in 0..255; U stays within 16..239, V saturates. Fixed point, rounded down, unless a function says otherwise.
 * Channel (or plane) 0 is R, Y, or in BGR images B. Steps are not checked. All of these run on the calling thread.
 */

/* 4:4:4. One step serves all planes of an image. AC4P4: plane 3 receives the alpha of every source pixel. */
ZOR_API ZorStatus zoriRGBToYUV_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYUV_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYUV_8u_AC4P4R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[4], int dstStep,
                                         ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYUV_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep,
                                        ZorSize roiSize);

/*
 * 4:4:4, planes to planes, by a matrix:
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
 * 4:2:2: two neighbouring pixels of a row share the mean of their U and V. C2 is packed Y0 U Y1 V; the chroma planes of
 * P3 are width / 2 (rounded down) by height. An odd last pixel: packed, its Y and its own U are written and the row
 * ends there; planar, only its Y is written.
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
 * 4:2:2 to RGB: both pixels of a pair take the pair's U and V as they are. An odd last pixel takes, packed, its own U
 * and the V of the pair before it (width 1: its U for both); planar, the last U and V of the row (width 1: 128).
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

/*
 * Planar 4:2:0: the pixels of a 2 x 2 block share the mean of their U and V; chroma planes are width / 2 by height / 2.
 * An odd last column or row is neither read nor written; the result is then zorStatusOddSize instead of zorStatusOk.
 */
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

/* Planar 4:2:0 to RGB or BGR: the four pixels of a block take its U and V as they are. Odd sizes as above. */
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

/*
 * ---- RGB and YCbCr (ITU-R BT.601) -----------------------------------------------------------------------------------
 *
 * 8-bit R'G'B' to and from Y'CbCr in studio range: Y 16..235, Cb and Cr 16..240 around 128:
 *   Y  =  0.257 R + 0.504 G + 0.098 B + 16      R = 1.164 (Y - 16)                      + 1.596 (Cr - 128)
 *   Cb = -0.148 R - 0.291 G + 0.439 B + 128     G = 1.164 (Y - 16) - 0.392 (Cb - 128) - 0.813 (Cr - 128)
 *   Cr =  0.439 R - 0.368 G - 0.071 B + 128     B = 1.164 (Y - 16) + 2.017 (Cb - 128)
 * From RGB results are rounded to nearest and never leave studio range; to RGB they are rounded down and saturate, so
 * that peak white (235, 128, 128) gives 254. Channel (or plane) 0 is R, Y, or in BGR images B; YCrCb images have Cr in
 * plane 1. Steps are not checked. All of these run on the calling thread.
 */

/* 4:4:4. One step serves all planes of an image. */
ZOR_API ZorStatus zoriRGBToYCbCr_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYCbCr_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYCbCr_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep,
                                          ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYCbCr_8u_AC4P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep,
                                           ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYCbCr_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3], int dstStep,
                                        ZorSize roiSize);

/* 4:4:4 to RGB. C4: the fourth byte of every pixel is `aval`. Planar to interleaved: coefficients 2/65536 lower. */
ZOR_API ZorStatus zoriYCbCrToRGB_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToRGB_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToRGB_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3], int dstStep,
                                        ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToRGB_8u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                          ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToRGB_8u_P3C4R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                          ZorSize roiSize, uint8_t aval);

/*
 * To packed 4:2:2, Y0 Cb Y1 Cr: a pair of pixels shares the mean of its chroma. The luma of the second pixel is rounded
 * down. An odd last pixel has its Y and its own Cb written, and the row ends there.
 */
ZOR_API ZorStatus zoriRGBToYCbCr422_8u_C3C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                             ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToYCbCr422_8u_P3C2R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                             ZorSize roiSize);

/*
 * 4:2:2 to RGB: both pixels of a pair take its chroma. An odd last pixel takes, packed, its own Cb and the Cr of the
 * pair before it (width 1: its Cb for both); planar, the last chroma samples of the row (width 1: 128). The constants
 * of the packed forms are up to 57/65536 lower than exact centring gives.
 */
ZOR_API ZorStatus zoriYCbCr422ToRGB_8u_C2C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                             ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToRGB_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep,
                                             ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToRGB_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                             int dstStep, ZorSize roiSize);

/*
 * To planar 4:2:0: the pixels of a 2 x 2 block share the mean of their chroma, rounded down from an eighth above it;
 * chroma planes are width / 2 by height / 2. An odd last column or row is neither read nor written; the result is then
 * zorStatusOddSize.
 */
ZOR_API ZorStatus zoriRGBToYCbCr420_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                             const int dstStep[3], ZorSize roiSize);

/* Planar 4:2:0 to RGB or BGR: the pixels of a block take its chroma. Odd sizes as above. C4: `aval` is the fourth byte.
 */
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
 * counts 9/16, its two neighbours 3/16 each, the diagonal one 1/16, rounded to nearest; the edges of the (even part of
 * the) image repeat.
 */
ZOR_API ZorStatus zoriYCrCb420ToBGR_Filter_8u_P3C4R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                                    int dstStep, ZorSize roiSize, uint8_t aval);

/*
 * Planar 4:1:1, chroma planes of width / 4 by height, to BGR: four pixels take a chroma sample; the last width mod 4
 * pixels of a row take its last one (width below 4: 128).
 */
ZOR_API ZorStatus zoriYCbCr411ToBGR_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                             int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr411ToBGR_8u_P3C4R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                             int dstStep, ZorSize roiSize, uint8_t aval);

/*
 * ---- BGR and YCbCr (ITU-R BT.709) -----------------------------------------------------------------------------------
 *
 * 709CSC is studio range (Y 16..235, Cb and Cr 16..240):
 *
 *   Y  =  0.183 R + 0.614 G + 0.062 B + 16      R = 1.164 (Y - 16)                      + 1.793 (Cr - 128)
 *   Cb = -0.101 R - 0.338 G + 0.439 B + 128     G = 1.164 (Y - 16) - 0.213 (Cb - 128) - 0.534 (Cr - 128)
 *   Cr =  0.439 R - 0.399 G - 0.040 B + 128     B = 1.164 (Y - 16) + 2.115 (Cb - 128)
 *
 * 709HDTV is full range (luma 0..255, chroma around 128), saturated:
 *
 *   Y  =  0.213 R + 0.715 G + 0.072 B           R = Y                      + 1.540 (Cr - 128)
 *   Cb = -0.117 R - 0.394 G + 0.511 B + 128     G = Y - 0.183 (Cb - 128) - 0.459 (Cr - 128)
 *   Cr =  0.511 R - 0.464 G - 0.047 B + 128     B = Y + 1.816 (Cb - 128)
 *
 * Rounded to nearest, but 4:2:0 chroma down from an eighth above. Channel 0 is B; YCrCb images have Cr in plane 1.
 * Chroma is shared and repeated as in the BT.601 functions; 4:2:0 functions give zorStatusOddSize for odd sizes, as
 * there. Steps are not checked. All of these run on the calling thread. C4: the fourth byte of every pixel is `aval`.
 */

/* BGR to planar 4:2:0. */
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

/* Planar to BGR. */
ZOR_API ZorStatus zoriYCbCr420ToBGR_709CSC_8u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                                    int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420ToBGR_709HDTV_8u_P3C4R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                                     int dstStep, ZorSize roiSize, uint8_t aval);
ZOR_API ZorStatus zoriYCbCrToBGR_709CSC_8u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                                 ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToBGR_709CSC_8u_P3C4R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                                 ZorSize roiSize, uint8_t aval);

/*
 * BGR to and from packed 4:2:2, Cb Y0 Cr Y1. To 4:2:2 every sample is limited to 1..254; an odd last pixel has its own
 * Cb and its Y written, and the row ends there. To BGR it takes its own Cb and the Cr of the pair before it (width 1:
 * its Cb for both).
 */
ZOR_API ZorStatus zoriBGRToCbYCr422_709HDTV_8u_C3C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                                     ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToCbYCr422_709HDTV_8u_AC4C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                                      ZorSize roiSize);
ZOR_API ZorStatus zoriCbYCr422ToBGR_709HDTV_8u_C2C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                                     ZorSize roiSize);
ZOR_API ZorStatus zoriCbYCr422ToBGR_709HDTV_8u_C2C4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                                     ZorSize roiSize, uint8_t aval);

/*
 * ---- Chroma sampling and plane orders -------------------------------------------------------------------------------
 *
 * 8-bit luma-chroma images from one chroma sampling and layout to another. Nothing is computed but averages of chroma;
 * luma is copied. Layouts:
 *   C2           packed 4:2:2: YCbCr422 is Y0 Cb Y1 Cr, CbYCr422 is Cb Y0 Cr Y1, YCrCb422 is Y0 Cr Y1 Cb
 *   P3           planes Y, Cb, Cr, in the YCrCb forms Y, Cr, Cb
 *   P2           a plane of luma and one of pairs Cb Cr
 *   422          chroma of width / 2 by height; 420: width / 2 by height / 2; 411: width / 4 by height
 *   1620         chroma of width / 4 by height / 4
 * All pointers are checked before the size. Minimum sizes (below: zorStatusBadSize) are those of one block of pixels
 * that share chroma in either format: 2 x 1 for 422, 2 x 2 where there is 420, 4 x 1 for 411, 4 x 2 for 411 and 420.
 * Width and height are rounded down to such blocks; what lies beyond is neither read nor written, and the status is
 * zorStatusOk. Steps are not checked. All of these run on the calling thread unless their group says otherwise.
 */

/* 4:2:2 to 4:2:0: of every two rows of chroma the first is kept. */
ZOR_API ZorStatus zoriYCbCr422ToYCbCr420_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToYCbCr420_8u_P3P2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDstY,
                                                  int dstYStep, uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToYCbCr420_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                  const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriYCrCb422ToYCbCr420_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                  const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriCbYCr422ToYCbCr420_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                  const int dstStep[3], ZorSize roiSize);

/* 4:2:0 to 4:2:2: every row of chroma goes to two. */
ZOR_API ZorStatus zoriYCbCr420ToYCbCr422_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420ToYCbCr422_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr,
                                                  int srcCbCrStep, uint8_t* const pDst[3], const int dstStep[3],
                                                  ZorSize roiSize);
ZOR_API ZorStatus zoriYCrCb420ToYCbCr422_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize);

/*
 * 4:2:0 to 4:2:2 with a vertical filter: of chroma rows C[0] .. C[n - 1], row 2k of the result is C[k], row 2k + 1 is
 * (9 (C[k] + C[k + 1]) - C[k - 1] - C[k + 2] + 8) / 16, rounded down and saturated; rows beyond an edge repeat it.
 * Minimum 2 x 8; heights are rounded down to a multiple of 8.
 */
ZOR_API ZorStatus zoriYCbCr420ToYCbCr422_Filter_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                       uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420ToYCbCr422_Filter_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr,
                                                         int srcCbCrStep, uint8_t* const pDst[3], const int dstStep[3],
                                                         ZorSize roiSize);
ZOR_API ZorStatus zoriYCrCb420ToYCbCr422_Filter_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                       uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize);

/* 4:2:2 to 4:1:1: of every two columns of chroma the first is kept. */
ZOR_API ZorStatus zoriYCbCr422ToYCbCr411_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToYCbCr411_8u_P3P2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDstY,
                                                  int dstYStep, uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToYCbCr411_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                  const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToYCbCr411_8u_C2P2R(const uint8_t* pSrc, int srcStep, uint8_t* pDstY, int dstYStep,
                                                  uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCrCb422ToYCbCr411_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                  const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriCbYCr422ToYCbCr411_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                  const int dstStep[3], ZorSize roiSize);

/* 4:1:1 to 4:2:2: every column of chroma goes to two. */
ZOR_API ZorStatus zoriYCbCr411ToYCbCr422_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr411ToYCbCr422_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr,
                                                  int srcCbCrStep, uint8_t* const pDst[3], const int dstStep[3],
                                                  ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr411ToYCbCr422_8u_P3C2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                                  int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr411ToYCbCr422_8u_P2C2R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr,
                                                  int srcCbCrStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr411ToYCrCb422_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr411ToYCrCb422_8u_P3C2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                                  int dstStep, ZorSize roiSize);

/*
 * 4:1:1 to 4:2:0 and back without loss: rows 2k and 2k + 1 of 4:1:1 chroma are the even and the odd columns of row k of
 * 4:2:0 chroma.
 */
ZOR_API ZorStatus zoriYCbCr411ToYCbCr420_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr411ToYCbCr420_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr,
                                                  int srcCbCrStep, uint8_t* const pDst[3], const int dstStep[3],
                                                  ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr411ToYCbCr420_8u_P3P2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDstY,
                                                  int dstYStep, uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr411ToYCrCb420_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr,
                                                  int srcCbCrStep, uint8_t* const pDst[3], const int dstStep[3],
                                                  ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420ToYCbCr411_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr,
                                                  int srcCbCrStep, uint8_t* const pDst[3], const int dstStep[3],
                                                  ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420ToYCbCr411_8u_P3P2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDstY,
                                                  int dstYStep, uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCrCb420ToYCbCr411_8u_P3P2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDstY,
                                                  int dstYStep, uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize);

/* Layout alone. */
ZOR_API ZorStatus zoriYCbCr411_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr, int srcCbCrStep,
                                        uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr411_8u_P3P2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDstY,
                                        int dstYStep, uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr, int srcCbCrStep,
                                        uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420_8u_P3P2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDstY,
                                        int dstYStep, uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], const int dstStep[3],
                                        ZorSize roiSize);
ZOR_API ZorStatus zoriYCrCb422ToYCbCr422_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                  const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriCbYCr422ToYCbCr422_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                  const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToYCrCb422_8u_C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                                ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToYCrCb422_8u_P3C2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                                  int dstStep, ZorSize roiSize);

/*
 * 4:2:0, 1620 and 4:1:1 by interpolation. Fewer samples: every second column, row, or both, from the first on. More:
 * between two samples lies their average, and between four the average of the averages of the upper two and of the
 * lower two; the last column and row repeat. Averages round up in the destination columns before 16 * ((n - 1) / 8),
 * where n is the width of the source's chroma and columns are doubled, or before 8 * (n / 8), where n is the width of
 * the destination's chroma and only rows are (420 to 411); behind them they round down.
 * Sizes must be multiples of 4 x 4, for 420 to 411 of 4 x 2: otherwise zorStatusBadSize.
 */
ZOR_API ZorStatus zoriYCbCr420To1620_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                            const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr1620To420_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                            const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr411To420_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                           const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420To411_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* const pDst[3],
                                           const int dstStep[3], ZorSize roiSize);

/*
 * 4:2:2 to 4:2:0 and back for interlaced images: even and odd rows, which are two fields, stay apart. Minimum 2 x 4.
 * Widths are rounded down to a multiple of 2, heights to one of 4, and zorStatusOddSize tells so.
 *   to 4:2:0, rows R to C    C[2m] = (3 R[4m] + R[4m + 2]) / 4,          C[2m + 1] = (R[4m + 1] + 3 R[4m + 3]) / 4
 *   to 4:2:2, rows C to R    R[4g + 2] = (5 C[2g] + 3 C[2g + 2]) / 8,    R[4g + 3] = (7 C[2g + 1] + C[2g + 3]) / 8,
 *                            R[4g + 4] = (C[2g] + 7 C[2g + 2]) / 8,      R[4g + 5] = (3 C[2g + 1] + 5 C[2g + 3]) / 8
 * rounded to nearest, a half upwards; the first two rows of 4:2:2 chroma and the last two are those of 4:2:0. From a
 * width of 128 and above a height of 128 rows are shared out among the library's threads.
 */
ZOR_API ZorStatus zoriCbYCr422ToYCbCr420_Interlace_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                            const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422To420_Interlace_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                     uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420To422_Interlace_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                     uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420ToCbYCr422_Interlace_8u_P3C2R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                            uint8_t* pDst, int dstStep, ZorSize roiSize);

/*
 * ---- Video layouts and deinterlacing --------------------------------------------------------------------------------
 *
 * The layouts of video: NV12 (YCbCr420 P2), YV12 (YCrCb420 P3), YUY2 (YCbCr422 C2), UYVY (CbYCr422 C2). Checks, sizes
 * and chroma are as above: of 4:2:2 every first row of two is kept, of 4:2:0 every row goes to two.
 */
ZOR_API ZorStatus zoriCbYCr422ToYCbCr420_8u_C2P2R(const uint8_t* pSrc, int srcStep, uint8_t* pDstY, int dstYStep,
                                                  uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize);
ZOR_API ZorStatus zoriCbYCr422ToYCrCb420_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                  const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToYCbCr420_8u_C2P2R(const uint8_t* pSrc, int srcStep, uint8_t* pDstY, int dstYStep,
                                                  uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToYCrCb420_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                  const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420ToCbYCr422_8u_P2C2R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr,
                                                  int srcCbCrStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420ToYCbCr422_8u_P2C2R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr,
                                                  int srcCbCrStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420ToYCrCb420_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr,
                                                  int srcCbCrStep, uint8_t* const pDst[3], const int dstStep[3],
                                                  ZorSize roiSize);
ZOR_API ZorStatus zoriYCrCb420ToCbYCr422_8u_P3C2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                                  int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCrCb420ToYCbCr420_8u_P3P2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDstY,
                                                  int dstYStep, uint8_t* pDstCbCr, int dstCbCrStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCrCb420ToYCbCr422_8u_P3C2R(const uint8_t* const pSrc[3], const int srcStep[3], uint8_t* pDst,
                                                  int dstStep, ZorSize roiSize);

/* Packed to packed: minimum 2 x 1, and any height. */
ZOR_API ZorStatus zoriYCbCr422ToCbYCr422_8u_C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                                ZorSize roiSize);
ZOR_API ZorStatus zoriCbYCr422ToYCbCr422_8u_C2R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                                ZorSize roiSize);

/*
 * Deinterlacing by a vertical low-pass. Luma row r becomes (Y[r - 1] + 2 Y[r] + Y[r + 1]) / 4, where rows beyond an
 * edge of the frame repeat it; in the first 8 * (width / 8) columns each of the averages of (Y[r - 1], Y[r]), of (Y[r],
 * Y[r + 1]) and of both rounds up, behind them the sum is rounded down. The chroma of luma rows 2k and 2k + 1 is the
 * average of chroma rows k and k + 1 (of the last two rows for the last k; a single row as it is), rounded up where
 * luma is, otherwise down.
 *
 * `slice` tells which part of a frame the images are: 1 the first, 4 a middle one, 16 the last; with all of these bits
 * (21) they are the whole frame. Any other value converts nothing. Slices have even heights and follow each other
 * downwards. The first one leaves its last row of luma and its last two rows of chroma to the next one, and so on,
 * since they depend on rows beyond; so for a middle or last slice the two rows above the images are read and completed,
 * too. Together slices give the same frame as one call.
 */
ZOR_API ZorStatus zoriYCbCr420ToYCbCr422_Filter_8u_P2C2R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr,
                                                         int srcCbCrStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                                         int slice);
ZOR_API ZorStatus zoriYCbCr420ToYCrCb420_Filter_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr,
                                                         int srcCbCrStep, uint8_t* const pDst[3], const int dstStep[3],
                                                         ZorSize roiSize, int slice);

/*
 * ---- HLS and HSV ----------------------------------------------------------------------------------------------------
 *
 * R'G'B' to and from the hexcone models: hue, lightness and saturation; hue, saturation and value. With R, G, B in
 * 0..1, M the largest and m the smallest of them, d = M - m:
 *   hue  60 (G - B) / d if R = M, or else 120 + 60 (B - R) / d if G = M, or else 240 + 60 (R - G) / d, in degrees;
 *        360 more if that is negative
 *   HLS  L = (M + m) / 2, S = d / (M + m) up to L = 1/2 and d / (2 - (M + m)) above
 *   HSV  V = M, S = d / M
 * Grey (d = 0) has H = S = 0.
 *
 * Ranges: 8u R, G, B, L, S, V in 0..255, hue in degrees * 255 / 360; 16u the same with 65535; 16s as 16u, every sample
 * less 32768; 32f R, G, B, L, S in 0..1, hue in degrees / 360, nothing is clamped. Channels stand in the order of their
 * names: H, L, S and H, S, V. Single precision, every operation rounded as IEEE 754 says, so that integer results, too,
 * are the same everywhere.
 *
 * Images above 4096 pixels, and planar images of any size, are converted on ownGetNumThreads() threads, except inside a
 * parallel region of the caller.
 */

/* RGB to HLS. Integer results are truncated; 32f: grey is where d is not above 2^-23. Steps are not checked. */
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

/* HLS to RGB. Integer results are truncated; where S is 0, R, G and B are copies of L. Steps are not checked. */
ZOR_API ZorStatus zoriHLSToRGB_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriHLSToRGB_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriHLSToRGB_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriHLSToRGB_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                        ZorSize roiSize);
ZOR_API ZorStatus zoriHLSToRGB_16s_C3R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriHLSToRGB_16s_AC4R(const int16_t* pSrc, int srcStep, int16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriHLSToRGB_32f_C3R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriHLSToRGB_32f_AC4R(const float* pSrc, int srcStep, float* pDst, int dstStep, ZorSize roiSize);

/*
 * RGB to HSV. 16u: rounded to nearest, ties to even. 8u: hue and saturation are truncated in the first 4 * (width / 4)
 * pixels of a row and rounded to nearest, ties to even, in the others, where they can be greater by one. Steps are not
 * checked.
 */
ZOR_API ZorStatus zoriRGBToHSV_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToHSV_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToHSV_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToHSV_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                        ZorSize roiSize);

/* HSV to RGB, rounded to nearest, ties to even. The greatest hue is taken for hue 0. Steps are not checked. */
ZOR_API ZorStatus zoriHSVToRGB_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriHSVToRGB_8u_AC4R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriHSVToRGB_16u_C3R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriHSVToRGB_16u_AC4R(const uint16_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                        ZorSize roiSize);

/*
 * BGR to HLS and back with planes on one side or both: planes B, G, R and H, L, S, and a fourth for alpha, which is
 * copied. One step serves all planes of an image. Their checks, in this order:
 *   zorStatusNullPointer  the source, or one of its planes in turn, then the destination likewise, is null
 *   zorStatusBadStep      a step is below 1
 *   zorStatusBadSize      width or height is below 1
 */
ZOR_API ZorStatus zoriBGRToHLS_8u_AC4P4R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[4], int dstStep,
                                         ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToHLS_8u_AP4C4R(const uint8_t* const pSrc[4], int srcStep, uint8_t* pDst, int dstStep,
                                         ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToHLS_8u_AP4R(const uint8_t* const pSrc[4], int srcStep, uint8_t* const pDst[4], int dstStep,
                                       ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToHLS_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep,
                                        ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToHLS_8u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                        ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToHLS_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3], int dstStep,
                                      ZorSize roiSize);
ZOR_API ZorStatus zoriHLSToBGR_8u_AC4P4R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[4], int dstStep,
                                         ZorSize roiSize);
ZOR_API ZorStatus zoriHLSToBGR_8u_AP4C4R(const uint8_t* const pSrc[4], int srcStep, uint8_t* pDst, int dstStep,
                                         ZorSize roiSize);
ZOR_API ZorStatus zoriHLSToBGR_8u_AP4R(const uint8_t* const pSrc[4], int srcStep, uint8_t* const pDst[4], int dstStep,
                                       ZorSize roiSize);
ZOR_API ZorStatus zoriHLSToBGR_8u_C3P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3], int dstStep,
                                        ZorSize roiSize);
ZOR_API ZorStatus zoriHLSToBGR_8u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* pDst, int dstStep,
                                        ZorSize roiSize);
ZOR_API ZorStatus zoriHLSToBGR_8u_P3R(const uint8_t* const pSrc[3], int srcStep, uint8_t* const pDst[3], int dstStep,
                                      ZorSize roiSize);

/*
 * ---- Bit-depth reduction -------------------------------------------------------------------------------------------
 *
 * Quantises the samples of a colour or grey image to `levels` equally spaced values from black to white, and converts
 * them to the destination's sample type (two types joined: source, destination). Black and white are 0 and 255 in 8u, 0
 * and 65535 in 16u, -32768 and 32767 in 16s, 0 and 1 in 32f; what lies beyond saturates, NaN is black. C4 converts all
 * four channels, AC4 leaves the fourth. With a quantisation step of white / (levels - 1), in single precision:
 *   zorDitherMethodNone     the nearest level, of two the lower one; `noise` has no effect
 *   zorDitherMethodOrdered  the level above where the sample exceeds the level below by more than the threshold of its
 *                           pixel in a 4 x 4 matrix of n / 15 steps, n = 0..15. All channels of a pixel have the same
 *   zorDitherMethodFloydSteinberg, zorDitherMethodJarvisJudiceNinke, zorDitherMethodStucki
 *                           the nearest level of the sample plus the errors that its neighbours to the left and above
 *                           have left; each channel on its own, every row from left to right. Samples that saturate
 *                           leave no error
 * `noise`, 0..100, moves every threshold by a pseudo-random amount of up to that many percent of a step. It is the same
 * in every call: equal input gives equal output.
 *
 * A level's value is rounded down. Where source and destination differ in scale it is level * white / (levels - 1) in
 * integers; where they do not it is worked out in single precision and may, with a few numbers of levels, come out one
 * less: white as 254.
 *
 * Statuses behind the usual ones, in this order:
 *   zorStatusNoiseRange     noise is outside 0..100, whatever the method
 *   zorStatusDitherLevels   levels is below 2 or above 256; above 65536 for 16u and 16s (sources and destinations of 16
 *                           bits)
 *   zorStatusOk             for a method that is not in the enumeration; nothing is written
 *   zorStatusNoMemory
 * Steps are not checked. Ordered dithering shares out the rows among the threads, error diffusion the channels; plain
 * quantisation runs on the calling thread.
 */
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

/*
 * ---- Demosaicing ----------------------------------------------------------------------------------------------------
 *
 * A Bayer mosaic, one colour sample a pixel in a repeating 2 x 2 cell, to R, G, B in memory order. `grid` names the
 * cell at pixel (0, 0) of the source image, whatever the region. `pSrc` points to pixel (0, 0) of the source image of
 * `srcSize` pixels; `srcRoi` is the region of it to fill in, and neighbours outside the region but inside the image are
 * used: the colours of a pixel do not depend on the region. The part of the region that lies outside the image is left
 * out, and the first destination pixel is the first one inside; a region wholly outside is zorStatusOk, with nothing
 * written. Statuses, in this order:
 *   zorStatusNullPointer  source or destination is null
 *   zorStatusBadSize      the source image is too small
 *   zorStatusBadArgument  the grid is none of ZorBayerGrid
 * Steps are not checked.
 */

/*
 * Interpolation along the smaller gradient; images from 2 x 2. All averages are rounded half up. At a red or blue pixel
 * of value X, green is the average of the two neighbours above and below if X differs less from the X two rows up to
 * the one two rows down than from two columns left to two columns right, of those left and right if more, and of all
 * four if both are equal; the opposite colour is the average of the four diagonal neighbours. At a green pixel, red and
 * blue are averages of two neighbours. In the outer two columns and rows of the image green is always the average of
 * four, and a neighbour outside the image is replaced by the one on the other side of the pixel. `interpolation` is not
 * looked at. On several threads where at least 192 x 192 pixels of the region lie inside that frame.
 */
ZOR_API ZorStatus zoriCFAToRGB_8u_C1C3R(const uint8_t* pSrc, ZorRect srcRoi, ZorSize srcSize, int srcStep,
                                        uint8_t* pDst, int dstStep, ZorBayerGrid grid, int interpolation);
ZOR_API ZorStatus zoriCFAToRGB_16u_C1C3R(const uint16_t* pSrc, ZorRect srcRoi, ZorSize srcSize, int srcStep,
                                         uint16_t* pDst, int dstStep, ZorBayerGrid grid, int interpolation);

/*
 * The adaptive homogeneity-directed method (K. Hirakawa and T. W. Parks, 2005); images from 5 x 5. Green at a red or
 * blue pixel is estimated once along the row and once along the column: the average of the two green neighbours,
 * rounded down, plus a quarter, rounded down, of twice the pixel less the pixels of its colour two before and two
 * behind, limited to the range of the two neighbours. Both candidates, with red and blue from interpolated differences
 * to green, are compared in CIE L*a*b* (white D65): the direction that has more neighbours of like lightness and colour
 * around a pixel gives the pixel its green; where they are about even it is the mean of both. The differences of red
 * and blue to that green are interpolated and moved half of the way to their 3 x 3 median. The image is mirrored at its
 * edges. 16-bit results of samples 257 times as large as 8-bit samples are within 2 x 257 of 257 times the 8-bit
 * results.
 *
 * `pTmp` is scratch memory: 64 rows of 32 x (w + 32) bytes, `tmpStep` bytes apart, where w is the width of the region's
 * part inside the image. It needs no alignment, is not checked, holds nothing before and nothing of use after the call,
 * and must not be shared with a call that runs at the same time. On several threads where that part is at least
 * 192 x 192.
 */
ZOR_API ZorStatus zoriDemosaicAHD_8u_C1C3R(const uint8_t* pSrc, ZorRect srcRoi, ZorSize srcSize, int srcStep,
                                           uint8_t* pDst, int dstStep, ZorBayerGrid grid, uint8_t* pTmp, int tmpStep);
ZOR_API ZorStatus zoriDemosaicAHD_16u_C1C3R(const uint16_t* pSrc, ZorRect srcRoi, ZorSize srcSize, int srcStep,
                                            uint16_t* pDst, int dstStep, ZorBayerGrid grid, uint16_t* pTmp,
                                            int tmpStep);

#ifdef __cplusplus
}
#endif

#endif
