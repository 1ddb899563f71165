/* SPDX-License-Identifier: MIT */
/*
 * Demosaicing by the adaptive homogeneity-directed method (K. Hirakawa and T. W. Parks, 2005): a Bayer mosaic to R, G,
 * B in memory order. Mosaic, grid, region and statuses are those of zorcc/bayer.h; images from 5 x 5.
 *
 * Green at a red or blue pixel is estimated once along the row and once along the column: the average of the two green
 * neighbours, rounded down, plus a quarter, rounded down, of twice the pixel less the nearest pixels of its colour on
 * both sides, limited to the range of the two green neighbours. Both candidates, with red and blue from interpolated
 * differences to green, are compared in CIE L*a*b* (white D65): the direction that has more neighbours of like
 * lightness and colour around a pixel gives the pixel its green; where they are about even it is the mean of both. The
 * differences of red and blue to that green are interpolated and moved half of the way to their 3 x 3 median. The image
 * is mirrored at its edges. 16-bit results of samples 257 times as large as 8-bit samples are within 2 x 257 of 257
 * times the 8-bit results.
 *
 * `pTmp` is scratch memory: 64 rows of 32 x (w + 32) bytes, at a distance of `tmpStep` bytes, where w is the width of
 * the region inside the image. It needs no alignment and no initial values, is not checked, holds nothing of use after
 * the call, and must not be shared with a call that runs at the same time. On ownGetNumThreads() threads where the
 * region inside the image has at least 192 x 192 pixels.
 *
 * Names and images in general: zorcc.h.
 */
#ifndef ZORCC_DEMOSAICAHD_H
#define ZORCC_DEMOSAICAHD_H

#include "zorcc/types.h"

ZOR_API ZorStatus zoriDemosaicAHD_8u_C1C3R(const uint8_t* pSrc, ZorRect srcRoi, ZorSize srcSize, int srcStep,
                                           uint8_t* pDst, int dstStep, ZorBayerGrid grid, uint8_t* pTmp, int tmpStep);
ZOR_API ZorStatus zoriDemosaicAHD_16u_C1C3R(const uint16_t* pSrc, ZorRect srcRoi, ZorSize srcSize, int srcStep,
                                            uint16_t* pDst, int dstStep, ZorBayerGrid grid, uint16_t* pTmp,
                                            int tmpStep);

#endif
