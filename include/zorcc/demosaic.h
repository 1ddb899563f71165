/* SPDX-License-Identifier: MIT */
/*
 * Demosaicing: a Bayer mosaic, one colour sample a pixel in a repeating 2 x 2 cell, to R, G, B in memory order.
 *
 * `pSrc` points to pixel (0, 0) of the source image of `srcSize` pixels; `grid` names the cell at this pixel, whatever
 * the region. `srcRoi` is the region of the image to convert; what lies outside the image is left out, and the first
 * destination pixel is the first one inside. Neighbours outside the region but inside the image are used: the colours
 * of a pixel do not depend on the region. Steps are not checked. Statuses, in this order:
 *   zorStatusNullPointer  source or destination is null
 *   zorStatusBadSize      the source image is smaller than the function's minimum
 *   zorStatusBadArgument  the grid is none of ZorBayerGrid
 *   zorStatusOk           also for a region wholly outside the image; nothing is written
 *
 * Names and images in general: zorcc.h.
 */
#ifndef ZORCC_DEMOSAIC_H
#define ZORCC_DEMOSAIC_H

#include "zorcc/types.h"

/*
 * Interpolation along the smaller gradient; images from 2 x 2. All averages are rounded half up. At a red or blue pixel
 * green is the average of two neighbours: of those above and below if the pixels of its colour two rows above and two
 * rows below differ less than those two columns to the left and two to the right, of those to the left and right if
 * they differ more, and of all four neighbours if both differences are equal; the opposite colour is the average of the
 * four diagonal neighbours. At a green pixel, red and blue are averages of two neighbours. In the outer two columns and
 * rows of the image green is always the average of four, and a neighbour outside the image is replaced by the one on
 * the other side of the pixel. `interpolation` is ignored. On ownGetNumThreads() threads where at least 192 x 192
 * pixels of the region lie inside that border.
 */
ZOR_API ZorStatus zoriCFAToRGB_8u_C1C3R(const uint8_t* pSrc, ZorRect srcRoi, ZorSize srcSize, int srcStep,
                                        uint8_t* pDst, int dstStep, ZorBayerGrid grid, int interpolation);
ZOR_API ZorStatus zoriCFAToRGB_16u_C1C3R(const uint16_t* pSrc, ZorRect srcRoi, ZorSize srcSize, int srcStep,
                                         uint16_t* pDst, int dstStep, ZorBayerGrid grid, int interpolation);

/*
 * Adaptive homogeneity-directed demosaicing (K. Hirakawa and T. W. Parks, 2005); images from 5 x 5.
 *
 * Green at a red or blue pixel is estimated once along the row and once along the column: the average of the two green
 * neighbours plus a quarter of twice the pixel less the nearest pixels of its colour on both sides, limited to the
 * range of the two green neighbours. Both candidates, with red and blue from interpolated differences to green, are
 * compared in CIE L*a*b* (white D65): at every pixel each has up to four neighbours of like lightness and colour. The
 * candidate along the row has a share of 1/2 in the difference to green, and 1/64 more for every such neighbour that it
 * has more than the other one in the 5 x 5 pixels around, from 0 to 1. The difference of the opposite colour, blue or
 * red, is averaged along both diagonals; each average is weighted by the square of how much differences and greens
 * change along the other diagonal. Both differences at a green pixel are averages of two neighbours in the row and of
 * two in the column, mixed by the same share. At last all differences are moved three quarters of the way to the median
 * of themselves and their four neighbours; at red and blue pixels green follows from that. Nothing is rounded before
 * the result, to nearest. The image is mirrored at its edges. 16-bit results of samples 257 times as large as 8-bit
 * samples are within 129 of 257 times the 8-bit results, as near as rounding lets them be.
 *
 * `pTmp` is scratch memory: 64 rows of 32 x (w + 32) bytes, at a distance of `tmpStep` bytes, where w is the width of
 * the region inside the image. It needs no alignment and no initial values, is not checked, holds nothing of use after
 * the call, and must not be shared with a call that runs at the same time. On ownGetNumThreads() threads where the
 * region inside the image has at least 192 x 192 pixels.
 */
ZOR_API ZorStatus zoriDemosaicAHD_8u_C1C3R(const uint8_t* pSrc, ZorRect srcRoi, ZorSize srcSize, int srcStep,
                                           uint8_t* pDst, int dstStep, ZorBayerGrid grid, uint8_t* pTmp, int tmpStep);
ZOR_API ZorStatus zoriDemosaicAHD_16u_C1C3R(const uint16_t* pSrc, ZorRect srcRoi, ZorSize srcSize, int srcStep,
                                            uint16_t* pDst, int dstStep, ZorBayerGrid grid, uint16_t* pTmp,
                                            int tmpStep);

#endif
