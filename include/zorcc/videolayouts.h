/* SPDX-License-Identifier: MIT */
/*
 * Video layouts and deinterlacing. The layouts of video: NV12 (YCbCr420 P2), YV12 (YCrCb420 P3), YUY2 (YCbCr422 C2),
 * UYVY (CbYCr422 C2). Layouts, checks, sizes and threads are those of zorcc/chromasampling.h.
 *
 * Names, images and statuses in general: zorcc.h.
 */
#ifndef ZORCC_VIDEOLAYOUTS_H
#define ZORCC_VIDEOLAYOUTS_H

#include "zorcc/types.h"

/* 4:2:2 to 4:2:0 keeps the first of every two rows of chroma, 4:2:0 to 4:2:2 gives every row of chroma to two. */
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
 * Deinterlacing by a vertical low-pass filter. Luma row r becomes (Y[r - 1] + 2 Y[r] + Y[r + 1]) / 4, where rows beyond
 * an edge of the frame repeat it. In the first 8 * (width / 8) columns the average of Y[r - 1] and Y[r], that of Y[r]
 * and Y[r + 1], and the average of these two are each rounded up; in the other columns only the sum is rounded, down.
 * The chroma of luma rows 2k and 2k + 1 is the average of chroma rows k and k + 1 (of the last two rows for the last k;
 * a single row as it is), rounded up in the same columns as luma and down in the others.
 *
 * `slice` is the position of the images in a frame: 1 the first slice, 4 a middle one, 16 the last; with all of these
 * bits (21) they are the whole frame. Any other value converts nothing. Slices have even heights and follow each other
 * downwards. A slice that another one follows leaves its last row of luma and its last two rows of chroma to that one,
 * since they depend on rows beyond; so for a middle or last slice the two rows above the images are read and completed,
 * too. All slices of a frame give the same result as one call with the whole frame.
 */
ZOR_API ZorStatus zoriYCbCr420ToYCbCr422_Filter_8u_P2C2R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr,
                                                         int srcCbCrStep, uint8_t* pDst, int dstStep, ZorSize roiSize,
                                                         int slice);
ZOR_API ZorStatus zoriYCbCr420ToYCrCb420_Filter_8u_P2P3R(const uint8_t* pSrcY, int srcYStep, const uint8_t* pSrcCbCr,
                                                         int srcCbCrStep, uint8_t* const pDst[3], const int dstStep[3],
                                                         ZorSize roiSize, int slice);

#endif
