/* SPDX-License-Identifier: MIT */
/*
 * BGR and HLS with planes on one side or both: planes B, G, R and H, L, S, and a fourth one for alpha, which is copied.
 * Model, ranges and rounding are those of zorcc/hls.h. One step serves all planes of an image. Images of any size are
 * converted on ownGetNumThreads() threads, except inside a parallel region of the caller.
 *
 * Statuses, in this order:
 *   zorStatusNullPointer  the source, or one of its planes in turn, then the destination likewise, is null
 *   zorStatusBadStep      a step is below 1
 *   zorStatusBadSize      width or height is below 1
 *   zorStatusOk
 *
 * Names and images in general: zorcc.h.
 */
#ifndef ZORCC_HLSPL_H
#define ZORCC_HLSPL_H

#include "zorcc/types.h"

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

#endif
