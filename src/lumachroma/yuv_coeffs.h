// SPDX-License-Identifier: MIT
// Coefficients of the RGB and YUV conversions: Y'UV of analogue television with the luma weights of ITU-R BT.601. The
// real values stand beside the integers, which are part of the contract where they are not the nearest ones.
#pragma once

#include "lumachroma/coefficients.h"

namespace zorcc::yuv {

// 0.299, 0.587, 0.114. They add up to 65536, so that luma needs no clamp.
inline constexpr Weights luma = {19595, 38470, 7471};

// U per B - Y and V per R - Y: 0.492, 0.877.
inline constexpr int uPerDifference = 32244, vPerDifference = 57475;

// The interleaved source to 4:2:0: the same luma weights in units of 1/16384 (here times 4), and a quarter, for the sum
// of four pixels, of the difference factors: 0.123, 0.219.
inline constexpr Weights luma14 = {4 * 4899, 4 * 9617, 4 * 1868};
inline constexpr int uPerFourDifferences = 8061, vPerFourDifferences = 14369;

// Planes to planes: luma with a green weight one unit lower; U and V as sums of their own in units of 1/32768: -0.147,
// -0.289, 0.436 and 0.615, -0.515, -0.100.
inline constexpr Weights planarLuma = {19595, 38469, 7471};
inline constexpr Weights planarU = {-4816, -9469, 14286}, planarV = {20152, -16875, -3276};

// To RGB: 1.140, 0.394, 0.581, 2.032, rounded down; of the planar 4:4:4 sources; rounded to nearest.
inline constexpr ToRgb toRgb = centred(65536, 74711, 25821, 38076, 133169, 0, 0);
inline constexpr ToRgb planarToRgb = centred(65536, 74710, 25820, 38075, 133168, 0, 0);
inline constexpr ToRgb toRgbNearest = centred(65536, 74711, 25821, 38076, 133169, 0, 32768);

} // namespace zorcc::yuv
