/* SPDX-License-Identifier: MIT */
/*
 * Chroma sampling and plane orders: 8-bit luma-chroma images from one chroma sampling and layout to another. Nothing is
 * computed but averages of chroma; luma is copied. Layouts:
 *   C2           packed 4:2:2: YCbCr422 is Y0 Cb Y1 Cr, CbYCr422 is Cb Y0 Cr Y1, YCrCb422 is Y0 Cr Y1 Cb
 *   P3           planes Y, Cb, Cr, in the YCrCb forms Y, Cr, Cb
 *   P2           a plane of luma and one of pairs Cb Cr
 *   422          chroma of width / 2 by height; 420: width / 2 by height / 2; 411: width / 4 by height
 *   1620         chroma of width / 4 by height / 4
 * All pointers are checked before the size. Minimum sizes (below: zorStatusBadSize) are those of one block of pixels
 * that share chroma in either format: 2 x 1 for 422, 2 x 2 where there is 420, 4 x 1 for 411, 4 x 2 for 411 and 420.
 * Width and height are rounded down to such blocks; what lies beyond is neither read nor written, and the status is
 * zorStatusOk. Steps are not checked. All functions run on the calling thread. Groups that differ say so.
 *
 * Names, images and statuses in general: zorcc.h.
 */
#ifndef ZORCC_CHROMASAMPLING_H
#define ZORCC_CHROMASAMPLING_H

#include "zorcc/types.h"

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

/* From one layout to another, with the same samples. */
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
 * the destination's chroma and only rows are (420 to 411); after these they round down.
 *
 * Widths and heights must be multiples of 4 (heights of 2 for 420 to 411): otherwise zorStatusBadSize.
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
 * 4:2:2 to 4:2:0 and back for interlaced images: even and odd rows, which are two fields, are never mixed. Minimum
 * 2 x 4. Widths are rounded down to a multiple of 2 and heights to one of 4, in which case the result is
 * zorStatusOddSize.
 *   to 4:2:0, rows R to C    C[2m] = (3 R[4m] + R[4m + 2]) / 4,          C[2m + 1] = (R[4m + 1] + 3 R[4m + 3]) / 4
 *   to 4:2:2, rows C to R    R[4g + 2] = (5 C[2g] + 3 C[2g + 2]) / 8,    R[4g + 3] = (7 C[2g + 1] + C[2g + 3]) / 8,
 *                            R[4g + 4] = (C[2g] + 7 C[2g + 2]) / 8,      R[4g + 5] = (3 C[2g + 1] + 5 C[2g + 3]) / 8
 * rounded to nearest, a half upwards; the first two rows of 4:2:2 chroma and the last two are those of 4:2:0. From a
 * width of 128 and above a height of 128 the rows are divided among ownGetNumThreads() threads.
 */
ZOR_API ZorStatus zoriCbYCr422ToYCbCr420_Interlace_8u_C2P3R(const uint8_t* pSrc, int srcStep, uint8_t* const pDst[3],
                                                            const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr422To420_Interlace_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                     uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420To422_Interlace_8u_P3R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                     uint8_t* const pDst[3], const int dstStep[3], ZorSize roiSize);
ZOR_API ZorStatus zoriYCbCr420ToCbYCr422_Interlace_8u_P3C2R(const uint8_t* const pSrc[3], const int srcStep[3],
                                                            uint8_t* pDst, int dstStep, ZorSize roiSize);

#endif
