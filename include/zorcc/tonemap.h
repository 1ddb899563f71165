/* SPDX-License-Identifier: MIT */
/*
 * Tone mapping: a grey image of floats of any range to 8 bits, by one factor for the whole image.
 *   ToneMapLinear  s = 255 / maximum, in single precision. A sample becomes the lowest 8 bits of s * sample, rounded
 *                  towards zero: nothing saturates, negative samples wrap (-1 with a maximum of 255 gives 255), and
 *                  what has 2^31 or more gives 0. Where s is rounded down the maximum itself may give 254.
 *   ToneMapMean    s = 255 / (2 mean), in double precision, rounded to single. A sample becomes s * sample, rounded
 *                  towards zero and saturated to 0..255.
 *
 * A maximum, or twice the mean, of no more than the least normal float (1.1754944e-38) gives a black image. So does an
 * infinite one: s is 0 then. NaN is passed over in the search for the maximum and itself becomes 0; a mean that is NaN,
 * because a sample is or because there are infinities of both signs, gives a black image.
 *
 * Steps of the source are rounded to whole floats towards zero. Calls run on one thread. The caller's rounding mode
 * makes no difference.
 *
 * Statuses, after the general ones:
 *   zorStatusNothingDone  the maximum (of an image of NaN: minus infinity), or the mean, is negative: nothing is
 *                         written
 *   zorStatusOk
 *
 * Names and images in general: zorcc.h.
 */
#ifndef ZORCC_TONEMAP_H
#define ZORCC_TONEMAP_H

#include "zorcc/types.h"

ZOR_API ZorStatus zoriToneMapLinear_32f8u_C1R(const float* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                              ZorSize roiSize);
ZOR_API ZorStatus zoriToneMapMean_32f8u_C1R(const float* pSrc, int srcStep, uint8_t* pDst, int dstStep,
                                            ZorSize roiSize);

#endif
