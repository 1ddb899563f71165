/* SPDX-License-Identifier: MIT */
/*
 * Packed 16-bit RGB: one unsigned word a pixel, in the machine's byte order, to and from Y'CbCr (ITU-R BT.601, as in
 * zorcc/bt601.h) and Y'UV (zorcc/yuv.h). The channel that is named first is in the LOW bits:
 *            bits 15..11  10..5  4..0             bit 15  14..10  9..5  4..0             bits 15..12  11..8  7..4  3..0
 *   RGB565      B           G      R     RGB555     0       B       G     R     RGB444        0        B      G     R
 *   BGR565      R           G      B     BGR555     0       R       G     B     BGR444        0        R      G     B
 * To 16 bits, the 8-bit result is cut down to the top bits of its field, or dithered where the name says so. As a
 * source, a field f of n bits is the 8-bit value f << (8 - n).
 *
 * Dither: a sample c of 0..255 has the level q = c N >> 8; it becomes q + 1 where c 256 - q Q is greater than a
 * threshold t, of a 4 x 4 matrix that begins at the first pixel of the region:
 *   5 bits: N 31, Q 2105     6 bits: N 63, Q 1036, t halved     4 bits: N 15, Q 4352
 *      0 1118  279 1398                                            0 2312  578 2890
 *   1678  559 1957  839                                         3468 1156 4046 1734
 *    419 1538  139 1258                                          867 3179  289 2601
 *   2097  978 1817  699                                         4335 2023 3757 1445
 *
 * Steps are in bytes and not checked, and all functions run on the calling thread, but for the last group.
 *
 * Names, images and statuses in general: zorcc.h.
 */
#ifndef ZORCC_RGB565_H
#define ZORCC_RGB565_H

#include "zorcc/types.h"

/*
 * 4:4:4 planes to 16 bits: one step serves all planes. The coefficients are 2/65536 below those of the other forms.
 */
ZOR_API ZorStatus zoriYCbCrToRGB565_8u16u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint16_t* pDst, int dstStep,
                                                ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToRGB565Dither_8u16u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint16_t* pDst,
                                                      int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToBGR565_8u16u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint16_t* pDst, int dstStep,
                                                ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToBGR565Dither_8u16u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint16_t* pDst,
                                                      int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToRGB555_8u16u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint16_t* pDst, int dstStep,
                                                ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToRGB555Dither_8u16u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint16_t* pDst,
                                                      int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToBGR555_8u16u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint16_t* pDst, int dstStep,
                                                ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToBGR555Dither_8u16u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint16_t* pDst,
                                                      int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToRGB444_8u16u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint16_t* pDst, int dstStep,
                                                ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToRGB444Dither_8u16u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint16_t* pDst,
                                                      int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToBGR444_8u16u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint16_t* pDst, int dstStep,
                                                ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToBGR444Dither_8u16u_P3C3R(const uint8_t* const pSrc[3], int srcStep, uint16_t* pDst,
                                                      int dstStep, ZorSize roiSize);

/* 4:4:4 pixels to 16 bits. */
ZOR_API ZorStatus zoriYCbCrToRGB565_8u16u_C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                              ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToRGB565Dither_8u16u_C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                                    ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToBGR565_8u16u_C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                              ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToBGR565Dither_8u16u_C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                                    ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToRGB555_8u16u_C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                              ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToRGB555Dither_8u16u_C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                                    ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToBGR555_8u16u_C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                              ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToBGR555Dither_8u16u_C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                                    ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToRGB444_8u16u_C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                              ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToRGB444Dither_8u16u_C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                                    ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToBGR444_8u16u_C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                              ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCrToBGR444Dither_8u16u_C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                                    ZorSize roiSize);

/*
 * 4:2:2 planes to 16 bits, with the coefficients of 4:4:4 planes. An odd last pixel takes the last chroma samples of
 * its row (width 1: 128).
 */
ZOR_API ZorStatus zoriYCbCr422ToRGB565_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint16_t* pDst,
                                                   int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToRGB565Dither_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                         uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToBGR565_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint16_t* pDst,
                                                   int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToBGR565Dither_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                         uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToRGB555_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint16_t* pDst,
                                                   int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToRGB555Dither_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                         uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToBGR555_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint16_t* pDst,
                                                   int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToBGR555Dither_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                         uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToRGB444_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint16_t* pDst,
                                                   int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToRGB444Dither_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                         uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToBGR444_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint16_t* pDst,
                                                   int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToBGR444Dither_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                         uint16_t* pDst, int dstStep, ZorSize roiSize);

/*
 * Packed 4:2:2, Y0 Cb Y1 Cr, to 16 bits; the constants are up to 57/65536 lower than exact centring gives. An odd last
 * pixel takes its own Cb and the Cr of the pair before it (width 1: its Cb for both).
 */
ZOR_API ZorStatus zoriYCbCr422ToRGB565_8u16u_C2C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                                   ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToRGB565Dither_8u16u_C2C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                                         ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToBGR565_8u16u_C2C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                                   ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToBGR565Dither_8u16u_C2C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                                         ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToRGB555_8u16u_C2C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                                   ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToRGB555Dither_8u16u_C2C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                                         ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToBGR555_8u16u_C2C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                                   ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToBGR555Dither_8u16u_C2C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                                         ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToRGB444_8u16u_C2C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                                   ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToRGB444Dither_8u16u_C2C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                                         ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToBGR444_8u16u_C2C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                                   ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422ToBGR444Dither_8u16u_C2C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                                         ZorSize roiSize);

