/* SPDX-License-Identifier: MIT */
/*
 * Linear BGR and CIE 1976 L*a*b* (Lab): RGB with the primaries of ITU-R BT.709 and white D65, stored as B, G, R. It
 * counts as linear: no gamma is removed or applied. With X, Y, Z as in zorcc/xyz.h and white (0.950456, 1, 1.088754):
 *
 *   f(t) = t^(1/3) where t > 0.008856, otherwise 7.787 t + 16 / 116
 *   L = 116 Y^(1/3) - 16 where Y > 0.008856, otherwise 903.3 Y
 *   a = 500 (f(X / 0.950456) - f(Y)), b = 200 (f(Y) - f(Z / 1.088754))
 *
 * Back, f(t) counts as t^(1/3) everywhere. Codes: 8u 2.55 L, a + 128, b + 128; 16u 655.35 L, 255 (a + 128),
 * 255 (b + 128). Results are computed in single precision, every operation rounded as IEEE 754 says, cube roots within
 * two units in the last place; rounded to nearest, ties to even, and saturated.
 *
 * Steps are not checked. Images of any size are converted on ownGetNumThreads() threads, except inside a parallel
 * region of the caller.
 *
 * Names, images and statuses in general: zorcc.h.
 */
#ifndef ZORCC_LAB_H
#define ZORCC_LAB_H

#include "zorcc/types.h"

/* Linear BGR to Lab. */
ZOR_API ZorStatus zoriBGRToLab_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriBGRToLab_8u16u_C3R(const uint8_t* pSrc, int srcStep, uint16_t* pDst, int dstStep,
                                         ZorSize roiSize);

/* Lab to linear BGR. */
ZOR_API ZorStatus zoriLabToBGR_8u_C3R(const uint8_t* pSrc, int srcStep, uint8_t* pDst, int dstStep, ZorSize roiSize);
ZOR_API ZorStatus zoriLabToBGR_16u8u_C3R(const uint16_t* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                         ZorSize roiSize);

#endif