/*
 * 4:2:0 planes to 16 bits. Any size is converted whole: an odd last column has chroma samples of its own, and so has
 * an odd last row. Chroma planes are (width + 1) / 2 by (height + 1) / 2 then.
 */
ZOR_API ZorStatus zoriYCbCr420ToRGB565_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint16_t* pDst,
                                                   int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420ToRGB565Dither_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                         uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420ToBGR565_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint16_t* pDst,
                                                   int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420ToBGR565Dither_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                         uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420ToRGB555_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint16_t* pDst,
                                                   int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420ToRGB555Dither_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                         uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420ToBGR555_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint16_t* pDst,
                                                   int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420ToBGR555Dither_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                         uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420ToRGB444_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint16_t* pDst,
                                                   int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420ToRGB444Dither_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                         uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420ToBGR444_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint16_t* pDst,
                                                   int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420ToBGR444Dither_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                         uint16_t* pDst, int dstStep, ZorSize roiSize);

/* 4:2:0 planes of Y'UV (zorcc/yuv.h) to 16 bits, with sizes as above. */
ZOR_API ZorStatus zoriYUV420ToRGB565_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint16_t* pDst,
                                                 int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYUV420ToRGB565Dither_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                       uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYUV420ToBGR565_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint16_t* pDst,
                                                 int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYUV420ToBGR565Dither_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                       uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYUV420ToRGB555_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint16_t* pDst,
                                                 int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYUV420ToRGB555Dither_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                       uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYUV420ToBGR555_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint16_t* pDst,
                                                 int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYUV420ToBGR555Dither_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                       uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYUV420ToRGB444_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint16_t* pDst,
                                                 int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYUV420ToRGB444Dither_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                       uint16_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYUV420ToBGR444_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint16_t* pDst,
                                                 int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYUV420ToBGR444Dither_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                       uint16_t* pDst, int dstStep, ZorSize roiSize);

/*
 * 4:1:1 planes to 16 bits: four pixels of a row share chroma. Pixels after the last four take the last chroma samples
 * of their row (width below 4: 128).
 */
ZOR_API ZorStatus zoriYCbCr411ToBGR555_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint16_t* pDst,
                                                   int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr411ToBGR565_8u16u_P3C3R(const uint8_t* const pSrc[3], const int srcStep[3], uint16_t* pDst,
                                                   int dstStep, ZorSize roiSize);

/* 16 bits to 4:2:2, packed Y0 Cb Y1 Cr or planar; width at least 2. An odd last pixel adds its luma alone. */
ZOR_API ZorStatus zoriBGR555ToYCbCr422_16u8u_C3C2R(const uint16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                                   ZorSize roiSize);
ZOR_API ZorStatus zoriBGR555ToYCbCr422_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                   const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriBGR565ToYCbCr422_16u8u_C3C2R(const uint16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                                   ZorSize roiSize);
ZOR_API ZorStatus zoriBGR565ToYCbCr422_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                   const int dstStep[3], ZorSize roiSize);

/*
 * 16 bits to 4:1:1; width at least 4. Pixels after the last four add their luma alone, and the result is
 * zorStatusOddSize.
 */
ZOR_API ZorStatus zoriBGR555ToYCbCr411_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                   const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriBGR565ToYCbCr411_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                   const int dstStep[3], ZorSize roiSize);

/*
 * 16 bits to 4:2:0, at least 2 x 2. An odd last column or row is neither read nor written; the result is then
 * zorStatusOddSize. YCrCb: plane 1 is Cr.
 */
ZOR_API ZorStatus zoriBGR555ToYCbCr420_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                   const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriBGR555ToYCrCb420_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                   const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriBGR565ToYCbCr420_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                   const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriBGR565ToYCrCb420_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                   const int dstStep[3], ZorSize roiSize);

/*
 * 16 bits to 4:2:0 of Y'UV, as zoriBGRToYUV420_8u_AC4P3R converts 8 bits. Sizes and status as above; plane pointers
 * are checked before the size.
 */
ZOR_API ZorStatus zoriBGR555ToYUV420_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                 const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriBGR565ToYUV420_16u8u_C3P3R(const uint16_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                 const int dstStep[3], ZorSize roiSize);

/*
 * 565 to 24 bits and back: fields to the top of a byte with zeros below, and the top bits of bytes. Steps below 1 give
 * zorStatusBadStep, after the size is checked. Images of at least 192 rows are converted on several threads.
 */
ZOR_API ZorStatus zoriRGB565ToRGB_16u8u_C3R(const uint16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                            ZorSize roiSize);
ZOR_API ZorStatus zoriBGR565ToBGR_16u8u_C3R(const uint16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                            ZorSize roiSize);
ZOR_API ZorStatus zoriRGBToRGB565_8u16u_C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                            ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToBGR565_8u16u_C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                            ZorSize roiSize);

#endif
